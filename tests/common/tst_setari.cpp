// The settings file: the INI reader and writer, and the load of the settings at start-up.
#include "MesajeScript.h"
#include "common/FisiereHelper.h"
#include "common/Ini.h"
#include "common/Proces.h"
#include "common/Setari.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray Citeste(const QString& cale)
{
    QFile f(cale);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void ScrieFisier(const QString& cale, const QByteArray& date)
{
    QFile f(cale);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(date);
}

// The keys of the file, as "Sectiune/Cheie", in order.
QStringList Chei(const QString& cale)
{
    QStringList r;
    QString sectiune;
    for (const QByteArray& linie : Citeste(cale).split('\n')) {
        const QString t = QString::fromUtf8(linie).trimmed();
        if (t.startsWith(QLatin1Char('[')))
            sectiune = t.mid(1, t.indexOf(QLatin1Char(']')) - 1);
        else if (t.contains(QLatin1Char('=')) && !t.startsWith(QLatin1Char(';')))
            r << sectiune + QLatin1Char('/') + t.left(t.indexOf(QLatin1Char('=')));
    }
    return r;
}

} // namespace

class TestSetari : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString fisier() const { return m_dir.filePath(QStringLiteral("setariTarnava.ini")); }

    Setari Incarca()
    {
        Setari s;
        IncarcaSetari(FisiereHelper(), s);
        return s;
    }

