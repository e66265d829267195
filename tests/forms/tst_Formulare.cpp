// The printed forms drawn on a recording surface: where the data and the marks land, what the
// data layer tells, which pages the print commands draw and in what order.
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "SuprafataInregistrata.h"

#include "common/Data.h"
#include "database/BD.h"
#include "forms/Formular.h"
#include "forms/TiparireFormular.h"
#include "forms/VenituriFormular.h"

#include <QtTest>

namespace {

constexpr double L = 25, T = 10; // the page's origin

SuprafataInregistrata pagina(int tip, int index, int mod = ModCompletat)
{
    SuprafataInregistrata s;
    DeseneazaPagina(s, tip, index, mod, {&BD::principala(), 1});
    return s;
}

} // namespace

class TestFormulare : public TestCuOficiu {
    Q_OBJECT

private slots:
    void datePersonale()
    {
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        MesajeScript m;
        const auto s = pagina(FormularCerere, 0);
        QCOMPARE(m.texte(), QStringList());
        QCOMPARE(s.textLa(L + 14, T + 20), QStringList{QStringLiteral("345")});
        QCOMPARE(s.textLa(L + 14, T + 27), QStringList{QStringLiteral("09.03.2026")});
        QCOMPARE(s.textLa(L + 134, T + 42), QStringList{QStringLiteral("09 03 2026")});
        QCOMPARE(s.randLa(L + 13, T + 62), QStringLiteral("POP"));
        QCOMPARE(s.randLa(L + 18, T + 67), QStringLiteral("ION"));
        QCOMPARE(s.randLa(L + 14, T + 78.2), QStringLiteral("1800517260011"));
        QCOMPARE(s.textLa(L + 98, T + 78), QStringList{QStringLiteral("CI")});
        QCOMPARE(s.randLa(L + 139, T + 78), QStringLiteral("123456"));
        QCOMPARE(s.randLa(L + 150, T + 83.5), QStringLiteral("2019"));
        QCOMPARE(s.randLa(L + 16, T + 111), QStringLiteral("Avram Iancu"));
        QCOMPARE(s.randLa(L + 101, T + 121), QStringLiteral("Mures"));
        QCOMPARE(s.randLa(L + 94.5, T + 169.5), QStringLiteral("0265441"));
        QCOMPARE(s.randLa(L + 14.5, T + 174.5), QStringLiteral("0744123"));
        // A blank page has no data and asks nothing of the application.
        const auto gol = pagina(FormularCerere, 0, ModGol);
        QVERIFY(gol.textLa(L + 14, T + 20).isEmpty());
        QVERIFY(gol.marcaje().isEmpty());
    }

    // Page 2: the partner's fields from the bases of the B sections, ReprLegal in the head.
    void partener()
    {
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        bd().executa(QStringLiteral(
            "INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (2, 'POP', 'ANA', '2850101260017')"));
        bd().executa(
            QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, StCivila) VALUES (1, 2, 2, 2)"));
        MesajeScript m;
        auto s = pagina(FormularCerere, 1);
        QCOMPARE(m.texte(), QStringList());
        QCOMPARE(s.randLa(L + 18, T + 50), QStringLiteral("ANA"));
        QCOMPARE(s.randLa(L + 16, T + 94), QStringLiteral("Avram Iancu"));
        const QList<QPointF> marcaje{{L + 52, T + 13}, {L + 152, T + 45}, {L - 1 + 44.5, T + 167 + 7}};
        QCOMPARE(s.marcaje(), marcaje);
        QCOMPARE(s.textLa(L + 52, T + 13), QStringList{QStringLiteral("X")});
        // Without a partner the B sections stay empty.
        bd().executa(QStringLiteral("DELETE FROM CereriMembrii WHERE MembruID = 2"));
        s = pagina(FormularCerere, 1);
        QCOMPARE(s.marcaje(), marcaje.mid(0, 1));
        QVERIFY(s.randLa(L + 18, T + 50).isEmpty());
    }

