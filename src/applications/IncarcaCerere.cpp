#include "applications/IncarcaCerere.h"

#include "applications/RegulaMembru.h"
#include "database/BD.h"
#include "database/CoduriDateGen.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Bani.h"
#include "common/Eroare.h"
#include "common/Text.h"

namespace {

int mic(const Rezultat& r, const char* col)
{
    return static_cast<int>(r.numar(col));
}

// In both modes the lists open on their usual choice: the first legal representative, the
// third way of payment.
void alegeriImplicite(const BD& bd, Cerere& c)
{
    const std::vector<ElementCod> repr = CitesteListaCod(bd, 27);
    if (!repr.empty())
        c.ReprLegal = repr.front().id;
    const std::vector<ElementCod> plata = CitesteListaCod(bd, 12);
    if (plata.size() >= 3)
        c.ModPlata = plata[2].id;
}

void citesteFamilia(const BD& bd, Cerere& c)
{
    Rezultat f = bd.selecteaza(QStringLiteral("SELECT * FROM Familii WHERE FamilieID = ?"), {c.FamilieID});
    if (!f.next())
        return;
    c.NrDosar = TextNumarBD(f["NrDosar"]);
    c.Judet = f.text("Judet");
    c.Localitate = f.text("Localitate");
    c.Strada = f.text("Strada");
    c.Nr = f.text("Nr");
    c.Bloc = f.text("Bloc");
    c.Sc = f.text("Sc");
    c.Ap = f.text("Ap");
    c.Telefon = f.text("Telefon");
    c.Mobil = f.text("Mobil");
}

void citesteCererea(Rezultat& r, Cerere& c)
{
    c.NrCerere = TextNumarBD(r["NrCerere"]);
    c.DataCerere = DataDinBD(r["DataCerere"]);
    c.Stare = mic(r, "Stare");
    c.MotivStare = r.text("MotivStare");
    c.DataStare = DataDinBD(r["DataStare"]);
    c.VenitTotal = TextBaniBD(r["VenitTotal"]);
    c.VenitpeMembru = TextBaniBD(r["VenitpeMembru"]);
    c.Cuantum = TextBaniBD(r["Cuantum"]);
    c.NrMembrii = TextNumarBD(r["NrMembrii"]);
    c.NrCopii = TextNumarBD(r["NrCopii"]);
    c.TipCerere = mic(r, "TipCerere");
    // The two lists keep their usual choice when the stored field is empty.
    if (!r["ReprLegal"].isNull())
        c.ReprLegal = mic(r, "ReprLegal");
    if (!r["ModPlata"].isNull())
        c.ModPlata = mic(r, "ModPlata");
    c.NumeTitularCont = r.text("NumeTitularCont");
    c.Cont = r.text("Cont");
    c.Banca = r.text("Banca");
    c.LuniRetro = TextNumarBD(r["LuniRetro"]);
    c.Gospodarire = mic(r, "Gospodarire");
    c.LunaGospod = mic(r, "LunaGospod");
    c.GospodLoc = mic(r, "GospodLoc");
    c.RegimJuridLoc = mic(r, "RegimJuridLoc");
    c.TipIncalzire = mic(r, "TipIncalzire");
    c.TipLocuinta = mic(r, "TipLocuinta");
    c.Bife = r.text("Bife");
}

void citesteLocuintele(const BD& bd, Cerere& c)
{
    bool vazut[NrLocuinte] = {};
    Rezultat r =
        bd.selecteaza(QStringLiteral("SELECT Cod, NrCamere, Suprafata FROM Locuinte WHERE CerereID = ?"), {c.CerereID});
    while (r.next()) {
        const int cod = mic(r, "Cod");
        if (cod < 1 || cod > NrLocuinte || vazut[cod - 1])
            continue; // the first row of a code counts
        vazut[cod - 1] = true;
        LocuintaCerere& l = c.Locuinte[static_cast<std::size_t>(cod - 1)];
        l.Cod = cod;
        l.folosita = true;
        l.NrCamere = mic(r, "NrCamere");
        l.Suprafata = r["Suprafata"].toDouble();
    }
}

void citesteVeniturile(const BD& bd, Cerere& c)
{
    bool vazut[NrCoduriVenit] = {};
    Rezultat r =
        bd.selecteaza(QStringLiteral("SELECT CodVenit, Valoare FROM Venituri WHERE CerereID = ?"), {c.CerereID});
    while (r.next()) {
        const int cod = mic(r, "CodVenit");
        if (cod < 1 || cod > NrCoduriVenit || vazut[cod - 1])
            continue;
        vazut[cod - 1] = true;
        c.Venituri[static_cast<std::size_t>(cod - 1)] = Bani::dinVariant(r["Valoare"]);
    }
}

std::vector<AdeverintaMembru> adeverinte(const BD& bd, qint64 cerereId, qint64 membruId)
{
    std::vector<AdeverintaMembru> v;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT * FROM Adeverinte WHERE CerereID = ? AND MembruID = ? "
                                              "ORDER BY DataDepunerii DESC"),
                               {cerereId, membruId});
    while (r.next()) {
        AdeverintaMembru a;
        a.AdevID = r.numar("AdevID");
        a.TipAdeverinta = mic(r, "TipAdeverinta");
        a.NrAdev = r.text("NrAdev");
        a.DataAdeverinta = DataDinBD(r["DataAdeverinta"]);
        a.DataExpAdev = DataDinBD(r["DataExpAdev"]);
        a.DataDepunerii = DataDinBD(r["DataDepunerii"]);
        v.push_back(std::move(a));
    }
    return v;
}

