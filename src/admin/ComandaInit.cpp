#include "admin/Comenzi.h"
#include "import/Demo.h"
#include "database/Oficiu.h"
#include "common/Text.h"

#include <QDir>

static int ruleaza(const QStringList& arg)
{
    const QStringList poz = Pozitionale(arg, {QStringLiteral("--demo")});
    if (poz.size() != 1) {
        ScrieEroare(QStringLiteral("Utilizare: alocatii-admin init DIR [--demo N] [--server URI]"));
        return 2;
    }
    int demo = 0;
    if (AreOptiune(arg, QStringLiteral("--demo"))) {
        const QString n = Optiune(arg, QStringLiteral("--demo"));
        if (!EsteNumarIntreg(n) || n.toLongLong() > 1000000) {
            ScrieEroare(QStringLiteral("--demo cere un numar de cereri intre 0 si 1000000."));
            return 2;
        }
        demo = n.toInt();
    }
    const QString dir = QDir(poz[0]).absolutePath();
    const QString server = Optiune(arg, QStringLiteral("--server"));
    if (server.isEmpty())
        CreeazaOficiu(dir);
    else
        CreeazaOficiuPeServer(dir, server);
    if (demo > 0)
        CompleteazaDemo(dir, demo, server);
    ScrieLinie(QStringLiteral("Oficiul a fost creat in %1").arg(QDir::toNativeSeparators(dir)));
    return 0;
}

static ComandaInregistrata init(QStringLiteral("init"),
                                QStringLiteral("init DIR [--demo N] [--server URI]   creeaza un oficiu nou (Tarnava.db "
                                               "sau baza de pe server, acte/, fisierele de pornire)"),
                                ruleaza);
