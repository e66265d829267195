#include "DateTest.h"
#include "TestCuOficiu.h"
#include "common/Data.h"
#include "common/Setari.h"
#include "reports/Anexe.h"
#include "reports/Borderou.h"
#include "reports/Rapoarte.h"
#include "reports/RandareGrid.h"

#include <QFontMetricsF>
#include <QtTest>

using DateTest::CNPNascut;

namespace {

// The texts of one column from the first data row while column 1 holds a counter.
QStringList coloana(const ReportGrid& g, int primul, int c)
{
    QStringList l;
    for (int r = primul; r < g.Rows() && !g.CellText(r, 1).isEmpty(); ++r)
        l << g.CellText(r, c);
    return l;
}

QStringList numereCerere(const ReportGrid& g, int c)
{
    QStringList l;
    for (const QString& t : coloana(g, 9, c))
        l << t.section(QLatin1Char(' '), 0, 0);
    return l;
}

// Everything of a grid that shows on the screen, on paper or in a workbook.
QString amprenta(const ReportGrid& g)
{
    QStringList a;
    a << QStringLiteral("%1x%2 %3 %4 %5 antet %6-%7 foaie %8")
             .arg(g.Rows())
             .arg(g.Cols())
             .arg(g.FontName())
             .arg(g.FontSize())
             .arg(g.FontBold())
             .arg(g.AntetPrimul())
             .arg(g.AntetUltimul())
             .arg(g.UnitatiFoaie());
    const auto& p = g.PageSetup();
    a << QStringLiteral("pagina %1 %2 %3").arg(p.hartie).arg(p.orientare).arg(p.zoom);
    for (int c = 0; c < g.Cols(); ++c)
        a << QStringLiteral("col %1: %2 %3").arg(c).arg(g.ColumnWidth(c)).arg(g.ColumnAlign(c));
    for (int r = 0; r < g.Rows(); ++r) {
        a << QStringLiteral("rand %1: %2").arg(r).arg(g.RowHeight(r));
        for (int c = 0; c < g.Cols(); ++c) {
            const auto& x = g.Cell(r, c);
            a << QStringLiteral("%1,%2 [%3] %4 %5 %6 %7 %8%9%10%11")
                     .arg(r)
                     .arg(c)
                     .arg(x.text)
                     .arg(g.AliniereEfectiva(r, c))
                     .arg(g.BoldEfectiv(r, c))
                     .arg(g.MarimeEfectiva(r, c))
                     .arg(int(x.wrap))
                     .arg(x.bordura[0])
                     .arg(x.bordura[1])
                     .arg(x.bordura[2])
                     .arg(x.bordura[3]);
        }
    }
    for (const auto& u : g.Uniri())
        a << QStringLiteral("unire %1,%2-%3,%4").arg(u.r1).arg(u.c1).arg(u.r2).arg(u.c2);
    return a.join(QLatin1Char('\n'));
}

} // namespace

// The builders on a small office made in the test: what the borderou, the lists and the
// annexes show, and the oddities the office relies on.
class TestRapoarte : public TestCuOficiu {
    Q_OBJECT
public:
    TestRapoarte() : TestCuOficiu(Oficiu::PeClasa) {}

private slots:
    void borderouFiltre_data()
    {
        QTest::addColumn<int>("stare");
        QTest::addColumn<int>("tip");
        QTest::addColumn<QStringList>("cereri");
        QTest::newRow("toate, si respinsele") << 0 << 0 << QStringList{"11", "12", "13", "14", "15", "17"};
        QTest::newRow("in plata inseamna doar starea 2") << 1 << 0 << QStringList{"11"};
        QTest::newRow("monoparentale") << 0 << 2 << QStringList{"12", "13"};
        QTest::newRow("suspendate complementare") << 2 << 1 << QStringList{"14"};
        QTest::newRow("respinse") << 4 << 0 << QStringList{"12"};
    }

    void borderouFiltre()
    {
        QFETCH(int, stare);
        QFETCH(int, tip);
        QFETCH(QStringList, cereri);
        ReportGrid g;
        ConstruiesteBorderou(bd(), selectie(stare, tip), g);
        QCOMPARE(numereCerere(g, 2), cereri);
    }

