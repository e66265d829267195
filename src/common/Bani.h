#pragma once
#include <QString>
#include <QVariant>
#include <compare>
#include <cstdint>
#include <optional>

// Money in lei: fixed point with four decimals, as the office's currency columns hold it.
// Never a float in the logic; a double only at the edges (a database value, a division).
class Bani {
public:
    constexpr Bani() = default;
    static constexpr Bani dinUnitati(std::int64_t zecimiDeMii)
    {
        Bani b;
        b.m_u = zecimiDeMii;
        return b;
    }
    // The largest amount a money column holds: 922337203685477.5807 lei.
    static constexpr Bani maxim() { return dinUnitati(INT64_MAX); }
    static constexpr Bani minim() { return dinUnitati(-INT64_MAX); }

    // Rounded to four decimals, halves away from zero; 0 when the value does not fit.
    static Bani dinDouble(double v);
    // The same, with nothing for a value that does not fit (or is not a number).
    static std::optional<Bani> dinDoubleExact(double v);
    // The leading number of a text (the rule of ValoareNumerica), read digit by digit, never
    // through a double, and rounded to four decimals; 0 when it does not fit.
    static Bani dinText(const QString& text);
    // The same, with nothing for a number too large for a money column.
    static std::optional<Bani> citeste(const QString& text);
    // A database value: NULL and empty are 0.
    static Bani dinVariant(const QVariant& v);

    constexpr std::int64_t unitati() const { return m_u; }
    // Whole lei and the fraction converted apart, so that dinDouble gives the amount back.
    double toDouble() const { return static_cast<double>(m_u / 10000) + static_cast<double>(m_u % 10000) / 10000.0; }
    // The shortest text with the point: 166.6667, 200, 0.5.
    QString text() const;
    // Every one of the four decimals: 350.0000, -0.5000 (files and JSON that others read).
    QString textFix() const;
    // Always two decimals or more: TextSuma of the value.
    QString textSuma() const;
    // The value for a bound SQL parameter: whole lei as an integer (exact over the whole
    // range), otherwise a double, which dinVariant reads back to the same four decimals.
    QVariant variant() const;

    constexpr bool esteZero() const { return m_u == 0; }
    constexpr auto operator<=>(const Bani&) const = default;
    constexpr Bani operator+(Bani o) const { return dinUnitati(m_u + o.m_u); }
    constexpr Bani operator-(Bani o) const { return dinUnitati(m_u - o.m_u); }
    Bani& operator+=(Bani o)
    {
        m_u += o.m_u;
        return *this;
    }
    Bani& operator-=(Bani o)
    {
        m_u -= o.m_u;
        return *this;
    }
    // The sum, or nothing when it would pass what a money column holds.
    std::optional<Bani> plus(Bani o) const;

private:
    std::int64_t m_u = 0;
};

// A money column as a text box shows it: "" for NULL.
QString TextBaniBD(const QVariant& v);

constexpr Bani Lei(std::int64_t lei)
{
    return Bani::dinUnitati(lei * 10000);
}
