// The case panels from the main window: inquiries and dispositions added, changed and
// deleted, applications deleted with their shared persons, and the rows another workstation
// deleted between the list and the click, or between the question and the delete.
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"
#include "gui_FereastraPrincipala.h"

#include "database/BD.h"
#include "gui/ComboCod.h"
#include "common/Ceas.h"
#include "mainwindow/ListaCereri.h"
#include "mainwindow/ModelCereri.h"
#include "mainwindow/frmMainNou.h"
#include "mainwindow/frmPanouriCerere.h"

#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>
#include <functional>

using DateTest::CNPNascut;
using DateTest::NumaraRanduri;

namespace {

// Scripted answers, and something that happens while the question is on the screen.
class MesajeCuPauza : public MesajeScript {
public:
    std::function<void()> laIntrebare;
    bool intreaba(const QString& text, const QString& titlu, Icon icon, bool implicitDa) override
    {
        if (laIntrebare)
            laIntrebare();
        return MesajeScript::intreaba(text, titlu, icon, implicitDa);
    }
};

const QString CopilComun = CNPNascut(QDate(2004, 4, 4), 90);

void fixtura(BD& bd)
{
    // Three applications of April 2012, in payment; a child stands on the first two.
    for (qint64 id : {1, 2, 3}) {
        QStringList cnpuri{CNPNascut(QDate(1970, 1, int(id)), int(id))};
        if (id != 3)
            cnpuri << CopilComun;
        DateTest::DosarCuMembri(bd, id, cnpuri, {{"DataCerere", "2012-04-10"}, {"Stare", 2}, {"NrCopii", 1}});
    }
}

// Grants of May 2012 on `cerereId`, each with its number for key, dated the 1st, 2nd, ... of May.
void adaugaDispozitii(const BD& bd, qint64 cerereId, const QList<int>& numere)
{
    int zi = 1;
    for (int nr : numere)
        DateTest::Dispozitie(bd, nr, cerereId,
                             {{"NrDisp", nr},
                              {"DataDisp", QStringLiteral("2012-05-0%1").arg(zi++)},
                              {"DinData", "2012-05-01"},
                              {"Luna", 5},
                              {"Cuantum", 200}});
}

QStringList coloana(const QTreeWidget* l, int c)
{
    QStringList t;
    for (int i = 0; i < l->topLevelItemCount(); ++i)
        t << l->topLevelItem(i)->text(c);
    return t;
}

} // namespace

class TestFrmMainNouPanouri : public TestCuOficiu {
    Q_OBJECT
    void pregatesteOficiul() override
    {
        m_oficiu->scrieDatePrimarie();
        fixtura(bd());
    }
    void pregateste() override
    {
        Ceas::seteazaAzi(QDate(2012, 5, 20));
        // The messages of these cases can also pause at a question (another workstation acts then).
        m_mesaje.reset();
        m_mesaje = std::make_unique<MesajeCuPauza>();
    }
    void curata() override { m_w.reset(); }
    MesajeCuPauza& mesaje() { return static_cast<MesajeCuPauza&>(*m_mesaje); }

private slots:

    void faraCereriButoaneOprite()
    {
        bd().executa(QStringLiteral("DELETE FROM Familii"));
        deschide();
        for (QPushButton* b : {p()->cmdAddAncheta(), p()->cmdEditAncheta(), p()->cmdDelAncheta(), p()->cmdAddDisp(),
                               p()->cmdEditDisp(), p()->cmdDelDisp()})
            QVERIFY2(!b->isEnabled(), qPrintable(b->objectName()));
    }

    void dispozitieAdaugataSiModificata()
    {
        deschide();
        ClicPeRand(*m_w, 1);
        QCOMPARE(m_w->CerereCurenta(), 2);
        QCOMPARE(p()->lvwDispozitii()->topLevelItemCount(), 0);
        QVERIFY(p()->cmdAddDisp()->isEnabled());
        QVERIFY(!p()->cmdEditDisp()->isEnabled());
        QVERIFY(!p()->cmdDelDisp()->isEnabled());
        {
            HookModalTest hook([](QDialog& d) {
                // Status 2: a grant, from April 2012, with the application's amount.
                QCOMPARE(CheieCombo(Control<QComboBox>(&d, "cboDispoz(0)")), 1);
                Scrie(&d, QStringLiteral("txtDispoz(0)"), QStringLiteral("101"));
                Apasa(&d, QStringLiteral("cmdOK"));
            });
            Apasa(m_w.get(), QStringLiteral("cmdAddDisp"));
        }
        QCOMPARE(m_w->Adaug(), 1);
        QCOMPARE(coloana(p()->lvwDispozitii(), 1), QStringList{"101"});
        QCOMPARE(coloana(p()->lvwDispozitii(), 2), QStringList{"20.05.2012"});
        QVERIFY(p()->cmdEditDisp()->isEnabled());
        QVERIFY(p()->lblExplic()->text().startsWith(QStringLiteral("Dispozitiile lui ")));
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Dispozitii"), QStringLiteral("CerereID = ?"), 2), 1);

        {
            HookModalTest hook([](QDialog& d) {
                QCOMPARE(Control<QLineEdit>(&d, "txtDispoz(0)")->text(), QStringLiteral("101"));
                Scrie(&d, QStringLiteral("txtDispoz(0)"), QStringLiteral("102"));
                Apasa(&d, QStringLiteral("cmdOK"));
            });
            Apasa(m_w.get(), QStringLiteral("cmdEditDisp"));
        }
        QCOMPARE(m_w->Adaug(), 2); // stays 2 after a change in a panel
        QCOMPARE(coloana(p()->lvwDispozitii(), 1), QStringList{"102"});
        QVERIFY(m_mesaje->intrari.isEmpty());
    }

