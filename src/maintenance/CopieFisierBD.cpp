#include "maintenance/CopieFisierBD.h"

#include "database/BD.h"
#include "common/Eroare.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QSqlDriver>

#include <sqlite3.h>

namespace {

// Pages copied in one step of the backup: small enough for the progress bar to move, large
// enough that the steps cost nothing beside the copying.
constexpr int PaginiPePas = 1024;

sqlite3* manerSQLite(const BD& bd)
{
    const QVariant v = bd.conexiune().driver()->handle();
    if (!v.isValid() || qstrcmp(v.typeName(), "sqlite3*") != 0)
        return nullptr;
    return *static_cast<sqlite3* const*>(v.data());
}

[[noreturn]] void aruncaCopie(const QString& tinta, const QString& motiv)
{
    throw Eroare(3000, QStringLiteral("Copia %1 nu a putut fi scrisa: %2").arg(tinta, motiv), QStringLiteral("copie"));
}

// The destination of the backup, closed whatever happens.
struct Destinatie {
    sqlite3* db = nullptr;
    ~Destinatie() { sqlite3_close(db); }
};

} // namespace

QMap<QString, qint64> RanduriTabele(const BD& bd)
{
    QStringList tabele;
    if (bd.motor() == BD::Motor::SQLite) {
        Rezultat r = bd.selecteaza(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT "
                                                  "LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY name"));
        while (r.next())
            tabele << r.valoare(0).toString();
    } else {
        tabele = bd.conexiune().tables();
    }
    QMap<QString, qint64> randuri;
    for (const QString& t : tabele) {
        QString nume = t;
        nume.replace(QLatin1Char('"'), QLatin1String("\"\""));
        randuri.insert(t, bd.scalar(QStringLiteral("SELECT COUNT(*) FROM \"%1\"").arg(nume)).toLongLong());
    }
    return randuri;
}

QMap<QString, qint64> CopiazaFisierBD(const QString& sursa, const QString& tinta,
                                      const std::function<void(int)>& progres)
{
    BD bd;
    bd.deschide(sursa);
    // One read transaction for the counts and the copy: both see the same rows.
    bd.executa(QStringLiteral("BEGIN"));
    QMap<QString, qint64> randuri;
    try {
        randuri = RanduriTabele(bd);
        sqlite3* src = manerSQLite(bd);
        if (!src)
            aruncaCopie(tinta, QStringLiteral("legatura cu baza de date nu este SQLite"));
        Destinatie dst;
        if (sqlite3_open_v2(QFile::encodeName(tinta).constData(), &dst.db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                            nullptr) != SQLITE_OK)
            aruncaCopie(tinta, QString::fromUtf8(sqlite3_errmsg(dst.db)));
        // A file being made needs no journal: until it is whole it is nobody's copy. It is
        // flushed to the disk once, at the end.
        sqlite3_exec(dst.db, "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
        sqlite3_backup* b = sqlite3_backup_init(dst.db, "main", src, "main");
        if (!b)
            aruncaCopie(tinta, QString::fromUtf8(sqlite3_errmsg(dst.db)));
        const QDeadlineTimer termen(bd.asteptare());
        int rc = SQLITE_OK;
        while (true) {
            rc = sqlite3_backup_step(b, PaginiPePas);
            if (progres && sqlite3_backup_pagecount(b) > 0)
                progres(int(100LL * (sqlite3_backup_pagecount(b) - sqlite3_backup_remaining(b)) /
                            sqlite3_backup_pagecount(b)));
            if (rc == SQLITE_OK)
                continue;
            if ((rc == SQLITE_BUSY || rc == SQLITE_LOCKED) && !termen.hasExpired()) {
                sqlite3_sleep(20);
                continue;
            }
            break;
        }
        sqlite3_backup_finish(b);
        if (rc != SQLITE_DONE)
            aruncaCopie(tinta, QString::fromUtf8(sqlite3_errstr(rc)));
    } catch (...) {
        bd.executa(QStringLiteral("ROLLBACK"));
        throw;
    }
    bd.executa(QStringLiteral("ROLLBACK"));
    return randuri;
}

VerificareCopie VerificaFisierBD(const QString& cale)
{
    return VerificaContinut(cale, QStringLiteral("o baza de date"), [&](VerificareCopie& v) {
        BD bd;
        bd.deschide(cale);
        QStringList gasite;
        Rezultat r = bd.selecteaza(QStringLiteral("PRAGMA integrity_check"));
        while (r.next() && gasite.size() < 10)
            gasite << r.valoare(0).toString();
        v.integritate = gasite.join(QStringLiteral("; "));
        if (v.integritate == QLatin1String("ok"))
            v.randuri = RanduriTabele(bd);
    });
}
