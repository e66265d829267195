#include "database/BD.h"

#include "database/AdresaServer.h"
#include "database/Schema.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QDir>

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlRecord>
#include <QThread>
#include <QUuid>
#include <atomic>

namespace {

BD* g_principala = nullptr;
std::atomic<quint64> g_interogari{0};

// The statements kept per connection. SQL is built from names, never from values, so a
// program uses a few hundred at most; past that the store starts over.
constexpr int PregatiteMaxim = 512;

// The pause between two attempts at a busy file.
constexpr int PauzaOcupatMs = 20;

enum class FelEroare { Alta, Ocupat, FaraScriere, TabelaLipsa, DiscPlin, LegaturaPierduta };

// The first line of an engine's text, without libpq's severity word.
QString primaLinie(const QString& text)
{
    QString t = text.trimmed().section(QLatin1Char('\n'), 0, 0).trimmed();
    for (const char* p : {"FATAL:", "ERROR:", "PANIC:"})
        if (t.startsWith(QLatin1String(p)))
            t = t.mid(qstrlen(p)).trimmed();
    return t;
}

// A server connection that is gone: libpq's own words when the socket closed (no SQLSTATE
// then), or the server's connection and shutdown states.
bool legaturaPierduta(const QSqlError& e, const QString& text)
{
    const QString stare = e.nativeErrorCode();
    if (stare.startsWith(QLatin1String("08")) || stare == QLatin1String("57P01") || stare == QLatin1String("57P02") ||
        stare == QLatin1String("57P03"))
        return true;
    static const char* const semne[] = {"no connection to the server",    "server closed the connection",
                                        "terminating connection",         "could not receive data from server",
                                        "could not send data to server",  "connection to server was lost",
                                        "SSL connection has been closed", "SSL SYSCALL error"};
    for (const char* s : semne)
        if (text.contains(QLatin1String(s), Qt::CaseInsensitive))
            return true;
    return false;
}

FelEroare felEroare(const QSqlError& e, BD::Motor motor)
{
    const QString text = e.databaseText().isEmpty() ? e.text() : e.databaseText();
    if (motor == BD::Motor::SQLite) {
        // The primary result code: 5 SQLITE_BUSY, 6 SQLITE_LOCKED, 8 SQLITE_READONLY, 13 SQLITE_FULL.
        const int cod = e.nativeErrorCode().toInt() & 0xff;
        if (cod == 5 || cod == 6)
            return FelEroare::Ocupat;
        if (cod == 8)
            return FelEroare::FaraScriere;
        if (cod == 13)
            return FelEroare::DiscPlin;
        if (text.contains(QLatin1String("no such table"), Qt::CaseInsensitive))
            return FelEroare::TabelaLipsa;
        return FelEroare::Alta;
    }
    // SQLSTATE: 55P03 lock not available, 40P01 deadlock, 25006 read-only transaction, 53100
    // disk full.
    const QString stare = e.nativeErrorCode();
    if (stare == QLatin1String("55P03") || stare == QLatin1String("40P01"))
        return FelEroare::Ocupat;
    if (stare == QLatin1String("25006"))
        return FelEroare::FaraScriere;
    if (stare == QLatin1String("53100"))
        return FelEroare::DiscPlin;
    if (stare == QLatin1String("42P01"))
        return FelEroare::TabelaLipsa;
    if (legaturaPierduta(e, text))
        return FelEroare::LegaturaPierduta;
    return FelEroare::Alta;
}

// The table that an engine's message names: "no such table: X" (SQLite), relation "x" does not
// exist (server); the whole message when it names none.
QString TabelaDinMesaj(const QString& text)
{
    static const QRegularExpression re(QStringLiteral("no such table: *([\\w.]+)|relation \"([^\"]+)\""));
    const QRegularExpressionMatch m = re.match(text);
    if (!m.hasMatch())
        return text;
    return m.captured(1).isEmpty() ? m.captured(2) : m.captured(1);
}

// A step of the server's own transaction (begin, commit): its error, invalid when it went
// through. The connection's handle is let go before the error is told, since a lost connection
// is dropped there and no handle may still hold it.
QSqlError eroarePas(QSqlDatabase db, bool (*pas)(QSqlDatabase&))
{
    if (pas(db))
        return QSqlError();
    QSqlError e = db.lastError();
    // An error without a type would read as no error.
    if (!e.isValid())
        e = QSqlError(e.driverText(), e.databaseText(), QSqlError::TransactionError, e.nativeErrorCode());
    return e;
}

// The table that marks a file whose office was moved to a server (see BD::incepe).
const QString TabelaMutare = QStringLiteral("OficiuMutat");

} // namespace

