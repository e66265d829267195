#include "reports/InchidereLuna.h"

#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"
#include "history/IstoricCereri.h"
#include "history/JurnalLuni.h"
#include "history/StareInLuna.h"
#include "reports/RaportComun.h"
#include "reports/ReportGrid.h"

#include <QHash>
#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <unordered_map>

namespace {

const QString Sursa = QStringLiteral("InchidereLuna");

// The columns a payroll is read with: all that the borderou prints, or only what the
// difference compares (the key, the number, the amount, the kind, the children; the holders of
// the rows it lists are read afterwards, by numeste).
enum class Coloane { Toate, Diferenta };

// The order of a payroll: by application number.
bool dupaNumar(const RandStat& a, const RandStat& b)
{
    return std::tie(a.nrCerere, a.cerereId) < std::tie(b.nrCerere, b.cerereId);
}

// A month computed: its payroll and what was in effect for every application then.
struct Calcul {
    std::vector<RandStat> stat;
    std::unordered_map<qint64, StareInLuna> stari;
};

Calcul calculeaza(const BD& bd, LunaAn l, Coloane coloane)
{
    Calcul c;
    c.stari = StariInLuna(bd, l);
    const auto inPlata = [&](qint64 id) {
        const auto s = c.stari.find(id);
        return s != c.stari.end() && EsteStarePlata(s->second.stare) ? &s->second : nullptr;
    };
    const auto valori = [](RandStat& x, const StareInLuna& s) {
        x.nrCerere = s.nrCerere;
        x.tipCerere = s.tipCerere;
        x.stare = s.stare;
        x.cuantum = s.cuantum;
        x.nrCopii = s.nrCopii;
        x.reconstituit = s.reconstituita;
    };
    if (coloane == Coloane::Diferenta) {
        for (const auto& [id, s] : c.stari)
            if (EsteStarePlata(s.stare)) {
                RandStat x;
                x.cerereId = id;
                valori(x, s);
                c.stat.push_back(std::move(x));
            }
        std::sort(c.stat.begin(), c.stat.end(), dupaNumar);
        return c;
    }
    // The holder, the address and the members as the applications stand, by number.
    Rezultat r = bd.selecteaza(QStringLiteral(
        "SELECT C.CerereID, M.Nume, M.Prenume, C.DataCerere, M.CNP, F.Localitate, F.Strada, F.Nr, F.Sc, F.Ap, "
        "C.Lege416, C.NrMembrii FROM Cereri C LEFT JOIN Familii F ON F.FamilieID = C.FamilieID "
        "LEFT JOIN Membrii M ON M.MembruID = C.MembruID1 ORDER BY C.NrCerere, C.CerereID"));
    while (r.next()) {
        const StareInLuna* s = inPlata(r.valoare(0).toLongLong());
        if (!s)
            continue;
        RandStat x;
        x.cerereId = r.valoare(0).toLongLong();
        valori(x, *s);
        x.nume = r.valoare(1).toString();
        x.prenume = r.valoare(2).toString();
        x.dataCerere = DataDinBD(r.valoare(3));
        x.cnp = r.valoare(4).toString();
        x.adresa = AdresaBorderou(r.valoare(5).toString(), r.valoare(6).toString(), r.valoare(7).toString(),
                                  r.valoare(8).toString(), r.valoare(9).toString());
        x.lege416 = r.valoare(10).toBool();
        x.nrMembrii = r.valoare(11).toInt();
        c.stat.push_back(std::move(x));
    }
    return c;
}

// The payroll stored for a closed month, whole or in the columns of a difference.
std::vector<RandStat> statInchis(const BD& bd, LunaAn l, Coloane coloane)
{
    std::vector<RandStat> v;
    if (coloane == Coloane::Diferenta) {
        Rezultat r =
            bd.selecteaza(QStringLiteral("SELECT CerereID, Cuantum, NrCerere, Nume, Prenume FROM StatPlataLuna "
                                         "WHERE An = ? AND Luna = ?"),
                          {l.an, l.luna});
        while (r.next()) {
            RandStat x;
            x.cerereId = r.valoare(0).toLongLong();
            x.cuantum = Bani::dinVariant(r.valoare(1));
            x.nrCerere = r.valoare(2).toLongLong();
            x.nume = r.valoare(3).toString();
            x.prenume = r.valoare(4).toString();
            v.push_back(std::move(x));
        }
        // By number, as the stopped families are listed.
        std::sort(v.begin(), v.end(), dupaNumar);
        return v;
    }
    Rezultat r = bd.selecteaza(SqlStatPlataInchis(), {l.an, l.luna});
    while (r.next()) {
        RandStat x;
        x.cerereId = r.valoare(0).toLongLong();
        x.nrCerere = r.valoare(1).toLongLong();
        x.tipCerere = r.valoare(2).toInt();
        x.nume = r.valoare(3).toString();
        x.prenume = r.valoare(4).toString();
        x.cuantum = Bani::dinVariant(r.valoare(5));
        x.nrCopii = r.valoare(6).toInt();
        x.stare = r.valoare(7).toInt();
        x.dataCerere = DataDinBD(r.valoare(8));
        x.cnp = r.valoare(9).toString();
        x.adresa = r.valoare(10).toString();
        x.lege416 = r.valoare(11).toBool();
        x.nrMembrii = r.valoare(12).toInt();
        x.dispozitieId = r.valoare(13).toLongLong();
        if (!r.valoare(14).isNull())
            x.nrDisp = r.valoare(14).toDouble();
        x.dataDisp = DataDinBD(r.valoare(15));
        v.push_back(std::move(x));
    }
    return v;
}

// Past this many rows to name, one reading of every holder is quicker than one lookup each.
constexpr int PragCitireIntreaga = 2000;

// The holders of the families a difference lists as paid in the month (new and changed), as
// the applications stand; the stopped ones carry those the month before stored.
void numeste(const BD& bd, DiferentaLuna& d)
{
    QHash<qint64, RandDiferenta*> randuri;
    for (std::vector<RandDiferenta>* v : {&d.noi, &d.modificate})
        for (RandDiferenta& r : *v)
            if (r.nume.isEmpty())
                randuri.insert(r.cerereId, &r);
    if (randuri.isEmpty())
        return;
    const QString sql = QStringLiteral("SELECT C.CerereID, M.Nume, M.Prenume FROM Cereri C LEFT JOIN Membrii M "
                                       "ON M.MembruID = C.MembruID1");
    const auto ia = [&](Rezultat& r) {
        while (r.next())
            if (RandDiferenta* x = randuri.value(r.valoare(0).toLongLong()))
                x->nume = (r.valoare(1).toString() + QLatin1Char(' ') + r.valoare(2).toString()).trimmed();
    };
    if (randuri.size() > PragCitireIntreaga) {
        Rezultat r = bd.selecteaza(sql);
        ia(r);
        return;
    }
    for (auto i = randuri.cbegin(); i != randuri.cend(); ++i) {
        Rezultat r = bd.selecteaza(sql + QStringLiteral(" WHERE C.CerereID = ?"), {i.key()});
        ia(r);
    }
}

// The disposition in effect for the month of each family of the payroll: its latest one that
// takes effect by the month's end.
void cuDispozitii(const BD& bd, LunaAn l, std::vector<RandStat>& stat)
{
    struct Disp {
        qint64 id;
        double nr;
        QDate data;
    };
    QHash<qint64, Disp> ultima;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT CerereID, DispozitieID, NrDisp, DataDisp FROM Dispozitii "
                                              "WHERE DinData <= ? ORDER BY DinData, DispozitieID"),
                               {DataPentruBD(UltimaZi(l))});
    while (r.next())
        ultima.insert(r.valoare(0).toLongLong(),
                      {r.valoare(1).toLongLong(), r.valoare(2).toDouble(), DataDinBD(r.valoare(3))});
    for (RandStat& x : stat) {
        const auto d = ultima.constFind(x.cerereId);
        if (d == ultima.constEnd())
            continue;
        x.dispozitieId = d->id;
        x.nrDisp = d->nr;
        x.dataDisp = d->data;
    }
}

