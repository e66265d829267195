#include "maintenance/PrezentaStatie.h"

#include "common/Proces.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

QString g_propriu;

QString folderStatii(const QString& folderOficiu)
{
    return QDir(folderOficiu).filePath(QStringLiteral("statii"));
}

} // namespace

PrezentaStatie::PrezentaStatie(const QString& folderOficiu)
{
    const QString folder = folderStatii(folderOficiu);
    if (!QDir().mkpath(folder))
        return;
    QString statie = Proces::statie();
    statie.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9._-]")), QStringLiteral("_"));
    const QString fisier =
        QDir(folder).filePath(QStringLiteral("%1-%2.txt").arg(statie).arg(QCoreApplication::applicationPid()));
    if (!m_blocare.incearcaFisier(fisier))
        return;
    m_fisier = fisier;
    g_propriu = fisier;
}

PrezentaStatie::~PrezentaStatie()
{
    if (m_fisier.isEmpty())
        return;
    m_blocare.elibereaza();
    QFile::remove(m_fisier);
    if (g_propriu == m_fisier)
        g_propriu.clear();
}

QString PrezentaStatie::fisierPropriu()
{
    return g_propriu;
}

QStringList StatiiLaLucru(const QString& folderOficiu)
{
    QStringList statii;
    const QDir folder(folderStatii(folderOficiu));
    for (const QFileInfo& f : folder.entryInfoList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name)) {
        if (f.absoluteFilePath() == QFileInfo(g_propriu).absoluteFilePath())
            continue;
        BlocareRetea b;
        if (b.incearcaFisier(f.absoluteFilePath())) {
            b.elibereaza();
            QFile::remove(f.absoluteFilePath());
            continue;
        }
        // The name without the process number.
        const QString nume = f.completeBaseName();
        const int cratima = nume.lastIndexOf(QLatin1Char('-'));
        statii << (cratima > 0 ? nume.left(cratima) : nume);
    }
    return statii;
}
