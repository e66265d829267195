// The lists of persons: the status lists, the children turning 18 or 7 and the applications
// of a month long past. They share one layout of six columns under the title block.
#include "reports/Rapoarte.h"

#include "common/Data.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"

namespace {

// The select list that every person list reads, in the order of its columns.
const QString Coloane =
    QStringLiteral("SELECT F.NrDosar, C.NrCerere, C.DataCerere, M.Nume, M.Prenume, M.CNP, C.NrCopii ");

// The layout, the title block and the heads. In the workbook the widths are characters.
void pregateste(ReportGrid& g, const std::optional<QHash<QString, QString>>& primarie, const SelectieRaport& sel,
                const QString& subtitlu, bool pentruExport)
{
    ReseteazaGrid(g, Proces::setari().HeightRowRaport);
    g.SetCols(7);
    g.SetRows(9);
    const double latimi[] = {30, 60, 130, 200, 110, 60};
    const double latimiFoaie[] = {4, 6, 16, 31, 16, 6};
    const int alinieri[] = {ReportGrid::Dreapta, ReportGrid::Dreapta, ReportGrid::Dreapta,
                            ReportGrid::Stanga,  ReportGrid::Centru,  ReportGrid::Dreapta};
    for (int c = 1; c <= 6; ++c) {
        g.SetColumnWidth(c, pentruExport ? latimiFoaie[c - 1] : latimi[c - 1]);
        g.SetColumnAlign(c, alinieri[c - 1]);
    }
    for (int c : {1, 2, 6})
        g.SetColumnContent(c, ReportGrid::Intreg);
    if (pentruExport) {
        g.SetUnitatiFoaie(true);
        g.SetDefaultRowHeight(15);
    }
    ScrieBlocTitlu(g, primarie, QStringLiteral("LISTA"), subtitlu, sel.luna, sel.an);
    ScrieAntetLista(g, {QStringLiteral("Nr. Crt."), QStringLiteral("Nr dosar"), QStringLiteral("Nr/Data cerere"),
                        QStringLiteral("Nume si Prenume"), QStringLiteral("CNP"), QStringLiteral("Nr copii")});
}

// The rows, the thick line under the last, the closing rows ("As Social," in column 5 of the
// grid, in column 6 of the workbook).
void scrieCorp(const BD& bd, ReportGrid& g, const std::optional<QHash<QString, QString>>& primarie, const QString& sql,
               const QVariantList& valori, bool pentruExport)
{
    Rezultat r = bd.selecteaza(sql, valori);
    int nr = 1;
    while (r.next()) {
        AdaugaRandLista(g, {QString::number(nr), r.valoare(0).toString(),
                            r.valoare(1).toString() + QStringLiteral(" / ") + TextDataCerere(r.valoare(2)),
                            r.valoare(3).toString() + QLatin1Char(' ') + r.valoare(4).toString(),
                            r.valoare(5).toString(), r.valoare(6).toString()});
        ++nr;
    }
    const int ultimul = g.Rows() - 1;
    g.RangeBorder(ultimul, 1, ultimul, g.Cols() - 1, ReportGrid::MargJos, ReportGrid::Groasa);
    ScrieRanduriInchidere(g, primarie ? primarie->value(QStringLiteral("AsSocial")) : QString(), pentruExport ? 6 : 5);
    g.Refresh();
    g.SetPainting(true);
}

QString ordine(const SelectieRaport& sel)
{
    // Two children of one application keep the order they were entered in as well.
    return OrdineCuIntroducere(ClauzaOrdonare(sel.ord1, sel.ord2, true), QStringLiteral("C.CerereID, M.MembruID"));
}

} // namespace

std::pair<int, int> LunaInUrma(int luna, int an, int nrLuni)
{
    const int q = nrLuni / 12, r = nrLuni % 12;
    if (luna <= r)
        return {12 + luna - r, an - q - 1};
    return {luna - r, an - q};
}

std::pair<QDate, QDate> Interval18Ani(int luna, int an)
{
    int l = luna, a = an;
    if (luna == 12) {
        l = 1;
        a = an + 1;
    }
    return {DataSerial(a, l + 1, 1), DataSerial(a, l + 2, 1)};
}

