#include "admin/Comenzi.h"
#include "database/MutareServer.h"

#include <QDir>

static int ruleaza(const QStringList& arg)
{
    const QString oficiu = Optiune(arg, QStringLiteral("--office"));
    const QString server = Optiune(arg, QStringLiteral("--server"));
    if (oficiu.isEmpty() || server.isEmpty() || !Pozitionale(arg, {QStringLiteral("--office")}).isEmpty()) {
        ScrieEroare(QStringLiteral("Utilizare: alocatii-admin muta --office DIR --server URI"));
        return 2;
    }
    MutaOficiuPeServer(QDir(oficiu).absolutePath(), server, ScrieLinie);
    return 0;
}

static ComandaInregistrata
    muta(QStringLiteral("muta"),
         QStringLiteral(
             "muta --office DIR --server URI   muta datele oficiului din Tarnava.db intr-o baza goala de pe server"),
         ruleaza);
