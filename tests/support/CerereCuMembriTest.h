#pragma once
#include <QDate>
#include <QStringList>
#include <QVariant>

class BD;

// A cheap application for tests: a family and its application with the same number (or the
// family number given), and its members by CNP. A CNP already in Membrii is linked, not
// added again, as the application editor does.
struct CerereCuMembriTest {
    qint64 id = 1;
    qint64 familieId = 0;       // 0: the same as id
    qint64 nrCerere = 0;        // 0: id * 10
    QDate data{2012, 4, 10};
    int stare = 1;
    QVariant cuantum = 200.0;
    QVariant nrCopii;
    QStringList cnpuri;         // the first one is the applicant
    bool faraFamilie = false;   // do not write the family row

    qint64 scrie(BD& bd) const;
};

// A valid CNP of somebody born on that day (Demo's made-up CNPs).
QString CNPNascut(const QDate& nastere, int serie = 1);

// Rows of a table that match a condition with one bound value.
qint64 NumaraRanduri(const BD& bd, const QString& tabela, const QString& conditie = QString(),
                     const QVariant& valoare = {});
