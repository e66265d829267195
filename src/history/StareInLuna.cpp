#include "history/StareInLuna.h"

#include "common/Data.h"
#include "database/BD.h"
#include "history/IstoricCereri.h"

#include <optional>
#include <unordered_set>

namespace {

// What the history of one application says of the month.
struct Urma {
    bool completa = false; // it holds the row of the application's creation
    std::optional<StareInLuna> stare;
};

// The application as stored now.
struct Actuala {
    qint64 id = 0;
    QDate dataCerere;
    StareInLuna valori;
    QDate dataStare;
};

// The first row of a history that does not begin with the application: the day it was written
// and the values the application had before it.
struct Inceput {
    QDate scris;
    StareInLuna inainte;
};

std::unordered_map<qint64, Inceput> inceputuri(const BD& bd, const std::unordered_set<qint64>& cereri)
{
    std::unordered_map<qint64, Inceput> m;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT CerereID, DataTranzactie, StareVeche, CuantumVechi, NrCopiiVechi "
                                              "FROM IstoricCereri ORDER BY CerereID, IstoricID"));
    while (r.next()) {
        const qint64 id = r.valoare(0).toLongLong();
        if (cereri.count(id) && !m.count(id))
            m[id] = {DataDinBD(r.valoare(1)),
                     {r.valoare(2).toInt(), Bani::dinVariant(r.valoare(3)), r.valoare(4).toInt(), false}};
    }
    return m;
}

// The last disposition in effect by the day, per application.
struct DispozitieInVigoare {
    QDate dinData;
    int actiune = 0;
    Bani cuantum;
};
std::unordered_map<qint64, DispozitieInVigoare> dispozitiiPana(const BD& bd, const QDate& zi)
{
    std::unordered_map<qint64, DispozitieInVigoare> m;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT CerereID, DinData, Actiune, Cuantum FROM Dispozitii "
                                              "WHERE DinData <= ? ORDER BY DinData, DispozitieID"),
                               {DataPentruBD(zi)});
    while (r.next())
        m[r.valoare(0).toLongLong()] = {DataDinBD(r.valoare(1)), r.valoare(2).toInt(), Bani::dinVariant(r.valoare(3))};
    return m;
}

// The month of an application whose history begins later: the later of its last disposition
// by then and its status from the day of that status (`din`; invalid when not known, and then
// the status is taken as held from the beginning, before any disposition).
std::optional<StareInLuna> reconstituie(const StareInLuna& valori, const QDate& din, const QDate& sfarsit,
                                        const DispozitieInVigoare* d)
{
    const bool stareInVigoare = !din.isValid() || din <= sfarsit;
    if (d && (!stareInVigoare || !din.isValid() || d->dinData > din))
        return StareInLuna{StareDinActiune(d->actiune), d->cuantum, valori.nrCopii, true};
    if (stareInVigoare)
        return StareInLuna{valori.stare, valori.cuantum, valori.nrCopii, true};
    return std::nullopt;
}

} // namespace

bool EsteStarePlata(int stare)
{
    return stare == 2 || stare == 6 || stare == 7 || stare == 8;
}

QString SqlIstoricInLuna()
{
    // The rows in effect by the day, and the row of each application's creation wherever it
    // falls: it tells that the history is whole.
    return QStringLiteral("SELECT CerereID, DinData, Tranzactie, Cuantum, NrCopii, StareVeche FROM IstoricCereri "
                          "WHERE DinData <= ? OR StareVeche IS NULL ORDER BY CerereID, IstoricID");
}

std::unordered_map<qint64, StareInLuna> StariInLuna(const BD& bd, LunaAn l)
{
    const QDate sfarsit = UltimaZi(l);
    std::unordered_map<qint64, Urma> istoric;
    {
        Rezultat r = bd.selecteaza(SqlIstoricInLuna(), {DataPentruBD(sfarsit)});
        while (r.next()) {
            Urma& u = istoric[r.valoare(0).toLongLong()];
            if (r.valoare(5).isNull())
                u.completa = true;
            // In the order written: the last change in effect by the month's end holds.
            if (InVigoarePana(DataDinBD(r.valoare(1)), sfarsit))
                u.stare = StareInLuna{r.valoare(2).toInt(), Bani::dinVariant(r.valoare(3)), r.valoare(4).toInt()};
        }
    }

    std::unordered_map<qint64, StareInLuna> stari;
    std::vector<Actuala> deReconstituit;
    {
        Rezultat r = bd.selecteaza(QStringLiteral("SELECT CerereID, DataCerere, Stare, Cuantum, NrCopii, DataStare "
                                                  "FROM Cereri"));
        while (r.next()) {
            const QDate dataCerere = DataDinBD(r.valoare(1));
            if (dataCerere.isValid() && dataCerere > sfarsit)
                continue; // registered after the month
            const qint64 id = r.valoare(0).toLongLong();
            const auto u = istoric.find(id);
            if (u != istoric.end() && u->second.completa) {
                if (u->second.stare)
                    stari[id] = *u->second.stare;
                continue;
            }
            deReconstituit.push_back(
                {id,
                 dataCerere,
                 {r.valoare(2).toInt(), Bani::dinVariant(r.valoare(3)), r.valoare(4).toInt(), false},
                 DataDinBD(r.valoare(5))});
        }
    }
    if (deReconstituit.empty())
        return stari;

    // The histories that do not begin with their application.
    std::unordered_set<qint64> ids;
    for (const Actuala& c : deReconstituit)
        ids.insert(c.id);
    const std::unordered_map<qint64, Inceput> inceput = inceputuri(bd, ids);
    std::optional<std::unordered_map<qint64, DispozitieInVigoare>> dispozitii;
    for (const Actuala& c : deReconstituit) {
        const auto i = inceput.find(c.id);
        if (i != inceput.end() && i->second.scris <= sfarsit) {
            // The history covers the month: its last change by then, else what was before it.
            const auto u = istoric.find(c.id);
            stari[c.id] = u != istoric.end() && u->second.stare ? *u->second.stare : i->second.inainte;
            continue;
        }
        if (!dispozitii)
            dispozitii = dispozitiiPana(bd, sfarsit);
        const auto d = dispozitii->find(c.id);
        // Without a history, the application as it stands from its status date; with one that
        // begins later, as it stood before it, from a status date older than that beginning.
        StareInLuna valori = c.valori;
        QDate din = c.dataStare;
        if (i != inceput.end()) {
            valori = i->second.inainte;
            if (din.isValid() && din > i->second.scris)
                din = c.dataCerere;
        } else if (!din.isValid()) {
            din = c.dataCerere;
        }
        if (const auto s = reconstituie(valori, din, sfarsit, d == dispozitii->end() ? nullptr : &d->second))
            stari[c.id] = *s;
    }
    return stari;
}