    void borderouRanduriSiTotal()
    {
        ReportGrid g;
        SelectieRaport s = selectie(0, 0);
        s.ord1 = 2; // Nume
        ConstruiesteBorderou(bd(), s, g);
        QCOMPARE(g.Cols(), 10);
        QCOMPARE(g.CellText(4, 1), QStringLiteral("BORDEROU"));
        QCOMPARE(g.CellText(5, 1), QStringLiteral("privind cererile Toate cererile"));
        QCOMPARE(g.CellText(6, 1), QStringLiteral("Luna Martie anul 2012"));
        QCOMPARE(g.CellText(2, 1), QStringLiteral("Consiliul local Tarnaveni"));
        QCOMPARE(g.CellText(9, 2), QStringLiteral("11 / 05.09.2011  "));
        QCOMPARE(g.CellText(9, 3), QStringLiteral("Nume1 Prenume1"));
        QCOMPARE(g.CellText(9, 5), QStringLiteral("Tarnaveni, str. Morii, nr. 10"));
        QCOMPARE(g.CellText(9, 6), QStringLiteral("NU"));
        QCOMPARE(g.CellText(10, 5), QStringLiteral("Tarnaveni")); // no street, no number
        QCOMPARE(g.CellText(10, 9), QStringLiteral("0.00"));
        const int total = 9 + 6;
        QCOMPARE(g.CellText(total, 5), QStringLiteral("TOTAL GENERAL"));
        QCOMPARE(g.CellText(total, 9), QStringLiteral("150.50"));
        QCOMPARE(g.Cell(total - 1, 1).bordura[3], quint8(ReportGrid::Groasa));
        QCOMPARE(g.CellText(total + 1, 5), QStringLiteral("As Social,"));
        QCOMPARE(g.CellText(total + 2, 5), QStringLiteral("Ana Exemplu"));
        QCOMPARE(g.Rows(), total + 4);
        // Every cell prints bold, body included.
        QVERIFY(g.BoldEfectiv(10, 3));
        QVERIFY(g.BoldEfectiv(total + 2, 5));
    }

    void borderouGolSiFaraPrimarie()
    {
        bd().executa(QStringLiteral("DELETE FROM DatePrimarie"));
        ReportGrid g;
        ConstruiesteBorderou(bd(), selectie(3, 0), g); // nothing has ceased
        QCOMPARE(m_mesaje->texte(),
                 QStringList{QStringLiteral("Dupa ce iesiti din aceasta fereastra Introduceti datele primariei!")});
        QCOMPARE(g.CellText(2, 1), QString());
        QCOMPARE(g.CellText(3, 1), QString());
        QCOMPARE(g.CellText(8, 9), QStringLiteral("Suma"));
        QCOMPARE(g.Cell(8, 1).bordura[3], quint8(ReportGrid::Groasa));
        QCOMPARE(g.CellText(9, 9), QStringLiteral("0.00"));
        QCOMPARE(g.CellText(10, 5), QStringLiteral("As Social,"));
    }

