// The save of the application editor on the given office: an application with ten members,
// twenty incomes and all eight housing rows, inside a transaction that is rolled back, so the
// office is left as it was. Beside it, the bare insertion of the same rows, every column.
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

// The rows that one save writes, every column of them, read back inside a transaction that is
// then rolled back: what the bare side writes again by plain statements.
std::vector<RanduriDeScris> randuriSalvate(BD& bd, const Cerere& model, int an)
{
    Tranzactie t(bd);
    Cerere c = model;
    const qint64 id = ScrieCerere(bd, c, an);
    const QString membrii = QStringLiteral("MembruID IN (SELECT MembruID FROM CereriMembrii WHERE CerereID = ?)");
    std::vector<RanduriDeScris> r;
    r.push_back(CitesteRanduriDeScris(bd, QStringLiteral("Familii"), QStringLiteral("FamilieID = ?"), {id}));
    r.push_back(CitesteRanduriDeScris(bd, QStringLiteral("Membrii"), membrii, {id}));
    for (const char* tabela : {"Cereri", "CereriMembrii", "Venituri", "Locuinte", "IstoricCereri"})
        r.push_back(CitesteRanduriDeScris(bd, QLatin1String(tabela), QStringLiteral("CerereID = ?"), {id}));
    return r;
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
    const std::vector<RanduriDeScris> randuri = randuriSalvate(bd, model, an);
    const auto brut = CelMaiBunTimp([&] {
        Tranzactie t(bd);
        for (const RanduriDeScris& r : randuri)
            ScrieRanduri(bd, r);
    });
    ScrieTimp(QStringLiteral("salvare_cerere"), ms, brut);
});

} // namespace
