// Pages 6 to 9 of the application form (section F, the incomes, then the totals, the payment
// and the declarations); the inquiry form reuses pages 6 to 8 and the table of page 9.
#include "forms/PaginiFormular.h"

#include "common/Mesaje.h"
#include "common/Text.h"
#include "database/BD.h"
#include "forms/VenituriFormular.h"

#include <algorithm>
#include <map>

namespace {

// The columns of the table and its rows' measures.
// The amount column is its seven boxes and nothing more: the last box, that of the amount's last
// character, closes the table, so no empty box stands after an amount.
constexpr double XSuma = 160; // the last box of the amount
constexpr int CasuteSuma = 7;
constexpr double XDreapta = XSuma - 1 + PasCasuta, XVenit = XDreapta - CasuteSuma * PasCasuta;
constexpr double XCategoria = 10, XActe = 103;
constexpr double InaltimeLinie = 2.6, SpatiuRand = 0.9, InaltimeTitlu = 4.0;
constexpr double InaltimeAct = 2.4; // a line of the proof documents
constexpr double SusText = 0.45;    // from a row's top line to its caption

// A run of the table on a page: from `y`, the rows of the codes from `primul` to `ultimul`,
// each category heading with the first of its codes.
struct Sectiune {
    double y;
    int primul, ultimul;
};

// Where a code's caption (and its amount) stands when the form fixes it.
using PozitiiFixe = std::map<int, double>;

struct Rand {
    const RandVenitFormular* r;
    double sus, jos;
};

std::vector<Rand> aseaza(const std::vector<Sectiune>& sectiuni, const PozitiiFixe& fixe)
{
    const auto& toate = RanduriVenituriFormular();
    std::vector<Rand> r;
    for (const Sectiune& s : sectiuni) {
        double y = s.y;
        for (size_t i = 0; i < toate.size(); ++i) {
            const RandVenitFormular& v = toate[i];
            const int cod = v.cod != 0 ? v.cod : (i + 1 < toate.size() ? toate[i + 1].cod : 0);
            if (cod < s.primul || cod > s.ultimul)
                continue;
            const auto f = v.cod != 0 ? fixe.find(v.cod) : fixe.end();
            const double sus = f != fixe.end() ? f->second - SusText : y;
            double inaltime = v.cod == 0 ? InaltimeTitlu : v.linii.size() * InaltimeLinie + SpatiuRand;
            // The only code of its category here: its row holds the proof documents whole.
            const bool primul = r.empty() || r.back().r->cod == 0 || r.back().r->categorie != v.categorie;
            const RandVenitFormular* urmator = i + 1 < toate.size() ? &toate[i + 1] : nullptr;
            const bool ultimul =
                !urmator || urmator->cod == 0 || urmator->categorie != v.categorie || urmator->cod > s.ultimul;
            if (v.cod != 0 && primul && ultimul)
                inaltime = std::max(inaltime, SusText + v.acte.size() * InaltimeAct + SpatiuRand);
            r.push_back({&v, sus, sus + inaltime});
            y = sus + inaltime;
        }
    }
    // A fixed row reaches down to the next one.
    for (size_t i = 0; i + 1 < r.size(); ++i)
        if (r[i].r->cod && fixe.count(r[i].r->cod) && r[i + 1].sus > r[i].jos)
            r[i].jos = r[i + 1].sus;
    return r;
}

void capTabel(const Creion& c, double y)
{
    c.dreptunghi(0, y, XDreapta, y + 6.5, true);
    c.tnr(7, true);
    c.text(1.5, y + 1.8, QStringLiteral("Cod"));
    c.text(XCategoria + 25, y + 1.8, QStringLiteral("Categoria de venituri"));
    c.text(XActe + 2, y + 1.8, QStringLiteral("Acte doveditoare*"));
    c.text(XVenit + 3, y + 0.6, QStringLiteral("Venitul realizat**"));
    c.text(XVenit + 15, y + 3.4, QStringLiteral("lei"));
    for (double x : {XCategoria, XActe, XVenit})
        c.linie(x, y, x, y + 6.5);
}

// The proof documents of a category stand once, in a cell that spans its codes on the page.
void tabel(const Creion& c, const std::vector<Rand>& randuri)
{
    const RandVenitFormular* anterior = nullptr;
    for (size_t k = 0; k < randuri.size(); ++k) {
        const Rand& r = randuri[k];
        const RandVenitFormular& v = *r.r;
        const bool primulDinGrup = !anterior || anterior->cod == 0 || anterior->categorie != v.categorie;
        const RandVenitFormular* urmator = k + 1 < randuri.size() ? randuri[k + 1].r : nullptr;
        const bool ultimulDinGrup = !urmator || urmator->cod == 0 || urmator->categorie != v.categorie;
        anterior = &v;
        if (v.cod != 0 && !primulDinGrup) {
            c.linie(0, r.sus, XActe, r.sus);
            c.linie(XVenit, r.sus, XDreapta, r.sus);
        } else {
            c.linie(0, r.sus, XDreapta, r.sus);
        }
        // Under a row whose category goes on, the proof documents' cell stays open.
        if (v.cod != 0 && !ultimulDinGrup) {
            c.linie(0, r.jos, XActe, r.jos);
            c.linie(XVenit, r.jos, XDreapta, r.jos);
        } else {
            c.linie(0, r.jos, XDreapta, r.jos);
        }
        c.linie(0, r.sus, 0, r.jos, true);
        c.linie(XDreapta, r.sus, XDreapta, r.jos, true);
        if (v.cod == 0) {
            c.tnr(7, true);
            c.text(XCategoria + 1, r.sus + 0.6, v.linii.value(0));
            continue;
        }
        c.linie(XCategoria, r.sus, XCategoria, r.jos);
        c.linie(XActe, r.sus, XActe, r.jos);
        c.linie(XVenit, r.sus, XVenit, r.jos);
        DrawBoxRow(c.suprafata(), OrigineStanga + XVenit, OrigineSus + r.sus, OrigineSus + r.jos, CasuteSuma,
                   PasCasuta);
        c.tnr(7, true);
        c.text(2, r.sus + SusText, QString::number(v.cod));
        c.tnr(6.5);
        for (int i = 0; i < v.linii.size(); ++i)
            c.text(XCategoria + 1, r.sus + SusText + i * InaltimeLinie, v.linii[i]);
        if (primulDinGrup) {
            c.tnr(6);
            for (int i = 0; i < v.acte.size(); ++i)
                c.text(XActe + 0.8, r.sus + SusText + i * InaltimeAct, v.acte[i]);
        }
    }
}

// The amounts of the page's codes, right-aligned in their boxes; a code of another page is
// passed over, and two records of one code overprint each other.
void sume(const Creion& c, const SursaFormular& src, const std::vector<Rand>& randuri, const PozitiiFixe& date = {})
{
    // The rows' own places, or those that a page fixes for its data.
    std::map<int, double> y = date;
    if (y.empty())
        for (const Rand& r : randuri)
            if (r.r->cod)
                y[r.r->cod] = r.sus + SusText;
    Rezultat v = src.bd->selecteaza(QStringLiteral("SELECT * FROM Venituri WHERE CerereID = ?"), {src.cerereId});
    while (v.next()) {
        const auto it = y.find(int(v.numar("CodVenit")));
        if (it == y.end() || v["Valoare"].isNull())
            continue;
        c.inCasute(TextSuma(v["Valoare"].toDouble()), XSuma, it->second, true);
    }
}

// Gospodarire: its three boxes on page 6; LunaGospod beside the second.
constexpr double XGospodarire[] = {72, 2, 110}, YGospodarire[] = {14.5, 19, 14.5};
constexpr double XLunaGospod = 89, YLunaGospod = 19;

std::vector<Sectiune> sectiuniPagina(int pagina)
{
    switch (pagina) {
    case 6: return {{40, 1, 20}};
    case 7:
        return {{10, 21, 24}, {47, 25, 25}, {66, 26, 30}, {93, 31, 40}, {150, 41, 44}, {188, 45, 48}, {215, 49, 51}};
    default:
        return {{11, 52, 57},  {44, 58, 61},  {94, 62, 63},  {115, 64, 64}, {132, 65, 69},
                {193, 70, 70}, {202, 71, 73}, {219, 74, 75}, {235, 76, 76}};
    }
}

const PozitiiFixe Pagina7Fixe{{21, 10}, {22, 21}, {23, 32}, {24, 41}};

void notePagina9(const Creion& c, double y)
{
    c.tnr(7);
    c.text(0, y, QStringLiteral("(*) Se vor anexa pentru fiecare membru de familie"));
    c.text(0, y + 3, QStringLiteral("(**) Pentru aceeasi categorie de venituri se va inscrie suma totala a acestora"));
    c.text(0, y + 6,
           QStringLiteral(
               "(***) Se va inscrie venitul realizat in anul precedent. Pentru veniturile din activitati agricole se "
               "va inscrie venitul estimat"));
}

// Page 9: the last rows, the totals drawn over the table's end, the footnotes.
void tabelPagina9(const Creion& c, const SursaFormular& src, bool completat, const PozitiiFixe& fixe, double yTotal,
                  const PozitiiFixe& pozitiiDate)
{
    capTabel(c, 1.5);
    const auto randuri = aseaza({{8.5, 77, 79}}, fixe);
    tabel(c, randuri);
    const double y = yTotal - SusText;
    for (int i = 0; i < 2; ++i) {
        const double sus = y + i * 5;
        c.dreptunghi(0, sus, XDreapta, sus + 5, i == 0);
        c.linie(XVenit, sus, XVenit, sus + 5);
        DrawBoxRow(c.suprafata(), OrigineStanga + XVenit, OrigineSus + sus, OrigineSus + sus + 5, CasuteSuma,
                   PasCasuta);
        c.tnr(8, true);
        c.text(XCategoria + 1, sus + 1,
               i == 0 ? QStringLiteral("VENIT LUNAR TOTAL AL FAMILIEI ")
                      : QStringLiteral("VENIT NET LUNAR PE MEMBRU DE FAMILIE "));
    }
    if (completat) {
        sume(c, src, randuri, pozitiiDate);
        TotaluriVenituri(c, src, yTotal + 0.3, yTotal + 5.3);
    }
}

// ModPlata: its three boxes; the account's fields.
// The boxes of the payment stand clear of the account holder's row under them.
constexpr double YPlata = 59, XPlata[] = {2, 40, 2};
constexpr double YCasierie = 78;
constexpr double XCont = 56, YTitularCont = 64, YCont = 68.5, YBanca = 73;

void plata(const Creion& c, double y)
{
    c.tnr(9, true);
    c.text(0, y, QStringLiteral("G. MODALITATEA DE PLATA A DREPTURILOR DE ASISTENTA SOCIALA"));
    c.optiune(XPlata[0], YPlata, QStringLiteral("Mandat postal"));
    c.optiune(XPlata[1], YPlata, QStringLiteral("In cont"));
    c.eticheta(XPlata[1] + 16, YPlata + 1.8, QStringLiteral("bancar"));
    c.eticheta(20, YTitularCont + 0.5, QStringLiteral("Nume titular cont"));
    c.casute(XCont, YTitularCont, 25);
    c.eticheta(20, YCont + 0.5, QStringLiteral("Numar cont bancar"));
    c.casute(XCont, YCont, 24);
    c.eticheta(20, YBanca + 0.5, QStringLiteral("Deschis la banca"));
    c.casute(XCont, YBanca, 25);
    c.optiune(XPlata[2], YCasierie, QStringLiteral("Casierie (numai pentru persoanele fara adapost)"));
}

void declaratii(const Creion& c, double y)
{
    const char* linii[] = {
        "H. Declar pe propria raspundere ca datele inscrise in prezenta cerere sunt complete si corespund realitatii "
        "si ma",
        "oblig sa comunic in scris primariei, in termen de 15 zile, orice modificare intervenita in componenta "
        "familiei",
        "si in veniturile acesteia.",
        "",
        "I. Am luat la cunostinta ca nedeclararea sau declararea eronata a veniturilor si a bunurilor atrage "
        "raspunderea",
        "potrivit legii, precum si restituirea sumelor incasate necuvenit.",
        "",
        "J. Sunt de acord ca datele din prezenta cerere sa fie prelucrate de primarie si verificate la institutiile "
        "care",
        "detin informatii despre veniturile si bunurile familiei.",
    };
    c.tnr(9);
    for (size_t i = 0; i < std::size(linii); ++i)
        c.text(0, y + i * 4.2, QString::fromLatin1(linii[i]));
    const double j = y + std::size(linii) * 4.2 + 8;
    c.text(0, j, QStringLiteral("Data.........................................."));
    c.text(80, j, QStringLiteral("Semnatura solicitantului...................................."));
}

} // namespace

