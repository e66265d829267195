// The copies in the windows: the maintenance window's page makes a copy without freezing,
// lists it with its check and restores it; the start of the program makes the copy of the day
// in the status bar, once a day.
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"

#include "maintenance/CopiiOficiu.h"
#include "maintenance/frmCopieLaPornire.h"
#include "maintenance/frmCopii.h"
#include "maintenance/frmMentenanta.h"
#include "common/Proces.h"

#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>
#include <QTreeWidget>
#include <QtTest>

class TestFrmCopii : public TestCuOficiu {
    Q_OBJECT
private slots:
    void copieSiRestaurareDinMentenanta()
    {
        DateTest::Dosar(bd(), 1);
        MesajeScript m;
        frmMentenanta w;
        w.resize(w.sizeHint());
        w.show();
        Apasa(&w, QStringLiteral("opt(2)"));
        auto* pagina = w.findChild<frmCopii*>();
        QVERIFY(pagina && pagina->isVisible());
        auto* lista = Control<QTreeWidget>(&w, QStringLiteral("lvwCopii"));
        QCOMPARE(lista->topLevelItemCount(), 0);

        Apasa(&w, QStringLiteral("cmdRestaureaza"));
        QCOMPARE(m.ultimul(), QStringLiteral("Alegeti o copie din lista."));

        Apasa(&w, QStringLiteral("cmdCopieAcum"));
        // The copy runs beside the window: the window answers meanwhile.
        QVERIFY(!Control<QPushButton>(&w, QStringLiteral("cmdCopieAcum"))->isEnabled());
        pagina->copie().asteapta();
        QVERIFY(Control<QPushButton>(&w, QStringLiteral("cmdCopieAcum"))->isEnabled());
        QVERIFY2(Control<QLabel>(&w, QStringLiteral("lblStareCopie"))->text().contains(QStringLiteral("verificata")),
                 qPrintable(m.texte().join(QLatin1Char('\n'))));
        QCOMPARE(lista->topLevelItemCount(), 1);
        QVERIFY(lista->topLevelItem(0)->text(2).startsWith(QLatin1String("da, ")));
        QVERIFY(!lista->topLevelItem(0)->text(3).isEmpty());
        QVERIFY(w.width() <= 1366 && w.height() <= 768);

        Apasa(&w, QStringLiteral("cmdVerificaCopia"));
        QVERIFY2(m.ultimul().contains(QStringLiteral("este buna")), qPrintable(m.ultimul()));

        DateTest::Dosar(bd(), 2, {}, {{"CNP", DateTest::CNPNascut(QDate(1970, 7, 7))}});
        m.raspunde(false);
        Apasa(&w, QStringLiteral("cmdRestaureaza"));
        QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("Cereri")), 2);
        QVERIFY(!w.DateInlocuite());

        m.raspunde(true);
        Apasa(&w, QStringLiteral("cmdRestaureaza"));
        QVERIFY2(m.ultimul().startsWith(QLatin1String("Datele oficiului au fost restaurate")), qPrintable(m.ultimul()));
        // The program goes on, on the restored data.
        QVERIFY(BD::principala().deschisa());
        QCOMPARE(DateTest::NumaraRanduri(BD::principala(), QStringLiteral("Cereri")), 1);
        // The main window empties its list of the data that were replaced.
        QVERIFY(w.DateInlocuite());
        QVERIFY2(m.ultimul().contains(QStringLiteral("Lista de cereri din fereastra principala se goleste")),
                 qPrintable(m.ultimul()));
    }

    void copiaZileiLaPornire()
    {
        MesajeScript m;
        QMainWindow w;
        w.statusBar();
        w.show();
        QVERIFY(frmCopieLaPornire::Porneste(w));
        auto* f = w.findChild<frmCopieLaPornire*>();
        QVERIFY(f);
        QVERIFY(w.findChild<QProgressBar*>(QStringLiteral("prgCopieLaPornire")));
        f->copie().asteapta();
        QCOMPARE(Control<QLabel>(&w, QStringLiteral("lblCopieLaPornire"))->text(),
                 QStringLiteral("Copie de siguranta facuta"));
        QCOMPARE(m.texte(), QStringList());
        QCOMPARE(ListaCopii(LocCopiiDinSetari(Proces::setari()).folderCopii).size(), 1);
        // The second start of the day finds the copy made.
        QVERIFY(!frmCopieLaPornire::Porneste(w));
    }

    void copiaEsuataLaPornireSeSpune()
    {
        MesajeScript m;
        // The copies folder cannot be made: a file stands where it should be.
        QFile blocaj(QDir(m_oficiu->folderOficiu()).filePath(QStringLiteral("copii")));
        QVERIFY(blocaj.open(QIODevice::WriteOnly));
        blocaj.close();
        QMainWindow w;
        w.show();
        QVERIFY(frmCopieLaPornire::Porneste(w));
        w.findChild<frmCopieLaPornire*>()->copie().asteapta();
        QCOMPARE(Control<QLabel>(&w, QStringLiteral("lblCopieLaPornire"))->text(),
                 QStringLiteral("Copia de siguranta a esuat"));
        QVERIFY2(m.ultimul().contains(QStringLiteral("nu poate fi creat")), qPrintable(m.ultimul()));
        QVERIFY(w.isVisible());
    }
};

QTEST_MAIN(TestFrmCopii)
#include "tst_frmCopii.moc"
