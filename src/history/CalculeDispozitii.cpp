#include "history/CalculeDispozitii.h"

#include "database/BD.h"
#include "common/Data.h"

void ScrieCalcul(const BD& bd, qint64 dispozitieId, const CalculDispozitie& c)
{
    bd.executa(QStringLiteral("DELETE FROM CalculeDispozitiiMembri WHERE DispozitieID = ?"), {dispozitieId});
    bd.executa(QStringLiteral("DELETE FROM CalculeDispozitii WHERE DispozitieID = ?"), {dispozitieId});
    bd.executa(QStringLiteral("INSERT INTO CalculeDispozitii (DispozitieID, CerereID, TipCerere, AnCalcul, NrMembrii, "
                              "NrCopii, VenitTotal, VenitpeMembru, BaremNrPers, BaremSuma, Barem, Cuantum, Observatii) "
                              "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
               {dispozitieId, c.cerereId, c.tipCerere, c.an, c.nrMembrii, c.nrCopii, c.venitTotal.variant(),
                c.venitPeMembru.variant(), c.baremNrPers, Lei(c.baremSuma).variant(), c.barem.variant(),
                c.cuantum.variant(), c.observatii.left(255)});
    int ordine = 0;
    for (const MembruCalcul& m : c.membri)
        bd.executa(
            QStringLiteral("INSERT INTO CalculeDispozitiiMembri (DispozitieID, Ordine, Nume, Prenume, CNP, "
                           "RudenieID, OcupatieID, Data18Ani, Numarat, Motiv) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            {dispozitieId, ++ordine, m.nume.left(20), m.prenume.left(30), m.cnp.left(13), m.rudenieId, m.ocupatieId,
             DataPentruBD(m.data18Ani), m.numarat, m.motiv.left(100)});
}

std::optional<CalculDispozitie> CitesteCalcul(const BD& bd, qint64 dispozitieId)
{
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT CerereID, TipCerere, AnCalcul, NrMembrii, NrCopii, VenitTotal, "
                                              "VenitpeMembru, BaremNrPers, BaremSuma, Barem, Cuantum, Observatii "
                                              "FROM CalculeDispozitii WHERE DispozitieID = ?"),
                               {dispozitieId});
    if (!r.next())
        return std::nullopt;
    CalculDispozitie c;
    c.cerereId = r.valoare(0).toLongLong();
    c.tipCerere = r.valoare(1).toInt();
    c.an = r.valoare(2).toInt();
    c.nrMembrii = r.valoare(3).toInt();
    c.nrCopii = r.valoare(4).toInt();
    c.venitTotal = Bani::dinVariant(r.valoare(5));
    c.venitPeMembru = Bani::dinVariant(r.valoare(6));
    c.baremNrPers = r.valoare(7).toInt();
    c.baremSuma = static_cast<int>(Bani::dinVariant(r.valoare(8)).unitati() / 10000);
    c.barem = Bani::dinVariant(r.valoare(9));
    c.cuantum = Bani::dinVariant(r.valoare(10));
    c.observatii = r.valoare(11).toString();
    Rezultat m =
        bd.selecteaza(QStringLiteral("SELECT Nume, Prenume, CNP, RudenieID, OcupatieID, Data18Ani, Numarat, "
                                     "Motiv FROM CalculeDispozitiiMembri WHERE DispozitieID = ? ORDER BY Ordine"),
                      {dispozitieId});
    while (m.next())
        c.membri.push_back({m.valoare(0).toString(), m.valoare(1).toString(), m.valoare(2).toString(),
                            m.valoare(3).toInt(), m.valoare(4).toInt(), DataDinBD(m.valoare(5)), m.valoare(6).toBool(),
                            m.valoare(7).toString()});
    return c;
}
