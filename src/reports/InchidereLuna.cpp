#include "reports/InchidereLuna.h"

#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"
#include "history/IstoricCereri.h"
#include "reports/ReportGrid.h"

#include <QHash>
#include <QJsonArray>
#include <QSet>

namespace {

const QString Sursa = QStringLiteral("InchidereLuna");

RandStat randStat(Rezultat& r, bool stocat)
{
    RandStat x;
    x.cerereId = r.valoare(0).toLongLong();
    x.nrCerere = r.valoare(1).toLongLong();
    x.dataCerere = DataDinBD(r.valoare(2));
    x.tipCerere = r.valoare(3).toInt();
    x.stare = r.valoare(4).toInt();
    x.nume = r.valoare(5).toString();
    x.prenume = r.valoare(6).toString();
    x.cnp = r.valoare(7).toString();
    int i = 8;
    if (stocat) {
        x.adresa = r.valoare(i++).toString();
    } else {
        x.adresa = AdresaBorderou(r.valoare(8).toString(), r.valoare(9).toString(), r.valoare(10).toString(),
                                  r.valoare(11).toString(), r.valoare(12).toString());
        i = 13;
    }
    x.lege416 = r.valoare(i).toBool();
    x.nrMembrii = r.valoare(i + 1).toInt();
    x.nrCopii = r.valoare(i + 2).toInt();
    x.cuantum = Bani::dinVariant(r.valoare(i + 3));
    return x;
}

std::vector<RandStat> citeste(const BD& bd, const QString& sql, const QVariantList& p, bool stocat)
{
    std::vector<RandStat> v;
    Rezultat r = bd.selecteaza(sql, p);
    while (r.next())
        v.push_back(randStat(r, stocat));
    return v;
}

QDate primaZi(LunaAn l)
{
    return QDate(l.an, l.luna, 1);
}

QString textLuna(LunaAn l)
{
    return NumeLuna(l.luna) + QLatin1Char(' ') + QString::number(l.an);
}

// The dispositions that take effect after `fataDe` (from the beginning when there is none) and
// not after `l`, per application, oldest first.
std::map<qint64, std::vector<DispozitieExplicativa>> dispozitiiIntre(const BD& bd, std::optional<LunaAn> fataDe,
                                                                     LunaAn l)
{
    QString sql = QStringLiteral("SELECT CerereID, NrDisp, Actiune FROM Dispozitii WHERE DinData <= ?");
    QVariantList p{DataPentruBD(primaZi(l))};
    if (fataDe) {
        sql += QStringLiteral(" AND DinData > ?");
        p << DataPentruBD(primaZi(*fataDe));
    }
    std::map<qint64, std::vector<DispozitieExplicativa>> m;
    Rezultat r = bd.selecteaza(sql + QStringLiteral(" ORDER BY DinData, DispozitieID"), p);
    while (r.next())
        m[r.valoare(0).toLongLong()].push_back({r.valoare(1).toDouble(), r.valoare(2).toInt()});
    return m;
}

// A closed month and no later one closed: what reopening and a close of an earlier month need.
void verificaUltima(const BD& bd, LunaAn l, const QString& ce)
{
    const std::optional<LunaAn> ultima = UltimaLunaInchisa(bd);
    if (ultima && ultima->ordine() > l.ordine())
        throw Eroare(CodEroare::LunaInchisa,
                     QStringLiteral("Luna %1 nu poate fi %2: luna %3 este deja inchisa.")
                         .arg(textLuna(l), ce, textLuna(*ultima)),
                     Sursa);
}

std::optional<LunaAn> fataDeStocat(const BD& bd, LunaAn l)
{
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT FataDeLuna, FataDeAn FROM LuniInchise WHERE An = ? AND Luna = ?"),
                               {l.an, l.luna});
    if (!r.next() || r.valoare(0).toInt() == 0)
        return std::nullopt;
    return LunaAn{r.valoare(0).toInt(), r.valoare(1).toInt()};
}

