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
    return DouaCifre(d.day()) + separator + DouaCifre(d.month()) + separator + QString::number(d.year());
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
    QDate d = QDate::fromString(t.left(10), Qt::ISODate);
    return d;
}
