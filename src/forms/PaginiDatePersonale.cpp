// Pages 1 and 2 of the application form (and page 1 of the inquiry form): the personal data of
// the applicant (sections A) and of the partner (sections B). The same section functions draw
// both pages; the data positions are fixed from each section's base.
#include "forms/PaginiFormular.h"

#include "amounts/CNP.h"
#include "common/Data.h"
#include "common/Mesaje.h"
#include "common/Text.h"
#include "database/BD.h"

namespace {

// The vertical places of the sections of one page, from the top of the page.
struct Sectiuni {
    double a1, a2, a3, a4, a5, a6, a7, a8, a9;
    // The bases of the data positions.
    double personal() const { return a1 + 24; }
    double adresa() const { return a2; }
    double resedinta() const { return a3 - 2; }
    double contact() const { return a5; }
    double stareCivila() const { return a6; }
    double studii() const { return a7; }
    double drepturi() const { return a8 - 5.5; }
    double ocupatie() const { return a9 - 2; }
};
constexpr Sectiuni Pagina1{47, 102, 126, 142, 167, 184, 200, 215, 234};
constexpr Sectiuni Pagina2{30, 85, 109, 125, 150, 167, 183, 198, 217};

// The x of each section's data, from the left edge.
constexpr double XResedinta = -1, XContact = -1, XStareCivila = -1, XStudii = -1, XDrepturi = 1, XOcupatie = 0.5;

// Marks by coded value: the value, then its offsets from the section's base.
struct Marcaj {
    int valoare;
    double y, x;
};
constexpr Marcaj MarcajeCetatenie[] = {{1, 1.5, 34.5}, {2, 1.5, 88.5}};
constexpr Marcaj MarcajeResedinta[] = {{1, 10.5, 4.5}, {2, 10.5, 21.6}};
constexpr Marcaj MarcajeStareCivila[] = {{1, 2, 79.5},  {2, 7, 44.5}, {3, 7, 79.5},
                                         {4, 2, 128.5}, {5, 7, 4.5},  {6, 7, 128.5}};
constexpr Marcaj MarcajeStudii[] = {{1, 7.5, 6}, {2, 7.5, 56}, {3, 7.5, 101}, {4, 7.5, 138}};
constexpr Marcaj MarcajeDrepturi[] = {{1, 12, 3}, {2, 12, 30}, {3, 12, 70}};
constexpr Marcaj MarcajeOcupatie[] = {{8, 8, 2},   {1, 13, 2},  {6, 18, 2},  {9, 8, 39},    {3, 13, 39},
                                      {7, 18, 39}, {10, 8, 71}, {4, 13, 71}, {2, 8, 113.5}, {5, 13, 113.5}};
// LucreazaAfara: DA and NU.
constexpr Marcaj MarcajeAfara[] = {{1, 28.5, 132}, {0, 28.5, 94}};
// The sex boxes "m" and "f", on the row of the name.
constexpr double YSex = -9, XSexM = 141, XSexF = 152;

template <std::size_t N> const Marcaj* gaseste(const Marcaj (&m)[N], int valoare)
{
    for (const Marcaj& x : m)
        if (x.valoare == valoare)
            return &x;
    return nullptr;
}

template <std::size_t N>
void bifeaza(const Creion& c, const Marcaj (&m)[N], const QVariant& v, double bazaY, double bazaX)
{
    if (v.isNull())
        return;
    if (const Marcaj* x = gaseste(m, v.toInt()))
        c.marcaj(bazaX + x->x, bazaY + x->y);
}

// The box under every mark of a table, with its caption.
template <std::size_t N>
void optiuni(const Creion& c, const Marcaj (&m)[N], double bazaY, double bazaX,
             std::initializer_list<std::pair<int, const char*>> etichete)
{
    for (const auto& [valoare, text] : etichete)
        if (const Marcaj* x = gaseste(m, valoare))
            c.optiune(bazaX + x->x, bazaY + x->y, QString::fromLatin1(text));
}

void titlu(const Creion& c, double y, const char* text)
{
    c.titlu(0, y, QString::fromLatin1(text));
}

void cap1(const Creion& c, const SursaFormular& src)
{
    CapPrimarie(c, src);
    c.font("Monotype Corsiva", 16, true);
    c.text(45, 19, QStringLiteral("CERERE si DECLARATIE PE PROPRIA RASPUNDERE"));
    c.text(52, 26, QStringLiteral("pentru acordarea unor beneficii de asistenta sociala"));
    c.tnr(8);
    c.text(72, 42.8, QStringLiteral("Inregistrata sub nr."));
    c.linie(99, 46.2, 128, 46.2);
    c.text(129, 42.8, QStringLiteral("din"));
    c.linie(133, 46.2, 169, 46.2);
    c.text(0, 42.8, QStringLiteral("Subsemnata(ul)"));
}

// The head of page 2; ReprLegal marks one of its first two boxes.
constexpr Marcaj MarcajeReprLegal[] = {{1, 13, 52}, {2, 13, 80}};

void cap2(const Creion& c)
{
    c.tnr(8);
    c.text(0, 14.8, QStringLiteral("In calitate de reprezentant legal al"));
    c.optiune(52, 13, QStringLiteral("familiei mele"));
    c.optiune(80, 13, QStringLiteral("persoanei indreptatite in numele careia se face cererea "));
    c.tnr(8);
    c.text(0, 19.8, QStringLiteral("Pentru acordarea"));
    c.optiune(52, 18, QStringLiteral("ajutorului social"));
    c.optiune(80, 18, QStringLiteral("alocatiei pentru sustinerea familiei "));
    c.tnr(8);
    c.text(0, 25, QStringLiteral("Declar urmatoarele despre:"));
    c.tnr(9, true);
    c.text(50, 24.8, QStringLiteral("B.  PARTENERUL/PERSOANA INDREPTATITA:"));
}

void sectiunePersonala(const Creion& c, double y, bool b)
{
    titlu(c, y, b ? "B1. DATE PERSONALE:" : "A1. DATE PERSONALE  ALE SOLICITANTULUI:");
    const double p = y + 24;
    c.eticheta(0, p - 8.5, QStringLiteral("Nume"));
    c.casute(13, p - 9, 25);
    c.eticheta(130, p - 8.5, QStringLiteral("Sex"));
    c.optiune(XSexM, p + YSex, QStringLiteral("m"));
    c.optiune(XSexF, p + YSex, QStringLiteral("f"));
    c.eticheta(0, p - 3.5, QStringLiteral("Prenume"));
    c.casute(18, p - 4, 25);
    c.eticheta(0, p + 3, QStringLiteral("Cetatenie"));
    c.optiune(34.5, p + 1.5, QStringLiteral("Romana        sau"));
    c.bifa(88.5, p + 1.5);
    c.eticheta(93.5, p + 3.3, QStringLiteral("(tara)................................."));
    c.eticheta(0, p + 7.7, QStringLiteral("CNP"));
    c.casute(14, p + 7.2, 13);
    c.eticheta(75, p + 7.7, QStringLiteral("Act identitate*"), 7);
    c.dreptunghi(97, p + 6.5, 109, p + 11);
    c.eticheta(111, p + 7.7, QStringLiteral("Seria"), 7);
    c.casute(122, p + 7, 3);
    c.eticheta(135, p + 7.7, QStringLiteral("Nr"), 7);
    c.casute(139, p + 7, 7);
    c.eticheta(0, p + 13, QStringLiteral("eliberat de"), 7);
    c.casute(21, p + 12.5, 20);
    c.eticheta(112, p + 13, QStringLiteral("la data de"), 7);
    c.casute(128, p + 12.5, 2);
    c.casute(139, p + 12.5, 2);
    c.casute(150, p + 12.5, 4);
    c.tnr(6);
    const double n = p + 18;
    c.text(0, n, QStringLiteral("(*)Pentru cetatenii romani:"));
    const char* romani[] = {"BI-buletin de identitate", "CI-carte de identitate ", "CIP-carte de identitate provizorie",
                            "P-pasaport"};
    for (int i = 0; i < 4; ++i)
        c.text(2, n + 2.3 * (i + 1), QString::fromLatin1(romani[i]));
    c.text(60, n, QStringLiteral("(*)Pentru cetatenii straini sau apatrizi:"));
    const char* straini[] = {"PSTL-permis de sedere pe termen lung", "PST-permis de sedere temporara",
                             "DI-document de identitate", "CR-carte de rezidenta", "CRP-carte de rezidenta permanenta"};
    for (int i = 0; i < 5; ++i)
        c.text(i < 3 ? 62 : 115, n + 2.3 * ((i < 3 ? i : i - 3) + 1), QString::fromLatin1(straini[i]));
}

// The address frame, for the identity document's address and for the residence.
void sectiuneAdresa(const Creion& c, double y, const char* caption)
{
    titlu(c, y, caption);
    c.eticheta(0, y + 9.5, QStringLiteral("Strada"));
    c.casute(16, y + 9, 25);
    c.eticheta(0, y + 14.5, QStringLiteral("Nr"));
    c.casute(11, y + 14, 5);
    c.eticheta(33.5, y + 14.5, QStringLiteral("Bl."));
    c.casute(39, y + 14, 5);
    c.eticheta(96, y + 14.5, QStringLiteral("Sc."));
    c.casute(103, y + 14, 3);
    c.eticheta(118, y + 14.5, QStringLiteral("Apart."));
    c.casute(132, y + 14, 3);
    c.eticheta(147, y + 14.5, QStringLiteral("Sector"));
    c.casute(158, y + 14, 1);
    c.eticheta(0, y + 19.5, QStringLiteral("Localitatea"));
    c.casute(21, y + 19, 15);
    c.eticheta(90, y + 19.5, QStringLiteral("Judet"));
    c.casute(101, y + 19, 14);
}

void sectiuneResedinta(const Creion& c, double y, bool b)
{
    titlu(c, y,
          b ? "B3. DACA ARE RESEDINTA IN AFARA ROMANIEI?"
            : "A3. SOLICITANTUL ARE RESEDINTA (locul de sedere obisnuita) IN AFARA ROMANIEI:");
    const double r = y - 2;
    optiuni(c, MarcajeResedinta, r, XResedinta, {{1, "NU"}, {2, "DA, in localitatea"}});
    c.casute(54 + XResedinta, r + 10.5, 15, 3.0);
    c.eticheta(100, r + 11, QStringLiteral("tara"));
    c.casute(112 + XResedinta, r + 10.5, 12);
}

void sectiuneContact(const Creion& c, double y, bool b)
{
    titlu(c, y, b ? "B5. DATE DE CONTACT:" : "A5. DATE DE CONTACT:");
    c.eticheta(82, y + 3, QStringLiteral("Telefon"));
    c.casute(95.5 + XContact, y + 2.5, 10);
    c.eticheta(0, y + 8, QStringLiteral("Mobil"));
    c.casute(15.5 + XContact, y + 7.5, 10);
    c.eticheta(62, y + 8, QStringLiteral("Fax"));
    c.casute(70, y + 7.5, 10);
    c.eticheta(118, y + 8, QStringLiteral("E-mail"));
    c.linie(128, y + 11.5, 169, y + 11.5);
}

void sectiuneStareCivila(const Creion& c, double y, bool b)
{
    titlu(c, y, b ? "B6. STAREA CIVILA: " : "A6. STAREA CIVILA A SOLICITANTULUI");
    optiuni(c, MarcajeStareCivila, y, XStareCivila,
            {{5, "Despartit in fapt"},
             {1, "Necasatorit(a)"},
             {2, "Casatorit(a)"},
             {3, "Divortat(a)"},
             {4, "Vaduv(a)"},
             {6, "Uniune consensuala"}});
}

void sectiuneStudii(const Creion& c, double y, bool b)
{
    titlu(c, y, b ? "B7. SITUATIA SCOLARA:" : "A7. SITUATIA SCOLARA A SOLICITANTULUI");
    optiuni(c, MarcajeStudii, y, XStudii, {{1, "Fara studii"}, {2, "Generale"}, {3, "Medii"}, {4, "Superioare"}});
}

void sectiuneDrepturi(const Creion& c, double y, bool b)
{
    titlu(c, y,
          b ? "B8.DACA BENEFICIAZA DE UNELE DREPTURI DE ASISTENTA SOCIALA"
            : "A8. DACA BENEFICIAZA DE UNELE DREPTURI DE ASISTENTA SOCIALA");
    const double d = y - 5.5;
    optiuni(c, MarcajeDrepturi, d, XDrepturi, {{1, "NU"}, {2, "DA"}, {3, "DA"}});
    c.eticheta(XDrepturi + 30 + 11, d + 13.8, QStringLiteral("*,din Romania"));
    c.eticheta(XDrepturi + 70 + 11, d + 13.8, QStringLiteral("*,din alte tari"));
    c.eticheta(
        0, y + 12.5,
        QStringLiteral("(*)Se vor atasa actele doveditoare:mandat postal/extras de cont/decizie/adeverinta). etc."), 7);
}

void sectiuneOcupatie(const Creion& c, double y, bool b)
{
    titlu(c, y, b ? "B9. SITUATIA PROFESIONALA:" : "A9. SITUATIA PROFESIONALA A SOLICITANTULUI");
    const double o = y - 2;
    optiuni(c, MarcajeOcupatie, o, XOcupatie,
            {{8, "Elev*"},
             {9, "Student*"},
             {10, "Lucrator agricol"},
             {2, "Independent"},
             {1, "Salariat"},
             {3, "Somer"},
             {4, "Lucrator ocazional"},
             {5, "Pensionar"},
             {6, "Casnic(a)"},
             {7, "Fara loc de munca"}});
    c.eticheta(XOcupatie + 71 + 5, o + 19.8, QStringLiteral("Altele............................................"));
    c.eticheta(0, o + 24,
               QStringLiteral("Se vor atasa adeverinte, dupa caz, de la unitatea scolara, angajator, talon de pensie"),
               7);
    titlu(c, o + 29.5, b ? "B10. DACA LUCREAZA IN AFARA ROMANIEI?" : "A10. DACA LUCREAZA IN AFARA ROMANIEI?");
    optiuni(c, MarcajeAfara, o, XOcupatie, {{0, "NU"}, {1, "DA"}});
}

void cadru(const Creion& c, const Sectiuni& s, bool b)
{
    sectiunePersonala(c, s.a1, b);
    sectiuneAdresa(c, s.a2,
                   b ? "B2. ADRESA DIN DOCUMENTUL DE IDENTITATE:"
                     : "A2. ADRESA DIN DOCUMENTUL DE IDENTITATE AL SOLICITANTULUI:");
    sectiuneResedinta(c, s.a3, b);
    sectiuneAdresa(c, s.a4,
                   b ? "B4. ADRESA DE RESEDINTA SAU CORESPONDENTA:"
                     : "A4. ADRESA DE RESEDINTA SAU CORESPONDENTA A SOLICITANTULUI:");
    sectiuneContact(c, s.a5, b);
    sectiuneStareCivila(c, s.a6, b);
    sectiuneStudii(c, s.a7, b);
    sectiuneDrepturi(c, s.a8, b);
    sectiuneOcupatie(c, s.a9, b);
}

// The person's fields and marks (a row of Membrii joined with its CereriMembrii row), and the
// family's address.
void datePersoana(const Creion& c, const BD& bd, Rezultat& m, Rezultat* familie, const Sectiuni& s)
{
    const double p = s.personal();
    c.inCasute(m.text("Nume"), 13, p - 9);
    c.inCasute(m.text("Prenume"), 18, p - 4);
    c.inCasute(m.text("CNP"), 14, p + 7.2);
    const QString sex = SexDinCNP(m.text("CNP"));
    if (sex == QLatin1String("m"))
        c.marcaj(XSexM, p + YSex);
    else if (sex == QLatin1String("f"))
        c.marcaj(XSexF, p + YSex);
    bifeaza(c, MarcajeCetatenie, m["CetatenieID"], p, 0);
    c.date(103, p + 1.5, m.text("TaraCetatenie"));
    c.date(98, p + 7, TipActFormular(bd, m["TipAct"]));
    c.inCasute(m.text("SerieBI"), 122, p + 7);
    c.inCasute(m.text("NrBI"), 139, p + 7);
    c.inCasute(m.text("Eliberat"), 21, p + 12.5);
    const QDate elib = DataDinBD(m["DataElib"]);
    if (!EsteDataZero(elib)) {
        c.inCasute(DouaCifre(elib.day()), 128, p + 12.5);
        c.inCasute(DouaCifre(elib.month()), 139, p + 12.5);
        c.inCasute(QString::number(elib.year()), 150, p + 12.5);
    }
    if (familie) {
        Rezultat& f = *familie;
        const double a = s.adresa();
        c.inCasute(f.text("Strada"), 16, a + 9);
        c.inCasute(f.text("Nr"), 11, a + 14);
        c.inCasute(f.text("Bloc"), 39, a + 14);
        c.inCasute(f.text("Sc"), 103, a + 14);
        c.inCasute(f.text("Ap"), 132, a + 14);
        c.inCasute(f.text("Localitate"), 21, a + 19);
        c.inCasute(f.text("Judet"), 101, a + 19);
        c.inCasute(f.text("Telefon"), 95.5 + XContact, s.contact() + 2.5);
        c.inCasute(f.text("Mobil"), 15.5 + XContact, s.contact() + 7.5);
    }
    const double r = s.resedinta();
    bifeaza(c, MarcajeResedinta, m["ResedintaID"], r, XResedinta);
    c.inCasute(m.text("LocResedinta"), 54 + XResedinta, r + 10.5, false, 3.0);
    c.inCasute(m.text("TaraResedinta"), 112 + XResedinta, r + 10.5);
    bifeaza(c, MarcajeStareCivila, m["StCivila"], s.stareCivila(), XStareCivila);
    bifeaza(c, MarcajeStudii, m["Studii"], s.studii(), XStudii);
    bifeaza(c, MarcajeDrepturi, m["DrAsSociala"], s.drepturi(), XDrepturi);
    bifeaza(c, MarcajeOcupatie, m["OcupatieID"], s.ocupatie(), XOcupatie);
    const QVariant afara = m["LucreazaAfara"];
    if (!afara.isNull())
        bifeaza(c, MarcajeAfara, QVariant(afara.toBool() ? 1 : 0), s.ocupatie(), XOcupatie);
}

// The member of kinship 1 must be the application's titular.
void verificaRudenie(const BD& bd, qint64 cerereId, const QVariant& membruId1)
{
    Rezultat r = bd.selecteaza(
        QStringLiteral("SELECT MembruID FROM CereriMembrii WHERE RudenieID = 1 AND CerereID = ?"), {cerereId});
    if (!r.next() || r.valoare(0).toLongLong() != membruId1.toLongLong())
        Mesaj(QStringLiteral("Titularul nu corespunde cu Rudenia"));
}

Rezultat membru(const BD& bd, const QString& conditie, const QVariantList& param)
{
    return bd.selecteaza(
        QStringLiteral("SELECT * FROM Membrii AS M INNER JOIN CereriMembrii AS CM ON M.MembruID=CM.MembruID "
                       "WHERE ") +
            conditie,
        param);
}

} // namespace

