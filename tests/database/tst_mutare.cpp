#include "DateTest.h"
#include "TestCuOficiu.h"

#include "applications/SalveazaCerere.h"
#include "database/BD.h"
#include "database/BlocareRetea.h"
#include "database/MutareServer.h"
#include "decisions/Dispozitie.h"
#include "mainwindow/Stergere.h"
#include "reports/InchidereLuna.h"
#include "common/Eroare.h"
#include "common/FisiereHelper.h"
#include "common/Proces.h"

#include <QtTest>
#include <functional>

using Scriere = std::function<void(BD&)>;
Q_DECLARE_METATYPE(Scriere)

// The file of an office that moved to a server, as a workstation that opened it before the
// move meets it: every write refused with the move's message and nothing written, every read
// as before. And the move that will not start while another workstation saves.
class TestMutare : public TestCuOficiu {
    Q_OBJECT

    static constexpr const char* Server = "srv.primarie:5432/alocatii";

    void pregateste() override
    {
        DateTest::Dosar(bd(), 1);
        DateTest::Dispozitie(bd(), 1, 1);
    }

    // The move, written by another connection while this one stays open on the file.
    void marcheazaMutat()
    {
        BD alta;
        alta.deschide(m_oficiu->caleBD());
        Tranzactie t(alta);
        alta.marcheazaMutat(QString::fromLatin1(Server), QStringLiteral("02.03.2026 10:15"));
        t.confirma();
    }

    QList<qint64> randuri()
    {
        QList<qint64> r = DateTest::RanduriScrise(bd());
        for (const char* t : {"Dispozitii", "LuniInchise", "Strazi"})
            r << DateTest::NumaraRanduri(bd(), QString::fromLatin1(t));
        return r;
    }

private slots:
    void scriereaInFisierulMutatEsteRefuzata_data()
    {
        QTest::addColumn<Scriere>("scrie");
        QTest::newRow("salvarea cererii") << Scriere([](BD& bd) {
            Cerere c = DateTest::Familie(1);
            OptiuniSalvare o;
            o.verificaCale = false;
            o.anActiv = 2026;
            const RezultatSalvare r = SalveazaCerere(bd, c, o);
            if (!r.salvat())
                throw Eroare(r.numarEroare, r.descriere);
        });
        QTest::newRow("dispozitia") << Scriere([](BD& bd) {
            DateDispozitie d;
            d.cerereId = 1;
            d.nrDisp = QStringLiteral("12");
            d.dataDisp = QDate(2026, 3, 2);
            d.luna = 3;
            d.an = QStringLiteral("2026");
            d.actiune = 1;
            d.suma = QStringLiteral("30");
            SalveazaDispozitie(bd, 1, d);
        });
        QTest::newRow("stergerea cererii") << Scriere([](BD& bd) { StergeCerere(bd, 1); });
        QTest::newRow("stergerea dispozitiei") << Scriere([](BD& bd) { StergeDispozitie(bd, 1); });
        QTest::newRow("inchiderea lunii") << Scriere([](BD& bd) { InchideLuna(bd, LunaAn{3, 2026}); });
        QTest::newRow("o scriere fara tranzactie")
            << Scriere([](BD& bd) { bd.executa(QStringLiteral("UPDATE Cereri SET Stare = 3 WHERE CerereID = 1")); });
    }
    void scriereaInFisierulMutatEsteRefuzata()
    {
        QFETCH(Scriere, scrie);
        marcheazaMutat();
        const QList<qint64> inainte = randuri();
        try {
            scrie(bd());
            QFAIL("the moved file took a write");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::OficiuMutat);
            QVERIFY2(e.descriere.startsWith(
                         QStringLiteral("Datele oficiului au fost mutate pe server srv.primarie:5432/alocatii la "
                                        "02.03.2026 10:15.")),
                     qPrintable(e.descriere));
        }
        QCOMPARE(randuri(), inainte);
        // Reading goes on, and the connection is outside any transaction.
        QCOMPARE(bd().scalar(QStringLiteral("SELECT Stare FROM Cereri WHERE CerereID = 1")).toInt(), 2);
        QVERIFY(!bd().inTranzactie());
    }

    // The lock file held by a workstation that saves: the move says who holds it and does not
    // begin; the file takes writes as before.
    void mutareaAsteaptaSalvareaDePeAltCalculator()
    {
        BlocareRetea altCalculator;
        QVERIFY(altCalculator.incearca(m_oficiu->folderOficiu()));
        try {
            MutaOficiuPeServer(m_oficiu->folderOficiu(), QStringLiteral("host=127.0.0.1 port=1 dbname=alocatii"),
                               [](const QString&) {});
            QFAIL("the move began while the lock file was held");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::BazaOcupata);
            QVERIFY2(e.descriere.startsWith(QStringLiteral("Oficiul nu poate fi mutat acum: %1 (utilizatorul %2")
                                                .arg(Proces::statie(), Proces::utilizatorSistem())),
                     qPrintable(e.descriere));
            QVERIFY(e.descriere.endsWith(QStringLiteral("Nu s-a mutat nimic.")));
        }
        QVERIFY(QFileInfo::exists(m_oficiu->caleBD()));
        QVERIFY(FisiereHelper()
                    .CitesteIni(QStringLiteral("ServerBD"), QStringLiteral("Generale"),
                                QDir(m_oficiu->folderOficiu()).filePath(QStringLiteral("setariTarnava.ini")))
                    .isEmpty());
        QCOMPARE(bd().executa(QStringLiteral("UPDATE Cereri SET Stare = 3 WHERE CerereID = 1")), 1);
    }

    // A workstation left open on the file while the office moved: the check at the head of
    // each action finds the file renamed and says where the data went.
    void statiaRamasaDeschisaAflaUndeSuntDatele()
    {
        const QString folder = m_oficiu->folderOficiu();
        QVERIFY(FisiereHelper().ScrieIni(QStringLiteral("ServerBD"), QStringLiteral("Generale"),
                                         QDir(folder).filePath(QStringLiteral("setariTarnava.ini")),
                                         QStringLiteral("postgresql://birou@srv.primarie/alocatii")));
        QVERIFY(QFile::rename(m_oficiu->caleBD(), NumeFisierMutat(folder, QDate(2026, 3, 2))));
        m_mesaje->goleste();
        QVERIFY(!Proces::BazaAccesibila());
        QCOMPARE(m_mesaje->texte(), QStringList{QStringLiteral("Datele oficiului au fost mutate pe server "
                                                               "postgresql://birou@srv.primarie/alocatii. Reporniti "
                                                               "programul; el lucreaza de acum cu serverul.")});
    }

    // The name that the moved file takes says so, and never covers an earlier one.
    void numeleFisieruluiMutat()
    {
        const QString folder = m_oficiu->folderOficiu();
        const QString intai = NumeFisierMutat(folder, QDate(2026, 3, 2));
        QCOMPARE(QFileInfo(intai).fileName(), QStringLiteral("Tarnava-mutat-pe-server-2026-03-02.db"));
        QFile f(intai);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        QCOMPARE(QFileInfo(NumeFisierMutat(folder, QDate(2026, 3, 2))).fileName(),
                 QStringLiteral("Tarnava-mutat-pe-server-2026-03-02-2.db"));
    }
};

QTEST_GUILESS_MAIN(TestMutare)
#include "tst_mutare.moc"
