#pragma once
#include <QStringList>
#include <QTranslator>

class QApplication;

// Qt's own words (the file dialog, the font and colour dialogs, the calendar, the right-click
// menu of the text boxes, the print preview, the standard buttons) in Romanian without
// diacritics. Qt's own Romanian catalogue is loaded too when the system has one (Debian's
// qt6-translations-l10n); the words below come first, since the office reads no diacritics.
class TraducereQt : public QTranslator {
    Q_OBJECT
public:
    explicit TraducereQt(QObject* parent = nullptr);

    QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                      int n = -1) const override;
    bool isEmpty() const override { return false; }

    // The words asked for in the given contexts that have no Romanian here: "context|text".
    QStringList Lipsa(const QStringList& contexte) const;

private:
    mutable QStringList m_cerute;
};

// Romanian for the whole program: the locale (month names of the calendar, numbers and dates of
// the file dialog), the catalogues above, Qt's own dialogs instead of the desktop's (whose
// language the program does not choose), and the calendar's day heads by their first letter.
void InstaleazaRomana(QApplication& app);
