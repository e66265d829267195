#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "documents/SablonRtf.h"
#include "common/Eroare.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

const QByteArray Antet =
    QByteArrayLiteral("{\\rtf1\\ansi{\\*\\pnseclvl4{\\pntxta )}}{\\*\\pnseclvl9{\\pntxtb (}{\\pntxta )}}");

// A template as a word processor leaves it: header groups, the marker, the body, "}" and CRLF.
QByteArray sablon(const QByteArray& corp)
{
    return Antet + corp + QByteArrayLiteral("}\r\n");
}

// The text that a reader of RTF sees in a value written by TextRtf.
QString citesteRtf(const QByteArray& rtf)
{
    QString r;
    for (qsizetype i = 0; i < rtf.size(); ++i) {
        const char c = rtf[i];
        if (c != '\\') {
            r += QLatin1Char(c);
            continue;
        }
        const char u = rtf.at(i + 1);
        if (u == '\\' || u == '{' || u == '}') {
            r += QLatin1Char(u);
            ++i;
        } else if (u == 'u') {
            const qsizetype sf = rtf.indexOf('?', i);
            r += QChar(static_cast<char16_t>(static_cast<qint16>(rtf.mid(i + 2, sf - i - 2).toInt())));
            i = sf;
        } else if (rtf.mid(i, 6) == "\\line ") {
            r += QLatin1Char('\n');
            i += 5;
        }
    }
    return r;
}

// True when every group opened in the text is closed, counting only unescaped braces.
bool grupeInchise(const QByteArray& rtf)
{
    int nivel = 0;
    for (qsizetype i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\') {
            ++i;
            continue;
        }
        if (rtf[i] == '{')
            ++nivel;
        if (rtf[i] == '}' && --nivel < 0)
            return false;
    }
    return nivel == 0;
}

} // namespace

// The template engine: where a template splits, how documents are put together, the escaping
// of replacement values, and the messages for a missing or malformed template.
class TestSablonRtf : public TestCuOficiu {
    Q_OBJECT
public:
    TestSablonRtf() : TestCuOficiu(Oficiu::PeClasa) {}

private slots:
    void impartire_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QByteArray>("antet");
        QTest::addColumn<QByteArray>("corp");

