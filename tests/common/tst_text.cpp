// The shared text, number, money and date routines.
#include "common/Bani.h"
#include "common/Data.h"
#include "common/Text.h"

#include <QtTest>

class TestText : public QObject {
    Q_OBJECT
private slots:
    void valoareNumerica_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("valoare");
        QTest::newRow("intreg") << "12" << 12.0;
        QTest::newRow("litere dupa numar") << "12abc" << 12.0;
        QTest::newRow("punct zecimal") << "2.5" << 2.5;
        QTest::newRow("virgula nu e separator") << "2,5" << 2.0;
        QTest::newRow("fara numar") << "abc" << 0.0;
        QTest::newRow("gol") << "" << 0.0;
        QTest::newRow("spatii inainte") << "  7" << 7.0;
        QTest::newRow("negativ") << "-3.25x" << -3.25;
        QTest::newRow("al doilea punct opreste") << "1.2.3" << 1.2;
        QTest::newRow("doar semn") << "-" << 0.0;
        QTest::newRow("numar urias") << QString(400, QLatin1Char('9')) << 0.0;
    }
    void valoareNumerica()
    {
        QFETCH(QString, text);
        QFETCH(double, valoare);
        QCOMPARE(ValoareNumerica(text), valoare);
    }

    void douaCifre_data()
    {
        QTest::addColumn<int>("n");
        QTest::addColumn<QString>("text");
        QTest::newRow("7") << 7 << "07";
        QTest::newRow("12") << 12 << "12";
        QTest::newRow("100") << 100 << "";
        QTest::newRow("-5") << -5 << "-5";
        QTest::newRow("0") << 0 << "00";
    }
    void douaCifre()
    {
        QFETCH(int, n);
        QFETCH(QString, text);
        QCOMPARE(DouaCifre(n), text);
    }

    void textSumaCompleteazaDarNuRotunjeste_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<QString>("text");
        QTest::newRow("5") << 5.0 << "5.00";
        QTest::newRow("5.5") << 5.5 << "5.50";
        QTest::newRow("5.25") << 5.25 << "5.25";
        QTest::newRow("5.255 nerotunjit") << 5.255 << "5.255";
        QTest::newRow("-5.5") << -5.5 << "-5.50";
        QTest::newRow("0") << 0.0 << "0.00";
        QTest::newRow("mare") << 123456.75 << "123456.75";
    }
    void textSumaCompleteazaDarNuRotunjeste()
    {
        QFETCH(double, x);
        QFETCH(QString, text);
        QCOMPARE(TextSuma(x), text);
    }

    void rutineMici()
    {
        QVERIFY(!EsteCifra(QString()));
        QVERIFY(!EsteCifra(QStringLiteral("12")));
        QVERIFY(EsteCifra(QStringLiteral("0")));
        QVERIFY(!EsteCifra(QStringLiteral("a")));
        QVERIFY(InInterval(QStringLiteral("1"), 1, 12));
        QVERIFY(InInterval(QStringLiteral("12"), 1, 12));
        QVERIFY(!InInterval(QStringLiteral("13"), 1, 12));
        QVERIFY(InInterval(QStringLiteral("2.5"), 1, 12));

        QString prim = QStringLiteral("x"), rest = QStringLiteral("y");
        ImparteLaSpatiu(QStringLiteral("faraspatiu"), prim, rest);
        QCOMPARE(prim, QStringLiteral("x"));
        QCOMPARE(rest, QStringLiteral("y"));
        ImparteLaSpatiu(QStringLiteral("Ana Maria Ioana"), prim, rest);
        QCOMPARE(prim, QStringLiteral("Ana"));
        QCOMPARE(rest, QStringLiteral("Maria Ioana"));

        QCOMPARE(CuMajuscula(QStringLiteral("strada mare")), QStringLiteral("Strada mare"));
        QCOMPARE(TextPanaLaParanteza(QStringLiteral(" Casnic(a) ")), QStringLiteral("Casnic"));
        QCOMPARE(TextPanaLaParanteza(QStringLiteral(" Elev ")), QStringLiteral("Elev"));
        QCOMPARE(LitereDinText(QStringLiteral("Ion")), (QStringList{"I", "o", "n"}));
    }

    void bani_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("unitati");
        QTest::addColumn<QString>("afisat");
        QTest::newRow("intreg") << "200" << qint64(2000000) << "200";
        QTest::newRow("patru zecimale") << "199.9999" << qint64(1999999) << "199.9999";
        QTest::newRow("rotunjit la patru") << "199.99996" << qint64(2000000) << "200";
        QTest::newRow("jumatate in sus") << "0.00005" << qint64(1) << "0.0001";
        QTest::newRow("negativ") << "-1.5" << qint64(-15000) << "-1.5";
        QTest::newRow("text") << "abc" << qint64(0) << "0";
    }
    void bani()
    {
        QFETCH(QString, text);
        QFETCH(qint64, unitati);
        QFETCH(QString, afisat);
        const Bani b = Bani::dinText(text);
        QCOMPARE(b.unitati(), unitati);
        QCOMPARE(b.text(), afisat);
        QCOMPARE(Bani::dinVariant(b.variant()), b);
    }

    // baniFaraDepasireSiFaraDouble: amounts are read digit by digit up to the whole range of a
    // money column, and what does not fit is told apart from 0.
    void baniFaraDepasireSiFaraDouble_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("incape");
        QTest::addColumn<qint64>("unitati");
        QTest::newRow("1e14 lei") << "100000000000000" << true << qint64(1000000000000000000);
        QTest::newRow("maximul coloanei") << "922337203685477.5807" << true << std::numeric_limits<qint64>::max();
        QTest::newRow("minimul coloanei") << "-922337203685477.5807" << true << -std::numeric_limits<qint64>::max();
        QTest::newRow("peste maxim cu o zecime de mie") << "922337203685477.5808" << false << qint64(0);
        QTest::newRow("rotunjit peste maxim") << "922337203685477.58075" << false << qint64(0);
        QTest::newRow("300 de cifre") << QString(300, QLatin1Char('9')) << false << qint64(0);
        QTest::newRow("2^53 + 1 unitati, pe care un double nu le tine")
            << "900719925474.0993" << true << qint64(9007199254740993);
        QTest::newRow("cifrele de dupa a cincea zecimala nu conteaza") << "0.000049999" << true << qint64(0);
    }
    void baniFaraDepasireSiFaraDouble()
    {
        QFETCH(QString, text);
        QFETCH(bool, incape);
        QFETCH(qint64, unitati);
        const std::optional<Bani> b = Bani::citeste(text);
        QCOMPARE(b.has_value(), incape);
        if (!incape)
            return;
        QCOMPARE(b->unitati(), unitati);
        QCOMPARE(Bani::citeste(b->text()), b);
        // Through a bound parameter and back, an amount below ten billion lei or of whole lei
        // stays exact (the engine's own limit for the rest).
        if (b->unitati() % 10000 == 0 || std::abs(b->unitati()) < 100000000000000LL)
            QCOMPARE(Bani::dinVariant(b->variant()), *b);
    }

    void baniSumaDepasita()
    {
        QVERIFY(!Bani::maxim().plus(Bani::dinUnitati(1)));
        QVERIFY(!Bani::minim().plus(Bani::dinUnitati(-1)));
        QCOMPARE(Bani::maxim().plus(Bani::dinUnitati(-1))->unitati(), std::numeric_limits<qint64>::max() - 1);
        QVERIFY(!Bani::dinDoubleExact(1e15));
        QCOMPARE(Bani::dinDoubleExact(1e14)->unitati(), qint64(1000000000000000000));
    }

    void baniAritmetica()
    {
        QCOMPARE((Lei(200) + Bani::dinText(QStringLiteral("0.0001"))).text(), QStringLiteral("200.0001"));
        QVERIFY(Bani::dinText(QStringLiteral("369.9999")) < Lei(370));
        QCOMPARE(Bani::dinVariant(QVariant()).unitati(), 0);
        QCOMPARE(Lei(5).textSuma(), QStringLiteral("5.00"));
    }

    void date()
    {
        QCOMPARE(TextData(QDate(2012, 3, 5)), QStringLiteral("05.03.2012"));
        QCOMPARE(TextData(DataZero), QString());
        QCOMPARE(TextDataLunga(QDate(2012, 3, 5)), QStringLiteral("5 Martie 2012"));
        QCOMPARE(CitesteData(QStringLiteral("29.02.2012")), QDate(2012, 2, 29));
        QVERIFY(EsteDataZero(CitesteData(QStringLiteral("31.02.2012"))));
        QVERIFY(EsteDataZero(CitesteData(QStringLiteral("azi"))));
        QCOMPARE(DataDinBD(DataPentruBD(QDate(2026, 11, 23))), QDate(2026, 11, 23));
        QVERIFY(DataPentruBD(DataZero).isNull());
        QVERIFY(EsteDataZero(DataDinBD(QVariant())));
        QCOMPARE(NumeLuna(12), QStringLiteral("Decembrie"));
        QCOMPARE(NumeLuna(13), QString());
    }

    void dataSerialDepasire_data()
    {
        QTest::addColumn<int>("an");
        QTest::addColumn<int>("luna");
        QTest::addColumn<int>("zi");
        QTest::addColumn<QDate>("data");
        QTest::newRow("31 aprilie") << 1980 << 4 << 31 << QDate(1980, 5, 1);
        QTest::newRow("ziua 0") << 1980 << 3 << 0 << QDate(1980, 2, 29);
        QTest::newRow("luna 0") << 1980 << 0 << 15 << QDate(1979, 12, 15);
        QTest::newRow("luna 13") << 1980 << 13 << 1 << QDate(1981, 1, 1);
        QTest::newRow("30 februarie") << 1981 << 2 << 30 << QDate(1981, 3, 2);
    }
    void dataSerialDepasire()
    {
        QFETCH(int, an);
        QFETCH(int, luna);
        QFETCH(int, zi);
        QFETCH(QDate, data);
        QCOMPARE(DataSerial(an, luna, zi), data);
    }
};

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
