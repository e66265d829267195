#include "database/ListeCod.h"

#include "database/BD.h"
#include "common/Data.h"
#include "common/Eroare.h"

#include <QFile>

#include <cmath>

namespace {

struct Lista {
    const char* denumire;
    int tip;
    std::vector<const char*> etichete; // DataID 1, 2, ... in order
};

// The labels agree with the codes that the logic compares: occupation 8 and 11 count as
// children, 8 and 9 are pupils; relationship 1 is the applicant, 2 the spouse, 3 to 5 the
// children; the dwelling kinds of list 4 are the housing boxes of the application.
const std::vector<Lista>& liste()
{
    static const std::vector<Lista> l = {
        {"STATUT", 1, {"Inregistrata", "Aprobata", "Suspendata", "Incetata", "Respinsa", "Repusa in plata"}},
        {"RUDENIE",
         2,
         {"Titular", "Sot/sotie", "Fiu/fiica", "Copil adoptat (incredintat in vederea adoptiei)",
          "Copil in plasament (tutela/curatela)"}},
        {"OCUPATIE",
         3,
         {"Salariat", "Independent", "Somer", "Lucrator ocazional", "Pensionar", "Casnic(a)", "Fara loc de munca",
          "Elev", "Student", "Lucrator agricol", "Copil prescolar (sub varsta scolara)", "Altele"}},
        {"LOCUINTA",
         4,
         {"Casa cu curte", "Casa fara curte", "Apartament la bloc", "Locuinta sociala", "Locuinta de serviciu",
          "Locuinta de necesitate", "Institutionalizat", "Nu are locuinta"}},
        {"REGIMJURIDIC", 5, {"Proprietate personala", "In inchiriere public/privat", "Alte situatii"}},
        {"INCALZIRE",
         6,
         {"Energie termica in sistem centralizat", "Gaze naturale", "Lemne, carbuni, combustibili petrolieri"}},
        {"LOCUIRE", 7, {"Singur(a)", "Impreuna cu alta(e) persoana(e)", "Impreuna cu alta(e) familie(i)"}},
        {"DETINERE", 8, {"in proprietate", "in folosinta"}},
        {"RESEDINTA", 11, {"Nu are resedinta in afara Romaniei", "Are resedinta in afara Romaniei"}},
        {"MODPLATA", 12, {"Mandat postal", "In cont bancar", "Casierie"}},
        {"TIPDISPOZITIE", 20, {"Acordare", "Modificare cuantum", "Suspendare", "Respingere", "Incetare", "Reluare"}},
        {"STARECIVILA",
         21,
         {"Necasatorit(a)", "Casatorit(a)", "Divortat(a)", "Vaduv(a)", "Despartit(a) in fapt", "Uniune consensuala"}},
        {"STUDII", 22, {"Fara studii", "Generale", "Medii", "Superioare"}},
        {"DRASSOCIALA", 24, {"NU", "DA, din Romania", "DA, din alte tari"}},
        {"CETATENIE", 25, {"Romana", "Alta"}},
        {"GOSPODARESTE",
         26,
         {"Singura", "Impreuna cu alta(e) persoana(e) singura(e)", "Impreuna cu alta(e) familie(i)"}},
        {"REPRLEGAL", 27, {"Al familiei mele", "Al persoanei indreptatite"}},
        {"ACTIDENTITATE", 28, {"BI", "CI", "CIP", "P", "CN", "PSTL", "PST", "DI", "CR", "CRP"}},
        {"TIPLOCUINTA", 29, {"TIP A", "TIP B"}},
        {"TIPACT",
         30,
         {"AJOFM (somaj)", "Finante", "de la scoala (pt elevi)", "medicala (pt scutire de munca)", "Pensie",
          "venit net"}},
        {"RESEDINTA_DISP", 31, {"CU DOMICILIU IN", "CU RESEDINTA IN", "CARE LOCUIESTE IN"}},
    };
    return l;
}

std::vector<RandDateGen> construiesteDateGen()
{
    std::vector<RandDateGen> r;
    for (const Lista& l : liste()) {
        int id = 0;
        for (const char* e : l.etichete) {
            ++id;
            r.push_back({QString::fromLatin1(l.denumire), l.tip, id, QString::fromLatin1(e), id});
        }
    }
    // Two statuses added later share the place 7 of the list.
    r.push_back({QStringLiteral("STATUT"), 1, 7, QStringLiteral("MODIFICARE CUANTUM"), 7});
    r.push_back({QStringLiteral("STATUT"), 1, 8, QStringLiteral("SCHIMBARE TITULAR"), 7});
    return r;
}

std::vector<RandBarem> baremFractii()
{
    const double t[4][5] = {
        {1, 0.4, 0.06, 0.12, 0.18}, {1, 0.74, 0.05, 0.1, 0.15}, {2, 0.4, 0.1, 0.2, 0.3}, {2, 0.74, 0.09, 0.18, 0.27}};
    const double patru[4] = {0.24, 0.2, 0.4, 0.36};
    std::vector<RandBarem> r;
    for (int i = 0; i < 4; ++i)
        for (int n = 1; n <= 4; ++n)
            r.push_back({int(t[i][0]), QStringLiteral("COMPLEMENTAR"), n, n < 4 ? t[i][1 + n] : patru[i], t[i][1]});
    return r;
}

std::vector<RandBarem> baremLei()
{
    // The lei rows: the same fractions times the reference value; the tier 200 is the fraction
    // 0.4 of it and the tier 370 the fraction 0.74.
    std::vector<RandBarem> r;
    for (const RandBarem& f : baremFractii()) {
        RandBarem b = f;
        b.barem = std::round(f.barem * ValoareReferinta * 10000.0) / 10000.0;
        b.suma = std::round(f.suma * ValoareReferinta);
        b.descriere = f.tip == 1 ? QStringLiteral("COMPLEMENTAR") : QStringLiteral("MONOPARENTAL");
        r.push_back(b);
    }
    return r;
}

} // namespace

