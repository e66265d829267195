#include "TestCuOficiu.h"
#include "amounts/CNP.h"
#include "import/Demo.h"
#include "database/BD.h"
#include "database/Oficiu.h"
#include "common/Ceas.h"
#include "common/Proces.h"

#include <QSqlRecord>
#include <QCryptographicHash>
#include <QDir>
#include <QSqlRecord>
#include <QtTest>

// The demo office shows a living office up to today: every date in the last two years,
// every status reached by the dispositions that lead to it, amounts only where the family is
// paid, inquiries and certificates, streets with postal codes, a town hall with a valid CNP.
class TestDemo : public TestCuOficiu {
    Q_OBJECT
public:
    TestDemo() : TestCuOficiu(Oficiu::PeClasa) {}

private:
    void pregatesteOficiul() override
    {
        Ceas::seteazaAzi(m_azi);
        CompleteazaDemo(m_oficiu->folderOficiu(), 160, m_oficiu->server());
        bd().deschideOficiu(m_oficiu->folderOficiu(), m_oficiu->server());
    }
    void pregateste() override { Ceas::seteazaAzi(m_azi); }

private slots:

    void nicioDataInViitor_data()
    {
        QTest::addColumn<QString>("tabela");
        QTest::addColumn<QString>("coloana");
        QTest::newRow("DataCerere") << "Cereri"
                                    << "DataCerere";
        QTest::newRow("DataStare") << "Cereri"
                                   << "DataStare";
        QTest::newRow("DataDisp") << "Dispozitii"
                                  << "DataDisp";
        QTest::newRow("DinData") << "Dispozitii"
                                 << "DinData";
        QTest::newRow("DataAncheta") << "Anchete"
                                     << "DataAncheta";
        QTest::newRow("DataAdeverinta") << "Adeverinte"
                                        << "DataAdeverinta";
        QTest::newRow("DataDepunerii") << "Adeverinte"
                                       << "DataDepunerii";
    }

    void nicioDataInViitor()
    {
        QFETCH(QString, tabela);
        QFETCH(QString, coloana);
        const QString prag = m_azi.addYears(-2).addDays(-15).toString(Qt::ISODate);
        QVERIFY(numar(QStringLiteral("SELECT COUNT(*) FROM %1").arg(tabela)) > 0);
        QCOMPARE(
            numar(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 IS NULL OR %2 > ? OR %2 < ?").arg(tabela, coloana),
                  {m_azi.toString(Qt::ISODate), prag}),
            0);
    }

    void stareaVineDinUltimaDispozitie_data()
    {
        QTest::addColumn<int>("stare");
        QTest::addColumn<int>("actiune"); // the type of the latest disposition; 0 none
        QTest::newRow("1 inregistrata: nicio dispozitie") << 1 << 0;
        QTest::newRow("2 in plata: acordare") << 2 << 1;
        QTest::newRow("3 suspendata") << 3 << 3;
        QTest::newRow("4 incetata") << 4 << 5;
        QTest::newRow("5 respinsa") << 5 << 4;
        QTest::newRow("6 repusa: reluare") << 6 << 6;
        QTest::newRow("7 modificare cuantum") << 7 << 2;
        QTest::newRow("8 schimbare titular: modificare") << 8 << 2;
    }

