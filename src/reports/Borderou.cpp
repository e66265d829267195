#include "reports/Borderou.h"

#include "common/Bani.h"
#include "common/Proces.h"
#include "database/Adresa.h"
#include "database/BD.h"
#include "common/Data.h"
#include "common/Text.h"

#include <QStringBuilder>

const QStringList& ListaStariBorderou()
{
    static const QStringList l{QStringLiteral("Toate cererile"), QStringLiteral("In plata"),
                               QStringLiteral("Suspendate"), QStringLiteral("Incetate"), QStringLiteral("Respinse")};
    return l;
}

const QStringList& ListaTipAlocatie()
{
    static const QStringList l{QStringLiteral("Toate alocatiile"), QStringLiteral("Aloc complementare"),
                               QStringLiteral("Aloc monoparentale")};
    return l;
}

QString SqlBorderou(const SelectieRaport& sel)
{
    QString sql = QStringLiteral(
        "SELECT C.NrCerere, C.DataCerere, M.Nume, M.Prenume, M.CNP, F.Localitate, F.Strada, F.Nr, F.Sc, F.Ap, "
        "C.Lege416, C.NrMembrii, C.NrCopii, C.Cuantum "
        "FROM Familii F, Cereri C, Membrii M WHERE F.FamilieID = C.FamilieID AND C.MembruID1 = M.MembruID");
    // The positions are the statuses less one and the kinds themselves; they come from the
    // lists, never from typed text.
    if (sel.index > 0)
        sql += QStringLiteral(" AND C.Stare = %1").arg(sel.index + 1);
    if (sel.tip > 0)
        sql += QStringLiteral(" AND C.TipCerere = %1").arg(sel.tip);
    return sql + OrdineCuIntroducere(ClauzaOrdonare(sel.ord1, sel.ord2, false));
}

QString AdresaBorderou(const QString& localitate, const QString& strada, const QString& nr, const QString& sc,
                       const QString& ap)
{
    return AdresaCerere(localitate, strada, nr, sc, ap, QStringLiteral("str."));
}

ScriereBorderou::ScriereBorderou(const BD& bd, const QString& subtitlu, int luna, int an, ReportGrid& g) : m_g(g)
{
    ReseteazaGrid(g, Proces::setari().HeightRowBorderou);
    g.SetCols(10);
    g.SetRows(9);
    // The office's widths, a third wider: every cell prints bold, and the heads "Nr Membrii" and
    // "Nr Copii" then show whole in their narrow columns.
    const double latimi[] = {30, 120, 200, 100, 200, 40, 40, 40, 60};
    const int alinieri[] = {ReportGrid::Dreapta,  ReportGrid::Dreapta,  ReportGrid::Stanga,
                            ReportGrid::Centru,   ReportGrid::Centru,   ReportGrid::Dreapta,
                            ReportGrid::Implicit, ReportGrid::Implicit, ReportGrid::Implicit};
    for (int c = 1; c <= 9; ++c) {
        g.SetColumnWidth(c, latimi[c - 1] * 4 / 3);
        g.SetColumnAlign(c, alinieri[c - 1]);
    }
    for (int c : {1, 7, 8})
        g.SetColumnContent(c, ReportGrid::Intreg);
    g.SetColumnContent(9, ReportGrid::Suma);
    const auto primarie = CitesteRandPrimarie(bd);
    m_asSocial = primarie ? primarie->value(QStringLiteral("AsSocial")) : QString();
    ScrieBlocTitlu(g, primarie, QStringLiteral("BORDEROU"), subtitlu, luna, an);
    ScrieAntetLista(g, {QStringLiteral("Nr. Crt."), QStringLiteral("Nr/Data cerere"), QStringLiteral("Titular dosar"),
                        QStringLiteral("CNP"), QStringLiteral("Adresa"), QStringLiteral("Lege 416"),
                        QStringLiteral("Nr Membrii"), QStringLiteral("Nr Copii"), QStringLiteral("Suma")});
}

void ScriereBorderou::adauga(RandBorderou&& r)
{
    AdaugaRandLista(m_g, {QString::number(++m_nr), r.nrCerere % QLatin1String(" / ") % TextDataCerere(r.dataCerere),
                          std::move(r.titular), std::move(r.cnp), std::move(r.adresa),
                          r.lege416 ? QStringLiteral("DA") : QStringLiteral("NU"), std::move(r.nrMembrii),
                          std::move(r.nrCopii), r.suma.textSuma()});
    m_total += r.suma;
}

void ScriereBorderou::incheie()
{
    const int ultimul = m_g.Rows() - 1;
    m_g.RangeBorder(ultimul, 1, ultimul, m_g.Cols() - 1, ReportGrid::MargJos, ReportGrid::Groasa);
    m_g.AddRow(QStringLiteral("\t\t\t\tTOTAL GENERAL\t\t\t\t") + m_total.textSuma());
    ScrieSemnatura(m_g, m_asSocial);
    // Every cell of this document prints bold, head and body alike.
    m_g.RangeBold(1, 1, m_g.Rows() - 1, m_g.Cols() - 1, true);
    m_g.Refresh();
    m_g.SetPainting(true);
}

void ScrieBorderou(const BD& bd, const QString& subtitlu, int luna, int an, const std::vector<RandBorderou>& randuri,
                   ReportGrid& g)
{
    ScriereBorderou s(bd, subtitlu, luna, an, g);
    for (RandBorderou r : randuri)
        s.adauga(std::move(r));
    s.incheie();
}

void ConstruiesteBorderou(const BD& bd, const SelectieRaport& sel, ReportGrid& g)
{
    const QString stare =
        sel.index >= 0 && sel.index < ListaStariBorderou().size() ? ListaStariBorderou()[sel.index] : QString();
    ScriereBorderou scriere(bd, QStringLiteral("privind cererile ") + stare, sel.luna, sel.an, g);
    // A count as the engine gives it: a whole number through the shared small texts.
    const auto numar = [](const QVariant& v) {
        return v.typeId() == QMetaType::Int || v.typeId() == QMetaType::LongLong ? TextIntreg(v.toLongLong())
                                                                                 : v.toString();
    };
    Rezultat r = bd.selecteaza(SqlBorderou(sel));
    while (r.next())
        scriere.adauga({r.valoare(0).toString(), DataDinBD(r.valoare(1)),
                        r.valoare(2).toString() % QLatin1Char(' ') % r.valoare(3).toString(), r.valoare(4).toString(),
                        AdresaBorderou(r.valoare(5).toString(), r.valoare(6).toString(), r.valoare(7).toString(),
                                       r.valoare(8).toString(), r.valoare(9).toString()),
                        r.valoare(10).toBool(), numar(r.valoare(11)), numar(r.valoare(12)),
                        Bani::dinVariant(r.valoare(13))});
    scriere.incheie();
}
