#pragma once
// The rows and models tests start from. Rows are written with plain SQL; every column of a
// row has a default that a map of columns changes or extends. The models are the application
// editor's, filled in as an officer would.
#include "applications/Cerere.h"
#include "common/Bani.h"

#include <QDate>
#include <QVariantMap>

class BD;

namespace DateTest {

// A NULL text column.
inline const QVariant Null = QVariant(QMetaType::fromType<QString>());

// One row of any table.
void Rand(const BD& bd, const QString& tabela, const QVariantMap& valori);

// Application `id` of family `id` (or the `FamilieID` given in `cerere`): couple type, number
// 100 + id, dated 05.03.2012, in payment, 3 members of whom 1 child, income 450 (150 per member),
// amount 30. The family lives in Tarnaveni, str. Florilor 12, sc. B, ap. 4; its row is written
// only when that family is not in the file yet. The titular, MembruID id * 10, is POPESCU ION,
// CNP 1800101260016; a titular whose CNP is already in Membrii is linked instead.
void Dosar(const BD& bd, qint64 id, const QVariantMap& cerere = {}, const QVariantMap& titular = {},
           const QVariantMap& familie = {});

// Another person of application `cerereId` (a child unless `legatura` gives RudenieID): the
// columns of Membrii in `membru`, a new key unless one is given; a CNP already in Membrii is
// linked, not added again, as the application editor does. Returns the MembruID.
qint64 Persoana(const BD& bd, qint64 cerereId, const QVariantMap& membru, const QVariantMap& legatura = {});

// Application `id` whose persons are given by CNP, the first being the titular.
void DosarCuMembri(const BD& bd, qint64 id, const QStringList& cnpuri, const QVariantMap& cerere = {});

// Application `id` whose titular (MembruID `id`, CNP `cnp`) has every field and code that the
// printed forms show filled in: POP ION of Avram Iancu 12, bl. B4, number 345 of 09.03.2026.
void DosarCompletat(const BD& bd, const QString& cnp = QStringLiteral("1800517260011"), qint64 id = 1);

void Venit(const BD& bd, qint64 cerereId, int cod, double valoare);

// Disposition `id` of application `cerereId`: a grant, number 55, of 20.03.2012, from 01.04.2012,
// 30 lei, reason "motivul dispozitiei".
void Dispozitie(const BD& bd, qint64 id, qint64 cerereId, const QVariantMap& schimbari = {});

// Inquiry `id` of application `cerereId`, of 01.03.2012.
void Ancheta(const BD& bd, qint64 id, qint64 cerereId, const QVariantMap& schimbari = {});

// A valid CNP of somebody born on that day.
QString CNPNascut(const QDate& nastere, int serie = 1);

// Rows of a table that match a condition with one bound value.
qint64 NumaraRanduri(const BD& bd, const QString& tabela, const QString& conditie = QString(),
                     const QVariant& valoare = {});

// The row counts of every table an application's save writes, to show that a refused or failed
// save left them as they were.
QList<qint64> RanduriScrise(const BD& bd);

// A grown-up member (no Data18Ani): rudenie 1 titular, 2 spouse. `serie` keeps the CNPs of
// one test apart.
MembruCerere MembruAdult(int rudenie, int serie, int ocupatie = 1, const QDate& nascut = QDate(1980, 5, 17));
// A child: born on `nascut`, Data18Ani its 18th birthday, kinship 3, occupation 8 (pupil).
MembruCerere MembruCopil(const QDate& nascut, int serie, int ocupatie = 8);

// A new application in the editor (mode 1) that passes every check: kind `tipCerere`, a titular
// (and a spouse for kind 1), `copii` children born in 2015, the income total on code 4 (salary),
// one house, the member count, the child count and the income per member as the editor shows them.
::Cerere Familie(int copii = 2, Bani venitTotal = Lei(500), int tipCerere = 1, int serie = 1);

// A disposition saved as the disposition editor saves it (its history row, its calculation):
// number `nr` of today, for month `luna` of 2026, action `actiune`, with the amounts as typed.
qint64 DispozitieSalvata(BD& bd, qint64 cerereId, int nr, int luna, int actiune, const QString& suma,
                         const QString& sumaNoua = QString());

} // namespace DateTest
