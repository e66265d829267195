// The member editor: what it reads when it opens (its lists) and at each character of the
// CNP (the persons whose CNP begins with it), on the office's file. The persons are no longer
// read whole: the figure must stay the same however many persons the file holds.
#include "admin/Bench.h"
#include "applications/RegulaMembru.h"
#include "database/BD.h"

namespace {

MasuraInregistrata editorMembru(QStringLiteral("editor_membru_deschidere"), [](BD& bd) {
    // A CNP of the file, typed up to its birth date: the longest list the clerk is shown.
    const QString cnp = bd.scalar(QStringLiteral("SELECT MIN(CNP) FROM Membrii")).toString();
    const QString inceput = cnp.left(7);
    const double deschidere = CelMaiBunTimp([&] {
        const ListeEditorMembru l = CitesteListeEditorMembru(bd);
        (void)l;
    });
    const double cautare = CelMaiBunTimp([&] {
        for (int n = 1; n <= inceput.size(); ++n)
            (void)PersoaneCuCNPIncepand(bd, inceput.left(n), 20);
    });
    ScrieValoare(QStringLiteral("editor_membru_deschidere_ms"), deschidere);
    ScrieValoare(QStringLiteral("editor_membru_cnp_tastat_ms"), cautare);
});

} // namespace
