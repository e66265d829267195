#include "DateTest.h"
#include "TestCuOficiu.h"
#include "common/Eroare.h"
#include "mainwindow/Stergere.h"

#include <QtTest>

using DateTest::CNPNascut;
using DateTest::NumaraRanduri;

// The three deletes: the shared persons, the family by the application's own number, the
// cascades, and each delete's rollback.
class TestStergere : public TestCuOficiu {
    Q_OBJECT
private slots:
    void cerereCuMembruComun()
    {
        DateTest::DosarCuMembri(bd(), 1, {CNPNascut(QDate(1980, 1, 1), 1), m_comun, CNPNascut(QDate(2005, 5, 5), 2)});
        DateTest::DosarCuMembri(bd(), 2, {m_comun, CNPNascut(QDate(2006, 6, 6), 3)});
        adaugaDependente(1);
        adaugaDependente(2);

        const StergereCerere s = StergeCerere(bd(), 1);
        QVERIFY(s.familieStearsa);
        QCOMPARE(s.membriSterse.size(), 2);
        // The person of the other application survives; its application is untouched.
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii"), QStringLiteral("CNP = ?"), m_comun), 1);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), 2);
        const QStringList tabele{QStringLiteral("Cereri"),     QStringLiteral("CereriMembrii"),
                                 QStringLiteral("Dispozitii"), QStringLiteral("Anchete"),
                                 QStringLiteral("Venituri"),   QStringLiteral("Locuinte"),
                                 QStringLiteral("Adeverinte"), QStringLiteral("IstoricCereri")};
        for (const QString& t : tabele) {
            QVERIFY2(NumaraRanduri(bd(), t, QStringLiteral("CerereID = ?"), 1) == 0, qPrintable(t));
            QVERIFY2(NumaraRanduri(bd(), t, QStringLiteral("CerereID = ?"), 2) > 0, qPrintable(t));
        }
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Familii")), 1);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("CereriMembrii"), QStringLiteral("CerereID = ?"), 2), 2);
    }

    void familiaCuDouaCereriRamane()
    {
        DateTest::DosarCuMembri(bd(), 1, {CNPNascut(QDate(1980, 1, 1), 1)});
        DateTest::DosarCuMembri(bd(), 2, {CNPNascut(QDate(1981, 1, 1), 2)}, {{"FamilieID", 1}});

        // The family has another application: no family row goes, so the application stays,
        // while its only person is gone.
        const StergereCerere s = StergeCerere(bd(), 2);
        QVERIFY(!s.familieStearsa);
        QCOMPARE(s.membriSterse.size(), 1);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Cereri")), 2);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), 1);
    }

