#pragma once
#include <QJsonArray>
#include <QString>

class BD;

// A fictitious office for trying the program and for benchmarks: a town hall, and N
// applications of every status and both kinds with families, members with valid made-up
// CNPs, children and adults, and incomes. The applications are elements in the format of
// `alocatii-admin import-cereri` and are saved through that same path.
QJsonArray GenereazaCereriDemo(int n, unsigned seed = 2012);

// Writes the fictitious town hall (DatePrimarie, Judete, Localitati).
void ScrieDatePrimarieDemo(const BD& bd);

// Opens the office's database and adds the town hall and N applications.
void CompleteazaDemo(const QString& folder, int n);

// A made-up CNP that passes every check: sex digit, birth date, county and serial.
QString CNPInventat(int cifraSex, const class QDate& nastere, int judet, int serie);
