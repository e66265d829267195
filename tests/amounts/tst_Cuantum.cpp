#include "DateTest.h"
#include "TestCuOficiu.h"

#include "amounts/Cuantum.h"
#include "database/BD.h"

#include <QtTest>

using DateTest::Familie;
using DateTest::MembruAdult;

// The amount: tiers of the income per member, the child count by the year of Data18Ani and
// the occupation, the scale row, and the editor's recalculations.
class TestCuantum : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        // Distinct amounts: Tip * 1000 + Suma + NrPers, so that the row read is plain to see.
        m_oficiu->bd().executa(QStringLiteral("UPDATE Barem SET Barem = Tip * 1000 + Suma + NrPers "
                                              "WHERE Suma IN (200, 370)"));
    }

    constexpr static int An = 2026;

    // Members from a short description: "0:8 -1:8 n:1" is a member whose Data18Ani falls in
    // the active year with occupation 8, one in the year before, an adult with occupation 1.
    static std::vector<MembruCerere> membri(const QString& descriere)
    {
        std::vector<MembruCerere> v;
        int serie = 0;
        for (const QString& p : descriere.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QStringList x = p.split(QLatin1Char(':'));
            MembruCerere m = MembruAdult(3, ++serie, x[1].toInt());
            if (x[0] != QLatin1String("n"))
                m.Data18Ani = QDate(An + x[0].toInt(), 1, 1); // January: already past, only the year counts
            v.push_back(m);
        }
        return v;
    }

