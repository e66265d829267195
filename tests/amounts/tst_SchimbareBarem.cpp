#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"

#include "amounts/BaremEditor.h"
#include "amounts/BaremLei.h"
#include "amounts/Cuantum.h"
#include "amounts/RaportSchimbareBarem.h"
#include "amounts/SchimbareBarem.h"
#include "applications/IncarcaCerere.h"
#include "applications/SalveazaCerere.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Proces.h"
#include "documents/DocumentDispozitie.h"
#include "history/CalculeDispozitii.h"
#include "history/IstoricCereri.h"
#include "reports/ExportGrid.h"
#include "reports/InchidereLuna.h"
#include "reports/ReportGrid.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

// A change of the law's amounts on a small office: a rise of one tier of the scale moves exactly
// the families of that tier, with their change dispositions, calculations, history rows and
// totals, while a family that would fall to 0 and one that cannot be computed are only listed;
// what the change refuses, and the amounts it reads, typed or from a file.
class TestSchimbareBarem : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override;

private slots:
    void oTreaptaRidicataMutaDoarFamiliileEi();
    void comandaAplicaODataSiRefuzaADouaOara();
    void refuzuri_data();
    void refuzuri();
    void sumeNoi_data();
    void sumeNoi();

private:
    // An application in payment (status 2) with `copii` children and that income total.
    qint64 familie(int copii, int venit, int tip, int serie, int stare = 2, int an = 2026);
    // The scale in force with the four rows of kind 1 and tier 200 raised by 10 lei.
    SumeBarem treaptaRidicata();
    QByteArray admin(const QStringList& arg, int& cod, QByteArray* erori = nullptr);
    // The row counts that a change writes, to show that a refused one wrote nothing.
    QList<qint64> randuriScrise();
};

void TestSchimbareBarem::pregateste()
{
    Ceas::seteazaAzi(QDate(2026, 3, 10));
    m_oficiu->scrieDatePrimarie();
}

qint64 TestSchimbareBarem::familie(int copii, int venit, int tip, int serie, int stare, int an)
{
    Cerere c = DateTest::Familie(copii, Lei(venit), tip, serie);
    c.Stare = stare;
    return ScrieCerere(bd(), c, an);
}

SumeBarem TestSchimbareBarem::treaptaRidicata()
{
    const BaremLei b = CitesteBaremLei(bd());
    SumeBarem s{};
    for (int i = 0; i < NrRanduriBaremLei; ++i)
        s[i] = *b[i].barem + (i < 4 ? Lei(10) : Bani());
    return s;
}

QByteArray TestSchimbareBarem::admin(const QStringList& arg, int& cod, QByteArray* erori)
{
    QProcess p;
    p.start(QStringLiteral(ALOCATII_ADMIN),
            QStringList{QStringLiteral("barem"), QStringLiteral("--office"), m_oficiu->folderOficiu()} + arg);
    if (!p.waitForFinished(120000))
        return {};
    cod = p.exitCode();
    if (erori)
        *erori = p.readAllStandardError();
    return p.readAllStandardOutput();
}

QList<qint64> TestSchimbareBarem::randuriScrise()
{
    QList<qint64> n;
    for (const char* t : {"IstoricBarem", "Dispozitii", "IstoricCereri", "CalculeDispozitii"})
        n << DateTest::NumaraRanduri(bd(), QLatin1String(t));
    n << bd().scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare = 7")).toLongLong();
    n << qint64(bd().scalar(QStringLiteral("SELECT SUM(Barem) FROM Barem")).toDouble() * 10000);
    return n;
}

