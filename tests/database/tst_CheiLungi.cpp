// The keys of the cases were 16-bit numbers: the upgrade of an office of those days gives them
// 32 bits, with every row the office held, on a file and on a server, and the office goes on
// past the 32,767th family.
#include "DateTest.h"
#include "TestCuOficiu.h"
#include "forms/SuprafataInregistrata.h"

#include "applications/SalveazaCerere.h"
#include "common/Ceas.h"
#include "common/Proces.h"
#include "database/ActualizareBD.h"
#include "database/BD.h"
#include "database/DefinitiiBD.h"
#include "database/Schema.h"
#include "documents/DocumentDispozitie.h"
#include "documents/DocumenteCerere.h"
#include "forms/Formular.h"
#include "reports/Borderou.h"
#include "reports/InchidereLuna.h"

#include <QJsonArray>
#include <QtTest>

namespace {

const QStringList Chei{QStringLiteral("CerereID"), QStringLiteral("FamilieID"), QStringLiteral("MembruID"),
                       QStringLiteral("MembruID1"), QStringLiteral("MembruID2")};

// Every column of the schema that holds a key of a case, as "Tabela.Coloana".
QStringList coloaneCheie()
{
    QStringList l;
    for (const Tabela& t : TabeleOficiu())
        for (const Camp& c : t.campuri)
            if (Chei.contains(c.nume))
                l << t.nume + QLatin1Char('.') + c.nume;
    return l;
}

// The type of a column as the engine's own catalogue names it, in lower case.
QString tipInBaza(const BD& bd, const QString& tabela, const QString& coloana)
{
    if (bd.motor() == BD::Motor::SQLite)
        return bd
            .scalar(QStringLiteral("SELECT lower(type) FROM pragma_table_info(?) WHERE lower(name) = lower(?)"),
                    {tabela, coloana})
            .toString();
    return bd
        .scalar(QStringLiteral("SELECT data_type FROM information_schema.columns WHERE table_schema = current_schema() "
                               "AND table_name = lower(?) AND column_name = lower(?)"),
                {tabela, coloana})
        .toString();
}

// Every row of every table that holds a key, as text, in a fixed order.
QStringList continut(const BD& bd)
{
    QStringList rez;
    for (const Tabela& t : TabeleOficiu()) {
        bool cuCheie = false;
        for (const Camp& c : t.campuri)
            cuCheie = cuCheie || Chei.contains(c.nume);
        if (!cuCheie)
            continue;
        QStringList coloane;
        for (const Camp& c : t.campuri)
            coloane << c.nume;
        Rezultat r = bd.selecteaza(
            QStringLiteral("SELECT %1 FROM %2 ORDER BY %1").arg(coloane.join(QStringLiteral(", ")), t.nume));
        while (r.next()) {
            QStringList valori;
            for (int i = 0; i < coloane.size(); ++i)
                valori << (r.valoare(i).isNull() ? QStringLiteral("NULL") : r.valoare(i).toString());
            rez << t.nume + QStringLiteral(": ") + valori.join(QLatin1Char('|'));
        }
    }
    return rez;
}

} // namespace

class TestCheiLungi : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override { Ceas::seteazaAzi(QDate(2026, 3, 10)); }

    // The office of those days: its last application is the 32,767th, with a person of the
    // same number, its incomes, a disposition, an inquiry, a certificate and a second
    // application of a family of its own; every key column a 16-bit number.
    void oficiuPe16Biti()
    {
        DateTest::Dosar(bd(), 32766, {}, {{"MembruID", 32766}, {"CNP", "1800101260016"}});
        DateTest::Dosar(bd(), 32767, {{"Stare", 3}}, {{"MembruID", 32767}, {"CNP", "2800101260015"}});
        DateTest::Persoana(bd(), 32767, {{"MembruID", 32765}, {"CNP", DateTest::CNPNascut(QDate(2015, 4, 4))}});
        DateTest::Venit(bd(), 32767, 4, 450.5);
        DateTest::Rand(bd(), QStringLiteral("Locuinte"), {{"CerereID", 32767}, {"Cod", 1}, {"NrCamere", 2}});
        DateTest::Dispozitie(bd(), 1, 32767);
        DateTest::Ancheta(bd(), 1, 32767);
        DateTest::Rand(bd(), QStringLiteral("Adeverinte"),
                       {{"AdevID", 1}, {"CerereID", 32767}, {"MembruID", 32765}, {"TipAdeverinta", 3}});
        DateTest::Rand(bd(), QStringLiteral("IstoricCereri"),
                       {{"IstoricID", 1}, {"CerereID", 32767}, {"Tranzactie", 3}, {"DataTranzactie", "2012-03-05"}});

        const PauzaCheiStraine pauza(bd());
        Tranzactie t(bd());
        DefinitiiBD def(bd());
        for (const Tabela& tab : TabeleOficiu()) {
            std::vector<Camp> scurte;
            for (const Camp& c : tab.campuri)
                if (Chei.contains(c.nume))
                    scurte.push_back({c.nume, TipCamp::Octet});
            def.SchimbaTipuri(tab.nume, scurte);
        }
        t.confirma();
    }

