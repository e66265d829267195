// The borderou of every application and every allowance kind: the grid built beside the bare
// reading of the same rows by the same statement, and the JSON of that grid.
#include "admin/Bench.h"
#include "common/Proces.h"
#include "database/BD.h"
#include "reports/Borderou.h"
#include "reports/ExportGrid.h"

namespace {

MasuraInregistrata borderouToate(QStringLiteral("borderou_toate"), [](BD& bd) {
    SelectieRaport sel;
    sel.index = 0;
    sel.tip = 0;
    sel.luna = Proces::setari().LunaSetata;
    sel.an = Proces::setari().AnSetat;
    ReportGrid g;
    const auto ms = CelMaiBunTimp([&] { ConstruiesteBorderou(bd, sel, g); });
    const auto brut = CelMaiBunTimp([&] { CitesteBrut(bd, SqlBorderou(sel)); });
    ScrieTimp(QStringLiteral("borderou_toate"), ms, brut);
    QByteArray json;
    ScrieValoare(QStringLiteral("borderou_toate_json_ms"), CelMaiBunTimp([&] { json = GridJson(g); }, 3));
});

} // namespace
