// The documents that lapse in the active month, with the member they belong to.
#include "reports/Rapoarte.h"

#include "common/Data.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"

void ListaActeExpira(const BD& bd, const SelectieRaport& sel, ReportGrid& g, bool pentruExport)
{
    ReseteazaGrid(g, Proces::setari().HeightRowRaport);
    g.SetCols(11);
    g.SetRows(7);
    // The two dates whose width the office left to the grid take the width of the first date,
    // so that a whole date shows; the reason as wide as the address.
    const double latimi[] = {38, 80, 110, 100, 160, 100, 100, 100, 100, 160};
    for (int c = 1; c <= 10; ++c)
        g.SetColumnWidth(c, pentruExport ? latimi[c - 1] / 7.0 : latimi[c - 1]);
    if (pentruExport) {
        g.SetUnitatiFoaie(true);
        g.SetDefaultRowHeight(15);
    }
    g.SetColumnAlign(1, ReportGrid::Dreapta);
    g.SetColumnContent(1, ReportGrid::Intreg);
    g.SetColumnAlign(4, ReportGrid::Centru);
    g.SetRowHeight(1, 30);
    g.SetRowHeight(6, 40);
    const int ultimaCol = g.Cols() - 1;
    g.MergeRange(2, 1, 2, ultimaCol);
    g.SetCellBold(2, 1, true);
    g.SetCellFontSize(2, 1, 12);
    g.SetCellAlign(2, 1, ReportGrid::Centru);
    g.SetCellText(2, 1, QStringLiteral("LISTA ACTE CARE EXPIRA IN LUNA ") + NumeLuna(sel.luna).toUpper());
    const QStringList capete{QStringLiteral("Nr. Crt."), QStringLiteral("Numele"),   QStringLiteral("Prenumele"),
                             QStringLiteral("CNP"),      QStringLiteral("Adresa"),   QStringLiteral("Tip act"),
                             QStringLiteral("Data Dep"), QStringLiteral("Data Act"), QStringLiteral("Data expirarii"),
                             QStringLiteral("Motivul")};
    for (int c = 0; c < capete.size(); ++c)
        g.SetCellText(6, c + 1, capete[c]);
    g.RangeAlign(6, 1, 6, ultimaCol, ReportGrid::Centru);
    g.RangeBold(6, 1, 6, ultimaCol, true);
    g.RangeWrap(6, 1, 6, ultimaCol, true);
    g.SetRanduriAntet(6, 6);

    // The member and the name of the document's kind are read with the row.
    const QString sql =
        QStringLiteral(
            "SELECT M.Nume, M.Prenume, M.CNP, F.Localitate, F.Strada, F.Nr, F.Sc, F.Ap, A.TipAdeverinta, "
            "(SELECT G.Continut FROM DateGen G WHERE G.Tip = 30 AND G.DataID = A.TipAdeverinta LIMIT 1), "
            "A.DataDepunerii, A.DataAdeverinta, A.DataExpAdev, C.MotivStare "
            "FROM Adeverinte A INNER JOIN Cereri C ON C.CerereID = A.CerereID "
            "INNER JOIN Familii F ON F.FamilieID = C.FamilieID LEFT JOIN Membrii M ON M.MembruID = A.MembruID "
            "WHERE C.Stare IN (2,3,6,7,8) AND ") +
        bd.luna(QStringLiteral("A.DataExpAdev")) + QStringLiteral(" = ? AND ") +
        bd.an(QStringLiteral("A.DataExpAdev")) + QStringLiteral(" = ? ORDER BY C.NrCerere, A.AdevID");
    Rezultat r = bd.selecteaza(sql, {sel.luna, sel.an});
    const QChar separator = pentruExport ? QLatin1Char('/') : QLatin1Char('-');
    int nr = 1;
    while (r.next()) {
        QString adresa = r.valoare(3).toString();
        const auto parte = [&](int i, const char* prefix) {
            const QString v = r.valoare(i).toString();
            if (!v.isEmpty())
                adresa += QLatin1String(prefix) + v;
        };
        parte(4, ", ");
        parte(5, ", nr. ");
        parte(6, ", sc. ");
        parte(7, ", ap. ");
        QString tip;
        if (r.valoare(8).isNull())
            tip = QStringLiteral("nesetat");
        else
            tip = r.valoare(9).isNull() ? QStringLiteral("necunoscut") : r.valoare(9).toString();
        g.AddRow(QStringList{QString::number(nr), r.valoare(0).toString(), r.valoare(1).toString(),
                             r.valoare(2).toString(), adresa, tip, TextData(DataDinBD(r.valoare(10)), separator),
                             TextData(DataDinBD(r.valoare(11)), separator),
                             TextData(DataDinBD(r.valoare(12)), separator), r.valoare(13).toString()});
        ++nr;
    }
    const int ultimul = g.Rows() - 1;
    // The address, the document's kind and the reason go on a second line rather than be cut.
    for (int c : {5, 6, 10})
        g.RangeWrap(7, c, ultimul, c, true);
    ChenarTabel(g, 6, ultimul, ultimaCol);
    g.RangeBorder(6, 1, 6, ultimaCol, ReportGrid::MargJos, ReportGrid::Groasa);
    for (int c : {2, 5})
        g.RangeBorder(6, c, ultimul, c, ReportGrid::MargDreapta, ReportGrid::Groasa);
    g.Refresh();
    g.SetPainting(true);
}