void ListaStare(const BD& bd, const SelectieRaport& sel, int parametru, ReportGrid& g)
{
    const auto primarie = CitesteRandPrimarie(bd);
    pregateste(g, primarie, sel, QStringLiteral("persoanelor"), false);
    const QString tip = sel.tip == 1   ? QStringLiteral(" AND C.TipCerere=1 ")
                        : sel.tip == 2 ? QStringLiteral(" AND C.TipCerere=2 ")
                                       : QString();
    // The family is joined on the application's own key; no other report does so.
    QString sql = Coloane + QStringLiteral("FROM Familii F, Cereri C, Membrii M WHERE F.FamilieID = C.CerereID "
                                           "AND C.MembruID1 = M.MembruID ");
    if (parametru == 2)
        sql += QStringLiteral("AND C.Stare IN (2,6,7,8) ");
    else if (parametru != 0)
        sql += QStringLiteral("AND C.Stare = %1").arg(parametru);
    scrieCorp(bd, g, primarie, sql + tip + ordine(sel), {}, false);
}

void ListaOptsprezeceAni(const BD& bd, const SelectieRaport& sel, ReportGrid& g)
{
    const auto primarie = CitesteRandPrimarie(bd);
    pregateste(g, primarie, sel, QStringLiteral("persoanelor care implinesc 18 ani "), false);
    const auto [inceput, sfarsit] = Interval18Ani(sel.luna, sel.an);
    const QString sql =
        Coloane +
        QStringLiteral(
            "FROM Familii F, Cereri C, Membrii M, CereriMembrii CM WHERE F.FamilieID = C.FamilieID "
            "AND C.CerereID = CM.CerereID AND CM.MembruID = M.MembruID AND CM.Data18Ani >= ? AND CM.Data18Ani < ?");
    scrieCorp(bd, g, primarie, sql + ordine(sel), {DataPentruBD(inceput), DataPentruBD(sfarsit)}, false);
}

void ListaSapteAni(const BD& bd, const SelectieRaport& sel, ReportGrid& g, bool pentruExport)
{
    const auto primarie = CitesteRandPrimarie(bd);
    pregateste(g, primarie, sel, QStringLiteral("copiilor care implinesc 7 ani "), pentruExport);
    // The year of birth is read from the CNP's digits 2-3 against the active year less 2007,
    // which holds for children born from 2000 on; a missing CNP reads 0 on both.
    const QString sql =
        Coloane +
        QStringLiteral(
            "FROM Familii F, Cereri C, Membrii M, CereriMembrii CM WHERE F.FamilieID = C.FamilieID "
            "AND C.CerereID = CM.CerereID AND CM.MembruID = M.MembruID AND COALESCE(%1, 0) = ? AND COALESCE(%2, 0) = ?")
            .arg(bd.numarDinText(QStringLiteral("SUBSTR(M.CNP, 2, 2)")),
                 bd.numarDinText(QStringLiteral("SUBSTR(M.CNP, 4, 2)")));
    scrieCorp(bd, g, primarie, sql + ordine(sel), {sel.an - 2007, sel.luna}, pentruExport);
}

void ListaLuni(const BD& bd, const SelectieRaport& sel, ReportGrid& g, bool pentruExport)
{
    const auto primarie = CitesteRandPrimarie(bd);
    // The subtitle says six months whatever the number typed.
    pregateste(g, primarie, sel, QStringLiteral("cererilor care implinesc 6 luni "), pentruExport);
    const auto [luna, an] = LunaInUrma(sel.luna, sel.an, int(ValoareIntreaga(sel.nrLuni)));
    QString sql = Coloane + QStringLiteral("FROM Familii F, Cereri C, Membrii M WHERE F.FamilieID = C.FamilieID "
                                           "AND C.MembruID1 = M.MembruID AND C.Stare IN (1,2,6,7,8) AND ");
    QVariantList valori;
    if (pentruExport) {
        // The workbook holds every application older than that month, not only those of it.
        sql += QStringLiteral("C.DataCerere < ?");
        valori << DataPentruBD(DataSerial(an, luna, 1));
    } else {
        sql += bd.luna(QStringLiteral("C.DataCerere")) + QStringLiteral(" = ? AND ") +
               bd.an(QStringLiteral("C.DataCerere")) + QStringLiteral(" = ?");
        valori << luna << an;
    }
    scrieCorp(bd, g, primarie, sql + ordine(sel), valori, pentruExport);
}
