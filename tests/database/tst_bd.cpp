// The data layer: bound values, the Access meanings of LIKE, the write guard, the kept
// statements, engine errors.
#include "AltCalculator.h"
#include "TestCuOficiu.h"
#include "database/BD.h"
#include "common/Eroare.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestBD : public TestCuOficiu {
    Q_OBJECT
private slots:
    void apostroful()
    {
        bd().executa(QStringLiteral("INSERT INTO Membrii (MembruID, Nume) VALUES (1, ?)"), {QStringLiteral("O'Neil")});
        QCOMPARE(
            bd().scalar(QStringLiteral("SELECT Nume FROM Membrii WHERE ") + bd().conditieLike(QStringLiteral("Nume")),
                        {BD::valoareLike(QStringLiteral("o'neil"))})
                .toString(),
            QStringLiteral("O'Neil"));
    }

    void likeCaInAccess_data()
    {
        QTest::addColumn<QString>("cautat");
        QTest::addColumn<bool>("prefix");
        QTest::addColumn<int>("gasite");
        QTest::newRow("egal, alt caz") << "popescu" << false << 1;
        QTest::newRow("egal nu e prefix") << "pop" << false << 0;
        QTest::newRow("prefix") << "pop" << true << 2;
        QTest::newRow("procent e litera") << "50%" << true << 0;
        QTest::newRow("underscore e litera") << "P_p" << true << 0;
    }
    void likeCaInAccess()
    {
        QFETCH(QString, cautat);
        QFETCH(bool, prefix);
        QFETCH(int, gasite);
        bd().executa(
            QStringLiteral("INSERT INTO Membrii (MembruID, Nume) VALUES (1, 'Popescu'), (2, 'Popa'), (3, 'Ionescu')"));
        const QString sql =
            QStringLiteral("SELECT COUNT(*) FROM Membrii WHERE ") + bd().conditieLike(QStringLiteral("Nume"));
        QCOMPARE(bd().scalar(sql, {prefix ? BD::valoarePrefix(cautat) : BD::valoareLike(cautat)}).toInt(), gasite);
    }

    void tranzactieAnulata()
    {
        {
            Tranzactie t(bd());
            bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (1)"));
        }
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Familii")).toInt(), 0);
        try {
            Tranzactie t(bd());
            bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (1)"));
            bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (1)"));
            t.confirma();
            QFAIL("cheia dubla trebuia refuzata");
        } catch (const Eroare&) {
        }
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Familii")).toInt(), 0);
        QVERIFY(!bd().inTranzactie());
    }

    // An inner write that gives up leaves the outer one's rows.
    void punctDeSalvare()
    {
        {
            Tranzactie exterior(bd());
            bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (1)"));
            {
                Tranzactie interior(bd());
                bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (2)"));
            }
            {
                Tranzactie interior(bd());
                bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (3)"));
                interior.confirma();
            }
            exterior.confirma();
        }
        QCOMPARE(bd().scalar(QStringLiteral("SELECT GROUP_CONCAT(FamilieID) FROM Familii")).toString(),
                 QStringLiteral("1,3"));
    }

    // "Maximum plus 1" read outside the write lock would give two workstations the same key.
    void cheiaLuataInAfaraTranzactiei()
    {
        QVERIFY_THROWS_EXCEPTION(Eroare, bd().urmatoareaCheie(QStringLiteral("Familii"), QStringLiteral("FamilieID")));
        Tranzactie t(bd());
        QCOMPARE(bd().urmatoareaCheie(QStringLiteral("Familii"), QStringLiteral("FamilieID")), 1);
        bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (7)"));
        QCOMPARE(bd().urmatoareaCheie(QStringLiteral("Familii"), QStringLiteral("FamilieID")), 8);
    }

    // The statements kept for reuse: the same SELECT inside the loop that reads it leaves the
    // outer reading whole, and a kept statement holds no lock once read.
    void instructiunePastrataRefolosita()
    {
        bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (1), (2), (3)"));
        const QString sql = QStringLiteral("SELECT FamilieID FROM Familii WHERE FamilieID >= ? ORDER BY FamilieID");
        QStringList perechi;
        {
            Rezultat r = bd().selecteaza(sql, {1});
            while (r.next()) {
                Rezultat interior = bd().selecteaza(sql, {3});
                QVERIFY(interior.next());
                perechi << QStringLiteral("%1-%2").arg(r.numar("FamilieID")).arg(interior.numar("FamilieID"));
            }
        }
        QCOMPARE(perechi.join(QLatin1Char(' ')), QStringLiteral("1-3 2-3 3-3"));

        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Familii")).toInt(), 3);
        BD alta;
        alta.setAsteptare(200);
        alta.deschide(m_oficiu->caleBD());
        Tranzactie t(alta);
        alta.executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (4)"));
        t.confirma();
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Familii")).toInt(), 4);
    }

    // A file that another workstation holds is reported as busy, not as "no database".
    void fisierBlocatRaportatCaNevalid()
    {
        AltCalculator altul(m_oficiu->caleBD(), AltCalculator::Blocare::Scriere);
        BD conexiune;
        conexiune.setAsteptare(200);
        try {
            conexiune.deschide(m_oficiu->caleBD());
            QFAIL("trebuia refuzat");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::BazaOcupata);
            QVERIFY(e.descriere.contains(QStringLiteral("este ocupata de alt calculator")));
            QVERIFY(!e.descriere.contains(QStringLiteral("nu este o baza de date")));
        }
        QVERIFY(!conexiune.deschisa());
        altul.elibereaza();
        conexiune.deschide(m_oficiu->caleBD());
        QVERIFY(conexiune.deschisa());
    }

    void tabelaLipsa()
    {
        try {
            bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Inexistenta"));
            QFAIL("trebuia o eroare");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::TabelaLipsa);
        }
    }

    void lunaSiAnul()
    {
        bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (1)"));
        bd().executa(
            QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, DataCerere) VALUES (1, 1, '2026-11-23')"));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE %1 = ? AND %2 = ?")
                                 .arg(bd().luna(QStringLiteral("DataCerere")), bd().an(QStringLiteral("DataCerere"))),
                             {11, 2026})
                     .toInt(),
                 1);
    }

    // A file that is not a database is refused with a message and left as it was.
    void fisierCareNuEBaza()
    {
        QTemporaryDir d;
        const QString cale = d.filePath(QStringLiteral("Tarnava.db"));
        QFile f(cale);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(4096, 'x'));
        f.close();
        BD conexiune;
        try {
            conexiune.deschide(cale);
            QFAIL("trebuia refuzat");
        } catch (const Eroare& e) {
            QVERIFY(e.descriere.contains(QStringLiteral("nu este o baza de date")));
        }
        QVERIFY(!conexiune.deschisa());
        QFile g(cale);
        QVERIFY(g.open(QIODevice::ReadOnly));
        QCOMPARE(g.readAll(), QByteArray(4096, 'x'));
        QVERIFY_THROWS_EXCEPTION(Eroare, conexiune.deschide(d.filePath(QStringLiteral("lipsa.db"))));
        QVERIFY(!QFile::exists(d.filePath(QStringLiteral("lipsa.db"))));
    }
};

QTEST_GUILESS_MAIN(TestBD)
#include "tst_bd.moc"
