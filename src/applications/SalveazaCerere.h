#pragma once
#include "applications/Cerere.h"
#include "applications/VerificareCerere.h"
#include "common/Bani.h"

#include <QString>

class BD;

// The save of the application editor (cmdOK): the checks, the network lock and the writes,
// all of them in one transaction. A failure anywhere leaves the database as it was and the
// model as it was typed, so the dialog can stay open.

// The highest family and person number: the keys are signed 32-bit numbers.
constexpr qint64 CheieMaxima = 2147483647;

class ValoriPermise;

struct OptiuniSalvare {
    bool verificaCale = true; // BazaAccesibila first
    bool retea = false;       // ReteaSetat: take snet.txt and ask "Salvati?"
    QString folderBlocare;    // CaleBD; empty against a server, where no lock file is taken
    int anActiv = 0;          // AnSetat
    QString motivIstoric;     // the reason in the case's history; empty: the editor's own
    // The code lists of the value check, when the caller keeps them over many saves (the
    // import); none: read for this save.
    const ValoriPermise* permise = nullptr;

    // From the process: Proces::setari() (ReteaSetat, CaleBD, AnSetat).
    static OptiuniSalvare dinProces();
};

struct RezultatSalvare {
    enum class Stare {
        Salvat,     // written; ESTE_OK
        Verificare, // a check failed (focus `camp`; `inchide` after another station's delete)
        CaleLipsa,  // BazaAccesibila said no
        Blocat,     // another workstation is saving (MesajBlocareRetea)
        Renuntat,   // "Salvati?" answered No
        Eroare,     // the write failed and was rolled back; `mesaj` was shown
    };
    Stare stare = Stare::Eroare;
    QString mesaj;       // the message of a failure (already shown through Mesaj)
    int numarEroare = 0; // Stare::Eroare: the error's number (CodEroare::BazaOcupata: the file was busy)
    QString descriere;   // Stare::Eroare: the error's own description
    CampCerere camp = CampCerere::Niciunul; // the control to focus after a failed check
    bool inchide = false;
    qint64 cerereId = 0; // the application's key when saved
    Bani cuantum;        // the amount saved

    bool salvat() const { return stare == Stare::Salvat; }
};

// The whole of cmdOK. Every message goes through Mesaj. On success the model's CerereID and
// FamilieID hold the key and its Cuantum/NrCopii/NrMembrii the saved values.
RezultatSalvare SalveazaCerere(BD& bd, Cerere& c, const OptiuniSalvare& o = OptiuniSalvare::dinProces());

// The writes alone (no checks, no lock), in the office's order, in one transaction: Strazi,
// Politii, Scoli, Motive, Familii, Cereri, Membrii, CereriMembrii, Adeverinte, Venituri,
// Locuinte, and the row of the case's history when status, amount or child count changed.
// Throws Eroare, having written nothing. Returns the application's key. An empty
// `motivIstoric` reads "Cerere noua" or "Modificare cerere".
qint64 ScrieCerere(BD& bd, Cerere& c, int anActiv, const QString& motivIstoric = {});
