#pragma once
#include <QDate>
#include <QList>
#include <QString>
#include <QVariantList>
#include <array>
#include <optional>
#include <vector>

#include "common/Bani.h"
#include "database/Adresa.h"

#include <cmath>

class BD;

// The case list of the main window (lvwCereri) as data: the search condition built from the
// search fields, the rows with their twelve column texts and colour, and the texts of the
// result line and of the status bar. Nothing here touches a window.

// What the search strip gives to the search. "Nr dosar", "Nr" and "Str /sat" are not here:
// the office's search never reads them.
struct FiltruCautare {
    QString cnp;      // txtCauta(0), a prefix
    QString nume;     // txtCauta(1), a prefix
    QString prenume;  // txtCauta(2), a prefix
    QString nrCerere; // txtCauta(3), a number
    QList<int> stari; // DataID of each ticked entry of lstStare, in list order
};

// The condition without the word WHERE ("" when there is none) and its bound values.
struct ConditieCautare {
    QString conditie;
    QVariantList valori;
};

// ConstruiesteFiltru: one part for each field that is not empty, in the order CNP, Nume,
// Prenume, Nr cerere, statuses, joined by AND. The names are case-insensitive prefixes; the
// typed text is a bound value, so an apostrophe is just a character. A "Nr cerere" that is
// not a number throws Eroare (3075) with a description that names the field.
ConditieCautare ConstruiesteFiltru(const BD& bd, const FiltruCautare& f);

// The colour that a row's status asks for. Only statuses 2 to 6 touch the colour: 2 and 6
// black, 3, 4 and 5 red; any other status leaves the row's colour as it was.
enum class CuloareRand { Neschimbata, Negru, Rosu };
CuloareRand CuloareDinStare(int stare);

// The columns of lvwCereri: the hidden "ID" and eleven visible ones.
constexpr int NrColoaneCereri = 12;
namespace ColCerere {
constexpr int ID = 0, NrCerere = 1, Tip = 2, Stare = 3, Data = 4, Solicitant = 5, CNP = 6, Adresa = 7, VenitTotal = 8,
              Cuantum = 9, NrMembrii = 10, NrCopii = 11;
}
struct ColoanaLista {
    const char* titlu;
    int latimeTwips; // 15 twips to a pixel
};
const std::array<ColoanaLista, NrColoaneCereri>& ColoaneCereri();

// One row of lvwCereri, kept as its values: a list holds every application of an office of
// many years, so a row keeps one text each for the applicant, the CNP and the address, and
// makes the texts of the other columns when they are shown or sorted (text()).
struct RandCerere {
    qint64 cerereId = 0;
    int stare = 0;
    CuloareRand culoare = CuloareRand::Neschimbata;
    double nrCerere = NAN; // NaN: NULL
    int tipCerere = 0;     // 1 "Cu sot", 2 "Mono", anything else nothing
    QString eticheta;      // the status label
    QDate dataCerere;
    QString solicitant; // Nume Prenume; empty when the applicant is not found
    QString cnp;
    QString adresa;
    Bani venitTotal;
    std::optional<Bani> cuantum;
    double nrMembrii = NAN;
    double nrCopii = NAN;

    // The text of a column as the list shows it.
    QString text(int coloana) const;
};

// "Cu sot" for 1, "Mono" for 2, "" otherwise.
QString TextTipCerere(const QVariant& tip);

// The rows of the whole of Cereri in the table's order (the list at opening), or of a search
// (only applications whose applicant exists, by NrCerere). One joined statement either way:
// the applicant, the family and the status label come with the application.
std::vector<RandCerere> CitesteToateCererile(const BD& bd, const QString& strSat);
std::vector<RandCerere> CitesteCautarea(const BD& bd, const ConditieCautare& c, const QString& strSat);
// One row by its CerereID (after an add or an edit); nothing when the application is gone.
std::optional<RandCerere> CitesteRandCerere(const BD& bd, qint64 cerereId, const QString& strSat);

// The statement behind the rows, for a caller that reads them bare (the benchmark).
QString SqlRanduriCereri(bool doarCuSolicitant, const QString& conditie, const QString& ordine);

// What the main window shows of the office at its start and after each change: the town
// hall's name in the title (nothing when DatePrimarie has no row: the clerk is asked to fill
// it in) and whether any application exists (the buttons that need one).
struct StareOficiu {
    std::optional<QString> primarie;
    qint64 nrCereri = 0;
};
StareOficiu CitesteStareOficiu(const BD& bd);

// lblRezul: " Nu exista nici o cerere", " o cerere" or N + " cereri", with a line break after
// the last two.
QString TextRezultat(int numar);

// Status bar: panel 1 today as " 5 Martie 2012 ", panel 4 the active month, panel 5 the
// supplier's contact line.
QString TextPanouAzi(const QDate& azi);
QString TextLunaActiva(int luna, int an);
QString TextContact();
