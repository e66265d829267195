#include "forms/PageSurface.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHash>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPen>

QString FamilieInstalata(const QString& nume)
{
    static QHash<QString, QString> gasite;
    const auto it = gasite.constFind(nume);
    if (it != gasite.cend())
        return *it;
    QStringList candidati{nume};
    if (nume == QLatin1String("Times New Roman"))
        candidati << QStringLiteral("Liberation Serif") << QStringLiteral("Nimbus Roman")
                  << QStringLiteral("DejaVu Serif");
    else if (nume == QLatin1String("MS Sans Serif"))
        // A narrow face, as the screen font of the forms' data is: a date or a number then fits
        // the line the form leaves for it.
        candidati << QStringLiteral("Liberation Sans Narrow") << QStringLiteral("Nimbus Sans Narrow")
                  << QStringLiteral("Liberation Sans") << QStringLiteral("Nimbus Sans")
                  << QStringLiteral("DejaVu Sans");
    else if (nume == QLatin1String("Monotype Corsiva"))
        candidati << QStringLiteral("Z003") << QStringLiteral("Liberation Serif") << QStringLiteral("DejaVu Serif");
    // The database names a family twice when two foundries have it: "Z003 [urw]".
    QStringList instalate;
    for (const QString& f : QFontDatabase::families())
        instalate << f.section(QStringLiteral(" ["), 0, 0);
    QString ales = nume;
    for (const QString& c : candidati) {
        if (instalate.contains(c, Qt::CaseInsensitive)) {
            ales = c;
            break;
        }
    }
    gasite.insert(nume, ales);
    return ales;
}

QFont FontSuprafata(const PageSurface& s)
{
    QFont f(FamilieInstalata(s.FontName));
    f.setPointSizeF(s.FontSize > 0 ? s.FontSize : 10);
    // The script face is italic by nature, and its stand-in has no bold: a drawn bold would blur it.
    const bool corsiva = s.FontName == QLatin1String("Monotype Corsiva");
    f.setBold(s.FontBold && !(corsiva && f.family() == QLatin1String("Z003")));
    f.setItalic(s.FontItalic || corsiva);
    f.setUnderline(s.FontUnderline);
    return f;
}

SuprafataPictor::SuprafataPictor(QPainter& p, QPagedPaintDevice* pagini, bool previzualizare)
    : m_p(p), m_pagini(pagini), m_previzualizare(previzualizare), m_pxPeMm(p.device()->logicalDpiX() / 25.4)
{
    m_p.setRenderHint(QPainter::Antialiasing, previzualizare);
    m_p.setRenderHint(QPainter::TextAntialiasing, true);
}

void SuprafataPictor::inainteDeDesen()
{
    if (m_paginaNoua && m_pagini) {
        m_pagini->newPage();
        m_paginaNoua = false;
    }
}

void SuprafataPictor::Line(double x1, double y1, double x2, double y2, bool dreptunghi)
{
    inainteDeDesen();
    QPen pen(Qt::black);
    pen.setWidthF(DrawWidth);
    pen.setCapStyle(Qt::SquareCap);
    m_p.setPen(pen);
    m_p.setBrush(Qt::NoBrush);
    const QPointF a(x1 * m_pxPeMm, y1 * m_pxPeMm), b(x2 * m_pxPeMm, y2 * m_pxPeMm);
    if (dreptunghi)
        m_p.drawRect(QRectF(a, b).normalized());
    else
        m_p.drawLine(a, b);
    CurrentX = x2;
    CurrentY = y2;
}

void SuprafataPictor::PrintText(const QString& text)
{
    inainteDeDesen();
    const QFont f = FontSuprafata(*this);
    m_p.setFont(f);
    m_p.setPen(Qt::black);
    const QFontMetricsF fm(f, m_p.device());
    m_p.drawText(QPointF(CurrentX * m_pxPeMm, CurrentY * m_pxPeMm + fm.ascent()), text);
    CurrentX += fm.horizontalAdvance(text) / m_pxPeMm;
}

void SuprafataPictor::Clear()
{
    if (!m_previzualizare)
        return;
    m_p.save();
    m_p.resetTransform();
    m_p.fillRect(QRect(QPoint(0, 0), QSize(m_p.device()->width(), m_p.device()->height())), Qt::white);
    m_p.restore();
}

void SuprafataPictor::NewPage()
{
    m_paginaNoua = true;
}

void SuprafataPictor::EndDocument()
{
    m_paginaNoua = false;
    if (m_p.isActive())
        m_p.end();
}
