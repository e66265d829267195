#include "import/DemoPlan.h"

#include "import/Demo.h"

#include <QJsonArray>
#include <QRandomGenerator>
#include <QSet>

#include <algorithm>

namespace {

// Surnames of the town: a few families share one, some are written with a hyphen or an
// apostrophe, as the registry office wrote them.
const char* const NumeFamilie[] = {
    "Popescu", "Ionescu",   "Pop",          "Radu",          "Dumitru", "Stan",     "Stoica", "Gheorghe",
    "Matei",   "Ciobanu",   "Rusu",         "Munteanu",      "Lungu",   "Moldovan", "Barbu",  "Toma",
    "Florea",  "Marin",     "Tudor",        "Dinu",          "Oprea",   "Sandu",    "Nistor", "Cristea",
    "Szabo",   "Kovacs",    "Nagy",         "Toth",          "Fekete",  "Moga",     "Cotoi",  "Suciu",
    "Rotaru",  "Pop-Lungu", "Stan-Ionescu", "Mihaila-Suciu", "O'Neill", "D'Angelo"};
const char* const PrenumeM[] = {"Ion",       "Gheorghe", "Vasile", "Constantin", "Mihai",       "Andrei",
                                "Alexandru", "Nicolae",  "Stefan", "Florin",     "Marius",      "Adrian",
                                "Cristian",  "Dan",      "Attila", "Levente",    "Ioan-Vasile", "Mihai-Alexandru"};
const char* const PrenumeF[] = {"Maria",    "Elena",     "Ioana",    "Ana",        "Mihaela",        "Andreea",
                                "Cristina", "Gabriela",  "Daniela",  "Florentina", "Alina",          "Roxana",
                                "Simona",   "Georgiana", "Erzsebet", "Ana-Maria",  "Maria-Magdalena"};
const char* const Scoli[] = {"Scoala Gimnaziala nr. 1", "Scoala Gimnaziala \"Avram Iancu\"",
                             "Liceul Teoretic \"Mihai Eminescu\"", "Colegiul National \"Octavian Goga\"",
                             "Liceul Tehnologic nr. 1"};
const char* const Banci[] = {"BCR", "BRD", "Banca Transilvania", "CEC Bank"};

// The statuses in the share of a real office: most applications are in payment. Every status
// comes at least once in any twenty consecutive applications.
const int Stari[] = {2, 2, 2, 1, 2, 3, 2, 5, 2, 7, 2, 4, 6, 2, 8, 1, 2, 5, 2, 7};

// Counties of the CNPs: mostly the town's own (26, Mures), some from the neighbouring ones.
const int Judete[] = {26, 26, 26, 26, 26, 26, 26, 26, 1, 5, 12, 14, 19, 32};

template <typename T, size_t N> const T& alege(QRandomGenerator& r, const T (&v)[N])
{
    return v[r.bounded(int(N))];
}

QString text(const char* s)
{
    return QString::fromLatin1(s);
}

// A day between a and b, both included (a when b is earlier).
QDate intre(QRandomGenerator& r, const QDate& a, const QDate& b)
{
    const qint64 zile = a.daysTo(b);
    return zile <= 0 ? a : a.addDays(r.bounded(int(zile) + 1));
}

QString iso(const QDate& d)
{
    return d.toString(Qt::ISODate);
}

// The reasons the office writes, by disposition type.
QString motivDecizie(QRandomGenerator& r, int actiune)
{
    static const QStringList modificare{QStringLiteral("modificarea veniturilor familiei"),
                                        QStringLiteral("modificarea numarului de membri")};
    static const QStringList suspendare{QStringLiteral("lipsa adeverintei de elev"),
                                        QStringLiteral("neprezentarea la ancheta sociala")};
    switch (actiune) {
    case 2: return modificare[r.bounded(modificare.size())];
    case 3: return suspendare[r.bounded(suspendare.size())];
    case 4: return QStringLiteral("venitul pe membru depaseste limita legala");
    case 5: return QStringLiteral("venitul pe membru a depasit limita legala");
    case 6: return QStringLiteral("depunerea actelor doveditoare");
    default: return QString();
    }
}

class Generator {
public:
    Generator(unsigned seed, const QDate& azi) : m_r(seed), m_azi(azi) {}

