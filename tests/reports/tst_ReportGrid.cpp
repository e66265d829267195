#include "reports/RandareGrid.h"
#include "reports/Rapoarte.h"
#include "reports/ReportGrid.h"

#include "database/BD.h"

#include <QtTest>

// The grid's operations, the ordering clause, the months arithmetic and the pagination: the
// logic under every report, without a database.
class TestReportGrid : public QObject {
    Q_OBJECT
private slots:
    void adaugaRandImparteLaTab()
    {
        ReportGrid g;
        g.SetCols(4);
        g.SetRows(2);
        g.AddRow(QStringLiteral("a\t\tc\tprea mult"));
        QCOMPARE(g.Rows(), 3);
        QCOMPARE(g.CellText(2, 1), QStringLiteral("a"));
        QCOMPARE(g.CellText(2, 2), QString());
        QCOMPARE(g.CellText(2, 3), QStringLiteral("c"));
        QCOMPARE(g.CellText(2, 0), QString()); // column 0 is never written
        g.AddRow();
        QCOMPARE(g.Rows(), 4);
        QCOMPARE(g.CellText(3, 1), QString());
    }

    void uniriSuprapuseSiStergere()
    {
        ReportGrid g;
        g.SetCols(7);
        g.SetRows(5);
        g.MergeRange(2, 1, 2, 3);
        g.MergeRange(2, 3, 2, 5); // overlaps: the first merge stands
        QCOMPARE(int(g.Uniri().size()), 1);
        QCOMPARE(g.UnireLa(2, 3), 0);
        QCOMPARE(g.UnireLa(2, 4), -1);
        g.SetCellText(2, 1, QStringLiteral("x"));
        g.SetCellBold(2, 1, true);
        g.ClearRange(1, 1, 4, 6);
        QVERIFY(g.Uniri().empty());
        QCOMPARE(g.UnireLa(2, 2), -1);
        QCOMPARE(g.CellText(2, 1), QString());
        QCOMPARE(g.BoldEfectiv(2, 1), false);
        // Shrinking the grid drops the merges below the new end.
        g.MergeRange(3, 1, 4, 1);
        g.SetRows(4);
        QVERIFY(g.Uniri().empty());
    }

    void borduri_data()
    {
        QTest::addColumn<int>("margine");
        QTest::addColumn<int>("rand");
        QTest::addColumn<int>("coloana");
        QTest::addColumn<QList<int>>("asteptat"); // left, right, top, bottom
        // A rectangle of rows 2-3 and columns 2-4.
        QTest::newRow("stanga doar pe prima coloana") << 0 << 3 << 2 << QList<int>{2, 0, 0, 0};
        QTest::newRow("dreapta doar pe ultima") << 1 << 2 << 4 << QList<int>{0, 2, 0, 0};
        QTest::newRow("sus doar pe primul rand") << 2 << 2 << 3 << QList<int>{0, 0, 2, 0};
        QTest::newRow("jos doar pe ultimul rand") << 3 << 3 << 3 << QList<int>{0, 0, 0, 2};
        QTest::newRow("interior vertical fara margini") << 4 << 2 << 2 << QList<int>{0, 2, 0, 0};
        QTest::newRow("interior vertical la mijloc") << 4 << 2 << 3 << QList<int>{2, 2, 0, 0};
        QTest::newRow("interior orizontal") << 5 << 3 << 4 << QList<int>{0, 0, 2, 0};
    }

    void borduri()
    {
        QFETCH(int, margine);
        QFETCH(int, rand);
        QFETCH(int, coloana);
        QFETCH(QList<int>, asteptat);
        ReportGrid g;
        g.SetCols(6);
        g.SetRows(5);
        g.RangeBorder(2, 2, 3, 4, margine, ReportGrid::Groasa);
        const auto& b = g.Cell(rand, coloana).bordura;
        QCOMPARE((QList<int>{b[0], b[1], b[2], b[3]}), asteptat);
    }

