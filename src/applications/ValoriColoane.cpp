#include "applications/ValoriColoane.h"

#include "applications/Cuantum.h"
#include "applications/RegulaVenituriLocuinta.h"
#include "common/Bani.h"
#include "common/Mesaje.h"
#include "common/Text.h"
#include "database/Schema.h"

#include <QJsonArray>
#include <QJsonValue>

#include <cfloat>
#include <cmath>

namespace {

struct Interval {
    double minim;
    double maxim;
};

std::optional<Interval> intervalIntreg(TipCamp tip)
{
    switch (tip) {
    case TipCamp::Octet: return Interval{0, 255};
    case TipCamp::Intreg: return Interval{-32768, 32767};
    case TipCamp::Lung: return Interval{-2147483648.0, 2147483647.0};
    default: return std::nullopt;
    }
}

const Camp* gasesteCamp(const QString& tabela, const QString& coloana)
{
    if (const Tabela* t = GasesteTabela(tabela))
        for (const Camp& c : t->campuri)
            if (c.nume.compare(coloana, Qt::CaseInsensitive) == 0)
                return &c;
    return nullptr;
}

QString textValoare(const QVariant& v)
{
    if (v.typeId() == QMetaType::Double)
        return QString::number(v.toDouble(), 'g', 17);
    return v.toString().trimmed();
}

QString mesajInterval(const QString& camp, const QVariant& v, const QString& minim, const QString& maxim)
{
    return QStringLiteral("Valoarea %1 nu incape in campul %2, care primeste numere intre %3 si %4. Corectati!")
        .arg(textValoare(v), camp, minim, maxim);
}

QString mesajText(const QString& camp, qsizetype lungime, int maxim)
{
    return QStringLiteral("Textul din campul %1 are %2 caractere, iar campul primeste cel mult %3. Corectati!")
        .arg(camp)
        .arg(lungime)
        .arg(maxim);
}

bool esteText(const QVariant& v)
{
    return v.typeId() == QMetaType::QString;
}

QString inAfara(const Camp& c, const QVariant& v)
{
    if (v.isNull() || !v.isValid())
        return QString();
    switch (c.tip) {
    case TipCamp::Octet:
    case TipCamp::Intreg:
    case TipCamp::Lung: {
        const Interval i = *intervalIntreg(c.tip);
        const double d = std::round(esteText(v) ? ValoareNumerica(v.toString()) : v.toDouble());
        if (std::isfinite(d) && d >= i.minim && d <= i.maxim)
            return QString();
        return mesajInterval(c.nume, v, QString::number(i.minim, 'f', 0), QString::number(i.maxim, 'f', 0));
    }
    case TipCamp::Moneda: {
        const bool incape = esteText(v) ? Bani::citeste(v.toString()).has_value()
                                        : Bani::dinDoubleExact(v.toDouble()).has_value();
        return incape ? QString() : mesajInterval(c.nume, v, Bani::minim().text(), Bani::maxim().text());
    }
    case TipCamp::Simplu:
    case TipCamp::Dublu: {
        const double d = esteText(v) ? ValoareNumerica(v.toString()) : v.toDouble();
        const double maxim = c.tip == TipCamp::Simplu ? double(FLT_MAX) : DBL_MAX;
        if (std::isfinite(d) && std::abs(d) <= maxim)
            return QString();
        return mesajInterval(c.nume, v, QString::number(-maxim, 'g', 8), QString::number(maxim, 'g', 8));
    }
    case TipCamp::Text: {
        const int marime = c.marime > 0 ? c.marime : 255;
        const QString t = esteText(v) ? v.toString() : TextNumar(v.toDouble());
        return t.size() <= marime ? QString() : mesajText(c.nume, t.size(), marime);
    }
    case TipCamp::Data:
    case TipCamp::DaNu:
    case TipCamp::Memo:
        break;
    }
    return QString();
}

// A JSON value as the column check takes it.
QVariant dinJson(const QJsonValue& v)
{
    if (v.isString())
        return v.toString();
    if (v.isDouble())
        return v.toDouble();
    return QVariant();
}

// Every key of `o` that is a column of one of `tabele` (the first that has it); the message of
// the first that does not fit, with `unde` ahead of it.
QString verificaObiect(const QJsonObject& o, const QStringList& tabele, const QString& unde)
{
    for (auto it = o.begin(); it != o.end(); ++it) {
        for (const QString& t : tabele) {
            if (!gasesteCamp(t, it.key()))
                continue;
            const QString m = ValoareInAfaraColoanei(t, it.key(), dinJson(it.value()));
            if (!m.isEmpty())
                return unde + m;
            break;
        }
    }
    return QString();
}

} // namespace

QString ValoareInAfaraColoanei(const QString& tabela, const QString& coloana, const QVariant& valoare)
{
    const Camp* c = gasesteCamp(tabela, coloana);
    Q_ASSERT_X(c, "ValoareInAfaraColoanei", "column not in the schema");
    return c ? inAfara(*c, valoare) : QString();
}

