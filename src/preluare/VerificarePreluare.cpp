// The reading and the checks of the move: each table of the old file mapped to the program's
// table, each value checked against its column, each key once, each parent present.
#include "preluare/Preluare.h"

#include "amounts/CNP.h"
#include "database/ActualizareBD.h"
#include "database/BD.h"
#include "database/Schema.h"
#include "database/ValoriColoane.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Text.h"

#include <QDir>
#include <QHash>
#include <QJsonValue>
#include <QSet>

#include <cmath>
#include <optional>

namespace {

const QSet<int> StariPlata = {2, 6, 7, 8};

QString textJson(const QJsonValue& v)
{
    if (v.isString())
        return v.toString();
    if (v.isDouble())
        return TextNumar(v.toDouble());
    if (v.isBool())
        return v.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    return QString();
}

// A number as the old file gives it: a JSON number, or a text that is wholly a number.
std::optional<double> numarJson(const QJsonValue& v)
{
    if (v.isDouble())
        return v.toDouble();
    if (v.isString()) {
        bool ok = false;
        const double d = v.toString().trimmed().toDouble(&ok);
        if (ok)
            return d;
    }
    return std::nullopt;
}

// "YYYY-MM-DD" or "YYYY-MM-DD HH:MM:SS", the forms of mdb-json's dates.
bool formaData(const QString& d)
{
    static const char forma[] = "0000-00-00 00:00:00";
    if (d.size() != 10 && d.size() != 19)
        return false;
    for (qsizetype i = 0; i < d.size(); ++i)
        if (forma[i] == '0' ? !d[i].isDigit() : d[i] != QLatin1Char(forma[i]))
            return false;
    return true;
}

int zecimale(const QString& text)
{
    const qsizetype punct = text.indexOf(QLatin1Char('.'));
    if (punct < 0)
        return 0;
    qsizetype n = 0;
    while (punct + 1 + n < text.size() && text[punct + 1 + n].isDigit())
        ++n;
    return int(n);
}

// The value of `v` as the column `c` stores it, in `out`; the reason when it cannot be stored
// exactly (a date mdbtools could not read, a value that does not fit the column).
QString valoare(const Camp& c, const QJsonValue& v, QVariant& out)
{
    out = QVariant();
    if (v.isNull() || v.isUndefined())
        return QString();
    switch (c.tip) {
    case TipCamp::Data: {
        const QString t = textJson(v);
        const QString d = t.trimmed();
        if (formaData(d) && (d.mid(5, 2) == QLatin1String("00") || d.mid(8, 2) == QLatin1String("00")))
            return QStringLiteral("data din campul %1 (\"%2\") nu a putut fi citita de mdbtools: este inainte de "
                                  "1900 sau dupa 9999")
                .arg(c.nume, t);
        const QDate data = formaData(d) ? QDate::fromString(d.left(10), Qt::ISODate) : QDate();
        if (!data.isValid())
            return QStringLiteral("campul %1 primeste o data, iar randul are \"%2\"").arg(c.nume, t);
        out = DataPentruBD(data);
        return QString();
    }
    case TipCamp::DaNu:
        if (v.isBool()) {
            out = v.toBool();
            return QString();
        }
        if (const auto n = numarJson(v); n && (*n == 0 || *n == 1 || *n == -1)) {
            out = *n != 0;
            return QString();
        }
        return QStringLiteral("campul %1 primeste Da sau Nu, iar randul are \"%2\"").arg(c.nume, textJson(v));
    case TipCamp::Text:
    case TipCamp::Memo: {
        const QString t = textJson(v);
        if (v.isBool() || v.isArray() || v.isObject())
            return QStringLiteral("campul %1 primeste un text, iar randul are %2").arg(c.nume, t);
        if (const QString m = ValoareInAfaraColoanei(c, t); !m.isEmpty())
            return m;
        out = t;
        return QString();
    }
    default: break;
    }

    const std::optional<double> n = numarJson(v);
    if (!n)
        return QStringLiteral("Valoarea \"%1\" din campul %2 nu este un numar.").arg(textJson(v), c.nume);
    if (const QString m = ValoareInAfaraColoanei(c, *n); !m.isEmpty())
        return m;
    switch (c.tip) {
    case TipCamp::Octet:
    case TipCamp::Intreg:
    case TipCamp::Lung:
        if (std::floor(*n) != *n)
            return QStringLiteral("Valoarea %1 din campul %2 nu este un numar intreg.").arg(textJson(v), c.nume);
        out = qint64(*n);
        return QString();
    case TipCamp::Moneda: {
        const QString t = v.isString() ? v.toString().trimmed() : QString();
        const std::optional<Bani> b = v.isString() ? Bani::citeste(t) : Bani::dinDoubleExact(*n);
        const bool exact =
            v.isString() ? zecimale(t) <= 4 : b && std::abs(b->toDouble() - *n) <= 1e-9 * std::max(1.0, std::abs(*n));
        if (!b || !exact)
            return QStringLiteral("Valoarea %1 din campul %2 are mai mult de patru zecimale.").arg(textJson(v), c.nume);
        out = b->variant();
        return QString();
    }
    default: out = *n; return QString();
    }
}

QString textCheie(const QVariant& v)
{
    return v.typeId() == QMetaType::Double ? TextNumar(v.toDouble()) : v.toString();
}

// One table of the old file on its way: the program's columns it holds, in the order of the
// schema, and the keys kept so far.
class TabelaInLucru {
public:
    TabelaInLucru(const Tabela& schema, TabelaPreluata& t) : m_schema(schema), m_t(t) {}

