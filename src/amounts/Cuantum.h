#pragma once
#include "applications/Cerere.h"
#include "common/Bani.h"

#include <QString>
#include <functional>
#include <optional>
#include <vector>

class BD;

// The monthly amount of an application, from the editor's current values (never from the
// database, except the one row of Barem).

// The income tiers of the scale, in lei: below the first the Barem row of Suma 200, below the
// second that of Suma 370, from the second on nothing.
constexpr Bani PragVenit200 = Lei(200);
constexpr Bani PragVenit370 = Lei(370);

// The message shown for a member whose Data18Ani still counts but whose occupation is no
// child's (OcupatieID 1 to 7 or 10).
inline const QString MesajOcupatieCNP = QStringLiteral("CNP-ul nu corespunde cu ocupatia");
// Shown when the member list and the member array disagree; the work goes on all the same.
inline const QString MesajMembriiDiferiti = QStringLiteral(
    "Exceptie Valdera in Calcule: Nr Membrii din lista este diferite de cel din matrice. Sunati la 0700-555010");

struct RezultatCuantum {
    Bani cuantum;
    // The child count to write into txtCerere(16); empty when it stays untouched (no member
    // at all, or no child counted: the earlier text is kept on purpose).
    std::optional<int> nrCopii;
    // Not empty when the scale has no row for the family: the text to show. The amount is 0.
    QString eroare;
    // Why each member (in the order given) counted as a child or not, in the office's words.
    struct Membru {
        bool numarat = false;
        QString motiv;
    };
    std::vector<Membru> membri;
    // The scale row looked up (NrPers and the income tier Suma, 200 or 370); 0 when none was.
    int baremNrPers = 0;
    int baremSuma = 0;
};

// The lei of one row of the scale, found by NrPers (1 to 4), the kind of allowance and the income
// tier (200 or 370); nothing when the scale has no such row.
using CautareBarem = std::function<std::optional<Bani>(int nrPers, int tipCerere, int suma)>;

// The amount. Members whose Data18Ani year is not below the active year are looked at:
// OcupatieID 8 or 11 counts a child, 1..7 or 10 shows MesajOcupatieCNP (through Mesaj) and
// goes on. The income per member (text, as in txtCerere(13)) is rounded to four decimals
// before the tiers are chosen. 4 children or more read the row NrPers 4, from Barem.
RezultatCuantum CalculCuantum(const BD& bd, const std::vector<MembruCerere>& membri, const QString& venitPeMembru,
                              int tipCerere, int anActiv);
// The same calculation against a scale that need not be the one in Barem (a new scale before it
// is written).
RezultatCuantum CalculCuantum(const CautareBarem& barem, const std::vector<MembruCerere>& membri,
                              const QString& venitPeMembru, int tipCerere, int anActiv);

// The income total: codes 1 to 79 (indexes 0 to 78); code 80 stays out. Nothing when the
// total would pass what a money column holds (VerificaVenituri refuses such incomes).
std::optional<Bani> SumaVenituri(const VenituriCerere& venituri);

// The income per member as txtCerere(13) shows it: the total divided by the members, with
// all the digits of the division and the point as separator. With no members (0, empty or
// no number) the earlier text is given back unchanged.
QString TextVenitPeMembru(const QString& venitTotal, const QString& nrMembrii, const QString& textVechi);

// The editor's recalculations, on the model. Each shows its messages through Mesaj.
// The income per member from the total and the member count (Cerere::VenitpeMembru).
void RecalculVenitPeMembru(Cerere& c);
// CalculCuantum on the model: Cuantum text, NrCopii when counted; a missing scale row is shown
// (Mesaj) and the amount becomes 0. Returns the result.
RezultatCuantum RecalculCuantum(const BD& bd, Cerere& c, int anActiv);
// After a member was added, changed or removed: the list's row count against the array
// (MesajMembriiDiferiti when they differ), NrMembrii, the income per member and the amount.
// randuriLista < 0 means "the same as the array".
void RecalculMembri(const BD& bd, Cerere& c, int anActiv, int randuriLista = -1);
// After the income editor was accepted: the total into VenitTotal, then as a change of it.
void AcceptaVenituri(const BD& bd, Cerere& c, int anActiv);
