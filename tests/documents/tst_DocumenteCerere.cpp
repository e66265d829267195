#include "DateTest.h"
#include "TestCuOficiu.h"
#include "documents/DocumenteCerere.h"
#include "documents/SablonRtf.h"
#include "common/Ceas.h"
#include "common/Setari.h"

#include <QRegularExpression>
#include <QtTest>

using namespace DateTest;

// The calculation sheet and the income declaration of an application.
class TestDocumenteCerere : public TestCuOficiu {
    Q_OBJECT
public:
    TestDocumenteCerere() : TestCuOficiu(Oficiu::PeClasa) {}

    void pregatesteOficiul() override { m_oficiu->scrieDatePrimarie(); }
    void pregateste() override { Ceas::seteazaAzi(QDate(2012, 6, 9)); }

private slots:
    void fisa_data()
    {
        QTest::addColumn<QByteArray>("marcaj");
        QTest::addColumn<QVariantMap>("cerere");
        QTest::addColumn<QVariantMap>("primarie");
        QTest::addColumn<QDate>("data");
        QTest::addColumn<QString>("asteptat");

        const QVariantMap n;
        const QDate z;
        QTest::newRow("NrC") << QByteArray("#NrC#") << n << n << z << "101";
        QTest::newRow("DataCerere: ziua fara zero") << QByteArray("#DataCerere#") << n << n << z << "5.03.2012";
        QTest::newRow("DataCerere cu doua cifre")
            << QByteArray("#DataCerere#") << QVariantMap{{"DataCerere", "2012-11-25"}} << n << z << "25.11.2012";
        QTest::newRow("VenitTotal") << QByteArray("#VenitTotal#") << QVariantMap{{"VenitTotal", 450.5}} << n << z
                                    << "450.5";
        QTest::newRow("VenitpeMembru") << QByteArray("#VenitpeMembru#") << QVariantMap{{"VenitpeMembru", 166.6667}} << n
                                       << z << "166.6667";
        QTest::newRow("VenitpeMembru null: gol")
            << QByteArray("[#VenitpeMembru#]") << QVariantMap{{"VenitpeMembru", Null}} << n << z << "[]";
        QTest::newRow("Titular") << QByteArray("#Titular#") << n << n << z << "POPESCU ION";
        QTest::newRow("data aleasa, nu azi") << QByteArray("##data##") << n << n << QDate(2012, 3, 7) << "07.03.2012";
        QTest::newRow("fara data: azi") << QByteArray("##data##") << n << n << z << "09.06.2012";
        QTest::newRow("Jud null: puncte")
            << QByteArray("#Jud#") << n << QVariantMap{{"Judet", Null}} << z << ".....................";
        QTest::newRow("Loc null: puncte")
            << QByteArray("#Loc#") << n << QVariantMap{{"Localitate", Null}} << z << ".....................";
        QTest::newRow("AsSocial") << QByteArray("#AsSocial#") << n << n << z << "Ana Exemplu";
        QTest::newRow("AsSocial null: gol")
            << QByteArray("[#AsSocial#]") << n << QVariantMap{{"AsSocial", Null}} << z << "[]";
    }

    void fisa()
    {
        QFETCH(QByteArray, marcaj);
        QFETCH(QVariantMap, cerere);
        QFETCH(QVariantMap, primarie);
        QFETCH(QDate, data);
        QFETCH(QString, asteptat);
        for (auto it = primarie.cbegin(); it != primarie.cend(); ++it)
            bd().executa(QStringLiteral("UPDATE DatePrimarie SET %1 = ?").arg(it.key()), {it.value()});
        Dosar(bd(), 1, cerere);
        MesajeScript m;
        QVERIFY(CompleteazaFisa(1, data, marcaj, bd()));
        QCOMPARE(QString::fromLatin1(marcaj), asteptat);
        QCOMPARE(m.texte(), QStringList());
    }

    void declaratieAntet_data()
    {
        QTest::addColumn<QByteArray>("marcaj");
        QTest::addColumn<QVariantMap>("primarie");
        QTest::addColumn<QString>("strSat");
        QTest::addColumn<QString>("asteptat");
        const QVariantMap n;
        QTest::newRow("Judet") << QByteArray("#Judet#") << n << ""
                               << "Mures";
        QTest::newRow("Judet null: puncte") << QByteArray("#Judet#") << QVariantMap{{"Judet", Null}} << ""
                                            << ".....................";
        QTest::newRow("Localitate null: puncte")
            << QByteArray("#Localitate#") << QVariantMap{{"Localitate", Null}} << ""
            << ".....................";
        QTest::newRow("NrC si DataC") << QByteArray("#NrC#/#DataC#") << n << ""
                                      << "101/05.03.2012";
        QTest::newRow("adresa") << QByteArray("#adresa#") << n << "str."
                                << "Tarnaveni, str. Florilor, nr. 12, sc. B, ap. 4";
        QTest::newRow("nume si cnp ale titularului") << QByteArray("#nume#|#cnp#") << n << ""
                                                     << "POPESCU ION|1800101260016";
    }

    void declaratieAntet()
    {
        QFETCH(QByteArray, marcaj);
        QFETCH(QVariantMap, primarie);
        QFETCH(QString, strSat);
        QFETCH(QString, asteptat);
        for (auto it = primarie.cbegin(); it != primarie.cend(); ++it)
            bd().executa(QStringLiteral("UPDATE DatePrimarie SET %1 = ?").arg(it.key()), {it.value()});
        Dosar(bd(), 1);
        Setari s;
        s.StrSat = strSat;
        QVERIFY(CompleteazaDeclaratia(1, marcaj, s, bd()));
        QCOMPARE(QString::fromLatin1(marcaj), asteptat);
    }