void TestSchimbareBarem::oTreaptaRidicataMutaDoarFamiliileEi()
{
    const qint64 a = familie(2, 500, 1, 1);    // 125 lei per member, two children: 60 lei
    const qint64 b = familie(1, 1000, 1, 2);   // 333 lei per member, tier 370: 25 lei
    const qint64 c = familie(1, 300, 2, 3);    // single parent, 150 per member: 50 lei
    const qint64 d = familie(2, 500, 1, 4, 1); // recorded, not in payment
    Cerere ultimulCopil = DateTest::Familie(0, Lei(300), 1, 5);
    ultimulCopil.Membrii.push_back(DateTest::MembruCopil(QDate(2007, 5, 10), 510)); // 18 in 2025
    ultimulCopil.NrMembrii = QStringLiteral("3");
    RecalculVenitPeMembru(ultimulCopil);
    ultimulCopil.Stare = 2;
    const qint64 e = ScrieCerere(bd(), ultimulCopil, 2025); // 30 lei when saved in 2025
    const qint64 f = familie(1, 450, 1, 6);                 // 30 lei, but no income per member stored
    bd().executa(QStringLiteral("UPDATE Cereri SET VenitpeMembru = NULL WHERE CerereID = ?"), {f});
    Cerere tarzie = DateTest::Familie(2, Lei(500), 1, 7);
    tarzie.DataCerere = QDate(2026, 4, 10);
    tarzie.Stare = 2;
    const qint64 g = ScrieCerere(bd(), tarzie, 2026);

    const PrevizualizareBarem p = PrevizualizeazaBarem(bd(), treaptaRidicata(), {3, 2026});
    QCOMPARE(p.modificate.size(), size_t(2));
    QCOMPARE(p.modificate[0].cerereId, a);
    QCOMPARE(p.modificate[0].cuantum, Lei(60));
    QCOMPARE(p.modificate[0].cuantumNou, Lei(70));
    QCOMPARE(p.modificate[0].dinData, QDate(2026, 3, 1));
    QCOMPARE(p.modificate[0].observatii, QStringLiteral("2 copii, venit sub 200 lei"));
    QCOMPARE(p.modificate[1].cerereId, g);
    QCOMPARE(p.modificate[1].dinData, QDate(2026, 4, 1)); // not before its own application
    QCOMPARE(p.laZero.size(), size_t(1));
    QCOMPARE(p.laZero[0].cerereId, e);
    QCOMPARE(p.laZero[0].observatii, QStringLiteral("niciun copil nu se numara in 2026; cu baremul in vigoare ar fi "
                                                    "0.00 lei"));
    QCOMPARE(p.necalculate.size(), size_t(1));
    QCOMPARE(p.necalculate[0].cerereId, f);
    QCOMPARE(p.necalculate[0].observatii, QStringLiteral("Venitul pe membru nu este completat in cerere."));
    QCOMPARE(p.neschimbate, 2); // b and c; d is not in payment
    QCOMPARE(p.peTip.at(1).familii, 5);
    QCOMPARE(p.peTip.at(1).inainte, Lei(205));
    QCOMPARE(p.peTip.at(1).dupa, Lei(225));
    QCOMPARE(p.peTip.at(2).dupa, Lei(50));
    QCOMPARE(p.total.modificate, 2);

    // The grid says the same, and the command line gives that grid as its JSON.
    ReportGrid grid;
    ConstruiesteSchimbareBarem(bd(), p, grid);
    const QString json = QString::fromUtf8(GridJson(grid));
    for (const char* text : {"FAMILII AL CAROR CUANTUM SE MODIFICA: 2", "FAMILII AL CAROR CUANTUM AR DEVENI 0: 1",
                             "CERERI CARE NU POT FI CALCULATE: 1", "Sumele noi se aplica de la 01.03.2026", "+10.00",
                             "Venitul pe membru nu este completat in cerere.", "225.00", "275.00"})
        QVERIFY2(json.contains(QLatin1String(text)), text);
    const QString fisier = QDir(m_oficiu->folderProgram()).filePath(QStringLiteral("nou.json"));
    {
        QJsonArray randuri = BaremLeiJson(p.vechi);
        for (int i = 0; i < 4; ++i) {
            QJsonObject o = randuri[i].toObject();
            o[QStringLiteral("Barem")] = o[QStringLiteral("Barem")].toDouble() + 10;
            randuri[i] = o;
        }
        QFile f(fisier);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(QJsonDocument(randuri).toJson());
    }
    int cod = -1;
    const QByteArray iesire = admin({QStringLiteral("previzualizeaza"), QStringLiteral("--nou"), fisier,
                                     QStringLiteral("--de-la"), QStringLiteral("03.2026"), QStringLiteral("--json")},
                                    cod);
    QCOMPARE(cod, 0);
    QCOMPARE(QJsonDocument::fromJson(iesire), QJsonDocument::fromJson(GridJson(grid)));

    // The apply: the dispositions numbered from 500, by application number.
    const RezultatAplicare r = AplicaBarem(bd(), p, {500, QDate(2026, 3, 12), MotivSchimbareBarem});
    QCOMPARE(r.dispozitii.size(), 2);
    QCOMPARE(r.primulNr, 500.0);
    QCOMPARE(r.ultimulNr, 501.0);

    // The scale: the new amounts in place from March, the old rows kept with the days they held.
    QCOMPARE(CitesteBaremLei(bd())[1].barem, std::optional<Bani>(Lei(70)));
    QCOMPARE(CitesteBaremLei(bd())[1].dataInceput, QDate(2026, 3, 1));
    QCOMPARE(CitesteBaremLei(bd())[4].barem, std::optional<Bani>(Lei(25)));
    QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("IstoricBarem"), QStringLiteral("SchimbareID = ?"), 1), 16);
    Rezultat vechi = bd().selecteaza(QStringLiteral("SELECT Barem, BaremNou, DataInceput, DataSfarsit, NrDispozitii "
                                                    "FROM IstoricBarem WHERE Tip = 1 AND NrPers = 2 AND Suma = 200"));
    QVERIFY(vechi.next());
    QCOMPARE(vechi.valoare(0).toDouble(), 60.0);
    QCOMPARE(vechi.valoare(1).toDouble(), 70.0);
    QCOMPARE(DataDinBD(vechi.valoare(2)), QDate(2012, 1, 1));
    QCOMPARE(DataDinBD(vechi.valoare(3)), QDate(2026, 2, 28));
    QCOMPARE(vechi.valoare(4).toInt(), 2);

    // The changed family: amount, status, its disposition, calculation and history.
    const auto cerere = [&](qint64 id) {
        Rezultat x = bd().selecteaza(
            QStringLiteral("SELECT Cuantum, Stare, MotivStare, DataStare FROM Cereri WHERE CerereID = ?"), {id});
        x.next();
        return QStringLiteral("%1|%2|%3|%4")
            .arg(Bani::dinVariant(x.valoare(0)).textSuma())
            .arg(x.valoare(1).toInt())
            .arg(x.valoare(2).toString(), TextData(DataDinBD(x.valoare(3))));
    };
    QCOMPARE(cerere(a), QStringLiteral("70.00|7|modificare barem conform legii|01.03.2026"));
    QCOMPARE(cerere(g), QStringLiteral("70.00|7|modificare barem conform legii|01.04.2026"));
    QCOMPARE(cerere(b), QStringLiteral("25.00|2||02.03.2026"));
    for (qint64 x : {c, d, e, f})
        QVERIFY(!cerere(x).contains(QStringLiteral("|7|")));
    QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 2);
    Rezultat disp =
        bd().selecteaza(QStringLiteral("SELECT DispozitieID, CerereID, NrDisp, DataDisp, DinData, Luna, An, "
                                       "Actiune, CuantumVechi, Cuantum, Motiv FROM Dispozitii "
                                       "ORDER BY NrDisp"));
    QVERIFY(disp.next());
    const qint64 dispA = disp.valoare(0).toLongLong();
    QCOMPARE(dispA, r.dispozitii[0]);
    QCOMPARE(disp.valoare(1).toLongLong(), a);
    QCOMPARE(disp.valoare(2).toDouble(), 500.0);
    QCOMPARE(DataDinBD(disp.valoare(3)), QDate(2026, 3, 12));
    QCOMPARE(DataDinBD(disp.valoare(4)), QDate(2026, 3, 1));
    QCOMPARE(disp.valoare(5).toInt(), 3);
    QCOMPARE(disp.valoare(6).toInt(), 2026);
    QCOMPARE(disp.valoare(7).toInt(), 2);
    QCOMPARE(disp.valoare(8).toDouble(), 60.0);
    QCOMPARE(disp.valoare(9).toDouble(), 70.0);
    QCOMPARE(disp.valoare(10).toString(), MotivSchimbareBarem);
    const std::optional<CalculDispozitie> calcul = CitesteCalcul(bd(), dispA);
    QVERIFY(calcul);
    QCOMPARE(calcul->cuantum, Lei(70));
    QCOMPARE(calcul->barem, Lei(70));
    QCOMPARE(calcul->baremNrPers, 2);
    QCOMPARE(calcul->baremSuma, 200);
    const RandIstoric ultim = CitesteIstoric(bd(), a).back();
    QCOMPARE(ultim.stare, 7);
    QCOMPARE(ultim.stareVeche, std::optional<int>(2));
    QCOMPARE(ultim.cuantumVechi, std::optional<Bani>(Lei(60)));
    QCOMPARE(ultim.cuantum, Lei(70));
    QCOMPARE(ultim.dispozitieId, dispA);
    QCOMPARE(CitesteIstoric(bd(), b).size(), size_t(1)); // only its save
    QByteArray corp = "#sumav#|#suma#|#DinData#|#Nr#";
    QVERIFY(CompleteazaDispozitia(dispA, corp, Proces::setari(), bd()));
    QCOMPARE(corp, QByteArray("60|70|01.03.2026|500"));

    // The next payroll pays the new amounts: the totals of the preview.
    const TotaluriPlata t = Totaluri(StatPlataCurent(bd()));
    QCOMPARE(t.toate.suma, p.total.dupa);
    QCOMPARE(t.peTip.at(1).suma, Lei(225));

    // Applied twice: refused, nothing written; the same amounts again: nothing to change.
    const QList<qint64> dupa = randuriScrise();
    try {
        AplicaBarem(bd(), p, {600, QDate(2026, 3, 12), MotivSchimbareBarem});
        QFAIL("applied twice");
    } catch (const Eroare& x) {
        QCOMPARE(x.numar, CodPrevizualizareVeche);
        QCOMPARE(x.descriere, MesajBarem::DejaAplicata);
    }
    const PrevizualizareBarem din2 = PrevizualizeazaBarem(bd(), p.nou, {3, 2026});
    QVERIFY(din2.faraSchimbare() && din2.modificate.empty());
    try {
        AplicaBarem(bd(), din2, {600, QDate(2026, 3, 12), MotivSchimbareBarem});
        QFAIL("nothing to change, and applied");
    } catch (const Eroare& x) {
        QCOMPARE(x.descriere, MesajBarem::FaraSchimbare);
    }
    QCOMPARE(randuriScrise(), dupa);

    // The kept scale editor still reads the first rows and fails on Baremuri, writing nothing.
    {
        MesajeScript m;
        QCOMPARE(CitesteBaremEditor(bd()).first(), QStringLiteral("0.06"));
        QVERIFY_THROWS_EXCEPTION(Eroare, ScrieBaremEditor(bd(), {"1", "2", "3", "4", "5", "6", "7"}));
    }
    QCOMPARE(randuriScrise(), dupa);
}