void citesteMembrii(const BD& bd, Cerere& c)
{
    Rezultat r = bd.selecteaza(
        QStringLiteral("SELECT M.MembruID, M.Nume, M.Prenume, M.CNP, M.TipAct, M.SerieBI, M.NrBI, M.Eliberat, "
                       "M.DataElib, CM.RudenieID, CM.CetatenieID, CM.TaraCetatenie, CM.ResedintaID, CM.LocResedinta, "
                       "CM.TaraResedinta, CM.StCivila, CM.Studii, CM.DrAsSociala, CM.OcupatieID, CM.LucreazaAfara, "
                       "CM.UScolara, CM.Clasa, CM.RealizeazaVenit, CM.Data18Ani, CM.Motiv, CM.Stare, CM.MotivStare, "
                       "CM.DataStare FROM Membrii AS M INNER JOIN CereriMembrii AS CM ON M.MembruID = CM.MembruID "
                       "WHERE CM.CerereID = ? ORDER BY CM.RudenieID, M.MembruID"),
        {c.CerereID});
    while (r.next()) {
        MembruCerere m;
        m.MembruID = r.numar("MembruID");
        m.Nume = r.text("Nume");
        m.Prenume = r.text("Prenume");
        m.CNP = r.text("CNP");
        m.TipAct = mic(r, "TipAct");
        m.SerieBI = r.text("SerieBI");
        m.NrBI = r.text("NrBI");
        m.Eliberat = r.text("Eliberat");
        m.DataElib = DataDinBD(r["DataElib"]);
        m.RudenieID = mic(r, "RudenieID");
        m.CetatenieID = mic(r, "CetatenieID");
        m.TaraCetatenie = r.text("TaraCetatenie");
        m.ResedintaID = mic(r, "ResedintaID");
        m.LocResedinta = r.text("LocResedinta");
        m.TaraResedinta = r.text("TaraResedinta");
        m.StCivila = mic(r, "StCivila");
        m.Studii = mic(r, "Studii");
        m.DrAsSociala = mic(r, "DrAsSociala");
        m.OcupatieID = mic(r, "OcupatieID");
        m.LucreazaAfara = r["LucreazaAfara"].toBool();
        m.UScolara = r.text("UScolara");
        m.Clasa = r.text("Clasa");
        m.RealizeazaVenit = r["RealizeazaVenit"].toBool();
        m.Data18Ani = DataDinBD(r["Data18Ani"]);
        m.Motiv = r.text("Motiv");
        m.Stare = mic(r, "Stare");
        m.MotivStare = r.text("MotivStare");
        m.DataStare = DataDinBD(r["DataStare"]);
        c.Membrii.push_back(std::move(m));
    }
    for (MembruCerere& m : c.Membrii) {
        m.TextRudenie = EtichetaCod(bd, 2, m.RudenieID);
        m.TextOcupatie = EtichetaCod(bd, 3, m.OcupatieID);
        m.TextDataNasterii = ColoanaDataNasterii(m.CNP);
        m.Adeverinte = adeverinte(bd, c.CerereID, m.MembruID);
    }
}

int g_lunaGospod = 0;

QString primaDenumire(const BD& bd, const QString& tabela)
{
    const QVariant v = bd.scalar(QStringLiteral("SELECT Denumire FROM %1").arg(tabela));
    return v.isValid() && !v.isNull() ? v.toString() : QString();
}

} // namespace

Cerere IncarcaCerere(const BD& bd, qint64 cerereId)
{
    Cerere c;
    c.Adaug = 2;
    c.CerereID = cerereId;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT * FROM Cereri WHERE CerereID = ?"), {cerereId});
    if (!r.next())
        throw Eroare(CodEroare::RandSters,
                     QStringLiteral("Cererea %1 nu mai exista; a fost stearsa de alt utilizator.").arg(cerereId),
                     QStringLiteral("IncarcaCerere"));
    c.FamilieID = r.numar("FamilieID");
    alegeriImplicite(bd, c);
    citesteCererea(r, c);
    citesteFamilia(bd, c);
    citesteLocuintele(bd, c);
    citesteVeniturile(bd, c);
    citesteMembrii(bd, c);
    return c;
}

Cerere CerereNoua(const BD& bd)
{
    Cerere c;
    c.Adaug = 1;
    c.Judet = primaDenumire(bd, QStringLiteral("Judete"));
    c.Localitate = primaDenumire(bd, QStringLiteral("Localitati"));
    c.DataCerere = Ceas::azi();
    alegeriImplicite(bd, c);
    c.LunaGospod = g_lunaGospod;
    return c;
}

void RetineLunaGospod(int luna)
{
    g_lunaGospod = luna;
}
