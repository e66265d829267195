#include "database/ValoriColoane.h"

#include "common/Bani.h"
#include "common/Text.h"
#include "database/Schema.h"

#include <QLocale>

#include <cfloat>
#include <cmath>
#include <optional>

namespace {

struct Interval {
    double minim;
    double maxim;
};

std::optional<Interval> intervalIntreg(TipCamp tip)
{
    switch (tip) {
    case TipCamp::Octet: return Interval{0, 255};
    case TipCamp::Intreg: return Interval{-32768, 32767};
    case TipCamp::Lung: return Interval{-2147483648.0, 2147483647.0};
    default: return std::nullopt;
    }
}

QString textValoare(const QVariant& v)
{
    // As the number was written: 0.00004, not 4e-05; the huge ones with their exponent.
    if (v.typeId() == QMetaType::Double) {
        const double d = v.toDouble();
        return QString::number(d, std::abs(d) < 1e15 ? 'f' : 'g', QLocale::FloatingPointShortest);
    }
    return v.toString().trimmed();
}

// The digits after the point of a number as it was written (a text by the leading-number
// rule, a double by its shortest exact text), trailing zeros left out.
int zecimale(const QVariant& v)
{
    QString t;
    if (v.typeId() == QMetaType::QString) {
        const QString s = v.toString().trimmed();
        qsizetype i = 0;
        if (i < s.size() && (s[i] == QLatin1Char('-') || s[i] == QLatin1Char('+')))
            ++i;
        while (i < s.size() && s[i].isDigit())
            ++i;
        if (i < s.size() && s[i] == QLatin1Char('.')) {
            const qsizetype inceput = ++i;
            while (i < s.size() && s[i].isDigit())
                ++i;
            t = s.mid(inceput, i - inceput);
        }
    } else if (v.typeId() == QMetaType::LongLong || v.typeId() == QMetaType::Int) {
        return 0; // a whole number has no decimals to count
    } else {
        const double d = v.toDouble();
        if (std::isfinite(d) && d == std::trunc(d))
            return 0; // a whole number written as a double: no text to make
        const QString s = QString::number(d, 'f', QLocale::FloatingPointShortest);
        const qsizetype punct = s.indexOf(QLatin1Char('.'));
        if (punct >= 0)
            t = s.mid(punct + 1);
    }
    while (t.endsWith(QLatin1Char('0')))
        t.chop(1);
    return int(t.size());
}

QString mesajInterval(const QString& camp, const QVariant& v, const QString& minim, const QString& maxim)
{
    return QStringLiteral("Valoarea %1 nu incape in campul %2, care primeste numere intre %3 si %4. Corectati!")
        .arg(textValoare(v), camp, minim, maxim);
}

QString mesajText(const QString& camp, qsizetype lungime, int maxim)
{
    return QStringLiteral("Textul din campul %1 are %2 caractere, iar campul primeste cel mult %3. Corectati!")
        .arg(camp)
        .arg(lungime)
        .arg(maxim);
}

bool esteText(const QVariant& v)
{
    return v.typeId() == QMetaType::QString;
}

// The number of a text by the leading-number rule, infinite when its digits are too many for
// a double (where ValoareNumerica gives 0, which would fit any column).
double numarDinText(const QString& t)
{
    const double v = ValoareNumerica(t);
    if (v != 0)
        return v;
    qsizetype i = 0;
    while (i < t.size() && (t[i] == QLatin1Char(' ') || t[i] == QLatin1Char('\t')))
        ++i;
    if (i < t.size() && (t[i] == QLatin1Char('-') || t[i] == QLatin1Char('+')))
        ++i;
    bool punct = false;
    for (; i < t.size(); ++i) {
        const char16_t c = t[i].unicode();
        if (c == '.' && !punct)
            punct = true;
        else if (c >= '1' && c <= '9')
            return punct ? 0 : HUGE_VAL; // behind the point only zeros: a tiny number
        else if (c != '0')
            break;
    }
    return 0;
}

double numar(const QVariant& v)
{
    return esteText(v) ? numarDinText(v.toString()) : v.toDouble();
}

QString inAfara(const Camp& c, const QVariant& v)
{
    if (v.isNull() || !v.isValid())
        return QString();
    switch (c.tip) {
    case TipCamp::Octet:
    case TipCamp::Intreg:
    case TipCamp::Lung: {
        const Interval i = *intervalIntreg(c.tip);
        const double d = std::round(numar(v));
        if (!std::isfinite(d) || d < i.minim || d > i.maxim)
            return mesajInterval(c.nume, v, QString::number(i.minim, 'f', 0), QString::number(i.maxim, 'f', 0));
        // A fraction is never rounded into a whole-number column.
        if (zecimale(v) > 0)
            return QStringLiteral("Valoarea %1 nu incape in campul %2, care primeste numai numere intregi. Corectati!")
                .arg(textValoare(v), c.nume);
        return QString();
    }
    case TipCamp::Moneda: {
        const bool incape =
            esteText(v) ? Bani::citeste(v.toString()).has_value() : Bani::dinDoubleExact(v.toDouble()).has_value();
        if (!incape)
            return mesajInterval(c.nume, v, Bani::minim().text(), Bani::maxim().text());
        // Money keeps four decimals: a fifth is never rounded away.
        if (zecimale(v) > 4)
            return QStringLiteral(
                       "Valoarea %1 are mai mult de patru zecimale, iar campul %2 pastreaza sumele cu cel mult "
                       "patru zecimale. Corectati!")
                .arg(textValoare(v), c.nume);
        return QString();
    }
    case TipCamp::Simplu:
    case TipCamp::Dublu: {
        const double d = numar(v);
        const double maxim = c.tip == TipCamp::Simplu ? double(FLT_MAX) : DBL_MAX;
        if (std::isfinite(d) && std::abs(d) <= maxim)
            return QString();
        return mesajInterval(c.nume, v, QString::number(-maxim, 'g', 8), QString::number(maxim, 'g', 8));
    }
    case TipCamp::Text: {
        const int marime = c.marime > 0 ? c.marime : 255;
        const QString t = esteText(v) ? v.toString() : TextNumar(v.toDouble());
        return t.size() <= marime ? QString() : mesajText(c.nume, t.size(), marime);
    }
    case TipCamp::Data:
    case TipCamp::DaNu:
    case TipCamp::Memo: break;
    }
    return QString();
}

} // namespace

QString ValoareInAfaraColoanei(const QString& tabela, const QString& coloana, const QVariant& valoare)
{
    const Camp* c = GasesteCamp(tabela, coloana);
    Q_ASSERT_X(c, "ValoareInAfaraColoanei", "column not in the schema");
    return c ? inAfara(*c, valoare) : QString();
}

QString ValoareInAfaraColoanei(const Camp& coloana, const QVariant& valoare)
{
    return inAfara(coloana, valoare);
}

const Camp* GasesteCamp(const QString& tabela, const QString& coloana)
{
    const Tabela* t = GasesteTabela(tabela);
    if (!t)
        return nullptr;
    // Asked for every value checked: the name as the schema writes it is found at once.
    for (const Camp& c : t->campuri)
        if (c.nume == coloana)
            return &c;
    for (const Camp& c : t->campuri)
        if (c.nume.compare(coloana, Qt::CaseInsensitive) == 0)
            return &c;
    return nullptr;
}
