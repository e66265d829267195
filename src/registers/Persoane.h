#pragma once
#include <QString>
#include <QStringList>
#include <vector>

class BD;

// The persons register: every person of Membrii across all applications, for looking up.
struct RandPersoana {
    qint64 id = 0;
    QString nume, prenume, cnp, tipAct, serieBI, nrBI; // NULL as ""; tipAct the document's short name
};

std::vector<RandPersoana> CitestePersoane(const BD& bd);

// The incremental search: the first of `valori` (in the list's order) that begins with the
// trimmed text, both in capitals; -1 when none does. An empty text matches the first value.
int CautaPrefix(const QStringList& valori, const QString& text);

// The message of a search by Enter that found nothing, for search box 0 (Nume), 1 (Prenume)
// or 2 (CNP).
QString MesajNegasit(int caseta, const QString& text);
