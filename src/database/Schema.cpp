#include "database/Schema.h"

#include "database/BD.h"

namespace {

using T = TipCamp;

Camp O(const char* n)
{
    return {QString::fromLatin1(n), T::Octet};
}
Camp I(const char* n)
{
    return {QString::fromLatin1(n), T::Intreg};
}
Camp L(const char* n)
{
    return {QString::fromLatin1(n), T::Lung};
}
Camp M(const char* n)
{
    return {QString::fromLatin1(n), T::Moneda};
}
Camp S(const char* n)
{
    return {QString::fromLatin1(n), T::Simplu};
}
Camp D(const char* n)
{
    return {QString::fromLatin1(n), T::Dublu};
}
Camp Dt(const char* n)
{
    return {QString::fromLatin1(n), T::Data};
}
Camp B(const char* n)
{
    return {QString::fromLatin1(n), T::DaNu};
}
Camp X(const char* n, int m)
{
    return {QString::fromLatin1(n), T::Text, m};
}
Camp Memo(const char* n)
{
    return {QString::fromLatin1(n), T::Memo};
}

Legatura dinCereri(const char* nume)
{
    return {QString::fromLatin1(nume), QStringLiteral("CerereID"), QStringLiteral("Cereri"),
            QStringLiteral("CerereID")};
}

std::vector<Tabela> construieste()
{
    std::vector<Tabela> t;
    t.push_back(
        {QStringLiteral("Familii"),
         {L("FamilieID"), L("NrDosar"), X("CodDosar", 15), X("Judet", 50), X("Localitate", 50), X("Strada", 50),
          X("Nr", 10), X("Bloc", 15), X("Sc", 10), X("Etaj", 10), X("Ap", 10), X("Telefon", 15), X("Mobil", 15)},
         {QStringLiteral("FamilieID")},
         {},
         {{QStringLiteral("NrDosar")}}});
    t.push_back({QStringLiteral("Membrii"),
                 {L("MembruID"), X("Nume", 20), X("Prenume", 30), X("CNP", 13), O("TipAct"), X("SerieBI", 3),
                  X("NrBI", 9), X("Eliberat", 30), Dt("DataElib"), X("Politie", 50)},
                 {QStringLiteral("MembruID")},
                 {},
                 {{QStringLiteral("CNP")}, {QStringLiteral("Nume"), QStringLiteral("Prenume")}}});
    t.push_back({QStringLiteral("Cereri"),
                 {L("CerereID"),     L("FamilieID"),      L("NrCerere"),
                  Dt("DataCerere"),  L("MembruID1"),      L("MembruID2"),
                  O("Stare"),        X("MotivStare", 50), Dt("DataStare"),
                  M("VenitTotal"),   M("VenitpeMembru"),  I("NrMembrii"),
                  I("NrCopii"),      M("Cuantum"),        O("TipCerere"),
                  O("ReprLegal"),    O("ModPlata"),       X("NumeTitularCont", 34),
                  X("Cont", 32),     X("Banca", 30),      O("Gospodarire"),
                  O("LunaGospod"),   O("GospodLoc"),      O("RegimJuridLoc"),
                  O("TipIncalzire"), O("TipLocuinta"),    X("Bife", 30),
                  O("LuniRetro"),    B("Lege416")},
                 {QStringLiteral("CerereID")},
                 {{QStringLiteral("FamiliiCereri"), QStringLiteral("FamilieID"), QStringLiteral("Familii"),
                   QStringLiteral("FamilieID")}},
                 {{QStringLiteral("NrCerere")},
                  {QStringLiteral("FamilieID")},
                  {QStringLiteral("MembruID1")},
                  {QStringLiteral("Stare")}}});
    t.push_back({QStringLiteral("CereriMembrii"),
                 {L("CerereID"),
                  L("MembruID"),
                  I("RudenieID"),
                  O("CetatenieID"),
                  X("TaraCetatenie", 30),
                  O("ResedintaID"),
                  X("LocResedinta", 30),
                  X("TaraResedinta", 30),
                  O("StCivila"),
                  O("Studii"),
                  O("DrAsSociala"),
                  I("OcupatieID"),
                  B("LucreazaAfara"),
                  X("UScolara", 50),
                  X("Clasa", 30),
                  B("RealizeazaVenit"),
                  Dt("Data18Ani"),
                  X("Motiv", 100),
                  O("Stare"),
                  X("MotivStare", 30),
                  Dt("DataStare")},
                 {},
                 {dinCereri("CereriCereriMembrii")},
                 {{QStringLiteral("CerereID")}, {QStringLiteral("MembruID")}}});
    t.push_back({QStringLiteral("Venituri"),
                 {L("CerereID"), O("CodVenit"), M("Valoare")},
                 {},
                 {dinCereri("CereriVenituri")},
                 {{QStringLiteral("CerereID")}}});
    t.push_back({QStringLiteral("Locuinte"),
                 {L("CerereID"), O("Cod"), O("NrCamere"), S("Suprafata")},
                 {},
                 {dinCereri("CereriLocuinte")},
                 {{QStringLiteral("CerereID")}}});
    t.push_back({QStringLiteral("Dispozitii"),
                 {L("DispozitieID"), L("CerereID"), L("BeneficiarID"), X("NumeTitularVechi", 50), D("NrDisp"),
                  Dt("DataDisp"), Dt("DinData"), O("Luna"), D("An"), O("Actiune"), D("CuantumVechi"), D("Cuantum"),
                  X("Motiv", 255), Dt("DataStop")},
                 {QStringLiteral("DispozitieID")},
                 {dinCereri("CereriDispozitii")},
                 {{QStringLiteral("CerereID")}, {QStringLiteral("DataDisp")}}});
    t.push_back({QStringLiteral("Anchete"),
                 {L("AnchetaID"),         L("CerereID"),  Dt("DataAncheta"), X("Intocmitor", 50), Dt("DataExpirarii"),
                  X("Motiv", 50),         I("NrMembrii"), I("NrCopii"),      I("TipLocuinta"),    I("RegimJuridic"),
                  I("NrCamere"),          D("SuprUtila"), X("Bunuri", 255),  X("Igiena", 255),    I("TipLocuire"),
                  I("TipDetinere"),       X("Teren", 50), X("Cladiri", 50),  X("Spatii", 50),     X("AlteBunuri", 50),
                  X("StareSanatate", 50), X("Nevoi", 50), X("Aspecte", 50)},
                 {QStringLiteral("AnchetaID")},
                 {dinCereri("CereriAnchete")},
                 {{QStringLiteral("CerereID")}}});
    t.push_back({QStringLiteral("Adeverinte"),
                 {L("AdevID"), L("CerereID"), L("MembruID"), O("TipAdeverinta"), X("NrAdev", 10), Dt("DataAdeverinta"),
                  Dt("DataExpAdev"), Dt("DataDepunerii")},
                 {QStringLiteral("AdevID")},
                 {dinCereri("CereriAdeverinte"),
                  {QStringLiteral("MembriiAdeverinte"), QStringLiteral("MembruID"), QStringLiteral("Membrii"),
                   QStringLiteral("MembruID")}},
                 {{QStringLiteral("CerereID")}, {QStringLiteral("MembruID")}}});
    // One row per change of an application's status, amount or child count: the new status
    // (Tranzactie), the day it was written, the reason with what changed, the values before and
    // after, the disposition that made it (0 for none), the workstation and system user, and
    // the day from which the change takes effect (DinData; none for a note that changes nothing).
    t.push_back({QStringLiteral("IstoricCereri"),
                 {L("CerereID"), O("Tranzactie"), Dt("DataTranzactie"), X("MotivTranzactie", 255), L("IstoricID"),
                  O("StareVeche"), M("CuantumVechi"), M("Cuantum"), I("NrCopiiVechi"), I("NrCopii"), L("DispozitieID"),
                  X("Statie", 50), X("Utilizator", 50), Dt("DinData")},
                 {},
                 {dinCereri("CereriIstoricCereri")},
                 {{QStringLiteral("CerereID")}, {QStringLiteral("IstoricID")}}});
    // The calculation behind a disposition, stored when it is saved: the inputs and the result
    // of the amount, and each member looked at with the reason it counted or not.
    t.push_back({QStringLiteral("CalculeDispozitii"),
                 {L("DispozitieID"), L("CerereID"), O("TipCerere"), I("AnCalcul"), I("NrMembrii"), I("NrCopii"),
                  M("VenitTotal"), M("VenitpeMembru"), I("BaremNrPers"), M("BaremSuma"), M("Barem"), M("Cuantum"),
                  X("Observatii", 255)},
                 {QStringLiteral("DispozitieID")},
                 {{QStringLiteral("DispozitiiCalcule"), QStringLiteral("DispozitieID"), QStringLiteral("Dispozitii"),
                   QStringLiteral("DispozitieID")}},
                 {{QStringLiteral("CerereID")}}});
    t.push_back({QStringLiteral("CalculeDispozitiiMembri"),
                 {L("DispozitieID"), I("Ordine"), X("Nume", 20), X("Prenume", 30), X("CNP", 13), I("RudenieID"),
                  I("OcupatieID"), Dt("Data18Ani"), B("Numarat"), X("Motiv", 100)},
                 {QStringLiteral("DispozitieID"), QStringLiteral("Ordine")},
                 {{QStringLiteral("CalculeMembri"), QStringLiteral("DispozitieID"), QStringLiteral("CalculeDispozitii"),
                   QStringLiteral("DispozitieID")}},
                 {}});
    // The closed months: who closed each and when, against which month its payroll was
    // explained, how many of its applications were reconstructed from their dispositions (their
    // history begins later), and the last reopening with its reason. A month is closed while
    // Inchisa is true; every close and reopening is also a row of JurnalLuni.
    t.push_back(
        {QStringLiteral("LuniInchise"),
         {I("An"), I("Luna"), B("Inchisa"), Dt("DataInchidere"), X("StatieInchidere", 50), X("UtilizatorInchidere", 50),
          I("FataDeAn"), I("FataDeLuna"), Dt("DataRedeschidere"), X("StatieRedeschidere", 50),
          X("UtilizatorRedeschidere", 50), X("MotivRedeschidere", 255), I("Reconstituite")},
         {QStringLiteral("An"), QStringLiteral("Luna")},
         {},
         {}});
    // The journal of the month close: one row per close (Fel 1) and per reopening (Fel 2), never
    // changed: the day and hour, the workstation and the system user, the reason, and the
    // payroll's totals at that moment.
    t.push_back({QStringLiteral("JurnalLuni"),
                 {L("JurnalID"), I("An"), I("Luna"), O("Fel"), Dt("Data"), X("Ora", 8), X("Statie", 50),
                  X("Utilizator", 50), X("Motiv", 255), I("Familii"), I("Copii"), M("Suma")},
                 {QStringLiteral("JurnalID")},
                 {},
                 {{QStringLiteral("An"), QStringLiteral("Luna")}}});
    // What a closed month paid, row by row as the borderou prints it, with the disposition in
    // effect for the month; it outlives the application, so it holds no relation to Cereri.
    t.push_back({QStringLiteral("StatPlataLuna"),
                 {I("An"), I("Luna"), L("CerereID"), L("NrCerere"), Dt("DataCerere"), O("TipCerere"), O("Stare"),
                  X("Nume", 20), X("Prenume", 30), X("CNP", 13), X("Adresa", 255), B("Lege416"), I("NrMembrii"),
                  I("NrCopii"), M("Cuantum"), L("DispozitieID"), D("NrDisp"), Dt("DataDisp")},
                 {QStringLiteral("An"), QStringLiteral("Luna"), QStringLiteral("CerereID")},
                 {},
                 {}});
    // The control totals of a closed month, by allowance type (0: all types together).
    t.push_back({QStringLiteral("TotaluriLuna"),
                 {I("An"), I("Luna"), O("TipCerere"), I("Familii"), I("Copii"), M("Suma")},
                 {QStringLiteral("An"), QStringLiteral("Luna"), QStringLiteral("TipCerere")},
                 {},
                 {}});
    // The payroll of a closed month against the month before it: 1 new, 2 stopped, 3 changed.
    t.push_back({QStringLiteral("DiferenteLuna"),
                 {I("An"), I("Luna"), L("CerereID"), O("Fel"), L("NrCerere"), X("Nume", 51), O("Stare"),
                  M("CuantumVechi"), M("Cuantum"), D("NrDisp")},
                 {QStringLiteral("An"), QStringLiteral("Luna"), QStringLiteral("CerereID")},
                 {},
                 {}});
    t.push_back({QStringLiteral("DateGen"),
                 {X("Denumire", 50), I("Tip"), I("DataID"), X("Continut", 255), I("Ordine"), L("CuloareBkg")},
                 {},
                 {},
                 {{QStringLiteral("Tip"), QStringLiteral("DataID")}}});
    t.push_back(
        {QStringLiteral("ListaVenituri"), {O("CodVenit"), Memo("Denumire")}, {}, {}, {{QStringLiteral("CodVenit")}}});
    t.push_back({QStringLiteral("Bife"), {O("NrBifa"), X("Denumire", 255)}, {}, {}, {}});
    t.push_back({QStringLiteral("Strazi"),
                 {I("StradaID"), X("Denumire", 50), I("LocalitateID"), X("OfPostal", 50), X("CodPostal", 50)},
                 {QStringLiteral("StradaID")},
                 {},
                 {{QStringLiteral("Denumire")}}});
    t.push_back({QStringLiteral("Politii"),
                 {I("PolitiaID"), X("Denumire", 50), I("LocalitateID")},
                 {QStringLiteral("PolitiaID")},
                 {},
                 {}});
    t.push_back({QStringLiteral("Scoli"),
                 {I("ScoalaID"), X("Denumire", 50), I("LocalitateID")},
                 {QStringLiteral("ScoalaID")},
                 {},
                 {}});
    t.push_back({QStringLiteral("Motive"), {I("MotivID"), X("Denumire", 50)}, {QStringLiteral("MotivID")}, {}, {}});
    t.push_back({QStringLiteral("Judete"), {I("JudetID"), X("Denumire", 50)}, {QStringLiteral("JudetID")}, {}, {}});
    t.push_back({QStringLiteral("Localitati"),
                 {I("LocalitateID"), X("Denumire", 50)},
                 {QStringLiteral("LocalitateID")},
                 {},
                 {}});
    t.push_back(
        {QStringLiteral("TipuriActe"), {I("TipActID"), X("DenScurt", 10)}, {QStringLiteral("TipActID")}, {}, {}});
    t.push_back(
        {QStringLiteral("StatePlata"), {I("An"), I("Luna")}, {QStringLiteral("An"), QStringLiteral("Luna")}, {}, {}});
    t.push_back(
        {QStringLiteral("DatePrimarie"),
         {X("Denumire", 100), X("CodFiscal", 50), X("CodJudet", 5), X("Judet", 50), X("Localitate", 50), X("Str", 50),
          X("Nr", 10), X("Primar", 50), X("Secretar", 50), X("AsSocial", 50), X("CNPAsSocial", 13), O("TipLocalitate"),
          X("Email", 50), X("OfPostal", 10), X("CodPostal", 10), X("Politia", 30)},
         {},
         {},
         {}});
    t.push_back({QStringLiteral("Barem"),
                 {I("Tip"), X("Descriere", 50), I("NrPers"), D("Barem"), D("Suma"), B("PerPers"), D("BaremPerPers"),
                  Dt("DataInceput")},
                 {},
                 {},
                 {{QStringLiteral("Tip"), QStringLiteral("NrPers"), QStringLiteral("Suma")}}});
    // The lei rows of Barem that a change of the law replaced: each change (SchimbareID) keeps
    // the sixteen amounts with the days they held (DataInceput to DataSfarsit), the amounts that
    // replaced them, the day it was made, by whom, its reason and the change dispositions issued.
    t.push_back(
        {QStringLiteral("IstoricBarem"),
         {L("SchimbareID"), I("Tip"), I("NrPers"), I("Suma"), D("Barem"), D("BaremNou"), Dt("DataInceput"),
          Dt("DataSfarsit"), Dt("DataSchimbare"), X("Motiv", 255), I("NrDispozitii"), D("PrimulNrDisp"),
          X("Statie", 50), X("Utilizator", 50)},
         {QStringLiteral("SchimbareID"), QStringLiteral("Tip"), QStringLiteral("NrPers"), QStringLiteral("Suma")},
         {},
         {}});
    return t;
}

} // namespace

