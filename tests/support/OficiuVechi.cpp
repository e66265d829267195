#include "OficiuVechi.h"

#include "preluare/FormaDosar.h"
#include "database/BD.h"
#include "database/ListeCod.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// A file as an older release left it: columns missing, the two old column names, the income
// kept in two columns, tables and relations missing, short code lists, an index on a column
// that goes away.
const char* const Instructiuni[] = {
    "CREATE TABLE Familii (FamilieID INTEGER PRIMARY KEY, Judet VARCHAR(50), Localitate VARCHAR(50), "
    "Strada VARCHAR(50), Nr VARCHAR(10), Sc VARCHAR(10), Ap VARCHAR(10))",
    "CREATE TABLE Membrii (MembruID INTEGER PRIMARY KEY, Nume VARCHAR(20), Prenume VARCHAR(30), CNP VARCHAR(13), "
    "SerieBI VARCHAR(3), NrBI VARCHAR(9))",
    "CREATE TABLE Cereri (CerereID INTEGER PRIMARY KEY, FamilieID INTEGER, NrCerere INTEGER, DataCerere DATE, "
    "MembruID1 INTEGER, MembruID2 INTEGER, Stare SMALLINT, NrMembrii INTEGER, NrCopii INTEGER, Cuantum NUMERIC(19,4), "
    "PlataNatura BOOLEAN, VenitPermanent NUMERIC(19,4), VenitVanzari NUMERIC(19,4), VenitAlte NUMERIC(19,4), "
    "CONSTRAINT FamiliiCereri FOREIGN KEY (FamilieID) REFERENCES Familii(FamilieID) ON UPDATE CASCADE ON DELETE "
    "CASCADE)",
    "CREATE TABLE CereriMembrii (CerereID INTEGER, MembruID INTEGER, CodRudenie INTEGER, CodOcupatie INTEGER, "
    "CodVenit SMALLINT, VenitPermanent NUMERIC(19,4), CodVenitAlte SMALLINT, VenitAlte NUMERIC(19,4), "
    "CONSTRAINT CereriCereriMembrii FOREIGN KEY (CerereID) REFERENCES Cereri(CerereID) ON UPDATE CASCADE ON DELETE "
    "CASCADE)",
    "CREATE INDEX IX_Vechi ON CereriMembrii (CodVenit)",
    "CREATE TABLE Dispozitii (DispozitieID INTEGER PRIMARY KEY, CerereID INTEGER, BeneficiarID INTEGER, "
    "NrDisp DOUBLE PRECISION, DataDisp DATE)",
    "CREATE TABLE Anchete (AnchetaID INTEGER PRIMARY KEY, CerereID INTEGER)",
    "CREATE TABLE DateGen (Denumire VARCHAR(50), Tip INTEGER, DataID INTEGER, Continut VARCHAR(255), Ordine INTEGER)",
    "INSERT INTO DateGen VALUES ('STATUT', 1, 1, 'Inregistrata', 1)",
    "INSERT INTO DateGen VALUES ('TIPACT', 30, 1, 'Somaj, de la AJOFM', 1)",
    "CREATE TABLE ListaVenituri (CodVenit SMALLINT, Denumire TEXT)",
    "CREATE TABLE Bife (NrBifa SMALLINT, Denumire VARCHAR(255))",
    "CREATE TABLE Strazi (StradaID INTEGER PRIMARY KEY, Denumire VARCHAR(50), LocalitateID INTEGER)",
    "CREATE TABLE DatePrimarie (Denumire VARCHAR(100), Judet VARCHAR(50), Localitate VARCHAR(50), Str VARCHAR(50), "
    "Nr VARCHAR(10), Primar VARCHAR(50), Secretar VARCHAR(50), Tribunal VARCHAR(50))",
    "CREATE TABLE Barem (Tip INTEGER, Descriere VARCHAR(50), NrPers INTEGER, Barem DOUBLE PRECISION, "
    "Suma DOUBLE PRECISION, PerPers BOOLEAN, BaremPerPers DOUBLE PRECISION)",
    "INSERT INTO Familii VALUES (1, 'Mures', 'Tarnaveni', 'Garii', '3', NULL, NULL)",
    "INSERT INTO Familii VALUES (2, 'Mures', 'Tarnaveni', 'Morii', '5', NULL, NULL)",
    "INSERT INTO Membrii VALUES (1, 'POP', 'ION', '1800101260011', 'MS', '123456')",
    "INSERT INTO Membrii VALUES (2, 'POP', 'ANA', '2820202260012', 'MS', '123457')",
    "INSERT INTO Membrii VALUES (3, 'POP', 'MIHAI', '5100303260013', NULL, NULL)",
    "INSERT INTO Cereri VALUES (1, 1, 10, '2011-03-01', 1, 2, 2, 3, 1, 42, 0, 100.5, 7, 20.25)",
    "INSERT INTO Cereri VALUES (2, 2, 11, '2011-03-02', 2, NULL, 1, 1, 0, 0, 0, 80, NULL, NULL)",
    "INSERT INTO CereriMembrii VALUES (1, 1, 1, 1, 4, 100.5, NULL, NULL)",
    "INSERT INTO CereriMembrii VALUES (1, 2, 2, 6, NULL, NULL, 9, 20.25)",
    "INSERT INTO CereriMembrii VALUES (1, 3, 4, 8, NULL, NULL, NULL, NULL)",
    "INSERT INTO CereriMembrii VALUES (2, 2, 1, 1, 4, 80, NULL, NULL)",
    "INSERT INTO DatePrimarie VALUES ('Primaria Tarnaveni', 'Mures', 'Tarnaveni', 'Republicii', '47', 'X', 'Y', 'T')",
};

} // namespace

