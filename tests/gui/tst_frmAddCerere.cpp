// The application editor and its sub-editors driven as an officer would: members through
// frmAddMembru, incomes through frmAddVenituri, housing and assets, the save and the reload.
#include "TestCuOficiu.h"
#include "gui_Dialog.h"

#include "applications/IncarcaCerere.h"
#include "applications/RegulaVenituriLocuinta.h"
#include "applications/frmAddCerere.h"
#include "applications/frmAddMembru.h"
#include "database/BD.h"
#include "import/Demo.h"
#include "gui/CampData.h"
#include "gui/ComboCod.h"
#include "common/Bani.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/FisiereHelper.h"
#include "common/Setari.h"
#include "common/Proces.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QTableWidget>
#include <QTreeWidget>

#include <memory>

namespace {

struct Persoana {
    QString cnp;
    QString nume;
    QString prenume;
    int rudenie;
    int ocupatie;
};

const QString Adult1 = CNPInventat(1, QDate(1985, 5, 10), 12, 11);
const QString Adult2 = CNPInventat(2, QDate(1987, 8, 21), 12, 12);
const QString Copil1 = CNPInventat(5, QDate(2015, 2, 3), 12, 13);
const QString Copil2 = CNPInventat(6, QDate(2019, 11, 30), 12, 14);

QList<Persoana> Familia()
{
    return {{Adult1, QStringLiteral("Pop"), QStringLiteral("Ion"), 1, 1},
            {Adult2, QStringLiteral("Pop"), QStringLiteral("Maria"), 2, 6},
            {Copil1, QStringLiteral("Pop"), QStringLiteral("Ana"), 3, 8},
            {Copil2, QStringLiteral("Pop"), QStringLiteral("Dan"), 3, 11}};
}

void SeteazaText(QWidget* w, const QString& nume, const QString& text)
{
    Control<QLineEdit>(w, nume)->setText(text);
}

// A barem row of lei, as the database holds it.
QString Barem(int tip, int copii, int suma)
{
    return Bani::dinVariant(BD::principala().scalar(
                                QStringLiteral("SELECT Barem FROM Barem WHERE Tip = ? AND NrPers = ? AND Suma = ?"),
                                {tip, copii, suma}))
        .text();
}

// Fills frmAddMembru from a person and accepts it.
void CompleteazaMembru(QDialog& d, const Persoana& p)
{
    QCOMPARE(d.objectName(), QStringLiteral("frmAddMembru"));
    Control<QComboBox>(&d, "cboCNP")->setEditText(p.cnp);
    Paraseste(&d, "cboCNP");
    SeteazaText(&d, "txtMembru(0)", p.nume);
    SeteazaText(&d, "txtMembru(1)", p.prenume);
    Alege(&d, "cboMembru(0)", p.rudenie);
    Alege(&d, "cboMembru(6)", p.ocupatie);
    Apasa(&d, "cmdOK");
}

void AdaugaMembru(frmAddCerere& f, const Persoana& p)
{
    HookModalTest h([&p](QDialog& d) { CompleteazaMembru(d, p); });
    Apasa(&f, "cmdAdd");
}

// Types the incomes by code into frmAddVenituri and accepts them.
void IntroduceVenituri(frmAddCerere& f, const QList<QPair<int, QString>>& valori)
{
    HookModalTest h([&valori](QDialog& d) {
        auto* g = Control<QTableWidget>(&d, "Grid");
        for (const auto& [cod, valoare] : valori)
            g->item(cod - 1, 2)->setText(valoare);
        Apasa(&d, "cmdOK");
    });
    Apasa(&f, "cmdVenit");
}

// What every application needs before its save, bar the members.
void CompleteazaAntet(frmAddCerere& f)
{
    SeteazaText(&f, "txtCerere(0)", QStringLiteral("12"));
    SeteazaText(&f, "txtCerere(1)", QStringLiteral("34"));
    Control<QComboBox>(&f, "cboCerere(0)")->setEditText(QStringLiteral("Florilor"));
    SeteazaText(&f, "txtCerere(2)", QStringLiteral("7A"));
    Alege(&f, "cboCerere(3)", 1);
    Alege(&f, "cboCerere(4)", 2);
}

// The whole family and an income total of 1000: an application ready for its OK.
void CompleteazaFamilia(frmAddCerere& f)
{
    CompleteazaAntet(f);
    for (const Persoana& p : Familia())
        AdaugaMembru(f, p);
    IntroduceVenituri(f, {{1, QStringLiteral("1000")}});
}

} // namespace

