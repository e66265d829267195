#pragma once
#include <QString>
#include <functional>

// Moves an office from its file Tarnava.db to an empty database on a server, in one
// transaction on the server: the schema, then every row of every table with its keys, then,
// before the commit, the row count and the money totals of each table read back on both
// sides. Each table's figures go to `linie` as they are checked. A difference, or any
// failure, leaves the server database as it was and throws Eroare. Only after the commit is
// ServerBD written into the office's settings file; the file Tarnava.db stays as it was, and
// nobody writes to it while the rows are copied (the move holds its write lock).
void MutaOficiuPeServer(const QString& folder, const QString& server, const std::function<void(const QString&)>& linie);
