#include "mainwindow/frmMainNouCereri.h"

#include "applications/frmAddCerere.h"
#include "database/BD.h"
#include "gui/ActiuniLegate.h"
#include "gui/Modal.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "mainwindow/Stergere.h"
#include "mainwindow/frmMainNou.h"

#include <QPushButton>

void LeagaEditorCerere(frmMainNou& f)
{
    LeagaActiune(f.buton(QStringLiteral("cmdAdd")), [&f] { AdaugaCerere(f); });
    LeagaActiune(f.buton(QStringLiteral("cmdEdit")), [&f] { ModificaCerere(f); });
}

void AdaugaCerere(frmMainNou& f)
{
    if (!Proces::BazaAccesibila())
        return;
    // Adaug stays 1 after the editor closes.
    f.SeteazaAdaug(1);
    frmAddCerere d(&f, 1);
    if (!d.EsteIncarcata())
        return;
    DeschideModal(d);
    if (d.ESTE_OK())
        f.RandAdaugat(d.CerereID());
}

void ModificaCerere(frmMainNou& f)
{
    if (!Proces::BazaAccesibila())
        return;
    if (f.ListaGoala())
        return;
    const std::optional<qint64> id = f.CerereSelectata();
    if (!id) {
        Mesaj(QStringLiteral("Selectati o cerere"), Mesaje::Icon::Informatie);
        return;
    }
    const int pozitie = f.RandSelectat();
    // Another workstation may have deleted it since the list was built.
    if (!CerereExista(BD::principala(), *id)) {
        Mesaj(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
        return;
    }
    f.SeteazaCerereCurenta(*id);
    f.SeteazaAdaug(2);
    // Adaug returns to 0 however the editing ends.
    struct RevinLaZero {
        frmMainNou& f;
        ~RevinLaZero() { f.SeteazaAdaug(0); }
    } revine{f};
    frmAddCerere d(&f, 2, *id);
    if (!d.EsteIncarcata())
        return;
    DeschideModal(d);
    if (d.ESTE_OK())
        f.RandModificat(*id, pozitie);
}
