#include "DateTest.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"
#include "gui_FereastraPrincipala.h"

#include "applications/SalveazaCerere.h"
#include "common/Ceas.h"
#include "common/Proces.h"
#include "decisions/Dispozitie.h"
#include "decisions/frmAddDispozitie.h"
#include "history/LuniInchise.h"
#include "mainwindow/frmMainNou.h"
#include "mainwindow/frmPanouriCerere.h"
#include "mainwindow/frmPlatiFamilie.h"
#include "reports/InchidereLuna.h"
#include "reports/frmInchidereLuna.h"

#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QLabel>
#include <QPrintPreviewDialog>
#include <QProcess>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

// What a clerk meets around a closed month: the window and the command refuse the same months
// with the same words; the window's grid goes to a PDF file the clerk chooses and its totals
// can be read; a closed month's disposition opens read-only and a new one in it is refused at
// once; deletes are refused before their question; the tab "Istoric" shows the family's
// payments, printed or written to PDF.
class TestFrmLunaInchisa : public TestCuOficiu {
    Q_OBJECT
private slots:
    void lunaSiAnulCaInComanda_data();
    void lunaSiAnulCaInComanda();
    void pdfulGrileiUndeAlegeFunctionarul();
    void totaluriCitibile();
    void dispozitiaLuniiInchiseDoarSeCiteste();
    void dispozitieNouaInLunaInchisaRefuzataPeLoc();
    void stergeriRefuzateInainteDeIntrebare();
    void platileInTabulIstoric();

protected:
    void pregateste() override;

private:
    qint64 m_a = 0, m_b = 0; // two families in payment from November 2026
    qint64 m_dispA = 0;      // A's grant
    // Presses a PDF button with the file dialog answered: `oferit` the file it offered, `cale`
    // the file chosen (a temporary one), and the message that says where it went.
    void salveazaPdf(const std::function<void()>& apasa, QString& oferit, QString& cale);
};

void TestFrmLunaInchisa::pregateste()
{
    Ceas::seteazaAzi(QDate(2026, 11, 5));
    m_oficiu->scrieDatePrimarie();
    Proces::setari().LunaSetata = 11;
    Proces::setari().AnSetat = 2026;
    for (int serie : {1, 2}) {
        Cerere c = DateTest::Familie(serie == 1 ? 2 : 1, Lei(500), 1, serie);
        (serie == 1 ? m_a : m_b) = ScrieCerere(bd(), c, 2026);
    }
    const auto acorda = [&](qint64 cerere, int nr, const char* suma) {
        DateDispozitie d;
        d.cerereId = cerere;
        d.nrDisp = QString::number(nr);
        d.dataDisp = Ceas::azi();
        d.luna = 11;
        d.an = QStringLiteral("2026");
        d.actiune = 1;
        d.suma = QLatin1String(suma);
        return SalveazaDispozitie(bd(), 1, d);
    };
    m_dispA = acorda(m_a, 1, "60");
    acorda(m_b, 2, "30");
}

void TestFrmLunaInchisa::salveazaPdf(const std::function<void()>& apasa, QString& oferit, QString& cale)
{
    QTemporaryDir dir;
    dir.setAutoRemove(false);
    cale = dir.filePath(QStringLiteral("ales.pdf"));
    {
        HookModalTest h([&](QDialog& d) {
            auto* f = qobject_cast<QFileDialog*>(&d);
            QVERIFY(f);
            oferit = f->selectedFiles().value(0);
            f->selectFile(cale);
            d.accept();
        });
        apasa();
    }
    QCOMPARE(m_mesaje->ultimul(), QStringLiteral("Fisierul PDF a fost scris in ") + QDir::toNativeSeparators(cale));
    QFile f(cale);
    QVERIFY(f.open(QIODevice::ReadOnly));
    QCOMPARE(f.read(5), QByteArray("%PDF-"));
    f.close();
    dir.remove();
}

void TestFrmLunaInchisa::lunaSiAnulCaInComanda_data()
{
    QTest::addColumn<QString>("luna");
    QTest::addColumn<QString>("an");
    QTest::addColumn<QString>("mesaj");
    QTest::newRow("luna 0") << "0"
                            << "2026"
                            << "Luna incorecta!";
    QTest::newRow("luna 13") << "13"
                             << "2026"
                             << "Luna incorecta!";
    QTest::newRow("anul 2000") << "11"
                               << "2000"
                               << "An incorect!";
    QTest::newRow("anul 2501") << "11"
                               << "2501"
                               << "An incorect!";
    QTest::newRow("anul gol") << "11"
                              << ""
                              << "An incorect!";
}

