#pragma once
#include "maintenance/VerificareCopie.h"

#include <QDateTime>
#include <QList>

// The small index file of a copies folder, copii.json: for each copy, when it was made, what
// its check found and its counts. It is rewritten whole, under a temporary name, so that it
// is always either the old index or the new one.
struct CopieInregistrata {
    QString fisier;       // the copy's name in the folder
    QDateTime facuta;     // the moment in its name
    QDateTime verificata; // when its check ran
    VerificareCopie verificare;
};

namespace IndexCopii {

inline const QString NumeFisier = QStringLiteral("copii.json");

// The entries of the folder's index, oldest first; none when there is no index. An index that
// cannot be read counts as none: the copies are then checked again and entered anew.
QList<CopieInregistrata> citeste(const QString& folderCopii);
// Throws Eroare when the index cannot be written.
void scrie(const QString& folderCopii, QList<CopieInregistrata> copii);

// The moment a copy's name carries; invalid for a name that is not a copy's.
QDateTime MomentDinNume(const QString& numeFisier);

} // namespace IndexCopii
