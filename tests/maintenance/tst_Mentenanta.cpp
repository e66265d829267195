// The maintenance commands: the rows each one touches, and the allotment of disposition
// numbers with its checks.
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "common/Data.h"
#include "maintenance/Mentenanta.h"
#include "common/Eroare.h"

#include <QtTest>

namespace {

void cerere(const BD& bd, qint64 id, int stare, const QDate& data, const QVariant& dataStare = {})
{
    DateTest::Dosar(bd, id,
                    {{"NrCerere", id}, {"Stare", stare}, {"DataCerere", DataPentruBD(data)}, {"DataStare", dataStare}});
}

int numar(const QString& sql)
{
    return BD::principala().scalar(sql).toInt();
}

} // namespace

class TestMentenanta : public TestCuOficiu {
    Q_OBJECT
private slots:
    void dataStare_data()
    {
        QTest::addColumn<bool>("suprascrie");
        QTest::addColumn<int>("modificate");
        QTest::newRow("doar fara data") << false << 2;
        QTest::newRow("suprascrie") << true << 3;
    }
    void dataStare()
    {
        QFETCH(bool, suprascrie);
        QFETCH(int, modificate);
        cerere(bd(), 1, 2, QDate(2012, 3, 5));
        cerere(bd(), 2, 2, QDate(2012, 3, 6));
        cerere(bd(), 3, 2, QDate(2012, 3, 7), QStringLiteral("2012-02-01"));
        cerere(bd(), 4, 1, QDate(2012, 3, 8)); // not approved
        cerere(bd(), 5, 2, QDate(2012, 4, 1)); // another month
        MesajeScript m;
        QCOMPARE(RecalculDataStare(bd(), 3, 2012, suprascrie), modificate);
        QCOMPARE(m.ultimul(), QStringLiteral("A fost modificata Data Stare la %1 cereri").arg(modificate));
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE DataStare = DataCerere")), modificate);
    }

    void stare()
    {
        for (int i = 1; i <= 4; ++i)
            cerere(bd(), i, i, QDate(2012, 3, i));
        MesajeScript m;
        QCOMPARE(RecalculStare(bd()), 4);
        QCOMPARE(m.ultimul(), QStringLiteral("A fost modifcat Stare = 5 la 4 cereri"));
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare = 5")), 4);
    }

