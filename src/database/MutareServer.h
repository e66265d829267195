#pragma once
#include <QDate>
#include <QString>
#include <functional>

// Moves an office from its file Tarnava.db to an empty database on a server, in one
// transaction on the server: the schema, then every row of every table with its keys, then,
// before the commit, the row count and the money totals of each table read back on both
// sides. Each table's figures go to `linie` as they are checked. A difference, or any
// failure, leaves the server database and the file as they were and throws Eroare.
//
// Nothing is lost to a workstation that is still open: for the whole copy the move holds the
// office's lock file snet.txt and the file's write lock, and it refuses to start while
// another workstation holds the lock file (naming it, as it wrote itself there). In the same
// transaction the file gets the mark of a moved office, so that every later write to it, by
// a process that opened it before, is refused ("Datele oficiului au fost mutate pe server
// ..."); reading it stays possible. After the commit ServerBD is written into the office's
// settings file, and the file is renamed to NumeFisierMutat: the office's last copy before
// the move.
void MutaOficiuPeServer(const QString& folder, const QString& server, const std::function<void(const QString&)>& linie);

// The name that the moved file takes in its folder: "Tarnava-mutat-pe-server-2026-03-02.db",
// with "-2", "-3"... when that one is taken.
QString NumeFisierMutat(const QString& folder, const QDate& cand);