    void anchetaAdaugataSiModificata()
    {
        deschide();
        ClicPeRand(*m_w, 0);
        {
            HookModalTest hook([](QDialog& d) {
                Scrie(&d, QStringLiteral("txtCerere(0)"), QStringLiteral("Ionescu"));
                Scrie(&d, QStringLiteral("txtCerere(1)"), QStringLiteral("2"));
                Scrie(&d, QStringLiteral("txtCerere(2)"), QStringLiteral("48"));
                for (int i : {0, 1, 3})
                    Control<QComboBox>(&d, QStringLiteral("cboCerere(%1)").arg(i))->setCurrentIndex(0);
                Apasa(&d, QStringLiteral("cmdOK"));
            });
            Apasa(m_w.get(), QStringLiteral("cmdAddAncheta"));
        }
        QCOMPARE(coloana(p()->lvwAnchete(), 1), QStringList{"20.05.2012"});
        QCOMPARE(coloana(p()->lvwAnchete(), 4), QStringList{"20.11.2012"});
        QCOMPARE(coloana(p()->lvwAnchete(), 5), QStringList{"valabilitate 6 luni"});
        QVERIFY(p()->cmdEditAncheta()->isEnabled());
        {
            HookModalTest hook([](QDialog& d) {
                Scrie(&d, QStringLiteral("txtCerere(2)"), QStringLiteral("50"));
                Apasa(&d, QStringLiteral("cmdOK"));
            });
            Apasa(m_w.get(), QStringLiteral("cmdEditAncheta"));
        }
        QCOMPARE(bd().scalar(QStringLiteral("SELECT SuprUtila FROM Anchete")).toDouble(), 50.0);
        QCOMPARE(p()->lvwAnchete()->topLevelItemCount(), 1);
        QVERIFY(m_mesaje->intrari.isEmpty());
    }

