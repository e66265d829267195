#include "reports/ReportGrid.h"

#include <algorithm>

namespace {
const ReportGrid::Celula CelulaGoala{};
}

ReportGrid::ReportGrid()
{
    SetCols(2);
    SetRows(2);
}

void ReportGrid::Goleste()
{
    const quint64 versiune = m_versiune;
    *this = ReportGrid();
    m_versiune = versiune + 1;
}

void ReportGrid::SetCols(int n)
{
    n = std::max(0, n);
    if (n != m_cols) {
        // Each row keeps its cells up to the new width.
        std::vector<Celula> celule(size_t(m_randuri) * size_t(n));
        for (int r = 0; r < m_randuri; ++r)
            for (int c = 0; c < std::min(n, m_cols); ++c)
                celule[size_t(r) * size_t(n) + size_t(c)] = std::move(cel(r, c));
        m_celule = std::move(celule);
    }
    m_cols = n;
    m_latimi.resize(m_cols, LatimeImplicita);
    m_alinieri.resize(m_cols, Implicit);
    m_continut.resize(m_cols, Text);
}

void ReportGrid::SetRows(int n)
{
    n = std::max(0, n);
    m_randuri = n;
    m_celule.resize(size_t(n) * size_t(m_cols));
    m_inaltimi.resize(n, -1);
    // Merges that reach past the new end go with the rows they stood on.
    if (std::erase_if(m_uniri, [&](const Unire& u) { return u.r2 >= n; }) > 0)
        reindexeaza();
}

void ReportGrid::reindexeaza()
{
    m_unireCelula.clear();
    for (int i = 0; i < int(m_uniri.size()); ++i)
        for (int r = m_uniri[i].r1; r <= m_uniri[i].r2; ++r)
            for (int c = m_uniri[i].c1; c <= m_uniri[i].c2; ++c)
                m_unireCelula.insert(cheie(r, c), i);
}

void ReportGrid::SetColumnWidth(int c, double latime)
{
    if (c >= 0 && c < m_cols)
        m_latimi[c] = latime;
}

void ReportGrid::SetColumnAlign(int c, int aliniere)
{
    if (c >= 0 && c < m_cols)
        m_alinieri[c] = qint8(aliniere);
}

void ReportGrid::SetColumnContent(int c, Continut continut)
{
    if (c >= 0 && c < m_cols)
        m_continut[c] = continut;
}

ReportGrid::Continut ReportGrid::ColumnContent(int c) const
{
    return c >= 0 && c < m_cols ? m_continut[c] : Text;
}

double ReportGrid::ColumnWidth(int c) const
{
    return c >= 0 && c < m_cols ? m_latimi[c] : 0;
}

int ReportGrid::ColumnAlign(int c) const
{
    return c >= 0 && c < m_cols ? int(m_alinieri[c]) : int(Implicit);
}

void ReportGrid::SetRowHeight(int r, double inaltime)
{
    if (r >= 0 && r < Rows())
        m_inaltimi[r] = inaltime;
}

void ReportGrid::SetDefaultRowHeight(double inaltime)
{
    m_inaltimeImplicita = inaltime;
}

double ReportGrid::RowHeight(int r) const
{
    if (r < 0 || r >= Rows())
        return 0;
    return m_inaltimi[r] < 0 ? m_inaltimeImplicita : m_inaltimi[r];
}

void ReportGrid::SetDefaultFont(const QString& nume, double marime, bool bold)
{
    m_font = nume;
    m_marimeFont = marime;
    m_bold = bold;
}

ReportGrid::Celula& ReportGrid::cel(int r, int c)
{
    return m_celule[size_t(r) * size_t(m_cols) + size_t(c)];
}

const ReportGrid::Celula& ReportGrid::Cell(int r, int c) const
{
    return valid(r, c) ? m_celule[size_t(r) * size_t(m_cols) + size_t(c)] : CelulaGoala;
}

void ReportGrid::SetCellText(int r, int c, const QString& text)
{
    if (valid(r, c))
        cel(r, c).text = text;
}

void ReportGrid::SetCellAlign(int r, int c, int aliniere)
{
    if (valid(r, c))
        cel(r, c).aliniere = qint8(aliniere);
}

void ReportGrid::SetCellBold(int r, int c, bool bold)
{
    if (valid(r, c))
        cel(r, c).bold = bold ? 1 : 0;
}

void ReportGrid::SetCellFontSize(int r, int c, double marime)
{
    if (valid(r, c))
        cel(r, c).marimeFont = float(marime);
}

QString ReportGrid::CellText(int r, int c) const
{
    return Cell(r, c).text;
}

