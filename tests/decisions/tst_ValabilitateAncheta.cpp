#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "decisions/ValabilitateAncheta.h"
#include "common/Data.h"

#include <QtTest>

using DateTest::CNPNascut;

namespace {
QStringList cnpuri(const QList<QDate>& nasteri)
{
    QStringList l;
    int serie = 1;
    for (const QDate& n : nasteri)
        l << CNPNascut(n, serie++);
    return l;
}
} // namespace

// How long an inquiry stands: six months while a child stays under 18 past them, and the
// office's rule for the earliest 18th birthday, which leaves such an inquiry without sense.
class TestValabilitateAncheta : public TestCuOficiu {
    Q_OBJECT
public:
    TestValabilitateAncheta() : TestCuOficiu(Oficiu::PeClasa) {}

private slots:
    void calcul_data()
    {
        QTest::addColumn<QDate>("d");
        QTest::addColumn<QList<QDate>>("nasteri");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("motiv");
        QTest::addColumn<int>("copii");

        const QDate d(2012, 3, 15);
        const QDate parinte(1975, 6, 1);
        QTest::newRow("copil mic: 6 luni")
            << d << QList<QDate>{parinte, QDate(2005, 1, 1)} << "15.09.2012" << MotivSaseLuni << 1;
        QTest::newRow("31 august trece peste februarie")
            << QDate(2012, 8, 31) << QList<QDate>{QDate(2005, 1, 1)} << "03.03.2013" << MotivSaseLuni << 1;
        QTest::newRow("31 august, an bisect")
            << QDate(2011, 8, 31) << QList<QDate>{QDate(2005, 1, 1)} << "02.03.2012" << MotivSaseLuni << 1;
        QTest::newRow("18 ani exact la D6 nu prelungeste")
            << d << QList<QDate>{parinte, QDate(1994, 9, 15)} << TextCerereIncetata << QString() << 1;
        QTest::newRow("18 ani a doua zi dupa D6")
            << d << QList<QDate>{QDate(1994, 9, 16)} << "15.09.2012" << MotivSaseLuni << 1;
        QTest::newRow("18 ani exact la D: adult")
            << d << QList<QDate>{parinte, QDate(1994, 3, 15)} << TextCerereIncetata << QString() << 0;
        QTest::newRow("singurul copil face 18 ani in doua luni")
            << d << QList<QDate>{parinte, QDate(1994, 5, 15)} << TextCerereIncetata << QString() << 1;
        QTest::newRow("un copil peste D6 si unul inainte")
            << d << QList<QDate>{parinte, QDate(1994, 5, 15), QDate(2003, 2, 2)} << "15.09.2012" << MotivSaseLuni << 2;
        QTest::newRow("numai adulti") << d << QList<QDate>{parinte, QDate(1980, 1, 1)} << TextCerereIncetata
                                      << QString() << 0;
        QTest::newRow("fara membri") << d << QList<QDate>{} << TextCerereIncetata << QString() << 0;
    }

    void calcul()
    {
        QFETCH(QDate, d);
        QFETCH(QList<QDate>, nasteri);
        QFETCH(QString, text);
        QFETCH(QString, motiv);
        QFETCH(int, copii);
        MesajeScript mesaje;
        const Valabilitate v = CalculeazaValabilitate(d, cnpuri(nasteri));
        QCOMPARE(v.textExpirare, text);
        QCOMPARE(v.motiv.value_or(QString()), motiv);
        QCOMPARE(v.nrCopii, copii);
        QCOMPARE(v.nrMembrii, int(nasteri.size()));
        QCOMPARE(v.incetata(), text == TextCerereIncetata);
        if (!v.incetata())
            QCOMPARE(TextData(v.expirare), text);
        // The pure computation says nothing; the CNPs here are all good.
        QVERIFY(mesaje.intrari.isEmpty());
    }

    void cnpStricatEsteAdult()
    {
        MesajeScript mesaje;
        // Month 13: the CNP routine says "Luna incorecta" and gives no date.
        const QStringList l{QStringLiteral("1051305120011"), CNPNascut(QDate(2005, 1, 1))};
        const Valabilitate v = CalculeazaValabilitate(QDate(2012, 3, 15), l);
        QCOMPARE(v.nrMembrii, 2);
        QCOMPARE(v.nrCopii, 1);
        QCOMPARE(v.motiv.value_or(QString()), MotivSaseLuni);
        QCOMPARE(mesaje.texte(), QStringList{QStringLiteral("Luna incorecta")});
    }

    void copilCareFace18AniInSaseLuniIncheieAncheta()
    {
        MesajeScript mesaje;
        DateTest::DosarCuMembri(bd(), 1, cnpuri({QDate(1975, 6, 1), QDate(1994, 5, 15)}));
        DateTest::DosarCuMembri(bd(), 2, {CNPNascut(QDate(1970, 1, 1), 50), CNPNascut(QDate(2008, 8, 8), 51)});

        // Only the members of the application are read.
        const Valabilitate v = ValabilitateAncheta(bd(), 1, QDate(2012, 3, 15));
        QVERIFY(v.incetata());
        QCOMPARE(v.nrMembrii, 2);
        QCOMPARE(v.nrCopii, 1);
        QCOMPARE(mesaje.ultimul(),
                 QStringLiteral("La aceasta data nu mai exista nici un copil, deci Ancheta e lipsita de sens!"));

        mesaje.goleste();
        const Valabilitate w = ValabilitateAncheta(bd(), 2, QDate(2012, 3, 15));
        QCOMPARE(w.textExpirare, QStringLiteral("15.09.2012"));
        QVERIFY(mesaje.intrari.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestValabilitateAncheta)
#include "tst_ValabilitateAncheta.moc"
