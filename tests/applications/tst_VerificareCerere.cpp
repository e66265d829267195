#include "DateTest.h"
#include "TestCuOficiu.h"

#include "amounts/CNP.h"
#include "applications/RegulaMembru.h"
#include "applications/RegulaVenituriLocuinta.h"
#include "applications/ValoriCerere.h"
#include "applications/SalveazaCerere.h"
#include "applications/VerificareCerere.h"
#include "database/BD.h"
#include "import/Demo.h"
#include "common/Data.h"

#include <QtTest>
#include <functional>

using DateTest::Familie;
using DateTest::MembruCopil;

using Modificare = std::function<void(Cerere&)>;
Q_DECLARE_METATYPE(Modificare)
Q_DECLARE_METATYPE(CampCerere)
Q_DECLARE_METATYPE(CampMembru)

// The checks of the application editor and of its member, income, housing and assets editors.
class TestVerificareCerere : public TestCuOficiu {
    Q_OBJECT

private slots:
    void controale_data()
    {
        QTest::addColumn<Modificare>("modifica");
        QTest::addColumn<QString>("mesaj");
        QTest::addColumn<CampCerere>("camp");
        auto rand = [](const char* nume, Modificare m, const QString& mesaj, CampCerere camp) {
            QTest::newRow(nume) << m << mesaj << camp;
        };
        rand(
            "dosar gol", [](Cerere& c) { c.NrDosar = QStringLiteral("  "); },
            QStringLiteral("Nu puteti salva datele inainte de a introduce Numarul Dosarului"), CampCerere::NrDosar);
        rand(
            "cerere fara numar", [](Cerere& c) { c.NrCerere.clear(); },
            QStringLiteral("Nu puteti salva datele inainte de a introduce Numarul Cererii"), CampCerere::NrCerere);
        rand(
            "localitate", [](Cerere& c) { c.Localitate = QStringLiteral(" "); },
            QStringLiteral("Nu puteti salva datele inainte de a introduce Localitatea"), CampCerere::Localitate);
        rand(
            "judet", [](Cerere& c) { c.Judet.clear(); },
            QStringLiteral("Nu puteti salva datele inainte de a introduce Judetul"), CampCerere::Judet);
        rand(
            "reprezentant", [](Cerere& c) { c.ReprLegal = 0; },
            QStringLiteral("Selectati din lista: Reprezentant legal!"), CampCerere::ReprLegal);
        rand(
            "mod plata", [](Cerere& c) { c.ModPlata = 0; }, QStringLiteral("Selectati din lista: Modalitati de plata!"),
            CampCerere::ModPlata);
        rand(
            "tip cerere", [](Cerere& c) { c.TipCerere = 0; },
            QStringLiteral("Tip cerere incorect. Selectati din lista: famile cu sot/sotie sau famile monoparentala!"),
            CampCerere::TipCerere);
        rand(
            "statut", [](Cerere& c) { c.Stare = 0; },
            QStringLiteral("Statut incorect. Selectati din lista un statut corect"), CampCerere::Stare);
        rand(
            "fara membri", [](Cerere& c) { c.Membrii.clear(); },
            QStringLiteral("Este obligatorie adaugarea titularului cererii"), CampCerere::AdaugaMembru);
        rand(
            "fara titular", [](Cerere& c) { c.Membrii[0].RudenieID = 3; },
            QStringLiteral("Cererea trebuie sa aiba exact un titular. Corectati"), CampCerere::ListaMembri);
        rand(
            "doi titulari", [](Cerere& c) { c.Membrii[1].RudenieID = 1; },
            QStringLiteral("Cererea trebuie sa aiba exact un titular. Corectati"), CampCerere::ListaMembri);
        rand(
            "doi soti", [](Cerere& c) { c.Membrii[2].RudenieID = 2; },
            QStringLiteral("Cererea nu poate sa aiba mai mult de un sot/sotie. Corectati"), CampCerere::ListaMembri);
        rand(
            "rudenie 6", [](Cerere& c) { c.Membrii[2].RudenieID = 6; },
            QStringLiteral(
                "Exceptie Valdera: Nr de persoane din matrice nu corespunde cu numarul de persoane din lista"),
            CampCerere::ListaMembri);
        rand(
            "rudenie 0", [](Cerere& c) { c.Membrii[2].RudenieID = 0; },
            QStringLiteral(
                "Exceptie Valdera: Nr de persoane din matrice nu corespunde cu numarul de persoane din lista"),
            CampCerere::ListaMembri);
        // The first failure wins: an empty dossier before a missing county.
        rand(
            "ordinea",
            [](Cerere& c) {
                c.NrDosar.clear();
                c.Judet.clear();
                c.Membrii.clear();
            },
            QStringLiteral("Nu puteti salva datele inainte de a introduce Numarul Dosarului"), CampCerere::NrDosar);
    }
    void controale()
    {
        QFETCH(Modificare, modifica);
        QFETCH(QString, mesaj);
        QFETCH(CampCerere, camp);
        MesajeScript mesaje;
        Cerere c = Familie(1);
        QVERIFY(VerificaControale(m_oficiu->bd(), c).ok());
        QVERIFY(mesaje.intrari.isEmpty());
        modifica(c);
        const VerificareCerere v = VerificaControale(m_oficiu->bd(), c);
        QCOMPARE(v.stare, VerificareCerere::Oprit);
        QCOMPARE(v.mesaj, mesaj);
        QCOMPARE(v.camp, camp);
        QCOMPARE(mesaje.texte(), QStringList{mesaj});
    }

