#pragma once
#include <QString>

class ReportGrid;

// The whole look of a report grid as text, one fact a line, for the saved expected reports:
// counts, default font and row height, page set-up, every column's width, alignment and what it
// holds in the workbook (text, whole numbers, sums), the rows of their own height, the merges,
// and every cell that has a text or a format of its own (alignment, bold, size, wrap, borders);
// empty cells of one format side by side share a line. A change of one cell is a change of one
// line.
QString GrilaText(const ReportGrid& g);
