#include "Asteptat.h"
#include "DateTest.h"
#include "TestCuOficiu.h"
#include "common/FisiereHelper.h"
#include "common/Proces.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace DateTest;

// `alocatii-admin document` run as a process on an office, its output compared with the saved
// expected documents of tests/data/documente (./scripts/rescrie-asteptate.sh writes them anew).
class TestComandaDocument : public TestCuOficiu {
    Q_OBJECT
    // Every case runs the command on an office of its own with these rows.
    void pregatesteOficiul() override
    {
        const BD& bd = m_oficiu->bd();
        m_oficiu->scrieDatePrimarie();
        // The expected documents name this town hall, whatever the demonstration data become.
        bd.executa(QStringLiteral(
                       "UPDATE DatePrimarie SET CodFiscal = ?, Judet = ?, Localitate = ?, Primar = ?, Secretar = ?, "
                       "AsSocial = ?, TipLocalitate = 2"),
                   {"4323365", "Mures", "Tarnaveni", "Ion Exemplu", "Maria Exemplu", "Ana Exemplu"});
        // An applicant whose name needs escaping and a Romanian letter the keyboard gives.
        Dosar(bd, 1, {}, {{"Nume", QString::fromUtf8("POPESCU-\xc8\x98TEFAN")}, {"Prenume", "ION {JR}"}});
        Persoana(bd, 1, {{"MembruID", 11}, {"Nume", "POPESCU"}, {"Prenume", "ANA"}, {"CNP", "2850101260017"}},
                 {{"RudenieID", 2}, {"OcupatieID", 6}});
        Venit(bd, 1, 3, 400);
        Venit(bd, 1, 17, 50.5);
        Dispozitie(bd, 1, 1);
        Dosar(bd, 2, {{"NrCopii", 2}}, {{"Nume", "IONESCU"}, {"Prenume", "MARIA"}, {"CNP", "2800101260015"}});
        Dispozitie(bd, 2, 2, {{"NrDisp", 56}});
        Dosar(bd, 3, {}, {{"Nume", "VASILE"}, {"Prenume", "DAN"}});
        Dispozitie(bd, 3, 3, {{"NrDisp", 57}, {"Actiune", 2}, {"CuantumVechi", 20}});
    }

private slots:
    void documente_data()
    {
        QTest::addColumn<QStringList>("arg");
        QTest::addColumn<QString>("asteptat");

        QTest::newRow("dispozitie de acordare") << QStringList{"disp", "--id", "1"} << "dispozitie-acordare.rtf";
        QTest::newRow("dispozitie de modificare") << QStringList{"disp", "--id", "3"} << "dispozitie-modificare.rtf";
        QTest::newRow("declaratie") << QStringList{"declaratie", "--cerere", "1"} << "declaratie.rtf";
        QTest::newRow("fisa cu data") << QStringList{"fisa", "--cerere", "1", "--data", "07.03.2012"} << "fisa.rtf";
        // Regression: a bulk run that filled the body once repeated the first applicant on every page.
        QTest::newRow("toateDispozitiileNuRepetaPrimulText")
            << QStringList{"toate", "--tip", "1",     "--statut", "1",     "--luna", "4",
                           "--an",  "2012",  "--min", "55",       "--max", "56"}
            << "toate-doua-dispozitii.rtf";
    }

    void documente()
    {
        QFETCH(QStringList, arg);
        QFETCH(QString, asteptat);
        const QString iesire = QDir(m_iesiri.path()).filePath(asteptat);
        const Rulare r =
            ruleaza(arg + QStringList{QStringLiteral("--office"), oficiu(), QStringLiteral("--out"), iesire});
        QVERIFY2(r.cod == 0, qPrintable(r.erori));
        QVERIFY(r.erori.isEmpty());
        QFile f(iesire);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray scris = f.readAll();

        const QString diferenta = DiferentaFataDeAsteptat(QStringLiteral("documente/") + asteptat, scris);
        QVERIFY2(diferenta.isEmpty(), qPrintable(diferenta));
    }

    void setarileOficiului()
    {
        // The office folder's settings file gives StrSat and Motiv to the documents.
        const QString ini = QDir(oficiu()).filePath(QStringLiteral("setariTarnava.ini"));
        QVERIFY(FisiereHelper().ScrieIni(QStringLiteral("StrSat"), QStringLiteral("Generale"), ini,
                                         QStringLiteral("str.")));
        QVERIFY(
            FisiereHelper().ScrieIni(QStringLiteral("Motiv"), QStringLiteral("Generale"), ini, QStringLiteral("1")));
        const QString iesire = QDir(m_iesiri.path()).filePath(QStringLiteral("cu-setari.rtf"));
        const Rulare r = ruleaza({QStringLiteral("disp"), QStringLiteral("--id"), QStringLiteral("1"),
                                  QStringLiteral("--office"), oficiu(), QStringLiteral("--out"), iesire});
        FisiereHelper().ScrieIni(QStringLiteral("StrSat"), QStringLiteral("Generale"), ini, QString());
        FisiereHelper().ScrieIni(QStringLiteral("Motiv"), QStringLiteral("Generale"), ini, QString());
        QCOMPARE(r.cod, 0);
        QFile f(iesire);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray doc = f.readAll();
        QVERIFY(doc.contains("Tarnaveni, str. Florilor, nr. 12"));
    }

