// The upgrade of a database made by an older release: after one run the file has the schema
// of a new office with its rows intact, a second run changes nothing but what the seed lists
// do on purpose, and an office that is up to date is left alone and hears nothing.
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "database/ActualizareBD.h"
#include "database/BD.h"
#include "database/Oficiu.h"
#include "database/Schema.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

namespace {

// A file as an older release left it: columns missing, the two old column names, the income
// kept in two columns, tables and relations missing, short code lists, an index on a column
// that goes away.
const char* const FisierVechi[] = {
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

// The file above, in place of the office's new one; with `faraLista` rows fewer in the lists.
void scrieFisierVechi(const OficiuTest& o, int randuriVenituri = 79, int randuriBife = 19)
{
    BD::principala().inchide();
    QFile::remove(o.caleBD());
    BD bd;
    bd.deschide(o.caleBD(), true);
    Tranzactie t(bd);
    for (const char* sql : FisierVechi)
        bd.executa(QString::fromLatin1(sql));
    for (int i = 1; i <= randuriVenituri; ++i)
        bd.executa(QStringLiteral("INSERT INTO ListaVenituri VALUES (?, ?)"), {i, QStringLiteral("venit %1").arg(i)});
    for (int i = 1; i <= randuriBife; ++i)
        bd.executa(QStringLiteral("INSERT INTO Bife VALUES (?, ?)"), {i, QStringLiteral("bun %1").arg(i)});
    t.confirma();
    bd.inchide();
    BD::principala().deschide(o.caleBD());
}

// The shape of a database: per table its columns, relations and indexes, in lower case and
// sorted, so that the order of columns does not count.
QStringList forma(BD& bd)
{
    QStringList f;
    Rezultat t = bd.selecteaza(QStringLiteral(
        "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%' ORDER BY lower(name)"));
    while (t.next()) {
        const QString tabela = t.valoare(0).toString();
        QStringList parti;
        Rezultat c = bd.selecteaza(QStringLiteral("SELECT name, type, pk FROM pragma_table_info(?)"), {tabela});
        while (c.next())
            parti << QStringLiteral("%1 %2 %3")
                         .arg(c.valoare(0).toString(), c.valoare(1).toString(), c.valoare(2).toString());
        Rezultat k = bd.selecteaza(
            QStringLiteral("SELECT \"from\", \"table\", \"to\", on_update, on_delete FROM pragma_foreign_key_list(?)"),
            {tabela});
        while (k.next())
            parti << QStringLiteral("fk %1>%2.%3 %4 %5")
                         .arg(k.valoare(0).toString(), k.valoare(1).toString(), k.valoare(2).toString(),
                              k.valoare(3).toString(), k.valoare(4).toString());
        Rezultat i =
            bd.selecteaza(QStringLiteral("SELECT name FROM pragma_index_list(?) WHERE origin = 'c'"), {tabela});
        while (i.next())
            parti << QStringLiteral("index ") + i.valoare(0).toString();
        for (QString& p : parti)
            p = p.toLower();
        parti.sort();
        f << tabela.toLower() + QStringLiteral(": ") + parti.join(QStringLiteral("; "));
    }
    return f;
}

int numar(const QString& sql, const QVariantList& p = {})
{
    return BD::principala().scalar(sql, p).toInt();
}

QString dinFolder(const OficiuTest& o, const QString& text)
{
    return QString(text).replace(QStringLiteral("%1"), QDir::toNativeSeparators(o.folderOficiu()));
}

} // namespace

class TestActualizareBD : public TestCuOficiu {
    Q_OBJECT
private slots:
    // An office laid down by init is already up to date: nothing said, nothing written.
    void oficiuLaZi()
    {
        BD& bd = m_oficiu->bd();
        const QStringList inainte = forma(bd);
        const int versiune = numar(QStringLiteral("PRAGMA schema_version"));
        MesajeScript m;
        ActualizeazaBD(bd, m_oficiu->folderOficiu());
        QCOMPARE(m.texte(), QStringList());
        QCOMPARE(numar(QStringLiteral("SELECT total_changes()")), 0);
        QCOMPARE(numar(QStringLiteral("PRAGMA schema_version")), versiune);
        QCOMPARE(forma(bd), inainte);
    }

