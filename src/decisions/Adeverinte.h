#pragma once
#include <QDate>
#include <QString>
#include <vector>

class BD;

// The register of school certificates across all applications: every pupil (occupation 8 or
// 9) of every application, and the certificates of one pupil.

struct ElevCerere {
    qint64 cerereId = 0;
    qint64 membruId = 0;
    QString nrCerere;
    QString titular;      // surname and first names of the applicant
    QString elev;         // of the pupil
    QString dataNasterii; // from the CNP, "" without one
    QString varsta;       // at `referinta`, "" without a CNP
};

// The pupils in the order of the applications; the age at `referinta`, the first day of the
// month after the active month.
std::vector<ElevCerere> CitesteEleviCereri(const BD& bd, const QDate& referinta);

// The first day of the month after the active month of the workstation.
QDate ReferintaVarsta();

struct Adeverinta {
    qint64 adevId = 0;
    qint64 cerereId = 0;
    qint64 membruId = 0;
    QString nrAdev;
    QDate dataAdeverinta, dataExpAdev, dataDepunerii; // invalid for NULL
    int tipAdeverinta = -1;                           // -1 for NULL
};

std::vector<Adeverinta> CitesteAdeverinte(const BD& bd, qint64 cerereId, qint64 membruId);

// The type column shows the code through the date form of the list (TextDataLunga), as if it
// were a day count from the start of the engine's calendar (code 3 shows as "2 Ianuarie 1900"); "" for NULL.
QString TextTipAdeverinta(int tip);

// The editor's OK: the number must not be blank ("Nu ati introdus numarul adeverintei", false).
// A new certificate takes the maximum plus 1 as its key, written back into `a`. The number is
// written trimmed. Engine errors come out as Eroare.
bool SalveazaAdeverinta(BD& bd, Adeverinta& a, bool adaug);
// Deletes one certificate; a row deleted meanwhile comes out as Eroare 3167.
void StergeAdeverinta(const BD& bd, qint64 adevId);

// The heading of the editor: the application's number, its applicant and the pupil, each
// "" when its row is missing.
struct AntetAdeverinta {
    QString nrCerere, titular, elev;
};
AntetAdeverinta CitesteAntetAdeverinta(const BD& bd, qint64 cerereId, qint64 membruId);
