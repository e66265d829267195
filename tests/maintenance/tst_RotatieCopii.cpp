// The keeping of copies: the rule on its own, and a year and a half of an office's working days
// with the program started each morning (and again some afternoons), copies made for real.
#include "TestCuOficiu.h"
#include "maintenance/CopiiOficiu.h"
#include "common/Proces.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

QList<CopieDatata> zile(const QStringList& momente)
{
    QList<CopieDatata> l;
    for (const QString& m : momente)
        l << CopieDatata{m, QDateTime::fromString(m, Qt::ISODate)};
    return l;
}

// The rule written out as the office says it, over every copy ever made (none removed): for
// each of the newest `cate` periods with a copy, that period's newest copy.
QSet<QString> celeMaiNoi(const QList<CopieDatata>& toate, int cate,
                         const std::function<QString(const QDate&)>& perioada)
{
    QMap<QString, CopieDatata> ultima; // period -> its newest copy
    for (const CopieDatata& c : toate) {
        const QString p = perioada(c.facuta.date());
        if (!ultima.contains(p) || ultima[p].facuta < c.facuta)
            ultima[p] = c;
    }
    QList<CopieDatata> l = ultima.values();
    std::sort(l.begin(), l.end(), [](const CopieDatata& a, const CopieDatata& b) { return a.facuta > b.facuta; });
    QSet<QString> s;
    for (int i = 0; i < std::min<int>(cate, l.size()); ++i)
        s.insert(l[i].fisier);
    return s;
}

} // namespace

class TestRotatieCopii : public TestCuOficiu {
    Q_OBJECT
private slots:
    void regula_data()
    {
        QTest::addColumn<QStringList>("copii");
        QTest::addColumn<QStringList>("pastrate");
        QTest::newRow("aceeasi zi: cea mai noua")
            << QStringList{"2024-03-04T08:00:00", "2024-03-04T12:00:00"} << QStringList{"2024-03-04T12:00:00"};
        // Friday 8 March and Sunday 10 March are one week; Monday 11 March another.
        QTest::newRow("saptamana se incheie duminica")
            << QStringList{"2024-03-08T08:00:00", "2024-03-10T08:00:00", "2024-03-11T08:00:00"}
            << QStringList{"2024-03-10T08:00:00", "2024-03-11T08:00:00"};
        QTest::newRow("luna: ultima ei copie")
            << QStringList{"2024-01-30T08:00:00", "2024-01-31T08:00:00", "2024-02-01T08:00:00"}
            << QStringList{"2024-01-31T08:00:00", "2024-02-01T08:00:00"};
    }
    void regula()
    {
        QFETCH(QStringList, copii);
        QFETCH(QStringList, pastrate);
        const QSet<QString> p = CopiiDePastrat(zile(copii), RegulaPastrare{1, 2, 2});
        QCOMPARE(p, QSet<QString>(pastrate.begin(), pastrate.end()));
    }

    void unAnSiJumatateDeZileLucratoare()
    {
        const LocCopii loc = LocCopiiDinSetari(Proces::setari());
        const RegulaPastrare regula;
        QRandomGenerator aleator(25);
        QList<CopieDatata> toate;
        for (QDate zi(2023, 1, 2); zi <= QDate(2024, 6, 30); zi = zi.addDays(1)) {
            if (zi.dayOfWeek() > 5)
                continue;
            // The first start of the day, between 7:30 and 9:30, makes the copy; a second start
            // in the afternoon finds it made.
            const QDateTime dimineata(zi, QTime(7, 30).addSecs(aleator.bounded(7200)));
            QVERIFY(CopieNecesara(loc, dimineata));
            const RezultatCopie r = FaCopie(loc, dimineata);
            toate << CopieDatata{QFileInfo(r.fisier).fileName(), dimineata};
            if (aleator.bounded(4) == 0)
                QVERIFY(!CopieNecesara(loc, QDateTime(zi, QTime(14, 0))));

            QSet<QString> asteptate =
                celeMaiNoi(toate, regula.zilnice, [](const QDate& d) { return d.toString(Qt::ISODate); });
            asteptate += celeMaiNoi(toate, regula.saptamanale, [](const QDate& d) {
                int an = 0;
                const int s = d.weekNumber(&an);
                return QStringLiteral("%1-%2").arg(an).arg(s, 2, 10, QLatin1Char('0'));
            });
            asteptate +=
                celeMaiNoi(toate, regula.lunare, [](const QDate& d) { return d.toString(QStringLiteral("yyyy-MM")); });
            QStringList fisiere = QDir(loc.folderCopii).entryList({QStringLiteral("Tarnava-*")}, QDir::Files);
            QCOMPARE(QSet<QString>(fisiere.begin(), fisiere.end()), asteptate);
            QCOMPARE(IndexCopii::citeste(loc.folderCopii).size(), asteptate.size());
        }
        // At the end: the 7 last working days, 4 weeks, 12 months, overlapping.
        const QStringList ramase = QDir(loc.folderCopii).entryList({QStringLiteral("Tarnava-*")}, QDir::Files);
        QVERIFY2(ramase.size() >= 12 && ramase.size() <= 23, qPrintable(ramase.join(QLatin1Char(' '))));
        QVERIFY(!ramase.filter(QStringLiteral("Tarnava-20230731-")).isEmpty()); // July 2023, the 12th month back
        QVERIFY(ramase.filter(QStringLiteral("Tarnava-202306")).isEmpty());     // June 2023, the 13th
    }
};

QTEST_GUILESS_MAIN(TestRotatieCopii)
#include "tst_RotatieCopii.moc"
