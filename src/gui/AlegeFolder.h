#pragma once
#include <QString>

class QWidget;

// The folder picker: a dialog that chooses a folder, with the given title, starting at `start`
// when that folder exists and at the user's home folder otherwise. The Windows program folder
// "C:\Program Files" stands for our program folder. The chosen path (native separators), or
// an empty text when the dialog was cancelled.
QString AlegeFolder(const QString& titlu, const QString& start, QWidget* parinte = nullptr);
