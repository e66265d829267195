#pragma once
#include "applications/Cerere.h"

#include <QString>

class BD;

// The outcome of a check of an editor. Every message (the failure and the warnings before it)
// has already been shown through Mesaj, in order; the window only moves the focus.
struct Verificare {
    bool ok = true;
    QString mesaj;       // the failure's text, "" when ok
    QString control;     // objectName of the control to focus, e.g. "txtCerere(0)", "cmdAdd", "lvw"
    bool inchide = false; // the application is gone (mode 2): the dialog closes without saving

    static Verificare bine() { return {}; }
    // A failure: shows its message and names the control that takes the focus.
    static Verificare esec(const QString& mesaj, const QString& control);
};

// Step 0 (mode 2): the message when another workstation deleted the application.
inline const QString MesajCerereStearsa = QStringLiteral(
    "Aceasta cerere a fost stearsa de alt utilizator. Modificarile dvs. nu pot avea loc. Aceasta fereastra se va inchide!");

// The checks before every save of frmAddCerere, in their order; the first failure stops.
// Mode 2 starts with step 0 (does the application still exist?). A dossier or application
// number already used is only a warning, and the save goes on. An unexpected error gives
// "Err in Verifica Controale: " with its number and description.
Verificare VerificaControale(const BD& bd, const Cerere& c);

// The number checks, also run when txtCerere(0) / txtCerere(1) lose the focus. They show
// "Numarul N a fost alocat altui dosar" / "... altei cereri" when the number belongs to
// another family / application (in mode 2 the application's own row is no conflict), and
// return true when they did (the window may move the focus; the save goes on anyway).
bool VerificaNrDosar(const BD& bd, const Cerere& c);
bool VerificaNrCerere(const BD& bd, const Cerere& c);
