#include "maintenance/CopieServer.h"

#include "maintenance/CopieFisierBD.h"
#include "database/AdresaServer.h"
#include "database/BD.h"
#include "database/Oficiu.h"
#include "common/Eroare.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>

namespace {

// A server tool on the PATH or in Debian's folders of the PostgreSQL versions, the newest first.
QString unealta(const QString& nume)
{
    QString gasita = QStandardPaths::findExecutable(nume);
    if (!gasita.isEmpty())
        return gasita;
    QStringList versiuni = QDir(QStringLiteral("/usr/lib/postgresql")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::sort(versiuni.begin(), versiuni.end(),
              [](const QString& a, const QString& b) { return a.toInt() > b.toInt(); });
    for (const QString& v : versiuni) {
        gasita = QStringLiteral("/usr/lib/postgresql/%1/bin/%2").arg(v, nume);
        if (QFileInfo(gasita).isExecutable())
            return gasita;
    }
    throw Eroare(3000, QStringLiteral("Programul %1 nu a fost gasit. Instalati pachetul postgresql-client.").arg(nume),
                 QStringLiteral("copie"));
}

// The address for the tools' --dbname, checked to hold no password.
QString adresaUnelte(const QString& server)
{
    VerificaFaraParola(server);
    const AdresaServer a = AdresaServer::citeste(server);
    if (!a.eroare.isEmpty())
        throw Eroare(CodEroare::ServerInaccesibil, a.eroare, QStringLiteral("copie"));
    QString conninfo = a.conninfo();
    if (a.valoare(QStringLiteral("connect_timeout")).isEmpty())
        conninfo += QStringLiteral(" connect_timeout=10");
    return conninfo;
}

void porneste(QProcess& p, const QString& nume, const QStringList& argumente)
{
    p.setProgram(unealta(nume));
    p.setArguments(argumente);
    p.start();
    if (!p.waitForStarted())
        throw Eroare(3000, QStringLiteral("Programul %1 nu poate fi pornit.").arg(nume), QStringLiteral("copie"));
}

// Waits for the end of a tool; its own words when it failed.
void asteaptaSfarsit(QProcess& p, const QString& nume)
{
    p.closeWriteChannel();
    p.waitForFinished(-1);
    if (p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) {
        const QString spus = QString::fromLocal8Bit(p.readAllStandardError()).trimmed();
        throw Eroare(3000, QStringLiteral("%1 a esuat (cod %2): %3").arg(nume).arg(p.exitCode()).arg(spus),
                     QStringLiteral("copie"));
    }
}

// The table of a "COPY public.cereri (...) FROM stdin;" line of pg_restore's script.
QString tabelaCopy(const QByteArray& linie)
{
    QByteArray nume = linie.mid(5, linie.indexOf(' ', 5) - 5);
    const int punct = nume.lastIndexOf('.');
    if (punct >= 0)
        nume = nume.mid(punct + 1);
    if (nume.startsWith('"') && nume.endsWith('"'))
        nume = nume.mid(1, nume.size() - 2);
    return QString::fromUtf8(nume);
}

} // namespace

QMap<QString, qint64> CopiazaBazaServer(const QString& server, const QString& tinta)
{
    const QString adresa = adresaUnelte(server);
    BD bd;
    bd.deschideServer(server);
    // The counts and the dump see the same rows: pg_dump takes the snapshot of this transaction.
    bd.executa(QStringLiteral("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY"));
    const QString instantaneu = bd.scalar(QStringLiteral("SELECT pg_export_snapshot()")).toString();
    const QMap<QString, qint64> randuri = RanduriTabele(bd);
    QProcess p;
    porneste(p, QStringLiteral("pg_dump"),
             {QStringLiteral("--format=custom"), QStringLiteral("--no-password"),
              QStringLiteral("--snapshot=") + instantaneu, QStringLiteral("--file=") + tinta,
              QStringLiteral("--dbname=") + adresa});
    asteaptaSfarsit(p, QStringLiteral("pg_dump"));
    bd.executa(QStringLiteral("COMMIT"));
    return randuri;
}

VerificareCopie VerificaArhivaServer(const QString& cale)
{
    return VerificaContinut(cale, QStringLiteral("o arhiva pg_dump"), [&](VerificareCopie& v) {
        // The script that the archive makes, read as it comes: every COPY block is one table's
        // rows, a line each, up to "\.".
        QProcess p;
        porneste(p, QStringLiteral("pg_restore"), {QStringLiteral("--file=-"), cale});
        QString tabela;
        QByteArray rest;
        auto citeste = [&] {
            rest += p.readAllStandardOutput();
            qsizetype inceput = 0;
            for (qsizetype sfarsit; (sfarsit = rest.indexOf('\n', inceput)) >= 0; inceput = sfarsit + 1) {
                const QByteArray linie = rest.mid(inceput, sfarsit - inceput);
                if (!tabela.isEmpty()) {
                    if (linie == "\\.")
                        tabela.clear();
                    else
                        ++v.randuri[tabela];
                } else if (linie.startsWith("COPY ") && linie.endsWith("FROM stdin;")) {
                    tabela = tabelaCopy(linie);
                    v.randuri.insert(tabela, 0);
                }
            }
            rest = rest.mid(inceput);
        };
        while (p.state() != QProcess::NotRunning) {
            p.waitForReadyRead(1000);
            citeste();
        }
        citeste();
        asteaptaSfarsit(p, QStringLiteral("pg_restore"));
        v.integritate = QStringLiteral("ok");
    });
}

void RestaureazaArhivaServer(const QString& server, const QString& arhiva, bool inlocuieste)
{
    QStringList argumente{QStringLiteral("--no-password"), QStringLiteral("--single-transaction"),
                          QStringLiteral("--exit-on-error"), QStringLiteral("--no-owner"),
                          QStringLiteral("--no-privileges")};
    if (inlocuieste)
        argumente << QStringLiteral("--clean") << QStringLiteral("--if-exists");
    argumente << QStringLiteral("--dbname=") + adresaUnelte(server) << arhiva;
    QProcess p;
    porneste(p, QStringLiteral("pg_restore"), argumente);
    asteaptaSfarsit(p, QStringLiteral("pg_restore"));
}

QStringList AlteLegaturiServer(const BD& bd)
{
    QStringList alte;
    Rezultat r = bd.selecteaza(QStringLiteral(
        "SELECT COALESCE(application_name, ''), COALESCE(client_hostname, CAST(client_addr AS TEXT), 'local') "
        "FROM pg_stat_activity WHERE datname = current_database() AND pid <> pg_backend_pid() "
        "AND backend_type = 'client backend'"));
    while (r.next()) {
        const QString aplicatie = r.valoare(0).toString();
        alte << QStringLiteral("%1 (%2)").arg(aplicatie.isEmpty() ? QStringLiteral("o legatura") : aplicatie,
                                              r.valoare(1).toString());
    }
    return alte;
}
