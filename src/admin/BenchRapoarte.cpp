// The borderou of every application and every allowance kind: the grid built beside the bare
// reading of the same rows by the same statement, and the JSON of that grid.
#include "admin/Bench.h"
#include "common/Proces.h"
#include "database/BD.h"
#include "reports/Borderou.h"
#include "reports/ExportGrid.h"

#include <QSqlRecord>

namespace {

MasuraInregistrata borderouToate(QStringLiteral("borderou_toate"), [](BD& bd) {
    SelectieRaport sel;
    sel.index = 0;
    sel.tip = 0;
    sel.luna = Proces::setari().LunaSetata;
    sel.an = Proces::setari().AnSetat;
    ReportGrid g;
    const double ms = CelMaiBunTimp([&] { ConstruiesteBorderou(bd, sel, g); });
    const double brut = CelMaiBunTimp([&] {
        Rezultat r = bd.selecteaza(SqlBorderou(sel));
        const int n = r.interogare().record().count();
        qint64 suma = 0;
        while (r.next())
            for (int i = 0; i < n; ++i)
                suma += r.valoare(i).isNull() ? 0 : 1;
        volatile qint64 pastrat = suma;
        (void)pastrat;
    });
    ScrieTimp(QStringLiteral("borderou_toate"), ms, brut);
    QByteArray json;
    ScrieValoare(QStringLiteral("borderou_toate_json_ms"), CelMaiBunTimp([&] { json = GridJson(g); }, 3));
});

} // namespace
