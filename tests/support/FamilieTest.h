#pragma once
#include "applications/Cerere.h"
#include "common/Bani.h"

#include <QDate>

class BD;

// Builders of the application editor's model for tests: a family with its members and incomes,
// as an officer would have filled the editor. Every CNP is a valid made-up one; `serie` keeps
// the CNPs of one test apart.

// A grown-up member (no Data18Ani): rudenie 1 titular, 2 spouse.
MembruCerere MembruAdult(int rudenie, int serie, int ocupatie = 1, const QDate& nascut = QDate(1980, 5, 17));
// A child: born on `nascut`, Data18Ani its 18th birthday, kinship 3, occupation 8 (pupil).
MembruCerere MembruCopil(const QDate& nascut, int serie, int ocupatie = 8);

// A new application (mode 1) that passes every check: kind `tipCerere`, a titular (and a
// spouse for kind 1), `copii` children born in 2015, the income total on code 4 (salary), one
// house, the member count, the child count and the income per member as the editor shows them.
Cerere FamilieTest(int copii = 2, Bani venitTotal = Lei(500), int tipCerere = 1, int serie = 1);

// Writes the model (ScrieCerere, active year 2026) and returns the application's key.
qint64 SalveazaFamilieTest(BD& bd, Cerere& c, int anActiv = 2026);