void TotaluriVenituri(const Creion& c, const SursaFormular& src, double yTotal, double yPeMembru)
{
    const BD& bd = *src.bd;
    const double suma =
        bd.scalar(QStringLiteral("SELECT SUM(Valoare) AS Suma FROM Venituri WHERE CerereID = ?"), {src.cerereId})
            .toDouble();
    const qint64 nr =
        bd.scalar(QStringLiteral("SELECT COUNT(CerereID) AS Nr FROM CereriMembrii WHERE CerereID = ?"), {src.cerereId})
            .toLongLong();
    c.inCasute(TextSuma(suma), XSuma, yTotal, true);
    // An application without members has no income per member: told, and its boxes stay empty.
    if (nr > 0)
        c.inCasute(TextSuma(suma / double(nr)), XSuma, yPeMembru, true);
    else
        Mesaj(QStringLiteral("Cererea selectata nu are membri: venitul net lunar pe membru de familie nu se poate "
                             "calcula."));
}

void PaginaVenituri(const Creion& c, const SursaFormular& src, bool completat, int pagina)
{
    if (pagina == 6) {
        c.tnr(9, true);
        c.text(0, 11, QStringLiteral("F.REFERITOR LA VENITURILE REALIZATE DE FAMILIE SAU PERSOANA INDREPTATITA"));
        c.tnr(8);
        c.text(0, 15.5, QStringLiteral("FAMILIA sau PERSOANA INDREPTATITA gospodareste"));
        const char* gospod[] = {"singura", "impreuna cu alta(e) persoana(e) singura(e)",
                                "impreuna cu alta(e) familie(i)"};
        for (int i = 0; i < 3; ++i)
            c.optiune(XGospodarire[i], YGospodarire[i], QString::fromLatin1(gospod[i]));
        c.eticheta(66, YLunaGospod + 0.8, QStringLiteral("incepand cu luna"));
        c.linie(XLunaGospod - 1, YLunaGospod + 4, XLunaGospod + 16, YLunaGospod + 4);
        c.tnr(9, true);
        c.text(0, 27.5, QStringLiteral("VENITURI PERMANENTE NETE REALIZATE DE FAMILIE IN LUNA:"));
        capTabel(c, 32.5);
    } else {
        capTabel(c, pagina == 7 ? 2 : 3.5);
    }
    const auto randuri = aseaza(sectiuniPagina(pagina), pagina == 7 ? Pagina7Fixe : PozitiiFixe{});
    tabel(c, randuri);
    if (!completat)
        return;
    if (pagina == 6) {
        Rezultat g = src.bd->selecteaza(QStringLiteral("SELECT Gospodarire, LunaGospod FROM Cereri WHERE CerereID = ?"),
                                        {src.cerereId});
        if (g.next()) {
            const int gospod = int(g.numar("Gospodarire"));
            if (gospod >= 1 && gospod <= 3)
                c.marcaj(XGospodarire[gospod - 1], YGospodarire[gospod - 1], QStringLiteral("X"));
            // No month recorded prints nothing on its line.
            if (g.numar("LunaGospod") != 0)
                c.date(XLunaGospod, YLunaGospod, g.text("LunaGospod"));
        }
    }
    sume(c, src, randuri);
}

