// The town hall's data: load, the checks of the window, and the save kept in one transaction.
#include "TestCuOficiu.h"
#include "registers/DatePrimarie.h"
#include "common/Eroare.h"

#include <QSqlRecord>
#include <QtTest>

namespace {

DatePrimarie Complet()
{
    DatePrimarie d;
    d.texte = QStringList{QStringLiteral("Primaria Comunei Sant'Ana"),
                          QStringLiteral("123456"),
                          QStringLiteral("MS"),
                          QStringLiteral("Mures"),
                          QStringLiteral("Sant'Ana"),
                          QStringLiteral("Principala"),
                          QStringLiteral("12A"),
                          QStringLiteral("Ion Primar"),
                          QStringLiteral("Ana Secretar"),
                          QStringLiteral("Maria Asistent"),
                          QStringLiteral("123"),
                          QStringLiteral("Sant'Ana"),
                          QStringLiteral("547000")};
    d.TipLocalitate = 1;
    return d;
}

QStringList Randuri(const BD& bd, const QString& sql)
{
    QStringList r;
    Rezultat q = bd.selecteaza(sql);
    while (q.next()) {
        QStringList rand;
        for (int i = 0; i < q.interogare().record().count(); ++i)
            rand << q.valoare(i).toString();
        r << rand.join(QLatin1Char('|'));
    }
    return r;
}

} // namespace

class TestDatePrimarie : public TestCuOficiu {
    Q_OBJECT

    qint64 numar(const char* tabela)
    {
        return bd().scalar(QStringLiteral("SELECT COUNT(*) FROM ") + QLatin1String(tabela)).toLongLong();
    }

private slots:
    void tabelaGoalaCampuriGoale()
    {
        MesajeScript m;
        const DatePrimarie d = CitesteDatePrimarie(bd());
        QCOMPARE(d.texte, QStringList(13));
        QCOMPARE(d.TipLocalitate, 0);
        QVERIFY(m.intrari.isEmpty());
    }

    void unRandSeIncarca()
    {
        m_oficiu->scrieDatePrimarie();
        const DatePrimarie d = CitesteDatePrimarie(bd());
        QCOMPARE(d.texte.value(3), QStringLiteral("Mures"));
        QCOMPARE(d.texte.value(10), QStringLiteral("2800101260012"));
        QCOMPARE(d.texte.value(12), QStringLiteral("545600"));
        QCOMPARE(d.TipLocalitate, 2);
    }

