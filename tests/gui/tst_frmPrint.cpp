// The preview window of the printed forms and the main window's commands that open it.
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"

#include "forms/frmPrint.h"
#include "mainwindow/frmMainNou.h"

#include <QAction>
#include <QFileDialog>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTreeView>
#include <QtTest>
#include <memory>

namespace {

QList<QPushButton*> butoanePagini(const QObject& f)
{
    return f.findChildren<QPushButton*>(QRegularExpression(QStringLiteral("^optPag\\(\\d+\\)$")));
}

} // namespace

class TestFrmPrint : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(m_oficiu->bd());
    }

private slots:
    void fereastra_data()
    {
        QTest::addColumn<int>("tip");
        QTest::addColumn<QString>("titlu");
        QTest::addColumn<int>("pagini");
        QTest::newRow("cerere") << FormularCerere << "Cerere" << 9;
        QTest::newRow("ancheta") << FormularAncheta << "Ancheta sociala" << 10;
    }
    void fereastra()
    {
        QFETCH(int, tip);
        QFETCH(QString, titlu);
        QFETCH(int, pagini);
        frmPrint f(tip, ModGol, 0);
        QCOMPARE(f.windowTitle(), titlu);
        const auto b = butoanePagini(f);
        QCOMPARE(b.size(), pagini);
        QVERIFY(Control<QPushButton>(&f, QStringLiteral("optPag(0)"))->isChecked());
        QCOMPARE(Control<QLineEdit>(&f, QStringLiteral("txtNrPag"))->text(), QStringLiteral("1"));
    }

    // A page button draws its page anew: a filled page tells its findings at every view.
    void pagini()
    {
        m_oficiu->bd().executa(QStringLiteral("UPDATE Cereri SET MembruID1 = 9"));
        MesajeScript m;
        frmPrint f(FormularCerere, ModCompletat, 1);
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Cererea selectata nu are titular")});
        const QImage pagina1 = f.Imagine();
        Apasa(&f, QStringLiteral("optPag(5)"));
        QCOMPARE(f.PaginaCurenta(), 5);
        QVERIFY(f.Imagine() != pagina1);
        Apasa(&f, QStringLiteral("optPag(0)"));
        QCOMPARE(f.Imagine(), pagina1);
        QCOMPARE(m.texte().count(QStringLiteral("Cererea selectata nu are titular")), 2);
    }

    // A window smaller than the page gets scroll bars; a larger one rests the page at its margin.
    void bare()
    {
        frmPrint f(FormularCerere, ModGol, 0);
        f.show();
        auto* v = Control<QScrollBar>(&f, QStringLiteral("VBar"));
        auto* pagina = Control<QLabel>(&f, QStringLiteral("picPrint"));
        f.resize(500, 400);
        QTest::qWait(20);
        QVERIFY(v->isEnabled());
        v->setValue(v->maximum());
        QVERIFY(pagina->y() < 0);
        f.resize(1400, pagina->height() + 300);
        QTest::qWait(20);
        if (f.height() >= pagina->height() + 200) { // a screen as tall as the page
            QVERIFY(!v->isEnabled());
            QCOMPARE(v->value(), 0);
            QCOMPARE(pagina->y(), qRound(200 * f.logicalDpiX() / 1440.0));
        }
    }

    // The wheel scrolls the page, Ctrl and the wheel (or the buttons) zoom it.
    void rotitaSiZoom()
    {
        frmPrint f(FormularCerere, ModGol, 0);
        f.resize(800, 600);
        f.show();
        QTest::qWait(20);
        auto* pagina = Control<QLabel>(&f, QStringLiteral("picPrint"));
        auto* v = Control<QScrollBar>(&f, QStringLiteral("VBar"));
        const auto rotita = [&](int pas, Qt::KeyboardModifiers taste) {
            QWheelEvent e(QPointF(50, 50), pagina->mapToGlobal(QPointF(50, 50)), QPoint(), QPoint(0, pas), Qt::NoButton,
                          taste, Qt::NoScrollPhase, false);
            QApplication::sendEvent(pagina, &e);
        };
        QCOMPARE(v->value(), 0);
        rotita(-120, Qt::NoModifier);
        QVERIFY(v->value() > 0);
        const int latime = pagina->width();
        rotita(120, Qt::ControlModifier);
        QVERIFY(pagina->width() > latime);
        QCOMPARE(Control<QLabel>(&f, QStringLiteral("lblZoom"))->text(), QStringLiteral("125%"));
        Apasa(&f, QStringLiteral("cmdZoomOut"));
        Apasa(&f, QStringLiteral("cmdZoomOut"));
        QVERIFY(pagina->width() < latime);
        QCOMPARE(Control<QLabel>(&f, QStringLiteral("lblZoom"))->text(), QStringLiteral("75%"));
    }

    // "PDF" saves the form where the clerk chooses and says where it went; without a printer,
    // printing says why it cannot.
    void pdfSiImprimanta()
    {
        MesajeScript m;
        QTemporaryDir dir;
        const QString cale = dir.filePath(QStringLiteral("cererea mea.pdf"));
        frmPrint f(FormularCerere, ModGol, 0);
        f.show();
        {
            HookModalTest h([&](QDialog& d) {
                auto* fd = qobject_cast<QFileDialog*>(&d);
                QVERIFY(fd);
                fd->selectFile(cale);
                d.accept();
            });
            Apasa(&f, QStringLiteral("cmdPdf"));
        }
        QCOMPARE(m.ultimul(), QStringLiteral("Fisierul PDF a fost scris in ") + QDir::toNativeSeparators(cale));
        QVERIFY(QFileInfo(cale).size() > 0);
        if (!QPrinterInfo::availablePrinterNames().isEmpty())
            QSKIP("calculatorul are o imprimanta");
        Apasa(&f, QStringLiteral("cmdPrint"));
        QVERIFY2(
            m.ultimul().startsWith(QStringLiteral("Imprimanta nu poate tipari: nu este instalata nicio imprimanta")),
            qPrintable(m.ultimul()));
    }

    // The five commands of the main window open the form they name; a filled form needs a selection.
    void ferestraPrincipala()
    {
        MesajeScript m;
        frmMainNou w;
        w.show();
        QString titlu;
        int pagini = 0;
        HookModalTest h([&](QDialog& d) {
            titlu = d.windowTitle();
            pagini = int(butoanePagini(d).size());
        });
        w.meniu(QStringLiteral("mnuAnchetaGoala"))->trigger();
        QCOMPARE(titlu, QStringLiteral("Ancheta sociala"));
        QCOMPARE(pagini, 10);
        w.meniu(QStringLiteral("mnuCerereGoala"))->trigger();
        QCOMPARE(titlu, QStringLiteral("Cerere"));
        titlu.clear();
        QVERIFY(w.meniu(QStringLiteral("mnuCerereSelectata"))->isEnabled());
        Control<QTreeView>(&w, QStringLiteral("lvwCereri"))->selectionModel()->clearSelection();
        Apasa(&w, QStringLiteral("cmdCerere"));
        QCOMPARE(m.ultimul(), QStringLiteral("Selecati mai intai o cerere!"));
        QVERIFY(titlu.isEmpty());
        w.SelecteazaRand(0);
        Apasa(&w, QStringLiteral("cmdCerere"));
        QCOMPARE(titlu, QStringLiteral("Cerere"));
        Apasa(&w, QStringLiteral("cmdPrintAncheta"));
        QCOMPARE(titlu, QStringLiteral("Ancheta sociala"));
    }
};

QTEST_MAIN(TestFrmPrint)
#include "tst_frmPrint.moc"
