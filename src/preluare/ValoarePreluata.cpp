// One value of the old file checked against its column and made into what the column stores.
#include "preluare/Preluare.h"

#include "database/Schema.h"
#include "database/ValoriColoane.h"
#include "common/Data.h"
#include "common/Text.h"

#include <cmath>
#include <optional>

namespace {

QString textJson(const QJsonValue& v)
{
    if (v.isString())
        return v.toString();
    if (v.isDouble())
        return TextNumar(v.toDouble());
    if (v.isBool())
        return v.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    return QString();
}

// A number as the old file gives it: a JSON number, or a text that is wholly a number.
std::optional<double> numarJson(const QJsonValue& v)
{
    if (v.isDouble())
        return v.toDouble();
    if (v.isString()) {
        bool ok = false;
        const double d = v.toString().trimmed().toDouble(&ok);
        if (ok)
            return d;
    }
    return std::nullopt;
}

// "YYYY-MM-DD" or "YYYY-MM-DD HH:MM:SS", the forms of mdb-json's dates.
bool formaData(const QString& d)
{
    static const char forma[] = "0000-00-00 00:00:00";
    if (d.size() != 10 && d.size() != 19)
        return false;
    for (qsizetype i = 0; i < d.size(); ++i)
        if (forma[i] == '0' ? !d[i].isDigit() : d[i] != QLatin1Char(forma[i]))
            return false;
    return true;
}

} // namespace

QString ValoarePreluata(const Camp& c, const QJsonValue& v, QVariant& out)
{
    out = QVariant();
    if (v.isNull() || v.isUndefined())
        return QString();
    switch (c.tip) {
    case TipCamp::Data: {
        const QString t = textJson(v);
        const QString d = t.trimmed();
        if (formaData(d) && (d.mid(5, 2) == QLatin1String("00") || d.mid(8, 2) == QLatin1String("00")))
            return QStringLiteral("data din campul %1 (\"%2\") nu a putut fi citita de mdbtools: este inainte de "
                                  "1900 sau dupa 9999")
                .arg(c.nume, t);
        const QDate data = formaData(d) ? QDate(QStringView(d).left(4).toInt(), QStringView(d).mid(5, 2).toInt(),
                                                QStringView(d).mid(8, 2).toInt())
                                        : QDate();
        if (!data.isValid())
            return QStringLiteral("campul %1 primeste o data, iar randul are \"%2\"").arg(c.nume, t);
        out = DataPentruBD(data);
        return QString();
    }
    case TipCamp::DaNu:
        if (v.isBool()) {
            out = v.toBool();
            return QString();
        }
        if (const auto n = numarJson(v); n && (*n == 0 || *n == 1 || *n == -1)) {
            out = *n != 0;
            return QString();
        }
        return QStringLiteral("campul %1 primeste Da sau Nu, iar randul are \"%2\"").arg(c.nume, textJson(v));
    case TipCamp::Text:
    case TipCamp::Memo: {
        const QString t = textJson(v);
        if (v.isBool() || v.isArray() || v.isObject())
            return QStringLiteral("campul %1 primeste un text, iar randul are %2").arg(c.nume, t);
        if (const QString m = ValoareInAfaraColoanei(c, t); !m.isEmpty())
            return m;
        out = t;
        return QString();
    }
    default: break;
    }

    const std::optional<double> n = numarJson(v);
    if (!n)
        return QStringLiteral("Valoarea \"%1\" din campul %2 nu este un numar.").arg(textJson(v), c.nume);
    // The column's own check: its range, a whole number where it takes one, money with at
    // most four decimals.
    // A whole number goes as one: nothing of it to write out again to count its decimals.
    const bool intreg = std::abs(*n) < 9e15 && std::floor(*n) == *n;
    if (const QString m = ValoareInAfaraColoanei(c, intreg ? QVariant(qint64(*n)) : QVariant(*n)); !m.isEmpty())
        return m;
    switch (c.tip) {
    case TipCamp::Octet:
    case TipCamp::Intreg:
    case TipCamp::Lung: out = qint64(*n); return QString();
    case TipCamp::Moneda: {
        const std::optional<Bani> b = v.isString() ? Bani::citeste(v.toString().trimmed()) : Bani::dinDoubleExact(*n);
        if (!b)
            return QStringLiteral("Valoarea %1 din campul %2 nu este o suma.").arg(textJson(v), c.nume);
        out = b->variant();
        return QString();
    }
    default: out = *n; return QString();
    }
}

QString ValoarePreluata(const QString& tabela, const QString& coloana, const QJsonValue& v, QVariant& out)
{
    const Camp* c = GasesteCamp(tabela, coloana);
    return c ? ValoarePreluata(*c, v, out) : QStringLiteral("coloana %1 nu este a tabelei %2").arg(coloana, tabela);
}
