#include "DateTest.h"
#include "TestCuOficiu.h"
#include "decisions/frmAddAnchete.h"
#include "gui/ComboCod.h"
#include "gui_Dialog.h"
#include "common/Ceas.h"
#include "common/Data.h"

#include <QDateEdit>
#include <QLabel>
#include <QtTest>

using DateTest::CNPNascut;
using DateTest::NumaraRanduri;

// The inquiry editor driven as a social worker would: the validity shown at opening and at
// each change of the date, the refused and the accepted save, the change, and a row deleted
// meanwhile by another workstation.
class TestFrmAddAnchete : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        Ceas::seteazaAzi(QDate(2012, 3, 15));
        // Two children on the application; at 15 March 2012 one of them is already 18.
        DateTest::DosarCuMembri(
            bd(), 1,
            {CNPNascut(QDate(1970, 2, 2), 1), CNPNascut(QDate(1993, 1, 1), 2), CNPNascut(QDate(2004, 4, 4), 3)},
            {{"DataCerere", "2012-04-10"}, {"NrCopii", 2}});
    }

private slots:
    void valabilitateLaDeschidereSiLaSchimbareaDatei()
    {
        frmAddAnchete f(nullptr, 1, 1);
        QCOMPARE(Control<QDateEdit>(&f, "dtpData")->date(), QDate(2012, 3, 15));
        QCOMPARE(lbl(&f, "lblDataExp"), QStringLiteral("15.09.2012"));
        QCOMPARE(lbl(&f, "lblMotiv"), QStringLiteral("valabilitate 6 luni"));
        QCOMPARE(lbl(&f, "lblNrMembrii"), QStringLiteral("3"));
        QCOMPARE(lbl(&f, "lblNrCopii"), QStringLiteral("1"));
        QVERIFY(m_mesaje->intrari.isEmpty());

        // By 2022 the younger child is 18 too: no child is left.
        Control<QDateEdit>(&f, "dtpData")->setDate(QDate(2022, 6, 1));
        QCOMPARE(lbl(&f, "lblDataExp"), QStringLiteral("Cererea este INCETATA!"));
        QCOMPARE(lbl(&f, "lblNrCopii"), QStringLiteral("0"));
        QCOMPARE(lbl(&f, "lblMotiv"), QStringLiteral("valabilitate 6 luni")); // left as it was
        QCOMPARE(m_mesaje->ultimul(),
                 QStringLiteral("La aceasta data nu mai exista nici un copil, deci Ancheta e lipsita de sens!"));
    }

    void dataTastataSeCalculeazaOdata()
    {
        // A year typed digit by digit is computed once, when it is whole: no message for the
        // years 2, 20 and 202 on the way.
        frmAddAnchete f(nullptr, 1, 1);
        f.show();
        f.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f));
        auto* d = Control<QDateEdit>(&f, "dtpData");
        d->setFocus();
        d->setSelectedSection(QDateTimeEdit::YearSection);
        QTest::keyClicks(d, QStringLiteral("2022"));
        QVERIFY(m_mesaje->intrari.isEmpty());
        QTest::keyClick(d, Qt::Key_Return);
        QCOMPARE(d->date(), QDate(2022, 3, 15));
        QCOMPARE(lbl(&f, "lblDataExp"), QStringLiteral("Cererea este INCETATA!"));
        QCOMPARE(m_mesaje->intrari.size(), 1);
    }

    void salvareCuAvertisment()
    {
        frmAddAnchete f(nullptr, 1, 1);
        f.show();
        f.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f));
        Apasa(&f, QStringLiteral("cmdOK"));
        QCOMPARE(m_mesaje->ultimul(),
                 QStringLiteral("Nu puteti salva datele inainte de a introduce Numele Intocmitorului"));
        QVERIFY(!f.ESTE_OK());
        QVERIFY(f.isVisible());
        QCOMPARE(f.focusWidget(), Control<QLineEdit>(&f, "txtCerere(0)"));
        completeaza(&f);
        QCOMPARE(Control<QLineEdit>(&f, "txtCerere(0)")->text(), QStringLiteral("Ionescu Maria"));
        m_mesaje->goleste();
        Apasa(&f, QStringLiteral("cmdOK"));
        QVERIFY(f.ESTE_OK());
        // Two children on the application, one at the inquiry's date: a warning, and the save.
        QCOMPARE(m_mesaje->texte(), QStringList{QStringLiteral("Numarul de copii din Ancheta nu coincide cu numarul de "
                                                               "copii din Cerere. Verificati cauza in Cerere!")});
        Rezultat r = bd().selecteaza(QStringLiteral("SELECT * FROM Anchete"));
        QVERIFY(r.next());
        QCOMPARE(r.numar("NrCopii"), 1);
        QCOMPARE(DataDinBD(r["DataExpirarii"]), QDate(2012, 9, 15));
        QCOMPARE(r["SuprUtila"].toDouble(), 64.5);
        QCOMPARE(r.text("Aspecte"), QStringLiteral("curat, d'ingrijit"));
    }

    void modificare()
    {
        bd().executa(QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta, Intocmitor, DataExpirarii, "
                                    "Motiv, NrMembrii, NrCopii, "
                                    "TipLocuinta, RegimJuridic, NrCamere, SuprUtila, TipDetinere) VALUES (5, 1, "
                                    "'2012-01-10', 'Pop', '2012-07-10', "
                                    "'valabilitate 6 luni', 3, 1, 1, 1, 2, 40, 1)"));
        frmAddAnchete f(nullptr, 2, 5);
        QCOMPARE(f.windowTitle(), QStringLiteral("Modificare Ancheta"));
        QCOMPARE(lbl(&f, "lblDataExp"), QStringLiteral("10.07.2012"));
        QCOMPARE(Control<QLineEdit>(&f, "txtCerere(1)")->text(), QStringLiteral("2"));
        QCOMPARE(Control<QComboBox>(&f, "cboCerere(2)")->currentIndex(), -1);
        QCOMPARE(CheieCombo(Control<QComboBox>(&f, "cboCerere(3)")), 1);
        Control<QDateEdit>(&f, "dtpData")->setDate(QDate(2012, 2, 1));
        QCOMPARE(lbl(&f, "lblDataExp"), QStringLiteral("01.08.2012"));
        Apasa(&f, QStringLiteral("cmdOK"));
        QVERIFY(f.ESTE_OK());
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Anchete")), 1);
        QCOMPARE(DataDinBD(bd().scalar(QStringLiteral("SELECT DataExpirarii FROM Anchete"))), QDate(2012, 8, 1));
    }

    void stearsaDeAltaStatieIntreClicSiSalvare()
    {
        bd().executa(QStringLiteral(
            "INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta, Intocmitor, NrCamere, SuprUtila, TipLocuinta, "
            "RegimJuridic, TipDetinere) VALUES (5, 1, '2012-01-10', 'Pop', 2, 40, 1, 1, 1)"));
        {
            HookModalTest hook([&](QDialog& d) {
                m_oficiu->executaDinAltCalculator(QStringLiteral("DELETE FROM Anchete"));
                Scrie(&d, QStringLiteral("txtCerere(9)"), QStringLiteral("buna"));
                Apasa(&d, QStringLiteral("cmdOK"));
            });
            frmAddAnchete f(nullptr, 2, 5);
            QCOMPARE(DeschideModal(f), int(QDialog::Rejected));
            QVERIFY(!f.ESTE_OK());
        }
        QCOMPARE(m_mesaje->ultimul(), MesajAncheta::Stearsa);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Anchete")), 0);
    }

private:
    static QString lbl(QWidget* w, const char* nume) { return Control<QLabel>(w, QString::fromLatin1(nume))->text(); }
    static void completeaza(QWidget* f);
};

void TestFrmAddAnchete::completeaza(QWidget* f)
{
    Scrie(f, QStringLiteral("txtCerere(0)"), QStringLiteral("ionescu Maria"));
    Scrie(f, QStringLiteral("txtCerere(1)"), QStringLiteral("3"));
    Scrie(f, QStringLiteral("txtCerere(2)"), QStringLiteral("6x4.5")); // the letter is not taken
    Scrie(f, QStringLiteral("txtCerere(11)"), QStringLiteral("curat, d'ingrijit"));
    for (int i : {0, 1, 3})
        Control<QComboBox>(f, QStringLiteral("cboCerere(%1)").arg(i))->setCurrentIndex(0);
}

QTEST_MAIN(TestFrmAddAnchete)
#include "tst_frmAddAnchete.moc"
