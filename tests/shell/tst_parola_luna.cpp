// The password (change, removal, the odd file it is written to) and the active month.
#include "TestCuOficiu.h"
#include "common/FisiereHelper.h"
#include "common/Ini.h"
#include "shell/LunaActiva.h"
#include "shell/Parola.h"
#include "common/Proces.h"
#include "common/Setari.h"

#include <QFile>
#include <QtTest>

class TestParolaLuna : public TestCuOficiu {
    Q_OBJECT

    QString parolaInFisierOlt() const
    {
        return FisierIni(FisierParola()).citeste(QStringLiteral("Generale"), QStringLiteral("pass"));
    }

private slots:
    void schimbaParola_data()
    {
        QTest::addColumn<QString>("pass");
        QTest::addColumn<QString>("veche");
        QTest::addColumn<QString>("noua");
        QTest::addColumn<QString>("rescriere");
        QTest::addColumn<QString>("mesaj"); // "" when accepted
        QTest::addColumn<QString>("passDupa");

        const QString gresitaVeche = QStringLiteral("Parola veche este incorecta!");
        const QString inexistenta = QStringLiteral("Parola noua inexistenta!");
        const QString diferite = QStringLiteral("Parola noua trebuie sa fie la fel in cele doua casute de text!");
        QTest::newRow("fara parola, veche goala") << ""
                                                  << ""
                                                  << "abc"
                                                  << "abc"
                                                  << ""
                                                  << "abc";
        QTest::newRow("noua cu spatii, stocata fara") << "x"
                                                      << "x"
                                                      << "  nou  "
                                                      << "nou "
                                                      << ""
                                                      << "nou";
        QTest::newRow("veche comparata netrimata") << "x"
                                                   << " x"
                                                   << "nou"
                                                   << "nou" << gresitaVeche << "x";
        QTest::newRow("veche cu alt caz") << "Secret"
                                          << "secret"
                                          << "nou"
                                          << "nou" << gresitaVeche << "Secret";
        QTest::newRow("veche gresita inaintea celei noi goale") << "x"
                                                                << "y"
                                                                << ""
                                                                << "" << gresitaVeche << "x";
        QTest::newRow("noua doar spatii") << "x"
                                          << "x"
                                          << "   "
                                          << "   " << inexistenta << "x";
        QTest::newRow("rescriere diferita") << "x"
                                            << "x"
                                            << "nou"
                                            << "Nou" << diferite << "x";
        QTest::newRow("rescriere goala") << "x"
                                         << "x"
                                         << "nou"
                                         << "" << diferite << "x";
    }
    void schimbaParola()
    {
        QFETCH(QString, pass);
        QFETCH(QString, veche);
        QFETCH(QString, noua);
        QFETCH(QString, rescriere);
        QFETCH(QString, mesaj);
        QFETCH(QString, passDupa);
        Proces::setari().pass = pass;
        MesajeScript m;
        QCOMPARE(SchimbaParola(veche, noua, rescriere), mesaj.isEmpty());
        QCOMPARE(m.ultimul(), mesaj);
        QCOMPARE(Proces::setari().pass, passDupa);
        if (mesaj.isEmpty())
            QCOMPARE(parolaInFisierOlt(), passDupa);
        else
            QVERIFY(!QFile::exists(FisierParola()));
        // The workstation's own settings file is never the one written.
        QVERIFY(!QFile::exists(m_oficiu->fisierSetari()));
    }

    void stergeParola_data()
    {
        QTest::addColumn<QString>("veche");
        QTest::addColumn<bool>("stearsa");
        QTest::newRow("parola buna") << "vechi" << true;
        QTest::newRow("parola gresita") << "alta" << false;
        QTest::newRow("cu spatii") << "vechi " << false;
    }
    void stergeParola()
    {
        QFETCH(QString, veche);
        QFETCH(bool, stearsa);
        Proces::setari().pass = QStringLiteral("vechi");
        MesajeScript m;
        QCOMPARE(StergeParola(veche), stearsa);
        if (stearsa) {
            QVERIFY(m.intrari.isEmpty());
            QVERIFY(Proces::setari().pass.isEmpty());
            QVERIFY(QFile::exists(FisierParola()));
            QCOMPARE(parolaInFisierOlt(), QString());
        } else {
            QCOMPARE(m.ultimul(),
                     QStringLiteral("Parola veche este incorecta! Pentru a putea sterge parola trebuie sa o "
                                    "scrieti pe ce veche mai intai"));
            QCOMPARE(Proces::setari().pass, QStringLiteral("vechi"));
        }
    }

    // The removal is written beside the database, while the start reads the program folder.
    void dupaStergereUrmatoareaPornireCereParolaVeche()
    {
        FisiereHelper().ScrieIni(QStringLiteral("pass"), QStringLiteral("Generale"), m_oficiu->fisierSetari(),
                                 QStringLiteral("vechi"));
        Setari s;
        IncarcaSetari(FisiereHelper(), s);
        Proces::setari().pass = s.pass;
        QVERIFY(StergeParola(QStringLiteral("vechi")));
        QVERIFY(ParolaCorecta(QString()));
        Setari urmatoarea;
        IncarcaSetari(FisiereHelper(), urmatoarea);
        QCOMPARE(urmatoarea.pass, QStringLiteral("vechi"));
    }

