#include "DateTest.h"

#include "amounts/Cuantum.h"
#include "common/Ceas.h"
#include "decisions/Dispozitie.h"
#include "import/Demo.h"
#include "common/Data.h"
#include "database/BD.h"

#include <QStringList>

namespace DateTest {

namespace {
QVariantMap cu(QVariantMap baza, const QVariantMap& schimbari)
{
    for (auto it = schimbari.cbegin(); it != schimbari.cend(); ++it)
        baza.insert(it.key(), it.value());
    return baza;
}

QVariant membruCuCNP(const BD& bd, const QVariant& cnp)
{
    if (cnp.isNull())
        return {};
    return bd.scalar(QStringLiteral("SELECT MembruID FROM Membrii WHERE CNP = ?"), {cnp});
}
} // namespace

void Rand(const BD& bd, const QString& tabela, const QVariantMap& valori)
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

void Dosar(const BD& bd, qint64 id, const QVariantMap& cerere, const QVariantMap& titular, const QVariantMap& familie)
{
    const QVariant fam = cerere.value(QStringLiteral("FamilieID"), id);
    if (NumaraRanduri(bd, QStringLiteral("Familii"), QStringLiteral("FamilieID = ?"), fam) == 0)
        Rand(bd, QStringLiteral("Familii"),
             cu({{"FamilieID", fam},
                 {"NrDosar", fam},
                 {"Judet", "Mures"},
                 {"Localitate", "Tarnaveni"},
                 {"Strada", "Florilor"},
                 {"Nr", "12"},
                 {"Sc", "B"},
                 {"Ap", "4"}},
                familie));
    QVariant membru = membruCuCNP(bd, titular.value(QStringLiteral("CNP")));
    if (!membru.isValid()) {
        const QVariantMap m =
            cu({{"MembruID", id * 10}, {"Nume", "POPESCU"}, {"Prenume", "ION"}, {"CNP", "1800101260016"}}, titular);
        Rand(bd, QStringLiteral("Membrii"), m);
        membru = m.value(QStringLiteral("MembruID"));
    }
    Rand(bd, QStringLiteral("Cereri"),
         cu({{"CerereID", id},
             {"FamilieID", fam},
             {"NrCerere", 100 + id},
             {"DataCerere", "2012-03-05"},
             {"MembruID1", membru},
             {"MembruID2", 0},
             {"Stare", 2},
             {"MotivStare", "motivul cererii"},
             {"VenitTotal", 450},
             {"VenitpeMembru", 150},
             {"NrMembrii", 3},
             {"NrCopii", 1},
             {"Cuantum", 30},
             {"TipCerere", 1}},
            cerere));
    Rand(bd, QStringLiteral("CereriMembrii"),
         {{"CerereID", id}, {"MembruID", membru}, {"RudenieID", 1}, {"OcupatieID", 1}});
}

qint64 Persoana(const BD& bd, qint64 cerereId, const QVariantMap& membru, const QVariantMap& legatura)
{
    QVariant m = membruCuCNP(bd, membru.value(QStringLiteral("CNP")));
    if (!m.isValid()) {
        m = membru.value(QStringLiteral("MembruID"));
        if (!m.isValid())
            m = bd.scalar(QStringLiteral("SELECT COALESCE(MAX(MembruID), 0) + 1 FROM Membrii"));
        Rand(bd, QStringLiteral("Membrii"),
             cu({{"MembruID", m}, {"Nume", "POPESCU"}, {"Prenume", QStringLiteral("COPIL%1").arg(m.toLongLong())}},
                membru));
    }
    Rand(bd, QStringLiteral("CereriMembrii"),
         cu({{"CerereID", cerereId}, {"MembruID", m}, {"RudenieID", 3}}, legatura));
    return m.toLongLong();
}

void DosarCuMembri(const BD& bd, qint64 id, const QStringList& cnpuri, const QVariantMap& cerere)
{
    Dosar(bd, id, cerere, cnpuri.isEmpty() ? QVariantMap() : QVariantMap{{"CNP", cnpuri.first()}});
    for (qsizetype i = 1; i < cnpuri.size(); ++i)
        Persoana(bd, id, {{"CNP", cnpuri[i]}});
}

void DosarCompletat(const BD& bd, const QString& cnp, qint64 id)
{
    Dosar(bd, id,
          {{"NrCerere", 345},
           {"DataCerere", "2026-03-09"},
           {"Stare", 1},
           {"ReprLegal", 1},
           {"ModPlata", 2},
           {"NumeTitularCont", "POP ION"},
           {"Cont", "RO12"},
           {"Banca", "BCR"},
           {"Gospodarire", 1},
           {"GospodLoc", 2},
           {"Bife", "01"},
           {"MotivStare", Null},
           {"VenitTotal", Null},
           {"VenitpeMembru", Null},
           {"NrMembrii", Null},
           {"NrCopii", Null},
           {"Cuantum", Null},
           {"MembruID2", Null}},
          {{"MembruID", id},
           {"Nume", "POP"},
           {"Prenume", "ION"},
           {"CNP", cnp},
           {"TipAct", 2},
           {"SerieBI", "MS"},
           {"NrBI", "123456"},
           {"Eliberat", "SPCLEP"},
           {"DataElib", "2019-02-03"}},
          {{"NrDosar", 7},
           {"Strada", "Avram Iancu"},
           {"Bloc", "B4"},
           {"Sc", "A"},
           {"Ap", "7"},
           {"Telefon", "0265441"},
           {"Mobil", "0744123"}});
    bd.executa(QStringLiteral("UPDATE CereriMembrii SET CetatenieID = 1, StCivila = 2, Studii = 3, DrAsSociala = 1, "
                              "LucreazaAfara = FALSE WHERE CerereID = ?"),
               {id});
}

void Venit(const BD& bd, qint64 cerereId, int cod, double valoare)
{
    Rand(bd, QStringLiteral("Venituri"), {{"CerereID", cerereId}, {"CodVenit", cod}, {"Valoare", valoare}});
}

void Dispozitie(const BD& bd, qint64 id, qint64 cerereId, const QVariantMap& schimbari)
{
    Rand(bd, QStringLiteral("Dispozitii"),
         cu({{"DispozitieID", id},
             {"CerereID", cerereId},
             {"NrDisp", 55},
             {"DataDisp", "2012-03-20"},
             {"DinData", "2012-04-01"},
             {"Luna", 4},
             {"An", 2012},
             {"Actiune", 1},
             {"Cuantum", 30},
             {"Motiv", "motivul dispozitiei"}},
            schimbari));
}

void Ancheta(const BD& bd, qint64 id, qint64 cerereId, const QVariantMap& schimbari)
{
    Rand(bd, QStringLiteral("Anchete"),
         cu({{"AnchetaID", id}, {"CerereID", cerereId}, {"DataAncheta", "2012-03-01"}}, schimbari));
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

QList<qint64> RanduriScrise(const BD& bd)
{
    QList<qint64> n;
    for (const char* t : {"Strazi", "Politii", "Scoli", "Motive", "Familii", "Cereri", "Membrii", "CereriMembrii",
                          "Adeverinte", "Venituri", "Locuinte"})
        n << NumaraRanduri(bd, QString::fromLatin1(t));
    return n;
}

MembruCerere MembruAdult(int rudenie, int serie, int ocupatie, const QDate& nascut)
{
    MembruCerere m;
    m.Nume = QStringLiteral("Popescu");
    m.Prenume = rudenie == 1 ? QStringLiteral("Ion") : QStringLiteral("Maria");
    m.CNP = CNPInventat(rudenie == 1 ? 1 : 2, nascut, 1 + (serie / 1000) % 46, serie % 1000);
    m.RudenieID = rudenie;
    m.OcupatieID = ocupatie;
    m.CetatenieID = 1;
    m.TipAct = 2;
    m.SerieBI = QStringLiteral("MS");
    m.NrBI = QString::number(100000 + serie);
    return m;
}

MembruCerere MembruCopil(const QDate& nascut, int serie, int ocupatie)
{
    MembruCerere m;
    m.Nume = QStringLiteral("Popescu");
    m.Prenume = QStringLiteral("Copil%1").arg(serie);
    m.CNP = CNPInventat(nascut.year() >= 2000 ? 5 : 1, nascut, 1 + (serie / 1000) % 46, serie % 1000);
    m.RudenieID = 3;
    m.OcupatieID = ocupatie;
    m.CetatenieID = 1;
    m.Data18Ani = nascut.addYears(18);
    m.Motiv = QStringLiteral("implinirea varstei de 18 ani");
    return m;
}

::Cerere Familie(int copii, Bani venitTotal, int tipCerere, int serie)
{
    ::Cerere c;
    c.Adaug = 1;
    c.NrDosar = QString::number(serie);
    c.NrCerere = QString::number(serie);
    c.DataCerere = QDate(2026, 3, 2);
    c.Judet = QStringLiteral("Mures");
    c.Localitate = QStringLiteral("Tarnaveni");
    c.Strada = QStringLiteral("Principala");
    c.Nr = QStringLiteral("12");
    c.ReprLegal = 1;
    c.ModPlata = 3;
    c.TipCerere = tipCerere;
    c.Stare = 1;
    c.DataStare = QDate(2026, 3, 2);
    c.Bife = QStringLiteral("0000000000");
    const int baza = serie * 100;
    c.Membrii.push_back(MembruAdult(1, baza));
    if (tipCerere == 1)
        c.Membrii.push_back(MembruAdult(2, baza + 1, 6, QDate(1982, 8, 3)));
    for (int i = 0; i < copii; ++i)
        c.Membrii.push_back(MembruCopil(QDate(2015, 1 + i % 12, 10), baza + 10 + i));
    c.Venituri[3] = venitTotal;
    c.Locuinte[0].folosita = true;
    c.Locuinte[0].NrCamere = 3;
    c.Locuinte[0].Suprafata = 64.5;
    c.VenitTotal = SumaVenituri(c.Venituri).value_or(Bani()).text();
    c.NrMembrii = QString::number(c.Membrii.size());
    c.NrCopii = QString::number(copii);
    RecalculVenitPeMembru(c);
    return c;
}

qint64 DispozitieSalvata(BD& bd, qint64 cerereId, int nr, int luna, int actiune, const QString& suma,
                         const QString& sumaNoua)
{
    DateDispozitie d;
    d.cerereId = cerereId;
    d.nrDisp = QString::number(nr);
    d.dataDisp = Ceas::azi();
    d.luna = luna;
    d.an = QStringLiteral("2026");
    d.actiune = actiune;
    d.suma = suma;
    d.sumaNoua = sumaNoua;
    return SalveazaDispozitie(bd, 1, d);
}

} // namespace DateTest
