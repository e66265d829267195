// alocatii-admin restaureaza: a checked copy back in the office's place.
#include "admin/Comenzi.h"
#include "admin/CopiiComanda.h"
#include "maintenance/RestaurareCopie.h"

#include <QDir>
#include <QJsonDocument>

static int ruleaza(const QStringList& arg)
{
    const QString copie = Optiune(arg, QStringLiteral("--copie"));
    if (Optiune(arg, QStringLiteral("--office")).isEmpty() || copie.isEmpty() ||
        !Pozitionale(arg, {QStringLiteral("--office"), QStringLiteral("--copie")}).isEmpty()) {
        ScrieEroare(QStringLiteral(
            "Utilizare: alocatii-admin restaureaza --office DIR --copie FISIER [--inlocuieste] [--json]"));
        return 2;
    }
    const LocCopii loc = LocCopiiComanda(arg);
    const RezultatRestaurare r = RestaureazaCopie(loc, QDir(copie).absolutePath(),
                                                  AreOptiune(arg, QStringLiteral("--inlocuieste")), MomentCopie());
    if (AreOptiune(arg, QStringLiteral("--json"))) {
        QJsonObject o = r.verificare.json();
        o.insert(QStringLiteral("copie"), QDir(copie).absolutePath());
        o.insert(QStringLiteral("pastrat"), r.pastrat);
        ScrieJson(o);
        return 0;
    }
    ScrieLinie(QStringLiteral("Copia %1 a fost restaurata (%2 randuri).")
                   .arg(QDir::toNativeSeparators(copie))
                   .arg(r.verificare.totalRanduri()));
    if (!r.pastrat.isEmpty())
        ScrieLinie(QStringLiteral("Datele de dinainte sunt pastrate in %1.").arg(QDir::toNativeSeparators(r.pastrat)));
    return 0;
}

static ComandaInregistrata restaureaza(
    QStringLiteral("restaureaza"),
    QStringLiteral("restaureaza --office DIR --copie FISIER [--inlocuieste] [--json]   pune o copie verificata in "
                   "locul datelor oficiului (datele de acum se pastreaza)"),
    ruleaza);
