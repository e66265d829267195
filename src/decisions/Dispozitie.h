#pragma once
#include "common/Bani.h"
#include "common/Verificare.h"

#include <QDate>
#include <QString>
#include <optional>

class BD;

// A mayor's disposition as the editor holds it: the numbers as typed, the two lists by key
// (0 when nothing is chosen).
struct DateDispozitie {
    qint64 id = 0; // DispozitieID; 0 for a new one
    qint64 cerereId = 0;
    QString nrDisp;   // txtDispoz(0)
    QDate dataDisp;   // dtpData
    int luna = 0;     // cboDispoz(1)
    QString an;       // txtDispoz(1)
    int actiune = 0;  // cboDispoz(0)
    QString suma;     // txtDispoz(2): the amount, or the former amount of a change
    QString sumaNoua; // txtDispoz(3): the new amount of a change
    QString motiv;    // txtDispoz(4)
};

// What a new disposition of an application starts with. The status of the application
// decides the type offered first and the box of the amount.
struct ImpliciteDispozitie {
    QString nrCerere;
    QString dataCerere;      // dd.mm.yyyy
    int pozitieTip = -1;     // position in the type list, -1 for none
    QString suma;            // the application's amount ...
    bool inSumaNoua = false; // ... in the new-amount box (statuses 7 and 8)
    int luna = 0;            // month and year of the application's date
    QString an;
};

// The position of the type list chosen for a status: 2 grant, 7 and 8 change, 3 suspension,
// 5 rejection, 4 ending, 6 resumption; -1 for any other status. The list is ordered by its
// code, so position + 1 is the type.
int PozitieTipDinStare(int stare);

// Nothing when the application is no longer there.
std::optional<ImpliciteDispozitie> ImpliciteDispozitieNoua(const BD& bd, qint64 cerereId);

// A saved disposition loaded for a change, with the number and date of its application.
struct DispozitieIncarcata {
    DateDispozitie date;
    QString nrCerere;
    QString dataCerere;
};
// Nothing when the row is gone. Month and year come from DinData, not from Luna and An.
std::optional<DispozitieIncarcata> CitesteDispozitie(const BD& bd, qint64 dispozitieId);

// How the window looks for a type: each member left empty leaves that thing as it was.
struct AspectTipDispozitie {
    std::optional<QString> textModificarea; // lblModificarea
    std::optional<bool> sumaNouaVizibila;   // lblInSuma, lblInSumaLei, txtDispoz(3)
    std::optional<QString> textMotiv;       // lblMotiv
    std::optional<bool> motivVizibil;       // lblMotiv, txtDispoz(4)
    std::optional<bool> mijlocVizibil;      // picMiddle
};
AspectTipDispozitie AspectTip(int actiune);

enum class CampDispozitie { Niciunul, Tip, Luna, An };
using VerificareDispozitie = RezultatVerificare<CampDispozitie>;

// The checks before a save, in the office's order; each failure shows its message.
// adaug: 1 add, 2 change.
VerificareDispozitie VerificaDispozitie(const BD& bd, int adaug, const DateDispozitie& d);

// Writes the row in one transaction and returns its DispozitieID, with the calculation behind
// it and the row of the case's history. A change whose row another workstation deleted
// meanwhile throws Eroare RandSters, and one that a closed month forbids (its month before or
// after the change) Eroare LunaInchisa; neither writes anything.
qint64 SalveazaDispozitie(BD& bd, int adaug, const DateDispozitie& d);

// What every saved disposition brings besides its row, inside the caller's transaction: the
// calculation of the application against the year it takes effect, and the row of history
// with the status its type decides and its amount (the former amount of a change when given).
// The bulk generation calls it for each disposition it writes.
void InregistreazaDispozitie(const BD& bd, qint64 dispozitieId, qint64 cerereId, int actiune, int an, Bani cuantum,
                             std::optional<Bani> cuantumVechi = std::nullopt);

// The office's messages.
namespace MesajDispozitie {
inline const QString CerereStearsa = QStringLiteral("Exceptie. Cererea a fost probabil stearsa de alt utilizator");
inline const QString Stearsa = QStringLiteral("Aceasta Dispozitie a fost stearsa de alt utilizator. Modificarile dvs. "
                                              "nu pot avea loc. Aceasta fereastra se va inchide!");
inline const QString PrefixVerificare = QStringLiteral("Err in Verifica Controale: ");
} // namespace MesajDispozitie