    // Accepted as they stand: a lone titular (the spouse count is not looked at), empty dates.
    void treceFara()
    {
        MesajeScript mesaje;
        Cerere c = Familie(0, Lei(100), 2);
        c.DataCerere = QDate();
        c.DataStare = QDate();
        QCOMPARE(c.Membrii.size(), size_t(1));
        QVERIFY(VerificaControale(m_oficiu->bd(), c).ok());
        QVERIFY(mesaje.intrari.isEmpty());
    }

    // A number already used is a warning, and the save may go on; in mode 2 the application's
    // own row is no conflict.
    void numarFolositDoarAvertizeaza()
    {
        Cerere prima = Familie(1, Lei(500), 1, 1);
        const qint64 id = ScrieCerere(m_oficiu->bd(), prima, 2026);
        MesajeScript mesaje;
        Cerere a = Familie(1, Lei(500), 1, 2);
        a.NrDosar = QStringLiteral("1 ");
        a.NrCerere = QStringLiteral("1");
        QVERIFY(VerificaControale(m_oficiu->bd(), a).ok());
        QCOMPARE(mesaje.texte(), (QStringList{QStringLiteral("Numarul 1 a fost alocat altui dosar"),
                                              QStringLiteral("Numarul 1 a fost alocat altei cereri")}));
        mesaje.goleste();
        QVERIFY(VerificaNrDosar(m_oficiu->bd(), a));
        QVERIFY(!VerificaNrCerere(m_oficiu->bd(), Familie(1, Lei(500), 1, 3)));

        prima.Adaug = 2;
        QCOMPARE(prima.CerereID, id);
        mesaje.goleste();
        QVERIFY(VerificaControale(m_oficiu->bd(), prima).ok());
        QVERIFY(mesaje.intrari.isEmpty());
    }

    void cerereStearsaDeAltul()
    {
        Cerere c = Familie(1);
        ScrieCerere(m_oficiu->bd(), c, 2026);
        c.Adaug = 2;
        m_oficiu->bd().executa(QStringLiteral("DELETE FROM Familii WHERE FamilieID = ?"), {c.FamilieID});
        c.NrDosar.clear(); // step 0 comes before every other check
        MesajeScript mesaje;
        const VerificareCerere v = VerificaControale(m_oficiu->bd(), c);
        QVERIFY(v.seInchide());
        QCOMPARE(mesaje.texte(), QStringList{MesajCerereStearsa});
    }

    void eroareInVerificare()
    {
        m_oficiu->bd().executa(OficiuTest::peServer() ? QStringLiteral("DROP TABLE Familii CASCADE")
                                                      : QStringLiteral("DROP TABLE Familii"));
        MesajeScript mesaje;
        const VerificareCerere v = VerificaControale(m_oficiu->bd(), Familie(1));
        QVERIFY(!v.ok());
        QVERIFY(v.mesaj.startsWith(QLatin1String("Err in Verifica Controale: 3078 ")));
    }