    void listaStare_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("tip");
        QTest::addColumn<QStringList>("cereri");
        QTest::newRow("in plata cuprinde 6, 7 si 8") << 1 << -1 << QStringList{"11", "13", "15", "17"};
        QTest::newRow("in plata monoparentale") << 1 << 2 << QStringList{"13"};
        QTest::newRow("suspendate") << 2 << 0 << QStringList{"14"};
        QTest::newRow("respinse") << 4 << -1 << QStringList{"12"};
    }

    void listaStare()
    {
        QFETCH(int, index);
        QFETCH(int, tip);
        QFETCH(QStringList, cereri);
        ReportGrid g;
        ConstruiesteRaport(bd(), selectie(index, tip), g);
        QCOMPARE(g.Cols(), 7);
        QCOMPARE(g.CellText(4, 1), QStringLiteral("LISTA"));
        QCOMPARE(g.CellText(5, 1), QStringLiteral("persoanelor"));
        QCOMPARE(numereCerere(g, 3), cereri);
    }

    void listaStareLeagaFamiliaPeCerere()
    {
        // Application 6 belongs to family 60; no family carries its own number.
        cerere(6, 2, 1, QDate(2012, 3, 1));
        bd().executa(
            QStringLiteral("INSERT INTO Familii (FamilieID, NrDosar, Localitate) VALUES (60, 600, 'Tarnaveni')"));
        bd().executa(QStringLiteral("UPDATE Cereri SET FamilieID = 60 WHERE CerereID = 6"));
        bd().executa(QStringLiteral("DELETE FROM Familii WHERE FamilieID = 6"));
        ReportGrid lista, borderou;
        ConstruiesteRaport(bd(), selectie(0), lista);
        ConstruiesteBorderou(bd(), selectie(0, 0), borderou);
        QVERIFY(!numereCerere(lista, 3).contains(QStringLiteral("16")));
        QVERIFY(numereCerere(borderou, 2).contains(QStringLiteral("16")));
    }

    void optsprezeceAniInDecembrie()
    {
        membru(1, 101, CNPNascut(QDate(1994, 1, 10), 7), 8, QDate(2012, 1, 10));
        membru(1, 102, CNPNascut(QDate(1994, 2, 10), 8), 8, QDate(2012, 2, 10));
        membru(4, 103, CNPNascut(QDate(1994, 3, 1), 9), 8, QDate(2012, 3, 1));
        SelectieRaport s = selectie(IndexRaport::Optsprezece);
        s.luna = 12;
        s.an = 2011;
        ReportGrid g;
        ConstruiesteRaport(bd(), s, g);
        QCOMPARE(coloana(g, 9, 4), QStringList{QStringLiteral("Elev102 Copil")});
        s.luna = 1;
        s.an = 2012;
        ConstruiesteRaport(bd(), s, g);
        QCOMPARE(coloana(g, 9, 4), QStringList{QStringLiteral("Elev102 Copil")});
        s.luna = 2;
        ConstruiesteRaport(bd(), s, g);
        QCOMPARE(coloana(g, 9, 4), QStringList{QStringLiteral("Elev103 Copil")});
    }

    void sapteAni()
    {
        membru(3, 101, CNPNascut(QDate(2005, 3, 14), 7));
        membru(3, 102, CNPNascut(QDate(2005, 4, 14), 8));
        membru(5, 103, QString());
        ReportGrid g;
        ConstruiesteRaport(bd(), selectie(IndexRaport::Sapte), g);
        QCOMPARE(g.CellText(5, 1), QStringLiteral("copiilor care implinesc 7 ani "));
        QCOMPARE(coloana(g, 9, 4), QStringList{QStringLiteral("Elev101 Copil")});
    }

    void luniGridSiExport()
    {
        SelectieRaport s = selectie(IndexRaport::Luni);
        s.nrLuni = QStringLiteral("6"); // from March 2012: September 2011
        ReportGrid g, foaie;
        ConstruiesteRaport(bd(), s, g);
        QCOMPARE(g.CellText(5, 1), QStringLiteral("cererilor care implinesc 6 luni "));
        QCOMPARE(numereCerere(g, 3), QStringList{QStringLiteral("11")});
        // The workbook takes every application older than that month, and not that month's.
        ConstruiesteExport(bd(), s, foaie);
        QCOMPARE(numereCerere(foaie, 3), QStringList{QStringLiteral("13")});
        QVERIFY(foaie.UnitatiFoaie());
        QCOMPARE(foaie.ColumnWidth(4), 31.0);
        // The signature stands in the merged last three columns, where it shows and prints.
        const int inchidere = 9 + 1 + 1;
        for (const ReportGrid* x : {&g, &foaie}) {
            QCOMPARE(x->CellText(inchidere, 4), QStringLiteral("As Social,"));
            QCOMPARE(x->CellText(inchidere + 1, 4), QStringLiteral("Ana Exemplu"));
            QCOMPARE(x->Uniri()[x->UnireLa(inchidere, 4)].c1, 4);
        }
        s.nrLuni = QStringLiteral("abc"); // 0: the active month
        ConstruiesteRaport(bd(), s, g);
        QCOMPARE(numereCerere(g, 3), QStringList());
    }

    void adeverinteDupaPrimulElev()
    {
        // Application 1: the first pupil's certificate has lapsed, the second's is valid.
        membru(1, 101, CNPNascut(QDate(2000, 1, 1), 7));
        membru(1, 102, CNPNascut(QDate(2001, 1, 1), 8));
        membru(3, 103, CNPNascut(QDate(2002, 1, 1), 9));
        membru(5, 104, CNPNascut(QDate(1990, 1, 1), 10), 1); // not a pupil
        const auto adev = [&](int id, int cerere, int membru, const QDate& exp, const QVariant& tip) {
            bd().executa(
                QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataAdeverinta, "
                               "DataExpAdev, DataDepunerii) VALUES (?, ?, ?, ?, ?, ?, ?)"),
                {id, cerere, membru, tip, DataPentruBD(QDate(2011, 9, 1)), DataPentruBD(exp),
                 DataPentruBD(QDate(2011, 9, 2))});
        };
        adev(1, 1, 101, QDate(2012, 3, 1), {});
        adev(2, 1, 102, QDate(2012, 6, 30), 1);
        adev(3, 3, 103, QDate(2012, 3, 31), 1);
        ReportGrid cu, fara;
        ConstruiesteRaport(bd(), selectie(IndexRaport::CuAdeverinte), cu);
        ConstruiesteRaport(bd(), selectie(IndexRaport::FaraAdeverinte), fara);
        QCOMPARE(cu.CellText(5, 1), QStringLiteral("elevi care au adeverinta de scolarizare "));
        // The holder is named, not the pupil; the counter counts only the rows shown.
        QCOMPARE(coloana(cu, 9, 2), QStringList{QStringLiteral("Nume3 Prenume3")});
        QCOMPARE(coloana(fara, 9, 2), QStringList{QStringLiteral("Nume1 Prenume1")});
        QCOMPARE(coloana(fara, 9, 1), QStringList{QStringLiteral("1")});
    }

    void acteCareExpira()
    {
        membru(1, 101, CNPNascut(QDate(2000, 1, 1), 7));
        membru(3, 103, CNPNascut(QDate(2002, 1, 1), 9));
        membru(2, 105, CNPNascut(QDate(2003, 1, 1), 11));
        bd().executa(QStringLiteral("DELETE FROM DateGen WHERE Tip = 30 AND DataID IN (250, 251)"));
        bd().executa(QStringLiteral("INSERT INTO DateGen (Denumire, Tip, DataID, Continut, Ordine) VALUES ('x', 30, "
                                    "250, 'Adeverinta elev', 1)"));
        const auto adev = [&](int id, int cerere, int membru, const QVariant& tip) {
            bd().executa(
                QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataAdeverinta, "
                               "DataExpAdev) VALUES (?, ?, ?, ?, ?, ?)"),
                {id, cerere, membru, tip, DataPentruBD(QDate(2011, 9, 1)), DataPentruBD(QDate(2012, 3, 31))});
        };
        adev(1, 3, 103, 251);
        adev(2, 1, 101, {});
        adev(3, 2, 105, 250); // a rejected application: left out
        ReportGrid g, foaie;
        ConstruiesteRaport(bd(), selectie(IndexRaport::ActeExpira), g);
        QCOMPARE(g.CellText(2, 1), QStringLiteral("LISTA ACTE CARE EXPIRA IN LUNA MARTIE"));
        QCOMPARE(g.CellText(6, 10), QStringLiteral("Motivul"));
        QCOMPARE(coloana(g, 7, 2), (QStringList{QStringLiteral("Elev101"), QStringLiteral("Elev103")}));
        QCOMPARE(coloana(g, 7, 6), (QStringList{QStringLiteral("nesetat"), QStringLiteral("necunoscut")}));
        QCOMPARE(g.CellText(7, 5), QStringLiteral("Tarnaveni, Morii, nr. 10"));
        QCOMPARE(g.CellText(7, 7), QString());
        QCOMPARE(g.CellText(7, 8), QStringLiteral("01-09-2011"));
        QCOMPARE(g.Cell(6, 1).bordura[3], quint8(ReportGrid::Groasa));
        ConstruiesteExport(bd(), selectie(IndexRaport::ActeExpira), foaie);
        QCOMPARE(foaie.CellText(7, 9), QStringLiteral("31/03/2012"));
        bd().executa(QStringLiteral("UPDATE Adeverinte SET TipAdeverinta = 250 WHERE AdevID = 1"));
        ConstruiesteRaport(bd(), selectie(IndexRaport::ActeExpira), g);
        QCOMPARE(g.CellText(8, 6), QStringLiteral("Adeverinta elev"));
    }

    void anexa_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("nume");
        QTest::addColumn<QList<QStringList>>("coloane15"); // columns 15 to 22 of each row
        QTest::newRow("anexa 3 plati noi + repuneri")
            << 9 << QStringList{"Nume1", "Nume3"}
            << QList<QStringList>{{"2", "2", "150", "11", "", "100", "X", "X"},
                                  {"2", "1", "150", "13", "", "50.5", "X", "X"}};
        QTest::newRow("anexa 3 repuneri")
            << 11 << QStringList{"Nume3"} << QList<QStringList>{{"2", "1", "150", "13", "", "50.5", "X", "X"}};
        QTest::newRow("anexa 4 suspendari: X sub suspendare, coloana 20")
            << 13 << QStringList{"Nume4"} << QList<QStringList>{{"2", "2", "", "", "", "X", "", ""}};
        QTest::newRow("anexa 4 toate: suspendarea in 21, reluarea in 22")
            << 14 << QStringList{"Nume3", "Nume4", "Nume5", "Nume7"}
            << QList<QStringList>{{"2", "1", "", "", "", "", "", "X"},
                                  {"2", "2", "", "", "", "", "X", ""},
                                  {"2", "2", "", "", "", "", "", ""},
                                  {"2", "2", "", "", "", "", "", ""}};
    }

    void anexa()
    {
        QFETCH(int, index);
        QFETCH(QStringList, nume);
        QFETCH(QList<QStringList>, coloane15);
        ReportGrid g;
        ConstruiesteRaport(bd(), selectie(index), g);
        const int primul = index <= 11 ? 15 : 16;
        QCOMPARE(coloana(g, primul, 2), nume);
        for (int i = 0; i < coloane15.size(); ++i) {
            QStringList rand;
            for (int c = 15; c <= 22; ++c)
                rand << g.CellText(primul + i, c);
            QCOMPARE(rand, coloane15[i]);
        }
        QCOMPARE(g.CellText(2, 3), QStringLiteral("Tarnaveni"));
        QCOMPARE(g.CellText(9, 8), QStringLiteral("Preume"));
        // One more empty row closes the sheet.
        QCOMPARE(g.Rows(), primul + nume.size() + 1);
    }

    void anexa4RepetaSumeleSiAscundeColoane()
    {
        DateTest::Dispozitie(bd(), 1, 5, {{"NrDisp", 31}, {"DataDisp", "2012-02-01"}, {"Actiune", 4}});
        DateTest::Dispozitie(bd(), 2, 5, {{"NrDisp", 33}, {"DataDisp", "2012-03-01"}, {"Actiune", 4}});
        bd().executa(QStringLiteral("UPDATE Dispozitii SET CuantumVechi = 80, Cuantum = 120 WHERE DispozitieID = 2"));
        ReportGrid g;
        ConstruiesteRaport(bd(), selectie(12), g); // kind 2: statuses 4, 7, 8
        QCOMPARE(coloana(g, 16, 2), (QStringList{QStringLiteral("Nume5"), QStringLiteral("Nume7")}));
        // Application 7 has no disposition: no number, and the amounts of the row above.
        QCOMPARE((QStringList{g.CellText(16, 17), g.CellText(16, 18), g.CellText(16, 19)}),
                 (QStringList{QStringLiteral("33"), QStringLiteral("80"), QStringLiteral("120")}));
        QCOMPARE((QStringList{g.CellText(17, 17), g.CellText(17, 18), g.CellText(17, 19)}),
                 (QStringList{QString(), QStringLiteral("80"), QStringLiteral("120")}));
        QCOMPARE(g.ColumnWidth(21), 0.0);
        QCOMPARE(g.ColumnWidth(22), 0.0);
        QCOMPARE(g.CellText(13, 20), QString()); // under "Tip dispozitie"
        QCOMPARE(g.CellText(14, 20), QStringLiteral("Incetare drept"));
    }

    void anexaOrdonataDupaNr()
    {
        SelectieRaport s = selectie(9);
        s.ord1 = 3; // Strada
        s.ord2 = 4; // Nr: 9 before 10 in the grid, "10" before "9" in the workbook
        ReportGrid g, foaie;
        ConstruiesteRaport(bd(), s, g);
        QCOMPARE(coloana(g, 15, 6), (QStringList{QStringLiteral("9"), QStringLiteral("10")}));
        // The postal data of the street, found whatever the case of its name.
        QCOMPARE(g.CellText(16, 13), QStringLiteral("OP1"));
        QCOMPARE(g.CellText(16, 14), QStringLiteral("545601"));
        ConstruiesteExport(bd(), s, foaie);
        QCOMPARE(coloana(foaie, 15, 6), (QStringList{QStringLiteral("10"), QStringLiteral("9")}));
        QCOMPARE(foaie.PageSetup().zoom, 70);
        QCOMPARE(foaie.ColumnWidth(3), 17.3);
    }

    // A date, a CNP, a number and every word of a head show whole in their column, in the font
    // the grid is drawn with: on the screen, in the preview and in the PDF alike.
    void coloaneIntregi_data()
    {
        QTest::addColumn<int>("raport"); // -1 the borderou
        QTest::newRow("borderou") << -1;
        QTest::newRow("toate cererile") << 0;
        QTest::newRow("18 ani") << IndexRaport::Optsprezece;
        QTest::newRow("cu adeverinte") << IndexRaport::CuAdeverinte;
        QTest::newRow("7 ani") << IndexRaport::Sapte;
        QTest::newRow("6 luni") << IndexRaport::Luni;
        QTest::newRow("acte care expira") << IndexRaport::ActeExpira;
    }
    void coloaneIntregi()
    {
        QFETCH(int, raport);
        // A pupil whose certificate lapses in the month, with every date filled.
        membru(1, 101, CNPNascut(QDate(2005, 3, 20), 7), 8, QDate(2012, 4, 20));
        DateTest::Rand(bd(), QStringLiteral("Adeverinte"),
                       {{"AdevID", 1},
                        {"CerereID", 1},
                        {"MembruID", 101},
                        {"TipAdeverinta", 3},
                        {"NrAdev", "12345"},
                        {"DataAdeverinta", DataPentruBD(QDate(2011, 9, 27))},
                        {"DataExpAdev", DataPentruBD(QDate(2012, 3, 28))},
                        {"DataDepunerii", DataPentruBD(QDate(2011, 9, 28))}});
        ReportGrid g;
        SelectieRaport sel = selectie(raport, 0);
        sel.nrLuni = QStringLiteral("6");
        if (raport < 0)
            ConstruiesteBorderou(bd(), selectie(0, 0), g);
        else
            ConstruiesteRaport(bd(), sel, g);
        QStringList taiate;
        for (int r = 1; r < g.Rows(); ++r)
            for (int c = 1; c < g.Cols(); ++c) {
                const QString text = g.CellText(r, c).trimmed();
                if (text.isEmpty() || g.UnireLa(r, c) >= 0)
                    continue;
                const QFontMetricsF m(FontCelula(g, r, c));
                const double loc = g.ColumnWidth(c) - 2 * SpatiuCelula + 0.5;
                // A wrapped cell goes to a new line between words; each word must fit.
                const QStringList parti = g.Cell(r, c).wrap ? text.split(QLatin1Char(' ')) : QStringList{text};
                for (const QString& p : parti)
                    if (m.horizontalAdvance(p) > loc)
                        taiate << QStringLiteral("%1,%2 \"%3\" %4 > %5")
                                      .arg(r)
                                      .arg(c)
                                      .arg(p)
                                      .arg(m.horizontalAdvance(p))
                                      .arg(loc);
            }
        QVERIFY2(taiate.isEmpty(), qPrintable(taiate.join(QLatin1Char('\n'))));
    }

    // An export's name says which report it holds, without blanks.
    void numeExportFaraBlancuri_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("nume");
        QTest::newRow("sapte ani") << 8 << "Lista-copii-care-implinesc-7-ani-in-anul-curent_2012-03-15_093005.xlsx";
        QTest::newRow("anexa 3") << 9 << "Centralizator_Plati-noi-repuneri_2012-03-15_093005.xlsx";
        QTest::newRow("anexa 4") << 14 << "Statistica_Modificari-Incetari-Susp-Reluari_2012-03-15_093005.xlsx";
        QTest::newRow("luni") << 15 << "Cereri-6-luni_2012-03-15_093005.xlsx";
        QTest::newRow("acte") << 16 << "Lista-acte-care-expira-in-luna-curenta_2012-03-15_093005.xlsx";
    }
    void numeExportFaraBlancuri()
    {
        QFETCH(int, index);
        QFETCH(QString, nume);
        QCOMPARE(NumeFisierExport(index, Setari{}, QDateTime(QDate(2012, 3, 15), QTime(9, 30, 5))), nume);
    }

    // Every report looks the same built first or after any other: widths, alignments, row
    // heights, merges and cells of the report before it never stay behind.
    void fiecareRaportDinGrilaCurata()
    {
        const int borderou = ListaRapoarte().size();
        const auto construieste = [&](int raport, ReportGrid& g) {
            if (raport == borderou)
                ConstruiesteBorderou(bd(), selectie(0, 0), g);
            else
                ConstruiesteRaport(bd(), selectie(raport, 0), g);
        };
        QStringList primul;
        for (int i = 0; i <= borderou; ++i) {
            ReportGrid g;
            construieste(i, g);
            primul << amprenta(g);
        }
        for (int inainte = 0; inainte <= borderou; ++inainte)
            for (int i = 0; i <= borderou; ++i) {
                ReportGrid g;
                construieste(inainte, g);
                construieste(i, g);
                QVERIFY2(amprenta(g) == primul[i],
                         qPrintable(QStringLiteral("raportul %1 dupa raportul %2").arg(i).arg(inainte)));
            }
    }

