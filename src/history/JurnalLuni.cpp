#include "history/JurnalLuni.h"

#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Proces.h"
#include "database/BD.h"

#include <QJsonObject>
#include <QTime>

void ScrieJurnal(const BD& bd, LunaAn l, FelJurnal fel, const QString& motiv, int familii, int copii, Bani suma)
{
    const qint64 id = bd.urmatoareaCheie(QStringLiteral("JurnalLuni"), QStringLiteral("JurnalID"));
    bd.executa(QStringLiteral("INSERT INTO JurnalLuni (JurnalID, An, Luna, Fel, Data, Ora, Statie, Utilizator, Motiv, "
                              "Familii, Copii, Suma) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
               {id, l.an, l.luna, int(fel), DataPentruBD(Ceas::azi()),
                QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), Proces::statie().left(50),
                Proces::utilizatorSistem().left(50), motiv.isEmpty() ? QVariant() : QVariant(motiv.left(255)), familii,
                copii, suma.variant()});
}

std::vector<RandJurnal> CitesteJurnal(const BD& bd, std::optional<LunaAn> doar)
{
    QString sql =
        QStringLiteral("SELECT JurnalID, An, Luna, Fel, Data, Ora, Statie, Utilizator, Motiv, Familii, Copii, "
                       "Suma FROM JurnalLuni");
    QVariantList p;
    if (doar) {
        sql += QStringLiteral(" WHERE An = ? AND Luna = ?");
        p = {doar->an, doar->luna};
    }
    std::vector<RandJurnal> v;
    Rezultat r = bd.selecteaza(sql + QStringLiteral(" ORDER BY JurnalID"), p);
    while (r.next()) {
        RandJurnal x;
        x.id = r.valoare(0).toLongLong();
        x.luna = {r.valoare(2).toInt(), r.valoare(1).toInt()};
        x.fel = r.valoare(3).toInt() == int(FelJurnal::Redeschidere) ? FelJurnal::Redeschidere : FelJurnal::Inchidere;
        x.data = DataDinBD(r.valoare(4));
        x.ora = r.valoare(5).toString();
        x.statie = r.valoare(6).toString();
        x.utilizator = r.valoare(7).toString();
        x.motiv = r.valoare(8).toString();
        x.familii = r.valoare(9).toInt();
        x.copii = r.valoare(10).toInt();
        x.suma = Bani::dinVariant(r.valoare(11));
        v.push_back(std::move(x));
    }
    return v;
}

QString TextFelJurnal(FelJurnal fel)
{
    return fel == FelJurnal::Redeschidere ? QStringLiteral("redeschidere") : QStringLiteral("inchidere");
}

QJsonArray JurnalJson(const std::vector<RandJurnal>& jurnal)
{
    QJsonArray a;
    for (const RandJurnal& r : jurnal)
        a.append(QJsonObject{{QStringLiteral("luna"), r.luna.luna},
                             {QStringLiteral("an"), r.luna.an},
                             {QStringLiteral("fel"), TextFelJurnal(r.fel)},
                             {QStringLiteral("data"), r.data.toString(Qt::ISODate)},
                             {QStringLiteral("ora"), r.ora},
                             {QStringLiteral("statie"), r.statie},
                             {QStringLiteral("utilizator"), r.utilizator},
                             {QStringLiteral("motiv"), r.motiv},
                             {QStringLiteral("familii"), r.familii},
                             {QStringLiteral("copii"), r.copii},
                             {QStringLiteral("suma"), r.suma.textFix()}});
    return a;
}
