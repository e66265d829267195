#include "import/ImportCereri.h"

#include "database/BlocareRetea.h"
#include "applications/Cerere.h"
#include "amounts/CNP.h"
#include "amounts/Cuantum.h"
#include "applications/RegulaMembru.h"
#include "applications/RegulaVenituriLocuinta.h"
#include "applications/SalveazaCerere.h"
#include "applications/ValoriCerere.h"
#include "database/BD.h"
#include "database/Schema.h"
#include "database/ValoriPermise.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Text.h"

#include <QDeadlineTimer>
#include <QJsonValue>
#include <QSet>
#include <QThread>
#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

const QString CheieVenituri = QStringLiteral("Venituri");
const QString CheieLocuinte = QStringLiteral("Locuinte");
const QString CheieMembrii = QStringLiteral("Membrii");
const QString CheieAdeverinte = QStringLiteral("Adeverinte");

// The keys an element may hold: the fields of the application editor and of its sub-editors,
// each named after its column. The rest of the columns the save computes or no window writes.
const QStringList CheiCerere{QStringLiteral("NrDosar"),
                             QStringLiteral("Judet"),
                             QStringLiteral("Localitate"),
                             QStringLiteral("Strada"),
                             QStringLiteral("Nr"),
                             QStringLiteral("Bloc"),
                             QStringLiteral("Sc"),
                             QStringLiteral("Ap"),
                             QStringLiteral("Telefon"),
                             QStringLiteral("Mobil"),
                             QStringLiteral("NrCerere"),
                             QStringLiteral("DataCerere"),
                             QStringLiteral("Stare"),
                             QStringLiteral("MotivStare"),
                             QStringLiteral("DataStare"),
                             QStringLiteral("TipCerere"),
                             QStringLiteral("ReprLegal"),
                             QStringLiteral("ModPlata"),
                             QStringLiteral("NumeTitularCont"),
                             QStringLiteral("Cont"),
                             QStringLiteral("Banca"),
                             QStringLiteral("Gospodarire"),
                             QStringLiteral("LunaGospod"),
                             QStringLiteral("GospodLoc"),
                             QStringLiteral("RegimJuridLoc"),
                             QStringLiteral("TipIncalzire"),
                             QStringLiteral("TipLocuinta"),
                             QStringLiteral("Bife"),
                             QStringLiteral("LuniRetro")};
const QStringList CheiMembru{QStringLiteral("Nume"),          QStringLiteral("Prenume"),
                             QStringLiteral("CNP"),           QStringLiteral("TipAct"),
                             QStringLiteral("SerieBI"),       QStringLiteral("NrBI"),
                             QStringLiteral("Eliberat"),      QStringLiteral("DataElib"),
                             QStringLiteral("RudenieID"),     QStringLiteral("CetatenieID"),
                             QStringLiteral("TaraCetatenie"), QStringLiteral("ResedintaID"),
                             QStringLiteral("LocResedinta"),  QStringLiteral("TaraResedinta"),
                             QStringLiteral("StCivila"),      QStringLiteral("Studii"),
                             QStringLiteral("DrAsSociala"),   QStringLiteral("OcupatieID"),
                             QStringLiteral("LucreazaAfara"), QStringLiteral("UScolara"),
                             QStringLiteral("Clasa"),         QStringLiteral("RealizeazaVenit"),
                             QStringLiteral("Data18Ani"),     QStringLiteral("Motiv"),
                             QStringLiteral("Stare"),         QStringLiteral("MotivStare"),
                             QStringLiteral("DataStare")};
const QStringList CheiAdeverinta{QStringLiteral("TipAdeverinta"), QStringLiteral("NrAdev"),
                                 QStringLiteral("DataAdeverinta"), QStringLiteral("DataExpAdev"),
                                 QStringLiteral("DataDepunerii")};
const QStringList CheiLocuinta{QStringLiteral("Cod"), QStringLiteral("NrCamere"), QStringLiteral("Suprafata")};
// The columns whose values the save computes: a value given for them would be dropped.
const QStringList CheiCalculate{
    QStringLiteral("CerereID"),   QStringLiteral("FamilieID"),    QStringLiteral("MembruID"),
    QStringLiteral("MembruID1"),  QStringLiteral("MembruID2"),    QStringLiteral("AdevID"),
    QStringLiteral("Cuantum"),    QStringLiteral("NrCopii"),      QStringLiteral("NrMembrii"),
    QStringLiteral("VenitTotal"), QStringLiteral("VenitpeMembru")};