void BD::arunca(const QSqlError& e, const QString& sursa) const
{
    const QString text = e.databaseText().isEmpty() ? e.text() : e.databaseText();
    switch (felEroare(e, m_motor)) {
    case FelEroare::Ocupat:
        throw Eroare(
            CodEroare::BazaOcupata,
            QStringLiteral("Baza de date %1 este ocupata de alt calculator. Asteptati putin si incercati din nou.")
                .arg(m_cale),
            QStringLiteral("BD"));
    case FelEroare::FaraScriere:
        throw Eroare(CodEroare::FaraScriere,
                     QStringLiteral("In baza de date %1 nu se poate scrie: fisierul este doar pentru citire. "
                                    "Cereti drept de scriere pe fisier si pe folderul lui.")
                         .arg(m_cale),
                     QStringLiteral("BD"));
    case FelEroare::DiscPlin:
        throw Eroare(
            CodEroare::DiscPlin,
            QStringLiteral("Pe discul bazei de date %1 nu mai este loc. Nu s-a scris nimic din ce era in curs; "
                           "faceti loc pe disc si incercati din nou.")
                .arg(m_cale),
            QStringLiteral("BD"));
    case FelEroare::LegaturaPierduta: {
        const QString adresa = m_cale;
        const_cast<BD*>(this)->pierdeLegatura();
        throw Eroare(CodEroare::ServerInaccesibil,
                     QStringLiteral("Legatura cu serverul bazei de date %1 s-a pierdut (%2). Nu s-a scris nimic din ce "
                                    "era in curs; incercati din nou cand serverul raspunde.")
                         .arg(adresa, primaLinie(text)),
                     QStringLiteral("BD"));
    }
    case FelEroare::TabelaLipsa:
        // Told in the office's words, with the table the engine names; the statement stays ours.
        throw Eroare(CodEroare::TabelaLipsa,
                     QStringLiteral("Motorul bazei de date nu gaseste tabela '%1'. Verificati ca exista si ca numele "
                                    "ei este scris corect.")
                         .arg(TabelaDinMesaj(text)),
                     QStringLiteral("BD"));
    case FelEroare::Alta: break;
    }
    const int numar = e.nativeErrorCode().toInt();
    throw Eroare(numar == 0 ? 3000 : numar, text, sursa);
}

Rezultat::Rezultat(std::shared_ptr<QSqlQuery> q) : m_q(std::move(q)) {}

Rezultat::~Rezultat()
{
    if (m_q)
        m_q->finish();
}

const QSqlRecord& Rezultat::campuri() const
{
    if (!m_campuri)
        m_campuri = m_q->record();
    return *m_campuri;
}

int Rezultat::index(const QString& coloana) const
{
    return campuri().indexOf(coloana);
}

QVariant Rezultat::operator[](const QString& coloana) const
{
    const int i = campuri().indexOf(coloana);
    if (i < 0)
        throw Eroare(3265, QStringLiteral("Coloana %1 nu exista in rezultat").arg(coloana), QStringLiteral("BD"));
    return m_q->value(i);
}

QVariant Rezultat::operator[](const char* coloana) const
{
    return (*this)[QString::fromLatin1(coloana)];
}

QString Rezultat::text(const char* coloana) const
{
    const QVariant v = (*this)[coloana];
    return v.isNull() ? QString() : v.toString();
}

