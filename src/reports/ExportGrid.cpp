#include "reports/ExportGrid.h"

#include "reports/ReportGrid.h"

#include <QFile>
#include <QHash>
#include <algorithm>
#include <cmath>
#include <optional>
#include <xlsxwriter.h>

namespace {

// A pixel width as spreadsheet characters, a pixel height as points.
double caractere(double px)
{
    return px <= 0 ? 0 : px / 7.0;
}
double puncte(double px)
{
    return px * 0.75;
}

// The number of a cell of a number column whose whole text is a number; nothing otherwise (the
// column's head, a total's caption).
std::optional<double> numarCelula(const ReportGrid& g, int c, const QString& text)
{
    if (g.ColumnContent(c) == ReportGrid::Text)
        return std::nullopt;
    bool ok = false;
    const double v = text.trimmed().toDouble(&ok);
    if (!ok)
        return std::nullopt;
    return v;
}

lxw_format* formatCelula(lxw_workbook* wb, QHash<QString, lxw_format*>& cache, const ReportGrid& g, int r, int c,
                         bool numar = false)
{
    const auto& x = g.Cell(r, c);
    const bool suma = numar && g.ColumnContent(c) == ReportGrid::Suma;
    const int al = g.AliniereEfectiva(r, c);
    const bool bold = g.BoldEfectiv(r, c);
    const double marime = g.MarimeEfectiva(r, c);
    const QString cheie = QStringLiteral("%1|%2|%3|%4|%5%6%7%8|%9")
                              .arg(al)
                              .arg(bold)
                              .arg(marime)
                              .arg(int(x.wrap))
                              .arg(x.bordura[0])
                              .arg(x.bordura[1])
                              .arg(x.bordura[2])
                              .arg(x.bordura[3])
                              .arg(suma);
    if (lxw_format* f = cache.value(cheie))
        return f;
    lxw_format* f = workbook_add_format(wb);
    if (suma)
        format_set_num_format_index(f, 2); // the sheet's own "0.00"
    format_set_font_name(f, g.FontName().toUtf8().constData());
    format_set_font_size(f, marime);
    if (bold)
        format_set_bold(f);
    if (x.wrap)
        format_set_text_wrap(f);
    switch (al) {
    case ReportGrid::Centru:
        format_set_align(f, LXW_ALIGN_CENTER);
        format_set_align(f, LXW_ALIGN_VERTICAL_CENTER);
        break;
    case ReportGrid::Dreapta:
        format_set_align(f, LXW_ALIGN_RIGHT);
        format_set_align(f, LXW_ALIGN_VERTICAL_CENTER);
        break;
    case ReportGrid::CentruSus:
        format_set_align(f, LXW_ALIGN_CENTER);
        format_set_align(f, LXW_ALIGN_VERTICAL_TOP);
        break;
    default:
        format_set_align(f, LXW_ALIGN_LEFT);
        format_set_align(f, LXW_ALIGN_VERTICAL_CENTER);
        break;
    }
    const auto stil = [](int s) -> uint8_t {
        return s == ReportGrid::Groasa ? LXW_BORDER_THICK : s ? LXW_BORDER_THIN : LXW_BORDER_NONE;
    };
    if (x.bordura[0])
        format_set_left(f, stil(x.bordura[0]));
    if (x.bordura[1])
        format_set_right(f, stil(x.bordura[1]));
    if (x.bordura[2])
        format_set_top(f, stil(x.bordura[2]));
    if (x.bordura[3])
        format_set_bottom(f, stil(x.bordura[3]));
    cache.insert(cheie, f);
    return f;
}

void scrieText(QByteArray& o, const QString& s)
{
    o += '"';
    const bool simplu =
        std::none_of(s.begin(), s.end(), [](QChar ch) { return ch.unicode() < 0x20 || ch == u'"' || ch == u'\\'; });
    if (simplu) {
        o += s.toUtf8();
        o += '"';
        return;
    }
    for (const QChar ch : s) {
        const char16_t u = ch.unicode();
        if (u == '"')
            o += "\\\"";
        else if (u == '\\')
            o += "\\\\";
        else if (u == '\n')
            o += "\\n";
        else if (u == '\t')
            o += "\\t";
        else if (u < 0x20)
            o += QStringLiteral("\\u%1").arg(int(u), 4, 16, QLatin1Char('0')).toLatin1();
        else
            o += QString(ch).toUtf8();
    }
    o += '"';
}

QByteArray numar(double v)
{
    return v == std::floor(v) ? QByteArray::number(qint64(v)) : QByteArray::number(v, 'g', 10);
}

} // namespace