int numarReconstituite(const std::vector<RandStat>& stat)
{
    return int(std::count_if(stat.begin(), stat.end(), [](const RandStat& r) { return r.reconstituit; }));
}

// The dispositions that take effect after `fataDe` (from the beginning when there is none) and
// not after `l`, per application, oldest first.
std::map<qint64, std::vector<DispozitieExplicativa>> dispozitiiIntre(const BD& bd, std::optional<LunaAn> fataDe,
                                                                     LunaAn l)
{
    QString sql = QStringLiteral("SELECT CerereID, NrDisp, Actiune FROM Dispozitii WHERE DinData <= ?");
    QVariantList p{DataPentruBD(UltimaZi(l))};
    if (fataDe) {
        sql += QStringLiteral(" AND DinData > ?");
        p << DataPentruBD(UltimaZi(*fataDe));
    }
    std::map<qint64, std::vector<DispozitieExplicativa>> m;
    Rezultat r = bd.selecteaza(sql + QStringLiteral(" ORDER BY DinData, DispozitieID"), p);
    while (r.next())
        m[r.valoare(0).toLongLong()].push_back({r.valoare(1).toDouble(), r.valoare(2).toInt()});
    return m;
}

[[noreturn]] void refuza(const QString& mesaj)
{
    throw Eroare(CodEroare::LunaInchisa, mesaj, Sursa);
}

