#pragma once
// Builders of the rows that the documents read, written with plain SQL: a family with its
// application, titular, persons, incomes and dispositions. Every value can be overridden.
#include "database/BD.h"

#include <QStringList>
#include <QVariantMap>

namespace DateDocumente {

inline void Insereaza(const BD& bd, const QString& tabela, const QVariantMap& valori)
{
    QStringList semne;
    QVariantList param;
    for (auto it = valori.cbegin(); it != valori.cend(); ++it) {
        semne << QStringLiteral("?");
        param << it.value();
    }
    bd.executa(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                   .arg(tabela, valori.keys().join(QLatin1Char(',')), semne.join(QLatin1Char(','))),
               param);
}

inline QVariantMap Cu(QVariantMap baza, const QVariantMap& schimbari)
{
    for (auto it = schimbari.cbegin(); it != schimbari.cend(); ++it)
        baza.insert(it.key(), it.value());
    return baza;
}

inline const QVariant Null = QVariant(QMetaType::fromType<QString>());

// Application `id` (family `id`, titular MembruID id*10): couple type, 1 child, income per
// member 150, number 100 + id, dated 05.03.2012. The titular is POPESCU ION, CNP 1800101260016.
inline void Cerere(const BD& bd, qint64 id, const QVariantMap& cerere = {}, const QVariantMap& titular = {},
                   const QVariantMap& familie = {})
{
    Insereaza(bd, QStringLiteral("Familii"),
              Cu({{"FamilieID", id}, {"NrDosar", id}, {"Judet", "Mures"}, {"Localitate", "Tarnaveni"},
                  {"Strada", "Florilor"}, {"Nr", "12"}, {"Sc", "B"}, {"Ap", "4"}},
                 familie));
    Insereaza(bd, QStringLiteral("Membrii"),
              Cu({{"MembruID", id * 10}, {"Nume", "POPESCU"}, {"Prenume", "ION"}, {"CNP", "1800101260016"}}, titular));
    Insereaza(bd, QStringLiteral("Cereri"),
              Cu({{"CerereID", id}, {"FamilieID", id}, {"NrCerere", 100 + id}, {"DataCerere", "2012-03-05"},
                  {"MembruID1", id * 10}, {"Stare", 2}, {"MotivStare", "motivul cererii"}, {"VenitTotal", 450},
                  {"VenitpeMembru", 150}, {"NrMembrii", 3}, {"NrCopii", 1}, {"Cuantum", 30}, {"TipCerere", 1}},
                 cerere));
    Insereaza(bd, QStringLiteral("CereriMembrii"), {{"CerereID", id}, {"MembruID", id * 10}, {"RudenieID", 1}, {"OcupatieID", 1}});
}

// A person of application `cerereId`, with relationship and occupation codes.
inline void Persoana(const BD& bd, qint64 cerereId, qint64 membruId, const QString& nume, const QString& prenume,
                     const QString& cnp, const QVariant& rudenie, const QVariant& ocupatie)
{
    Insereaza(bd, QStringLiteral("Membrii"), {{"MembruID", membruId}, {"Nume", nume}, {"Prenume", prenume}, {"CNP", cnp}});
    Insereaza(bd, QStringLiteral("CereriMembrii"),
              {{"CerereID", cerereId}, {"MembruID", membruId}, {"RudenieID", rudenie}, {"OcupatieID", ocupatie}});
}

inline void Venit(const BD& bd, qint64 cerereId, int cod, double valoare)
{
    Insereaza(bd, QStringLiteral("Venituri"), {{"CerereID", cerereId}, {"CodVenit", cod}, {"Valoare", valoare}});
}

// Disposition `id` of application `cerereId`: a grant, number 55, of 20.03.2012, from 01.04.2012,
// 30 lei, reason "motivul dispozitiei".
inline void Dispozitie(const BD& bd, qint64 id, qint64 cerereId, const QVariantMap& schimbari = {})
{
    Insereaza(bd, QStringLiteral("Dispozitii"),
              Cu({{"DispozitieID", id}, {"CerereID", cerereId}, {"NrDisp", 55}, {"DataDisp", "2012-03-20"},
                  {"DinData", "2012-04-01"}, {"Luna", 4}, {"An", 2012}, {"Actiune", 1}, {"Cuantum", 30},
                  {"Motiv", "motivul dispozitiei"}},
                 schimbari));
}

} // namespace DateDocumente
