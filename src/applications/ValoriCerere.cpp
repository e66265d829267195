#include "applications/ValoriCerere.h"

#include "amounts/Cuantum.h"
#include "applications/RegulaVenituriLocuinta.h"
#include "common/Bani.h"
#include "database/Schema.h"
#include "database/ValoriColoane.h"
#include "database/ValoriPermise.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QSet>

namespace {

// A JSON value as the column check takes it.
QVariant dinJson(const QJsonValue& v)
{
    if (v.isString())
        return v.toString();
    if (v.isDouble())
        return v.toDouble();
    return QVariant();
}

// Every key of `o` that is a column of one of `tabele` (the first that has it); the refusal of
// the first that does not fit, with `unde` ahead of it.
QString verificaObiect(const ValoriPermise& permise, const QJsonObject& o, const QStringList& tabele,
                       const QString& unde)
{
    for (auto it = o.begin(); it != o.end(); ++it) {
        // The key as the schema writes it in one of the tables, else in another case.
        const QString cheie = it.key();
        const QString* tabela = nullptr;
        const Camp* camp = nullptr;
        for (const QString& t : tabele)
            for (const Camp& c : GasesteTabela(t)->campuri)
                if (!camp && c.nume == cheie) {
                    tabela = &t;
                    camp = &c;
                }
        for (const QString& t : tabele)
            if (!camp && (camp = GasesteCamp(t, cheie)))
                tabela = &t;
        if (!camp)
            continue;
        const ValoareVerificata v = permise.verifica(unde, *tabela, camp->nume, dinJson(it.value()));
        if (!v.ok())
            return v.refuz;
    }
    return QString();
}

// A computed amount as the save stores it: rounded to four decimals; a text too large for
// money stays as it is, for the column check to refuse.
QVariant laPatruZecimale(const QString& text)
{
    const std::optional<Bani> b = Bani::citeste(text);
    return b ? QVariant(b->text()) : QVariant(text);
}

} // namespace

VerificareCerere VerificaValoriCerere(const ValoriPermise& permise, const Cerere& c)
{
    struct Valoare {
        const char* tabela;
        const char* coloana;
        QVariant valoare;
        CampCerere camp;
    };
    std::vector<Valoare> valori{
        {"Familii", "NrDosar", c.NrDosar, CampCerere::NrDosar},
        {"Cereri", "NrCerere", c.NrCerere, CampCerere::NrCerere},
        {"Cereri", "VenitTotal", c.VenitTotal, CampCerere::VenitTotal},
        // The income per member is computed, and kept to the column's four decimals.
        {"Cereri", "VenitpeMembru", laPatruZecimale(c.VenitpeMembru), CampCerere::VenitPeMembru},
        {"Cereri", "NrCopii", c.NrCopii, CampCerere::NrCopii},
        {"Cereri", "LuniRetro", c.LuniRetro, CampCerere::LuniRetro},
        {"Cereri", "NrMembrii", qint64(c.Membrii.size()), CampCerere::ListaMembri},
        {"Cereri", "ReprLegal", c.ReprLegal, CampCerere::ReprLegal},
        {"Cereri", "ModPlata", c.ModPlata, CampCerere::ModPlata},
        {"Cereri", "TipCerere", c.TipCerere, CampCerere::TipCerere},
        {"Cereri", "Stare", c.Stare, CampCerere::Stare},
        {"Cereri", "Gospodarire", c.Gospodarire, CampCerere::Venituri},
        {"Cereri", "LunaGospod", c.LunaGospod, CampCerere::Venituri},
        {"Cereri", "GospodLoc", c.GospodLoc, CampCerere::Locuinta},
        {"Cereri", "RegimJuridLoc", c.RegimJuridLoc, CampCerere::Locuinta},
        {"Cereri", "TipIncalzire", c.TipIncalzire, CampCerere::Locuinta},
        {"Cereri", "TipLocuinta", c.TipLocuinta, CampCerere::Locuinta},
    };
    for (const LocuintaCerere& l : c.Locuinte) {
        if (!l.folosita)
            continue;
        valori.push_back({"Locuinte", "NrCamere", l.NrCamere, CampCerere::Locuinta});
        valori.push_back({"Locuinte", "Suprafata", l.Suprafata, CampCerere::Locuinta});
    }
    for (const MembruCerere& m : c.Membrii) {
        for (const auto& [col, v] : std::initializer_list<std::pair<const char*, int>>{{"RudenieID", m.RudenieID},
                                                                                       {"CetatenieID", m.CetatenieID},
                                                                                       {"ResedintaID", m.ResedintaID},
                                                                                       {"StCivila", m.StCivila},
                                                                                       {"Studii", m.Studii},
                                                                                       {"DrAsSociala", m.DrAsSociala},
                                                                                       {"OcupatieID", m.OcupatieID},
                                                                                       {"Stare", m.Stare}})
            valori.push_back({"CereriMembrii", col, v, CampCerere::ListaMembri});
        valori.push_back({"Membrii", "TipAct", m.TipAct, CampCerere::ListaMembri});
        for (const AdeverintaMembru& a : m.Adeverinte)
            valori.push_back({"Adeverinte", "TipAdeverinta", a.TipAdeverinta, CampCerere::ListaMembri});
    }
    for (const Valoare& v : valori) {
        const ValoareVerificata r =
            permise.verifica(QString(), QLatin1String(v.tabela), QLatin1String(v.coloana), v.valoare);
        if (!r.ok())
            return VerificareCerere::refuza(r.refuz, v.camp);
    }
    return VerificareCerere::bine();
}

