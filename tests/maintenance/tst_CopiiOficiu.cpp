// The copies of the office's data: made consistent and checked, restored row for row, and
// never restored when damaged or while another workstation works. On a file and on a server.
#include "AltCalculator.h"
#include "DateTest.h"
#include "TestCuOficiu.h"
#include "database/BlocareRetea.h"
#include "maintenance/CopieFisierBD.h"
#include "maintenance/CopiiOficiu.h"
#include "maintenance/RestaurareCopie.h"
#include "common/Eroare.h"
#include "common/FisiereHelper.h"
#include "common/Proces.h"

#include <QSqlRecord>
#include <QtTest>
#include <atomic>
#include <thread>

namespace {

const QDateTime Luni(QDate(2024, 3, 4), QTime(8, 30));

// Every row of every table, each as its values joined, sorted: what a restore must give back.
QStringList toateRandurile(const BD& bd)
{
    QStringList randuri;
    const QMap<QString, qint64> tabele = RanduriTabele(bd);
    for (auto it = tabele.cbegin(); it != tabele.cend(); ++it) {
        Rezultat r = bd.selecteaza(QStringLiteral("SELECT * FROM %1").arg(it.key()));
        const int n = r.interogare().record().count();
        while (r.next()) {
            QStringList v{it.key().toLower()};
            for (int i = 0; i < n; ++i)
                v << (r.valoare(i).isNull() ? QStringLiteral("NULL") : r.valoare(i).toString());
            randuri << v.join(QLatin1Char('|'));
        }
    }
    randuri.sort();
    return randuri;
}

// Rows in three applications, as an office has them.
void dateOficiu(const BD& bd)
{
    for (int id = 1; id <= 3; ++id)
        DateTest::Dosar(
            bd, id, {},
            {{"Nume", QStringLiteral("POPESCU%1").arg(id)}, {"CNP", DateTest::CNPNascut(QDate(1980, 1, id))}});
}

void schimbaDatele(const BD& bd)
{
    bd.executa(QStringLiteral("UPDATE Membrii SET Nume = ? WHERE MembruID = 10"), {QStringLiteral("SCHIMBAT")});
    bd.executa(QStringLiteral("DELETE FROM Venituri"));
    DateTest::Dosar(bd, 4, {}, {{"CNP", DateTest::CNPNascut(QDate(1981, 2, 2))}});
}

qint64 randuriTabela(const QMap<QString, qint64>& randuri, const QString& tabela)
{
    for (auto it = randuri.cbegin(); it != randuri.cend(); ++it)
        if (it.key().compare(tabela, Qt::CaseInsensitive) == 0)
            return it.value();
    return -1;
}

} // namespace

class TestCopiiOficiu : public TestCuOficiu {
    Q_OBJECT

    LocCopii loc() const { return LocCopiiDinSetari(Proces::setari()); }

    // The restore as the maintenance window runs it: the process's connection closed meanwhile.
    RezultatRestaurare restaureaza(const QString& copie, bool inlocuieste = true)
    {
        BD::principala().inchide();
        struct Redeschide {
            ~Redeschide() { BD::principala().deschideOficiu(Proces::setari().CaleBD, Proces::setari().ServerBD); }
        } r;
        return RestaureazaCopie(loc(), copie, inlocuieste, Luni.addDays(1));
    }

private slots:
    void copiaEsteVerificataSiInregistrata()
    {
        dateOficiu(bd());
        const QMap<QString, qint64> inainte = RanduriTabele(bd());
        QVERIFY(CopieNecesara(loc(), Luni));
        const RezultatCopie r = FaCopie(loc(), Luni);

        const QString extensie = m_oficiu->server().isEmpty() ? QStringLiteral(".db") : QStringLiteral(".dump");
        QCOMPARE(QFileInfo(r.fisier).fileName(), QStringLiteral("Tarnava-20240304-083000") + extensie);
        QCOMPARE(QFileInfo(r.fisier).absolutePath(), QDir(m_oficiu->folderOficiu()).filePath(QStringLiteral("copii")));
        QVERIFY(r.verificare.buna);
        QCOMPARE(r.verificare.integritate, QStringLiteral("ok"));
        QCOMPARE(DiferentaRanduri(inainte, r.verificare.randuri), QString());
        QCOMPARE(randuriTabela(r.verificare.randuri, QStringLiteral("Cereri")), 3);

        const QList<CopieInregistrata> index = IndexCopii::citeste(loc().folderCopii);
        QCOMPARE(index.size(), 1);
        QCOMPARE(index[0].fisier, QFileInfo(r.fisier).fileName());
        QCOMPARE(index[0].verificare.amprenta, AmprentaFisier(r.fisier));
        QCOMPARE(index[0].verificare.randuri, r.verificare.randuri);
        QCOMPARE(QDir(loc().folderCopii).entryList(QDir::Files).size(), 3); // the copy, the index, the lock

        // One copy a day: none more the same day, one again the next.
        QVERIFY(!CopieNecesara(loc(), Luni.addSecs(8 * 3600)));
        QVERIFY(CopieNecesara(loc(), QDateTime(Luni.date().addDays(1), QTime(7, 0))));
        QVERIFY(VerificaCopie(r.fisier).buna);
    }

