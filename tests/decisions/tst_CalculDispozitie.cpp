#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"

#include "amounts/Cuantum.h"
#include "applications/IncarcaCerere.h"
#include "applications/SalveazaCerere.h"
#include "history/CalculeDispozitii.h"
#include "decisions/Dispozitie.h"

#include <QtTest>

// The calculation stored with a disposition is the amount rules' own, measured against the
// year the disposition takes effect, with every member's reason.
class TestCalculDispozitie : public TestCuOficiu {
    Q_OBJECT
public:
    TestCalculDispozitie() : TestCuOficiu(Oficiu::PeClasa) {}

private slots:
    void calculPastrat_data();
    void calculPastrat();
};

void TestCalculDispozitie::calculPastrat_data()
{
    QTest::addColumn<int>("tip");
    QTest::addColumn<int>("venit");
    QTest::addColumn<bool>("copilDe18"); // a child born in 2008 besides the two of 2015
    QTest::addColumn<int>("an");
    QTest::addColumn<int>("copii");
    QTest::addColumn<int>("suma"); // the income tier of the scale row, 0 for none
    QTest::addColumn<int>("lei");
    QTest::newRow("sub 200 lei pe membru") << 1 << 500 << false << 2026 << 2 << 200 << 60;
    QTest::newRow("intre 200 si 370") << 1 << 1000 << false << 2026 << 2 << 370 << 50;
    QTest::newRow("peste 370: nimic") << 1 << 2000 << false << 2026 << 2 << 0 << 0;
    QTest::newRow("18 ani in anul dispozitiei: se numara") << 1 << 500 << true << 2026 << 3 << 200 << 90;
    QTest::newRow("18 ani in anul dinainte: nu") << 1 << 500 << true << 2027 << 2 << 200 << 60;
    QTest::newRow("monoparentala") << 2 << 500 << false << 2026 << 2 << 200 << 100;
}

void TestCalculDispozitie::calculPastrat()
{
    QFETCH(int, tip);
    QFETCH(int, venit);
    QFETCH(bool, copilDe18);
    QFETCH(int, an);
    QFETCH(int, copii);
    QFETCH(int, suma);
    QFETCH(int, lei);
    BD& bd = m_oficiu->bd();
    MesajeScript mesaje;
    Cerere c = DateTest::Familie(2, Lei(venit), tip);
    if (copilDe18)
        c.Membrii.push_back(DateTest::MembruCopil(QDate(2008, 6, 1), 150));
    c.NrMembrii = QString::number(c.Membrii.size());
    RecalculVenitPeMembru(c);
    const qint64 id = ScrieCerere(bd, c, 2026);
    const DateDispozitie d{
        0,         id,       QStringLiteral("1"), QDate(2026, 11, 5), 11, QString::number(an), 1, QStringLiteral("1"),
        QString(), QString()};
    const qint64 disp = SalveazaDispozitie(bd, 1, d);

    const std::optional<CalculDispozitie> s = CitesteCalcul(bd, disp);
    QVERIFY(s);
    const Cerere stocata = IncarcaCerere(bd, id);
    const RezultatCuantum reguli = CalculCuantum(bd, stocata.Membrii, stocata.VenitpeMembru, tip, an);
    QCOMPARE(s->cuantum, reguli.cuantum);
    QCOMPARE(s->cuantum, Lei(lei));
    QCOMPARE(s->nrCopii, copii);
    QCOMPARE(s->baremSuma, suma);
    QCOMPARE(s->baremNrPers, suma ? copii : 0);
    QCOMPARE(s->an, an);
    QCOMPARE(s->venitTotal, Lei(venit));
    QCOMPARE(s->venitPeMembru, Bani::dinText(stocata.VenitpeMembru));
    QCOMPARE(s->observatii.isEmpty(), lei != 0);
    QCOMPARE(s->membri.size(), stocata.Membrii.size());
    int numarati = 0;
    for (const MembruCalcul& m : s->membri) {
        numarati += m.numarat;
        QVERIFY2(!m.motiv.isEmpty(), qPrintable(m.cnp));
    }
    QCOMPARE(numarati, copii);
}

QTEST_GUILESS_MAIN(TestCalculDispozitie)
#include "tst_CalculDispozitie.moc"
