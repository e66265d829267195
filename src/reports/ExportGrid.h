#pragma once
#include <QByteArray>
#include <QString>

class ReportGrid;

// The grid written out: as a spreadsheet (.xlsx) and as the JSON of the command-line tool.

// Writes the grid as a workbook of one sheet: texts, widths, heights, merges, borders, bold,
// font sizes, alignments and the page set-up. Grid coordinates (1-based) go to the sheet's
// first row and column. False, with the reason in `eroare`, when the file cannot be written.
bool ScrieXlsx(const ReportGrid& g, const QString& cale, QString* eroare = nullptr);

// {"cols": C, "rows": R, "cells": [[row, col, "text"], ...], "merges": [[r1, c1, r2, c2], ...],
//  "widths": [w1, ...], "bold": [[row, col], ...]}: only the cells that hold text, in row then
// column order; "bold" lists those of them that print bold.
QByteArray GridJson(const ReportGrid& g);
