#include "DateTest.h"
#include "TestCuOficiu.h"
#include "documents/DispozitiiInBloc.h"
#include "documents/SablonRtf.h"
#include "common/Data.h"
#include "common/Setari.h"

#include <QtTest>

using namespace DateTest;

// The end-of-month runs: the selection of dispositions, their one document, the older run
// by application numbers, and the generation of dispositions in one transaction.
class TestDispozitiiInBloc : public TestCuOficiu {
    Q_OBJECT
public:
    TestDispozitiiInBloc() : TestCuOficiu(Oficiu::PeClasa) {}

    void pregatesteOficiul() override { m_oficiu->scrieDatePrimarie(); }

private slots:
    void selectie_data()
    {
        QTest::addColumn<int>("tip");
        QTest::addColumn<int>("statut");
        QTest::addColumn<int>("luna");
        QTest::addColumn<int>("an");
        QTest::addColumn<int>("min");
        QTest::addColumn<int>("max");
        QTest::addColumn<QList<qint64>>("ids");

        QTest::newRow("acordari de aprilie ale cuplurilor, dupa numar")
            << 1 << 1 << 4 << 2012 << 0 << 100 << QList<qint64>{1, 3, 2};
        QTest::newRow("intervalul de numere e inchis") << 1 << 1 << 4 << 2012 << 11 << 12 << QList<qint64>{3, 2};
        QTest::newRow("monoparentale") << 1 << 2 << 4 << 2012 << 0 << 100 << QList<qint64>{4};
        QTest::newRow("suspendari") << 3 << 1 << 4 << 2012 << 0 << 100 << QList<qint64>{5};
        QTest::newRow("luna mai") << 1 << 1 << 5 << 2012 << 0 << 100 << QList<qint64>{6};
        QTest::newRow("alt an") << 1 << 1 << 4 << 2013 << 0 << 100 << QList<qint64>{};
        QTest::newRow("campuri goale: 0 si 0") << 1 << 1 << 4 << 2012 << 0 << 0 << QList<qint64>{};
    }

    void selectie()
    {
        QFETCH(int, tip);
        QFETCH(int, statut);
        QFETCH(int, luna);
        QFETCH(int, an);
        QFETCH(int, min);
        QFETCH(int, max);
        QFETCH(QList<qint64>, ids);
        dateStandard();
        QCOMPARE(DispozitiiSelectate({tip, statut, luna, an, min, max}, bd()), ids);
    }

    void documentulAreUnAntetSiPaginiSeparate()
    {
        dateStandard();
        MesajeScript m;
        const auto doc = DocumentDispozitiiSelectate({1, 1, 4, 2012, 0, 100}, Setari{}, bd());
        QVERIFY(doc);
        QCOMPARE(doc->count("{\\rtf1"), 1);
        QCOMPARE(doc->count("\\page"), 2);
        QCOMPARE(doc->count("DISPOZITIA nr."), 3);
        QVERIFY(doc->endsWith("\\par\r\n}"));
        QCOMPARE(m.texte(), QStringList());
    }

    void fiecareDispozitieRecitesteSablonul()
    {
        // Filling consumes the markers: a body filled once and repeated would name the first
        // applicant on every page.
        dateStandard();
        const auto doc = DocumentDispozitiiSelectate({1, 1, 4, 2012, 0, 100}, Setari{}, bd());
        QVERIFY(doc);
        const qsizetype ion = doc->indexOf("POPESCU ION"), dan = doc->indexOf("POPESCU DAN"),
                        ana = doc->indexOf("POPESCU ANA");
        QVERIFY(ion > 0 && dan > ion && ana > dan); // by number: 10, 11, 12
        QVERIFY(doc->contains("DISPOZITIA nr. 12 din"));
    }

    void selectieGoala()
    {
        dateStandard();
        MesajeScript m;
        QVERIFY(!DocumentDispozitiiSelectate({1, 1, 4, 2012, 0, 0}, Setari{}, bd()));
        QCOMPARE(m.texte(),
                 QStringList{QStringLiteral("Nu exista nici o dispozitie de tiparit. Faceti o alta selectie!")});
    }

