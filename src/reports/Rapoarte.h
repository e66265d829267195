#pragma once
#include "reports/RaportComun.h"

#include <QDateTime>
#include <utility>

class BD;
struct Setari;

// The catalogue of the reports window: seventeen reports by their position in the list.

const QStringList& ListaRapoarte();  // "Toate cererile" ... "Lista acte care expira in luna curenta"
const QStringList& ListaTipCerere(); // "Toate", "Complementare", "Monoparentale"

// Positions of the list that name a family of reports.
namespace IndexRaport {
constexpr int Respinse = 4;
constexpr int Optsprezece = 5;
constexpr int CuAdeverinte = 6;
constexpr int FaraAdeverinte = 7;
constexpr int Sapte = 8;
constexpr int PrimaAnexa = 9;
constexpr int UltimaAnexa = 14;
constexpr int Luni = 15;
constexpr int ActeExpira = 16;
} // namespace IndexRaport

// Builds the report of sel.index into the grid; an index outside the list builds nothing.
void ConstruiesteRaport(const BD& bd, const SelectieRaport& sel, ReportGrid& g);

// Only the 7 years list, the annexes, the months list and the expiring documents export.
bool AreExport(int index);
// The workbook of the export: the same cells as the report, sized in spreadsheet units, and
// for the months list a wider selection (every application older than the month).
void ConstruiesteExport(const BD& bd, const SelectieRaport& sel, ReportGrid& foaie);
// The new workbook's name in the program folder, without blanks: the report's title (for the
// annexes the setting Anexa3 or Anexa4 and the annex's list), then the moment of the export:
// "Centralizator_Noi_2012-03-15_093000.xlsx", "Cereri-6-luni_2012-03-15_093000.xlsx".
QString NumeFisierExport(int index, const Setari& s, const QDateTime& moment);
// The path of that name in the folder; "_2", "_3" ... before the extension when a file of that
// name is already there, so that two exports in a row give two workbooks.
QString CaleExportNoua(const QString& folder, int index, const Setari& s, const QDateTime& moment);

// The month N months before the active one: {month, year}.
std::pair<int, int> LunaInUrma(int luna, int an, int nrLuni);
// The children who turn 18 in the month after the active one: [start, end). In December the
// working month is January of the next year, so the list shows February.
std::pair<QDate, QDate> Interval18Ani(int luna, int an);

// The builders, one per family.
void ListaStare(const BD& bd, const SelectieRaport& sel, int parametru, ReportGrid& g);
void ListaOptsprezeceAni(const BD& bd, const SelectieRaport& sel, ReportGrid& g);
void ListaSapteAni(const BD& bd, const SelectieRaport& sel, ReportGrid& g, bool pentruExport = false);
void ListaLuni(const BD& bd, const SelectieRaport& sel, ReportGrid& g, bool pentruExport = false);
void ListaAdeverinte(const BD& bd, const SelectieRaport& sel, bool cuAdeverinta, ReportGrid& g);
void ListaActeExpira(const BD& bd, const SelectieRaport& sel, ReportGrid& g, bool pentruExport = false);
