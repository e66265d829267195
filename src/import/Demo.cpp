#include "import/Demo.h"

#include "amounts/Cuantum.h"
#include "import/DemoPlan.h"
#include "import/ImportCereri.h"
#include "applications/RegulaMembru.h"
#include "database/BD.h"
#include "decisions/Ancheta.h"
#include "registers/DatePrimarie.h"
#include "decisions/Dispozitie.h"
#include "decisions/ValabilitateAncheta.h"
#include "history/IstoricCereri.h"
#include "common/Ceas.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QDate>
#include <QDir>
#include <QJsonObject>
#include <QRandomGenerator>

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_map>

namespace {
// The town hall's social worker, who also makes the inquiries.
const QString AsistentSocialDemo = QStringLiteral("Ana Exemplu");
} // namespace

QString CNPInventat(int cifraSex, const QDate& nastere, int judet, int serie)
{
    QString s = QStringLiteral("%1%2%3%4%5%6")
                    .arg(cifraSex)
                    .arg(nastere.year() % 100, 2, 10, QLatin1Char('0'))
                    .arg(nastere.month(), 2, 10, QLatin1Char('0'))
                    .arg(nastere.day(), 2, 10, QLatin1Char('0'))
                    .arg(judet, 2, 10, QLatin1Char('0'))
                    .arg(serie % 1000, 3, 10, QLatin1Char('0'));
    static const int ponderi[12] = {2, 7, 9, 1, 4, 6, 3, 5, 8, 2, 7, 9};
    int suma = 0;
    for (int i = 0; i < 12; ++i)
        suma += (s[i].unicode() - '0') * ponderi[i];
    int c = suma % 11;
    if (c == 10)
        c = 1;
    return s + QString::number(c);
}

QJsonArray GenereazaCereriDemo(int n, unsigned seed)
{
    QJsonArray cereri;
    for (const CerereDemo& c : PlanDemo(n, seed, Ceas::azi()))
        cereri.append(c.element);
    return cereri;
}

void ScrieDatePrimarieDemo(BD& bd)
{
    DatePrimarie d;
    d.texte = {QStringLiteral("Primaria Orasului Tarnaveni (date demonstrative)"),
               QStringLiteral("4323365"),
               QStringLiteral("MS"),
               QStringLiteral("Mures"),
               QStringLiteral("Tarnaveni"),
               QStringLiteral("Piata Primariei"),
               QStringLiteral("1"),
               QStringLiteral("Ion Exemplu"),
               QStringLiteral("Maria Exemplu"),
               AsistentSocialDemo,
               CNPInventat(2, QDate(1980, 1, 1), 26, 1),
               QStringLiteral("Tarnaveni"),
               QStringLiteral("545600")};
    d.TipLocalitate = 2;
    SalveazaDatePrimarie(bd, d);
}

namespace {

// The streets and villages, as the office keeps them with their post offices.
void scrieStrazi(BD& bd)
{
    for (const StradaDemo& s : StraziDemo())
        bd.executa(QStringLiteral("INSERT INTO Strazi (StradaID, Denumire, LocalitateID, OfPostal, CodPostal) "
                                  "VALUES (?, ?, 1, ?, ?)"),
                   {bd.urmatoareaCheie(QStringLiteral("Strazi"), QStringLiteral("StradaID")),
                    QString::fromLatin1(s.denumire), QString::fromLatin1(s.ofPostal),
                    QString::fromLatin1(s.codPostal)});
}

// The amount the family had before its income changed: the same computation on the income
// per member of then.
Bani cuantumAnterior(const BD& bd, const CerereDemo& c, int an)
{
    std::vector<MembruCerere> membri;
    for (const auto& [cnp, ocupatie] : c.membri) {
        MembruCerere m;
        m.CNP = cnp;
        m.OcupatieID = ocupatie;
        CompleteazaData18Ani(m, an);
        membri.push_back(std::move(m));
    }
    return CalculCuantum(bd, membri, c.venitPeMembruAnterior, c.element[QStringLiteral("TipCerere")].toInt(), an)
        .cuantum;
}

// A disposition waiting for its number, kept small: an office of a hundred thousand
// applications holds nearly twice as many of them until the last application is in.
struct DispozitieDeScris {
    QDate data;
    qint64 cerereId = 0;
    int actiune = 0;
    QString motiv; // one of a few texts, shared
    Bani suma;
    std::optional<Bani> sumaNoua;
    qint64 id = 0; // DispozitieID, once saved

    Bani cuantumDupa() const { return sumaNoua ? *sumaNoua : suma; }