    void clauzaOrdonare_data()
    {
        QTest::addColumn<int>("ord1");
        QTest::addColumn<int>("ord2");
        QTest::addColumn<bool>("nrCaNumar");
        QTest::addColumn<QString>("asteptat");
        QTest::newRow("nimic ales") << -1 << 2 << false << QString();
        QTest::newRow("ordinea introducerii ignora a doua") << 0 << 2 << false << QString();
        QTest::newRow("doar prima") << 2 << -1 << false << QStringLiteral(" ORDER BY Nume");
        QTest::newRow("a doua pe ordinea introducerii") << 3 << 0 << false << QStringLiteral(" ORDER BY Strada");
        QTest::newRow("amandoua") << 1 << 2 << false << QStringLiteral(" ORDER BY NrCerere, Nume");
        QTest::newRow("Nr ca text") << 3 << 4 << false << QStringLiteral(" ORDER BY Strada, Nr");
        QTest::newRow("Nr ca numar in anexe")
            << 3 << 4 << true << QStringLiteral(" ORDER BY Strada, CAST(Nr AS INTEGER)");
    }

    void clauzaOrdonare()
    {
        QFETCH(int, ord1);
        QFETCH(int, ord2);
        QFETCH(bool, nrCaNumar);
        QFETCH(QString, asteptat);
        const BD sqlite;
        QCOMPARE(ClauzaOrdonare(ord1, ord2, true, nrCaNumar ? &sqlite : nullptr), asteptat);
    }

    void lunaInUrma_data()
    {
        QTest::addColumn<int>("nrLuni");
        QTest::addColumn<int>("luna");
        QTest::addColumn<int>("lunaAsteptata");
        QTest::addColumn<int>("anAsteptat");
        QTest::newRow("6 din iunie: decembrie anul trecut") << 6 << 6 << 12 << 2011;
        QTest::newRow("6 din iulie: ianuarie") << 6 << 7 << 1 << 2012;
        QTest::newRow("0: luna activa") << 0 << 6 << 6 << 2012;
        QTest::newRow("18 din martie") << 18 << 3 << 9 << 2010;
        QTest::newRow("12 din ianuarie") << 12 << 1 << 1 << 2011;
    }

    void lunaInUrma()
    {
        QFETCH(int, nrLuni);
        QFETCH(int, luna);
        QFETCH(int, lunaAsteptata);
        QFETCH(int, anAsteptat);
        const auto [l, a] = LunaInUrma(luna, 2012, nrLuni);
        QCOMPARE(l, lunaAsteptata);
        QCOMPARE(a, anAsteptat);
    }

    void interval18Ani_data()
    {
        QTest::addColumn<int>("luna");
        QTest::addColumn<QDate>("inceput");
        QTest::addColumn<QDate>("sfarsit");
        QTest::newRow("mai: iunie") << 5 << QDate(2012, 6, 1) << QDate(2012, 7, 1);
        QTest::newRow("noiembrie: decembrie") << 11 << QDate(2012, 12, 1) << QDate(2013, 1, 1);
        QTest::newRow("decembrie: februarie, nu ianuarie") << 12 << QDate(2013, 2, 1) << QDate(2013, 3, 1);
    }

    void interval18Ani()
    {
        QFETCH(int, luna);
        QFETCH(QDate, inceput);
        QFETCH(QDate, sfarsit);
        const auto [i, s] = Interval18Ani(luna, 2012);
        QCOMPARE(i, inceput);
        QCOMPARE(s, sfarsit);
    }

    void paginareRepetaAntetul()
    {
        ReportGrid g;
        g.SetCols(3);
        g.SetRows(9);
        g.SetDefaultRowHeight(20);
        g.SetRowHeight(8, 50);
        g.SetRanduriAntet(8, 8);
        for (int i = 0; i < 100; ++i)
            g.AddRow(QString::number(i));
        const auto pagini = PaginiGrid(g, 500);
        QVERIFY(pagini.size() > 3);
        QList<int> vazute;
        for (int p = 0; p < pagini.size(); ++p) {
            double h = 0;
            for (int r : pagini[p])
                h += g.RowHeight(r);
            QVERIFY2(h <= 500, qPrintable(QStringLiteral("pagina %1 prea inalta").arg(p + 1)));
            if (p > 0)
                QCOMPARE(pagini[p].first(), 8);
            for (int r : pagini[p])
                if (p == 0 || r != 8)
                    vazute << r;
        }
        // Every row once, in order: the title block only on the first page.
        QList<int> toate;
        for (int r = 1; r < g.Rows(); ++r)
            toate << r;
        QCOMPARE(vazute, toate);
    }

    void paginaFaraRanduriEsteOPaginaGoala()
    {
        ReportGrid g;
        g.SetRows(1);
        const auto pagini = PaginiGrid(g, 500);
        QCOMPARE(pagini.size(), 1);
        QVERIFY(pagini.first().isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestReportGrid)
#include "tst_ReportGrid.moc"
