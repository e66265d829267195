#include "GrilaText.h"

#include "reports/ReportGrid.h"

#include <QStringList>

namespace {

QString numar(double v)
{
    return QString::number(v, 'g', 10);
}

QString aliniere(int a)
{
    switch (a) {
    case ReportGrid::Stanga: return QStringLiteral("stanga");
    case ReportGrid::Centru: return QStringLiteral("centru");
    case ReportGrid::Dreapta: return QStringLiteral("dreapta");
    case ReportGrid::CentruSus: return QStringLiteral("centru-sus");
    case ReportGrid::Implicit: return QStringLiteral("implicit");
    default: return QString::number(a);
    }
}

QString stil(int s)
{
    switch (s) {
    case ReportGrid::Subtire: return QStringLiteral("subtire");
    case ReportGrid::Groasa: return QStringLiteral("groasa");
    default: return QString::number(s);
    }
}

// What a column holds for the workbook, when it is not text.
QString continut(ReportGrid::Continut c)
{
    switch (c) {
    case ReportGrid::Intreg: return QStringLiteral(", numere intregi");
    case ReportGrid::Suma: return QStringLiteral(", sume");
    default: return QString();
    }
}

// The cell's own format, "" when it has none.
QString format(const ReportGrid::Celula& x)
{
    QStringList f;
    if (x.aliniere != ReportGrid::Implicit)
        f << aliniere(x.aliniere);
    if (x.bold >= 0)
        f << (x.bold ? QStringLiteral("bold") : QStringLiteral("normal"));
    if (x.marimeFont > 0)
        f << QStringLiteral("marime ") + numar(x.marimeFont);
    if (x.wrap)
        f << QStringLiteral("wrap");
    static const char* const margini[] = {"stanga", "dreapta", "sus", "jos"};
    for (int m = 0; m < 4; ++m)
        if (x.bordura[m])
            f << QStringLiteral("chenar %1 %2").arg(QLatin1String(margini[m]), stil(x.bordura[m]));
    return f.join(QStringLiteral(", "));
}

} // namespace

QString GrilaText(const ReportGrid& g)
{
    QStringList l;
    l << QStringLiteral("grila: %1 coloane, %2 randuri; font %3 %4%5; rand implicit %6%7")
             .arg(g.Cols())
             .arg(g.Rows())
             .arg(g.FontName(), numar(g.FontSize()), g.FontBold() ? QStringLiteral(" bold") : QString(),
                  numar(g.RowHeight(0)), // row 0 is never written: it has the default
                  g.UnitatiFoaie() ? QStringLiteral("; unitati de foaie") : QString());
    const auto& p = g.PageSetup();
    l << QStringLiteral("pagina: hartie %1, orientare %2, margini %3 %4 %5 %6, zoom %7; antet repetat %8-%9")
             .arg(p.hartie)
             .arg(p.orientare)
             .arg(numar(p.stanga), numar(p.dreapta), numar(p.sus), numar(p.jos))
             .arg(p.zoom)
             .arg(g.AntetPrimul())
             .arg(g.AntetUltimul());
    for (int c = 1; c < g.Cols(); ++c)
        l << QStringLiteral("coloana %1: latime %2, aliniere %3%4")
                 .arg(c)
                 .arg(numar(g.ColumnWidth(c)), aliniere(g.ColumnAlign(c)), continut(g.ColumnContent(c)));
    for (int r = 1; r < g.Rows(); ++r)
        if (g.RowHeight(r) != g.RowHeight(0))
            l << QStringLiteral("rand %1: inaltime %2").arg(r).arg(numar(g.RowHeight(r)));
    for (const auto& u : g.Uniri())
        l << QStringLiteral("unire %1,%2 - %3,%4").arg(u.r1).arg(u.c1).arg(u.r2).arg(u.c2);
    for (int r = 1; r < g.Rows(); ++r)
        for (int c = 1; c < g.Cols(); ++c) {
            const auto& x = g.Cell(r, c);
            const QString f = format(x);
            if (x.text.isEmpty() && f.isEmpty())
                continue;
            if (x.text.isEmpty()) {
                // Empty cells of one format side by side: one line.
                int ultima = c;
                while (ultima + 1 < g.Cols() && g.Cell(r, ultima + 1).text.isEmpty() &&
                       format(g.Cell(r, ultima + 1)) == f)
                    ++ultima;
                l << (ultima == c ? QStringLiteral("celula %1,%2: [%3]").arg(r).arg(c).arg(f)
                                  : QStringLiteral("celule %1,%2-%3: [%4]").arg(r).arg(c).arg(ultima).arg(f));
                c = ultima;
                continue;
            }
            QString linie = QStringLiteral("celula %1,%2: \"").arg(r).arg(c) +
                            QString(x.text).replace(QLatin1Char('\n'), QStringLiteral("\\n")) + QLatin1Char('"');
            if (!f.isEmpty())
                linie += QStringLiteral(" [") + f + QLatin1Char(']');
            l << linie;
        }
    return l.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
