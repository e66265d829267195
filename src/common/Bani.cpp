#include "common/Bani.h"

#include "common/Text.h"

#include <cmath>

Bani Bani::dinDouble(double v)
{
    if (!std::isfinite(v))
        return {};
    const double u = std::round(v * 10000.0);
    if (u > 9.0e17 || u < -9.0e17)
        return {};
    return dinUnitati(static_cast<std::int64_t>(u));
}

Bani Bani::dinText(const QString& text)
{
    return dinDouble(ValoareNumerica(text));
}

Bani Bani::dinVariant(const QVariant& v)
{
    if (v.isNull() || !v.isValid())
        return {};
    if (v.typeId() == QMetaType::QString)
        return dinText(v.toString());
    return dinDouble(v.toDouble());
}

QString Bani::text() const
{
    const bool neg = m_u < 0;
    const std::int64_t a = neg ? -m_u : m_u;
    QString t = QString::number(a / 10000);
    std::int64_t f = a % 10000;
    if (f) {
        QString fr = QStringLiteral("%1").arg(f, 4, 10, QLatin1Char('0'));
        while (fr.endsWith(QLatin1Char('0')))
            fr.chop(1);
        t += QLatin1Char('.') + fr;
    }
    return neg ? QLatin1Char('-') + t : t;
}

QString Bani::textSuma() const
{
    return TextSuma(toDouble());
}

QString TextBaniBD(const QVariant& v)
{
    return v.isNull() ? QString() : Bani::dinVariant(v).text();
}
