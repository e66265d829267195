#pragma once

class BD;
class ReportGrid;
struct PrevizualizareBarem;

// The preview of a change of the scale as a report of the report grid, for the screen, the
// printer, PDF and the spreadsheet (and the JSON of the command line): the title block with the
// month of effect, the sixteen rows with their former and new amounts, the families whose amount
// changes (former, new, difference), those that would fall to 0, those that cannot be computed
// and why, the count of those that stay as they are, and the totals by kind of allowance before
// and after.
void ConstruiesteSchimbareBarem(const BD& bd, const PrevizualizareBarem& p, ReportGrid& g);