    void folderulDinSetari()
    {
        const QString alt = QDir(m_oficiu->folderOficiu()).filePath(QStringLiteral("../disc2/copii"));
        FisiereHelper().ScrieIni(QStringLiteral("CaleCopii"), QStringLiteral("Generale"), FisierSetari(), alt);
        FisiereHelper().ScrieIni(QStringLiteral("CopiiZilnice"), QStringLiteral("Generale"), FisierSetari(), "3");
        const LocCopii l = loc();
        QCOMPARE(l.folderCopii, QDir::cleanPath(alt));
        QCOMPARE(l.regula.zilnice, 3);
        QCOMPARE(l.regula.saptamanale, 4);
        QCOMPARE(l.regula.lunare, 12);
        const RezultatCopie r = FaCopie(l, Luni);
        QVERIFY(r.fisier.startsWith(QDir::cleanPath(alt)));
    }

    void restaurareaDaInapoiRandurileExacte()
    {
        dateOficiu(bd());
        const QStringList inainte = toateRandurile(bd());
        const RezultatCopie copie = FaCopie(loc(), Luni);
        schimbaDatele(bd());
        const QStringList schimbate = toateRandurile(bd());
        QVERIFY(schimbate != inainte);

        const RezultatRestaurare r = restaureaza(copie.fisier);
        QCOMPARE(toateRandurile(bd()), inainte);
        // What the office held before the restore is kept beside it.
        const QString extensie = m_oficiu->server().isEmpty() ? QStringLiteral(".db") : QStringLiteral(".dump");
        QCOMPARE(r.pastrat, QDir(m_oficiu->folderOficiu())
                                .filePath(QStringLiteral("Tarnava-inainte-de-restaurare-20240305-083000") + extensie));
        QVERIFY(QFileInfo::exists(r.pastrat));
        QVERIFY(VerificaCopie(r.pastrat).buna);
        QCOMPARE(randuriTabela(VerificaCopie(r.pastrat).randuri, QStringLiteral("Cereri")), 4);
        QVERIFY(!QFileInfo::exists(m_oficiu->caleBD() + QStringLiteral(".restaurare")));
    }

    void calculatorNouPornesteDinCopii()
    {
        if (!m_oficiu->server().isEmpty())
            QSKIP("un oficiu pe server nu are fisierul de pus pe alt calculator");
        dateOficiu(bd());
        const QStringList inainte = toateRandurile(bd());
        const RezultatCopie copie = FaCopie(loc(), Luni);
        // The clerk's PC is gone: on the new one, an empty folder and the copies folder.
        const QString nou = QDir(m_oficiu->folderOficiu()).filePath(QStringLiteral("../pc-nou/oficiu"));
        const LocCopii l{nou, QString(), loc().folderCopii, RegulaPastrare{}};
        const RezultatRestaurare r = RestaureazaCopie(l, copie.fisier, false, Luni.addDays(1));
        QVERIFY(r.pastrat.isEmpty());
        BD b;
        b.deschide(QDir(nou).filePath(Proces::NumeBD));
        QCOMPARE(toateRandurile(b), inainte);
        QVERIFY(QFileInfo::exists(QDir(nou).filePath(QStringLiteral("Venituri.txt"))));
        QVERIFY(!QDir(QDir(nou).filePath(QStringLiteral("acte"))).isEmpty());
    }

    void serverulPlinCereInlocuire()
    {
        if (m_oficiu->server().isEmpty())
            QSKIP("numai pentru un oficiu pe server");
        dateOficiu(bd());
        const RezultatCopie copie = FaCopie(loc(), Luni);
        schimbaDatele(bd());
        const QStringList schimbate = toateRandurile(bd());
        try {
            restaureaza(copie.fisier, false);
            QFAIL("restaurarea peste date a trecut fara --inlocuieste");
        } catch (const Eroare& e) {
            QVERIFY2(e.descriere.contains(QStringLiteral("nu este goala")), qPrintable(e.descriere));
        }
        QCOMPARE(toateRandurile(bd()), schimbate);

        // Into an empty database it goes without being asked.
        const QString goala = m_oficiu->bazaGoalaPeServer();
        LocCopii l = loc();
        l.server = goala;
        const RezultatRestaurare r = RestaureazaCopie(l, copie.fisier, false, Luni);
        QVERIFY(r.pastrat.isEmpty());
        BD b;
        b.deschideServer(goala);
        QCOMPARE(randuriTabela(RanduriTabele(b), QStringLiteral("Cereri")), 3);
    }

