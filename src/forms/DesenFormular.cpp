#include "forms/DesenFormular.h"

#include "common/Text.h"

void PrintAt(PageSurface& s, double x, double y, const QString& text)
{
    s.CurrentX = x;
    s.CurrentY = y;
    s.PrintText(text);
}

void PrintInBoxes(PageSurface& s, const QString& text, double x, double y, double pas, bool dreaptaStanga)
{
    const QStringList litere = LitereDinText(text);
    const int n = int(litere.size());
    for (int i = 0; i < n; ++i) {
        const double xi = dreaptaStanga ? x - (n - 1 - i) * pas : x + i * pas;
        PrintAt(s, xi, y, litere[i]);
    }
}

void DrawBoxRow(PageSurface& s, double x, double y1, double y2, int n, double pas)
{
    s.DrawWidth = s.LinieSubtire();
    for (int i = 0; i <= n; ++i)
        s.Line(x + i * pas, y1, x + i * pas, y2);
}

namespace {
// Where the boxes stand around a character printed at (x, y) in size 9.
constexpr double CasutaStanga = 1.0;
constexpr double CasutaSus = 0.5;
constexpr double CasutaJos = 4.0;
} // namespace

void Creion::font(const char* nume, double marime, bool bold, bool italic) const
{
    m_s.FontName = QString::fromLatin1(nume);
    m_s.FontSize = marime;
    m_s.FontBold = bold;
    m_s.FontItalic = italic;
    m_s.FontUnderline = false;
}

void Creion::text(double x, double y, const QString& t) const
{
    PrintAt(m_s, OrigineStanga + x, OrigineSus + y, t);
}

void Creion::linie(double x1, double y1, double x2, double y2, bool groasa) const
{
    m_s.DrawWidth = groasa ? m_s.LinieGroasa() : m_s.LinieSubtire();
    m_s.Line(OrigineStanga + x1, OrigineSus + y1, OrigineStanga + x2, OrigineSus + y2);
}

void Creion::dreptunghi(double x1, double y1, double x2, double y2, bool groasa) const
{
    m_s.DrawWidth = groasa ? m_s.LinieGroasa() : m_s.LinieSubtire();
    m_s.Line(OrigineStanga + x1, OrigineSus + y1, OrigineStanga + x2, OrigineSus + y2, true);
}

void Creion::casute(double x, double y, int n, double pas) const
{
    const double x0 = x - CasutaStanga;
    dreptunghi(x0, y - CasutaSus, x0 + n * pas, y + CasutaJos);
    DrawBoxRow(m_s, OrigineStanga + x0, OrigineSus + y - CasutaSus, OrigineSus + y + CasutaJos, n, pas);
}

void Creion::casuteDreapta(double x, double y, int n, double pas) const
{
    casute(x - (n - 1) * pas, y, n, pas);
}

void Creion::bifa(double x, double y) const
{
    dreptunghi(x - 0.8, y + 1.0, x + 3.4, y + 5.2);
}

void Creion::optiune(double x, double y, const QString& eticheta) const
{
    bifa(x, y);
    tnr(8);
    text(x + 5, y + 1.8, eticheta);
}

void Creion::titlu(double x, double y, const QString& t) const
{
    tnr(9, true);
    text(x, y, t);
}

void Creion::randuriDeScris(double y1, double y2) const
{
    for (double y = y1; y < y2; y += 8)
        linie(0, y, 169, y);
}

void Creion::eticheta(double x, double y, const QString& t, double marime) const
{
    tnr(marime);
    text(x, y, t);
}

void Creion::inCasute(const QString& t, double x, double y, bool dreaptaStanga, double pas) const
{
    font("MS Sans Serif", 9);
    PrintInBoxes(m_s, t, OrigineStanga + x, OrigineSus + y, pas, dreaptaStanga);
}

void Creion::marcaj(double x, double y, const QString& semn) const
{
    font("MS Sans Serif", 14);
    PrintInBoxes(m_s, semn, OrigineStanga + x, OrigineSus + y, PasCasuta);
}

void Creion::date(double x, double y, const QString& t, double marime) const
{
    font("MS Sans Serif", marime);
    text(x, y, t);
}
