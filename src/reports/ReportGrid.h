#pragma once
#include <QColor>
#include <QHash>
#include <QString>
#include <QStringList>
#include <vector>

// The grid that every report fills cell by cell: counts, widths, alignment, fonts, texts,
// merges, borders, row heights and the page set-up. It knows nothing of windows or printers;
// the screen view, the preview, the printer, the PDF and the spreadsheet all draw from it.
//
// Coordinates are those of the office's grid: row 0 and column 0 exist but are never written,
// so a grid of Cols() = n shows n-1 columns. Widths and heights are screen pixels.
class ReportGrid {
public:
    // Alignment codes: 6 left, 10 centre, 14 right (vertically centred), 9 centre and top.
    enum Aliniere { Implicit = -1, Stanga = 6, Centru = 10, Dreapta = 14, CentruSus = 9 };
    // Border edges: 0 left, 1 right, 2 top, 3 bottom, 4 inner vertical lines, 5 inner horizontal.
    enum Margine {
        MargStanga = 0,
        MargDreapta = 1,
        MargSus = 2,
        MargJos = 3,
        InteriorVertical = 4,
        InteriorOrizontal = 5
    };
    // Border styles.
    enum Stil { Fara = 0, Subtire = 1, Groasa = 2 };
    // What the cells of a column hold, for the workbook: text, or numbers that the office adds
    // up (counts and row numbers, amounts of money with two decimals).
    enum Continut { Text = 0, Intreg = 1, Suma = 2 };

    struct Celula {
        QString text;
        qint8 aliniere = Implicit;
        qint8 bold = -1; // -1 the default font's
        qint8 wrap = 0;
        float marimeFont = 0;             // 0 the default font's
        quint8 bordura[4] = {0, 0, 0, 0}; // left, right, top, bottom
    };
    struct Unire {
        int r1, c1, r2, c2;
    };
    struct PaginaSetata {
        int hartie = 9;                                           // 8 A3, 9 A4, 11 A5
        int orientare = 2;                                        // 1 portrait, 2 landscape
        double stanga = 1.4, dreapta = 0.5, sus = 0.5, jos = 1.0; // centimetres
        int zoom = 100;                                           // per cent, for the spreadsheet
    };
    // The five colours of the screen: frame, fixed cells, selection, background, lines.
    struct Culori {
        QColor rama{214, 158, 90}, fixe{230, 160, 110}, selectie{214, 158, 90}, fundal{247, 235, 231},
            linii{231, 190, 148};
    };

    static constexpr double LatimeImplicita = 64;

    ReportGrid();

    // Back to a grid as new (two rows, two columns, every default); only the version goes on.
    void Goleste();

    void SetCols(int n);
    void SetRows(int n);
    int Cols() const { return m_cols; }
    int Rows() const { return m_randuri; }

    void SetColumnWidth(int c, double latime);
    void SetColumnAlign(int c, int aliniere);
    double ColumnWidth(int c) const;
    int ColumnAlign(int c) const;
    void SetColumnContent(int c, Continut continut);
    Continut ColumnContent(int c) const;
    void SetRowHeight(int r, double inaltime);
    void SetDefaultRowHeight(double inaltime);
    double RowHeight(int r) const;
    void SetDefaultFont(const QString& nume, double marime, bool bold);
    QString FontName() const { return m_font; }
    double FontSize() const { return m_marimeFont; }
    bool FontBold() const { return m_bold; }

    void SetCellText(int r, int c, const QString& text);
    void SetCellAlign(int r, int c, int aliniere);
    void SetCellBold(int r, int c, bool bold);
    void SetCellFontSize(int r, int c, double marime);
    QString CellText(int r, int c) const;

    void MergeRange(int r1, int c1, int r2, int c2);
    void RangeBold(int r1, int c1, int r2, int c2, bool bold);
    void RangeAlign(int r1, int c1, int r2, int c2, int aliniere);
    void RangeWrap(int r1, int c1, int r2, int c2, bool wrap);
    void RangeFontSize(int r1, int c1, int r2, int c2, double marime);
    void RangeBorder(int r1, int c1, int r2, int c2, int margine, int stil);
    void ClearRange(int r1, int c1, int r2, int c2);
    // Appends a row; the text holds the cells from column 1 on, separated by tabs.
    void AddRow(const QString& text = QString());
    // The same with the cells already apart.
    void AddRow(const QStringList& celule);

    void SetPainting(bool on) { m_pictare = on; }
    bool Painting() const { return m_pictare; }
    void Refresh() { ++m_versiune; }
    quint64 Versiune() const { return m_versiune; }

    void SetPageSetup(const PaginaSetata& p) { m_pagina = p; }
    const PaginaSetata& PageSetup() const { return m_pagina; }
    void SetCulori(const Culori& c) { m_culori = c; }
    const Culori& CuloriEcran() const { return m_culori; }

    // The head rows that every printed page repeats (0, 0: none).
    void SetRanduriAntet(int primul, int ultimul)
    {
        m_antet1 = primul;
        m_antet2 = ultimul;
    }
    int AntetPrimul() const { return m_antet1; }
    int AntetUltimul() const { return m_antet2; }

    // Widths in spreadsheet characters and heights in points instead of pixels: the sheets
    // that are written only as a workbook.
    void SetUnitatiFoaie(bool da) { m_unitatiFoaie = da; }
    bool UnitatiFoaie() const { return m_unitatiFoaie; }

    // The effective look of a cell (its own or the column's and the font's defaults).
    const Celula& Cell(int r, int c) const;
    int AliniereEfectiva(int r, int c) const;
    bool BoldEfectiv(int r, int c) const;
    double MarimeEfectiva(int r, int c) const;
    const std::vector<Unire>& Uniri() const { return m_uniri; }
    // The merge that holds the cell, -1 when none.
    int UnireLa(int r, int c) const;

private:
    Celula& cel(int r, int c);
    bool valid(int r, int c) const { return r >= 0 && c >= 0 && r < Rows() && c < m_cols; }
    void reindexeaza();
    // Calls f(cell, row, column) for every cell of the rectangle, clipped to the grid.
    template <typename F> void pentruFiecare(int r1, int c1, int r2, int c2, F f)
    {
        limiteaza(r1, c1, r2, c2);
        for (int r = r1; r <= r2; ++r)
            for (int c = c1; c <= c2; ++c)
                f(m_celule[size_t(r) * size_t(m_cols) + size_t(c)], r, c);
    }
    void limiteaza(int& r1, int& c1, int& r2, int& c2) const;
    static quint64 cheie(int r, int c) { return (quint64(quint32(r)) << 32) | quint32(c); }

    int m_cols = 0;
    int m_randuri = 0;
    // Row after row, m_cols cells each: a report of tens of thousands of rows is one block.
    std::vector<Celula> m_celule;
    std::vector<double> m_latimi;
    std::vector<qint8> m_alinieri;
    std::vector<Continut> m_continut;
    std::vector<double> m_inaltimi; // < 0: the default height
    double m_inaltimeImplicita = 18;
    QString m_font = QStringLiteral("Arial");
    double m_marimeFont = 10;
    bool m_bold = false;
    std::vector<Unire> m_uniri;
    QHash<quint64, int> m_unireCelula;
    bool m_pictare = true;
    quint64 m_versiune = 0;
    PaginaSetata m_pagina;
    Culori m_culori;
    int m_antet1 = 0, m_antet2 = 0;
    bool m_unitatiFoaie = false;
};
