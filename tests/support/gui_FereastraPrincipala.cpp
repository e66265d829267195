#include "gui_FereastraPrincipala.h"

#include "mainwindow/ListaCereri.h"
#include "mainwindow/ModelCereri.h"
#include "mainwindow/frmMainNou.h"

#include <QTreeView>
#include <QtTest>

void ClicPeRand(frmMainNou& w, int rand)
{
    QTreeView* v = w.lvwCereri();
    const QRect r = v->visualRect(w.modelCereri()->index(rand, ColCerere::Solicitant));
    QTest::mouseClick(v->viewport(), Qt::LeftButton, {}, r.center());
}

QStringList TexteColoana(const frmMainNou& w, int coloana)
{
    QStringList l;
    for (int i = 0; i < w.modelCereri()->rowCount(); ++i)
        l << w.modelCereri()->text(i, coloana);
    return l;
}
