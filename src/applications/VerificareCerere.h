#pragma once
#include "applications/Cerere.h"
#include "common/Verificare.h"

#include <QString>

class BD;

// The controls of frmAddCerere that a failed check gives the focus to: the two numbers,
// the town and county boxes, the four lists, the button that adds the titular and the member
// list; for a value past its column also the four calculation boxes (income total, income per
// member, children, months back) and the buttons of the income and housing editors.
enum class CampCerere {
    Niciunul,
    NrDosar,
    NrCerere,
    Localitate,
    Judet,
    ReprLegal,
    ModPlata,
    TipCerere,
    Stare,
    AdaugaMembru,
    ListaMembri,
    VenitTotal,
    VenitPeMembru,
    NrCopii,
    LuniRetro,
    Venituri,
    Locuinta
};
using VerificareCerere = RezultatVerificare<CampCerere>;

// Step 0 (mode 2): the message when another workstation deleted the application.
inline const QString MesajCerereStearsa =
    QStringLiteral("Aceasta cerere a fost stearsa de alt utilizator. Modificarile dvs. nu pot avea loc. Aceasta "
                   "fereastra se va inchide!");

// The checks before every save of frmAddCerere, in their order; the first failure stops.
// Every message is shown through Mesaj, in order. Mode 2 starts with step 0 (does the
// application still exist?), whose failure closes the window. A dossier or application
// number already used is only a warning, and the save goes on. An unexpected error gives
// "Err in Verifica Controale: " with its number and description.
VerificareCerere VerificaControale(const BD& bd, const Cerere& c);

// The number checks, also run when txtCerere(0) / txtCerere(1) lose the focus. They show
// "Numarul N a fost alocat altui dosar" / "... altei cereri" when the number belongs to
// another family / application (in mode 2 the application's own row is no conflict), and
// return true when they did (the window may move the focus; the save goes on anyway).
bool VerificaNrDosar(const BD& bd, const Cerere& c);
bool VerificaNrCerere(const BD& bd, const Cerere& c);