void TestFrmLunaInchisa::lunaSiAnulCaInComanda()
{
    QFETCH(QString, luna);
    QFETCH(QString, an);
    QFETCH(QString, mesaj);
    QCOMPARE(CitesteLunaAn(luna, an).mesaj, mesaj);
    // The window refuses to close it ...
    frmInchidereLuna w;
    Scrie(&w, QStringLiteral("txtLuna"), luna);
    Scrie(&w, QStringLiteral("txtAn"), an);
    Apasa(&w, QStringLiteral("cmdInchide"));
    QCOMPARE(m_mesaje->texte(), QStringList{mesaj});
    // ... and so does the command, in the same words.
    QProcess admin;
    admin.start(QStringLiteral(ALOCATII_ADMIN),
                {QStringLiteral("luna"), QStringLiteral("--office"), m_oficiu->folderOficiu(), QStringLiteral("--luna"),
                 luna, QStringLiteral("--an"), an, QStringLiteral("inchide")});
    QVERIFY(admin.waitForFinished(60000));
    QCOMPARE(admin.exitCode(), 2);
    QCOMPARE(QString::fromUtf8(admin.readAllStandardError()).trimmed(), mesaj);
    QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("LuniInchise")), 0);
}

void TestFrmLunaInchisa::pdfulGrileiUndeAlegeFunctionarul()
{
    frmInchidereLuna w;
    Control<QComboBox>(&w, QStringLiteral("cboTipRaport"))->setCurrentIndex(1);
    Apasa(&w, QStringLiteral("cmdOK"));
    // The differences: the name offered says which month, the file goes where the clerk chose.
    QString oferit, cale;
    salveazaPdf([&] { Apasa(&w, QStringLiteral("cmdPdf")); }, oferit, cale);
    QVERIFY2(oferit.endsWith(QStringLiteral("/Diferente-2026-11.pdf")), qPrintable(oferit));
    QVERIFY(w.grid().Rows() > 9);
    // The button stands beside the print button.
    auto* pdf = Control<QPushButton>(&w, QStringLiteral("cmdPdf"));
    auto* tiparire = Control<QPushButton>(&w, QStringLiteral("cmdPrint"));
    QCOMPARE(pdf->parentWidget(), tiparire->parentWidget());
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    QVERIFY(pdf->x() > tiparire->x());
    QVERIFY(qAbs(pdf->y() - tiparire->y()) < 5);
}

void TestFrmLunaInchisa::totaluriCitibile()
{
    ReportGrid g;
    ConstruiesteDiferenta(bd(), Diferenta(bd(), {11, 2026}), g);
    // The totals stand in a table of their own: a head, all types, each type.
    int antet = 0;
    for (int r = 9; r < g.Rows() && !antet; ++r)
        if (g.CellText(r, 2) == QLatin1String("Totaluri"))
            antet = r;
    QVERIFY(antet);
    QCOMPARE((QStringList{g.CellText(antet, 5), g.CellText(antet, 6), g.CellText(antet, 7)}),
             (QStringList{"Familii", "Copii", "Suma"}));
    QCOMPARE((QStringList{g.CellText(antet + 1, 2), g.CellText(antet + 1, 5), g.CellText(antet + 1, 6),
                          g.CellText(antet + 1, 7)}),
             (QStringList{"TOTAL GENERAL", "2", "3", "90.00"}));
    QCOMPARE(g.CellText(antet + 2, 2), QStringLiteral("Complementare"));
    QCOMPARE(g.CellText(antet + 3, 2), QStringLiteral("Monoparentale"));
    // Every text of the table fits its cell, as the screen and the paper draw it.
    for (int r = antet; r <= antet + 3; ++r)
        for (int c = 2; c <= 7; ++c) {
            const QString t = g.CellText(r, c);
            if (t.isEmpty())
                continue;
            double latime = g.ColumnWidth(c);
            if (const int u = g.UnireLa(r, c); u >= 0)
                for (int k = g.Uniri()[size_t(u)].c1 + 1; k <= g.Uniri()[size_t(u)].c2; ++k)
                    latime += g.ColumnWidth(k);
            QFont font(g.FontName());
            font.setPointSizeF(g.MarimeEfectiva(r, c));
            font.setBold(g.BoldEfectiv(r, c));
            QVERIFY2(QFontMetricsF(font).horizontalAdvance(t) < latime, qPrintable(t));
        }
}

void TestFrmLunaInchisa::dispozitiaLuniiInchiseDoarSeCiteste()
{
    InchideLuna(bd(), {11, 2026});
    frmAddDispozitie d(nullptr, 2, m_dispA);
    QCOMPARE(Control<QLabel>(&d, QStringLiteral("lblInfo"))->text(), MesajLunaInchisa({11, 2026}));
    for (const char* nume : {"cboDispoz(0)", "cboDispoz(1)", "dtpData", "cmdOK"})
        QVERIFY2(!Control<QWidget>(&d, QLatin1String(nume))->isEnabled(), nume);
    for (int i = 0; i < 5; ++i)
        QVERIFY(!Control<QLineEdit>(&d, QStringLiteral("txtDispoz(%1)").arg(i))->isEnabled());
    QVERIFY(Control<QPushButton>(&d, QStringLiteral("cmdCancel"))->isEnabled());
    QCOMPARE(Text(&d, QStringLiteral("txtDispoz(2)")), QStringLiteral("60"));
    QVERIFY(m_mesaje->intrari.isEmpty());
}

