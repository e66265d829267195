// The case list: the search and its typed filters, the rows and their texts, the colours, the
// one-statement reading, the result line and the panels' rows.
#include "DateTest.h"
#include "TestCuOficiu.h"

#include "database/BD.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "mainwindow/ListaCereri.h"
#include "mainwindow/ModelCereri.h"
#include "mainwindow/RanduriPanouri.h"

#include <QtTest>

class TestListaCereri : public TestCuOficiu {
    Q_OBJECT

private:
    // Five applications of several statuses, one without its applicant.
    void fixtura(const BD& bd)
    {
        const auto c = [&bd](qint64 id, qint64 nr, int stare, const char* nume, const char* prenume, const char* cnp) {
            DateTest::Dosar(bd, id,
                            {{"NrCerere", nr}, {"Stare", stare}, {"DataCerere", DataPentruBD(QDate(2012, 3, int(id)))}},
                            {{"Nume", nume}, {"Prenume", prenume}, {"CNP", cnp}});
        };
        c(1, 30, 2, "Popescu", "Ion", "1800101260011");
        c(2, 10, 3, "O'Brien", "Ana", "2800101260012");
        c(3, 20, 2, "POP", "Maria", "2810101260013");
        c(4, 40, 1, "Apopei", "Dan", "1820101260014");
        c(5, 5, 2, "", "", "");
        bd.executa(QStringLiteral("DELETE FROM Membrii WHERE MembruID = 50"));
    }

    static QStringList nrCereri(const std::vector<RandCerere>& r)
    {
        QStringList l;
        for (const RandCerere& x : r)
            l << x.text(ColCerere::NrCerere);
        return l;
    }

private slots:
    void nrCerereCuLitere_data()
    {
        QTest::addColumn<QString>("nr");
        QTest::newRow("litere dupa") << "12a";
        QTest::newRow("doua numere") << "1 2";
        QTest::newRow("apostrof") << "1'";
    }

