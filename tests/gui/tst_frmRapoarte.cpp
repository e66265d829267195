#include "DateTest.h"
#include "TestCuOficiu.h"
#include "common/Ini.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "documents/DeschideDocument.h"
#include "gui_Dialog.h"
#include "reports/frmBorderou.h"
#include "reports/frmRapoarte.h"

#include <QAction>
#include <QCheckBox>
#include <QFileDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QtTest>

// The two report windows' wiring: the checks before a build, what the grid then holds, the
// controls that come and go with the report, the page number asked, and the exports.
class TestFrmRapoarte : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        m_lansator = Lansator{};
        LansatorDocumente::seteaza(&m_lansator);
        Proces::setari().LunaSetata = 3;
        Proces::setari().AnSetat = 2012;
        for (int i = 1; i <= 3; ++i)
            DateTest::Dosar(m_oficiu->bd(), i,
                            {{"NrCerere", 20 + i},
                             {"Stare", i},
                             {"DataCerere", QStringLiteral("2012-03-0%1").arg(i)},
                             {"Cuantum", 100.0}});
    }
    void curata() override { LansatorDocumente::seteaza(nullptr); }

private slots:
    void borderouFaraDatePrimarie()
    {
        frmBorderou f;
        f.show();
        QCOMPARE(m_mesaje->ultimul(),
                 QStringLiteral("Introduceti mai intai datele primariei si abia apoi continuati!"));
        QVERIFY(f.isVisible());
        QCOMPARE(Control<QLineEdit>(&f, QStringLiteral("txtCodFiscal"))->text(), QString());
    }

    // Built without town hall data, the report says so with the ordinary cursor: the hourglass
    // of the build is not left over the message.
    void mesajulRaportuluiFaraClepsidra()
    {
        frmBorderou f;
        f.show();
        m_mesaje->goleste();
        Control<QComboBox>(&f, QStringLiteral("cboTipRaport"))->setCurrentIndex(0);
        Control<QComboBox>(&f, QStringLiteral("cboTipAloc"))->setCurrentIndex(0);
        Apasa(&f, QStringLiteral("cmdOK"));
        QCOMPARE(m_mesaje->texte(),
                 QStringList{QStringLiteral("Dupa ce iesiti din aceasta fereastra Introduceti datele primariei!")});
        QVERIFY(!m_mesaje->intrari[0].subAsteptare);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void borderouCereSelectiiApoiConstruieste()
    {
        m_oficiu->scrieDatePrimarie();
        frmBorderou f;
        f.show();
        QVERIFY(m_mesaje->texte().isEmpty());
        QCOMPARE(Control<QLineEdit>(&f, QStringLiteral("txtNumeAsSoc"))->text(), QStringLiteral("Ana Exemplu"));
        auto* raport = Control<QComboBox>(&f, QStringLiteral("cboTipRaport"));
        auto* aloc = Control<QComboBox>(&f, QStringLiteral("cboTipAloc"));
        QCOMPARE(raport->currentIndex(), -1);
        QCOMPARE(Control<QComboBox>(&f, QStringLiteral("cboOrd(1)"))->count(), 4); // no "Nr" here
        Apasa(&f, QStringLiteral("cmdOK"));
        QCOMPARE(m_mesaje->ultimul(), QStringLiteral("Selectati din lista un tip de raport!"));
        raport->setCurrentIndex(0);
        Apasa(&f, QStringLiteral("cmdOK"));
        QCOMPARE(m_mesaje->ultimul(), QStringLiteral("Selectati din lista un tip de alocatie!"));
        QCOMPARE(f.grid().Rows(), 2); // nothing built
        aloc->setCurrentIndex(0);
        Apasa(&f, QStringLiteral("cmdOK"));
        QCOMPARE(f.grid().CellText(5, 1), QStringLiteral("privind cererile Toate cererile"));
        QCOMPARE(f.grid().CellText(11, 2).left(5), QStringLiteral("23 / "));
        QCOMPARE(f.grid().CellText(12, 9), QStringLiteral("300.00"));
        QVERIFY(f.findChild<QWidget*>(QStringLiteral("Grid")));
    }

    void borderouExportaGridulOricand()
    {
        const QString cale = QDir(m_oficiu->folderProgram()).filePath(QStringLiteral("iesire/borderou.xlsx"));
        QDir().mkpath(QFileInfo(cale).path());
        FisierIni(FisierSetari()).scrie(QStringLiteral("Borderou"), QStringLiteral("CaleExportBorderou"), cale);
        frmBorderou f;
        f.show();
        // Before any build: the empty grid is written, and success is told.
        Apasa(&f, QStringLiteral("cmdExport"));
        QVERIFY(QFile::exists(cale));
        QCOMPARE(m_mesaje->ultimul(), QStringLiteral("Fisierul a fost exportat in ") + QDir::toNativeSeparators(cale));
        QVERIFY(m_lansator.deschise.isEmpty());
    }

    void paginaCititaCaNumar_data()
    {
        QTest::addColumn<QString>("raspuns");
        QTest::newRow("litere") << QStringLiteral("abc");
        QTest::newRow("gol") << QString();
    }

    void paginaCititaCaNumar()
    {
        QFETCH(QString, raspuns);
        frmRapoarte f;
        f.show();
        m_mesaje->goleste();
        m_mesaje->introduce(raspuns);
        Apasa(&f, QStringLiteral("cmdPrintPage"));
        // The question only: nothing is printed and nothing further asked.
        QCOMPARE(m_mesaje->texte(), QStringList{QStringLiteral("Introduceti nr paginii pe care doriti sa o tipariti")});
        QCOMPARE(m_mesaje->intrari.first().titlu, QStringLiteral("?"));
    }

    void rapoarteArataControaleleRaportului()
    {
        frmRapoarte f;
        f.show();
        auto* raport = Control<QComboBox>(&f, QStringLiteral("cboTipRaport"));
        auto* tipCerere = Control<QComboBox>(&f, QStringLiteral("cboTipCerere"));
        auto* nrLuni = Control<QLineEdit>(&f, QStringLiteral("txtNrLuni"));
        auto* lblNrLuni = Control<QLabel>(&f, QStringLiteral("lblNrLuni"));
        QCOMPARE(raport->count(), 17);
        QCOMPARE(nrLuni->text(), QStringLiteral("6"));
        QVERIFY(!nrLuni->isVisible());
        QCOMPARE(Control<QComboBox>(&f, QStringLiteral("cboFormatPagina"))->currentText(), QStringLiteral("A4"));
        QVERIFY(!Control<QCheckBox>(&f, QStringLiteral("chkPortret"))->isChecked());
        QCOMPARE(Control<QComboBox>(&f, QStringLiteral("cboOrd(1)"))->itemText(4), QStringLiteral("Nr"));
        auto* lblTipCerere = Control<QLabel>(&f, QStringLiteral("lblTipCerere"));
        raport->setCurrentIndex(5);
        QVERIFY(!tipCerere->isVisible() && !lblTipCerere->isVisible());
        raport->setCurrentIndex(15); // the months list keeps the kind list as it was
        QVERIFY(nrLuni->isVisible() && lblNrLuni->isVisible());
        QVERIFY(!tipCerere->isVisible() && !lblTipCerere->isVisible());
        raport->setCurrentIndex(2);
        QVERIFY(tipCerere->isVisible() && lblTipCerere->isVisible());
        QVERIFY(!nrLuni->isVisible());
        tipCerere->setCurrentIndex(1);
        Apasa(&f, QStringLiteral("cmdOK"));
        QCOMPARE(f.grid().CellText(9, 3).left(5), QStringLiteral("23 / "));
    }

    void previzualizareInFereastraDeTiparire()
    {
        frmBorderou f;
        f.show();
        QString deschisa;
        {
            HookModalTest hook([&](QDialog& d) { deschisa = d.objectName(); });
            Apasa(&f, QStringLiteral("cmdPreview"));
        }
        QCOMPARE(deschisa, QStringLiteral("frmPreview"));
        QCOMPARE(f.grid().PageSetup().orientare, 2); // A4 landscape, always
        QCOMPARE(f.grid().PageSetup().hartie, 9);
    }

    // "PDF" beside "Tiparire", in both windows and in the preview: the report where the clerk
    // chooses, and the message that says where it went.
    void pdfDinFereastraSiDinPrevizualizare_data()
    {
        QTest::addColumn<bool>("borderou");
        QTest::addColumn<bool>("previzualizare");
        QTest::newRow("borderou") << true << false;
        QTest::newRow("rapoarte") << false << false;
        QTest::newRow("previzualizarea rapoartelor") << false << true;
    }
    void pdfDinFereastraSiDinPrevizualizare()
    {
        QFETCH(bool, borderou);
        QFETCH(bool, previzualizare);
        m_oficiu->scrieDatePrimarie();
        std::unique_ptr<QDialog> f;
        if (borderou)
            f = std::make_unique<frmBorderou>();
        else
            f = std::make_unique<frmRapoarte>();
        f->show();
        Control<QComboBox>(f.get(), QStringLiteral("cboTipRaport"))->setCurrentIndex(0);
        if (borderou)
            Control<QComboBox>(f.get(), QStringLiteral("cboTipAloc"))->setCurrentIndex(0);
        Apasa(f.get(), QStringLiteral("cmdOK"));
        QTemporaryDir dir;
        const QString cale = dir.filePath(QStringLiteral("raport.pdf"));
        // The save dialog, answered with the file.
        const auto alegeFisierul = [&](QDialog& d) {
            qobject_cast<QFileDialog*>(&d)->selectFile(cale);
            d.accept();
        };
        if (previzualizare) {
            HookModalTest p([&](QDialog& d) {
                auto* pdf = d.findChild<QAction*>(QStringLiteral("actPdf"));
                QVERIFY(pdf);
                HookModalTest h(alegeFisierul);
                pdf->trigger();
            });
            Apasa(f.get(), QStringLiteral("cmdPreview"));
        } else {
            HookModalTest h(alegeFisierul);
            Apasa(f.get(), QStringLiteral("cmdPdf"));
        }
        QCOMPARE(m_mesaje->ultimul(), QStringLiteral("Fisierul PDF a fost scris in ") + QDir::toNativeSeparators(cale));
        QProcess text;
        text.start(QStringLiteral("pdftotext"), {cale, QStringLiteral("-")});
        text.waitForFinished(30000);
        QVERIFY(QString::fromUtf8(text.readAllStandardOutput()).contains(borderou ? "BORDEROU" : "LISTA"));
    }

    // A print without a printer says why.
    void imprimantaSpuneDeCe()
    {
        if (!QPrinterInfo::availablePrinterNames().isEmpty())
            QSKIP("calculatorul are o imprimanta");
        frmRapoarte f;
        f.show();
        m_mesaje->raspunde(true);
        Apasa(&f, QStringLiteral("cmdPrint"));
        QVERIFY2(m_mesaje->ultimul().startsWith(
                     QStringLiteral("Imprimanta nu poate tipari: nu este instalata nicio imprimanta")),
                 qPrintable(m_mesaje->ultimul()));
    }

    void rapoarteExportNumaiPentruFamiliileCuExport()
    {
        m_oficiu->scrieDatePrimarie();
        frmRapoarte f;
        f.show();
        auto* raport = Control<QComboBox>(&f, QStringLiteral("cboTipRaport"));
        Apasa(&f, QStringLiteral("cmdExport"));
        QCOMPARE(m_mesaje->ultimul(), QStringLiteral("Selectati din lista un tip de raport!"));
        m_mesaje->goleste();
        raport->setCurrentIndex(3);
        Apasa(&f, QStringLiteral("cmdExport")); // no export for the status lists, and nothing said
        QVERIFY(m_mesaje->texte().isEmpty());
        QVERIFY(m_lansator.deschise.isEmpty());
        raport->setCurrentIndex(10);
        Apasa(&f, QStringLiteral("cmdExport"));
        QCOMPARE(m_lansator.deschise.size(), 1);
        const QString fisier = m_lansator.deschise.first();
        QVERIFY(QFile::exists(fisier));
        QCOMPARE(QFileInfo(fisier).path(), QFileInfo(Proces::folderProgram()).absoluteFilePath());
        QVERIFY2(QFileInfo(fisier).fileName().startsWith(QStringLiteral("Centralizator_Noi_")), qPrintable(fisier));
        QVERIFY(!QFileInfo(fisier).fileName().contains(QLatin1Char(' ')));
        QCOMPARE(f.grid().Rows(), 2);           // the grid on the screen is left alone
        Apasa(&f, QStringLiteral("cmdExport")); // a second workbook beside the first
        QCOMPARE(m_lansator.deschise.size(), 2);
        QVERIFY(m_lansator.deschise[1] != fisier && QFile::exists(m_lansator.deschise[1]));
        // A spreadsheet application that cannot be started is told; the file stays.
        m_lansator.reuseste = false;
        raport->setCurrentIndex(16);
        Apasa(&f, QStringLiteral("cmdExport"));
        QVERIFY(m_mesaje->ultimul().contains(QStringLiteral("nu a putut fi deschis")));
        QVERIFY(QFile::exists(m_lansator.deschise.last()));
    }

private:
    struct Lansator : LansatorDocumente {
        QStringList deschise;
        bool reuseste = true;
        bool deschideImplicit(const QString& cale) override
        {
            deschise << cale;
            return reuseste;
        }
        bool porneste(const QString&, const QStringList&) override { return false; }
    };
    Lansator m_lansator;
};

QTEST_MAIN(TestFrmRapoarte)
#include "tst_frmRapoarte.moc"
