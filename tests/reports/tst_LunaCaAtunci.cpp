#include "DateTest.h"
#include "TestCuOficiu.h"

#include "amounts/Cuantum.h"
#include "applications/IncarcaCerere.h"
#include "applications/SalveazaCerere.h"
#include "common/Ceas.h"
#include "common/Eroare.h"
#include "decisions/Dispozitie.h"
#include "history/JurnalLuni.h"
#include "history/StareInLuna.h"
#include "reports/InchidereLuna.h"
#include "reports/PlatiFamilie.h"
#include "reports/RandareGrid.h"
#include "reports/ReportGrid.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// The month as it was: a small office lives through August to November 2026 (grants, a change
// of amount, a suspension made in the editor and by a disposition, a resumption, an ending, an
// application registered late), and each month's payroll is exactly the families and amounts
// in effect then, asked in that month or afterwards; months close in order, the journal keeps
// every close and reopening, and a family's payments are the rows its closed months froze.
class TestLunaCaAtunci : public TestCuOficiu {
    Q_OBJECT
private slots:
    void statulFiecareiLuni_data();
    void statulFiecareiLuni();
    void diferentaDinIstoric();
    void ordineaInchiderii_data();
    void ordineaInchiderii();
    void jurnalulPastreazaFiecareRedeschidere();
    void platileFamiliei();
    void platileUnuiAnPeOPagina();
    void cerereFaraIstoricSeReconstituie();

protected:
    void pregateste() override
    {
        m_oficiu->scrieDatePrimarie();
        m_cereri.clear();
        m_pas = QDate();
    }

private:
    // The office's story up to and including the day `pana`; each step on its day.
    void poveste(const QDate& pana);
    qint64 inregistreaza(const QDate& zi, int serie, int copii);
    void dispozitie(const char* cerere, int nr, int luna, int actiune, const QString& suma,
                    const QString& sumaNoua = {});
    // "A:60:2 B:30:1" of a payroll: each family, its amount and its children.
    QString text(const std::vector<RandStat>& stat) const;
    QHash<QString, qint64> m_cereri;
    QDate m_pas; // the last day the story reached
};

qint64 TestLunaCaAtunci::inregistreaza(const QDate& zi, int serie, int copii)
{
    Cerere c = DateTest::Familie(copii, Lei(500), 1, serie);
    c.DataCerere = zi;
    c.DataStare = zi;
    return ScrieCerere(bd(), c, zi.year());
}

void TestLunaCaAtunci::dispozitie(const char* cerere, int nr, int luna, int actiune, const QString& suma,
                                  const QString& sumaNoua)
{
    DateTest::DispozitieSalvata(bd(), m_cereri.value(QLatin1String(cerere)), nr, luna, actiune, suma, sumaNoua);
}

void TestLunaCaAtunci::poveste(const QDate& pana)
{
    struct Pas {
        QDate zi;
        std::function<void()> fa;
    };
    const std::vector<Pas> pasi{
        {QDate(2026, 8, 3), [&] { m_cereri[QStringLiteral("C")] = inregistreaza(Ceas::azi(), 3, 2); }},
        {QDate(2026, 8, 5), [&] { m_cereri[QStringLiteral("A")] = inregistreaza(Ceas::azi(), 1, 2); }},
        {QDate(2026, 8, 10), [&] { m_cereri[QStringLiteral("B")] = inregistreaza(Ceas::azi(), 2, 1); }},
        {QDate(2026, 8, 12),
         [&] {
             dispozitie("A", 1, 8, 1, QStringLiteral("60"));
             dispozitie("B", 2, 8, 1, QStringLiteral("30"));
             dispozitie("C", 3, 8, 1, QStringLiteral("40"));
         }},
        // B is suspended from September: first in the editor, with the status date, then by
        // its disposition.
        {QDate(2026, 9, 3),
         [&] {
             Cerere b = IncarcaCerere(bd(), m_cereri.value(QStringLiteral("B")));
             b.Adaug = 2;
             b.Stare = 3;
             b.DataStare = QDate(2026, 9, 1);
             ScrieCerere(bd(), b, 2026);
             dispozitie("B", 4, 9, 3, QStringLiteral("30"));
         }},
        // A has a third child in October, and its amount changes by a disposition.
        {QDate(2026, 10, 2),
         [&] {
             Cerere a = IncarcaCerere(bd(), m_cereri.value(QStringLiteral("A")));
             a.Adaug = 2;
             a.Membrii.push_back(DateTest::MembruCopil(QDate(2026, 9, 20), 190));
             a.NrCopii = QStringLiteral("3");
             RecalculVenitPeMembru(a);
             ScrieCerere(bd(), a, 2026);
             dispozitie("A", 5, 10, 2, QStringLiteral("60"), QStringLiteral("50"));
             dispozitie("B", 6, 10, 6, QStringLiteral("30"));
             dispozitie("C", 7, 10, 5, QStringLiteral("40"));
         }},
        // Filed on 7 November, put in payment on the 20th.
        {QDate(2026, 11, 7), [&] { m_cereri[QStringLiteral("D")] = inregistreaza(Ceas::azi(), 4, 3); }},
        {QDate(2026, 11, 20), [&] { dispozitie("D", 8, 11, 1, QStringLiteral("45")); }},
    };
    for (const Pas& p : pasi) {
        if (p.zi <= m_pas || p.zi > pana)
            continue;
        Ceas::seteazaAzi(p.zi);
        p.fa();
        m_pas = p.zi;
    }
    Ceas::seteazaAzi(pana);
}