    void fisierVechi()
    {
        scrieFisierVechi(*m_oficiu);
        BD& bd = m_oficiu->bd();
        MesajeScript m;
        ActualizeazaBD(bd, m_oficiu->folderOficiu());
        QCOMPARE(m.texte(), (QStringList{QStringLiteral("2 cereri calculate"),
                                         QStringLiteral("In tabela ListaVenituri exista 79 randuri"),
                                         QStringLiteral("In tabela Bife exista 19 randuri")}));

        // The same shape as a new office.
        {
            QTemporaryDir nou;
            CreeazaOficiu(nou.path());
            BD bdNou;
            bdNou.deschide(QDir(nou.path()).filePath(Proces::NumeBD));
            QCOMPARE(forma(bd), forma(bdNou));
        }

        // The income of the two old columns is the total; the old columns are gone.
        QCOMPARE(bd.scalar(QStringLiteral("SELECT VenitTotal FROM Cereri WHERE CerereID = 1")).toDouble(), 120.75);
        QCOMPARE(bd.scalar(QStringLiteral("SELECT VenitTotal FROM Cereri WHERE CerereID = 2")).toDouble(), 80.0);
        QVERIFY(!bd.coloane(QStringLiteral("Cereri")).contains(QStringLiteral("VenitPermanent")));
        // Renamed columns keep their values; every row of the rebuilt table is there.
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii")), 4);
        QCOMPARE(numar(QStringLiteral("SELECT RudenieID FROM CereriMembrii WHERE CerereID = 1 AND MembruID = 3")), 4);
        QCOMPARE(numar(QStringLiteral("SELECT OcupatieID FROM CereriMembrii WHERE CerereID = 1 AND MembruID = 3")), 8);
        QCOMPARE(bd.scalar(QStringLiteral("SELECT Denumire FROM DatePrimarie")).toString(),
                 QStringLiteral("Primaria Tarnaveni"));
        QCOMPARE(bd.scalar(QStringLiteral("SELECT Strada FROM Familii WHERE FamilieID = 2")).toString(),
                 QStringLiteral("Morii"));
        // The seed lists: the income list keeps its old rows, the check list is refilled.
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM ListaVenituri")), 159);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Bife")), 20);
        QCOMPARE(bd.scalar(QStringLiteral("SELECT Denumire FROM ListaVenituri WHERE CodVenit = 79 ORDER BY rowid DESC"))
                     .toString(),
                 QStringLiteral("Alte venituri"));
        // Code list rows are tested by their pair only: a text changed by hand stays.
        QCOMPARE(bd.scalar(QStringLiteral("SELECT Continut FROM DateGen WHERE Tip = 30 AND DataID = 1")).toString(),
                 QStringLiteral("Somaj, de la AJOFM"));
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM DateGen")), 2 + 12);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Barem WHERE DataInceput = '2012-01-01'")), 16);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Barem WHERE Descriere <> 'COMPLEMENTAR'")), 0);

        // The relations work: deleting a family takes its application and its members' rows.
        bd.executa(QStringLiteral("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (1, 4, 100)"));
        bd.executa(QStringLiteral("DELETE FROM Familii WHERE FamilieID = 1"));
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii")), 1);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Venituri")), 0);

        // A second run: the total is not computed again, and only the income list, which
        // deletes nothing first, grows by another 80 rows.
        bd.executa(QStringLiteral("UPDATE Cereri SET VenitTotal = 5"));
        m.goleste();
        const QStringList forma1 = forma(bd);
        ActualizeazaBD(bd, m_oficiu->folderOficiu());
        QCOMPARE(m.texte(), QStringList{QStringLiteral("In tabela ListaVenituri exista 159 randuri")});
        QCOMPARE(numar(QStringLiteral("SELECT VenitTotal FROM Cereri")), 5);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM ListaVenituri")), 239);
        QCOMPARE(forma(bd), forma1);
    }

    // A seed file that is missing or short leaves its list as it was, and says so.
    void fisiereSemanate_data()
    {
        QTest::addColumn<QString>("fisier");
        QTest::addColumn<QString>("continut"); // empty: the file is removed
        QTest::addColumn<QString>("tabela");
        QTest::addColumn<int>("randuri");
        QTest::addColumn<QStringList>("mesaje");
        QTest::newRow("Venituri.txt lipsa")
            << "Venituri.txt"
            << ""
            << "ListaVenituri" << 79
            << QStringList{"In tabela ListaVenituri exista 79 randuri", "Fisierul Venituri.txt nu exista in %1",
                           "In tabela Bife exista 19 randuri"};
        QTest::newRow("bife.txt lipsa") << "bife.txt"
                                        << ""
                                        << "Bife" << 19
                                        << QStringList{"In tabela ListaVenituri exista 79 randuri",
                                                       "In tabela Bife exista 19 randuri",
                                                       "Fisierul bife.txt nu exista in %1"};
        QTest::newRow("bife.txt scurt")
            << "bife.txt"
            << "unu\ndoi\n"
            << "Bife" << 19
            << QStringList{"In tabela ListaVenituri exista 79 randuri", "In tabela Bife exista 19 randuri",
                           "Fisierul bife.txt din %1 are 2 randuri, in loc de 20. Tabela Bife a ramas neschimbata."};
        QTest::newRow("apostrof in fisier")
            << "bife.txt" << QString("Bunuri d'ale casei\n").repeated(20) << "Bife" << 20
            << QStringList{"In tabela ListaVenituri exista 79 randuri", "In tabela Bife exista 19 randuri"};
    }
    void fisiereSemanate()
    {
        QFETCH(QString, fisier);
        QFETCH(QString, continut);
        QFETCH(QString, tabela);
        QFETCH(int, randuri);
        QFETCH(QStringList, mesaje);
        scrieFisierVechi(*m_oficiu);
        QFile f(QDir(m_oficiu->folderOficiu()).filePath(fisier));
        QFile::setPermissions(f.fileName(), QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(f.remove());
        if (!continut.isEmpty()) {
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(continut.toUtf8());
            f.close();
        }
        MesajeScript m;
        ActualizeazaBD(bd(), m_oficiu->folderOficiu());
        for (QString& t : mesaje)
            t = dinFolder(*m_oficiu, t);
        QCOMPARE(m.texte().mid(1), mesaje);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM %1").arg(tabela)), randuri);
    }

    // A group that fails changes nothing and says which it was; the groups before it stay done.
    void grupEsuat()
    {
        scrieFisierVechi(*m_oficiu);
        BD& bd = m_oficiu->bd();
        // Something that is not a table holds the name of a new table.
        bd.executa(QStringLiteral("CREATE VIEW Venituri AS SELECT 1 AS CerereID"));
        MesajeScript m;
        try {
            ActualizeazaBD(bd, m_oficiu->folderOficiu());
            QFAIL("fara eroare");
        } catch (const Eroare& e) {
            QVERIFY2(
                e.descriere.startsWith(QLatin1String("Actualizarea bazei de date s-a oprit la pasul 9 (tabele noi)")),
                qPrintable(e.descriere));
        }
        QVERIFY(bd.coloane(QStringLiteral("Barem")).contains(QStringLiteral("DataInceput")));
        QVERIFY(!bd.tabelaExista(QStringLiteral("Locuinte")));
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Bife")), 19);
        // The foreign keys are on again for the rest of the session.
        QCOMPARE(numar(QStringLiteral("PRAGMA foreign_keys")), 1);
    }

    // A relation that the rows do not allow is told once, by its step, not again by the pass
    // over the rest of the schema; the upgrade goes on without it.
    void relatieImposibilaSpusaOData()
    {
        scrieFisierVechi(*m_oficiu);
        BD& bd = m_oficiu->bd();
        bd.executa(QStringLiteral("CREATE TABLE Venituri (CerereID INTEGER)"));
        bd.executa(QStringLiteral("INSERT INTO Venituri (CerereID) VALUES (999)"));
        MesajeScript m;
        ActualizeazaBD(bd, m_oficiu->folderOficiu());
        const QStringList relatia = m.texte().filter(QStringLiteral("Relatia CereriVenituri nu a putut fi creata"));
        QCOMPARE(relatia.size(), 1);
        QVERIFY(bd.coloane(QStringLiteral("Venituri")).contains(QStringLiteral("Valoare")));
    }

    // alocatii-admin upgrade prints each message on its own line and nothing else.
    void comandaUpgrade()
    {
        scrieFisierVechi(*m_oficiu);
        BD::principala().inchide();
        auto ruleaza = [&](QByteArray* iesire) {
            QProcess p;
            p.start(QStringLiteral(ALOCATII_ADMIN),
                    {QStringLiteral("upgrade"), QStringLiteral("--office"), m_oficiu->folderOficiu()});
            p.waitForFinished(60000);
            *iesire = p.readAllStandardOutput();
            return p.exitCode();
        };
        QByteArray iesire;
        QCOMPARE(ruleaza(&iesire), 0);
        QCOMPARE(iesire, QByteArray("2 cereri calculate\nIn tabela ListaVenituri exista 79 randuri\n"
                                    "In tabela Bife exista 19 randuri\n"));
        // Bring the income list to its 80 rows: then a run has nothing to say.
        {
            BD bd;
            bd.deschide(m_oficiu->caleBD());
            bd.executa(QStringLiteral("DELETE FROM ListaVenituri WHERE rowid > 80"));
        }
        QCOMPARE(ruleaza(&iesire), 0);
        QCOMPARE(iesire, QByteArray());
    }
};

QTEST_GUILESS_MAIN(TestActualizareBD)
#include "tst_ActualizareBD.moc"