LunaAn urmatoarea(LunaAn l)
{
    return l.luna == 12 ? LunaAn{1, l.an + 1} : LunaAn{l.luna + 1, l.an};
}

// Months are closed in order: one that has begun, and after the first close only the month
// after the last closed one.
void verificaInchidere(const BD& bd, LunaAn l)
{
    if (PrimaZi(l) > Ceas::azi())
        refuza(QStringLiteral("Luna %1 nu a inceput inca: nu poate fi inchisa.").arg(TextLuna(l)));
    if (LunaInchisa(bd, l))
        refuza(QStringLiteral("Luna %1 este deja inchisa.").arg(TextLuna(l)));
    const std::optional<LunaAn> ultima = UltimaLunaInchisa(bd);
    if (!ultima)
        return;
    if (ultima->ordine() > l.ordine())
        refuza(QStringLiteral("Luna %1 nu poate fi inchisa: luna %2 este deja inchisa.")
                   .arg(TextLuna(l), TextLuna(*ultima)));
    if (!(urmatoarea(*ultima) == l))
        refuza(QStringLiteral("Luna %1 nu poate fi inchisa: lunile se inchid in ordine, iar dupa %2, ultima luna "
                              "inchisa, urmeaza %3.")
                   .arg(TextLuna(l), TextLuna(*ultima), TextLuna(urmatoarea(*ultima))));
}

// Only the last closed month is reopened: an earlier one after the later ones.
void verificaRedeschidere(const BD& bd, LunaAn l)
{
    if (!LunaInchisa(bd, l))
        refuza(QStringLiteral("Luna %1 nu este inchisa.").arg(TextLuna(l)));
    const std::optional<LunaAn> ultima = UltimaLunaInchisa(bd);
    if (ultima && ultima->ordine() > l.ordine())
        refuza(QStringLiteral("Luna %1 nu poate fi redeschisa: luna %2 este inchisa dupa ea. Redeschideti mai intai "
                              "lunile de dupa ea, de la ultima inapoi.")
                   .arg(TextLuna(l), TextLuna(*ultima)));
}

DiferentaLuna diferentaStocata(const BD& bd, LunaAn l)
{
    DiferentaLuna d;
    d.luna = l;
    d.inchisa = true;
    {
        Rezultat r = bd.selecteaza(
            QStringLiteral("SELECT FataDeLuna, FataDeAn, Reconstituite FROM LuniInchise WHERE An = ? AND Luna = ?"),
            {l.an, l.luna});
        if (r.next()) {
            if (r.valoare(0).toInt() != 0)
                d.fataDe = LunaAn{r.valoare(0).toInt(), r.valoare(1).toInt()};
            d.reconstituite = r.valoare(2).toInt();
        }
    }
    Rezultat r =
        bd.selecteaza(QStringLiteral("SELECT CerereID, NrCerere, Nume, Stare, CuantumVechi, Cuantum, NrDisp, Fel "
                                     "FROM DiferenteLuna WHERE An = ? AND Luna = ? ORDER BY Fel, NrCerere, CerereID"),
                      {l.an, l.luna});
    while (r.next()) {
        RandDiferenta x;
        x.cerereId = r.valoare(0).toLongLong();
        x.nrCerere = r.valoare(1).toLongLong();
        x.nume = r.valoare(2).toString();
        if (!r.valoare(3).isNull())
            x.stare = r.valoare(3).toInt();
        if (!r.valoare(4).isNull())
            x.cuantumVechi = Bani::dinVariant(r.valoare(4));
        if (!r.valoare(5).isNull())
            x.cuantum = Bani::dinVariant(r.valoare(5));
        if (!r.valoare(6).isNull())
            x.nrDisp = r.valoare(6).toDouble();
        switch (static_cast<FelDiferenta>(r.valoare(7).toInt())) {
        case FelDiferenta::Noua: d.noi.push_back(x); break;
        case FelDiferenta::Oprita: d.oprite.push_back(x); break;
        case FelDiferenta::Modificata: d.modificate.push_back(x); break;
        }
    }
    Rezultat t = bd.selecteaza(QStringLiteral("SELECT TipCerere, Familii, Copii, Suma FROM TotaluriLuna "
                                              "WHERE An = ? AND Luna = ?"),
                               {l.an, l.luna});
    while (t.next()) {
        const TotalPlata x{t.valoare(1).toInt(), t.valoare(2).toInt(), Bani::dinVariant(t.valoare(3))};
        if (t.valoare(0).toInt() == 0)
            d.totaluri.toate = x;
        else
            d.totaluri.peTip[t.valoare(0).toInt()] = x;
    }
    d.neschimbate = d.totaluri.toate.familii - int(d.noi.size()) - int(d.modificate.size());
    return d;
}