void TestFrmLunaInchisa::dispozitieNouaInLunaInchisaRefuzataPeLoc()
{
    InchideLuna(bd(), {11, 2026});
    const qint64 dispozitii = DateTest::NumaraRanduri(bd(), QStringLiteral("Dispozitii"));
    frmAddDispozitie d(nullptr, 1, m_a);
    auto* luna = Control<QComboBox>(&d, QStringLiteral("cboDispoz(1)"));
    auto* lunaInchisa = Control<QLabel>(&d, QStringLiteral("lblLunaInchisa"));
    d.show();
    // The application's month (March) is open.
    QVERIFY(!lunaInchisa->isVisible());
    QVERIFY(m_mesaje->intrari.isEmpty());
    // November is chosen: refused as soon as it is given.
    luna->setCurrentIndex(10);
    emit luna->activated(10);
    QCOMPARE(m_mesaje->texte(), QStringList{MesajLunaInchisa({11, 2026})});
    QVERIFY(lunaInchisa->isVisible());
    QCOMPARE(lunaInchisa->text(), MesajLunaInchisa({11, 2026}));
    // Another year: the month is open again.
    m_mesaje->goleste();
    Scrie(&d, QStringLiteral("txtDispoz(1)"), QStringLiteral("2027"));
    emit Control<QLineEdit>(&d, QStringLiteral("txtDispoz(1)"))->editingFinished();
    QVERIFY(m_mesaje->intrari.isEmpty());
    QVERIFY(!lunaInchisa->isVisible());
    // Back to 2026, and OK all the same: the save refuses it and writes nothing.
    Scrie(&d, QStringLiteral("txtDispoz(1)"), QStringLiteral("2026"));
    emit Control<QLineEdit>(&d, QStringLiteral("txtDispoz(1)"))->editingFinished();
    m_mesaje->goleste();
    Apasa(&d, QStringLiteral("cmdOK"));
    QCOMPARE(m_mesaje->texte(), QStringList{MesajLunaInchisa({11, 2026})});
    QVERIFY(!d.ESTE_OK());
    QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("Dispozitii")), dispozitii);
}

void TestFrmLunaInchisa::stergeriRefuzateInainteDeIntrebare()
{
    InchideLuna(bd(), {11, 2026});
    frmMainNou w;
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    ClicPeRand(w, 0);
    // The disposition: the closed month's sentence, no question, nothing deleted.
    Apasa(&w, QStringLiteral("cmdDelDisp"));
    QCOMPARE(m_mesaje->texte(), QStringList{MesajLunaInchisa({11, 2026})});
    QCOMPARE(m_mesaje->intrari.first().intrebare, false);
    // The application likewise.
    m_mesaje->goleste();
    Apasa(&w, QStringLiteral("cmdDelete"));
    QCOMPARE(m_mesaje->texte(), QStringList{MesajLunaInchisa({11, 2026})});
    QCOMPARE(m_mesaje->intrari.first().intrebare, false);
    QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 2);
    QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("Cereri")), 2);
}

void TestFrmLunaInchisa::platileInTabulIstoric()
{
    InchideLuna(bd(), {11, 2026});
    frmMainNou w;
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    ClicPeRand(w, 0);
    Apasa(&w, QStringLiteral("opt(4)"));
    PanouPlati* p = w.panouri()->plati();
    QVERIFY(p->isVisible());
    // This year's payments, chosen first: the family of the first row, paid in November.
    QCOMPARE(p->cboAnPlati()->currentText(), QStringLiteral("2026"));
    QCOMPARE(p->lvwPlatiLuni()->topLevelItemCount(), 1);
    const bool a = w.CerereSelectata() == m_a;
    const QTreeWidgetItem* luna = p->lvwPlatiLuni()->topLevelItem(0);
    QCOMPARE(luna->text(0), QStringLiteral("Noiembrie 2026"));
    QCOMPARE(luna->text(4), a ? QStringLiteral("Nr. 1 din 05.11.2026") : QStringLiteral("Nr. 2 din 05.11.2026"));
    QCOMPARE(p->lblTotalPlati()->text(), QStringLiteral("Total platit: %1 lei in 1 luni inchise (anul 2026)")
                                             .arg(a ? QStringLiteral("60.00") : QStringLiteral("30.00")));

    // Printed through the preview, or written to the PDF file chosen.
    bool previzualizare = false;
    {
        HookModalTest h([&](QDialog& d) {
            previzualizare = qobject_cast<QPrintPreviewDialog*>(&d) != nullptr;
            d.reject();
        });
        Apasa(&w, QStringLiteral("cmdTiparirePlati"));
    }
    QVERIFY(previzualizare);
    QString oferit, cale;
    salveazaPdf([&] { Apasa(&w, QStringLiteral("cmdPdfPlati")); }, oferit, cale);
    QVERIFY2(oferit.endsWith(QStringLiteral("/Plati-%1-2026.pdf").arg(a ? 1 : 2)), qPrintable(oferit));
}

QTEST_MAIN(TestFrmLunaInchisa)
#include "tst_frmLunaInchisa.moc"
