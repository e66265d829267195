#include "DateTest.h"
#include "TestCuOficiu.h"
#include "decisions/frmAddDispozitie.h"
#include "gui/ComboCod.h"
#include "gui_Dialog.h"
#include "common/Ceas.h"
#include "common/Data.h"

#include <QDateEdit>
#include <QLabel>
#include <QtTest>

using DateTest::CNPNascut;
using DateTest::NumaraRanduri;

// The disposition editor driven as an officer would: the defaults of a new one, the type
// reshaping the window, the refused save, the change, and a row deleted meanwhile by
// another workstation.
class TestFrmAddDispozitie : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        Ceas::seteazaAzi(QDate(2012, 5, 20));
        DateTest::DosarCuMembri(
            bd(), 1, {CNPNascut(QDate(1975, 6, 1))},
            {{"DataCerere", "2012-04-10"}, {"Stare", 1}, {"Cuantum", 200}}); // 10 April 2012, amount 200
    }

private slots:
    // The defaults by status are the logic's; the window puts them in their boxes: for a change
    // of amount the application's amount goes to the new amount's box.
    void implicitePeStare()
    {
        bd().executa(QStringLiteral("UPDATE Cereri SET Stare = 7"));
        frmAddDispozitie f(nullptr, 1, 1);
        QCOMPARE(cbo(&f, 0)->currentData().toInt(), 2);
        QCOMPARE(txt(&f, 2)->text(), QString());
        QCOMPARE(txt(&f, 3)->text(), QStringLiteral("200"));
        QCOMPARE(cbo(&f, 1)->currentData().toInt(), 4);
        QCOMPARE(txt(&f, 1)->text(), QStringLiteral("2012"));
        QCOMPARE(Control<QLabel>(&f, "lblNrCerere")->text(), QStringLiteral("101"));
        QCOMPARE(Control<QDateEdit>(&f, "dtpData")->date(), QDate(2012, 5, 20));
    }

    void tipulSchimbaFereastra()
    {
        frmAddDispozitie f(nullptr, 1, 1);
        f.show();
        auto* mijloc = Control<QWidget>(&f, "picMiddle");
        auto* motiv = Control<QLabel>(&f, "lblMotiv");
        SelecteazaCheie(cbo(&f, 0), 2);
        QVERIFY(txt(&f, 3)->isVisible());
        QCOMPARE(Control<QLabel>(&f, "lblModificarea")->text(), QStringLiteral("se modifica suma de:"));
        QCOMPARE(motiv->text(), QStringLiteral("Motivul modificarii"));
        SelecteazaCheie(cbo(&f, 0), 5);
        QVERIFY(!mijloc->isVisible());
        QCOMPARE(motiv->text(), QStringLiteral("Motivul incetarii"));
        QVERIFY(txt(&f, 4)->isVisible());
        SelecteazaCheie(cbo(&f, 0), 1);
        QVERIFY(mijloc->isVisible());
        QVERIFY(!txt(&f, 3)->isVisible());
        QVERIFY(!txt(&f, 4)->isVisible());
        // The reason label keeps the text of the type before.
        QCOMPARE(motiv->text(), QStringLiteral("Motivul incetarii"));
    }

    void adaugareRefuzataApoiSalvata()
    {
        frmAddDispozitie f(nullptr, 1, 1);
        f.show();
        // Status 1: no type chosen, the save is refused and the focus goes to the list.
        Apasa(&f, QStringLiteral("cmdOK"));
        QCOMPARE(m_mesaje->ultimul(), QStringLiteral("Tip Dispozitie incorect. Selectati un tip din lista!"));
        QVERIFY(!f.ESTE_OK());
        QVERIFY(f.isVisible());
        QCOMPARE(f.focusWidget(), cbo(&f, 0));
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 0);

        SelecteazaCheie(cbo(&f, 0), 1);
        SelecteazaCheie(cbo(&f, 1), 3); // March, before the application's April
        Apasa(&f, QStringLiteral("cmdOK"));
        QCOMPARE(m_mesaje->ultimul(),
                 QStringLiteral("Luna dispozitiei nu poate fi mai mica decat luna depunerii cererii"));
        QCOMPARE(f.focusWidget(), txt(&f, 1));
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 0);

        Scrie(&f, QStringLiteral("txtDispoz(1)"), QStringLiteral("2013"));
        Scrie(&f, QStringLiteral("txtDispoz(0)"), QStringLiteral("4a5")); // letters are not taken
        QCOMPARE(txt(&f, 0)->text(), QStringLiteral("45"));
        Scrie(&f, QStringLiteral("txtDispoz(4)"), QStringLiteral("D'acord"));
        Apasa(&f, QStringLiteral("cmdOK"));
        QVERIFY(f.ESTE_OK());
        Rezultat r = bd().selecteaza(QStringLiteral("SELECT * FROM Dispozitii"));
        QVERIFY(r.next());
        QCOMPARE(r["NrDisp"].toDouble(), 45.0);
        QCOMPARE(DataDinBD(r["DinData"]), QDate(2013, 3, 1));
        QCOMPARE(r.text("Motiv"), QStringLiteral("D'acord"));
    }

    void modificare()
    {
        bd().executa(
            QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, DinData, Luna, An, "
                           "Actiune, CuantumVechi, Cuantum, Motiv) VALUES (3, 1, 17, '2012-05-02', '2012-06-01', "
                           "6, 2012, 2, 150, 250, 'mai mult')"));
        frmAddDispozitie f(nullptr, 2, 3);
        f.show();
        QCOMPARE(f.windowTitle(), QStringLiteral("Modificare Dispozitie"));
        QCOMPARE(txt(&f, 0)->text(), QStringLiteral("17"));
        QCOMPARE(txt(&f, 2)->text(), QStringLiteral("150"));
        QCOMPARE(txt(&f, 3)->text(), QStringLiteral("250"));
        QVERIFY(txt(&f, 3)->isVisible());
        QCOMPARE(cbo(&f, 1)->currentData().toInt(), 6);
        QCOMPARE(Control<QDateEdit>(&f, "dtpData")->date(), QDate(2012, 5, 2));
        // To an ending (what is kept of the former amount is the save's test).
        SelecteazaCheie(cbo(&f, 0), 5);
        Scrie(&f, QStringLiteral("txtDispoz(2)"), QStringLiteral("0"));
        Apasa(&f, QStringLiteral("cmdOK"));
        QVERIFY(f.ESTE_OK());
        QCOMPARE(bd().scalar(QStringLiteral("SELECT Actiune FROM Dispozitii")).toInt(), 5);
    }

    void stearsaDeAltaStatieIntreClicSiSalvare()
    {
        bd().executa(
            QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DinData, Luna, An, Actiune, "
                           "Cuantum) VALUES (3, 1, 17, '2012-06-01', 6, 2012, 1, 200)"));
        bool inchisa = false;
        {
            HookModalTest hook([&](QDialog& d) {
                m_oficiu->executaDinAltCalculator(QStringLiteral("DELETE FROM Dispozitii WHERE DispozitieID = 3"));
                Scrie(&d, QStringLiteral("txtDispoz(0)"), QStringLiteral("18"));
                Apasa(&d, QStringLiteral("cmdOK"));
                inchisa = !d.isVisible() || d.result() == QDialog::Rejected;
            });
            frmAddDispozitie f(nullptr, 2, 3);
            QCOMPARE(DeschideModal(f), int(QDialog::Rejected));
            QVERIFY(!f.ESTE_OK());
        }
        QVERIFY(inchisa);
        QCOMPARE(m_mesaje->ultimul(), MesajDispozitie::Stearsa);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 0);
    }

private:
    QComboBox* cbo(QWidget* w, int i) { return Control<QComboBox>(w, QStringLiteral("cboDispoz(%1)").arg(i)); }
    QLineEdit* txt(QWidget* w, int i) { return Control<QLineEdit>(w, QStringLiteral("txtDispoz(%1)").arg(i)); }
};

QTEST_MAIN(TestFrmAddDispozitie)
#include "tst_frmAddDispozitie.moc"
