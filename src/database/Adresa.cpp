#include "database/Adresa.h"

QString AdresaCerere(const QString& localitate, const QString& strada, const QString& nr, const QString& sc,
                     const QString& ap, const QString& strSat)
{
    // Made for every row of a list (and kept by it): the room for the whole address is taken
    // once, and no more than it needs.
    const auto parte = [](const QString& s, qsizetype inainte) { return s.isEmpty() ? 0 : inainte + s.size(); };
    QString a;
    a.reserve(localitate.size() + parte(strada, 3 + strSat.size()) + parte(nr, 6) + parte(sc, 6) + parte(ap, 6));
    a.append(localitate);
    if (!strada.isEmpty())
        a.append(QLatin1String(", ")).append(strSat).append(QLatin1Char(' ')).append(strada);
    if (!nr.isEmpty())
        a.append(QLatin1String(", nr. ")).append(nr);
    if (!sc.isEmpty())
        a.append(QLatin1String(", sc. ")).append(sc);
    if (!ap.isEmpty())
        a.append(QLatin1String(", ap. ")).append(ap);
    return a;
}