DiferentaLuna diferentaDeschisa(const BD& bd, LunaAn l, const Calcul& c)
{
    const std::optional<LunaAn> fataDe = UltimaLunaInchisaInainte(bd, l);
    const std::vector<RandStat> vechi = fataDe ? statInchis(bd, *fataDe, Coloane::Diferenta) : std::vector<RandStat>{};
    // The status in effect for the month of each family paid before and not now.
    std::map<qint64, int> stari;
    for (const RandStat& r : vechi)
        if (const auto s = c.stari.find(r.cerereId); s != c.stari.end() && !EsteStarePlata(s->second.stare))
            stari[r.cerereId] = s->second.stare;
    DiferentaLuna d = ComparaStaturi(l, fataDe, vechi, c.stat, dispozitiiIntre(bd, fataDe, l), stari);
    d.reconstituite = numarReconstituite(c.stat);
    numeste(bd, d);
    return d;
}

QJsonValue bani(const std::optional<Bani>& b)
{
    return b ? QJsonValue(b->textFix()) : QJsonValue(QJsonValue::Null);
}

QJsonArray lista(const std::vector<RandDiferenta>& v)
{
    QJsonArray a;
    for (const RandDiferenta& r : v)
        a.append(
            QJsonObject{{QStringLiteral("CerereID"), r.cerereId},
                        {QStringLiteral("NrCerere"), r.nrCerere},
                        {QStringLiteral("Nume"), r.nume},
                        {QStringLiteral("Stare"), r.stare ? QJsonValue(*r.stare) : QJsonValue(QJsonValue::Null)},
                        {QStringLiteral("CuantumVechi"), bani(r.cuantumVechi)},
                        {QStringLiteral("Cuantum"), bani(r.cuantum)},
                        {QStringLiteral("NrDisp"), r.nrDisp ? QJsonValue(*r.nrDisp) : QJsonValue(QJsonValue::Null)}});
    return a;
}

QJsonObject total(const TotalPlata& t)
{
    return {{QStringLiteral("familii"), t.familii},
            {QStringLiteral("copii"), t.copii},
            {QStringLiteral("suma"), t.suma.textFix()}};
}

void stocheaza(const BD& bd, LunaAn l, const std::vector<RandStat>& stat, const DiferentaLuna& d)
{
    for (const RandStat& r : stat)
        bd.executa(
            QStringLiteral("INSERT INTO StatPlataLuna (An, Luna, CerereID, NrCerere, DataCerere, TipCerere, Stare, "
                           "Nume, Prenume, CNP, Adresa, Lege416, NrMembrii, NrCopii, Cuantum, DispozitieID, NrDisp, "
                           "DataDisp) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            {l.an, l.luna, r.cerereId, r.nrCerere, DataPentruBD(r.dataCerere), r.tipCerere, r.stare, r.nume.left(20),
             r.prenume.left(30), r.cnp.left(13), r.adresa.left(255), r.lege416, r.nrMembrii, r.nrCopii,
             r.cuantum.variant(), r.dispozitieId, r.nrDisp ? QVariant(*r.nrDisp) : QVariant(),
             DataPentruBD(r.dataDisp)});
    const auto scrieTotal = [&](int tip, const TotalPlata& t) {
        bd.executa(QStringLiteral("INSERT INTO TotaluriLuna (An, Luna, TipCerere, Familii, Copii, Suma) "
                                  "VALUES (?, ?, ?, ?, ?, ?)"),
                   {l.an, l.luna, tip, t.familii, t.copii, t.suma.variant()});
    };
    scrieTotal(0, d.totaluri.toate);
    for (const auto& [tip, t] : d.totaluri.peTip)
        scrieTotal(tip, t);
    const auto scrieDif = [&](FelDiferenta fel, const std::vector<RandDiferenta>& v) {
        for (const RandDiferenta& r : v)
            bd.executa(QStringLiteral("INSERT INTO DiferenteLuna (An, Luna, CerereID, Fel, NrCerere, Nume, Stare, "
                                      "CuantumVechi, Cuantum, NrDisp) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                       {l.an, l.luna, r.cerereId, int(fel), r.nrCerere, r.nume.left(51),
                        r.stare ? QVariant(*r.stare) : QVariant(),
                        r.cuantumVechi ? r.cuantumVechi->variant() : QVariant(),
                        r.cuantum ? r.cuantum->variant() : QVariant(), r.nrDisp ? QVariant(*r.nrDisp) : QVariant()});
    };
    scrieDif(FelDiferenta::Noua, d.noi);
    scrieDif(FelDiferenta::Oprita, d.oprite);
    scrieDif(FelDiferenta::Modificata, d.modificate);
}

