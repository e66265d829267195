// Every window of the program on the office's screen of 1366 by 768 pixels: at its first size
// and after each of its page switches, with its columns whole. A new window is one more line
// of the list in `ferestre()`.
#include "DateTest.h"
#include "TestCuOficiu.h"
#include "gui_Dialog.h"

#include "amounts/frmBaremBun.h"
#include "amounts/frmSchimbareBarem.h"
#include "applications/frmAddCerere.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "decisions/frmAdAdeverinte.h"
#include "decisions/frmAddAnchete.h"
#include "decisions/frmAddDispozitie.h"
#include "decisions/frmAdeverinte.h"
#include "documents/frmAnexa2.h"
#include "forms/frmPrint.h"
#include "maintenance/frmMentenanta.h"
#include "mainwindow/frmMainNou.h"
#include "registers/frmDatePrimarie2.h"
#include "registers/frmMembrii.h"
#include "registers/frmMotive.h"
#include "registers/frmSate.h"
#include "reports/frmBorderou.h"
#include "reports/frmInchidereLuna.h"
#include "reports/frmRapoarte.h"
#include "shell/frmAbout.h"
#include "shell/frmChLunaAn.h"
#include "shell/frmGeneral.h"
#include "shell/frmLogin.h"
#include "shell/frmOptiuni.h"
#include "shell/frmParola.h"

#include <QHeaderView>
#include <QPrintPreviewDialog>
#include <QTreeView>
#include <QtTest>
#include <functional>
#include <memory>

namespace {

// What a window may take of the screen: the width less its borders, the height less its title
// bar and the task bar.
constexpr int LatimeLibera = 1366 - 16;
constexpr int InaltimeLibera = 768 - 40 - 30;

// The heads of the columns of free text, whose values may be longer than any column.
const QStringList TexteLibere{"Solicitant",   "Adresa",
                              "Nume",         "Prenume",
                              "Nume Titular", "Nume Scolar",
                              "Titular",      "Denumire sat /strada",
                              "Motiv",        "Motivul Expirarii",
                              "Motivul"};

// Checks a window as it is now: `eticheta` names the window and the moment.
using Verifica = std::function<void(QWidget&, const QString& eticheta)>;

// A window made by `fa`, checked when shown and after each switch pressed in turn.
using Fabrica = std::function<std::unique_ptr<QWidget>()>;
std::function<void(const Verifica&)> Fereastra(Fabrica fa, QStringList comutatoare = {})
{
    return [fa = std::move(fa), comutatoare = std::move(comutatoare)](const Verifica& verifica) {
        const std::unique_ptr<QWidget> w = fa();
        w->show();
        verifica(*w, QStringLiteral("la deschidere"));
        for (const QString& c : comutatoare) {
            Apasa(w.get(), c);
            verifica(*w, QStringLiteral("dupa ") + c);
        }
    };
}

// A window that another one opens as a modal dialog when its button is pressed (after `pregateste`).
std::function<void(const Verifica&)> Dialog(Fabrica parinte, QString buton, QStringList comutatoare = {},
                                            std::function<void(QWidget&)> pregateste = {})
{
    return [=](const Verifica& verifica) {
        const std::unique_ptr<QWidget> p = parinte();
        p->show();
        if (pregateste)
            pregateste(*p);
        bool deschis = false;
        HookModalTest h([&](QDialog& d) {
            deschis = true;
            verifica(d, QStringLiteral("la deschidere"));
            for (const QString& c : comutatoare) {
                Apasa(&d, c);
                verifica(d, QStringLiteral("dupa ") + c);
            }
        });
        Apasa(p.get(), buton);
        QVERIFY2(deschis, qPrintable(buton + QStringLiteral(" nu a deschis fereastra")));
    };
}

template <typename T, typename... A> Fabrica Nou(A... a)
{
    return [=] { return std::unique_ptr<QWidget>(new T(a...)); };
}

QStringList Pagini(int n)
{
    QStringList l;
    for (int i = 0; i < n; ++i)
        l << QStringLiteral("optPag(%1)").arg(i);
    return l;
}

void AlegeRaport(QWidget& w, int index)
{
    Control<QComboBox>(&w, QStringLiteral("cboTipRaport"))->setCurrentIndex(index);
    if (auto* aloc = w.findChild<QComboBox*>(QStringLiteral("cboTipAloc")))
        aloc->setCurrentIndex(0);
    Apasa(&w, QStringLiteral("cmdOK"));
}

// The list, in one place.
QList<std::pair<QString, std::function<void(const Verifica&)>>> ferestre()
{
    return {
        {"frmMainNou", Fereastra(Nou<frmMainNou>(), {"opt(0)", "opt(1)", "opt(2)", "opt(3)", "opt(4)"})},
        {"frmAddCerere adaugare", Fereastra([] { return std::unique_ptr<QWidget>(new frmAddCerere(nullptr, 1)); })},
        {"frmAddCerere modificare",
         Fereastra([] { return std::unique_ptr<QWidget>(new frmAddCerere(nullptr, 2, 1)); })},
        {"frmAddMembru", Dialog([] { return std::unique_ptr<QWidget>(new frmAddCerere(nullptr, 2, 1)); }, "cmdAdd")},
        {"frmAddVenituri",
         Dialog([] { return std::unique_ptr<QWidget>(new frmAddCerere(nullptr, 2, 1)); }, "cmdVenit")},
        {"frmAddLocuinta",
         Dialog([] { return std::unique_ptr<QWidget>(new frmAddCerere(nullptr, 2, 1)); }, "cmdLocuinta")},
        {"frmBife", Dialog([] { return std::unique_ptr<QWidget>(new frmAddCerere(nullptr, 2, 1)); }, "cmdBife")},
        {"frmAddAnchete", Fereastra([] { return std::unique_ptr<QWidget>(new frmAddAnchete(nullptr, 1, 1)); })},
        {"frmAddDispozitie", Fereastra([] { return std::unique_ptr<QWidget>(new frmAddDispozitie(nullptr, 1, 1)); })},
        {"frmAdeverinte", Fereastra(Nou<frmAdeverinte>())},
        {"frmAdAdeverinte",
         Fereastra([] { return std::unique_ptr<QWidget>(new frmAdAdeverinte(true, Adeverinta{}, nullptr)); })},
        {"frmMembrii", Fereastra(Nou<frmMembrii>())},
        {"frmSate", Fereastra(Nou<frmSate>())},
        {"frmAdSate", Dialog(Nou<frmSate>(), "cmdAdd")},
        {"frmMotive", Fereastra(Nou<frmMotive>())},
        {"frmAdMotive", Dialog(Nou<frmMotive>(), "cmdAdd")},
        {"frmDatePrimarie2", Fereastra(Nou<frmDatePrimarie2>())},
        {"frmBaremBun", Fereastra(Nou<frmBaremBun>())},
        {"frmSchimbareBarem", Fereastra(Nou<frmSchimbareBarem>())},
        {"frmMentenanta", Fereastra(Nou<frmMentenanta>(), {"opt(1)", "opt(0)", "opt(2)", "opt(1)", "opt(0)"})},
        {"frmOptiuni", Fereastra(Nou<frmOptiuni>(), {"opt(1)", "opt(0)"})},
        {"frmAnexa2", Fereastra(Nou<frmAnexa2>())},
        {"frmAbout", Fereastra(Nou<frmAbout>())},
        {"frmChLunaAn", Fereastra(Nou<frmChLunaAn>())},
        {"frmGeneral", Fereastra(Nou<frmGeneral>())},
        {"frmLogin", Fereastra(Nou<frmLogin>())},
        {"frmParola", Fereastra(Nou<frmParola>())},
        {"frmBorderou", Fereastra(Nou<frmBorderou>())},
        {"frmBorderou previzualizare",
         Dialog(Nou<frmBorderou>(), "cmdPreview", {}, [](QWidget& w) { AlegeRaport(w, 0); })},
        {"frmRapoarte", Fereastra(Nou<frmRapoarte>())},
        {"frmRapoarte previzualizare",
         Dialog(Nou<frmRapoarte>(), "cmdPreview", {}, [](QWidget& w) { AlegeRaport(w, 16); })},
        {"frmInchidereLuna", Fereastra(Nou<frmInchidereLuna>())},
        {"frmPrint cerere goala", Fereastra(Nou<frmPrint>(FormularCerere, ModGol, qint64(0)), Pagini(9))},
        {"frmPrint ancheta completata", Fereastra(Nou<frmPrint>(FormularAncheta, ModCompletat, qint64(1)), Pagini(10))},
    };
}

} // namespace