    DateDispozitie date(int nr) const
    {
        DateDispozitie x;
        x.cerereId = cerereId;
        x.nrDisp = QString::number(nr);
        x.dataDisp = data;
        x.luna = data.month();
        x.an = QString::number(data.year());
        x.actiune = actiune;
        x.motiv = motiv;
        x.suma = suma.text();
        if (sumaNoua)
            x.sumaNoua = sumaNoua->text();
        return x;
    }
};

// The dispositions of an application as the editor would fill them in: the type of the
// decision, the month it takes effect from (that of its date, never before the application),
// the application's amount in the box the editor puts it, the former amount of a change.
void dispozitii(const BD& bd, const CerereDemo& c, qint64 cerereId, Bani cuantum, int an,
                std::vector<DispozitieDeScris>& rez)
{
    const Bani anterior = c.venitPeMembruAnterior.isEmpty() ? cuantum : cuantumAnterior(bd, c, an);
    for (const DecizieDemo& d : c.decizii) {
        DispozitieDeScris x{d.data, cerereId, d.actiune, d.motiv, cuantum, std::nullopt};
        // A grant before a change or an ending gave the former amount.
        if (d.actiune == 1 && (c.stare == 4 || c.stare == 7))
            x.suma = anterior;
        if (d.actiune == 2) {
            x.suma = anterior;
            x.sumaNoua = cuantum;
        }
        rez.push_back(std::move(x));
    }
}

// The social inquiries, made by the town hall's social worker, with the validity the editor
// computes from the members' CNPs. An inquiry that would have no child left is not made.
void anchete(BD& bd, const CerereDemo& c, qint64 cerereId, QRandomGenerator& r)
{
    static const QStringList bunuri{QStringLiteral("televizor, frigider, aragaz"),
                                    QStringLiteral("televizor, frigider, masina de spalat, calculator"),
                                    QStringLiteral("mobilier minim, aragaz")};
    static const QStringList igiena{QStringLiteral("corespunzatoare"), QStringLiteral("bune"),
                                    QStringLiteral("satisfacatoare")};
    QStringList cnpuri;
    for (const auto& m : c.membri)
        cnpuri << m.first;
    for (const QDate& d : c.anchete) {
        const Valabilitate v = CalculeazaValabilitate(d, cnpuri);
        if (v.incetata())
            continue;
        DateAncheta a;
        a.cerereId = cerereId;
        a.data = d;
        a.intocmitor = AsistentSocialDemo;
        a.tipLocuinta = c.tipLocuinta;
        a.regimJuridic = c.regimJuridic;
        a.tipLocuire = 1 + r.bounded(3);
        a.tipDetinere = c.regimJuridic == 1 ? 1 : 2;
        a.nrCamere = QString::number(c.nrCamere);
        a.suprUtila = QString::number(c.suprafata);
        a.bunuri = bunuri[r.bounded(bunuri.size())];
        a.igiena = igiena[r.bounded(igiena.size())];
        a.teren =
            c.tipLocuinta == 3 ? QStringLiteral("nu") : QStringLiteral("gradina %1 mp").arg(100 + 50 * r.bounded(10));
        a.cladiri = c.regimJuridic == 1 && c.tipLocuinta != 3 ? QStringLiteral("casa de locuit") : QStringLiteral("nu");
        a.stareSanatate = r.bounded(8) == 0 ? QStringLiteral("un membru cu boala cronica") : QStringLiteral("buna");
        a.nevoi = QStringLiteral("nu este cazul");
        SalveazaAncheta(bd, 1, a, v);
    }
}

// An application as the history needs it once it is saved: its key, its day and the status
// its last disposition leaves it in.
struct CerereScrisa {
    qint64 id = 0;
    QDate dataCerere;
    int stare = 0;
};

// The history of the office as its clerks wrote it, day by day: each application registered
// on its day with status 1, then each disposition on the day it was signed, in effect from its
// month, with the status its type decides (the last one the application's own: a change of
// holder is a change disposition with status 8), every row after the one before it. The rows
// that the import and the saves wrote, all on the day the office is made, give way to these.
void scrieIstoricDemo(const BD& bd, const std::vector<CerereScrisa>& cereri,
                      const std::vector<DispozitieDeScris>& dispozitii)
{
    struct Eveniment {
        QDate zi;
        QDate dinData;
        SchimbareCerere schimbare;
    };
    // The dispositions of each application, in the order they were signed (the list is).
    std::unordered_map<qint64, std::vector<const DispozitieDeScris*>> aleCererii;
    for (const DispozitieDeScris& d : dispozitii)
        aleCererii[d.cerereId].push_back(&d);
    // A few reasons, each text made once and shared by every row that gives it.
    const QString cerereNoua = QStringLiteral("Cerere noua");
    std::map<int, QString> motive;
    const auto motiv = [&](int actiune) -> const QString& {
        auto it = motive.find(actiune);
        if (it == motive.end())
            it = motive.emplace(actiune, QStringLiteral("Dispozitie (tip %1)").arg(actiune)).first;
        return it->second;
    };
    static const std::vector<const DispozitieDeScris*> niciuna;
    std::vector<Eveniment> evenimente;
    for (const CerereScrisa& c : cereri) {
        const std::optional<ValoriActuale> acum = CitesteValoriActuale(bd, c.id);
        if (!acum)
            continue;
        const auto gasite = aleCererii.find(c.id);
        const auto& ale = gasite == aleCererii.end() ? niciuna : gasite->second;
        SchimbareCerere s;
        s.cerereId = c.id;
        s.stare = 1;
        s.cuantum = ale.empty() ? acum->cuantum : ale.front()->cuantumDupa();
        s.nrCopii = acum->nrCopii;
        s.motiv = cerereNoua;
        evenimente.push_back({c.dataCerere, c.dataCerere, s});
        for (const DispozitieDeScris* d : ale) {
            s.stareVeche = s.stare;
            s.cuantumVechi = s.cuantum;
            s.nrCopiiVechi = s.nrCopii;
            s.stare = d == ale.back() ? c.stare : StareDinActiune(d->actiune);
            s.cuantum = d->cuantumDupa();
            s.dispozitieId = d->id;
            s.motiv = motiv(d->actiune);
            evenimente.push_back({d->data, QDate(d->data.year(), d->data.month(), 1), s});
        }
    }
    std::stable_sort(evenimente.begin(), evenimente.end(),
                     [](const Eveniment& a, const Eveniment& b) { return a.zi < b.zi; });
    bd.executa(QStringLiteral("DELETE FROM IstoricCereri"));
    for (const Eveniment& e : evenimente)
        ScrieIstoric(bd, e.schimbare, e.dinData, e.zi);
}

} // namespace