    // The columns of the rows, from the keys of every row: what mdb-json leaves out of a line
    // is NULL, so a column shows only in the rows that hold a value.
    void coloane(const std::vector<RandVechi>& randuri)
    {
        QSet<QString> vazute;
        for (const RandVechi& r : randuri)
            for (auto it = r.valori.begin(); it != r.valori.end(); ++it)
                vazute.insert(it.key());
        QStringList ordonate(vazute.begin(), vazute.end());
        ordonate.sort(Qt::CaseInsensitive);
        for (const QString& k : ordonate) {
            const QString dupa = ColoanaDupaActualizare(m_schema.nume, k);
            if (dupa.isEmpty()) {
                // A column that the upgrade deletes; the income once kept in two columns is
                // read for the total first.
                if (m_schema.nume == QLatin1String("Cereri") &&
                    (k.compare(QLatin1String("VenitPermanent"), Qt::CaseInsensitive) == 0 ||
                     k.compare(QLatin1String("VenitAlte"), Qt::CaseInsensitive) == 0)) {
                    m_venitVechi << k;
                }
                continue;
            }
            const Camp* c = GasesteCamp(m_schema.nume, dupa);
            if (!c) {
                m_t.coloaneLasate << k;
                continue;
            }
            m_surse.insert(c->nume, k);
        }
        m_recalcul = m_venitVechi.contains(QStringLiteral("VenitPermanent"), Qt::CaseInsensitive);
        for (const Camp& c : m_schema.campuri) {
            const bool venit = m_recalcul && c.nume == QLatin1String("VenitTotal");
            if (!m_surse.contains(c.nume) && !venit)
                continue;
            m_campuri.push_back({&c, m_surse.value(c.nume), venit});
            m_t.coloane << c.nume;
        }
        m_chei.clear();
        for (const QString& k : m_schema.cheiePrimara)
            m_chei.push_back(index(k));
    }

    int index(const QString& coloana) const { return int(m_t.coloane.indexOf(coloana)); }

    // The row as it will be written, or the reason it is refused.
    QString rand(const RandVechi& r, QVariantList& v) const
    {
        if (!r.eroare.isEmpty())
            return r.eroare;
        v.clear();
        v.reserve(m_campuri.size());
        for (const Sursa& s : m_campuri) {
            QVariant x;
            const QString m = s.venitTotal ? venitTotal(r, x) : valoare(*s.camp, r.valori.value(s.cheie), x);
            if (!m.isEmpty())
                return m;
            v << x;
        }
        return QString();
    }

