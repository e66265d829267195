#include "reports/RaportComun.h"

#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"
#include "database/Schema.h"
#include "database/ValoriColoane.h"

#include <QSqlRecord>

const QStringList& ListaOrdonare()
{
    static const QStringList l{QStringLiteral("Ordinea introducerii datelor"), QStringLiteral("NrCerere"),
                               QStringLiteral("Nume"), QStringLiteral("Strada")};
    return l;
}

QStringList ListaOrdonare2(bool cuNr)
{
    QStringList l = ListaOrdonare();
    if (cuNr)
        l << QStringLiteral("Nr");
    return l;
}

QString ClauzaOrdonare(int ord1, int ord2, bool cuNr, const BD* nrCaNumar)
{
    const QStringList& l1 = ListaOrdonare();
    const QStringList l2 = ListaOrdonare2(cuNr);
    if (ord1 <= 0 || ord1 >= l1.size())
        return QString();
    // The entries are the field names themselves: the clause takes them as they stand.
    QString ord = QStringLiteral(" ORDER BY ") + l1[ord1];
    if (ord2 <= 0 || ord2 >= l2.size())
        return ord;
    if (nrCaNumar && l2[ord2] == QLatin1String("Nr"))
        return ord + QStringLiteral(", ") + nrCaNumar->numarDinText(QStringLiteral("Nr"));
    return ord + QStringLiteral(", ") + l2[ord2];
}

QString OrdineCuIntroducere(const QString& ord, const QString& cheie)
{
    return ord.isEmpty() ? QStringLiteral(" ORDER BY ") + cheie : ord + QStringLiteral(", ") + cheie;
}

std::optional<QHash<QString, QString>> CitesteRandPrimarie(const BD& bd)
{
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT * FROM DatePrimarie"));
    if (!r.next())
        return std::nullopt;
    QHash<QString, QString> h;
    const QSqlRecord rec = r.interogare().record();
    for (int i = 0; i < rec.count(); ++i) {
        const QVariant v = r.valoare(i);
        // Under the schema's own spelling: a server gives the names in lower case.
        const Camp* c = GasesteCamp(QStringLiteral("DatePrimarie"), rec.fieldName(i));
        h.insert(c ? c->nume : rec.fieldName(i), v.isNull() ? QString() : v.toString());
    }
    return h;
}

void ReseteazaGrid(ReportGrid& g, int inaltimeRand)
{
    // Every report starts from a grid as new: the widths, alignments, row heights and page of
    // the report shown before it do not stay behind.
    g.Goleste();
    g.SetPainting(false);
    const Setari& s = Proces::setari();
    g.SetDefaultFont(QStringLiteral("Arial"), s.FontSize0 > 0 ? s.FontSize0 : 10, s.FontB0 != 0);
    g.SetDefaultRowHeight(inaltimeRand > 0 ? inaltimeRand : 36);
}

void ScrieBlocTitlu(ReportGrid& g, const std::optional<QHash<QString, QString>>& primarie, const QString& titlu,
                    const QString& subtitlu, int luna, int an)
{
    const int ultima = g.Cols() - 1;
    g.MergeRange(1, 1, 1, 2);
    g.SetCellAlign(1, 1, ReportGrid::Stanga);
    g.SetCellText(1, 1, QStringLiteral("ROMANIA"));
    g.MergeRange(2, 1, 2, 3);
    g.MergeRange(2, 3, 2, 5);
    g.SetCellAlign(2, 1, ReportGrid::Stanga);
    g.MergeRange(3, 1, 3, 2);
    g.SetCellAlign(3, 1, ReportGrid::Stanga);
    if (primarie) {
        g.SetCellText(2, 1, QStringLiteral("Consiliul local ") + primarie->value(QStringLiteral("Localitate")));
        g.SetCellText(3, 1, primarie->value(QStringLiteral("Judet")));
    } else {
        Mesaj(MesajFaraPrimarie);
    }
    g.MergeRange(4, 1, 4, ultima);
    g.SetRowHeight(4, 36);
    g.SetCellAlign(4, 1, ReportGrid::Centru);
    g.SetCellBold(4, 1, true);
    g.SetCellText(4, 1, titlu);
    g.MergeRange(5, 1, 5, ultima);
    g.SetCellAlign(5, 1, ReportGrid::Centru);
    g.SetCellText(5, 1, subtitlu);
    g.MergeRange(6, 1, 6, ultima);
    g.SetCellAlign(6, 1, ReportGrid::Centru);
    g.SetCellText(6, 1, QStringLiteral("Luna ") + NumeLuna(luna) + QStringLiteral(" anul ") + QString::number(an));
}

void ScrieAntetLista(ReportGrid& g, const QStringList& capete)
{
    const int ultima = g.Cols() - 1;
    for (int c = 0; c < capete.size(); ++c)
        g.SetCellText(8, c + 1, capete[c]);
    g.SetRowHeight(8, 50);
    g.RangeWrap(8, 1, 8, ultima, true);
    g.RangeAlign(8, 1, 8, ultima, ReportGrid::Centru);
    g.RangeBold(8, 1, 8, ultima, true);
    g.RangeBorder(8, 1, 8, ultima, ReportGrid::MargSus, ReportGrid::Groasa);
    g.RangeBorder(8, 1, 8, ultima, ReportGrid::MargJos, ReportGrid::Subtire);
    g.SetRanduriAntet(8, 8);
}

void AdaugaRandLista(ReportGrid& g, const QStringList& celule)
{
    g.AddRow(celule);
    const int r = g.Rows() - 1;
    g.RangeBorder(r, 1, r, g.Cols() - 1, ReportGrid::MargJos, ReportGrid::Subtire);
}

void ScrieRanduriInchidere(ReportGrid& g, const QString& asSocial, int coloana)
{
    g.AddRow();
    ScrieSemnatura(g, asSocial, coloana);
}

void ScrieSemnatura(ReportGrid& g, const QString& asSocial, int coloana)
{
    const int n = g.Cols();
    // The last three columns are merged on both lines. A column that falls inside the merge
    // gives its text to the merged cell, centred, so that the signature shows and prints.
    const int prima = n - 3;
    const bool inUnire = coloana >= prima && coloana <= n - 1;
    for (const QString& text : {QStringLiteral("As Social,"), asSocial}) {
        g.AddRow();
        const int r = g.Rows() - 1;
        g.MergeRange(r, prima, r, n - 1);
        g.SetCellText(r, inUnire ? prima : coloana, text);
        if (inUnire)
            g.SetCellAlign(r, prima, ReportGrid::Centru);
    }
    g.AddRow();
}

QString TextDataCerere(const QDate& d)
{
    return EsteDataZero(d) ? QString() : TextData(d).append(QLatin1String("  "));
}

QString TextDataCerere(const QVariant& data)
{
    return TextDataCerere(DataDinBD(data));
}

QDate AziSelectie(const SelectieRaport& s)
{
    return s.azi.isValid() ? s.azi : Ceas::azi();
}

void ChenarTabel(ReportGrid& g, int primul, int ultimul, int ultimaCol)
{
    g.RangeBorder(primul, 1, ultimul, ultimaCol, ReportGrid::InteriorVertical, ReportGrid::Subtire);
    g.RangeBorder(primul, 1, ultimul, ultimaCol, ReportGrid::InteriorOrizontal, ReportGrid::Subtire);
    for (int m : {ReportGrid::MargStanga, ReportGrid::MargDreapta, ReportGrid::MargSus, ReportGrid::MargJos})
        g.RangeBorder(primul, 1, ultimul, ultimaCol, m, ReportGrid::Groasa);
}