        QTest::newRow("marcajul de doua ori: se imparte la al doilea")
            << sablon("\\par #Nume#\\par") << true << Antet << QByteArray("\\par #Nume#\\par");
        QTest::newRow("marcajul o data") << QByteArray("{\\rtf1{\\*\\pnseclvl1{\\pntxta )}}abc}\r\n") << true
                                         << QByteArray("{\\rtf1{\\*\\pnseclvl1{\\pntxta )}}") << QByteArray("abc");
        QTest::newRow("fara sfarsit de rand: pierde doua caractere")
            << QByteArray("{\\rtf1{\\*\\pnseclvl1{\\pntxta )}}abcde}") << true
            << QByteArray("{\\rtf1{\\*\\pnseclvl1{\\pntxta )}}") << QByteArray("abc");
        QTest::newRow("marcajul chiar inaintea acoladei de sfarsit: corp gol")
            << QByteArray("{\\rtf1{\\*\\pnseclvl1{\\pntxta )}}}\r\n") << true
            << QByteArray("{\\rtf1{\\*\\pnseclvl1{\\pntxta )}}") << QByteArray();
        QTest::newRow("acoladele scapate sunt text")
            << sablon("\\par \\{#Nume#\\} \\\\") << true << Antet << QByteArray("\\par \\{#Nume#\\} \\\\");
        QTest::newRow("fara marcaj") << QByteArray("{\\rtf1\\ansi abc}\r\n") << false << QByteArray() << QByteArray();
        QTest::newRow("marcaj cu doua spatii nu e marcaj")
            << QByteArray("{\\rtf1{\\pntxta  )}}abc}\r\n") << false << QByteArray() << QByteArray();
        QTest::newRow("fisier gol") << QByteArray() << false << QByteArray() << QByteArray();
        // sablonTaiatSauDezechilibratRefuzat: a template that is not whole is refused, not half
        // filled.
        QTest::newRow("taiat dupa marcaj")
            << QByteArray("{\\rtf1{\\*\\pnseclvl1{\\pntxta )}}") << false << QByteArray() << QByteArray();
        QTest::newRow("taiat in corp") << QByteArray(Antet + "\\par #Nume#\\par {\\b Dom") << false << QByteArray()
                                       << QByteArray();
        QTest::newRow("o acolada de inchidere in plus")
            << sablon("\\par }#Nume#\\par") << false << QByteArray() << QByteArray();
        QTest::newRow("o grupa deschisa in plus")
            << sablon("\\par {\\b #Nume#\\par") << false << QByteArray() << QByteArray();
        QTest::newRow("acolada scapata nu inchide grupa")
            << sablon("\\par {\\b #Nume#\\}\\par") << false << QByteArray() << QByteArray();
        QTest::newRow("text dupa ultima acolada")
            << QByteArray(sablon("\\par") + "{\\par X}\r\n") << false << QByteArray() << QByteArray();
    }

    void impartire()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, ok);
        QFETCH(QByteArray, antet);
        QFETCH(QByteArray, corp);
        Sablon s;
        QCOMPARE(ImparteSablon(text, s), ok);
        if (!ok)
            return;
        QCOMPARE(s.antet, antet);
        QCOMPARE(s.corp, corp);
    }

    void asamblare_data()
    {
        QTest::addColumn<QList<QByteArray>>("corpuri");
        QTest::addColumn<QByteArray>("document");

        QTest::newRow("un document") << QList<QByteArray>{"\\par A\\par"} << QByteArray(Antet + "\\par A\\par}");
        QTest::newRow("trei documente: \\page intre ele, nu dupa ultimul")
            << QList<QByteArray>{"\\par A\\par", "\\par B\\par", "\\par C\\par"}
            << QByteArray(Antet + "\\par A\\par\\page\\par B\\par\\page\\par C\\par}");
    }

    void asamblare()
    {
        QFETCH(QList<QByteArray>, corpuri);
        QFETCH(QByteArray, document);
        ColectieDocumente c;
        for (const QByteArray& corp : corpuri) {
            Sablon s;
            QVERIFY(ImparteSablon(sablon(corp), s));
            c.adauga(s);
        }
        QCOMPARE(c.numar(), corpuri.size());
        QCOMPARE(c.document(), document);
        QVERIFY(grupeInchise(c.document()));
        if (corpuri.size() == 1) {
            Sablon s;
            ImparteSablon(sablon(corpuri[0]), s);
            QCOMPARE(AsambleazaDocument(s), document); // one document is the same as a collection of one
        }
    }

    void inlocuire_data()
    {
        QTest::addColumn<QByteArray>("corp");
        QTest::addColumn<QByteArray>("marcaj");
        QTest::addColumn<QString>("valoare");
        QTest::addColumn<QByteArray>("rezultat");

        QTest::newRow("toate aparitiile")
            << QByteArray("#Nume# si #Nume#") << QByteArray("#Nume#") << "ION" << QByteArray("ION si ION");
        QTest::newRow("litere mari si mici sunt marcaje diferite")
            << QByteArray("#Nume# #nume#") << QByteArray("#nume#") << "ion" << QByteArray("#Nume# ion");
        QTest::newRow("#c1# nu atinge #cu1# si #c10#")
            << QByteArray("#c1#|#cu1#|#c10#") << QByteArray("#c1#") << "3" << QByteArray("3|#cu1#|#c10#");
        QTest::newRow("marcaj absent: nimic")
            << QByteArray("text") << QByteArray("#Nume#") << "ION" << QByteArray("text");
        QTest::newRow("marcaj necunoscut ramane")
            << QByteArray("#Altceva#") << QByteArray("#Nume#") << "ION" << QByteArray("#Altceva#");
        QTest::newRow("valoare goala sterge marcajul")
            << QByteArray("a#COD#b") << QByteArray("#COD#") << "" << QByteArray("ab");
    }

    void inlocuire()
    {
        QFETCH(QByteArray, corp);
        QFETCH(QByteArray, marcaj);
        QFETCH(QString, valoare);
        QFETCH(QByteArray, rezultat);
        // A body cut at its markers once, for a run of documents, gives the same bytes to each.
        CorpDecupat decupat(corp);
        for (int i = 0; i < 2; ++i) {
            CorpDecupat::Document d = decupat.incepe();
            d.inlocuieste(marcaj.constData(), valoare);
            QCOMPARE(d.text(), rezultat);
        }
        Inlocuieste(corp, marcaj, valoare);
        QCOMPARE(corp, rezultat);
    }

    // A run fills the same markers in the same order for each document, but a marker may be
    // left unfilled for one of them (#tip# of a kind that has no word): it prints as it stands,
    // and the next document fills it. Each document is the body filled marker after marker.
    void corpDecupatUmpleCaTextul()
    {
        const QByteArray corp("#sex#|#sex1#|#Nr#NrC#|#tip#|#Nr#|#suma#");
        CorpDecupat decupat(corp);
        for (const bool cuTip : {false, true, false}) {
            QByteArray text = corp;
            UmplereText peText(text);
            CorpDecupat::Document doc = decupat.incepe();
            for (Umplere* u : {static_cast<Umplere*>(&peText), static_cast<Umplere*>(&doc)}) {
                u->inlocuieste("#sex#", QStringLiteral("d-lui"));
                u->inlocuieste("#sex1#", QStringLiteral("domnul"));
                u->inlocuieste("#Nr#", QStringLiteral("123456"));
                u->inlocuieste("#NrC#", QStringLiteral("7"));
                if (cuTip)
                    u->inlocuieste("#tip#", QStringLiteral("complementara"));
                QVERIFY(!u->are("#barem#"));
                QVERIFY(u->are("#suma#"));
                u->inlocuieste("#suma#", QStringLiteral("{82}"));
            }
            QCOMPARE(doc.text(), text);
            QCOMPARE(text, cuTip ? QByteArray("d-lui|domnul|123456NrC#|complementara|123456|\\{82\\}")
                                 : QByteArray("d-lui|domnul|123456NrC#|#tip#|123456|\\{82\\}"));
        }
    }

    void textRtf_data()
    {
        QTest::addColumn<QString>("valoare");
        QTest::addColumn<QByteArray>("rtf");

        QTest::newRow("text simplu") << "POPESCU ION" << QByteArray("POPESCU ION");
        QTest::newRow("bara inversa") << "C:\\acte" << QByteArray("C:\\\\acte");
        QTest::newRow("acolade") << "{a}" << QByteArray("\\{a\\}");
        QTest::newRow("diacritice") << QString::fromUtf8("\xc8\x98tefan \xc4\x83")
                                    << QByteArray("\\u536?tefan \\u259?");
        QTest::newRow("caracter peste 32767: numar negativ") << QString(QChar(0xFFFD)) << QByteArray("\\u-3?");
        QTest::newRow("rand nou") << "a\nb" << QByteArray("a\\line b");
    }

    void textRtf()
    {
        QFETCH(QString, valoare);
        QFETCH(QByteArray, rtf);
        QCOMPARE(TextRtf(valoare), rtf);
        QCOMPARE(citesteRtf(rtf), valoare);
    }

    void valoareaNuStricaDocumentul_data()
    {
        QTest::addColumn<QString>("valoare");
        QTest::newRow("acolada inchisa") << "POP}ESCU";
        QTest::newRow("acolada deschisa") << "{POPESCU";
        QTest::newRow("comanda RTF") << "\\par\\page {\\b x}";
        QTest::newRow("diacritice si euro") << QString::fromUtf8("\xc8\x9aIC\xc4\x82 \xe2\x82\xac 5");
        QTest::newRow("emoji (pereche de surogate)") << QString::fromUtf8("\xf0\x9f\x98\x80");
    }

    void valoareaNuStricaDocumentul()
    {
        QFETCH(QString, valoare);
        Sablon s;
        QVERIFY(ImparteSablon(sablon("\\par [#Nume#]\\par"), s));
        Inlocuieste(s.corp, "#Nume#", valoare);
        const QByteArray doc = AsambleazaDocument(s);
        QVERIFY(grupeInchise(doc));
        for (const char c : doc)
            QVERIFY2(static_cast<unsigned char>(c) < 0x80, "documentul ramane ASCII");
        const qsizetype a = doc.indexOf('['), b = doc.lastIndexOf(']');
        QCOMPARE(citesteRtf(doc.mid(a + 1, b - a - 1)), valoare);
    }

    void sablonLipsaSauGresit_data()
    {
        QTest::addColumn<QString>("fisier");      // relative to the temporary folder
        QTest::addColumn<QByteArray>("continut"); // empty: no file
        QTest::addColumn<QString>("mesaj");       // %1 the full path

        QTest::newRow("lipsa") << "acte/acordare.rtf" << QByteArray() << "Fisierul %1 nu exita";
        QTest::newRow("folder inaccesibil: mesajul numeste calea intreaga")
            << "nu-exista/acte/acordare.rtf" << QByteArray() << "Fisierul %1 nu exita";
        QTest::newRow("nu e RTF") << "acte/acordare.rtf" << QByteArray("PK\x03\x04 un document zip")
                                  << "Fisierul sablon are format gresit. Sunati la tel: 0700-555010";
        QTest::newRow("RTF fara marcaj") << "acte/acordare.rtf" << QByteArray("{\\rtf1\\ansi #Nume#}\r\n")
                                         << "Fisierul sablon are format gresit. Sunati la tel: 0700-555010";
        QTest::newRow("taiat la jumatate") << "acte/acordare.rtf" << QByteArray(Antet + "\\par #Nume#\\par\\pa")
                                           << "Fisierul sablon are format gresit. Sunati la tel: 0700-555010";
    }

    void sablonLipsaSauGresit()
    {
        QFETCH(QString, fisier);
        QFETCH(QByteArray, continut);
        QFETCH(QString, mesaj);
        QTemporaryDir dir;
        QDir(dir.path()).mkpath(QStringLiteral("acte"));
        const QString cale = QDir(dir.path()).filePath(fisier);
        if (!continut.isEmpty()) {
            QFile f(cale);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(continut);
        }
        MesajeScript m;
        Sablon s;
        QVERIFY(!CitesteSablon(cale, s));
        QCOMPARE(m.texte(),
                 QStringList{mesaj.contains(QLatin1String("%1")) ? mesaj.arg(QDir::toNativeSeparators(cale)) : mesaj});
    }

    void octetiiFisieruluiRamanNeschimbati()
    {
        // A template saved in the office's single-byte code page: its bytes go out as they came.
        const QByteArray corp("\\par Prim\xe2ria #Localitate# \xba\xfe\\par");
        QTemporaryDir dir;
        const QString cale = QDir(dir.path()).filePath(QStringLiteral("t.rtf"));
        QFile f(cale);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(sablon(corp));
        f.close();
        Sablon s;
        QVERIFY(CitesteSablon(cale, s));
        Inlocuieste(s.corp, "#Localitate#", QStringLiteral("Tarnava"));
        QCOMPARE(AsambleazaDocument(s), Antet + QByteArray("\\par Prim\xe2ria Tarnava \xba\xfe\\par}"));
    }

    void scriereaInlocuiesteDocumentulAnterior()
    {
        const QString cale = ScrieDocument(DocumentDispozitie, "prima");
        QCOMPARE(cale, QDir(m_oficiu->folderProgram()).filePath(QStringLiteral("Disp.rtf")));
        ScrieDocument(DocumentDispozitie, "a doua");
        QFile f(cale);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), QByteArray("a doua"));

        // A folder that cannot take the file: error 70, which the actions name in the office's words.
        try {
            ScrieFisierDocument(QDir(m_oficiu->folderProgram()).filePath(QStringLiteral("nu-exista/Disp.rtf")), "x");
            QFAIL("scrierea trebuia sa esueze");
        } catch (const Eroare& e) {
            QCOMPARE(e.numar, 70);
        }
    }
};

QTEST_GUILESS_MAIN(TestSablonRtf)
#include "tst_SablonRtf.moc"
