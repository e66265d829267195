#pragma once
#include <QFont>
#include <QString>

class QPagedPaintDevice;
class QPainter;

// The drawing surface of the printed forms. Positions are millimetres from the page's top-left
// corner; the pen (CurrentX, CurrentY) is the top-left of the next text. A page function draws on
// one surface and never asks which it is, except for the line widths and to clear.
class PageSurface {
public:
    virtual ~PageSurface() = default;

    // Properties of the text that follows.
    QString FontName = QStringLiteral("MS Sans Serif");
    double FontSize = 10;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    // The pen, in millimetres.
    double CurrentX = 0;
    double CurrentY = 0;
    // Line width in device pixels.
    int DrawWidth = 1;

    // A line between two points or, with `dreptunghi`, the rectangle they span.
    virtual void Line(double x1, double y1, double x2, double y2, bool dreptunghi = false) = 0;
    // Text at the pen; the pen moves on to the end of the text.
    virtual void PrintText(const QString& text) = 0;
    // Wipes the page (the preview only).
    virtual void Clear() = 0;
    virtual bool IsPreview() const = 0;
    // The printer only: the next drawing goes on a new sheet; the document is over.
    virtual void NewPage() = 0;
    virtual void EndDocument() = 0;

    // The two line widths of the forms: thick 2 and thin 1 on screen, 7 and 3 on paper.
    int LinieGroasa() const { return IsPreview() ? 2 : 7; }
    int LinieSubtire() const { return IsPreview() ? 1 : 3; }
};

// The font of the forms' text: the names the forms use ("Times New Roman", "Monotype Corsiva",
// "MS Sans Serif") go to the closest installed family (see FamilieInstalata).
QFont FontSuprafata(const PageSurface& s);
// The installed family that stands for a form's font name: Liberation Serif (then Nimbus
// Roman, DejaVu Serif) for Times New Roman, Liberation Sans (then Nimbus Sans, DejaVu Sans) for
// MS Sans Serif, Z003 (then Liberation Serif italic) for Monotype Corsiva.
QString FamilieInstalata(const QString& nume);

// The surface over a QPainter: the preview image, the printer, the PDF writer. Millimetres are
// turned into device pixels by the device's resolution. A new page asked for is opened only when
// something is drawn on it, so that ending the document right after NewPage leaves no empty sheet.
class SuprafataPictor : public PageSurface {
public:
    // `pagini` is the paged device (printer, PDF), nullptr for the preview image.
    SuprafataPictor(QPainter& p, QPagedPaintDevice* pagini, bool previzualizare);

    void Line(double x1, double y1, double x2, double y2, bool dreptunghi = false) override;
    void PrintText(const QString& text) override;
    void Clear() override;
    bool IsPreview() const override { return m_previzualizare; }
    void NewPage() override;
    void EndDocument() override;

private:
    void inainteDeDesen();
    QPainter& m_p;
    QPagedPaintDevice* m_pagini;
    bool m_previzualizare;
    bool m_paginaNoua = false;
    double m_pxPeMm;
};
