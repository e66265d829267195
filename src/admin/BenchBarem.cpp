// A change of the scale: the preview of a rise of every lei row by a tenth, for every
// application in payment, beside the bare reading of those applications and their members.
#include "admin/Bench.h"
#include "amounts/SchimbareBarem.h"
#include "common/Ceas.h"
#include "database/BD.h"

namespace {

MasuraInregistrata previzualizare(QStringLiteral("barem_previzualizare"), [](BD& bd) {
    const BaremLei vechi = CitesteBaremLei(bd);
    SumeBarem nou{};
    for (int i = 0; i < NrRanduriBaremLei; ++i)
        nou[i] = Bani::dinDouble(vechi[i].barem.value_or(Lei(100)).toDouble() * 1.1);
    // This month, or the first month after the last one closed.
    LunaAn efect{Ceas::azi().month(), Ceas::azi().year()};
    if (const std::optional<LunaAn> inchisa = UltimaLunaInchisa(bd); inchisa && inchisa->ordine() >= efect.ordine())
        efect = inchisa->luna == 12 ? LunaAn{1, inchisa->an + 1} : LunaAn{inchisa->luna + 1, inchisa->an};
    PrevizualizareBarem p;
    const auto ms = CelMaiBunTimp([&] { p = PrevizualizeazaBarem(bd, nou, efect); });
    const auto brut = CelMaiBunTimp([&] {
        CitesteBrut(bd, SqlCereriBarem());
        CitesteBrut(bd, SqlMembriiBarem());
    });
    ScrieTimp(QStringLiteral("barem_previzualizare"), ms, brut);
    ScrieValoare(QStringLiteral("barem_familii"), p.total.familii);
    ScrieValoare(QStringLiteral("barem_familii_modificate"), p.total.modificate);
});

} // namespace
