// The move from the old program in its window: the dry run in the grid, the confirmation, the
// real run and its result; and the two ways to it, the maintenance window and the start-up
// window that asks for the missing database's folder.
#include "OficiuVechi.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"

#include "preluare/frmPreluare.h"
#include "maintenance/frmMentenanta.h"
#include "shell/Pornire.h"
#include "shell/frmGeneral.h"
#include "common/Ini.h"
#include "common/Proces.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// The folder form of a small office with its code lists and one application, made by hand.
QString dosarVechi(const QTemporaryDir& d)
{
    const QString vechi = d.filePath(QStringLiteral("vechi"));
    const auto scrie = [&](const char* nume, const QByteArray& text) {
        ScrieOcteti(vechi + QLatin1Char('/') + QLatin1String(nume), text);
    };
    ScrieListeDosar(vechi);
    scrie("Familii.json", "{\"FamilieID\":7,\"Strada\":\"Garii\"}\n{\"FamilieID\":7}\n");
    scrie("Cereri.json", "{\"CerereID\":7,\"FamilieID\":7,\"Stare\":2,\"TipCerere\":1,\"Cuantum\":107}\n");
    scrie("Membrii.json", "{\"MembruID\":3,\"Nume\":\"POP\",\"CNP\":\"1800101260010\"}\n");
    scrie("CereriMembrii.json", "{\"CerereID\":7,\"MembruID\":3,\"RudenieID\":1}\n");
    return vechi;
}

} // namespace

class TestFrmPreluare : public TestCuOficiu {
    Q_OBJECT
private slots:
    void incercareSiPreluare()
    {
        QTemporaryDir d;
        const QString vechi = dosarVechi(d);
        const QString nou = d.filePath(QStringLiteral("nou"));
        MesajeScript& m = *m_mesaje;
        frmPreluare w;
        w.show();
        QVERIFY(!Control<QPushButton>(&w, QStringLiteral("cmdPreia"))->isEnabled());
        Scrie(&w, QStringLiteral("txtDin"), vechi);
        Scrie(&w, QStringLiteral("txtOficiu"), nou);
        Apasa(&w, QStringLiteral("cmdIncearca"));
        auto* grd = Control<QTableWidget>(&w, QStringLiteral("grdTabele"));
        QCOMPARE(grd->rowCount(), 5);
        QCOMPARE(grd->item(0, 0)->text(), QStringLiteral("Familii"));
        QCOMPARE(grd->item(0, 1)->text(), QStringLiteral("2"));
        QCOMPARE(grd->item(0, 2)->text(), QStringLiteral("1"));
        QCOMPARE(grd->item(0, 3)->text(), QStringLiteral("1"));
        QVERIFY(Control<QPlainTextEdit>(&w, QStringLiteral("txtRaport"))
                    ->toPlainText()
                    .contains(QLatin1String("randul 2: cheia FamilieID = 7 apare a doua oara")));
        QVERIFY(!QFileInfo::exists(nou));

        // Refused at the question: still nothing written.
        m.raspunde(false);
        Apasa(&w, QStringLiteral("cmdPreia"));
        QVERIFY(!QFileInfo::exists(nou));
        m.raspunde(true);
        Apasa(&w, QStringLiteral("cmdPreia"));
        QVERIFY(w.preluat());
        QVERIFY(Control<QLabel>(&w, QStringLiteral("lblRezultat"))
                    ->text()
                    .startsWith(QLatin1String("Preluarea s-a incheiat")));
        auto* prg = Control<QProgressBar>(&w, QStringLiteral("prgPreluare"));
        QCOMPARE(prg->value(), prg->maximum());
        BD bd;
        bd.deschide(nou + QStringLiteral("/Tarnava.db"));
        QCOMPARE(bd.scalar(QStringLiteral("SELECT Cuantum FROM Cereri WHERE CerereID = 7")).toInt(), 107);
        QVERIFY(!Control<QPushButton>(&w, QStringLiteral("cmdPreia"))->isEnabled());
    }

    // A bad old folder is said, and the window stays for another choice.
    void folderGresit()
    {
        QTemporaryDir d;
        MesajeScript& m = *m_mesaje;
        frmPreluare w;
        w.show();
        Scrie(&w, QStringLiteral("txtDin"), d.filePath(QStringLiteral("lipsa")));
        Scrie(&w, QStringLiteral("txtOficiu"), d.filePath(QStringLiteral("nou")));
        Apasa(&w, QStringLiteral("cmdIncearca"));
        QVERIFY(m.ultimul().endsWith(QLatin1String("lipsa nu exista.")));
        QVERIFY(w.isVisible());
        QVERIFY(!Control<QPushButton>(&w, QStringLiteral("cmdPreia"))->isEnabled());
    }

    // From the start-up window of a missing database: the move goes into that folder, which
    // becomes CaleBD, and the program closes to open it at the next start.
    void dinPornire()
    {
        QTemporaryDir d;
        const QString vechi = dosarVechi(d);
        const QString nou = d.filePath(QStringLiteral("birou"));
        MesajeScript& m = *m_mesaje;
        frmGeneral g;
        g.Mod = 2;
        g.show();
        Scrie(&g, QStringLiteral("txt"), nou);
        HookModalTest hook([&](QDialog& dlg) {
            Scrie(&dlg, QStringLiteral("txtDin"), vechi);
            QCOMPARE(Text(&dlg, QStringLiteral("txtOficiu")), QDir::toNativeSeparators(nou));
            Apasa(&dlg, QStringLiteral("cmdIncearca"));
            m.raspunde(true);
            Apasa(&dlg, QStringLiteral("cmdPreia"));
            dlg.accept();
        });
        Apasa(&g, QStringLiteral("cmdPreluare"));
        QVERIFY(QFileInfo::exists(nou + QStringLiteral("/Tarnava.db")));
        QCOMPARE(CaleBDDinSetari(), nou);
        QCOMPARE(m.ultimul(), MesajInchidere);
    }

    void dinMentenanta()
    {
        frmMentenanta w;
        w.show();
        bool deschisa = false;
        HookModalTest hook([&](QDialog& dlg) {
            deschisa = dlg.objectName() == QLatin1String("frmPreluare");
            dlg.accept();
        });
        Apasa(&w, QStringLiteral("cmdPreluare"));
        QVERIFY(deschisa);
    }
};

QTEST_MAIN(TestFrmPreluare)
#include "tst_frmPreluare.moc"
