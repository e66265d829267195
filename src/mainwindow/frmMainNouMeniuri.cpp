// The menus of the main window: every entry with its caption, disabled until the window it
// opens is wired below.
#include "amounts/frmBaremBun.h"
#include "amounts/frmSchimbareBarem.h"
#include "maintenance/frmMentenanta.h"
#include "decisions/frmAdeverinte.h"
#include "registers/frmDatePrimarie2.h"
#include "registers/frmMembrii.h"
#include "registers/frmMotive.h"
#include "registers/frmSate.h"
#include "gui/ActiuniLegate.h"
#include "gui/Modal.h"
#include "shell/frmAbout.h"
#include "shell/frmChLunaAn.h"
#include "shell/frmOptiuni.h"
#include "mainwindow/ActiuniDocumente.h"
#include "mainwindow/frmMainNou.h"
#include "reports/frmBorderou.h"
#include "reports/frmInchidereLuna.h"
#include "reports/frmRapoarte.h"
#include "shell/frmParola.h"

#include <QAction>
#include <QMenuBar>

namespace {

struct IntrareMeniu {
    const char* nume; // nullptr: a separator
    const char* text;
};

} // namespace

void frmMainNou::ConstruiesteMeniuri()
{
    QMenuBar* bara = menuBar();
    bara->setObjectName(QStringLiteral("mnuBara"));
    auto grup = [&](const char* nume, const char* titlu, std::initializer_list<IntrareMeniu> intrari) {
        QMenu* m = bara->addMenu(QString::fromLatin1(titlu));
        m->setObjectName(QString::fromLatin1(nume));
        for (const IntrareMeniu& i : intrari) {
            if (!i.nume) {
                m->addSeparator();
                continue;
            }
            QAction* a = m->addAction(QString::fromLatin1(i.text));
            a->setObjectName(QString::fromLatin1(i.nume));
            a->setEnabled(false);
            m_meniuri.insert(a->objectName(), a);
        }
    };
    grup("mnuFisier", "&Fisier",
         {{"mnuCerereGoala", "Listare Cerere Goala ..."},
          {"mnuAnchetaGoala", "Listare Ancheta Goala ..."},
          {"mnuCerereSelectata", "Listare Cerere Selectata ..."},
          {nullptr, nullptr},
          {"mnuExit", "Iesire"}});
    grup("mnuNomenclatoare", "&Nomenclatoare",
         {{"mnuDatePrimarie", "Datele primariei..."},
          {"mnuBarem", "Nivel venituri ..."},
          {"mnuSchimbareBarem", "Schimbarea baremului ..."},
          {"mnuJudete", "Judete..."},
          {"mnuSate", "Sate/strazi..."},
          {"mnuMotive", "Motive ..."},
          {nullptr, nullptr},
          {"mnuSetLunaCurenta", "Setare luna curenta ..."}});
    grup("mnuCereri", "&Cereri",
         {{"mnuAdev", "Adeverinte scolarizare..."},
          {"mnuMembrii", "Membrii..."},
          {nullptr, nullptr},
          {"mnuToateDisp", "Generare dispozitii ..."},
          {"mnuAnexa2", "Tiparire toate dispozitiile ..."},
          {"mnuFisa", "Fisa de calcul ..."}});
    grup("mnuRapoarte", "&Rapoarte",
         {{"mnuBorderou", "Borderou..."}, {"mnuRap", "Rapoarte ..."}, {"mnuInchidereLuna", "Inchiderea lunii ..."}});
    grup("mnuUnelte", "&Unelte",
         {{"mnuPassword", "Parola..."}, {"mnuMentenanta", "Mentenanta..."}, {"mnuOptiuni", "Optiuni..."}});
    grup("mnuAjutor", "&Ajutor",
         {{"mnuContinut", "Continut"}, {"mnuIndex", "Index"}, {nullptr, nullptr}, {"mnuAbout", "Despre program ..."}});
    QAction* iesire = bara->addAction(QStringLiteral("Iesire"));
    iesire->setObjectName(QStringLiteral("mnuExit2"));
    iesire->setEnabled(false);
    m_meniuri.insert(iesire->objectName(), iesire);
}

namespace {
// A plain modal opening of a window.
template <typename Fereastra> void DeschideFereastra(QWidget* parinte)
{
    Fereastra f(parinte);
    DeschideModal(f);
}
} // namespace

void frmMainNou::LeagaMeniuri()
{
    LeagaActiune(meniu(QStringLiteral("mnuDatePrimarie")), [this] { DeschideFereastra<frmDatePrimarie2>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuSetLunaCurenta")), [this] {
        DeschideFereastra<frmChLunaAn>(this);
        // Panel 4 is written again, also after a cancel.
        ScrieLunaActiva();
    });
    LeagaActiune(meniu(QStringLiteral("mnuBarem")), [this] { DeschideFereastra<frmBaremBun>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuSchimbareBarem")), [this] {
        frmSchimbareBarem f(this);
        f.TiparireDispozitii = [this](const QList<qint64>& d) { ActiuneTiparireDispozitiile(this, d); };
        DeschideModal(f);
    });
    LeagaActiune(meniu(QStringLiteral("mnuMentenanta")), [this] {
        frmMentenanta f(this);
        DeschideModal(f);
        // After a restore the list and the panels would show the data that were replaced.
        if (f.DateInlocuite()) {
            m_cerereCurenta = 0;
            IncarcaLista({});
            ReincarcaPanouri();
        }
    });
    LeagaActiune(meniu(QStringLiteral("mnuSate")), [this] { DeschideFereastra<frmSate>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuMotive")), [this] { DeschideFereastra<frmMotive>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuAdev")), [this] { DeschideFereastra<frmAdeverinte>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuMembrii")), [this] { DeschideFereastra<frmMembrii>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuBorderou")), [this] { DeschideFereastra<frmBorderou>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuRap")), [this] { DeschideFereastra<frmRapoarte>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuInchidereLuna")), [this] { DeschideFereastra<frmInchidereLuna>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuPassword")), [this] { DeschideFereastra<frmParola>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuOptiuni")), [this] { DeschideFereastra<frmOptiuni>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuAbout")), [this] { DeschideFereastra<frmAbout>(this); });
    LeagaActiune(meniu(QStringLiteral("mnuExit")), [this] { Iesire(); });
    LeagaActiune(meniu(QStringLiteral("mnuExit2")), [this] { Iesire(); });
}