    void oprireaNuDaDocument()
    {
        dateStandard();
        QList<int> pasi;
        const auto doc = DocumentDispozitii({1, 2, 3}, Setari{}, bd(), [&](int facut, int total) {
            pasi << facut;
            Q_UNUSED(total);
            return facut < 1;
        });
        QVERIFY(!doc);
        QCOMPARE(pasi, (QList<int>{0, 1}));
    }

    void tipNecunoscutOpresteRularea()
    {
        dateStandard();
        bd().executa(QStringLiteral("UPDATE Dispozitii SET Actiune = 9 WHERE DispozitieID = 2"));
        MesajeScript m;
        QVERIFY(!DocumentDispozitii({1, 2, 3}, Setari{}, bd()));
        QCOMPARE(m.texte(),
                 QStringList{QStringLiteral("Dispozitia 2 are un tip necunoscut (9). Nu a fost tiparit nimic.")});
    }

    void dupaNumereDeCerere_data()
    {
        QTest::addColumn<int>("mod");
        QTest::addColumn<int>("min");
        QTest::addColumn<int>("max");
        QTest::addColumn<int>("pagini"); // -1: no document
        QTest::addColumn<QStringList>("mesaje");

        const QString nerealizat = QStringLiteral("Aceasta facilitate nu e realizata inca!");
        QTest::newRow("optiunea Luna") << 1 << 101 << 105 << -1 << QStringList{nerealizat};
        QTest::newRow("optiunea Nr Dispozitie") << 3 << 101 << 105 << -1 << QStringList{nerealizat};
        QTest::newRow("optiunea lista") << 4 << 101 << 105 << -1 << QStringList{nerealizat};
        QTest::newRow("nici o optiune") << 0 << 101 << 105 << -1 << QStringList{nerealizat};
        QTest::newRow("Nr Cerere: ultima dispozitie a fiecarei cereri, cererea fara dispozitie numita")
            << 2 << 101 << 105 << 4
            << QStringList{QStringLiteral("Cererea nr 105 nu are dispozitie!"),
                           QStringLiteral("Au fost generate 4 dispozitii!")};
        QTest::newRow("Nr Cerere: nici o cerere")
            << 2 << 200 << 300 << -1
            << QStringList{QStringLiteral("Nu exista nici o dispozitie de tiparit. Faceti o alta selectie!")};
        QStringList multe;
        for (int nr = 105; nr <= 124; ++nr)
            multe << QStringLiteral("Cererea nr %1 nu are dispozitie!").arg(nr);
        multe << QStringLiteral("... si inca 2 cereri fara dispozitie.");
        QTest::newRow("Nr Cerere: lista cererilor fara dispozitie e scurtata")
            << 2 << 101 << 126 << 4
            << QStringList{multe.join(QLatin1Char('\n')), QStringLiteral("Au fost generate 4 dispozitii!")};
        QTest::newRow("Nr Cerere: doar cererea fara dispozitie")
            << 2 << 105 << 105 << -1
            << QStringList{QStringLiteral("Cererea nr 105 nu are dispozitie!"),
                           QStringLiteral("Au fost generate 0 dispozitii!")};
    }

    void dupaNumereDeCerere()
    {
        QFETCH(int, mod);
        QFETCH(int, min);
        QFETCH(int, max);
        QFETCH(int, pagini);
        QFETCH(QStringList, mesaje);
        dateStandard();
        for (int i = 5; i <= 26; ++i)
            Dosar(bd(), i);
        // The latest disposition of application 1 is the grant of May (dated later).
        bd().executa(QStringLiteral("UPDATE Dispozitii SET DataDisp = '2012-04-28' WHERE DispozitieID = 6"));
        MesajeScript m;
        const auto doc = DocumentDispozitiiCereri(mod, min, max, Setari{}, bd());
        QCOMPARE(m.texte(), mesaje);
        QCOMPARE(doc.has_value(), pagini >= 0);
        if (doc) {
            QCOMPARE(doc->count("DISPOZITIA nr."), pagini);
            QVERIFY(doc->contains("DISPOZITIA nr. 15 din"));
            QVERIFY(!doc->contains("DISPOZITIA nr. 10 din"));
        }
    }

