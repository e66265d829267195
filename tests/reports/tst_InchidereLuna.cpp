#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"

#include "amounts/Cuantum.h"
#include "applications/IncarcaCerere.h"
#include "applications/SalveazaCerere.h"
#include "common/Ceas.h"
#include "common/Eroare.h"
#include "history/CalculeDispozitii.h"
#include "history/IstoricCereri.h"
#include "decisions/Dispozitie.h"
#include "documents/FisaDispozitie.h"
#include "mainwindow/Stergere.h"
#include "reports/InchidereLuna.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QtTest>

// The month close: a clerk closes November, changes a case in December, and December's
// difference shows exactly that change with its disposition, while November's payroll and the
// case's November sheet still show what was paid; the comparison of two payrolls, and what
// the close and the reopening refuse.
class TestInchidereLuna : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override;

private slots:
    void noiembrieInchisaDecembrieExplicata();
    void comparaStaturi_data();
    void comparaStaturi();
    void refuzuri_data();
    void refuzuri();

private:
    qint64 familie(int copii, int serie);
    qint64 dispozitie(qint64 cerereId, int nr, int luna, int actiune, const QString& suma,
                      const QString& sumaNoua = {});
};

void TestInchidereLuna::pregateste()
{
    Ceas::seteazaAzi(QDate(2026, 11, 5));
    m_oficiu->scrieDatePrimarie();
}

// An application in payment (status 2), income 500 lei.
qint64 TestInchidereLuna::familie(int copii, int serie)
{
    Cerere c = DateTest::Familie(copii, Lei(500), 1, serie);
    c.Stare = 2;
    return ScrieCerere(bd(), c, 2026);
}

qint64 TestInchidereLuna::dispozitie(qint64 cerereId, int nr, int luna, int actiune, const QString& suma,
                                     const QString& sumaNoua)
{
    DateDispozitie d;
    d.cerereId = cerereId;
    d.nrDisp = QString::number(nr);
    d.dataDisp = Ceas::azi();
    d.luna = luna;
    d.an = QStringLiteral("2026");
    d.actiune = actiune;
    d.suma = suma;
    d.sumaNoua = sumaNoua;
    return SalveazaDispozitie(bd(), 1, d);
}

