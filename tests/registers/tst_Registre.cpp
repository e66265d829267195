// The small registers: reasons and streets with their checks, the school certificates of the
// pupils, and the search of the persons register.
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "decisions/Adeverinte.h"
#include "registers/Persoane.h"
#include "registers/Registre.h"
#include "common/Data.h"
#include "common/Eroare.h"

#include <QtTest>

namespace {

int numar(const QString& sql, const QVariantList& p = {})
{
    return BD::principala().scalar(sql, p).toInt();
}

void persoana(qint64 id, const QString& nume, const QVariant& cnp, const QVariant& tipAct = {})
{
    BD::principala().executa(
        QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP, TipAct) VALUES (?, ?, ?, ?, ?)"),
        {id, nume, QStringLiteral("Ana"), cnp, tipAct});
}

void inCerere(qint64 cerereId, qint64 membruId, int ocupatie)
{
    BD::principala().executa(QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, OcupatieID) "
                                            "VALUES (?, ?, 3, ?)"),
                             {cerereId, membruId, ocupatie});
}

} // namespace

class TestRegistre : public TestCuOficiu {
    Q_OBJECT
private slots:
    // Both editors compare the name against the streets table, in any case.
    void salvare_data()
    {
        QTest::addColumn<bool>("strazi");
        QTest::addColumn<bool>("adaug");
        QTest::addColumn<QString>("nume");
        QTest::addColumn<qint64>("cheie"); // what the save returns
        QTest::addColumn<QString>("mesaj");
        // The table holds the street 1 "Garii" and the reason 1 "Garii" already.
        QTest::newRow("motiv gol") << false << true << "   " << qint64(0) << "Nu ati completat denumirea Motivului";
        QTest::newRow("motiv nou") << false << true << " Mutare " << qint64(2) << "";
        QTest::newRow("motiv cu nume de strada") << false << true << "GARII" << qint64(0) << "Acest Motiv exista deja";
        QTest::newRow("motiv schimbat") << false << false << "Plecat" << qint64(1) << "";
        QTest::newRow("strada goala") << true << true << "" << qint64(0)
                                      << "Nu ati completat denumirea strazii / satului";
        QTest::newRow("strada noua cu apostrof") << true << true << "Sf. Petru si Pavel's" << qint64(2) << "";
        QTest::newRow("strada dubla") << true << true << "garii" << qint64(0) << "Aceasta strada / sat exista deja";
        QTest::newRow("strada isi pastreaza numele") << true << false << "Garii" << qint64(1) << "";
    }
    void salvare()
    {
        QFETCH(bool, strazi);
        QFETCH(bool, adaug);
        QFETCH(QString, nume);
        QFETCH(qint64, cheie);
        QFETCH(QString, mesaj);
        const Registru& r = strazi ? RegistruStrazi() : RegistruMotive();
        // The reason first: once the street exists, no reason can take its name.
        QCOMPARE(SalveazaInRegistru(bd(), RegistruMotive(), true, 0, {QStringLiteral("Garii")}), qint64(1));
        QCOMPARE(SalveazaInRegistru(bd(), RegistruStrazi(), true, 0, {QStringLiteral("Garii"), "540", "545400"}),
                 qint64(1));
        MesajeScript m;
        QCOMPARE(SalveazaInRegistru(bd(), r, adaug, 1, {nume, " 541 ", ""}), cheie);
        QCOMPARE(m.ultimul(), mesaj);
        const auto randuri = CitesteRegistru(bd(), r);
        if (cheie) {
            const RandRegistru& rand = cheie == 1 ? randuri.front() : randuri.back();
            QCOMPARE(rand.id, cheie);
            QCOMPARE(rand.valori.value(0), nume.trimmed());
            if (strazi)
                QCOMPARE(rand.valori.value(1), QStringLiteral("541"));
        }
        QCOMPARE(int(randuri.size()), cheie == 2 ? 2 : 1);
    }