QString VerificaCeluleVenituri(const QStringList& celule, int* rand)
{
    for (int i = 0; i < celule.size(); ++i) {
        const QString m = ValoareInAfaraColoanei(QStringLiteral("Venituri"), QStringLiteral("Valoare"), celule[i]);
        if (!m.isEmpty()) {
            if (rand)
                *rand = i;
            return QStringLiteral("Codul %1: ").arg(i + 1) + m;
        }
    }
    return QString();
}

QString VerificaValoriImport(const ValoriPermise& permise, int nr, const QJsonObject& e)
{
    const QString element = QStringLiteral("Elementul %1").arg(nr);
    QString m = verificaObiect(permise, e, {QStringLiteral("Familii"), QStringLiteral("Cereri")}, element);
    if (!m.isEmpty())
        return m;

    const QJsonObject venituri = e[QLatin1String("Venituri")].toObject();
    VenituriCerere v{};
    for (auto it = venituri.begin(); it != venituri.end(); ++it) {
        // Where the value comes from heads a refusal; made only when there is one.
        ValoareVerificata x =
            permise.verifica(QString(), QStringLiteral("Venituri"), QStringLiteral("CodVenit"), it.key());
        if (x.ok())
            x = permise.verifica(QString(), QStringLiteral("Venituri"), QStringLiteral("Valoare"), dinJson(it.value()));
        if (!x.ok())
            return QStringLiteral("%1, venitul de pe codul %2: ").arg(element, it.key()) + x.refuz;
        const int cod = it.key().toInt();
        if (cod >= 1 && cod <= NrCoduriVenit)
            v[static_cast<std::size_t>(cod - 1)] = Bani::dinDouble(it.value().toDouble());
    }
    if (!SumaVenituri(v))
        return element + QStringLiteral(": ") + MesajTotalVenituriPreaMare;

    int k = 0;
    QSet<int> coduriLocuinta;
    for (const QJsonValue& l : e[QLatin1String("Locuinte")].toArray()) {
        const QString unde = QStringLiteral("%1, locuinta %2").arg(element).arg(++k);
        m = verificaObiect(permise, l.toObject(), {QStringLiteral("Locuinte")}, unde);
        if (!m.isEmpty())
            return m;
        // The housing editor has one box for each kind: a kind given twice would keep only one.
        const int cod = l[QLatin1String("Cod")].toInt();
        if (coduriLocuinta.contains(cod))
            return unde +
                   QStringLiteral(": felul de locuinta Cod %1 apare de doua ori in element. Corectati!").arg(cod);
        coduriLocuinta.insert(cod);
    }

    k = 0;
    for (const QJsonValue& mv : e[QLatin1String("Membrii")].toArray()) {
        const QJsonObject mo = mv.toObject();
        const QString unde = QStringLiteral("%1, membrul %2").arg(element).arg(++k);
        m = verificaObiect(permise, mo, {QStringLiteral("Membrii"), QStringLiteral("CereriMembrii")}, unde);
        if (!m.isEmpty())
            return m;
        int j = 0;
        for (const QJsonValue& a : mo[QLatin1String("Adeverinte")].toArray()) {
            m = verificaObiect(permise, a.toObject(), {QStringLiteral("Adeverinte")},
                               QStringLiteral("%1, adeverinta %2").arg(unde).arg(++j));
            if (!m.isEmpty())
                return m;
        }
    }
    return QString();
}
