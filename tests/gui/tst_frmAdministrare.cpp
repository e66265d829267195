// The administration windows: maintenance, the scale editor and the options, their pages,
// their buttons and what only they show.
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"

#include "amounts/frmBaremBun.h"
#include "common/FisiereHelper.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "maintenance/frmMentenanta.h"
#include "shell/Optiuni.h"
#include "shell/frmOptiuni.h"

#include <QCheckBox>
#include <QLabel>
#include <QtTest>

class TestFrmAdministrare : public TestCuOficiu {
    Q_OBJECT
private slots:
    void mentenanta()
    {
        for (int i = 1; i <= 3; ++i)
            DateTest::Dosar(bd(), i);
        MesajeScript m;
        frmMentenanta w;
        w.show();
        auto* tip = Control<QComboBox>(&w, QStringLiteral("cboTipIncalzire"));
        QVERIFY(!tip->isVisible());
        QVERIFY(Control<QWidget>(&w, QStringLiteral("pic(0)"))->isVisible());
        Apasa(&w, QStringLiteral("cmdRecalculStare"));
        QCOMPARE(m.ultimul(), QStringLiteral("A fost modifcat Stare = 5 la 3 cereri"));

        Apasa(&w, QStringLiteral("opt(1)"));
        QVERIFY(tip->isVisible());
        QVERIFY(!Control<QWidget>(&w, QStringLiteral("pic(0)"))->isVisible());
        QCOMPARE(tip->count(), 3);
        Apasa(&w, QStringLiteral("cmdExecuta"));
        QCOMPARE(m.ultimul(), QStringLiteral("An incorect. Selectati din lista un an existent"));
        // The heating-aid tables are not in an office: the engine's error, and the window stays.
        tip->setCurrentIndex(0);
        Apasa(&w, QStringLiteral("cmdNrCerere"));
        QVERIFY(m.ultimul().startsWith(QLatin1String("Eroare: ")));
        QVERIFY(w.isVisible());
    }

    void barem()
    {
        MesajeScript m;
        frmBaremBun w;
        w.show();
        QCOMPARE(Control<QLineEdit>(&w, QStringLiteral("txt(1)"))->text(), QStringLiteral("0.12"));
        QCOMPARE(Control<QLineEdit>(&w, QStringLiteral("txt(7)"))->text(), QString());
        Scrie(&w, QStringLiteral("txt(6)"), QStringLiteral("a1.5"));
        QCOMPARE(Control<QLineEdit>(&w, QStringLiteral("txt(6)"))->text(), QStringLiteral("1.5"));
        Scrie(&w, QStringLiteral("txt(2)"), QStringLiteral("0"));
        Apasa(&w, QStringLiteral("cmdOK"));
        QCOMPARE(m.ultimul(), QStringLiteral("Nivelul de venit trebuie sa fie diferit de 0 (zero)"));
        QCOMPARE(w.focusWidget(), Control<QWidget>(&w, QStringLiteral("txt(2)")));
        QVERIFY(w.isVisible());
        // The table written is missing from an office: the error is told and the window closes.
        Scrie(&w, QStringLiteral("txt(2)"), QStringLiteral("0.2"));
        Apasa(&w, QStringLiteral("cmdOK"));
        QVERIFY(m.ultimul().startsWith(QLatin1String("3078 Motorul bazei de date nu gaseste tabela")));
        QVERIFY2(!m.ultimul().contains(QLatin1String("SELECT")), qPrintable(m.ultimul()));
        QVERIFY(!w.isVisible());
        QCOMPARE(
            bd().scalar(QStringLiteral("SELECT Barem FROM Barem WHERE %1 = 3").arg(bd().identitateRand())).toDouble(),
            0.18);
    }

    void optiuni()
    {
        MesajeScript m;
        frmOptiuni w;
        w.show();
        QCOMPARE(Control<QComboBox>(&w, QStringLiteral("cboAppWord"))->currentIndex(), 0);
        QCOMPARE(Control<QLabel>(&w, QStringLiteral("lblFont1"))->text(), QStringLiteral("Times New Roman, 10"));
        QVERIFY(!Control<QWidget>(&w, QStringLiteral("pic(1)"))->isVisible());
        Apasa(&w, QStringLiteral("opt(1)"));
        QVERIFY(Control<QWidget>(&w, QStringLiteral("pic(1)"))->isVisible());

        QFont f(QStringLiteral("Arial"));
        f.setPointSize(1);
        f.setItalic(true);
        w.SeteazaFont(f);
        QCOMPARE(Control<QLabel>(&w, QStringLiteral("lblFont1"))->text(), QStringLiteral("Arial, 1, I"));
        Control<QComboBox>(&w, QStringLiteral("cboAppWord"))->setCurrentIndex(1);
        Apasa(&w, QStringLiteral("cmdOK"));
        QCOMPARE(m.ultimul(), QStringLiteral("Marimea caracterelor nu poate fi mai mica de 2"));
        QVERIFY(w.isVisible());

        f.setPointSize(11);
        w.SeteazaFont(f);
        w.SeteazaCuloare(QColor(0, 0, 255));
        Control<QCheckBox>(&w, QStringLiteral("chkReteaSetat"))->setChecked(true);
        Apasa(&w, QStringLiteral("cmdOK"));
        QVERIFY2(!w.isVisible(), qPrintable(m.texte().join(u'|')));
        QCOMPARE(Proces::setari().AppWord, 2);
        QCOMPARE(Proces::setari().ReteaSetat, 1);
        QCOMPARE(Proces::setari().FontName0, QStringLiteral("Arial"));
        QCOMPARE(FisiereHelper().CitesteIni(QStringLiteral("CuloareVenit"), QStringLiteral("Generale"), FisierSetari()),
                 QStringLiteral("16711680"));
    }

    // A colour chosen and then cancelled stays in memory (the income window takes it, the
    // options show it again); the settings file keeps its own until OK.
    void culoareaRamaneDupaRenunta()
    {
        MesajeScript m;
        {
            frmOptiuni w;
            w.show();
            w.SeteazaCuloare(QColor(0, 128, 0));
            Apasa(&w, QStringLiteral("cmdCancel"));
        }
        QCOMPARE(CuloareVenit(), TextCuloareSetare(QColor(0, 128, 0)));
        QCOMPARE(FisiereHelper().CitesteIni(QStringLiteral("CuloareVenit"), QStringLiteral("Generale"), FisierSetari()),
                 QString());
        frmOptiuni w;
        QCOMPARE(Control<QLabel>(&w, QStringLiteral("lblFundal"))->palette().color(QPalette::Window),
                 QColor(0, 128, 0));
        Apasa(&w, QStringLiteral("cmdDelColor"));
        Apasa(&w, QStringLiteral("cmdCancel"));
        QCOMPARE(CuloareVenit(), QString());
    }
};

QTEST_MAIN(TestFrmAdministrare)
#include "tst_frmAdministrare.moc"
