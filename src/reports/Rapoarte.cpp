#include "reports/Rapoarte.h"

#include "common/Setari.h"
#include "reports/Anexe.h"

#include <QDir>
#include <QFileInfo>

const QStringList& ListaRapoarte()
{
    static const QStringList l{QStringLiteral("Toate cererile"),
                               QStringLiteral("In plata"),
                               QStringLiteral("Suspendate"),
                               QStringLiteral("Incetate"),
                               QStringLiteral("Respinse"),
                               QStringLiteral("Lista copii care implinesc 18 ani"),
                               QStringLiteral("Lista copii care au adeverinte de scolarizare"),
                               QStringLiteral("Lista copii care nu au adeverinte de scolarizare"),
                               QStringLiteral("Lista copii care implinesc 7 ani in anul curent"),
                               QStringLiteral("Anexa 3 - Plati noi + repuneri"),
                               QStringLiteral("Anexa 3 - Noi"),
                               QStringLiteral("Anexa 3 - Repuneri"),
                               QStringLiteral("Anexa 4 - Modificari/Incetari"),
                               QStringLiteral("Anexa 4 - Suspendari"),
                               QStringLiteral("Anexa 4 - Modificari/Incetari/Susp/Reluari"),
                               QStringLiteral("Cereri - 6 luni"),
                               QStringLiteral("Lista acte care expira in luna curenta")};
    return l;
}

const QStringList& ListaTipCerere()
{
    static const QStringList l{QStringLiteral("Toate"), QStringLiteral("Complementare"),
                               QStringLiteral("Monoparentale")};
    return l;
}

void ConstruiesteRaport(const BD& bd, const SelectieRaport& sel, ReportGrid& g)
{
    const int i = sel.index;
    if (i >= 0 && i <= IndexRaport::Respinse)
        ListaStare(bd, sel, i == 0 ? 0 : i + 1, g);
    else if (i == IndexRaport::Optsprezece)
        ListaOptsprezeceAni(bd, sel, g);
    else if (i == IndexRaport::CuAdeverinte || i == IndexRaport::FaraAdeverinte)
        ListaAdeverinte(bd, sel, i == IndexRaport::CuAdeverinte, g);
    else if (i == IndexRaport::Sapte)
        ListaSapteAni(bd, sel, g);
    else if (i >= IndexRaport::PrimaAnexa && i <= IndexRaport::UltimaAnexa)
        ConstruiesteAnexa(bd, TipAnexa(i), sel, g);
    else if (i == IndexRaport::Luni)
        ListaLuni(bd, sel, g);
    else if (i == IndexRaport::ActeExpira)
        ListaActeExpira(bd, sel, g);
}

bool AreExport(int index)
{
    return index >= IndexRaport::Sapte && index <= IndexRaport::ActeExpira;
}

void ConstruiesteExport(const BD& bd, const SelectieRaport& sel, ReportGrid& foaie)
{
    const int i = sel.index;
    if (i == IndexRaport::Sapte)
        ListaSapteAni(bd, sel, foaie, true);
    else if (i >= IndexRaport::PrimaAnexa && i <= IndexRaport::UltimaAnexa)
        ConstruiesteAnexa(bd, TipAnexa(i), sel, foaie, true);
    else if (i == IndexRaport::Luni)
        ListaLuni(bd, sel, foaie, true);
    else if (i == IndexRaport::ActeExpira)
        ListaActeExpira(bd, sel, foaie, true);
    else
        return;
    // The workbooks print on A4 (the annexes landscape at 70 per cent, the lists upright).
    ReportGrid::PaginaSetata p = foaie.PageSetup();
    p.hartie = 9;
    p.orientare = TipAnexa(i) ? 2 : 1;
    foaie.SetPageSetup(p);
}

namespace {

// A part of a file name without blanks: letters, digits and points stay, every run of other
// characters becomes one "-" ("Cereri - 6 luni" is "Cereri-6-luni").
QString FaraBlancuri(const QString& text)
{
    QString r;
    for (const QChar ch : text) {
        if (ch.isLetterOrNumber() || ch == QLatin1Char('.'))
            r += ch;
        else if (!r.isEmpty() && !r.endsWith(QLatin1Char('-')))
            r += QLatin1Char('-');
    }
    while (r.endsWith(QLatin1Char('-')))
        r.chop(1);
    return r;
}

} // namespace

QString NumeFisierExport(int index, const Setari& s, const QDateTime& moment)
{
    // The report's title; for an annex the office's name of the annex file and which list of it.
    const int tip = TipAnexa(index);
    const QString titlu = ListaRapoarte().value(index);
    QString baza = FaraBlancuri(titlu);
    if (tip) {
        const QString fisier = QFileInfo(tip == 1 || tip == 3 || tip == 4 ? s.Anexa3 : s.Anexa4).completeBaseName();
        baza = FaraBlancuri(fisier) + QLatin1Char('_') + FaraBlancuri(titlu.section(QStringLiteral(" - "), 1));
    }
    return baza + moment.toString(QStringLiteral("_yyyy-MM-dd_HHmmss")) + QStringLiteral(".xlsx");
}

QString CaleExportNoua(const QString& folder, int index, const Setari& s, const QDateTime& moment)
{
    const QDir dir(folder);
    const QString nume = NumeFisierExport(index, s, moment);
    QString cale = dir.filePath(nume);
    for (int i = 2; QFileInfo::exists(cale); ++i)
        cale = dir.filePath(QFileInfo(nume).completeBaseName() + QStringLiteral("_%1.xlsx").arg(i));
    return cale;
}
