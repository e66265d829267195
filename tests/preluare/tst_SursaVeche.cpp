// How the move reads an office's old data and what it refuses before anything is written: a
// real Access file through mdbtools, and every bad input with its message and exit code 2.
#include "OficiuVechi.h"
#include "preluare/Preluare.h"
#include "preluare/SursaVeche.h"
#include "common/Eroare.h"

#include <QDir>
#include <QFile>
#include <QJsonValue>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString FisierReal = QStringLiteral(TESTE_DATE "/DateTestDatabase.mdb");

// The smallest folder form of an office: its code lists, one family with its application and
// applicant.
void dosarMinim(const QString& dosar)
{
    ScrieListeDosar(dosar);
    ScrieOcteti(dosar + QStringLiteral("/Familii.json"), "{\"FamilieID\":1,\"Strada\":\"Garii\"}\n");
    ScrieOcteti(dosar + QStringLiteral("/Cereri.json"),
                "{\"CerereID\":1,\"FamilieID\":1,\"Stare\":2,\"MembruID1\":1}\n");
    ScrieOcteti(dosar + QStringLiteral("/Membrii.json"),
                "{\"MembruID\":1,\"Nume\":\"POP\",\"CNP\":\"1800101260010\"}\n");
    ScrieOcteti(dosar + QStringLiteral("/CereriMembrii.json"), "{\"CerereID\":1,\"MembruID\":1,\"RudenieID\":1}\n");
}

} // namespace

class TestSursaVeche : public QObject {
    Q_OBJECT
private slots:
    // The public test file of mdbtools, a Jet 4 file with one table of dates, some of which
    // mdbtools cannot represent.
    void fisierAccessReal()
    {
        const SursaVeche s = GasesteSursa(FisierReal);
        QCOMPARE(s.fel, SursaVeche::Fel::Access);
        QVERIFY(s.versiune.startsWith(QLatin1String("Jet 4")));
        QCOMPARE(TabeleSursa(s), QStringList{QStringLiteral("DateTest")});

        QStringList date, texte, motive;
        CitesteRanduri(s, QStringLiteral("DateTest"), [&](const RandVechi& r) {
            QVERIFY(r.eroare.isEmpty());
            QVariant v;
            const QString motiv = ValoarePreluata(QStringLiteral("Cereri"), QStringLiteral("DataCerere"),
                                                  r.valori[QLatin1String("DateCol")], v);
            date << v.toString();
            motive << motiv;
            texte << r.valori[QLatin1String("ShortTextCol")].toString();
        });
        QCOMPARE(texte.size(), 6);
        QCOMPARE(texte[0], QStringLiteral("Hello"));
        QCOMPARE(date[0], QStringLiteral("2021-12-02"));
        QCOMPARE(date[5], QStringLiteral("2021-12-02"));
        // A date before 1900 or after 9999 comes as day 00: never stored, always reported.
        for (int i : {1, 2, 3}) {
            QVERIFY(date[i].isEmpty());
            QVERIFY2(motive[i].contains(QLatin1String("nu a putut fi citita de mdbtools")), qPrintable(motive[i]));
        }
        QVERIFY(motive[0].isEmpty());
    }

    // Each bad input is said in words, the command ends with 2 and the new folder stays empty.
    void intrariGresite_data()
    {
        QTest::addColumn<QString>("caz");
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("nu este Access") << "text"
                                        << "nu este o baza de date Access";
        QTest::newRow("Access al altui program")
            << "altul"
            << "ii lipsesc tabelele Familii, Cereri, Membrii, CereriMembrii (are DateTest)";
        QTest::newRow("fisier trunchiat") << "trunchiat"
                                          << "este trunchiat";
        QTest::newRow("mdbtools nu il poate citi") << "stricat"
                                                   << "nu poate fi citit de mdbtools (mdb-tables): mdb_read_table";
        QTest::newRow("mdbtools lipsa") << "faraMdbtools"
                                        << "Instalati pachetul mdbtools";
        QTest::newRow("folder fara date") << "gol"
                                          << "nu contine nici Tarnava.mdb, nici fisiere <Tabela>.json";
        QTest::newRow("oficiu cu cereri") << "plin"
                                          << "are deja 1 cereri, 1 familii si 1 persoane";
        QTest::newRow("folder care nu se poate scrie") << "nescris"
                                                       << "nu poate fi creat";
        QTest::newRow("setari lipsa") << "setari"
                                      << "Fisierul de setari";
    }
    void intrariGresite()
    {
        QFETCH(QString, caz);
        QFETCH(QString, mesaj);
        QTemporaryDir d;
        const QString vechi = d.filePath(QStringLiteral("vechi"));
        QString nou = d.filePath(QStringLiteral("nou"));
        const QString mdb = vechi + QStringLiteral("/Tarnava.mdb");
        const QByteArray real = CitesteOcteti(FisierReal);
        QStringList extra;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        if (caz == QLatin1String("text"))
            ScrieOcteti(mdb, "nu sunt o baza de date\n");
        else if (caz == QLatin1String("altul") || caz == QLatin1String("faraMdbtools"))
            ScrieOcteti(mdb, real);
        else if (caz == QLatin1String("trunchiat"))
            ScrieOcteti(mdb, real.left(100000));
        else if (caz == QLatin1String("stricat"))
            ScrieOcteti(mdb, real.left(0x15) + QByteArray(8192 - 0x15, '\0'));
        else if (caz == QLatin1String("gol"))
            QDir().mkpath(vechi);
        else
            dosarMinim(vechi);
        if (caz == QLatin1String("faraMdbtools"))
            env.insert(QStringLiteral("PATH"), d.path());
        if (caz == QLatin1String("plin")) {
            // The same old office, brought over once already.
            QProcess p;
            p.start(QStringLiteral(ALOCATII_ADMIN),
                    {QStringLiteral("preia"), QStringLiteral("--din"), vechi, QStringLiteral("--office"), nou});
            QVERIFY(p.waitForFinished(60000));
            QCOMPARE(p.exitCode(), 0);
        }
        if (caz == QLatin1String("nescris")) {
            ScrieOcteti(d.filePath(QStringLiteral("fisier")), "x");
            nou = d.filePath(QStringLiteral("fisier/nou"));
        }
        if (caz == QLatin1String("setari"))
            extra << QStringLiteral("--setari") << d.filePath(QStringLiteral("lipsa.ini"));
        const QByteArray inainte = CitesteOcteti(nou + QStringLiteral("/Tarnava.db"));

        QProcess p;
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(ALOCATII_ADMIN),
                QStringList{QStringLiteral("preia"), QStringLiteral("--din"), vechi, QStringLiteral("--office"), nou} +
                    extra);
        QVERIFY(p.waitForFinished(60000));
        const QString err = QString::fromUtf8(p.readAllStandardError());
        QVERIFY2(err.contains(mesaj), qPrintable(err));
        QCOMPARE(p.exitCode(), 2);
        QCOMPARE(CitesteOcteti(nou + QStringLiteral("/Tarnava.db")), inainte);
        if (caz != QLatin1String("plin"))
            QVERIFY(!QFileInfo::exists(nou));
    }
};

QTEST_GUILESS_MAIN(TestSursaVeche)
#include "tst_SursaVeche.moc"
