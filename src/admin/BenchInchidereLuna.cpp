// The month close: the difference of a month's payroll (every application paid in it, from
// what was in effect for it) against the payroll stored for the month before, this month and
// a past one, beside the bare reading of what each reads.
#include "admin/Bench.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "database/BD.h"
#include "history/StareInLuna.h"
#include "reports/InchidereLuna.h"

namespace {

LunaAn inainte(LunaAn l)
{
    return l.luna == 1 ? LunaAn{12, l.an - 1} : LunaAn{l.luna - 1, l.an};
}

// Closes the month before `l` inside the caller's transaction, which is never confirmed: the
// office stays as it was. The time of the close, 0 when it was closed already or its office
// closes another month next.
double inchideInainte(BD& bd, LunaAn l)
{
    const LunaAn l1 = inainte(l);
    if (LunaInchisa(bd, l1))
        return 0;
    try {
        return CelMaiBunTimp([&] { InchideLuna(bd, l1); }, 1);
    } catch (const Eroare&) {
        return 0;
    }
}

MasuraInregistrata diferenta(QStringLiteral("luna_diferenta"), [](BD& bd) {
    const LunaAn l2{Ceas::azi().month(), Ceas::azi().year()};
    Tranzactie t(bd);
    const double inchidere = inchideInainte(bd, l2);
    DiferentaLuna d;
    const auto ms = CelMaiBunTimp([&] { d = Diferenta(bd, l2); });
    const auto brut = CelMaiBunTimp([&] {
        CitesteBrut(bd, SqlIstoricInLuna(), ValoriIstoricInLuna(l2));
        CitesteBrut(bd, SqlStatPlataInchis(), {inainte(l2).an, inainte(l2).luna});
    });
    ScrieTimp(QStringLiteral("luna_diferenta"), ms, brut);
    ScrieValoare(QStringLiteral("luna_inchidere_ms"), inchidere);
    ScrieValoare(QStringLiteral("luna_familii"), d.totaluri.toate.familii);
});

// A month six months back, as an appeal asks for it: its payroll from the history, against the
// month before it, closed; beside the bare reading of the history rows it reads.
MasuraInregistrata diferentaTrecuta(QStringLiteral("luna_diferenta_trecuta"), [](BD& bd) {
    const QDate atunci = Ceas::azi().addMonths(-6);
    const LunaAn l{atunci.month(), atunci.year()};
    Tranzactie t(bd);
    inchideInainte(bd, l);
    DiferentaLuna d;
    const auto ms = CelMaiBunTimp([&] { d = Diferenta(bd, l); });
    const auto brut = CelMaiBunTimp([&] { CitesteBrut(bd, SqlIstoricInLuna(), ValoriIstoricInLuna(l)); });
    ScrieTimp(QStringLiteral("luna_diferenta_trecuta"), ms, brut);
    ScrieValoare(QStringLiteral("luna_trecuta_familii"), d.totaluri.toate.familii);
});

} // namespace
