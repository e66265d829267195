#include "DateTest.h"
#include "TestCuOficiu.h"
#include "documents/DocumentDispozitie.h"
#include "documents/SablonRtf.h"
#include "common/Proces.h"
#include "common/Setari.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

using namespace DateTest;

// The disposition: every marker with its special values, the scale lookup, the six templates
// of the office, and the ways the document stops.
class TestDocumentDispozitie : public TestCuOficiu {
    Q_OBJECT
public:
    TestDocumentDispozitie() : TestCuOficiu(Oficiu::PeClasa) {}

    void pregatesteOficiul() override { m_oficiu->scrieDatePrimarie(); }

private slots:
    void marcaje_data()
    {
        QTest::addColumn<QByteArray>("marcaj");
        QTest::addColumn<QVariantMap>("cerere");
        QTest::addColumn<QVariantMap>("dispozitie");
        QTest::addColumn<QVariantMap>("titular");
        QTest::addColumn<QVariantMap>("familie");
        QTest::addColumn<QVariantMap>("primarie");
        QTest::addColumn<int>("motiv");      // the setting Motiv
        QTest::addColumn<QString>("strSat"); // the setting StrSat
        QTest::addColumn<QString>("asteptat");

        const QVariantMap n;
        auto rand = [&](const char* nume, const char* marcaj, const QString& asteptat, QVariantMap c = {},
                        QVariantMap d = {}, QVariantMap t = {}, QVariantMap f = {}, QVariantMap p = {}, int motiv = 0,
                        QString strSat = QString()) {
            QTest::newRow(nume) << QByteArray(marcaj) << c << d << t << f << p << motiv << strSat << asteptat;
        };
        rand("Judet", "#Judet#", "Mures");
        rand("COD sters mereu", "[#COD#]", "[]");
        rand("CodFiscal", "#CodFiscal#", "4323365");
        rand("CodFiscal null: gol", "[#CodFiscal#]", "[]", n, n, n, n, {{"CodFiscal", Null}});
        rand("TipLoc 1 comuna", "#TipLoc#", "comuna", n, n, n, n, {{"TipLocalitate", 1}});
        rand("TipLoc 3 municipiul", "#TipLoc#", "municipiul", n, n, n, n, {{"TipLocalitate", 3}});
        rand("TipLoc null gol", "[#TipLoc#]", "[]", n, n, n, n, {{"TipLocalitate", Null}});
        rand("TipLoc 4 ramane vizibil", "#TipLoc#", "#TipLoc#", n, n, n, n, {{"TipLocalitate", 4}});
        rand("NrC", "#NrC#", "101");
        rand("DataC", "#DataC#", "05.03.2012");
        rand("tip 1", "#tip#", "complementara");
        rand("tip 2", "#tip#", "monoparentala", {{"TipCerere", 2}});
        rand("tip 3 ramane", "#tip#", "#tip#", {{"TipCerere", 3}});
        rand("NrCopii", "#NrCopii#", "3", {{"NrCopii", 3}});
        rand("copii 0", "#copii#", "copii", {{"NrCopii", 0}});
        rand("copil 1", "#copii#", "copil", {{"NrCopii", 1}});
        rand("Nr", "#Nr#", "55");
        rand("Nr 0: puncte", "#Nr#", ".......", n, {{"NrDisp", 0}});
        rand("Nr null: aceleasi puncte", "#Nr#", ".......", n, {{"NrDisp", Null}});
        rand("DataDisp", "#DataDisp#", "20.03.2012");
        rand("DataDisp null: puncte", "#DataDisp#", "..................", n, {{"DataDisp", Null}});
        rand("DinData null: gol", "[#DinData#]", "[]", n, {{"DinData", Null}});
        rand("suma", "#suma#", "123.5", n, {{"Cuantum", 123.5}});
        rand("sumav", "#sumav#", "80", n, {{"Actiune", 2}, {"CuantumVechi", 80}});
        rand("Motiv din dispozitie", "#Motiv#", "motivul dispozitiei");
        rand("Motiv din cerere cu setarea", "#Motiv#", "motivul cererii", n, n, n, n, n, 1);
        rand("Motiv cu setarea si MotivStare null: gol", "[#Motiv#]", "[]", {{"MotivStare", Null}}, n, n, n, n, 1);
        rand("Nume", "#Nume#", "POPESCU ION");
        rand("sex barbat", "#sex#|#sex1#|#numit#|#numit1#", "d-lui|domnul|numitului|numitul");
        rand("sex femeie", "#sex#|#sex1#|#numit#|#numit1#", "d-nei|doamna|numitei|numita", n, n,
             {{"CNP", "2850101260017"}});
        rand("CNP", "#CNP#", "1800101260016");
        rand("Adresa intreaga", "#Adresa#", "Tarnaveni, str. Florilor, nr. 12, sc. B, ap. 4", n, n, n, n, n, 0,
             QStringLiteral("str."));
        rand("Adresa fara strada si scara", "#Adresa#", "Tarnaveni, nr. 12, ap. 4", n, n, n,
             {{"Strada", ""}, {"Sc", Null}}, n, 0, QStringLiteral("sat"));
        rand("Adresa fara localitate", "#Adresa#", ", sat Lunca, nr. 12, sc. B, ap. 4", n, n, n,
             {{"Localitate", Null}, {"Strada", "Lunca"}}, n, 0, QStringLiteral("sat"));
        rand("JudetD", "#JudetD#", "Alba", n, n, n, {{"Judet", "Alba"}});
        rand("marcaj strain ramane", "#Altceva#", "#Altceva#");
    }

