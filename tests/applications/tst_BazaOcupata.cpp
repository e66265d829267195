#include "AltCalculator.h"
#include "DateTest.h"
#include "TestCuOficiu.h"

#include "applications/BlocareRetea.h"
#include "applications/Demo.h"
#include "applications/ImportCereri.h"
#include "applications/SalveazaCerere.h"
#include "common/Ceas.h"
#include "common/Eroare.h"
#include "database/BD.h"

#include <QElapsedTimer>
#include <QtTest>

using DateTest::Familie;

// Another workstation holding the database file: a save whose COMMIT cannot go through, an
// import that meets a busy file or a held lock file, and a file that cannot be written.
class TestBazaOcupata : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        Ceas::seteazaAzi(QDate(2026, 3, 10));
    }

    qint64 randuri(const char* tabela)
    {
        return bd().scalar(QStringLiteral("SELECT COUNT(*) FROM ") + QLatin1String(tabela)).toLongLong();
    }

    // Every table that a save writes, empty or not.
    qint64 randuriScrise()
    {
        qint64 n = 0;
        for (const char* t : {"Strazi", "Politii", "Scoli", "Motive", "Familii", "Cereri", "Membrii", "CereriMembrii",
                              "Adeverinte", "Venituri", "Locuinte"})
            n += randuri(t);
        return n;
    }

    static OptiuniSalvare optiuni()
    {
        OptiuniSalvare o = OptiuniSalvare::dinProces();
        o.anActiv = 2026;
        return o;
    }

private slots:
    // The COMMIT fails while another workstation reads: the save says so and leaves nothing,
    // and the next save is a transaction of its own that is still there after reopening
    // (it used to be a savepoint inside the stuck transaction, lost at closing).
    void commitEsuatNuLasaTranzactiaDeschisa()
    {
        const qint64 inainte = randuriScrise();
        bd().setAsteptare(300);
        MesajeScript mesaje;
        {
            AltCalculator cititor(m_oficiu->caleBD(), AltCalculator::Blocare::Citire);
            Cerere prima = Familie(2, Lei(500), 1, 1);
            const RezultatSalvare s = SalveazaCerere(bd(), prima, optiuni());
            QCOMPARE(s.stare, RezultatSalvare::Stare::Eroare);
            QCOMPARE(s.numarEroare, CodEroare::BazaOcupata);
            QCOMPARE(mesaje.intrari.size(), 1);
            QVERIFY(mesaje.ultimul().contains(QStringLiteral("este ocupata de alt calculator")));
            QVERIFY(!bd().inTranzactie());
        }
        QCOMPARE(randuriScrise(), inainte);

        Cerere aDoua = Familie(1, Lei(300), 1, 2);
        const RezultatSalvare s = SalveazaCerere(bd(), aDoua, optiuni());
        QVERIFY(s.salvat());
        bd().deschide(m_oficiu->caleBD());
        QCOMPARE(randuri("Cereri"), 1);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE CerereID = ?"), {s.cerereId}).toInt(),
                 3);
    }

    // A file held by another workstation: the import waits for it, every statement alike
    // (the reads before the save used to give up after five seconds and drop the element);
    // held past the wait, the import stops at that element with one message instead of
    // passing over the rest.
    void importulNuSareElementeCandBazaEOcupata_data()
    {
        QTest::addColumn<int>("asteptare");
        QTest::addColumn<int>("tinut");
        QTest::addColumn<bool>("salvate");
        QTest::newRow("asteapta cat tine blocarea") << AsteptareOcupatMs << 5500 << true;
        QTest::newRow("oprit dupa asteptare") << 300 << 3000 << false;
    }
    void importulNuSareElementeCandBazaEOcupata()
    {
        QFETCH(int, asteptare);
        QFETCH(int, tinut);
        QFETCH(bool, salvate);
        constexpr int N = 3;
        bd().setAsteptare(asteptare);
        int raportate = 0;
        QString oprit;
        {
            AltCalculator altul(m_oficiu->caleBD(), AltCalculator::Blocare::Scriere, tinut);
            try {
                ImportaCereri(bd(), GenereazaCereriDemo(N, 5), 2026, [&](const RezultatImport& r) {
                    ++raportate;
                    QVERIFY2(r.salvat, qPrintable(r.mesaje.join(QStringLiteral("; "))));
                });
            } catch (const Eroare& e) {
                QCOMPARE(e.numar, CodEroare::BazaOcupata);
                oprit = e.descriere;
            }
        }
        if (salvate) {
            QCOMPARE(raportate, N);
            QVERIFY(oprit.isEmpty());
            QCOMPARE(randuri("Cereri"), N);
        } else {
            QCOMPARE(raportate, 0);
            QVERIFY(oprit.contains(QStringLiteral("este ocupata de alt calculator")));
            QVERIFY(oprit.contains(QStringLiteral("oprit la elementul 1,")));
            QCOMPARE(randuri("Cereri"), 0);
        }
    }

    // The lock file held past the same wait stops the import too, instead of passing over the
    // element.
    void blocareReteaPesteAsteptareOpresteImportul()
    {
        BlocareRetea altaStatie;
        QVERIFY(altaStatie.incearca(m_oficiu->folderOficiu()));
        bd().setAsteptare(300);
        OptiuniImport o;
        o.retea = true;
        o.folderBlocare = m_oficiu->folderOficiu();
        int raportate = 0;
        try {
            ImportaCereri(bd(), GenereazaCereriDemo(2, 7), 2026, [&](const RezultatImport&) { ++raportate; }, o);
            QFAIL("importul trebuia oprit");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::BazaOcupata);
            QVERIFY(e.descriere.startsWith(MesajBlocareRetea));
            QVERIFY(e.descriere.contains(QStringLiteral("elementul 1,")));
        }
        QCOMPARE(raportate, 0);
        QCOMPARE(randuri("Cereri"), 0);
    }

    // A file that cannot be written stops the import at the first element with one message,
    // not the engine's text once per element.
    void fisierDoarCitireOpresteImportul()
    {
        const qint64 inainte = randuriScrise();
        // The engine's own read-only state: the tests may run as root, whom file permissions
        // do not stop.
        bd().executa(QStringLiteral("PRAGMA query_only = 1"));
        int raportate = 0;
        try {
            ImportaCereri(bd(), GenereazaCereriDemo(3, 6), 2026, [&](const RezultatImport&) { ++raportate; });
            QFAIL("importul trebuia oprit");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::FaraScriere);
            QVERIFY(e.descriere.contains(QStringLiteral("nu se poate scrie")));
            QVERIFY(e.descriere.contains(QStringLiteral("elementul 1,")));
            QVERIFY(!e.descriere.contains(QStringLiteral("INSERT")));
        }
        QCOMPARE(raportate, 0);
        QCOMPARE(randuriScrise(), inainte);
    }
};

QTEST_GUILESS_MAIN(TestBazaOcupata)
#include "tst_BazaOcupata.moc"
