#include "mainwindow/frmMainNouPanouri.h"

#include "database/BD.h"
#include "decisions/frmAddAnchete.h"
#include "decisions/frmAddDispozitie.h"
#include "gui/ActiuniLegate.h"
#include "gui/Modal.h"
#include "history/LuniInchise.h"
#include "common/Eroare.h"
#include "mainwindow/ListaCereri.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "mainwindow/Stergere.h"
#include "mainwindow/frmMainNou.h"
#include "mainwindow/frmPanouriCerere.h"

#include <QPushButton>
#include <QTreeWidget>

namespace {

const QString CerereStearsa = QStringLiteral("Cererea selectata a fost stearsa de alt utilizator! Dati clic pe Cauta");
const QString RandNegasitCerere = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!");
const QString RandNegasitCauta = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!");

enum class Panou { Anchete, Dispozitii };

// A delete that a closed month forbids is told in the month's own sentence, nothing else: true
// when it was.
bool refuzaLunaInchisa(const std::optional<LunaAn>& luna)
{
    if (!luna)
        return false;
    Mesaj(MesajLunaInchisa(*luna), Mesaje::Icon::Exclamare);
    return true;
}

// The same when the month was closed between the question and the delete.
bool refuzaLunaInchisa(const Eroare& e)
{
    if (e.numar != CodEroare::LunaInchisa)
        return false;
    Mesaj(e.descriere, Mesaje::Icon::Exclamare);
    return true;
}

QTreeWidget* lista(frmMainNou& f, Panou p)
{
    return p == Panou::Anchete ? f.panouri()->lvwAnchete() : f.panouri()->lvwDispozitii();
}

void reincarca(frmMainNou& f, Panou p, qint64 cerereId)
{
    if (p == Panou::Anchete)
        f.panouri()->IncarcaAnchete(cerereId);
    else
        f.panouri()->IncarcaDispozitii(cerereId);
    // A saved disposition leaves its row in the case's history.
    f.panouri()->IncarcaIstoric(cerereId);
}

// The editor of the panel, in mode 1 for an application or 2 for a row; true when it saved.
bool deschideEditor(frmMainNou& f, Panou p, int adaug, qint64 id)
{
    if (p == Panou::Anchete) {
        frmAddAnchete d(&f, adaug, id);
        DeschideModal(d);
        return d.ESTE_OK();
    }
    frmAddDispozitie d(&f, adaug, id);
    DeschideModal(d);
    return d.ESTE_OK();
}

// cmdAddAncheta, cmdAddDisp.
void adauga(frmMainNou& f, Panou p)
{
    if (!Proces::BazaAccesibila())
        return;
    f.SeteazaAdaug(1);
    if (f.ListaGoala())
        return;
    const std::optional<qint64> id = f.CerereSelectata();
    if (!id) {
        Mesaj(QStringLiteral("Selectati o cerere"), Mesaje::Icon::Informatie);
        return;
    }
    if (!CerereExista(BD::principala(), *id)) {
        Mesaj(CerereStearsa);
        return;
    }
    // The current application is now the selected one.
    f.SeteazaCerereCurenta(*id);
    if (deschideEditor(f, p, 1, *id))
        reincarca(f, p, *id);
}

// cmdEditAncheta, cmdEditDisp. Adaug stays 2 afterwards, as the case list knows it.
void modifica(frmMainNou& f, Panou p)
{
    if (!Proces::BazaAccesibila())
        return;
    QTreeWidget* l = lista(f, p);
    if (l->topLevelItemCount() == 0)
        return;
    const std::optional<qint64> id =
        p == Panou::Anchete ? f.panouri()->AnchetaSelectata() : f.panouri()->DispozitieSelectata();
    if (!id) {
        Mesaj(p == Panou::Anchete ? QStringLiteral("Selectati o ancheta") : QStringLiteral("Selectati o dispozitie"),
              Mesaje::Icon::Informatie);
        return;
    }
    const BD& bd = BD::principala();
    if (!(p == Panou::Anchete ? AnchetaExista(bd, *id) : DispozitieExista(bd, *id))) {
        Mesaj(RandNegasitCerere);
        return;
    }
    f.SeteazaAdaug(2);
    if (deschideEditor(f, p, 2, *id))
        reincarca(f, p, f.CerereCurenta());
}

// After a delete the row leaves the panel's list; the row that moved into its place, or
// the last one, is selected.
void scoateRand(frmMainNou& f, Panou p, int pozitie)
{
    QTreeWidget* l = lista(f, p);
    delete l->takeTopLevelItem(pozitie);
    const int n = l->topLevelItemCount();
    if (n == 0) {
        if (p == Panou::Anchete)
            f.panouri()->ActiveazaButoaneAncheta(false);
        else
            f.panouri()->ActiveazaButoaneDisp(false);
        return;
    }
    QTreeWidgetItem* item = l->topLevelItem(std::min(pozitie, n - 1));
    l->setCurrentItem(item);
    item->setSelected(true);
    l->scrollToItem(item);
}

// cmdDelAncheta, cmdDelDisp.
void sterge(frmMainNou& f, Panou p)
{
    const bool anchete = p == Panou::Anchete;
    try {
        if (!Proces::BazaAccesibila())
            return;
        QTreeWidget* l = lista(f, p);
        if (l->topLevelItemCount() == 0)
            return;
        const std::optional<qint64> id = anchete ? f.panouri()->AnchetaSelectata() : f.panouri()->DispozitieSelectata();
        if (!id) {
            Mesaj(anchete ? QStringLiteral("Selectati o ancheta!") : QStringLiteral("Selectati o dispozitie!"));
            return;
        }
        BD& bd = BD::principala();
        if (!(anchete ? AnchetaDeStersExista(bd, *id) : DispozitieExista(bd, *id))) {
            Mesaj(RandNegasitCerere);
            return;
        }
        // A closed month's disposition is refused before the question, in the month's words.
        if (!anchete && refuzaLunaInchisa(LunaInchisaDispozitie(bd, *id)))
            return;
        QTreeWidgetItem* item = l->selectedItems().constFirst();
        const QString intrebare = anchete ? QStringLiteral("Sigur doriti sa stergeti ancheta ")
                                          : QStringLiteral("Sigur doriti sa stergeti dispozitia ");
        if (!Intrebare(intrebare + item->text(1) + QStringLiteral(" ?")))
            return;
        const int pozitie = l->indexOfTopLevelItem(item);
        if (anchete)
            StergeAncheta(bd, *id);
        else
            StergeDispozitie(bd, *id);
        scoateRand(f, p, pozitie);
    } catch (const Eroare& e) {
        // Deleted meanwhile by another workstation: nothing to say.
        if (e.numar == CodEroare::RandSters || refuzaLunaInchisa(e))
            return;
        Mesaj(e.text(anchete ? PrefixStergere::Anchete : PrefixStergere::Dispozitii), Mesaje::Icon::Critic);
    }
}

} // namespace