    // The first run moves 3 to 2 and then 4 to 3; a second run moves those to 2 as well.
    void rudenie()
    {
        cerere(bd(), 1, 1, QDate(2012, 3, 1));
        for (int r : {1, 3, 4, 4})
            bd().executa(QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID) VALUES (1, 1, ?)"),
                         {r});
        MesajeScript m;
        QCOMPARE(RecalculRudenie(bd()), 3);
        QCOMPARE(m.texte(),
                 (QStringList{"A fost modificat rudenie de la 3(concubin) la 2(sot/sotie) la 1 cereri",
                              "A fost modificat rudenie de la 4(elev-prg vechi) la 3(elev-prg nou) la 2 cereri"}));
        QCOMPARE(RecalculRudenie(bd()), 2);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE RudenieID = 2")), 3);
    }

    void numerotareVerificari_data()
    {
        QTest::addColumn<int>("lipsa");
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("an") << 0 << "An incorect. Selectati din lista un an existent";
        QTest::newRow("luna") << 1 << "Luna incorecta. Selectati din lista o luna existenta";
        QTest::newRow("tip") << 2 << "Tip Incalzire incorect. Selectati din lista un tip existent";
        QTest::newRow("numar") << 3 << "Nu puteti salva datele inainte de a introduce Numarul Dispozitiei";
        QTest::newRow("inceput") << 4 << "Nu puteti salva datele inainte de a introduce Numar Cerere de inceput";
        QTest::newRow("final") << 5 << "Nu puteti salva datele inainte de a introduce Numar Cerere de final";
    }
    void numerotareVerificari()
    {
        QFETCH(int, lipsa);
        QFETCH(QString, mesaj);
        Numerotare n{2012, 3, 1, true, QStringLiteral("7"), QStringLiteral("1"), QStringLiteral("9")};
        switch (lipsa) {
        case 0: n.an = 0; break;
        case 1: n.luna = 0; break;
        case 2: n.tipIncalzire = 0; break;
        case 3: n.nrDispozitie = QStringLiteral(" "); break;
        case 4: n.nrCerere1.clear(); break;
        case 5: n.nrCerere2.clear(); break;
        }
        MesajeScript m;
        QVERIFY(!AlocaNumereDispozitie(bd(), n));
        QCOMPARE(m.texte(), QStringList{mesaj});
    }

    // The heating-aid tables are not part of an office: the engine's error, nothing written.
    void numerotareFaraTabele()
    {
        MesajeScript m;
        Numerotare n{2012, 3, 1, false, QStringLiteral("7"), QStringLiteral("1"), QStringLiteral("9")};
        QVERIFY_THROWS_EXCEPTION(Eroare, AlocaNumereDispozitie(bd(), n));
        QVERIFY(!bd().inTranzactie());
        NumereNealocate r;
        QVERIFY(!CautaNumereNealocate(bd(), 0, r));
        QCOMPARE(m.ultimul(), QStringLiteral("Selectati tipul de incalzire pentru care doriti sa faceti verificarea!"));
        QVERIFY_THROWS_EXCEPTION(Eroare, CautaNumereNealocate(bd(), 1, r));
    }

    // With the heating-aid tables in place: numbers from the first one up, in the order of the
    // application numbers, and the gaps of the active period.
    void numerotareCuTabele()
    {
        BD& bd = m_oficiu->bd();
        bd.executa(QStringLiteral("CREATE TABLE Sesiuni (SesiuneID INTEGER, An INTEGER, Luna INTEGER, Activ BOOLEAN)"));
        bd.executa(QStringLiteral("INSERT INTO Sesiuni VALUES (4, 2012, 3, TRUE)"));
        for (const char* c : {"SesiuneID INTEGER", "TipID INTEGER", "NrDispozitie INTEGER", "DataDispozitie DATE"})
            bd.executa(QStringLiteral("ALTER TABLE Cereri ADD COLUMN %1").arg(QLatin1String(c)));
        for (int nr : {5, 1, 2, 9, 4})
            cerere(bd, nr, 1, QDate(2012, 3, 1));
        bd.executa(QStringLiteral("UPDATE Cereri SET SesiuneID = 4, TipID = 1"));
        bd.executa(QStringLiteral("UPDATE Cereri SET NrDispozitie = 77 WHERE NrCerere = 9"));
        MesajeScript m;
        Numerotare n{
            2012, 3, 1, false, QStringLiteral("100"), QStringLiteral("1"), QStringLiteral("9"), QDate(2012, 3, 20)};
        QVERIFY(AlocaNumereDispozitie(bd, n));
        QCOMPARE(m.ultimul(),
                 QStringLiteral("Au fost modificate 4 cereri\nUltimul nr de dispozitie alocate este: 103"));
        QCOMPARE(bd.scalar(QStringLiteral("SELECT NrDispozitie FROM Cereri WHERE NrCerere = 5")).toInt(), 103);
        QCOMPARE(bd.scalar(QStringLiteral("SELECT NrDispozitie FROM Cereri WHERE NrCerere = 9")).toInt(), 77);
        NumereNealocate r;
        QVERIFY(CautaNumereNealocate(bd, 1, r));
        QCOMPARE(r.maxim, QStringLiteral("Nr cerere maxim: 9"));
        QCOMPARE(r.lista, QStringLiteral("Numere nealocate:\n3\n6 - 8"));
    }
};

QTEST_GUILESS_MAIN(TestMentenanta)
#include "tst_Mentenanta.moc"