QString TestLunaCaAtunci::text(const std::vector<RandStat>& stat) const
{
    QStringList t;
    for (const RandStat& r : stat)
        t << QStringLiteral("%1:%2:%3").arg(m_cereri.key(r.cerereId), r.cuantum.text()).arg(r.nrCopii);
    t.sort();
    return t.join(QLatin1Char(' '));
}

void TestLunaCaAtunci::statulFiecareiLuni_data()
{
    QTest::addColumn<int>("luna");
    QTest::addColumn<QString>("stat");
    QTest::newRow("iulie: nimic inca") << 7 << "";
    QTest::newRow("august: trei acordari") << 8 << "A:60:2 B:30:1 C:40:2";
    QTest::newRow("septembrie: B suspendata") << 9 << "A:60:2 C:40:2";
    QTest::newRow("octombrie: A modificata, B reluata, C incetata") << 10 << "A:50:3 B:30:1";
    QTest::newRow("noiembrie: D inregistrata tarziu") << 11 << "A:50:3 B:30:1 D:45:3";
}

void TestLunaCaAtunci::statulFiecareiLuni()
{
    QFETCH(int, luna);
    QFETCH(QString, stat);
    const LunaAn l{luna, 2026};
    // Asked in the month itself, on its 25th ...
    poveste(QDate(2026, luna, 25));
    QCOMPARE(text(StatPlataCalculat(bd(), l)), stat);
    // ... and once the story has gone on past it.
    poveste(QDate(2026, 12, 1));
    QCOMPARE(text(StatPlataCalculat(bd(), l)), stat);
    // Every family has its history from its application: nothing was reconstructed.
    for (const RandStat& r : StatPlataCalculat(bd(), l))
        QVERIFY(!r.reconstituit);
}

void TestLunaCaAtunci::diferentaDinIstoric()
{
    poveste(QDate(2026, 12, 1));
    InchideLuna(bd(), {9, 2026});
    // October against the closed September: B back, C stopped by its ending, A changed.
    const DiferentaLuna d = Diferenta(bd(), {10, 2026});
    QCOMPARE(d.noi.size(), size_t(1));
    QCOMPARE(d.noi[0].cerereId, m_cereri.value(QStringLiteral("B")));
    QCOMPARE(d.noi[0].nrDisp, std::optional<double>(6));
    QCOMPARE(d.oprite.size(), size_t(1));
    QCOMPARE(d.oprite[0].cerereId, m_cereri.value(QStringLiteral("C")));
    QCOMPARE(d.oprite[0].stare, std::optional<int>(4));
    QCOMPARE(d.oprite[0].nrDisp, std::optional<double>(7));
    QCOMPARE(d.modificate.size(), size_t(1));
    QCOMPARE(d.modificate[0].cuantum, std::optional<Bani>(Lei(50)));
    QCOMPARE(d.totaluri.toate.suma, Lei(80));
    QCOMPARE(d.reconstituite, 0);
    QVERIFY(TextReconstituite(d).isEmpty());
}