    void stareaVineDinUltimaDispozitie()
    {
        QFETCH(int, stare);
        QFETCH(int, actiune);
        QVERIFY(numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare = ?"), {stare}) > 0);
        // The latest disposition of each application of the status, by date, and its date is the
        // status date.
        Rezultat r = bd().selecteaza(
            QStringLiteral(
                "SELECT C.CerereID, C.DataStare, (SELECT D.Actiune FROM Dispozitii D WHERE D.CerereID = C.CerereID "
                "ORDER BY D.DataDisp DESC, D.DispozitieID DESC LIMIT 1) AS Ultima, (SELECT MAX(D.DataDisp) FROM "
                "Dispozitii D WHERE D.CerereID = C.CerereID) AS DataUltima FROM Cereri C WHERE C.Stare = ?"),
            {stare});
        while (r.next()) {
            QCOMPARE(int(r.numar("Ultima")), actiune);
            if (actiune)
                QCOMPARE(r.text("DataUltima"), r.text("DataStare"));
        }
        // Every disposition takes effect no earlier than the month of its application.
        auto lunaDin = [&](const char* c) {
            return QStringLiteral("(%1 * 12 + %2)").arg(bd().an(QLatin1String(c)), bd().luna(QLatin1String(c)));
        };
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii D JOIN Cereri C ON C.CerereID = D.CerereID "
                                      "WHERE %1 < %2 OR D.NrDisp IS NULL OR D.NrDisp < 1")
                           .arg(lunaDin("D.DinData"), lunaDin("C.DataCerere"))),
                 0);
    }

    void cuantumNumaiCandSePlateste()
    {
        // Rejected and ended families are over the income limit: no amount, on the application
        // and on the disposition that ends it. Those in payment have one, and their latest
        // disposition carries it.
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare IN (4, 5) AND Cuantum <> 0")), 0);
        QCOMPARE(
            numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare IN (2, 3, 6, 7, 8) AND NOT Cuantum > 0")), 0);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii D JOIN Cereri C ON C.CerereID = D.CerereID "
                                      "WHERE D.DataDisp = C.DataStare AND D.Cuantum <> C.Cuantum")),
                 0);
        // A change keeps the former amount, which differs from the new one when the income changed.
        QVERIFY(numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii D JOIN Cereri C ON C.CerereID = D.CerereID "
                                     "WHERE C.Stare = 7 AND D.Actiune = 2 AND D.CuantumVechi <> D.Cuantum")) > 0);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE Actiune = 2 AND CuantumVechi IS NULL")),
                 0);
    }

    void ancheteAdeverinteStraziPrimarie()
    {
        const QString azi = m_azi.toString(Qt::ISODate);
        // Inquiries still valid and some already run out; each made by the town hall's social worker.
        QVERIFY(numar(QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE DataExpirarii >= ?"), {azi}) > 0);
        QVERIFY(numar(QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE DataExpirarii < ?"), {azi}) > 0);
        QCOMPARE(numar(QStringLiteral(
                     "SELECT COUNT(*) FROM Anchete A WHERE Intocmitor <> (SELECT AsSocial FROM DatePrimarie) "
                     "OR DataExpirarii <= DataAncheta OR NrCopii < 1")),
                 0);
        // School certificates of pupils, some running out in the active month.
        QCOMPARE(
            numar(QStringLiteral("SELECT COUNT(*) FROM Adeverinte A JOIN CereriMembrii CM ON CM.CerereID = A.CerereID "
                                 "AND CM.MembruID = A.MembruID WHERE CM.OcupatieID <> 8 OR A.TipAdeverinta <> 3")),
            0);
        QVERIFY(numar(QStringLiteral("SELECT COUNT(*) FROM Adeverinte WHERE %1 = ? AND %2 = ?")
                          .arg(bd().an(QStringLiteral("DataExpAdev")), bd().luna(QStringLiteral("DataExpAdev"))),
                      {azi.left(4).toInt(), azi.mid(5, 2).toInt()}) > 0);
        // Every address is a street of the list, with its postal code.
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Familii F LEFT JOIN Strazi S ON S.Denumire = F.Strada "
                                      "WHERE S.CodPostal IS NULL OR S.CodPostal = ''")),
                 0);
        QVERIFY(ValidareCNP(bd().scalar(QStringLiteral("SELECT CNPAsSocial FROM DatePrimarie")).toString(), false));
        // Families that share a surname, names with a hyphen or an apostrophe.
        QVERIFY(numar(QStringLiteral("SELECT COUNT(*) FROM (SELECT M.Nume FROM Cereri C JOIN Membrii M ON M.MembruID = "
                                     "C.MembruID1 GROUP BY M.Nume HAVING COUNT(*) > 1) N")) > 0);
        QVERIFY(numar(QStringLiteral("SELECT COUNT(*) FROM Membrii WHERE Nume LIKE '%''%'")) > 0);
        QVERIFY(numar(QStringLiteral("SELECT COUNT(*) FROM Membrii WHERE Nume LIKE '%-%' OR Prenume LIKE '%-%'")) > 0);
    }

    void acelasiOficiuLaFiecareRulare()
    {
        QTemporaryDir alt;
        const QString server = OficiuTest::peServer() ? m_oficiu->bazaGoalaPeServer() : QString();
        if (server.isEmpty())
            CreeazaOficiu(alt.path());
        else
            CreeazaOficiuPeServer(alt.path(), server);
        CompleteazaDemo(alt.path(), 160, server);
        BD copie;
        copie.deschideOficiu(alt.path(), server);
        QCOMPARE(amprenta(copie), amprenta(bd()));
    }

private:
    static QString amprenta(const BD& bd);
    const QDate m_azi{2026, 11, 23};
    qint64 numar(const QString& sql, const QVariantList& p = {}) { return bd().scalar(sql, p).toLongLong(); }
};

QString TestDemo::amprenta(const BD& bd)
{
    QCryptographicHash h(QCryptographicHash::Sha1);
    for (const char* t : {"Cereri", "Membrii", "Dispozitii", "Anchete", "Adeverinte", "Venituri", "Strazi"}) {
        Rezultat r = bd.selecteaza(QStringLiteral("SELECT * FROM %1 ORDER BY 1, 2").arg(QLatin1String(t)));
        const int coloane = r.interogare().record().count();
        while (r.next())
            for (int i = 0; i < coloane; ++i)
                h.addData(r.valoare(i).toString().toUtf8() + '|');
    }
    return QString::fromLatin1(h.result().toHex());
}

QTEST_GUILESS_MAIN(TestDemo)
#include "tst_Demo.moc"
