#include "CasetePdf.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>
#include <tuple>

namespace {

struct Caseta {
    int x1, y1, x2, y2; // tenths of a millimetre
    QString text;
    auto cheie() const { return std::tie(y1, x1, y2, x2, text); }
};

int zecimiMm(const QString& puncte)
{
    return qRound(puncte.toDouble() * 254.0 / 72.0);
}

QString mm(int zecimi)
{
    return QStringLiteral("%1.%2").arg(zecimi / 10).arg(zecimi % 10);
}

QString textXml(QString t)
{
    return t.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&apos;"), QStringLiteral("'"))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

} // namespace

QString CasetePdf(const QString& pdf, QString* eroare)
{
    const QString unealta = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    QProcess p;
    if (!unealta.isEmpty())
        p.start(unealta, {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    if (unealta.isEmpty() || !p.waitForFinished(60000) || p.exitCode() != 0) {
        if (eroare)
            *eroare =
                QStringLiteral("pdftotext -bbox %1: %2").arg(pdf, QString::fromLocal8Bit(p.readAllStandardError()));
        return QString();
    }
    const QString html = QString::fromUtf8(p.readAllStandardOutput());
    static const QRegularExpression element(QStringLiteral(
        R"x(<page\b|<word xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="([-\d.]+)" yMax="([-\d.]+)">([^<]*)</word>)x"));
    QList<QList<Caseta>> pagini;
    for (auto it = element.globalMatch(html); it.hasNext();) {
        const auto m = it.next();
        if (m.captured(0).startsWith(QLatin1String("<page"))) {
            pagini.emplaceBack();
            continue;
        }
        if (pagini.isEmpty())
            continue;
        pagini.last().append(Caseta{zecimiMm(m.captured(1)), zecimiMm(m.captured(2)), zecimiMm(m.captured(3)),
                                    zecimiMm(m.captured(4)), textXml(m.captured(5))});
    }
    QStringList l;
    for (qsizetype i = 0; i < pagini.size(); ++i) {
        QList<Caseta>& c = pagini[i];
        std::sort(c.begin(), c.end(), [](const Caseta& a, const Caseta& b) { return a.cheie() < b.cheie(); });
        l << QStringLiteral("pagina %1").arg(i + 1);
        for (const Caseta& x : c)
            l << QStringLiteral("%1 %2 %3 %4 %5").arg(mm(x.x1), mm(x.y1), mm(x.x2), mm(x.y2), x.text);
    }
    return l.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
