#pragma once
#include <QJsonObject>
#include <QMap>
#include <functional>
#include <QString>

// What the check of a copy of the office's data found: the engine's own integrity check (on a
// file) or a full read of the archive (from a server), the rows of every table, and the
// fingerprint of the file as it lies on disk.
struct VerificareCopie {
    bool buna = false;
    QString integritate;           // "ok", or the engine's first findings
    QMap<QString, qint64> randuri; // table (as the engine names it) -> rows
    QString amprenta;              // SHA-256 of the file, hex
    qint64 marime = 0;             // bytes
    QString motiv;                 // why the copy is not good, in the office's words; empty when it is

    qint64 totalRanduri() const;
    // {"buna", "integritate", "marime", "sha256", "randuri": {...}, "motiv"}
    QJsonObject json() const;
};

// The SHA-256 of a file, read in blocks; empty when it cannot be read.
QString AmprentaFisier(const QString& cale);

// The difference between the rows a copy must hold and those it holds, in words ("Cereri: 12 in
// copie, 13 in baza"); empty when every table agrees. Table names are compared without case.
QString DiferentaRanduri(const QMap<QString, qint64>& asteptat, const QMap<QString, qint64>& gasit);

// The check that both kinds of copy share: the size and the fingerprint, then `citeste` (the
// engine's reading of the copy: it fills integritate and randuri, or throws Eroare), then
// whether the copy holds an office's data (the table Cereri). `fel` names what the file should
// be, for the message ("o baza de date", "o arhiva pg_dump").
VerificareCopie VerificaContinut(const QString& cale, const QString& fel,
                                 const std::function<void(VerificareCopie&)>& citeste);

// Whole copies are named after the moment they were made: Tarnava-YYYYMMDD-HHMMSS.db for a
// file office, .dump for a server office (a second copy in the same second takes "-2").
// Anything else in the copies folder (the files being written, the index) is not a copy.
bool EsteNumeCopie(const QString& numeFisier);
