// `alocatii-admin formular` run as a process: the pages of the PDF file and where the data stand
// on them, read back with pdfinfo and pdftotext -bbox (poppler-utils).
#include "CasetePdf.h"
#include "DateTest.h"
#include "TestCuOficiu.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

namespace {

struct Rulare {
    int cod;
    QString erori;
};

QString unealta(const char* nume)
{
    return QStandardPaths::findExecutable(QString::fromLatin1(nume));
}

QString ruleaza(const QString& program, const QStringList& arg)
{
    QProcess p;
    p.start(program, arg);
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

} // namespace

class TestComandaFormular : public TestCuOficiu {
    Q_OBJECT
    // Every case runs the command on an office of its own with these rows.
    void pregatesteOficiul() override
    {
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd());
        DateTest::Venit(bd(), 1, 21, 1250);
        // Application 2 has no titular.
        DateTest::DosarCompletat(bd(), QStringLiteral("2800517260011"), 2);
        bd().executa(QStringLiteral("UPDATE Cereri SET MembruID1 = 99 WHERE CerereID = 2"));
    }
    void pregateste() override
    {
        if (unealta("pdftotext").isEmpty() || unealta("pdfinfo").isEmpty())
            QSKIP("poppler-utils (pdftotext, pdfinfo) lipseste");
    }

private slots:

    void pagini_data()
    {
        QTest::addColumn<QStringList>("arg");
        QTest::addColumn<int>("pagini");
        QTest::newRow("cerere completata") << QStringList{"cerere", "--cerere", "1"} << 9;
        QTest::newRow("cerere goala") << QStringList{"cerere", "--gol"} << 9;
        QTest::newRow("ancheta completata") << QStringList{"ancheta", "--cerere", "1"} << 10;
        QTest::newRow("ancheta goala") << QStringList{"ancheta", "--gol"} << 10;
        QTest::newRow("paginile alese") << QStringList{"ancheta", "--gol", "--pagini", "1,3-5,10"} << 5;
    }
    void pagini()
    {
        QFETCH(QStringList, arg);
        QFETCH(int, pagini);
        const QString pdf = m_dir.filePath(QStringLiteral("f.pdf"));
        QCOMPARE(formular(arg, pdf).cod, 0);
        const QString info = ruleaza(unealta("pdfinfo"), {pdf});
        QVERIFY2(info.contains(QRegularExpression(QStringLiteral("Pages:\\s+%1\\n").arg(pagini))), qPrintable(info));
        QVERIFY(info.contains(
            QRegularExpression(QStringLiteral("Page size:\\s+595(\\.\\d+)? x 84[12](\\.\\d+)? pts \\(A4\\)"))));
    }

    // Each field stands where its boxes are: the word's left edge at the field's x, its box
    // around the field's y (positions in mm from the page's corner).
    void pozitii_data()
    {
        QTest::addColumn<int>("pagina");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        const double L = 25, T = 10;
        QTest::newRow("NrCerere") << 1 << "345" << L + 14 << T + 20;
        QTest::newRow("Nume") << 1 << "P" << L + 13 << T + 62;
        QTest::newRow("CNP, prima cifra") << 1 << "1" << L + 14 << T + 78.2;
        QTest::newRow("CNP, ultima cifra") << 1 << "1" << L + 14 + 12 * 4.5 << T + 78.2;
        QTest::newRow("Judet") << 1 << "M" << L + 101 << T + 121;
        QTest::newRow("cod 21, ultima cifra") << 7 << "0" << L + 160 << T + 10;
        QTest::newRow("cod 21, prima cifra") << 7 << "1" << L + 160 - 6 * 4.5 << T + 10;
    }
    void pozitii()
    {
        QFETCH(int, pagina);
        QFETCH(QString, text);
        QFETCH(double, x);
        QFETCH(double, y);
        const QString pdf = m_dir.filePath(QStringLiteral("completat.pdf"));
        if (!QFile::exists(pdf))
            QCOMPARE(formular({"cerere", "--cerere", "1"}, pdf).cod, 0);
        bool gasit = false;
        for (const CuvantPdf& c : CuvintePdf(pdf).value(pagina - 1))
            if (c.text == text && qAbs(c.x1 - x) < 0.5 && c.y1 >= y - 0.5 && c.y2 <= y + 5)
                gasit = true;
        QVERIFY2(gasit, qPrintable(QStringLiteral("%1 nu este la %2, %3").arg(text).arg(x).arg(y)));
    }

    // The data layer's findings go to standard error; the form is written all the same.
    void mesaje()
    {
        const QString pdf = m_dir.filePath(QStringLiteral("fara-titular.pdf"));
        const Rulare r = formular({"cerere", "--cerere", "2", "--pagini", "1"}, pdf);
        QCOMPARE(r.cod, 0);
        QVERIFY2(r.erori.contains(QStringLiteral("Cererea selectata nu are titular")), qPrintable(r.erori));
        QVERIFY(QFile::exists(pdf));
        const Rulare lipsa = formular({"cerere", "--cerere", "99"}, m_dir.filePath(QStringLiteral("x.pdf")));
        QCOMPARE(lipsa.cod, 1);
        QVERIFY2(lipsa.erori.contains(QStringLiteral("Cererea 99 nu exista.")), qPrintable(lipsa.erori));
        QCOMPARE(formular({"cerere", "--gol", "--pagini", "10"}, m_dir.filePath(QStringLiteral("x.pdf"))).cod, 2);
        // A number that is no number is named as such, not as a missing option.
        const Rulare litere = formular({"cerere", "--cerere", "abc"}, m_dir.filePath(QStringLiteral("x.pdf")));
        QCOMPARE(litere.cod, 2);
        QVERIFY2(litere.erori.contains(QStringLiteral("--cerere cere numarul (CerereID) unei cereri, nu \"abc\".")),
                 qPrintable(litere.erori));
    }

private:
    Rulare formular(const QStringList& arg, const QString& pdf) const
    {
        QProcess p;
        p.start(QStringLiteral(ALOCATII_ADMIN),
                QStringList{QStringLiteral("formular")} + arg +
                    QStringList{QStringLiteral("--office"), m_oficiu->folderOficiu(), QStringLiteral("--pdf"), pdf});
        if (!p.waitForFinished(60000))
            return {-1, QStringLiteral("nu s-a terminat")};
        return {p.exitCode(), QString::fromUtf8(p.readAllStandardError())};
    }

    QTemporaryDir m_tmp;
    QDir m_dir{m_tmp.path()};
};

QTEST_MAIN(TestComandaFormular)
#include "tst_ComandaFormular.moc"
