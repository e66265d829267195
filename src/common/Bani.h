#pragma once
#include <QString>
#include <QVariant>
#include <compare>
#include <cstdint>

// Money in lei: fixed point with four decimals, as the office's currency columns hold it.
// Never a float in the logic; a double only at the edges (a database value, a division).
class Bani {
public:
    constexpr Bani() = default;
    static constexpr Bani dinUnitati(std::int64_t zecimiDeMii) { Bani b; b.m_u = zecimiDeMii; return b; }
    // Rounded to four decimals, halves away from zero.
    static Bani dinDouble(double v);
    // The leading number of a text (ValoareNumerica), rounded to four decimals.
    static Bani dinText(const QString& text);
    // A database value: NULL and empty are 0.
    static Bani dinVariant(const QVariant& v);

    constexpr std::int64_t unitati() const { return m_u; }
    double toDouble() const { return static_cast<double>(m_u) / 10000.0; }
    // The shortest text with the point: 166.6667, 200, 0.5.
    QString text() const;
    // Always two decimals or more: TextSuma of the value.
    QString textSuma() const;
    // The value for a bound SQL parameter.
    QVariant variant() const { return toDouble(); }

    constexpr bool esteZero() const { return m_u == 0; }
    constexpr auto operator<=>(const Bani&) const = default;
    constexpr Bani operator+(Bani o) const { return dinUnitati(m_u + o.m_u); }
    constexpr Bani operator-(Bani o) const { return dinUnitati(m_u - o.m_u); }
    Bani& operator+=(Bani o) { m_u += o.m_u; return *this; }
    Bani& operator-=(Bani o) { m_u -= o.m_u; return *this; }

private:
    std::int64_t m_u = 0;
};

// A money column as a text box shows it: "" for NULL.
QString TextBaniBD(const QVariant& v);

constexpr Bani Lei(std::int64_t lei) { return Bani::dinUnitati(lei * 10000); }
