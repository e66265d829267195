#pragma once
#include "reports/RaportComun.h"

class BD;

// The office's payment list: the applications of one status and allowance kind, with the
// amount of each and a general total.

// The entries of the borderou's two lists.
const QStringList& ListaStariBorderou();   // "Toate cererile", "In plata", ...
const QStringList& ListaTipAlocatie();     // "Toate alocatiile", ...

// Fills the grid. "In plata" here is status 2 alone (the catalogue's list of the same name is
// wider). sel.tip is the position in the allowance list.
void ConstruiesteBorderou(const BD& bd, const SelectieRaport& sel, ReportGrid& g);

// The statement alone, for measuring what the grid adds to the engine.
QString SqlBorderou(const SelectieRaport& sel);
