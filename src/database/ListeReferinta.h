#pragma once
#include "database/CoduriDateGen.h"

#include <QString>
#include <vector>

class BD;

// The small registers that the editors offer in their lists (a typed text that is not in them
// becomes a new row at the save of the application).
enum class ListaReferinta { Strazi, Motive, Scoli, Politii };

// The rows of a register by key and name, in the order of the key.
std::vector<ElementCod> CitesteListaReferinta(const BD& bd, ListaReferinta lista);

// The names of the income codes 1..n from ListaVenituri, by code; "" for a code it lacks.
std::vector<QString> DenumiriCoduriVenit(const BD& bd, int n);
