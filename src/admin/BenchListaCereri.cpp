// The case list of the main window: the rows of the whole list and of a name-prefix search,
// each beside the bare reading of the same rows by the same statement.
#include "admin/Bench.h"
#include "database/BD.h"
#include "database/CoduriDateGen.h"
#include "mainwindow/ListaCereri.h"

namespace {

// The statuses ticked by default: the second and the third of the list.
QList<int> stariImplicite(const BD& bd)
{
    QList<int> s;
    const auto lista = CitesteListaCod(bd, 1);
    for (size_t i = 1; i < lista.size() && i <= 2; ++i)
        s << lista[i].id;
    return s;
}

MasuraInregistrata listaToata(QStringLiteral("lista_cereri_toate"), [](BD& bd) {
    const auto ms = CelMaiBunTimp([&] { CitesteToateCererile(bd, QString()); });
    const QString sql = SqlRanduriCereri(false, {}, QStringLiteral("C.CerereID"));
    const auto brut = CelMaiBunTimp([&] { CitesteBrut(bd, sql, {}); });
    ScrieTimp(QStringLiteral("lista_cereri_toate"), ms, brut);
});

MasuraInregistrata cautareNume(QStringLiteral("lista_cereri_cautare_nume"), [](BD& bd) {
    FiltruCautare f;
    f.nume = QStringLiteral("Po");
    f.stari = stariImplicite(bd);
    const ConditieCautare c = ConstruiesteFiltru(bd, f);
    const auto ms = CelMaiBunTimp([&] { CitesteCautarea(bd, c, QString()); });
    const QString sql = SqlRanduriCereri(true, c.conditie, QStringLiteral("C.NrCerere, C.CerereID"));
    const auto brut = CelMaiBunTimp([&] { CitesteBrut(bd, sql, c.valori); });
    ScrieTimp(QStringLiteral("lista_cereri_cautare_nume"), ms, brut);
});

} // namespace
