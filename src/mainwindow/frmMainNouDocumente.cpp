#include "mainwindow/frmMainNouDocumente.h"

#include "mainwindow/ActiuniDocumente.h"
#include "gui/ActiuniLegate.h"
#include "gui/CampData.h"
#include "mainwindow/frmMainNou.h"
#include "mainwindow/frmPanouriCerere.h"

#include <QAction>
#include <QPushButton>
#include <QTreeWidget>

namespace {

QDate dataFisei(const frmMainNou& f)
{
    const auto* dtp = f.findChild<CampData*>(QStringLiteral("dtpDataFisa"));
    return dtp ? dtp->data() : QDate();
}

void fisa(frmMainNou& f)
{
    ActiuneFisaCalcul(&f, f.ListaGoala(), f.CerereSelectata(), dataFisei(f));
}

} // namespace

void LeagaDocumente(frmMainNou& f)
{
    LeagaActiune(f.buton(QStringLiteral("cmdDeclaratie")),
                 [&f] { ActiuneDeclaratie(&f, f.ListaGoala(), f.CerereSelectata()); });
    LeagaActiune(f.buton(QStringLiteral("cmdFisaCalcul")), [&f] { fisa(f); });
    LeagaActiune(f.meniu(QStringLiteral("mnuFisa")), [&f] { fisa(f); });
    LeagaActiune(f.panouri()->cmdPrintDisp(), [&f] {
        PanouriCerere* p = f.panouri();
        ActiuneTiparireDispozitie(&f, p->lvwDispozitii()->topLevelItemCount() == 0, p->DispozitieSelectata());
    });
    LeagaActiune(f.panouri()->cmdFisaDisp(), [&f] {
        PanouriCerere* p = f.panouri();
        ActiuneFisaDispozitie(&f, p->lvwDispozitii()->topLevelItemCount() == 0, p->DispozitieSelectata(), dataFisei(f));
    });
    LeagaActiune(f.meniu(QStringLiteral("mnuAnexa2")),
                 [&f] { ActiuneTiparireToateDispozitiile(&f, f.meniu(QStringLiteral("mnuAnexa2"))); });
    LeagaActiune(f.meniu(QStringLiteral("mnuToateDisp")),
                 [&f] { ActiuneToateDispozitiile(&f, f.meniu(QStringLiteral("mnuToateDisp"))); });
}
