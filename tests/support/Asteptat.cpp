#include "Asteptat.h"

#include "OficiuTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace {

// Long diffs are cut: the first lines tell what moved.
constexpr int LiniiDiferenta = 120;

QString diferenta(const QString& asteptat, const QByteArray& obtinut)
{
    QTemporaryDir dir;
    const QString cale = dir.filePath(QFileInfo(asteptat).fileName());
    QFile f(cale);
    if (!f.open(QIODevice::WriteOnly) || f.write(obtinut) != obtinut.size())
        return QStringLiteral("(iesirea nu a putut fi scrisa in %1)").arg(cale);
    f.close();
    QProcess p;
    p.start(QStringLiteral("diff"), {QStringLiteral("-u"), QStringLiteral("--label"), QStringLiteral("asteptat"),
                                     QStringLiteral("--label"), QStringLiteral("obtinut"), asteptat, cale});
    if (!p.waitForFinished(30000))
        return QStringLiteral("(diff nu a putut fi rulat)");
    QStringList linii = QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\n'));
    if (linii.size() > LiniiDiferenta) {
        const qsizetype rest = linii.size() - LiniiDiferenta;
        linii = linii.mid(0, LiniiDiferenta);
        linii << QStringLiteral("... si inca %1 linii").arg(rest);
    }
    return linii.join(QLatin1Char('\n'));
}

} // namespace

QString DiferentaFataDeAsteptat(const QString& relativ, const QByteArray& obtinut)
{
    const QString cale = QDir(QStringLiteral(TESTE_DATE)).filePath(relativ);
    if (qEnvironmentVariableIsSet("ALOCATII_REGENEREAZA") && !OficiuTest::peServer()) {
        QDir().mkpath(QFileInfo(cale).path());
        QFile f(cale);
        if (!f.open(QIODevice::WriteOnly) || f.write(obtinut) != obtinut.size())
            return QStringLiteral("%1 nu poate fi scris").arg(cale);
    }
    QFile f(cale);
    if (!f.open(QIODevice::ReadOnly))
        return QStringLiteral("%1 lipseste; ./scripts/rescrie-asteptate.sh il scrie.").arg(cale);
    if (f.readAll() == obtinut)
        return QString();
    return QStringLiteral("%1 difera de iesire:\n%2\nDaca schimbarea este voita: ./scripts/rescrie-asteptate.sh, "
                          "apoi cititi git diff tests/data.")
        .arg(relativ, diferenta(cale, obtinut));
}
