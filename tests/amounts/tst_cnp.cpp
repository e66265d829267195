// The CNP check and the facts read out of one.
#include "MesajeScript.h"
#include "amounts/CNP.h"
#include "import/Demo.h"
#include "common/Data.h"
#include "common/Eroare.h"

#include <QtTest>

namespace {
// A CNP with a correct control digit, from its first twelve digits.
QString cuControl(const QString& doisprezece)
{
    static const int p[12] = {2, 7, 9, 1, 4, 6, 3, 5, 8, 2, 7, 9};
    int s = 0;
    for (int i = 0; i < 12; ++i)
        s += (doisprezece[i].unicode() - '0') * p[i];
    int c = s % 11;
    if (c == 10)
        c = 1;
    return doisprezece + QString::number(c);
}
} // namespace

class TestCNP : public QObject {
    Q_OBJECT
private slots:
    void validare_data()
    {
        QTest::addColumn<QString>("cnp");
        QTest::addColumn<QString>("motiv");
        const QString judet = QStringLiteral("CNP-ul e posibil sa aiba codul judetului incorect.");
        QTest::newRow("corect") << cuControl("180010126001") << "";
        QTest::newRow("12 caractere") << QStringLiteral("180010126001") << "Nr caractere insuficiente";
        QTest::newRow("gol") << QString() << "Nr caractere insuficiente";
        QTest::newRow("litera") << QStringLiteral("18001012600a1") << "Codul numeric personal nu este un numar";
        QTest::newRow("luna 13") << cuControl("180130126001") << "LUNA nasterii din CNP nu este una valida.";
        QTest::newRow("29 februarie an nebisect") << cuControl("181022926001") << "";
        QTest::newRow("30 februarie") << cuControl("181023026001") << "ZIUA nasterii din CNP nu este una valida.";
        QTest::newRow("ziua 00") << cuControl("180010026001") << "ZIUA nasterii din CNP nu este una valida.";
        QTest::newRow("judet 00") << cuControl("180010100001") << judet;
        QTest::newRow("judet 47") << cuControl("180010147001") << "";
        QTest::newRow("judet 48") << cuControl("180010148001") << judet;
        QTest::newRow("judet 51") << cuControl("180010151001") << "";
        QTest::newRow("judet 52") << cuControl("180010152001") << "";
        QTest::newRow("judet 53") << cuControl("180010153001") << judet;
        QTest::newRow("judet 99") << cuControl("180010199001") << "";
    }
    void validare()
    {
        QFETCH(QString, cnp);
        QFETCH(QString, motiv);
        QCOMPARE(MotivCNPInvalid(cnp), motiv);
        MesajeScript m;
        QCOMPARE(ValidareCNP(cnp, false), motiv.isEmpty());
        QVERIFY(m.intrari.isEmpty());
        QCOMPARE(ValidareCNP(cnp, true), motiv.isEmpty());
        if (motiv.isEmpty()) {
            QVERIFY(m.intrari.isEmpty());
        } else {
            QCOMPARE(m.intrari.size(), 1);
            QCOMPARE(m.intrari[0].text, QStringLiteral("CNP invalid.\r\n") + motiv);
            QCOMPARE(m.intrari[0].titlu, QStringLiteral("CNP"));
            QCOMPARE(m.intrari[0].icon, Mesaje::Icon::Niciuna);
        }
    }

    void cifraDeControlGresitaSpuneCodulJudetului()
    {
        // Only the control digit is wrong: the county text all the same.
        QString bun = cuControl("180010126001");
        QString rau = bun.left(12) + QString::number((bun[12].unicode() - '0' + 1) % 10);
        QCOMPARE(MotivCNPInvalid(rau), QStringLiteral("CNP-ul e posibil sa aiba codul judetului incorect."));
        // A remainder of 10 wants the digit 1, never 0.
        for (int serie = 0; serie < 1000; ++serie) {
            const QString doisprezece = QStringLiteral("1800101260%1").arg(serie % 100, 2, 10, QLatin1Char('0'));
            static const int p[12] = {2, 7, 9, 1, 4, 6, 3, 5, 8, 2, 7, 9};
            int s = 0;
            for (int i = 0; i < 12; ++i)
                s += (doisprezece[i].unicode() - '0') * p[i];
            if (s % 11 == 10) {
                QCOMPARE(MotivCNPInvalid(doisprezece + "1"), QString());
                QVERIFY(!MotivCNPInvalid(doisprezece + "0").isEmpty());
                return;
            }
        }
        QFAIL("niciun rest 10 gasit");
    }

