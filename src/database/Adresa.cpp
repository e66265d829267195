#include "database/Adresa.h"

QString AdresaCerere(const QString& localitate, const QString& strada, const QString& nr, const QString& sc,
                     const QString& ap, const QString& strSat)
{
    QString a = localitate;
    if (!strada.isEmpty())
        a += QStringLiteral(", ") + strSat + QLatin1Char(' ') + strada;
    if (!nr.isEmpty())
        a += QStringLiteral(", nr. ") + nr;
    if (!sc.isEmpty())
        a += QStringLiteral(", sc. ") + sc;
    if (!ap.isEmpty())
        a += QStringLiteral(", ap. ") + ap;
    return a;
}