qint64 Rezultat::numar(const char* coloana) const
{
    const QVariant v = (*this)[coloana];
    return v.isNull() ? 0 : v.toLongLong();
}

BD::BD() : m_nume(QStringLiteral("bd-") + QUuid::createUuid().toString(QUuid::WithoutBraces)) {}

BD::~BD()
{
    inchide();
    if (g_principala == this)
        g_principala = nullptr;
}

BD& BD::principala()
{
    if (!g_principala) {
        // The engine's list of connections must outlive the shared connection, which closes
        // itself at exit: asked for first, it is made first and destroyed last.
        QSqlDatabase::contains(QString());
        static BD bd;
        g_principala = &bd;
    }
    return *g_principala;
}

void BD::setAsteptare(int ms)
{
    m_asteptareMs = qMax(0, ms);
    // The engine waits on its own inside a transaction, where a statement is not run again.
    if (!deschisa())
        return;
    if (m_motor == Motor::SQLite)
        executa(QStringLiteral("PRAGMA busy_timeout = %1").arg(m_asteptareMs));
    else
        executa(QStringLiteral("SET lock_timeout = %1").arg(m_asteptareMs));
}

void BD::deschide(const QString& cale, bool creeaza)
{
    inchide();
    const QFileInfo fi(cale);
    if (!creeaza && !fi.isFile())
        throw Eroare(3024, QStringLiteral("Fisierul %1 nu a fost gasit.").arg(cale), QStringLiteral("BD"));
    m_cale = cale;
    m_motor = Motor::SQLite;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_nume);
        db.setDatabaseName(cale);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(m_asteptareMs));
        if (!db.open()) {
            const QSqlError e = db.lastError();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(m_nume);
            arunca(e, cale);
        }
    }
    try {
        // Reading the catalogue proves that the file is a database.
        scalar(QStringLiteral("SELECT COUNT(*) FROM sqlite_master"));
        executa(QStringLiteral("PRAGMA foreign_keys = ON"));
        // What a savepoint keeps to roll back (the pages it changed) stays in memory instead of
        // a temporary file: the import and the demo office open one for every application.
        executa(QStringLiteral("PRAGMA temp_store = MEMORY"));
    } catch (const Eroare& e) {
        inchide();
        // A file that another workstation holds is a database all the same.
        if (e.numar == CodEroare::BazaOcupata)
            throw;
        throw Eroare(e.numar, QStringLiteral("Fisierul %1 nu este o baza de date valida (%2).").arg(cale, e.descriere),
                     QStringLiteral("BD"));
    }
}

void BD::deschideServer(const QString& server)
{
    inchide();
    const AdresaServer adresa = AdresaServer::citeste(server);
    if (!adresa.eroare.isEmpty())
        throw Eroare(CodEroare::ServerInaccesibil, adresa.eroare, QStringLiteral("BD"));
    // A password never travels in an address: it would sit in a settings file, a command line
    // or a script. libpq reads it from ~/.pgpass.
    if (adresa.areParola())
        throw Eroare(CodEroare::ServerInaccesibil, MesajParolaInAdresa, QStringLiteral("BD"));
    m_cale = adresa.descriere();
    m_motor = Motor::PostgreSQL;
    QString optiuni = adresa.conninfo();
    // A server that does not answer is told after a few seconds, not after the system's wait.
    if (adresa.valoare(QStringLiteral("connect_timeout")).isEmpty())
        optiuni += QStringLiteral(" connect_timeout=10");
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), m_nume);
        if (!db.isValid()) {
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(m_nume);
            throw Eroare(CodEroare::ServerInaccesibil,
                         QStringLiteral("Programul nu are legatura cu serverele PostgreSQL (lipseste driverul QPSQL)."),
                         QStringLiteral("BD"));
        }
        db.setConnectOptions(optiuni);
        if (!db.open()) {
            const QSqlError e = db.lastError();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(m_nume);
            const QString motiv = (e.databaseText().isEmpty() ? e.driverText() : e.databaseText()).trimmed();
            throw Eroare(CodEroare::ServerInaccesibil,
                         QStringLiteral("Serverul bazei de date %1 nu raspunde sau nu primeste legatura.\n%2")
                             .arg(m_cale, motiv),
                         QStringLiteral("BD"));
        }
    }
    try {
        executa(QStringLiteral("SET lock_timeout = %1").arg(m_asteptareMs));
        executa(QStringLiteral("SET client_min_messages = warning"));
    } catch (...) {
        inchide();
        throw;
    }
    m_server = server;
}