    // Each coded value of page 1 marks its own box: the base of its section, then its offsets.
    void marcaje_data()
    {
        QTest::addColumn<QString>("camp");
        QTest::addColumn<QVariant>("valoare");
        QTest::addColumn<QPointF>("loc");
        const struct {
            const char* camp;
            double bazaY, bazaX;
            QList<std::tuple<int, double, double>> valori;
        } t[] = {
            {"CetatenieID", 71, 0, {{1, 1.5, 34.5}, {2, 1.5, 88.5}}},
            {"ResedintaID", 124, -1, {{1, 10.5, 4.5}, {2, 10.5, 21.6}}},
            {"StCivila",
             184,
             -1,
             {{1, 2, 79.5}, {2, 7, 44.5}, {3, 7, 79.5}, {4, 2, 128.5}, {5, 7, 4.5}, {6, 7, 128.5}}},
            {"Studii", 200, -1, {{1, 7.5, 6}, {2, 7.5, 56}, {3, 7.5, 101}, {4, 7.5, 138}}},
            {"DrAsSociala", 209.5, 1, {{1, 12, 3}, {2, 12, 30}, {3, 12, 70}}},
            {"OcupatieID",
             232,
             0.5,
             {{8, 8, 2},
              {1, 13, 2},
              {6, 18, 2},
              {9, 8, 39},
              {3, 13, 39},
              {7, 18, 39},
              {10, 8, 71},
              {4, 13, 71},
              {2, 8, 113.5},
              {5, 13, 113.5}}},
            {"LucreazaAfara", 232, 0.5, {{1, 28.5, 132}, {0, 28.5, 94}}},
        };
        for (const auto& c : t)
            for (const auto& [v, y, x] : c.valori)
                QTest::addRow("%s=%d", c.camp, v)
                    << QString::fromLatin1(c.camp) << QVariant(v) << QPointF(L + c.bazaX + x, T + c.bazaY + y);
    }
    void marcaje()
    {
        QFETCH(QString, camp);
        QFETCH(QVariant, valoare);
        QFETCH(QPointF, loc);
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd(), QStringLiteral("5000101260011")); // sex "n": no sex mark
        bd().executa(QStringLiteral("UPDATE CereriMembrii SET CetatenieID = NULL, StCivila = NULL, Studii = NULL, "
                                    "DrAsSociala = NULL, OcupatieID = NULL, LucreazaAfara = NULL"));
        bd().executa(QStringLiteral("UPDATE CereriMembrii SET %1 = ?").arg(camp),
                     {camp == QLatin1String("LucreazaAfara") ? QVariant(valoare.toBool()) : valoare});
        MesajeScript m;
        const auto s = pagina(FormularCerere, 0);
        QCOMPARE(s.marcaje(), QList<QPointF>{loc});
    }

    // The marks of the application's own codes on pages 5, 6 and 9.
    void marcajeCerere_data()
    {
        QTest::addColumn<QString>("camp");
        QTest::addColumn<QVariant>("valoare");
        QTest::addColumn<int>("index");
        QTest::addColumn<QPointF>("loc");
        QTest::newRow("GospodLoc 1") << "GospodLoc" << QVariant(1) << 4 << QPointF(L + 2, T + 9.5);
        QTest::newRow("GospodLoc 3") << "GospodLoc" << QVariant(3) << 4 << QPointF(L + 100, T + 9.5);
        QTest::newRow("TipLocuinta 1") << "TipLocuinta" << QVariant(1) << 4 << QPointF(L + 20, T + 56);
        QTest::newRow("TipLocuinta 2") << "TipLocuinta" << QVariant(2) << 4 << QPointF(L + 20, T + 67);
        QTest::newRow("Bife, al treilea bun") << "Bife" << QVariant("001") << 4 << QPointF(L + 160, T + 110);
        QTest::newRow("Bife, ultimul bun")
            << "Bife" << QVariant("00000000000000000001") << 4 << QPointF(L + 160, T + 249);
        QTest::newRow("Gospodarire 1") << "Gospodarire" << QVariant(1) << 5 << QPointF(L + 72, T + 14.5);
        QTest::newRow("Gospodarire 2") << "Gospodarire" << QVariant(2) << 5 << QPointF(L + 2, T + 19);
        QTest::newRow("Gospodarire 3") << "Gospodarire" << QVariant(3) << 5 << QPointF(L + 110, T + 14.5);
        QTest::newRow("ModPlata 1") << "ModPlata" << QVariant(1) << 8 << QPointF(L + 2, T + 59);
        QTest::newRow("ModPlata 2") << "ModPlata" << QVariant(2) << 8 << QPointF(L + 40, T + 59);
        QTest::newRow("ModPlata 3") << "ModPlata" << QVariant(3) << 8 << QPointF(L + 2, T + 78);
    }
    void marcajeCerere()
    {
        QFETCH(QString, camp);
        QFETCH(QVariant, valoare);
        QFETCH(int, index);
        QFETCH(QPointF, loc);
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        bd().executa(QStringLiteral("UPDATE Cereri SET GospodLoc = NULL, TipLocuinta = NULL, Bife = NULL, "
                                    "Gospodarire = NULL, ModPlata = NULL"));
        bd().executa(QStringLiteral("UPDATE Cereri SET %1 = ?").arg(camp), {valoare});
        const auto s = pagina(FormularCerere, index);
        QCOMPARE(s.marcaje(), QList<QPointF>{loc});
    }

    void sex_data()
    {
        QTest::addColumn<QString>("cnp");
        QTest::addColumn<QList<QPointF>>("loc");
        QTest::newRow("m") << "1800517260011" << QList<QPointF>{{L + 141, T + 62}};
        QTest::newRow("f") << "2800517260011" << QList<QPointF>{{L + 152, T + 62}};
        QTest::newRow("2000s") << "6050517260011" << QList<QPointF>{};
    }
    void sex()
    {
        QFETCH(QString, cnp);
        QFETCH(QList<QPointF>, loc);
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd(), cnp);
        bd().executa(QStringLiteral("UPDATE CereriMembrii SET CetatenieID = NULL, StCivila = NULL, Studii = NULL, "
                                    "DrAsSociala = NULL, OcupatieID = NULL, LucreazaAfara = NULL"));
        const auto s = pagina(FormularCerere, 0);
        QCOMPARE(s.marcaje(), loc);
    }

    // What the data layer tells goes on: the page is drawn to its end.
    void mesaje_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("asteptat");
        QTest::newRow("fara titular") << "UPDATE Cereri SET MembruID1 = 9" << 0
                                      << QStringList{QStringLiteral("Cererea selectata nu are titular")};
        QTest::newRow("tip act necunoscut")
            << "UPDATE Membrii SET TipAct = 99" << 0
            << QStringList{
                   QStringLiteral("Pentru TipAct = 99 nu exista date in tabela DateGen. Sunati la 0700-555010")};
        QTest::newRow("rudenie") << "UPDATE CereriMembrii SET RudenieID = 2" << 0
                                 << QStringList{QStringLiteral("Titularul nu corespunde cu Rudenia")};
        QTest::newRow("rudenie pagina 2") << "UPDATE CereriMembrii SET RudenieID = 3" << 1
                                          << QStringList{QStringLiteral("Titularul nu corespunde cu Rudenia")};
        QTest::newRow("tip act nul") << "UPDATE Membrii SET TipAct = NULL" << 0 << QStringList();
    }
    void mesaje()
    {
        QFETCH(QString, sql);
        QFETCH(int, index);
        QFETCH(QStringList, asteptat);
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        bd().executa(sql);
        MesajeScript m;
        const auto s = pagina(FormularCerere, index);
        QCOMPARE(m.texte(), asteptat);
        QVERIFY(s.linii > 100); // the frame is whole
        // In blank mode no query of the application runs, so nothing is told.
        m.goleste();
        pagina(FormularCerere, index, ModGol);
        QCOMPARE(m.texte(), QStringList());
    }

    // Four children a sheet, in the order of the query; the ninth is not printed.
    void copii()
    {
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        for (int i = 0; i < 9; ++i) {
            bd().executa(QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (?, ?, 'X', '')"),
                         {10 + i, QStringLiteral("COPIL%1").arg(i + 1)});
            bd().executa(QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, DrAsSociala, "
                                        "RealizeazaVenit) VALUES (1, ?, 3, ?, ?)"),
                         {10 + i, i % 3 + 1, i % 2 == 0});
        }
        QStringList nume;
        for (int index : {2, 3}) {
            const auto s = pagina(FormularCerere, index);
            for (int k = 0; k < 4; ++k)
                nume << s.randLa(L + 45, T + 16 + k * 46 + 2);
        }
        QCOMPARE(nume, QStringList({"COPIL1 X", "COPIL2 X", "COPIL3 X", "COPIL4 X", "COPIL5 X", "COPIL6 X", "COPIL7 X",
                                    "COPIL8 X"}));
        // The first child: DrAsSociala 1 ("NU") and RealizeazaVenit true ("DA").
        const auto s = pagina(FormularCerere, 2);
        QCOMPARE(s.textLa(L + 12, T + 16 + 29), QStringList{QStringLiteral("X")});
        QCOMPARE(s.textLa(L + 135, T + 16 + 30), QStringList{QStringLiteral("X")});
        QVERIFY(s.textLa(L + 115, T + 16 + 30).isEmpty());
    }

    // Amounts stand right-aligned at left + 160, on the row of their code; two records of one
    // code overprint each other; the totals of page 9 sum every record.
    void venituri()
    {
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        DateTest::Venit(bd(), 1, 21, 1250);
        DateTest::Venit(bd(), 1, 21, 7.5);
        DateTest::Venit(bd(), 1, 78, 100);
        auto s = pagina(FormularCerere, 6);
        QCOMPARE(s.textLa(L + 160, T + 10), QStringList({"0", "0"}));
        QCOMPARE(s.textLa(L + 160 - 3 * 4.5, T + 10), QStringList({"0", "7"}));
        s = pagina(FormularCerere, 5);
        QVERIFY(!s.textLa(L + 160, T + 10).contains(QStringLiteral("0")));
        s = pagina(FormularCerere, 8);
        QCOMPARE(s.randLa(L + 160 - 5 * 4.5, T + 18.5), QStringLiteral("100.00"));
        QCOMPARE(s.randLa(L + 160 - 6 * 4.5, T + 27.3), QStringLiteral("1357.50")); // total, one member
        // The inquiry's page 9 puts code 78 lower.
        s = pagina(FormularAncheta, 8);
        QCOMPARE(s.randLa(L + 160 - 5 * 4.5, T + 27.5), QStringLiteral("100.00"));
        // Without incomes the total is 0.
        bd().executa(QStringLiteral("DELETE FROM Venituri"));
        s = pagina(FormularCerere, 8);
        QCOMPARE(s.randLa(L + 160 - 3 * 4.5, T + 27.3), QStringLiteral("0.00"));
    }

    // An application without members: the income per member cannot be computed; the clerk is
    // told, and its boxes stay empty under the total.
    void faraMembriPeMembruSeSpune()
    {
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        DateTest::Venit(bd(), 1, 78, 100);
        bd().executa(QStringLiteral("DELETE FROM CereriMembrii"));
        MesajeScript m;
        const auto s = pagina(FormularCerere, 8);
        QCOMPARE(m.texte(),
                 QStringList{QStringLiteral("Cererea selectata nu are membri: venitul net lunar pe membru de "
                                            "familie nu se poate calcula.")});
        QCOMPARE(s.randLa(L + 160 - 5 * 4.5, T + 27.3), QStringLiteral("100.00"));
        QCOMPARE(s.randLa(L + 160, T + 32.3), QString());
    }

    // The data written as text stand at the forms' size 11: the month of the household, the
    // document's kind, the citizenship, the school and the class, the dwelling's rows; a month
    // not recorded leaves the line empty.
    void marimeaDatelor_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        QTest::newRow("luna gospodaririi") << 5 << "7";
        QTest::newRow("tipul actului") << 0 << "CI";
        QTest::newRow("cetatenia") << 0 << "Moldova";
        QTest::newRow("unitatea scolara") << 2 << "Scoala 1";
        QTest::newRow("clasa") << 2 << "a IV-a";
        QTest::newRow("camere") << 4 << "3";
        QTest::newRow("suprafata") << 4 << "45.5";
    }
    void marimeaDatelor()
    {
        QFETCH(int, index);
        QFETCH(QString, text);
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        bd().executa(QStringLiteral("UPDATE Cereri SET LunaGospod = 7"));
        bd().executa(QStringLiteral("UPDATE CereriMembrii SET TaraCetatenie = 'Moldova'"));
        DateTest::Persoana(bd(), 1, {{"CNP", DateTest::CNPNascut(QDate(2015, 1, 2), 5)}},
                           {{"RudenieID", 3}, {"UScolara", "Scoala 1"}, {"Clasa", "a IV-a"}});
        DateTest::Rand(bd(), QStringLiteral("Locuinte"),
                       {{"CerereID", 1}, {"Cod", 1}, {"NrCamere", 3}, {"Suprafata", 45.5}});
        const auto s = pagina(FormularCerere, index);
        // The same text may stand elsewhere on the page in the form's own captions.
        QList<double> marimi;
        for (const auto& t : s.texte)
            if (t.text == text && t.font == QLatin1String("MS Sans Serif"))
                marimi << t.marime;
        QCOMPARE(marimi, QList<double>{11});
    }

    void lunaNeinregistrataNuSeScrie()
    {
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        bd().executa(QStringLiteral("UPDATE Cereri SET LunaGospod = 0"));
        const auto s = pagina(FormularCerere, 5);
        for (const auto& t : s.texte)
            QVERIFY2(t.text != QLatin1String("0") || t.marime != 11, "luna 0 scrisa");
    }

    // The form's captions are the names of the income list, code by code (code 80, the incomes
    // left out of the computation, has no row on the form).
    void legendaVenituri()
    {
        QStringList formular;
        for (const RandVenitFormular& r : RanduriVenituriFormular())
            if (r.cod)
                formular << r.linii.join(QLatin1Char(' ')).simplified();
        QStringList lista;
        Rezultat q = bd().selecteaza(
            QStringLiteral("SELECT Denumire FROM ListaVenituri WHERE CodVenit <= 79 ORDER BY CodVenit"));
        while (q.next())
            lista << q.valoare(0).toString().simplified();
        QCOMPARE(formular, lista);
    }

    void secvente_data()
    {
        QTest::addColumn<int>("comanda");
        QTest::addColumn<int>("tip");
        QTest::addColumn<int>("copii");
        QTest::addColumn<QString>("asteptat");
        const int pag = int(ComandaTiparire::Pagina), tot = int(ComandaTiparire::Tot),
                  impar = int(ComandaTiparire::Impar), par = int(ComandaTiparire::Par);
        QTest::newRow("pagina 2 copii") << pag << 1 << 2 << "P3 P3 END";
        QTest::newRow("0 copii") << tot << 1 << 0 << "END";
        QTest::newRow("tot cerere") << tot << 1 << 1 << "P0 N P1 N P2 N P3 N P4 N P5 N P6 N P7 N P8 N END";
        QTest::newRow("impar 2 copii") << impar << 1 << 2 << "P0 N P2 N P4 N P6 N P8 N P0 N P2 N P4 N P6 N P8 N END";
        QTest::newRow("par cerere") << par << 1 << 1 << "P1 N P3 N P5 N P7 N END";
        QTest::newRow("par ancheta") << par << 2 << 1 << "P1 N P3 N P5 N P7 N P9 N END";
        QTest::newRow("impar ancheta") << impar << 2 << 1 << "P0 N P2 N P4 N P6 N P8 N END";
    }
    void secvente()
    {
        QFETCH(int, comanda);
        QFETCH(int, tip);
        QFETCH(int, copii);
        QFETCH(QString, asteptat);
        SuprafataInregistrata s;
        TiparesteFormular(s, ComandaTiparire(comanda), tip, 3, copii, [](PageSurface& x, int index) {
            static_cast<SuprafataInregistrata&>(x).evenimente << QStringLiteral("P%1").arg(index);
        });
        QCOMPARE(s.evenimente.join(QLatin1Char(' ')), asteptat);
    }

    void copiiSiPagini()
    {
        QCOMPARE(NumarCopii(QStringLiteral("2")), 2);
        QCOMPARE(NumarCopii(QStringLiteral("3 bucati")), 3);
        QCOMPARE(NumarCopii(QStringLiteral("doua")), 0);
        QCOMPARE(NumarCopii(QString()), 0);
        QCOMPARE(CitestePagini(QStringLiteral("1,3-5"), FormularCerere),
                 std::optional<QList<int>>(QList<int>{0, 2, 3, 4}));
        QCOMPARE(CitestePagini(QStringLiteral("10"), FormularAncheta), std::optional<QList<int>>(QList<int>{9}));
        QString eroare;
        QVERIFY(!CitestePagini(QStringLiteral("10"), FormularCerere, &eroare));
        QCOMPARE(eroare, QStringLiteral("Pagina \"10\" nu exista: formularul are paginile 1-9."));
        QVERIFY(!CitestePagini(QStringLiteral("4-2"), FormularCerere));
        QVERIFY(!CitestePagini(QStringLiteral("x"), FormularCerere));
    }
};

QTEST_MAIN(TestFormulare)
#include "tst_Formulare.moc"
