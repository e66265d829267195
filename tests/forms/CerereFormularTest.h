#pragma once
#include "database/BD.h"

#include <QString>

// An application for the printed forms' tests: application 1 with its family and a titular
// (member 1, kinship 1) whose every field and code is filled.
inline void ScrieCerereFormular(const BD& bd, const QString& cnp = QStringLiteral("1800517260011"), qint64 id = 1)
{
    bd.executa(QStringLiteral("INSERT INTO Familii (FamilieID, NrDosar, Localitate, Strada, Nr, Bloc, Sc, Ap, Judet, Telefon, Mobil) "
                              "VALUES (?, 7, 'Tarnaveni', 'Avram Iancu', '12', 'B4', 'A', '7', 'Mures', '0265441', '0744123')"),
               {id});
    bd.executa(QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, DataCerere, MembruID1, TipCerere, Stare, "
                              "ReprLegal, ModPlata, NumeTitularCont, Cont, Banca, Gospodarire, GospodLoc, Bife) "
                              "VALUES (?, ?, 345, '2026-03-09', ?, 1, 1, 1, 2, 'POP ION', 'RO12', 'BCR', 1, 2, '01')"),
               {id, id, id});
    bd.executa(QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP, TipAct, SerieBI, NrBI, Eliberat, DataElib) "
                              "VALUES (?, 'POP', 'ION', ?, 2, 'MS', '123456', 'SPCLEP', '2019-02-03')"),
               {id, cnp});
    bd.executa(QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, CetatenieID, StCivila, Studii, "
                              "DrAsSociala, OcupatieID, LucreazaAfara) VALUES (?, ?, 1, 1, 2, 3, 1, 1, FALSE)"),
               {id, id});
}

inline void VenitFormular(const BD& bd, int cod, double valoare, qint64 id = 1)
{
    bd.executa(QStringLiteral("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (?, ?, ?)"), {id, cod, valoare});
}
