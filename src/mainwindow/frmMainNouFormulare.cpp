#include "mainwindow/frmMainNouFormulare.h"

#include "common/Mesaje.h"
#include "common/Proces.h"
#include "database/BD.h"
#include "forms/frmPrint.h"
#include "gui/ActiuniLegate.h"
#include "gui/Modal.h"
#include "mainwindow/Stergere.h"
#include "mainwindow/frmMainNou.h"
#include "mainwindow/frmPanouriCerere.h"

#include <QAction>
#include <QPushButton>

namespace {

void arata(frmMainNou& f, int tip, int mod, qint64 cerereId)
{
    frmPrint p(tip, mod, cerereId, &f);
    DeschideModal(p);
}

// A filled form needs a selected application that is still there.
void formularCompletat(frmMainNou& f, int tip)
{
    if (!Proces::BazaAccesibila())
        return;
    const std::optional<qint64> id = f.CerereSelectata();
    if (!id) {
        Mesaj(QStringLiteral("Selecati mai intai o cerere!"));
        return;
    }
    if (!CerereExista(BD::principala(), *id)) {
        Mesaj(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
        return;
    }
    arata(f, tip, ModCompletat, *id);
}

} // namespace

void LeagaFormulare(frmMainNou& f)
{
    LeagaActiune(f.meniu(QStringLiteral("mnuCerereGoala")), [&f] { arata(f, FormularCerere, ModGol, 0); });
    LeagaActiune(f.meniu(QStringLiteral("mnuAnchetaGoala")), [&f] { arata(f, FormularAncheta, ModGol, 0); });
    LeagaActiune(f.meniu(QStringLiteral("mnuCerereSelectata")), [&f] { formularCompletat(f, FormularCerere); });
    LeagaActiune(f.buton(QStringLiteral("cmdCerere")), [&f] { formularCompletat(f, FormularCerere); });
    LeagaActiune(f.panouri()->cmdPrintAncheta(), [&f] { formularCompletat(f, FormularAncheta); });
}
