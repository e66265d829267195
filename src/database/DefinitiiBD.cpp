#include "database/DefinitiiBD.h"

#include "database/BD.h"
#include "common/Eroare.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

QString mic(const QString& s)
{
    return s.toLower();
}

QString cheieLegatura(const QString& coloana, const QString& parinte, const QString& coloanaParinte)
{
    return mic(coloana + QLatin1Char('>') + parinte + QLatin1Char('.') + coloanaParinte);
}

// The relation of the program's schema with this name, and the table that holds it.
const Legatura* legaturaDupaNume(const QString& nume, QString* copil = nullptr)
{
    for (const Tabela& t : TabeleOficiu())
        for (const Legatura& l : t.legaturi)
            if (l.nume.compare(nume, Qt::CaseInsensitive) == 0) {
                if (copil)
                    *copil = t.nume;
                return &l;
            }
    return nullptr;
}

} // namespace

DefinitiiBD::DefinitiiBD(BD& bd) : m_bd(bd) {}

bool DefinitiiBD::sqlite() const
{
    return m_bd.motor() == BD::Motor::SQLite;
}

bool DefinitiiBD::TabelaExista(const QString& tabela)
{
    if (!m_tabeleCitite) {
        for (const QString& t : m_bd.conexiune().tables())
            m_tabele.insert(mic(t));
        m_tabeleCitite = true;
    }
    return m_tabele.contains(mic(tabela));
}

const QStringList& DefinitiiBD::coloane(const QString& tabela)
{
    auto it = m_coloane.find(mic(tabela));
    if (it == m_coloane.end()) {
        QStringList l;
        if (TabelaExista(tabela))
            for (const QString& c : m_bd.coloane(tabela))
                l << mic(c);
        it = m_coloane.insert(mic(tabela), l);
    }
    return *it;
}

void DefinitiiBD::uita(const QString& tabela)
{
    m_coloane.remove(mic(tabela));
    m_legaturi.remove(mic(tabela));
    m_tabeleCitite = false;
    m_tabele.clear();
    m_indexuriCitite = false;
    m_indexuri.clear();
    m_tipuriCitite = false;
    m_tipuri.clear();
}

bool DefinitiiBD::CampExista(const QString& tabela, const QString& coloana)
{
    return coloane(tabela).contains(mic(coloana));
}

bool DefinitiiBD::RelatieExista(const QString& nume)
{
    QString copil;
    const Legatura* l = legaturaDupaNume(nume, &copil);
    if (!l || !TabelaExista(copil))
        return false;
    if (!sqlite()) {
        return m_bd.scalar(QStringLiteral("SELECT COUNT(*) FROM information_schema.table_constraints "
                                          "WHERE constraint_type = 'FOREIGN KEY' AND lower(constraint_name) = ?"),
                           {mic(nume)})
                   .toInt() > 0;
    }
    // SQLite keeps no name for a relation: it is known by its columns.
    auto it = m_legaturi.find(mic(copil));
    if (it == m_legaturi.end()) {
        QSet<QString> s;
        Rezultat r = m_bd.selecteaza(
            QStringLiteral("SELECT \"table\", \"from\", \"to\" FROM pragma_foreign_key_list(?)"), {copil});
        while (r.next())
            s.insert(cheieLegatura(r.valoare(1).toString(), r.valoare(0).toString(), r.valoare(2).toString()));
        it = m_legaturi.insert(mic(copil), s);
    }
    return it->contains(cheieLegatura(l->coloana, l->parinte, l->coloanaParinte));
}