    void stergereaCautaFamiliaDupaNumarulCererii()
    {
        // Application 5 of family 7: the family with number 5 is looked for, and there is none.
        DateTest::DosarCuMembri(bd(), 5, {CNPNascut(QDate(1980, 1, 1), 1)}, {{"FamilieID", 7}});
        const StergereCerere s = StergeCerere(bd(), 5);
        QVERIFY(!s.familieStearsa);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Familii")), 1);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Cereri")), 1);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), 0);
    }

    void cerereStearsaDeAltaStatie()
    {
        DateTest::DosarCuMembri(bd(), 1, {CNPNascut(QDate(1980, 1, 1), 1)});
        m_oficiu->executaDinAltCalculator(QStringLiteral("DELETE FROM Familii"));
        try {
            StergeCerere(bd(), 1);
            QFAIL("trebuia RandSters");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::RandSters);
        }
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), 1);
        QVERIFY(!bd().inTranzactie());
    }

    void cerereRevineLaEsec()
    {
        DateTest::DosarCuMembri(bd(), 1, {CNPNascut(QDate(1980, 1, 1), 1), CNPNascut(QDate(2004, 1, 1), 2)});
        adaugaDependente(1);
        // The family refuses to go after the persons went: the persons come back.
        OficiuTest::StricaTabela(bd(), QStringLiteral("Familii"), QStringLiteral("BEFORE DELETE"));
        QVERIFY_THROWS_EXCEPTION(Eroare, StergeCerere(bd(), 1));
        QVERIFY(!bd().inTranzactie());
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), 2);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Adeverinte")), 1);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Cereri")), 1);
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Familii")), 1);
    }

    void dispozitieSiAncheta()
    {
        DateTest::DosarCuMembri(bd(), 1, {CNPNascut(QDate(1980, 1, 1), 1)});
        adaugaDependente(1);
        bd().executa(QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID) VALUES (9, 1)"));
        QVERIFY(DispozitieExista(bd(), 9));
        StergeDispozitie(bd(), 9);
        QVERIFY(!DispozitieExista(bd(), 9));
        QVERIFY(DispozitieExista(bd(), 1));
        QVERIFY(AnchetaExista(bd(), 1));
        StergeAncheta(bd(), 1);
        QVERIFY(!AnchetaExista(bd(), 1));
        QVERIFY(CerereExista(bd(), 1));
        QVERIFY(!CerereExista(bd(), 2));
    }

    void randuriStearseDeAltaStatie_data()
    {
        QTest::addColumn<bool>("dispozitie");
        QTest::newRow("dispozitie") << true;
        QTest::newRow("ancheta") << false;
    }

    void randuriStearseDeAltaStatie()
    {
        QFETCH(bool, dispozitie);
        DateTest::Dosar(bd(), 1);
        adaugaDependente(1);
        m_oficiu->executaDinAltCalculator(dispozitie ? QStringLiteral("DELETE FROM Dispozitii")
                                                     : QStringLiteral("DELETE FROM Anchete"));
        try {
            dispozitie ? StergeDispozitie(bd(), 1) : StergeAncheta(bd(), 1);
            QFAIL("trebuia RandSters");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::RandSters);
        }
        QVERIFY(!bd().inTranzactie());
    }

    void dispozitieRevineLaEsec()
    {
        DateTest::Dosar(bd(), 1);
        adaugaDependente(1);
        OficiuTest::StricaTabela(bd(), QStringLiteral("Dispozitii"), QStringLiteral("AFTER DELETE"));
        QVERIFY_THROWS_EXCEPTION(Eroare, StergeDispozitie(bd(), 1));
        QVERIFY(DispozitieExista(bd(), 1));
        QVERIFY(!bd().inTranzactie());
    }

    void stergereaAncheteiEsteRefuzataDeMotor()
    {
        // The inquiry delete button's lookup is refused by the engine; nothing is deleted.
        DateTest::Dosar(bd(), 1);
        adaugaDependente(1);
        try {
            AnchetaDeStersExista(bd(), 1);
            QFAIL("motorul trebuia sa refuze cautarea");
        } catch (const Eroare& e) {
            QVERIFY(e.descriere.contains(QStringLiteral("AncheteID")));
        }
        QVERIFY(AnchetaExista(bd(), 1));
    }

private:
    const QString m_comun = CNPNascut(QDate(1970, 1, 1), 100);
    void adaugaDependente(qint64 cerereId);
};

void TestStergere::adaugaDependente(qint64 c)
{
    const qint64 m = bd().scalar(QStringLiteral("SELECT MembruID1 FROM Cereri WHERE CerereID = ?"), {c}).toLongLong();
    bd().executa(QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, Actiune) VALUES (?, ?, 1)"), {c, c});
    bd().executa(QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID) VALUES (?, ?)"), {c, c});
    bd().executa(QStringLiteral("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (?, 1, 100)"), {c});
    bd().executa(QStringLiteral("INSERT INTO Locuinte (CerereID, Cod, NrCamere) VALUES (?, 1, 2)"), {c});
    if (m > 0)
        bd().executa(QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID) VALUES (?, ?, ?)"), {c, c, m});
    bd().executa(QStringLiteral("INSERT INTO IstoricCereri (CerereID, Tranzactie) VALUES (?, 1)"), {c});
}

QTEST_GUILESS_MAIN(TestStergere)
#include "tst_Stergere.moc"
