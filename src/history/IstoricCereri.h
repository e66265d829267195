#pragma once
#include "common/Bani.h"

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

class BD;

// The history of a case: every change of an application's status, amount or child count,
// wherever it is made (the application editor, a disposition, a bulk run, a maintenance
// command, the import), leaves one row of IstoricCereri, written by ScrieIstoric inside the
// transaction of the change itself.

// A change as its maker knows it. The values before are empty where there were none (a new
// application) or where the maker does not know them.
struct SchimbareCerere {
    qint64 cerereId = 0;
    std::optional<int> stareVeche;
    int stare = 0;
    std::optional<Bani> cuantumVechi;
    Bani cuantum;
    std::optional<int> nrCopiiVechi;
    int nrCopii = 0;
    qint64 dispozitieId = 0; // the disposition that made it, 0 for none
    QString motiv;           // the action, in the office's words: "Modificare cerere", ...
};

// Whether status, amount or child count differ from their values before (a value without a
// former one always counts as changed).
bool SchimbareReala(const SchimbareCerere& s);

// The row of MotivTranzactie: the reason, then what changed, e.g.
// "Modificare cerere: stare 2 -> 7, cuantum 300.00 -> 350.00", at most 255 characters.
QString TextSchimbare(const SchimbareCerere& s);

// Writes the row: Tranzactie the new status, DataTranzactie the clock's today, the values
// before and after, the workstation and the system user of the process. Only inside the
// caller's transaction (the key is the maximum plus 1): outside one it throws Eroare.
void ScrieIstoric(const BD& bd, const SchimbareCerere& s);

// The status a disposition's type decides: 1 grant 2, 2 change of the amount 7, 3 suspension 3,
// 4 rejection 5, 5 ending 4, 6 resumption 6; 0 for an unknown type.
int StareDinActiune(int actiune);

// The row of a disposition: the status its type decides, its amount and the application's
// child count; the values before are those the history last knew (the application's own when
// it knows none), the former amount of a change when given.
void ScrieIstoricDispozitie(const BD& bd, qint64 dispozitieId, qint64 cerereId, int actiune, Bani cuantum,
                            std::optional<Bani> cuantumVechi = std::nullopt);

// The status, amount and child count of an application as stored now; nothing when it is gone.
struct ValoriActuale {
    int stare = 0;
    Bani cuantum;
    int nrCopii = 0;
};
std::optional<ValoriActuale> CitesteValoriActuale(const BD& bd, qint64 cerereId);

// One row of the history, as the Istoric tab lists it.
struct RandIstoric {
    qint64 id = 0;
    QDate data;
    int stare = 0;
    std::optional<int> stareVeche;
    Bani cuantum;
    std::optional<Bani> cuantumVechi;
    int nrCopii = 0;
    qint64 dispozitieId = 0;
    QString motiv;
    QString statie;
    QString utilizator;
};
// The history of an application, oldest first (by day, then in the order written).
std::vector<RandIstoric> CitesteIstoric(const BD& bd, qint64 cerereId);

// The case as it stood at the end of a day: the values of the last row written on or before
// it. Nothing when the history begins later (the case was not known then).
struct StareLaData {
    int stare = 0;
    Bani cuantum;
    int nrCopii = 0;
    QDate din; // the day of the row that set these values
    QString motiv;
};
std::optional<StareLaData> StareLa(const std::vector<RandIstoric>& istoric, const QDate& data);