void ScrieFisierVechi(const QString& cale, int randuriVenituri, int randuriBife)
{
    QFile::remove(cale);
    BD bd;
    bd.deschide(cale, true);
    Tranzactie t(bd);
    for (const char* sql : Instructiuni)
        bd.executa(QString::fromLatin1(sql));
    for (int i = 1; i <= randuriVenituri; ++i)
        bd.executa(QStringLiteral("INSERT INTO ListaVenituri VALUES (?, ?)"), {i, QStringLiteral("venit %1").arg(i)});
    for (int i = 1; i <= randuriBife; ++i)
        bd.executa(QStringLiteral("INSERT INTO Bife VALUES (?, ?)"), {i, QStringLiteral("bun %1").arg(i)});
    t.confirma();
    bd.inchide();
}

void CompleteazaListeVechi(BD& bd)
{
    Tranzactie t(bd);
    for (const RandDateGen& d : RanduriDateGen())
        if (bd.scalar(QStringLiteral("SELECT COUNT(*) FROM DateGen WHERE Tip = ? AND DataID = ?"), {d.tip, d.dataId})
                .toInt() == 0)
            bd.executa(QStringLiteral("INSERT INTO DateGen (Denumire, Tip, DataID, Continut, Ordine) VALUES (?, ?, ?, "
                                      "?, ?)"),
                       {d.denumire, d.tip, d.dataId, d.continut, d.ordine});
    t.confirma();
}

void ScrieListeDosar(const QString& dosar)
{
    QByteArray linii;
    for (const RandDateGen& d : RanduriDateGen())
        linii += QJsonDocument(QJsonObject{{QStringLiteral("Denumire"), d.denumire},
                                           {QStringLiteral("Tip"), d.tip},
                                           {QStringLiteral("DataID"), d.dataId},
                                           {QStringLiteral("Continut"), d.continut},
                                           {QStringLiteral("Ordine"), d.ordine}})
                     .toJson(QJsonDocument::Compact) +
                 '\n';
    ScrieOcteti(dosar + QStringLiteral("/DateGen.json"), linii);
}

void ScrieDosarVechi(const BD& bd, const QString& folderOficiu, const QString& dosar)
{
    ScrieFormaDosar(bd, dosar);
    const QDir din(folderOficiu);
    QDirIterator it(folderOficiu, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString cale = it.next();
        const QString relativ = din.relativeFilePath(cale);
        if (!relativ.startsWith(QLatin1String("acte/")) && relativ != QLatin1String("Venituri.txt") &&
            relativ != QLatin1String("bife.txt"))
            continue;
        const QString tinta = QDir(dosar).filePath(relativ);
        QDir().mkpath(QFileInfo(tinta).absolutePath());
        QFile::copy(cale, tinta);
    }
}

void ScrieOcteti(const QString& cale, const QByteArray& continut)
{
    QDir().mkpath(QFileInfo(cale).absolutePath());
    QFile f(cale);
    if (f.open(QIODevice::WriteOnly))
        f.write(continut);
}

QByteArray CitesteOcteti(const QString& cale)
{
    QFile f(cale);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