void CompleteazaDemo(const QString& folder, int n, const QString& server)
{
    BD bd;
    bd.deschideOficiu(folder, server);
    // The whole demo is one transaction: a page cache that holds it spares re-reading pages
    // that were just written (64 MB; the default is 2 MB).
    if (bd.motor() == BD::Motor::SQLite)
        bd.executa(QStringLiteral("PRAGMA cache_size = -65536"));
    const QDate azi = Ceas::azi();
    const int an = azi.year();

    // One outer transaction: each application is still its own savepoint, and the file is
    // written once at the end instead of once per application. The applications are made,
    // imported and let go one at a time: an office of any size takes the same memory.
    Tranzactie t(bd);
    ScrieDatePrimarieDemo(bd);
    scrieStrazi(bd);
    int nesalvate = 0;
    QString primaProblema;
    std::vector<DispozitieDeScris> deScris;
    std::vector<CerereScrisa> scrise;
    scrise.reserve(std::size_t(n));
    QRandomGenerator r(SamantaDemo);
    GeneratorDemo plan(SamantaDemo, azi);
    ImportPeRand import(bd, an);
    for (int i = 0; i < n; ++i) {
        const CerereDemo c = plan.urmatoarea();
        const RezultatImport x = import.importa(c.element);
        if (!x.salvat) {
            ++nesalvate;
            if (primaProblema.isEmpty())
                primaProblema = x.mesaje.join(QStringLiteral("; "));
            continue;
        }
        scrise.push_back({x.cerereId, c.dataCerere, c.stare});
        dispozitii(bd, c, x.cerereId, x.cuantum, an, deScris);
        anchete(bd, c, x.cerereId, r);
    }
    if (nesalvate)
        throw Eroare(
            3000,
            QStringLiteral("%1 cereri demonstrative nu au putut fi salvate: %2").arg(nesalvate).arg(primaProblema),
            QStringLiteral("init --demo"));

    // The dispositions in the order they were signed, numbered from 1 each year.
    std::stable_sort(deScris.begin(), deScris.end(),
                     [](const DispozitieDeScris& a, const DispozitieDeScris& b) { return a.data < b.data; });
    int anNumar = 0, numar = 0;
    for (DispozitieDeScris& d : deScris) {
        if (d.data.year() != anNumar) {
            anNumar = d.data.year();
            numar = 0;
        }
        d.id = SalveazaDispozitie(bd, 1, d.date(++numar));
    }
    scrieIstoricDemo(bd, scrise, deScris);
    t.confirma();
}
