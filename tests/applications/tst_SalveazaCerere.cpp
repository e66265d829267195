#include "DateTest.h"
#include "TestCuOficiu.h"

#include "database/BlocareRetea.h"
#include "amounts/Cuantum.h"
#include "applications/IncarcaCerere.h"
#include "applications/SalveazaCerere.h"
#include "database/BD.h"
#include "common/Ceas.h"
#include "common/Proces.h"

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

using DateTest::Familie;
using DateTest::MembruAdult;

Q_DECLARE_METATYPE(CampCerere)

// The save of an application: the order and content of the rows, one transaction, the keys,
// the persons shared between applications, the network lock; and the load of mode 2.
class TestSalveazaCerere : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override { Ceas::seteazaAzi(QDate(2026, 3, 10)); }

    qint64 randuri(const QString& tabela)
    {
        return bd().scalar(QStringLiteral("SELECT COUNT(*) FROM ") + tabela).toLongLong();
    }

    OptiuniSalvare optiuni(bool retea = false)
    {
        OptiuniSalvare o = OptiuniSalvare::dinProces();
        o.anActiv = 2026;
        o.retea = retea;
        return o;
    }

    QList<qint64> stare() { return DateTest::RanduriScrise(bd()); }

    void stricaTabela(const QString& tabela) { OficiuTest::StricaTabela(bd(), tabela); }

    // The application with something in every list that grows and a certificate.
    static Cerere cerereCompleta()
    {
        Cerere c = Familie(2, Lei(700));
        c.Strada = QStringLiteral("Strada O'Neill");
        c.MotivStare = QStringLiteral("dosar complet");
        c.Membrii[0].Eliberat = QStringLiteral("SPCLEP Tarnaveni");
        c.Membrii[2].UScolara = QStringLiteral("Scoala nr. 2");
        c.Membrii[2].MotivStare = QStringLiteral("elev");
        c.Membrii[2].Adeverinte.push_back(
            {0, 3, QStringLiteral("A12"), QDate(2026, 2, 1), QDate(2026, 9, 1), QDate(2026, 2, 3)});
        c.Venituri[70] = Lei(292);
        c.Venituri[10] = Lei(-5);
        c.VenitTotal = QStringLiteral("987");
        c.Gospodarire = 2;
        c.LunaGospod = 4;
        c.GospodLoc = 1;
        c.RegimJuridLoc = 2;
        c.TipIncalzire = 3;
        c.TipLocuinta = 1;
        c.LuniRetro = QStringLiteral("2");
        c.Locuinte[7].folosita = true;
        return c;
    }