void TestLunaCaAtunci::ordineaInchiderii_data()
{
    QTest::addColumn<QString>("inchise"); // months of 2026 closed first, in that order
    QTest::addColumn<QString>("actiune"); // "inchide L" or "redeschide L"
    QTest::addColumn<QString>("mesaj");   // "" when it goes through
    QTest::newRow("prima inchidere, oricare luna inceputa") << ""
                                                            << "inchide 8"
                                                            << "";
    QTest::newRow("luna urmatoare") << "8"
                                    << "inchide 9"
                                    << "";
    QTest::newRow("luna in curs") << "8 9 10"
                                  << "inchide 11"
                                  << "";
    QTest::newRow("o luna care nu a inceput") << ""
                                              << "inchide 12"
                                              << "Luna Decembrie 2026 nu a inceput inca: nu poate fi inchisa.";
    QTest::newRow("peste o luna")
        << "8"
        << "inchide 10"
        << "Luna Octombrie 2026 nu poate fi inchisa: lunile se inchid in ordine, iar dupa August 2026, ultima luna "
           "inchisa, urmeaza Septembrie 2026.";
    QTest::newRow("inaintea ultimei")
        << "9"
        << "inchide 8"
        << "Luna August 2026 nu poate fi inchisa: luna Septembrie 2026 este deja inchisa.";
    QTest::newRow("redeschiderea ultimei") << "8 9"
                                           << "redeschide 9"
                                           << "";
    QTest::newRow("redeschiderea uneia mai vechi")
        << "8 9"
        << "redeschide 8"
        << "Luna August 2026 nu poate fi redeschisa: luna Septembrie 2026 este inchisa dupa ea. Redeschideti mai "
           "intai lunile de dupa ea, de la ultima inapoi.";
}

void TestLunaCaAtunci::ordineaInchiderii()
{
    QFETCH(QString, inchise);
    QFETCH(QString, actiune);
    QFETCH(QString, mesaj);
    poveste(QDate(2026, 11, 25));
    for (const QString& l : inchise.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        InchideLuna(bd(), {l.toInt(), 2026});
    const QStringList a = actiune.split(QLatin1Char(' '));
    const LunaAn l{a[1].toInt(), 2026};
    const qint64 jurnal = DateTest::NumaraRanduri(bd(), QStringLiteral("JurnalLuni"));
    const qint64 stat = DateTest::NumaraRanduri(bd(), QStringLiteral("StatPlataLuna"));
    QString spus;
    try {
        if (a[0] == QLatin1String("inchide"))
            InchideLuna(bd(), l);
        else
            RedeschideLuna(bd(), l, QStringLiteral("corectura"));
    } catch (const Eroare& e) {
        spus = e.descriere;
    }
    QCOMPARE(spus, mesaj);
    // A refusal writes nothing; a close or a reopening is one more row of the journal.
    QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("JurnalLuni")), jurnal + (mesaj.isEmpty() ? 1 : 0));
    if (!mesaj.isEmpty())
        QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("StatPlataLuna")), stat);
    else
        QCOMPARE(LunaInchisa(bd(), l), a[0] == QLatin1String("inchide"));
}