void TestSchimbareBarem::comandaAplicaODataSiRefuzaADouaOara()
{
    const qint64 a = familie(2, 500, 1, 1);
    int cod = -1;
    const QByteArray arata = admin({QStringLiteral("arata"), QStringLiteral("--json")}, cod);
    QCOMPARE(cod, 0);
    QJsonArray randuri = QJsonDocument::fromJson(arata).array();
    QCOMPARE(randuri.size(), NrRanduriBaremLei);
    QJsonObject doiCopii = randuri[1].toObject();
    QCOMPARE(doiCopii[QStringLiteral("Barem")].toDouble(), 60.0);
    doiCopii[QStringLiteral("Barem")] = QStringLiteral("72.5");
    randuri[1] = doiCopii;
    const QString fisier = QDir(m_oficiu->folderProgram()).filePath(QStringLiteral("nou.json"));
    QFile f(fisier);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(QJsonDocument(randuri).toJson());
    f.close();

    const QStringList aplica{QStringLiteral("aplica"),  QStringLiteral("--nou"),   fisier,
                             QStringLiteral("--de-la"), QStringLiteral("03.2026"), QStringLiteral("--nr-disp"),
                             QStringLiteral("7"),       QStringLiteral("--json")};
    const QJsonObject r = QJsonDocument::fromJson(admin(aplica, cod)).object();
    QCOMPARE(cod, 0);
    QCOMPARE(r[QStringLiteral("dispozitii")].toInt(), 1);
    QCOMPARE(r[QStringLiteral("primul_nr")].toDouble(), 7.0);
    QCOMPARE(Bani::dinVariant(bd().scalar(QStringLiteral("SELECT Cuantum FROM Cereri WHERE CerereID = ?"), {a})),
             Bani::dinText(QStringLiteral("72.5")));

    QByteArray erori;
    admin(aplica, cod, &erori);
    QCOMPARE(cod, 1);
    QCOMPARE(QString::fromUtf8(erori).trimmed(), MesajBarem::FaraSchimbare);
    QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 1);

    admin({QStringLiteral("previzualizeaza"), QStringLiteral("--nou"), fisier, QStringLiteral("--de-la"),
           QStringLiteral("13.2026")},
          cod);
    QCOMPARE(cod, 2);
}