    void nullSiTipNecunoscut()
    {
        bd().executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire, TipLocalitate) VALUES (?, 7)"),
                     {QStringLiteral("P")});
        const DatePrimarie d = CitesteDatePrimarie(bd());
        QCOMPARE(d.texte.value(0), QStringLiteral("P"));
        QCOMPARE(d.texte.value(1), QString());
        QCOMPARE(d.TipLocalitate, 0);
    }

    void douaRanduriCampuriGoale()
    {
        m_oficiu->scrieDatePrimarie();
        bd().executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire, TipLocalitate) VALUES ('Al doilea', 1)"));
        MesajeScript m;
        const DatePrimarie d = CitesteDatePrimarie(bd());
        QCOMPARE(m.texte(), QStringList{QStringLiteral(
                                "Tabela Date Primarie contine mai mult de un rand. Sunati la: 0700555010!")});
        QCOMPARE(d.texte, QStringList(13));
        QCOMPARE(d.TipLocalitate, 0);
    }

    void verificare_data()
    {
        QTest::addColumn<int>("golit"); // the box left blank, -1 none
        QTest::addColumn<QString>("continut");
        QTest::addColumn<int>("tip");
        QTest::addColumn<int>("rezultat");
        QTest::addColumn<QString>("mesaj");
        const QString obligatorii = QStringLiteral("Toate campurile sunt obligatorii!");
        QTest::newRow("complet") << -1 << "" << 1 << -1 << "";
        QTest::newRow("denumire goala") << 0 << "" << 1 << 0 << obligatorii;
        QTest::newRow("judet doar spatii") << 3 << "   " << 1 << 3 << obligatorii;
        QTest::newRow("cod postal gol") << 12 << "" << 0 << 12 << obligatorii;
        QTest::newRow("fara tip localitate")
            << -1 << "" << 0 << CampTipLocalitate << "Selectati Tip Localitate din lista";
        QTest::newRow("tip in afara listei")
            << -1 << "" << 4 << CampTipLocalitate << "Selectati Tip Localitate din lista";
    }
    void verificare()
    {
        QFETCH(int, golit);
        QFETCH(QString, continut);
        QFETCH(int, tip);
        QFETCH(int, rezultat);
        QFETCH(QString, mesaj);
        DatePrimarie d = Complet();
        if (golit >= 0)
            d.texte[golit] = continut;
        d.TipLocalitate = tip;
        MesajeScript m;
        QCOMPARE(VerificaDatePrimarie(d), rezultat);
        QCOMPARE(m.ultimul(), mesaj);
        QVERIFY(m.intrari.size() <= 1);
    }

    void primaSalvareCreeazaCeleTreiRanduri()
    {
        DatePrimarie d = Complet();
        d.texte[3] = QStringLiteral(" Mures ");
        SalveazaDatePrimarie(bd(), d);
        QCOMPARE(numar("DatePrimarie"), 1);
        // As typed, apostrophes and blanks included; the CNP is not checked here.
        const DatePrimarie citit = CitesteDatePrimarie(bd());
        QCOMPARE(citit.texte, d.texte);
        QCOMPARE(citit.TipLocalitate, 1);
        QCOMPARE(Randuri(bd(), QStringLiteral("SELECT JudetID, Denumire FROM Judete")),
                 QStringList{QStringLiteral("1| Mures ")});
        QCOMPARE(Randuri(bd(), QStringLiteral("SELECT LocalitateID, Denumire FROM Localitati")),
                 QStringList{QStringLiteral("1|Sant'Ana")});
    }

    void aDouaSalvareEditeazaSiRedenumeste()
    {
        m_oficiu->scrieDatePrimarie();
        DatePrimarie d = CitesteDatePrimarie(bd());
        d.texte[3] = QStringLiteral("Alba");
        d.texte[4] = QStringLiteral("Blaj");
        d.TipLocalitate = 3;
        SalveazaDatePrimarie(bd(), d);
        QCOMPARE(numar("DatePrimarie"), 1);
        QCOMPARE(CitesteDatePrimarie(bd()).texte.value(3), QStringLiteral("Alba"));
        QCOMPARE(CitesteDatePrimarie(bd()).TipLocalitate, 3);
        QCOMPARE(Randuri(bd(), QStringLiteral("SELECT JudetID, Denumire FROM Judete")),
                 QStringList{QStringLiteral("1|Alba")});
        QCOMPARE(Randuri(bd(), QStringLiteral("SELECT LocalitateID, Denumire FROM Localitati")),
                 QStringList{QStringLiteral("1|Blaj")});
    }

    void cuDouaRanduriSeEditeazaUltimul()
    {
        m_oficiu->scrieDatePrimarie();
        bd().executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire, TipLocalitate) VALUES ('Al doilea', 1)"));
        SalveazaDatePrimarie(bd(), Complet());
        QCOMPARE(numar("DatePrimarie"), 2);
        QCOMPARE(
            Randuri(bd(), QStringLiteral("SELECT Denumire FROM DatePrimarie ORDER BY %1").arg(bd().identitateRand())),
            (QStringList{QStringLiteral("Primaria Orasului Tarnaveni (date demonstrative)"),
                         QStringLiteral("Primaria Comunei Sant'Ana")}));
    }

    void judeteCuMaiMulteRanduriRedenumestePrimul()
    {
        bd().executa(QStringLiteral("INSERT INTO Judete (JudetID, Denumire) VALUES (5, 'Cinci'), (2, 'Doi')"));
        SalveazaDatePrimarie(bd(), Complet());
        QCOMPARE(Randuri(bd(), QStringLiteral("SELECT JudetID, Denumire FROM Judete ORDER BY JudetID")),
                 (QStringList{QStringLiteral("2|Mures"), QStringLiteral("5|Cinci")}));
    }

    void eroareLaMijlocNuLasaNimicScris()
    {
        bd().executa(QStringLiteral("DROP TABLE Localitati"));
        try {
            SalveazaDatePrimarie(bd(), Complet());
            QFAIL("Salvarea trebuia sa esueze");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, CodEroare::TabelaLipsa);
        }
        QCOMPARE(numar("DatePrimarie"), 0);
        QCOMPARE(numar("Judete"), 0);
        QVERIFY(!bd().inTranzactie());
    }
};

QTEST_GUILESS_MAIN(TestDatePrimarie)
#include "tst_dateprimarie.moc"