QString TextCamp(const QVariant& v)
{
    if (v.isNull() || !v.isValid())
        return {};
    if (v.typeId() == QMetaType::Double)
        return TextNumar(v.toDouble());
    return v.toString();
}

void CapPrimarie(const Creion& c, const SursaFormular& src)
{
    int tip = 0;
    if (src.bd) {
        const QVariant v = src.bd->scalar(QStringLiteral("SELECT TipLocalitate FROM DatePrimarie"));
        tip = v.isValid() ? v.toInt() : 0;
    }
    static const char* tipuri[] = {"COMUNEI", "ORASULUI", "MUNICIPIULUI"};
    c.linie(0, 0, 169, 0, true);
    c.tnr(12, true);
    c.text(0, 8,
           QStringLiteral("PRIMARUL ") + (tip >= 1 && tip <= 3 ? QString::fromLatin1(tipuri[tip - 1]) : QString()) +
               QStringLiteral(" ......................................................................."));
    c.tnr(12);
    c.text(0, 20, QStringLiteral("Nr. ___________"));
    c.text(0, 27, QStringLiteral("Data __________"));
}

QString TipActFormular(const BD& bd, const QVariant& tip)
{
    if (tip.isNull())
        return {};
    const QVariant v = bd.scalar(QStringLiteral("SELECT Continut FROM DateGen WHERE Tip=28 AND DataID = ?"), {tip});
    if (!v.isValid()) {
        Mesaj(QStringLiteral("Pentru TipAct = %1 nu exista date in tabela DateGen. Sunati la 0700-555010")
                  .arg(tip.toString()));
        return {};
    }
    return TextCamp(v);
}

