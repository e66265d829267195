#pragma once
#include "database/BD.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A temporary office, made by the same code as `alocatii-admin init`: a program folder with
// its settings file and an office folder with Tarnava.db, both removed afterwards. The
// process's state points at them and the shared connection is open on the database.
//
// With ALOCATII_TEST_SERVER set (to the folder where tests/support/server-test.sh keeps the
// address of its throwaway PostgreSQL cluster), the office's data are instead in a fresh
// database of that server, made like `alocatii-admin init DIR --server URI` and dropped
// afterwards, so that every test runs alone on either engine.
class OficiuTest {
public:
    explicit OficiuTest(bool deschideBD = true);
    ~OficiuTest();

    QString folderProgram() const; // setariTarnava.ini lives here
    QString folderOficiu() const;  // CaleBD
    QString caleBD() const;
    // The office's server address, empty for an office on a file.
    QString server() const { return m_server; }
    static bool peServer();
    // The address of a new empty database on the test server, dropped with this office.
    QString bazaGoalaPeServer();
    QString fisierSetari() const;
    BD& bd() const { return BD::principala(); }

    // Writes the town hall data, as an office that typed its own.
    void scrieDatePrimarie() const;

    // Makes the engine refuse every row of `tabela` at `cand` ("BEFORE INSERT", "AFTER DELETE",
    // ...) with the error "scriere refuzata", as a broken disk or a constraint would, through a
    // trigger named `nume` on either engine; ReparaTabela takes it away.
    static void StricaTabela(const BD& bd, const QString& tabela, const QString& cand = QStringLiteral("BEFORE INSERT"),
                             const QString& nume = QStringLiteral("Stricat"));
    static void ReparaTabela(const BD& bd, const QString& tabela, const QString& nume = QStringLiteral("Stricat"));

    // Another workstation runs one statement on the same file, through its own connection.
    void executaDinAltCalculator(const QString& sql, const QVariantList& param = {}) const;

private:
    QString bazaNoua();

    QTemporaryDir m_dir;
    QString m_server;
    QStringList m_baze; // the server databases to drop
};