bool ScrieXlsx(const ReportGrid& g, const QString& cale, QString* eroare)
{
    const QByteArray caleLocala = QFile::encodeName(cale);
    lxw_workbook* wb = workbook_new(caleLocala.constData());
    if (!wb) {
        if (eroare)
            *eroare = QStringLiteral("Fisierul %1 nu poate fi creat.").arg(cale);
        return false;
    }
    lxw_worksheet* ws = workbook_add_worksheet(wb, nullptr);
    const bool foaie = g.UnitatiFoaie();
    for (int c = 1; c < g.Cols(); ++c) {
        const double w = g.ColumnWidth(c);
        if (w < 0)
            continue; // left at the sheet's default
        if (w == 0) {
            lxw_row_col_options ascuns{};
            ascuns.hidden = 1;
            worksheet_set_column_opt(ws, lxw_col_t(c - 1), lxw_col_t(c - 1), LXW_DEF_COL_WIDTH, nullptr, &ascuns);
        } else {
            worksheet_set_column(ws, lxw_col_t(c - 1), lxw_col_t(c - 1), foaie ? w : caractere(w), nullptr);
        }
    }
    for (int r = 1; r < g.Rows(); ++r)
        worksheet_set_row(ws, lxw_row_t(r - 1), foaie ? g.RowHeight(r) : puncte(g.RowHeight(r)), nullptr);

    QHash<QString, lxw_format*> cache;
    for (const auto& u : g.Uniri()) {
        if (u.r1 < 1 || u.c1 < 1)
            continue;
        worksheet_merge_range(ws, lxw_row_t(u.r1 - 1), lxw_col_t(u.c1 - 1), lxw_row_t(u.r2 - 1), lxw_col_t(u.c2 - 1),
                              g.CellText(u.r1, u.c1).toUtf8().constData(), formatCelula(wb, cache, g, u.r1, u.c1));
    }
    for (int r = 1; r < g.Rows(); ++r)
        for (int c = 1; c < g.Cols(); ++c) {
            const int m = g.UnireLa(r, c);
            if (m >= 0 && g.Uniri()[m].r1 == r && g.Uniri()[m].c1 == c)
                continue; // written with its merge
            const auto& x = g.Cell(r, c);
            // Amounts, counts and row numbers are numbers in the sheet, so that they add up.
            const std::optional<double> numar = m < 0 ? numarCelula(g, c, x.text) : std::nullopt;
            lxw_format* f = formatCelula(wb, cache, g, r, c, numar.has_value());
            if (numar)
                worksheet_write_number(ws, lxw_row_t(r - 1), lxw_col_t(c - 1), *numar, f);
            else if (m < 0 && !x.text.isEmpty())
                worksheet_write_string(ws, lxw_row_t(r - 1), lxw_col_t(c - 1), x.text.toUtf8().constData(), f);
            else if (x.bordura[0] || x.bordura[1] || x.bordura[2] || x.bordura[3] || m >= 0)
                worksheet_write_blank(ws, lxw_row_t(r - 1), lxw_col_t(c - 1), f);
        }

    const auto& s = g.PageSetup();
    worksheet_set_paper(ws, uint8_t(s.hartie));
    if (s.orientare == 1)
        worksheet_set_portrait(ws);
    else
        worksheet_set_landscape(ws);
    worksheet_set_margins(ws, s.stanga / 2.54, s.dreapta / 2.54, s.sus / 2.54, s.jos / 2.54);
    if (s.zoom != 100)
        worksheet_set_print_scale(ws, uint16_t(s.zoom));
    if (g.AntetPrimul() > 0)
        worksheet_repeat_rows(ws, lxw_row_t(g.AntetPrimul() - 1), lxw_row_t(g.AntetUltimul() - 1));
    const lxw_error e = workbook_close(wb);
    if (e != LXW_NO_ERROR) {
        if (eroare)
            *eroare =
                QStringLiteral("Fisierul %1 nu a putut fi scris: %2").arg(cale, QString::fromUtf8(lxw_strerror(e)));
        return false;
    }
    return true;
}

QByteArray GridJson(const ReportGrid& g)
{
    QByteArray o;
    o.reserve(g.Rows() * g.Cols() * 24 + 256);
    o +=
        "{\"cols\": " + QByteArray::number(g.Cols()) + ", \"rows\": " + QByteArray::number(g.Rows()) + ", \"cells\": [";
    QByteArray bold;
    bool primul = true;
    for (int r = 1; r < g.Rows(); ++r)
        for (int c = 1; c < g.Cols(); ++c) {
            const QString& t = g.Cell(r, c).text;
            if (t.isEmpty())
                continue;
            const QByteArray poz = QByteArray::number(r) + ", " + QByteArray::number(c);
            if (!primul)
                o += ", ";
            o += '[' + poz + ", ";
            scrieText(o, t);
            o += ']';
            if (g.BoldEfectiv(r, c)) {
                if (!bold.isEmpty())
                    bold += ", ";
                bold += '[' + poz + ']';
            }
            primul = false;
        }
    o += "], \"merges\": [";
    for (size_t i = 0; i < g.Uniri().size(); ++i) {
        const auto& u = g.Uniri()[i];
        if (i)
            o += ", ";
        o += '[' + QByteArray::number(u.r1) + ", " + QByteArray::number(u.c1) + ", " + QByteArray::number(u.r2) + ", " +
             QByteArray::number(u.c2) + ']';
    }
    o += "], \"widths\": [";
    for (int c = 1; c < g.Cols(); ++c) {
        if (c > 1)
            o += ", ";
        o += numar(g.ColumnWidth(c));
    }
    o += "], \"bold\": [" + bold + "]}";
    return o;
}