class TestFrmAddCerere : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        m_oficiu->scrieDatePrimarie();
        Proces::setari().AnSetat = 2024;
        Proces::setari().LunaSetata = 3;
        Ceas::seteazaAzi(QDate(2024, 3, 12));
        RetineLunaGospod(0);
    }

private slots:
    void cerereNouaCuDoiAdultiSiDoiCopii()
    {
        frmAddCerere f(nullptr, 1);
        f.show();
        QCOMPARE(f.windowTitle(), QStringLiteral("Adaugare cerere"));
        // Prefilled from the town hall's county and place, today's date, the default lists.
        QVERIFY(!Text(&f, "txtCerere(5)").isEmpty());
        QVERIFY(!Text(&f, "txtCerere(6)").isEmpty());
        QCOMPARE(Control<CampData>(&f, "dtpData(0)")->data(), QDate(2024, 3, 12));
        QCOMPARE(Control<QComboBox>(&f, "cboCerere(1)")->currentIndex(), 0);
        QCOMPARE(Control<QComboBox>(&f, "cboCerere(2)")->currentIndex(), 2);
        QVERIFY(!Control<QPushButton>(&f, "cmdEdit")->isEnabled());
        QVERIFY(!Control<QPushButton>(&f, "cmdDelete")->isEnabled());

        CompleteazaAntet(f);
        for (const Persoana& p : Familia())
            AdaugaMembru(f, p);
        QCOMPARE(Text(&f, "txtCerere(15)"), QStringLiteral("4"));
        QCOMPARE(Text(&f, "txtCerere(16)"), QStringLiteral("2"));
        auto* lvw = Control<QTreeWidget>(&f, "lvw");
        QCOMPARE(lvw->topLevelItem(0)->text(5), QStringLiteral("TITULARUL"));
        QCOMPARE(lvw->topLevelItem(3)->text(8), QStringLiteral("30.11.2037"));
        QVERIFY(Control<QPushButton>(&f, "cmdEdit")->isEnabled());

        // 600 + 400 = 1000 lei for four: 250 each, the second tier.
        IntroduceVenituri(f, {{1, QStringLiteral("600")}, {7, QStringLiteral("400")}});
        QCOMPARE(Text(&f, "txtCerere(13)"), QStringLiteral("250"));
        QCOMPARE(Text(&f, "txtCerere(14)"), Barem(1, 2, 370));

        m_mesaje->goleste();
        Apasa(&f, "cmdOK");
        QVERIFY2(f.ESTE_OK(), qPrintable(m_mesaje->texte().join(QLatin1Char('|'))));
        QVERIFY(!f.isVisible());
        const qint64 id = f.CerereID();
        QVERIFY(id > 0);

        // What the window gathered reaches the file (the rows themselves are the save's tests).
        const Cerere salvata = IncarcaCerere(BD::principala(), id);
        QCOMPARE(salvata.Strada, QStringLiteral("Florilor"));
        QCOMPARE(salvata.Membrii.size(), size_t(4));
    }

    void redeschidereInModificare()
    {
        const qint64 id = salveazaFamilia();
        QVERIFY(id > 0);

        frmAddCerere f(nullptr, 2, id);
        f.show();
        QVERIFY(f.EsteIncarcata());
        QCOMPARE(f.windowTitle(), QStringLiteral("Modificare cerere"));
        QCOMPARE(Control<QComboBox>(&f, "cboCerere(0)")->currentText(), QStringLiteral("Florilor"));
        QCOMPARE(CheieCombo(Control<QComboBox>(&f, "cboCerere(4)")), 2);
        QCOMPARE(Text(&f, "txtCerere(14)"), Barem(1, 2, 370));
        auto* lvw = Control<QTreeWidget>(&f, "lvw");

        // The incomes come back into the income editor.
        {
            HookModalTest h([](QDialog& d) {
                QCOMPARE(Control<QTableWidget>(&d, "Grid")->item(0, 2)->text(), QStringLiteral("1000"));
                Apasa(&d, "cmdCancel");
            });
            Apasa(&f, "cmdVenit");
        }

        // Changing a member through the editor: the row is rewritten, the save edits in place.
        lvw->setCurrentItem(lvw->topLevelItem(1));
        {
            HookModalTest h([](QDialog& d) {
                QCOMPARE(Control<QLineEdit>(&d, "txtMembru(1)")->text(), QStringLiteral("Maria"));
                QCOMPARE(Control<QComboBox>(&d, "cboCNP")->currentText(), Adult2);
                SeteazaText(&d, "txtMembru(1)", QStringLiteral("Maria Elena"));
                Apasa(&d, "cmdOK");
            });
            Apasa(&f, "cmdEdit");
        }
        QCOMPARE(lvw->topLevelItem(1)->text(2), QStringLiteral("Maria Elena"));
        Apasa(&f, "cmdOK");
        QVERIFY2(f.ESTE_OK(), qPrintable(m_mesaje->texte().join(QLatin1Char('|'))));
        QCOMPARE(f.CerereID(), id);

        QCOMPARE(BD::principala().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri")).toInt(), 1);
        QCOMPARE(
            BD::principala().scalar(QStringLiteral("SELECT Prenume FROM Membrii WHERE CNP = ?"), {Adult2}).toString(),
            QStringLiteral("Maria Elena"));
    }

    void verificareEsuataTineDialogulDeschis_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("valoare"); // what the box gets; "" empties it
        QTest::addColumn<QString>("mesaj");
        QTest::addColumn<QString>("focus");
        QTest::newRow("nr dosar") << "txtCerere(0)"
                                  << ""
                                  << "Nu puteti salva datele inainte de a introduce Numarul Dosarului"
                                  << "txtCerere(0)";
        QTest::newRow("statut") << "cboCerere(4)"
                                << ""
                                << "Statut incorect. Selectati din lista un statut corect"
                                << "cboCerere(4)";
        QTest::newRow("fara membri") << "lvw"
                                     << ""
                                     << "Este obligatorie adaugarea titularului cererii"
                                     << "cmdAdd";
        QTest::newRow("luni retroactiv peste coloana")
            << "txtCerere(22)"
            << "256"
            << "Valoarea 256 nu incape in campul LuniRetro, care primeste numere intre 0 si 255. Corectati!"
            << "txtCerere(22)";
    }

    void verificareEsuataTineDialogulDeschis()
    {
        QFETCH(QString, control);
        QFETCH(QString, valoare);
        QFETCH(QString, mesaj);
        QFETCH(QString, focus);

        frmAddCerere f(nullptr, 1);
        f.show();
        CompleteazaAntet(f);
        if (control != QLatin1String("lvw"))
            AdaugaMembru(f, Familia()[0]);
        if (control.startsWith(QLatin1String("txt")))
            SeteazaText(&f, control, valoare);
        else if (control.startsWith(QLatin1String("cbo")))
            Control<QComboBox>(&f, control)->setCurrentIndex(-1);
        Control<QPushButton>(&f, "cmdCancel")->setFocus();

        m_mesaje->goleste();
        Apasa(&f, "cmdOK");
        QCOMPARE(m_mesaje->ultimul(), mesaj);
        QVERIFY(f.isVisible());
        QVERIFY(!f.ESTE_OK());
        QCOMPARE(f.focusWidget()->objectName(), focus);
        QCOMPARE(BD::principala().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri")).toInt(), 0);
    }

    void salvareEsuataPastreazaCeSaScris()
    {
        frmAddCerere f(nullptr, 1);
        f.show();
        CompleteazaFamilia(f);

        // Another workstation's maintenance takes a table away under the save.
        m_oficiu->executaDinAltCalculator(QStringLiteral("DROP TABLE Locuinte"));

        m_mesaje->goleste();
        Apasa(&f, "cmdOK");
        QVERIFY(!f.ESTE_OK());
        QVERIFY(f.isVisible());
        QVERIFY2(m_mesaje->ultimul().contains(QStringLiteral("3078")), qPrintable(m_mesaje->ultimul()));

        // Nothing half-written, everything typed still there.
        QCOMPARE(BD::principala().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri")).toInt(), 0);
        QCOMPARE(Text(&f, "txtCerere(12)"), QStringLiteral("1000"));
        QCOMPARE(Control<QTreeWidget>(&f, "lvw")->topLevelItemCount(), 4);
    }

    void cod80RefuzatSiRenuntareaNuSchimbaNimic()
    {
        frmAddCerere f(nullptr, 1);
        f.show();
        CompleteazaAntet(f);
        AdaugaMembru(f, Familia()[0]);
        IntroduceVenituri(f, {{2, QStringLiteral("300")}});
        QCOMPARE(Text(&f, "txtCerere(12)"), QStringLiteral("300"));

        bool ramasDeschis = false;
        {
            HookModalTest h([&](QDialog& d) {
                auto* g = Control<QTableWidget>(&d, "Grid");
                QCOMPARE(Control<QLabel>(&d, "lblTotalVenituri")->text(), TextTotalVenituri(300));
                g->item(1, 2)->setText(QStringLiteral("999"));
                g->item(79, 2)->setText(QStringLiteral("5"));
                // Row 80 stays out of the running total.
                QCOMPARE(Control<QLabel>(&d, "lblTotalVenituri")->text(), TextTotalVenituri(999));
                m_mesaje->goleste();
                Apasa(&d, "cmdOK");
                QCOMPARE(m_mesaje->ultimul(), MesajCod80);
                QCOMPARE(g->currentRow(), 79);
                ramasDeschis = d.isVisible() && d.result() != QDialog::Accepted;
                Apasa(&d, "cmdCancel");
            });
            Apasa(&f, "cmdVenit");
        }
        QVERIFY(ramasDeschis);
        QCOMPARE(Text(&f, "txtCerere(12)"), QStringLiteral("300"));
    }

    void locuintaSiBifeDusIntors()
    {
        frmAddCerere f(nullptr, 1);
        f.show();
        CompleteazaAntet(f);
        AdaugaMembru(f, Familia()[0]);
        {
            HookModalTest h([](QDialog& d) {
                QCOMPARE(d.windowTitle(), QStringLiteral("Adaugare date locuinta"));
                QVERIFY(!Control<QWidget>(&d, "picLocuinta(2)")->isEnabled());
                Control<QCheckBox>(&d, "chkLocuinta(2)")->setChecked(true);
                QVERIFY(Control<QWidget>(&d, "picLocuinta(2)")->isEnabled());
                SeteazaText(&d, "txtNrCamere(2)", QStringLiteral("3"));
                SeteazaText(&d, "txtSuprafata(2)", QStringLiteral("54.5"));
                Control<QCheckBox>(&d, "chkLocuinta(7)")->setChecked(true);
                Alege(&d, "cboLocuinta(1)", 1);
                Alege(&d, "cboLocuinta(3)", 2);
                Apasa(&d, "cmdOK");
            });
            Apasa(&f, "cmdLocuinta");
        }
        {
            HookModalTest h([](QDialog& d) {
                QCOMPARE(d.windowTitle(), QStringLiteral("Bunuri care duc la excludere"));
                auto* l = Control<QListWidget>(&d, "lstBife");
                QVERIFY(l->item(0)->text().startsWith(QStringLiteral("1. - ")));
                l->item(0)->setCheckState(Qt::Checked);
                l->item(2)->setCheckState(Qt::Checked);
                Apasa(&d, "cmdOK");
            });
            Apasa(&f, "cmdBife");
        }
        QCOMPARE(Control<QLabel>(&f, "lblCuantum")->text(), QStringLiteral("Cuantum: "));
        Apasa(&f, "cmdOK");
        QVERIFY2(f.ESTE_OK(), qPrintable(m_mesaje->texte().join(QLatin1Char('|'))));
        const qint64 id = f.CerereID();

        QVERIFY(BD::principala()
                    .scalar(QStringLiteral("SELECT Bife FROM Cereri WHERE CerereID = ?"), {id})
                    .toString()
                    .startsWith(QLatin1String("101")));
    }

    void stergereMembruIntreaba_data()
    {
        QTest::addColumn<bool>("raspuns");
        QTest::addColumn<int>("ramasi");
        QTest::newRow("da") << true << 1;
        QTest::newRow("nu") << false << 2;
    }

    void stergereMembruIntreaba()
    {
        QFETCH(bool, raspuns);
        QFETCH(int, ramasi);

        frmAddCerere f(nullptr, 1);
        f.show();
        CompleteazaAntet(f);
        AdaugaMembru(f, Familia()[0]);
        AdaugaMembru(f, Familia()[1]);
        auto* lvw = Control<QTreeWidget>(&f, "lvw");
        QCOMPARE(lvw->currentItem(), lvw->topLevelItem(1));

        m_mesaje->goleste();
        m_mesaje->raspunde(raspuns);
        Apasa(&f, "cmdDelete");
        QCOMPARE(m_mesaje->intrari.size(), 1);
        QVERIFY(m_mesaje->intrari[0].intrebare);
        QCOMPARE(m_mesaje->intrari[0].text,
                 QStringLiteral("Sigur doriti sa eliminati datele persoanei Pop Maria din aceasta cerere?"));
        QCOMPARE(lvw->topLevelItemCount(), ramasi);
        QCOMPARE(Text(&f, "txtCerere(15)"), QString::number(ramasi));
        QCOMPARE(lvw->topLevelItem(0)->text(3), Adult1);
        QVERIFY(lvw->currentItem() != nullptr);

        // The last one gone: nothing left to change or remove.
        if (raspuns) {
            m_mesaje->raspunde(true);
            Apasa(&f, "cmdDelete");
            QCOMPARE(lvw->topLevelItemCount(), 0);
            QVERIFY(!Control<QPushButton>(&f, "cmdEdit")->isEnabled());
            QVERIFY(!Control<QPushButton>(&f, "cmdDelete")->isEnabled());
        }
        QCOMPARE(BD::principala().scalar(QStringLiteral("SELECT COUNT(*) FROM Membrii")).toInt(), 0);
    }

    void primulMembruEsteTitularul()
    {
        frmAddCerere f(nullptr, 1);
        f.show();
        CompleteazaAntet(f);
        int randuriPrimul = 0;
        int randuriAlDoilea = 0;
        {
            HookModalTest h([&](QDialog& d) {
                auto* c = Control<QComboBox>(&d, "cboMembru(0)");
                randuriPrimul = c->count();
                QCOMPARE(c->currentText(), QStringLiteral("TITULARUL"));
                QCOMPARE(CheieCombo(c), 1);
                QCOMPARE(Control<CampData>(&d, "dtpData(0)")->data(), QDate(2024, 3, 12));
                CompleteazaMembru(d, Familia()[0]);
            });
            Apasa(&f, "cmdAdd");
        }
        {
            HookModalTest h([&](QDialog& d) {
                auto* c = Control<QComboBox>(&d, "cboMembru(0)");
                randuriAlDoilea = c->count();
                QCOMPARE(c->currentIndex(), -1);
                Apasa(&d, "cmdCancel");
            });
            Apasa(&f, "cmdAdd");
        }
        QCOMPARE(randuriPrimul, 1);
        QCOMPARE(randuriAlDoilea, 5);
        QCOMPARE(Control<QTreeWidget>(&f, "lvw")->topLevelItemCount(), 1);
    }

    void persoanaCunoscutaCompleteazaCampurile()
    {
        const qint64 id = salveazaFamilia();
        QVERIFY(id > 0);
        const qint64 maria = BD::principala()
                                 .scalar(QStringLiteral("SELECT MembruID FROM Membrii WHERE CNP = ?"), {Adult2})
                                 .toLongLong();
        frmAddCerere f(nullptr, 1);
        f.show();
        CompleteazaAntet(f);
        SeteazaText(&f, "txtCerere(1)", QStringLiteral("99"));
        m_mesaje->goleste();
        HookModalTest h([maria](QDialog& d) {
            // The list holds no one until the clerk types; then the persons whose CNP begins so.
            auto* cnp = Control<QComboBox>(&d, "cboCNP");
            QCOMPARE(cnp->count(), 0);
            cnp->setFocus();
            QTest::keyClicks(cnp->lineEdit(), Adult2.left(3));
            QCOMPARE(cnp->count(), 1);
            QCOMPARE(cnp->itemText(0), Adult2);
            QCOMPARE(cnp->currentText(), Adult2.left(3));
            QCOMPARE(CheieCombo(cnp), 0);
            // Typed whole, the CNP chooses that person's row.
            QTest::keyClicks(cnp->lineEdit(), Adult2.mid(3));
            QCOMPARE(CheieCombo(cnp), maria);
            Paraseste(&d, "cboCNP");
            QCOMPARE(Control<QLineEdit>(&d, "txtMembru(0)")->text(), QStringLiteral("Pop"));
            QCOMPARE(Control<QLineEdit>(&d, "txtMembru(1)")->text(), QStringLiteral("Maria"));
            Apasa(&d, "cmdCancel");
        });
        Apasa(&f, "cmdAdd");
        QVERIFY(m_mesaje->texte().contains(
            QStringLiteral("CNP-ul acestei persoane exista in Baza de Date la Pop Maria, cererea nr: 34")));
    }

    void membruFaraTipAlocatie()
    {
        frmAddCerere f(nullptr, 1);
        f.show();
        bool deschis = false;
        HookModalTest h([&deschis](QDialog& d) {
            deschis = true;
            Apasa(&d, "cmdCancel");
        });
        Apasa(&f, "cmdAdd");
        QVERIFY(!deschis);
        QCOMPARE(m_mesaje->ultimul(), QStringLiteral("Introduceti tipul de alocatie!"));
        QCOMPARE(f.focusWidget()->objectName(), QStringLiteral("cboCerere(3)"));
    }

    void cerereStearsaDeAltCalculatorInchide()
    {
        const qint64 id = salveazaFamilia();
        QVERIFY(id > 0);
        frmAddCerere f(nullptr, 2, id);
        f.show();
        BD::principala().executa(QStringLiteral("DELETE FROM Cereri WHERE CerereID = ?"), {id});
        m_mesaje->goleste();
        Apasa(&f, "cmdOK");
        QCOMPARE(m_mesaje->ultimul(),
                 QStringLiteral("Aceasta cerere a fost stearsa de alt utilizator. Modificarile dvs. nu "
                                "pot avea loc. Aceasta fereastra se va inchide!"));
        QVERIFY(!f.isVisible());
        QVERIFY(!f.ESTE_OK());
        QCOMPARE(BD::principala().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri")).toInt(), 0);
    }

    void adeverinteMembruDusIntors()
    {
        frmAddCerere f(nullptr, 1);
        f.show();
        CompleteazaAntet(f);
        {
            HookModalTest h([](QDialog& d) {
                auto* g = Control<QTableWidget>(&d, "Grid");
                QCOMPARE(g->horizontalHeaderItem(0)->text(), QStringLiteral("Tip Adeverinta"));
                Apasa(&d, "cmdAddRand");
                Apasa(&d, "cmdAddRand");
                QCOMPARE(g->rowCount(), 2);
                SelecteazaCheie(qobject_cast<QComboBox*>(g->cellWidget(0, 0)), 3);
                g->item(0, 1)->setText(QStringLiteral("123"));
                g->item(0, 2)->setText(QStringLiteral("01.02.2024"));
                g->item(0, 3)->setText(QStringLiteral("05.02.2024"));
                g->item(0, 4)->setText(QStringLiteral("30.06.2024"));
                // The second, empty row goes away again.
                g->setCurrentCell(1, 1);
                Apasa(&d, "cmdDelRand");
                QCOMPARE(g->rowCount(), 1);
                CompleteazaMembru(d, Familia()[0]);
            });
            Apasa(&f, "cmdAdd");
        }
        Apasa(&f, "cmdOK");
        QVERIFY2(f.ESTE_OK(), qPrintable(m_mesaje->texte().join(QLatin1Char('|'))));
        const qint64 id = f.CerereID();
        Rezultat r = BD::principala().selecteaza(QStringLiteral("SELECT * FROM Adeverinte WHERE CerereID = ?"), {id});
        QVERIFY(r.next());
        QCOMPARE(r.numar("TipAdeverinta"), 3);
        QCOMPARE(DataDinBD(r["DataExpAdev"]), QDate(2024, 6, 30));
        QVERIFY(!r.next());
    }

    void enterInGridVenituriMutaRandul()
    {
        frmAddCerere f(nullptr, 1);
        f.show();
        HookModalTest h([](QDialog& d) {
            auto* g = Control<QTableWidget>(&d, "Grid");
            QCOMPARE(Control<QLabel>(&d, "lblTotalVenituri")->text(), TextTotalVenituri(0));
            g->setCurrentCell(4, 2);
            QTest::keyClick(g, Qt::Key_Return);
            QCOMPARE(g->currentRow(), 5);
            QCOMPARE(g->currentColumn(), 2);
            Apasa(&d, "cmdCancel");
        });
        Apasa(&f, "cmdVenit");
    }

    void aspectGridVenituriDinSetari()
    {
        Proces::setari().FontSize0 = 14;
        Proces::setari().FontB0 = 255;
        // A Windows colour: blue-green-red, 255 is pure red.
        FisiereHelper().ScrieIni(QStringLiteral("CuloareVenit"), QStringLiteral("Generale"), FisierSetari(),
                                 QStringLiteral("255"));
        frmAddCerere f(nullptr, 1);
        f.show();
        HookModalTest h([](QDialog& d) {
            auto* g = Control<QTableWidget>(&d, "Grid");
            QCOMPARE(g->font().pointSize(), 14);
            QVERIFY(g->font().bold());
            QCOMPARE(g->palette().color(QPalette::Base), QColor(255, 0, 0));
            QCOMPARE(g->item(0, 1)->text().isEmpty(), false);
            Apasa(&d, "cmdCancel");
        });
        Apasa(&f, "cmdVenit");
    }

    // "Gospodareste" shows what the application holds: a choice made in the income editor is not
    // taken back, while the month is.
    void gospodaresteAlesNuSeCopiazaInCerere()
    {
        frmAddCerere f(nullptr, 1);
        f.show();
        {
            HookModalTest h([](QDialog& d) {
                Alege(&d, "cboVenit(0)", 1);
                Alege(&d, "cboVenit(1)", 5);
                Apasa(&d, "cmdOK");
            });
            Apasa(&f, "cmdVenit");
        }
        HookModalTest h([](QDialog& d) {
            QCOMPARE(Control<QComboBox>(&d, "cboVenit(0)")->currentIndex(), -1);
            QCOMPARE(CheieCombo(Control<QComboBox>(&d, "cboVenit(1)")), 5);
            Apasa(&d, "cmdCancel");
        });
        Apasa(&f, "cmdVenit");
    }

    void cerereInexistentaNuSeIncarca()
    {
        frmAddCerere f(nullptr, 2, 999);
        QVERIFY(!f.EsteIncarcata());
        QVERIFY(m_mesaje->ultimul().startsWith(QStringLiteral("Eroare in AfisDate: ")));
        QVERIFY(!Control<QPushButton>(&f, "cmdOK")->isEnabled());
    }

    void numarDosarFolositAvertizeazaLaIesire()
    {
        QVERIFY(salveazaFamilia() > 0);
        frmAddCerere f(nullptr, 1);
        f.show();
        m_mesaje->goleste();
        SeteazaText(&f, "txtCerere(0)", QStringLiteral("12"));
        Paraseste(&f, "txtCerere(0)");
        SeteazaText(&f, "txtCerere(1)", QStringLiteral("34"));
        Paraseste(&f, "txtCerere(1)");
        QCOMPARE(m_mesaje->texte(), (QStringList{QStringLiteral("Numarul 12 a fost alocat altui dosar"),
                                                 QStringLiteral("Numarul 34 a fost alocat altei cereri")}));
        // Only digits and the point go into the number boxes, nine at most.
        SeteazaText(&f, "txtCerere(1)", QString());
        QTest::keyClicks(Control<QLineEdit>(&f, "txtCerere(1)"), QStringLiteral("4a.5-1234567890"));
        QCOMPARE(Text(&f, "txtCerere(1)"), QStringLiteral("4.5123456"));
    }

private:
    // A new application with the whole family and an income total of 1000, saved.
    qint64 salveazaFamilia();
};

qint64 TestFrmAddCerere::salveazaFamilia()
{
    frmAddCerere f(nullptr, 1);
    f.show();
    CompleteazaFamilia(f);
    Apasa(&f, "cmdOK");
    if (!f.ESTE_OK())
        qWarning() << m_mesaje->texte();
    return f.ESTE_OK() ? f.CerereID() : 0;
}

QTEST_MAIN(TestFrmAddCerere)
#include "tst_frmAddCerere.moc"
