#include "reports/PlatiFamilie.h"

#include "common/Data.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"
#include "database/CoduriDateGen.h"
#include "reports/RaportComun.h"
#include "reports/ReportGrid.h"

#include <QHash>
#include <QJsonArray>

PlatiFamilie CitestePlatiFamilie(const BD& bd, qint64 cerereId, std::optional<int> an)
{
    PlatiFamilie p;
    p.cerereId = cerereId;
    p.an = an;
    QString sql = QStringLiteral(
        "SELECT S.An, S.Luna, S.Stare, S.NrCopii, S.Cuantum, S.NrDisp, S.DataDisp, S.NrCerere, S.Nume, S.Prenume "
        "FROM StatPlataLuna S JOIN LuniInchise L ON L.An = S.An AND L.Luna = S.Luna "
        "WHERE S.CerereID = ? AND L.Inchisa = ?");
    QVariantList v{cerereId, true};
    if (an) {
        sql += QStringLiteral(" AND S.An = ?");
        v << *an;
    }
    Rezultat r = bd.selecteaza(sql + QStringLiteral(" ORDER BY S.An, S.Luna"), v);
    while (r.next()) {
        PlataLunara x;
        x.luna = {r.valoare(1).toInt(), r.valoare(0).toInt()};
        x.stare = r.valoare(2).toInt();
        x.nrCopii = r.valoare(3).toInt();
        x.cuantum = Bani::dinVariant(r.valoare(4));
        if (!r.valoare(5).isNull())
            x.nrDisp = r.valoare(5).toDouble();
        x.dataDisp = DataDinBD(r.valoare(6));
        p.total += x.cuantum;
        // The number and holder the month was paid under; the application's own below, when
        // it is still there.
        p.nrCerere = r.valoare(7).toLongLong();
        p.titular = (r.valoare(8).toString() + QLatin1Char(' ') + r.valoare(9).toString()).trimmed();
        p.luni.push_back(x);
    }
    Rezultat c = bd.selecteaza(QStringLiteral("SELECT C.NrCerere, M.Nume, M.Prenume FROM Cereri C LEFT JOIN Membrii M "
                                              "ON M.MembruID = C.MembruID1 WHERE C.CerereID = ?"),
                               {cerereId});
    if (c.next()) {
        p.nrCerere = c.valoare(0).toLongLong();
        p.titular = (c.valoare(1).toString() + QLatin1Char(' ') + c.valoare(2).toString()).trimmed();
    }
    return p;
}

std::vector<int> AniCuPlati(const BD& bd, qint64 cerereId)
{
    std::vector<int> ani;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT DISTINCT S.An FROM StatPlataLuna S JOIN LuniInchise L ON L.An = "
                                              "S.An AND L.Luna = S.Luna WHERE S.CerereID = ? AND L.Inchisa = ? "
                                              "ORDER BY S.An DESC"),
                               {cerereId, true});
    while (r.next())
        ani.push_back(r.valoare(0).toInt());
    return ani;
}

QString TextDispozitiePlata(const PlataLunara& p)
{
    if (!p.nrDisp)
        return QString();
    QString t = QStringLiteral("Nr. ") + TextNumar(*p.nrDisp);
    if (p.dataDisp.isValid())
        t += QStringLiteral(" din ") + TextData(p.dataDisp);
    return t;
}

QJsonObject PlatiJson(const PlatiFamilie& p)
{
    QJsonArray luni;
    for (const PlataLunara& x : p.luni)
        luni.append(
            QJsonObject{{QStringLiteral("luna"), x.luna.luna},
                        {QStringLiteral("an"), x.luna.an},
                        {QStringLiteral("Stare"), x.stare},
                        {QStringLiteral("NrCopii"), x.nrCopii},
                        {QStringLiteral("Cuantum"), x.cuantum.textFix()},
                        {QStringLiteral("NrDisp"), x.nrDisp ? QJsonValue(*x.nrDisp) : QJsonValue(QJsonValue::Null)},
                        {QStringLiteral("DataDisp"), x.dataDisp.isValid() ? QJsonValue(x.dataDisp.toString(Qt::ISODate))
                                                                          : QJsonValue(QJsonValue::Null)}});
    return {{QStringLiteral("CerereID"), p.cerereId},
            {QStringLiteral("NrCerere"), p.nrCerere},
            {QStringLiteral("Titular"), p.titular},
            {QStringLiteral("an"), p.an ? QJsonValue(*p.an) : QJsonValue(QJsonValue::Null)},
            {QStringLiteral("luni"), luni},
            {QStringLiteral("total"), p.total.textFix()}};
}

void ConstruiestePlatiFamilie(const BD& bd, const PlatiFamilie& p, ReportGrid& g)
{
    ReseteazaGrid(g, Proces::setari().HeightRowRaport);
    ReportGrid::PaginaSetata pagina;
    pagina.orientare = 1; // portrait: one page holds a year
    g.SetPageSetup(pagina);
    g.SetCols(7);
    g.SetRows(9);
    const double latimi[] = {30, 105, 185, 40, 70, 150};
    const int alinieri[] = {ReportGrid::Dreapta, ReportGrid::Stanga,  ReportGrid::Stanga,
                            ReportGrid::Dreapta, ReportGrid::Dreapta, ReportGrid::Centru};
    for (int c = 1; c <= 6; ++c) {
        g.SetColumnWidth(c, latimi[c - 1]);
        g.SetColumnAlign(c, alinieri[c - 1]);
    }
    const auto primarie = CitesteRandPrimarie(bd);
    ScrieBlocTitlu(g, primarie, QStringLiteral("SITUATIA PLATILOR"),
                   QStringLiteral("cererea nr. %1, titular %2").arg(p.nrCerere).arg(p.titular), 1, p.an.value_or(0));
    // The line of the month tells the year, or that every closed month is listed.
    g.SetCellText(6, 1, p.an ? QStringLiteral("Anul %1").arg(*p.an) : QStringLiteral("Toate lunile inchise"));
    ScrieAntetLista(g, {QStringLiteral("Nr. Crt."), QStringLiteral("Luna"), QStringLiteral("Stare"),
                        QStringLiteral("Nr copii"), QStringLiteral("Suma"), QStringLiteral("Dispozitia")});
    QHash<int, QString> stari;
    for (const ElementCod& e : CitesteListaCod(bd, 1))
        if (!stari.contains(e.id))
            stari.insert(e.id, e.text);
    int nr = 0;
    for (const PlataLunara& x : p.luni)
        AdaugaRandLista(g, {QString::number(++nr), TextLuna(x.luna), stari.value(x.stare, QString::number(x.stare)),
                            QString::number(x.nrCopii), x.cuantum.textSuma(), TextDispozitiePlata(x)});
    if (p.luni.empty())
        AdaugaRandLista(g, {QString(), QStringLiteral("Nicio plata intr-o luna inchisa")});
    g.AddRow();
    const int total = g.Rows() - 1;
    g.MergeRange(total, 2, total, 4);
    g.SetCellText(total, 2, QStringLiteral("TOTAL (%1 luni)").arg(p.luni.size()));
    g.SetCellText(total, 5, p.total.textSuma());
    g.RangeBold(total, 1, total, 6, true);
    g.RangeBorder(total, 1, total, 6, ReportGrid::MargJos, ReportGrid::Groasa);
    ScrieRanduriInchidere(g, primarie ? primarie->value(QStringLiteral("AsSocial")) : QString(), 2);
    g.Refresh();
    g.SetPainting(true);
}