private slots:
    void cheiPe16BitiDevin32()
    {
        oficiuPe16Biti();
        for (const QString& c : coloaneCheie())
            QCOMPARE(tipInBaza(bd(), c.section(QLatin1Char('.'), 0, 0), c.section(QLatin1Char('.'), 1)),
                     QStringLiteral("smallint"));
        const QStringList inainte = continut(bd());
        QCOMPARE(inainte.size(), 16);

        ActualizeazaBD(bd(), m_oficiu->folderOficiu());
        QCOMPARE(m_mesaje->texte(), QStringList());
        const QString lung = bd().motor() == BD::Motor::SQLite ? QStringLiteral("integer") : QStringLiteral("bigint");
        for (const QString& c : coloaneCheie())
            QCOMPARE(tipInBaza(bd(), c.section(QLatin1Char('.'), 0, 0), c.section(QLatin1Char('.'), 1)), lung);
        QCOMPARE(continut(bd()), inainte);

        // The relations still hold: a family that goes takes its application's rows with it.
        bd().executa(QStringLiteral("DELETE FROM Familii WHERE FamilieID = 32766"));
        QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("CereriMembrii")), qint64(2));

        // The next family is the 32,768th, and so is its application; its persons follow 32,767.
        Cerere c = DateTest::Familie(1, Lei(500), 1, 5);
        OptiuniSalvare o = OptiuniSalvare::dinProces();
        o.anActiv = 2026;
        const RezultatSalvare s = SalveazaCerere(bd(), c, o);
        QVERIFY2(s.salvat(), qPrintable(s.mesaj));
        QCOMPARE(s.cerereId, qint64(32768));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT FamilieID FROM Cereri WHERE CerereID = 32768")).toLongLong(),
                 qint64(32768));
        QCOMPARE(bd().scalar(QStringLiteral("SELECT MAX(MembruID) FROM Membrii")).toLongLong(), qint64(32770));

        // A second run finds nothing to do.
        const QStringList dupa = continut(bd());
        ActualizeazaBD(bd(), m_oficiu->folderOficiu());
        QCOMPARE(m_mesaje->texte(), QStringList());
        QCOMPARE(continut(bd()), dupa);
    }

    // An office of a decade: an application, its family and its titular under the key 123456,
    // numbered 123456 as such an office numbers them. The form, the documents and the reports
    // find it by its key and print its number whole; the month's payroll names it by its key.
    void cheieDeSaseCifreTiparitaIntreaga()
    {
        const QString cnp = QStringLiteral("1800517260011");
        m_oficiu->scrieDatePrimarie();
        DateTest::DosarCompletat(bd(), cnp, 123456);
        bd().executa(QStringLiteral("UPDATE Cereri SET NrCerere = 123456, Stare = 2, Cuantum = 30, NrMembrii = 2, "
                                    "NrCopii = 1, VenitTotal = 300, VenitpeMembru = 150 WHERE CerereID = 123456"));
        DateTest::Dispozitie(bd(), 1, 123456);

        // The form: the number in its place, the titular's CNP in its boxes.
        SuprafataInregistrata s;
        DeseneazaPagina(s, FormularCerere, 0, ModCompletat, {&bd(), 123456});
        QCOMPARE(s.textLa(25 + 14, 10 + 20), QStringList{QStringLiteral("123456")});
        QCOMPARE(s.randLa(25 + 14, 10 + 78.2), cnp);

        // The documents: the disposition and the declaration of the application.
        const std::optional<QByteArray> dispozitie = DocumentulDispozitiei(1, Proces::setari(), bd());
        QVERIFY2(m_mesaje->texte().isEmpty(), qPrintable(m_mesaje->texte().join(QLatin1Char('\n'))));
        QVERIFY(dispozitie);
        QVERIFY(dispozitie->contains("123456"));
        QVERIFY(dispozitie->contains(cnp.toLatin1()));
        const std::optional<QByteArray> declaratie = DocumentulDeclaratiei(123456, Proces::setari(), bd());
        QVERIFY(declaratie);
        QVERIFY(declaratie->contains("POP ION"));

        // The reports: the borderou's row, the payroll's difference with its key.
        ReportGrid g;
        SelectieRaport sel;
        sel.index = 1;
        ConstruiesteBorderou(bd(), sel, g);
        QCOMPARE(g.CellText(9, 2), QStringLiteral("123456 / 09.03.2026  "));
        QCOMPARE(g.CellText(9, 4), cnp);
        const QJsonObject diferenta = DiferentaJson(Diferenta(bd(), {3, 2026}));
        const QJsonObject noua = diferenta[QStringLiteral("noi")].toArray().first().toObject();
        QCOMPARE(noua[QStringLiteral("CerereID")].toInteger(), qint64(123456));
        QCOMPARE(noua[QStringLiteral("NrCerere")].toInteger(), qint64(123456));
    }
};

QTEST_GUILESS_MAIN(TestCheiLungi)
#include "tst_CheiLungi.moc"
