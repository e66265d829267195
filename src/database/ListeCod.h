#pragma once
#include <QString>
#include <QStringList>
#include <vector>

class BD;

// A row of the code lists of DateGen.
struct RandDateGen {
    QString denumire; // the list's name in capitals
    int tip;
    int dataId;
    QString continut;
    int ordine;
};

// Every code list row that a new office starts with.
const std::vector<RandDateGen>& RanduriDateGen();

// A row of the scale: the fraction rows (Suma 0.4 and 0.74) and the lei rows (200 and 370).
struct RandBarem {
    int tip;
    QString descriere;
    int nrPers;
    double barem;
    double suma;
};
const std::vector<RandBarem>& RanduriBaremFractii();
const std::vector<RandBarem>& RanduriBaremLei();

// The reference value that the fractions multiply (lei).
constexpr double ValoareReferinta = 500.0;

// The identity document kinds: key and short name.
const std::vector<std::pair<int, QString>>& TipuriActeIdentitate();

// The lines of the seed files that an office folder holds (Venituri.txt, bife.txt).
QStringList LiniiFisierSemanat(const QString& numeFisier);

// Loads every code list and reference row into an empty database (inside a transaction).
void SeamanaListe(const BD& bd);