// ---------------------------------------------------------------------------------------------
// The shape of the file

// The columns that an object may name, with their kinds.
QHash<QString, TipCamp> coloane(const QStringList& tabele)
{
    QHash<QString, TipCamp> c;
    for (const QString& t : tabele)
        if (const Tabela* tab = GasesteTabela(t))
            for (const Camp& camp : tab->campuri)
                c.insert(camp.nume, camp.tip);
    return c;
}

bool esteData(const QJsonValue& v)
{
    if (v.isNull())
        return true;
    if (!v.isString())
        return false;
    const QString s = v.toString();
    return s.isEmpty() || (s.size() == 10 && QDate::fromString(s, Qt::ISODate).isValid());
}

// Why a value does not fit its column, "" when it does.
QString formaValoare(const QJsonValue& v, TipCamp tip)
{
    switch (tip) {
    case TipCamp::Text:
    case TipCamp::Memo: return v.isString() || v.isDouble() || v.isNull() ? QString() : QStringLiteral("un text");
    case TipCamp::Data: return esteData(v) ? QString() : QStringLiteral("o data \"AAAA-LL-ZZ\"");
    case TipCamp::DaNu: return v.isBool() || v.isDouble() || v.isNull() ? QString() : QStringLiteral("true sau false");
    default: return v.isDouble() || v.isNull() ? QString() : QStringLiteral("un numar");
    }
}

// Where a value stands in the file ("Elementul 3, membrul 2"), put into words only when a
// message names it: the check of a large file makes none of these texts.
struct Loc {
    const Loc* parinte;
    const char* fel;
    int nr;
    QString text() const { return (parinte ? parinte->text() : QString()) + QLatin1String(fel) + QString::number(nr); }
};

// Every key of `o` is one of `chei` (or of `speciale`), with a value of its column's kind.
QString formaObiect(const QJsonObject& o, const QHash<QString, TipCamp>& col, const QStringList& chei,
                    const QSet<QString>& speciale, const Loc& unde)
{
    for (auto it = o.begin(); it != o.end(); ++it) {
        // The key is made into a text once: each it.key() makes it again.
        const QString cheie = it.key();
        if (speciale.contains(cheie))
            continue;
        const auto c = col.constFind(cheie);
        if (CheiCalculate.contains(cheie))
            return QStringLiteral("%1: cheia \"%2\" este calculata de program la salvare si nu se importa; "
                                  "scoateti-o din fisier.")
                .arg(unde.text(), cheie);
        if (c != col.constEnd() && !chei.contains(cheie))
            return QStringLiteral("%1: cheia \"%2\" nu se importa: nicio fereastra a programului nu o scrie; "
                                  "scoateti-o din fisier.")
                .arg(unde.text(), cheie);
        if (c == col.constEnd())
            return QStringLiteral("%1: cheia \"%2\" nu este o coloana cunoscuta.").arg(unde.text(), cheie);
        const QString asteptat = formaValoare(it.value(), *c);
        if (!asteptat.isEmpty())
            return QStringLiteral("%1: \"%2\" trebuie sa fie %3.").arg(unde.text(), cheie, asteptat);
    }
    return QString();
}

bool intregIntre(const QJsonValue& v, int min, int max)
{
    if (!v.isDouble())
        return false;
    const double d = v.toDouble();
    return std::floor(d) == d && d >= min && d <= max;
}

