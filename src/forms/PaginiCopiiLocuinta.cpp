// Pages 3 and 4 (section C, the children, four to a sheet) and page 5 (sections D and E, the
// dwelling and the assets) of the application form.
#include "forms/PaginiFormular.h"

#include "common/Text.h"
#include "database/BD.h"

#include <vector>

namespace {

constexpr int CopiiPePagina = 4;
constexpr double YPrimulCopil = 16;
constexpr double InaltimeCopil = 46;
// DrAsSociala of a child: its three boxes, one under the other.
constexpr double XDrepturiCopil = 12, YDrepturiCopil[] = {29, 33.5, 38};
// RealizeazaVenit: NU and DA.
constexpr double YVenitCopil = 30, XVenitNu = 115, XVenitDa = 135;

void cadruCopii(const Creion& c, int foaie)
{
    c.tnr(14);
    c.text(5, 1, foaie == 0 ? QStringLiteral("C1. COPIII FAMILIEI") : QStringLiteral("C2. COPIII FAMILIEI"));
    c.dreptunghi(0, 9, 169, YPrimulCopil + CopiiPePagina * InaltimeCopil, true);
    c.tnr(7, true);
    c.text(1, 10.5, QStringLiteral("Nr"));
    c.linie(8, 9, 8, YPrimulCopil + CopiiPePagina * InaltimeCopil);
    for (int k = 0; k < CopiiPePagina; ++k) {
        const double y = YPrimulCopil + k * InaltimeCopil;
        c.linie(0, y, 169, y, k == 0);
        c.tnr(9, true);
        c.text(2, y + 2, QString::number(foaie * CopiiPePagina + k + 1));
        c.eticheta(9, y + 2.5, QStringLiteral(". Numele si prenumele"), 7);
        c.casute(45, y + 2, 27);
        c.eticheta(9, y + 8.5, QStringLiteral("Cod numeric personal"), 7);
        c.casute(45, y + 8, 13);
        c.eticheta(9, y + 14.5, QStringLiteral("Act de identitate/act doveditor**"), 7);
        c.dreptunghi(56, y + 13.5, 68, y + 18);
        c.eticheta(71, y + 14.5, QStringLiteral("Seria"), 7);
        c.casute(80, y + 14, 3);
        c.eticheta(95, y + 14.5, QStringLiteral("Nr."), 7);
        c.casute(102, y + 14, 7);
        c.eticheta(9, y + 20.5, QStringLiteral("Daca invata la"), 7);
        c.eticheta(30, y + 20.5, QStringLiteral("Unitatea scolara"), 7);
        c.linie(52, y + 24, 130, y + 24);
        c.eticheta(133, y + 20.5, QStringLiteral("Clasa"), 7);
        c.linie(143, y + 24, 168, y + 24);
        c.eticheta(9, y + 26.5, QStringLiteral("Daca beneficiaza de unele drepturi de asistenta sociala:"), 7);
        const char* drepturi[] = {"NU                     (se vor atasa acte doveditoare: mandat",
                                  "DA, din Romania         postal/   extras     de       cont/",
                                  "DA, din alte tari       decizie/adeverinta)"};
        for (int i = 0; i < 3; ++i) {
            c.bifa(XDrepturiCopil, y + YDrepturiCopil[i]);
            c.eticheta(XDrepturiCopil + 5, y + YDrepturiCopil[i] + 1.8, QString::fromLatin1(drepturi[i]), 7);
        }
        c.eticheta(112, y + 26.5, QStringLiteral("Daca realizeaza venituri din munca"), 7);
        c.optiune(XVenitNu, y + YVenitCopil, QStringLiteral("NU"));
        c.optiune(XVenitDa, y + YVenitCopil, QStringLiteral("DA"));
    }
    c.tnr(7);
    double y = YPrimulCopil + CopiiPePagina * InaltimeCopil + 3;
    c.text(
        0, y,
        QStringLiteral("(*)Se includ si copii care au implinit varsta de 18 ani si se afla in intretinerea familiei"));
    y += 4;
    c.text(0, y, QStringLiteral("(**)"));
    const char* acte[] = {"-CN - certificat de nastere",
                          "-B.I.- buletin de identitate ",
                          "-C.I.- carte de identitate",
                          "-C.I.P.- carte de identitate provizorie",
                          "-P - pasaport",
                          "-P.S.T.- permis de sedere temporara",
                          "-PSTL- permis de sedere pe termen lung",
                          "-D.I.- document de identitate",
                          "-CR - carte de rezidenta",
                          "-CRP - carte de rezidenta permanenta"};
    for (int i = 0; i < 10; ++i)
        c.text(i < 5 ? 6 : 90, y + (i % 5) * 3, QString::fromLatin1(acte[i]));
    c.text(0, y + 16, QStringLiteral("In toate cazurile de mai sus se vor atasa copii dupa actele mentionate"));
}

void dateCopii(const Creion& c, const SursaFormular& src, int foaie)
{
    const BD& bd = *src.bd;
    Rezultat r = bd.selecteaza(
        QStringLiteral("SELECT * FROM Membrii AS M INNER JOIN CereriMembrii AS CM ON M.MembruID = CM.MembruID "
                       "WHERE RudenieID IN(0,3,4,5) AND CerereID = ?"),
        {src.cerereId});
    int contor = 0;
    while (r.next()) {
        const int k = contor++ - foaie * CopiiPePagina;
        if (k < 0 || k >= CopiiPePagina)
            continue; // another sheet's child; the ninth and later have none
        const double y = YPrimulCopil + k * InaltimeCopil;
        c.inCasute(r.text("Nume") + QLatin1Char(' ') + r.text("Prenume"), 45, y + 2);
        c.inCasute(r.text("CNP"), 45, y + 8);
        c.date(57, y + 14, TipActFormular(bd, r["TipAct"]));
        c.inCasute(r.text("SerieBI"), 80, y + 14);
        c.inCasute(r.text("NrBI"), 102, y + 14);
        c.date(53, y + 20, r.text("UScolara"));
        c.date(144, y + 20, r.text("Clasa"));
        const int drepturi = int(r.numar("DrAsSociala"));
        if (drepturi >= 1 && drepturi <= 3)
            c.marcaj(XDrepturiCopil, y + YDrepturiCopil[drepturi - 1], QStringLiteral("X"));
        const QVariant venit = r["RealizeazaVenit"];
        if (!venit.isNull())
            c.marcaj(venit.toBool() ? XVenitDa : XVenitNu, y + YVenitCopil, QStringLiteral("X"));
    }
}

// Page 5.
// GospodLoc: its three boxes.
constexpr double YGospod = 9.5, XGospod[] = {2, 30, 100};
// The dwelling table: the rows of DateGen list 4, then the columns. The three choices of the
// legal status and of the heating each have a column of their own, as wide as its caption.
constexpr double YTabelLocuinta = 18, YRanduriLocuinta = 27, InaltimeRandLocuinta = 3.5;
constexpr double XCamere = 44, XSuprafata = 57, XRegim = 70, XIncalzire = 124;
constexpr double XRegimCol[] = {XRegim, XRegim + 15, XRegim + 30, XIncalzire};
constexpr double XIncalzireCol[] = {XIncalzire, XIncalzire + 15, XIncalzire + 26, 169};
// TipLocuinta: the boxes TIP A and TIP B.
constexpr double XTipLocuinta = 20, YTipLocuinta[] = {56, 67};
// The asset rows of section E: the y of each of the 20 rows and the x of its box.
struct RandBun {
    double x, y, xBifa;
    const char* text;
};
const RandBun Bunuri[] = {
    {5, 91, 160, "Cladiri sau spatii locative in afara locuintei de domiciliu"},
    {5, 97, 160, "Terenuri de intravilan peste 1.000 mp in zona urbana sau peste 2.000 mp in zona rurala"},
    {5, 110, 160, "Autoturism sau motocicleta cu vechime mai mica de 10 ani"},
    {5, 117, 160, "Autoutilitare, autocamioane, rulote, autobuze sau microbuze"},
    {5, 124, 160, "Salupe, barci cu motor, scutere de apa sau iahturi"},
    {5, 131, 160, "Depozite bancare cu valoare de peste 3.000 lei"},
    {5, 138, 160, "Tractor sau combina autopropulsata"},
    {5, 145, 160, "Presa de ulei sau moara de cereale"},
    {5, 152, 160, "Gater sau alte utilaje de prelucrare a lemnului"},
    {5, 159, 160, "Masina de tricotat sau de confectionat articole textile"},
    {5, 182, 75, "Terenuri agricole peste 2 ha"},
    {90, 182, 160, "Terenuri agricole peste 3 ha"},
    {5, 192, 160, "Padure sau teren impadurit peste 1 ha"},
    {5, 213, 160, "peste 2 bovine"},
    {5, 219, 160, "peste o cabalina"},
    {5, 225, 160, "peste 3 porcine"},
    {5, 231, 160, "peste 10 ovine sau caprine"},
    {5, 237, 160, "peste 20 pasari"},
    {5, 243, 160, "peste 10 familii de albine"},
    {5, 249, 160, "alte bunuri mobile sau imobile care depasesc nevoile familiei"},
};

std::vector<std::pair<int, QString>> randuriLocuinta(const BD& bd)
{
    std::vector<std::pair<int, QString>> r;
    Rezultat q = bd.selecteaza(QStringLiteral("SELECT DataID, Continut FROM DateGen WHERE Tip=4 ORDER BY Ordine"));
    while (q.next())
        r.emplace_back(q.valoare(0).toInt(), TextCamp(q.valoare(1)));
    return r;
}

void cadruLocuinta(const Creion& c, const std::vector<std::pair<int, QString>>& randuri)
{
    c.tnr(9, true);
    c.text(0, 1, QStringLiteral("D. STAREA LOCATIVA A FAMILIEI/PERSOANEI INDREPTATITE"));
    c.tnr(8, true);
    c.text(0, 5.5, QStringLiteral("F. FAMILIA sau PERSOANA INDREPTATITA gospodareste:"));
    const char* gospod[] = {"singura", "impreuna cu alta(e) persoana(e) singura(e)", "impreuna cu alta(e) familie(i)"};
    for (int i = 0; i < 3; ++i)
        c.optiune(XGospod[i], YGospod, QString::fromLatin1(gospod[i]));

    const double y0 = YTabelLocuinta, yJos = YRanduriLocuinta + 8 * InaltimeRandLocuinta;
    c.dreptunghi(0, y0, 169, yJos, true);
    c.tnr(6, true);
    c.text(1, y0 + 1, QStringLiteral("Locuinta"));
    c.text(XCamere + 0.5, y0 + 1, QStringLiteral("Nr. camere"));
    c.text(XSuprafata + 0.5, y0 + 1, QStringLiteral("Suprafata"));
    c.text(XRegim + 1, y0 + 1, QStringLiteral("Regimul juridic al locuintei"));
    c.text(XIncalzire + 1, y0 + 1, QStringLiteral("Tipul de incalzire al locuintei"));
    c.linie(XRegim, y0 + 4, 169, y0 + 4);
    c.tnr(5);
    // The captions as the form prints them, over two lines where a column is narrow.
    const char* regim[][2] = {{"Proprietate", "personala"},
                              {"In inchiriere", "public/privat"},
                              {"Alte situatii", "..................................................."}};
    const char* incalzire[][2] = {{"Energie termica in", "sistem centralizat"},
                                  {"Gaze naturale", ""},
                                  {"Lemne, carbuni,", "combustibili petrolieri"}};
    for (int i = 0; i < 3; ++i) {
        c.text(XRegimCol[i] + 0.4, y0 + 4.3, QString::fromLatin1(regim[i][0]));
        c.text(XRegimCol[i] + 0.4, y0 + 6.4, QString::fromLatin1(regim[i][1]));
        c.text(XIncalzireCol[i] + 0.3, y0 + 4.3, QString::fromLatin1(incalzire[i][0]));
        c.text(XIncalzireCol[i] + 0.3, y0 + 6.4, QString::fromLatin1(incalzire[i][1]));
        if (i > 0) {
            c.linie(XRegimCol[i], y0 + 4, XRegimCol[i], yJos);
            c.linie(XIncalzireCol[i], y0 + 4, XIncalzireCol[i], yJos);
        }
    }
    for (double x : {XCamere, XSuprafata, XRegim, XIncalzire})
        c.linie(x, y0, x, yJos);
    for (int i = 0; i < 8; ++i) {
        const double y = YRanduriLocuinta + i * InaltimeRandLocuinta;
        c.linie(0, y, 169, y);
        if (i < int(randuri.size()))
            c.eticheta(1, y + 0.5, randuri[size_t(i)].second, 6.5);
    }

    c.tnr(8, true);
    c.text(0, YTipLocuinta[0] + 1, QStringLiteral("Tipul"));
    c.text(0, YTipLocuinta[0] + 4.5, QStringLiteral("locuintei"));
    c.optiune(XTipLocuinta, YTipLocuinta[0], QStringLiteral("TIP A"));
    c.optiune(XTipLocuinta, YTipLocuinta[1], QStringLiteral("TIP B"));
    c.tnr(7);
    c.text(XTipLocuinta + 17, YTipLocuinta[0] + 2,
           QStringLiteral("locuinta cu cel putin o camera de locuit, bucatarie, baie sau dus si grup sanitar,"));
    c.text(XTipLocuinta + 17, YTipLocuinta[0] + 5,
           QStringLiteral("racordata la reteaua de apa, de canalizare si de energie electrica"));
    c.text(XTipLocuinta + 17, YTipLocuinta[1] + 2,
           QStringLiteral("locuinta care nu indeplineste conditiile locuintei de TIP A"));

    c.tnr(9, true);
    c.text(0, 80, QStringLiteral("E. FAMILIA/PERSOANA INDREPTATITA DETINE IN PROPRIETATE/FOLOSINTA "));
    c.text(0, 85, QStringLiteral("BUNURI IMOBILE"));
    c.text(0, 104, QStringLiteral("BUNURI MOBILE"));
    c.text(0, 169, QStringLiteral("TERENURI/CURSURI DE APA"));
    c.tnr(8, true);
    c.text(5, 175, QStringLiteral("FAMILII CU 1-3"));
    c.text(5, 178.2, QStringLiteral("PERSOANE "));
    c.text(90, 175, QStringLiteral("FAMILII CU PESTE 3"));
    c.tnr(9, true);
    c.text(0, 206, QStringLiteral("CATEGORII DE ANIMALE/PASARI"));
    for (const RandBun& b : Bunuri) {
        c.eticheta(b.x, b.y + 1.8, QString::fromLatin1(b.text), 8);
        c.bifa(b.xBifa, b.y);
        c.linie(b.x - 5, b.y + 5.8, b.xBifa + 9, b.y + 5.8);
    }
}

void dateLocuinta(const Creion& c, const SursaFormular& src, const std::vector<std::pair<int, QString>>& randuri)
{
    const BD& bd = *src.bd;
    Rezultat cerere = bd.selecteaza(QStringLiteral("SELECT * FROM Cereri WHERE CerereID = ?"), {src.cerereId});
    if (!cerere.next())
        return;
    const int gospod = int(cerere.numar("GospodLoc"));
    if (gospod >= 1 && gospod <= 3)
        c.marcaj(XGospod[gospod - 1], YGospod, QStringLiteral("X"));
    const int regim = int(cerere.numar("RegimJuridLoc"));
    const int incalzire = int(cerere.numar("TipIncalzire"));
    const int tip = int(cerere.numar("TipLocuinta"));
    Rezultat loc = bd.selecteaza(QStringLiteral("SELECT * FROM Locuinte WHERE CerereID = ?"), {src.cerereId});
    while (loc.next()) {
        int rand = -1;
        for (size_t i = 0; i < randuri.size() && i < 8; ++i)
            if (randuri[i].first == loc["Cod"].toInt())
                rand = int(i);
        if (rand < 0)
            continue;
        // The data at the forms' size, centred in the row.
        const double y = YRanduriLocuinta + rand * InaltimeRandLocuinta - 0.4;
        c.date(XCamere + 2, y, TextCamp(loc["NrCamere"]));
        c.date(XSuprafata + 2, y, TextCamp(loc["Suprafata"]));
        if (regim >= 1 && regim <= 3)
            c.date(XRegimCol[regim - 1] + 1.5, y, regim == 3 ? QStringLiteral("X situatii") : QStringLiteral("X"));
        if (incalzire >= 1 && incalzire <= 3)
            c.date((XIncalzireCol[incalzire - 1] + XIncalzireCol[incalzire]) / 2 - 1, y, QStringLiteral("X"));
    }
    if (tip >= 1 && tip <= 2)
        c.marcaj(XTipLocuinta, YTipLocuinta[tip - 1], QStringLiteral("X"));
    const QString bife = cerere.text("Bife");
    for (int n = 0; n < bife.size() && n < int(std::size(Bunuri)); ++n)
        if (bife[n] == QLatin1Char('1'))
            c.marcaj(Bunuri[n].xBifa, Bunuri[n].y);
}

} // namespace

void PaginaCopii(const Creion& c, const SursaFormular& src, bool completat, int foaie)
{
    // The second sheet prints its data first and draws its frame over them.
    if (foaie == 0) {
        cadruCopii(c, foaie);
        if (completat)
            dateCopii(c, src, foaie);
    } else {
        if (completat)
            dateCopii(c, src, foaie);
        cadruCopii(c, foaie);
    }
}

void PaginaLocuinta(const Creion& c, const SursaFormular& src, bool completat)
{
    const auto randuri = randuriLocuinta(*src.bd);
    if (completat)
        dateLocuinta(c, src, randuri);
    cadruLocuinta(c, randuri);
}
