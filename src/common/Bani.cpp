#include "common/Bani.h"

#include "common/Text.h"

#include <cmath>

std::optional<Bani> Bani::dinDoubleExact(double v)
{
    if (!std::isfinite(v))
        return std::nullopt;
    // Whole lei and the fraction apart: both are exact in a double, so a large amount keeps
    // its decimals (v * 10000 would round them away above 2^53 units).
    const double intreg = std::trunc(v);
    if (std::abs(intreg) > static_cast<double>(maxim().m_u / 10000))
        return std::nullopt;
    const auto lei = static_cast<std::int64_t>(intreg);
    return Lei(lei).plus(dinUnitati(std::llround((v - intreg) * 10000.0)));
}

Bani Bani::dinDouble(double v)
{
    return dinDoubleExact(v).value_or(Bani());
}

std::optional<Bani> Bani::citeste(const QString& text)
{
    qsizetype i = 0;
    const qsizetype n = text.size();
    while (i < n && (text[i] == QLatin1Char(' ') || text[i] == QLatin1Char('\t')))
        ++i;
    bool negativ = false;
    if (i < n && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+')))
        negativ = text[i++] == QLatin1Char('-');
    // Whole lei and the first five decimals (the fifth decides the rounding); the magnitude is
    // gathered as unsigned so that the smallest negative amount is read too.
    constexpr std::uint64_t Limita = static_cast<std::uint64_t>(INT64_MAX);
    std::uint64_t lei = 0;
    std::uint64_t fractie = 0;
    int zecimale = 0;
    bool punct = false;
    bool depasit = false;
    for (; i < n; ++i) {
        const char16_t c = text[i].unicode();
        if (c == '.' && !punct) {
            punct = true;
            continue;
        }
        if (c < '0' || c > '9')
            break;
        const unsigned cifra = c - '0';
        if (!punct) {
            if (lei > (Limita - cifra) / 10)
                depasit = true;
            else
                lei = lei * 10 + cifra;
        } else if (zecimale < 5) {
            fractie = fractie * 10 + cifra;
            ++zecimale;
        }
    }
    if (depasit)
        return std::nullopt;
    while (zecimale < 5) {
        fractie *= 10;
        ++zecimale;
    }
    const std::uint64_t rotunjit = (fractie + 5) / 10; // halves away from zero
    if (lei > (Limita - rotunjit) / 10000)
        return std::nullopt;
    const auto u = static_cast<std::int64_t>(lei * 10000 + rotunjit);
    return dinUnitati(negativ ? -u : u);
}

Bani Bani::dinText(const QString& text)
{
    return citeste(text).value_or(Bani());
}

Bani Bani::dinVariant(const QVariant& v)
{
    if (v.isNull() || !v.isValid())
        return {};
    switch (v.typeId()) {
    case QMetaType::QString: return dinText(v.toString());
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong: {
        const qint64 lei = v.toLongLong();
        return lei > INT64_MAX / 10000 || lei < -INT64_MAX / 10000 ? Bani() : Lei(lei);
    }
    default: return dinDouble(v.toDouble());
    }
}

QVariant Bani::variant() const
{
    if (m_u % 10000 == 0)
        return QVariant::fromValue<qlonglong>(m_u / 10000);
    return toDouble();
}

std::optional<Bani> Bani::plus(Bani o) const
{
    if ((o.m_u > 0 && m_u > maxim().m_u - o.m_u) || (o.m_u < 0 && m_u < minim().m_u - o.m_u))
        return std::nullopt;
    return dinUnitati(m_u + o.m_u);
}

namespace {

// The amount with at least `minZecimale` decimals and every further one that is not a
// trailing zero, made in place: lists and reports write one for every row.
QString textZecimale(std::int64_t u, int minZecimale)
{
    char buf[32];
    int n = 0;
    const bool neg = u < 0;
    const std::uint64_t a = neg ? std::uint64_t(0) - std::uint64_t(u) : std::uint64_t(u);
    if (neg)
        buf[n++] = '-';
    char cifre[20];
    int k = 0;
    std::uint64_t intreg = a / 10000;
    do {
        cifre[k++] = char('0' + intreg % 10);
        intreg /= 10;
    } while (intreg);
    while (k)
        buf[n++] = cifre[--k];
    const int f = int(a % 10000);
    const char fractie[4] = {char('0' + f / 1000), char('0' + f / 100 % 10), char('0' + f / 10 % 10),
                             char('0' + f % 10)};
    int z = 4;
    while (z > minZecimale && fractie[z - 1] == '0')
        --z;
    if (z > 0) {
        buf[n++] = '.';
        for (int i = 0; i < z; ++i)
            buf[n++] = fractie[i];
    }
    return QString::fromLatin1(buf, n);
}

} // namespace

QString Bani::text() const
{
    return textZecimale(m_u, 0);
}

QString Bani::textFix() const
{
    const bool neg = m_u < 0;
    const std::uint64_t a = neg ? std::uint64_t(0) - std::uint64_t(m_u) : std::uint64_t(m_u);
    const QString t = QStringLiteral("%1.%2").arg(a / 10000).arg(a % 10000, 4, 10, QLatin1Char('0'));
    return neg ? QLatin1Char('-') + t : t;
}

QString Bani::textSuma() const
{
    return textZecimale(m_u, 2);
}

QString TextBaniBD(const QVariant& v)
{
    return v.isNull() ? QString() : Bani::dinVariant(v).text();
}
