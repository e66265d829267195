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

// The tables that an application's save writes, parents first, each with the column whose
// values are new for the rows that the import added.
struct TabelaScrisa {
    const char* nume;
    const char* cheie;
};
constexpr TabelaScrisa Scrise[] = {
    {"Strazi", "StradaID"},     {"Politii", "PolitiaID"}, {"Scoli", "ScoalaID"},    {"Motive", "MotivID"},
    {"Familii", "FamilieID"},   {"Membrii", "MembruID"},  {"Cereri", "CerereID"},   {"CereriMembrii", "CerereID"},
    {"Adeverinte", "CerereID"}, {"Venituri", "CerereID"}, {"Locuinte", "CerereID"},
};

struct Randuri {
    QString insert;
    std::vector<QVariantList> valori;
};

qint64 maxim(const BD& bd, const TabelaScrisa& t)
{
    return bd
        .scalar(
            QStringLiteral("SELECT COALESCE(MAX(%1), 0) FROM %2").arg(QLatin1String(t.cheie), QLatin1String(t.nume)))
        .toLongLong();
}

// The rows of each table past its former maximum, as INSERT statements and their values.
std::vector<Randuri> randuriNoi(const BD& bd, const std::vector<qint64>& inainte)
{
    std::vector<Randuri> r;
    for (size_t i = 0; i < std::size(Scrise); ++i) {
        const QString tabela = QLatin1String(Scrise[i].nume);
        const QStringList col = bd.coloane(tabela);
        Randuri x;
        x.insert = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                       .arg(tabela, col.join(QStringLiteral(", ")),
                            QStringList(col.size(), QStringLiteral("?")).join(QStringLiteral(", ")));
        Rezultat rez = bd.selecteaza(QStringLiteral("SELECT %1 FROM %2 WHERE %3 > ?")
                                         .arg(col.join(QStringLiteral(", ")), tabela, QLatin1String(Scrise[i].cheie)),
                                     {inainte[i]});
        while (rez.next()) {
            QVariantList v;
            for (int c = 0; c < col.size(); ++c)
                v << rez.valoare(c);
            x.valori.push_back(std::move(v));
        }
        r.push_back(std::move(x));
    }
    return r;
}

MasuraInregistrata import1000(QStringLiteral("import_1000_cereri"), [](BD& bd) {
    constexpr int N = 1000;
    const QJsonArray cereri = GenereazaCereriDemo(N, 1000);
    const int an = Ceas::azi().year();
    std::vector<qint64> inainte;
    for (const TabelaScrisa& t : Scrise)
        inainte.push_back(maxim(bd, t));

    std::vector<Randuri> scrise;
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
        for (const Randuri& r : scrise)
            for (const QVariantList& v : r.valori)
                bd.executa(r.insert, v);
    });
    ScrieTimp(QStringLiteral("import_1000_cereri"), ms, brut);
    // A refused application would make the measure look faster than the import is.
    if (nesalvate)
        ScrieEroare(QStringLiteral("import_1000_cereri: %1 cereri nesalvate").arg(nesalvate));
});

} // namespace
