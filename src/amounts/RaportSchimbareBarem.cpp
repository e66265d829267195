#include "amounts/RaportSchimbareBarem.h"

#include "amounts/SchimbareBarem.h"
#include "common/Data.h"
#include "common/Proces.h"
#include "reports/RaportComun.h"
#include "reports/ReportGrid.h"

namespace {

constexpr int Coloane = 10;

// A line that opens a part of the report: bold, over the whole width, after an empty one.
void titluParte(ReportGrid& g, const QString& text, bool randGol = true)
{
    if (randGol)
        g.AddRow();
    g.AddRow();
    const int r = g.Rows() - 1;
    g.SetCellText(r, 1, text);
    g.MergeRange(r, 1, r, Coloane);
    g.SetCellAlign(r, 1, ReportGrid::Stanga);
    g.SetCellBold(r, 1, true);
}

QString diferenta(Bani d)
{
    return d > Bani() ? QStringLiteral("+") + d.textSuma() : d.textSuma();
}

void familii(ReportGrid& g, const std::vector<CerereBarem>& v)
{
    int nr = 0;
    for (const CerereBarem& c : v)
        AdaugaRandLista(g, {QString::number(++nr), QString::number(c.nrCerere), c.titular, TextTipAlocatie(c.tipCerere),
                            QString::number(c.stare), QString::number(c.nrCopiiNou.value_or(c.nrCopii)),
                            c.cuantum.textSuma(), c.cuantumNou.textSuma(), diferenta(c.diferenta()), c.observatii});
}

} // namespace

void ConstruiesteSchimbareBarem(const BD& bd, const PrevizualizareBarem& p, ReportGrid& g)
{
    ReseteazaGrid(g, Proces::setari().HeightRowRaport);
    g.SetCols(Coloane + 1);
    g.SetRows(9);
    const double latimi[Coloane] = {30, 55, 280, 45, 35, 35, 65, 65, 65, 250};
    for (int c = 1; c <= Coloane; ++c)
        g.SetColumnWidth(c, latimi[c - 1]);
    for (int c : {7, 8, 9})
        g.SetColumnAlign(c, ReportGrid::Dreapta);
    const auto primarie = CitesteRandPrimarie(bd);
    const QDate efect(p.efect.an, p.efect.luna, 1);
    ScrieBlocTitlu(g, primarie, QStringLiteral("SCHIMBAREA BAREMULUI"),
                   QStringLiteral("Sumele noi se aplica de la %1").arg(TextData(efect)), p.efect.luna, p.efect.an);
    ScrieAntetLista(g, {QStringLiteral("Nr. Crt."), QStringLiteral("Nr cerere"), QStringLiteral("Titular"),
                        QStringLiteral("Tip"), QStringLiteral("Stare"), QStringLiteral("Copii"),
                        QStringLiteral("Suma veche"), QStringLiteral("Suma noua"), QStringLiteral("Diferenta"),
                        QStringLiteral("Observatii")});

    titluParte(g, QStringLiteral("BAREMUL (suma lunara in lei)"), false);
    for (int i = 0; i < NrRanduriBaremLei; ++i) {
        const RandBaremLei& r = p.vechi[i];
        AdaugaRandLista(g, {QString::number(i + 1), QString(), DescriereBarem(r.cheie), QString(), QString(), QString(),
                            r.barem ? r.barem->textSuma() : QString(), p.nou[i].textSuma(),
                            r.barem ? diferenta(p.nou[i] - *r.barem) : QString(),
                            r.barem ? QStringLiteral("in vigoare de la %1").arg(TextData(r.dataInceput))
                                    : QStringLiteral("randul lipseste din barem; se adauga")});
    }
    if (p.faraSchimbare())
        titluParte(g, MesajBarem::FaraSchimbare);

    titluParte(g, QStringLiteral("FAMILII AL CAROR CUANTUM SE MODIFICA: %1").arg(p.modificate.size()));
    familii(g, p.modificate);
    titluParte(g, QStringLiteral("FAMILII AL CAROR CUANTUM AR DEVENI 0: %1 (raman cum sunt; se decide separat, de "
                                 "exemplu prin dispozitie de incetare)")
                      .arg(p.laZero.size()));
    familii(g, p.laZero);
    titluParte(g, QStringLiteral("CERERI CARE NU POT FI CALCULATE: %1 (raman cum sunt; motivul in observatii)")
                      .arg(p.necalculate.size()));
    familii(g, p.necalculate);
    titluParte(g, QStringLiteral("Cereri in plata al caror cuantum ramane acelasi: %1").arg(p.neschimbate));

    titluParte(g, QStringLiteral("TOTALURI PE TIP DE ALOCATIE"));
    AdaugaRandLista(g, {QString(), QStringLiteral("Familii"), QStringLiteral("Tip alocatie"), QString(), QString(),
                        QString(), QStringLiteral("Inainte"), QStringLiteral("Dupa"), QStringLiteral("Diferenta"),
                        QStringLiteral("Familii modificate")});
    g.RangeBold(g.Rows() - 1, 1, g.Rows() - 1, Coloane, true);
    const auto total = [&](const QString& eticheta, const TotalBarem& t) {
        AdaugaRandLista(g, {QString(), QString::number(t.familii), eticheta, QString(), QString(), QString(),
                            t.inainte.textSuma(), t.dupa.textSuma(), diferenta(t.dupa - t.inainte),
                            QString::number(t.modificate)});
    };
    for (const auto& [tip, t] : p.peTip)
        total(tip == 1   ? QStringLiteral("Cu sot (complementara)")
              : tip == 2 ? QStringLiteral("Mono (monoparentala)")
                         : QStringLiteral("Tip %1").arg(tip),
              t);
    total(QStringLiteral("TOTAL GENERAL"), p.total);
    g.RangeBold(g.Rows() - 1, 1, g.Rows() - 1, Coloane, true);
    ScrieRanduriInchidere(g, primarie ? primarie->value(QStringLiteral("AsSocial")) : QString(), 8);
    g.Refresh();
    g.SetPainting(true);
}