    void nrCerereCuLitere()
    {
        QFETCH(QString, nr);
        FiltruCautare f;
        f.nrCerere = nr;
        try {
            ConstruiesteFiltru(bd(), f);
            QFAIL("Numarul cu litere a fost primit");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::Sintaxa);
            QVERIFY(e.text().startsWith(QStringLiteral("Eroare: 3075 ")));
            QVERIFY(e.descriere.contains(nr));
        }
    }

    void cautare_data()
    {
        QTest::addColumn<QStringList>("campuri");
        QTest::addColumn<QList<int>>("stari");
        QTest::addColumn<QStringList>("gasite"); // NrCerere, in the order of the list

        QTest::newRow("toate, ordonate dupa nr")
            << QStringList{"", "", "", ""} << QList<int>{} << QStringList{"10", "20", "30", "40"};
        QTest::newRow("prefix fara majuscule")
            << QStringList{"", "pop", "", ""} << QList<int>{} << QStringList{"20", "30"};
        QTest::newRow("apostrof") << QStringList{"", "O'B", "", ""} << QList<int>{} << QStringList{"10"};
        QTest::newRow("procent literal") << QStringList{"", "P%", "", ""} << QList<int>{} << QStringList{};
        QTest::newRow("cnp") << QStringList{"28", "", "", ""} << QList<int>{} << QStringList{"10", "20"};
        QTest::newRow("nr cerere") << QStringList{"", "", "", "40"} << QList<int>{} << QStringList{"40"};
        QTest::newRow("stari") << QStringList{"", "", "", ""} << QList<int>{2, 3} << QStringList{"10", "20", "30"};
        QTest::newRow("nume si stare") << QStringList{"", "Pop", "", ""} << QList<int>{2} << QStringList{"20", "30"};
    }

    void cautare()
    {
        QFETCH(QStringList, campuri);
        QFETCH(QList<int>, stari);
        QFETCH(QStringList, gasite);
        fixtura(bd());
        const FiltruCautare f{campuri[0], campuri[1], campuri[2], campuri[3], stari};
        QCOMPARE(nrCereri(CitesteCautarea(bd(), ConstruiesteFiltru(bd(), f), {})), gasite);
    }

    void listaLaDeschidere()
    {
        fixtura(bd());
        const auto r = CitesteToateCererile(bd(), {});
        // The table's order, and the application without applicant is there with empty columns.
        QCOMPARE(nrCereri(r), (QStringList{"30", "10", "20", "40", "5"}));
        QCOMPARE(r[4].text(ColCerere::Solicitant), QString());
        QCOMPARE(r[4].text(ColCerere::CNP), QString());
        QCOMPARE(r[1].text(ColCerere::Solicitant), QStringLiteral("O'Brien Ana"));
    }

    void oSinguraInterogare()
    {
        fixtura(bd());
        for (int i = 0; i < 3; ++i) {
            DateTest::Ancheta(bd(), 10 + i, 1);
            DateTest::Dispozitie(bd(), 10 + i, 1, {{"Actiune", 1 + i}});
        }
        quint64 inainte = BD::numarInterogari();
        QCOMPARE(CitesteToateCererile(bd(), {}).size(), size_t(5));
        QCOMPARE(BD::numarInterogari() - inainte, quint64(1));
        inainte = BD::numarInterogari();
        QCOMPARE(CitesteCautarea(bd(), ConstruiesteFiltru(bd(), {}), {}).size(), size_t(4));
        QCOMPARE(BD::numarInterogari() - inainte, quint64(1));
        inainte = BD::numarInterogari();
        QCOMPARE(CitesteAnchete(bd(), 1).size(), size_t(3));
        QCOMPARE(BD::numarInterogari() - inainte, quint64(1));
        // The labels of the disposition types: one lookup for the list, not one per row.
        inainte = BD::numarInterogari();
        QCOMPARE(CitesteDispozitii(bd(), 1).size(), size_t(3));
        QCOMPARE(BD::numarInterogari() - inainte, quint64(2));
    }

    void coloane_data()
    {
        QTest::addColumn<QVariant>("nrCerere");
        QTest::addColumn<QVariant>("tip");
        QTest::addColumn<QDate>("data");
        QTest::addColumn<QVariant>("venit");
        QTest::addColumn<QVariant>("cuantum");
        QTest::addColumn<QVariant>("membri");
        QTest::addColumn<QStringList>("texte"); // columns 1 to 11

        QTest::newRow("complet") << QVariant(12) << QVariant(1) << QDate(2012, 3, 5) << QVariant(1234.5)
                                 << QVariant(370) << QVariant(4)
                                 << QStringList{"12",
                                                "Cu sot",
                                                "Suspendata",
                                                "5 Martie 2012",
                                                "Popescu Ion",
                                                "1800101260011",
                                                "Tarnaveni, str. Morii, nr. 7",
                                                "1234.5",
                                                "370",
                                                "4",
                                                "2"};
        QTest::newRow("goluri")
            << QVariant() << QVariant() << QDate() << QVariant() << QVariant() << QVariant()
            << QStringList{"",  "", "Suspendata", "", "Popescu Ion", "1800101260011", "Tarnaveni, str. Morii, nr. 7",
                           "0", "", "",           "2"};
        QTest::newRow("mono, zecimale de bani")
            << QVariant(7) << QVariant(2) << QDate(2009, 12, 31) << QVariant(166.6667) << QVariant(0.5) << QVariant(1)
            << QStringList{"7",
                           "Mono",
                           "Suspendata",
                           "31 Decembrie 2009",
                           "Popescu Ion",
                           "1800101260011",
                           "Tarnaveni, str. Morii, nr. 7",
                           "166.6667",
                           "0.5",
                           "1",
                           "2"};
    }

    void coloane()
    {
        QFETCH(QVariant, nrCerere);
        QFETCH(QVariant, tip);
        QFETCH(QDate, data);
        QFETCH(QVariant, venit);
        QFETCH(QVariant, cuantum);
        QFETCH(QVariant, membri);
        QFETCH(QStringList, texte);
        DateTest::Dosar(bd(), 3,
                        {{"NrCerere", nrCerere},
                         {"TipCerere", tip},
                         {"Stare", 3},
                         {"DataCerere", DataPentruBD(data)},
                         {"VenitTotal", venit},
                         {"Cuantum", cuantum},
                         {"NrMembrii", membri},
                         {"NrCopii", 2}},
                        {{"Nume", "Popescu"}, {"Prenume", "Ion"}, {"CNP", "1800101260011"}},
                        {{"Strada", "Morii"}, {"Nr", "7"}, {"Sc", DateTest::Null}, {"Ap", DateTest::Null}});
        const std::optional<RandCerere> r = CitesteRandCerere(bd(), 3, QStringLiteral("str."));
        QVERIFY(r);
        QCOMPARE(r->text(ColCerere::ID), QStringLiteral("3"));
        QStringList primite;
        for (int i = 1; i < NrColoaneCereri; ++i)
            primite << r->text(i);
        QCOMPARE(primite, texte);
        QCOMPARE(r->culoare, CuloareRand::Rosu);
        QVERIFY(!CitesteRandCerere(bd(), 99, {}));
    }

    void adresa_data()
    {
        QTest::addColumn<QStringList>("parti"); // localitate, strada, nr, sc, ap, StrSat
        QTest::addColumn<QString>("adresa");
        QTest::newRow("doar localitatea") << QStringList{"Tarnaveni", "", "", "", "", "str."} << "Tarnaveni";
        QTest::newRow("toate") << QStringList{"Tarnaveni", "Morii", "7", "B", "12", "str."}
                               << "Tarnaveni, str. Morii, nr. 7, sc. B, ap. 12";
        QTest::newRow("StrSat gol lasa doua spatii")
            << QStringList{"Bobohalma", "Principala", "", "", "", ""} << "Bobohalma,  Principala";
        QTest::newRow("fara localitate") << QStringList{"", "", "3", "", "4", "sat"} << ", nr. 3, ap. 4";
        QTest::newRow("nimic") << QStringList{"", "", "", "", "", "sat"} << "";
    }

    void adresa()
    {
        QFETCH(QStringList, parti);
        QFETCH(QString, adresa);
        QCOMPARE(AdresaCerere(parti[0], parti[1], parti[2], parti[3], parti[4], parti[5]), adresa);
    }

    void textRezultat_data()
    {
        QTest::addColumn<int>("n");
        QTest::addColumn<QString>("text");
        QTest::newRow("0") << 0 << " Nu exista nici o cerere";
        QTest::newRow("1") << 1 << " o cerere\n";
        QTest::newRow("20000") << 20000 << "20000 cereri\n";
    }

    void textRezultat()
    {
        QFETCH(int, n);
        QFETCH(QString, text);
        QCOMPARE(TextRezultat(n), text);
    }

    void baraDeStare()
    {
        QCOMPARE(TextPanouAzi(QDate(2012, 3, 5)), QStringLiteral(" 5 Martie 2012 "));
        QCOMPARE(TextLunaActiva(11, 2025), QStringLiteral(" LUNA ACTIVA: Noiembrie 2025 "));
    }

    void modelRescriereSiCulori()
    {
        ModelCereri m;
        RandCerere r;
        r.cerereId = 1;
        r.stare = 3;
        r.culoare = CuloareDinStare(3);
        m.incarca({r});
        QCOMPARE(m.culoare(0), QColor(255, 0, 0));
        // Status 1 leaves the colour alone: the red of the row stays.
        RandCerere rescris = r;
        rescris.stare = 1;
        rescris.culoare = CuloareDinStare(1);
        rescris.solicitant = QStringLiteral("Nou");
        QCOMPARE(m.puneRand(rescris, 2, 0), 0);
        QCOMPARE(m.rowCount(), 1);
        QCOMPARE(m.text(0, ColCerere::Solicitant), QStringLiteral("Nou"));
        QCOMPARE(m.culoare(0), QColor(255, 0, 0));
        // A new row in status 1 has the list's default colour.
        rescris.cerereId = 2;
        QCOMPARE(m.puneRand(rescris, 1, 0), 1);
        QVERIFY(!m.culoare(1).isValid());
        QVERIFY(!m.data(m.index(1, 3), Qt::ForegroundRole).isValid());
        // Adaug 2 with no selected row: the error of the office's list.
        try {
            m.puneRand(rescris, 2, -1);
            QFAIL("Rescrierea fara rand selectat a trecut");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::ObiectNesetat);
        }
        QCOMPARE(m.rowCount(), 2);
    }

    void modelSortare()
    {
        ModelCereri m;
        std::vector<RandCerere> v;
        const char* nume[] = {"radu", "Ana", "Radu", "bogdan"};
        for (int i = 0; i < 4; ++i) {
            RandCerere r;
            r.cerereId = i + 1;
            r.solicitant = QString::fromLatin1(nume[i]);
            r.nrCerere = 10 - i;
            v.push_back(r);
        }
        m.incarca(v);
        const QPersistentModelIndex radu(m.index(2, 0));
        m.sort(ColCerere::Solicitant, Qt::DescendingOrder); // always ascending
        QStringList s;
        for (int i = 0; i < 4; ++i)
            s << m.text(i, ColCerere::Solicitant);
        QCOMPARE(s, (QStringList{"Ana", "bogdan", "radu", "Radu"}));
        QCOMPARE(radu.row(), 3);
        // Texts, not numbers: "10" before "7".
        m.sort(ColCerere::NrCerere);
        QCOMPARE(m.text(0, ColCerere::NrCerere), QStringLiteral("10"));
        // While sorted, a new row takes its sorted place.
        RandCerere nou;
        nou.cerereId = 9;
        nou.nrCerere = 0;
        QCOMPARE(m.puneRand(nou, 1, -1), 0);
        m.sort(-1);
        QCOMPARE(m.coloanaSortare(), -1);
    }

    void anchete()
    {
        fixtura(bd());
        DateTest::Ancheta(bd(), 1, 1,
                          {{"DataAncheta", "2012-01-09"},
                           {"NrMembrii", 4},
                           {"NrCopii", 2},
                           {"DataExpirarii", "2012-07-09"},
                           {"Motiv", "valabilitate 6 luni"}});
        DateTest::Ancheta(bd(), 2, 1, {{"DataAncheta", "2012-05-01"}});
        DateTest::Ancheta(bd(), 3, 1, {{"DataAncheta", DateTest::Null}});
        DateTest::Ancheta(bd(), 4, 2, {{"DataAncheta", "2013-01-01"}});
        const auto r = CitesteAnchete(bd(), 1);
        QCOMPARE(r.size(), size_t(3));
        QCOMPARE(r[0].id, 2);
        QCOMPARE(r[1].texte,
                 (std::array<QString, 6>{"1", "09.01.2012", "4", "2", "09.07.2012", "valabilitate 6 luni"}));
        QCOMPARE(r[2].texte, (std::array<QString, 6>{"3", "", "", "", "", ""}));
        QVERIFY(CitesteAnchete(bd(), 3).empty());
    }

    void dispozitii()
    {
        fixtura(bd());
        DateTest::Dispozitie(bd(), 1, 1, {{"NrDisp", 15}, {"DataDisp", "2012-02-03"}, {"Luna", 3}});
        DateTest::Dispozitie(bd(), 2, 1,
                             {{"NrDisp", 16.5}, {"DataDisp", "2012-06-03"}, {"Actiune", 3}, {"Luna", DateTest::Null}});
        const auto r = CitesteDispozitii(bd(), 1);
        QCOMPARE(r.size(), size_t(2));
        const QString acordare =
            bd().scalar(QStringLiteral("SELECT Continut FROM DateGen WHERE Tip = 20 AND DataID = 1")).toString();
        QVERIFY(!acordare.isEmpty());
        QCOMPARE(r[1].texte, (std::array<QString, 6>{"1", "15", "03.02.2012", acordare, "3", "2012"}));
        QCOMPARE(r[0].texte[1], QStringLiteral("16.5"));
        QCOMPARE(r[0].texte[4], QString());
        // A type without a label stops the reading with an error.
        DateTest::Dispozitie(bd(), 3, 1, {{"Actiune", 99}});
        QVERIFY_THROWS_EXCEPTION(Eroare, CitesteDispozitii(bd(), 1));
    }
};

QTEST_GUILESS_MAIN(TestListaCereri)
#include "tst_listacereri.moc"
