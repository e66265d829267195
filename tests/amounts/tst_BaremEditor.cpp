// The scale editor's logic: the seven values it reads by position, the zero check, and the
// write into the table it names.
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "amounts/BaremEditor.h"
#include "common/Eroare.h"

#include <QtTest>

class TestBaremEditor : public TestCuOficiu {
    Q_OBJECT
private slots:
    void citire()
    {
        // The first six rows of a new office: the fractions of the complementary allowance.
        QCOMPARE(CitesteBaremEditor(bd()), (QStringList{"0.06", "0.12", "0.18", "0.24", "0.05", "0.1", "0"}));
        bd().executa(QStringLiteral("DELETE FROM Barem WHERE %1 > 5").arg(bd().identitateRand()));
        // The rows before the missing one are kept for the editor's boxes.
        QStringList citite;
        try {
            CitesteBaremEditor(bd(), &citite);
            QFAIL("fara eroare");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, 3021);
        }
        QCOMPARE(citite, (QStringList{"0.06", "0.12", "0.18", "0.24", "0.05"}));
    }

    void verificare_data()
    {
        QTest::addColumn<QStringList>("valori");
        QTest::addColumn<int>("gresit");
        QTest::newRow("toate") << QStringList{"1", "2", "3", "4", "5", "6", "7"} << -1;
        QTest::newRow("zero in mijloc") << QStringList{"1", "2", "0.0", "4", "5", "6", "7"} << 2;
        QTest::newRow("gol la sfarsit") << QStringList{"1", "2", "3", "4", "5", "6", ""} << 6;
    }
    void verificare()
    {
        QFETCH(QStringList, valori);
        QFETCH(int, gresit);
        MesajeScript m;
        QCOMPARE(VerificaBaremEditor(valori), gresit);
        QCOMPARE(m.ultimul(),
                 gresit < 0 ? QString() : QStringLiteral("Nivelul de venit trebuie sa fie diferit de 0 (zero)"));
    }

    // The values go to Baremuri, not to the table read: without it nothing is written.
    void editorulBaremuluiScrieInBaremuri()
    {
        const QStringList valori{"10", "20", "30", "40", "50", "60", "7.5"};
        // The engine's number and its description in the office's words, never the statement.
        try {
            ScrieBaremEditor(bd(), valori);
            QFAIL("fara eroare");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, 3078);
            QVERIFY2(e.descriere.contains(QStringLiteral("nu gaseste tabela")), qPrintable(e.descriere));
            QVERIFY(!e.descriere.contains(QStringLiteral("SELECT")) && !e.sursa.contains(QStringLiteral("SELECT")));
        }
        QVERIFY(!bd().inTranzactie());
        QCOMPARE(CitesteBaremEditor(bd()).first(), QStringLiteral("0.06"));

        bd().executa(QStringLiteral("CREATE TABLE Baremuri AS SELECT * FROM Barem"));
        ScrieBaremEditor(bd(), valori);
        Rezultat r = bd().selecteaza(
            QStringLiteral("SELECT Barem, BaremPerPers FROM Baremuri ORDER BY %1").arg(bd().identitateRand()));
        QStringList scrise;
        for (int i = 0; i < 7 && r.next(); ++i)
            scrise << r.valoare(0).toString() + QLatin1Char('/') + r.valoare(1).toString();
        QCOMPARE(scrise, (QStringList{"10/0", "20/0", "30/0", "40/0", "50/0", "60/7.5", "0.15/0"}));
    }
};

QTEST_GUILESS_MAIN(TestBaremEditor)
#include "tst_BaremEditor.moc"
