#pragma once
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>
#include <QVariant>
#include <QVariantList>

#include <QHash>
#include <QSet>
#include <memory>
#include <optional>

// What a connection says when an address holds a password.
inline const QString MesajParolaInAdresa =
    QStringLiteral("Adresa serverului contine o parola: parola nu se scrie in adresa, nici in fisierul de setari, "
                   "nici in comenzi. Scrieti parola in ~/.pgpass (sau in fisierul numit de PGPASSFILE).");

// "Datele oficiului au fost mutate pe server ...": a write refused by a file whose office moved.
QString MesajOficiuMutat(const QString& server, const QString& cand, const QString& fisier);

// How long a statement waits for another workstation that holds the file before the file is
// reported busy: as long as the import waits for the network lock (snet.txt) of a save.
inline constexpr int AsteptareOcupatMs = 60000;

// The one data layer: every statement goes through here with bound values. Text typed by a
// user never becomes part of SQL text. Engine errors come out as Eroare, with the cases that
// the windows tell apart mapped to their numbers (3078 missing table, 3167 deleted row, 3218
// the file busy past the wait, 3027 a file that cannot be written, 3151 a server that does not
// answer).
class Rezultat {
public:
    explicit Rezultat(std::shared_ptr<QSqlQuery> q);
    Rezultat(Rezultat&&) noexcept = default;
    // Releases the statement (and the read lock it holds) for its next use.
    ~Rezultat();
    bool next() { return m_q->next(); }
    QVariant operator[](const char* coloana) const;
    QVariant operator[](const QString& coloana) const;
    QVariant valoare(int i) const { return m_q->value(i); }
    QString text(const char* coloana) const; // NULL as ""
    qint64 numar(const char* coloana) const; // NULL as 0
    int index(const QString& coloana) const;
    QSqlQuery& interogare() { return *m_q; }

private:
    // The columns of the result, read at the first lookup by name: the engine's record of the
    // current row brings every value of it along, at each call.
    const QSqlRecord& campuri() const;

    std::shared_ptr<QSqlQuery> m_q;
    mutable std::optional<QSqlRecord> m_campuri;
};

class BD {
public:
    enum class Motor { SQLite, PostgreSQL };

    BD();
    ~BD();
    BD(const BD&) = delete;
    BD& operator=(const BD&) = delete;

    // The process's shared connection.
    static BD& principala();

    // Opens a SQLite file. Throws Eroare when the file cannot be opened or is no database.
    // With creeaza false a missing file is an error (the program never creates a database).
    void deschide(const QString& cale, bool creeaza = false);
    // Opens a database on a PostgreSQL server, named by a libpq connection string or URI
    // ("postgresql://host:port/baza?user=..."). The password comes the libpq way (~/.pgpass,
    // PGPASSFILE, a service file); an address that holds one is refused (MesajParolaInAdresa).
    // A server that does not answer throws CodEroare::ServerInaccesibil with the server's own
    // reason. A connection lost later throws the same, in one Romanian message, drops the
    // connection without the driver's warnings and opens it again at the next statement
    // outside a transaction.
    void deschideServer(const QString& server);
    // The office's database: on the server when `server` is not empty, else the file
    // Tarnava.db of the office folder.
    void deschideOficiu(const QString& folder, const QString& server);
    void inchide();
    bool deschisa() const;
    // The file, or the server's address without its password.
    QString cale() const { return m_cale; }
    Motor motor() const { return m_motor; }
    QSqlDatabase conexiune() const;

    // The busy wait: every statement, reads included, waits for another workstation that
    // holds the file and tries again, up to this many milliseconds; then it fails with
    // CodEroare::BazaOcupata. Set before deschide() for the opening to use it too.
    void setAsteptare(int ms);
    int asteptare() const { return m_asteptareMs; }