    // The key of the row: its text, "" when the table has none; the reason when it is NULL.
    QString cheie(const QVariantList& v, QString& motiv) const
    {
        if (m_schema.cheiePrimara.isEmpty())
            return QString();
        QString cheie;
        for (size_t j = 0; j < m_chei.size(); ++j) {
            const int i = m_chei[j];
            if (i < 0 || v[i].isNull()) {
                motiv = QStringLiteral("randul nu are cheie (%1)").arg(m_schema.cheiePrimara[qsizetype(j)]);
                return QString();
            }
            cheie += (j ? QStringLiteral("/") : QString()) + textCheie(v[i]);
        }
        return cheie;
    }

    QString numeCheie() const { return m_schema.cheiePrimara.join(QLatin1Char('/')); }

private:
    // The upgrade's only migration of data: when the file still keeps the income in
    // VenitPermanent and VenitAlte, the total is their sum.
    QString venitTotal(const RandVechi& r, QVariant& x) const
    {
        static const Camp moneda{QStringLiteral("VenitTotal"), TipCamp::Moneda};
        Bani suma;
        for (const QString& k : m_venitVechi) {
            QVariant parte;
            const QString m = valoare(moneda, r.valori.value(k), parte);
            if (!m.isEmpty())
                return QString(m).replace(QLatin1String("VenitTotal"), k);
            const std::optional<Bani> s = suma.plus(Bani::dinVariant(parte));
            if (!s)
                return QStringLiteral("Suma %1 nu incape in campul VenitTotal.")
                    .arg(m_venitVechi.join(QLatin1Char('+')));
            suma = *s;
        }
        x = suma.variant();
        return QString();
    }

    const Tabela& m_schema;
    TabelaPreluata& m_t;
    QHash<QString, QString> m_surse; // the program's column -> the old file's key
    // A column written: its place in the schema and the old file's key that holds it, or the
    // total income made of the two old columns.
    struct Sursa {
        const Camp* camp;
        QString cheie;
        bool venitTotal;
    };
    QStringList m_venitVechi;
    bool m_recalcul = false;
    std::vector<Sursa> m_campuri;
    std::vector<int> m_chei; // the places of the key's columns
};

// The figures of the applications and persons, added up row by row.
struct Adunare {
    TotaluriPreluare t;

    void cerere(const QVariant& stare, const QVariant& tip, const QVariant& copii, const QVariant& cuantum)
    {
        ++t.cereriPeStare[stare.toInt()];
        if (!StariPlata.contains(stare.toInt()))
            return;
        TotalPlata& p = t.plataPeTip[tip.toInt()];
        ++p.familii;
        p.copii += copii.toLongLong();
        p.suma += Bani::dinVariant(cuantum);
    }

    void persoana(const QString& cnp, const QString& nume, const QString& prenume)
    {
        if (!ValidareCNP(cnp, false))
            t.cnpGresite << QStringLiteral("%1 %2 %3").arg(cnp, nume, prenume).trimmed();
    }

    TotaluriPreluare gata()
    {
        t.cnpGresite.sort();
        return t;
    }
};

QVariant celula(const TabelaPreluata& t, const QVariantList& v, const char* coloana)
{
    const qsizetype i = t.coloane.indexOf(QLatin1String(coloana));
    return i < 0 ? QVariant() : v[i];
}

TotaluriPreluare totaluri(const std::vector<TabelaPreluata>& tabele)
{
    Adunare a;
    for (const TabelaPreluata& t : tabele) {
        if (t.nume == QLatin1String("Cereri"))
            for (const QVariantList& v : t.randuri)
                a.cerere(celula(t, v, "Stare"), celula(t, v, "TipCerere"), celula(t, v, "NrCopii"),
                         celula(t, v, "Cuantum"));
        if (t.nume == QLatin1String("Membrii"))
            for (const QVariantList& v : t.randuri)
                a.persoana(celula(t, v, "CNP").toString(), celula(t, v, "Nume").toString(),
                           celula(t, v, "Prenume").toString());
    }
    return a.gata();
}

} // namespace

