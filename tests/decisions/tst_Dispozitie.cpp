#include "DateTest.h"
#include "TestCuOficiu.h"
#include "decisions/Dispozitie.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Text.h"

#include <QtTest>

using DateTest::CNPNascut;
using DateTest::NumaraRanduri;

// The disposition of an application: the defaults from its status, the checks, the save,
// and a row deleted by another workstation.
class TestDispozitie : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        DateTest::DosarCuMembri(bd(), 1, {CNPNascut(QDate(1975, 6, 1))},
                                {{"DataCerere", "2012-04-10"},
                                 {"Stare", 1},
                                 {"Cuantum", 200}}); // application 1 of 10 April 2012, amount 200
    }

private slots:
    void implicite_data()
    {
        QTest::addColumn<int>("stare");
        QTest::addColumn<int>("pozitie");
        QTest::addColumn<bool>("inSumaNoua");
        QTest::newRow("1 fara decizie") << 1 << -1 << false;
        QTest::newRow("2 acordare") << 2 << 0 << false;
        QTest::newRow("3 suspendare") << 3 << 2 << false;
        QTest::newRow("4 incetare") << 4 << 4 << false;
        QTest::newRow("5 respingere") << 5 << 3 << false;
        QTest::newRow("6 reluare") << 6 << 5 << false;
        QTest::newRow("7 modificare cuantum") << 7 << 1 << true;
        QTest::newRow("8 schimbare titular") << 8 << 1 << true;
        QTest::newRow("0 necunoscuta") << 0 << -1 << false;
    }

    void implicite()
    {
        QFETCH(int, stare);
        QFETCH(int, pozitie);
        QFETCH(bool, inSumaNoua);
        bd().executa(QStringLiteral("UPDATE Cereri SET Stare = ?, Cuantum = 166.6667"), {stare});
        const auto i = ImpliciteDispozitieNoua(bd(), 1);
        QVERIFY(i);
        QCOMPARE(i->pozitieTip, pozitie);
        QCOMPARE(PozitieTipDinStare(stare), pozitie);
        QCOMPARE(i->inSumaNoua, inSumaNoua);
        QCOMPARE(i->suma, QStringLiteral("166.6667"));
        QCOMPARE(i->nrCerere, QStringLiteral("101"));
        QCOMPARE(i->dataCerere, QStringLiteral("10.04.2012"));
        QCOMPARE(i->luna, 4);
        QCOMPARE(i->an, QStringLiteral("2012"));
    }

    void impliciteCerereStearsa() { QVERIFY(!ImpliciteDispozitieNoua(bd(), 99)); }

    void verificari_data()
    {
        QTest::addColumn<int>("actiune");
        QTest::addColumn<int>("luna");
        QTest::addColumn<QString>("an");
        QTest::addColumn<QString>("mesaj");
        QTest::addColumn<int>("camp");
        const int tip = int(CampDispozitie::Tip), luna = int(CampDispozitie::Luna), an = int(CampDispozitie::An),
                  nimic = int(CampDispozitie::Niciunul);
        QTest::newRow("fara tip") << 0 << 0 << ""
                                  << "Tip Dispozitie incorect. Selectati un tip din lista!" << tip;
        QTest::newRow("fara luna") << 1 << 0 << "2012"
                                   << "Selectati o luna corecta!" << luna;
        QTest::newRow("an gol") << 1 << 5 << "  "
                                << "Nu puteti salva datele inainte de a introduce Anul" << an;
        QTest::newRow("an mai mic") << 1 << 5 << "2011"
                                    << "Anul dispozitiei nu poate fi mai mic decat anul depunerii cererii" << an;
        QTest::newRow("an cu litere") << 1 << 5 << "20a2"
                                      << "Anul dispozitiei nu poate fi mai mic decat anul depunerii cererii" << an;
        QTest::newRow("an numai litere") << 1 << 5 << "abcd"
                                         << "Anul dispozitiei nu poate fi mai mic decat anul depunerii cererii" << an;
        QTest::newRow("martie, cerere din aprilie")
            << 1 << 3 << "2012"
            << "Luna dispozitiei nu poate fi mai mica decat luna depunerii cererii" << an;
        QTest::newRow("martie anul urmator") << 1 << 3 << "2013"
                                             << "" << nimic;
        QTest::newRow("aprilie acelasi an") << 1 << 4 << "2012"
                                            << "" << nimic;
        QTest::newRow("an cu virgula") << 1 << 4 << "2012,7"
                                       << "" << nimic;
    }

    void verificari()
    {
        QFETCH(int, actiune);
        QFETCH(int, luna);
        QFETCH(QString, an);
        QFETCH(QString, mesaj);
        QFETCH(int, camp);
        MesajeScript mesaje;
        DateDispozitie d = buna();
        d.actiune = actiune;
        d.luna = luna;
        d.an = an;
        const VerificareDispozitie v = VerificaDispozitie(bd(), 1, d);
        QCOMPARE(v.ok(), mesaj.isEmpty());
        QCOMPARE(mesaje.ultimul(), mesaj);
        QCOMPARE(int(v.camp), camp);
    }

    void salvareAdaugare_data()
    {
        QTest::addColumn<int>("actiune");
        QTest::addColumn<QString>("nrDisp");
        QTest::addColumn<QString>("suma");
        QTest::addColumn<QString>("sumaNoua");
        QTest::addColumn<QVariant>("cuantumVechi");
        QTest::addColumn<double>("cuantum");
        QTest::newRow("acordare") << 1 << "12"
                                  << "200"
                                  << "" << QVariant() << 200.0;
        // Status 7: the amount waits in the new-amount box, the former one stays empty: 0.
        QTest::newRow("modificare, vechi gol") << 2 << "13"
                                               << ""
                                               << "250.5" << QVariant(0.0) << 250.5;
        QTest::newRow("modificare") << 2 << "14"
                                    << "200"
                                    << "250" << QVariant(200.0) << 250.0;
        // An ending keeps the hidden amount.
        QTest::newRow("incetare cu suma ascunsa") << 5 << "15"
                                                  << "200"
                                                  << "" << QVariant() << 200.0;
        // Money, as every amount: read to four decimals, halves away from zero.
        QTest::newRow("modificare, sumele la patru zecimale") << 2 << "16"
                                                              << "20.12345"
                                                              << "250.00005" << QVariant(20.1235) << 250.0001;
        QTest::newRow("numar cu litere") << 1 << "12a"
                                         << "1,5"
                                         << "" << QVariant() << 1.0;
    }

    void salvareAdaugare()
    {
        QFETCH(int, actiune);
        QFETCH(QString, nrDisp);
        QFETCH(QString, suma);
        QFETCH(QString, sumaNoua);
        QFETCH(QVariant, cuantumVechi);
        QFETCH(double, cuantum);
        DateDispozitie d = buna();
        d.actiune = actiune;
        d.nrDisp = nrDisp;
        d.suma = suma;
        d.sumaNoua = sumaNoua;
        d.luna = 3;
        d.an = QStringLiteral("2013");
        d.motiv = QStringLiteral("D'ale copiilor");
        QCOMPARE(SalveazaDispozitie(bd(), 1, d), 1);
        QCOMPARE(SalveazaDispozitie(bd(), 1, d), 2); // the same number saves without a word

        Rezultat r = bd().selecteaza(QStringLiteral("SELECT * FROM Dispozitii WHERE DispozitieID = 1"));
        QVERIFY(r.next());
        QCOMPARE(r.numar("CerereID"), 1);
        QCOMPARE(r["NrDisp"].toDouble(), ValoareNumerica(nrDisp));
        QCOMPARE(DataDinBD(r["DataDisp"]), QDate(2012, 5, 2));
        QCOMPARE(DataDinBD(r["DinData"]), QDate(2013, 3, 1));
        QCOMPARE(r.numar("Luna"), 3);
        QCOMPARE(r["An"].toDouble(), 2013.0);
        QCOMPARE(r.numar("Actiune"), actiune);
        QCOMPARE(r["CuantumVechi"].isNull(), cuantumVechi.isNull());
        if (!cuantumVechi.isNull())
            QCOMPARE(r["CuantumVechi"].toDouble(), cuantumVechi.toDouble());
        QCOMPARE(r["Cuantum"].toDouble(), cuantum);
        QCOMPARE(r.text("Motiv"), QStringLiteral("D'ale copiilor"));
    }

    void modificareDinTipul2PastreazaCuantumVechi()
    {
        DateDispozitie d = buna();
        d.actiune = 2;
        d.suma = QStringLiteral("150");
        d.sumaNoua = QStringLiteral("250");
        d.id = SalveazaDispozitie(bd(), 1, d);

        auto inc = CitesteDispozitie(bd(), d.id);
        QVERIFY(inc);
        QCOMPARE(inc->date.suma, QStringLiteral("150"));
        QCOMPARE(inc->date.sumaNoua, QStringLiteral("250"));
        inc->date.actiune = 4;
        inc->date.suma = QStringLiteral("250");
        MesajeScript mesaje;
        QVERIFY(VerificaDispozitie(bd(), 2, inc->date).ok());
        SalveazaDispozitie(bd(), 2, inc->date);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT CuantumVechi FROM Dispozitii")).toDouble(), 150.0);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT Actiune FROM Dispozitii")).toInt(), 4);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 1);
    }

    void lunaSiAnulSeCitescDinDinData()
    {
        // Month and year come from the first day of effect, not from Luna and An.
        bd().executa(
            QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DinData, Luna, An, Actiune, "
                           "Cuantum) VALUES (7, 1, 31, '2013-06-01', 2, 2010, 3, 99.5)"));
        const auto inc = CitesteDispozitie(bd(), 7);
        QVERIFY(inc);
        QCOMPARE(inc->date.luna, 6);
        QCOMPARE(inc->date.an, QStringLiteral("2013"));
        QCOMPARE(inc->date.nrDisp, QStringLiteral("31"));
        QCOMPARE(inc->date.suma, QStringLiteral("99.5"));
        QVERIFY(inc->date.motiv.isEmpty());
        QVERIFY(EsteDataZero(inc->date.dataDisp));
        QCOMPARE(inc->nrCerere, QStringLiteral("101"));
        QCOMPARE(inc->dataCerere, QStringLiteral("10.04.2012"));
        QVERIFY(!CitesteDispozitie(bd(), 8));
    }

    void stearsaDeAltaStatie()
    {
        DateDispozitie d = buna();
        d.id = SalveazaDispozitie(bd(), 1, d);
        m_oficiu->executaDinAltCalculator(QStringLiteral("DELETE FROM Dispozitii WHERE DispozitieID = ?"), {d.id});

        MesajeScript mesaje;
        const VerificareDispozitie v = VerificaDispozitie(bd(), 2, d);
        QCOMPARE(v.stare, VerificareDispozitie::Inchide);
        QCOMPARE(mesaje.ultimul(), MesajDispozitie::Stearsa);
        // Past the checks, the save itself finds the row gone and writes nothing.
        try {
            SalveazaDispozitie(bd(), 2, d);
            QFAIL("salvarea trebuia sa esueze");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::RandSters);
        }
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 0);
        QVERIFY(!bd().inTranzactie());
    }

    void cerereStearsaLaVerificare()
    {
        m_oficiu->executaDinAltCalculator(QStringLiteral("DELETE FROM Familii WHERE FamilieID = 1"));
        MesajeScript mesaje;
        const VerificareDispozitie v = VerificaDispozitie(bd(), 1, buna());
        QCOMPARE(v.stare, VerificareDispozitie::Oprit);
        QVERIFY(mesaje.ultimul().startsWith(MesajDispozitie::PrefixVerificare + QStringLiteral("3167 ")));
    }

    void salvareEsuataNuScrieNimic()
    {
        DateDispozitie d = buna();
        d.cerereId = 42; // no such application: the engine refuses the row
        QVERIFY_THROWS_EXCEPTION(Eroare, SalveazaDispozitie(bd(), 1, d));
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 0);
        QVERIFY(!bd().inTranzactie());
        // The connection is usable afterwards and the key starts again at 1.
        QCOMPARE(SalveazaDispozitie(bd(), 1, buna()), 1);
    }

private:
    DateDispozitie buna() const;
};

DateDispozitie TestDispozitie::buna() const
{
    DateDispozitie d;
    d.cerereId = 1;
    d.nrDisp = QStringLiteral("12");
    d.dataDisp = QDate(2012, 5, 2);
    d.luna = 5;
    d.an = QStringLiteral("2012");
    d.actiune = 1;
    d.suma = QStringLiteral("200");
    return d;
}

QTEST_GUILESS_MAIN(TestDispozitie)
#include "tst_Dispozitie.moc"
