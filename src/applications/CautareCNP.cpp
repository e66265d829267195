#include "applications/CautareCNP.h"

#include "database/BD.h"

namespace {

// The ASCII letters only, as the engine's LIKE compares them.
QString litereAscii(const QString& s, bool mari)
{
    QString r = s;
    for (QChar& c : r) {
        const char16_t u = c.unicode();
        if (mari && u >= 'a' && u <= 'z')
            c = QChar(u - 32);
        else if (!mari && u >= 'A' && u <= 'Z')
            c = QChar(u + 32);
    }
    return r;
}

} // namespace

CautareCNP::CautareCNP(const BD& bd, const QString& coloana, const QString& cnp)
{
    if (bd.motor() == BD::Motor::PostgreSQL) {
        // A server orders text by its locale, not by code: the range would not hold there.
        conditie = QStringLiteral("(%1)").arg(bd.conditieLike(coloana));
        parametri = {BD::valoareLike(cnp)};
        return;
    }
    conditie = QStringLiteral("(%1 >= ? AND %1 <= ? AND %2)").arg(coloana, bd.conditieLike(coloana));
    parametri = {litereAscii(cnp, true), litereAscii(cnp, false), BD::valoareLike(cnp)};
}

CautareCNP CautareCNP::inceput(const BD& bd, const QString& coloana, const QString& inceput)
{
    CautareCNP c;
    if (bd.motor() == BD::Motor::PostgreSQL) {
        c.conditie = QStringLiteral("(%1)").arg(bd.conditieLike(coloana));
        c.parametri = {BD::valoarePrefix(inceput)};
        return c;
    }
    c.conditie = QStringLiteral("(%1 >= ? AND %1 <= ? AND %2)").arg(coloana, bd.conditieLike(coloana));
    c.parametri = {litereAscii(inceput, true), litereAscii(inceput, false) + QChar(0xFFFF), BD::valoarePrefix(inceput)};
    return c;
}
