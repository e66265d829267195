#pragma once
#include "reports/ReportGrid.h"

#include <QFont>
#include <QList>
#include <QPointF>
#include <QString>

class QPagedPaintDevice;
class QPainter;

// One drawing of a ReportGrid for the screen, the preview, the printer and the PDF.
// Coordinates are the grid's pixels (96 to the inch); the painter's transform scales them.

// How a set of rows is drawn: on the screen with the fixed colours and the light lines between
// cells, on paper in black on white with the report's own borders only.
enum class ModDesen { Ecran, Hartie };

// Draws the rows in the given order, one under the other, from `origine`. A merged cell is
// drawn once, at its first row that appears in the list.
void DeseneazaRanduri(QPainter& p, const ReportGrid& g, const QList<int>& randuri, QPointF origine, ModDesen mod);

// The font a cell's text is drawn with, at the grid's pixels, and the gap kept between the text
// and each side of its cell: a text shows whole when its width and two gaps fit the column.
QFont FontCelula(const ReportGrid& g, int r, int c);
constexpr double SpatiuCelula = 2;

// Total width of the shown columns (1 to Cols()-1).
double LatimeGrid(const ReportGrid& g);

// Splits the rows 1..Rows()-1 into pages of at most `inaltime` pixels. From the second page on,
// each page begins with the head rows (SetRanduriAntet) again; every page holds at least one row
// of its own.
QList<QList<int>> PaginiGrid(const ReportGrid& g, double inaltime);

// Applies the grid's page set-up (paper, orientation, margins) to a printer or PDF writer.
void AplicaPagina(const ReportGrid& g, QPagedPaintDevice& dev);

// Paints the pages on an opened device (page set-up applied): all of them, or only page
// `doarPagina` (1-based) when it is not 0. The grid is shrunk to the page's width when it is
// wider. Returns the number of pages the grid makes, -1 when the device cannot be painted on.
int TiparesteGrid(const ReportGrid& g, QPagedPaintDevice& dev, int doarPagina = 0);

// Writes the grid as a PDF file; false when the file cannot be written.
bool ScriePdf(const ReportGrid& g, const QString& cale);