    void generare()
    {
        dateStandard();
        const qint64 inainte = bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")).toLongLong();
        MesajeScript m;
        const RezultatGenerare r = GenereazaDispozitii({200, 7, 2012, QDate(2012, 6, 30), 1}, bd());
        QVERIFY(r.complet);
        QCOMPARE(r.numar, 3);
        QCOMPARE(MesajGenerare(r), QStringLiteral("Au fost generate : 3 dispozitii, de la nr 200 la nr \n"
                                                  "A pornit de la NrCerere: 101 pana la NrCerere: 103"));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")).toLongLong(), inainte + 3);
        Rezultat d = bd().selecteaza(
            QStringLiteral("SELECT DispozitieID, CerereID, NrDisp, DataDisp, DinData, Actiune, Cuantum, "
                           "An, Luna FROM Dispozitii WHERE DispozitieID > 6 ORDER BY DispozitieID"));
        for (int i = 1; i <= 3; ++i) {
            QVERIFY(d.next());
            QCOMPARE(d.numar("DispozitieID"), 6 + i); // the keys go on from the highest
            QCOMPARE(d.numar("CerereID"), i);
            QCOMPARE(d["NrDisp"].toDouble(), 199.0 + i);
            QCOMPARE(DataDinBD(d["DataDisp"]), QDate(2012, 6, 30));
            QCOMPARE(DataDinBD(d["DinData"]), QDate(2012, 7, 1));
            QCOMPARE(d.numar("Actiune"), 1);
            QCOMPARE(d["Cuantum"].toDouble(), 10.0 * i);
            QCOMPARE(d["An"].toDouble(), 2012.0);
            QCOMPARE(d.numar("Luna"), 7);
        }
        QVERIFY(!d.next());
        QCOMPARE(m.texte(), QStringList());
    }

    void generareOpritaNuScrieNimic()
    {
        dateStandard();
        const qint64 inainte = bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")).toLongLong();
        const RezultatGenerare r =
            GenereazaDispozitii({200, 7, 2012, QDate(2012, 6, 30), 1}, bd(), [](int facut, int) { return facut < 2; });
        QVERIFY(!r.complet);
        QVERIFY(r.oprit);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")).toLongLong(), inainte);
    }

    void generareAnGresit()
    {
        dateStandard();
        MesajeScript m;
        const RezultatGenerare r = GenereazaDispozitii({200, 7, 0, QDate(2012, 6, 30), 1}, bd());
        QVERIFY(!r.complet);
        QVERIFY(!r.oprit);
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Introduceti un an si o luna corecte!")});
    }

private:
    // Applications 1..3 (couples, numbers 101..103) and 4 (single parent, 104), with dispositions:
    // id 1..4 of the applications 1..4, numbers 10, 12, 11, 13, all grants of April 2012, and
    // id 5: application 1, number 14, a suspension of April; id 6: number 15, a grant of May.
    void dateStandard();
};

void TestDispozitiiInBloc::dateStandard()
{
    const char* nume[] = {"ION", "ANA", "DAN", "EVA"};
    const int numere[] = {10, 12, 11, 13};
    for (int i = 1; i <= 4; ++i) {
        Dosar(bd(), i, {{"TipCerere", i == 4 ? 2 : 1}, {"Cuantum", 10 * i}}, {{"Prenume", nume[i - 1]}});
        Dispozitie(bd(), i, i, {{"NrDisp", numere[i - 1]}});
    }
    Dispozitie(bd(), 5, 1, {{"NrDisp", 14}, {"Actiune", 3}});
    Dispozitie(bd(), 6, 1, {{"NrDisp", 15}, {"DinData", "2012-05-01"}, {"Luna", 5}});
}

QTEST_GUILESS_MAIN(TestDispozitiiInBloc)
#include "tst_DispozitiiInBloc.moc"
