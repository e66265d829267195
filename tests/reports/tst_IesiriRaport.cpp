#include "CasetePdf.h"
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "common/Data.h"
#include "database/BD.h"
#include "reports/Borderou.h"
#include "reports/ExportGrid.h"
#include "reports/RandareGrid.h"
#include "reports/Rapoarte.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

using DateTest::CNPNascut;

namespace {

QByteArray ruleaza(const QString& program, const QStringList& arg, int* cod = nullptr, QByteArray* err = nullptr)
{
    QProcess p;
    p.start(program, arg);
    if (!p.waitForFinished(60000))
        qWarning("%s nu s-a terminat", qPrintable(program));
    if (cod)
        *cod = p.exitCode();
    if (err)
        *err = p.readAllStandardError();
    return p.readAllStandardOutput();
}

} // namespace

// What leaves the program: the PDF (pages, the head on every page), the workbook read back
// from its sheet's XML, and alocatii-admin raport giving the builder's own cells.
class TestIesiriRaport : public TestCuOficiu {
    Q_OBJECT
public:
    TestIesiriRaport() : TestCuOficiu(Oficiu::PeClasa) {}

private:
    void pregatesteOficiul() override
    {
        m_oficiu->scrieDatePrimarie();
        Tranzactie t(m_oficiu->bd());
        for (int i = 1; i <= NrCereri; ++i) {
            DateTest::Dosar(m_oficiu->bd(), i,
                            {{"NrCerere", 1000 + i},
                             {"DataCerere", DataPentruBD(QDate(2012, 1, 1 + i % 28))},
                             {"Stare", 2 + i % 3},
                             {"Cuantum", 10.0 * i}},
                            {{"CNP", CNPNascut(QDate(1970 + i % 20, 1 + i % 12, 1 + i % 28), i)}},
                            {{"Strada", "Garii \"Noua\""}, {"Nr", QString::number(i)}});
        }
        t.confirma();
    }

private slots:
    void pdfRepetaAntetulPePagini()
    {
        ReportGrid g;
        ConstruiesteBorderou(m_oficiu->bd(), borderou(), g);
        const QString pdf = m_iesiri.filePath(QStringLiteral("b.pdf"));
        QVERIFY(ScriePdf(g, pdf));
        QString eroare;
        const QList<QList<CuvantPdf>> pagini = CuvintePdf(pdf, &eroare);
        QVERIFY2(eroare.isEmpty(), qPrintable(eroare));
        QVERIFY2(pagini.size() >= 3, qPrintable(QString::number(pagini.size())));
        QSet<QString> numere;
        bool total = false;
        for (int i = 0; i < pagini.size(); ++i) {
            QStringList cuvinte;
            for (const CuvantPdf& c : pagini[i])
                cuvinte << c.text;
            total = total || cuvinte.contains(QStringLiteral("GENERAL"));
            // The head on every page, the title only on the first.
            QVERIFY2(cuvinte.contains(QStringLiteral("Titular")), qPrintable(QStringLiteral("pagina %1").arg(i + 1)));
            QCOMPARE(cuvinte.contains(QStringLiteral("BORDEROU")), i == 0);
            for (const QString& c : cuvinte)
                if (c.startsWith(QLatin1String("10")) && c.size() == 4)
                    numere << c;
        }
        QCOMPARE(numere.size(), NrCereri); // every application once, none lost at a page break
        QVERIFY(total);
    }

    void xlsxCititInapoi()
    {
        ReportGrid g;
        ConstruiesteBorderou(m_oficiu->bd(), borderou(), g);
        const QString fisier = m_iesiri.filePath(QStringLiteral("b.xlsx"));
        QString eroare;
        QVERIFY2(ScrieXlsx(g, fisier, &eroare), qPrintable(eroare));
        const QString foaie = QString::fromUtf8(ruleaza(
            QStringLiteral("unzip"), {QStringLiteral("-p"), fisier, QStringLiteral("xl/worksheets/sheet1.xml")}));
        const QString texte = QString::fromUtf8(
            ruleaza(QStringLiteral("unzip"), {QStringLiteral("-p"), fisier, QStringLiteral("xl/sharedStrings.xml")}));
        QVERIFY(foaie.contains(QStringLiteral("<mergeCell ref=\"A4:I4\"/>"))); // the title over the nine columns
        QVERIFY(foaie.contains(QStringLiteral("<mergeCell ref=\"A1:B1\"/>")));
        QVERIFY(texte.contains(QStringLiteral("TOTAL GENERAL")));
        QVERIFY(texte.contains(QStringLiteral("Garii &quot;Noua&quot;")) ||
                texte.contains(QStringLiteral("Garii \"Noua\"")));
        QVERIFY(texte.contains(QStringLiteral("Nr/Data cerere")));
        QVERIFY(foaie.contains(QStringLiteral("<pageSetup paperSize=\"9\" orientation=\"landscape\"")));
        // An unwritable place is told, not thrown.
        QVERIFY(!ScrieXlsx(g, QStringLiteral("/nu/exista/b.xlsx"), &eroare));
        QVERIFY(!eroare.isEmpty());
    }