    void parolaCorecta_data()
    {
        QTest::addColumn<QString>("pass");
        QTest::addColumn<QString>("tastata");
        QTest::addColumn<bool>("corecta");
        QTest::newRow("identica") << "Ab1"
                                  << "Ab1" << true;
        QTest::newRow("alt caz") << "Ab1"
                                 << "ab1" << false;
        QTest::newRow("spatiu in plus") << "Ab1"
                                        << "Ab1 " << false;
        QTest::newRow("goala fata de parola") << "Ab1"
                                              << "" << false;
    }
    void parolaCorecta()
    {
        QFETCH(QString, pass);
        QFETCH(QString, tastata);
        QFETCH(bool, corecta);
        Proces::setari().pass = pass;
        QCOMPARE(ParolaCorecta(tastata), corecta);
    }

    // --- active month ---

    void lunaActiva_data()
    {
        QTest::addColumn<QString>("luna");
        QTest::addColumn<QString>("an");
        QTest::addColumn<QString>("mesaj"); // "" when set
        QTest::addColumn<int>("camp");      // CampLunaActiva
        QTest::addColumn<int>("lunaDupa");
        QTest::addColumn<int>("anDupa");

        const QString lunaGresita = QStringLiteral("Luna incorecta!");
        const QString anGresit = QStringLiteral("An incorect!");
        const QString faraStat = QStringLiteral("An sau Luna incorecta!");
        const int L = int(CampLunaActiva::Luna);
        const int A = int(CampLunaActiva::An);
        const int N = int(CampLunaActiva::Niciunul);
        QTest::newRow("martie 2012") << "3"
                                     << "2012"
                                     << "" << N << 3 << 2012;
        QTest::newRow("luna 0") << "0"
                                << "2012" << lunaGresita << L << 1 << 2009;
        QTest::newRow("luna 13 inaintea anului") << "13"
                                                 << "abc" << lunaGresita << L << 1 << 2009;
        QTest::newRow("luna goala") << ""
                                    << "2012" << lunaGresita << L << 1 << 2009;
        QTest::newRow("luna 0.6") << "0.6"
                                  << "2012" << lunaGresita << L << 1 << 2009;
        QTest::newRow("luna zecimala rotunjita") << "2.5"
                                                 << "2012"
                                                 << "" << N << 3 << 2012;
        QTest::newRow("luna 11.6 devine 12") << "11.6"
                                             << "2012"
                                             << "" << N << 12 << 2012;
        QTest::newRow("luna 12.4 peste 12") << "12.4"
                                            << "2012" << lunaGresita << L << 1 << 2009;
        QTest::newRow("cifre la inceput") << "5 mai"
                                          << "2012 "
                                          << "" << N << 5 << 2012;
        QTest::newRow("anul 2501") << "5"
                                   << "2501" << anGresit << A << 1 << 2009;
        QTest::newRow("anul 2007") << "5"
                                   << "2007" << anGresit << A << 1 << 2009;
        QTest::newRow("anul 2500 ajunge la cautare") << "5"
                                                     << "2500" << faraStat << L << 1 << 2009;
        QTest::newRow("anul 2008 fara stat de plata") << "5"
                                                      << "2008" << faraStat << L << 1 << 2009;
    }
    void lunaActiva()
    {
        QFETCH(QString, luna);
        QFETCH(QString, an);
        QFETCH(QString, mesaj);
        QFETCH(int, camp);
        QFETCH(int, lunaDupa);
        QFETCH(int, anDupa);
        MesajeScript m;
        const RezultatLunaActiva r = SeteazaLunaActiva(m_oficiu->bd(), luna, an);
        QCOMPARE(r.setata, mesaj.isEmpty());
        QCOMPARE(int(r.camp), camp);
        QCOMPARE(m.ultimul(), mesaj);
        QCOMPARE(Proces::setari().LunaSetata, lunaDupa);
        QCOMPARE(Proces::setari().AnSetat, anDupa);
        const FisierIni ini(m_oficiu->fisierSetari());
        if (mesaj.isEmpty()) {
            QCOMPARE(ini.citeste(QStringLiteral("Setari"), QStringLiteral("LunaSetata")), QString::number(lunaDupa));
            QCOMPARE(ini.citeste(QStringLiteral("Setari"), QStringLiteral("AnSetat")), QString::number(anDupa));
        } else {
            QVERIFY(!QFile::exists(m_oficiu->fisierSetari()));
        }
    }

    void faraStatePlataNicioLuna()
    {
        m_oficiu->bd().executa(QStringLiteral("DELETE FROM StatePlata"));
        MesajeScript m;
        QVERIFY(!SeteazaLunaActiva(m_oficiu->bd(), QStringLiteral("3"), QStringLiteral("2012")).setata);
        QCOMPARE(m.ultimul(), QStringLiteral("An sau Luna incorecta!"));
    }
};

QTEST_GUILESS_MAIN(TestParolaLuna)
#include "tst_parola_luna.moc"