void TestInchidereLuna::noiembrieInchisaDecembrieExplicata()
{
    // November: two families in payment, each granted by a disposition of November.
    const qint64 a = familie(2, 1); // 125 lei per member, two children: 60 lei
    const qint64 b = familie(1, 2); // one child: 30 lei
    const qint64 dispNoiembrie = dispozitie(a, 1, 11, 1, QStringLiteral("60"));
    dispozitie(b, 2, 11, 1, QStringLiteral("30"));
    const LunaAn noiembrie{11, 2026}, decembrie{12, 2026};
    const DiferentaLuna inchisa = InchideLuna(bd(), noiembrie);
    QVERIFY(inchisa.inchisa && !inchisa.fataDe);
    QCOMPARE(inchisa.noi.size(), size_t(2));
    QCOMPARE(inchisa.totaluri.toate.suma, Lei(90));

    // December: the income of the first family doubles; its amount falls to 50 lei by a
    // disposition of change.
    Ceas::seteazaAzi(QDate(2026, 12, 3));
    Cerere c = IncarcaCerere(bd(), a);
    c.Adaug = 2;
    c.Venituri[3] = Lei(1000);
    c.VenitTotal = QStringLiteral("1000");
    RecalculVenitPeMembru(c);
    ScrieCerere(bd(), c, 2026);
    dispozitie(a, 7, 12, 2, QStringLiteral("60"), QStringLiteral("50"));

    const DiferentaLuna d = Diferenta(bd(), decembrie);
    QVERIFY(!d.inchisa);
    QVERIFY(d.fataDe == noiembrie);
    QVERIFY(d.noi.empty() && d.oprite.empty());
    QCOMPARE(d.modificate.size(), size_t(1));
    QCOMPARE(d.modificate[0].cerereId, a);
    QCOMPARE(d.modificate[0].cuantumVechi, std::optional<Bani>(Lei(60)));
    QCOMPARE(d.modificate[0].cuantum, std::optional<Bani>(Lei(50)));
    QCOMPARE(d.modificate[0].nrDisp, std::optional<double>(7));
    QCOMPARE(d.neschimbate, 1);
    QCOMPARE(d.totaluri.toate.suma, Lei(80));

    // November still shows what was paid: its payroll and the family's November sheet.
    const std::vector<RandStat> stat = StatPlata(bd(), noiembrie);
    QCOMPARE(stat.size(), size_t(2));
    QCOMPARE(stat[0].cuantum, Lei(60));
    QByteArray corp = "#Cuantum#|#VenitTotal#|#NrCopii#|#mCopil3#";
    QVERIFY(CompleteazaFisaDispozitie(dispNoiembrie, QDate(2027, 12, 1), corp, bd()));
    QCOMPARE(corp, QByteArray("60.00|500.00|2|DA"));

    // Its disposition can be neither changed nor deleted; the refusal writes nothing.
    DateDispozitie schimbata = CitesteDispozitie(bd(), dispNoiembrie)->date;
    schimbata.suma = QStringLiteral("75");
    {
        MesajeScript m;
        QVERIFY(!VerificaDispozitie(bd(), 2, schimbata).ok());
        QCOMPARE(m.ultimul(), MesajLunaInchisa(noiembrie));
    }
    try {
        SalveazaDispozitie(bd(), 2, schimbata);
        QFAIL("a closed month's disposition was changed");
    } catch (const Eroare& e) {
        QCOMPARE(e.numar, CodEroare::LunaInchisa);
    }
    QVERIFY_THROWS_EXCEPTION(Eroare, StergeDispozitie(bd(), dispNoiembrie));
    QVERIFY_THROWS_EXCEPTION(Eroare, StergeCerere(bd(), a));
    QCOMPARE(CitesteCalcul(bd(), dispNoiembrie)->cuantum, Lei(60));

    // The command line gives the same difference, as one JSON object.
    QProcess admin;
    admin.start(QStringLiteral(ALOCATII_ADMIN),
                {QStringLiteral("luna"), QStringLiteral("--office"), m_oficiu->folderOficiu(), QStringLiteral("--luna"),
                 QStringLiteral("12"), QStringLiteral("--an"), QStringLiteral("2026"), QStringLiteral("diff"),
                 QStringLiteral("--json")});
    QVERIFY(admin.waitForFinished(60000));
    QCOMPARE(admin.exitCode(), 0);
    const QJsonObject json = QJsonDocument::fromJson(admin.readAllStandardOutput()).object();
    QCOMPARE(json, DiferentaJson(d));
    const QJsonObject modificat = json[QStringLiteral("modificate")].toArray()[0].toObject();
    QCOMPARE(modificat[QStringLiteral("CuantumVechi")].toString(), QStringLiteral("60.0000"));
    QCOMPARE(json[QStringLiteral("totaluri")][QStringLiteral("pe_tip")][QStringLiteral("2")][QStringLiteral("suma")]
                 .toString(),
             QStringLiteral("0.0000"));

    // Reopening needs a reason, which every family of the month's payroll keeps in its history.
    RedeschideLuna(bd(), noiembrie, QStringLiteral("plata dubla"));
    QVERIFY(!LunaInchisa(bd(), noiembrie));
    QVERIFY(CitesteIstoric(bd(), b).back().motiv.endsWith(QStringLiteral("plata dubla")));
    QCOMPARE(StatPlata(bd(), noiembrie)[0].cuantum, Lei(50));
}

void TestInchidereLuna::comparaStaturi_data()
{
    QTest::addColumn<int>("cuantumNou"); // 0: gone from the new payroll
    QTest::addColumn<bool>("inVechi");
    QTest::addColumn<QString>("fel"); // where it lands
    QTest::addColumn<QVariant>("nrDisp");
    // Dispositions of the application in the month, oldest first: 11 a change, 12 an ending.
    QTest::newRow("noua") << 40 << false << "noi" << QVariant(12.0);
    QTest::newRow("modificata") << 45 << true << "modificate" << QVariant(12.0);
    QTest::newRow("neschimbata") << 40 << true << "" << QVariant();
    QTest::newRow("oprita, de incetare") << 0 << true << "oprite" << QVariant(12.0);
}