bool DefinitiiBD::IndexExista(const QString& nume)
{
    if (!m_indexuriCitite) {
        Rezultat r = sqlite() ? m_bd.selecteaza(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index'"))
                              : m_bd.selecteaza(QStringLiteral("SELECT indexname FROM pg_indexes"));
        while (r.next())
            m_indexuri.insert(mic(r.valoare(0).toString()));
        m_indexuriCitite = true;
    }
    return m_indexuri.contains(mic(nume));
}

void DefinitiiBD::AdaugaCamp(const QString& tabela, const Camp& c)
{
    // The position among the columns is not kept: nothing reads columns by position.
    m_bd.executa(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3").arg(tabela, c.nume, TipSql(c, !sqlite())));
    uita(tabela);
}

void DefinitiiBD::RedenumesteCamp(const QString& tabela, const QString& vechi, const QString& nou)
{
    m_bd.executa(QStringLiteral("ALTER TABLE %1 RENAME COLUMN %2 TO %3").arg(tabela, vechi, nou));
    uita(tabela);
}

void DefinitiiBD::StergeCamp(const QString& tabela, const QString& coloana)
{
    if (!sqlite()) {
        m_bd.executa(QStringLiteral("ALTER TABLE %1 DROP COLUMN %2 CASCADE").arg(tabela, coloana));
        uita(tabela);
        return;
    }
    // In place when SQLite can; a column held by an index or a key takes a rebuild.
    try {
        Tranzactie t(m_bd);
        m_bd.executa(QStringLiteral("ALTER TABLE %1 DROP COLUMN %2").arg(tabela, coloana));
        t.confirma();
    } catch (const Eroare&) {
        refaTabela(tabela, coloana, nullptr);
    }
    uita(tabela);
}

void DefinitiiBD::CreeazaTabela(const QString& tabela, const Camp& prima)
{
    QString def = prima.nume + QLatin1Char(' ') + TipSql(prima, !sqlite());
    if (const Tabela* t = GasesteTabela(tabela); t && t->cheiePrimara == QStringList{prima.nume})
        def += QStringLiteral(" PRIMARY KEY");
    else if (t && t->cheiePrimara.isEmpty() && !sqlite())
        def += QStringLiteral(", ") + ColoanaIdentitateServer();
    m_bd.executa(QStringLiteral("CREATE TABLE %1 (%2)").arg(tabela, def));
    uita(tabela);
}

void DefinitiiBD::CreeazaRelatie(const Legatura& l, const QString& tabelaCopil)
{
    if (!sqlite()) {
        m_bd.executa(QStringLiteral("ALTER TABLE %1 ADD CONSTRAINT %2 FOREIGN KEY (%3) REFERENCES %4(%5) "
                                    "ON UPDATE CASCADE ON DELETE CASCADE")
                         .arg(tabelaCopil, l.nume, l.coloana, l.parinte, l.coloanaParinte));
    } else {
        refaTabela(tabelaCopil, QString(), &l);
        Rezultat r = m_bd.selecteaza(QStringLiteral("SELECT COUNT(*) FROM pragma_foreign_key_check(?)"), {tabelaCopil});
        if (r.next() && r.valoare(0).toInt() > 0)
            throw Eroare(3201,
                         QStringLiteral("%1 randuri din tabela %2 nu au corespondent in tabela %3.")
                             .arg(r.valoare(0).toInt())
                             .arg(tabelaCopil, l.parinte),
                         QStringLiteral("CreeazaRelatie"));
    }
    uita(tabelaCopil);
}

void DefinitiiBD::CreeazaIndex(const QString& nume, const QString& tabela, const QStringList& coloane)
{
    m_bd.executa(QStringLiteral("CREATE INDEX %1 ON %2 (%3)").arg(nume, tabela, coloane.join(QLatin1Char(','))));
    m_indexuri.insert(mic(nume));
}

bool DefinitiiBD::AreTipul(const QString& tabela, const Camp& c)
{
    if (!m_tipuriCitite) {
        // Every column of every table in one reading: at each start, on a file that is up to
        // date, this costs one statement.
        Rezultat r = sqlite()
                         ? m_bd.selecteaza(QStringLiteral(
                               "SELECT m.name, p.name, p.type FROM sqlite_master AS m, pragma_table_info(m.name) AS p "
                               "WHERE m.type = 'table'"))
                         : m_bd.selecteaza(QStringLiteral("SELECT table_name, column_name, data_type FROM "
                                                          "information_schema.columns WHERE table_schema = "
                                                          "current_schema()"));
        while (r.next())
            m_tipuri.insert(mic(r.valoare(0).toString() + QLatin1Char('.') + r.valoare(1).toString()),
                            mic(r.valoare(2).toString()));
        m_tipuriCitite = true;
    }
    return m_tipuri.value(mic(tabela + QLatin1Char('.') + c.nume)) == mic(TipSql(c, !sqlite()));
}

void DefinitiiBD::SchimbaTipuri(const QString& tabela, const std::vector<Camp>& campuri)
{
    if (campuri.empty())
        return;
    if (!sqlite()) {
        QStringList parti;
        for (const Camp& c : campuri)
            parti << QStringLiteral("ALTER COLUMN %1 TYPE %2").arg(c.nume, TipSql(c, true));
        m_bd.executa(QStringLiteral("ALTER TABLE %1 %2").arg(tabela, parti.join(QStringLiteral(", "))));
    } else {
        QHash<QString, QString> tipuri;
        for (const Camp& c : campuri)
            tipuri.insert(mic(c.nume), TipSql(c, false));
        refaTabela(tabela, QString(), nullptr, tipuri);
    }
    uita(tabela);
}

// The rebuild that SQLite asks for: a new table with the columns, key and relations read from
// the catalogue (less one column, with one more relation, or with columns of another type),
// every row copied, the old table dropped, the new one renamed, the indexes laid down again.
void DefinitiiBD::refaTabela(const QString& tabela, const QString& faraColoana, const Legatura* nouaLegatura,
                             const QHash<QString, QString>& tipuriNoi)
{
    const QString nou = tabela + QStringLiteral("_refacere");
    QStringList definitii, pastrate;
    QList<QPair<int, QString>> cheie;
    Rezultat col = m_bd.selecteaza(
        QStringLiteral("SELECT name, type, \"notnull\", dflt_value, pk FROM pragma_table_info(?)"), {tabela});
    while (col.next()) {
        const QString nume = col.valoare(0).toString();
        if (nume.compare(faraColoana, Qt::CaseInsensitive) == 0)
            continue;
        QString d = nume + QLatin1Char(' ') + tipuriNoi.value(mic(nume), col.valoare(1).toString());
        if (col.valoare(2).toInt())
            d += QStringLiteral(" NOT NULL");
        if (!col.valoare(3).isNull())
            d += QStringLiteral(" DEFAULT ") + col.valoare(3).toString();
        definitii << d;
        pastrate << nume;
        if (col.valoare(4).toInt() > 0)
            cheie << qMakePair(col.valoare(4).toInt(), nume);
    }
    std::sort(cheie.begin(), cheie.end());
    if (!cheie.isEmpty()) {
        QStringList k;
        for (const auto& p : cheie)
            k << p.second;
        definitii << QStringLiteral("PRIMARY KEY (%1)").arg(k.join(QLatin1Char(',')));
    }

    // The names of the relations live only in the table's own text.
    const QString sqlVechi =
        m_bd.scalar(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'table' AND name = ?"), {tabela})
            .toString();
    auto numeRelatie = [&](const QString& coloana) {
        static const QRegularExpression re(QStringLiteral("CONSTRAINT\\s+(\\w+)\\s+FOREIGN\\s+KEY\\s*\\(\\s*(\\w+)"),
                                           QRegularExpression::CaseInsensitiveOption);
        for (auto it = re.globalMatch(sqlVechi); it.hasNext();) {
            const auto m = it.next();
            if (m.captured(2).compare(coloana, Qt::CaseInsensitive) == 0)
                return QStringLiteral("CONSTRAINT %1 ").arg(m.captured(1));
        }
        return QString();
    };
    Rezultat fk = m_bd.selecteaza(
        QStringLiteral("SELECT \"table\", \"from\", \"to\", on_update, on_delete FROM pragma_foreign_key_list(?) "
                       "ORDER BY id, seq"),
        {tabela});
    while (fk.next()) {
        const QString coloana = fk.valoare(1).toString();
        if (coloana.compare(faraColoana, Qt::CaseInsensitive) == 0)
            continue;
        definitii << numeRelatie(coloana) +
                         QStringLiteral("FOREIGN KEY (%1) REFERENCES %2(%3) ON UPDATE %4 ON DELETE %5")
                             .arg(coloana, fk.valoare(0).toString(), fk.valoare(2).toString(), fk.valoare(3).toString(),
                                  fk.valoare(4).toString());
    }
    if (nouaLegatura)
        definitii << QStringLiteral(
                         "CONSTRAINT %1 FOREIGN KEY (%2) REFERENCES %3(%4) ON UPDATE CASCADE ON DELETE CASCADE")
                         .arg(nouaLegatura->nume, nouaLegatura->coloana, nouaLegatura->parinte,
                              nouaLegatura->coloanaParinte);

    QStringList indexuri;
    Rezultat idx = m_bd.selecteaza(
        QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'index' AND tbl_name = ? AND sql IS NOT NULL"),
        {tabela});
    const QRegularExpression coloanaStearsa(QStringLiteral("\\b%1\\b").arg(QRegularExpression::escape(faraColoana)),
                                            QRegularExpression::CaseInsensitiveOption);
    while (idx.next()) {
        const QString sql = idx.valoare(0).toString();
        if (faraColoana.isEmpty() || !coloanaStearsa.match(sql.mid(sql.indexOf(QLatin1Char('(')))).hasMatch())
            indexuri << sql;
    }

    const QString lista = pastrate.join(QLatin1Char(','));
    m_bd.executa(QStringLiteral("DROP TABLE IF EXISTS %1").arg(nou));
    m_bd.executa(QStringLiteral("CREATE TABLE %1 (%2)").arg(nou, definitii.join(QStringLiteral(", "))));
    m_bd.executa(QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM %3").arg(nou, lista, tabela));
    m_bd.executa(QStringLiteral("DROP TABLE %1").arg(tabela));
    m_bd.executa(QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(nou, tabela));
    for (const QString& sql : indexuri)
        m_bd.executa(sql);
    uita(tabela);
}

PauzaCheiStraine::PauzaCheiStraine(BD& bd) : m_bd(bd)
{
    if (m_bd.motor() == BD::Motor::SQLite)
        m_bd.executa(QStringLiteral("PRAGMA foreign_keys = OFF"));
}

PauzaCheiStraine::~PauzaCheiStraine()
{
    if (m_bd.motor() != BD::Motor::SQLite)
        return;
    try {
        m_bd.executa(QStringLiteral("PRAGMA foreign_keys = ON"));
    } catch (...) {
    }
}
