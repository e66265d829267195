// The import of 1,000 applications through the editor's checks and save, each one its own
// savepoint inside one transaction that is rolled back, so the office is left as it was.
// Beside it, the bare insertion of the very rows that the import wrote, in one transaction.
#include "admin/Bench.h"
#include "admin/Comenzi.h"
#include "import/Demo.h"
#include "import/ImportCereri.h"
#include "common/Ceas.h"
#include "database/BD.h"

#include <QJsonArray>

namespace {

// The tables that an application's save writes (its history row too), parents first, each
// with the column whose values are new for the rows that the import added.
struct TabelaScrisa {
    const char* nume;
    const char* cheie;
};
constexpr TabelaScrisa Scrise[] = {
    {"Strazi", "StradaID"},        {"Politii", "PolitiaID"},   {"Scoli", "ScoalaID"},    {"Motive", "MotivID"},
    {"Familii", "FamilieID"},      {"Membrii", "MembruID"},    {"Cereri", "CerereID"},   {"IstoricCereri", "IstoricID"},
    {"CereriMembrii", "CerereID"}, {"Adeverinte", "CerereID"}, {"Venituri", "CerereID"}, {"Locuinte", "CerereID"},
};

qint64 maxim(const BD& bd, const TabelaScrisa& t)
{
    return bd
        .scalar(
            QStringLiteral("SELECT COALESCE(MAX(%1), 0) FROM %2").arg(QLatin1String(t.cheie), QLatin1String(t.nume)))
        .toLongLong();
}

// The rows of each table past its former maximum, as INSERT statements and their values.
std::vector<RanduriDeScris> randuriNoi(const BD& bd, const std::vector<qint64>& inainte)
{
    std::vector<RanduriDeScris> r;
    for (size_t i = 0; i < std::size(Scrise); ++i)
        r.push_back(CitesteRanduriDeScris(bd, QLatin1String(Scrise[i].nume),
                                          QStringLiteral("%1 > ?").arg(QLatin1String(Scrise[i].cheie)), {inainte[i]}));
    return r;
}

MasuraInregistrata import1000(QStringLiteral("import_1000_cereri"), [](BD& bd) {
    constexpr int N = 1000;
    const QJsonArray cereri = GenereazaCereriDemo(N, 1000);
    const int an = Ceas::azi().year();
    std::vector<qint64> inainte;
    for (const TabelaScrisa& t : Scrise)
        inainte.push_back(maxim(bd, t));

    std::vector<RanduriDeScris> scrise;
    int nesalvate = 0;
    // The first run of the import (which goes first) gathers the rows that the bare insertion
    // writes again.
    const auto ms = CelMaiBunTimp([&] {
        Tranzactie t(bd);
        nesalvate = 0;
        for (const RezultatImport& r : ImportaCereri(bd, cereri, an))
            nesalvate += r.salvat ? 0 : 1;
        if (scrise.empty())
            scrise = randuriNoi(bd, inainte);
    });
    const auto brut = CelMaiBunTimp([&] {
        Tranzactie t(bd);
        for (const RanduriDeScris& r : scrise)
            ScrieRanduri(bd, r);
    });
    ScrieTimp(QStringLiteral("import_1000_cereri"), ms, brut);
    // A refused application would make the measure look faster than the import is.
    if (nesalvate)
        ScrieEroare(QStringLiteral("import_1000_cereri: %1 cereri nesalvate").arg(nesalvate));
});

} // namespace
