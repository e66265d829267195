#pragma once
#include "applications/Cerere.h"

#include <QString>

class BD;

// The prefix of an error while loading an application ("Eroare in AfisDate: " N descriere).
inline const QString PrefixEroareIncarcare = QStringLiteral("Eroare in AfisDate: ");

// Mode 2 of the application editor: the application, its family, housing, incomes, members
// (ordered by RudenieID, with kinship and occupation texts, the "Data nast." column and their
// certificates, newest handed in first) and the shared values. ReprLegal and ModPlata start on
// the usual choices of mode 1, and a stored value replaces them only when it is not NULL. Throws Eroare (show it with
// PrefixEroareIncarcare) when the database fails or the application no longer exists (3167).
Cerere IncarcaCerere(const BD& bd, qint64 cerereId);

// Mode 1: an empty application with the county and place of the first rows of Judete and
// Localitati, today's date, the usual first choices of ReprLegal and ModPlata, and the
// LunaGospod that the last editor left (see RetineLunaGospod).
Cerere CerereNoua(const BD& bd);

// The month of "Gospodareste" outlives the editor: when frmAddCerere closes (saved or not) the
// shared data are emptied but LunaGospod stays, and the next new application starts with it.
// The window calls this as it closes.
void RetineLunaGospod(int luna);