void PaginaDatePersonale(const Creion& c, const SursaFormular& src, bool completat, int tipFormular)
{
    if (tipFormular == FormularAncheta)
        CapAncheta(c, src);
    else
        cap1(c, src);
    cadru(c, Pagina1, false);
    if (!completat)
        return;
    const BD& bd = *src.bd;
    c.date(75, 8, TextCamp(bd.scalar(QStringLiteral("SELECT Localitate FROM DatePrimarie"))));
    Rezultat cerere = bd.selecteaza(QStringLiteral("SELECT * FROM Cereri WHERE CerereID = ?"), {src.cerereId});
    if (!cerere.next())
        return;
    Rezultat familie =
        bd.selecteaza(QStringLiteral("SELECT * FROM Familii WHERE FamilieID = ?"), {cerere["FamilieID"]});
    const bool areFamilie = familie.next();
    Rezultat titular =
        membru(bd, QStringLiteral("CM.MembruID = ? AND CM.CerereID = ?"), {cerere["MembruID1"], src.cerereId});
    if (!titular.next()) {
        Mesaj(QStringLiteral("Cererea selectata nu are titular"));
        return;
    }
    const QString nr = cerere.text("NrCerere");
    const QDate data = DataDinBD(cerere["DataCerere"]);
    c.date(14, 20, nr);
    c.date(14, 27, TextData(data));
    c.date(100, 42, nr);
    if (!EsteDataZero(data))
        c.date(134, 42, TextData(data, QLatin1Char(' ')));
    datePersoana(c, bd, titular, areFamilie ? &familie : nullptr, Pagina1);
    verificaRudenie(bd, src.cerereId, cerere["MembruID1"]);
}

void PaginaPartener(const Creion& c, const SursaFormular& src, bool completat)
{
    cap2(c);
    cadru(c, Pagina2, true);
    if (!completat)
        return;
    const BD& bd = *src.bd;
    Rezultat cerere = bd.selecteaza(QStringLiteral("SELECT * FROM Cereri WHERE CerereID = ?"), {src.cerereId});
    if (!cerere.next())
        return;
    const int repr = int(cerere.numar("ReprLegal"));
    if (const Marcaj* x = gaseste(MarcajeReprLegal, repr))
        c.marcaj(x->x, x->y, QStringLiteral("X"));
    verificaRudenie(bd, src.cerereId, cerere["MembruID1"]);
    Rezultat partener = membru(bd, QStringLiteral("RudenieID=2 AND CerereID = ?"), {src.cerereId});
    if (!partener.next())
        return;
    Rezultat familie =
        bd.selecteaza(QStringLiteral("SELECT * FROM Familii WHERE FamilieID = ?"), {cerere["FamilieID"]});
    const bool areFamilie = familie.next();
    datePersoana(c, bd, partener, areFamilie ? &familie : nullptr, Pagina2);
}
