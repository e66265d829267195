#pragma once
#include <QList>
#include <QString>

// The words of a PDF file as pdftotext -bbox (poppler-utils) finds them, with their boxes in
// millimetres from the page's top left corner.
struct CuvantPdf {
    QString text;
    double x1, y1, x2, y2;
};
// Every page's words (index 0 for page 1); the reason, when pdftotext cannot be run, in `eroare`.
QList<QList<CuvantPdf>> CuvintePdf(const QString& pdf, QString* eroare = nullptr);

// The same as text, for the saved expected forms: "pagina N" and then one word a line, its left,
// top, right and bottom edges rounded to a tenth of a millimetre, sorted top to bottom and left
// to right. A moved or changed word is a changed line.
QString CasetePdf(const QString& pdf, QString* eroare = nullptr);