    // ----- the member editor

    void membru_data()
    {
        QTest::addColumn<QString>("camp");
        QTest::addColumn<QString>("valoare");
        QTest::addColumn<QString>("mesaj");
        QTest::addColumn<CampMembru>("focus");
        QTest::newRow("fara CNP") << "CNP"
                                  << " "
                                  << "Nu puteti salva datele inainte de a introduce CNP-ul" << CampMembru::CNP;
        QTest::newRow("CNP scurt") << "CNP"
                                   << "180010126"
                                   << "CNP incorect" << CampMembru::CNP;
        QTest::newRow("CNP in lista") << "CNP"
                                      << "dublura"
                                      << "CNP-ul acestei persoane se gaseste deja in lista " << CampMembru::CNP;
        QTest::newRow("nume") << "Nume"
                              << ""
                              << "Nu puteti salva datele inainte de a introduce Numele" << CampMembru::Nume;
        QTest::newRow("prenume") << "Prenume"
                                 << " "
                                 << "Nu puteti salva datele inainte de a introduce Prenumele" << CampMembru::Prenume;
        QTest::newRow("rudenie") << "RudenieID"
                                 << "0"
                                 << "Nu puteti salva datele inainte de a introduce Gradul de rudenie"
                                 << CampMembru::Rudenie;
        QTest::newRow("ocupatie") << "OcupatieID"
                                  << "0"
                                  << "Nu puteti salva datele inainte de a introduce Profesia" << CampMembru::Ocupatie;
    }
    void membru()
    {
        QFETCH(QString, camp);
        QFETCH(QString, valoare);
        QFETCH(QString, mesaj);
        QFETCH(CampMembru, focus);
        const Cerere c = Familie(2);
        MembruCerere m = MembruCopil(QDate(2016, 2, 3), 77);
        if (camp == QLatin1String("CNP"))
            m.CNP = valoare == QLatin1String("dublura") ? c.Membrii[1].CNP : valoare;
        else if (camp == QLatin1String("Nume"))
            m.Nume = valoare;
        else if (camp == QLatin1String("Prenume"))
            m.Prenume = valoare;
        else if (camp == QLatin1String("RudenieID"))
            m.RudenieID = valoare.toInt();
        else
            m.OcupatieID = valoare.toInt();
        MesajeScript mesaje;
        const VerificareMembru v = VerificaMembru(c.Membrii, m, -1);
        QCOMPARE(v.ok(), mesaj.isEmpty());
        QCOMPARE(v.mesaj, mesaj);
        QCOMPARE(v.camp, focus);
    }

    // At OK only the length and the duplicates of the CNP bind: a CNP that fails the full check
    // (told when the box was left) is accepted.
    void membruCuCNPGresitEsteAcceptat()
    {
        const Cerere c = Familie(2);
        MembruCerere m = MembruCopil(QDate(2016, 2, 3), 77);
        m.CNP = QStringLiteral("1809901999999");
        MesajeScript mesaje;
        QVERIFY(VerificaMembru(c.Membrii, m, -1).ok());
        QVERIFY(mesaje.intrari.isEmpty());
    }

    // Editing a member: its own CNP is no duplicate.
    void membruEditatNuEDublura()
    {
        const Cerere c = Familie(2);
        MesajeScript mesaje;
        QVERIFY(VerificaMembru(c.Membrii, c.Membrii[2], 2).ok());
        QVERIFY(!VerificaMembru(c.Membrii, c.Membrii[2], 3).ok());
    }

