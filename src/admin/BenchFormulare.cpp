// The inquiry form, its 10 pages filled from an application and written to PDF (a page must
// take under 50 ms to draw), beside the same form blank: the ratio tells what the data layer
// adds to the drawing of the frames.
#include "admin/Bench.h"
#include "database/BD.h"
#include "forms/TiparireFormular.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

MasuraInregistrata ancheta(QStringLiteral("formular_ancheta_pdf"), [](BD& bd) {
    const QVariant id = bd.scalar(QStringLiteral("SELECT MIN(CerereID) FROM Cereri"));
    if (!id.isValid() || id.isNull())
        return;
    QTemporaryDir dir;
    const QString pdf = QDir(dir.path()).filePath(QStringLiteral("ancheta.pdf"));
    const SursaFormular sursa{&bd, id.toLongLong()};
    const auto ms = CelMaiBunTimp([&] { ScriePdfFormular(pdf, FormularAncheta, ModCompletat, sursa, {}); });
    const auto gol = CelMaiBunTimp([&] { ScriePdfFormular(pdf, FormularAncheta, ModGol, sursa, {}); });
    ScrieTimp(QStringLiteral("formular_ancheta_pdf"), ms, gol);
});

} // namespace