    void marcaje()
    {
        QFETCH(QByteArray, marcaj);
        QFETCH(QVariantMap, cerere);
        QFETCH(QVariantMap, dispozitie);
        QFETCH(QVariantMap, titular);
        QFETCH(QVariantMap, familie);
        QFETCH(QVariantMap, primarie);
        QFETCH(int, motiv);
        QFETCH(QString, strSat);
        QFETCH(QString, asteptat);

        for (auto it = primarie.cbegin(); it != primarie.cend(); ++it)
            bd().executa(QStringLiteral("UPDATE DatePrimarie SET %1 = ?").arg(it.key()), {it.value()});
        Dosar(bd(), 1, cerere, titular, familie);
        Dispozitie(bd(), 1, 1, dispozitie);
        Setari s;
        s.Motiv = motiv;
        s.StrSat = strSat;
        MesajeScript m;
        QByteArray corp = marcaj;
        QVERIFY(CompleteazaDispozitia(1, corp, s, bd()));
        QCOMPARE(QString::fromLatin1(corp), asteptat);
        QCOMPARE(m.texte(), QStringList());
    }

    void cnpIncepandCu5PrimesteCuvinteleDeFemeie()
    {
        // The words look for the digit 1 alone: a man born after 1999 is addressed as a woman.
        Dosar(bd(), 1, {}, {{"CNP", "5000101260011"}});
        Dispozitie(bd(), 1, 1);
        MesajeScript m;
        QByteArray corp("#sex#|#sex1#|#numit#|#numit1#");
        QVERIFY(CompleteazaDispozitia(1, corp, Setari{}, bd()));
        QCOMPARE(QString::fromLatin1(corp), QStringLiteral("d-nei|doamna|numitei|numita"));
    }

    void barem_data()
    {
        QTest::addColumn<int>("tip");
        QTest::addColumn<int>("nrCopii");
        QTest::addColumn<double>("venit");
        QTest::addColumn<QString>("barem");

        // The 2012 scale: fractions of the reference value by type, children and income tier.
        QTest::newRow("cuplu, 1 copil, sub 200") << 1 << 1 << 150.0 << "0.06";
        QTest::newRow("cuplu, 2 copii, 199.99") << 1 << 2 << 199.99 << "0.12";
        QTest::newRow("cuplu, 1 copil, 200 e treapta a doua") << 1 << 1 << 200.0 << "0.05";
        QTest::newRow("cuplu, 4 copii") << 1 << 4 << 100.0 << "0.24";
        QTest::newRow("cuplu, 5 copii citeste randul pentru 4") << 1 << 5 << 100.0 << "0.24";
        QTest::newRow("monoparental, 4 copii, treapta a doua") << 2 << 4 << 300.0 << "0.36";
    }

