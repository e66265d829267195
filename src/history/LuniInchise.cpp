#include "history/LuniInchise.h"

#include "database/BD.h"
#include "common/Data.h"
#include "common/Eroare.h"

#include <vector>

namespace {

std::optional<LunaAn> ultima(const BD& bd, const QString& conditie, const QVariantList& param)
{
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT An, Luna FROM LuniInchise WHERE Inchisa = ?%1 "
                                              "ORDER BY An DESC, Luna DESC")
                                   .arg(conditie),
                               QVariantList{true} + param);
    if (!r.next())
        return std::nullopt;
    return LunaAn{r.valoare(1).toInt(), r.valoare(0).toInt()};
}

} // namespace

bool LunaInchisa(const BD& bd, LunaAn l)
{
    return bd
        .scalar(QStringLiteral("SELECT An FROM LuniInchise WHERE An = ? AND Luna = ? AND Inchisa = ?"),
                {l.an, l.luna, true})
        .isValid();
}

std::optional<LunaAn> UltimaLunaInchisaInainte(const BD& bd, LunaAn l)
{
    return ultima(bd, QStringLiteral(" AND (An < ? OR (An = ? AND Luna < ?))"), {l.an, l.an, l.luna});
}

std::optional<LunaAn> UltimaLunaInchisa(const BD& bd)
{
    return ultima(bd, QString(), {});
}

LunaAn LunaDispozitiei(const QDate& dinData)
{
    return dinData.isValid() ? LunaAn{dinData.month(), dinData.year()} : LunaAn{};
}

QString MesajLunaInchisa(LunaAn l)
{
    return QStringLiteral("Luna %1 %2 este inchisa: dispozitiile ei si calculele lor nu mai pot fi modificate. "
                          "Pentru o corectura luna trebuie redeschisa.")
        .arg(NumeLuna(l.luna))
        .arg(l.an);
}

void VerificaLunaDeschisa(const BD& bd, const QDate& dinData)
{
    if (!dinData.isValid())
        return;
    const LunaAn l = LunaDispozitiei(dinData);
    if (LunaInchisa(bd, l))
        throw Eroare(CodEroare::LunaInchisa, MesajLunaInchisa(l), QStringLiteral("LunaInchisa"));
}

void VerificaDispozitieModificabila(const BD& bd, qint64 dispozitieId)
{
    const QVariant din =
        bd.scalar(QStringLiteral("SELECT DinData FROM Dispozitii WHERE DispozitieID = ?"), {dispozitieId});
    if (din.isValid())
        VerificaLunaDeschisa(bd, DataDinBD(din));
}

void VerificaCerereModificabila(const BD& bd, qint64 cerereId)
{
    std::vector<QDate> luni;
    {
        Rezultat r = bd.selecteaza(
            QStringLiteral("SELECT DinData FROM Dispozitii WHERE CerereID = ? AND DinData IS NOT NULL"), {cerereId});
        while (r.next())
            luni.push_back(DataDinBD(r.valoare(0)));
    }
    for (const QDate& d : luni)
        VerificaLunaDeschisa(bd, d);
}
