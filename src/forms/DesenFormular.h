#pragma once
#include "forms/PageSurface.h"

#include <QString>

// The primitives of the printed forms, in millimetres from the page's corner.
// Pen to (x, y), then the text.
void PrintAt(PageSurface& s, double x, double y, const QString& text);
// One character per form box. Left to right (dreaptaStanga false): character i at x + i * pas.
// Right to left: the last character at x and each earlier one a step further left, so that a
// number stands right-aligned in its boxes. An empty text prints nothing.
void PrintInBoxes(PageSurface& s, const QString& text, double x, double y, double pas, bool dreaptaStanga = false);
// The separators of a row of `n` boxes of width `pas` from x, between y1 and y2 (thin lines).
void DrawBoxRow(PageSurface& s, double x, double y1, double y2, int n, double pas);

// The page's origin: every position of a form is relative to it.
constexpr double OrigineStanga = 25.0;
constexpr double OrigineSus = 10.0;
// The step of the forms' text boxes.
constexpr double PasCasuta = 4.5;

// Draws relative to the page's origin, with the habits of the forms: the captions' fonts, the
// boxes under the data, the check boxes under the marks. The static layer of every page is
// written with it; the data layer prints through the same origin.
class Creion {
public:
    explicit Creion(PageSurface& s) : m_s(s) {}
    PageSurface& suprafata() const { return m_s; }

    void font(const char* nume, double marime, bool bold = false, bool italic = false) const;
    // Times New Roman, the captions' font.
    void tnr(double marime, bool bold = false) const { font("Times New Roman", marime, bold); }
    void text(double x, double y, const QString& t) const;
    void linie(double x1, double y1, double x2, double y2, bool groasa = false) const;
    void dreptunghi(double x1, double y1, double x2, double y2, bool groasa = false) const;
    // The boxes where PrintInBoxes puts n characters of size 9 at (x, y), left to right; or
    // ending with the box of the last character at x (right to left).
    void casute(double x, double y, int n, double pas = PasCasuta) const;
    void casuteDreapta(double x, double y, int n, double pas = PasCasuta) const;
    // The square under a mark printed at (x, y); with a caption to its right.
    void bifa(double x, double y) const;
    void optiune(double x, double y, const QString& eticheta) const;
    // A section's caption: Times New Roman, bold, size 9.
    void titlu(double x, double y, const QString& t) const;
    // Lines 8 mm apart across the page, from y1 to before y2, for what is written by hand.
    void randuriDeScris(double y1, double y2) const;
    // A line of dots or a caption followed by boxes.
    void eticheta(double x, double y, const QString& t, double marime = 8) const;

    // Data: text in boxes (size 9), a mark "x" (size 14), plain text (size 11).
    void inCasute(const QString& t, double x, double y, bool dreaptaStanga = false, double pas = PasCasuta) const;
    void marcaj(double x, double y, const QString& semn = QStringLiteral("x")) const;
    void date(double x, double y, const QString& t, double marime = 11) const;

private:
    PageSurface& m_s;
};