Verificare VerificaValoriCerere(const Cerere& c)
{
    struct Valoare {
        const char* tabela;
        const char* coloana;
        QVariant valoare;
        const char* control;
    };
    std::vector<Valoare> valori{
        {"Familii", "NrDosar", c.NrDosar, "txtCerere(0)"},
        {"Cereri", "NrCerere", c.NrCerere, "txtCerere(1)"},
        {"Cereri", "VenitTotal", c.VenitTotal, "txtCerere(12)"},
        {"Cereri", "VenitpeMembru", c.VenitpeMembru, "txtCerere(13)"},
        {"Cereri", "NrCopii", c.NrCopii, "txtCerere(16)"},
        {"Cereri", "LuniRetro", c.LuniRetro, "txtCerere(22)"},
        {"Cereri", "NrMembrii", qint64(c.Membrii.size()), "lvw"},
        {"Cereri", "ReprLegal", c.ReprLegal, "cboCerere(1)"},
        {"Cereri", "ModPlata", c.ModPlata, "cboCerere(2)"},
        {"Cereri", "TipCerere", c.TipCerere, "cboCerere(3)"},
        {"Cereri", "Stare", c.Stare, "cboCerere(4)"},
        {"Cereri", "Gospodarire", c.Gospodarire, "cmdVenit"},
        {"Cereri", "LunaGospod", c.LunaGospod, "cmdVenit"},
        {"Cereri", "GospodLoc", c.GospodLoc, "cmdLocuinta"},
        {"Cereri", "RegimJuridLoc", c.RegimJuridLoc, "cmdLocuinta"},
        {"Cereri", "TipIncalzire", c.TipIncalzire, "cmdLocuinta"},
        {"Cereri", "TipLocuinta", c.TipLocuinta, "cmdLocuinta"},
    };
    for (const LocuintaCerere& l : c.Locuinte) {
        if (!l.folosita)
            continue;
        valori.push_back({"Locuinte", "NrCamere", l.NrCamere, "cmdLocuinta"});
        valori.push_back({"Locuinte", "Suprafata", l.Suprafata, "cmdLocuinta"});
    }
    for (const MembruCerere& m : c.Membrii) {
        for (const auto& [col, v] : std::initializer_list<std::pair<const char*, int>>{
                 {"RudenieID", m.RudenieID}, {"CetatenieID", m.CetatenieID}, {"ResedintaID", m.ResedintaID},
                 {"StCivila", m.StCivila}, {"Studii", m.Studii}, {"DrAsSociala", m.DrAsSociala},
                 {"OcupatieID", m.OcupatieID}, {"Stare", m.Stare}})
            valori.push_back({"CereriMembrii", col, v, "lvw"});
        valori.push_back({"Membrii", "TipAct", m.TipAct, "lvw"});
        for (const AdeverintaMembru& a : m.Adeverinte)
            valori.push_back({"Adeverinte", "TipAdeverinta", a.TipAdeverinta, "lvw"});
    }
    for (const Valoare& v : valori) {
        const QString m = ValoareInAfaraColoanei(QLatin1String(v.tabela), QLatin1String(v.coloana), v.valoare);
        if (!m.isEmpty())
            return Verificare::esec(m, QLatin1String(v.control));
    }
    return Verificare::bine();
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

QString VerificaValoriImport(const QJsonObject& e)
{
    const QStringList cerere{QStringLiteral("Familii"), QStringLiteral("Cereri")};
    QString m = verificaObiect(e, cerere, QString());
    if (!m.isEmpty())
        return m;

    const QJsonObject venituri = e[QLatin1String("Venituri")].toObject();
    VenituriCerere v{};
    for (auto it = venituri.begin(); it != venituri.end(); ++it) {
        m = ValoareInAfaraColoanei(QStringLiteral("Venituri"), QStringLiteral("Valoare"), dinJson(it.value()));
        if (!m.isEmpty())
            return QStringLiteral("Venitul de pe codul %1: ").arg(it.key()) + m;
        const int cod = it.key().toInt();
        if (cod >= 1 && cod <= NrCoduriVenit)
            v[static_cast<std::size_t>(cod - 1)] = Bani::dinDouble(it.value().toDouble());
    }
    if (!SumaVenituri(v))
        return MesajTotalVenituriPreaMare;

    int k = 0;
    for (const QJsonValue& l : e[QLatin1String("Locuinte")].toArray()) {
        m = verificaObiect(l.toObject(), {QStringLiteral("Locuinte")}, QStringLiteral("Locuinta %1: ").arg(++k));
        if (!m.isEmpty())
            return m;
    }

    k = 0;
    for (const QJsonValue& mv : e[QLatin1String("Membrii")].toArray()) {
        const QJsonObject mo = mv.toObject();
        const QString unde = QStringLiteral("Membrul %1: ").arg(++k);
        m = verificaObiect(mo, {QStringLiteral("Membrii"), QStringLiteral("CereriMembrii")}, unde);
        if (!m.isEmpty())
            return m;
        int j = 0;
        for (const QJsonValue& a : mo[QLatin1String("Adeverinte")].toArray()) {
            m = verificaObiect(a.toObject(), {QStringLiteral("Adeverinte")},
                               unde + QStringLiteral("adeverinta %1: ").arg(++j));
            if (!m.isEmpty())
                return m;
        }
    }
    return QString();
}
