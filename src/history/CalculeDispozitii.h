#pragma once
#include "common/Bani.h"

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

class BD;

// The calculation behind a disposition, stored with it when it is saved, so that a sheet
// printed a year later shows what was decided then: the members looked at and why each
// counted or not, the income total and per member, the scale row used and the amount.
struct MembruCalcul {
    QString nume, prenume, cnp;
    int rudenieId = 0;
    int ocupatieId = 0;
    QDate data18Ani;
    bool numarat = false;
    QString motiv;
};

struct CalculDispozitie {
    qint64 cerereId = 0;
    int tipCerere = 0;
    int an = 0; // the year the children's ages are measured against
    int nrMembrii = 0;
    int nrCopii = 0;
    Bani venitTotal;
    Bani venitPeMembru;
    int baremNrPers = 0; // the scale row: NrPers and income tier; 0 when none was read
    int baremSuma = 0;
    Bani barem;         // the lei of that row
    Bani cuantum;       // the amount by the rules
    QString observatii; // why there is no amount (no child, income too high, no scale row)
    std::vector<MembruCalcul> membri;
};

// Stores it for the disposition, replacing what was there; inside the caller's transaction.
void ScrieCalcul(const BD& bd, qint64 dispozitieId, const CalculDispozitie& c);

// The stored calculation; nothing for a disposition saved before calculations were stored.
std::optional<CalculDispozitie> CitesteCalcul(const BD& bd, qint64 dispozitieId);
