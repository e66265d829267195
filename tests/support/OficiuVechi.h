#pragma once
#include <QByteArray>
#include <QString>

class BD;

// An office of the old program, as the tests of the upgrade and of the move build it.

// The database file of an older release at `cale` (replaced when there): columns missing, the
// two old column names, the income kept in two columns, tables and relations missing, short
// code lists (`randuriVenituri` and `randuriBife` rows), an index on a column that goes away.
void ScrieFisierVechi(const QString& cale, int randuriVenituri = 79, int randuriBife = 19);

// The code lists of an office that kept them whole (those of a new office): added to the DateGen
// of `bd` where a row is missing, or written as the folder form's DateGen.json in `dosar`.
void CompleteazaListeVechi(BD& bd);
void ScrieListeDosar(const QString& dosar);

// The folder form of an office, as the move reads it: every table of `bd` as <Tabela>.json,
// and the office's acte/, Venituri.txt and bife.txt of `folderOficiu` copied beside them.
void ScrieDosarVechi(const BD& bd, const QString& folderOficiu, const QString& dosar);

// A file with these bytes, its folders made; and the bytes of a file, none when it cannot be read.
void ScrieOcteti(const QString& cale, const QByteArray& continut);
QByteArray CitesteOcteti(const QString& cale);
