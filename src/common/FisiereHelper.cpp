#include "common/FisiereHelper.h"

#include "common/Eroare.h"
#include "common/Ini.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

int FisiereHelper::VerificaCale(const QString& cale) const
{
    const QFileInfo fi(cale);
    if (fi.exists())
        return fi.isFile() ? Exista : LocatieInaccesibila;
    const QFileInfo dir(fi.absolutePath());
    if (dir.exists() && dir.isDir() && dir.isReadable())
        return FisierLipsa;
    return LocatieInaccesibila;
}

QString FisiereHelper::CitesteText(const QString& cale) const
{
    QFile f(cale);
    if (!f.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(f.readAll());
}

void FisiereHelper::ScrieText(const QString& cale, const QString& text) const
{
    QSaveFile f(cale);
    if (!f.open(QIODevice::WriteOnly) || f.write(text.toUtf8()) < 0 || !f.commit())
        throw Eroare(CodEroare::FisierDeschis,
                     QStringLiteral("Fisierul %1 nu poate fi scris").arg(QDir::toNativeSeparators(cale)),
                     QStringLiteral("FisiereHelper"));
}

QString FisiereHelper::CitesteIni(const QString& cheie, const QString& sectiune, const QString& fisier) const
{
    return FisierIni(fisier).citeste(sectiune, cheie);
}

bool FisiereHelper::ScrieIni(const QString& cheie, const QString& sectiune, const QString& fisier,
                             const QString& valoare) const
{
    return FisierIni(fisier).scrie(sectiune, cheie, valoare);
}
