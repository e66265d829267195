#include "admin/Comenzi.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "common/Text.h"
#include "database/BD.h"
#include "forms/TiparireFormular.h"

#include <QDir>
#include <QFileInfo>

// alocatii-admin formular: the printed application or inquiry form written to a PDF file, filled
// from an application or blank. What the data layer tells (a case without a titular, an
// unknown document kind) goes to standard error, and the file is written all the same.

namespace {

const QString Utilizare = QStringLiteral(
    "Utilizare: alocatii-admin formular cerere|ancheta --office DIR [--cerere CEREREID] [--gol] --pdf FISIER "
    "[--pagini 1,3-5]");

int ruleaza(const QStringList& arg)
{
    const QStringList poz = Pozitionale(arg, {QStringLiteral("--office"), QStringLiteral("--cerere"),
                                              QStringLiteral("--pdf"), QStringLiteral("--pagini")});
    const QString oficiu = Optiune(arg, QStringLiteral("--office"));
    const QString pdf = Optiune(arg, QStringLiteral("--pdf"));
    const bool gol = AreOptiune(arg, QStringLiteral("--gol"));
    if (poz.size() != 1 || (poz[0] != QLatin1String("cerere") && poz[0] != QLatin1String("ancheta")) ||
        oficiu.isEmpty() || pdf.isEmpty()) {
        ScrieEroare(Utilizare);
        return 2;
    }
    const int tip = poz[0] == QLatin1String("cerere") ? FormularCerere : FormularAncheta;
    SursaFormular sursa;
    if (!gol) {
        const QString id = Optiune(arg, QStringLiteral("--cerere"));
        if (id.trimmed().isEmpty()) {
            ScrieEroare(
                QStringLiteral("Un formular completat cere --cerere CEREREID (sau --gol pentru unul necompletat)."));
            return 2;
        }
        if (!EsteNumarIntreg(id)) {
            ScrieEroare(QStringLiteral("--cerere cere numarul (CerereID) unei cereri, nu \"%1\".").arg(id));
            return 2;
        }
        sursa.cerereId = id.trimmed().toLongLong();
    }
    QList<int> pagini;
    if (AreOptiune(arg, QStringLiteral("--pagini"))) {
        QString eroare;
        const auto p = CitestePagini(Optiune(arg, QStringLiteral("--pagini")), tip, &eroare);
        if (!p) {
            ScrieEroare(eroare);
            return 2;
        }
        pagini = *p;
    }
    Proces::setari() = Setari{};
    Proces::setari().CaleBD = QDir(oficiu).absolutePath();
    BD& bd = BD::principala();
    if (!DeschideBDOficiu(bd, arg, Proces::setari().CaleBD, true))
        return 1;
    sursa.bd = &bd;
    if (!gol &&
        !bd.scalar(QStringLiteral("SELECT CerereID FROM Cereri WHERE CerereID = ?"), {sursa.cerereId}).isValid()) {
        ScrieEroare(QStringLiteral("Cererea %1 nu exista.").arg(sursa.cerereId));
        return 1;
    }
    MesajeConsola consola;
    const MesajeTemporare m(consola);
    QString eroare;
    if (!ScriePdfFormular(pdf, tip, gol ? ModGol : ModCompletat, sursa, pagini, &eroare)) {
        ScrieEroare(eroare);
        return 1;
    }
    ScrieLinie(QStringLiteral("Formularul a fost scris in %1")
                   .arg(QDir::toNativeSeparators(QFileInfo(pdf).absoluteFilePath())));
    return 0;
}

} // namespace

static ComandaInregistrata formular(
    QStringLiteral("formular"),
    QStringLiteral("formular cerere|ancheta --office DIR [--cerere ID] [--gol] --pdf FISIER [--pagini 1,3-5]   "
                   "scrie formularul tiparit in PDF"),
    ruleaza);
