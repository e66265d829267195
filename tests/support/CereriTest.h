#pragma once
#include <QDate>
#include <QString>
#include <QVariant>

class BD;

// Rows of a case written straight into the tables, for tests that need a list of
// applications without going through the editor.
struct CerereTest {
    qint64 id = 1;                 // CerereID = FamilieID; the applicant's MembruID too
    QVariant nrCerere;             // NULL when invalid
    QVariant tip = 1;
    int stare = 1;
    QDate data;
    QString nume = QStringLiteral("Popescu");
    QString prenume = QStringLiteral("Ion");
    QString cnp;
    bool cuSolicitant = true;      // false: MembruID1 points to no member
    QString localitate = QStringLiteral("Tarnaveni");
    QString strada, nr, sc, ap;
    QVariant venitTotal, cuantum, nrMembrii, nrCopii;
};
void AdaugaCerereTest(const BD& bd, const CerereTest& c);

void AdaugaAnchetaTest(const BD& bd, qint64 anchetaId, qint64 cerereId, const QDate& data,
                       const QVariant& nrMembrii = {}, const QVariant& nrCopii = {},
                       const QDate& expirare = {}, const QString& motiv = {});
void AdaugaDispozitieTest(const BD& bd, qint64 dispozitieId, qint64 cerereId, const QVariant& nrDisp,
                          const QDate& data, const QVariant& actiune, const QVariant& luna = {},
                          const QVariant& an = {});
