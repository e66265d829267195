// cmdAdd and cmdEdit of the main window: the application editor opens in the right mode and the
// case list shows what was saved.
#include "TestCuOficiu.h"
#include "gui_Dialog.h"

#include "database/BD.h"
#include "import/Demo.h"
#include "gui/ComboCod.h"
#include "common/Ceas.h"
#include "mainwindow/ListaCereri.h"
#include "mainwindow/ModelCereri.h"
#include "common/Proces.h"
#include "mainwindow/frmMainNou.h"

#include <QTableWidget>
#include <QTreeView>
#include <QTreeWidget>

namespace {

// One hook for every window that opens: the editor, then the member editor inside it.
struct Scenariu {
    QString nrCerere;
    QString cnp;
    bool salveaza = true;
    int deschise = 0;
    QString titlu;

    void operator()(QDialog& d)
    {
        ++deschise;
        if (d.objectName() == QLatin1String("frmAddMembru")) {
            Control<QComboBox>(&d, "cboCNP")->setEditText(cnp);
            Control<QLineEdit>(&d, "txtMembru(0)")->setText(QStringLiteral("Ionescu"));
            Control<QLineEdit>(&d, "txtMembru(1)")->setText(QStringLiteral("Vasile"));
            Alege(&d, "cboMembru(0)", 1);
            Alege(&d, "cboMembru(6)", 1);
            Apasa(&d, "cmdOK");
            return;
        }
        QCOMPARE(d.objectName(), QStringLiteral("frmAddCerere"));
        titlu = d.windowTitle();
        if (!salveaza) {
            Apasa(&d, "cmdCancel");
            return;
        }
        if (titlu == QLatin1String("Adaugare cerere")) {
            Control<QLineEdit>(&d, "txtCerere(0)")->setText(QStringLiteral("5"));
            Alege(&d, "cboCerere(3)", 2);
            Alege(&d, "cboCerere(4)", 1);
            Apasa(&d, "cmdAdd");
        }
        Control<QLineEdit>(&d, "txtCerere(1)")->setText(nrCerere);
        Apasa(&d, "cmdOK");
    }
};

} // namespace

class TestFrmMainNouCereri : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        m_oficiu->scrieDatePrimarie();
        Proces::setari().AnSetat = 2024;
        Ceas::seteazaAzi(QDate(2024, 3, 12));
    }

private slots:
    void adaugaApoiModifica()
    {
        MesajeScript m;
        frmMainNou w;
        QVERIFY(w.buton(QStringLiteral("cmdAdd"))->isEnabled());
        QVERIFY(!w.buton(QStringLiteral("cmdEdit"))->isEnabled());

        Scenariu s{QStringLiteral("77"), CNPInventat(1, QDate(1980, 1, 15), 12, 3)};
        {
            HookModalTest h(std::ref(s));
            Apasa(&w, "cmdAdd");
        }
        QCOMPARE(s.titlu, QStringLiteral("Adaugare cerere"));
        QCOMPARE(s.deschise, 2);
        QVERIFY2(m.texte().isEmpty(), qPrintable(m.texte().join(QLatin1Char('|'))));
        QCOMPARE(w.modelCereri()->rowCount(), 1);
        QCOMPARE(w.RandSelectat(), 0);
        QCOMPARE(w.TextSelectat(ColCerere::NrCerere), QStringLiteral("77"));
        QCOMPARE(w.TextSelectat(ColCerere::Tip), QStringLiteral("Mono"));
        QCOMPARE(w.TextSelectat(ColCerere::Solicitant), QStringLiteral("Ionescu Vasile"));
        QCOMPARE(w.Adaug(), 1);
        QVERIFY(w.buton(QStringLiteral("cmdEdit"))->isEnabled());
        const qint64 id = w.modelCereri()->id(0);
        QCOMPARE(w.CerereCurenta(), id);

        // A cancelled editor changes nothing and leaves Adaug at 0.
        s = Scenariu{QStringLiteral("78")};
        s.salveaza = false;
        {
            HookModalTest h(std::ref(s));
            Apasa(&w, "cmdEdit");
        }
        QCOMPARE(s.titlu, QStringLiteral("Modificare cerere"));
        QCOMPARE(w.TextSelectat(ColCerere::NrCerere), QStringLiteral("77"));
        QCOMPARE(w.Adaug(), 0);

        s = Scenariu{QStringLiteral("78")};
        {
            HookModalTest h(std::ref(s));
            Apasa(&w, "cmdEdit");
        }
        QCOMPARE(w.modelCereri()->rowCount(), 1);
        QCOMPARE(w.TextSelectat(ColCerere::NrCerere), QStringLiteral("78"));
        QCOMPARE(w.Adaug(), 0);
        QCOMPARE(
            BD::principala().scalar(QStringLiteral("SELECT NrCerere FROM Cereri WHERE CerereID = ?"), {id}).toInt(),
            78);
    }

    void faraSelectieSauRandSters()
    {
        MesajeScript m;
        frmMainNou w;
        Scenariu s{QStringLiteral("77"), CNPInventat(2, QDate(1982, 4, 5), 12, 4)};
        {
            HookModalTest h(std::ref(s));
            Apasa(&w, "cmdAdd");
        }
        QCOMPARE(w.modelCereri()->rowCount(), 1);

        int deschise = 0;
        HookModalTest h([&deschise](QDialog& d) {
            ++deschise;
            d.reject();
        });
        w.lvwCereri()->selectionModel()->clearSelection();
        m.goleste();
        Apasa(&w, "cmdEdit");
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Selectati o cerere")});

        // Deleted by another workstation after the list was built.
        w.SelecteazaRand(0);
        BD::principala().executa(QStringLiteral("DELETE FROM Cereri"));
        m.goleste();
        Apasa(&w, "cmdEdit");
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!")});
        QCOMPARE(deschise, 0);
    }
};

QTEST_MAIN(TestFrmMainNouCereri)
#include "tst_frmMainNouCereri.moc"
