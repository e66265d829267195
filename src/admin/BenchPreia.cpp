// The move of the bench office (20,000 applications) from its folder form into a new office:
// the whole real run (reading, checks, one transaction, the read-back of the totals, the files,
// the report), beside the bare insertion of the very rows it wrote, in one transaction. The
// move keeps no table in memory, so those rows are read back, before the timing, from an office
// it made; the line's peak of memory is theirs, not the move's.
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

    int n = 0;
    const auto preia = [&] {
        OptiuniPreluare o;
        o.din = vechi;
        o.oficiu = dir.filePath(QStringLiteral("nou%1").arg(++n));
        Preia(o);
        return o.oficiu;
    };
    std::vector<RanduriDeScris> randuri;
    {
        BD facut;
        facut.deschide(QDir(preia()).filePath(Proces::NumeBD));
        for (const Tabela& t : TabeleOficiu())
            randuri.push_back(CitesteRanduriDeScris(facut, t.nume));
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
            for (const RanduriDeScris& tab : randuri)
                ScrieRanduri(tinta, tab);
        },
        1);
    ScrieTimp(QStringLiteral("preia_20000"), ms, brut);
});

} // namespace