void TestSchimbareBarem::refuzuri_data()
{
    QTest::addColumn<QString>("caz");
    QTest::addColumn<QString>("mesaj");
    QTest::newRow("luna de efect inchisa") << "inchisa" << MesajLunaInchisa({3, 2026});
    QTest::newRow("o luna de dupa ea inchisa")
        << "ulterioara"
        << "Baremul nou nu poate avea efect din luna Martie 2026: luna Aprilie 2026, de dupa ea, este deja inchisa.";
    QTest::newRow("inaintea baremului in vigoare")
        << "in vigoare"
        << "Baremul in vigoare se aplica de la 01.04.2026: cel nou nu poate avea efect dintr-o luna anterioara.";
    QTest::newRow("o suma 0") << "zero"
                              << "Suma noua pentru Mono, 2 copii, venit 200 - 370 lei trebuie sa fie "
                                 "diferita de 0 (zero).";
    QTest::newRow("fara numarul primei dispozitii") << "fara numar" << MesajBarem::NrLipsa;
    QTest::newRow("motivul nu incape in starea cererii")
        << "motiv lung"
        << "Textul din campul MotivStare are 51 caractere, iar campul primeste cel mult 50. Corectati!";
    QTest::newRow("o cerere schimbata dupa previzualizare") << "schimbata" << MesajBarem::PrevizualizareVeche;
    QTest::newRow("a doua aplicare") << "a doua" << MesajBarem::DejaAplicata;
}

