// The pupils' school certificates: the applications whose first pupil has, or has not, a
// certificate still valid today. The row names the holder of the application, not the pupil.
#include "reports/Rapoarte.h"

#include "common/Data.h"
#include "common/Proces.h"
#include "database/BD.h"

void ListaAdeverinte(const BD& bd, const SelectieRaport& sel, bool cuAdeverinta, ReportGrid& g)
{
    ReseteazaGrid(g, Proces::setari().HeightRowRaport);
    g.SetCols(6);
    g.SetRows(9);
    g.SetColumnWidth(1, 30);
    g.SetColumnAlign(1, ReportGrid::Dreapta);
    g.SetColumnContent(1, ReportGrid::Intreg);
    g.SetColumnWidth(2, 200);
    g.SetColumnAlign(2, ReportGrid::Stanga);
    g.SetColumnWidth(3, 200);
    g.SetColumnAlign(3, ReportGrid::Centru);
    const auto primarie = CitesteRandPrimarie(bd);
    ScrieBlocTitlu(g, primarie, QStringLiteral("LISTA"),
                   cuAdeverinta ? QStringLiteral("elevi care au adeverinta de scolarizare ")
                                : QStringLiteral("elevi fara adeverinta de scolarizare "),
                   sel.luna, sel.an);
    ScrieAntetLista(g, {QStringLiteral("Nr. Crt."), QStringLiteral("Titular"), QStringLiteral("CNP")});

    // Only the first pupil of an application is looked at; Elevi is 0 when it has none.
    const QString primulElev = QStringLiteral(
        "(SELECT CM.MembruID FROM CereriMembrii CM WHERE CM.OcupatieID = 8 AND CM.CerereID = C.CerereID LIMIT 1)");
    const QString sql =
        QStringLiteral("SELECT M.Nume, M.Prenume, M.CNP, "
                       "(SELECT COUNT(*) FROM CereriMembrii CM WHERE CM.OcupatieID = 8 AND CM.CerereID = C.CerereID) "
                       "AS Elevi, (SELECT COUNT(*) FROM Adeverinte A WHERE A.CerereID = C.CerereID AND A.MembruID = ") +
        primulElev +
        QStringLiteral(" AND A.DataExpAdev > ?) AS Valide FROM Familii F INNER JOIN (Cereri C INNER JOIN Membrii M ON "
                       "C.MembruID1 = M.MembruID) ON F.FamilieID = C.FamilieID") +
        OrdineCuIntroducere(ClauzaOrdonare(sel.ord1, sel.ord2, true));
    Rezultat r = bd.selecteaza(sql, {DataPentruBD(AziSelectie(sel))});
    int nr = 1;
    while (r.next()) {
        if (r.valoare(3).toLongLong() == 0)
            continue;
        if ((r.valoare(4).toLongLong() > 0) != cuAdeverinta)
            continue;
        AdaugaRandLista(g, {QString::number(nr), r.valoare(0).toString() + QLatin1Char(' ') + r.valoare(1).toString(),
                            r.valoare(2).toString()});
        ++nr;
    }
    const int ultimul = g.Rows() - 1;
    g.RangeBorder(ultimul, 1, ultimul, g.Cols() - 1, ReportGrid::MargJos, ReportGrid::Groasa);
    ScrieRanduriInchidere(g, primarie ? primarie->value(QStringLiteral("AsSocial")) : QString());
    g.Refresh();
    g.SetPainting(true);
}