class TestFerestre1366 : public TestCuOficiu {
    Q_OBJECT
public:
    TestFerestre1366() : TestCuOficiu(Oficiu::PeClasa) {}

private:
    void pregatesteOficiul() override
    {
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(m_oficiu->bd());
        DateTest::Ancheta(m_oficiu->bd(), 1, 1);
        DateTest::Dispozitie(m_oficiu->bd(), 1, 1);
    }

    // The window inside the free part of the screen, and every column of its lists whole.
    void verifica(QWidget& w, const QString& moment)
    {
        QCoreApplication::processEvents();
        const QString cine = w.objectName() + QLatin1Char(' ') + moment;
        if (w.width() > LatimeLibera || w.height() > InaltimeLibera)
            m_gresite << QStringLiteral("%1: %2x%3 (cel putin %4x%5)")
                             .arg(cine)
                             .arg(w.width())
                             .arg(w.height())
                             .arg(w.minimumSizeHint().width())
                             .arg(w.minimumSizeHint().height());
        for (QTreeView* v : w.findChildren<QTreeView*>()) {
            if (!v->isVisible() || !v->model())
                continue;
            const int n = v->header()->count();
            for (int c = 0; c < n; ++c) {
                if (v->isColumnHidden(c) || v->columnWidth(c) == 0)
                    continue;
                // Every head whole; the values too, but for the free texts (names, addresses,
                // reasons), which may run longer than any column.
                const QString cap = v->model()->headerData(c, Qt::Horizontal).toString();
                const bool textLiber = TexteLibere.contains(cap);
                const int necesar =
                    std::max(v->header()->sectionSizeHint(c),
                             textLiber ? 0 : static_cast<const QAbstractItemView*>(v)->sizeHintForColumn(c));
                if (v->columnWidth(c) < necesar)
                    m_gresite << QStringLiteral("%1: %2 coloana %3 \"%4\" are %5, ii trebuie %6")
                                     .arg(cine, v->objectName())
                                     .arg(c)
                                     .arg(v->model()->headerData(c, Qt::Horizontal).toString())
                                     .arg(v->columnWidth(c))
                                     .arg(necesar);
            }
        }
    }

    QStringList m_gresite;

private slots:
    void incapePeEcran_data()
    {
        QTest::addColumn<int>("index");
        const auto l = ferestre();
        for (int i = 0; i < l.size(); ++i)
            QTest::newRow(qPrintable(l[i].first)) << i;
    }

    void incapePeEcran()
    {
        QFETCH(int, index);
        m_gresite.clear();
        ferestre()[index].second([this](QWidget& w, const QString& moment) { verifica(w, moment); });
        QVERIFY2(m_gresite.isEmpty(), qPrintable(m_gresite.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(TestFerestre1366)
#include "tst_Ferestre1366.moc"
