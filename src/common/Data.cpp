#include "common/Data.h"

#include "common/Text.h"

const QStringList& LunileAnului()
{
    static const QStringList luni = {
        QStringLiteral("Ianuarie"),  QStringLiteral("Februarie"), QStringLiteral("Martie"),
        QStringLiteral("Aprilie"),   QStringLiteral("Mai"),       QStringLiteral("Iunie"),
        QStringLiteral("Iulie"),     QStringLiteral("August"),    QStringLiteral("Septembrie"),
        QStringLiteral("Octombrie"), QStringLiteral("Noiembrie"), QStringLiteral("Decembrie")};
    return luni;
}

QString NumeLuna(int luna)
{
    return luna >= 1 && luna <= 12 ? LunileAnului().at(luna - 1) : QString();
}

QString TextData(const QDate& d, QChar separator)
{
    if (!d.isValid())
        return QString();
    int an = 0, luna = 0, zi = 0;
    d.getDate(&an, &luna, &zi);
    if (an < 1000 || an > 9999)
        return DouaCifre(zi) + separator + DouaCifre(luna) + separator + QString::number(an);
    // Lists and reports write it for every row: one text, made in place.
    QString t(10, Qt::Uninitialized);
    QChar* c = t.data();
    const auto cifra = [](int n) { return QChar(char16_t(u'0' + n)); };
    c[0] = cifra(zi / 10);
    c[1] = cifra(zi % 10);
    c[2] = separator;
    c[3] = cifra(luna / 10);
    c[4] = cifra(luna % 10);
    c[5] = separator;
    c[6] = cifra(an / 1000);
    c[7] = cifra(an / 100 % 10);
    c[8] = cifra(an / 10 % 10);
    c[9] = cifra(an % 10);
    return t;
}

QString TextDataLunga(const QDate& d)
{
    if (!d.isValid())
        return QString();
    return QString::number(d.day()) + QLatin1Char(' ') + NumeLuna(d.month()) + QLatin1Char(' ') +
           QString::number(d.year());
}

QDate CitesteData(const QString& text)
{
    const QString t = text.trimmed();
    // ddmmyyyy, as a clerk types it without the points.
    if (t.size() == 8 && EsteNumarIntreg(t))
        return QDate(t.mid(4).toInt(), t.mid(2, 2).toInt(), t.left(2).toInt());
    const QStringList p = t.split(QLatin1Char('.'));
    if (p.size() != 3)
        return {};
    for (const QString& x : p)
        if (!EsteNumarIntreg(x))
            return {};
    return QDate(p[2].toInt(), p[1].toInt(), p[0].toInt());
}

QDate DataSerial(int an, int luna, int zi)
{
    // Normalise the month first, then let the days run over.
    int m0 = luna - 1;
    int a = an + (m0 >= 0 ? m0 / 12 : -((11 - m0) / 12));
    m0 = ((m0 % 12) + 12) % 12;
    const QDate prima(a, m0 + 1, 1);
    if (!prima.isValid())
        return {};
    return prima.addDays(zi - 1);
}

QVariant DataPentruBD(const QDate& d)
{
    if (!d.isValid())
        return QVariant(QMetaType(QMetaType::QString));
    return d.toString(Qt::ISODate);
}

QDate DataDinBD(const QVariant& v)
{
    if (v.isNull() || !v.isValid())
        return {};
    if (v.typeId() == QMetaType::QDate)
        return v.toDate();
    if (v.typeId() == QMetaType::QDateTime)
        return v.toDateTime().date();
    const QString t = v.toString();
    // "yyyy-mm-dd", read digit by digit: a list reads one for every row.
    const auto cifre = [&](int de, int cate) {
        int n = 0;
        for (int i = de; i < de + cate; ++i) {
            const char16_t c = t[i].unicode();
            if (c < u'0' || c > u'9')
                return -1;
            n = n * 10 + (c - u'0');
        }
        return n;
    };
    if (t.size() >= 10 && t[4] == QLatin1Char('-') && t[7] == QLatin1Char('-')) {
        const int an = cifre(0, 4), luna = cifre(5, 2), zi = cifre(8, 2);
        if (an >= 0 && luna >= 0 && zi >= 0)
            return QDate(an, luna, zi);
    }
    return QDate::fromString(t.left(10), Qt::ISODate);
}