    // A reason changed to the name of a street meets no street key to compare with: an error,
    // and nothing written.
    void motivSchimbatInNumeDeStrada()
    {
        SalveazaInRegistru(bd(), RegistruStrazi(), true, 0, {QStringLiteral("Garii")});
        SalveazaInRegistru(bd(), RegistruMotive(), true, 0, {QStringLiteral("Mutare")});
        try {
            SalveazaInRegistru(bd(), RegistruMotive(), false, 1, {QStringLiteral("Garii")});
            QFAIL("fara eroare");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, 3265);
        }
        QCOMPARE(CitesteRegistru(bd(), RegistruMotive()).front().valori.front(), QStringLiteral("Mutare"));
        QVERIFY(!bd().inTranzactie());
    }

    // A street is kept while a family lives on it (the exact name, in any case); a reason is
    // deleted whatever the applications say.
    void stergere_data()
    {
        QTest::addColumn<bool>("strazi");
        QTest::addColumn<QString>("stradaFamiliei");
        QTest::addColumn<bool>("raspuns");
        QTest::addColumn<bool>("sters");
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("strada folosita")
            << true << "GARII" << true << false
            << "Strada / satul Garii nu poate fi sters pentru ca face parte din cel putin o cerere";
        QTest::newRow("alt nume, fara wildcard")
            << true << "Garii 2" << true << true << "Sigur doriti sa stergeti datele satului/strazii Garii ?";
        QTest::newRow("raspuns Nu") << true << "" << false << false
                                    << "Sigur doriti sa stergeti datele satului/strazii Garii ?";
        QTest::newRow("motiv") << false << "Garii" << true << true << "Sigur doriti sa stergeti Motivul Garii ?";
    }
    void stergere()
    {
        QFETCH(bool, strazi);
        QFETCH(QString, stradaFamiliei);
        QFETCH(bool, raspuns);
        QFETCH(bool, sters);
        QFETCH(QString, mesaj);
        const Registru& r = strazi ? RegistruStrazi() : RegistruMotive();
        SalveazaInRegistru(bd(), r, true, 0, {QStringLiteral("Garii")});
        bd().executa(QStringLiteral("INSERT INTO Familii (FamilieID, Strada) VALUES (1, ?)"), {stradaFamiliei});
        MesajeScript m;
        if (mesaj.startsWith(QLatin1String("Sigur"))) // a street in use is refused before the question
            m.raspunde(raspuns);
        QCOMPARE(StergeDinRegistru(bd(), r, 1, QStringLiteral("Garii")), sters);
        QCOMPARE(m.ultimul(), mesaj);
        QCOMPARE(int(CitesteRegistru(bd(), r).size()), sters ? 0 : 1);
    }

    void randSters()
    {
        MesajeScript m;
        m.raspunde(true);
        try {
            StergeDinRegistru(bd(), RegistruMotive(), 7, QStringLiteral("Plecat"));
            QFAIL("fara eroare");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, 3167);
        }
    }

    // The pupils of every application: occupation 8 and 9, one row each, the age at the first
    // day of the month after the active month.
    void eleviCereri()
    {
        for (qint64 id : {1, 2, 3})
            DateTest::Dosar(bd(), id, {}, {{"Nume", QStringLiteral("TITULAR%1").arg(id)}, {"Prenume", "Ion"}});
        persoana(11, QStringLiteral("ELEV"), QStringLiteral("5100303260013"));
        persoana(12, QStringLiteral("STUDENT"), QStringLiteral("6040815260011"));
        persoana(13, QStringLiteral("FARACNP"), QVariant());
        persoana(14, QStringLiteral("SALARIAT"), QStringLiteral("1800101260011"));
        inCerere(1, 14, 1); // no pupil: no row
        inCerere(2, 11, 8);
        inCerere(2, 12, 9);
        inCerere(3, 13, 8);
        const auto e = CitesteEleviCereri(bd(), QDate(2026, 4, 1));
        QCOMPARE(int(e.size()), 3);
        QCOMPARE(e[0].cerereId, 2);
        QCOMPARE(e[1].cerereId, 2);
        QCOMPARE(QSet<qint64>({e[0].membruId, e[1].membruId}), QSet<qint64>({11, 12}));
        const ElevCerere& elev = e[0].membruId == 11 ? e[0] : e[1];
        QCOMPARE(elev.titular, QStringLiteral("TITULAR2 Ion"));
        QCOMPARE(elev.elev, QStringLiteral("ELEV Ana"));
        QCOMPARE(elev.dataNasterii, QStringLiteral("3 Martie 2010"));
        QCOMPARE(elev.varsta, QStringLiteral("16"));
        QCOMPARE(e[2].dataNasterii, QString());
        QCOMPARE(e[2].varsta, QString());
    }

    void adeverinte()
    {
        DateTest::Dosar(bd(), 1);
        persoana(11, QStringLiteral("ELEV"), QStringLiteral("5100303260013"));
        MesajeScript m;
        Adeverinta a;
        a.cerereId = 1;
        a.membruId = 11;
        a.nrAdev = QStringLiteral("  ");
        QVERIFY(!SalveazaAdeverinta(bd(), a, true));
        QCOMPARE(m.ultimul(), QStringLiteral("Nu ati introdus numarul adeverintei"));
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Adeverinte")), 0);

        a.nrAdev = QStringLiteral(" 12 ");
        a.dataAdeverinta = QDate(2026, 3, 5);
        a.tipAdeverinta = 3;
        QVERIFY(SalveazaAdeverinta(bd(), a, true));
        QCOMPARE(a.adevId, 1);
        Adeverinta b = a;
        QVERIFY(SalveazaAdeverinta(bd(), b, true));
        QCOMPARE(b.adevId, 2);
        b.nrAdev = QStringLiteral("13");
        b.dataExpAdev = QDate(2026, 9, 15);
        QVERIFY(SalveazaAdeverinta(bd(), b, false));

        const auto r = CitesteAdeverinte(bd(), 1, 11);
        QCOMPARE(int(r.size()), 2);
        QCOMPARE(r[0].nrAdev, QStringLiteral("12"));
        QCOMPARE(TextDataLunga(r[0].dataAdeverinta), QStringLiteral("5 Martie 2026"));
        QVERIFY(!r[0].dataExpAdev.isValid());
        QCOMPARE(r[1].nrAdev, QStringLiteral("13"));
        QCOMPARE(r[1].dataExpAdev, QDate(2026, 9, 15));
        // The type shows as a day count of the engine's calendar.
        QCOMPARE(TextTipAdeverinta(r[0].tipAdeverinta), QStringLiteral("2 Ianuarie 1900"));
        QCOMPARE(TextTipAdeverinta(-1), QString());
        QVERIFY(CitesteAdeverinte(bd(), 1, 12).empty());

        StergeAdeverinta(bd(), 1);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Adeverinte")), 1);
        QVERIFY_THROWS_EXCEPTION(Eroare, StergeAdeverinta(bd(), 1));

        const AntetAdeverinta antet = CitesteAntetAdeverinta(bd(), 1, 11);
        QCOMPARE(antet.titular, QStringLiteral("POPESCU ION"));
        QCOMPARE(antet.elev, QStringLiteral("ELEV Ana"));
        // With no pupil chosen the ids are 0 and nothing is found.
        const AntetAdeverinta gol = CitesteAntetAdeverinta(bd(), 0, 0);
        QCOMPARE(gol.nrCerere + gol.titular + gol.elev, QString());
    }

    void persoane()
    {
        persoana(1, QStringLiteral("POPESCU"), QStringLiteral("1800101260011"), 2);
        persoana(2, QStringLiteral("IONESCU"), QVariant(), 77);
        const auto p = CitestePersoane(bd());
        QCOMPARE(int(p.size()), 2);
        QCOMPARE(p[0].tipAct, QStringLiteral("CI"));
        QCOMPARE(p[1].tipAct, QString());
        QCOMPARE(p[1].cnp, QString());
    }

    void cautaPrefix_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("rand");
        QTest::newRow("gol") << "" << 0;
        QTest::newRow("litere mici") << "pop" << 1;
        QTest::newRow("spatii") << "  POPESCU " << 1;
        QTest::newRow("doar prefix") << "ESCU" << -1;
        QTest::newRow("mai lung decat valoarea") << "POPESCUL" << -1;
    }
    void cautaPrefix()
    {
        QFETCH(QString, text);
        QFETCH(int, rand);
        QCOMPARE(CautaPrefix({QStringLiteral("IONESCU"), QStringLiteral("Popescu"), QStringLiteral("POPOVICI")}, text),
                 rand);
    }

    void mesajNegasit()
    {
        QCOMPARE(MesajNegasit(0, QStringLiteral("x")), QStringLiteral("Nu s-a gasit Numele: x"));
        QCOMPARE(MesajNegasit(2, QStringLiteral("19")), QStringLiteral("Nu s-a gasit CNP-ul: 19"));
    }
};

QTEST_GUILESS_MAIN(TestRegistre)
#include "tst_Registre.moc"