    void nastere_data()
    {
        QTest::addColumn<QDate>("nascut");
        QTest::addColumn<int>("an");
        QTest::addColumn<QDate>("data18");
        QTest::newRow("copil") << QDate(2015, 3, 5) << 2026 << QDate(2033, 3, 5);
        QTest::newRow("18 ani in anul activ") << QDate(2008, 1, 2) << 2026 << QDate(2026, 1, 2);
        QTest::newRow("18 ani anul trecut") << QDate(2007, 12, 31) << 2026 << QDate();
        QTest::newRow("anul activ schimbat") << QDate(2007, 12, 31) << 2025 << QDate(2025, 12, 31);
        QTest::newRow("adult") << QDate(1980, 6, 1) << 2026 << QDate();
    }
    void nastere()
    {
        QFETCH(QDate, nascut);
        QFETCH(int, an);
        QFETCH(QDate, data18);
        const QString cnp = CNPInventat(nascut.year() >= 2000 ? 6 : 2, nascut, 26, 5);
        const DateNastereMembru d = DateNastereDinCNP(cnp, an);
        QVERIFY(d.valid);
        QCOMPARE(d.eticheta,
                 QStringLiteral("%1 %2 %3").arg(nascut.day()).arg(NumeLuna(nascut.month())).arg(nascut.year()));
        QCOMPARE(d.data18Ani, data18);
        QCOMPARE(d.motiv, data18.isValid() ? MotivImplinire18 : QString());

        // The import's rule: Data18Ani from the CNP only when none is given.
        MembruCerere m;
        m.CNP = cnp;
        CompleteazaData18Ani(m, an);
        QCOMPARE(m.Data18Ani, data18);
        m.Data18Ani = QDate(2030, 1, 1);
        CompleteazaData18Ani(m, an);
        QCOMPARE(m.Data18Ani, QDate(2030, 1, 1));
    }

    void nastereGresita_data()
    {
        QTest::addColumn<QString>("cnp");
        QTest::addColumn<QString>("eticheta");
        QTest::addColumn<QString>("coloana");
        QTest::newRow("luna 13") << "1801301260011"
                                 << "Luna incorecta"
                                 << "GRESIT";
        QTest::newRow("luna 00") << "1800001260011"
                                 << "Luna incorecta"
                                 << "GRESIT";
        QTest::newRow("ziua 32") << "1800132260011"
                                 << "Zi incorecta"
                                 << "32 Ianuarie 80";
        QTest::newRow("bun") << "2950715260011"
                             << "15 Iulie 1995"
                             << "15 Iulie 95";
    }
    void nastereGresita()
    {
        QFETCH(QString, cnp);
        QFETCH(QString, eticheta);
        QFETCH(QString, coloana);
        MesajeScript mesaje;
        QCOMPARE(DateNastereDinCNP(cnp, 2026).eticheta, eticheta);
        QVERIFY(mesaje.intrari.isEmpty());
        QCOMPARE(ColoanaDataNasterii(cnp), coloana);
        QCOMPARE(mesaje.intrari.size(), coloana == QLatin1String("GRESIT") ? 1 : 0);
        QCOMPARE(ColoanaDataNasterii(cnp.left(12)), QStringLiteral("CNP gresit!"));
    }

    // The full CNP check warns about a person on another application, and finds the person
    // whatever the case of the letters typed.
    void cnpCunoscut()
    {
        Cerere c = Familie(1);
        ScrieCerere(m_oficiu->bd(), c, 2026);
        const MembruCerere& titular = c.Membrii[0];
        MesajeScript mesaje;
        QVERIFY(VerificaCNPMembru(m_oficiu->bd(), titular.CNP, 1, 0));
        QCOMPARE(mesaje.texte(), QStringList{QStringLiteral("CNP-ul acestei persoane exista in Baza de Date la "
                                                            "Popescu Ion, cererea nr: 1")});
        mesaje.goleste();
        QVERIFY(VerificaCNPMembru(m_oficiu->bd(), titular.CNP, 2, titular.MembruID));
        QVERIFY(mesaje.intrari.isEmpty());
        QVERIFY(VerificaCNPMembru(m_oficiu->bd(), titular.CNP, 2, titular.MembruID + 100));
        QCOMPARE(mesaje.texte(),
                 QStringList{QStringLiteral("CNP-ul acestei persoane exista in Baza de Date la Popescu Ion")});

        mesaje.goleste();
        QString gresit = titular.CNP;
        gresit[12] = QChar('0' + (gresit[12].unicode() - '0' + 1) % 10); // a wrong control digit
        QVERIFY(!VerificaCNPMembru(m_oficiu->bd(), gresit, 1, 0));
        QVERIFY(mesaje.ultimul().startsWith(QLatin1String("CNP invalid.")));

        m_oficiu->bd().executa(QStringLiteral("UPDATE Membrii SET CNP = 'ab1234567890c' WHERE MembruID = ?"),
                               {titular.MembruID});
        const auto p = PersoanaDupaCNP(m_oficiu->bd(), QStringLiteral("AB1234567890C"));
        QVERIFY(p);
        QCOMPARE(p->MembruID, titular.MembruID);
        QCOMPARE(p->SerieBI, QStringLiteral("MS"));
        QVERIFY(!PersoanaDupaCNP(m_oficiu->bd(), QStringLiteral("AB1234567890")));
        QVERIFY(!PersoanaDupaCNP(m_oficiu->bd(), QStringLiteral("AB123456789%C")));
    }

