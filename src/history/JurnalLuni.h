#pragma once
#include "common/Bani.h"
#include "history/LuniInchise.h"

#include <QDate>
#include <QJsonArray>
#include <QString>
#include <optional>
#include <vector>

class BD;

// The journal of the month close: every close and every reopening of a month is a row of its
// own, written in the transaction that closes or reopens and never changed afterwards, so that
// an audit reads who closed or reopened which month, when, from which workstation, why, and
// what the month's payroll held at that moment.

enum class FelJurnal { Inchidere = 1, Redeschidere = 2 };

struct RandJurnal {
    qint64 id = 0;
    LunaAn luna;
    FelJurnal fel = FelJurnal::Inchidere;
    QDate data;
    QString ora; // HH:mm:ss
    QString statie, utilizator;
    QString motiv; // the reason of a reopening
    int familii = 0, copii = 0;
    Bani suma; // the payroll's totals at that moment
};

// Writes the row with the clock's day, the hour, the workstation and the system user; only
// inside the caller's transaction.
void ScrieJurnal(const BD& bd, LunaAn l, FelJurnal fel, const QString& motiv, int familii, int copii, Bani suma);

// The journal in the order it was written; only the rows of one month when given.
std::vector<RandJurnal> CitesteJurnal(const BD& bd, std::optional<LunaAn> doar = std::nullopt);

// "inchidere", "redeschidere".
QString TextFelJurnal(FelJurnal fel);

// [{"luna", "an", "fel", "data" (yyyy-mm-dd), "ora", "statie", "utilizator", "motiv",
//   "familii", "copii", "suma" (four decimals)}, ...]
QJsonArray JurnalJson(const std::vector<RandJurnal>& jurnal);
