#pragma once
#include <QString>

// The start of the program: from the settings file to the moment the main window may be shown.
// Everything said to the user goes through Mesaje; the two windows that start-up may need
// (the choice of the database folder and the login) are asked for through FerestrePornire, so
// that the steps run the same with real windows and with scripted ones.

class FerestrePornire {
public:
    virtual ~FerestrePornire() = default;
    // frmGeneral in mode 2, modal: the officer may give a new database folder. The program
    // ends after it in any case; the new folder is used from the next start.
    virtual void AlegeLocatieBD() = 0;
    // frmLogin, modal: true when the password was typed right (LoginSucceeded).
    virtual bool Login() = 0;
};

enum class RezultatPornire {
    Continua, // the database is open, the settings loaded: show the main window
    Oprita,   // a refused start, a new folder chosen, a cancelled login
    EroareBD, // the database file could not be opened
};

// The steps of the start, in order: CaleBD from section Generale of the settings file (the
// program folder when empty, written back), the three checks of the database path, the
// opening of BD::principala(), IncarcaSetari, the schema upgrade, and the login when a password
// is set. An office whose data are on a server (ServerBD) has no path to check: a server that
// does not answer is told with its reason, with the offer to choose another office.
RezultatPornire Porneste(FerestrePornire& ferestre);

// The exit code of the process for a start that did not go on.
int CodIesire(RezultatPornire r);

// The value of CaleBD as the settings file holds it now.
QString CaleBDDinSetari();

// frmGeneral, cmdOK in mode 2: a text that is not blank after trimming becomes CaleBD in the
// settings file (and a ServerBD of the workstation's own is cleared: the new office says where
// its data are); then, whatever was typed, "Programul se va inchide..." is said. False (and the
// error told) when the settings file cannot be written: nothing is then said about closing.
bool AcceptaLocatieBD(const QString& text);

// The closing message of frmGeneral.
inline const QString MesajInchidere = QStringLiteral("Programul se va inchide. Dati clic pe OK si reporniti-l din nou");

// frmGeneral in mode 1 (archive): CaleBD, then "Tarnava_", the month as two digits, "_", the
// year and the database's extension, e.g. ".../Tarnava_03_2012.db".
QString NumeArhivaImplicit();
