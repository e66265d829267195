#pragma once
#include <QString>
#include <functional>

class QPrintPreviewDialog;
class QPrinter;
class QWidget;

// What the windows that print share: the PDF file for an office without a printer, the reason
// a printer cannot print, and the preview that zooms with Ctrl and the wheel.

// The save dialog for a PDF, in the program folder with `numeImplicit` proposed; the chosen
// path with ".pdf" at its end, or an empty text when the dialog was cancelled.
QString AlegeFisierPdf(QWidget* parinte, const QString& numeImplicit);
// After the file was written: where it is.
void SpunePdfScris(const QString& cale);

// Why the printer cannot print: no printer installed, or the named one does not answer.
QString MotivImprimanta(const QPrinter& p);
// "Imprimanta nu poate tipari: " and the reason.
void SpuneImprimantaNuTipareste(const QPrinter& p);

// The preview's tool bar gets "PDF" beside its print button, which runs `pdf`; Ctrl and the
// mouse wheel zoom the page in and out, the wheel alone scrolls it.
void PregatestePrevizualizare(QPrintPreviewDialog& d, const std::function<void()>& pdf);