void BD::deschideOficiu(const QString& folder, const QString& server)
{
    if (server.trimmed().isEmpty())
        deschide(QDir(folder).filePath(Proces::NumeBD));
    else
        deschideServer(server);
}

void BD::inchide()
{
    m_server.clear();
    m_pierduta = false;
    // A file's kept statements go before their connection. A server's go after it: the server
    // frees them with the session, and freeing them one by one on a connection that died
    // unnoticed would only print the driver's warnings.
    auto pregatite = std::move(m_pregatite);
    m_pregatite.clear();
    if (m_motor == Motor::SQLite)
        pregatite.clear();
    if (!QSqlDatabase::contains(m_nume))
        return;
    {
        QSqlDatabase db = QSqlDatabase::database(m_nume, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_nume);
    pregatite.clear();
    m_nivel = 0;
    m_cheiBlocate.clear();
    m_cale.clear();
}

bool BD::deschisa() const
{
    return QSqlDatabase::contains(m_nume) && QSqlDatabase::database(m_nume, false).isOpen();
}

void BD::pierdeLegatura()
{
    // The driver goes before the statements kept on it: each statement freed on a dead
    // connection would only print the driver's warning, in English, on the terminal.
    auto pregatite = std::move(m_pregatite);
    m_pregatite.clear();
    const QString server = m_server;
    QSqlDatabase::removeDatabase(m_nume);
    pregatite.clear();
    m_nivel = 0;
    m_cheiBlocate.clear();
    m_server = server;
    m_pierduta = true;
}

QSqlDatabase BD::conexiune() const
{
    if (!deschisa()) {
        // A server connection that was lost is opened again at the next statement outside a
        // transaction: the office goes on once the server answers again.
        if (m_pierduta && m_nivel == 0) {
            const QString server = m_server;
            const_cast<BD*>(this)->deschideServer(server);
        } else {
            throw Eroare(CodEroare::BazaInchisa, QStringLiteral("Baza de date nu este deschisa."),
                         QStringLiteral("BD"));
        }
    }
    return QSqlDatabase::database(m_nume, false);
}

bool BD::faraPregatire(const QString& sql) const
{
    // The server prepares only queries and row changes; a definition, a setting or a lock
    // goes as it stands (it never takes values).
    if (m_motor != Motor::PostgreSQL)
        return false;
    static const QRegularExpression dml(QStringLiteral("^\\s*(SELECT|INSERT|UPDATE|DELETE|WITH|VALUES)\\b"),
                                        QRegularExpression::CaseInsensitiveOption);
    return !dml.match(sql).hasMatch();
}

std::shared_ptr<QSqlQuery> BD::pregatita(const QString& sql) const
{
    const QSqlDatabase db = conexiune();
    if (faraPregatire(sql))
        return std::make_shared<QSqlQuery>(db);
    const auto it = m_pregatite.constFind(sql);
    if (it != m_pregatite.constEnd() && it->use_count() == 1)
        return *it;
    auto q = std::make_shared<QSqlQuery>(db);
    // Forward only, SQLite reads rows as they are asked for. The server's driver would then
    // stream them and drop the rest of a result as soon as another statement runs on the
    // connection: there a result is read whole, so that a loop may run statements of its own.
    q->setForwardOnly(m_motor == Motor::SQLite);
    if (!q->prepare(sql))
        arunca(q->lastError(), sql);
    if (it == m_pregatite.constEnd()) {
        if (m_pregatite.size() >= PregatiteMaxim)
            m_pregatite.clear();
        m_pregatite.insert(sql, q);
    }
    return q;
}

void BD::ruleaza(QSqlQuery& q, const QString& sql, const QVariantList& param, bool reluabil) const
{
    ++g_interogari;
    for (int i = 0; i < param.size(); ++i)
        q.bindValue(i, param[i]);
    const QDeadlineTimer termen(m_asteptareMs);
    const bool direct = faraPregatire(sql);
    while (!(direct ? q.exec(sql) : q.exec())) {
        const QSqlError e = q.lastError();
        if (!reluabil || felEroare(e, m_motor) != FelEroare::Ocupat || termen.hasExpired())
            arunca(e, sql);
        QThread::msleep(PauzaOcupatMs);
    }
}

Rezultat BD::selecteaza(const QString& sql, const QVariantList& param) const
{
    std::shared_ptr<QSqlQuery> q = pregatita(sql);
    ruleaza(*q, sql, param, m_nivel == 0);
    return Rezultat(std::move(q));
}

QVariant BD::scalar(const QString& sql, const QVariantList& param) const
{
    const std::shared_ptr<QSqlQuery> q = pregatita(sql);
    ruleaza(*q, sql, param, m_nivel == 0);
    const QVariant v = q->next() ? q->value(0) : QVariant();
    q->finish();
    return v;
}

int BD::executa(const QString& sql, const QVariantList& param) const
{
    // A write outside a transaction is a transaction of its own, so that it too meets the
    // check of a moved file.
    static const QRegularExpression scriere(QStringLiteral("^\\s*(INSERT|UPDATE|DELETE|CREATE|DROP|ALTER|REPLACE)\\b"),
                                            QRegularExpression::CaseInsensitiveOption);
    if (m_nivel == 0 && m_motor == Motor::SQLite && scriere.match(sql).hasMatch()) {
        BD& bd = const_cast<BD&>(*this);
        Tranzactie t(bd);
        const int n = executa(sql, param);
        t.confirma();
        return n;
    }
    const std::shared_ptr<QSqlQuery> q = pregatita(sql);
    ruleaza(*q, sql, param, m_nivel == 0);
    const int n = q->numRowsAffected();
    q->finish();
    // A table whose definition changed on a server (a column's type, above all) refuses the
    // statements prepared on it before: they are prepared again at their next use.
    static const QRegularExpression definitie(QStringLiteral("^\\s*(ALTER|CREATE|DROP)\\b"),
                                              QRegularExpression::CaseInsensitiveOption);
    if (m_motor == Motor::PostgreSQL && definitie.match(sql).hasMatch())
        m_pregatite.clear();
    return n;
}

qint64 BD::urmatoareaCheie(const QString& tabela, const QString& cheie) const
{
    // Outside the write lock two workstations would read the same maximum.
    if (m_nivel <= 0)
        throw Eroare(3000, QStringLiteral("Cheia noua din %1 se ia numai in tranzactia care scrie randul.").arg(tabela),
                     QStringLiteral("BD"));
    // SQLite's transaction holds the whole file. A server lets writers run side by side: the
    // first key of a table in a transaction waits for every other transaction that took one
    // there, and then reads a maximum that includes their rows.
    if (m_motor == Motor::PostgreSQL && !m_cheiBlocate.contains(tabela.toLower())) {
        scalar(QStringLiteral("SELECT pg_advisory_xact_lock(hashtext(?))"),
               {QStringLiteral("cheie:") + tabela.toLower()});
        m_cheiBlocate.insert(tabela.toLower());
    }
    const QVariant m = scalar(QStringLiteral("SELECT MAX(%1) FROM %2").arg(cheie, tabela));
    return m.isNull() || !m.isValid() ? 1 : m.toLongLong() + 1;
}

quint64 BD::numarInterogari()
{
    return g_interogari.load();
}

bool BD::tabelaExista(const QString& tabela) const
{
    return conexiune().tables().contains(tabela, Qt::CaseInsensitive);
}

QStringList BD::coloane(const QString& tabela) const
{
    if (m_motor == Motor::PostgreSQL) {
        // The server keeps unquoted names in lower case; its driver looks them up as given.
        // A keyless table's row numbering is the server's, not a column of the program.
        QStringList l;
        Rezultat r = selecteaza(
            QStringLiteral("SELECT column_name FROM information_schema.columns "
                           "WHERE table_schema = current_schema() AND table_name = lower(?) AND is_identity = 'NO' "
                           "ORDER BY ordinal_position"),
            {tabela});
        while (r.next())
            l << r.valoare(0).toString();
        return l;
    }
    const QSqlRecord r = conexiune().record(tabela);
    QStringList l;
    for (int i = 0; i < r.count(); ++i)
        l << r.fieldName(i);
    return l;
}

QString BD::luna(const QString& expr) const
{
    if (m_motor == Motor::PostgreSQL)
        return QStringLiteral("CAST(EXTRACT(MONTH FROM %1) AS INTEGER)").arg(expr);
    return QStringLiteral("CAST(strftime('%m', %1) AS INTEGER)").arg(expr);
}

QString BD::an(const QString& expr) const
{
    if (m_motor == Motor::PostgreSQL)
        return QStringLiteral("CAST(EXTRACT(YEAR FROM %1) AS INTEGER)").arg(expr);
    return QStringLiteral("CAST(strftime('%Y', %1) AS INTEGER)").arg(expr);
}

QString BD::conditieLike(const QString& expr) const
{
    if (m_motor == Motor::PostgreSQL)
        return QStringLiteral("%1 ILIKE ? ESCAPE '\\'").arg(expr);
    // The pattern goes through an expression: SQLite prepares a statement again each time the
    // value bound to a bare "LIKE ?" changes (for an index optimisation that needs NOCASE
    // indexes, which the office's files do not have), and a kept statement would gain nothing.
    return QStringLiteral("%1 LIKE (? || '') ESCAPE '\\'").arg(expr);
}

QString BD::numarDinText(const QString& expr) const
{
    if (m_motor == Motor::PostgreSQL)
        return QStringLiteral("CAST(CASE WHEN %1 IS NULL THEN NULL ELSE COALESCE(substring(CAST(%1 AS TEXT) "
                              "FROM '^\\s*([+-]?[0-9]{1,18})'), '0') END AS BIGINT)")
            .arg(expr);
    return QStringLiteral("CAST(%1 AS INTEGER)").arg(expr);
}

QString BD::identitateRand() const
{
    return m_motor == Motor::SQLite ? QStringLiteral("rowid") : IdentitateRandServer;
}

QString BD::valoareLike(const QString& text)
{
    QString t = text;
    t.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    t.replace(QLatin1Char('%'), QLatin1String("\\%"));
    t.replace(QLatin1Char('_'), QLatin1String("\\_"));
    return t;
}

QString BD::valoarePrefix(const QString& text)
{
    return valoareLike(text) + QLatin1Char('%');
}

void BD::comanda(const QString& sql, bool reluabil)
{
    const std::shared_ptr<QSqlQuery> q = pregatita(sql);
    ruleaza(*q, sql, {}, reluabil);
    q->finish();
}

void BD::incepe()
{
    if (m_nivel > 0) {
        // A write inside a larger one: a savepoint, so that it can give up alone.
        comanda(QStringLiteral("SAVEPOINT nivel%1").arg(m_nivel), false);
        ++m_nivel;
        return;
    }
    if (m_motor == Motor::SQLite)
        comanda(QStringLiteral("BEGIN IMMEDIATE"), true);
    else if (const QSqlError e = eroarePas(conexiune(), [](QSqlDatabase& db) { return db.transaction(); }); e.isValid())
        arunca(e, QStringLiteral("BEGIN"));
    m_nivel = 1;
    if (m_motor == Motor::SQLite)
        verificaMutare();
}

void BD::verificaMutare()
{
    // Read under the write lock just taken: a move that committed before it is seen, and no
    // move can commit after it while this transaction lasts.
    if (!scalar(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name = ?"), {TabelaMutare})
             .toLongLong())
        return;
    QString server, cand;
    {
        Rezultat r = selecteaza(QStringLiteral("SELECT Server, DataMutarii FROM %1").arg(TabelaMutare));
        if (r.next()) {
            server = r.valoare(0).toString();
            cand = r.valoare(1).toString();
        }
    }
    anuleaza();
    throw Eroare(CodEroare::OficiuMutat, MesajOficiuMutat(server, cand, m_cale), QStringLiteral("BD"));
}

void BD::marcheazaMutat(const QString& server, const QString& cand) const
{
    if (m_motor != Motor::SQLite || m_nivel <= 0)
        throw Eroare(3000, QStringLiteral("Semnul mutarii se scrie numai intr-un fisier, in tranzactia mutarii."),
                     QStringLiteral("BD"));
    executa(QStringLiteral("CREATE TABLE %1 (Server VARCHAR(255), DataMutarii VARCHAR(30))").arg(TabelaMutare));
    executa(QStringLiteral("INSERT INTO %1 (Server, DataMutarii) VALUES (?, ?)").arg(TabelaMutare), {server, cand});
}

QString MesajOficiuMutat(const QString& server, const QString& cand, const QString& fisier)
{
    return QStringLiteral("Datele oficiului au fost mutate pe server %1 la %2. Fisierul %3 s-a pastrat doar pentru "
                          "citire si nu mai primeste nicio scriere: nu s-a scris nimic. Reporniti programul; el "
                          "lucreaza de acum cu serverul.")
        .arg(server, cand, QDir::toNativeSeparators(fisier));
}

void BD::confirma()
{
    if (m_nivel <= 0)
        return;
    if (m_nivel > 1) {
        comanda(QStringLiteral("RELEASE SAVEPOINT nivel%1").arg(m_nivel - 1), false);
        --m_nivel;
        return;
    }
    try {
        if (m_motor == Motor::SQLite)
            comanda(QStringLiteral("COMMIT"), true);
        else if (const QSqlError e = eroarePas(conexiune(), [](QSqlDatabase& db) { return db.commit(); }); e.isValid())
            arunca(e, QStringLiteral("COMMIT"));
        m_cheiBlocate.clear();
    } catch (...) {
        // A COMMIT that did not go through leaves SQLite inside the transaction, holding the
        // write lock: it is given up whole, so that nothing of it stays and the next write
        // begins its own.
        anuleaza();
        throw;
    }
    m_nivel = 0;
}

void BD::anuleaza()
{
    if (m_nivel <= 0 || !deschisa()) {
        m_nivel = 0;
        return;
    }
    QSqlQuery q(conexiune());
    if (m_nivel > 1) {
        // A savepoint given up gives up the locks taken since: the next key takes its own.
        m_cheiBlocate.clear();
        --m_nivel;
        q.exec(QStringLiteral("ROLLBACK TO SAVEPOINT nivel%1").arg(m_nivel));
        q.exec(QStringLiteral("RELEASE SAVEPOINT nivel%1").arg(m_nivel));
        return;
    }
    m_nivel = 0;
    m_cheiBlocate.clear();
    if (m_motor == Motor::SQLite)
        q.exec(QStringLiteral("ROLLBACK"));
    else
        conexiune().rollback();
}

Tranzactie::Tranzactie(BD& bd) : m_bd(bd)
{
    m_bd.incepe();
}

Tranzactie::~Tranzactie()
{
    if (!m_gata)
        m_bd.anuleaza();
}

void Tranzactie::confirma()
{
    // Done only once the engine has taken the commit: a failed one throws to the caller, and
    // the destructor has nothing left to roll back.
    m_bd.confirma();
    m_gata = true;
}
