// Every page of both printed forms, blank and filled from the fixed small office, written to a
// PDF file and read back with pdftotext -bbox: the text boxes, to a tenth of a millimetre,
// compared whole with the saved expected boxes under tests/data/formulare. A word that moves or
// changes fails here with its line; ./scripts/rescrie-asteptate.sh saves a change that is meant.
#include "Asteptat.h"
#include "CasetePdf.h"
#include "OficiuReferinta.h"
#include "TestCuOficiu.h"

#include "common/Ceas.h"
#include "forms/Formular.h"
#include "forms/TiparireFormular.h"

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

class TestFormulareAsteptate : public TestCuOficiu {
    Q_OBJECT
public:
    TestFormulareAsteptate() : TestCuOficiu(Oficiu::PeClasa) {}

private:
    void pregatesteOficiul() override
    {
        OficiuReferinta::Scrie(bd());
        OficiuReferinta::ScrieCerereCompletata(bd());
    }
    void pregateste() override { Ceas::seteazaAzi(OficiuReferinta::Azi); }

private slots:
    void casete_data()
    {
        QTest::addColumn<int>("tip");
        QTest::addColumn<int>("mod");
        QTest::newRow("cerere-completata") << FormularCerere << ModCompletat;
        QTest::newRow("cerere-goala") << FormularCerere << ModGol;
        QTest::newRow("ancheta-completata") << FormularAncheta << ModCompletat;
        QTest::newRow("ancheta-goala") << FormularAncheta << ModGol;
    }

    void casete()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("poppler-utils (pdftotext) lipseste");
        QFETCH(int, tip);
        QFETCH(int, mod);
        QTemporaryDir dir;
        const QString pdf = dir.filePath(QStringLiteral("formular.pdf"));
        QString eroare;
        QVERIFY2(ScriePdfFormular(pdf, tip, mod, {&bd(), OficiuReferinta::CerereCompletata}, {}, &eroare),
                 qPrintable(eroare));
        QCOMPARE(m_mesaje->texte(), QStringList());
        const QString casete = CasetePdf(pdf, &eroare);
        QVERIFY2(eroare.isEmpty(), qPrintable(eroare));
        QCOMPARE(casete.count(QStringLiteral("pagina ")), NumarPagini(tip));
        const QString diferenta = DiferentaFataDeAsteptat(
            QStringLiteral("formulare/%1.txt").arg(QString::fromLatin1(QTest::currentDataTag())), casete.toUtf8());
        QVERIFY2(diferenta.isEmpty(), qPrintable(diferenta));
    }
};

QTEST_MAIN(TestFormulareAsteptate)
#include "tst_FormulareAsteptate.moc"
