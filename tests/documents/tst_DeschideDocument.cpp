#include "MesajeScript.h"
#include "TestCuOficiu.h"
#include "documents/DeschideDocument.h"
#include "documents/SablonRtf.h"
#include "common/Proces.h"

#include <QDir>
#include <QtTest>

namespace {

class LansatorTest : public LansatorDocumente {
public:
    QStringList pornite; // "program arg arg" or "implicit path"
    QStringList refuza;  // programs that cannot be started ("implicit" for the default application)
    QList<QStringList> argumente;

    bool deschideImplicit(const QString& cale) override
    {
        pornite << QStringLiteral("implicit ") + cale;
        return !refuza.contains(QStringLiteral("implicit"));
    }
    bool porneste(const QString& program, const QStringList& argumente) override
    {
        pornite << (QStringList{program} + argumente).join(QLatin1Char(' '));
        this->argumente << argumente;
        return !refuza.contains(program);
    }
};

} // namespace

// The opening of a written document by the setting AppWord, with a stand-in launcher that
// records what would have been started and can refuse.
class TestDeschideDocument : public TestCuOficiu {
    Q_OBJECT
    void curata() override { LansatorDocumente::seteaza(nullptr); }

private slots:

    void aplicatie_data()
    {
        QTest::addColumn<int>("appWord");
        QTest::addColumn<QStringList>("refuza");
        QTest::addColumn<QStringList>("pornite"); // %1 the document's full path
        QTest::addColumn<QStringList>("mesaje");
        QTest::addColumn<bool>("ok");

        const QString fraza =
            QStringLiteral("\nSetati corect aplicatia pentru deschiderea rtf-ului: MS Word sau Oppen Office Writer");
        const QString lipsaImplicit = QStringLiteral("Nu exista o aplicatie implicita pentru fisierul %1");
        const QString lipsaWriter = QStringLiteral("LibreOffice Writer (soffice) nu a putut fi pornit");

        const QStringList toate{"implicit", "soffice", "libreoffice"};
        QTest::newRow("1: aplicatia implicita")
            << 1 << QStringList{} << QStringList{"implicit %1"} << QStringList{} << true;
        QTest::newRow("1: fara aplicatie implicita, in LibreOffice")
            << 1 << QStringList{"implicit"} << QStringList{"implicit %1", "soffice --writer %1"} << QStringList{}
            << true;
        QTest::newRow("1: nimic nu il deschide")
            << 1 << toate << QStringList{"implicit %1", "soffice --writer %1", "libreoffice --writer %1"}
            << QStringList{QStringLiteral("429 %1 %1").arg(lipsaImplicit) + fraza} << false;
        QTest::newRow("2: soffice") << 2 << QStringList{} << QStringList{"soffice --writer %1"} << QStringList{}
                                    << true;
        QTest::newRow("2: fara soffice, libreoffice")
            << 2 << QStringList{"soffice"} << QStringList{"soffice --writer %1", "libreoffice --writer %1"}
            << QStringList{} << true;
        QTest::newRow("2: fara LibreOffice, aplicatia implicita")
            << 2 << QStringList{"soffice", "libreoffice"}
            << QStringList{"soffice --writer %1", "libreoffice --writer %1", "implicit %1"} << QStringList{} << true;
        QTest::newRow("2: nimic nu il deschide")
            << 2 << toate << QStringList{"soffice --writer %1", "libreoffice --writer %1", "implicit %1"}
            << QStringList{QStringLiteral("429 %1 %1").arg(lipsaWriter) + fraza} << false;
        QTest::newRow("3: doar mesajul") << 3 << QStringList{} << QStringList{}
                                         << QStringList{QStringLiteral("Aceasta varianta nu e finalizata!")} << true;
        QTest::newRow("0: nimic") << 0 << QStringList{} << QStringList{} << QStringList{} << true;
        QTest::newRow("7: nimic") << 7 << QStringList{} << QStringList{} << QStringList{} << true;
    }

    void aplicatie()
    {
        QFETCH(int, appWord);
        QFETCH(QStringList, refuza);
        QFETCH(QStringList, pornite);
        QFETCH(QStringList, mesaje);
        QFETCH(bool, ok);
        LansatorTest l;
        l.refuza = refuza;
        LansatorDocumente::seteaza(&l);
        Proces::setari().AppWord = appWord;
        const QString cale = QDir(m_oficiu->folderProgram()).filePath(DocumentDeclaratie);
        MesajeScript m;
        QCOMPARE(DeschideDocument(DocumentDeclaratie), ok);
        for (QString& p : pornite)
            p = p.arg(cale);
        QCOMPARE(l.pornite, pornite);
        for (QString& t : mesaje)
            if (t.contains(QLatin1String("%1")))
                t = t.arg(QDir::toNativeSeparators(cale));
        QCOMPARE(m.texte(), mesaje);
    }

    void folderCuSpatiiNeschimbat()
    {
        // A program folder with blanks goes to the word processor as one argument, unchanged.
        const QString folder = QDir(m_oficiu->folderProgram()).filePath(QStringLiteral("Program Files/Alocatii"));
        QDir().mkpath(folder);
        Proces::seteazaFolderProgram(folder);
        LansatorTest l;
        LansatorDocumente::seteaza(&l);
        Proces::setari().AppWord = 2;
        QVERIFY(DeschideDocument(DocumentDispozitie));
        QCOMPARE(l.argumente, (QList<QStringList>{{QStringLiteral("--writer"), folder + QStringLiteral("/Disp.rtf")}}));
    }
};

QTEST_GUILESS_MAIN(TestDeschideDocument)
#include "tst_DeschideDocument.moc"