void TestSchimbareBarem::refuzuri()
{
    QFETCH(QString, caz);
    QFETCH(QString, mesaj);
    const qint64 a = familie(2, 500, 1, 1);
    if (caz == QLatin1String("inchisa"))
        InchideLuna(bd(), {3, 2026});
    if (caz == QLatin1String("ulterioara"))
        InchideLuna(bd(), {4, 2026});
    if (caz == QLatin1String("in vigoare"))
        bd().executa(QStringLiteral("UPDATE Barem SET DataInceput = ? WHERE Suma = 200"),
                     {QStringLiteral("2026-04-01")});
    SumeBarem nou = treaptaRidicata();
    if (caz == QLatin1String("zero"))
        nou[13] = Bani();
    ParametriAplicare param{500, QDate(2026, 3, 12), MotivSchimbareBarem};
    if (caz == QLatin1String("fara numar"))
        param.primulNr = 0;
    if (caz == QLatin1String("motiv lung"))
        param.motiv = QString(51, QLatin1Char('m'));
    const QList<qint64> inainte = randuriScrise();
    try {
        const PrevizualizareBarem p = PrevizualizeazaBarem(bd(), nou, {3, 2026});
        if (caz == QLatin1String("schimbata")) {
            // Another workstation resumes the application meanwhile.
            Cerere c = IncarcaCerere(bd(), a);
            c.Stare = 6;
            ScrieCerere(bd(), c, 2026);
        }
        if (caz == QLatin1String("a doua"))
            AplicaBarem(bd(), p, param);
        AplicaBarem(bd(), p, param);
        QFAIL("refused nothing");
    } catch (const Eroare& e) {
        QCOMPARE(e.descriere, mesaj);
    }
    QVERIFY(!bd().inTranzactie());
    if (caz != QLatin1String("a doua") && caz != QLatin1String("schimbata"))
        QCOMPARE(randuriScrise(), inainte);
    if (caz == QLatin1String("a doua"))
        QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 1);
    if (caz == QLatin1String("schimbata"))
        QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("Dispozitii")), 0);
}