private slots:
    void praguri_data()
    {
        QTest::addColumn<QString>("venitPeMembru");
        QTest::addColumn<int>("barem");
        QTest::newRow("zero") << "0" << 1201;
        QTest::newRow("199.9999") << "199.9999" << 1201;
        QTest::newRow("199.99994 rotunjit in jos") << "199.99994" << 1201;
        QTest::newRow("199.99996 rotunjit la 200") << "199.99996" << 1371;
        QTest::newRow("200 exact") << "200" << 1371;
        QTest::newRow("200.0000") << "200.0000" << 1371;
        QTest::newRow("369.9999") << "369.9999" << 1371;
        QTest::newRow("369.99996 rotunjit la 370") << "369.99996" << 0;
        QTest::newRow("370 exact") << "370" << 0;
        QTest::newRow("peste 370") << "1000" << 0;
        QTest::newRow("text fara numar") << "abc" << 1201;
        QTest::newRow("virgula citita pana la ea") << "369,5" << 1371;
    }
    void praguri()
    {
        QFETCH(QString, venitPeMembru);
        QFETCH(int, barem);
        MesajeScript mesaje;
        const RezultatCuantum r = CalculCuantum(m_oficiu->bd(), membri("0:8"), venitPeMembru, 1, An);
        QCOMPARE(r.cuantum, Lei(barem));
        QCOMPARE(r.nrCopii, std::optional<int>(1));
        QVERIFY(r.eroare.isEmpty());
        QVERIFY(mesaje.intrari.isEmpty());
    }

    void copii_data()
    {
        QTest::addColumn<QString>("membri");
        QTest::addColumn<int>("tip");
        QTest::addColumn<int>("nrCopii"); // -1: untouched
        QTest::addColumn<int>("barem");
        QTest::addColumn<int>("mesajeOcupatie");
        QTest::newRow("elev in anul activ") << "n:1 0:8" << 1 << 1 << 1201 << 0;
        QTest::newRow("prescolar") << "n:1 0:11" << 1 << 1 << 1201 << 0;
        QTest::newRow("anul de dinainte nu conteaza") << "n:1 -1:8" << 1 << -1 << 0 << 0;
        QTest::newRow("anul urmator conteaza") << "n:1 5:8" << 2 << 1 << 2201 << 0;
        QTest::newRow("ocupatia 12 nimic") << "0:12 0:8" << 1 << 1 << 1201 << 0;
        QTest::newRow("student (9) nimic") << "0:9 0:8" << 1 << 1 << 1201 << 0;
        QTest::newRow("adult fara data, ocupatie 1") << "n:1 n:3 0:8" << 1 << 1 << 1201 << 0;
        QTest::newRow("ocupatii nepotrivite") << "0:1 0:7 0:10" << 1 << -1 << 0 << 3;
        QTest::newRow("mesaj si copil") << "0:5 0:8 0:11" << 1 << 2 << 1202 << 1;
        QTest::newRow("trei copii") << "0:8 0:8 0:8" << 1 << 3 << 1203 << 0;
        QTest::newRow("patru copii") << "0:8 0:8 0:8 0:11" << 1 << 4 << 1204 << 0;
        QTest::newRow("cinci copii -> NrPers 4") << "0:8 0:8 0:8 0:11 3:8" << 2 << 5 << 2204 << 0;
    }
    void copii()
    {
        QFETCH(QString, membri);
        QFETCH(int, tip);
        QFETCH(int, nrCopii);
        QFETCH(int, barem);
        QFETCH(int, mesajeOcupatie);
        MesajeScript mesaje;
        const RezultatCuantum r =
            CalculCuantum(m_oficiu->bd(), TestCuantum::membri(membri), QStringLiteral("100"), tip, An);
        QCOMPARE(r.nrCopii, nrCopii < 0 ? std::nullopt : std::optional<int>(nrCopii));
        QCOMPARE(r.cuantum, Lei(barem));
        QCOMPARE(mesaje.texte().count(MesajOcupatieCNP), mesajeOcupatie);
        QCOMPARE(mesaje.intrari.size(), mesajeOcupatie);
    }

    void faraMembriNimic()
    {
        MesajeScript mesaje;
        const RezultatCuantum r = CalculCuantum(m_oficiu->bd(), {}, QStringLiteral("10"), 1, An);
        QCOMPARE(r.cuantum, Bani());
        QVERIFY(!r.nrCopii);
        QVERIFY(mesaje.intrari.isEmpty());
    }

    // The last child stops counting: the amount is 0, the shown child count stays.
    void numarulCopiilorRamaneNeatins()
    {
        MesajeScript mesaje;
        Cerere c = Familie(1, Lei(300));
        RecalculCuantum(m_oficiu->bd(), c, An);
        QCOMPARE(c.NrCopii, QStringLiteral("1"));
        c.Membrii.back().Data18Ani = QDate(An - 1, 12, 31);
        RecalculCuantum(m_oficiu->bd(), c, An);
        QCOMPARE(c.Cuantum, QStringLiteral("0"));
        QCOMPARE(c.NrCopii, QStringLiteral("1"));
    }

    void randLipsaDinBarem()
    {
        m_oficiu->bd().executa(QStringLiteral("DELETE FROM Barem WHERE Tip = 2 AND Suma = 370"));
        MesajeScript mesaje;
        const RezultatCuantum r = CalculCuantum(m_oficiu->bd(), membri("0:8"), QStringLiteral("250"), 2, An);
        QCOMPARE(r.cuantum, Bani());
        QVERIFY(r.eroare.contains(QLatin1String("Barem")));
        QVERIFY(mesaje.intrari.isEmpty());

        Cerere c = Familie(1, Lei(500), 2); // titular and child: 250 per member

        RecalculVenitPeMembru(c);
        RecalculCuantum(m_oficiu->bd(), c, An);
        QCOMPARE(mesaje.intrari.size(), 1);
        QVERIFY(mesaje.ultimul().contains(QLatin1String("Barem")));
        QCOMPARE(c.Cuantum, QStringLiteral("0"));
    }

    void sumaFaraCodul80()
    {
        VenituriCerere v{};
        v[0] = Lei(100);
        v[78] = Bani::dinText(QStringLiteral("0.0001"));
        v[79] = Lei(5000);
        v[10] = Lei(-20);
        QCOMPARE(SumaVenituri(v), Bani::dinText(QStringLiteral("80.0001")));
    }

    void venitPeMembru_data()
    {
        QTest::addColumn<QString>("total");
        QTest::addColumn<QString>("membri");
        QTest::addColumn<QString>("rezultat");
        QTest::newRow("toate zecimalele") << "500"
                                          << "3"
                                          << "166.6666666667";
        QTest::newRow("exact") << "600"
                               << "3"
                               << "200";
        QTest::newRow("cu punct") << "1.5"
                                  << "2"
                                  << "0.75";
        QTest::newRow("zero membri: ramane") << "500"
                                             << "0"
                                             << "vechi";
        QTest::newRow("gol: ramane") << "500"
                                     << ""
                                     << "vechi";
    }
    void venitPeMembru()
    {
        QFETCH(QString, total);
        QFETCH(QString, membri);
        QFETCH(QString, rezultat);
        QCOMPARE(TextVenitPeMembru(total, membri, QStringLiteral("vechi")), rezultat);
    }

    // The worked example: kind 1, three members, one child; 500, 600 and 1110 lei.
    void exempluDupaVenituri()
    {
        MesajeScript mesaje;
        Cerere c = Familie(1, Lei(500));
        AcceptaVenituri(m_oficiu->bd(), c, An);
        QCOMPARE(c.VenitTotal, QStringLiteral("500"));
        QCOMPARE(c.Cuantum, QStringLiteral("1201"));
        c.Venituri[3] = Lei(600);
        AcceptaVenituri(m_oficiu->bd(), c, An);
        QCOMPARE(c.VenitpeMembru, QStringLiteral("200"));
        QCOMPARE(c.Cuantum, QStringLiteral("1371"));
        c.Venituri[3] = Lei(1110);
        AcceptaVenituri(m_oficiu->bd(), c, An);
        QCOMPARE(c.Cuantum, QStringLiteral("0"));
        QVERIFY(mesaje.intrari.isEmpty());
    }

    void recalculMembri()
    {
        MesajeScript mesaje;
        Cerere c = Familie(2, Lei(800));
        c.Membrii.pop_back();
        RecalculMembri(m_oficiu->bd(), c, An);
        QCOMPARE(c.NrMembrii, QStringLiteral("3"));
        QCOMPARE(c.VenitpeMembru, QStringLiteral("266.6666666667"));
        QCOMPARE(c.Cuantum, QStringLiteral("1371"));
        QVERIFY(mesaje.intrari.isEmpty());
        // A list that disagrees with the array: the message, and the list's count is taken.
        RecalculMembri(m_oficiu->bd(), c, An, 4);
        QCOMPARE(mesaje.texte(), QStringList{MesajMembriiDiferiti});
        QCOMPARE(c.NrMembrii, QStringLiteral("4"));
        QCOMPARE(c.VenitpeMembru, QStringLiteral("200"));
    }
};

QTEST_GUILESS_MAIN(TestCuantum)
#include "tst_Cuantum.moc"
