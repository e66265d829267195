#include "database/CoduriDateGen.h"

#include "database/BD.h"

std::vector<ElementCod> CitesteListaCod(const BD& bd, int tip)
{
    std::vector<ElementCod> r;
    Rezultat q =
        bd.selecteaza(QStringLiteral("SELECT DataID, Continut FROM DateGen WHERE Tip = ? ORDER BY Ordine"), {tip});
    while (q.next())
        r.push_back({q.valoare(0).toInt(), q.valoare(1).toString()});
    return r;
}

QString EtichetaCod(const BD& bd, int tip, int id)
{
    const QVariant v =
        bd.scalar(QStringLiteral("SELECT Continut FROM DateGen WHERE Tip = ? AND DataID = ?"), {tip, id});
    return v.isValid() && !v.isNull() ? v.toString() : QString();
}
