#pragma once
#include <QString>
#include <QStringList>

// An INI file read and written the way the Windows profile functions do: sections and keys
// found regardless of case, values kept verbatim (backslashes included, blanks around them
// trimmed), and on a write only the one line changes: other keys, blank lines, comments and
// lines that are neither stay as they were. A line that is neither a section, a key nor a
// comment is passed over by the reads.
//
// A file is read once by the process and kept in memory with an index of its keys (it is read
// again only when it changes on disk), so a lookup costs the same in a file of any size. It is
// written only when a value changes, in the encoding it was read in: valid UTF-8 stays UTF-8,
// anything else is Windows-1250 and stays Windows-1250.
class FisierIni {
public:
    explicit FisierIni(QString cale);

    // The value of a key, empty when the file, the section or the key is missing.
    QString citeste(const QString& sectiune, const QString& cheie) const;
    // Writes one key, creating the section and the file when needed. False when the file
    // cannot be written; nothing is then changed.
    bool scrie(const QString& sectiune, const QString& cheie, const QString& valoare) const;

private:
    QString m_cale;
};