    void esecuri_data()
    {
        QTest::addColumn<QStringList>("arg");
        QTest::addColumn<int>("cod");
        QTest::addColumn<QString>("eroare");

        QTest::newRow("fara --id") << QStringList{"disp"} << 2 << "Optiunea --id cere un numar intreg.";
        QTest::newRow("tip necunoscut") << QStringList{"anexa"} << 2 << "Utilizare: alocatii-admin document";
        QTest::newRow("dispozitie inexistenta")
            << QStringList{"disp", "--id", "99"} << 1 << "Randul curent nu a fost gasit. Dati clic pe o Cerere!";
        QTest::newRow("cerere inexistenta")
            << QStringList{"declaratie", "--cerere", "99"} << 1 << "Randul curent nu a fost gasit. Dati clic pe Cauta!";
        QTest::newRow("data gresita") << QStringList{"fisa", "--cerere", "1", "--data", "31.02.2012"} << 2
                                      << "Optiunea --data cere o data zz.ll.aaaa.";
        QTest::newRow("nici o dispozitie in selectie")
            << QStringList{"toate", "--tip", "1",     "--statut", "1",     "--luna", "4",
                           "--an",  "2012",  "--min", "0",        "--max", "0"}
            << 1 << "Nu exista nici o dispozitie de tiparit. Faceti o alta selectie!";
    }

    void esecuri()
    {
        QFETCH(QStringList, arg);
        QFETCH(int, cod);
        QFETCH(QString, eroare);
        const QString iesire = QDir(m_iesiri.path()).filePath(QStringLiteral("esec.rtf"));
        const Rulare r =
            ruleaza(arg + QStringList{QStringLiteral("--office"), oficiu(), QStringLiteral("--out"), iesire});
        QCOMPARE(r.cod, cod);
        QVERIFY2(r.erori.contains(eroare), qPrintable(r.erori));
        QVERIFY(!QFile::exists(iesire));
    }

    // A template cut short gives the format message and no document, and the command fails.
    void sablonTaiatIeseCuEroare()
    {
        const QString cale = QDir(oficiu()).filePath(QStringLiteral("acte/declaratie.rtf"));
        QFile f(cale);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray intreg = f.readAll();
        f.close();
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(intreg.left(intreg.size() * 2 / 3));
        f.close();
        const QString iesire = QDir(m_iesiri.path()).filePath(QStringLiteral("taiat.rtf"));
        const Rulare r = ruleaza({QStringLiteral("declaratie"), QStringLiteral("--cerere"), QStringLiteral("1"),
                                  QStringLiteral("--office"), oficiu(), QStringLiteral("--out"), iesire});
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(intreg);
        f.close();
        QCOMPARE(r.cod, 1);
        QVERIFY2(r.erori.contains(QStringLiteral("Fisierul sablon are format gresit.")), qPrintable(r.erori));
        QVERIFY(!QFile::exists(iesire));
    }

    void deschisInLibreOffice()
    {
        const QString soffice = QStandardPaths::findExecutable(QStringLiteral("soffice"));
        if (soffice.isEmpty())
            QSKIP("LibreOffice (soffice) nu este instalat");
        const QString iesire = QDir(m_iesiri.path()).filePath(QStringLiteral("Disp.rtf"));
        QCOMPARE(ruleaza({QStringLiteral("disp"), QStringLiteral("--id"), QStringLiteral("1"),
                          QStringLiteral("--office"), oficiu(), QStringLiteral("--out"), iesire})
                     .cod,
                 0);
        QTemporaryDir profil;
        QProcess p;
        p.start(soffice, {QStringLiteral("-env:UserInstallation=") + QUrl::fromLocalFile(profil.path()).toString(),
                          QStringLiteral("--headless"), QStringLiteral("--convert-to"), QStringLiteral("txt:Text"),
                          QStringLiteral("--outdir"), m_iesiri.path(), iesire});
        QVERIFY(p.waitForFinished(180000));
        QFile t(QDir(m_iesiri.path()).filePath(QStringLiteral("Disp.txt")));
        QVERIFY2(t.open(QIODevice::ReadOnly), qPrintable(QString::fromLocal8Bit(p.readAllStandardError())));
        const QString text = QString::fromUtf8(t.readAll());
        for (const QString& cuvant :
             {QStringLiteral("DISPOZITIA nr. 55 din 20.03.2012"), QString::fromUtf8("POPESCU-\xc8\x98TEFAN ION {JR}"),
              QStringLiteral("Legii nr. 277/2010 privind alocatia pentru sustinerea familiei"),
              QStringLiteral("se acorda numitului"), QStringLiteral("in cuantum de 30 lei lunar"),
              QStringLiteral("Ion Exemplu"), QStringLiteral("Maria Exemplu")})
            QVERIFY2(text.contains(cuvant), qPrintable(cuvant));
        QVERIFY(!text.contains(QLatin1Char('#')));
    }

private:
    QTemporaryDir m_iesiri;
    struct Rulare {
        int cod;
        QString iesire;
        QString erori;
    };
    Rulare ruleaza(const QStringList& arg) const;
    QString oficiu() const { return m_oficiu->folderOficiu(); }
};

TestComandaDocument::Rulare TestComandaDocument::ruleaza(const QStringList& arg) const
{
    QProcess p;
    p.start(QStringLiteral(ALOCATII_ADMIN), QStringList{QStringLiteral("document")} + arg);
    if (!p.waitForFinished(60000))
        return {-1, {}, QStringLiteral("nu s-a terminat")};
    return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
}

QTEST_GUILESS_MAIN(TestComandaDocument)
#include "tst_ComandaDocument.moc"
