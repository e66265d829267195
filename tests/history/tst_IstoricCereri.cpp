#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"

#include "amounts/Cuantum.h"
#include "import/Demo.h"
#include "import/ImportCereri.h"
#include "applications/IncarcaCerere.h"
#include "applications/SalveazaCerere.h"
#include "common/Ceas.h"
#include "common/Proces.h"
#include "history/IstoricCereri.h"
#include "maintenance/Mentenanta.h"
#include "decisions/Dispozitie.h"
#include "documents/DispozitiiInBloc.h"

#include <QtTest>

// The history of a case: each way of changing an application's status, amount or child count
// leaves its row, and the case "as of" a day is read back from those rows.
class TestIstoricCereri : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override { Ceas::seteazaAzi(QDate(2026, 11, 5)); }

private slots:
    void randPeCale_data();
    void randPeCale();
    void stareLa_data();
    void stareLa();
};

void TestIstoricCereri::randPeCale_data()
{
    QTest::addColumn<QString>("cale");
    QTest::addColumn<int>("randuriNoi");
    QTest::addColumn<int>("stare");
    QTest::addColumn<QVariant>("stareVeche");
    QTest::addColumn<QString>("motiv");
    QTest::addColumn<bool>("cuDispozitie");
    // The family of each case starts saved with status 1 and 60 lei.
    QTest::newRow("cerere noua") << "" << 0 << 1 << QVariant() << "Cerere noua: stare 1, cuantum 60.00, copii 2"
                                 << false;
    QTest::newRow("editorul, venitul dublat")
        << "editor" << 1 << 1 << QVariant(1) << "Modificare cerere: cuantum 60.00 -> 50.00" << false;
    QTest::newRow("editorul, nimic schimbat") << "editor nimic" << 0 << 1 << QVariant() << "" << false;
    QTest::newRow("dispozitie de modificare")
        << "dispozitie" << 1 << 7 << QVariant(1) << "Dispozitie (tip 2): stare 1 -> 7, cuantum 60.00 -> 50.00" << true;
    QTest::newRow("generare in bloc") << "bloc" << 1 << 2 << QVariant(1) << "Dispozitie (tip 1): stare 1 -> 2" << true;
    QTest::newRow("mentenanta") << "mentenanta" << 1 << 5 << QVariant(1) << "Mentenanta: Stare = 5: stare 1 -> 5"
                                << false;
    QTest::newRow("import") << "import" << 1 << -1 << QVariant() << "Import cerere: stare " << false;
}

void TestIstoricCereri::randPeCale()
{
    QFETCH(QString, cale);
    QFETCH(int, randuriNoi);
    QFETCH(int, stare);
    QFETCH(QVariant, stareVeche);
    QFETCH(QString, motiv);
    QFETCH(bool, cuDispozitie);
    BD& bd = m_oficiu->bd();
    MesajeScript mesaje;
    Cerere c = DateTest::Familie(2, Lei(500));
    const qint64 id = ScrieCerere(bd, c, 2026);
    const int inainte = int(CitesteIstoric(bd, id).size());
    qint64 caz = id;
    if (cale.startsWith(QLatin1String("editor"))) {
        Cerere e = IncarcaCerere(bd, id);
        e.Adaug = 2;
        if (cale == QLatin1String("editor")) {
            e.Venituri[3] = Lei(1000);
            e.VenitTotal = QStringLiteral("1000");
            RecalculVenitPeMembru(e);
        }
        ScrieCerere(bd, e, 2026);
    } else if (cale == QLatin1String("dispozitie")) {
        DateDispozitie d{0,
                         id,
                         QStringLiteral("3"),
                         Ceas::azi(),
                         11,
                         QStringLiteral("2026"),
                         2,
                         QStringLiteral("60"),
                         QStringLiteral("50"),
                         QString()};
        SalveazaDispozitie(bd, 1, d);
    } else if (cale == QLatin1String("bloc")) {
        ParametriGenerare p;
        p.primulNr = 1;
        p.luna = 11;
        p.an = 2026;
        p.dataDisp = Ceas::azi();
        QVERIFY(GenereazaDispozitii(p, bd).complet);
    } else if (cale == QLatin1String("mentenanta")) {
        RecalculStare(bd);
    } else if (cale == QLatin1String("import")) {
        const std::vector<RezultatImport> r = ImportaCereri(bd, GenereazaCereriDemo(1, 7), 2026);
        QVERIFY(r[0].salvat);
        caz = r[0].cerereId;
        stare = bd.scalar(QStringLiteral("SELECT Stare FROM Cereri WHERE CerereID = ?"), {caz}).toInt();
    }
    const std::vector<RandIstoric> istoric = CitesteIstoric(bd, caz);
    QCOMPARE(int(istoric.size()) - (caz == id ? inainte : 0), cale.isEmpty() ? 0 : randuriNoi);
    const RandIstoric& r = istoric.back();
    if (randuriNoi == 0 && !cale.isEmpty())
        return;
    // The row says what the case became, as the application now stands, and who made it when.
    QCOMPARE(r.stare, stare);
    QCOMPARE(r.stareVeche.has_value() ? QVariant(*r.stareVeche) : QVariant(), stareVeche);
    QVERIFY2(r.motiv.startsWith(motiv), qPrintable(r.motiv));
    QCOMPARE(r.dispozitieId > 0, cuDispozitie);
    QCOMPARE(r.data, Ceas::azi());
    QCOMPARE(r.statie, Proces::statie());
    QCOMPARE(r.utilizator, Proces::utilizatorSistem());
}

void TestIstoricCereri::stareLa_data()
{
    QTest::addColumn<QDate>("data");
    QTest::addColumn<int>("stare"); // 0: the history does not reach back so far
    QTest::addColumn<int>("lei");
    QTest::newRow("inainte de primul rand") << QDate(2026, 1, 31) << 0 << 0;
    QTest::newRow("ziua primului rand") << QDate(2026, 2, 1) << 1 << 0;
    QTest::newRow("intre randuri") << QDate(2026, 3, 15) << 2 << 60;
    QTest::newRow("doua randuri in aceeasi zi: ultimul") << QDate(2026, 5, 1) << 7 << 50;
    QTest::newRow("dupa ultimul") << QDate(2027, 1, 1) << 7 << 50;
}

void TestIstoricCereri::stareLa()
{
    QFETCH(QDate, data);
    QFETCH(int, stare);
    QFETCH(int, lei);
    const auto rand = [](qint64 id, QDate d, int s, int l) {
        RandIstoric r;
        r.id = id;
        r.data = d;
        r.stare = s;
        r.cuantum = Lei(l);
        return r;
    };
    const std::vector<RandIstoric> istoric{rand(1, QDate(2026, 2, 1), 1, 0), rand(2, QDate(2026, 3, 1), 2, 60),
                                           rand(3, QDate(2026, 5, 1), 2, 55), rand(4, QDate(2026, 5, 1), 7, 50)};
    const std::optional<StareLaData> s = StareLa(istoric, data);
    QCOMPARE(s.has_value(), stare != 0);
    if (s) {
        QCOMPARE(s->stare, stare);
        QCOMPARE(s->cuantum, Lei(lei));
    }
}

QTEST_GUILESS_MAIN(TestIstoricCereri)
#include "tst_IstoricCereri.moc"
