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
//
// A row says when it was written (DataTranzactie) and from when its change takes effect
// (DinData): a disposition's change from its DinData, the first day of the month it takes
// effect; a change made in the application editor from the status date the clerk gave, or
// from the day it was made. What was in effect on a day is the change written last among
// those that take effect on or before that day: a later decision overrides an earlier one for
// every day it covers. A row without DinData is a note (a month reopened): it changes nothing.

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

// Writes the row: Tranzactie the new status, the values before and after, the workstation and
// the system user of the process. `dinData` is the day from which the change takes effect (a
// disposition's DinData, the status date the clerk gave); an invalid date means the day it is
// written. `scrisLa` is the day it is written: the clock's today unless given (the demo office
// writes its past day by day). Only inside the caller's transaction (the key is the maximum
// plus 1): outside one it throws Eroare.
void ScrieIstoric(const BD& bd, const SchimbareCerere& s, const QDate& dinData = {}, const QDate& scrisLa = {});

// A row that only tells something of the case (a month reopened) and changes nothing: no
// DinData, the values before and after equal to those the case has now.
void ScrieNotaIstoric(const BD& bd, qint64 cerereId, const QString& motiv);

// Whether a change that takes effect from `dinData` holds on day `zi` (a note never does).
bool InVigoarePana(const QDate& dinData, const QDate& zi);

// The status a disposition's type decides: 1 grant 2, 2 change of the amount 7, 3 suspension 3,
// 4 rejection 5, 5 ending 4, 6 resumption 6; 0 for an unknown type.
int StareDinActiune(int actiune);

// The row of a disposition: the status its type decides, its amount and the application's
// child count, in effect from the disposition's DinData (read from its row, which is written
// first); the values before are those the history last knew (the application's own when it
// knows none), the former amount of a change when given.
void ScrieIstoricDispozitie(const BD& bd, qint64 dispozitieId, qint64 cerereId, int actiune, Bani cuantum,
                            std::optional<Bani> cuantumVechi = std::nullopt);

// The status, amount and child count of an application as stored now, with its status date;
// nothing when it is gone.
struct ValoriActuale {
    int stare = 0;
    Bani cuantum;
    int nrCopii = 0;
    QDate dataStare;
};
std::optional<ValoriActuale> CitesteValoriActuale(const BD& bd, qint64 cerereId);

// One row of the history, as the Istoric tab lists it.
struct RandIstoric {
    qint64 id = 0;
    QDate data;    // written
    QDate dinData; // takes effect; invalid for a note
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
// The history of an application, in the order it was written.
std::vector<RandIstoric> CitesteIstoric(const BD& bd, qint64 cerereId);

// The case as it stood at the end of a day: the values of the change written last among those
// in effect on or before it. Nothing when no change takes effect so early (the case was not
// known then, or its history begins later).
struct StareLaData {
    int stare = 0;
    Bani cuantum;
    int nrCopii = 0;
    QDate din; // the day from which the change that set these values takes effect
    QString motiv;
};
std::optional<StareLaData> StareLa(const std::vector<RandIstoric>& istoric, const QDate& data);