private:
    void pregatesteOficiul() override;
    void cerere(qint64 id, int stare, int tip, const QDate& dataStare, const QString& strada = {},
                const QString& nr = {}, const QVariant& cuantum = {}, const QDate& dataCerere = QDate(2012, 2, 1));
    void membru(qint64 cerere, qint64 id, const QString& cnp, int ocupatie = 8, const QDate& data18 = {});
    SelectieRaport selectie(int index, int tip = -1) const;
};

// The applications that every case reads; a case adds its own rows in a transaction rolled back after it.
void TestRapoarte::pregatesteOficiul()
{
    m_oficiu->scrieDatePrimarie();
    bd().executa(QStringLiteral(
        "INSERT INTO Strazi (StradaID, Denumire, OfPostal, CodPostal) VALUES (1, 'MORII', 'OP1', '545601')"));
    // Status 2, 5, 6, 3, 7 and 8; the first two in March of 2012 and so on.
    cerere(1, 2, 1, QDate(2012, 3, 10), QStringLiteral("Morii"), QStringLiteral("10"), 100.0, QDate(2011, 9, 5));
    cerere(2, 5, 2, QDate(2012, 2, 10), {}, {}, 0.0);
    cerere(3, 6, 2, QDate(2012, 3, 15), QStringLiteral("Morii"), QStringLiteral("9"), 50.5, QDate(2011, 1, 10));
    cerere(4, 3, 1, QDate(2012, 3, 20), QStringLiteral("Garii"), QStringLiteral("1"));
    cerere(5, 7, 1, QDate(2012, 3, 2), QStringLiteral("Garii"), QStringLiteral("2"));
    cerere(7, 8, 1, QDate(2012, 3, 25), QStringLiteral("Garii"), QStringLiteral("3"));
}

