#pragma once
#include <QString>
#include <QStringList>
#include <vector>

class BD;

// The tables, columns, keys, cascades and indexes of an office database, held as data in
// one place: `init` lays them down, and the schema upgrade reads the same definitions.
enum class TipCamp { Octet, Intreg, Lung, Moneda, Simplu, Dublu, Data, DaNu, Text, Memo };

struct Camp {
    QString nume;
    TipCamp tip;
    int marime = 0; // Text only
};

struct Legatura {
    QString nume;    // the relation's name
    QString coloana; // in this (child) table
    QString parinte; // parent table
    QString coloanaParinte;
};

struct Tabela {
    QString nume;
    std::vector<Camp> campuri;
    QStringList cheiePrimara;
    std::vector<Legatura> legaturi; // with cascading update and delete
    std::vector<QStringList> indexuri;
};

// Every table of an office database, parents before children.
const std::vector<Tabela>& TabeleOficiu();
const Tabela* GasesteTabela(const QString& nume);

// The SQL type of a column for the connection's engine.
QString TipSql(const Camp& c, bool postgres);

// A table without a key tells its rows apart by the engine's row identity, in the order they
// were added: SQLite's rowid; on a server, where a row's place changes with each update, a
// column of its own, numbered by the server, that no statement of the program writes.
inline const QString IdentitateRandServer = QStringLiteral("RandID");
QString ColoanaIdentitateServer();

// CREATE TABLE and CREATE INDEX for every table, inside the caller's transaction.
void CreeazaSchema(const BD& bd);
// The same for one table.
void CreeazaTabelaSchema(const BD& bd, const Tabela& t);
// The name of the table's n-th index (from 1).
QString NumeIndex(const Tabela& t, int n);
