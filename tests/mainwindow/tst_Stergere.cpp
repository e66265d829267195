#include "CerereCuMembriTest.h"
#include "OficiuTest.h"
#include "common/Eroare.h"
#include "mainwindow/Stergere.h"

#include <QtTest>

// The three deletes: the shared persons, the family by the application's own number, the
// cascades, and each delete's rollback.
class TestStergere : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void cerereCuMembruComun();
    void familiaCuDouaCereriRamane();
    void stergereaCautaFamiliaDupaNumarulCererii();
    void cerereStearsaDeAltaStatie();
    void cerereRevineLaEsec();
    void dispozitieSiAncheta();
    void randuriStearseDeAltaStatie_data();
    void randuriStearseDeAltaStatie();
    void dispozitieRevineLaEsec();
    void stergereaAncheteiEsteRefuzataDeMotor();

private:
    std::unique_ptr<OficiuTest> m_oficiu;
    BD& bd() { return m_oficiu->bd(); }
    const QString m_comun = CNPNascut(QDate(1970, 1, 1), 100);
    void adaugaDependente(qint64 cerereId);
};

void TestStergere::init()
{
    m_oficiu = std::make_unique<OficiuTest>();
}

void TestStergere::cleanup()
{
    m_oficiu.reset();
}

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

void TestStergere::cerereCuMembruComun()
{
    CerereCuMembriTest a;
    a.cnpuri = {CNPNascut(QDate(1980, 1, 1), 1), m_comun, CNPNascut(QDate(2005, 5, 5), 2)};
    a.scrie(bd());
    CerereCuMembriTest b;
    b.id = 2;
    b.cnpuri = {m_comun, CNPNascut(QDate(2006, 6, 6), 3)};
    b.scrie(bd());
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

void TestStergere::familiaCuDouaCereriRamane()
{
    CerereCuMembriTest a;
    a.cnpuri = {CNPNascut(QDate(1980, 1, 1), 1)};
    a.scrie(bd());
    CerereCuMembriTest b;
    b.id = 2;
    b.familieId = 1;
    b.faraFamilie = true;
    b.cnpuri = {CNPNascut(QDate(1981, 1, 1), 2)};
    b.scrie(bd());

    // The family has another application: no family row goes, so the application stays,
    // while its only person is gone.
    const StergereCerere s = StergeCerere(bd(), 2);
    QVERIFY(!s.familieStearsa);
    QCOMPARE(s.membriSterse.size(), 1);
    QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Cereri")), 2);
    QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), 1);
}

void TestStergere::stergereaCautaFamiliaDupaNumarulCererii()
{
    // Application 5 of family 7: the family with number 5 is looked for, and there is none.
    CerereCuMembriTest a;
    a.id = 5;
    a.familieId = 7;
    a.cnpuri = {CNPNascut(QDate(1980, 1, 1), 1)};
    a.scrie(bd());
    const StergereCerere s = StergeCerere(bd(), 5);
    QVERIFY(!s.familieStearsa);
    QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Familii")), 1);
    QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Cereri")), 1);
    QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), 0);
}

void TestStergere::cerereStearsaDeAltaStatie()
{
    CerereCuMembriTest a;
    a.cnpuri = {CNPNascut(QDate(1980, 1, 1), 1)};
    a.scrie(bd());
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

void TestStergere::cerereRevineLaEsec()
{
    if (OficiuTest::peServer())
        QSKIP("the failure is made by a SQLite trigger");
    CerereCuMembriTest a;
    a.cnpuri = {CNPNascut(QDate(1980, 1, 1), 1), CNPNascut(QDate(2004, 1, 1), 2)};
    a.scrie(bd());
    adaugaDependente(1);
    // The family refuses to go after the persons went: the persons come back.
    bd().executa(QStringLiteral("CREATE TRIGGER blocheaza BEFORE DELETE ON Familii BEGIN SELECT RAISE(ABORT, 'blocat'); "
                                "END"));
    QVERIFY_THROWS_EXCEPTION(Eroare, StergeCerere(bd(), 1));
    QVERIFY(!bd().inTranzactie());
    QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Membrii")), 2);
    QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Adeverinte")), 1);
    QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Cereri")), 1);
    QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Familii")), 1);
}

void TestStergere::dispozitieSiAncheta()
{
    CerereCuMembriTest a;
    a.cnpuri = {CNPNascut(QDate(1980, 1, 1), 1)};
    a.scrie(bd());
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

void TestStergere::randuriStearseDeAltaStatie_data()
{
    QTest::addColumn<bool>("dispozitie");
    QTest::newRow("dispozitie") << true;
    QTest::newRow("ancheta") << false;
}

void TestStergere::randuriStearseDeAltaStatie()
{
    QFETCH(bool, dispozitie);
    CerereCuMembriTest a;
    a.scrie(bd());
    adaugaDependente(1);
    m_oficiu->executaDinAltCalculator(dispozitie ? QStringLiteral("DELETE FROM Dispozitii") : QStringLiteral("DELETE FROM Anchete"));
    try {
        dispozitie ? StergeDispozitie(bd(), 1) : StergeAncheta(bd(), 1);
        QFAIL("trebuia RandSters");
    } catch (const Eroare& e) {
        QCOMPARE(e.numar, CodEroare::RandSters);
    }
    QVERIFY(!bd().inTranzactie());
}

void TestStergere::dispozitieRevineLaEsec()
{
    if (OficiuTest::peServer())
        QSKIP("the failure is made by a SQLite trigger");
    CerereCuMembriTest a;
    a.scrie(bd());
    adaugaDependente(1);
    bd().executa(QStringLiteral("CREATE TRIGGER blocheaza AFTER DELETE ON Dispozitii BEGIN SELECT RAISE(ABORT, "
                                "'blocat'); END"));
    QVERIFY_THROWS_EXCEPTION(Eroare, StergeDispozitie(bd(), 1));
    QVERIFY(DispozitieExista(bd(), 1));
    QVERIFY(!bd().inTranzactie());
}

void TestStergere::stergereaAncheteiEsteRefuzataDeMotor()
{
    // The inquiry delete button's lookup is refused by the engine; nothing is deleted.
    CerereCuMembriTest a;
    a.scrie(bd());
    adaugaDependente(1);
    try {
        AnchetaDeStersExista(bd(), 1);
        QFAIL("motorul trebuia sa refuze cautarea");
    } catch (const Eroare& e) {
        QVERIFY(e.descriere.contains(QStringLiteral("AncheteID")));
    }
    QVERIFY(AnchetaExista(bd(), 1));
}

QTEST_GUILESS_MAIN(TestStergere)
#include "tst_Stergere.moc"
