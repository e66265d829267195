#include "CerereCuMembriTest.h"

#include "database/BD.h"
#include "applications/Demo.h"
#include "common/Data.h"

qint64 CerereCuMembriTest::scrie(BD& bd) const
{
    Tranzactie t(bd);
    const qint64 fam = familieId ? familieId : id;
    if (!faraFamilie)
        bd.executa(QStringLiteral("INSERT INTO Familii (FamilieID, NrDosar, Localitate, Strada, Nr) "
                                  "VALUES (?, ?, 'Tarnava', 'Principala', '1')"),
                   {fam, fam});
    bd.executa(QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, DataCerere, MembruID1, MembruID2, "
                              "Stare, Cuantum, NrMembrii, NrCopii, TipCerere) VALUES (?,?,?,?,0,0,?,?,?,?,1)"),
               {id, fam, nrCerere ? nrCerere : id * 10, DataPentruBD(data), stare, cuantum,
                static_cast<int>(cnpuri.size()), nrCopii});
    int rudenie = 1;
    for (const QString& cnp : cnpuri) {
        QVariant m = bd.scalar(QStringLiteral("SELECT MembruID FROM Membrii WHERE CNP = ?"), {cnp});
        if (!m.isValid()) {
            m = bd.urmatoareaCheie(QStringLiteral("Membrii"), QStringLiteral("MembruID"));
            bd.executa(QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (?, ?, ?, ?)"),
                       {m, QStringLiteral("Pop"), QStringLiteral("Ion %1").arg(m.toLongLong()), cnp});
        }
        bd.executa(QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID) VALUES (?, ?, ?)"),
                   {id, m, rudenie});
        if (rudenie == 1)
            bd.executa(QStringLiteral("UPDATE Cereri SET MembruID1 = ? WHERE CerereID = ?"), {m, id});
        rudenie = 3;
    }
    t.confirma();
    return id;
}

QString CNPNascut(const QDate& nastere, int serie)
{
    return CNPInventat(nastere.year() >= 2000 ? 5 : 1, nastere, 12, serie);
}

qint64 NumaraRanduri(const BD& bd, const QString& tabela, const QString& conditie, const QVariant& valoare)
{
    if (conditie.isEmpty())
        return bd.scalar(QStringLiteral("SELECT COUNT(*) FROM %1").arg(tabela)).toLongLong();
    return bd.scalar(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2").arg(tabela, conditie), {valoare}).toLongLong();
}
