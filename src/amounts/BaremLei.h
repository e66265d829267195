#pragma once
#include "amounts/Cuantum.h"
#include "common/Bani.h"

#include <QByteArray>
#include <QDate>
#include <QJsonArray>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>

class BD;

// The lei rows of the scale: the monthly amount for each kind of allowance (1 couples, 2 single
// parents), number of children (NrPers 1 to 4, 4 standing for four or more) and income tier
// (Suma 200: income per member below 200 lei; 370: from 200 up to 370). The amount calculation
// reads them without looking at their dates. There are sixteen, always in the order of the
// office's table: kind 1 then 2, tier 200 then 370, 1 to 4 children.
constexpr int NrRanduriBaremLei = 16;

struct CheieBarem {
    int tip = 0;
    int nrPers = 0;
    int suma = 0;
    friend bool operator==(const CheieBarem&, const CheieBarem&) = default;
};
// The key of row `index` (0 to 15).
CheieBarem CheieBaremLei(int index);
// The place of a key among the sixteen; -1 for a key that is no lei row.
int IndexBaremLei(int tip, int nrPers, int suma);

// The texts of a row, as the window's table and the printed change show them: "Cu sot" or
// "Mono" (as the case list), "1 copil" to "4 sau mai multi copii", "sub 200 lei" or
// "200 - 370 lei", and all three together.
QString TextTipAlocatie(int tip);
QString TextCopiiBarem(int nrPers);
QString TextTreaptaVenit(int suma);
QString DescriereBarem(const CheieBarem& c);

using SumeBarem = std::array<Bani, NrRanduriBaremLei>;

struct RandBaremLei {
    CheieBarem cheie;
    std::optional<Bani> barem; // nothing when the office's table lacks the row
    QDate dataInceput;
};
using BaremLei = std::array<RandBaremLei, NrRanduriBaremLei>;

// The sixteen rows as Barem holds them; of a key held twice, the first row.
BaremLei CitesteBaremLei(const BD& bd);

// The calculation's lookup in sixteen amounts, or in the rows read (a missing row is missing).
CautareBarem CautareInSume(const SumeBarem& sume);
CautareBarem CautareInBarem(const BaremLei& barem);

// New amounts as the clerk gives them: each a plain number of lei (digits with at most one
// point and four decimals), other than 0. The first that is refused is named with its message.
struct SumeCitite {
    SumeBarem sume{};
    int gresit = -1; // the index of the refused amount; -1 with a message for the whole list
    QString mesaj;   // empty when every amount passed
    bool ok() const { return mesaj.isEmpty(); }
};
// The sixteen texts, in the order of the rows.
SumeCitite CitesteSumeNoi(const QStringList& texte);
// The refusal of an amount of 0 for that row.
QString MesajSumaZero(const CheieBarem& c);
// FILE.json of the command line: an array of the sixteen rows, each an object with Tip, NrPers,
// Suma and Barem (a number, or a number as text); each row once, other members ignored.
SumeCitite SumeDinJson(const QByteArray& json);
// The rows in that form, with DataInceput (dd.mm.yyyy) and a description beside, so that what
// `barem arata --json` prints can be edited into FILE.json.
QJsonArray BaremLeiJson(const BaremLei& barem);
