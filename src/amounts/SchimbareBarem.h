#pragma once
#include "amounts/BaremLei.h"
#include "common/Bani.h"
#include "history/LuniInchise.h"

#include <QDate>
#include <QList>
#include <QString>
#include <map>
#include <optional>
#include <vector>

class BD;
struct Eroare;

// When the law changes the amounts: the sixteen lei rows of the scale get new amounts from a
// month on, and every family in payment gets its new amount by a change disposition from that
// month. The preview writes nothing: it recomputes the amount of every application in payment
// (statuses 2, 6, 7 and 8) by the amount calculation itself, from what the application stores
// (its members, its income per member, its kind), against the new scale and the year of the
// month of effect. The apply writes it all in one transaction.

// An application of the payroll as the change sees it.
struct CerereBarem {
    qint64 cerereId = 0;
    qint64 nrCerere = 0;
    QString titular;
    int tipCerere = 0;
    int stare = 0;
    // The first day from which the new amount holds: the month of effect, or the month of the
    // application when it was made later (a disposition cannot take effect before it).
    QDate dinData;
    int nrCopii = 0;               // as stored
    std::optional<int> nrCopiiNou; // as counted; nothing when no child counts (the stored one stays)
    Bani cuantum;                  // as stored
    Bani cuantumNou;               // under the new scale
    QString observatii;            // the scale row used, or why there is no amount, and remarks
    Bani diferenta() const { return cuantumNou - cuantum; }
};

// The families of one kind of allowance in payment and their amounts before the change and
// after it (the changed ones at their new amount, every other one as it is).
struct TotalBarem {
    int familii = 0;
    int modificate = 0;
    Bani inainte;
    Bani dupa;
};

// What a preview was made from, to know at the apply whether it still holds: the last row of
// the cases' history (every change of an application's status, amount or children writes one)
// and the last change of the scale.
struct AmprentaBarem {
    qint64 ultimulIstoric = 0;
    qint64 randuriIstoric = 0;
    qint64 ultimaSchimbare = 0;
    friend bool operator==(const AmprentaBarem&, const AmprentaBarem&) = default;
};

struct PrevizualizareBarem {
    LunaAn efect;
    BaremLei vechi;  // the scale in force
    SumeBarem nou{}; // the new amounts
    // Changed families: a new amount above 0 that differs from the stored one. Families that
    // would fall to 0 and those that cannot be computed are listed only: the change leaves them
    // as they are, for the clerk to decide (an ending, a correction of the application).
    std::vector<CerereBarem> modificate, laZero, necalculate;
    int neschimbate = 0;
    std::map<int, TotalBarem> peTip; // 1 and 2 always
    TotalBarem total;
    AmprentaBarem amprenta;

    // True when the new amounts are those in force, row for row.
    bool faraSchimbare() const;
};

// The preview. Throws Eroare with the office's message for a month of effect that is closed or
// that a later closed month covers, and for an amount of 0.
PrevizualizareBarem PrevizualizeazaBarem(const BD& bd, const SumeBarem& nou, LunaAn efect);

// The reason the clerk is offered.
inline const QString MotivSchimbareBarem = QStringLiteral("modificare barem conform legii");

struct ParametriAplicare {
    double primulNr = 0; // the number of the first change disposition; the others follow it
    QDate dataDisp;      // their date; today when none is given
    QString motiv = MotivSchimbareBarem;
};

struct RezultatAplicare {
    qint64 schimbareId = 0;
    QList<qint64> dispozitii; // DispozitieID of each change disposition, by application number
    double primulNr = 0;
    double ultimulNr = 0;
};

// The change, in one transaction: the lei rows in force kept in IstoricBarem (with the days
// they held), the new amounts written into Barem in place from the first day of the month of
// effect, and for each changed application its new amount (and child count when counted),
// status 7 ("MODIFICARE CUANTUM") with the reason from its first day, a change disposition
// numbered from primulNr with the former and the new amount, the calculation stored with it and
// the row of its history. Throws Eroare, having written nothing, when the preview no longer
// holds (CodPrevizualizareVeche: an application changed since, or the scale was changed already),
// for the refusals of the preview, for new amounts equal to those in force, for a missing first
// number or reason, and on any failure of the engine.
RezultatAplicare AplicaBarem(BD& bd, const PrevizualizareBarem& vazuta, const ParametriAplicare& p);

// The number offered for the first disposition: the highest number of the dispositions dated in
// that year, plus 1.
double UrmatorulNrDispozitie(const BD& bd, int an);

// The past changes of the scale, newest first.
struct SchimbareTrecuta {
    qint64 id = 0;
    QDate data;    // made on
    QDate dinData; // in force from
    int nrDispozitii = 0;
    double primulNr = 0;
    QString motiv;
};
std::vector<SchimbareTrecuta> SchimbariBarem(const BD& bd);

// The two statements that the preview reads, for the bare reading that the bench sets beside it.
QString SqlCereriBarem();
QString SqlMembriiBarem();

// The numbers of the refusals: the preview no longer holds (as the engine says of data changed
// since they were read), and a change that cannot be made as asked. A closed month is
// CodEroare::LunaInchisa.
constexpr int CodPrevizualizareVeche = 3197;
constexpr int CodSchimbareRefuzata = 3000;
// What the clerk reads of an error of the preview or the apply: a refusal in its own words,
// any other error as "Eroare: " with its number.
QString TextEroareBarem(const Eroare& e);

namespace MesajBarem {
inline const QString PrevizualizareVeche =
    QStringLiteral("Cererile s-au modificat dupa previzualizare. Previzualizarea a fost refacuta: verificati-o si "
                   "aplicati din nou.");
inline const QString DejaAplicata = QStringLiteral(
    "Baremul a fost deja schimbat dupa aceasta previzualizare. Schimbarea nu se aplica a doua oara; refaceti "
    "previzualizarea daca mai este ceva de schimbat.");
inline const QString FaraSchimbare =
    QStringLiteral("Sumele noi sunt cele din baremul in vigoare: nu este nimic de schimbat.");
inline const QString NrLipsa = QStringLiteral("Introduceti numarul primei dispozitii!");
inline const QString MotivLipsa = QStringLiteral("Introduceti motivul modificarii!");
} // namespace MesajBarem
