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
    qint64 scrisLa = 0;    // the IstoricID of the change that holds: the last one written, 0 for none
    StareInLuna stare;
};

// The application's own columns of `sursa` into `s`.
void cuCerereaCa(StareInLuna& s, const StareInLuna& sursa)
{
    s.tipCerere = sursa.tipCerere;
    s.nrCerere = sursa.nrCerere;
}

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
                     {r.valoare(2).toInt(), Bani::dinVariant(r.valoare(3)), r.valoare(4).toInt()}};
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
    StareInLuna s = valori;
    s.reconstituita = true;
    if (d && (!stareInVigoare || !din.isValid() || d->dinData > din)) {
        s.stare = StareDinActiune(d->actiune);
        s.cuantum = d->cuantum;
        return s;
    }
    if (stareInVigoare)
        return s;
    return std::nullopt;
}

} // namespace

bool EsteStarePlata(int stare)
{
    return stare == 2 || stare == 6 || stare == 7 || stare == 8;
}

QString SqlIstoricInLuna()
{
    // The rows of the applications registered by the day: those in effect by then, and the row
    // of each application's creation wherever it falls (it tells that the history is whole),
    // with whether it is in effect; each with the application's kind and number.
    return QStringLiteral(
        "SELECT H.CerereID, H.IstoricID, H.Tranzactie, H.Cuantum, H.NrCopii, H.StareVeche, "
        "CASE WHEN H.DinData <= ? THEN 1 ELSE 0 END, C.TipCerere, C.NrCerere "
        "FROM IstoricCereri H JOIN Cereri C ON C.CerereID = H.CerereID "
        "WHERE (H.DinData <= ? OR H.StareVeche IS NULL) AND (C.DataCerere IS NULL OR C.DataCerere <= ?)");
}

QVariantList ValoriIstoricInLuna(LunaAn l)
{
    const QVariant zi = DataPentruBD(UltimaZi(l));
    return {zi, zi, zi};
}

std::unordered_map<qint64, StareInLuna> StariInLuna(const BD& bd, LunaAn l)
{
    const QDate sfarsit = UltimaZi(l);
    std::unordered_map<qint64, Urma> istoric;
    {
        Rezultat r = bd.selecteaza(SqlIstoricInLuna(), ValoriIstoricInLuna(l));
        while (r.next()) {
            Urma& u = istoric[r.valoare(0).toLongLong()];
            if (r.valoare(5).isNull())
                u.completa = true;
            // The last change written (the highest key) among those in effect by the month's end
            // holds; the rows come in no particular order.
            const qint64 id = r.valoare(1).toLongLong();
            if (id > u.scrisLa && r.valoare(6).toInt() == 1) {
                u.scrisLa = id;
                u.stare.stare = r.valoare(2).toInt();
                u.stare.cuantum = Bani::dinVariant(r.valoare(3));
                u.stare.nrCopii = r.valoare(4).toInt();
                u.stare.tipCerere = r.valoare(7).toInt();
                u.stare.nrCerere = r.valoare(8).toLongLong();
            }
        }
    }
    std::unordered_map<qint64, StareInLuna> stari;
    std::size_t complete = 0;
    for (auto& [id, u] : istoric)
        if (u.completa) {
            ++complete;
            if (u.scrisLa)
                stari.emplace(id, std::move(u.stare));
        }
    const QString inregistrate = QStringLiteral(" FROM Cereri WHERE DataCerere IS NULL OR DataCerere <= ?");
    if (bd.scalar(QStringLiteral("SELECT COUNT(*)") + inregistrate, {DataPentruBD(sfarsit)}).toULongLong() == complete)
        return stari;

    // Some histories do not begin with their application: those applications as they stand.
    std::vector<Actuala> deReconstituit;
    {
        Rezultat r = bd.selecteaza(
            QStringLiteral("SELECT CerereID, DataCerere, Stare, Cuantum, NrCopii, DataStare, TipCerere, NrCerere") +
                inregistrate,
            {DataPentruBD(sfarsit)});
        while (r.next()) {
            const qint64 id = r.valoare(0).toLongLong();
            if (const auto u = istoric.find(id); u != istoric.end() && u->second.completa)
                continue;
            StareInLuna valori{r.valoare(2).toInt(), Bani::dinVariant(r.valoare(3)), r.valoare(4).toInt()};
            valori.tipCerere = r.valoare(6).toInt();
            valori.nrCerere = r.valoare(7).toLongLong();
            deReconstituit.push_back({id, DataDinBD(r.valoare(1)), valori, DataDinBD(r.valoare(5))});
        }
    }

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
            StareInLuna x = u != istoric.end() && u->second.scrisLa ? u->second.stare : i->second.inainte;
            cuCerereaCa(x, c.valori);
            stari[c.id] = x;
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
            cuCerereaCa(valori, c.valori);
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