    void barem()
    {
        QFETCH(int, tip);
        QFETCH(int, nrCopii);
        QFETCH(double, venit);
        QFETCH(QString, barem);
        Dosar(bd(), 1, {{"TipCerere", tip}, {"NrCopii", nrCopii}, {"VenitpeMembru", venit}});
        Dispozitie(bd(), 1, 1);
        MesajeScript m;
        QByteArray corp("#barem#");
        QVERIFY(CompleteazaDispozitia(1, corp, Setari{}, bd()));
        QCOMPARE(QString::fromLatin1(corp), barem);
    }

    void venitPeste370SpuneSiCiteestePrimulRand()
    {
        // Without the income tier (and the type) the first 2012 row for the children fills the marker.
        Dosar(bd(), 1, {{"TipCerere", 2}, {"NrCopii", 1}, {"VenitpeMembru", 370}});
        Dispozitie(bd(), 1, 1);
        MesajeScript m;
        QByteArray corp("#barem#");
        QVERIFY(CompleteazaDispozitia(1, corp, Setari{}, bd()));
        QCOMPARE(m.texte(), QStringList{QStringLiteral("eroare la VenitpeMembru in Cereri")});
        const QString primul =
            bd().scalar(QStringLiteral("SELECT Barem FROM Barem WHERE NrPers = 1 AND DataInceput = '2012-01-01'"))
                .toString();
        QCOMPARE(QString::fromLatin1(corp), primul);
    }

    void sabloaneleOficiului_data()
    {
        QTest::addColumn<int>("actiune");
        QTest::addColumn<QString>("sablon");
        QTest::addColumn<QString>("cuvant"); // what the decision says
        QTest::newRow("acordare") << 1 << "acordare.rtf"
                                  << "se acorda numitului POPESCU ION";
        QTest::newRow("modificare") << 2 << "modificare.rtf"
                                    << "se modifica de la 80 lei la 30 lei";
        QTest::newRow("suspendare") << 3 << "suspendare.rtf"
                                    << "se suspenda plata";
        QTest::newRow("respingere") << 4 << "respingere.rtf"
                                    << "Se respinge cererea nr. 101 din 05.03.2012";
        QTest::newRow("incetare") << 5 << "incetare.rtf"
                                  << "inceteaza dreptul numitului POPESCU ION";
        QTest::newRow("reluare") << 6 << "reluare.rtf"
                                 << "se reia plata";
    }

    void sabloaneleOficiului()
    {
        QFETCH(int, actiune);
        QFETCH(QString, sablon);
        QFETCH(QString, cuvant);
        QCOMPARE(NumeSablonDispozitie(actiune), sablon);
        Dosar(bd(), 1);
        Dispozitie(bd(), 1, 1, {{"Actiune", actiune}, {"CuantumVechi", 80}});
        MesajeScript m;
        const std::optional<QByteArray> doc = DocumentulDispozitiei(1, Setari{}, bd());
        QVERIFY(doc);
        QCOMPARE(m.texte(), QStringList());
        // Nothing of a marker is left, the groups are closed, and the decision reads as it should.
        const QRegularExpression marcaj(QStringLiteral("#[A-Za-z0-9]+#"));
        QVERIFY2(!marcaj.match(QString::fromLatin1(*doc)).hasMatch(),
                 qPrintable(marcaj.match(QString::fromLatin1(*doc)).captured()));
        QVERIFY(doc->startsWith("{\\rtf1"));
        QVERIFY(doc->endsWith("\\par\r\n}"));
        QVERIFY(QString::fromLatin1(*doc).contains(cuvant));
        QVERIFY(doc->contains("DISPOZITIA nr. 55 din 20.03.2012"));
        QVERIFY(doc->contains("Legii nr. 277/2010 privind alocatia pentru sustinerea familiei, republicata"));
        QVERIFY(doc->contains("Ion Exemplu") && doc->contains("Maria Exemplu"));
    }