QString formaElement(const QJsonObject& e, const Loc& loc)
{
    static const QHash<QString, TipCamp> colCerere = coloane({QStringLiteral("Familii"), QStringLiteral("Cereri")});
    static const QHash<QString, TipCamp> colMembru =
        coloane({QStringLiteral("Membrii"), QStringLiteral("CereriMembrii")});
    static const QHash<QString, TipCamp> colAdev = coloane({QStringLiteral("Adeverinte")});
    static const QSet<QString> listeCerere{CheieVenituri, CheieLocuinte, CheieMembrii};
    static const QSet<QString> listeMembru{CheieAdeverinte};

    QString m = formaObiect(e, colCerere, CheiCerere, listeCerere, loc);
    if (!m.isEmpty())
        return m;

    if (e.contains(CheieVenituri)) {
        if (!e[CheieVenituri].isObject())
            return QStringLiteral("%1: \"Venituri\" trebuie sa fie un obiect cod -> valoare.").arg(loc.text());
        const QJsonObject v = e[CheieVenituri].toObject();
        for (auto it = v.begin(); it != v.end(); ++it) {
            bool ok = false;
            const int cod = it.key().toInt(&ok);
            // One way only to write a code: "04" and "4" would both be code 4, the last winning.
            if (!ok || cod < 1 || cod > NrCoduriVenit || it.key() != QString::number(cod))
                return QStringLiteral("%1: codul de venit \"%2\" nu exista (1..80).").arg(loc.text(), it.key());
            if (!it.value().isDouble())
                return QStringLiteral("%1: venitul de pe codul %2 trebuie sa fie un numar.").arg(loc.text(), it.key());
        }
    }

    if (e.contains(CheieLocuinte)) {
        if (!e[CheieLocuinte].isArray())
            return QStringLiteral("%1: \"Locuinte\" trebuie sa fie un tablou.").arg(loc.text());
        int k = 0;
        for (const QJsonValue& lv : e[CheieLocuinte].toArray()) {
            const Loc u{&loc, ", locuinta ", ++k};
            if (!lv.isObject())
                return u.text() + QStringLiteral(": trebuie sa fie un obiect.");
            const QJsonObject l = lv.toObject();
            for (auto it = l.begin(); it != l.end(); ++it) {
                if (!CheiLocuinta.contains(it.key()))
                    return QStringLiteral("%1: cheia \"%2\" nu este cunoscuta.").arg(u.text(), it.key());
            }
            if (!intregIntre(l[QStringLiteral("Cod")], 1, NrLocuinte))
                return u.text() + QStringLiteral(": \"Cod\" trebuie sa fie un numar intreg intre 1 si 8.");
            if (l.contains(QStringLiteral("NrCamere")) && !intregIntre(l[QStringLiteral("NrCamere")], 0, 255))
                return u.text() + QStringLiteral(": \"NrCamere\" trebuie sa fie un numar intreg intre 0 si 255.");
            if (l.contains(QStringLiteral("Suprafata")) && !l[QStringLiteral("Suprafata")].isDouble())
                return u.text() + QStringLiteral(": \"Suprafata\" trebuie sa fie un numar.");
        }
    }

    if (e.contains(CheieMembrii)) {
        if (!e[CheieMembrii].isArray())
            return QStringLiteral("%1: \"Membrii\" trebuie sa fie un tablou.").arg(loc.text());
        int k = 0;
        for (const QJsonValue& mv : e[CheieMembrii].toArray()) {
            const Loc u{&loc, ", membrul ", ++k};
            if (!mv.isObject())
                return u.text() + QStringLiteral(": trebuie sa fie un obiect.");
            const QJsonObject mo = mv.toObject();
            m = formaObiect(mo, colMembru, CheiMembru, listeMembru, u);
            if (!m.isEmpty())
                return m;
            if (!mo.contains(CheieAdeverinte))
                continue;
            if (!mo[CheieAdeverinte].isArray())
                return u.text() + QStringLiteral(": \"Adeverinte\" trebuie sa fie un tablou.");
            int j = 0;
            for (const QJsonValue& av : mo[CheieAdeverinte].toArray()) {
                const Loc ua{&u, ", adeverinta ", ++j};
                if (!av.isObject())
                    return ua.text() + QStringLiteral(": trebuie sa fie un obiect.");
                m = formaObiect(av.toObject(), colAdev, CheiAdeverinta, {}, ua);
                if (!m.isEmpty())
                    return m;
            }
        }
    }
    return QString();
}

// ---------------------------------------------------------------------------------------------
// From JSON to the editor's model

QString text(const QJsonObject& o, const char* cheie)
{
    const QJsonValue v = o[QLatin1String(cheie)];
    if (v.isString())
        return v.toString();
    if (v.isDouble())
        return TextNumar(v.toDouble());
    return QString();
}

// A whole number; the value checks have made sure that it is one, within its column.
int numar(const QJsonObject& o, const char* cheie)
{
    const QJsonValue v = o[QLatin1String(cheie)];
    return v.isDouble() ? static_cast<int>(v.toDouble()) : 0;
}

bool daNu(const QJsonObject& o, const char* cheie)
{
    const QJsonValue v = o[QLatin1String(cheie)];
    return v.isBool() ? v.toBool() : v.toDouble() != 0;
}

