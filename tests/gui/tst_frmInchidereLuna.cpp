#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"
#include "gui_FereastraPrincipala.h"

#include "applications/SalveazaCerere.h"
#include "common/Ceas.h"
#include "common/Proces.h"
#include "history/LuniInchise.h"
#include "gui/CampData.h"
#include "mainwindow/frmMainNou.h"
#include "mainwindow/frmPanouriCerere.h"
#include "reports/frmInchidereLuna.h"

#include <QAction>
#include <QLabel>
#include <QTreeWidget>
#include <QtTest>

// The wiring of the month close window (from the reports menu) and of the tab "Istoric".
class TestFrmInchidereLuna : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override;

private slots:
    void inchideSiRedeschideDinMeniu();
    void tabulIstoric();
};

void TestFrmInchidereLuna::pregateste()
{
    Ceas::seteazaAzi(QDate(2026, 11, 5));
    m_oficiu->scrieDatePrimarie();
    Proces::setari().LunaSetata = 11;
    Proces::setari().AnSetat = 2026;
    Cerere c = DateTest::Familie(2, Lei(500));
    c.Stare = 2;
    ScrieCerere(bd(), c, 2026);
}

void TestFrmInchidereLuna::inchideSiRedeschideDinMeniu()
{
    MesajeScript m;
    frmMainNou w;
    int randuri = 0;
    bool inchisa = false;
    QString stare;
    HookModalTest h([&](QDialog& d) {
        auto& f = dynamic_cast<frmInchidereLuna&>(d);
        Apasa(&d, QStringLiteral("cmdOK"));
        randuri = f.grid().Rows();
        m.raspunde(true);
        Apasa(&d, QStringLiteral("cmdInchide"));
        inchisa = LunaInchisa(m_oficiu->bd(), {11, 2026});
        stare = Control<QLabel>(&d, QStringLiteral("lblStare"))->text();
        m.introduce(QStringLiteral("corectura"));
        Apasa(&d, QStringLiteral("cmdRedeschide"));
        d.reject();
    });
    w.meniu(QStringLiteral("mnuInchidereLuna"))->trigger();
    // The payroll of one family, its heads and closing rows; closed, then reopened.
    QVERIFY(randuri > 9);
    QVERIFY(inchisa);
    QVERIFY(stare.startsWith(QStringLiteral("Luna este inchisa")));
    QVERIFY(!LunaInchisa(m_oficiu->bd(), {11, 2026}));
    QCOMPARE(m.ultimul(), QStringLiteral("Luna Noiembrie 2026 a fost redeschisa."));
}

void TestFrmInchidereLuna::tabulIstoric()
{
    MesajeScript m;
    frmMainNou w;
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    ClicPeRand(w, 0);
    PanouriCerere* p = w.panouri();
    Apasa(&w, QStringLiteral("opt(4)"));
    QVERIFY(Control<QWidget>(&w, QStringLiteral("picMain(4)"))->isVisible());
    QVERIFY(!Control<QWidget>(&w, QStringLiteral("picMain(1)"))->isVisible());
    QCOMPARE(p->lvwIstoric()->topLevelItemCount(), 1);
    QVERIFY(p->lblIstoricLa()->text().contains(QStringLiteral("60.00 lei, 2 copii")));
    p->dtpIstoric()->seteazaData(QDate(2026, 1, 1));
    QCOMPARE(p->lblIstoricLa()->text(), QStringLiteral("La 01.01.2026 cererea nu avea inca istoric."));
}

QTEST_MAIN(TestFrmInchidereLuna)
#include "tst_frmInchidereLuna.moc"
