#pragma once
#include "applications/Cerere.h"

#include <QString>
#include <QStringList>
#include <vector>

class BD;

// The rules of the income editor (frmAddVenituri), the housing editor (frmAddLocuinta) and the
// exclusion assets (frmBife). None of them writes to the database.

inline const QString MesajCod80 = QStringLiteral("Pe codul 80 trebuie sa aveti valoarea zero (0). Corectati!");

inline const QString MesajTotalVenituriPreaMare =
    QStringLiteral("Totalul veniturilor depaseste cea mai mare suma pe care o poate pastra campul VenitTotal "
                   "(922337203685477.5807 lei). Corectati!");

// Code 80 must stay zero, and the total must fit its money column: the message, or "" when
// the incomes may be accepted.
QString VerificaVenituri(const VenituriCerere& venituri);

// The incomes from the grid's cells (row c = code c, index c - 1); a cell that isn't a number
// counts as 0.
VenituriCerere VenituriDinCelule(const QStringList& celule);

// "Total venituri: X lei". At opening the total adds all 80 entries; while editing only the
// rows 1 to 79 (display only).
QString TextTotalVenituri(double total);
double TotalVenituriLaDeschidere(const VenituriCerere& venituri);
double TotalVenituriEditare(const QStringList& celule);

// A housing record from its box and, for the first six kinds, the rooms and surface as typed.
// Rooms are a whole number 0..255: outside that range the message to show comes back and the
// record is left as it was.
QString CitesteLocuinta(int index, bool bifat, const QString& camere, const QString& suprafata, LocuintaCerere& l);

// The exclusion assets: the rows of Bife as the list shows them ("NrBifa. - Denumire").
QStringList RanduriBife(const BD& bd);
// Which rows are ticked by a Bife text (position n ticks row n - 1; rows past the list are
// ignored).
std::vector<bool> BifeBifate(const QString& bife, int nrRanduri);
// The Bife text of the ticks: "1" ticked, "0" not, in the order of the rows.
QString TextBife(const std::vector<bool>& bifate);
