// Every report as it prints, compared whole with its saved expected grid under
// tests/data/rapoarte: the borderou, each report of the catalogue, each workbook export and the
// month's payroll, built on the fixed small office. A change of one cell, width, height, merge,
// alignment or border fails here with the lines that moved; ./scripts/rescrie-asteptate.sh
// saves a change that is meant.
#include "Asteptat.h"
#include "GrilaText.h"
#include "OficiuReferinta.h"
#include "TestCuOficiu.h"

#include "common/Ceas.h"
#include "common/Proces.h"
#include "reports/Borderou.h"
#include "reports/InchidereLuna.h"
#include "reports/Rapoarte.h"

#include <QRegularExpression>
#include <QtTest>

namespace {

enum Fel { FelBorderou, FelRaport, FelExport, FelStat };

// "Anexa 3 - Plati noi + repuneri" -> "anexa-3-plati-noi-repuneri".
QString numeFisier(const QString& titlu)
{
    static const QRegularExpression altceva(QStringLiteral("[^a-z0-9]+"));
    return titlu.toLower().replace(altceva, QStringLiteral("-")).remove(QRegularExpression(QStringLiteral("^-|-$")));
}

} // namespace

class TestRapoarteAsteptate : public TestCuOficiu {
    Q_OBJECT
public:
    TestRapoarteAsteptate() : TestCuOficiu(Oficiu::PeClasa) {}

private:
    void pregatesteOficiul() override { OficiuReferinta::Scrie(bd()); }
    void pregateste() override
    {
        Ceas::seteazaAzi(OficiuReferinta::Azi);
        Proces::setari().LunaSetata = OficiuReferinta::Luna;
        Proces::setari().AnSetat = OficiuReferinta::An;
    }

private slots:
    void grila_data()
    {
        QTest::addColumn<int>("fel");
        QTest::addColumn<int>("index"); // the report, or the borderou's status
        QTest::addColumn<int>("tip");   // the allowance or application kind
        QTest::addColumn<int>("ord1");

        QTest::newRow("borderou/toate-dupa-nume") << int(FelBorderou) << 0 << 0 << 2;
        QTest::newRow("borderou/in-plata-complementare") << int(FelBorderou) << 1 << 1 << -1;
        for (int i = 0; i < ListaRapoarte().size(); ++i) {
            const QString nume =
                QStringLiteral("%1-%2").arg(i, 2, 10, QLatin1Char('0')).arg(numeFisier(ListaRapoarte()[i]));
            QTest::newRow(qPrintable(QStringLiteral("catalog/") + nume)) << int(FelRaport) << i << -1 << -1;
            if (AreExport(i))
                QTest::newRow(qPrintable(QStringLiteral("export/") + nume)) << int(FelExport) << i << -1 << -1;
        }
        QTest::newRow("catalog/00-toate-cererile-monoparentale") << int(FelRaport) << 0 << 2 << -1;
        QTest::newRow("stat-plata/aprilie-2012") << int(FelStat) << 0 << -1 << -1;
    }

    void grila()
    {
        QFETCH(int, fel);
        QFETCH(int, index);
        QFETCH(int, tip);
        QFETCH(int, ord1);
        SelectieRaport sel;
        sel.index = index;
        sel.tip = tip;
        sel.ord1 = ord1;
        sel.luna = OficiuReferinta::Luna;
        sel.an = OficiuReferinta::An;
        sel.azi = OficiuReferinta::Azi;
        ReportGrid g;
        switch (fel) {
        case FelBorderou: ConstruiesteBorderou(bd(), sel, g); break;
        case FelRaport: ConstruiesteRaport(bd(), sel, g); break;
        case FelExport: ConstruiesteExport(bd(), sel, g); break;
        default: ConstruiesteStatPlata(bd(), {OficiuReferinta::Luna, OficiuReferinta::An}, g); break;
        }
        QCOMPARE(m_mesaje->texte(), QStringList());
        const QString diferenta = DiferentaFataDeAsteptat(
            QStringLiteral("rapoarte/%1.txt").arg(QString::fromLatin1(QTest::currentDataTag())), GrilaText(g).toUtf8());
        QVERIFY2(diferenta.isEmpty(), qPrintable(diferenta));
    }
};

QTEST_GUILESS_MAIN(TestRapoarteAsteptate)
#include "tst_RapoarteAsteptate.moc"