const std::vector<Tabela>& TabeleOficiu()
{
    static const std::vector<Tabela> t = construieste();
    return t;
}

const Tabela* GasesteTabela(const QString& nume)
{
    for (const Tabela& t : TabeleOficiu())
        if (t.nume == nume)
            return &t;
    for (const Tabela& t : TabeleOficiu())
        if (t.nume.compare(nume, Qt::CaseInsensitive) == 0)
            return &t;
    return nullptr;
}

QString TipSql(const Camp& c, bool postgres)
{
    switch (c.tip) {
    case T::Octet: return QStringLiteral("SMALLINT");
    case T::Intreg: return QStringLiteral("INTEGER");
    case T::Lung: return postgres ? QStringLiteral("BIGINT") : QStringLiteral("INTEGER");
    case T::Moneda: return QStringLiteral("NUMERIC(19,4)");
    // An area keeps the digits it was given on either engine: SQLite's REAL is a double, and
    // so is the server's column.
    case T::Simplu: return postgres ? QStringLiteral("DOUBLE PRECISION") : QStringLiteral("REAL");
    case T::Dublu: return QStringLiteral("DOUBLE PRECISION");
    case T::Data: return QStringLiteral("DATE");
    case T::DaNu: return QStringLiteral("BOOLEAN");
    // The lengths are the program's own checks (ValoriColoane), as on SQLite, which keeps a
    // text of any length: a server that refused a longer one would fail a save that a file
    // takes, and the move of an office whose file holds one.
    case T::Text:
        return postgres ? QStringLiteral("VARCHAR") : QStringLiteral("VARCHAR(%1)").arg(c.marime > 0 ? c.marime : 255);
    case T::Memo: return QStringLiteral("TEXT");
    }
    return QStringLiteral("TEXT");
}