    void declaratieVenituri_data()
    {
        QTest::addColumn<int>("randuri");
        QTest::addColumn<QString>("asteptat"); // rows 1, 2, 12 and the total

        QTest::newRow("fara venituri: celule goale, total 0") << 0 << "[|][|][|]0";
        QTest::newRow("doua venituri") << 2 << "[1|101][2|102][|]203";
        QTest::newRow("13 venituri: 12 in tabel, totalul tuturor") << 13 << "[1|101][2|102][12|112]1391";
    }

    void declaratieVenituri()
    {
        QFETCH(int, randuri);
        QFETCH(QString, asteptat);
        Dosar(bd(), 1);
        for (int i = 1; i <= randuri; ++i)
            Venit(bd(), 1, i, 100 + i);
        QByteArray corp("[#c1#|#cu1#][#c2#|#cu2#][#c12#|#cu12#]#tot#");
        QVERIFY(CompleteazaDeclaratia(1, corp, Setari{}, bd()));
        QCOMPARE(QString::fromLatin1(corp), asteptat);
    }

    void declaratiePersoane()
    {
        // Relationship and occupation in lower case without the remark in parentheses; the rows
        // after the last person are emptied.
        Dosar(bd(), 1);
        Persoana(bd(), 1, {{"MembruID", 11}, {"Nume", "POPESCU"}, {"Prenume", "ANA"}, {"CNP", "2850101260017"}},
                 {{"RudenieID", 2}, {"OcupatieID", 6}});
        Persoana(bd(), 1, {{"MembruID", 12}, {"Nume", "POPESCU"}, {"Prenume", "MIHAI"}, {"CNP", "5100101260018"}},
                 {{"RudenieID", 4}, {"OcupatieID", 11}});
        Persoana(bd(), 1, {{"MembruID", 13}, {"Nume", "POPESCU"}, {"Prenume", "DAN"}, {"CNP", "5100101260019"}},
                 {{"RudenieID", 99}, {"OcupatieID", Null}});
        QByteArray corp;
        for (int n = 1; n <= 5; ++n)
            corp += QStringLiteral("[#n%1#|#nume%1#|#cnp%1#|#r%1#|#o%1#]").arg(n).toLatin1();
        corp += "[#n12#|#nume12#|#cnp12#|#r12#|#o12#]";
        QVERIFY(CompleteazaDeclaratia(1, corp, Setari{}, bd()));
        QCOMPARE(QString::fromLatin1(corp),
                 QStringLiteral("[1|POPESCU ION|1800101260016|titular|salariat]"
                                "[2|POPESCU ANA|2850101260017|sot/sotie|casnic]"
                                "[3|POPESCU MIHAI|5100101260018|copil adoptat|copil prescolar]"
                                "[4|POPESCU DAN|5100101260019||]"
                                "[||||][||||]"));
    }

    void sabloaneleOficiului_data()
    {
        QTest::addColumn<bool>("fisa");
        QTest::newRow("fisa.rtf") << true;
        QTest::newRow("declaratie.rtf") << false;
    }

    void sabloaneleOficiului()
    {
        QFETCH(bool, fisa);
        Dosar(bd(), 1);
        for (int i = 1; i <= 3; ++i)
            Venit(bd(), 1, i, 10 * i);
        MesajeScript m;
        const std::optional<QByteArray> doc =
            fisa ? DocumentulFisei(1, QDate(2012, 3, 7), bd()) : DocumentulDeclaratiei(1, Setari{}, bd());
        QVERIFY(doc);
        QCOMPARE(m.texte(), QStringList());
        const QRegularExpression marcaj(QStringLiteral("#[A-Za-z0-9]*#"));
        const QString text = QString::fromLatin1(*doc);
        QVERIFY2(!marcaj.match(text).hasMatch(), qPrintable(marcaj.match(text).captured()));
        QVERIFY(text.contains(QLatin1String("POPESCU ION")));
        if (fisa) {
            QVERIFY(text.contains(QLatin1String("FISA DE CALCUL")));
            QVERIFY(text.contains(QLatin1String("Data: 07.03.2012")));
        } else {
            QVERIFY(text.contains(QLatin1String("DECLARATIE PE PROPRIA RASPUNDERE")));
            QVERIFY(text.contains(QLatin1String("{\\b 60}"))); // the total
        }
    }

    void fisaFaraDatePrimarie()
    {
        // The sheet reads the town hall last: without it the document stops and says why.
        bd().executa(QStringLiteral("DELETE FROM DatePrimarie"));
        Dosar(bd(), 1);
        MesajeScript m;
        QVERIFY(!DocumentulFisei(1, QDate(), bd()));
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Eroare: 3021 Introduceti mai intai datele primariei!")});
    }

    void cerereStearsa_data()
    {
        QTest::addColumn<bool>("fisa");
        QTest::newRow("fisa") << true;
        QTest::newRow("declaratie") << false;
    }

    void cerereStearsa()
    {
        QFETCH(bool, fisa);
        MesajeScript m;
        QVERIFY(!(fisa ? DocumentulFisei(7, QDate(), bd()) : DocumentulDeclaratiei(7, Setari{}, bd())));
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!")});
    }
};

QTEST_GUILESS_MAIN(TestDocumenteCerere)
#include "tst_DocumenteCerere.moc"
