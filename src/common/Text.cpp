#include "common/Text.h"

#include <array>
#include <cmath>

double ValoareNumerica(const QString& text)
{
    int i = 0;
    const int n = text.size();
    while (i < n && (text[i] == QLatin1Char(' ') || text[i] == QLatin1Char('\t')))
        ++i;
    QString num;
    if (i < n && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+')))
        num += text[i++];
    bool cifre = false;
    bool punct = false;
    for (; i < n; ++i) {
        const QChar c = text[i];
        if (c.unicode() >= '0' && c.unicode() <= '9') {
            num += c;
            cifre = true;
        } else if (c == QLatin1Char('.') && !punct) {
            num += c;
            punct = true;
        } else {
            break;
        }
    }
    if (!cifre)
        return 0.0;
    bool ok = false;
    const double v = num.toDouble(&ok);
    return ok && std::isfinite(v) ? v : 0.0;
}

qint64 ValoareIntreaga(const QString& text)
{
    const double v = ValoareNumerica(text);
    if (v > 9.0e18 || v < -9.0e18)
        return 0;
    return static_cast<qint64>(std::llround(v));
}

bool EsteNumarIntreg(const QString& text)
{
    const QString t = text.trimmed();
    if (t.isEmpty() || t.size() > 18)
        return false;
    for (const QChar c : t)
        if (c.unicode() < '0' || c.unicode() > '9')
            return false;
    return true;
}

QString DouaCifre(int n)
{
    const QString t = QString::number(n);
    if (t.size() == 1)
        return QLatin1Char('0') + t;
    if (t.size() == 2)
        return t;
    return QString();
}

QString TextIntreg(qint64 n)
{
    static const std::array<QString, 100> mici = [] {
        std::array<QString, 100> a;
        for (int i = 0; i < 100; ++i)
            a[size_t(i)] = QString::number(i);
        return a;
    }();
    return n >= 0 && n < 100 ? mici[size_t(n)] : QString::number(n);
}

QString TextNumar(double x)
{
    QString t = QString::number(x, 'f', 10);
    if (t.contains(QLatin1Char('.'))) {
        while (t.endsWith(QLatin1Char('0')))
            t.chop(1);
        if (t.endsWith(QLatin1Char('.')))
            t.chop(1);
    }
    if (t == QLatin1String("-0"))
        t = QStringLiteral("0");
    return t;
}

QString TextNumarBD(const QVariant& v)
{
    return v.isNull() ? QString() : TextNumar(v.toDouble());
}

QString TextSuma(double x)
{
    const bool negativ = x < 0;
    const QString t = TextNumar(std::fabs(x));
    const int sep = t.indexOf(QLatin1Char('.'));
    const QString intreg = sep < 0 ? t : t.left(sep);
    const QString fractie = sep < 0 ? QString() : t.mid(sep + 1);
    QString r;
    if (fractie.isEmpty())
        r = intreg + QStringLiteral(".00");
    else if (fractie.size() == 1)
        r = intreg + QLatin1Char('.') + fractie + QLatin1Char('0');
    else
        r = t;
    return negativ ? QLatin1Char('-') + r : r;
}

QString CuMajuscula(const QString& s)
{
    if (s.isEmpty())
        return s;
    return s.left(1).toUpper() + s.mid(1);
}

bool EsteCifra(const QString& c)
{
    return c.size() == 1 && c[0].unicode() >= 48 && c[0].unicode() <= 57;
}

bool InInterval(const QString& s, double min, double max)
{
    const double v = ValoareNumerica(s);
    return v >= min && v <= max;
}

void ImparteLaSpatiu(const QString& s, QString& first, QString& rest)
{
    const int p = s.indexOf(QLatin1Char(' '));
    if (p < 0)
        return;
    first = s.left(p);
    rest = s.mid(p + 1);
}

QString TextPanaLaParanteza(const QString& s)
{
    const int p = s.indexOf(QLatin1Char('('));
    return (p < 0 ? s : s.left(p)).trimmed();
}

QStringList LitereDinText(const QString& s)
{
    QStringList r;
    r.reserve(s.size());
    for (const QChar c : s)
        r << QString(c);
    return r;
}
