// A copy of the office's data beside the bare copying of the file with cp: the consistent copy
// itself (SQLite's online backup in one read transaction, the counts of every table, flushed to
// the disk), and the whole of what the program does for a copy that counts (that copy, its
// integrity check, its counts and fingerprint, the index and the keeping rule). A copy counts
// only once it is on the disk, so the file copied by cp is flushed to the disk too, by the same
// routine: without it the bare side would be a copy still in the system's memory.
#include "admin/Bench.h"
#include "database/BD.h"
#include "maintenance/CopieFisierBD.h"
#include "maintenance/CopiiOficiu.h"
#include "maintenance/FisiereSigure.h"

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
    const QString tinta = QDir(dir.path()).filePath(QStringLiteral("copie.db"));
    const auto bare = CelMaiBunTimp(
        [&] {
            QFile::remove(tinta);
            QProcess::execute(QStringLiteral("cp"), {fisier, tinta});
            SincronizeazaFisier(tinta);
        },
        3);
    const auto copiere = CelMaiBunTimp(
        [&] {
            QFile::remove(tinta);
            CopiazaFisierBD(fisier, tinta);
            SincronizeazaFisier(tinta);
        },
        3);
    ScrieTimp(QStringLiteral("copie_20000"), copiere, bare);

    const LocCopii loc{folderOficiu, QString(), dir.path(), RegulaPastrare{}};
    int secunda = 0;
    const auto intreaga =
        CelMaiBunTimp([&] { FaCopie(loc, QDateTime(QDate(2000, 1, 1), QTime(0, 0).addSecs(++secunda))); }, 3);
    ScrieTimp(QStringLiteral("copie_verificata_20000"), intreaga, bare);
});
