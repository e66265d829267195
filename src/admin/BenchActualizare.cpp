// The schema upgrade that runs at each start, on an office that is already up to date: it
// should cost only its tests. Beside it, the bare reading of the catalogue of every table.
#include "admin/Bench.h"
#include "database/ActualizareBD.h"
#include "database/BD.h"
#include "database/Schema.h"

#include <QFileInfo>

static MasuraInregistrata actualizare(QStringLiteral("pornire_actualizare"), [](BD& bd) {
    const QString folder = QFileInfo(bd.cale()).absolutePath();
    ActualizeazaBD(bd, folder); // an office made by an older release is brought up to date once, unmeasured
    const auto ms = CelMaiBunTimp([&] { ActualizeazaBD(bd, folder); });
    const auto bare = CelMaiBunTimp([&] {
        bd.conexiune().tables();
        for (const Tabela& t : TabeleOficiu())
            bd.coloane(t.nume);
    });
    ScrieTimp(QStringLiteral("pornire_actualizare"), ms, bare);
});