    void stergereDispozitie()
    {
        // Newest first: 13, 12, 11; the middle one goes and the next one is selected.
        adaugaDispozitii(bd(), 1, {11, 12, 13});
        deschide();
        ClicPeRand(*m_w, 0);
        QTreeWidget* l = p()->lvwDispozitii();
        l->setCurrentItem(l->topLevelItem(1));
        m_mesaje->raspunde(true);
        Apasa(m_w.get(), QStringLiteral("cmdDelDisp"));
        QCOMPARE(m_mesaje->texte(), QStringList{QStringLiteral("Sigur doriti sa stergeti dispozitia 12 ?")});
        QCOMPARE(coloana(l, 1), (QStringList{"13", "11"}));
        QCOMPARE(l->selectedItems().size(), 1);
        QCOMPARE(l->selectedItems().first()->text(1), QStringLiteral("11"));

        // Down to none: the edit, delete and print buttons go off, the add button stays.
        while (l->topLevelItemCount() > 0) {
            m_mesaje->raspunde(true);
            Apasa(m_w.get(), QStringLiteral("cmdDelDisp"));
        }
        QVERIFY(!p()->cmdEditDisp()->isEnabled());
        QVERIFY(!p()->cmdDelDisp()->isEnabled());
        QVERIFY(p()->cmdAddDisp()->isEnabled());
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 0);
    }

    void stergereaAncheteiEsteRefuzataMereu()
    {
        bd().executa(
            QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta) VALUES (1, 1, '2012-05-01')"));
        deschide();
        ClicPeRand(*m_w, 0);
        QCOMPARE(p()->lvwAnchete()->topLevelItemCount(), 1);
        Apasa(m_w.get(), QStringLiteral("cmdDelAncheta"));
        // The button looks the inquiry up by a field the table does not have: the engine's
        // refusal is reported before any question, and nothing is deleted.
        QCOMPARE(m_mesaje->intrari.size(), 1);
        QVERIFY(m_mesaje->ultimul().startsWith(QStringLiteral("Exceptie Valdera din \"Delete Anchete\" ")));
        QCOMPARE(p()->lvwAnchete()->topLevelItemCount(), 1);

        // With no inquiry selected, the selection is asked for first.
        p()->lvwAnchete()->clearSelection();
        m_mesaje->goleste();
        Apasa(m_w.get(), QStringLiteral("cmdDelAncheta"));
        QCOMPARE(m_mesaje->texte(), QStringList{"Selectati o ancheta!"});
    }

    void stergereCerere()
    {
        adaugaDispozitii(bd(), 1, {11});
        deschide();
        ClicPeRand(*m_w, 0);
        m_mesaje->raspunde(false);
        Apasa(m_w.get(), QStringLiteral("cmdDelete"));
        QCOMPARE(m_mesaje->texte(), QStringList{"Sigur doriti sa stergeti cererea 101 ?"});
        QCOMPARE(m_w->modelCereri()->rowCount(), 3);
        QCOMPARE(m_w->RandSelectat(), 0);

        m_mesaje->goleste();
        m_mesaje->raspunde(true);
        Apasa(m_w.get(), QStringLiteral("cmdDelete"));
        QCOMPARE(m_w->modelCereri()->rowCount(), 2);
        QCOMPARE(m_w->RandSelectat(), 0);
        QCOMPARE(m_w->TextSelectat(ColCerere::NrCerere), QStringLiteral("102"));
        QCOMPARE(Control<QLabel>(m_w.get(), "lblRezul")->text(), QStringLiteral("2 cereri"));
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Cereri"), QStringLiteral("CerereID = ?"), 1), 0);

        // The last row of the list: the new last row is selected.
        ClicPeRand(*m_w, 1);
        m_mesaje->raspunde(true);
        Apasa(m_w.get(), QStringLiteral("cmdDelete"));
        QCOMPARE(m_w->modelCereri()->rowCount(), 1);
        QCOMPARE(m_w->RandSelectat(), 0);
    }

    void stearsaDeAltaStatie_data()
    {
        QTest::addColumn<QString>("buton");
        QTest::addColumn<QString>("sters"); // what the other workstation deletes
        QTest::addColumn<QString>("mesaj");
        const QString cerere = QStringLiteral("DELETE FROM Familii WHERE FamilieID = 1");
        const QString disp = QStringLiteral("DELETE FROM Dispozitii");
        QTest::newRow("dispozitie noua") << "cmdAddDisp" << cerere
                                         << "Cererea selectata a fost stearsa de alt utilizator! Dati clic pe Cauta";
        QTest::newRow("modificare dispozitie")
            << "cmdEditDisp" << disp << "Randul curent nu a fost gasit. Dati clic pe Cerere!";
        QTest::newRow("stergere cerere") << "cmdDelete" << cerere
                                         << "Randul curent nu a fost gasit. Dati clic pe Cauta!";
    }

    void stearsaDeAltaStatie()
    {
        QFETCH(QString, buton);
        QFETCH(QString, sters);
        QFETCH(QString, mesaj);
        adaugaDispozitii(bd(), 1, {11});
        deschide();
        ClicPeRand(*m_w, 0);
        QCOMPARE(p()->lvwDispozitii()->topLevelItemCount(), 1);
        m_oficiu->executaDinAltCalculator(sters);
        const qint64 inainte = NumaraRanduri(bd(), QStringLiteral("Membrii"));
        bool deschisa = false;
        HookModalTest hook([&](QDialog&) { deschisa = true; });
        Apasa(m_w.get(), buton);
        QCOMPARE(m_mesaje->texte(), QStringList{mesaj});
        QVERIFY(!deschisa);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), inainte);
        QCOMPARE(m_w->modelCereri()->rowCount(), 3);
    }

    void cerereStearsaIntreIntrebareSiStergere()
    {
        deschide();
        ClicPeRand(*m_w, 0);
        mesaje().laIntrebare = [this] {
            m_oficiu->executaDinAltCalculator(QStringLiteral("DELETE FROM Familii WHERE FamilieID = 1"));
        };
        m_mesaje->raspunde(true);
        const qint64 membri = NumaraRanduri(bd(), QStringLiteral("Membrii"));
        Apasa(m_w.get(), QStringLiteral("cmdDelete"));
        // Gone meanwhile: nothing more is said and nothing else is deleted.
        QCOMPARE(m_mesaje->texte(), QStringList{"Sigur doriti sa stergeti cererea 101 ?"});
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), membri);
        QVERIFY(!bd().inTranzactie());
    }

private:
    std::unique_ptr<frmMainNou> m_w;
    PanouriCerere* p() { return m_w->panouri(); }
    void deschide();
};

void TestFrmMainNouPanouri::deschide()
{
    m_w = std::make_unique<frmMainNou>();
    m_w->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_w.get()));
}

QTEST_MAIN(TestFrmMainNouPanouri)
#include "tst_frmMainNouPanouri.moc"