    void sabloaneleAuToateMarcajele()
    {
        // Between them the six templates show every marker of a disposition, and each its heading.
        const QStringList toate{"#Judet#",  "#COD#",      "#CodFiscal#", "#Localitate#", "#Primar#",  "#secretar#",
                                "#TipLoc#", "#NrC#",      "#DataC#",     "#tip#",        "#NrCopii#", "#copii#",
                                "#Nr#",     "#DataDisp#", "#DinData#",   "#suma#",       "#sumav#",   "#barem#",
                                "#Motiv#",  "#Nume#",     "#sex#",       "#sex1#",       "#numit#",   "#numit1#",
                                "#CNP#",    "#Adresa#",   "#JudetD#"};
        const QStringList antet{"#Judet#",  "#Localitate#", "#CodFiscal#", "#Nr#",  "#DataDisp#",
                                "#Primar#", "#secretar#",   "#Nume#",      "#CNP#", "#Adresa#"};
        QString impreuna;
        for (int a = 1; a <= 6; ++a) {
            QFile f(CaleSablon(NumeSablonDispozitie(a)));
            QVERIFY(f.open(QIODevice::ReadOnly));
            const QString text = QString::fromLatin1(f.readAll());
            for (const QString& m : antet)
                QVERIFY2(text.contains(m), qPrintable(f.fileName() + QLatin1Char(' ') + m));
            impreuna += text;
        }
        for (const QString& m : toate)
            QVERIFY2(impreuna.contains(m), qPrintable(m));
    }

    void opriri_data()
    {
        QTest::addColumn<QString>("sql"); // what goes wrong before the document
        QTest::addColumn<QString>("mesaj");

        QTest::newRow("fara datele primariei") << "DELETE FROM DatePrimarie"
                                               << "Introduceti mai intai datele primariei!";
        QTest::newRow("fara randul de barem") << "DELETE FROM Barem"
                                              << "Eroare: 3021 Nu exista un rand in Barem pentru 1 copii";
        QTest::newRow("NrCerere null") << "UPDATE Cereri SET NrCerere = NULL"
                                       << "Eroare: 94 Campul Cereri.NrCerere nu are valoare";
        QTest::newRow("titularul sters") << "DELETE FROM Membrii"
                                         << "Eroare: 3021 Titularul cererii (MembruID 10) nu a fost gasit";
        QTest::newRow("dispozitia stearsa") << "DELETE FROM Dispozitii"
                                            << "Randul curent nu a fost gasit. Dati clic pe o Cerere!";
    }

    void opriri()
    {
        QFETCH(QString, sql);
        QFETCH(QString, mesaj);
        Dosar(bd(), 1);
        Dispozitie(bd(), 1, 1);
        bd().executa(sql);
        MesajeScript m;
        QVERIFY(!DocumentulDispozitiei(1, Setari{}, bd()));
        QCOMPARE(m.texte(), QStringList{mesaj});
    }

    void actiuneNecunoscutaTace()
    {
        Dosar(bd(), 1);
        Dispozitie(bd(), 1, 1, {{"Actiune", 7}});
        MesajeScript m;
        QVERIFY(!DocumentulDispozitiei(1, Setari{}, bd()));
        QCOMPARE(m.texte(), QStringList());
        QCOMPARE(NumeSablonDispozitie(0), QString());
    }
};

QTEST_GUILESS_MAIN(TestDocumentDispozitie)
#include "tst_DocumentDispozitie.moc"
