#pragma once
#include "reports/RaportComun.h"

class BD;

// The kind of annex of a position in the reports list (9 to 14), 0 for any other.
int TipAnexa(int index);

// The statement of one kind: 1 new payments and resumptions, 3 new, 4 resumptions (Annex 3);
// 2 changes and cessations, 5 suspensions, 6 all of these (Annex 4). In the workbook the
// widths are characters and the second key "Nr" sorts as text.
void ConstruiesteAnexa(const BD& bd, int tip, const SelectieRaport& sel, ReportGrid& g, bool pentruExport = false);
QString SqlAnexa(const BD& bd, int tip, const SelectieRaport& sel, bool pentruExport);
