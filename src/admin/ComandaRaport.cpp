#include "admin/Comenzi.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "database/BD.h"
#include "reports/Borderou.h"
#include "reports/ExportGrid.h"
#include "reports/Rapoarte.h"

#include <QDir>
#include <QFileInfo>
#include <optional>

// alocatii-admin raport: the borderou and the reports of the catalogue, built by the same code
// as the two windows, written as JSON (the grid's cells), PDF, a workbook of the grid or the
// report's own export. The list options are the positions in the windows' lists, 0-based;
// an option left out is a list with nothing chosen.

namespace {

const QString Utilizare = QStringLiteral(
    "Utilizare: alocatii-admin raport borderou --office DIR --luna L --an A --stare I --tip J [--ord1 K] [--ord2 K]\n"
    "           alocatii-admin raport catalog --office DIR --luna L --an A --index N [--tip-cerere J] [--luni N]\n"
    "                                 [--ord1 K] [--ord2 K] [--azi AAAA-LL-ZZ]\n"
    "           iesire: [--json] | --pdf FISIER | --xlsx FISIER | --export FISIER");

const QStringList CuValoare{QStringLiteral("--office"), QStringLiteral("--luna"),  QStringLiteral("--an"),
                            QStringLiteral("--stare"),  QStringLiteral("--tip"),   QStringLiteral("--ord1"),
                            QStringLiteral("--ord2"),   QStringLiteral("--index"), QStringLiteral("--tip-cerere"),
                            QStringLiteral("--luni"),   QStringLiteral("--azi"),   QStringLiteral("--pdf"),
                            QStringLiteral("--xlsx"),   QStringLiteral("--export")};

// A list position: -1 when the option is absent, nothing (and a message) when it is no number.
std::optional<int> pozitie(const QStringList& arg, const char* nume, int implicit = -1)
{
    const QString n = QLatin1String(nume);
    if (!AreOptiune(arg, n))
        return implicit;
    const auto v = OptiuneIntreaga(arg, nume);
    if (!v)
        return std::nullopt;
    return int(*v);
}

int ruleaza(const QStringList& arg)
{
    const QStringList poz = Pozitionale(arg, CuValoare);
    const QString oficiu = Optiune(arg, QStringLiteral("--office"));
    if (poz.size() != 1 || oficiu.isEmpty() ||
        (poz[0] != QLatin1String("borderou") && poz[0] != QLatin1String("catalog"))) {
        ScrieEroare(Utilizare);
        return 2;
    }
    const bool borderou = poz[0] == QLatin1String("borderou");
    const auto luna = pozitie(arg, "--luna", 0), an = pozitie(arg, "--an", 0), ord1 = pozitie(arg, "--ord1"),
               ord2 = pozitie(arg, "--ord2"), index = pozitie(arg, borderou ? "--stare" : "--index"),
               tip = pozitie(arg, borderou ? "--tip" : "--tip-cerere");
    if (!luna || !an || !ord1 || !ord2 || !index || !tip)
        return 2;
    if (*luna < 1 || *luna > 12 || *an < 1) {
        ScrieEroare(QStringLiteral("Optiunile --luna (1-12) si --an sunt obligatorii."));
        return 2;
    }
    SelectieRaport sel;
    sel.luna = *luna;
    sel.an = *an;
    sel.index = *index;
    sel.tip = *tip;
    sel.ord1 = *ord1;
    sel.ord2 = *ord2;
    if (AreOptiune(arg, QStringLiteral("--luni")))
        sel.nrLuni = Optiune(arg, QStringLiteral("--luni"));
    if (AreOptiune(arg, QStringLiteral("--azi"))) {
        sel.azi = QDate::fromString(Optiune(arg, QStringLiteral("--azi")), Qt::ISODate);
        if (!sel.azi.isValid()) {
            ScrieEroare(QStringLiteral("Optiunea --azi cere o data AAAA-LL-ZZ."));
            return 2;
        }
    }
    // The windows' own checks before a report is built.
    const int nrRapoarte = borderou ? ListaStariBorderou().size() : ListaRapoarte().size();
    if (sel.index < 0 || sel.index >= nrRapoarte) {
        ScrieEroare(QStringLiteral("Selectati din lista un tip de raport!"));
        return 1;
    }
    if (borderou && (sel.tip < 0 || sel.tip >= ListaTipAlocatie().size())) {
        ScrieEroare(QStringLiteral("Selectati din lista un tip de alocatie!"));
        return 1;
    }

    const QString dir = QDir(oficiu).absolutePath();
    IncarcaSetariOficiu(dir);
    BD bd;
    if (!DeschideBDOficiu(bd, arg, dir, true))
        return 1;

    ReportGrid g;
    const QString exportFisier = Optiune(arg, QStringLiteral("--export"));
    if (!exportFisier.isEmpty()) {
        if (borderou) {
            ConstruiesteBorderou(bd, sel, g);
        } else if (AreExport(sel.index)) {
            ConstruiesteExport(bd, sel, g);
        } else {
            ScrieEroare(QStringLiteral("Raportul ales nu are export."));
            return 1;
        }
        QString eroare;
        if (!ScrieXlsx(g, exportFisier, &eroare)) {
            ScrieEroare(eroare);
            return 1;
        }
        return 0;
    }
    if (borderou)
        ConstruiesteBorderou(bd, sel, g);
    else
        ConstruiesteRaport(bd, sel, g);

    return ScrieGridComanda(g, arg);
}

} // namespace

static ComandaInregistrata raport(
    QStringLiteral("raport"),
    QStringLiteral("raport borderou|catalog --office DIR --luna L --an A ... [--json|--pdf F|--xlsx F|--export F]   "
                   "construieste borderoul sau un raport din lista"),
    ruleaza);
