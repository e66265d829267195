#pragma once
#include <QString>

class QWidget;

// The picker of a file to write: a save dialog with the given title, starting at `implicit`
// (a folder and a file name), showing the files of `filtru` ("Fisiere PDF (*.pdf)") and adding
// `sufix` to a name typed without it. Opened through DeschideModal, so that tests can answer
// it. The chosen path (native separators), or an empty text when the dialog was cancelled.
QString AlegeFisierDeSalvat(const QString& titlu, const QString& implicit, const QString& filtru, const QString& sufix,
                            QWidget* parinte = nullptr);