void TestLunaCaAtunci::jurnalulPastreazaFiecareRedeschidere()
{
    poveste(QDate(2026, 11, 25));
    const LunaAn august{8, 2026};
    InchideLuna(bd(), august);
    RedeschideLuna(bd(), august, QStringLiteral("plata dubla"));
    InchideLuna(bd(), august);
    RedeschideLuna(bd(), august, QStringLiteral("dispozitie gresita"));
    const std::vector<RandJurnal> j = CitesteJurnal(bd(), august);
    QCOMPARE(j.size(), size_t(4));
    const FelJurnal feluri[] = {FelJurnal::Inchidere, FelJurnal::Redeschidere, FelJurnal::Inchidere,
                                FelJurnal::Redeschidere};
    for (size_t i = 0; i < j.size(); ++i) {
        QCOMPARE(j[i].fel, feluri[i]);
        QCOMPARE(j[i].data, QDate(2026, 11, 25));
        QVERIFY(!j[i].utilizator.isEmpty());
        QVERIFY(!j[i].statie.isEmpty());
        // The totals the month's payroll had: A 60 and 2 children, B 30 and 1, C 40 and 2.
        QCOMPARE(j[i].familii, 3);
        QCOMPARE(j[i].copii, 5);
        QCOMPARE(j[i].suma, Lei(130));
    }
    QCOMPARE(j[1].motiv, QStringLiteral("plata dubla"));
    QCOMPARE(j[3].motiv, QStringLiteral("dispozitie gresita"));

    // The command line prints the same journal; its system user is known also where the
    // session has no USER variable.
    QProcessEnvironment mediu = QProcessEnvironment::systemEnvironment();
    for (const char* v : {"USER", "LOGNAME", "USERNAME"})
        mediu.remove(QLatin1String(v));
    QProcess admin;
    admin.setProcessEnvironment(mediu);
    const QStringList oficiu{QStringLiteral("--office"), m_oficiu->folderOficiu()};
    admin.start(QStringLiteral(ALOCATII_ADMIN),
                QStringList{QStringLiteral("luna")} + oficiu +
                    QStringList{QStringLiteral("--luna"), QStringLiteral("8"), QStringLiteral("--an"),
                                QStringLiteral("2026"), QStringLiteral("inchide")});
    QVERIFY(admin.waitForFinished(60000));
    QCOMPARE(admin.exitCode(), 0);
    admin.start(QStringLiteral(ALOCATII_ADMIN), QStringList{QStringLiteral("luna")} + oficiu +
                                                    QStringList{QStringLiteral("jurnal"), QStringLiteral("--json")});
    QVERIFY(admin.waitForFinished(60000));
    QCOMPARE(admin.exitCode(), 0);
    const QJsonArray json = QJsonDocument::fromJson(admin.readAllStandardOutput()).array();
    QCOMPARE(json.size(), 5);
    const QJsonArray scris = JurnalJson(j);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(json[i].toObject(), scris[i].toObject());
    QVERIFY(!json[4][QStringLiteral("utilizator")].toString().isEmpty());
    QCOMPARE(json[4][QStringLiteral("fel")].toString(), QStringLiteral("inchidere"));
}

void TestLunaCaAtunci::platileFamiliei()
{
    poveste(QDate(2026, 11, 25));
    for (int l : {8, 9, 10})
        InchideLuna(bd(), {l, 2026});
    struct Asteptat {
        const char* cerere;
        QString luni; // "8:60:1 9:60:1": month, amount, disposition in effect
        int total;
    };
    for (const Asteptat& a : {Asteptat{"A", QStringLiteral("8:60:1 9:60:1 10:50:5"), 170},
                              Asteptat{"B", QStringLiteral("8:30:2 10:30:6"), 60},
                              Asteptat{"C", QStringLiteral("8:40:3 9:40:3"), 80}, Asteptat{"D", QString(), 0}}) {
        const qint64 id = m_cereri.value(QLatin1String(a.cerere));
        const PlatiFamilie p = CitestePlatiFamilie(bd(), id);
        QStringList luni;
        for (const PlataLunara& x : p.luni)
            luni << QStringLiteral("%1:%2:%3").arg(x.luna.luna).arg(x.cuantum.text()).arg(x.nrDisp.value_or(0));
        QCOMPARE(luni.join(QLatin1Char(' ')), a.luni);
        QCOMPARE(p.total, Lei(a.total));
        // They are the stored rows of the closed months, nothing recomputed.
        QCOMPARE(Bani::dinVariant(
                     bd().scalar(QStringLiteral("SELECT SUM(Cuantum) FROM StatPlataLuna WHERE CerereID = ?"), {id})),
                 p.total);
    }
    // A reopened month leaves them until it is closed again.
    RedeschideLuna(bd(), {10, 2026}, QStringLiteral("verificare"));
    QCOMPARE(CitestePlatiFamilie(bd(), m_cereri.value(QStringLiteral("A"))).total, Lei(120));
    InchideLuna(bd(), {10, 2026});

    // The command line gives the same, as JSON, for one year.
    const qint64 a = m_cereri.value(QStringLiteral("A"));
    QProcess admin;
    admin.start(QStringLiteral(ALOCATII_ADMIN),
                {QStringLiteral("luna"), QStringLiteral("--office"), m_oficiu->folderOficiu(), QStringLiteral("plati"),
                 QStringLiteral("--cerere"), QString::number(a), QStringLiteral("--an"), QStringLiteral("2026"),
                 QStringLiteral("--json")});
    QVERIFY(admin.waitForFinished(60000));
    QCOMPARE(admin.exitCode(), 0);
    const QJsonObject json = QJsonDocument::fromJson(admin.readAllStandardOutput()).object();
    QCOMPARE(json, PlatiJson(CitestePlatiFamilie(bd(), a, 2026)));
    QCOMPARE(json[QStringLiteral("total")].toString(), QStringLiteral("170.0000"));
}