private slots:
    // Everything written comes back by the load of mode 2.
    void randuriScriseSiCitite()
    {
        MesajeScript mesaje;
        Cerere c = cerereCompleta();
        const RezultatSalvare s = SalveazaCerere(bd(), c, optiuni());
        QVERIFY(s.salvat());
        QVERIFY(mesaje.intrari.isEmpty());
        QCOMPARE(s.cerereId, qint64(1));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT FamilieID FROM Cereri WHERE CerereID = 1")).toInt(), 1);

        const Cerere l = IncarcaCerere(bd(), s.cerereId);
        QCOMPARE(l.Adaug, 2);
        QCOMPARE(l.FamilieID, qint64(1));
        QCOMPARE(l.NrDosar, QStringLiteral("1"));
        QCOMPARE(l.Strada, QStringLiteral("Strada O'Neill"));
        QCOMPARE(l.Judet, QStringLiteral("Mures"));
        QCOMPARE(l.DataCerere, QDate(2026, 3, 2));
        QCOMPARE(l.MotivStare, QStringLiteral("dosar complet"));
        QCOMPARE(l.VenitTotal, QStringLiteral("987"));
        QCOMPARE(l.VenitpeMembru, QStringLiteral("175")); // 700 / 4 members, as the model held it
        QCOMPARE(l.NrMembrii, QStringLiteral("4"));
        QCOMPARE(l.NrCopii, QStringLiteral("2"));
        QCOMPARE(Bani::dinText(l.Cuantum), s.cuantum);
        QVERIFY(s.cuantum > Bani());
        QCOMPARE(l.LuniRetro, QStringLiteral("2"));
        QCOMPARE(l.Gospodarire, 2);
        QCOMPARE(l.LunaGospod, 4);
        QCOMPARE(l.TipIncalzire, 3);
        QCOMPARE(l.Bife, c.Bife);

        // Incomes: only the values above 0.
        QCOMPARE(l.Venituri[3], Lei(700));
        QCOMPARE(l.Venituri[70], Lei(292));
        QCOMPARE(l.Venituri[10], Bani());
        QCOMPARE(randuri(QStringLiteral("Venituri")), qint64(2));
        // Housing: the ticked kinds.
        QVERIFY(l.Locuinte[0].folosita);
        QCOMPARE(l.Locuinte[0].NrCamere, 3);
        QCOMPARE(l.Locuinte[0].Suprafata, 64.5);
        QVERIFY(l.Locuinte[7].folosita);
        QCOMPARE(randuri(QStringLiteral("Locuinte")), qint64(2));

        // Members by kinship, the applicant in MembruID1.
        QCOMPARE(l.Membrii.size(), size_t(4));
        QCOMPARE(l.Membrii[0].RudenieID, 1);
        QCOMPARE(l.Membrii[0].TextRudenie, QStringLiteral("Titular"));
        QCOMPARE(l.Membrii[0].Eliberat, QStringLiteral("SPCLEP Tarnaveni"));
        QCOMPARE(l.Membrii[1].RudenieID, 2);
        QCOMPARE(l.Membrii[2].TextOcupatie, QStringLiteral("Elev"));
        QCOMPARE(l.Membrii[2].Data18Ani, c.Membrii[2].Data18Ani);
        QCOMPARE(l.Membrii[2].UScolara, QStringLiteral("Scoala nr. 2"));
        QCOMPARE(l.Membrii[2].Adeverinte.size(), size_t(1));
        QCOMPARE(l.Membrii[2].Adeverinte[0].NrAdev, QStringLiteral("A12"));
        QCOMPARE(l.Membrii[2].Adeverinte[0].DataDepunerii, QDate(2026, 2, 3));
        QVERIFY(!l.Membrii[2].TextDataNasterii.isEmpty());
        QCOMPARE(bd().scalar(QStringLiteral("SELECT MembruID1 FROM Cereri")).toLongLong(), l.Membrii[0].MembruID);

        // The lists grew from the typed texts, each with the next key.
        QCOMPARE(bd().scalar(QStringLiteral("SELECT LocalitateID FROM Strazi WHERE Denumire = ?"), {c.Strada}).toInt(),
                 1);
        QCOMPARE(randuri(QStringLiteral("Politii")), qint64(1));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT MAX(MotivID) FROM Motive")).toInt(), 2);
    }

    // The second person's key of the application is never written, whoever the members are.
    void membruID2RamaneZero()
    {
        Cerere c = Familie(2);
        ScrieCerere(bd(), c, 2026);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT MembruID2 FROM Cereri")).toInt(), 0);
    }

    // Typed names compare without regard to case: no second row for "PRINCIPALA".
    void listeFaraDubluri()
    {
        Cerere a = Familie(1, Lei(500), 1, 1);
        ScrieCerere(bd(), a, 2026);
        const qint64 strazi = randuri(QStringLiteral("Strazi"));
        Cerere b = Familie(1, Lei(500), 1, 2);
        b.Strada = QStringLiteral("  PRINCIPALA ");
        ScrieCerere(bd(), b, 2026);
        QCOMPARE(randuri(QStringLiteral("Strazi")), strazi);
        QCOMPARE(IncarcaCerere(bd(), b.CerereID).Strada, QStringLiteral("PRINCIPALA"));
    }

    void modul2Rescrie()
    {
        Cerere c = cerereCompleta();
        ScrieCerere(bd(), c, 2026);
        Cerere l = IncarcaCerere(bd(), c.CerereID);
        const qint64 vechi = l.Membrii[3].MembruID;
        // One child leaves, an income changes, the second child's certificates are not touched
        // (an empty list keeps the stored rows), the spouse's CNP is changed to a new one.
        l.Membrii.erase(l.Membrii.begin() + 3);
        l.Membrii[2].Adeverinte.clear();
        l.Membrii[1].CNP = MembruAdult(2, 900).CNP;
        l.Venituri[70] = Bani();
        l.Locuinte[7].folosita = false;
        l.NrMembrii = QStringLiteral("3");
        MesajeScript mesaje;
        const RezultatSalvare s = SalveazaCerere(bd(), l, optiuni());
        QVERIFY(s.salvat());
        QCOMPARE(s.cerereId, c.CerereID);
        QCOMPARE(randuri(QStringLiteral("Familii")), qint64(1));
        QCOMPARE(randuri(QStringLiteral("CereriMembrii")), qint64(3));
        QCOMPARE(randuri(QStringLiteral("Membrii")), qint64(5)); // the old spouse row stays, unlinked
        QCOMPARE(randuri(QStringLiteral("Adeverinte")), qint64(1));
        QCOMPARE(randuri(QStringLiteral("Venituri")), qint64(1));
        QCOMPARE(randuri(QStringLiteral("Locuinte")), qint64(1));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT NrMembrii FROM Cereri")).toInt(), 3);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE MembruID = ?"), {vechi}).toInt(),
                 0);
    }

    // An application of an older file whose two keys differ keeps both.
    void cheiDiferiteInModul2()
    {
        Cerere c = Familie(1);
        ScrieCerere(bd(), c, 2026);
        bd().executa(QStringLiteral("UPDATE Familii SET FamilieID = 5"));
        bd().executa(QStringLiteral("UPDATE Cereri SET CerereID = 7"));
        Cerere l = IncarcaCerere(bd(), 7);
        QCOMPARE(l.FamilieID, qint64(5));
        QCOMPARE(l.Strada, QStringLiteral("Principala"));
        l.Strada = QStringLiteral("Noua");
        l.Venituri[3] = Lei(1000);
        MesajeScript mesaje;
        const RezultatSalvare s = SalveazaCerere(bd(), l, optiuni());
        QVERIFY(s.salvat());
        QCOMPARE(s.cerereId, qint64(7));
        QCOMPARE(randuri(QStringLiteral("Cereri")), qint64(1));
        QCOMPARE(randuri(QStringLiteral("Familii")), qint64(1));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT Strada FROM Familii WHERE FamilieID = 5")).toString(),
                 QStringLiteral("Noua"));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT Valoare FROM Venituri WHERE CerereID = 7")).toDouble(), 1000.0);
    }

    // A person on two applications: one Membrii row, updated by either save; the per
    // application data stay apart.
    void persoanaComuna()
    {
        Cerere a = Familie(1, Lei(500), 1, 1);
        ScrieCerere(bd(), a, 2026);
        Cerere b = Familie(0, Lei(300), 2, 2);
        MembruCerere copil = a.Membrii[2];
        copil.Nume = QStringLiteral("Ionescu");
        copil.MembruID = 0; // the CNP decides, not the key held
        copil.Data18Ani = QDate(2035, 1, 1);
        copil.CNP = copil.CNP.toLower();
        b.Membrii.push_back(copil);
        ScrieCerere(bd(), b, 2026);
        QCOMPARE(randuri(QStringLiteral("Membrii")), qint64(4));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE MembruID = ?"),
                             {a.Membrii[2].MembruID})
                     .toInt(),
                 2);
        QCOMPARE(IncarcaCerere(bd(), a.CerereID).Membrii[2].Nume, QStringLiteral("Ionescu"));
        QCOMPARE(IncarcaCerere(bd(), a.CerereID).Membrii[2].Data18Ani, a.Membrii[2].Data18Ani);
        QCOMPARE(IncarcaCerere(bd(), b.CerereID).Membrii[1].Data18Ani, QDate(2035, 1, 1));
    }

    void cheiRefolosite()
    {
        for (int i = 1; i <= 3; ++i) {
            Cerere c = Familie(1, Lei(500), 1, i);
            QCOMPARE(ScrieCerere(bd(), c, 2026), qint64(i));
        }
        bd().executa(QStringLiteral("DELETE FROM Familii WHERE FamilieID = 3"));
        QCOMPARE(randuri(QStringLiteral("Cereri")), qint64(2));
        QCOMPARE(randuri(QStringLiteral("Venituri")), qint64(2));
        Cerere c = Familie(1, Lei(500), 1, 4);
        QCOMPARE(ScrieCerere(bd(), c, 2026), qint64(3));
    }

    // The persons and certificates that one save adds each take the maximum plus 1 at the
    // moment they are written: a known person keeps its key, and the certificates of a member
    // deleted and written again follow the rows already written.
    void cheileNoiAleUneiSalvari()
    {
        Cerere c = Familie(2, Lei(500), 1, 1);
        DateTest::Rand(bd(), QStringLiteral("Membrii"),
                       {{QStringLiteral("MembruID"), 40}, {QStringLiteral("CNP"), c.Membrii[1].CNP}});
        DateTest::Rand(bd(), QStringLiteral("Membrii"), {{QStringLiteral("MembruID"), 7}});
        const AdeverintaMembru a{0, 3, QStringLiteral("A1"), QDate(2026, 2, 1), QDate(2026, 9, 1), QDate(2026, 2, 3)};
        c.Membrii[2].Adeverinte = {a};
        c.Membrii[3].Adeverinte = {a};
        ScrieCerere(bd(), c, 2026);
        QList<qint64> chei;
        for (const MembruCerere& m : c.Membrii)
            chei << m.MembruID;
        QCOMPARE(chei, (QList<qint64>{41, 40, 42, 43}));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT MembruID1 FROM Cereri")).toLongLong(), qint64(41));
        const auto adeverinte = [this] {
            QList<qint64> v;
            Rezultat r = bd().selecteaza(QStringLiteral("SELECT AdevID FROM Adeverinte ORDER BY AdevID"));
            while (r.next())
                v << r.valoare(0).toLongLong();
            return v;
        };
        QCOMPARE(adeverinte(), (QList<qint64>{1, 2}));

        Cerere l = IncarcaCerere(bd(), c.CerereID);
        l.Membrii[2].Adeverinte = {a, a};
        l.Membrii[3].Adeverinte = {a};
        ScrieCerere(bd(), l, 2026);
        QCOMPARE(adeverinte(), (QList<qint64>{3, 4, 5}));
    }

    // The keys are 32-bit numbers: an office past 32,767 families or persons goes on saving,
    // each key still the maximum plus 1 and the application's key its family's.
    void cheiPeste32767_data()
    {
        QTest::addColumn<QString>("tabela");
        QTest::newRow("familii") << "Familii";
        QTest::newRow("persoane") << "Membrii";
    }
    void cheiPeste32767()
    {
        QFETCH(QString, tabela);
        if (tabela == QLatin1String("Familii"))
            DateTest::Rand(bd(), tabela, {{QStringLiteral("FamilieID"), 32767}});
        else
            DateTest::Rand(bd(), tabela, {{QStringLiteral("MembruID"), 32767}});
        Cerere c = Familie(1, Lei(500), 1, 1);
        const RezultatSalvare s = SalveazaCerere(bd(), c, optiuni());
        QVERIFY2(s.salvat(), qPrintable(s.mesaj));
        const qint64 familie = tabela == QLatin1String("Familii") ? 32768 : 1;
        QCOMPARE(s.cerereId, familie);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT FamilieID FROM Cereri WHERE CerereID = ?"), {familie}).toLongLong(),
                 familie);
        const qint64 titular = tabela == QLatin1String("Membrii") ? 32768 : 1;
        QCOMPARE(bd().scalar(QStringLiteral("SELECT MembruID1 FROM Cereri WHERE CerereID = ?"), {familie}).toLongLong(),
                 titular);
        const Cerere citita = IncarcaCerere(bd(), familie);
        QCOMPARE(citita.Membrii.front().MembruID, titular);
        QCOMPARE(citita.Membrii.front().CNP, c.Membrii.front().CNP);
    }

    // At the last 32-bit number a new family or person cannot be had: the message names the
    // overflow and nothing is written.
    void familiaPeste2147483647NuSeSalveaza_data()
    {
        QTest::addColumn<QString>("tabela");
        QTest::addColumn<qint64>("maxim"); // before a couple with one child is saved up to the last number
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("familia") << "Familii" << qint64(2147483646)
                                 << "Depasire de capacitate: numarul familiei ar fi 2147483648, peste limita de "
                                    "2147483647. Cererea nu poate fi adaugata.";
        QTest::newRow("persoana") << "Membrii" << qint64(2147483644)
                                  << "Depasire de capacitate: numarul persoanei ar fi 2147483648, peste limita de "
                                     "2147483647. Cererea nu poate fi adaugata.";
    }
    void familiaPeste2147483647NuSeSalveaza()
    {
        QFETCH(QString, tabela);
        QFETCH(qint64, maxim);
        QFETCH(QString, mesaj);
        const QString cheie =
            tabela == QLatin1String("Familii") ? QStringLiteral("FamilieID") : QStringLiteral("MembruID");
        DateTest::Rand(bd(), tabela, {{cheie, maxim}});
        Cerere c = Familie(1, Lei(500), 1, 1);
        QVERIFY(SalveazaCerere(bd(), c, optiuni()).salvat());
        QCOMPARE(bd().scalar(QStringLiteral("SELECT MAX(%1) FROM %2").arg(cheie, tabela)).toLongLong(),
                 qint64(2147483647));
        const QList<qint64> inainte = stare();
        MesajeScript mesaje;
        Cerere d = Familie(1, Lei(500), 1, 2);
        const RezultatSalvare s = SalveazaCerere(bd(), d, optiuni());
        QCOMPARE(s.stare, RezultatSalvare::Stare::Eroare);
        QCOMPARE(s.descriere, mesaj);
        QCOMPARE(mesaje.ultimul(), s.mesaj);
        QCOMPARE(stare(), inainte);
        QCOMPARE(d.CerereID, qint64(0));
    }

    // A failure in the middle of the save leaves nothing: not the family, not the new street.
    void anulareLaEroare_data()
    {
        QTest::addColumn<QString>("tabela");
        QTest::newRow("dupa familie") << "Cereri";
        QTest::newRow("la membri") << "CereriMembrii";
        QTest::newRow("la adeverinte") << "Adeverinte";
        QTest::newRow("la sfarsit") << "Locuinte";
    }
    void anulareLaEroare()
    {
        QFETCH(QString, tabela);
        Cerere veche = Familie(1, Lei(500), 1, 1);
        ScrieCerere(bd(), veche, 2026);
        stricaTabela(tabela);
        const QList<qint64> inainte = stare();

        MesajeScript mesaje;
        Cerere c = cerereCompleta();
        c.NrDosar = c.NrCerere = QStringLiteral("9");
        const Cerere tastat = c;
        const RezultatSalvare s = SalveazaCerere(bd(), c, optiuni());
        QCOMPARE(s.stare, RezultatSalvare::Stare::Eroare);
        QVERIFY2(s.mesaj.contains(QLatin1String("scriere refuzata")), qPrintable(s.mesaj));
        QCOMPARE(mesaje.ultimul(), s.mesaj);
        QCOMPARE(stare(), inainte);
        QCOMPARE(c.CerereID, tastat.CerereID);
        QCOMPARE(c.Membrii[0].MembruID, tastat.Membrii[0].MembruID);

        // Mode 2 (which inserts no Cereri row and, here, no certificate): the rows of the
        // application stay as they were.
        if (tabela == QLatin1String("Cereri") || tabela == QLatin1String("Adeverinte"))
            return;
        Cerere l = IncarcaCerere(bd(), veche.CerereID);
        l.Venituri[3] = Lei(999);
        l.Strada = QStringLiteral("Alta");
        QCOMPARE(SalveazaCerere(bd(), l, optiuni()).stare, RezultatSalvare::Stare::Eroare);
        QCOMPARE(stare(), inainte);
        QCOMPARE(IncarcaCerere(bd(), veche.CerereID).Venituri[3], Lei(500));
        QVERIFY(!bd().inTranzactie());
    }

    void baremLipsaLaSalvare()
    {
        bd().executa(QStringLiteral("DELETE FROM Barem"));
        const QList<qint64> inainte = stare();
        MesajeScript mesaje;
        Cerere c = Familie(1);
        const RezultatSalvare s = SalveazaCerere(bd(), c, optiuni());
        QCOMPARE(s.stare, RezultatSalvare::Stare::Eroare);
        QVERIFY(s.mesaj.contains(QLatin1String("Barem")));
        QCOMPARE(stare(), inainte);
    }

    void verificareOpresteSalvarea()
    {
        Cerere c = Familie(1);
        ScrieCerere(bd(), c, 2026);
        c.Adaug = 2;
        bd().executa(QStringLiteral("DELETE FROM Familii"));
        MesajeScript mesaje;
        const RezultatSalvare s = SalveazaCerere(bd(), c, optiuni());
        QCOMPARE(s.stare, RezultatSalvare::Stare::Verificare);
        QVERIFY(s.inchide);
        QCOMPARE(randuri(QStringLiteral("Cereri")), qint64(0));
    }

    void cerereNoua()
    {
        m_oficiu->scrieDatePrimarie();
        const Cerere c = CerereNoua(bd());
        QCOMPARE(c.Adaug, 1);
        QCOMPARE(c.Judet, QStringLiteral("Mures"));
        QCOMPARE(c.Localitate, QStringLiteral("Tarnaveni"));
        QCOMPARE(c.DataCerere, QDate(2026, 3, 10));
        QCOMPARE(c.ReprLegal, 1);
        QCOMPARE(c.ModPlata, 3);
        QVERIFY(c.Membrii.empty());
        QVERIFY(!c.Locuinte[3].folosita);
        QCOMPARE(c.Locuinte[3].Cod, 4);
        QCOMPARE(c.LunaGospod, 0);
        // The month of "Gospodareste" carries over to the next new application.
        RetineLunaGospod(5);
        QCOMPARE(CerereNoua(bd()).LunaGospod, 5);
        RetineLunaGospod(0);
    }

    // valoareInAfaraColoaneiRefuzata: a number that does not fit its column (too large, or a
    // fraction in a whole-number field), or a code that the field's list does not offer, is
    // refused with a message naming the field, the focus goes to its control, and nothing is
    // written.
    void valoareInAfaraColoaneiRefuzata_data()
    {
        QTest::addColumn<QString>("camp");
        QTest::addColumn<QString>("valoare");
        QTest::addColumn<CampCerere>("control");
        QTest::newRow("NrDosar 1e300") << "NrDosar" << QStringLiteral("1") + QString(300, QLatin1Char('0'))
                                       << CampCerere::NrDosar;
        QTest::newRow("NrCerere peste 32 de biti") << "NrCerere"
                                                   << "3000000000" << CampCerere::NrCerere;
        QTest::newRow("VenitTotal peste coloana de bani") << "VenitTotal"
                                                          << "1000000000000000" << CampCerere::VenitTotal;
        QTest::newRow("NrCopii peste 16 biti") << "NrCopii"
                                               << "40000" << CampCerere::NrCopii;
        QTest::newRow("LuniRetro 256") << "LuniRetro"
                                       << "256" << CampCerere::LuniRetro;
        QTest::newRow("Stare 300") << "Stare"
                                   << "300" << CampCerere::Stare;
        QTest::newRow("Suprafata 1e39") << "Suprafata"
                                        << "1e39" << CampCerere::Locuinta;
        QTest::newRow("NrDosar cu zecimale") << "NrDosar"
                                             << "3.4" << CampCerere::NrDosar;
        QTest::newRow("NrCerere cu zecimale") << "NrCerere"
                                              << "12.7" << CampCerere::NrCerere;
        QTest::newRow("LuniRetro cu zecimale") << "LuniRetro"
                                               << "1.5" << CampCerere::LuniRetro;
        QTest::newRow("Stare din afara listei") << "Stare"
                                                << "9" << CampCerere::Stare;
        QTest::newRow("StCivila din afara listei") << "StCivila"
                                                   << "99" << CampCerere::ListaMembri;
    }
    void valoareInAfaraColoaneiRefuzata()
    {
        QFETCH(QString, camp);
        QFETCH(QString, valoare);
        QFETCH(CampCerere, control);
        Cerere c = Familie(2);
        if (camp == QLatin1String("NrDosar"))
            c.NrDosar = valoare;
        if (camp == QLatin1String("NrCerere"))
            c.NrCerere = valoare;
        if (camp == QLatin1String("VenitTotal"))
            c.VenitTotal = valoare;
        if (camp == QLatin1String("NrCopii"))
            c.NrCopii = valoare;
        if (camp == QLatin1String("LuniRetro"))
            c.LuniRetro = valoare;
        if (camp == QLatin1String("Stare"))
            c.Stare = valoare.toInt();
        if (camp == QLatin1String("Suprafata"))
            c.Locuinte[0].Suprafata = valoare.toDouble();
        if (camp == QLatin1String("StCivila"))
            c.Membrii[0].StCivila = valoare.toInt();
        const QList<qint64> inainte = stare();
        MesajeScript mesaje;
        const RezultatSalvare s = SalveazaCerere(bd(), c, optiuni());
        QCOMPARE(s.stare, RezultatSalvare::Stare::Verificare);
        QCOMPARE(s.camp, control);
        QVERIFY(!s.inchide);
        QVERIFY2(s.mesaj.contains(QStringLiteral("campul ") + camp), qPrintable(s.mesaj));
        QCOMPARE(mesaje.texte(), QStringList{s.mesaj});
        QCOMPARE(stare(), inainte);
    }

    // venitMareSalvatExact: a large income is stored as it is, and the family gets no allowance.
    void venitMareSalvatExact()
    {
        Cerere c = Familie(2, Lei(100000000000000));
        c.Venituri[5] = Bani::dinText(QStringLiteral("12345.5"));
        c.VenitTotal = SumaVenituri(c.Venituri)->text();
        QCOMPARE(c.VenitTotal, QStringLiteral("100000000012345.5"));
        RecalculVenitPeMembru(c);
        MesajeScript mesaje;
        QVERIFY(SalveazaCerere(bd(), c, optiuni()).salvat());
        Rezultat r = bd().selecteaza(QStringLiteral("SELECT VenitTotal, Cuantum FROM Cereri"));
        QVERIFY(r.next());
        QCOMPARE(Bani::dinVariant(r["VenitTotal"]), Bani::dinText(QStringLiteral("100000000012345.5")));
        QCOMPARE(Bani::dinVariant(r["Cuantum"]), Bani());
        QCOMPARE(Bani::dinVariant(bd().scalar(QStringLiteral("SELECT Valoare FROM Venituri WHERE CodVenit = 4"))),
                 Lei(100000000000000));
    }

    // nrCopiiSalvatEsteCelAfisat: the stored NrCopii is what txtCerere(16) showed at OK, not
    // the count of the save's own calculation; the amount is the fresh one.
    void nrCopiiSalvatEsteCelAfisat_data()
    {
        QTest::addColumn<QString>("afisat");
        QTest::addColumn<int>("salvat");
        QTest::newRow("afisat mai mare decat numarat") << "5" << 5;
        QTest::newRow("afisat mai mic decat numarat") << "1" << 1;
        QTest::newRow("nimic afisat") << "" << 0;
    }
    void nrCopiiSalvatEsteCelAfisat()
    {
        QFETCH(QString, afisat);
        QFETCH(int, salvat);
        Cerere c = Familie(2, Lei(500));
        c.NrCopii = afisat;
        MesajeScript mesaje;
        QVERIFY(SalveazaCerere(bd(), c, optiuni()).salvat());
        Rezultat r = bd().selecteaza(QStringLiteral("SELECT NrCopii, Cuantum FROM Cereri"));
        QVERIFY(r.next());
        QCOMPARE(r.numar("NrCopii"), salvat);
        Cerere doi = Familie(2, Lei(500), 1, 2);
        ScrieCerere(bd(), doi, 2026);
        QCOMPARE(Bani::dinVariant(r["Cuantum"]), Bani::dinText(doi.Cuantum));
    }

    // modul2AlegeriImplicite: in mode 2 the legal representative and the way of payment start on
    // the first and third entries of their lists; a stored value replaces them unless it is NULL.
    void modul2AlegeriImplicite_data()
    {
        QTest::addColumn<QVariant>("repr");
        QTest::addColumn<QVariant>("plata");
        QTest::addColumn<int>("reprIncarcat");
        QTest::addColumn<int>("plataIncarcat");
        QTest::newRow("ambele NULL") << QVariant() << QVariant() << 1 << 3;
        QTest::newRow("doar plata NULL") << QVariant(2) << QVariant() << 2 << 3;
        QTest::newRow("ambele scrise") << QVariant(2) << QVariant(1) << 2 << 1;
        QTest::newRow("zero scris nu e NULL") << QVariant(0) << QVariant(0) << 0 << 0;
    }
    void modul2AlegeriImplicite()
    {
        QFETCH(QVariant, repr);
        QFETCH(QVariant, plata);
        QFETCH(int, reprIncarcat);
        QFETCH(int, plataIncarcat);
        Cerere c = Familie(1);
        ScrieCerere(bd(), c, 2026);
        bd().executa(QStringLiteral("UPDATE Cereri SET ReprLegal = ?, ModPlata = ?"), {repr, plata});
        const Cerere l = IncarcaCerere(bd(), c.CerereID);
        QCOMPARE(l.ReprLegal, reprIncarcat);
        QCOMPARE(l.ModPlata, plataIncarcat);
        if (repr.isNull() && plata.isNull()) {
            // Such an application passes the checks and saves again as it was loaded.
            Cerere m = l;
            MesajeScript mesaje;
            QVERIFY(SalveazaCerere(bd(), m, optiuni()).salvat());
        }
    }

    // ----- the network lock

    void blocataDeAltProces()
    {
        if (OficiuTest::peServer())
            QSKIP("the lock file and the path of the database file are not used against a server");
        const QString flock = QStandardPaths::findExecutable(QStringLiteral("flock"));
        if (flock.isEmpty())
            QSKIP("flock(1) is not installed");
        const QString fisier = BlocareRetea::fisier(m_oficiu->folderOficiu());
        QProcess detinator;
        detinator.start(
            flock, {QStringLiteral("-x"), QStringLiteral("-F"), fisier, QStringLiteral("sleep"), QStringLiteral("30")});
        QVERIFY(detinator.waitForStarted());
        // Wait until the other process really holds it.
        QTRY_VERIFY_WITH_TIMEOUT(!BlocareRetea().incearca(m_oficiu->folderOficiu()), 5000);

        const QList<qint64> inainte = stare();
        MesajeScript mesaje;
        Cerere c = Familie(1);
        // Refused at once, never queued behind the holder.
        const RezultatSalvare s = SalveazaCerere(bd(), c, optiuni(true));
        QCOMPARE(s.stare, RezultatSalvare::Stare::Blocat);
        QCOMPARE(mesaje.texte(), QStringList{QStringLiteral(
                                     "Tocmai se salveaza pe alt calculator. Asteptati putin si dati 'OK' din nou!")});
        QCOMPARE(stare(), inainte);

        // The holder ends (killed, as after a crash): the lock is free again.
        detinator.kill();
        detinator.waitForFinished();
        mesaje.goleste();
        QVERIFY(SalveazaCerere(bd(), c, optiuni(true)).salvat());
        QCOMPARE(mesaje.texte(), QStringList{QStringLiteral("Salvati?")});
    }

    void intrebareaSubBlocare()
    {
        if (OficiuTest::peServer())
            QSKIP("the lock file and the path of the database file are not used against a server");
        // Answers the question after checking that nobody else can take the lock meanwhile.
        struct Verificator : MesajeScript {
            QString folder;
            bool blocatInTimpulIntrebarii = false;
            bool raspuns = true;
            bool intreaba(const QString& t, const QString& ti, Icon i, bool d) override
            {
                MesajeScript::intreaba(t, ti, i, d);
                blocatInTimpulIntrebarii = !BlocareRetea().incearca(folder);
                return raspuns;
            }
        } mesaje;
        mesaje.folder = m_oficiu->folderOficiu();

        mesaje.raspuns = false;
        Cerere c = Familie(1);
        const QList<qint64> inainte = stare();
        RezultatSalvare s = SalveazaCerere(bd(), c, optiuni(true));
        QCOMPARE(s.stare, RezultatSalvare::Stare::Renuntat);
        QVERIFY(mesaje.blocatInTimpulIntrebarii);
        QCOMPARE(stare(), inainte);
        BlocareRetea dupa;
        QVERIFY(dupa.incearca(mesaje.folder)); // released after No
        dupa.elibereaza();

        // Released after a failure too.
        mesaje.raspuns = true;
        stricaTabela(QStringLiteral("Cereri"));
        s = SalveazaCerere(bd(), c, optiuni(true));
        QCOMPARE(s.stare, RezultatSalvare::Stare::Eroare);
        QVERIFY(dupa.incearca(mesaje.folder));
        dupa.elibereaza();

        // Without the setting: neither lock nor question.
        mesaje.goleste();
        OficiuTest::ReparaTabela(bd(), QStringLiteral("Cereri"));
        QVERIFY(dupa.incearca(mesaje.folder));
        QVERIFY(SalveazaCerere(bd(), c, optiuni(false)).salvat());
        QVERIFY(mesaje.intrari.isEmpty());
    }

    void caleInaccesibila()
    {
        if (OficiuTest::peServer())
            QSKIP("the lock file and the path of the database file are not used against a server");
        Proces::setari().CaleBD = m_oficiu->folderOficiu() + QStringLiteral("/lipsa");
        MesajeScript mesaje;
        Cerere c = Familie(1);
        QCOMPARE(SalveazaCerere(bd(), c, optiuni()).stare, RezultatSalvare::Stare::CaleLipsa);
        QCOMPARE(mesaje.intrari.size(), 1);
        QCOMPARE(randuri(QStringLiteral("Cereri")), qint64(0));
    }
};

QTEST_GUILESS_MAIN(TestSalveazaCerere)
#include "tst_SalveazaCerere.moc"
