#pragma once
#include "maintenance/IndexCopii.h"
#include "maintenance/RotatieCopii.h"

#include <functional>

struct Setari;

// Where an office's copies go and how many are kept: the office (its folder, and its server
// when its data are there), the copies folder and the keeping rule.
struct LocCopii {
    QString folderOficiu;
    QString server; // empty for the file Tarnava.db
    QString folderCopii;
    RegulaPastrare regula;
};

// The office of the settings in memory (CaleBD, ServerBD), with the keys of section Generale of
// the settings file that only the copies read: CaleCopii (copii/ under CaleBD when empty; a
// relative path is taken from CaleBD), CopiiZilnice, CopiiSaptamanale, CopiiLunare (the
// defaults 7, 4, 12 when empty or 0; nothing is written back).
LocCopii LocCopiiDinSetari(const Setari& s);

// The moment a copy is named after: the clock's today at the system's time of day.
QDateTime MomentCopie();

struct RezultatCopie {
    QString fisier; // the whole copy's path
    VerificareCopie verificare;
    QStringList sterse; // the older copies that the rule let go
};

// Makes a copy of the office's data now, named after `acum`: written under a temporary name,
// checked (integrity, and every table's rows equal to the source's at the moment of the copy)
// and only then given its name, entered in the index, after which the copies beyond the
// keeping rule are removed. One copy at a time per folder, whichever workstation makes it.
// A copy that fails its check is removed and nothing older goes; Eroare says why.
RezultatCopie FaCopie(const LocCopii& loc, const QDateTime& acum, const std::function<void(int)>& progres = {});

// The copy that the program makes at its start: needed when no good copy of the office is
// from the day of `acum` (the newest is from an earlier day, or there is none).
bool CopieNecesara(const LocCopii& loc, const QDateTime& acum);

// A copy as the maintenance window lists it: every file of the folder named as a copy, with
// what the index knows of it (nothing for one that the index does not name).
struct CopieListata {
    QString fisier; // path
    QDateTime facuta;
    qint64 marime = 0;
    bool inIndex = false;
    CopieInregistrata inregistrare;
};
// Newest first.
QList<CopieListata> ListaCopii(const QString& folderCopii);

// Checks any copy (a file .db or a server dump .dump) and, when its folder's index names it,
// holds it to what the index recorded: the same fingerprint and the same rows.
VerificareCopie VerificaCopie(const QString& cale);