    CerereDemo cerere(int i);

private:
    QString cnp(bool barbat, const QDate& nastere);
    QJsonObject persoana(const QString& nume, bool barbat, const QDate& nastere, int rudenie, int ocupatie,
                         CerereDemo& c);
    void istoric(CerereDemo& c);
    QJsonObject venituri(int ocupatieTitular, int tip, double total, int copii);
    QJsonArray adeverinte(const CerereDemo& c, const QDate& pana);

    QRandomGenerator m_r;
    QDate m_azi;
    QSet<qint64> m_folosite; // the CNPs given, as numbers
    int m_serie = 0;
};

QString Generator::cnp(bool barbat, const QDate& nastere)
{
    const int cifra = nastere.year() >= 2000 ? (barbat ? 5 : 6) : (barbat ? 1 : 2);
    const int judet = alege(m_r, Judete);
    for (;;) {
        const QString c = CNPInventat(cifra, nastere, judet, 1 + m_serie++ % 999);
        const qint64 numar = c.toLongLong();
        if (!m_folosite.contains(numar)) {
            m_folosite.insert(numar);
            return c;
        }
    }
}

QJsonObject Generator::persoana(const QString& nume, bool barbat, const QDate& nastere, int rudenie, int ocupatie,
                                CerereDemo& c)
{
    QJsonObject p;
    p[QStringLiteral("Nume")] = nume;
    p[QStringLiteral("Prenume")] = text(barbat ? alege(m_r, PrenumeM) : alege(m_r, PrenumeF));
    p[QStringLiteral("CNP")] = cnp(barbat, nastere);
    p[QStringLiteral("RudenieID")] = rudenie;
    p[QStringLiteral("CetatenieID")] = 1;
    p[QStringLiteral("ResedintaID")] = 1;
    p[QStringLiteral("OcupatieID")] = ocupatie;
    p[QStringLiteral("Stare")] = c.stare;
    p[QStringLiteral("DataStare")] = c.element[QStringLiteral("DataStare")];
    c.membri.emplace_back(p[QStringLiteral("CNP")].toString(), ocupatie);
    return p;
}

// The road of the application up to today: the decisions with their dates, the status they
// lead to, the social inquiries while it is followed.
void Generator::istoric(CerereDemo& c)
{
    const QDate azi = m_azi;
    // How far back an application of this status lies: a recorded one is recent, one that was
    // suspended and resumed needs room for three decisions.
    int maxim = 730, minim = 15;
    switch (c.stare) {
    case 1:
        maxim = 40;
        minim = 0;
        break;
    case 3:
    case 4:
    case 7:
    case 8: minim = 120; break;
    case 6: minim = 200; break;
    default: break;
    }
    c.dataCerere = intre(m_r, azi.addDays(-maxim), azi.addDays(-minim));
    const QDate prima = std::min(azi, c.dataCerere.addDays(7 + m_r.bounded(8)));
    auto decizie = [&](int actiune, const QDate& d) { c.decizii.push_back({actiune, d, motivDecizie(m_r, actiune)}); };

    QDate oprire = azi; // the inquiries stop with the suspension, the ending or the rejection
    switch (c.stare) {
    case 1: break;
    case 5:
        decizie(4, prima);
        oprire = prima;
        break;
    case 6: {
        decizie(1, prima);
        const QDate s = intre(m_r, prima.addDays(30), azi.addDays(-60));
        decizie(3, s);
        decizie(6, intre(m_r, s.addDays(30), azi));
        break;
    }
    default: {
        decizie(1, prima);
        const int urmatoarea[] = {0, 0, 0, 3, 5, 0, 0, 2, 2};
        if (const int a = urmatoarea[c.stare]) {
            const QDate d = intre(m_r, prima.addDays(60), azi);
            decizie(a, d);
            if (a == 3 || a == 5)
                oprire = d;
        }
        break;
    }
    }
    if (c.stare == 8)
        c.decizii.back().motiv = QStringLiteral("schimbarea titularului");
    c.element[QStringLiteral("DataStare")] = iso(c.decizii.empty() ? c.dataCerere : c.decizii.back().data);

    const QDate ancheta = c.dataCerere.addDays(1 + m_r.bounded(5));
    for (QDate d = ancheta; d <= oprire && d <= azi; d = d.addMonths(6))
        c.anchete.push_back(d);
}

// Incomes that add up to the total: the child allowance, then what the applicant earns.
QJsonObject Generator::venituri(int ocupatieTitular, int tip, double total, int copii)
{
    QJsonObject v;
    double rest = total;
    if (m_r.bounded(2) == 0) {
        const double alocatie = std::min(rest, 100.0 * copii);
        if (alocatie > 0)
            v[QStringLiteral("71")] = alocatie;
        rest -= alocatie;
    }
    if (rest <= 0)
        return v;
    const char* cod = "79";
    switch (ocupatieTitular) {
    case 1: cod = "4"; break;
    case 2: cod = "8"; break;
    case 3: cod = "9"; break;
    case 10: cod = "61"; break;
    default: cod = tip == 2 ? "73" : "79"; break;
    }
    v[QLatin1String(cod)] = rest;
    return v;
}

// School certificates: one handed in with the application and one every six months after,
// while the application is followed. The last one of some pupils runs out this month.
QJsonArray Generator::adeverinte(const CerereDemo& c, const QDate& pana)
{
    QJsonArray a;
    QDate d = c.dataCerere.addDays(-m_r.bounded(10));
    while (d <= pana) {
        const QDate urmatoarea = d.addMonths(6);
        QDate expira = urmatoarea.addDays(-1);
        if (urmatoarea > pana && m_r.bounded(4) == 0) {
            const QDate inceputLuna(m_azi.year(), m_azi.month(), 1);
            expira = intre(m_r, std::max(inceputLuna, d.addDays(1)), inceputLuna.addMonths(1).addDays(-1));
        }
        a.append(QJsonObject{{QStringLiteral("TipAdeverinta"), 3},
                             {QStringLiteral("NrAdev"), QString::number(100 + m_r.bounded(9000))},
                             {QStringLiteral("DataAdeverinta"), iso(d)},
                             {QStringLiteral("DataDepunerii"), iso(std::min(m_azi, d.addDays(m_r.bounded(4))))},
                             {QStringLiteral("DataExpAdev"), iso(expira)}});
        d = urmatoarea;
    }
    return a;
}

CerereDemo Generator::cerere(int i)
{
    CerereDemo c;
    c.stare = Stari[i % int(std::size(Stari))];
    const int tip = m_r.bounded(3) == 0 ? 2 : 1;
    istoric(c);
    QJsonObject& e = c.element;
    const QString nume = text(alege(m_r, NumeFamilie));

    e[QStringLiteral("NrDosar")] = i + 1;
    e[QStringLiteral("NrCerere")] = i + 1;
    e[QStringLiteral("DataCerere")] = iso(c.dataCerere);
    e[QStringLiteral("Judet")] = QStringLiteral("Mures");
    e[QStringLiteral("Localitate")] = QStringLiteral("Tarnaveni");
    const StradaDemo& s = StraziDemo()[std::size_t(m_r.bounded(int(StraziDemo().size())))];
    e[QStringLiteral("Strada")] = text(s.denumire);
    e[QStringLiteral("Nr")] = QString::number(1 + m_r.bounded(s.blocuri ? 40 : 200));
    c.tipLocuinta = s.blocuri ? 3 : 1 + m_r.bounded(2);
    if (s.blocuri) {
        e[QStringLiteral("Bloc")] = QStringLiteral("B%1").arg(1 + m_r.bounded(12));
        e[QStringLiteral("Sc")] = QString(QLatin1Char(char('A' + m_r.bounded(3))));
        e[QStringLiteral("Ap")] = QString::number(1 + m_r.bounded(60));
    }
    if (m_r.bounded(3) != 0)
        e[QStringLiteral("Mobil")] = QStringLiteral("07%1").arg(20000000 + m_r.bounded(79999999));
    e[QStringLiteral("TipCerere")] = tip;
    e[QStringLiteral("Stare")] = c.stare;
    if (!c.decizii.empty())
        e[QStringLiteral("MotivStare")] = c.decizii.back().motiv;
    e[QStringLiteral("ReprLegal")] = 1;
    const int plata = 1 + m_r.bounded(3);
    e[QStringLiteral("ModPlata")] = plata;
    e[QStringLiteral("Gospodarire")] = 1 + m_r.bounded(3);
    e[QStringLiteral("GospodLoc")] = e[QStringLiteral("Gospodarire")];
    c.regimJuridic = m_r.bounded(4) == 0 ? 2 : 1;
    e[QStringLiteral("RegimJuridLoc")] = c.regimJuridic;
    e[QStringLiteral("TipIncalzire")] = s.blocuri ? 1 + m_r.bounded(2) : 2 + m_r.bounded(2);
    e[QStringLiteral("TipLocuinta")] = 1 + m_r.bounded(2);
    e[QStringLiteral("Bife")] = QStringLiteral("00000000000000000000");

    // The family: the applicant, the spouse of a couple, one to four children under 18, born
    // before the application.
    QJsonArray membri;
    const bool titularBarbat = tip == 1 ? m_r.bounded(6) != 0 : m_r.bounded(5) == 0;
    const int ocupatii[] = {1, 1, 1, 2, 3, 6, 7, 10};
    const int ocupatieTitular = alege(m_r, ocupatii);
    const QDate nascutTitular = intre(m_r, QDate(1975, 1, 1), c.dataCerere.addYears(-22));
    QJsonObject titular = persoana(nume, titularBarbat, nascutTitular, 1, ocupatieTitular, c);
    titular[QStringLiteral("TipAct")] = 2;
    titular[QStringLiteral("SerieBI")] = QStringLiteral("MS");
    titular[QStringLiteral("NrBI")] = QString::number(100000 + m_r.bounded(899999));
    titular[QStringLiteral("Eliberat")] = QStringLiteral("SPCLEP Tarnaveni");
    titular[QStringLiteral("DataElib")] = iso(intre(m_r, c.dataCerere.addYears(-9), c.dataCerere.addDays(-30)));
    titular[QStringLiteral("StCivila")] = tip == 1 ? 2 : 1 + m_r.bounded(4);
    titular[QStringLiteral("Studii")] = 2 + m_r.bounded(3);
    titular[QStringLiteral("DrAsSociala")] = 1;
    membri.append(titular);
    if (plata == 2) {
        e[QStringLiteral("NumeTitularCont")] = nume + QLatin1Char(' ') + titular[QStringLiteral("Prenume")].toString();
        e[QStringLiteral("Cont")] = QStringLiteral("RO%1BTRLRONCRT%2")
                                        .arg(10 + m_r.bounded(89))
                                        .arg(m_r.bounded(100000000), 10, 10, QLatin1Char('0'));
        e[QStringLiteral("Banca")] = text(alege(m_r, Banci));
    }
    if (tip == 1) {
        const int ocupatiiSot[] = {1, 1, 3, 6, 7};
        QJsonObject sot = persoana(nume, !titularBarbat, intre(m_r, QDate(1976, 1, 1), c.dataCerere.addYears(-20)), 2,
                                   alege(m_r, ocupatiiSot), c);
        sot[QStringLiteral("TipAct")] = 2;
        sot[QStringLiteral("StCivila")] = 2;
        membri.append(sot);
    }
    const int copii = 1 + m_r.bounded(4);
    const QDate celMaiMare = m_azi.addYears(-18).addDays(30);
    const QDate pana = c.stare == 4 || c.stare == 5 ? c.dataCerere : m_azi;
    for (int k = 0; k < copii; ++k) {
        const bool baiat = m_r.bounded(2) == 0;
        const QDate nastere = intre(m_r, std::max(celMaiMare, nascutTitular.addYears(18)), c.dataCerere.addDays(-30));
        // A child of school age at the application is a pupil (8), a younger one preschool (11).
        const bool elev = nastere.addYears(7) <= c.dataCerere;
        QJsonObject copil = persoana(nume, baiat, nastere, 3, elev ? 8 : 11, c);
        copil[QStringLiteral("TipAct")] = 5;
        if (elev) {
            copil[QStringLiteral("UScolara")] = text(alege(m_r, Scoli));
            copil[QStringLiteral("Clasa")] =
                QString::number(std::clamp(c.dataCerere.year() - nastere.year() - 6, 1, 12));
            copil[QStringLiteral("Adeverinte")] = adeverinte(c, pana);
        }
        membri.append(copil);
    }
    e[QStringLiteral("Membrii")] = membri;

    // The income per member decides the amount: below 200 lei the higher tier, below 370 the
    // lower one, from 370 on nothing. Rejected and ended applications are over the limit; an
    // ended one and one whose amount changed had another income before.
    const int nrMembri = int(membri.size());
    int peMembru = m_r.bounded(2) == 0 ? 40 + m_r.bounded(160) : 200 + m_r.bounded(160);
    if (c.stare == 4 || c.stare == 5)
        peMembru = 380 + m_r.bounded(400);
    if (c.stare == 4)
        c.venitPeMembruAnterior = QString::number(40 + m_r.bounded(320));
    if (c.stare == 7)
        c.venitPeMembruAnterior = QString::number(peMembru < 200 ? 200 + m_r.bounded(160) : 40 + m_r.bounded(160));
    e[QStringLiteral("Venituri")] = venituri(ocupatieTitular, tip, double(peMembru) * nrMembri, copii);
    c.nrCamere = 1 + m_r.bounded(4);
    c.suprafata = 25 + 15 * c.nrCamere + m_r.bounded(30);
    e[QStringLiteral("Locuinte")] = QJsonArray{QJsonObject{{QStringLiteral("Cod"), c.tipLocuinta},
                                                           {QStringLiteral("NrCamere"), c.nrCamere},
                                                           {QStringLiteral("Suprafata"), c.suprafata}}};
    return c;
}

} // namespace

