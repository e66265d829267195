#include "CasetePdf.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>
#include <tuple>

namespace {

constexpr double MmPePunct = 25.4 / 72;

QString textXml(QString t)
{
    return t.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&apos;"), QStringLiteral("'"))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

// A box rounded to tenths of a millimetre, the way the saved files keep it.
struct Caseta {
    int x1, y1, x2, y2;
    QString text;
    auto cheie() const { return std::tie(y1, x1, y2, x2, text); }
};

QString mm(int zecimi)
{
    return QStringLiteral("%1.%2").arg(zecimi / 10).arg(zecimi % 10);
}

} // namespace

QList<QList<CuvantPdf>> CuvintePdf(const QString& pdf, QString* eroare)
{
    const QString unealta = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    QProcess p;
    if (!unealta.isEmpty())
        p.start(unealta, {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    if (unealta.isEmpty() || !p.waitForFinished(60000) || p.exitCode() != 0) {
        if (eroare)
            *eroare =
                QStringLiteral("pdftotext -bbox %1: %2").arg(pdf, QString::fromLocal8Bit(p.readAllStandardError()));
        return {};
    }
    const QString html = QString::fromUtf8(p.readAllStandardOutput());
    static const QRegularExpression element(QStringLiteral(
        R"x(<page\b|<word xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="([-\d.]+)" yMax="([-\d.]+)">([^<]*)</word>)x"));
    QList<QList<CuvantPdf>> pagini;
    for (auto it = element.globalMatch(html); it.hasNext();) {
        const auto m = it.next();
        if (m.captured(0).startsWith(QLatin1String("<page"))) {
            pagini.emplaceBack();
            continue;
        }
        if (pagini.isEmpty())
            continue;
        pagini.last().append(CuvantPdf{textXml(m.captured(5)), m.captured(1).toDouble() * MmPePunct,
                                       m.captured(2).toDouble() * MmPePunct, m.captured(3).toDouble() * MmPePunct,
                                       m.captured(4).toDouble() * MmPePunct});
    }
    return pagini;
}

QString CasetePdf(const QString& pdf, QString* eroare)
{
    const QList<QList<CuvantPdf>> pagini = CuvintePdf(pdf, eroare);
    QStringList l;
    for (qsizetype i = 0; i < pagini.size(); ++i) {
        QList<Caseta> c;
        for (const CuvantPdf& w : pagini[i])
            c.append(Caseta{qRound(w.x1 * 10), qRound(w.y1 * 10), qRound(w.x2 * 10), qRound(w.y2 * 10), w.text});
        std::sort(c.begin(), c.end(), [](const Caseta& a, const Caseta& b) { return a.cheie() < b.cheie(); });
        l << QStringLiteral("pagina %1").arg(i + 1);
        for (const Caseta& x : c)
            l << QStringLiteral("%1 %2 %3 %4 %5").arg(mm(x.x1), mm(x.y1), mm(x.x2), mm(x.y2), x.text);
    }
    return l.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
