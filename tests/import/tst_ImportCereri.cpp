#include "TestCuOficiu.h"

#include "import/ImportCereri.h"
#include "applications/RegulaVenituriLocuinta.h"
#include "database/BD.h"
#include "import/Demo.h"
#include "common/Eroare.h"
#include "common/FisiereHelper.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

// `alocatii-admin import-cereri`: the output lines, the refusals, a malformed file, the demo
// applications, and two imports at once against one office.
class TestImportCereri : public TestCuOficiu {
    Q_OBJECT

    qint64 randuri(const QString& tabela)
    {
        return bd().scalar(QStringLiteral("SELECT COUNT(*) FROM ") + tabela).toLongLong();
    }

    QString scrieFisier(const QString& nume, const QByteArray& continut)
    {
        const QString cale = QDir(m_oficiu->folderProgram()).filePath(nume);
        QFile f(cale);
        if (!f.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(cale));
        f.write(continut);
        return cale;
    }

    struct Iesire {
        int cod = -1;
        QList<QJsonObject> linii;
        QString eroare;
    };

    static QProcess* porneste(const QString& fisier, const QString& oficiu)
    {
        auto* p = new QProcess;
        p->start(QStringLiteral(ALOCATII_ADMIN), {QStringLiteral("import-cereri"), fisier, QStringLiteral("--office"),
                                                  oficiu, QStringLiteral("--an"), QStringLiteral("2026")});
        return p;
    }

    static Iesire termina(QProcess* p)
    {
        Iesire r;
        if (!p->waitForFinished(180000))
            qFatal("import-cereri did not finish");
        r.cod = p->exitCode();
        r.eroare = QString::fromUtf8(p->readAllStandardError());
        for (const QByteArray& l : p->readAllStandardOutput().split('\n'))
            if (!l.trimmed().isEmpty())
                r.linii << QJsonDocument::fromJson(l).object();
        delete p;
        return r;
    }

    Iesire importa(const QString& fisier) { return termina(porneste(fisier, m_oficiu->folderOficiu())); }

    static QJsonObject membru(int rudenie, const QString& cnp, int ocupatie)
    {
        return QJsonObject{{"Nume", "Pop"},
                           {"Prenume", QStringLiteral("P%1").arg(cnp.right(3))},
                           {"CNP", cnp},
                           {"RudenieID", rudenie},
                           {"OcupatieID", ocupatie}};
    }

