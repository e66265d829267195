#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"

#include "amounts/SchimbareBarem.h"
#include "amounts/frmSchimbareBarem.h"
#include "applications/SalveazaCerere.h"
#include "common/Ceas.h"
#include "common/Proces.h"
#include "mainwindow/frmMainNou.h"
#include "reports/ExportGrid.h"
#include "reports/InchidereLuna.h"

#include <QAction>
#include <QLabel>
#include <QtTest>

// The window "Schimbarea baremului ..." from its menu entry: the scale beside the new amounts,
// the families that change in the grid, the apply with its confirmation, the offer to print the
// dispositions issued, and what it refuses.
class TestFrmSchimbareBarem : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override;

private slots:
    void calculeazaAplicaSiOferaTiparirea();
    void refuzuri_data();
    void refuzuri();

private:
    qint64 m_cerere = 0;
};

void TestFrmSchimbareBarem::pregateste()
{
    Ceas::seteazaAzi(QDate(2026, 3, 10));
    m_oficiu->scrieDatePrimarie();
    Proces::setari().LunaSetata = 3;
    Proces::setari().AnSetat = 2026;
    Cerere c = DateTest::Familie(2, Lei(500)); // 60 lei: two children, income below 200 per member
    c.Stare = 2;
    m_cerere = ScrieCerere(m_oficiu->bd(), c, 2026);
}

void TestFrmSchimbareBarem::calculeazaAplicaSiOferaTiparirea()
{
    MesajeScript m;
    frmMainNou w;
    QSize marime;
    QString actual, grila, stare;
    bool legat = false, aplicaInainte = true;
    QList<qint64> tiparite, emise;
    QStringList mesaje;
    HookModalTest h([&](QDialog& d) {
        auto& f = dynamic_cast<frmSchimbareBarem&>(d);
        marime = d.frameGeometry().size();
        actual = Text(&d, QStringLiteral("txtNou(1)"));
        aplicaInainte = Control<QPushButton>(&d, QStringLiteral("cmdAplica"))->isEnabled();
        Scrie(&d, QStringLiteral("txtNou(1)"), QStringLiteral("75"));
        Apasa(&d, QStringLiteral("cmdCalculeaza"));
        grila = QString::fromUtf8(GridJson(f.grid()));
        stare = Control<QLabel>(&d, QStringLiteral("lblStare"))->text();
        legat = bool(f.TiparireDispozitii);
        f.TiparireDispozitii = [&](const QList<qint64>& x) { tiparite = x; };
        m.raspunde(true); // apply
        m.raspunde(true); // print now
        Apasa(&d, QStringLiteral("cmdAplica"));
        emise = f.DispozitiiEmise();
        mesaje = m.texte();
        m.raspunde(true);
        Apasa(&d, QStringLiteral("cmdAplica")); // a second time
        d.reject();
    });
    w.meniu(QStringLiteral("mnuSchimbareBarem"))->trigger();

    // It fits the office's 1366 x 768 screen; the new amounts start as those in force.
    QVERIFY2(marime.width() <= 1366 && marime.height() <= 740,
             qPrintable(QStringLiteral("%1 x %2").arg(marime.width()).arg(marime.height())));
    QCOMPARE(actual, QStringLiteral("60"));
    QVERIFY(!aplicaInainte);
    QVERIFY(grila.contains(QStringLiteral("FAMILII AL CAROR CUANTUM SE MODIFICA: 1")));
    QVERIFY(grila.contains(QStringLiteral("+15.00")));
    QVERIFY(stare.startsWith(QStringLiteral("Se modifica 1 familii")));
    QVERIFY(legat);
    QCOMPARE(mesaje.value(0),
             QStringLiteral("Aplicati baremul nou de la 01.03.2026? Se emit 1 dispozitii de "
                            "modificare, de la nr 1 la nr 1, si se schimba cuantumul acestor cereri."));
    QCOMPARE(mesaje.value(1), QStringLiteral("Baremul nou a fost aplicat de la 01.03.2026. Au fost emise 1 dispozitii "
                                             "de modificare, de la nr 1 la nr 1."));
    QCOMPARE(emise.size(), 1);
    QCOMPARE(tiparite, emise);
    QCOMPARE(m.ultimul(), MesajBarem::DejaAplicata);
    QCOMPARE(Bani::dinVariant(
                 m_oficiu->bd().scalar(QStringLiteral("SELECT Cuantum FROM Cereri WHERE CerereID = ?"), {m_cerere})),
             Lei(75));
    QCOMPARE(DateTest::NumaraRanduri(m_oficiu->bd(), QStringLiteral("Dispozitii")), 1);
}

void TestFrmSchimbareBarem::refuzuri_data()
{
    QTest::addColumn<QString>("camp"); // the box typed into, with `text`
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("mesaj");
    QTest::newRow("suma 0") << "txtNou(5)"
                            << "0"
                            << QStringLiteral("Suma noua pentru Cu sot, 2 copii, venit 200 - 370 lei trebuie sa fie "
                                              "diferita de 0 (zero).");
    QTest::newRow("suma stearsa") << "txtNou(0)"
                                  << ""
                                  << QStringLiteral("Completati suma noua pentru Cu sot, 1 copil, venit sub 200 lei!");
    QTest::newRow("luna inchisa") << "txtAn"
                                  << "2026" << MesajLunaInchisa({3, 2026});
}

void TestFrmSchimbareBarem::refuzuri()
{
    QFETCH(QString, camp);
    QFETCH(QString, text);
    QFETCH(QString, mesaj);
    InchideLuna(m_oficiu->bd(), {3, 2026});
    MesajeScript m;
    frmSchimbareBarem f;
    f.show();
    Scrie(&f, camp, text);
    Apasa(&f, QStringLiteral("cmdCalculeaza"));
    QCOMPARE(m.ultimul(), mesaj);
    QVERIFY(!Control<QPushButton>(&f, QStringLiteral("cmdAplica"))->isEnabled());
    QCOMPARE(f.grid().Rows() < 10, true);
}

QTEST_MAIN(TestFrmSchimbareBarem)
#include "tst_frmSchimbareBarem.moc"