void PaginaVenituriFinal(const Creion& c, const SursaFormular& src, bool completat)
{
    tabelPagina9(c, src, completat, {{77, 13}, {78, 18.5}, {79, 22.25}}, 27, {});
    notePagina9(c, 44);
    plata(c, 55);
    declaratii(c, 95);
    if (!completat)
        return;
    Rezultat cerere = src.bd->selecteaza(QStringLiteral("SELECT * FROM Cereri WHERE CerereID = ?"), {src.cerereId});
    if (!cerere.next())
        return;
    const int mod = int(cerere.numar("ModPlata"));
    if (mod >= 1 && mod <= 3)
        c.marcaj(XPlata[mod - 1], mod == 3 ? YCasierie : YPlata, QStringLiteral("X"));
    c.inCasute(cerere.text("NumeTitularCont"), XCont, YTitularCont);
    c.inCasute(cerere.text("Cont"), XCont, YCont);
    c.inCasute(cerere.text("Banca"), XCont, YBanca);
}

void PaginaAnchetaSanatate(const Creion& c, const SursaFormular& src, bool completat)
{
    // The inquiry's table has a taller first row: its incomes stand at 13 and 27.5.
    tabelPagina9(c, src, completat, {{77, 13}, {78, 27.5}, {79, 31.95}}, 37, {{77, 13}, {78, 27.5}});
    notePagina9(c, 49);
    auto sectiune = [&](double y, const char* l1, const char* l2, double pana) {
        c.titlu(0, y, QString::fromLatin1(l1));
        c.titlu(0, y + 4, QString::fromLatin1(l2));
        c.randuriDeScris(y + 14, pana);
    };
    sectiune(65, "I. STAREA DE SANATATE A PERSOANEI SINGURE/MEMBRILOR FAMILIEI", "SAU PERSOANEI INDREPTATITE", 138);
    sectiune(142, "J. NEVOI SPECIALE ALE PERSOANEI SINGURE MEMBRILOR FAMILIEI", "SAU PERSOANEI INDREPTATITE", 250);
}
