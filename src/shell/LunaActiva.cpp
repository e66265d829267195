#include "shell/LunaActiva.h"

#include "database/BD.h"
#include "common/FisiereHelper.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "history/LuniInchise.h"

#include <QDir>

RezultatLunaActiva SeteazaLunaActiva(const BD& bd, const QString& luna, const QString& an)
{
    // The same month and year rule as the month close.
    const LunaCitita c = CitesteLunaAn(luna, an);
    if (!c.luna) {
        Mesaj(c.mesaj);
        return {false, c.camp == LunaCitita::Camp::Luna ? CampLunaActiva::Luna : CampLunaActiva::An};
    }
    const int l = c.luna->luna;
    const int a = c.luna->an;
    const QVariant n = bd.scalar(QStringLiteral("SELECT COUNT(*) FROM StatePlata WHERE An = ? AND Luna = ?"), {a, l});
    if (n.toLongLong() == 0) {
        Mesaj(QStringLiteral("An sau Luna incorecta!"));
        return {false, CampLunaActiva::Luna};
    }

    const FisiereHelper h;
    const QString fisier = FisierSetari();
    const bool scris = h.ScrieIni(QStringLiteral("LunaSetata"), QStringLiteral("Setari"), fisier, QString::number(l)) &&
                       h.ScrieIni(QStringLiteral("AnSetat"), QStringLiteral("Setari"), fisier, QString::number(a));
    if (!scris) {
        Mesaj(QStringLiteral("Luna activa nu a putut fi scrisa in fisierul de setari %1. Verificati daca fisierul "
                             "nu este protejat la scriere.")
                  .arg(QDir::toNativeSeparators(fisier)),
              Mesaje::Icon::Critic);
        return {false, CampLunaActiva::Niciunul};
    }
    Proces::setari().LunaSetata = l;
    Proces::setari().AnSetat = a;
    return {true, CampLunaActiva::Niciunul};
}