DiferentaLuna diferentaStocata(const BD& bd, LunaAn l)
{
    DiferentaLuna d;
    d.luna = l;
    d.inchisa = true;
    d.fataDe = fataDeStocat(bd, l);
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

DiferentaLuna diferentaDeschisa(const BD& bd, LunaAn l, const std::vector<RandStat>& nou)
{
    const std::optional<LunaAn> fataDe = UltimaLunaInchisaInainte(bd, l);
    const std::vector<RandStat> vechi = fataDe ? StatPlataInchis(bd, *fataDe) : std::vector<RandStat>{};
    // The status of each family paid before and not now, read in one statement: those of all
    // applications outside the payroll, kept for the families of the earlier one.
    QSet<qint64> inNou, inVechi;
    for (const RandStat& r : nou)
        inNou.insert(r.cerereId);
    for (const RandStat& r : vechi)
        if (!inNou.contains(r.cerereId))
            inVechi.insert(r.cerereId);
    std::map<qint64, int> stari;
    if (!inVechi.isEmpty()) {
        Rezultat r = bd.selecteaza(QStringLiteral("SELECT CerereID, Stare FROM Cereri"));
        while (r.next()) {
            const qint64 id = r.valoare(0).toLongLong();
            if (inVechi.contains(id))
                stari[id] = r.valoare(1).toInt();
        }
    }
    return ComparaStaturi(l, fataDe, vechi, nou, dispozitiiIntre(bd, fataDe, l), stari);
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
                           "Nume, Prenume, CNP, Adresa, Lege416, NrMembrii, NrCopii, Cuantum) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            {l.an, l.luna, r.cerereId, r.nrCerere, DataPentruBD(r.dataCerere), r.tipCerere, r.stare, r.nume.left(20),
             r.prenume.left(30), r.cnp.left(13), r.adresa.left(255), r.lege416, r.nrMembrii, r.nrCopii,
             r.cuantum.variant()});
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

QString SqlStatPlataCurent()
{
    return QStringLiteral(
        "SELECT C.CerereID, C.NrCerere, C.DataCerere, C.TipCerere, C.Stare, M.Nume, M.Prenume, M.CNP, F.Localitate, "
        "F.Strada, F.Nr, F.Sc, F.Ap, C.Lege416, C.NrMembrii, C.NrCopii, C.Cuantum "
        "FROM Cereri C LEFT JOIN Familii F ON F.FamilieID = C.FamilieID LEFT JOIN Membrii M ON M.MembruID = "
        "C.MembruID1 "
        "WHERE C.Stare IN (2, 6, 7, 8) ORDER BY C.NrCerere, C.CerereID");
}

QString SqlStatPlataInchis()
{
    return QStringLiteral(
        "SELECT CerereID, NrCerere, DataCerere, TipCerere, Stare, Nume, Prenume, CNP, Adresa, Lege416, "
        "NrMembrii, NrCopii, Cuantum FROM StatPlataLuna WHERE An = ? AND Luna = ? "
        "ORDER BY NrCerere, CerereID");
}

std::vector<RandStat> StatPlataCurent(const BD& bd)
{
    return citeste(bd, SqlStatPlataCurent(), {}, false);
}

std::vector<RandStat> StatPlataInchis(const BD& bd, LunaAn l)
{
    return citeste(bd, SqlStatPlataInchis(), {l.an, l.luna}, true);
}

std::vector<RandStat> StatPlata(const BD& bd, LunaAn l)
{
    return LunaInchisa(bd, l) ? StatPlataInchis(bd, l) : StatPlataCurent(bd);
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
    return LunaInchisa(bd, l) ? diferentaStocata(bd, l) : diferentaDeschisa(bd, l, StatPlataCurent(bd));
}

