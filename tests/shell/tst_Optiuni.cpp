// The options: the keys written, their sections, the font size check that stops half-way, and
// the values taken in memory at once.
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "common/FisiereHelper.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "shell/Optiuni.h"

#include <QtTest>

namespace {
QString cheie(const char* sectiune, const char* nume)
{
    return FisiereHelper().CitesteIni(QLatin1String(nume), QLatin1String(sectiune), FisierSetari());
}
} // namespace

class TestOptiuni : public TestCuOficiu {
    Q_OBJECT
private slots:
    void scriere()
    {
        ValoriOptiuni v = CitesteOptiuni();
        QCOMPARE(v.FontName0, QStringLiteral("Times New Roman"));
        v.AppWord = 2;
        v.Motiv = true;
        v.FontB0 = true;
        v.FontSize0 = 12;
        v.HeightRowRaport = QStringLiteral("40px");
        v.NrCerereAnexa3 = QStringLiteral("NrCerere");
        v.StrSat = QStringLiteral("Sat");
        v.CuloareVenit = TextCuloareSetare(QColor(255, 0, 0));
        MesajeScript m;
        QVERIFY(ScrieOptiuni(v));
        QCOMPARE(m.texte(), QStringList());
        QCOMPARE(cheie("App", "AppWord"), QStringLiteral("2"));
        QCOMPARE(cheie("Generale", "Motiv"), QStringLiteral("1"));
        QCOMPARE(cheie("Fonturi", "FontB0"), QStringLiteral("255"));
        QCOMPARE(cheie("Raport", "HeightRowRaport"), QStringLiteral("40"));
        QCOMPARE(cheie("Ordonari", "NrCerereAnexa3"), QStringLiteral("NrCerere"));
        QCOMPARE(cheie("Generale", "CuloareVenit"), QStringLiteral("255"));
        // Taken at once by the running program.
        const Setari& s = Proces::setari();
        QCOMPARE(s.AppWord, 2);
        QCOMPARE(s.FontSize0, 12);
        QCOMPARE(s.HeightRowRaport, 40);
        QCOMPARE(s.StrSat, QStringLiteral("Sat"));
        QCOMPARE(CitesteOptiuni().CuloareVenit, QStringLiteral("255"));
        QCOMPARE(CuloareDinSetare(QStringLiteral("16711680")), QColor(0, 0, 255));
        QVERIFY(!CuloareDinSetare(QStringLiteral("rosu")).isValid());
    }

    // The keys before the font are written; the font and those after it are not.
    void marimeFont_data()
    {
        QTest::addColumn<int>("marime");
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("1") << 1 << "Marimea caracterelor nu poate fi mai mica de 2";
        QTest::newRow("73") << 73 << "Marimea caracterelor nu poate fi mai mare de 72";
    }
    void marimeFont()
    {
        QFETCH(int, marime);
        QFETCH(QString, mesaj);
        ValoriOptiuni v = CitesteOptiuni();
        v.FontSize0 = marime;
        v.NrCerereAnexa3 = QStringLiteral("Nr crt");
        v.AppWord = 3;
        MesajeScript m;
        QVERIFY(!ScrieOptiuni(v));
        QCOMPARE(m.texte(), QStringList{mesaj});
        QCOMPARE(cheie("Ordonari", "NrCerereAnexa3"), QStringLiteral("Nr crt"));
        QCOMPARE(cheie("Fonturi", "FontSize0"), QString());
        QCOMPARE(cheie("App", "AppWord"), QString());
        QCOMPARE(Proces::setari().FontSize0, 10);
    }

    void descriereFont()
    {
        ValoriOptiuni v;
        v.FontName0 = QStringLiteral("Arial");
        v.FontSize0 = 9;
        QCOMPARE(DescriereFont(v), QStringLiteral("Arial, 9"));
        v.FontB0 = v.FontU0 = true;
        QCOMPARE(DescriereFont(v), QStringLiteral("Arial, 9, B, U"));
    }
};

QTEST_GUILESS_MAIN(TestOptiuni)
#include "tst_Optiuni.moc"
