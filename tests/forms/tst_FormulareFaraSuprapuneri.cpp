// The printed forms as the office prints them: on every page of both forms, blank and filled
// with long values, no text stands over another (read back from the PDF with pdftotext -bbox),
// and data written on a form's dotted or underlined line stays on it.
#include "DateTest.h"
#include "MesajeScript.h"
#include "TestCuOficiu.h"

#include "common/Data.h"
#include "forms/Formular.h"
#include "forms/TiparireFormular.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Cuvant {
    QRectF cutie; // points
    QString text;
};

// The words of each page, with their boxes.
QList<QList<Cuvant>> CuvintePdf(const QString& pdf)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    p.waitForFinished(60000);
    const QString html = QString::fromUtf8(p.readAllStandardOutput());
    static const QRegularExpression cuvant(QStringLiteral(
        "<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">([^<]*)</word>"));
    QList<QList<Cuvant>> pagini;
    for (const QString& pagina : html.split(QStringLiteral("<page "), Qt::SkipEmptyParts).mid(1)) {
        QList<Cuvant> l;
        for (const auto& m : cuvant.globalMatch(pagina)) {
            const double x1 = m.captured(1).toDouble(), y1 = m.captured(2).toDouble();
            const double x2 = m.captured(3).toDouble(), y2 = m.captured(4).toDouble();
            l.append({QRectF(QPointF(x1, y1), QPointF(x2, y2)), m.captured(5)});
        }
        pagini << l;
    }
    return pagini;
}

constexpr double Toleranta = 0.5; // points

// Where the line of dots or underscores of a word begins (its left edge when it has none).
std::optional<double> InceputLinie(const Cuvant& c)
{
    static const QRegularExpression linie(QStringLiteral("[._]{3,}"));
    const auto m = linie.match(c.text);
    if (!m.hasMatch())
        return std::nullopt;
    return c.cutie.left() + c.cutie.width() * m.capturedStart() / std::max<qsizetype>(1, c.text.size());
}

// Data written on a form's line: within the line's length, and not below it.
bool PeLinie(const Cuvant& linie, const Cuvant& text)
{
    const auto inceput = InceputLinie(linie);
    return inceput && text.cutie.left() >= *inceput - Toleranta &&
           text.cutie.right() <= linie.cutie.right() + Toleranta &&
           text.cutie.bottom() <= linie.cutie.bottom() + Toleranta;
}

// The pairs of words of a page that stand over each other.
QStringList Suprapuneri(const QList<Cuvant>& cuvinte)
{
    QStringList r;
    for (int i = 0; i < cuvinte.size(); ++i)
        for (int j = i + 1; j < cuvinte.size(); ++j) {
            const Cuvant& a = cuvinte[i];
            const Cuvant& b = cuvinte[j];
            const QRectF comun = a.cutie.intersected(b.cutie);
            if (comun.width() <= Toleranta || comun.height() <= Toleranta)
                continue;
            if (PeLinie(a, b) || PeLinie(b, a))
                continue;
            r << QStringLiteral("\"%1\" (%2, %3) peste \"%4\" (%5, %6)")
                     .arg(a.text)
                     .arg(a.cutie.left() / 72 * 25.4, 0, 'f', 1)
                     .arg(a.cutie.top() / 72 * 25.4, 0, 'f', 1)
                     .arg(b.text)
                     .arg(b.cutie.left() / 72 * 25.4, 0, 'f', 1)
                     .arg(b.cutie.top() / 72 * 25.4, 0, 'f', 1);
        }
    return r;
}

} // namespace

