#include "decisions/ValabilitateAncheta.h"

#include "amounts/CNP.h"
#include "database/BD.h"
#include "common/Data.h"
#include "common/Mesaje.h"

namespace {
// The zero date of the office's calendar: earlier than every real date.
const QDate ZiuaZero(1899, 12, 30);
} // namespace

QDate DataSaseLuni(const QDate& d)
{
    return DataSerial(d.year(), d.month() + 6, d.day());
}

Valabilitate CalculeazaValabilitate(const QDate& d, const QStringList& cnpuri)
{
    Valabilitate v;
    v.nrMembrii = int(cnpuri.size());
    if (!d.isValid()) {
        v.textExpirare = TextCerereIncetata;
        return v;
    }
    const QDate d6 = DataSaseLuni(d);
    bool saseLuni = false;
    QDate e = ZiuaZero;
    for (const QString& cnp : cnpuri) {
        const QDate x = DataNasteriiDinCNP(cnp, true);
        if (!x.isValid())
            continue; // a CNP that gives no date: an adult
        if (x > d6) {
            saseLuni = true;
            ++v.nrCopii;
        } else if (x > d) {
            if (e > x)
                e = x;
            ++v.nrCopii;
        }
    }
    if (saseLuni) {
        v.expirare = d6;
        v.textExpirare = TextData(d6);
        v.motiv = MotivSaseLuni;
    } else if (e != ZiuaZero) {
        v.expirare = e;
        v.textExpirare = TextData(e);
        v.motiv = MotivMajorat;
    } else {
        v.textExpirare = TextCerereIncetata;
    }
    return v;
}

QStringList CNPuriCerere(const BD& bd, qint64 cerereId)
{
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT M.MembruID, M.CNP FROM Membrii AS M INNER JOIN CereriMembrii "
                                              "AS CM ON M.MembruID = CM.MembruID WHERE CM.CerereID = ?"),
                               {cerereId});
    QStringList l;
    while (r.next())
        l << r.text("CNP");
    return l;
}

Valabilitate ValabilitateAncheta(const BD& bd, qint64 cerereId, const QDate& d)
{
    const Valabilitate v = CalculeazaValabilitate(d, CNPuriCerere(bd, cerereId));
    if (v.incetata())
        Mesaj(QStringLiteral("La aceasta data nu mai exista nici un copil, deci Ancheta e lipsita de sens!"),
              Mesaje::Icon::Exclamare);
    return v;
}