    // A first digit other than 1, 2, 5 and 6 names no century: the year is its two digits
    // alone, and the check accepts the CNP all the same.
    void prefixFaraSecolDaAnulDinDouaCifreSiTrece()
    {
        MesajeScript m;
        for (const char* prefix : {"3", "9", "0"}) {
            const QString cnp = cuControl(QLatin1String(prefix) + QStringLiteral("80031526001"));
            QCOMPARE(MotivCNPInvalid(cnp), QString());
            QCOMPARE(DataNasteriiDinCNP(cnp, false), QDate(80, 3, 15));
        }
        QVERIFY(m.intrari.isEmpty());
    }

    void sex_data()
    {
        QTest::addColumn<QString>("cnp");
        QTest::addColumn<QString>("sex");
        QTest::newRow("1") << "1800101260011"
                           << "m";
        QTest::newRow("2") << "2800101260011"
                           << "f";
        QTest::newRow("5") << "5000101260011"
                           << "n";
        QTest::newRow("6") << "6000101260011"
                           << "n";
        QTest::newRow("gol") << ""
                             << "n";
    }
    void sex()
    {
        QFETCH(QString, cnp);
        QFETCH(QString, sex);
        QCOMPARE(SexDinCNP(cnp), sex);
    }

    void dataNasterii_data()
    {
        QTest::addColumn<QString>("cnp");
        QTest::addColumn<QDate>("nastere");
        QTest::addColumn<QDate>("majorat");
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("secolul 20") << "1800315260011" << QDate(1980, 3, 15) << QDate(1998, 3, 15) << "";
        QTest::newRow("secolul 21") << "6100315260011" << QDate(2010, 3, 15) << QDate(2028, 3, 15) << "";
        QTest::newRow("29 februarie") << "1800229260011" << QDate(1980, 2, 29) << QDate(1998, 3, 1) << "";
        QTest::newRow("31 aprilie depaseste") << "1800431260011" << QDate(1980, 5, 1) << QDate(1998, 5, 1) << "";
        QTest::newRow("luna 13") << "1801315260011" << QDate() << QDate() << "Luna incorecta";
        QTest::newRow("ziua 32") << "1800132260011" << QDate() << QDate() << "Zi incorecta";
    }
    void dataNasterii()
    {
        QFETCH(QString, cnp);
        QFETCH(QDate, nastere);
        QFETCH(QDate, majorat);
        QFETCH(QString, mesaj);
        MesajeScript m;
        QCOMPARE(DataNasteriiDinCNP(cnp, false), nastere);
        QCOMPARE(DataNasteriiDinCNP(cnp, true), majorat);
        if (mesaj.isEmpty())
            QVERIFY(m.intrari.isEmpty());
        else
            QCOMPARE(m.texte(), (QStringList{mesaj, mesaj}));
    }

    void textDataNasterii()
    {
        QCOMPARE(TextDataNasteriiDinCNP(QStringLiteral("1800305260011")), QStringLiteral("5 Martie 1980"));
        QCOMPARE(TextDataNasteriiDinCNP(QStringLiteral("0000000000000")), QString());
        QCOMPARE(TextDataNasteriiDinCNP(QStringLiteral("abc")), QString());
        QVERIFY_THROWS_EXCEPTION(Eroare, TextDataNasteriiDinCNP(QStringLiteral("1801305260011")));
    }

    void varsta()
    {
        MesajeScript m;
        QCOMPARE(VarstaInAni(QDate(2026, 1, 1), QDate(2025, 12, 31), QStringLiteral("x")), 1);
        QCOMPARE(VarstaInAni(QDate(2026, 1, 1), DataZero, QString()), 0);
        QCOMPARE(VarstaInAni(QDate(2026, 1, 1), DataZero, QStringLiteral("123")), 0);
        QCOMPARE(m.texte(), (QStringList{"Nu s-a transmis Data Nasterii", "Partea asta nu e facuta inca!"}));
    }

    void cnpInventatEsteValid()
    {
        for (int i = 0; i < 200; ++i) {
            const QString c = CNPInventat(1 + i % 2, QDate(1950, 1, 1).addDays(i * 97), 1 + i % 46, i);
            QVERIFY2(ValidareCNP(c, false), qPrintable(c));
        }
    }
};

QTEST_GUILESS_MAIN(TestCNP)
#include "tst_cnp.moc"
