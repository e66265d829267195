#include "applications/SalveazaCerere.h"

#include "database/BlocareRetea.h"
#include "database/ValoriPermise.h"
#include "amounts/Cuantum.h"
#include "applications/RegulaMembru.h"
#include "applications/ValoriCerere.h"
#include "database/BD.h"
#include "history/IstoricCereri.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"

namespace {

const QString Sursa = QStringLiteral("SalveazaCerere");

QVariant text(const QString& s)
{
    return s.trimmed();
}

// A text typed in a list that grows (Strazi, Politii, Scoli, Motive): a new name gets a row,
// with the key the maximum plus 1. Names compare as the office always compared them, without
// regard to case.
void asiguraDenumire(const BD& bd, const QString& tabela, const QString& cheie, const QString& denumire,
                     bool cuLocalitate)
{
    const QString d = denumire.trimmed();
    if (d.isEmpty())
        return;
    const QVariant gasit = bd.scalar(QStringLiteral("SELECT %1 FROM %2 WHERE ").arg(cheie, tabela) +
                                         bd.conditieLike(QStringLiteral("Denumire")),
                                     {BD::valoareLike(d)});
    if (gasit.isValid())
        return;
    const qint64 id = bd.urmatoareaCheie(tabela, cheie);
    if (cuLocalitate)
        bd.executa(QStringLiteral("INSERT INTO %1 (%2, Denumire, LocalitateID) VALUES (?, ?, 1)").arg(tabela, cheie),
                   {id, d});
    else
        bd.executa(QStringLiteral("INSERT INTO %1 (%2, Denumire) VALUES (?, ?)").arg(tabela, cheie), {id, d});
}

// The names of a list in their order, each once (the same school for two children is one
// lookup), without the empty ones.
QStringList distincte(const QStringList& nume)
{
    QStringList r;
    for (const QString& n : nume) {
        const QString t = n.trimmed();
        if (t.isEmpty())
            continue;
        bool gasit = false;
        for (const QString& x : r)
            gasit = gasit || x.compare(t, Qt::CaseInsensitive) == 0;
        if (!gasit)
            r << t;
    }
    return r;
}

// The key of a new family or person, the maximum plus 1; past the range of the key the
// application cannot be added, and nothing of it is written.
qint64 cheieInInterval(qint64 id, const QString& ce)
{
    if (id > CheieMaxima)
        throw Eroare(CodEroare::Depasire,
                     QStringLiteral("Depasire de capacitate: numarul %1 ar fi %2, peste limita de %3. "
                                    "Cererea nu poate fi adaugata.")
                         .arg(ce)
                         .arg(id)
                         .arg(CheieMaxima),
                     Sursa);
    return id;
}

qint64 cheieNoua(const BD& bd, const QString& tabela, const QString& cheie, const QString& ce)
{
    return cheieInInterval(bd.urmatoareaCheie(tabela, cheie), ce);
}

// The keys of the rows one save adds to a table: the maximum plus 1, read when the first is
// written and then counted on, as the maximum grows only by the save's own rows in between.
class CheiNoi {
public:
    CheiNoi(QString tabela, QString cheie) : m_tabela(std::move(tabela)), m_cheie(std::move(cheie)) {}
    qint64 urmatoarea(const BD& bd)
    {
        if (m_urmatoarea == 0)
            m_urmatoarea = bd.urmatoareaCheie(m_tabela, m_cheie);
        return m_urmatoarea++;
    }

private:
    QString m_tabela, m_cheie;
    qint64 m_urmatoarea = 0;
};

qint64 scrieFamilia(const BD& bd, const Cerere& c)
{
    const QVariantList valori{ValoareIntreaga(c.NrDosar),
                              text(c.Judet),
                              text(c.Localitate),
                              text(c.Strada),
                              text(c.Nr),
                              text(c.Bloc),
                              text(c.Sc),
                              text(c.Ap),
                              text(c.Telefon),
                              text(c.Mobil)};
    if (c.Adaug != 1) {
        const int n = bd.executa(QStringLiteral("UPDATE Familii SET NrDosar = ?, Judet = ?, Localitate = ?, "
                                                "Strada = ?, Nr = ?, Bloc = ?, Sc = ?, Ap = ?, Telefon = ?, "
                                                "Mobil = ? WHERE FamilieID = ?"),
                                 valori + QVariantList{c.FamilieID});
        if (n == 0)
            throw Eroare(CodEroare::RandSters, QStringLiteral("Familia a fost stearsa de alt utilizator."), Sursa);
        return c.FamilieID;
    }
    const qint64 id = cheieNoua(bd, QStringLiteral("Familii"), QStringLiteral("FamilieID"), QStringLiteral("familiei"));
    bd.executa(QStringLiteral("INSERT INTO Familii (NrDosar, Judet, Localitate, Strada, Nr, Bloc, Sc, Ap, Telefon, "
                              "Mobil, FamilieID) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
               valori + QVariantList{id});
    return id;
}

void scrieCererea(const BD& bd, const Cerere& c, qint64 id, qint64 membruId1, int nrCopii, Bani cuantum)
{
    // MembruID1 is the applicant's person, 0 when no member is the applicant. The spouse was
    // meant for MembruID2, but the office's files never had it set: MembruID2 stays 0, as
    // every report expects.
    static const QStringList coloane{QStringLiteral("NrCerere"),      QStringLiteral("DataCerere"),
                                     QStringLiteral("MembruID1"),     QStringLiteral("MembruID2"),
                                     QStringLiteral("Stare"),         QStringLiteral("MotivStare"),
                                     QStringLiteral("DataStare"),     QStringLiteral("VenitTotal"),
                                     QStringLiteral("VenitpeMembru"), QStringLiteral("NrMembrii"),
                                     QStringLiteral("NrCopii"),       QStringLiteral("Cuantum"),
                                     QStringLiteral("TipCerere"),     QStringLiteral("ReprLegal"),
                                     QStringLiteral("ModPlata"),      QStringLiteral("NumeTitularCont"),
                                     QStringLiteral("Cont"),          QStringLiteral("Banca"),
                                     QStringLiteral("Gospodarire"),   QStringLiteral("LunaGospod"),
                                     QStringLiteral("GospodLoc"),     QStringLiteral("RegimJuridLoc"),
                                     QStringLiteral("TipIncalzire"),  QStringLiteral("TipLocuinta"),
                                     QStringLiteral("Bife"),          QStringLiteral("LuniRetro")};
    const QVariantList valori{ValoareIntreaga(c.NrCerere),
                              DataPentruBD(c.DataCerere),
                              membruId1,
                              0,
                              c.Stare,
                              text(c.MotivStare),
                              DataPentruBD(c.DataStare),
                              Bani::dinText(c.VenitTotal).variant(),
                              Bani::dinText(c.VenitpeMembru).variant(),
                              static_cast<int>(c.Membrii.size()),
                              nrCopii,
                              cuantum.variant(),
                              c.TipCerere,
                              c.ReprLegal,
                              c.ModPlata,
                              text(c.NumeTitularCont),
                              text(c.Cont),
                              text(c.Banca),
                              c.Gospodarire,
                              c.LunaGospod,
                              c.GospodLoc,
                              c.RegimJuridLoc,
                              c.TipIncalzire,
                              c.TipLocuinta,
                              c.Bife,
                              ValoareIntreaga(c.LuniRetro)};
    if (c.Adaug == 1) {
        // An application and its family get the same number.
        bd.executa(QStringLiteral("INSERT INTO Cereri (%1, CerereID, FamilieID) VALUES (%2?, ?)")
                       .arg(coloane.join(QStringLiteral(", ")), QStringLiteral("?, ").repeated(coloane.size())),
                   valori + QVariantList{id, id});
        return;
    }
    const int n = bd.executa(
        QStringLiteral("UPDATE Cereri SET %1 = ? WHERE CerereID = ?").arg(coloane.join(QStringLiteral(" = ?, "))),
        valori + QVariantList{id});
    if (n == 0)
        throw Eroare(CodEroare::RandSters, MesajCerereStearsa, Sursa);
}

// The person is who the CNP says, not the MembruID the editor held: a known CNP updates the
// one Membrii row that every application of that person shares.
qint64 scriePersoana(const BD& bd, const MembruCerere& m, CheiNoi& chei)
{
    const QVariantList valori{text(m.Nume),    text(m.Prenume), text(m.CNP),      m.TipAct,
                              text(m.SerieBI), text(m.NrBI),    text(m.Eliberat), DataPentruBD(m.DataElib)};
    if (const std::optional<qint64> gasit = MembruIdDupaCNP(bd, m.CNP)) {
        bd.executa(QStringLiteral("UPDATE Membrii SET Nume = ?, Prenume = ?, CNP = ?, TipAct = ?, SerieBI = ?, "
                                  "NrBI = ?, Eliberat = ?, DataElib = ? WHERE MembruID = ?"),
                   valori + QVariantList{*gasit});
        return *gasit;
    }
    const qint64 id = cheieInInterval(chei.urmatoarea(bd), QStringLiteral("persoanei"));
    bd.executa(QStringLiteral("INSERT INTO Membrii (Nume, Prenume, CNP, TipAct, SerieBI, NrBI, Eliberat, DataElib, "
                              "MembruID) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
               valori + QVariantList{id});
    return id;
}

void scrieMembrul(const BD& bd, qint64 cerereId, qint64 membruId, const MembruCerere& m)
{
    bd.executa(QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, CetatenieID, TaraCetatenie, "
                              "ResedintaID, LocResedinta, TaraResedinta, StCivila, Studii, DrAsSociala, OcupatieID, "
                              "LucreazaAfara, UScolara, Clasa, RealizeazaVenit, Data18Ani, Motiv, Stare, MotivStare, "
                              "DataStare) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
               {cerereId,
                membruId,
                m.RudenieID,
                m.CetatenieID,
                text(m.TaraCetatenie),
                m.ResedintaID,
                text(m.LocResedinta),
                text(m.TaraResedinta),
                m.StCivila,
                m.Studii,
                m.DrAsSociala,
                m.OcupatieID,
                m.LucreazaAfara,
                text(m.UScolara),
                text(m.Clasa),
                m.RealizeazaVenit,
                DataPentruBD(m.Data18Ani),
                text(m.Motiv),
                m.Stare,
                text(m.MotivStare),
                DataPentruBD(m.DataStare)});
}

// A member whose certificate list is empty keeps the rows already stored.
void scrieAdeverintele(const BD& bd, qint64 cerereId, qint64 membruId, std::vector<AdeverintaMembru>& adev,
                       CheiNoi& chei)
{
    if (adev.empty())
        return;
    bd.executa(QStringLiteral("DELETE FROM Adeverinte WHERE CerereID = ? AND MembruID = ?"), {cerereId, membruId});
    for (AdeverintaMembru& a : adev) {
        a.AdevID = chei.urmatoarea(bd);
        bd.executa(QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, NrAdev, "
                                  "DataAdeverinta, DataExpAdev, DataDepunerii) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                   {a.AdevID, cerereId, membruId, a.TipAdeverinta, text(a.NrAdev), DataPentruBD(a.DataAdeverinta),
                    DataPentruBD(a.DataExpAdev), DataPentruBD(a.DataDepunerii)});
    }
}

void scrieVeniturile(const BD& bd, qint64 id, const VenituriCerere& v)
{
    bd.executa(QStringLiteral("DELETE FROM Venituri WHERE CerereID = ?"), {id});
    // Zero and negative values are not stored.
    for (int i = 0; i < NrCoduriVenit; ++i)
        if (v[static_cast<std::size_t>(i)] > Bani())
            bd.executa(QStringLiteral("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (?, ?, ?)"),
                       {id, i + 1, v[static_cast<std::size_t>(i)].variant()});
}

void scrieLocuintele(const BD& bd, qint64 id, const LocuinteCerere& l)
{
    bd.executa(QStringLiteral("DELETE FROM Locuinte WHERE CerereID = ?"), {id});
    for (int i = 0; i < NrLocuinte; ++i) {
        const LocuintaCerere& x = l[static_cast<std::size_t>(i)];
        if (x.folosita)
            bd.executa(QStringLiteral("INSERT INTO Locuinte (CerereID, Cod, NrCamere, Suprafata) VALUES (?, ?, ?, ?)"),
                       {id, i + 1, x.NrCamere, x.Suprafata});
    }
}

} // namespace

OptiuniSalvare OptiuniSalvare::dinProces()
{
    OptiuniSalvare o;
    const Setari& s = Proces::setari();
    o.retea = s.ReteaSetat != 0;
    // Against a server its transactions do the lock file's work.
    o.folderBlocare = s.ServerBD.isEmpty() ? s.CaleBD : QString();
    o.anActiv = s.AnSetat;
    return o;
}

qint64 ScrieCerere(BD& bd, Cerere& c, int anActiv, const QString& motivIstoric)
{
    // The amount is always the one computed at the moment of saving. It is computed before the
    // writes begin, so that its messages are read while no other workstation waits.
    const RezultatCuantum calcul = CalculCuantum(bd, c.Membrii, c.VenitpeMembru, c.TipCerere, anActiv);
    if (!calcul.eroare.isEmpty())
        throw Eroare(3021, calcul.eroare, QStringLiteral("CalculCuantum"));
    // The stored child count is the one shown when OK was pressed; the fresh calculation only
    // gives the amount (and what the box shows after it).
    const QString nrCopiiAfisat = c.NrCopii;
    const QString nrCopii = calcul.nrCopii ? QString::number(*calcul.nrCopii) : c.NrCopii;

    Cerere scris = c;
    Tranzactie t(bd);
    asiguraDenumire(bd, QStringLiteral("Strazi"), QStringLiteral("StradaID"), scris.Strada, true);
    QStringList politii, scoli, motive{scris.MotivStare};
    for (const MembruCerere& m : scris.Membrii) {
        politii << m.Eliberat;
        scoli << m.UScolara;
        motive << m.MotivStare;
    }
    for (const QString& d : distincte(politii))
        asiguraDenumire(bd, QStringLiteral("Politii"), QStringLiteral("PolitiaID"), d, true);
    for (const QString& d : distincte(scoli))
        asiguraDenumire(bd, QStringLiteral("Scoli"), QStringLiteral("ScoalaID"), d, true);
    for (const QString& d : distincte(motive))
        asiguraDenumire(bd, QStringLiteral("Motive"), QStringLiteral("MotivID"), d, false);

    // A new application takes its family's number; a changed one keeps both its keys (rows
    // from older files may have them differ).
    const qint64 familie = scrieFamilia(bd, scris);
    const qint64 id = scris.Adaug == 1 ? familie : scris.CerereID;
    SchimbareCerere schimbare;
    // The change takes effect from the status date the clerk gave with it: when the status or
    // its date changes (or the application is new). A change of the amount or of the children
    // alone takes effect from the day it is made.
    QDate dinData = scris.DataStare;
    bool dataStareNoua = false; // a status date moved: the status takes effect from another day
    if (scris.Adaug != 1)
        if (const std::optional<ValoriActuale> inainte = CitesteValoriActuale(bd, id)) {
            schimbare.stareVeche = inainte->stare;
            schimbare.cuantumVechi = inainte->cuantum;
            schimbare.nrCopiiVechi = inainte->nrCopii;
            dataStareNoua = inainte->dataStare != scris.DataStare && scris.DataStare.isValid();
            if (inainte->stare == scris.Stare && !dataStareNoua)
                dinData = QDate();
        }
    // The persons first: the application names its applicant's (the last member with
    // RudenieID 1).
    CheiNoi persoaneNoi(QStringLiteral("Membrii"), QStringLiteral("MembruID"));
    qint64 membruId1 = 0;
    for (MembruCerere& m : scris.Membrii) {
        m.MembruID = scriePersoana(bd, m, persoaneNoi);
        if (m.RudenieID == 1)
            membruId1 = m.MembruID;
    }
    const int nrCopiiScris = static_cast<int>(ValoareIntreaga(nrCopiiAfisat));
    scrieCererea(bd, scris, id, membruId1, nrCopiiScris, calcul.cuantum);
    schimbare.cerereId = id;
    schimbare.stare = scris.Stare;
    schimbare.cuantum = calcul.cuantum;
    schimbare.nrCopii = nrCopiiScris;
    schimbare.motiv = !motivIstoric.isEmpty() ? motivIstoric
                      : scris.Adaug == 1      ? QStringLiteral("Cerere noua")
                                              : QStringLiteral("Modificare cerere");
    if (dataStareNoua)
        schimbare.motiv += QStringLiteral(", data starii ") + TextData(scris.DataStare);
    if (SchimbareReala(schimbare) || dataStareNoua)
        ScrieIstoric(bd, schimbare, dinData);

    bd.executa(QStringLiteral("DELETE FROM CereriMembrii WHERE CerereID = ?"), {id});
    CheiNoi adeverinteNoi(QStringLiteral("Adeverinte"), QStringLiteral("AdevID"));
    for (MembruCerere& m : scris.Membrii) {
        scrieMembrul(bd, id, m.MembruID, m);
        scrieAdeverintele(bd, id, m.MembruID, m.Adeverinte, adeverinteNoi);
    }
    scrieVeniturile(bd, id, scris.Venituri);
    scrieLocuintele(bd, id, scris.Locuinte);
    t.confirma();

    scris.CerereID = id;
    scris.FamilieID = familie;
    scris.NrCopii = nrCopii;
    scris.NrMembrii = QString::number(scris.Membrii.size());
    scris.Cuantum = calcul.cuantum.text();
    c = std::move(scris);
    return id;
}

RezultatSalvare SalveazaCerere(BD& bd, Cerere& c, const OptiuniSalvare& o)
{
    RezultatSalvare r;
    // An error of the engine, told once; a cause that will not go away (a full disk, a server
    // gone, a moved office) keeps its number, so that a long piece of work can stop there.
    const auto esuat = [&r](const Eroare& e) {
        r.mesaj = QStringLiteral("%1 %2 %3").arg(e.numar).arg(e.descriere, e.sursa);
        r.numarEroare = e.numar;
        r.descriere = e.descriere;
        r.stare = RezultatSalvare::Stare::Eroare;
        Mesaj(r.mesaj, Mesaje::Icon::Critic);
    };
    if (o.verificaCale && !Proces::BazaAccesibila()) {
        r.stare = RezultatSalvare::Stare::CaleLipsa;
        return r;
    }
    // Values that do not fit their columns or lists are refused before the office's own checks.
    VerificareCerere v;
    try {
        v = o.permise ? VerificaValoriCerere(*o.permise, c) : VerificaValoriCerere(ValoriPermise(bd), c);
        if (v.ok())
            v = VerificaControale(bd, c);
    } catch (const Eroare& e) {
        esuat(e);
        return r;
    }
    if (!v.ok()) {
        r.stare = RezultatSalvare::Stare::Verificare;
        r.mesaj = v.mesaj;
        r.camp = v.camp;
        r.inchide = v.seInchide();
        return r;
    }

    // Held from the question to the end of the save, released on every way out.
    BlocareRetea blocare;
    if (o.retea) {
        if (!o.folderBlocare.isEmpty() && !blocare.incearca(o.folderBlocare)) {
            Mesaj(MesajBlocareRetea);
            r.stare = RezultatSalvare::Stare::Blocat;
            r.mesaj = MesajBlocareRetea;
            return r;
        }
        if (!Intrebare(QStringLiteral("Salvati?"), TitluImplicit, true)) {
            r.stare = RezultatSalvare::Stare::Renuntat;
            return r;
        }
    }

    try {
        r.cerereId = ScrieCerere(bd, c, o.anActiv, o.motivIstoric);
        r.cuantum = Bani::dinText(c.Cuantum);
        r.stare = RezultatSalvare::Stare::Salvat;
    } catch (const Eroare& e) {
        esuat(e);
    } catch (const std::exception& e) {
        r.mesaj = QStringLiteral("Eroare: %1").arg(QString::fromLocal8Bit(e.what()));
        r.stare = RezultatSalvare::Stare::Eroare;
        Mesaj(r.mesaj, Mesaje::Icon::Critic);
    }
    return r;
}