    // The list of cboCNP as the clerk types: the persons whose CNP begins with the text, in
    // the order of the CNP, whatever the case of its letters, at most the number asked for.
    void persoaneDupaInceputulCNP()
    {
        Cerere c = Familie(2);
        ScrieCerere(m_oficiu->bd(), c, 2026);
        const QString titular = c.Membrii[0].CNP;
        auto cnpuri = [this](const QString& inceput, int limita) {
            QStringList l;
            for (const PersoanaCNP& p : PersoaneCuCNPIncepand(m_oficiu->bd(), inceput, limita))
                l << p.CNP;
            return l;
        };
        QCOMPARE(cnpuri(titular.left(7), 20), QStringList{titular});
        QCOMPARE(PersoaneCuCNPIncepand(m_oficiu->bd(), titular, 20).front().MembruID, c.Membrii[0].MembruID);
        QStringList toate;
        for (const MembruCerere& m : c.Membrii)
            toate << m.CNP;
        toate.sort();
        QCOMPARE(cnpuri(QStringLiteral(" "), 20), QStringList{});
        QCOMPARE(cnpuri(toate[0].left(1), 1), QStringList{toate[0]});
        m_oficiu->bd().executa(QStringLiteral("UPDATE Membrii SET CNP = 'ab1234567890c' WHERE MembruID = ?"),
                               {c.Membrii[0].MembruID});
        QCOMPARE(cnpuri(QStringLiteral("AB12"), 20), QStringList{QStringLiteral("ab1234567890c")});
        // The wildcards of the engine are letters here.
        QCOMPARE(cnpuri(QStringLiteral("ab%"), 20), QStringList{});
        QCOMPARE(cnpuri(QStringLiteral("a_"), 20), QStringList{});
    }

    void iesireaDinCNP()
    {
        Cerere c = Familie(1);
        ScrieCerere(m_oficiu->bd(), c, 2026);
        Cerere noua = Familie(0, Lei(0), 2, 5);
        MesajeScript mesaje;
        // A person known from another application: the warning, the birth fields, the row.
        IesireCNP r = LaIesireaDinCNP(m_oficiu->bd(), noua.Membrii, -1, 1, 0, c.Membrii[2].CNP, 2026);
        QVERIFY(r.nastere && r.nastere->data18Ani.isValid());
        QVERIFY(!r.dublura);
        QVERIFY(r.persoana);
        QCOMPARE(r.persoana->Prenume, c.Membrii[2].Prenume);
        QCOMPARE(mesaje.intrari.size(), 1);
        // Already in this application's list.
        mesaje.goleste();
        r = LaIesireaDinCNP(m_oficiu->bd(), c.Membrii, -1, 1, 0, c.Membrii[2].CNP, 2026);
        QVERIFY(r.dublura);
        QVERIFY(!r.persoana);
        QCOMPARE(mesaje.ultimul(), MesajCNPInLista);
        // Too short: only the check runs.
        r = LaIesireaDinCNP(m_oficiu->bd(), c.Membrii, -1, 1, 0, QStringLiteral("123"), 2026);
        QVERIFY(!r.nastere);
    }

    // ----- incomes, housing, assets