QString ColoanaIdentitateServer()
{
    return QStringLiteral("%1 BIGINT GENERATED ALWAYS AS IDENTITY").arg(IdentitateRandServer);
}

QString NumeIndex(const Tabela& t, int n)
{
    return QStringLiteral("IX_%1_%2").arg(t.nume).arg(n);
}

void CreeazaTabelaSchema(const BD& bd, const Tabela& t)
{
    const bool pg = bd.motor() == BD::Motor::PostgreSQL;
    QStringList parti;
    for (const Camp& c : t.campuri)
        parti << c.nume + QLatin1Char(' ') + TipSql(c, pg);
    if (!t.cheiePrimara.isEmpty())
        parti << QStringLiteral("PRIMARY KEY (%1)").arg(t.cheiePrimara.join(QLatin1Char(',')));
    else if (pg)
        parti << ColoanaIdentitateServer();
    for (const Legatura& l : t.legaturi)
        parti << QStringLiteral("CONSTRAINT %1 FOREIGN KEY (%2) REFERENCES %3(%4) ON UPDATE CASCADE ON DELETE CASCADE")
                     .arg(l.nume, l.coloana, l.parinte, l.coloanaParinte);
    bd.executa(QStringLiteral("CREATE TABLE %1 (%2)").arg(t.nume, parti.join(QStringLiteral(", "))));
    int n = 0;
    for (const QStringList& idx : t.indexuri)
        bd.executa(
            QStringLiteral("CREATE INDEX %1 ON %2 (%3)").arg(NumeIndex(t, ++n), t.nume, idx.join(QLatin1Char(','))));
}

void CreeazaSchema(const BD& bd)
{
    for (const Tabela& t : TabeleOficiu())
        CreeazaTabelaSchema(bd, t);
}