QDate data(const QJsonObject& o, const char* cheie)
{
    return QDate::fromString(o[QLatin1String(cheie)].toString(), Qt::ISODate);
}

bool are(const QJsonObject& o, const char* cheie)
{
    const QJsonValue v = o[QLatin1String(cheie)];
    return !v.isUndefined() && !v.isNull();
}

MembruCerere membru(const QJsonObject& o)
{
    MembruCerere m;
    m.Nume = text(o, "Nume").trimmed();
    m.Prenume = text(o, "Prenume").trimmed();
    m.CNP = text(o, "CNP").trimmed();
    m.TipAct = numar(o, "TipAct");
    m.SerieBI = text(o, "SerieBI");
    m.NrBI = text(o, "NrBI");
    m.Eliberat = text(o, "Eliberat");
    m.DataElib = data(o, "DataElib");
    m.RudenieID = numar(o, "RudenieID");
    m.CetatenieID = numar(o, "CetatenieID");
    m.TaraCetatenie = text(o, "TaraCetatenie");
    m.ResedintaID = numar(o, "ResedintaID");
    m.LocResedinta = text(o, "LocResedinta");
    m.TaraResedinta = text(o, "TaraResedinta");
    m.StCivila = numar(o, "StCivila");
    m.Studii = numar(o, "Studii");
    m.DrAsSociala = numar(o, "DrAsSociala");
    m.OcupatieID = numar(o, "OcupatieID");
    m.LucreazaAfara = daNu(o, "LucreazaAfara");
    m.UScolara = text(o, "UScolara");
    m.Clasa = text(o, "Clasa");
    m.RealizeazaVenit = daNu(o, "RealizeazaVenit");
    m.Data18Ani = data(o, "Data18Ani");
    m.Motiv = text(o, "Motiv");
    m.Stare = numar(o, "Stare");
    m.MotivStare = text(o, "MotivStare");
    m.DataStare = data(o, "DataStare");
    for (const QJsonValue& av : o[CheieAdeverinte].toArray()) {
        const QJsonObject a = av.toObject();
        AdeverintaMembru x;
        x.TipAdeverinta = numar(a, "TipAdeverinta");
        x.NrAdev = text(a, "NrAdev");
        x.DataAdeverinta = data(a, "DataAdeverinta");
        x.DataExpAdev = data(a, "DataExpAdev");
        x.DataDepunerii = data(a, "DataDepunerii");
        m.Adeverinte.push_back(std::move(x));
    }
    return m;
}

Cerere cerere(const QJsonObject& e)
{
    Cerere c;
    c.Adaug = 1;
    c.NrDosar = text(e, "NrDosar");
    c.Judet = text(e, "Judet");
    c.Localitate = text(e, "Localitate");
    c.Strada = text(e, "Strada");
    c.Nr = text(e, "Nr");
    c.Bloc = text(e, "Bloc");
    c.Sc = text(e, "Sc");
    c.Ap = text(e, "Ap");
    c.Telefon = text(e, "Telefon");
    c.Mobil = text(e, "Mobil");
    c.NrCerere = text(e, "NrCerere");
    c.DataCerere = data(e, "DataCerere");
    c.Stare = numar(e, "Stare");
    c.MotivStare = text(e, "MotivStare");
    c.DataStare = data(e, "DataStare");
    c.TipCerere = numar(e, "TipCerere");
    c.ReprLegal = numar(e, "ReprLegal");
    c.ModPlata = numar(e, "ModPlata");
    c.NumeTitularCont = text(e, "NumeTitularCont");
    c.Cont = text(e, "Cont");
    c.Banca = text(e, "Banca");
    c.Gospodarire = numar(e, "Gospodarire");
    c.LunaGospod = numar(e, "LunaGospod");
    c.GospodLoc = numar(e, "GospodLoc");
    c.RegimJuridLoc = numar(e, "RegimJuridLoc");
    c.TipIncalzire = numar(e, "TipIncalzire");
    c.TipLocuinta = numar(e, "TipLocuinta");
    c.Bife = text(e, "Bife");
    c.LuniRetro = text(e, "LuniRetro");

    const QJsonObject v = e[CheieVenituri].toObject();
    for (auto it = v.begin(); it != v.end(); ++it)
        c.Venituri[static_cast<std::size_t>(it.key().toInt() - 1)] = Bani::dinDouble(it.value().toDouble());
    // The income total is what the income editor gives.
    c.VenitTotal = SumaVenituri(c.Venituri).value_or(Bani()).text();

    for (const QJsonValue& lv : e[CheieLocuinte].toArray()) {
        const QJsonObject l = lv.toObject();
        LocuintaCerere& x = c.Locuinte[static_cast<std::size_t>(numar(l, "Cod") - 1)];
        x.folosita = true;
        x.NrCamere = numar(l, "NrCamere");
        x.Suprafata = l[QStringLiteral("Suprafata")].toDouble();
    }
    return c;
}

