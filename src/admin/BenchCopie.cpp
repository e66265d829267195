// A copy of the office's data as the program makes it (the consistent copy, its check, the
// index and the keeping rule), beside the bare copying of the file with cp. The copy alone and
// its check are told apart in two more lines.
#include "admin/Bench.h"
#include "database/BD.h"
#include "maintenance/CopieFisierBD.h"
#include "maintenance/CopiiOficiu.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

static MasuraInregistrata copie(QStringLiteral("copie_20000"), [](BD& bd) {
    if (bd.motor() != BD::Motor::SQLite)
        return;
    const QString fisier = bd.cale();
    const QString folderOficiu = QFileInfo(fisier).absolutePath();
    // On the disk of the office, as the copies folder is by default.
    QTemporaryDir dir(QDir(folderOficiu).filePath(QStringLiteral("bench-copii-XXXXXX")));
    const LocCopii loc{folderOficiu, QString(), dir.path(), RegulaPastrare{}};
    int secunda = 0;
    const double ms =
        CelMaiBunTimp([&] { FaCopie(loc, QDateTime(QDate(2000, 1, 1), QTime(0, 0).addSecs(++secunda))); }, 3);
    const QString tinta = QDir(dir.path()).filePath(QStringLiteral("cp.db"));
    const double bare = CelMaiBunTimp(
        [&] {
            QFile::remove(tinta);
            QProcess::execute(QStringLiteral("cp"), {fisier, tinta});
        },
        3);
    ScrieTimp(QStringLiteral("copie_20000"), ms, bare);
    const QString doarCopia = QDir(dir.path()).filePath(QStringLiteral("copia.db"));
    ScrieValoare(QStringLiteral("copie_copiere_ms"), CelMaiBunTimp(
                                                         [&] {
                                                             QFile::remove(doarCopia);
                                                             CopiazaFisierBD(fisier, doarCopia);
                                                         },
                                                         3));
    ScrieValoare(QStringLiteral("copie_verificare_ms"), CelMaiBunTimp([&] { VerificaFisierBD(doarCopia); }, 3));
});
