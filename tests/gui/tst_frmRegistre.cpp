// The register windows: their lists, their editors opened from the buttons, the selection after
// a change, and the messages that only a window gives.
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"

#include "database/BD.h"
#include "decisions/frmAdeverinte.h"
#include "registers/frmMembrii.h"
#include "registers/frmMotive.h"
#include "registers/frmSate.h"
#include "mainwindow/frmMainNou.h"

#include <QAction>
#include <QLabel>
#include <QTreeWidget>
#include <QtTest>

namespace {

QStringList coloana(QTreeWidget* l, int c)
{
    QStringList r;
    for (int i = 0; i < l->topLevelItemCount(); ++i)
        r << l->topLevelItem(i)->text(c);
    return r;
}

int randSelectat(QTreeWidget* l)
{
    return l->currentItem() && l->currentItem()->isSelected() ? l->indexOfTopLevelItem(l->currentItem()) : -1;
}

// The editor that opens next gets `nume` in its name box and is accepted through its OK.
HookModalTest scrieInEditor(const QString& nume)
{
    return HookModalTest([nume](QDialog& d) {
        Scrie(&d, QStringLiteral("txtText(0)"), nume);
        Apasa(&d, QStringLiteral("cmdOK"));
    });
}

} // namespace

class TestFrmRegistre : public TestCuOficiu {
    Q_OBJECT
private slots:
    void meniuriActive()
    {
        m_oficiu->scrieDatePrimarie();
        MesajeScript m;
        frmMainNou w;
        for (const char* n :
             {"mnuBarem", "mnuSate", "mnuMotive", "mnuAdev", "mnuMembrii", "mnuMentenanta", "mnuOptiuni"})
            QVERIFY2(w.meniu(QString::fromLatin1(n))->isEnabled(), n);
    }

    void motive()
    {
        MesajeScript m;
        frmMotive w;
        auto* lvw = Control<QTreeWidget>(&w, QStringLiteral("lvw"));
        QVERIFY(!Control<QWidget>(&w, QStringLiteral("cmdEdit"))->isEnabled());
        {
            const auto h = scrieInEditor(QStringLiteral("Mutare"));
            Apasa(&w, QStringLiteral("cmdAdd"));
        }
        {
            const auto h = scrieInEditor(QStringLiteral("Deces"));
            Apasa(&w, QStringLiteral("cmdAdd"));
        }
        QCOMPARE(coloana(lvw, 1), (QStringList{"Mutare", "Deces"}));
        QCOMPARE(randSelectat(lvw), 1);
        QVERIFY(Control<QWidget>(&w, QStringLiteral("cmdEdit"))->isEnabled());

        // The editor of the selected row opens with its name and keeps the row selected.
        SelecteazaRandTest(lvw, 0);
        QString titlu, incarcat;
        {
            const HookModalTest h([&](QDialog& d) {
                titlu = d.windowTitle();
                incarcat = Control<QLineEdit>(&d, QStringLiteral("txtText(0)"))->text();
                Scrie(&d, QStringLiteral("txtText(0)"), QStringLiteral("Mutare in alt judet"));
                Apasa(&d, QStringLiteral("cmdOK"));
            });
            QTest::keyClick(lvw, Qt::Key_Return);
        }
        QCOMPARE(titlu, QStringLiteral("Modificare Motiv"));
        QCOMPARE(incarcat, QStringLiteral("Mutare"));
        QCOMPARE(coloana(lvw, 1).first(), QStringLiteral("Mutare in alt judet"));
        QCOMPARE(randSelectat(lvw), 0);

        // A refused save keeps the editor open.
        {
            const HookModalTest h([&](QDialog& d) {
                Scrie(&d, QStringLiteral("txtText(0)"), QStringLiteral("  "));
                Apasa(&d, QStringLiteral("cmdOK"));
                QVERIFY(d.isVisible());
                d.reject();
            });
            Apasa(&w, QStringLiteral("cmdAdd"));
        }
        QCOMPARE(m.ultimul(), QStringLiteral("Nu ati completat denumirea Motivului"));

        // Delete by the key: the last row goes and the one before it is selected.
        SelecteazaRandTest(lvw, 1);
        m.raspunde(true);
        QTest::keyClick(lvw, Qt::Key_Delete);
        QCOMPARE(m.ultimul(), QStringLiteral("Sigur doriti sa stergeti Motivul Deces ?"));
        QCOMPARE(coloana(lvw, 1), QStringList{"Mutare in alt judet"});
        QCOMPARE(randSelectat(lvw), 0);
        m.raspunde(true);
        Apasa(&w, QStringLiteral("cmdDelete"));
        QCOMPARE(lvw->topLevelItemCount(), 0);
        Apasa(&w, QStringLiteral("cmdEdit"));
        QCOMPARE(m.ultimul(), QStringLiteral("Selectati mai intai un Motiv"));
    }