// The member editor, as an officer fills it in: the CNP is typed first (its check and the
// known person), then the rest, then OK.
bool adaugaMembru(const BD& bd, Cerere& c, const QJsonObject& o, int an)
{
    MembruCerere m = membru(o);
    // The CNP's check, then the person's row when the CNP is known: for the warning that the
    // person is on an application, and for what the element leaves out. The save finds the
    // person by the CNP again, inside its transaction.
    const bool valid = ValidareCNP(m.CNP.trimmed(), true);
    static const char* const DinPersoana[] = {"Nume", "Prenume", "TipAct", "SerieBI", "NrBI", "Eliberat", "DataElib"};
    const bool deCompletat =
        m.CNP.size() == 13 && !CNPInLista(c.Membrii, m.CNP, -1) &&
        std::any_of(std::begin(DinPersoana), std::end(DinPersoana), [&o](const char* k) { return !are(o, k); });
    // Most persons of an import are new: their key is looked for first, the whole row only
    // when there is one.
    const bool cunoscut = (valid || deCompletat) && MembruIdDupaCNP(bd, m.CNP);
    if (valid && cunoscut)
        AvertizareCNPPeCerere(bd, m.CNP, 1, 0);
    const std::optional<PersoanaGasita> p =
        deCompletat && cunoscut ? PersoanaDupaCNP(bd, m.CNP) : std::optional<PersoanaGasita>();
    if (p) {
        // A known person: what the element leaves out comes from the person's row.
        m.MembruID = p->MembruID;
        if (!are(o, "Nume"))
            m.Nume = p->Nume;
        if (!are(o, "Prenume"))
            m.Prenume = p->Prenume;
        if (!are(o, "TipAct"))
            m.TipAct = p->TipAct;
        if (!are(o, "SerieBI"))
            m.SerieBI = p->SerieBI;
        if (!are(o, "NrBI"))
            m.NrBI = p->NrBI;
        if (!are(o, "Eliberat"))
            m.Eliberat = p->Eliberat;
        if (!are(o, "DataElib"))
            m.DataElib = p->DataElib;
    }
    CompleteazaData18Ani(m, an);
    if (!VerificaMembru(c.Membrii, m, -1).ok())
        return false;
    c.Membrii.push_back(std::move(m));
    return true;
}