private slots:
    void init()
    {
        QVERIFY(m_dir.isValid());
        Proces::seteazaFolderProgram(m_dir.path());
        QFile::remove(fisier());
    }

    // --- the INI file ---

    void citire_data()
    {
        QTest::addColumn<QByteArray>("continut");
        QTest::addColumn<QString>("sectiune");
        QTest::addColumn<QString>("cheie");
        QTest::addColumn<QString>("asteptat");

        const QByteArray f = "; setarile statiei\r\n"
                             "[Generale]\r\n"
                             "CaleBD = C:\\Program Files\\Tarnava\r\n"
                             "gunoi fara egal\r\n"
                             "pass=abc\r\n"
                             "\r\n"
                             "[fonturi]\r\n"
                             "FONTSIZE0=12\r\n"
                             "; FontName0=comentat\r\n";
        QTest::newRow("backslash-uri pastrate") << f << "Generale"
                                                << "CaleBD"
                                                << "C:\\Program Files\\Tarnava";
        QTest::newRow("sectiune fara majuscule") << f << "generale"
                                                 << "pass"
                                                 << "abc";
        QTest::newRow("cheie in alt caz") << f << "Fonturi"
                                          << "FontSize0"
                                          << "12";
        QTest::newRow("comentariul nu e cheie") << f << "Fonturi"
                                                << "FontName0"
                                                << "";
        QTest::newRow("cheia altei sectiuni") << f << "Fonturi"
                                              << "pass"
                                              << "";
        QTest::newRow("sectiune lipsa") << f << "Setari"
                                        << "LunaSetata"
                                        << "";
        QTest::newRow("linia stricata sarita") << f << "Generale"
                                               << "gunoi fara egal"
                                               << "";
        QTest::newRow("terminatii unix") << QByteArray("[A]\nk=v\n") << "A"
                                         << "k"
                                         << "v";
        QTest::newRow("fisier gol") << QByteArray() << "A"
                                    << "k"
                                    << "";
    }
    void citire()
    {
        QFETCH(QByteArray, continut);
        QFETCH(QString, sectiune);
        QFETCH(QString, cheie);
        QFETCH(QString, asteptat);
        ScrieFisier(fisier(), continut);
        QCOMPARE(FisierIni(fisier()).citeste(sectiune, cheie), asteptat);
    }

    void fisierLipsaDaTextGol()
    {
        QCOMPARE(FisiereHelper().CitesteIni(QStringLiteral("CaleBD"), QStringLiteral("Generale"), fisier()), QString());
        QVERIFY(!QFile::exists(fisier()));
    }

    void rescriereaPastreazaRestul()
    {
        ScrieFisier(
            fisier(),
            "; nu stergeti\r\n[Generale]\r\nCaleBD=C:\\Date\r\n; nota\r\nStrSat=Sat\r\n\r\n[App]\r\nAppWord=2\r\n");
        const FisierIni ini(fisier());
        QVERIFY(ini.scrie(QStringLiteral("generale"), QStringLiteral("caleBD"), QStringLiteral("D:\\Alte Date")));
        QVERIFY(ini.scrie(QStringLiteral("App"), QStringLiteral("CaleWord"), QStringLiteral("x")));
        QVERIFY(ini.scrie(QStringLiteral("Setari"), QStringLiteral("LunaSetata"), QStringLiteral("3")));
        const QString t = QString::fromUtf8(Citeste(fisier()));
        QVERIFY(t.contains(QLatin1String("; nu stergeti")));
        QVERIFY(t.contains(QLatin1String("; nota")));
        QCOMPARE(ini.citeste(QStringLiteral("Generale"), QStringLiteral("CaleBD")), QStringLiteral("D:\\Alte Date"));
        QCOMPARE(ini.citeste(QStringLiteral("Generale"), QStringLiteral("StrSat")), QStringLiteral("Sat"));
        QCOMPARE(ini.citeste(QStringLiteral("App"), QStringLiteral("AppWord")), QStringLiteral("2"));
        QCOMPARE(ini.citeste(QStringLiteral("App"), QStringLiteral("CaleWord")), QStringLiteral("x"));
        QCOMPARE(ini.citeste(QStringLiteral("Setari"), QStringLiteral("LunaSetata")), QStringLiteral("3"));
        // The key changed in place: still one CaleBD, still in its section.
        QCOMPARE(Chei(fisier()).count(QStringLiteral("Generale/CaleBD")), 1);
        QCOMPARE(Chei(fisier()).indexOf(QStringLiteral("App/CaleWord")),
                 Chei(fisier()).indexOf(QStringLiteral("App/AppWord")) + 1);
    }

    // liniileIsiPastreazaSfarsitul: writing one key changes its line alone, which keeps its own
    // line end; a new line takes the end of the line above it.
    void liniileIsiPastreazaSfarsitul_data()
    {
        QTest::addColumn<QByteArray>("inainte");
        QTest::addColumn<QString>("sectiune");
        QTest::addColumn<QString>("cheie");
        QTest::addColumn<QByteArray>("dupa");
        QTest::newRow("LF, cheie schimbata") << QByteArray("[Generale]\nCaleBD=/a\nStrSat=x\n") << "Generale"
                                             << "CaleBD" << QByteArray("[Generale]\nCaleBD=/b\nStrSat=x\n");
        QTest::newRow("LF, cheie noua") << QByteArray("[Generale]\nCaleBD=/a\n\n[App]\nAppWord=1\n") << "Generale"
                                        << "ServerBD"
                                        << QByteArray("[Generale]\nCaleBD=/a\nServerBD=/b\n\n[App]\nAppWord=1\n");
        QTest::newRow("LF, sectiune noua")
            << QByteArray("[Generale]\nCaleBD=/a\n") << "Setari"
            << "LunaSetata" << QByteArray("[Generale]\nCaleBD=/a\n\n[Setari]\nLunaSetata=/b\n");
        QTest::newRow("CRLF, cheie schimbata") << QByteArray("[Generale]\r\nCaleBD=/a\r\n") << "Generale"
                                               << "CaleBD" << QByteArray("[Generale]\r\nCaleBD=/b\r\n");
        QTest::newRow("amestecat") << QByteArray("[Generale]\r\nCaleBD=/a\nStrSat=x\r\n") << "Generale"
                                   << "CaleBD" << QByteArray("[Generale]\r\nCaleBD=/b\nStrSat=x\r\n");
        QTest::newRow("fara sfarsit la ultima linie") << QByteArray("[Generale]\nCaleBD=/a") << "Generale"
                                                      << "CaleBD" << QByteArray("[Generale]\nCaleBD=/b");
        QTest::newRow("fara sfarsit, cheie noua")
            << QByteArray("[Generale]\r\nCaleBD=/a") << "Generale"
            << "ServerBD" << QByteArray("[Generale]\r\nCaleBD=/a\r\nServerBD=/b\r\n");
    }
    void liniileIsiPastreazaSfarsitul()
    {
        QFETCH(QByteArray, inainte);
        QFETCH(QString, sectiune);
        QFETCH(QString, cheie);
        QFETCH(QByteArray, dupa);
        ScrieFisier(fisier(), inainte);
        QVERIFY(FisiereHelper().ScrieIni(cheie, sectiune, fisier(), QStringLiteral("/b")));
        QCOMPARE(Citeste(fisier()), dupa);
    }

    void scriereaCreeazaFisierul()
    {
        QVERIFY(FisiereHelper().ScrieIni(QStringLiteral("CaleBD"), QStringLiteral("Generale"), fisier(),
                                         QStringLiteral("C:\\Program Files")));
        QCOMPARE(Chei(fisier()), QStringList{QStringLiteral("Generale/CaleBD")});
        QCOMPARE(FisierIni(fisier()).citeste(QStringLiteral("Generale"), QStringLiteral("CaleBD")),
                 QStringLiteral("C:\\Program Files"));
    }

    // fisierCp1250RamaneCp1250: an older file in the Windows ANSI code page reads with its
    // letters, and a write keeps every other byte as it was.
    void fisierCp1250RamaneCp1250_data()
    {
        QTest::addColumn<QByteArray>("continut");
        QTest::addColumn<QString>("citit");       // StrSat as read
        QTest::addColumn<QString>("scris");       // the new value of Motiv
        QTest::addColumn<QByteArray>("asteptat"); // the file afterwards

        const QByteArray cp1250 = "; statia din T\xE2rn\xE3veni\r\n[Generale]\r\nStrSat=\xAAoimu\xBA\r\nMotiv=0\r\n";
        QTest::newRow("Windows-1250: alta cheie")
            << cp1250 << QString::fromUtf8("\xc5\x9eoimu\xc5\x9f") << "1"
            << QByteArray("; statia din T\xE2rn\xE3veni\r\n[Generale]\r\nStrSat=\xAAoimu\xBA\r\nMotiv=1\r\n");
        QTest::newRow("Windows-1250: valoare cu virgula dedesubt devine sedila")
            << cp1250 << QString::fromUtf8("\xc5\x9eoimu\xc5\x9f") << QString::fromUtf8("\xc8\x9b")
            << QByteArray("; statia din T\xE2rn\xE3veni\r\n[Generale]\r\nStrSat=\xAAoimu\xBA\r\nMotiv=\xFE\r\n");
        const QByteArray utf8 =
            "; statia din T\xC3\xA2rn\xC4\x83veni\n[Generale]\nStrSat=\xC8\x98oimu\xC8\x99\nMotiv=0\n";
        QTest::newRow("UTF-8 ramane UTF-8, cu terminatii unix")
            << utf8 << QString::fromUtf8("\xC8\x98oimu\xC8\x99") << "2"
            << QByteArray("; statia din T\xC3\xA2rn\xC4\x83veni\n[Generale]\nStrSat=\xC8\x98oimu\xC8\x99\nMotiv=2\n");
    }
    void fisierCp1250RamaneCp1250()
    {
        QFETCH(QByteArray, continut);
        QFETCH(QString, citit);
        QFETCH(QString, scris);
        QFETCH(QByteArray, asteptat);
        ScrieFisier(fisier(), continut);
        const FisierIni ini(fisier());
        QCOMPARE(ini.citeste(QStringLiteral("generale"), QStringLiteral("strsat")), citit);
        QVERIFY(ini.scrie(QStringLiteral("Generale"), QStringLiteral("Motiv"), scris));
        QCOMPARE(Citeste(fisier()), asteptat);
    }

    // valoareNeschimbataNuRescrieFisierul: the load of a complete file, and a write of the value
    // a key already has, leave the file untouched, even a read-only one.
    void valoareNeschimbataNuRescrieFisierul()
    {
        const QByteArray continut = "; statie\n[Generale]\nCaleBD=/date\n[Fonturi]\nFontSize0=12\nFontName0=Arial\n"
                                    "[Fisiere]\nAnexa3=a.xls\nAnexa4=b.xls\nStatPlata=c.xls\n[Borderou]\n"
                                    "HeightRowBorderou=30\n[Raport]\nHeightRowRaport=30\n[App]\nAppWord=2\n";
        ScrieFisier(fisier(), continut);
        QFile::setPermissions(fisier(), QFileDevice::ReadOwner);
        MesajeScript m;
        const Setari s = Incarca();
        QCOMPARE(s.AppWord, 2);
        QVERIFY(FisiereHelper().ScrieIni(QStringLiteral("caleBD"), QStringLiteral("GENERALE"), fisier(),
                                         QStringLiteral("/date")));
        QVERIFY(m.intrari.isEmpty());
        QFile::setPermissions(fisier(), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        QCOMPARE(Citeste(fisier()), continut);
    }

    // fisierMareCititOData: the load reads the file once, whatever its size; a file of tens of
    // megabytes (a log pasted into it by mistake) used to take minutes.
    void fisierMareCititOData()
    {
        QByteArray umplutura;
        umplutura.reserve(20 * 1024 * 1024);
        for (int i = 0; umplutura.size() < 20 * 1024 * 1024; ++i)
            umplutura += "[Jurnal" + QByteArray::number(i % 50) + "]\r\nlinia " + QByteArray::number(i) +
                         " = o inregistrare veche care nu mai foloseste nimanui\r\n";
        ScrieFisier(fisier(), umplutura +
                                  "[Fonturi]\r\nFontSize0=10\r\nFontName0=Arial\r\n[Fisiere]\r\nAnexa3=a\r\n"
                                  "Anexa4=b\r\nStatPlata=c\r\n[Borderou]\r\nHeightRowBorderou=36\r\n[Raport]\r\n"
                                  "HeightRowRaport=36\r\n[App]\r\nAppWord=3\r\n[Setari]\r\nAnSetat=2012\r\n");
        MesajeScript m;
        QElapsedTimer t;
        t.start();
        const Setari s = Incarca();
        QCOMPARE(s.AppWord, 3);
        QCOMPARE(s.AnSetat, 2012);
        QVERIFY2(t.elapsed() < 8000, qPrintable(QStringLiteral("%1 ms").arg(t.elapsed())));
    }

    // --- IncarcaSetari ---

    void statieNouaScrieDoarImpliciteleScrise()
    {
        ScrieFisier(fisier(), QByteArray());
        MesajeScript m;
        const Setari s = Incarca();
        QCOMPARE(Chei(fisier()),
                 (QStringList{QStringLiteral("Fonturi/FontSize0"), QStringLiteral("Fonturi/FontName0"),
                              QStringLiteral("Fisiere/Anexa3"), QStringLiteral("Fisiere/Anexa4"),
                              QStringLiteral("Fisiere/StatPlata"), QStringLiteral("Borderou/HeightRowBorderou"),
                              QStringLiteral("Raport/HeightRowRaport"), QStringLiteral("App/AppWord")}));
        QCOMPARE(s.FontSize0, 10);
        QCOMPARE(s.FontName0, QStringLiteral("Times New Roman"));
        QCOMPARE(s.Anexa3, QStringLiteral("Centralizator.xls"));
        QCOMPARE(s.HeightRowRaport, 36);
        QCOMPARE(s.LunaSetata, 1);
        QCOMPARE(s.AnSetat, 2009);
        QVERIFY(s.pass.isEmpty());
        QVERIFY(m.intrari.isEmpty());
        // A second load finds everything and writes nothing more.
        const QByteArray inainte = Citeste(fisier());
        Incarca();
        QCOMPARE(Citeste(fisier()), inainte);
    }

    void valoriZero_data()
    {
        QTest::addColumn<QByteArray>("continut");
        QTest::addColumn<QString>("camp");
        QTest::addColumn<int>("inMemorie");
        QTest::addColumn<QString>("inFisier"); // the key's text afterwards; "-" unchanged

        QTest::newRow("AppWord 0 devine 1 si in fisier")
            << QByteArray("[App]\r\nAppWord=0\r\n") << "AppWord" << 1 << "1";
        QTest::newRow("AppWord text devine 1") << QByteArray("[App]\r\nAppWord=abc\r\n") << "AppWord" << 1 << "1";
        QTest::newRow("AppWord 3 ramane") << QByteArray("[App]\r\nAppWord=3\r\n") << "AppWord" << 3 << "3";
        QTest::newRow("AnSetat citit") << QByteArray("[Setari]\r\nAnSetat=2012\r\n") << "AnSetat" << 2012 << "2012";
        QTest::newRow("FontSize0 cifre la inceput")
            << QByteArray("[Fonturi]\r\nFontSize0=12pt\r\n") << "FontSize0" << 12 << "12pt";
        QTest::newRow("HeightRowBorderou 0")
            << QByteArray("[Borderou]\r\nHeightRowBorderou=0\r\n") << "HeightRowBorderou" << 36 << "36";
    }
    void valoriZero()
    {
        QFETCH(QByteArray, continut);
        QFETCH(QString, camp);
        QFETCH(int, inMemorie);
        QFETCH(QString, inFisier);
        ScrieFisier(fisier(), continut);
        MesajeScript m;
        const Setari s = Incarca();
        const QMap<QString, QPair<int, QString>> campuri = {
            {QStringLiteral("AppWord"), {s.AppWord, QStringLiteral("App")}},
            {QStringLiteral("LunaSetata"), {s.LunaSetata, QStringLiteral("Setari")}},
            {QStringLiteral("AnSetat"), {s.AnSetat, QStringLiteral("Setari")}},
            {QStringLiteral("AfisCereri"), {s.AfisCereri, QStringLiteral("Afisari")}},
            {QStringLiteral("FontSize0"), {s.FontSize0, QStringLiteral("Fonturi")}},
            {QStringLiteral("HeightRowBorderou"), {s.HeightRowBorderou, QStringLiteral("Borderou")}},
        };
        QCOMPARE(campuri[camp].first, inMemorie);
        QCOMPARE(FisierIni(fisier()).citeste(campuri[camp].second, camp), inFisier);
    }

    // The active month's defaults hold in memory only: the file keeps its 0 (or nothing).
    void lunaActivaImplicitaNuSeScrieInFisier()
    {
        ScrieFisier(fisier(), "[Setari]\r\nLunaSetata=0\r\nAnSetat=0\r\n");
        const Setari s = Incarca();
        QCOMPARE(s.LunaSetata, 1);
        QCOMPARE(s.AnSetat, 2009);
        QCOMPARE(FisierIni(fisier()).citeste(QStringLiteral("Setari"), QStringLiteral("LunaSetata")),
                 QStringLiteral("0"));
        QCOMPARE(FisierIni(fisier()).citeste(QStringLiteral("Setari"), QStringLiteral("AnSetat")), QStringLiteral("0"));
    }

    // The list option is read and then set to 1 whatever it says; the file keeps the choice.
    void afisCereriEsteMereu1()
    {
        ScrieFisier(fisier(), "[Afisari]\r\nAfisCereri=0\r\n");
        QCOMPARE(Incarca().AfisCereri, 1);
        QCOMPARE(FisierIni(fisier()).citeste(QStringLiteral("Afisari"), QStringLiteral("AfisCereri")),
                 QStringLiteral("0"));
    }

    void textePastrate()
    {
        ScrieFisier(fisier(),
                    "[generale]\r\nPASS= secret \r\nStrSat=Str.\r\n[Fisiere]\r\nanexa3=C:\\Rapoarte\\A3.xls\r\n");
        const Setari s = Incarca();
        QCOMPARE(s.pass, QStringLiteral("secret"));
        QCOMPARE(s.StrSat, QStringLiteral("Str."));
        QCOMPARE(s.Anexa3, QStringLiteral("C:\\Rapoarte\\A3.xls"));
    }

    void numarPreaMare_data()
    {
        QTest::addColumn<QString>("sectiune");
        QTest::addColumn<QString>("cheie");
        QTest::addColumn<QString>("valoare");
        QTest::newRow("FontSize0 99999") << "Fonturi"
                                         << "FontSize0"
                                         << "99999";
        QTest::newRow("FontSize0 256") << "Fonturi"
                                       << "FontSize0"
                                       << "256";
        QTest::newRow("FontSize0 negativ") << "Fonturi"
                                           << "FontSize0"
                                           << "-3";
        QTest::newRow("FontSize0 urias") << "Fonturi"
                                         << "FontSize0"
                                         << "99999999999999999999999";
        QTest::newRow("AnSetat 40000") << "Setari"
                                       << "AnSetat"
                                       << "40000";
    }
    void numarPreaMare()
    {
        QFETCH(QString, sectiune);
        QFETCH(QString, cheie);
        QFETCH(QString, valoare);
        ScrieFisier(fisier(), QStringLiteral("[%1]\r\n%2=%3\r\n").arg(sectiune, cheie, valoare).toUtf8());
        MesajeScript m;
        const Setari s = Incarca();
        QCOMPARE(m.intrari.size(), 1);
        QVERIFY(m.ultimul().contains(QLatin1String("nu este corecta")));
        QCOMPARE(s.FontSize0, 10);
        QCOMPARE(s.AnSetat, 2009);
        // The faulty key stays as it was.
        QCOMPARE(FisierIni(fisier()).citeste(sectiune, cheie), valoare);
    }
};

QTEST_GUILESS_MAIN(TestSetari)
#include "tst_setari.moc"
