// A new office: the database `init` lays down, its code lists, and its refusal to overwrite.
#include "TestCuOficiu.h"
#include "database/BD.h"
#include "database/CoduriDateGen.h"
#include "database/Oficiu.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QCryptographicHash>
#include <QFile>
#include <QProcess>
#include <QtTest>

namespace {
QByteArray amprenta(const QString& cale)
{
    QFile f(cale);
    f.open(QIODevice::ReadOnly);
    return QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256);
}
} // namespace

class TestOficiu : public TestCuOficiu {
    Q_OBJECT
private slots:
    void randuriDeReferinta_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<int>("numar");
        QTest::newRow("80 venituri") << "SELECT COUNT(*) FROM ListaVenituri" << 80;
        QTest::newRow("state de plata 2009-2035") << "SELECT COUNT(*) FROM StatePlata" << 27 * 12;
        QTest::newRow("decembrie 2035") << "SELECT COUNT(*) FROM StatePlata WHERE An = 2035 AND Luna = 12" << 1;
        QTest::newRow("barem fractii") << "SELECT COUNT(*) FROM Barem WHERE Suma < 1" << 16;
        QTest::newRow("barem lei") << "SELECT COUNT(*) FROM Barem WHERE Suma IN (200, 370)" << 16;
        QTest::newRow("primaria goala") << "SELECT COUNT(*) FROM DatePrimarie" << 0;
        QTest::newRow("statute 7 si 8 pe locul 7") << "SELECT COUNT(*) FROM DateGen WHERE Tip = 1 AND Ordine = 7" << 2;
    }
    void randuriDeReferinta()
    {
        QFETCH(QString, sql);
        QFETCH(int, numar);
        QCOMPARE(bd().scalar(sql).toInt(), numar);
    }

    // The amount reads the lei rows: the fractions times the reference value of 500 lei.
    void baremLei_data()
    {
        QTest::addColumn<int>("tip");
        QTest::addColumn<int>("nrPers");
        QTest::addColumn<int>("suma");
        QTest::addColumn<double>("barem");
        QTest::newRow("1/1/200") << 1 << 1 << 200 << 30.0;
        QTest::newRow("1/2/370") << 1 << 2 << 370 << 50.0;
        QTest::newRow("2/3/370") << 2 << 3 << 370 << 135.0;
        QTest::newRow("2/4/370") << 2 << 4 << 370 << 180.0;
    }
    void baremLei()
    {
        QFETCH(int, tip);
        QFETCH(int, nrPers);
        QFETCH(int, suma);
        QFETCH(double, barem);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT Barem FROM Barem WHERE NrPers = ? AND Tip = ? AND Suma = ?"),
                             {nrPers, tip, suma})
                     .toDouble(),
                 barem);
    }

    // The labels agree with the codes that the logic compares.
    void eticheteCoduri()
    {
        QCOMPARE(EtichetaCod(bd(), 3, 8), QStringLiteral("Elev"));
        QCOMPARE(EtichetaCod(bd(), 2, 1), QStringLiteral("Titular"));
        QCOMPARE(EtichetaCod(bd(), 2, 2), QStringLiteral("Sot/sotie"));
        QCOMPARE(EtichetaCod(bd(), 3, 99), QString());
        // Every list that an editor needs has rows.
        for (int tip : {1, 2, 3, 4, 5, 6, 7, 8, 11, 12, 20, 21, 22, 24, 25, 26, 27, 28, 29, 30, 31})
            QVERIFY2(!CitesteListaCod(bd(), tip).empty(), qPrintable(QString::number(tip)));
    }

    void fisiereSemanate()
    {
        QFile v(m_oficiu->folderOficiu() + QStringLiteral("/Venituri.txt"));
        QVERIFY(v.open(QIODevice::ReadOnly));
        const QList<QByteArray> linii = v.readAll().trimmed().split('\n');
        QCOMPARE(linii.size(), 80);
        for (const QByteArray& l : linii)
            QVERIFY2(!l.contains('\''), l.constData());
        QFile b(m_oficiu->folderOficiu() + QStringLiteral("/bife.txt"));
        QVERIFY(b.open(QIODevice::ReadOnly));
        QCOMPARE(b.readAll().trimmed().split('\n').size(), 20);
    }

    // Deleting a family takes its application and everything below it.
    void cascade()
    {
        bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (1)"));
        bd().executa(QStringLiteral("INSERT INTO Membrii (MembruID, CNP) VALUES (1, '1800101260011')"));
        bd().executa(QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, MembruID1) VALUES (1, 1, 1)"));
        for (const char* t :
             {"CereriMembrii (CerereID, MembruID) VALUES (1, 1)",
              "Venituri (CerereID, CodVenit, Valoare) VALUES (1, 4, 100)", "Locuinte (CerereID, Cod) VALUES (1, 1)",
              "Dispozitii (DispozitieID, CerereID) VALUES (1, 1)", "Anchete (AnchetaID, CerereID) VALUES (1, 1)",
              "Adeverinte (AdevID, CerereID, MembruID) VALUES (1, 1, 1)", "IstoricCereri (CerereID) VALUES (1)"})
            bd().executa(QStringLiteral("INSERT INTO ") + QLatin1String(t));
        bd().executa(QStringLiteral("DELETE FROM Familii WHERE FamilieID = 1"));
        for (const char* t : {"Cereri", "CereriMembrii", "Venituri", "Locuinte", "Dispozitii", "Anchete", "Adeverinte",
                              "IstoricCereri"})
            QVERIFY2(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM ") + QLatin1String(t)).toInt() == 0, t);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Membrii")).toInt(), 1);
    }

    // init never overwrites: a second run refuses and leaves the file as it was.
    void refuzaBazaExistenta()
    {
        const QByteArray inainte = amprenta(m_oficiu->caleBD());
        QVERIFY_THROWS_EXCEPTION(Eroare, CreeazaOficiu(m_oficiu->folderOficiu()));
        QCOMPARE(amprenta(m_oficiu->caleBD()), inainte);

        QProcess p;
        p.start(QStringLiteral(ALOCATII_ADMIN), {QStringLiteral("init"), m_oficiu->folderOficiu()});
        QVERIFY(p.waitForFinished(60000));
        QVERIFY(p.exitCode() != 0);
        QVERIFY(QString::fromUtf8(p.readAllStandardError()).contains(QStringLiteral("exista deja")));
        QCOMPARE(amprenta(m_oficiu->caleBD()), inainte);
    }

    void comandaCnp()
    {
        QProcess p;
        p.start(QStringLiteral(ALOCATII_ADMIN), {QStringLiteral("cnp"), QStringLiteral("1800101260011"),
                                                 QStringLiteral("12"), QStringLiteral("1801301260011")});
        QVERIFY(p.waitForFinished(60000));
        QCOMPARE(p.exitCode(), 0);
        const QList<QByteArray> linii = p.readAllStandardOutput().trimmed().split('\n');
        QCOMPARE(linii.size(), 3);
        QCOMPARE(
            linii[1],
            QByteArray(
                R"({"cnp":"12","data18":"","dataNasterii":"","motiv":"Nr caractere insuficiente","sex":"m","text":"","valid":false})"));
        QVERIFY(linii[2].contains(R"("dataNasterii":"")"));
        QVERIFY(p.readAllStandardError().contains("Luna incorecta"));
    }
};

QTEST_GUILESS_MAIN(TestOficiu)
#include "tst_oficiu.moc"