    void copiaDeterioarataEsteRefuzata_data()
    {
        QTest::addColumn<QString>("stricaciune");
        QTest::newRow("octeti schimbati la mijloc") << QStringLiteral("mijloc");
        QTest::newRow("trunchiata") << QStringLiteral("trunchiata");
        QTest::newRow("antet sters") << QStringLiteral("antet");
    }
    void copiaDeterioarataEsteRefuzata()
    {
        QFETCH(QString, stricaciune);
        dateOficiu(bd());
        const RezultatCopie copie = FaCopie(loc(), Luni);
        schimbaDatele(bd());
        const QStringList curente = toateRandurile(bd());

        QFile f(copie.fisier);
        QVERIFY(f.open(QIODevice::ReadWrite));
        const qint64 marime = f.size();
        if (stricaciune == QLatin1String("trunchiata")) {
            QVERIFY(f.resize(marime / 2));
        } else {
            f.seek(stricaciune == QLatin1String("antet") ? 0 : marime / 2);
            f.write(QByteArray(64, '\x5a'));
        }
        f.close();

        QVERIFY(!VerificaCopie(copie.fisier).buna);
        try {
            restaureaza(copie.fisier);
            QFAIL("copia deteriorata a fost restaurata");
        } catch (const Eroare& e) {
            QVERIFY2(e.descriere.contains(QStringLiteral("nu poate fi restaurata")), qPrintable(e.descriere));
            QVERIFY(e.descriere.contains(QStringLiteral("Datele oficiului nu au fost atinse.")));
        }
        QCOMPARE(toateRandurile(bd()), curente);
        QCOMPARE(QDir(m_oficiu->folderOficiu()).entryList({QStringLiteral("Tarnava-inainte*")}).size(), 0);
    }

    void refuzataCatTimpLucreazaAltCalculator_data()
    {
        QTest::addColumn<QString>("cine");
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("program deschis") << QStringLiteral("statie") << QStringLiteral("pe alt calculator: BIROU2");
        QTest::newRow("salvare in curs") << QStringLiteral("snet") << QStringLiteral("snet.txt");
        QTest::newRow("legatura cu baza") << QStringLiteral("legatura") << QStringLiteral("folosita chiar acum");
    }
    void refuzataCatTimpLucreazaAltCalculator()
    {
        if (!m_oficiu->server().isEmpty())
            QSKIP("pe server, vezi serverulCuAltaLegatura");
        QFETCH(QString, cine);
        QFETCH(QString, mesaj);
        dateOficiu(bd());
        const RezultatCopie copie = FaCopie(loc(), Luni);
        schimbaDatele(bd());
        const QStringList curente = toateRandurile(bd());

        BlocareRetea altul;
        std::unique_ptr<AltCalculator> legatura;
        if (cine == QLatin1String("statie")) {
            QDir(m_oficiu->folderOficiu()).mkpath(QStringLiteral("statii"));
            QVERIFY(
                altul.incearcaFisier(QDir(m_oficiu->folderOficiu()).filePath(QStringLiteral("statii/BIROU2-77.txt"))));
        } else if (cine == QLatin1String("snet")) {
            QVERIFY(altul.incearca(m_oficiu->folderOficiu()));
        } else {
            legatura = std::make_unique<AltCalculator>(m_oficiu->caleBD(), AltCalculator::Blocare::Citire);
        }
        try {
            restaureaza(copie.fisier);
            QFAIL("restaurarea a trecut peste alt calculator");
        } catch (const Eroare& e) {
            QVERIFY2(e.descriere.contains(mesaj), qPrintable(e.descriere));
        }
        legatura.reset();
        QCOMPARE(toateRandurile(bd()), curente);

        // Once the other workstation is gone, the same copy goes in.
        altul.elibereaza();
        restaureaza(copie.fisier);
        QVERIFY(toateRandurile(bd()) != curente);
        // A mark that nobody holds any more was removed on the way.
        QVERIFY(!QFileInfo::exists(QDir(m_oficiu->folderOficiu()).filePath(QStringLiteral("statii/BIROU2-77.txt"))));
    }

