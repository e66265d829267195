#pragma once
#include <QString>
#include <QStringList>

// An INI file read and written the way the Windows profile functions do: sections and keys
// found regardless of case, values kept verbatim (backslashes included, blanks around them
// trimmed), and on a write only the one line changes: other keys, blank lines and comments
// stay as they were. A line that is neither a section, a key nor a comment is passed over.
class FisierIni {
public:
    explicit FisierIni(QString cale);

    // The value of a key, empty when the file, the section or the key is missing.
    QString citeste(const QString& sectiune, const QString& cheie) const;
    // Writes one key, creating the section and the file when needed. False when the file
    // cannot be written; nothing is then changed.
    bool scrie(const QString& sectiune, const QString& cheie, const QString& valoare) const;

private:
    QStringList linii() const;
    QString m_cale;
};
