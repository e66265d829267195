// The month close: the difference of a month's payroll (every application in payment) against
// the payroll stored for the month before, beside the bare reading of the two payrolls.
#include "admin/Bench.h"
#include "common/Proces.h"
#include "database/BD.h"
#include "reports/InchidereLuna.h"

namespace {

MasuraInregistrata diferenta(QStringLiteral("luna_diferenta"), [](BD& bd) {
    const LunaAn l2{Proces::setari().LunaSetata, Proces::setari().AnSetat};
    const LunaAn l1 = l2.luna == 1 ? LunaAn{12, l2.an - 1} : LunaAn{l2.luna - 1, l2.an};
    // The month before is closed inside a transaction that is never confirmed: the office
    // stays as it was.
    Tranzactie t(bd);
    double inchidere = 0;
    if (!LunaInchisa(bd, l1))
        inchidere = CelMaiBunTimp([&] { InchideLuna(bd, l1); }, 1);
    DiferentaLuna d;
    const auto ms = CelMaiBunTimp([&] { d = Diferenta(bd, l2); });
    const auto brut = CelMaiBunTimp([&] {
        CitesteBrut(bd, SqlStatPlataCurent());
        CitesteBrut(bd, SqlStatPlataInchis(), {l1.an, l1.luna});
    });
    ScrieTimp(QStringLiteral("luna_diferenta"), ms, brut);
    ScrieValoare(QStringLiteral("luna_inchidere_ms"), inchidere);
    ScrieValoare(QStringLiteral("luna_familii"), d.totaluri.toate.familii);
});

} // namespace