RezultatImport importaElement(BD& bd, const ValoriPermise& permise, int nr, const QJsonObject& e, int an,
                              const OptiuniImport& o)
{
    RezultatImport r;
    MesajeColectate mesaje;
    MesajeTemporare canal(mesaje);
    try {
        // A value that its column or its list would not keep as it is refuses the element
        // before anything is read.
        if (const QString d = VerificaValoriImport(permise, nr, e); !d.isEmpty()) {
            Mesaj(d);
            r.mesaje = mesaje.texte;
            return r;
        }
        Cerere c = cerere(e);
        bool membriBuni = true;
        for (const QJsonValue& mv : e[CheieMembrii].toArray())
            if (!(membriBuni = adaugaMembru(bd, c, mv.toObject(), an)))
                break;
        if (membriBuni) {
            const QString cod80 = VerificaVenituri(c.Venituri);
            if (!cod80.isEmpty()) {
                Mesaj(cod80);
            } else {
                c.NrMembrii = QString::number(c.Membrii.size());
                RecalculVenitPeMembru(c);
                // The child count that the editor shows once the members are in; the save
                // stores it and tells the amount's messages itself.
                {
                    MesajeColectate deja;
                    MesajeTemporare liniste(deja);
                    RecalculCuantum(bd, c, an);
                }

                OptiuniSalvare os;
                os.verificaCale = false;
                os.retea = o.retea;
                os.folderBlocare = o.folderBlocare;
                os.anActiv = an;
                os.motivIstoric = QStringLiteral("Import cerere");
                os.permise = &permise;
                const int inainte = static_cast<int>(mesaje.texte.size());
                QDeadlineTimer termen(bd.asteptare());
                RezultatSalvare s;
                for (;;) {
                    s = SalveazaCerere(bd, c, os);
                    // Another workstation holds the lock file: wait a little and press OK
                    // again. The database itself waits inside each statement.
                    if (s.stare != RezultatSalvare::Stare::Blocat || termen.hasExpired())
                        break;
                    while (mesaje.texte.size() > inainte)
                        mesaje.texte.removeLast();
                    QThread::msleep(20);
                }
                if (s.stare == RezultatSalvare::Stare::Blocat)
                    throw Eroare(CodEroare::BazaOcupata, MesajBlocareRetea, QStringLiteral("import-cereri"));
                if (s.stare == RezultatSalvare::Stare::Eroare && OpresteLucrul(s.numarEroare))
                    throw Eroare(s.numarEroare, s.descriere, QStringLiteral("import-cereri"));
                if (s.salvat()) {
                    r.salvat = true;
                    r.cerereId = s.cerereId;
                    r.cuantum = s.cuantum;
                }
            }
        }
    } catch (const Eroare& err) {
        if (OpresteLucrul(err.numar))
            throw;
        Mesaj(err.text());
    } catch (const std::exception& err) {
        Mesaj(QStringLiteral("Eroare: ") + QString::fromLocal8Bit(err.what()));
    }
    r.mesaje = mesaje.texte;
    return r;
}

} // namespace

QString VerificaFormaImport(const QJsonArray& cereri)
{
    int i = 0;
    for (const QJsonValue& v : cereri) {
        const Loc unde{nullptr, "Elementul ", ++i};
        if (!v.isObject())
            return unde.text() + QStringLiteral(" nu este un obiect JSON.");
        const QString m = formaElement(v.toObject(), unde);
        if (!m.isEmpty())
            return m;
    }
    return QString();
}

ImportPeRand::ImportPeRand(BD& bd, int an, const OptiuniImport& optiuni)
    : m_bd(bd), m_an(an), m_optiuni(optiuni), m_permise(std::make_unique<ValoriPermise>(bd))
{
}

ImportPeRand::~ImportPeRand() = default;

RezultatImport ImportPeRand::importa(const QJsonObject& element)
{
    const int nr = ++m_nr;
    RezultatImport r;
    try {
        r = importaElement(m_bd, *m_permise, nr, element, m_an, m_optiuni);
    } catch (const Eroare& e) {
        throw Eroare(e.numar,
                     QStringLiteral("%1 Importul s-a oprit la elementul %2, care nu a fost salvat; "
                                    "elementele de dupa el nu au fost incercate.")
                         .arg(e.descriere)
                         .arg(nr),
                     QStringLiteral("import-cereri"));
    }
    r.element = nr;
    return r;
}

std::vector<RezultatImport> ImportaCereri(BD& bd, const QJsonArray& cereri, int an,
                                          const std::function<void(const RezultatImport&)>& peElement,
                                          const OptiuniImport& optiuni)
{
    const QString forma = VerificaFormaImport(cereri);
    if (!forma.isEmpty())
        throw Eroare(3000, forma + QStringLiteral(" Nu s-a importat nimic."), QStringLiteral("import-cereri"));
    std::vector<RezultatImport> rez;
    rez.reserve(static_cast<std::size_t>(cereri.size()));
    ImportPeRand import(bd, an, optiuni);
    for (const QJsonValue& e : cereri) {
        RezultatImport r = import.importa(e.toObject());
        if (peElement)
            peElement(r);
        rez.push_back(std::move(r));
    }
    return rez;
}

QJsonObject JsonRezultatImport(const RezultatImport& r)
{
    QJsonObject o;
    o.insert(QStringLiteral("element"), r.element);
    o.insert(QStringLiteral("salvat"), r.salvat);
    o.insert(QStringLiteral("CerereID"), r.salvat ? QJsonValue(r.cerereId) : QJsonValue());
    o.insert(QStringLiteral("Cuantum"), r.salvat ? QJsonValue(r.cuantum.toDouble()) : QJsonValue());
    o.insert(QStringLiteral("mesaje"), QJsonArray::fromStringList(r.mesaje));
    return o;
}
