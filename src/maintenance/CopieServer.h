#pragma once
#include "maintenance/VerificareCopie.h"

#include <QStringList>

class BD;

// Copies of an office whose data are on a PostgreSQL server, by the server's own tools
// (pg_dump and pg_restore of Debian's postgresql-client). They reach the server with the
// office's address; the password comes the libpq way (~/.pgpass), never on their command line:
// an address that holds one is refused.

// A dump in pg_dump's custom format (-Fc) into `tinta`, taken in the snapshot of one
// transaction in which the rows of every table are counted too. Returns those counts.
// Throws Eroare with the tool's own words when it fails.
QMap<QString, qint64> CopiazaBazaServer(const QString& server, const QString& tinta);

// The check of a dump: the archive read whole by pg_restore (a damaged block stops it) and
// the rows of every table counted in it; the size and the fingerprint.
VerificareCopie VerificaArhivaServer(const QString& cale);

// Restores a dump into the server database in one transaction: with `inlocuieste`, the
// tables of the dump that the database holds are dropped first, inside that transaction.
// Throws Eroare, leaving the database as it was, when pg_restore fails.
void RestaureazaArhivaServer(const QString& server, const QString& arhiva, bool inlocuieste);

// The other connections to the open server database, each as "application (address)".
QStringList AlteLegaturiServer(const BD& bd);
