#pragma once
#include "preluare/SursaVeche.h"
#include "common/Bani.h"

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <functional>
#include <map>
#include <vector>

class BD;
struct Camp;

// The move of an office from the old program: every table of its Access file (or of the
// folder form) read, checked and written into a new office made by init, through the same
// steps that the start-up upgrade applies to a file of an older release (renamed and deleted
// columns, the income once kept in two columns, missing tables, seeded rows), so that the
// result equals what the upgrade makes of the same data. Keys are kept as they were: the
// numbering, the documents and "maximum plus 1" go on where the old program stopped.

// A row that is not brought over, and why.
struct RefuzPreluare {
    int rand = 0; // its line in the table's output, from 1
    QString motiv;
};

struct TabelaPreluata {
    QString nume;      // as the program names it
    QString numeVechi; // as the old file names it
    int citite = 0;
    std::vector<RefuzPreluare> refuzate;
    QStringList coloaneLasate; // columns unknown to the program: listed and left out
    QStringList coloane;       // the columns written
    int nrScrise = 0;          // the rows that pass every check (written by the real run)
    // The rows of the code lists (DateGen, ListaVenituri), values as the database takes them:
    // every other table is written row by row as it is read, and keeps none.
    std::vector<QVariantList> randuri;
    int scrise() const { return nrScrise; }
};

// The figures an office checks against its own papers.
struct TotalPlata {
    qint64 familii = 0;
    qint64 copii = 0;
    Bani suma;
    bool operator==(const TotalPlata&) const = default;
};

struct TotaluriPreluare {
    std::map<int, qint64> cereriPeStare;  // Stare (0 when none) -> applications
    std::map<int, TotalPlata> plataPeTip; // TipCerere -> the payroll statuses 2, 6, 7, 8
    QStringList cnpGresite;               // "CNP NUME PRENUME" of the persons whose CNP fails the check
    bool operator==(const TotaluriPreluare&) const = default;
};

struct Preluare {
    SursaVeche sursa;
    QString tinta; // the new office folder
    std::vector<TabelaPreluata> tabele;
    QStringList tabeleLasate; // tables unknown to the program
    TotaluriPreluare totaluri;
    QStringList observatii; // the files, the templates, the settings, what the upgrade said
    bool scris = false;
    QString fisierRaport; // preluare-YYYYMMDD-HHMMSS.txt beside the database, after a real run
};

struct OptiuniPreluare {
    QString din;           // the old office folder, its Tarnava.mdb, or the folder form
    QString oficiu;        // the new office folder
    QString server;        // the new office's database server; empty for Tarnava.db in `oficiu`
    QString setari;        // the old workstation's setariTarnava.ini, to carry; empty for none
    bool incearca = false; // the dry run: reads, checks and reports, writes nothing
};

// How far the work is: step `pas` of `pasi`, and what it is doing.
using ProgresPreluare = std::function<void(int pas, int pasi, const QString& ce)>;

// The whole move. The dry run writes nothing. The real run writes in one transaction, reads
// the same totals back from the new office and rolls back when they differ from those read
// from the old file; then copies the office's files and settings and writes the report beside
// the database. A bad input (see SursaVeche, and a target that is not a new office or cannot
// be written) throws Eroare (IntrarePreluareGresita) before anything is written; any other
// failure throws Eroare with nothing written.
Preluare Preia(const OptiuniPreluare& o, const ProgresPreluare& progres = {});

// The old office's tables read and checked (part of the above); `seminte` is the folder of the
// seed files the new office will hold, for its code lists. With `tinta` (the real run, inside
// its transaction, its tables emptied) each row that passes is written there as soon as it is
// checked, so that no table is held whole in memory, and each table is then counted; without
// it nothing is written.
void CitesteSiVerifica(Preluare& p, const QString& seminte, const ProgresPreluare& progres = {},
                       const BD* tinta = nullptr);

// Writes the kept rows of a code list read from the old file, and checks that the table holds
// exactly them (the table was emptied before). Throws Eroare.
void ScrieTabelaPreluata(const BD& bd, const TabelaPreluata& t);

// The statement that writes one row of `t`, its columns in the order of `t.coloane`.
QString SqlScrieTabelaPreluata(const TabelaPreluata& t);

// Checks that `t` holds in `bd` exactly the rows that passed. Throws Eroare.
void VerificaRanduriScrise(const BD& bd, const TabelaPreluata& t);

// One value of the old file as the column `coloana` of `tabela` stores it, in `out`; the reason
// when it cannot be stored exactly: a date that mdbtools could not read (day or month 00, as it
// prints a date before 1900 or after 9999), a value that does not fit the column.
QString ValoarePreluata(const QString& tabela, const QString& coloana, const QJsonValue& v, QVariant& out);
QString ValoarePreluata(const Camp& coloana, const QJsonValue& v, QVariant& out);

// The totals of an office's database, read with its own statements.
TotaluriPreluare CitesteTotaluri(const BD& bd);
