#pragma once
#include <QDate>
#include <QString>
#include <optional>

class BD;

// The closed months. Once a month's payroll is closed, what it paid must not change: its
// dispositions and their stored calculations are read-only until the month is reopened.
//
// A disposition belongs to the month from which it takes effect (DinData, the month and year
// typed in its editor), not to the day it was signed: that is the month whose payroll it
// changes. A disposition signed on 3 December for November belongs to November.

struct LunaAn {
    int luna = 0;
    int an = 0;
    int ordine() const { return an * 12 + luna - 1; }
    friend bool operator==(const LunaAn&, const LunaAn&) = default;
};

// The first and the last day of the month.
QDate PrimaZi(LunaAn l);
QDate UltimaZi(LunaAn l);
// "Noiembrie 2026".
QString TextLuna(LunaAn l);

// The month and year of the month close, as typed (in its window or on the command line): the
// month from 1 to 12, the year from 2008 to 2500, numbers read as typed, a decimal month taken
// as the nearest whole one. The first failed check gives its message and the field it concerns.
struct LunaCitita {
    enum class Camp { Niciunul, Luna, An };
    std::optional<LunaAn> luna; // nothing when refused
    Camp camp = Camp::Niciunul;
    QString mesaj;
};
LunaCitita CitesteLunaAn(const QString& luna, const QString& an);

bool LunaInchisa(const BD& bd, LunaAn l);
// The latest closed month before `l`; nothing when none was closed before it.
std::optional<LunaAn> UltimaLunaInchisaInainte(const BD& bd, LunaAn l);
// The latest closed month of all.
std::optional<LunaAn> UltimaLunaInchisa(const BD& bd);

// The month a disposition belongs to, from its DinData.
LunaAn LunaDispozitiei(const QDate& dinData);

// "Luna Noiembrie 2026 este inchisa: ..." for a refused change of a disposition.
QString MesajLunaInchisa(LunaAn l);

// The closed month that forbids changing or deleting a stored disposition (its month as
// stored), or deleting an application (any of its dispositions' months); nothing when none
// does, or the row is gone. The windows ask it before anything else.
std::optional<LunaAn> LunaInchisaDispozitie(const BD& bd, qint64 dispozitieId);
std::optional<LunaAn> LunaInchisaCerere(const BD& bd, qint64 cerereId);

// Throws Eroare with MesajLunaInchisa when the month of that DinData is closed: the save of a
// disposition, its delete and a bulk run call it inside their transaction.
void VerificaLunaDeschisa(const BD& bd, const QDate& dinData);
// The same for a disposition already stored (its month as stored); nothing when it is gone.
void VerificaDispozitieModificabila(const BD& bd, qint64 dispozitieId);
// The same for an application about to be deleted with all its dispositions.
void VerificaCerereModificabila(const BD& bd, qint64 cerereId);