void ReportGrid::limiteaza(int& r1, int& c1, int& r2, int& c2) const
{
    if (r1 > r2)
        std::swap(r1, r2);
    if (c1 > c2)
        std::swap(c1, c2);
    r1 = std::max(r1, 0);
    c1 = std::max(c1, 0);
    r2 = std::min(r2, Rows() - 1);
    c2 = std::min(c2, m_cols - 1);
}

void ReportGrid::MergeRange(int r1, int c1, int r2, int c2)
{
    limiteaza(r1, c1, r2, c2);
    if (r1 > r2 || c1 > c2 || (r1 == r2 && c1 == c2))
        return;
    // A rectangle that overlaps one already joined is left alone: the first merge stands.
    for (int r = r1; r <= r2; ++r)
        for (int c = c1; c <= c2; ++c)
            if (m_unireCelula.contains(cheie(r, c)))
                return;
    m_uniri.push_back({r1, c1, r2, c2});
    for (int r = r1; r <= r2; ++r)
        for (int c = c1; c <= c2; ++c)
            m_unireCelula.insert(cheie(r, c), int(m_uniri.size()) - 1);
}

int ReportGrid::UnireLa(int r, int c) const
{
    return m_unireCelula.value(cheie(r, c), -1);
}

void ReportGrid::RangeBold(int r1, int c1, int r2, int c2, bool bold)
{
    pentruFiecare(r1, c1, r2, c2, [&](Celula& x, int, int) { x.bold = bold ? 1 : 0; });
}

void ReportGrid::RangeAlign(int r1, int c1, int r2, int c2, int aliniere)
{
    pentruFiecare(r1, c1, r2, c2, [&](Celula& x, int, int) { x.aliniere = qint8(aliniere); });
}

void ReportGrid::RangeWrap(int r1, int c1, int r2, int c2, bool wrap)
{
    pentruFiecare(r1, c1, r2, c2, [&](Celula& x, int, int) { x.wrap = wrap ? 1 : 0; });
}

void ReportGrid::RangeFontSize(int r1, int c1, int r2, int c2, double marime)
{
    pentruFiecare(r1, c1, r2, c2, [&](Celula& x, int, int) { x.marimeFont = float(marime); });
}

void ReportGrid::RangeBorder(int r1, int c1, int r2, int c2, int margine, int stil)
{
    limiteaza(r1, c1, r2, c2);
    const quint8 st = quint8(stil);
    pentruFiecare(r1, c1, r2, c2, [&](Celula& x, int r, int c) {
        switch (margine) {
        case MargStanga:
            if (c == c1)
                x.bordura[0] = st;
            break;
        case MargDreapta:
            if (c == c2)
                x.bordura[1] = st;
            break;
        case MargSus:
            if (r == r1)
                x.bordura[2] = st;
            break;
        case MargJos:
            if (r == r2)
                x.bordura[3] = st;
            break;
        case InteriorVertical:
            if (c < c2)
                x.bordura[1] = st;
            if (c > c1)
                x.bordura[0] = st;
            break;
        case InteriorOrizontal:
            if (r < r2)
                x.bordura[3] = st;
            if (r > r1)
                x.bordura[2] = st;
            break;
        default: break;
        }
    });
}

void ReportGrid::ClearRange(int r1, int c1, int r2, int c2)
{
    pentruFiecare(r1, c1, r2, c2, [](Celula& x, int, int) { x = Celula{}; });
    limiteaza(r1, c1, r2, c2);
    if (std::erase_if(m_uniri, [&](const Unire& u) { return u.r1 <= r2 && u.r2 >= r1 && u.c1 <= c2 && u.c2 >= c1; }) >
        0)
        reindexeaza();
}

void ReportGrid::AddRow(const QString& text)
{
    AddRow(text.split(QLatin1Char('\t')));
}

void ReportGrid::AddRow(const QStringList& celule)
{
    SetRows(m_randuri + 1);
    const int r = m_randuri - 1;
    for (int i = 0; i < celule.size() && i + 1 < m_cols; ++i)
        cel(r, i + 1).text = celule[i];
}

int ReportGrid::AliniereEfectiva(int r, int c) const
{
    const int a = Cell(r, c).aliniere;
    if (a != Implicit)
        return a;
    const int col = ColumnAlign(c);
    return col != Implicit ? col : Stanga;
}

bool ReportGrid::BoldEfectiv(int r, int c) const
{
    const int b = Cell(r, c).bold;
    return b < 0 ? m_bold : b == 1;
}

double ReportGrid::MarimeEfectiva(int r, int c) const
{
    const float m = Cell(r, c).marimeFont;
    return m > 0 ? m : m_marimeFont;
}
