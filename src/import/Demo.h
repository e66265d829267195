#pragma once
#include <QJsonArray>
#include <QString>

class BD;

// A fictitious office for trying the program and for benchmarks, made the way an office
// would have made it over the last two years up to today (the clock): a town hall with its
// streets, and N applications of every status and both kinds, each saved through the import,
// with the dispositions that brought it to its status, the social inquiries while it was
// followed and the pupils' school certificates. The same seed gives the same office.

// The seed of the office that `init --demo` makes.
constexpr unsigned SamantaDemo = 2012;

// The applications alone, as elements in the format of `alocatii-admin import-cereri`.
QJsonArray GenereazaCereriDemo(int n, unsigned seed = SamantaDemo);

// Writes the fictitious town hall (DatePrimarie, Judete, Localitati), as its window saves it.
void ScrieDatePrimarieDemo(BD& bd);

// Opens the office's database and adds the town hall, its streets and N applications with
// their dispositions and inquiries, all in one transaction.
void CompleteazaDemo(const QString& folder, int n, const QString& server = QString());

// A made-up CNP that passes every check: sex digit, birth date, county and serial.
QString CNPInventat(int cifraSex, const class QDate& nastere, int judet, int serie);
