#pragma once
#include <QString>
#include <QVariantList>

class BD;

// The condition that finds a person by CNP: the office's case-insensitive equality
// (BD::conditieLike), narrowed first by a range on the indexed column so that it reads a few
// rows instead of the whole of Membrii. Every ASCII-case variant of the text lies between its
// upper-case and lower-case forms, so the range keeps every row the equality accepts (SQLite
// compares text by code; on PostgreSQL the equality stands alone).
struct CautareCNP {
    CautareCNP(const BD& bd, const QString& coloana, const QString& cnp);
    // The rows whose CNP begins with `inceput` (the office's case-insensitive prefix), narrowed
    // the same way: from the upper-case form of the beginning to its lower-case form followed
    // by the highest character.
    static CautareCNP inceput(const BD& bd, const QString& coloana, const QString& inceput);

    QString conditie;       // "(col >= ? AND col <= ? AND col LIKE ? ESCAPE '\')"
    QVariantList parametri; // its values

private:
    CautareCNP() = default;
};
