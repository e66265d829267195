#pragma once
#include "common/Bani.h"
#include "history/LuniInchise.h"
#include "reports/Borderou.h"

#include <QJsonObject>
#include <QString>
#include <map>
#include <optional>
#include <vector>

class BD;
class ReportGrid;

// The month close. A month's payroll is the applications paid in it (statuses 2, 6, 7 and 8, as
// the report catalogue counts them), each with the status, amount and children in effect for
// that month (StareInLuna.h), whenever it is asked. Closing stores it, with its control totals
// and its differences from the month closed before it, and from then on the month is printed,
// exported and explained from what was stored, never recomputed. Months are closed in order
// and reopened from the last one back; each close and reopening is a row of the journal
// (JurnalLuni.h).

struct RandStat {
    qint64 cerereId = 0;
    qint64 nrCerere = 0;
    QDate dataCerere;
    int tipCerere = 0;
    int stare = 0;
    QString nume, prenume, cnp, adresa;
    bool lege416 = false;
    int nrMembrii = 0;
    int nrCopii = 0;
    Bani cuantum;
    bool reconstituit = false; // from the dispositions and DataStare: its history begins later
    // The disposition in effect for the month, as a closed month stores it.
    qint64 dispozitieId = 0;
    std::optional<double> nrDisp;
    QDate dataDisp;
};

// The payroll from what was in effect for the month, by application number.
std::vector<RandStat> StatPlataCalculat(const BD& bd, LunaAn l);
// The payroll stored when the month was closed (empty for a month never closed).
std::vector<RandStat> StatPlataInchis(const BD& bd, LunaAn l);
// The month's payroll: the stored one when it is closed, otherwise the computed one.
std::vector<RandStat> StatPlata(const BD& bd, LunaAn l);
// The statement of a stored payroll, for measuring what the comparison adds to the engine.
QString SqlStatPlataInchis();

// The control totals that the borderou of the month must match: families, children and the
// amount, of all types together and by allowance type (1 and 2 always present).
struct TotalPlata {
    int familii = 0;
    int copii = 0;
    Bani suma;
};
struct TotaluriPlata {
    TotalPlata toate;
    std::map<int, TotalPlata> peTip;
};
TotaluriPlata Totaluri(const std::vector<RandStat>& stat);

enum class FelDiferenta { Noua = 1, Oprita = 2, Modificata = 3 };
struct RandDiferenta {
    qint64 cerereId = 0;
    qint64 nrCerere = 0;
    QString nume;             // the holder
    std::optional<int> stare; // nothing for an application deleted since
    std::optional<Bani> cuantumVechi;
    std::optional<Bani> cuantum;
    std::optional<double> nrDisp; // the disposition that explains it, when there is one
};

// A month's payroll against the last month closed before it.
struct DiferentaLuna {
    LunaAn luna;
    bool inchisa = false;
    std::optional<LunaAn> fataDe;
    std::vector<RandDiferenta> noi, oprite, modificate;
    int neschimbate = 0;
    TotaluriPlata totaluri;
    int reconstituite = 0; // payroll rows read from dispositions and DataStare
};

// "Luna reconstituita din dispozitii si DataStare pentru N cereri ...", or "" when none was.
QString TextReconstituite(const DiferentaLuna& d);

// The difference of two payrolls, with the dispositions that explain it: for each application
// the latest disposition that takes effect after the earlier month and not after this one (for
// a stopped one, the latest suspension, rejection or ending among them).
struct DispozitieExplicativa {
    double nrDisp = 0;
    int actiune = 0;
};
DiferentaLuna ComparaStaturi(LunaAn luna, std::optional<LunaAn> fataDe, const std::vector<RandStat>& vechi,
                             const std::vector<RandStat>& nou,
                             const std::map<qint64, std::vector<DispozitieExplicativa>>& dispozitii,
                             const std::map<qint64, int>& stariOprite);

// The difference of a month: for a closed month the stored one; for an open month its computed
// payroll against the last closed month before it.
DiferentaLuna Diferenta(const BD& bd, LunaAn l);

// Closes the month in one transaction: stores its payroll (with the disposition in effect for
// each family), totals and difference, marks it closed and writes the journal's row. Throws
// Eroare with the office's message when the month has not begun, is closed already, or is not
// the month after the last closed one (the first close may be any month that has begun).
DiferentaLuna InchideLuna(BD& bd, LunaAn l);

// Reopens the month: its stored rows go, the journal keeps the reason with the totals the month
// had, and every application of its payroll gets a note in its history. Throws Eroare when the
// reason is empty, the month is not closed, or a later month is closed (reopen that one first).
void RedeschideLuna(BD& bd, LunaAn l, const QString& motiv);

// {"luna": L, "an": A, "inchisa": ..., "fata_de": {"luna", "an"} or null, "noi": [...],
// "oprite": [...], "modificate": [...], "neschimbate": N, "totaluri": {...}, "reconstituite": N};
// money as text with all four decimals.
QJsonObject DiferentaJson(const DiferentaLuna& d);

// The payroll as a borderou (stored rows for a closed month), the difference as a list with its
// totals in a table of their own, and the journal of every month (or of one) as a list.
void ConstruiesteStatPlata(const BD& bd, LunaAn l, ReportGrid& g);
void ConstruiesteDiferenta(const BD& bd, const DiferentaLuna& d, ReportGrid& g);
void ConstruiesteJurnal(const BD& bd, std::optional<LunaAn> doar, ReportGrid& g);

// The office's messages.
namespace MesajInchidere {
inline const QString MotivLipsa = QStringLiteral("Introduceti motivul redeschiderii lunii!");
}