void stergeStocat(const BD& bd, LunaAn l)
{
    for (const char* t : {"StatPlataLuna", "TotaluriLuna", "DiferenteLuna"})
        bd.executa(QStringLiteral("DELETE FROM %1 WHERE An = ? AND Luna = ?").arg(QLatin1String(t)), {l.an, l.luna});
}

} // namespace

QString SqlStatPlataInchis()
{
    return QStringLiteral(
        "SELECT CerereID, NrCerere, TipCerere, Nume, Prenume, Cuantum, NrCopii, Stare, DataCerere, CNP, Adresa, "
        "Lege416, NrMembrii, DispozitieID, NrDisp, DataDisp FROM StatPlataLuna WHERE An = ? AND Luna = ? "
        "ORDER BY NrCerere, CerereID");
}

std::vector<RandStat> StatPlataCalculat(const BD& bd, LunaAn l)
{
    return calculeaza(bd, l, Coloane::Toate).stat;
}

std::vector<RandStat> StatPlataInchis(const BD& bd, LunaAn l)
{
    return statInchis(bd, l, Coloane::Toate);
}

std::vector<RandStat> StatPlata(const BD& bd, LunaAn l)
{
    return LunaInchisa(bd, l) ? StatPlataInchis(bd, l) : StatPlataCalculat(bd, l);
}

TotaluriPlata Totaluri(const std::vector<RandStat>& stat)
{
    TotaluriPlata t;
    t.peTip[1];
    t.peTip[2];
    for (const RandStat& r : stat) {
        for (TotalPlata* x : {&t.toate, &t.peTip[r.tipCerere]}) {
            ++x->familii;
            x->copii += r.nrCopii;
            x->suma += r.cuantum;
        }
    }
    return t;
}

DiferentaLuna ComparaStaturi(LunaAn luna, std::optional<LunaAn> fataDe, const std::vector<RandStat>& vechi,
                             const std::vector<RandStat>& nou,
                             const std::map<qint64, std::vector<DispozitieExplicativa>>& dispozitii,
                             const std::map<qint64, int>& stariOprite)
{
    DiferentaLuna d;
    d.luna = luna;
    d.fataDe = fataDe;
    d.totaluri = Totaluri(nou);
    // The latest disposition of the application; for a stopped one the latest that stops.
    const auto nrDisp = [&](qint64 id, bool oprire) -> std::optional<double> {
        const auto it = dispozitii.find(id);
        if (it == dispozitii.end() || it->second.empty())
            return std::nullopt;
        if (oprire)
            for (auto x = it->second.rbegin(); x != it->second.rend(); ++x)
                if (x->actiune == 3 || x->actiune == 4 || x->actiune == 5)
                    return x->nrDisp;
        return it->second.back().nrDisp;
    };
    const auto titular = [](const RandStat& r) { return (r.nume + QLatin1Char(' ') + r.prenume).trimmed(); };
    QHash<qint64, const RandStat*> inainte;
    for (const RandStat& r : vechi)
        inainte.insert(r.cerereId, &r);
    QHash<qint64, bool> acum;
    for (const RandStat& r : nou) {
        acum.insert(r.cerereId, true);
        const RandStat* v = inainte.value(r.cerereId, nullptr);
        if (!v) {
            d.noi.push_back(
                {r.cerereId, r.nrCerere, titular(r), r.stare, std::nullopt, r.cuantum, nrDisp(r.cerereId, false)});
        } else if (v->cuantum != r.cuantum) {
            d.modificate.push_back(
                {r.cerereId, r.nrCerere, titular(r), r.stare, v->cuantum, r.cuantum, nrDisp(r.cerereId, false)});
        } else {
            ++d.neschimbate;
        }
    }
    for (const RandStat& v : vechi) {
        if (acum.contains(v.cerereId))
            continue;
        const auto s = stariOprite.find(v.cerereId);
        d.oprite.push_back({v.cerereId, v.nrCerere, titular(v),
                            s == stariOprite.end() ? std::nullopt : std::optional<int>(s->second), v.cuantum,
                            std::nullopt, nrDisp(v.cerereId, true)});
    }
    return d;
}

