#pragma once
#include "forms/PageSurface.h"

#include <QList>
#include <QPointF>
#include <QStringList>

// A page surface that records what is drawn on it: the texts with their place and size, and
// the order of pages ("P<n>" is set by the test through seteazaPagina), NewPage ("N") and
// EndDocument ("END").
class SuprafataInregistrata : public PageSurface {
public:
    struct Text {
        QString text;
        double x, y, marime;
        QString font;
    };
    explicit SuprafataInregistrata(bool previzualizare = false) : m_previzualizare(previzualizare) {}

    QList<Text> texte;
    QStringList evenimente;
    int linii = 0;

    void Line(double, double, double, double, bool) override { ++linii; }
    void PrintText(const QString& t) override
    {
        texte.append({t, CurrentX, CurrentY, FontSize, FontName});
        CurrentX += t.size() * 2.0;
    }
    void Clear() override
    {
        texte.clear();
        linii = 0;
    }
    bool IsPreview() const override { return m_previzualizare; }
    void NewPage() override { evenimente << QStringLiteral("N"); }
    void EndDocument() override { evenimente << QStringLiteral("END"); }

    // The texts printed at a place (to 0.01 mm).
    QStringList textLa(double x, double y) const
    {
        QStringList r;
        for (const Text& t : texte)
            if (qAbs(t.x - x) < 0.01 && qAbs(t.y - y) < 0.01)
                r << t.text;
        return r;
    }
    // The places of the marks (size 14).
    QList<QPointF> marcaje() const
    {
        QList<QPointF> r;
        for (const Text& t : texte)
            if (t.marime == 14)
                r << QPointF(t.x, t.y);
        return r;
    }
    // The characters of size 9 on a row from x on, joined: what a field shows in its boxes.
    QString randLa(double x, double y, double pas = 4.5) const
    {
        QString r;
        for (double xi = x;; xi += pas) {
            const QStringList t = textLa(xi, y);
            if (t.isEmpty())
                return r;
            r += t.last();
        }
    }

private:
    bool m_previzualizare;
};
