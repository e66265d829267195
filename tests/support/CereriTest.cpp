#include "CereriTest.h"

#include "database/BD.h"
#include "common/Data.h"

namespace {
QVariant textSauNull(const QString& t)
{
    return t.isNull() ? QVariant(QMetaType(QMetaType::QString)) : QVariant(t);
}
} // namespace

void AdaugaCerereTest(const BD& bd, const CerereTest& c)
{
    bd.executa(QStringLiteral("INSERT INTO Familii (FamilieID, NrDosar, Localitate, Strada, Nr, Sc, Ap) "
                              "VALUES (?, ?, ?, ?, ?, ?, ?)"),
               {c.id, c.id, textSauNull(c.localitate), textSauNull(c.strada), textSauNull(c.nr), textSauNull(c.sc),
                textSauNull(c.ap)});
    if (c.cuSolicitant)
        bd.executa(QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (?, ?, ?, ?)"),
                   {c.id, c.nume, c.prenume, textSauNull(c.cnp)});
    bd.executa(QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, DataCerere, MembruID1, MembruID2, "
                              "Stare, VenitTotal, Cuantum, NrMembrii, NrCopii, TipCerere) "
                              "VALUES (?, ?, ?, ?, ?, 0, ?, ?, ?, ?, ?, ?)"),
               {c.id, c.id, c.nrCerere, DataPentruBD(c.data), c.id, c.stare, c.venitTotal, c.cuantum, c.nrMembrii,
                c.nrCopii, c.tip});
}

void AdaugaAnchetaTest(const BD& bd, qint64 anchetaId, qint64 cerereId, const QDate& data, const QVariant& nrMembrii,
                       const QVariant& nrCopii, const QDate& expirare, const QString& motiv)
{
    bd.executa(QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta, NrMembrii, NrCopii, "
                              "DataExpirarii, Motiv) VALUES (?, ?, ?, ?, ?, ?, ?)"),
               {anchetaId, cerereId, DataPentruBD(data), nrMembrii, nrCopii, DataPentruBD(expirare),
                textSauNull(motiv)});
}

void AdaugaDispozitieTest(const BD& bd, qint64 dispozitieId, qint64 cerereId, const QVariant& nrDisp,
                          const QDate& data, const QVariant& actiune, const QVariant& luna, const QVariant& an)
{
    bd.executa(QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, Actiune, Luna, An) "
                              "VALUES (?, ?, ?, ?, ?, ?, ?)"),
               {dispozitieId, cerereId, nrDisp, DataPentruBD(data), actiune, luna, an});
}
