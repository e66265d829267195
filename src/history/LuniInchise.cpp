#include "history/LuniInchise.h"

#include "database/BD.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Text.h"

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

QDate PrimaZi(LunaAn l)
{
    return QDate(l.an, l.luna, 1);
}

QDate UltimaZi(LunaAn l)
{
    return PrimaZi(l).addMonths(1).addDays(-1);
}

QString TextLuna(LunaAn l)
{
    return NumeLuna(l.luna) + QLatin1Char(' ') + QString::number(l.an);
}

LunaCitita CitesteLunaAn(const QString& luna, const QString& an)
{
    LunaCitita c;
    if (!InInterval(luna, 1, 12)) {
        c.camp = LunaCitita::Camp::Luna;
        c.mesaj = QStringLiteral("Luna incorecta!");
    } else if (!InInterval(an, 2008, 2500)) {
        c.camp = LunaCitita::Camp::An;
        c.mesaj = QStringLiteral("An incorect!");
    } else {
        c.luna = LunaAn{int(ValoareIntreaga(luna)), int(ValoareIntreaga(an))};
    }
    return c;
}

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

std::optional<LunaAn> LunaInchisaDispozitie(const BD& bd, qint64 dispozitieId)
{
    const QDate din =
        DataDinBD(bd.scalar(QStringLiteral("SELECT DinData FROM Dispozitii WHERE DispozitieID = ?"), {dispozitieId}));
    if (!din.isValid() || !LunaInchisa(bd, LunaDispozitiei(din)))
        return std::nullopt;
    return LunaDispozitiei(din);
}

std::optional<LunaAn> LunaInchisaCerere(const BD& bd, qint64 cerereId)
{
    std::vector<QDate> luni;
    {
        Rezultat r = bd.selecteaza(
            QStringLiteral("SELECT DinData FROM Dispozitii WHERE CerereID = ? AND DinData IS NOT NULL"), {cerereId});
        while (r.next())
            luni.push_back(DataDinBD(r.valoare(0)));
    }
    for (const QDate& d : luni)
        if (LunaInchisa(bd, LunaDispozitiei(d)))
            return LunaDispozitiei(d);
    return std::nullopt;
}

void VerificaDispozitieModificabila(const BD& bd, qint64 dispozitieId)
{
    if (const std::optional<LunaAn> l = LunaInchisaDispozitie(bd, dispozitieId))
        throw Eroare(CodEroare::LunaInchisa, MesajLunaInchisa(*l), QStringLiteral("LunaInchisa"));
}

void VerificaCerereModificabila(const BD& bd, qint64 cerereId)
{
    if (const std::optional<LunaAn> l = LunaInchisaCerere(bd, cerereId))
        throw Eroare(CodEroare::LunaInchisa, MesajLunaInchisa(*l), QStringLiteral("LunaInchisa"));
}