void TestRapoarte::cerere(qint64 id, int stare, int tip, const QDate& dataStare, const QString& strada,
                          const QString& nr, const QVariant& cuantum, const QDate& dataCerere)
{
    DateTest::Dosar(bd(), id,
                    {{"NrCerere", 10 + id},
                     {"Stare", stare},
                     {"TipCerere", tip},
                     {"DataCerere", DataPentruBD(dataCerere)},
                     {"DataStare", DataPentruBD(dataStare)},
                     {"Cuantum", cuantum},
                     {"NrCopii", 2}},
                    {{"Nume", QStringLiteral("Nume%1").arg(id)},
                     {"Prenume", QStringLiteral("Prenume%1").arg(id)},
                     {"CNP", CNPNascut(QDate(1980, 1, int(id)), int(id))}},
                    {{"Strada", strada.isNull() ? DateTest::Null : strada},
                     {"Nr", nr.isNull() ? DateTest::Null : nr},
                     {"Sc", DateTest::Null},
                     {"Ap", DateTest::Null}});
}

void TestRapoarte::membru(qint64 cerere, qint64 id, const QString& cnp, int ocupatie, const QDate& data18)
{
    DateTest::Persoana(
        bd(), cerere,
        {{"MembruID", id}, {"Nume", QStringLiteral("Elev%1").arg(id)}, {"Prenume", "Copil"}, {"CNP", cnp}},
        {{"OcupatieID", ocupatie}, {"Data18Ani", DataPentruBD(data18)}});
}

SelectieRaport TestRapoarte::selectie(int index, int tip) const
{
    SelectieRaport s;
    s.index = index;
    s.tip = tip;
    s.luna = 3;
    s.an = 2012;
    s.azi = QDate(2012, 3, 15);
    return s;
}

QTEST_MAIN(TestRapoarte)
#include "tst_Rapoarte.moc"