    void serverulCuAltaLegatura()
    {
        if (m_oficiu->server().isEmpty())
            QSKIP("numai pentru un oficiu pe server");
        const RezultatCopie copie = FaCopie(loc(), Luni);
        // The process's own connection stays open: to the restore it is another workstation's.
        try {
            RestaureazaCopie(loc(), copie.fisier, true, Luni);
            QFAIL("restaurarea a trecut peste o legatura deschisa");
        } catch (const Eroare& e) {
            QVERIFY2(e.descriere.contains(QStringLiteral("alte calculatoare lucreaza")), qPrintable(e.descriere));
        }
    }

    void copiaSubSalvariEsteConsecventa()
    {
        // Another workstation saves without pause, two streets in each transaction: a copy must
        // hold both or neither.
        std::atomic<bool> opreste{false};
        std::atomic<int> salvari{0};
        const QString folder = m_oficiu->folderOficiu(), server = m_oficiu->server();
        std::thread altul([&] {
            BD b;
            b.deschideOficiu(folder, server);
            while (!opreste) {
                try {
                    Tranzactie t(b);
                    const qint64 k = b.urmatoareaCheie(QStringLiteral("Strazi"), QStringLiteral("StradaID"));
                    for (qint64 i = k; i < k + 2; ++i)
                        b.executa(
                            QStringLiteral("INSERT INTO Strazi (StradaID, Denumire, LocalitateID) VALUES (?, ?, 1)"),
                            {i, QStringLiteral("Strada %1").arg(i)});
                    t.confirma();
                    ++salvari;
                } catch (const Eroare&) {
                    // A save that waited too long is given up whole, as in the program.
                }
            }
        });
        while (salvari < 5)
            QThread::msleep(5);
        QList<qint64> strazi;
        for (int i = 0; i < 3; ++i) {
            const RezultatCopie r = FaCopie(loc(), Luni.addDays(i));
            strazi << randuriTabela(r.verificare.randuri, QStringLiteral("Strazi"));
        }
        opreste = true;
        altul.join();
        for (const qint64 n : strazi)
            QVERIFY2(n > 0 && n % 2 == 0, qPrintable(QString::number(n)));
        QVERIFY(strazi.last() >= strazi.first());
    }

    void copiaCareNuTreceVerificareaNuStergeNimic()
    {
        if (!m_oficiu->server().isEmpty())
            QSKIP("un fisier deteriorat nu are pereche pe server");
        const LocCopii l = loc();
        FaCopie(l, Luni.addDays(-20));
        FaCopie(l, Luni.addDays(-1));
        const QStringList inainte = QDir(l.folderCopii).entryList(QDir::Files);
        // A damaged office file: the indexes of two columns swapped, which the engine's check sees.
        bd().executa(QStringLiteral("CREATE INDEX ixA ON Strazi (LocalitateID)"));
        bd().executa(QStringLiteral("CREATE INDEX ixB ON Strazi (Denumire)"));
        for (int i = 1; i <= 20; ++i)
            bd().executa(QStringLiteral("INSERT INTO Strazi (StradaID, Denumire, LocalitateID) VALUES (?, ?, ?)"),
                         {i, QStringLiteral("S%1").arg(i), 100 - i});
        const qint64 a =
            bd().scalar(QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = 'ixA'")).toLongLong();
        const qint64 b =
            bd().scalar(QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = 'ixB'")).toLongLong();
        bd().executa(QStringLiteral("PRAGMA writable_schema = ON"));
        bd().executa(QStringLiteral("UPDATE sqlite_master SET rootpage = ? WHERE name = 'ixA'"), {b});
        bd().executa(QStringLiteral("UPDATE sqlite_master SET rootpage = ? WHERE name = 'ixB'"), {a});
        bd().executa(QStringLiteral("PRAGMA writable_schema = OFF"));
        BD::principala().inchide();
        BD::principala().deschide(m_oficiu->caleBD());

        try {
            FaCopie(l, Luni);
            QFAIL("copia unui fisier deteriorat a trecut verificarea");
        } catch (const Eroare& e) {
            QVERIFY2(e.descriere.contains(QStringLiteral("nu a trecut verificarea")), qPrintable(e.descriere));
            QVERIFY(e.descriere.contains(QStringLiteral("copiile mai vechi au ramas")));
        }
        QCOMPARE(QDir(l.folderCopii).entryList(QDir::Files), inainte);
        QCOMPARE(IndexCopii::citeste(l.folderCopii).size(), 2);
    }
};

QTEST_GUILESS_MAIN(TestCopiiOficiu)
#include "tst_CopiiOficiu.moc"
