#include "reports/RandareGrid.h"

#include <QFont>
#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

namespace {

int flaguri(int aliniere, bool wrap)
{
    int f = wrap ? Qt::TextWordWrap : 0;
    switch (aliniere) {
    case ReportGrid::Centru: return f | Qt::AlignHCenter | Qt::AlignVCenter;
    case ReportGrid::Dreapta: return f | Qt::AlignRight | Qt::AlignVCenter;
    case ReportGrid::CentruSus: return f | Qt::AlignHCenter | Qt::AlignTop;
    default: return f | Qt::AlignLeft | Qt::AlignVCenter;
    }
}

} // namespace

QFont FontCelula(const ReportGrid& g, int r, int c)
{
    QFont f(g.FontName());
    // Points at 96 pixels to the inch, so that the font scales with the painter.
    f.setPixelSize(std::max(1, int(g.MarimeEfectiva(r, c) * 96.0 / 72.0 + 0.5)));
    f.setBold(g.BoldEfectiv(r, c));
    return f;
}

namespace {

QPen pen(int stil, const QColor& culoare = Qt::black)
{
    return QPen(culoare, stil == ReportGrid::Groasa ? 2.0 : 1.0);
}

} // namespace

double LatimeGrid(const ReportGrid& g)
{
    double l = 0;
    for (int c = 1; c < g.Cols(); ++c)
        l += std::max(0.0, g.ColumnWidth(c));
    return l;
}

void DeseneazaRanduri(QPainter& p, const ReportGrid& g, const QList<int>& randuri, QPointF origine, ModDesen mod)
{
    const int n = randuri.size();
    QList<double> y(n + 1, origine.y());
    for (int i = 0; i < n; ++i)
        y[i + 1] = y[i] + std::max(0.0, g.RowHeight(randuri[i]));
    QList<double> x(g.Cols() + 1, origine.x());
    for (int c = 1; c < g.Cols(); ++c)
        x[c + 1] = x[c] + std::max(0.0, g.ColumnWidth(c));
    const bool ecran = mod == ModDesen::Ecran;
    const auto& culori = g.CuloriEcran();
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);

    // The rectangle of the cell, or of its merge from this row down as far as the list runs on.
    const auto dreptunghi = [&](int i, int c, int& ancoraR, int& ancoraC) -> bool {
        const int r = randuri[i];
        const int m = g.UnireLa(r, c);
        ancoraR = r;
        ancoraC = c;
        if (m < 0)
            return true;
        const auto& u = g.Uniri()[m];
        const bool primulRand = r == u.r1 || i == 0 || randuri[i - 1] != r - 1 || g.UnireLa(r - 1, c) != m;
        if (c != u.c1 || !primulRand)
            return false;
        ancoraR = u.r1;
        return true;
    };

    if (ecran)
        p.fillRect(QRectF(x[1], y[0], x[g.Cols()] - x[1], y[n] - y[0]), culori.fundal);

    for (int i = 0; i < n; ++i) {
        const int r = randuri[i];
        if (g.RowHeight(r) <= 0)
            continue;
        for (int c = 1; c < g.Cols(); ++c) {
            int ar, ac;
            if (!dreptunghi(i, c, ar, ac))
                continue;
            int c2 = c, j = i + 1;
            const int m = g.UnireLa(r, c);
            if (m >= 0) {
                const auto& u = g.Uniri()[m];
                c2 = u.c2;
                while (j < n && randuri[j] == randuri[j - 1] + 1 && randuri[j] <= u.r2)
                    ++j;
            }
            const QRectF rect(x[c], y[i], x[c2 + 1] - x[c], y[j] - y[i]);
            if (rect.width() <= 0 || rect.height() <= 0)
                continue;
            if (ecran) {
                p.setPen(QPen(culori.linii, 1));
                p.drawRect(rect);
            }
            const QString text = g.CellText(ar, ac);
            if (text.isEmpty())
                continue;
            p.setPen(Qt::black);
            p.setFont(FontCelula(g, ar, ac));
            const QRectF interior = rect.adjusted(SpatiuCelula, 1, -SpatiuCelula, -1);
            p.save();
            p.setClipRect(rect);
            p.drawText(interior, flaguri(g.AliniereEfectiva(ar, ac), g.Cell(ar, ac).wrap), text);
            p.restore();
        }
    }

    // The report's own borders, never across the inside of a merge.
    for (int i = 0; i < n; ++i) {
        const int r = randuri[i];
        for (int c = 1; c < g.Cols(); ++c) {
            const auto& b = g.Cell(r, c).bordura;
            const int m = g.UnireLa(r, c);
            const auto interior = [&](int r2, int c2) { return m >= 0 && g.UnireLa(r2, c2) == m; };
            if (b[0] && !interior(r, c - 1)) {
                p.setPen(pen(b[0]));
                p.drawLine(QPointF(x[c], y[i]), QPointF(x[c], y[i + 1]));
            }
            if (b[1] && !interior(r, c + 1)) {
                p.setPen(pen(b[1]));
                p.drawLine(QPointF(x[c + 1], y[i]), QPointF(x[c + 1], y[i + 1]));
            }
            if (b[2] && !interior(r - 1, c)) {
                p.setPen(pen(b[2]));
                p.drawLine(QPointF(x[c], y[i]), QPointF(x[c + 1], y[i]));
            }
            if (b[3] && !interior(r + 1, c)) {
                p.setPen(pen(b[3]));
                p.drawLine(QPointF(x[c], y[i + 1]), QPointF(x[c + 1], y[i + 1]));
            }
        }
    }
    p.restore();
}

