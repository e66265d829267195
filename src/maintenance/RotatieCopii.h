#pragma once
#include <QDateTime>
#include <QList>
#include <QSet>
#include <QString>

// How many copies the office keeps: the newest copy of each of the last `zilnice` days that have
// one, of the last `saptamanale` weeks (Monday to Sunday) and of the last `lunare` months.
// A copy counts for each rule it meets and is kept when it meets one.
struct RegulaPastrare {
    int zilnice = 7;
    int saptamanale = 4;
    int lunare = 12;
};

struct CopieDatata {
    QString fisier;
    QDateTime facuta;
};

// The copies to keep among good, checked copies; the others may go.
QSet<QString> CopiiDePastrat(QList<CopieDatata> copii, const RegulaPastrare& regula);