DiferentaLuna Diferenta(const BD& bd, LunaAn l)
{
    return LunaInchisa(bd, l) ? diferentaStocata(bd, l)
                              : diferentaDeschisa(bd, l, calculeaza(bd, l, Coloane::Diferenta));
}

QString TextReconstituite(const DiferentaLuna& d)
{
    if (d.reconstituite == 0)
        return QString();
    return QStringLiteral("Luna reconstituita din dispozitii si DataStare pentru %1 cereri: istoricul lor incepe dupa "
                          "aceasta luna.")
        .arg(d.reconstituite);
}

DiferentaLuna InchideLuna(BD& bd, LunaAn l)
{
    Tranzactie t(bd);
    verificaInchidere(bd, l);
    Calcul c = calculeaza(bd, l, Coloane::Toate);
    cuDispozitii(bd, l, c.stat);
    DiferentaLuna d = diferentaDeschisa(bd, l, c);
    stocheaza(bd, l, c.stat, d);
    const QVariantList cine{DataPentruBD(Ceas::azi()),           Proces::statie().left(50),
                            Proces::utilizatorSistem().left(50), d.fataDe ? d.fataDe->an : 0,
                            d.fataDe ? d.fataDe->luna : 0,       d.reconstituite};
    const int n =
        bd.executa(QStringLiteral("UPDATE LuniInchise SET Inchisa = ?, DataInchidere = ?, StatieInchidere = ?, "
                                  "UtilizatorInchidere = ?, FataDeAn = ?, FataDeLuna = ?, Reconstituite = ? "
                                  "WHERE An = ? AND Luna = ?"),
                   QVariantList{true} + cine + QVariantList{l.an, l.luna});
    if (n == 0)
        bd.executa(QStringLiteral("INSERT INTO LuniInchise (Inchisa, DataInchidere, StatieInchidere, "
                                  "UtilizatorInchidere, FataDeAn, FataDeLuna, Reconstituite, An, Luna) "
                                  "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                   QVariantList{true} + cine + QVariantList{l.an, l.luna});
    const TotalPlata& total = d.totaluri.toate;
    ScrieJurnal(bd, l, FelJurnal::Inchidere, QString(), total.familii, total.copii, total.suma);
    t.confirma();
    d.inchisa = true;
    return d;
}

void RedeschideLuna(BD& bd, LunaAn l, const QString& motiv)
{
    const QString m = motiv.trimmed();
    if (m.isEmpty())
        refuza(MesajInchidere::MotivLipsa);
    Tranzactie t(bd);
    verificaRedeschidere(bd, l);
    // Every application the month paid keeps a note of it.
    const std::vector<RandStat> stat = statInchis(bd, l, Coloane::Diferenta);
    for (const RandStat& r : stat)
        ScrieNotaIstoric(bd, r.cerereId, QStringLiteral("Redeschidere luna %1: %2").arg(TextLuna(l), m));
    // The journal keeps the totals the month was closed with.
    const TotalPlata total = diferentaStocata(bd, l).totaluri.toate;
    ScrieJurnal(bd, l, FelJurnal::Redeschidere, m, total.familii, total.copii, total.suma);
    stergeStocat(bd, l);
    bd.executa(QStringLiteral("UPDATE LuniInchise SET Inchisa = ?, DataRedeschidere = ?, StatieRedeschidere = ?, "
                              "UtilizatorRedeschidere = ?, MotivRedeschidere = ? WHERE An = ? AND Luna = ?"),
               {false, DataPentruBD(Ceas::azi()), Proces::statie().left(50), Proces::utilizatorSistem().left(50),
                m.left(255), l.an, l.luna});
    t.confirma();
}

QJsonObject DiferentaJson(const DiferentaLuna& d)
{
    QJsonObject peTip;
    for (const auto& [tip, t] : d.totaluri.peTip)
        peTip.insert(QString::number(tip), total(t));
    QJsonObject totaluri = total(d.totaluri.toate);
    totaluri.insert(QStringLiteral("pe_tip"), peTip);
    return {{QStringLiteral("luna"), d.luna.luna},
            {QStringLiteral("an"), d.luna.an},
            {QStringLiteral("inchisa"), d.inchisa},
            {QStringLiteral("fata_de"), d.fataDe ? QJsonValue(QJsonObject{{QStringLiteral("luna"), d.fataDe->luna},
                                                                          {QStringLiteral("an"), d.fataDe->an}})
                                                 : QJsonValue(QJsonValue::Null)},
            {QStringLiteral("noi"), lista(d.noi)},
            {QStringLiteral("oprite"), lista(d.oprite)},
            {QStringLiteral("modificate"), lista(d.modificate)},
            {QStringLiteral("neschimbate"), d.neschimbate},
            {QStringLiteral("totaluri"), totaluri},
            {QStringLiteral("reconstituite"), d.reconstituite}};
}

void ConstruiesteStatPlata(const BD& bd, LunaAn l, ReportGrid& g)
{
    const bool inchisa = LunaInchisa(bd, l);
    std::vector<RandBorderou> randuri;
    for (const RandStat& r : inchisa ? StatPlataInchis(bd, l) : StatPlataCalculat(bd, l))
        randuri.push_back({QString::number(r.nrCerere), r.dataCerere, (r.nume + QLatin1Char(' ') + r.prenume), r.cnp,
                           r.adresa, r.lege416, QString::number(r.nrMembrii), QString::number(r.nrCopii), r.cuantum});
    ScrieBorderou(bd,
                  QStringLiteral("privind cererile In plata") +
                      (inchisa ? QStringLiteral(" - luna inchisa") : QStringLiteral(" - luna deschisa")),
                  l.luna, l.an, randuri, g);
}

namespace {

// A row of the grid with `text` over columns c1 to c2.
int randUnit(ReportGrid& g, int c1, int c2, const QString& text)
{
    g.AddRow();
    const int r = g.Rows() - 1;
    g.MergeRange(r, c1, r, c2);
    g.SetCellText(r, c1, text);
    return r;
}

QString etichetaTip(int tip)
{
    return tip == 1   ? QStringLiteral("Complementare")
           : tip == 2 ? QStringLiteral("Monoparentale")
                      : QStringLiteral("Tip %1").arg(tip);
}

// The control totals as a table of their own under the list: a head, then all types together
// and each type, the label over columns 2 to 4 and families, children and amount each in a
// column wide enough for it.
void scrieTotaluri(ReportGrid& g, const TotaluriPlata& t)
{
    g.AddRow();
    const int antet = randUnit(g, 2, 4, QStringLiteral("Totaluri"));
    g.SetCellText(antet, 5, QStringLiteral("Familii"));
    g.SetCellText(antet, 6, QStringLiteral("Copii"));
    g.SetCellText(antet, 7, QStringLiteral("Suma"));
    g.RangeBold(antet, 2, antet, 7, true);
    g.RangeAlign(antet, 2, antet, 7, ReportGrid::Centru);
    const auto linie = [&](const QString& eticheta, const TotalPlata& x) {
        const int r = randUnit(g, 2, 4, eticheta);
        g.SetCellText(r, 5, QString::number(x.familii));
        g.SetCellText(r, 6, QString::number(x.copii));
        g.SetCellText(r, 7, x.suma.textSuma());
        g.RangeAlign(r, 5, r, 7, ReportGrid::Dreapta);
    };
    linie(QStringLiteral("TOTAL GENERAL"), t.toate);
    for (const auto& [tip, x] : t.peTip)
        linie(etichetaTip(tip), x);
    const int ultimul = g.Rows() - 1;
    g.RangeBold(antet + 1, 2, antet + 1, 7, true);
    g.RangeBorder(antet, 2, ultimul, 7, ReportGrid::InteriorOrizontal, ReportGrid::Subtire);
    g.RangeBorder(antet, 2, ultimul, 7, ReportGrid::InteriorVertical, ReportGrid::Subtire);
    for (int m : {ReportGrid::MargStanga, ReportGrid::MargDreapta, ReportGrid::MargSus, ReportGrid::MargJos})
        g.RangeBorder(antet, 2, ultimul, 7, m, ReportGrid::Groasa);
}

} // namespace

void ConstruiesteDiferenta(const BD& bd, const DiferentaLuna& d, ReportGrid& g)
{
    ReseteazaGrid(g, Proces::setari().HeightRowRaport);
    g.SetCols(9);
    g.SetRows(9);
    const double latimi[] = {30, 80, 70, 200, 60, 80, 90, 60};
    for (int c = 1; c <= 8; ++c)
        g.SetColumnWidth(c, latimi[c - 1]);
    ScrieBlocTitlu(g, CitesteRandPrimarie(bd), QStringLiteral("DIFERENTE"),
                   d.fataDe ? QStringLiteral("fata de luna ") + TextLuna(*d.fataDe)
                            : QStringLiteral("fara o luna inchisa inainte"),
                   d.luna.luna, d.luna.an);
    ScrieAntetLista(g, {QStringLiteral("Nr. Crt."), QStringLiteral("Fel"), QStringLiteral("Nr cerere"),
                        QStringLiteral("Titular"), QStringLiteral("Stare"), QStringLiteral("Suma veche"),
                        QStringLiteral("Suma noua"), QStringLiteral("Nr disp")});
    int nr = 0;
    const auto scrie = [&](const QString& fel, const std::vector<RandDiferenta>& v) {
        for (const RandDiferenta& r : v)
            AdaugaRandLista(g, {QString::number(++nr), fel, QString::number(r.nrCerere), r.nume,
                                r.stare ? QString::number(*r.stare) : QString(),
                                r.cuantumVechi ? r.cuantumVechi->textSuma() : QString(),
                                r.cuantum ? r.cuantum->textSuma() : QString(),
                                r.nrDisp ? TextNumar(*r.nrDisp) : QString()});
    };
    scrie(QStringLiteral("Noua"), d.noi);
    scrie(QStringLiteral("Oprita"), d.oprite);
    scrie(QStringLiteral("Modificata"), d.modificate);
    randUnit(g, 2, 7, QStringLiteral("Familii neschimbate: %1").arg(d.neschimbate));
    scrieTotaluri(g, d.totaluri);
    if (const QString text = TextReconstituite(d); !text.isEmpty()) {
        g.AddRow();
        const int r = randUnit(g, 2, 8, text);
        g.RangeWrap(r, 2, r, 8, true);
        g.SetRowHeight(r, 40);
    }
    g.Refresh();
    g.SetPainting(true);
}

void ConstruiesteJurnal(const BD& bd, std::optional<LunaAn> doar, ReportGrid& g)
{
    ReseteazaGrid(g, Proces::setari().HeightRowRaport);
    g.SetCols(11);
    g.SetRows(9);
    const double latimi[] = {30, 120, 90, 80, 60, 110, 90, 50, 50, 80};
    for (int c = 1; c <= 10; ++c)
        g.SetColumnWidth(c, latimi[c - 1]);
    const LunaAn luna = doar ? *doar : LunaAn{Proces::setari().LunaSetata, Proces::setari().AnSetat};
    ScrieBlocTitlu(g, CitesteRandPrimarie(bd), QStringLiteral("JURNALUL INCHIDERII LUNILOR"),
                   doar ? QStringLiteral("inchideri si redeschideri ale lunii")
                        : QStringLiteral("inchideri si redeschideri ale tuturor lunilor"),
                   luna.luna, luna.an);
    if (!doar)
        g.SetCellText(6, 1, QString());
    ScrieAntetLista(g, {QStringLiteral("Nr. Crt."), QStringLiteral("Luna"), QStringLiteral("Operatia"),
                        QStringLiteral("Data"), QStringLiteral("Ora"), QStringLiteral("Statie"),
                        QStringLiteral("Utilizator"), QStringLiteral("Familii"), QStringLiteral("Copii"),
                        QStringLiteral("Suma")});
    int nr = 0;
    for (const RandJurnal& r : CitesteJurnal(bd, doar)) {
        AdaugaRandLista(g, {QString::number(++nr), TextLuna(r.luna), TextFelJurnal(r.fel), TextData(r.data), r.ora,
                            r.statie, r.utilizator, QString::number(r.familii), QString::number(r.copii),
                            r.suma.textSuma()});
        if (!r.motiv.isEmpty()) {
            // The reason of a reopening on a line of its own, under its row.
            const int m = randUnit(g, 2, 10, QStringLiteral("Motiv: ") + r.motiv);
            g.RangeBorder(m, 1, m, 10, ReportGrid::MargJos, ReportGrid::Subtire);
        }
    }
    g.Refresh();
    g.SetPainting(true);
}
