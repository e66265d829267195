// The reading and the checks of the move: each table of the old file mapped to the program's
// table, each value checked against its column, each key once, each parent present.
#include "preluare/Preluare.h"

#include "preluare/CoduriPreluate.h"
#include "amounts/CNP.h"
#include "database/ActualizareBD.h"
#include "database/BD.h"
#include "database/Schema.h"
#include "database/ValoriColoane.h"
#include "history/StareInLuna.h"
#include "common/Eroare.h"
#include "common/Text.h"

#include <QDir>
#include <QHash>
#include <QJsonValue>
#include <QSet>

#include <algorithm>

namespace {

QString textCheie(const QVariant& v)
{
    return v.typeId() == QMetaType::Double ? TextNumar(v.toDouble()) : v.toString();
}

// One table of the old file on its way: the program's columns it holds, in the order of the
// schema, and the keys kept so far.
class TabelaInLucru {
public:
    // `permise`: the code lists the values are checked against; none while the lists
    // themselves are read.
    TabelaInLucru(const Tabela& schema, TabelaPreluata& t, const ValoriPermise* permise)
        : m_schema(schema), m_t(t), m_permise(permise)
    {
    }

    // The columns of the rows, from the keys of every row: what mdb-json leaves out of a line
    // is NULL, so a column shows only in the rows that hold a value.
    void coloane(const std::vector<RandVechi>& randuri)
    {
        // Most rows hold the keys already seen: such a row is told by looking them up in it,
        // which makes no text of its keys.
        QSet<QString> vazute;
        QStringList ordonate;
        for (const RandVechi& r : randuri) {
            qsizetype gasite = 0;
            for (qsizetype i = 0; i < ordonate.size() && gasite < r.valori.size(); ++i)
                gasite += r.valori.contains(ordonate[i]) ? 1 : 0;
            if (gasite == r.valori.size())
                continue;
            for (auto it = r.valori.begin(); it != r.valori.end(); ++it)
                if (!vazute.contains(it.key())) {
                    vazute.insert(it.key());
                    ordonate << it.key();
                }
        }
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
            const bool codat = m_permise && m_permise->coduri(m_schema.nume, c.nume).has_value();
            m_campuri.push_back({&c, m_surse.value(c.nume), venit, codat});
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
            const QString m = s.venitTotal ? venitTotal(r, x) : ValoarePreluata(*s.camp, r.valori.value(s.cheie), x);
            if (!m.isEmpty())
                return m;
            if (s.codat && !x.isNull()) {
                // A code's verdict is the same on every row: asked once.
                auto it = s.verdicte.constFind(x.toLongLong());
                if (it == s.verdicte.constEnd())
                    it = s.verdicte.insert(x.toLongLong(),
                                           m_permise->verifica(QString(), m_schema.nume, s.camp->nume, x).refuz);
                if (!it->isEmpty())
                    return *it;
            }
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
            const QString m = ValoarePreluata(moneda, r.valori.value(k), parte);
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
    const ValoriPermise* m_permise;
    QHash<QString, QString> m_surse; // the program's column -> the old file's key
    // A column written: its place in the schema and the old file's key that holds it, or the
    // total income made of the two old columns.
    struct Sursa {
        const Camp* camp;
        QString cheie;
        bool venitTotal;
        bool codat;                              // checked against its code list
        mutable QHash<qint64, QString> verdicte; // code -> its refusal, "" when it is in the list
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
        if (!EsteStarePlata(stare.toInt()))
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

// The figures of one table's rows, as they pass: the applications and the persons.
class AdunareTabela {
public:
    AdunareTabela(Adunare& a, const TabelaPreluata& t) : m_a(a)
    {
        if (t.nume == QLatin1String("Cereri"))
            m_fel = Fel::Cereri;
        else if (t.nume == QLatin1String("Membrii"))
            m_fel = Fel::Membrii;
        const char* const coloane[2][4] = {{"Stare", "TipCerere", "NrCopii", "Cuantum"},
                                           {"CNP", "Nume", "Prenume", ""}};
        if (m_fel != Fel::Alta)
            for (int i = 0; i < 4; ++i)
                m_i[i] = int(t.coloane.indexOf(QLatin1String(coloane[m_fel == Fel::Cereri ? 0 : 1][i])));
    }

    void rand(const QVariantList& v)
    {
        if (m_fel == Fel::Cereri)
            m_a.cerere(celula(v, 0), celula(v, 1), celula(v, 2), celula(v, 3));
        else if (m_fel == Fel::Membrii)
            m_a.persoana(celula(v, 0).toString(), celula(v, 1).toString(), celula(v, 2).toString());
    }

private:
    QVariant celula(const QVariantList& v, int k) const { return m_i[k] < 0 ? QVariant() : v[m_i[k]]; }

    enum class Fel { Alta, Cereri, Membrii };
    Adunare& m_a;
    Fel m_fel = Fel::Alta;
    int m_i[4] = {-1, -1, -1, -1};
};

} // namespace

void CitesteSiVerifica(Preluare& p, const QString& seminte, const ProgresPreluare& progres, const BD* tinta)
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
    Adunare adunare;
    int pas = 0;
    const auto citeste = [&](const Tabela& schema, const ValoriPermise* permise, bool pastreaza) {
        if (progres)
            progres(++pas, int(dupaNume.size()),
                    (tinta ? QStringLiteral("Se preia tabela %1") : QStringLiteral("Se citeste tabela %1"))
                        .arg(schema.nume));
        TabelaPreluata t;
        t.nume = schema.nume;
        t.numeVechi = dupaNume.value(schema.nume);
        std::vector<RandVechi> randuri;
        CitesteRanduri(p.sursa, t.numeVechi, [&](const RandVechi& r) { randuri.push_back(r); });
        t.citite = int(randuri.size());
        TabelaInLucru lucru(schema, t, permise);
        lucru.coloane(randuri);
        AdunareTabela aduna(adunare, t);
        const QString sql = tinta && !t.coloane.isEmpty() ? SqlScrieTabelaPreluata(t) : QString();

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
            ++t.nrScrise;
            aduna.rand(v);
            if (!sql.isEmpty())
                tinta->executa(sql, v);
            if (pastreaza)
                t.randuri.push_back(std::move(v));
        }
        // The rows as read are let go before the next table is read.
        std::vector<RandVechi>().swap(randuri);
        if (tinta)
            VerificaRanduriScrise(*tinta, t);
        p.tabele.push_back(std::move(t));
    };

    // The code lists first, as they will be written; then every other table, each coded value
    // checked against them; in the end the tables in the schema's order, parents first.
    const auto eLista = [](const Tabela& t) {
        return t.nume == QLatin1String("DateGen") || t.nume == QLatin1String("ListaVenituri");
    };
    for (const Tabela& schema : TabeleOficiu())
        if (eLista(schema) && dupaNume.contains(schema.nume))
            citeste(schema, nullptr, true);
    const CoduriPreluate coduri(p.tabele, seminte);
    for (const Tabela& schema : TabeleOficiu())
        if (!eLista(schema) && dupaNume.contains(schema.nume))
            citeste(schema, &coduri.permise(), false);
    QHash<QString, int> ordine;
    for (const Tabela& schema : TabeleOficiu())
        ordine.insert(schema.nume, int(ordine.size()));
    std::stable_sort(p.tabele.begin(), p.tabele.end(), [&](const TabelaPreluata& a, const TabelaPreluata& b) {
        return ordine.value(a.nume) < ordine.value(b.nume);
    });
    p.totaluri = adunare.gata();
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
