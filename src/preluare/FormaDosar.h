#pragma once
#include <QString>

class BD;

// The folder form of an office's data, the line form that mdb-json gives: one <Tabela>.json
// per table of the database, one JSON object a row, a NULL column left out, a date as
// "YYYY-MM-DD 00:00:00", a Yes/No column as true or false; the rows in the order of their key,
// those of a table without one in the order they were added. It is what an office whose
// Access file mdbtools cannot open brings from elsewhere, and what the checks of the move and
// its benchmark are fed. Every table and column of the database is written, those of an older
// release too. Throws Eroare when a file cannot be written.
void ScrieFormaDosar(const BD& bd, const QString& folder);
