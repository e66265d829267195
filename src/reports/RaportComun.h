#pragma once
#include "reports/ReportGrid.h"

#include <QDate>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <optional>

class BD;
class Rezultat;

// What the report windows pass to a builder: the positions chosen in their lists (-1 when
// nothing is chosen), the active month and year, the number of months and today's date.
struct SelectieRaport {
    int index = -1; // cboTipRaport
    int tip = -1;   // cboTipAloc (borderou) or cboTipCerere (catalogue)
    int ord1 = -1, ord2 = -1;
    int luna = 1, an = 2009;
    QString nrLuni = QStringLiteral("6");
    QDate azi; // invalid: the clock's today
};

// The two sort lists; the second of the catalogue window has "Nr" besides.
const QStringList& ListaOrdonare();
QStringList ListaOrdonare2(bool cuNr);

// " ORDER BY k1[, k2]" from the two lists, or empty when the first list is on nothing or on
// "Ordinea introducerii datelor". With nrCaNumar the key "Nr" of the second list sorts as a
// number, read in that connection's dialect (the annexes do so for house numbers).
QString ClauzaOrdonare(int ord1, int ord2, bool cuNr, const BD* nrCaNumar = nullptr);
// The clause with the order of entering the data behind it, so that equal keys (or no keys)
// keep the applications in the order they were typed.
QString OrdineCuIntroducere(const QString& ord, const QString& cheie = QStringLiteral("C.CerereID"));

// The one row of DatePrimarie, every column as text (NULL as ""); nothing when the table is empty.
std::optional<QHash<QString, QString>> CitesteRandPrimarie(const BD& bd);

// The first step of every report: a grid as new, the fixed look, the default font from the
// settings (Arial, FontSize0, FontB0) and the default row height (36 when absent or 0).
void ReseteazaGrid(ReportGrid& g, int inaltimeRand);

// Rows 1-8 of the list reports: "ROMANIA", the council, the county, the title word, the
// subtitle, the month, an empty row and the heads on row 8 (heads written by the caller).
// Without town hall data the message is told and rows 2 and 3 stay empty.
void ScrieBlocTitlu(ReportGrid& g, const std::optional<QHash<QString, QString>>& primarie, const QString& titlu,
                    const QString& subtitlu, int luna, int an);
// Heads on row 8: bold, centred, wrapped, height 50, thick above and thin below.
void ScrieAntetLista(ReportGrid& g, const QStringList& capete);
// One data row with a thin border under it over all the columns.
void AdaugaRandLista(ReportGrid& g, const QStringList& celule);
// An empty line, "As Social," and the social worker's name in column `coloana`, the last
// three columns merged on both lines, a last empty line. When `coloana` is one of the merged
// columns, the names stand in the merged cell, centred.
void ScrieRanduriInchidere(ReportGrid& g, const QString& asSocial, int coloana = 5);
// The same without the first empty line.
void ScrieSemnatura(ReportGrid& g, const QString& asSocial, int coloana = 5);

// "dd.mm.yyyy  " of an application's date, empty when NULL.
QString TextDataCerere(const QVariant& data);
QString TextDataCerere(const QDate& d);
// Today's date of the selection, or the clock's.
QDate AziSelectie(const SelectieRaport& s);

// The fixed message when DatePrimarie is empty.
inline const QString MesajFaraPrimarie =
    QStringLiteral("Dupa ce iesiti din aceasta fereastra Introduceti datele primariei!");

// The frame of a table from row `primul` to `ultimul` over columns 1 to `ultimaCol`: thick
// outer edges, thin inner lines.
void ChenarTabel(ReportGrid& g, int primul, int ultimul, int ultimaCol);