    static QJsonObject cerere(int nr, const QJsonArray& membri, const QJsonObject& venituri)
    {
        return QJsonObject{{"NrDosar", nr},
                           {"NrCerere", nr},
                           {"DataCerere", "2026-03-02"},
                           {"Judet", "Mures"},
                           {"Localitate", "Tarnaveni"},
                           {"Strada", "Garii"},
                           {"TipCerere", 1},
                           {"Stare", 2},
                           {"ReprLegal", 1},
                           {"ModPlata", 1},
                           {"Membrii", membri},
                           {"Venituri", venituri},
                           {"Locuinte", QJsonArray{QJsonObject{{"Cod", 2}, {"NrCamere", 3}, {"Suprafata", 55.5}}}}};
    }

private slots:
    void liniiDeIesire()
    {
        const QString titular = CNPInventat(1, QDate(1980, 4, 5), 26, 1);
        const QString copil = CNPInventat(5, QDate(2016, 6, 7), 26, 2);
        QString gresit = CNPInventat(2, QDate(1985, 1, 2), 26, 3);
        gresit[12] = QChar('0' + (gresit[12].unicode() - '0' + 1) % 10);
        const QJsonArray cereri{
            // 1: saved; the child's Data18Ani comes from the CNP, so it counts.
            cerere(1, {membru(1, titular, 1), membru(3, copil, 8)}, {{"4", 300}}),
            // 2: the same numbers and a CNP that fails the full check: warnings, then saved.
            cerere(1, {membru(1, gresit, 1)}, {{"4", 100}}),
            // 3: an income on code 80: refused.
            cerere(3, {membru(1, CNPInventat(1, QDate(1970, 1, 1), 26, 4), 1)}, {{"80", 5}}),
            // 4: no titular: refused by the checks.
            cerere(4, {membru(3, CNPInventat(6, QDate(2012, 1, 1), 26, 5), 8)}, {}),
        };
        const Iesire r = importa(scrieFisier(QStringLiteral("cereri.json"), QJsonDocument(cereri).toJson()));
        QCOMPARE(r.cod, 3);
        QCOMPARE(r.linii.size(), 4);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(r.linii[i]["element"].toInt(), i + 1);

        QVERIFY(r.linii[0]["salvat"].toBool());
        QCOMPARE(r.linii[0]["CerereID"].toInt(), 1);
        QVERIFY(r.linii[0]["mesaje"].toArray().isEmpty());
        QCOMPARE(r.linii[0]["Cuantum"].toDouble(),
                 bd().scalar(QStringLiteral("SELECT Cuantum FROM Cereri WHERE CerereID = 1")).toDouble());
        QVERIFY(r.linii[0]["Cuantum"].toDouble() > 0);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT NrCopii FROM Cereri WHERE CerereID = 1")).toInt(), 1);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT Data18Ani FROM CereriMembrii WHERE RudenieID = 3")).toString(),
                 QStringLiteral("2034-06-07"));

        QVERIFY(r.linii[1]["salvat"].toBool());
        QCOMPARE(r.linii[1]["CerereID"].toInt(), 2);
        const QJsonArray m2 = r.linii[1]["mesaje"].toArray();
        QCOMPARE(m2.size(), 3);
        QVERIFY(m2[0].toString().startsWith(QLatin1String("CNP invalid.")));
        QCOMPARE(m2[1].toString(), QStringLiteral("Numarul 1 a fost alocat altui dosar"));
        QCOMPARE(m2[2].toString(), QStringLiteral("Numarul 1 a fost alocat altei cereri"));

        QVERIFY(!r.linii[2]["salvat"].toBool());
        QVERIFY(r.linii[2]["CerereID"].isNull());
        QCOMPARE(r.linii[2]["mesaje"].toArray().last().toString(), MesajCod80);

        QVERIFY(!r.linii[3]["salvat"].toBool());
        QCOMPARE(r.linii[3]["mesaje"].toArray().last().toString(),
                 QStringLiteral("Cererea trebuie sa aiba exact un titular. Corectati"));

        QCOMPARE(randuri(QStringLiteral("Cereri")), qint64(2));
        QCOMPARE(randuri(QStringLiteral("Membrii")), qint64(3));
        QCOMPARE(randuri(QStringLiteral("Locuinte")), qint64(2));
    }

    // valoareInAfaraColoaneiRefuzataPeElement: an element with a value that its column would not
    // keep as given (too large, a fraction, a fifth decimal) or that the editor's list for the
    // field does not offer, or a housing kind given twice, is refused with a message naming the
    // element, the field and the value; the elements around it are imported.
    void valoareInAfaraColoaneiRefuzataPeElement_data()
    {
        QTest::addColumn<QString>("cheie"); // top level, or "Membrii/<cheie>", "Venituri/<cod>", "Locuinte/<cheie>"
        QTest::addColumn<QJsonValue>("valoare");
        QTest::addColumn<QString>("mesaj"); // a part of the message
        QTest::newRow("NrDosar 1e300") << "NrDosar" << QJsonValue(1e300)
                                       << "Elementul 2: Valoarea 1e+300 nu incape in campul NrDosar";
        QTest::newRow("Stare 4294967298") << "Stare" << QJsonValue(4294967298.0) << "campul Stare";
        QTest::newRow("NrCerere negativ peste 32 de biti") << "NrCerere" << QJsonValue(-3e9) << "campul NrCerere";
        QTest::newRow("Bloc mai lung decat coloana")
            << "Bloc" << QJsonValue(QString(16, QLatin1Char('B'))) << "campul Bloc are 16 caractere";
        QTest::newRow("numele membrului prea lung") << "Membrii/Nume" << QJsonValue(QString(21, QLatin1Char('N')))
                                                    << "Elementul 2, membrul 1: Textul din campul Nume";
        QTest::newRow("ocupatia membrului") << "Membrii/OcupatieID" << QJsonValue(70000) << "campul OcupatieID";
        QTest::newRow("venit peste coloana de bani")
            << "Venituri/4" << QJsonValue(1e15) << "Elementul 2, venitul de pe codul 4: Valoarea";
        QTest::newRow("totalul veniturilor depaseste")
            << "Venituri/5" << QJsonValue(9e14) << "Elementul 2: Totalul veniturilor depaseste";
        QTest::newRow("suprafata 1e39") << "Locuinte/Suprafata" << QJsonValue(1e39) << "campul Suprafata";

        // Codes that the editor's lists do not offer.
        const auto inLista = [](const char* camp, double v, const char* coduri, const char* unde = "Elementul 2") {
            QTest::addRow("%s %g", camp, v)
                << QString::fromLatin1(camp) << QJsonValue(v)
                << QStringLiteral(
                       "%1: Valoarea %2 nu este un cod din lista pentru campul %3, care primeste codurile %4. "
                       "Corectati!")
                       .arg(QLatin1String(unde))
                       .arg(v)
                       .arg(QString::fromLatin1(camp).section(QLatin1Char('/'), -1), QLatin1String(coduri));
        };
        inLista("Stare", 9, "1, 2, 3, 4, 5, 6, 7, 8");
        inLista("Stare", 255, "1, 2, 3, 4, 5, 6, 7, 8");
        inLista("ModPlata", 9, "1, 2, 3");
        inLista("ReprLegal", 200, "1, 2");
        inLista("Gospodarire", 200, "1, 2, 3");
        inLista("TipLocuinta", 99, "1, 2");
        inLista("Membrii/CetatenieID", 200, "1, 2", "Elementul 2, membrul 1");
        inLista("Membrii/StCivila", 99, "1, 2, 3, 4, 5, 6", "Elementul 2, membrul 1");
        inLista("Membrii/TipAct", 99, "1, 2, 3, 4, 5, 6, 7, 8, 9, 10", "Elementul 2, membrul 1");
        inLista("Membrii/OcupatieID", 999, "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12", "Elementul 2, membrul 1");

        // Values that would be stored as something else.
        const auto intreg = [](const char* camp, double v) {
            QTest::addRow("%s %g", camp, v) << QString::fromLatin1(camp) << QJsonValue(v)
                                            << QStringLiteral("Elementul 2: Valoarea %1 nu incape in campul %2, care "
                                                              "primeste numai numere intregi. Corectati!")
                                                   .arg(v)
                                                   .arg(QLatin1String(camp));
        };
        intreg("Stare", 2.5);
        intreg("NrCerere", 12.7);
        intreg("NrDosar", 3.4);
        for (const char* suma : {"0.12345", "0.00004"})
            QTest::addRow("venit %s", suma)
                << "Venituri/4" << QJsonValue(QByteArray(suma).toDouble())
                << QStringLiteral("Elementul 2, venitul de pe codul 4: Valoarea %1 are mai mult de patru zecimale, iar "
                                  "campul Valoare pastreaza sumele cu cel mult patru zecimale. Corectati!")
                       .arg(QLatin1String(suma));
        QTest::newRow("locuinta de doua ori")
            << "Locuinte+" << QJsonValue()
            << "Elementul 2, locuinta 2: felul de locuinta Cod 2 apare de doua ori in element. Corectati!";
    }
    void valoareInAfaraColoaneiRefuzataPeElement()
    {
        QFETCH(QString, cheie);
        QFETCH(QJsonValue, valoare);
        QFETCH(QString, mesaj);
        const auto bun = [](int nr) {
            return cerere(nr,
                          {membru(1, CNPInventat(1, QDate(1980, 4, 5), 26, nr), 1),
                           membru(3, CNPInventat(5, QDate(2016, 6, 7), 26, 100 + nr), 8)},
                          {{"4", 900000000000000.0}});
        };
        QJsonObject rau = bun(2);
        const QString parte = cheie.section(QLatin1Char('/'), 0, 0);
        const QString sub = cheie.section(QLatin1Char('/'), 1);
        if (parte == QLatin1String("Locuinte+")) {
            QJsonArray a = rau[QStringLiteral("Locuinte")].toArray();
            a.append(a[0]);
            rau[QStringLiteral("Locuinte")] = a;
        } else if (parte == QLatin1String("Membrii") || parte == QLatin1String("Locuinte")) {
            QJsonArray a = rau[parte].toArray();
            QJsonObject o = a[0].toObject();
            o[sub] = valoare;
            a[0] = o;
            rau[parte] = a;
        } else if (parte == QLatin1String("Venituri")) {
            QJsonObject v = rau[parte].toObject();
            v[sub] = valoare;
            rau[parte] = v;
        } else {
            rau[cheie] = valoare;
        }
        MesajeScript nimic;
        const std::vector<RezultatImport> r = ImportaCereri(bd(), QJsonArray{bun(1), rau, bun(3)}, 2026);
        QCOMPARE(r.size(), std::size_t(3));
        QVERIFY(r[0].salvat);
        QVERIFY(r[2].salvat);
        QVERIFY(!r[1].salvat);
        QCOMPARE(r[1].mesaje.size(), 1);
        QVERIFY2(r[1].mesaje[0].contains(mesaj), qPrintable(r[1].mesaje[0]));
        QCOMPARE(randuri(QStringLiteral("Cereri")), qint64(2));
        // The large incomes of the others are stored as they are, and give no allowance.
        QCOMPARE(Bani::dinVariant(bd().scalar(QStringLiteral("SELECT VenitTotal FROM Cereri WHERE NrCerere = 3"))),
                 Lei(900000000000000));
        QCOMPARE(r[0].cuantum, Bani());
        QCOMPARE(r[2].cuantum, Bani());
    }

    // Values that fit their columns are stored exactly as given, on either engine.
    void valoriPastrateExact()
    {
        QJsonObject e =
            cerere(1, {membru(1, CNPInventat(1, QDate(1980, 4, 5), 26, 1), 1)}, {{"4", 0.1235}, {"5", 1234.5678}});
        e[QStringLiteral("Locuinte")] =
            QJsonArray{QJsonObject{{"Cod", 2}, {"NrCamere", 3}, {"Suprafata", 55.123456789}}};
        MesajeScript mesaje;
        const std::vector<RezultatImport> r = ImportaCereri(bd(), QJsonArray{e}, 2026);
        QVERIFY2(r[0].salvat, qPrintable(r[0].mesaje.join(QLatin1Char('|'))));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT Suprafata FROM Locuinte")).toDouble(), 55.123456789);
        QCOMPARE(Bani::dinVariant(bd().scalar(QStringLiteral("SELECT Valoare FROM Venituri WHERE CodVenit = 4"))),
                 Bani::dinText(QStringLiteral("0.1235")));
        QCOMPARE(Bani::dinVariant(bd().scalar(QStringLiteral("SELECT VenitTotal FROM Cereri"))),
                 Bani::dinText(QStringLiteral("1234.6913")));
    }

    void fisierStricat_data()
    {
        QTest::addColumn<QByteArray>("continut");
        QTest::addColumn<QString>("motiv");
        const QByteArray bun =
            QJsonDocument(QJsonArray{cerere(1, {membru(1, CNPInventat(1, QDate(1980, 4, 5), 26, 1), 1)}, {{"4", 300}})})
                .toJson(QJsonDocument::Compact);
        const QByteArray inceput = bun.left(bun.size() - 1); // the array without its closing bracket
        QTest::newRow("sintaxa") << QByteArray("[{\"NrDosar\": 1,") << "nu este un JSON corect";
        QTest::newRow("nu e tablou") << QByteArray("{\"NrDosar\": 1}") << "tablou JSON";
        QTest::newRow("element text") << inceput + ", \"x\"]"
                                      << "Elementul 2 nu este un obiect";
        QTest::newRow("cheie necunoscuta") << inceput + ", {\"NrDosarr\": 1}]"
                                           << "\"NrDosarr\"";
        QTest::newRow("cod de venit 81") << inceput + ", {\"Venituri\": {\"81\": 1}}]"
                                         << "codul de venit \"81\"";
        QTest::newRow("data gresita") << inceput + ", {\"DataCerere\": \"02.03.2026\"}]"
                                      << "\"DataCerere\"";
        QTest::newRow("suma ca text") << inceput + ", {\"Venituri\": {\"4\": \"300\"}}]"
                                      << "codul 4";
        QTest::newRow("locuinta 9") << inceput + ", {\"Locuinte\": [{\"Cod\": 9}]}]"
                                    << "\"Cod\"";
        QTest::newRow("membri obiect") << inceput + ", {\"Membrii\": {}}]"
                                       << "\"Membrii\"";
        QTest::newRow("adeverinta") << inceput + ", {\"Membrii\": [{\"Adeverinte\": [{\"Nr\": 1}]}]}]"
                                    << "\"Nr\"";
        // What the save computes, or no window writes, is never dropped without a word.
        for (const char* c :
             {"Cuantum", "CerereID", "FamilieID", "MembruID1", "NrCopii", "VenitpeMembru", "VenitTotal"})
            QTest::addRow("cheie calculata %s", c)
                << inceput + QByteArray(", {\"") + c + "\": 5}]"
                << QStringLiteral("Elementul 2: cheia \"%1\" este calculata de program la salvare")
                       .arg(QLatin1String(c));
        QTest::newRow("cheie calculata in membru") << inceput + ", {\"Membrii\": [{\"MembruID\": 7}]}]"
                                                   << "Elementul 2, membrul 1: cheia \"MembruID\" este calculata";
        QTest::newRow("cheie pe care nu o scrie nimeni") << inceput + ", {\"Lege416\": true}]"
                                                         << "Elementul 2: cheia \"Lege416\" nu se importa";
        QTest::newRow("cheie de doua ori") << inceput + ", {\"NrDosar\": 1, \"NrDosar\": 2}]"
                                           << "Elementul 2: cheia \"NrDosar\" apare de doua ori";
        QTest::newRow("cheie de doua ori in membru")
            << inceput + ", {\"Membrii\": [{\"Nume\": \"A\", \"Nume\": \"B\"}]}]"
            << "Elementul 2: cheia \"Nume\" apare de doua ori";
        QTest::newRow("surogat singur") << inceput + ", {\"Judet\": \"M\\ud800ures\"}]"
                                        << "Elementul 2: textul are la pozitia";
        QTest::newRow("surogat de sfarsit singur") << inceput + ", {\"Judet\": \"\\udc00Mures\"}]"
                                                   << "(\\udc00) fara cealalta jumatate";
        QTest::newRow("cod de venit 04") << inceput + ", {\"Venituri\": {\"04\": 1}}]"
                                         << "codul de venit \"04\"";
        QTest::newRow("numar cu prea multe cifre") << inceput + ", {\"NrCerere\": 12345678901234567}]"
                                                   << "numarul 12345678901234567";
    }
    void fisierStricat()
    {
        QFETCH(QByteArray, continut);
        QFETCH(QString, motiv);
        const Iesire r = importa(scrieFisier(QStringLiteral("stricat.json"), continut));
        QCOMPARE(r.cod, 1);
        QVERIFY(r.linii.isEmpty());
        QVERIFY2(r.eroare.contains(motiv), qPrintable(r.eroare));
        QVERIFY(r.eroare.contains(QLatin1String("Nu s-a importat nimic.")));
        // Not even the good first element was written.
        QCOMPARE(randuri(QStringLiteral("Cereri")), qint64(0));
        QCOMPARE(randuri(QStringLiteral("Membrii")), qint64(0));
        QCOMPARE(randuri(QStringLiteral("Strazi")), qint64(0));
    }

    // importulSeOpreste: a cause that will not go away (a full disk on a file, a server gone)
    // stops the import at the element that met it, with one Romanian message and no warning
    // of the driver on the terminal; every element before it is whole, nothing of it is written.
    void importulSeOpreste()
    {
        const bool server = !m_oficiu->server().isEmpty();
        constexpr int Inainte = 3;
        BD alta;
        if (server)
            alta.deschideServer(m_oficiu->server());
        QStringList avertismente;
        static QStringList* g_avertismente = nullptr;
        g_avertismente = &avertismente;
        const QtMessageHandler vechi = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& m) { g_avertismente->append(m); });
        int spuse = 0;
        try {
            ImportaCereri(bd(), GenereazaCereriDemo(40, 5), 2026, [&](const RezultatImport& r) {
                QVERIFY(r.salvat);
                if (++spuse != Inainte)
                    return;
                if (server)
                    // The server ends this workstation's connection, as a stopped server would.
                    alta.scalar(QStringLiteral("SELECT pg_terminate_backend(pid) FROM pg_stat_activity "
                                               "WHERE datname = current_database() AND pid <> pg_backend_pid()"));
                else
                    // The file may not grow by a single page more: the disk is full.
                    bd().executa(QStringLiteral("PRAGMA max_page_count = %1")
                                     .arg(bd().scalar(QStringLiteral("PRAGMA page_count")).toLongLong()));
            });
            QFAIL("the import went on past the full disk or the server gone");
        } catch (const Eroare& e) {
            qInstallMessageHandler(vechi);
            QCOMPARE(e.numar, server ? CodEroare::ServerInaccesibil : CodEroare::DiscPlin);
            QVERIFY2(e.descriere.startsWith(server ? QStringLiteral("Legatura cu serverul bazei de date")
                                                   : QStringLiteral("Pe discul bazei de date")),
                     qPrintable(e.descriere));
            QVERIFY2(e.descriere.endsWith(QStringLiteral("Importul s-a oprit la elementul %1, care nu a fost salvat; "
                                                         "elementele de dupa el nu au fost incercate.")
                                              .arg(spuse + 1)),
                     qPrintable(e.descriere));
        }
        qInstallMessageHandler(vechi);
        QVERIFY2(avertismente.isEmpty(), qPrintable(avertismente.join(QLatin1Char('\n'))));
        QVERIFY(spuse >= Inainte);
        // The connection comes back by itself once the server answers.
        QCOMPARE(randuri(QStringLiteral("Cereri")), qint64(spuse));
        QCOMPARE(randuri(QStringLiteral("Familii")), qint64(spuse));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri C WHERE NrMembrii <> (SELECT COUNT(*) FROM "
                                            "CereriMembrii CM WHERE CM.CerereID = C.CerereID)"))
                     .toInt(),
                 0);
    }

    // The demo applications pass every check without a single message: valid CNPs, every
    // status, both kinds.
    void cererileDemo()
    {
        MesajeScript mesaje;
        const std::vector<RezultatImport> r = ImportaCereri(bd(), GenereazaCereriDemo(120, 7), 2026);
        QCOMPARE(r.size(), size_t(120));
        for (const RezultatImport& x : r) {
            QVERIFY2(x.salvat, qPrintable(x.mesaje.join(QLatin1Char('|'))));
            QVERIFY2(x.mesaje.isEmpty(), qPrintable(x.mesaje.join(QLatin1Char('|'))));
        }
        QVERIFY(mesaje.intrari.isEmpty());
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(DISTINCT Stare) FROM Cereri")).toInt(), 8);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(DISTINCT TipCerere) FROM Cereri")).toInt(), 2);
        QVERIFY(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Cuantum > 0")).toInt() > 0);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE NrCopii = 0")).toInt(), 0);
        QCOMPARE(
            bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE MembruID1 = 0 OR MembruID2 <> 0")).toInt(),
            0);
    }

    // A member already known by CNP: what the element leaves out comes from the person's row,
    // and the save does not blank the identity card of the person shared with another application.
    void persoanaCunoscuta()
    {
        const QString cnp = CNPInventat(2, QDate(1984, 9, 9), 26, 8);
        QJsonObject titular = membru(1, cnp, 1);
        titular.insert(QStringLiteral("SerieBI"), QStringLiteral("MS"));
        titular.insert(QStringLiteral("NrBI"), QStringLiteral("123456"));
        QJsonObject copil = membru(3, CNPInventat(6, QDate(2014, 2, 2), 26, 9), 8);
        copil.insert(QStringLiteral("Adeverinte"),
                     QJsonArray{QJsonObject{{"TipAdeverinta", 3}, {"NrAdev", "7"}, {"DataDepunerii", "2026-01-05"}}});
        MesajeScript mesaje;
        std::vector<RezultatImport> r =
            ImportaCereri(bd(), QJsonArray{cerere(1, {titular, copil}, {{"4", 100}})}, 2026);
        QVERIFY(r[0].salvat);
        QCOMPARE(randuri(QStringLiteral("Adeverinte")), qint64(1));

        QJsonObject doar{{"CNP", cnp}, {"RudenieID", 1}, {"OcupatieID", 3}};
        r = ImportaCereri(bd(), QJsonArray{cerere(2, {doar}, {})}, 2026);
        QVERIFY(r[0].salvat);
        QCOMPARE(r[0].mesaje, QStringList{QStringLiteral("CNP-ul acestei persoane exista in Baza de Date la Pop %1, "
                                                         "cererea nr: 1")
                                              .arg(titular["Prenume"].toString())});
        QCOMPARE(randuri(QStringLiteral("Membrii")), qint64(2));
        QCOMPARE(
            bd().scalar(QStringLiteral("SELECT SerieBI || NrBI || Nume FROM Membrii WHERE CNP = ?"), {cnp}).toString(),
            QStringLiteral("MS123456Pop"));
        QCOMPARE(JsonRezultatImport(r[0])["CerereID"].toInt(), 2);
        QVERIFY(mesaje.intrari.isEmpty()); // the import's messages go to its results only
    }

    // Two imports at once against one office: no key twice, no application lost or half saved.
    void douaImporturiDeodata_data()
    {
        QTest::addColumn<bool>("retea");
        QTest::newRow("fara blocare de retea") << false;
        QTest::newRow("cu ReteaSetat") << true;
    }
    void douaImporturiDeodata()
    {
        QFETCH(bool, retea);
        if (retea)
            FisiereHelper().ScrieIni(QStringLiteral("ReteaSetat"), QStringLiteral("Generale"),
                                     QDir(m_oficiu->folderOficiu()).filePath(QStringLiteral("setariTarnava.ini")),
                                     QStringLiteral("1"));
        constexpr int N = 25;
        const QString a = scrieFisier(QStringLiteral("a.json"), QJsonDocument(GenereazaCereriDemo(N, 11)).toJson());
        const QString b = scrieFisier(QStringLiteral("b.json"), QJsonDocument(GenereazaCereriDemo(N, 12)).toJson());
        QProcess* pa = porneste(a, m_oficiu->folderOficiu());
        QProcess* pb = porneste(b, m_oficiu->folderOficiu());
        const Iesire ra = termina(pa);
        const Iesire rb = termina(pb);
        QVERIFY2(ra.cod == 0, qPrintable(ra.eroare));
        QVERIFY2(rb.cod == 0, qPrintable(rb.eroare));
        QCOMPARE(ra.linii.size(), N);
        QCOMPARE(rb.linii.size(), N);

        QSet<int> chei;
        for (const Iesire* r : {&ra, &rb})
            for (const QJsonObject& l : r->linii) {
                QVERIFY(l["salvat"].toBool());
                const int id = l["CerereID"].toInt();
                QVERIFY2(!chei.contains(id), "the same key was given twice");
                chei.insert(id);
                if (retea)
                    QVERIFY(l["mesaje"].toArray().contains(QJsonValue(QStringLiteral("Salvati?"))));
                // Each application whole: its family, its members, its amount as reported.
                QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Familii WHERE FamilieID = ?"), {id}).toInt(),
                         1);
                QCOMPARE(bd().scalar(QStringLiteral("SELECT Cuantum FROM Cereri WHERE CerereID = ?"), {id}).toDouble(),
                         l["Cuantum"].toDouble());
                QCOMPARE(
                    bd().scalar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE CerereID = ?"), {id}).toInt(),
                    bd().scalar(QStringLiteral("SELECT NrMembrii FROM Cereri WHERE CerereID = ?"), {id}).toInt());
                QVERIFY(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Venituri WHERE CerereID = ?"), {id}).toInt() >
                        0);
            }
        QCOMPARE(randuri(QStringLiteral("Cereri")), qint64(2 * N));
        QCOMPARE(randuri(QStringLiteral("Familii")), qint64(2 * N));
        QCOMPARE(bd().scalar(QStringLiteral(
                                 "SELECT COUNT(*) FROM (SELECT CNP FROM Membrii GROUP BY CNP HAVING COUNT(*) > 1) D"))
                     .toInt(),
                 0);
        QCOMPARE(bd().scalar(QStringLiteral("SELECT MAX(CerereID) FROM Cereri")).toInt(), 2 * N);
    }
};

QTEST_GUILESS_MAIN(TestImportCereri)
#include "tst_ImportCereri.moc"