QList<QList<int>> PaginiGrid(const ReportGrid& g, double inaltime)
{
    QList<QList<int>> pagini;
    const int h1 = g.AntetPrimul(), h2 = g.AntetUltimul();
    QList<int> antet;
    double inaltimeAntet = 0;
    if (h1 > 0 && h2 >= h1)
        for (int r = h1; r <= h2 && r < g.Rows(); ++r) {
            antet << r;
            inaltimeAntet += g.RowHeight(r);
        }
    QList<int> pagina;
    double folosit = 0;
    int proprii = 0; // rows of the page's own, besides the repeated head
    for (int r = 1; r < g.Rows(); ++r) {
        const double h = g.RowHeight(r);
        if (h <= 0)
            continue;
        if (proprii > 0 && folosit + h > inaltime) {
            pagini << pagina;
            pagina.clear();
            folosit = 0;
            proprii = 0;
            if (!antet.isEmpty() && r > h2) {
                pagina = antet;
                folosit = inaltimeAntet;
            }
        }
        pagina << r;
        folosit += h;
        ++proprii;
    }
    if (proprii > 0 || pagini.isEmpty())
        pagini << pagina;
    return pagini;
}

void AplicaPagina(const ReportGrid& g, QPagedPaintDevice& dev)
{
    const auto& s = g.PageSetup();
    const QPageSize::PageSizeId hartie = s.hartie == 8 ? QPageSize::A3 : s.hartie == 11 ? QPageSize::A5 : QPageSize::A4;
    const QMarginsF margini(s.stanga * 10, s.sus * 10, s.dreapta * 10, s.jos * 10);
    dev.setPageLayout(QPageLayout(QPageSize(hartie), s.orientare == 1 ? QPageLayout::Portrait : QPageLayout::Landscape,
                                  margini, QPageLayout::Millimeter));
}

int TiparesteGrid(const ReportGrid& g, QPagedPaintDevice& dev, int doarPagina)
{
    const QRectF zona = dev.pageLayout().paintRectPixels(dev.logicalDpiX());
    double scara = dev.logicalDpiX() / 96.0;
    const double latime = LatimeGrid(g);
    if (latime * scara > zona.width() && latime > 0)
        scara = zona.width() / latime;
    const auto pagini = PaginiGrid(g, zona.height() / scara);
    QPainter p;
    if (!p.begin(&dev))
        return -1;
    bool prima = true;
    for (int i = 0; i < pagini.size(); ++i) {
        if (doarPagina > 0 && i + 1 != doarPagina)
            continue;
        if (!prima)
            dev.newPage();
        prima = false;
        p.save();
        p.scale(scara, scara);
        DeseneazaRanduri(p, g, pagini[i], QPointF(0, 0), ModDesen::Hartie);
        p.restore();
    }
    p.end();
    return int(pagini.size());
}

bool ScriePdf(const ReportGrid& g, const QString& cale)
{
    QPdfWriter pdf(cale);
    pdf.setResolution(300);
    AplicaPagina(g, pdf);
    return TiparesteGrid(g, pdf) >= 0;
}