    // Amounts, counts and row numbers are numbers in the workbook (money with two decimals), so
    // that the office can add them up; names, CNPs and heads stay text.
    void xlsxNumereCaNumere_data()
    {
        QTest::addColumn<int>("index"); // -1 the borderou's grid
        QTest::addColumn<QStringList>("numere");
        QTest::addColumn<QStringList>("sume");
        QTest::addColumn<QStringList>("texte");
        QTest::newRow("borderou") << -1 << QStringList{"A9", "A10", "G9", "H9"} << QStringList{"I9", "I10", "I79"}
                                  << QStringList{"I8", "C9", "D9", "E79"};
        QTest::newRow("cereri vechi, foaia de lucru")
            << 15 << QStringList{"A9", "A10", "F9"} << QStringList{} << QStringList{"A8", "D9", "E9"};
    }
    void xlsxNumereCaNumere()
    {
        QFETCH(int, index);
        QFETCH(QStringList, numere);
        QFETCH(QStringList, sume);
        QFETCH(QStringList, texte);
        ReportGrid g;
        SelectieRaport s = borderou();
        if (index < 0) {
            ConstruiesteBorderou(m_oficiu->bd(), s, g);
        } else {
            s.index = index;
            s.nrLuni = QStringLiteral("0");
            ConstruiesteExport(m_oficiu->bd(), s, g);
        }
        const QString fisier = m_iesiri.filePath(QStringLiteral("n.xlsx"));
        QVERIFY(ScrieXlsx(g, fisier));
        const QString foaie = QString::fromUtf8(ruleaza(
            QStringLiteral("unzip"), {QStringLiteral("-p"), fisier, QStringLiteral("xl/worksheets/sheet1.xml")}));
        const QString stiluri = QString::fromUtf8(
            ruleaza(QStringLiteral("unzip"), {QStringLiteral("-p"), fisier, QStringLiteral("xl/styles.xml")}));
        // The number formats of the cell styles, in their order.
        QStringList formate;
        const QString xfs = stiluri.section(QStringLiteral("<cellXfs"), 1).section(QStringLiteral("</cellXfs>"), 0, 0);
        static const QRegularExpression xf(QStringLiteral("<xf numFmtId=\"(\\d+)\""));
        for (const auto& m : xf.globalMatch(xfs))
            formate << m.captured(1);
        const auto celula = [&](const QString& ref) {
            const QRegularExpression c(QStringLiteral("<c r=\"%1\"([^>]*)>").arg(ref));
            return c.match(foaie).captured(1);
        };
        const auto stil = [&](const QString& atribute) {
            static const QRegularExpression s(QStringLiteral("s=\"(\\d+)\""));
            return formate.value(s.match(atribute).captured(1).toInt());
        };
        for (const QString& ref : numere + sume) {
            const QString a = celula(ref);
            QVERIFY2(!a.isNull() && !a.contains(QStringLiteral("t=\"s\"")), qPrintable(ref + QLatin1Char(' ') + a));
        }
        for (const QString& ref : sume)
            QCOMPARE(stil(celula(ref)), QStringLiteral("2")); // 0.00
        for (const QString& ref : texte)
            QVERIFY2(celula(ref).contains(QStringLiteral("t=\"s\"")), qPrintable(ref + QLatin1Char(' ') + celula(ref)));
    }