const std::vector<RandDateGen>& RanduriDateGen()
{
    static const std::vector<RandDateGen> r = construiesteDateGen();
    return r;
}

const std::vector<RandBarem>& RanduriBaremFractii()
{
    static const std::vector<RandBarem> r = baremFractii();
    return r;
}

const std::vector<RandBarem>& RanduriBaremLei()
{
    static const std::vector<RandBarem> r = baremLei();
    return r;
}

const std::vector<std::pair<int, QString>>& TipuriActeIdentitate()
{
    static const std::vector<std::pair<int, QString>> r = [] {
        std::vector<std::pair<int, QString>> v;
        for (const RandDateGen& d : RanduriDateGen())
            if (d.tip == 28)
                v.emplace_back(d.dataId, d.continut);
        return v;
    }();
    return r;
}

QStringList LiniiFisierSemanat(const QString& numeFisier)
{
    Q_INIT_RESOURCE(office);
    QFile f(QStringLiteral(":/office/") + numeFisier);
    if (!f.open(QIODevice::ReadOnly))
        throw Eroare(53, QStringLiteral("Fisierul %1 lipseste din program.").arg(numeFisier), QStringLiteral("init"));
    QStringList l = QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'));
    for (QString& s : l)
        s = s.trimmed();
    while (!l.isEmpty() && l.last().isEmpty())
        l.removeLast();
    return l;
}

void SeamanaListe(const BD& bd)
{
    for (const RandDateGen& d : RanduriDateGen())
        bd.executa(
            QStringLiteral("INSERT INTO DateGen (Denumire, Tip, DataID, Continut, Ordine) VALUES (?, ?, ?, ?, ?)"),
            {d.denumire, d.tip, d.dataId, d.continut, d.ordine});

    const QVariant inceput = DataPentruBD(QDate(2012, 1, 1));
    auto barem = [&](const RandBarem& b) {
        bd.executa(QStringLiteral(
                       "INSERT INTO Barem (Tip, Descriere, NrPers, Barem, Suma, PerPers, BaremPerPers, DataInceput) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                   {b.tip, b.descriere, b.nrPers, b.barem, b.suma, false, 0, inceput});
    };
    for (const RandBarem& b : RanduriBaremFractii())
        barem(b);
    for (const RandBarem& b : RanduriBaremLei())
        barem(b);

    const QStringList venituri = LiniiFisierSemanat(QStringLiteral("Venituri.txt"));
    for (int i = 0; i < venituri.size(); ++i)
        bd.executa(QStringLiteral("INSERT INTO ListaVenituri (CodVenit, Denumire) VALUES (?, ?)"),
                   {i + 1, venituri[i]});
    const QStringList bife = LiniiFisierSemanat(QStringLiteral("bife.txt"));
    for (int i = 0; i < bife.size(); ++i)
        bd.executa(QStringLiteral("INSERT INTO Bife (NrBifa, Denumire) VALUES (?, ?)"), {i + 1, bife[i]});

    for (const auto& [id, nume] : TipuriActeIdentitate())
        bd.executa(QStringLiteral("INSERT INTO TipuriActe (TipActID, DenScurt) VALUES (?, ?)"), {id, nume});

    for (int an = 2009; an <= 2035; ++an)
        for (int luna = 1; luna <= 12; ++luna)
            bd.executa(QStringLiteral("INSERT INTO StatePlata (An, Luna) VALUES (?, ?)"), {an, luna});
}
