// The save of the application editor on the given office: an application with ten members,
// twenty incomes and all eight housing rows, inside a transaction that is rolled back, so the
// office is left as it was. Beside it, the bare insertion of the same rows.
#include "admin/Bench.h"
#include "applications/Cerere.h"
#include "amounts/Cuantum.h"
#include "applications/SalveazaCerere.h"
#include "database/BD.h"
#include "import/Demo.h"
#include "common/Ceas.h"
#include "common/Data.h"

namespace {

MembruCerere membru(int rudenie, const QDate& nascut, int serie, int ocupatie)
{
    MembruCerere m;
    m.Nume = QStringLiteral("Bench");
    m.Prenume = QStringLiteral("Persoana%1").arg(serie);
    // County 47..52 is never used by the demo, so these are new persons on a demo office.
    m.CNP = CNPInventat(nascut.year() >= 2000 ? 5 : 1, nascut, 47 + serie / 1000, serie % 1000);
    m.RudenieID = rudenie;
    m.OcupatieID = ocupatie;
    m.CetatenieID = 1;
    m.TipAct = 2;
    m.Eliberat = QStringLiteral("SPCLEP Tarnaveni");
    if (nascut.year() >= 2000) {
        m.Data18Ani = nascut.addYears(18);
        m.Motiv = QStringLiteral("implinirea varstei de 18 ani");
        m.UScolara = QStringLiteral("Scoala Gimnaziala nr. 1");
    }
    return m;
}

Cerere cerereMare(int an)
{
    Cerere c;
    c.Adaug = 1;
    c.NrDosar = c.NrCerere = QStringLiteral("999999");
    c.DataCerere = c.DataStare = Ceas::azi();
    c.Judet = QStringLiteral("Mures");
    c.Localitate = QStringLiteral("Tarnaveni");
    c.Strada = QStringLiteral("Principala");
    c.ReprLegal = 1;
    c.ModPlata = 1;
    c.TipCerere = 1;
    c.Stare = 1;
    c.MotivStare = QStringLiteral("cerere noua");
    c.Membrii.push_back(membru(1, QDate(1980, 3, 4), 1, 1));
    c.Membrii.push_back(membru(2, QDate(1982, 6, 7), 2, 6));
    for (int i = 0; i < 8; ++i)
        c.Membrii.push_back(membru(3, QDate(an - 17 + i, 1 + i, 10), 10 + i, 8));
    for (int i = 0; i < 20; ++i)
        c.Venituri[static_cast<std::size_t>(i * 3)] = Lei(10 + i);
    for (LocuintaCerere& l : c.Locuinte) {
        l.folosita = true;
        l.NrCamere = 2;
        l.Suprafata = 50;
    }
    c.VenitTotal = SumaVenituri(c.Venituri).value_or(Bani()).text();
    c.NrMembrii = QString::number(c.Membrii.size());
    RecalculVenitPeMembru(c);
    return c;
}

// The same rows, inserted by plain statements.
void scrieBrut(const BD& bd, const Cerere& c)
{
    const qint64 id = bd.urmatoareaCheie(QStringLiteral("Familii"), QStringLiteral("FamilieID"));
    bd.executa(QStringLiteral("INSERT INTO Familii (FamilieID, NrDosar, Judet) VALUES (?, ?, ?)"), {id, 1, c.Judet});
    bd.executa(QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, NrCerere) VALUES (?, ?, ?)"), {id, id, 1});
    qint64 m = bd.urmatoareaCheie(QStringLiteral("Membrii"), QStringLiteral("MembruID"));
    for (const MembruCerere& x : c.Membrii) {
        bd.executa(QStringLiteral("INSERT INTO Membrii (MembruID, Nume, CNP) VALUES (?, ?, ?)"), {m, x.Nume, x.CNP});
        bd.executa(QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID) VALUES (?, ?, ?)"),
                   {id, m, x.RudenieID});
        ++m;
    }
    for (int i = 0; i < NrCoduriVenit; ++i)
        if (!c.Venituri[static_cast<std::size_t>(i)].esteZero())
            bd.executa(QStringLiteral("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (?, ?, ?)"),
                       {id, i + 1, c.Venituri[static_cast<std::size_t>(i)].variant()});
    for (int i = 0; i < NrLocuinte; ++i)
        bd.executa(QStringLiteral("INSERT INTO Locuinte (CerereID, Cod, NrCamere, Suprafata) VALUES (?, ?, 2, 50)"),
                   {id, i + 1});
}

MasuraInregistrata salvare(QStringLiteral("salvare_cerere"), [](BD& bd) {
    const int an = Ceas::azi().year();
    const Cerere model = cerereMare(an);
    // Each run writes inside a transaction that is never confirmed: the office stays as it was.
    const auto ms = CelMaiBunTimp([&] {
        Tranzactie t(bd);
        Cerere c = model;
        ScrieCerere(bd, c, an);
    });
    const auto brut = CelMaiBunTimp([&] {
        Tranzactie t(bd);
        scrieBrut(bd, model);
    });
    ScrieTimp(QStringLiteral("salvare_cerere"), ms, brut);
});

} // namespace