    void xlsxColoaneAscunseInAnexa()
    {
        SelectieRaport s = borderou();
        s.index = 12; // Anexa 4, kind 2: columns 21 and 22 hidden
        ReportGrid foaie;
        ConstruiesteExport(m_oficiu->bd(), s, foaie);
        const QString fisier = m_iesiri.filePath(QStringLiteral("a.xlsx"));
        QVERIFY(ScrieXlsx(foaie, fisier));
        const QString xml = QString::fromUtf8(ruleaza(
            QStringLiteral("unzip"), {QStringLiteral("-p"), fisier, QStringLiteral("xl/worksheets/sheet1.xml")}));
        QVERIFY(xml.contains(QRegularExpression(QStringLiteral("<col min=\"21\" max=\"21\"[^>]*hidden=\"1\""))));
        QVERIFY(xml.contains(QRegularExpression(QStringLiteral("<col min=\"3\" max=\"3\" width=\"18\""))));
        QVERIFY(xml.contains(QStringLiteral("scale=\"70\"")));
    }

    void comandaDaCeluleleBuilderului_data()
    {
        QTest::addColumn<QStringList>("arg");
        QTest::addColumn<int>("index");
        QTest::newRow("borderou") << QStringList{"borderou", "--stare", "0", "--tip", "0", "--ord1", "2"} << -1;
        QTest::newRow("in plata") << QStringList{"catalog", "--index", "1", "--tip-cerere", "0"} << 1;
        QTest::newRow("anexa 4 toate") << QStringList{"catalog", "--index", "14"} << 14;
    }

    void comandaDaCeluleleBuilderului()
    {
        QFETCH(QStringList, arg);
        QFETCH(int, index);
        ReportGrid g;
        SelectieRaport s = borderou();
        if (index < 0) {
            s.ord1 = 2;
            ConstruiesteBorderou(m_oficiu->bd(), s, g);
        } else {
            s.index = index;
            ConstruiesteRaport(m_oficiu->bd(), s, g);
        }
        int cod = -1;
        const QByteArray json =
            ruleaza(QStringLiteral(ALOCATII_ADMIN),
                    QStringList{QStringLiteral("raport")} + arg +
                        QStringList{"--office", m_oficiu->folderOficiu(), "--luna", "3", "--an", "2012"},
                    &cod);
        QCOMPARE(cod, 0);
        QCOMPARE(json.trimmed(), GridJson(g));
        const QJsonObject o = QJsonDocument::fromJson(json).object();
        QCOMPARE(o.value(QStringLiteral("cols")).toInt(), g.Cols());
        const QJsonArray celule = o.value(QStringLiteral("cells")).toArray();
        QVERIFY(!celule.isEmpty());
        // Row then column order, no empty text.
        for (qsizetype i = 1; i < celule.size(); ++i) {
            const QJsonArray a = celule[i - 1].toArray(), b = celule[i].toArray();
            QVERIFY(a[0].toInt() < b[0].toInt() || (a[0].toInt() == b[0].toInt() && a[1].toInt() < b[1].toInt()));
            QVERIFY(!b[2].toString().isEmpty());
        }
        QCOMPARE(o.value(QStringLiteral("widths")).toArray().size(), g.Cols() - 1);
    }

    void comandaRefuzaFaraSelectie()
    {
        const QStringList baza{QStringLiteral("--office"), m_oficiu->folderOficiu(), QStringLiteral("--luna"),
                               QStringLiteral("3"),        QStringLiteral("--an"),   QStringLiteral("2012")};
        int cod = 0;
        QByteArray err;
        ruleaza(QStringLiteral(ALOCATII_ADMIN), QStringList{"raport", "borderou", "--stare", "1"} + baza, &cod, &err);
        QCOMPARE(cod, 1);
        QVERIFY(err.contains("Selectati din lista un tip de alocatie!"));
        ruleaza(
            QStringLiteral(ALOCATII_ADMIN),
            QStringList{"raport", "catalog", "--index", "3", "--export", m_iesiri.filePath(QStringLiteral("x.xlsx"))} +
                baza,
            &cod, &err);
        QCOMPARE(cod, 1);
        QVERIFY(!QFile::exists(m_iesiri.filePath(QStringLiteral("x.xlsx"))));
    }

private:
    QTemporaryDir m_iesiri;
    static constexpr int NrCereri = 70;
    SelectieRaport borderou() const;
};

SelectieRaport TestIesiriRaport::borderou() const
{
    SelectieRaport s;
    s.index = 0;
    s.tip = 0;
    s.luna = 3;
    s.an = 2012;
    return s;
}

QTEST_MAIN(TestIesiriRaport)
#include "tst_IesiriRaport.moc"