const std::vector<StradaDemo>& StraziDemo()
{
    static const std::vector<StradaDemo> s = {
        {"Principala", "Tarnaveni", "545600", false},    {"Bisericii", "Tarnaveni", "545601", false},
        {"Scolii", "Tarnaveni", "545602", false},        {"Morii", "Tarnaveni", "545603", false},
        {"Garii", "Tarnaveni", "545604", false},         {"Libertatii", "Tarnaveni", "545605", true},
        {"Unirii", "Tarnaveni", "545606", true},         {"Florilor", "Tarnaveni", "545607", false},
        {"Viilor", "Tarnaveni", "545608", false},        {"Campului", "Tarnaveni", "545609", false},
        {"Republicii", "Tarnaveni", "545610", true},     {"Avram Iancu", "Tarnaveni", "545611", true},
        {"Sat Bobohalma", "Bobohalma", "545620", false}, {"Sat Botorca", "Tarnaveni", "545621", false},
    };
    return s;
}

struct GeneratorDemo::Stare : Generator {
    using Generator::Generator;
};

GeneratorDemo::GeneratorDemo(unsigned seed, const QDate& azi) : m(std::make_unique<Stare>(seed, azi)) {}

GeneratorDemo::~GeneratorDemo() = default;

CerereDemo GeneratorDemo::urmatoarea()
{
    return m->cerere(m_i++);
}

std::vector<CerereDemo> PlanDemo(int n, unsigned seed, const QDate& azi)
{
    GeneratorDemo g(seed, azi);
    std::vector<CerereDemo> plan;
    plan.reserve(std::size_t(std::max(n, 0)));
    for (int i = 0; i < n; ++i)
        plan.push_back(g.urmatoarea());
    return plan;
}
