#include "DateTest.h"
#include "TestCuOficiu.h"

#include "common/Ceas.h"
#include "common/Data.h"
#include "database/ActualizareBD.h"
#include "database/DefinitiiBD.h"
#include "history/IstoricCereri.h"
#include "history/JurnalLuni.h"

#include <QtTest>

// An office whose history and closed months were written before a history row carried its day
// of effect and before the month close kept a journal: the upgrade gives each old row the day
// it takes effect from (a disposition's DinData, otherwise the day written; a row that changed
// nothing stays a note), puts the old closes and reopenings into the journal, and a second
// start changes nothing more.
class TestIstoricVechi : public TestCuOficiu {
    Q_OBJECT
private slots:
    void randurileVechiPrimescZiuaEfectului();
};

void TestIstoricVechi::randurileVechiPrimescZiuaEfectului()
{
    Ceas::seteazaAzi(QDate(2026, 11, 5));
    // The history of that release had no day of effect.
    DefinitiiBD(bd()).StergeCamp(QStringLiteral("IstoricCereri"), QStringLiteral("DinData"));
    DateTest::Dosar(bd(), 1);
    DateTest::Dispozitie(bd(), 7, 1, {{QStringLiteral("DinData"), QDate(2026, 9, 1)}});
    const auto rand = [&](int id, int stareVeche, int stare, int dispozitie, const char* scris) {
        DateTest::Rand(bd(), QStringLiteral("IstoricCereri"),
                       {{QStringLiteral("IstoricID"), id},
                        {QStringLiteral("CerereID"), 1},
                        {QStringLiteral("Tranzactie"), stare},
                        {QStringLiteral("StareVeche"), stareVeche},
                        {QStringLiteral("DataTranzactie"), QDate::fromString(QLatin1String(scris), Qt::ISODate)},
                        {QStringLiteral("Cuantum"), 30},
                        {QStringLiteral("CuantumVechi"), 30},
                        {QStringLiteral("NrCopii"), 1},
                        {QStringLiteral("NrCopiiVechi"), 1},
                        {QStringLiteral("DispozitieID"), dispozitie}});
    };
    rand(1, 1, 2, 0, "2026-08-20"); // the editor
    rand(2, 2, 2, 7, "2026-10-03"); // a disposition signed in October for September
    rand(3, 2, 2, 0, "2026-10-15"); // a month reopened: nothing changed
    for (const auto& [luna, inchisa] : {std::pair{9, false}, std::pair{10, true}})
        DateTest::Rand(
            bd(), QStringLiteral("LuniInchise"),
            {{QStringLiteral("An"), 2026},
             {QStringLiteral("Luna"), luna},
             {QStringLiteral("Inchisa"), inchisa},
             {QStringLiteral("DataInchidere"), QDate(2026, luna + 1, 2)},
             {QStringLiteral("StatieInchidere"), QStringLiteral("BIROU1")},
             {QStringLiteral("UtilizatorInchidere"), QStringLiteral("ana")},
             {QStringLiteral("DataRedeschidere"), inchisa ? QVariant() : QVariant(QDate(2026, 10, 15))},
             {QStringLiteral("MotivRedeschidere"), inchisa ? QVariant() : QVariant(QStringLiteral("eroare"))}});
    DateTest::Rand(bd(), QStringLiteral("TotaluriLuna"),
                   {{QStringLiteral("An"), 2026},
                    {QStringLiteral("Luna"), 10},
                    {QStringLiteral("TipCerere"), 0},
                    {QStringLiteral("Familii"), 1},
                    {QStringLiteral("Copii"), 1},
                    {QStringLiteral("Suma"), 30}});

    for (int start = 0; start < 2; ++start) {
        ActualizeazaBD(bd(), m_oficiu->folderOficiu());
        const std::vector<RandIstoric> istoric = CitesteIstoric(bd(), 1);
        QCOMPARE(istoric.size(), size_t(3));
        QCOMPARE(istoric[0].dinData, QDate(2026, 8, 20));
        QCOMPARE(istoric[1].dinData, QDate(2026, 9, 1));
        QVERIFY(!istoric[2].dinData.isValid());
        const std::vector<RandJurnal> j = CitesteJurnal(bd());
        QCOMPARE(j.size(), size_t(3));
        QStringList t;
        for (const RandJurnal& r : j)
            t << QStringLiteral("%1 %2 %3 %4 %5")
                     .arg(r.luna.luna)
                     .arg(TextFelJurnal(r.fel), TextData(r.data), r.motiv, r.suma.text());
        QCOMPARE(t, (QStringList{"9 inchidere 02.10.2026  0", "10 inchidere 02.11.2026  30",
                                 "9 redeschidere 15.10.2026 eroare 0"}));
    }
    // Once the column is there, a start reads the history no more: a row without its day is
    // left as it is.
    bd().executa(QStringLiteral("UPDATE IstoricCereri SET DinData = NULL WHERE IstoricID = 1"));
    ActualizeazaBD(bd(), m_oficiu->folderOficiu());
    QVERIFY(!CitesteIstoric(bd(), 1)[0].dinData.isValid());
    QVERIFY(m_mesaje->intrari.isEmpty());
}

QTEST_GUILESS_MAIN(TestIstoricVechi)
#include "tst_IstoricVechi.moc"