void TestSchimbareBarem::sumeNoi_data()
{
    QTest::addColumn<QString>("fel"); // "text": the sixteenth amount typed; "json": the file
    QTest::addColumn<QString>("intrare");
    QTest::addColumn<QString>("mesaj"); // empty: accepted
    const QString rand = QStringLiteral("Mono, 4 sau mai multi copii, venit 200 - 370 lei");
    QTest::newRow("zecimale") << "text"
                              << "182.5" << QString();
    QTest::newRow("gol") << "text"
                         << " " << QStringLiteral("Completati suma noua pentru %1!").arg(rand);
    QTest::newRow("litere") << "text"
                            << "abc" << QStringLiteral("Suma noua pentru %1 nu este un numar: abc").arg(rand);
    QTest::newRow("virgula") << "text"
                             << "1,5" << QStringLiteral("Suma noua pentru %1 nu este un numar: 1,5").arg(rand);
    QTest::newRow("doua puncte") << "text"
                                 << "1.5.2" << QStringLiteral("Suma noua pentru %1 nu este un numar: 1.5.2").arg(rand);
    QTest::newRow("zero cu zecimale")
        << "text"
        << "0.00" << QStringLiteral("Suma noua pentru %1 trebuie sa fie diferita de 0 (zero).").arg(rand);
    QTest::newRow("cinci zecimale")
        << "text"
        << "1.23456" << QStringLiteral("Suma noua pentru %1 are mai mult de patru zecimale: 1.23456").arg(rand);
    QTest::newRow("json corect") << "json"
                                 << "" << QString();
    QTest::newRow("json suma text") << "json"
                                    << R"({"Barem": "abc"})"
                                    << QStringLiteral("Suma noua pentru %1 nu este un numar: abc").arg(rand);
    QTest::newRow("json suma null") << "json"
                                    << R"({"Barem": null})"
                                    << QStringLiteral("Suma noua pentru %1 nu este un numar: null").arg(rand);
    QTest::newRow("json rand dublat") << "json"
                                      << R"({"NrPers": 3})"
                                      << QStringLiteral("Randul pentru Mono, 3 copii, venit 200 - 370 lei apare de "
                                                        "doua ori in fisier.");
    QTest::newRow("json rand strain") << "json"
                                      << R"({"Suma": 0.74})"
                                      << QStringLiteral(
                                             "Randul 16 din fisier nu este un rand al baremului in lei: Tip 1 "
                                             "sau 2, NrPers de la 1 la 4, Suma 200 sau 370.");
    QTest::newRow("json fara lista") << "json"
                                     << "{}"
                                     << QStringLiteral("Fisierul baremului trebuie sa fie o lista cu cele 16 randuri "
                                                       "ale baremului (Tip, NrPers, Suma, Barem).");
}

void TestSchimbareBarem::sumeNoi()
{
    QFETCH(QString, fel);
    QFETCH(QString, intrare);
    QFETCH(QString, mesaj);
    SumeCitite s;
    if (fel == QLatin1String("text")) {
        QStringList texte(NrRanduriBaremLei, QStringLiteral("10"));
        texte[15] = intrare;
        s = CitesteSumeNoi(texte);
    } else {
        // The scale in force as `arata --json` prints it, the last row changed by `intrare`.
        QJsonArray randuri = BaremLeiJson(CitesteBaremLei(bd()));
        if (intrare == QLatin1String("{}")) {
            s = SumeDinJson("{}");
        } else {
            QJsonObject ultimul = randuri[15].toObject();
            const QJsonObject schimbare = QJsonDocument::fromJson(intrare.toUtf8()).object();
            for (auto it = schimbare.begin(); it != schimbare.end(); ++it)
                ultimul[it.key()] = it.value();
            randuri[15] = ultimul;
            s = SumeDinJson(QJsonDocument(randuri).toJson());
        }
    }
    QCOMPARE(s.mesaj, mesaj);
    if (mesaj.isEmpty())
        QCOMPARE(s.sume[15], fel == QLatin1String("text") ? Bani::dinText(QStringLiteral("182.5")) : Lei(180));
    else if (!mesaj.startsWith(QLatin1String("Fisierul")) && !mesaj.startsWith(QLatin1String("Randul 16")))
        QCOMPARE(s.gresit, mesaj.contains(QLatin1String("3 copii")) ? 14 : 15);
}

QTEST_GUILESS_MAIN(TestSchimbareBarem)
#include "tst_SchimbareBarem.moc"