DiferentaLuna InchideLuna(BD& bd, LunaAn l)
{
    Tranzactie t(bd);
    if (LunaInchisa(bd, l))
        throw Eroare(CodEroare::LunaInchisa, QStringLiteral("Luna %1 este deja inchisa.").arg(textLuna(l)), Sursa);
    verificaUltima(bd, l, QStringLiteral("inchisa"));
    const std::vector<RandStat> stat = StatPlataCurent(bd);
    DiferentaLuna d = diferentaDeschisa(bd, l, stat);
    stocheaza(bd, l, stat, d);
    const QVariantList cine{DataPentruBD(Ceas::azi()), Proces::statie().left(50), Proces::utilizatorSistem().left(50),
                            d.fataDe ? d.fataDe->an : 0, d.fataDe ? d.fataDe->luna : 0};
    const int n =
        bd.executa(QStringLiteral("UPDATE LuniInchise SET Inchisa = ?, DataInchidere = ?, StatieInchidere = ?, "
                                  "UtilizatorInchidere = ?, FataDeAn = ?, FataDeLuna = ? WHERE An = ? AND Luna = ?"),
                   QVariantList{true} + cine + QVariantList{l.an, l.luna});
    if (n == 0)
        bd.executa(
            QStringLiteral("INSERT INTO LuniInchise (Inchisa, DataInchidere, StatieInchidere, UtilizatorInchidere, "
                           "FataDeAn, FataDeLuna, An, Luna) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
            QVariantList{true} + cine + QVariantList{l.an, l.luna});
    t.confirma();
    d.inchisa = true;
    return d;
}

void RedeschideLuna(BD& bd, LunaAn l, const QString& motiv)
{
    const QString m = motiv.trimmed();
    if (m.isEmpty())
        throw Eroare(CodEroare::LunaInchisa, MesajInchidere::MotivLipsa, Sursa);
    Tranzactie t(bd);
    if (!LunaInchisa(bd, l))
        throw Eroare(CodEroare::LunaInchisa, QStringLiteral("Luna %1 nu este inchisa.").arg(textLuna(l)), Sursa);
    verificaUltima(bd, l, QStringLiteral("redeschisa"));
    // Every application the month paid learns of it, with its values as they stand.
    for (const RandStat& r : StatPlataInchis(bd, l)) {
        const std::optional<ValoriActuale> v = CitesteValoriActuale(bd, r.cerereId);
        if (!v)
            continue;
        SchimbareCerere s;
        s.cerereId = r.cerereId;
        s.stare = v->stare;
        s.stareVeche = v->stare;
        s.cuantum = v->cuantum;
        s.cuantumVechi = v->cuantum;
        s.nrCopii = v->nrCopii;
        s.nrCopiiVechi = v->nrCopii;
        s.motiv = QStringLiteral("Redeschidere luna %1: %2").arg(textLuna(l), m);
        ScrieIstoric(bd, s);
    }
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
            {QStringLiteral("totaluri"), totaluri}};
}

void ConstruiesteStatPlata(const BD& bd, LunaAn l, ReportGrid& g)
{
    const bool inchisa = LunaInchisa(bd, l);
    std::vector<RandBorderou> randuri;
    for (const RandStat& r : inchisa ? StatPlataInchis(bd, l) : StatPlataCurent(bd))
        randuri.push_back({QString::number(r.nrCerere), r.dataCerere, (r.nume + QLatin1Char(' ') + r.prenume), r.cnp,
                           r.adresa, r.lege416, QString::number(r.nrMembrii), QString::number(r.nrCopii), r.cuantum});
    ScrieBorderou(bd,
                  QStringLiteral("privind cererile In plata") +
                      (inchisa ? QStringLiteral(" - luna inchisa") : QStringLiteral(" - luna deschisa")),
                  l.luna, l.an, randuri, g);
}

void ConstruiesteDiferenta(const BD& bd, const DiferentaLuna& d, ReportGrid& g)
{
    ReseteazaGrid(g, Proces::setari().HeightRowRaport);
    g.SetCols(9);
    g.SetRows(9);
    const double latimi[] = {30, 80, 70, 200, 40, 80, 80, 60};
    for (int c = 1; c <= 8; ++c)
        g.SetColumnWidth(c, latimi[c - 1]);
    ScrieBlocTitlu(g, CitesteRandPrimarie(bd), QStringLiteral("DIFERENTE"),
                   d.fataDe ? QStringLiteral("fata de luna ") + textLuna(*d.fataDe)
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
    g.AddRow(QStringLiteral("\t\t\tNeschimbate: %1").arg(d.neschimbate));
    const auto linie = [&](const QString& eticheta, const TotalPlata& t) {
        g.AddRow(QStringLiteral("\t\t\t%1\tfamilii %2\tcopii %3\t%4")
                     .arg(eticheta)
                     .arg(t.familii)
                     .arg(t.copii)
                     .arg(t.suma.textSuma()));
    };
    linie(QStringLiteral("TOTAL GENERAL"), d.totaluri.toate);
    for (const auto& [tip, t] : d.totaluri.peTip)
        linie(tip == 1   ? QStringLiteral("Complementare")
              : tip == 2 ? QStringLiteral("Monoparentale")
                         : QStringLiteral("Tip %1").arg(tip),
              t);
    g.Refresh();
    g.SetPainting(true);
}
