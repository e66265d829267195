#include "database/ValoriPermise.h"

#include "database/BD.h"
#include "database/ValoriColoane.h"
#include "common/Text.h"

#include <QLocale>

#include <cmath>

// Where the codes of a column come from.
enum class SursaCoduri {
    DateGen,      // the DateGen list `tip`
    TipCerere,    // the two fixed rows of cboCerere(3)
    Luni,         // the months of cboVenit(1)
    Locuinte,     // the eight boxes of frmAddLocuinta
    ListaVenituri // the rows of the income grid
};

// A coded column and the list its editor control offers.
struct ListaColoanei {
    const char* tabela;
    const char* coloana;
    SursaCoduri sursa;
    int tip = 0;
};

namespace {

using Sursa = SursaCoduri;

// The coded columns and the list each editor control offers for them.
const ListaColoanei Liste[] = {
    {"Cereri", "Stare", Sursa::DateGen, 1},
    {"Cereri", "ReprLegal", Sursa::DateGen, 27},
    {"Cereri", "ModPlata", Sursa::DateGen, 12},
    {"Cereri", "TipCerere", Sursa::TipCerere},
    {"Cereri", "Gospodarire", Sursa::DateGen, 26},
    {"Cereri", "LunaGospod", Sursa::Luni},
    {"Cereri", "GospodLoc", Sursa::DateGen, 26},
    {"Cereri", "RegimJuridLoc", Sursa::DateGen, 5},
    {"Cereri", "TipIncalzire", Sursa::DateGen, 6},
    {"Cereri", "TipLocuinta", Sursa::DateGen, 29},
    {"CereriMembrii", "RudenieID", Sursa::DateGen, 2},
    {"CereriMembrii", "CetatenieID", Sursa::DateGen, 25},
    {"CereriMembrii", "ResedintaID", Sursa::DateGen, 11},
    {"CereriMembrii", "StCivila", Sursa::DateGen, 21},
    {"CereriMembrii", "Studii", Sursa::DateGen, 22},
    {"CereriMembrii", "DrAsSociala", Sursa::DateGen, 24},
    {"CereriMembrii", "OcupatieID", Sursa::DateGen, 3},
    {"CereriMembrii", "Stare", Sursa::DateGen, 1},
    {"Membrii", "TipAct", Sursa::DateGen, 28},
    {"Adeverinte", "TipAdeverinta", Sursa::DateGen, 30},
    {"Anchete", "TipLocuinta", Sursa::DateGen, 4},
    {"Anchete", "RegimJuridic", Sursa::DateGen, 5},
    {"Anchete", "TipLocuire", Sursa::DateGen, 7},
    {"Anchete", "TipDetinere", Sursa::DateGen, 8},
    {"Dispozitii", "Actiune", Sursa::DateGen, 20},
    {"Locuinte", "Cod", Sursa::Locuinte},
    {"Venituri", "CodVenit", Sursa::ListaVenituri},
};

const ListaColoanei* listaColoanei(const QString& tabela, const QString& coloana, Qt::CaseSensitivity cs)
{
    for (const ListaColoanei& l : Liste) {
        const QLatin1String c(l.coloana);
        // Names of another length never match; most columns take no code at all.
        if (coloana.size() == c.size() && coloana.compare(c, cs) == 0 &&
            tabela.compare(QLatin1String(l.tabela), cs) == 0)
            return &l;
    }
    return nullptr;
}

// Asked for every value checked: the names as the schema writes them are found at once, the
// others by a second look that ignores the case.
const ListaColoanei* listaColoanei(const QString& tabela, const QString& coloana)
{
    if (const ListaColoanei* l = listaColoanei(tabela, coloana, Qt::CaseSensitive))
        return l;
    return listaColoanei(tabela, coloana, Qt::CaseInsensitive);
}

QList<int> deLa1La(int n)
{
    QList<int> l;
    for (int i = 1; i <= n; ++i)
        l << i;
    return l;
}

QString textCoduri(const QList<int>& coduri)
{
    QStringList t;
    for (int c : coduri)
        t << QString::number(c);
    return t.join(QStringLiteral(", "));
}

} // namespace

ValoriPermise::ValoriPermise(const BD& bd) : m_bd(bd) {}

std::optional<QList<int>> ValoriPermise::coduri(const QString& tabela, const QString& coloana) const
{
    const ListaColoanei* l = listaColoanei(tabela, coloana);
    if (!l)
        return std::nullopt;
    return coduri(*l);
}

QList<int> ValoriPermise::coduri(const ListaColoanei& l) const
{
    switch (l.sursa) {
    case Sursa::TipCerere: return QList<int>{1, 2};
    case Sursa::Luni: return deLa1La(12);
    case Sursa::Locuinte: return deLa1La(8);
    case Sursa::ListaVenituri:
        if (!m_venituri) {
            QList<int> v;
            Rezultat r = m_bd.selecteaza(QStringLiteral("SELECT CodVenit FROM ListaVenituri ORDER BY CodVenit"));
            while (r.next())
                v << r.valoare(0).toInt();
            m_venituri = v;
        }
        return *m_venituri;
    case Sursa::DateGen: break;
    }
    if (!m_dateGen) {
        QHash<int, QList<int>> h;
        Rezultat r = m_bd.selecteaza(QStringLiteral("SELECT Tip, DataID FROM DateGen ORDER BY Tip, Ordine, DataID"));
        while (r.next())
            h[r.valoare(0).toInt()] << r.valoare(1).toInt();
        m_dateGen = h;
    }
    return m_dateGen->value(l.tip);
}

ValoareVerificata ValoriPermise::verifica(const QString& element, const QString& tabela, const QString& coloana,
                                          const QVariant& valoare) const
{
    // The element's name heads a refusal; made only when there is one.
    const auto unde = [&element]() { return element.isEmpty() ? QString() : element + QStringLiteral(": "); };
    if (valoare.isNull() || !valoare.isValid())
        return {QVariant(), QString()};
    const QString coloanaMare = ValoareInAfaraColoanei(tabela, coloana, valoare);
    if (!coloanaMare.isEmpty())
        return {QVariant(), unde() + coloanaMare};
    const ListaColoanei* l = listaColoanei(tabela, coloana);
    if (!l)
        return {valoare, QString()};
    const QList<int> lista = coduri(*l);
    // The column check has passed: a whole number within the column.
    const qint64 cod =
        valoare.typeId() == QMetaType::QString ? ValoareIntreaga(valoare.toString()) : std::llround(valoare.toDouble());
    const bool zeroPermis = l->sursa != Sursa::Locuinte && l->sursa != Sursa::ListaVenituri;
    if ((cod == 0 && zeroPermis) || lista.contains(int(cod)))
        return {cod, QString()};
    return {QVariant(),
            unde() + QStringLiteral("Valoarea %1 nu este un cod din lista pentru campul %2, care primeste "
                                    "codurile %3. Corectati!")
                         .arg(cod)
                         .arg(coloana, lista.isEmpty() ? QStringLiteral("(lista e goala)") : textCoduri(lista))};
}