    // A SELECT, read forward only.
    Rezultat selecteaza(const QString& sql, const QVariantList& param = {}) const;
    // The first column of the first row; an invalid QVariant when there is no row.
    QVariant scalar(const QString& sql, const QVariantList& param = {}) const;
    // Any other statement; the number of rows it touched.
    int executa(const QString& sql, const QVariantList& param = {}) const;
    // The key for a new row: the maximum plus 1, 1 on an empty table. Only inside the
    // transaction that inserts the row (it holds the write lock, so that two workstations
    // cannot take the same key); outside one it throws. On a server the first key of a table
    // in a transaction takes a lock that serialises the key-taking of that table until the
    // transaction ends.
    qint64 urmatoareaCheie(const QString& tabela, const QString& cheie) const;

    // How many statements this process has sent, all connections together (tests and the
    // benchmark use it to see that a list is read with one statement).
    static quint64 numarInterogari();

    bool tabelaExista(const QString& tabela) const;
    QStringList coloane(const QString& tabela) const;

    // Dialect: the month and the year of a date column, a case-insensitive equality and prefix
    // (Access LIKE 'x' and LIKE 'x*'). The conditions take one bound value each: pass the
    // text through valoareLike / valoarePrefix.
    QString luna(const QString& expr) const;
    QString an(const QString& expr) const;
    QString conditieLike(const QString& expr) const;
    // The whole number at the head of a text, as SQLite's CAST reads it: 0 when there is none,
    // NULL for NULL ("12A" is 12, "abc" 0).
    QString numarDinText(const QString& expr) const;
    // The identity of a row of a table without a key, in the order the rows were added.
    QString identitateRand() const;
    static QString valoareLike(const QString& text);
    static QString valoarePrefix(const QString& text);

    // Transactions: the outermost begins (taking the write lock) and ends; an inner one is a
    // savepoint that can be rolled back alone. In a file, the outermost first looks for the
    // mark of an office moved to a server: there it ends at once with CodEroare::OficiuMutat
    // (MesajOficiuMutat), so that a process that opened the file before the move writes
    // nothing more. Reading the file stays as it was. A write statement run outside a
    // transaction is one of its own. A COMMIT that fails (another workstation still
    // reading past the wait) rolls the whole transaction back and throws: the connection is
    // then outside any transaction, and the next write starts clean.
    void incepe();
    void confirma();
    void anuleaza();
    bool inTranzactie() const { return m_nivel > 0; }

    // Marks a file as moved to `server` at `cand` (the texts that the refusal shows), inside
    // the move's transaction on the file; every later write transaction on it is refused.
    void marcheazaMutat(const QString& server, const QString& cand) const;

private:
    // The prepared statement of this connection for `sql`, kept for its next use; a fresh one
    // while a Rezultat still reads the kept one.
    std::shared_ptr<QSqlQuery> pregatita(const QString& sql) const;
    bool faraPregatire(const QString& sql) const;
    // Binds and runs, waiting while the file is busy. A statement inside a transaction is not
    // run again (the engine has waited for it already, and SQLite wants the transaction
    // rolled back after it); the beginning, the COMMIT and a statement outside a transaction
    // are, until the wait is over.
    void ruleaza(QSqlQuery& q, const QString& sql, const QVariantList& param, bool reluabil) const;
    // Runs a statement of the transaction's own (BEGIN, COMMIT, SAVEPOINT...).
    void comanda(const QString& sql, bool reluabil);
    [[noreturn]] void arunca(const class QSqlError& e, const QString& sursa) const;
    void verificaMutare();
    void pierdeLegatura();

    QString m_nume;
    QString m_cale;
    Motor m_motor = Motor::SQLite;
    int m_nivel = 0;
    QString m_server;        // the address of an open (or lost) server connection
    bool m_pierduta = false; // the server connection was lost; opened again at the next statement
    // The tables whose key-taking this transaction holds (server only).
    mutable QSet<QString> m_cheiBlocate;
    int m_asteptareMs = AsteptareOcupatMs;
    mutable QHash<QString, std::shared_ptr<QSqlQuery>> m_pregatite;
};

// The scope guard around every multi-row write: begins (taking the write lock), and rolls back
// in its destructor unless confirma() returned.
class Tranzactie {
public:
    explicit Tranzactie(BD& bd = BD::principala());
    ~Tranzactie();
    void confirma();
    Tranzactie(const Tranzactie&) = delete;
    Tranzactie& operator=(const Tranzactie&) = delete;

private:
    BD& m_bd;
    bool m_gata = false;
};