    void venituri()
    {
        VenituriCerere v{};
        v[0] = Lei(10);
        QVERIFY(VerificaVenituri(v).isEmpty());
        v[79] = Bani::dinText(QStringLiteral("0.0001"));
        QCOMPARE(VerificaVenituri(v), QStringLiteral("Pe codul 80 trebuie sa aveti valoarea zero (0). Corectati!"));

        QStringList celule(80, QStringLiteral("0"));
        celule[0] = QStringLiteral("100.5");
        celule[1] = QStringLiteral("abc");
        celule[2] = QStringLiteral("-20");
        celule[79] = QStringLiteral("7");
        const VenituriCerere citite = VenituriDinCelule(celule);
        QCOMPARE(citite[0], Bani::dinText(QStringLiteral("100.5")));
        QCOMPARE(citite[1], Bani());
        QCOMPARE(citite[2], Lei(-20));
        QCOMPARE(TotalVenituriEditare(celule), 80.5);
        QCOMPARE(TotalVenituriLaDeschidere(citite), 87.5);
        QCOMPARE(TextTotalVenituri(87.5), QStringLiteral("Total venituri: 87.5 lei"));
    }

    // venitPreaMareRefuzatInGrila: an amount past a money column, or a total past it, keeps
    // the income editor open with the message, instead of being read as 0.
    void venitPreaMareRefuzatInGrila_data()
    {
        QTest::addColumn<QStringList>("celule"); // code: value
        QTest::addColumn<int>("rand");           // -1: the cells fit
        QTest::addColumn<QString>("mesaj");
        QTest::newRow("o suma peste coloana") << QStringList{"3:1000000000000000"} << 2
                                              << "Codul 3: Valoarea 1000000000000000 nu incape in campul Valoare";
        QTest::newRow("o suma de 400 de cifre")
            << QStringList{QStringLiteral("5:") + QString(400, QLatin1Char('9'))} << 4 << "Codul 5: Valoarea 9999";
        QTest::newRow("fiecare incape, totalul nu")
            << QStringList{"1:900000000000000", "2:900000000000000"} << -1 << MesajTotalVenituriPreaMare;
        QTest::newRow("la limita") << QStringList{"1:922337203685477.5807"} << -1 << QString();
    }
    void venitPreaMareRefuzatInGrila()
    {
        QFETCH(QStringList, celule);
        QFETCH(int, rand);
        QFETCH(QString, mesaj);
        QStringList grila(80, QStringLiteral("0"));
        for (const QString& c : celule)
            grila[c.section(QLatin1Char(':'), 0, 0).toInt() - 1] = c.section(QLatin1Char(':'), 1);
        int gasit = -1;
        const QString inGrila = VerificaCeluleVenituri(grila, &gasit);
        QCOMPARE(gasit, rand);
        if (rand >= 0) {
            QVERIFY2(inGrila.startsWith(mesaj), qPrintable(inGrila));
            return;
        }
        QVERIFY(inGrila.isEmpty());
        QCOMPARE(VerificaVenituri(VenituriDinCelule(grila)), mesaj);
    }

    void locuinta()
    {
        LocuintaCerere l;
        QVERIFY(CitesteLocuinta(2, true, QStringLiteral("3"), QStringLiteral("45.5"), l).isEmpty());
        QCOMPARE(l.Cod, 3);
        QVERIFY(l.folosita);
        QCOMPARE(l.NrCamere, 3);
        QCOMPARE(l.Suprafata, 45.5);
        QVERIFY(!CitesteLocuinta(2, true, QStringLiteral("256"), QString(), l).isEmpty());
        QCOMPARE(l.NrCamere, 3); // unchanged after the refusal
        QVERIFY(CitesteLocuinta(7, true, QStringLiteral("9"), QStringLiteral("9"), l).isEmpty());
        QCOMPARE(l.Cod, 8);
        QCOMPARE(l.NrCamere, 3); // the last two kinds have no rooms
    }

    void bife()
    {
        const QStringList randuri = RanduriBife(m_oficiu->bd());
        QVERIFY(!randuri.isEmpty());
        QVERIFY(randuri[0].startsWith(QLatin1String("1. - ")));
        const std::vector<bool> b = BifeBifate(QStringLiteral("0101111111111111111111111111111"), 4);
        QCOMPARE(b, (std::vector<bool>{false, true, false, true}));
        QCOMPARE(TextBife(b), QStringLiteral("0101"));
        QCOMPARE(BifeBifate(QString(), 2), (std::vector<bool>{false, false}));
    }
};

QTEST_GUILESS_MAIN(TestVerificareCerere)
#include "tst_VerificareCerere.moc"