void TestInchidereLuna::comparaStaturi()
{
    QFETCH(int, cuantumNou);
    QFETCH(bool, inVechi);
    QFETCH(QString, fel);
    QFETCH(QVariant, nrDisp);
    RandStat r;
    r.cerereId = 5;
    r.nrCerere = 55;
    r.nume = QStringLiteral("Pop");
    r.prenume = QStringLiteral("Ana");
    r.tipCerere = 2;
    r.nrCopii = 1;
    r.cuantum = Lei(40);
    std::vector<RandStat> vechi, nou;
    if (inVechi)
        vechi.push_back(r);
    if (cuantumNou) {
        r.cuantum = Lei(cuantumNou);
        nou.push_back(r);
    }
    // For a stopped one the ending counts even when a change came after it.
    std::vector<DispozitieExplicativa> disp{{11, 2}, {12, 5}};
    if (fel == QLatin1String("oprite"))
        std::swap(disp[0], disp[1]);
    const DiferentaLuna d = ComparaStaturi({12, 2026}, LunaAn{11, 2026}, vechi, nou, {{5, disp}}, {{5, 4}});
    const QJsonObject json = DiferentaJson(d);
    QCOMPARE(json[QStringLiteral("neschimbate")].toInt(), fel.isEmpty() ? 1 : 0);
    for (const char* lista : {"noi", "oprite", "modificate"}) {
        const QJsonArray a = json[QLatin1String(lista)].toArray();
        QCOMPARE(a.size(), fel == QLatin1String(lista) ? 1 : 0);
        if (a.isEmpty())
            continue;
        const QJsonObject x = a[0].toObject();
        QCOMPARE(x[QStringLiteral("Nume")].toString(), QStringLiteral("Pop Ana"));
        QCOMPARE(x[QStringLiteral("NrDisp")].toVariant(), nrDisp);
        QCOMPARE(x[QStringLiteral("CuantumVechi")].isNull(), !inVechi);
        QCOMPARE(x[QStringLiteral("Cuantum")].isNull(), cuantumNou == 0);
        QCOMPARE(x[QStringLiteral("Stare")].toInt(), fel == QLatin1String("oprite") ? 4 : 0);
    }
    QCOMPARE(json[QStringLiteral("totaluri")][QStringLiteral("pe_tip")][QStringLiteral("2")][QStringLiteral("familii")]
                 .toInt(),
             cuantumNou ? 1 : 0);
}

void TestInchidereLuna::refuzuri_data()
{
    QTest::addColumn<QString>("inchise"); // months closed first, "L" each, of 2026
    QTest::addColumn<QString>("actiune"); // "inchide L" or "redeschide L [motiv]"
    QTest::addColumn<QString>("mesaj");
    QTest::newRow("inchisa deja") << "10"
                                  << "inchide 10"
                                  << "Luna Octombrie 2026 este deja inchisa.";
    QTest::newRow("inainte de una inchisa")
        << "10"
        << "inchide 9"
        << "Luna Septembrie 2026 nu poate fi inchisa: luna Octombrie 2026 este deja inchisa.";
    QTest::newRow("redeschisa fara motiv") << "10"
                                           << "redeschide 10" << MesajInchidere::MotivLipsa;
    QTest::newRow("redeschisa deschisa") << ""
                                         << "redeschide 10 eroare"
                                         << "Luna Octombrie 2026 nu este inchisa.";
    QTest::newRow("redeschisa inainte de una inchisa")
        << "9 10"
        << "redeschide 9 eroare"
        << "Luna Septembrie 2026 nu poate fi redeschisa: luna Octombrie 2026 este deja inchisa.";
}

void TestInchidereLuna::refuzuri()
{
    QFETCH(QString, inchise);
    QFETCH(QString, actiune);
    QFETCH(QString, mesaj);
    familie(1, 1);
    for (const QString& l : inchise.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        InchideLuna(bd(), {l.toInt(), 2026});
    const QStringList a = actiune.split(QLatin1Char(' '));
    const LunaAn l{a[1].toInt(), 2026};
    const qint64 randuri = bd().scalar(QStringLiteral("SELECT COUNT(*) FROM StatPlataLuna")).toLongLong();
    try {
        if (a[0] == QLatin1String("inchide"))
            InchideLuna(bd(), l);
        else
            RedeschideLuna(bd(), l, a.value(2));
        QFAIL("refused nothing");
    } catch (const Eroare& e) {
        QCOMPARE(e.descriere, mesaj);
    }
    QCOMPARE(bd().scalar(QStringLiteral("SELECT COUNT(*) FROM StatPlataLuna")).toLongLong(), randuri);
}

QTEST_GUILESS_MAIN(TestInchidereLuna)
#include "tst_InchidereLuna.moc"
