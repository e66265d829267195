// The move of the bench office (20,000 applications) from its folder form into a new office:
// the whole real run (reading, checks, one transaction, the read-back of the totals, the files,
// the report), beside the bare insertion of the very rows it wrote, in one transaction. The
// move keeps no table in memory, so those rows are read back, before the timing, from an office
// it made.
#include "admin/Bench.h"
#include "preluare/FormaDosar.h"
#include "preluare/Preluare.h"
#include "database/BD.h"
#include "database/Oficiu.h"
#include "database/Schema.h"
#include "common/Proces.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

struct RanduriTabela {
    QString insert;
    std::vector<QVariantList> valori;
};

// Every row of every table of `bd`, with the statement that writes it back.
std::vector<RanduriTabela> toateRandurile(const BD& bd)
{
    std::vector<RanduriTabela> r;
    for (const Tabela& t : TabeleOficiu()) {
        const QStringList col = bd.coloane(t.nume);
        RanduriTabela x;
        x.insert = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                       .arg(t.nume, col.join(QStringLiteral(", ")),
                            QStringList(col.size(), QStringLiteral("?")).join(QStringLiteral(", ")));
        Rezultat rez = bd.selecteaza(QStringLiteral("SELECT %1 FROM %2").arg(col.join(QStringLiteral(", ")), t.nume));
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

MasuraInregistrata preia20000(QStringLiteral("preia_20000"), [](BD& bd) {
    QTemporaryDir dir;
    const QString vechi = dir.filePath(QStringLiteral("vechi"));
    ScrieFormaDosar(bd, vechi);

    int n = 0;
    const auto preia = [&] {
        OptiuniPreluare o;
        o.din = vechi;
        o.oficiu = dir.filePath(QStringLiteral("nou%1").arg(++n));
        Preia(o);
        return o.oficiu;
    };
    std::vector<RanduriTabela> randuri;
    {
        BD facut;
        facut.deschide(QDir(preia()).filePath(Proces::NumeBD));
        randuri = toateRandurile(facut);
    }
    const auto ms = CelMaiBunTimp([&] { preia(); }, 1);

    const QString gol = dir.filePath(QStringLiteral("gol"));
    CreeazaOficiu(gol);
    BD tinta;
    tinta.deschide(QDir(gol).filePath(Proces::NumeBD));
    const auto brut = CelMaiBunTimp(
        [&] {
            Tranzactie t(tinta);
            const std::vector<Tabela>& schema = TabeleOficiu();
            for (auto it = schema.rbegin(); it != schema.rend(); ++it)
                tinta.executa(QStringLiteral("DELETE FROM %1").arg(it->nume));
            for (const RanduriTabela& tab : randuri)
                for (const QVariantList& v : tab.valori)
                    tinta.executa(tab.insert, v);
        },
        1);
    ScrieTimp(QStringLiteral("preia_20000"), ms, brut);
});

} // namespace
