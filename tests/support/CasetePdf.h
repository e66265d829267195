#pragma once
#include <QString>

// The text boxes of every page of a PDF file as pdftotext -bbox (poppler-utils) finds them, for
// the saved expected forms: "pagina N" and then one word a line, its left, top, right and
// bottom edges in millimetres from the page's top left corner, rounded to a tenth, sorted top
// to bottom and left to right. A moved or changed word is a changed line. The reason, when
// pdftotext cannot be run, in `eroare`.
QString CasetePdf(const QString& pdf, QString* eroare = nullptr);