void TestLunaCaAtunci::platileUnuiAnPeOPagina()
{
    // A family paid every month of a year, at the counter: one printed page.
    PlatiFamilie p;
    p.cerereId = 7;
    p.nrCerere = 107;
    p.titular = QStringLiteral("POPESCU ION");
    p.an = 2026;
    for (int l = 1; l <= 12; ++l) {
        p.luni.push_back({{l, 2026}, 2, 2, Lei(60), double(l), QDate(2026, l, 3)});
        p.total += Lei(60);
    }
    ReportGrid g;
    ConstruiestePlatiFamilie(bd(), p, g);
    QTemporaryDir dir;
    QPdfWriter pdf(dir.filePath(QStringLiteral("plati.pdf")));
    AplicaPagina(g, pdf);
    QCOMPARE(TiparesteGrid(g, pdf), 1);
    // The page names the family and the year, each month, and the total.
    QStringList celule;
    for (int r = 1; r < g.Rows(); ++r)
        for (int c = 1; c < g.Cols(); ++c)
            celule << g.CellText(r, c);
    for (const QString& t : {QStringLiteral("cererea nr. 107, titular POPESCU ION"), QStringLiteral("Anul 2026"),
                             QStringLiteral("Decembrie 2026"), QStringLiteral("Nr. 12 din 03.12.2026"),
                             QStringLiteral("TOTAL (12 luni)"), QStringLiteral("720.00")})
        QVERIFY2(celule.contains(t), qPrintable(t));
}

void TestLunaCaAtunci::cerereFaraIstoricSeReconstituie()
{
    // An application entered before the program kept histories: no row of history, a grant
    // from March, a suspension from June; its status date is that of the suspension.
    Ceas::seteazaAzi(QDate(2026, 11, 25));
    DateTest::Dosar(bd(), 1,
                    {{QStringLiteral("Stare"), 3},
                     {QStringLiteral("DataStare"), QDate(2026, 6, 10)},
                     {QStringLiteral("DataCerere"), QDate(2026, 2, 20)},
                     {QStringLiteral("NrCopii"), 1}});
    DateTest::Dispozitie(bd(), 1, 1, {{QStringLiteral("DinData"), QDate(2026, 3, 1)}, {QStringLiteral("Cuantum"), 30}});
    DateTest::Dispozitie(bd(), 2, 1,
                         {{QStringLiteral("DinData"), QDate(2026, 6, 1)},
                          {QStringLiteral("Actiune"), 3},
                          {QStringLiteral("NrDisp"), 56}});
    struct Caz {
        int luna;
        int stare; // 0: not known then
    };
    for (const Caz& c : {Caz{1, 0}, Caz{2, 0}, Caz{3, 2}, Caz{5, 2}, Caz{6, 3}, Caz{11, 3}}) {
        const auto stari = StariInLuna(bd(), {c.luna, 2026});
        QCOMPARE(stari.count(1) ? stari.at(1).stare : 0, c.stare);
        if (c.stare)
            QVERIFY(stari.at(1).reconstituita);
    }
    const DiferentaLuna d = Diferenta(bd(), {4, 2026});
    QCOMPARE(d.reconstituite, 1);
    QCOMPARE(d.totaluri.toate.suma, Lei(30));
    QCOMPARE(TextReconstituite(d), QStringLiteral("Luna reconstituita din dispozitii si DataStare pentru 1 cereri: "
                                                  "istoricul lor incepe dupa aceasta luna."));
}

QTEST_MAIN(TestLunaCaAtunci)
#include "tst_LunaCaAtunci.moc"
