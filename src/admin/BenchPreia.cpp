// The move of the bench office (20,000 applications) from its folder form into a new office:
// the whole real run (reading, checks, one transaction, the read-back of the totals, the files,
// the report), beside the bare insertion of the very rows it wrote, in one transaction.
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

MasuraInregistrata preia20000(QStringLiteral("preia_20000"), [](BD& bd) {
    QTemporaryDir dir;
    const QString vechi = dir.filePath(QStringLiteral("vechi"));
    ScrieFormaDosar(bd, vechi);

    Preluare p;
    int n = 0;
    const auto ms = CelMaiBunTimp(
        [&] {
            OptiuniPreluare o;
            o.din = vechi;
            o.oficiu = dir.filePath(QStringLiteral("nou%1").arg(++n));
            p = Preia(o);
        },
        1);

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
            for (const TabelaPreluata& tab : p.tabele)
                ScrieTabelaPreluata(tinta, tab);
        },
        1);
    ScrieTimp(QStringLiteral("preia_20000"), ms, brut);
});

} // namespace
