#include "DateTest.h"
#include "TestCuOficiu.h"
#include "decisions/Ancheta.h"
#include "common/Data.h"
#include "common/Eroare.h"

#include <QtTest>

using DateTest::CNPNascut;
using DateTest::NumaraRanduri;

// The social inquiry: the checks in the office's order with the warning on the count of
// children, the save with its computed validity, and a row deleted by another workstation.
class TestAncheta : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        // Two children on the application; at 15 March 2012 one of them is already 18.
        DateTest::DosarCuMembri(
            bd(), 1,
            {CNPNascut(QDate(1970, 2, 2), 1), CNPNascut(QDate(1993, 1, 1), 2), CNPNascut(QDate(2004, 4, 4), 3)},
            {{"DataCerere", "2012-04-10"}, {"NrCopii", 2}});
    }

private slots:
    void verificari_data()
    {
        QTest::addColumn<QString>("camp");
        QTest::addColumn<QString>("mesaj");
        QTest::addColumn<int>("focus");
        QTest::newRow("data lipsa") << "data"
                                    << "Nu puteti salva datele inainte de a Data Ancheta" << int(CampAncheta::Data);
        QTest::newRow("intocmitor") << "intocmitor"
                                    << "Nu puteti salva datele inainte de a introduce Numele Intocmitorului"
                                    << int(CampAncheta::Intocmitor);
        QTest::newRow("camere") << "nrCamere"
                                << "Nu puteti salva datele inainte de a introduce Numarul de camere"
                                << int(CampAncheta::NrCamere);
        QTest::newRow("suprafata") << "suprUtila"
                                   << "Nu puteti salva datele inainte de a introduce Suprafata"
                                   << int(CampAncheta::Suprafata);
        QTest::newRow("tip locuinta") << "tipLocuinta"
                                      << "Tipul locuintei incorect. Selectati din lista!"
                                      << int(CampAncheta::TipLocuinta);
        QTest::newRow("regim") << "regimJuridic"
                               << "Regim juridic incorect. Selectati un Regim juridic din lista!"
                               << int(CampAncheta::RegimJuridic);
        QTest::newRow("detinere")
            << "tipDetinere"
            << "Detine in proprietate incorect. Selectati din lista: 'in proprietate' sau 'in folosinta'!"
            << int(CampAncheta::TipDetinere);
        QTest::newRow("locuire nu e ceruta") << "tipLocuire"
                                             << "" << int(CampAncheta::Niciunul);
        // Numbers that do not fit their columns are refused, not stored as something else.
        QTest::newRow("camere peste 16 biti") << "nrCamere=99999"
                                              << "Valoarea 99999 nu incape in campul NrCamere, care primeste numere "
                                                 "intre -32768 si 32767. Corectati!"
                                              << int(CampAncheta::NrCamere);
        QTest::newRow("suprafata prea lunga pentru un numar")
            << QStringLiteral("suprUtila=") + QString(400, QLatin1Char('9'))
            << QStringLiteral(
                   "Valoarea %1 nu incape in campul SuprUtila, care primeste numere intre -1.7976931e+308 si "
                   "1.7976931e+308. Corectati!")
                   .arg(QString(400, QLatin1Char('9')))
            << int(CampAncheta::Suprafata);
    }

    void verificari()
    {
        QFETCH(QString, camp);
        QFETCH(QString, mesaj);
        QFETCH(int, focus);
        DateAncheta a = buna();
        if (camp == QLatin1String("data"))
            a.data = QDate();
        if (camp == QLatin1String("intocmitor"))
            a.intocmitor = QStringLiteral("   ");
        if (camp == QLatin1String("nrCamere"))
            a.nrCamere = QStringLiteral(" ");
        if (camp == QLatin1String("suprUtila"))
            a.suprUtila.clear();
        if (camp == QLatin1String("tipLocuinta"))
            a.tipLocuinta = 0;
        if (camp == QLatin1String("regimJuridic"))
            a.regimJuridic = 0;
        if (camp == QLatin1String("tipDetinere"))
            a.tipDetinere = 0;
        if (camp == QLatin1String("tipLocuire"))
            a.tipLocuire = 0;
        if (camp.startsWith(QLatin1String("nrCamere=")))
            a.nrCamere = camp.section(QLatin1Char('='), 1);
        if (camp.startsWith(QLatin1String("suprUtila=")))
            a.suprUtila = camp.section(QLatin1Char('='), 1);
        MesajeScript mesaje;
        const VerificareAncheta v = VerificaAncheta(bd(), 1, a, 2);
        QCOMPARE(v.ok(), mesaj.isEmpty());
        QCOMPARE(mesaje.ultimul(), mesaj);
        QCOMPARE(int(v.camp), focus);
    }

    void avertismentCopiiSiSalvare()
    {
        MesajeScript mesaje;
        const Valabilitate v = ValabilitateAncheta(bd(), 1, QDate(2012, 3, 15));
        QCOMPARE(v.nrCopii, 1);
        const DateAncheta a = buna();
        QVERIFY(VerificaAncheta(bd(), 1, a, v.nrCopii).ok());
        QCOMPARE(mesaje.texte(), QStringList{QStringLiteral("Numarul de copii din Ancheta nu coincide cu numarul de "
                                                            "copii din Cerere. Verificati cauza in Cerere!")});
        QCOMPARE(SalveazaAncheta(bd(), 1, a, v), 1);
        QCOMPARE(SalveazaAncheta(bd(), 1, a, v), 2);

        Rezultat r = bd().selecteaza(QStringLiteral("SELECT * FROM Anchete WHERE AnchetaID = 1"));
        QVERIFY(r.next());
        QCOMPARE(r.numar("CerereID"), 1);
        QCOMPARE(DataDinBD(r["DataAncheta"]), QDate(2012, 3, 15));
        QCOMPARE(DataDinBD(r["DataExpirarii"]), QDate(2012, 9, 15));
        QCOMPARE(r.text("Motiv"), MotivSaseLuni);
        QCOMPARE(r.numar("NrMembrii"), 3);
        QCOMPARE(r.numar("NrCopii"), 1);
        QCOMPARE(r.text("Intocmitor"), QStringLiteral("Ionescu Maria"));
        QCOMPARE(r.text("Aspecte"), QStringLiteral("casa d'ingrijita"));
        QCOMPARE(r.numar("NrCamere"), 3);
        QCOMPARE(r["SuprUtila"].toDouble(), 64.5);
        QVERIFY(r["TipLocuire"].isNull());

        // With the count of the application, no warning.
        mesaje.goleste();
        QVERIFY(VerificaAncheta(bd(), 1, a, 2).ok());
        QVERIFY(mesaje.intrari.isEmpty());
    }

    void faraCopiiRefuzata()
    {
        // By mid-2022 both children are grown.
        MesajeScript mesaje;
        DateAncheta a = buna();
        a.data = QDate(2022, 6, 1);
        const VerificareAncheta v = VerificaAncheta(bd(), 1, a, 0);
        QCOMPARE(v.stare, VerificareAncheta::Oprit);
        QCOMPARE(v.camp, CampAncheta::Data);
        QCOMPARE(
            mesaje.texte().mid(1),
            (QStringList{QStringLiteral("La aceasta data nu mai exista nici un copil, deci Ancheta e lipsita de sens!"),
                         QStringLiteral("Pentru Data Selectata nu mai sunt copii, asa ca ancheta nu are sens! Fie "
                                        "schimbati Data Anchetei, fie Renuntati")}));
    }

    void modificareSiIncarcare()
    {
        MesajeScript mesaje;
        DateAncheta a = buna();
        a.tipLocuire = 2;
        const Valabilitate v = ValabilitateAncheta(bd(), 1, a.data);
        a.id = SalveazaAncheta(bd(), 1, a, v);

        auto inc = CitesteAncheta(bd(), a.id);
        QVERIFY(inc);
        QCOMPARE(inc->date.tipLocuire, 2);
        QCOMPARE(inc->date.intocmitor, QStringLiteral("Ionescu Maria"));
        QCOMPARE(inc->date.suprUtila, QStringLiteral("64.5"));
        QCOMPARE(inc->textExpirare, QStringLiteral("15.09.2012"));
        QCOMPARE(inc->nrCopii, QStringLiteral("1"));
        QCOMPARE(inc->nrMembrii, QStringLiteral("3"));

        inc->date.data = QDate(2012, 4, 1);
        inc->date.nevoi = QStringLiteral("nu");
        QVERIFY(VerificaAncheta(bd(), 2, inc->date, 1).ok());
        SalveazaAncheta(bd(), 2, inc->date, ValabilitateAncheta(bd(), 1, inc->date.data));
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Anchete")), 1);
        QCOMPARE(DataDinBD(bd().scalar(QStringLiteral("SELECT DataExpirarii FROM Anchete"))), QDate(2012, 10, 1));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT Nevoi FROM Anchete")).toString(), QStringLiteral("nu"));
    }

    void stearsaDeAltaStatie()
    {
        MesajeScript mesaje;
        DateAncheta a = buna();
        const Valabilitate v = ValabilitateAncheta(bd(), 1, a.data);
        a.id = SalveazaAncheta(bd(), 1, a, v);
        m_oficiu->executaDinAltCalculator(QStringLiteral("DELETE FROM Anchete WHERE AnchetaID = ?"), {a.id});

        const VerificareAncheta r = VerificaAncheta(bd(), 2, a, 1);
        QCOMPARE(r.stare, VerificareAncheta::Inchide);
        QCOMPARE(mesaje.ultimul(), MesajAncheta::Stearsa);
        try {
            SalveazaAncheta(bd(), 2, a, v);
            QFAIL("salvarea trebuia sa esueze");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::RandSters);
        }
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Anchete")), 0);
        QVERIFY(!bd().inTranzactie());
    }

    void cerereStearsaInainteDeSalvare()
    {
        m_oficiu->executaDinAltCalculator(QStringLiteral("DELETE FROM Familii WHERE FamilieID = 1"));
        MesajeScript mesaje;
        const VerificareAncheta r = VerificaAncheta(bd(), 1, buna(), 1);
        QCOMPARE(r.stare, VerificareAncheta::Oprit);
        QVERIFY(mesaje.ultimul().startsWith(MesajAncheta::PrefixVerificare + QStringLiteral("3167 ")));
        // The engine refuses the row of an application that is gone; nothing is written.
        QVERIFY_THROWS_EXCEPTION(Eroare, SalveazaAncheta(bd(), 1, buna(), Valabilitate{}));
        QCOMPARE(NumaraRanduri(bd(), QStringLiteral("Anchete")), 0);
    }

private:
    DateAncheta buna() const;
};

DateAncheta TestAncheta::buna() const
{
    DateAncheta a;
    a.cerereId = 1;
    a.data = QDate(2012, 3, 15);
    a.intocmitor = QStringLiteral("  Ionescu Maria ");
    a.tipLocuinta = 1;
    a.regimJuridic = 1;
    a.tipDetinere = 1;
    a.nrCamere = QStringLiteral("3");
    a.suprUtila = QStringLiteral("64.5");
    a.bunuri = QStringLiteral("televizor, frigider");
    a.aspecte = QStringLiteral("casa d'ingrijita ");
    return a;
}

QTEST_GUILESS_MAIN(TestAncheta)
#include "tst_Ancheta.moc"
