#include "admin/Comenzi.h"
#include "preluare/Preluare.h"
#include "preluare/RaportPreluare.h"
#include "common/Eroare.h"

#include <QJsonDocument>

static int ruleaza(const QStringList& arg)
{
    OptiuniPreluare o;
    o.din = Optiune(arg, QStringLiteral("--din"));
    o.oficiu = Optiune(arg, QStringLiteral("--office"));
    o.server = Optiune(arg, QStringLiteral("--server"));
    o.setari = Optiune(arg, QStringLiteral("--setari"));
    o.incearca = AreOptiune(arg, QStringLiteral("--incearca"));
    const bool json = AreOptiune(arg, QStringLiteral("--json"));
    if (o.din.isEmpty() || o.oficiu.isEmpty() ||
        !Pozitionale(arg, {QStringLiteral("--din"), QStringLiteral("--office"), QStringLiteral("--setari")})
             .isEmpty()) {
        ScrieEroare(QStringLiteral("Utilizare: alocatii-admin preia --din FOLDER_VECHI|Tarnava.mdb --office DIR "
                                   "[--server URI] [--setari setariTarnava.ini] [--incearca] [--json]"));
        return 2;
    }
    try {
        const Preluare p = Preia(o);
        if (json)
            ScrieJson(JsonRaportPreluare(p));
        else
            ScrieLinie(TextRaportPreluare(p).trimmed());
        if (!p.fisierRaport.isEmpty() && !json)
            ScrieLinie(QStringLiteral("Raportul a fost scris in %1").arg(p.fisierRaport));
        return 0;
    } catch (const Eroare& e) {
        ScrieEroare(e.descriere);
        return e.numar == IntrarePreluareGresita ? 2 : 1;
    }
}

static ComandaInregistrata preia(QStringLiteral("preia"),
                                 QStringLiteral("preia --din FOLDER_VECHI --office DIR [--server URI] [--setari INI] "
                                                "[--incearca] [--json]   aduce datele, sabloanele si setarile "
                                                "programului vechi (Tarnava.mdb) intr-un oficiu nou"),
                                 ruleaza);