class TestFormulareFaraSuprapuneri : public TestCuOficiu {
    Q_OBJECT
public:
    TestFormulareFaraSuprapuneri() : TestCuOficiu(Oficiu::PeClasa) {}

private:
    // An application with every field filled, and filled long: values as long as their boxes
    // and lines hold (a longer one runs past them, as the office's forms let it).
    void pregatesteOficiul() override
    {
        const BD& b = bd();
        m_oficiu->scrieDatePrimarie();
        b.executa(QStringLiteral("UPDATE DatePrimarie SET Localitate = ?, TipLocalitate = 3"),
                  {QStringLiteral("Targu Secuiesc Sfantu Gheorghe")});
        DateTest::DosarCompletat(b);
        b.executa(QStringLiteral("UPDATE Cereri SET NrCerere = 99999, DataCerere = ?, NumeTitularCont = ?, Cont = ?, "
                                 "Banca = ?, Gospodarire = 2, LunaGospod = 12, GospodLoc = 3, RegimJuridLoc = 3, "
                                 "TipIncalzire = 3, TipLocuinta = 2, Bife = ?, ReprLegal = 2, ModPlata = 2"),
                  {DataPentruBD(QDate(2026, 9, 23)), QStringLiteral("POPESCU-VASILESCU ANA MARIA"),
                   QStringLiteral("RO49AAAA1B31007593840000"), QStringLiteral("BANCA COMERCIALA ROMANA SA"),
                   QStringLiteral("11111111111111111111")});
        b.executa(QStringLiteral("UPDATE Membrii SET Nume = ?, Prenume = ?, Eliberat = ?"),
                  {QStringLiteral("POPESCU-VASILESCU"), QStringLiteral("ANA-MARIA-MAGDALENA"),
                   QStringLiteral("SPCLEP TARGU MURES")});
        b.executa(QStringLiteral("UPDATE Familii SET Strada = ?, Nr = ?, Bloc = ?, Sc = ?, Ap = ?, Localitate = ?, "
                                 "Judet = ?, Telefon = ?, Mobil = ?"),
                  {QStringLiteral("Mihail Kogalniceanu"), QStringLiteral("123A"), QStringLiteral("B12"),
                   QStringLiteral("C"), QStringLiteral("145"), QStringLiteral("Targu Secuiesc"),
                   QStringLiteral("Caras-Severin"), QStringLiteral("0265441234"), QStringLiteral("0744123456")});
        b.executa(QStringLiteral("UPDATE CereriMembrii SET CetatenieID = 2, TaraCetatenie = ?, ResedintaID = 2, "
                                 "LocResedinta = ?, TaraResedinta = ?, OcupatieID = 10, LucreazaAfara = TRUE"),
                  {QStringLiteral("R. Moldova"), QStringLiteral("Chisinau"), QStringLiteral("Moldova")});
        // The spouse, and eight children with their school and class.
        DateTest::Persoana(b, 1,
                           {{"Nume", QStringLiteral("POPESCU-VASILESCU")},
                            {"Prenume", QStringLiteral("GHEORGHE-CRISTIAN")},
                            {"CNP", DateTest::CNPNascut(QDate(1979, 3, 4), 2)},
                            {"TipAct", 2},
                            {"SerieBI", "MS"},
                            {"NrBI", "654321"}},
                           {{"RudenieID", 2}, {"TaraCetatenie", QStringLiteral("R. Moldova")}});
        for (int i = 0; i < 8; ++i)
            DateTest::Persoana(b, 1,
                               {{"Nume", QStringLiteral("POPESCU-VASILESCU")},
                                {"Prenume", QStringLiteral("ALEXANDRU-IONUT")},
                                {"CNP", DateTest::CNPNascut(QDate(2010 + i, 5, 6), 3 + i)},
                                {"TipAct", 1},
                                {"SerieBI", "MS"},
                                {"NrBI", "1234567"}},
                               {{"RudenieID", 3},
                                {"UScolara", QStringLiteral("Scoala Gimnaziala Mihai Eminescu")},
                                {"Clasa", QStringLiteral("a VIII-a B")},
                                {"DrAsSociala", 2},
                                {"RealizeazaVenit", false}});
        for (int cod : {1, 3})
            DateTest::Rand(b, QStringLiteral("Locuinte"),
                           {{"CerereID", 1}, {"Cod", cod}, {"NrCamere", 12}, {"Suprafata", 123.45}});
        for (int cod = 1; cod <= 79; ++cod)
            DateTest::Venit(b, 1, cod, 9999.99);
    }

private slots:
    void faraSuprapuneri_data()
    {
        QTest::addColumn<int>("tip");
        QTest::addColumn<int>("mod");
        QTest::newRow("cerere goala") << int(FormularCerere) << int(ModGol);
        QTest::newRow("cerere completata") << int(FormularCerere) << int(ModCompletat);
        QTest::newRow("ancheta goala") << int(FormularAncheta) << int(ModGol);
        QTest::newRow("ancheta completata") << int(FormularAncheta) << int(ModCompletat);
    }

    void faraSuprapuneri()
    {
        QFETCH(int, tip);
        QFETCH(int, mod);
        QTemporaryDir dir;
        const QString pdf = dir.filePath(QStringLiteral("formular.pdf"));
        QString eroare;
        QVERIFY2(ScriePdfFormular(pdf, tip, mod, {&bd(), 1}, {}, &eroare), qPrintable(eroare));
        const auto pagini = CuvintePdf(pdf);
        QCOMPARE(pagini.size(), NumarPagini(tip));
        QStringList gresite;
        for (int i = 0; i < pagini.size(); ++i)
            for (const QString& s : Suprapuneri(pagini[i]))
                gresite << QStringLiteral("pagina %1: %2").arg(i + 1).arg(s);
        QVERIFY2(gresite.isEmpty(), qPrintable(gresite.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(TestFormulareFaraSuprapuneri)
#include "tst_FormulareFaraSuprapuneri.moc"