    void sate()
    {
        bd().executa(QStringLiteral(
            "INSERT INTO Strazi (StradaID, Denumire, OfPostal, CodPostal) VALUES (1, 'Garii', '1', '545400')"));
        MesajeScript m;
        frmSate w;
        auto* lvw = Control<QTreeWidget>(&w, QStringLiteral("lvwSate"));
        QCOMPARE(lvw->headerItem()->text(1), QStringLiteral("Denumire sat /strada"));
        QCOMPARE(coloana(lvw, 3), QStringList{"545400"});
        Apasa(&w, QStringLiteral("cmdDelete"));
        QCOMPARE(m.ultimul(), QStringLiteral("Selectati mai intai un sat /strada"));
        // The street editor has the postal fields.
        {
            const HookModalTest h([](QDialog& d) {
                QCOMPARE(d.windowTitle(), QStringLiteral("Adaugare strada / sat"));
                Scrie(&d, QStringLiteral("txtText(0)"), QStringLiteral("Morii"));
                Scrie(&d, QStringLiteral("txtText(2)"), QStringLiteral("545401"));
                Apasa(&d, QStringLiteral("cmdOK"));
            });
            Apasa(&w, QStringLiteral("cmdAdd"));
        }
        QCOMPARE(coloana(lvw, 3), (QStringList{"545400", "545401"}));
    }

    void adeverinte()
    {
        DateTest::Dosar(bd(), 1);
        bd().executa(QStringLiteral(
            "INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (11, 'ELEV', 'Ana', '5100303260013')"));
        bd().executa(QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, OcupatieID) VALUES (1, 11, 8)"));
        MesajeScript m;
        frmAdeverinte w;
        w.show();
        auto* cereri = Control<QTreeWidget>(&w, QStringLiteral("lvwCereri"));
        auto* adev = Control<QTreeWidget>(&w, QStringLiteral("lvwAdev"));
        QCOMPARE(coloana(cereri, 3), QStringList{"ELEV Ana"});
        QTest::mouseClick(cereri->viewport(), Qt::LeftButton, {},
                          cereri->visualItemRect(cereri->topLevelItem(0)).center());
        QCOMPARE(adev->topLevelItemCount(), 0);
        QVERIFY(!Control<QWidget>(&w, QStringLiteral("cmdEdit"))->isEnabled());

        QString elev;
        {
            const HookModalTest h([&](QDialog& d) {
                elev = Control<QLabel>(&d, QStringLiteral("lblElev"))->text();
                Scrie(&d, QStringLiteral("txtNrAdev"), QStringLiteral("123456789"));
                Apasa(&d, QStringLiteral("cmdOK"));
            });
            Apasa(&w, QStringLiteral("cmdAdd"));
        }
        QCOMPARE(elev, QStringLiteral("ELEV Ana"));
        // Eight characters at most; a certificate without an expiry date is told at the filling.
        QCOMPARE(coloana(adev, 1), QStringList{"12345678"});
        QCOMPARE(m.ultimul(), QStringLiteral("Adeverinta fara data expirarii"));
        QCOMPARE(randSelectat(adev), 0);
        QVERIFY(Control<QWidget>(&w, QStringLiteral("cmdEdit"))->isEnabled());
        m.raspunde(true);
        QTest::keyClick(adev, Qt::Key_Delete);
        QCOMPARE(m.ultimul(), QStringLiteral("Sigur doriti sa stergeti datele adeverintei 12345678 ?"));
        QCOMPARE(adev->topLevelItemCount(), 0);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Adeverinte")).toInt(), 0);
    }

    void membrii()
    {
        for (const char* n : {"POPESCU", "IONESCU", "ALBU"})
            bd().executa(QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, TipAct) "
                                        "VALUES ((SELECT COALESCE(MAX(MembruID), 0) + 1 FROM Membrii), ?, 'Ana', 2)"),
                         {QString::fromLatin1(n)});
        MesajeScript m;
        frmMembrii w;
        w.show();
        auto* lvw = Control<QTreeWidget>(&w, QStringLiteral("lvwMembrii"));
        QCOMPARE(coloana(lvw, 4), (QStringList{"CI", "CI", "CI"}));
        Scrie(&w, QStringLiteral("txt(0)"), QStringLiteral("pop"));
        QCOMPARE(coloana(lvw, 1), (QStringList{"ALBU", "IONESCU", "POPESCU"}));
        QCOMPARE(randSelectat(lvw), 2);
        Scrie(&w, QStringLiteral("txt(0)"), QStringLiteral("zz"));
        QTest::keyClick(Control<QLineEdit>(&w, QStringLiteral("txt(0)")), Qt::Key_Return);
        QCOMPARE(m.ultimul(), QStringLiteral("Nu s-a gasit Numele: zz"));
        // The register changes nothing: its buttons stand idle.
        Apasa(&w, QStringLiteral("cmdDelete"));
        QCOMPARE(lvw->topLevelItemCount(), 3);
    }

private:
    static void SelecteazaRandTest(QTreeWidget* l, int rand)
    {
        l->setCurrentItem(l->topLevelItem(rand));
        l->topLevelItem(rand)->setSelected(true);
    }
};

QTEST_MAIN(TestFrmRegistre)
#include "tst_frmRegistre.moc"
