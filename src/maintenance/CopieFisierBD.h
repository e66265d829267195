#pragma once
#include "maintenance/VerificareCopie.h"

#include <functional>

class BD;

// The rows of every table of the open database, by the engine's own table list.
QMap<QString, qint64> RanduriTabele(const BD& bd);

// A consistent copy of an office file into `tinta` (a new file), made by SQLite's online
// backup while the source is held in one read transaction: the writes of other workstations
// wait for it, as for any reader. `progres` gets the percentage done. Returns the rows of
// every table of the source, counted in that same transaction. Throws Eroare when the source
// cannot be read or the copy cannot be written; `tinta` is then what the caller removes.
QMap<QString, qint64> CopiazaFisierBD(const QString& sursa, const QString& tinta,
                                      const std::function<void(int)>& progres = {});

// The check of a copied file: PRAGMA integrity_check, the rows of every table, the size and
// the fingerprint. Nothing is written to the file.
VerificareCopie VerificaFisierBD(const QString& cale);