void CitesteSiVerifica(Preluare& p, const ProgresPreluare& progres)
{
    const QStringList vechi = TabeleSursa(p.sursa);
    QHash<QString, QString> dupaNume; // the program's table -> the old file's name
    for (const QString& t : vechi) {
        const Tabela* s = GasesteTabela(t);
        if (!s)
            p.tabeleLasate << t;
        else if (!dupaNume.contains(s->nume))
            dupaNume.insert(s->nume, t);
    }

    QStringList lipsa;
    for (const char* t : {"Familii", "Cereri", "Membrii", "CereriMembrii"})
        if (!dupaNume.contains(QLatin1String(t)))
            lipsa << QLatin1String(t);
    if (!lipsa.isEmpty())
        throw Eroare(
            IntrarePreluareGresita,
            QStringLiteral("%1 nu este o baza de date a programului vechi: ii lipsesc tabelele %2 (are %3).")
                .arg(QDir::toNativeSeparators(p.sursa.fel == SursaVeche::Fel::Access ? p.sursa.fisier : p.sursa.folder),
                     lipsa.join(QStringLiteral(", ")), vechi.join(QStringLiteral(", "))),
            QStringLiteral("preia"));

    // The keys kept of each table, for its children.
    QHash<QString, QSet<QString>> chei;
    int pas = 0;
    for (const Tabela& schema : TabeleOficiu()) {
        if (!dupaNume.contains(schema.nume))
            continue;
        if (progres)
            progres(++pas, int(dupaNume.size()), QStringLiteral("Se citeste tabela %1").arg(schema.nume));
        TabelaPreluata t;
        t.nume = schema.nume;
        t.numeVechi = dupaNume.value(schema.nume);
        std::vector<RandVechi> randuri;
        CitesteRanduri(p.sursa, t.numeVechi, [&](const RandVechi& r) { randuri.push_back(r); });
        t.citite = int(randuri.size());
        TabelaInLucru lucru(schema, t);
        lucru.coloane(randuri);

        QHash<QString, int> vazute; // key -> the row that holds it
        QSet<QString>& cheiTabela = chei[schema.nume];
        for (const RandVechi& r : randuri) {
            QVariantList v;
            QString motiv = lucru.rand(r, v);
            QString cheie;
            if (motiv.isEmpty())
                cheie = lucru.cheie(v, motiv);
            if (motiv.isEmpty() && !cheie.isEmpty()) {
                if (const auto it = vazute.constFind(cheie); it != vazute.constEnd())
                    motiv = QStringLiteral("cheia %1 = %2 apare a doua oara (prima data la randul %3)")
                                .arg(lucru.numeCheie(), cheie)
                                .arg(*it);
            }
            for (const Legatura& l : schema.legaturi) {
                if (!motiv.isEmpty())
                    break;
                const int i = lucru.index(l.coloana);
                if (i < 0 || v[i].isNull())
                    continue;
                if (!chei.value(l.parinte).contains(textCheie(v[i])))
                    motiv = QStringLiteral("randul parinte lipseste: %1 = %2 nu este in tabela %3")
                                .arg(l.coloana, textCheie(v[i]), l.parinte);
            }
            if (!motiv.isEmpty()) {
                t.refuzate.push_back({r.numar, motiv});
                continue;
            }
            if (!cheie.isEmpty()) {
                vazute.insert(cheie, r.numar);
                cheiTabela.insert(cheie);
            }
            t.randuri.push_back(std::move(v));
        }
        p.tabele.push_back(std::move(t));
    }
    p.totaluri = totaluri(p.tabele);
}

QString ValoarePreluata(const QString& tabela, const QString& coloana, const QJsonValue& v, QVariant& out)
{
    const Camp* c = GasesteCamp(tabela, coloana);
    return c ? valoare(*c, v, out) : QStringLiteral("coloana %1 nu este a tabelei %2").arg(coloana, tabela);
}

TotaluriPreluare CitesteTotaluri(const BD& bd)
{
    Adunare a;
    Rezultat c = bd.selecteaza(QStringLiteral("SELECT Stare, TipCerere, NrCopii, Cuantum FROM Cereri"));
    while (c.next())
        a.cerere(c.valoare(0), c.valoare(1), c.valoare(2), c.valoare(3));
    Rezultat m = bd.selecteaza(QStringLiteral("SELECT CNP, Nume, Prenume FROM Membrii"));
    while (m.next())
        a.persoana(m.valoare(0).toString(), m.valoare(1).toString(), m.valoare(2).toString());
    return a.gata();
}