void LeagaPanouri(frmMainNou& f)
{
    PanouriCerere* p = f.panouri();
    LeagaActiune(p->cmdAddAncheta(), [&f] { AdaugaAncheta(f); });
    LeagaActiune(p->cmdEditAncheta(), [&f] { ModificaAncheta(f); });
    LeagaActiune(p->cmdDelAncheta(), [&f] { StergeAnchetaSelectata(f); });
    LeagaActiune(p->cmdAddDisp(), [&f] { AdaugaDispozitie(f); });
    LeagaActiune(p->cmdEditDisp(), [&f] { ModificaDispozitie(f); });
    LeagaActiune(p->cmdDelDisp(), [&f] { StergeDispozitiaSelectata(f); });
    LeagaActiune(f.buton(QStringLiteral("cmdDelete")), [&f] { StergeCerereaSelectata(f); });
    // Off until an application is there and its rows are loaded.
    p->ActiveazaAdaugare(false);
    p->ActiveazaButoaneAncheta(false);
    p->ActiveazaButoaneDisp(false);
}

void AdaugaAncheta(frmMainNou& f)
{
    adauga(f, Panou::Anchete);
}
void ModificaAncheta(frmMainNou& f)
{
    modifica(f, Panou::Anchete);
}
void StergeAnchetaSelectata(frmMainNou& f)
{
    sterge(f, Panou::Anchete);
}
void AdaugaDispozitie(frmMainNou& f)
{
    adauga(f, Panou::Dispozitii);
}
void ModificaDispozitie(frmMainNou& f)
{
    modifica(f, Panou::Dispozitii);
}
void StergeDispozitiaSelectata(frmMainNou& f)
{
    sterge(f, Panou::Dispozitii);
}

void StergeCerereaSelectata(frmMainNou& f)
{
    try {
        if (!Proces::BazaAccesibila())
            return;
        if (f.ListaGoala())
            return;
        const std::optional<qint64> id = f.CerereSelectata();
        if (!id) {
            Mesaj(QStringLiteral("Selectati o cerere"), Mesaje::Icon::Informatie);
            return;
        }
        BD& bd = BD::principala();
        if (!CerereExista(bd, *id)) {
            Mesaj(RandNegasitCauta);
            return;
        }
        if (refuzaLunaInchisa(LunaInchisaCerere(bd, *id)))
            return;
        if (!Intrebare(QStringLiteral("Sigur doriti sa stergeti cererea ") + f.TextSelectat(ColCerere::NrCerere) +
                       QStringLiteral(" ?")))
            return;
        const int pozitie = f.RandSelectat();
        StergeCerere(bd, *id);
        f.RandSters(pozitie);
    } catch (const Eroare& e) {
        // Deleted meanwhile by another workstation: nothing to say.
        if (e.numar == CodEroare::RandSters || refuzaLunaInchisa(e))
            return;
        Mesaj(e.text(PrefixStergere::Cereri), Mesaje::Icon::Critic);
    }
}
