#pragma once
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <functional>

// The data of an office kept by the old program: its Access file Tarnava.mdb, read through
// mdbtools (mdb-tables for the list of tables, mdb-json for the rows, one JSON object a line),
// or a folder holding one <Tabela>.json file per table in exactly that line form (a NULL
// column left out of its line, a date as "YYYY-MM-DD HH:MM:SS"), for a file that mdbtools
// cannot open and was exported elsewhere. Either lies in the old office folder, beside acte/,
// Venituri.txt, bife.txt and the password file.

// The number of the errors of a bad input (a file that is not an Access file, one that cannot
// be read, a target that is not a new office...): the command ends with exit code 2 and
// nothing is written.
inline constexpr int IntrarePreluareGresita = 3343;

struct SursaVeche {
    enum class Fel { Access, Dosar };
    Fel fel = Fel::Dosar;
    QString folder;   // the old office folder
    QString fisier;   // the Access file (Fel::Access)
    QString versiune; // "Jet 3", "Jet 4", "Access 2007" ...; "" for a folder
};

// Finds the old office's data in `din`: an Access file, a folder that holds Tarnava.mdb, or a
// folder of <Tabela>.json files. An Access file is checked before mdbtools reads it: its
// signature, its release, a length that is not whole pages. Throws Eroare
// (IntrarePreluareGresita) saying what is wrong.
SursaVeche GasesteSursa(const QString& din);

// The tables, in the order of the file. Throws Eroare (IntrarePreluareGresita) when mdbtools
// is not installed or cannot read the file (with its own words) or finds it truncated.
QStringList TabeleSursa(const SursaVeche& s);

// One row as read: the object of its line, or the reason it cannot be read.
struct RandVechi {
    int numar = 0; // the line, from 1
    QJsonObject valori;
    QString eroare;
};

// Every row of `tabela`, in the order of the file.
void CitesteRanduri(const SursaVeche& s, const QString& tabela, const std::function<void(const RandVechi&)>& f);
