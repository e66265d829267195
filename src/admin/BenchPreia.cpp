// The move of the bench office (20,000 applications) from its folder form into a new office:
// the whole real run (reading, checks, one transaction, the read-back of the totals, the files,
// the report), beside the bare insertion of the very rows it wrote, in one transaction. Those
// rows are read back from an office the move made, a few thousand at a time and outside the
// timing: neither side holds a table whole.
#include "admin/Bench.h"
#include "preluare/FormaDosar.h"
#include "preluare/Preluare.h"
#include "database/BD.h"
#include "database/Oficiu.h"
#include "database/Schema.h"
#include "common/Proces.h"

#include <QDir>
#include <QElapsedTimer>
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
    BD facut;
    facut.deschide(QDir(preia()).filePath(Proces::NumeBD));
    const auto ms = CelMaiBunTimp([&] { preia(); }, 1);

    const QString gol = dir.filePath(QStringLiteral("gol"));
    CreeazaOficiu(gol);
    BD tinta;
    tinta.deschide(QDir(gol).filePath(Proces::NumeBD));
    const auto brut = TimpPropriu(
        [&] {
            QElapsedTimer ceas;
            ceas.start();
            double scris = 0;
            {
                Tranzactie t(tinta);
                const std::vector<Tabela>& schema = TabeleOficiu();
                for (auto it = schema.rbegin(); it != schema.rend(); ++it)
                    tinta.executa(QStringLiteral("DELETE FROM %1").arg(it->nume));
                scris = ceas.nsecsElapsed() / 1.0e6;
                for (const Tabela& tab : schema)
                    scris += ScrieRanduriDin(facut, tinta, tab.nume);
                ceas.restart();
            }
            return scris + ceas.nsecsElapsed() / 1.0e6;
        },
        1);
    ScrieTimp(QStringLiteral("preia_20000"), ms, brut);
});

} // namespace
