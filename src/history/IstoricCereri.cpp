#include "history/IstoricCereri.h"

#include "database/BD.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Proces.h"

namespace {

std::optional<int> intSauNimic(const QVariant& v)
{
    return v.isNull() ? std::nullopt : std::optional<int>(v.toInt());
}

} // namespace

bool SchimbareReala(const SchimbareCerere& s)
{
    return s.stareVeche != s.stare || s.cuantumVechi != s.cuantum || s.nrCopiiVechi != s.nrCopii;
}

QString TextSchimbare(const SchimbareCerere& s)
{
    // A value without a former one (a new application) is told as it is.
    const auto parte = [](const QString& nume, const std::optional<QString>& vechi, const QString& nou) {
        return vechi ? QStringLiteral("%1 %2 -> %3").arg(nume, *vechi, nou) : QStringLiteral("%1 %2").arg(nume, nou);
    };
    const auto numar = [](const std::optional<int>& v) {
        return v ? std::optional<QString>(QString::number(*v)) : std::nullopt;
    };
    QStringList parti;
    if (s.stareVeche != s.stare)
        parti << parte(QStringLiteral("stare"), numar(s.stareVeche), QString::number(s.stare));
    if (s.cuantumVechi != s.cuantum)
        parti << parte(QStringLiteral("cuantum"),
                       s.cuantumVechi ? std::optional<QString>(s.cuantumVechi->textSuma()) : std::nullopt,
                       s.cuantum.textSuma());
    if (s.nrCopiiVechi != s.nrCopii)
        parti << parte(QStringLiteral("copii"), numar(s.nrCopiiVechi), QString::number(s.nrCopii));
    QString t = s.motiv;
    if (!parti.isEmpty())
        t += QStringLiteral(": ") + parti.join(QStringLiteral(", "));
    return t.left(255);
}

namespace {

// The row with its day of effect as stored (NULL for a note).
void scrie(const BD& bd, const SchimbareCerere& s, const QVariant& dinData, const QDate& scris)
{
    const qint64 id = bd.urmatoareaCheie(QStringLiteral("IstoricCereri"), QStringLiteral("IstoricID"));
    const auto optInt = [](const std::optional<int>& v) { return v ? QVariant(*v) : QVariant(); };
    bd.executa(QStringLiteral("INSERT INTO IstoricCereri (IstoricID, CerereID, Tranzactie, DataTranzactie, DinData, "
                              "MotivTranzactie, StareVeche, CuantumVechi, Cuantum, NrCopiiVechi, NrCopii, "
                              "DispozitieID, Statie, Utilizator) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
               {id, s.cerereId, s.stare, DataPentruBD(scris), dinData, TextSchimbare(s), optInt(s.stareVeche),
                s.cuantumVechi ? s.cuantumVechi->variant() : QVariant(), s.cuantum.variant(), optInt(s.nrCopiiVechi),
                s.nrCopii, s.dispozitieId, Proces::statie().left(50), Proces::utilizatorSistem().left(50)});
}

} // namespace

void ScrieIstoric(const BD& bd, const SchimbareCerere& s, const QDate& dinData, const QDate& scrisLa)
{
    const QDate scris = scrisLa.isValid() ? scrisLa : Ceas::azi();
    scrie(bd, s, DataPentruBD(dinData.isValid() ? dinData : scris), scris);
}

void ScrieNotaIstoric(const BD& bd, qint64 cerereId, const QString& motiv)
{
    const std::optional<ValoriActuale> v = CitesteValoriActuale(bd, cerereId);
    if (!v)
        return;
    SchimbareCerere s;
    s.cerereId = cerereId;
    s.stare = v->stare;
    s.stareVeche = v->stare;
    s.cuantum = v->cuantum;
    s.cuantumVechi = v->cuantum;
    s.nrCopii = v->nrCopii;
    s.nrCopiiVechi = v->nrCopii;
    s.motiv = motiv;
    scrie(bd, s, DataPentruBD(DataZero), Ceas::azi());
}

bool InVigoarePana(const QDate& dinData, const QDate& zi)
{
    return dinData.isValid() && dinData <= zi;
}

int StareDinActiune(int actiune)
{
    switch (actiune) {
    case 1: return 2;
    case 2: return 7;
    case 3: return 3;
    case 4: return 5;
    case 5: return 4;
    case 6: return 6;
    default: return 0;
    }
}

void ScrieIstoricDispozitie(const BD& bd, qint64 dispozitieId, qint64 cerereId, int actiune, Bani cuantum,
                            std::optional<Bani> cuantumVechi)
{
    const std::optional<ValoriActuale> acum = CitesteValoriActuale(bd, cerereId);
    SchimbareCerere s;
    s.cerereId = cerereId;
    s.dispozitieId = dispozitieId;
    s.stare = StareDinActiune(actiune);
    s.cuantum = cuantum;
    s.nrCopii = acum ? acum->nrCopii : 0;
    bool stiute = false;
    {
        Rezultat r = bd.selecteaza(QStringLiteral("SELECT Tranzactie, Cuantum, NrCopii FROM IstoricCereri "
                                                  "WHERE CerereID = ? AND DinData IS NOT NULL ORDER BY IstoricID DESC"),
                                   {cerereId});
        if ((stiute = r.next())) {
            s.stareVeche = r.valoare(0).toInt();
            s.cuantumVechi = Bani::dinVariant(r.valoare(1));
            s.nrCopiiVechi = r.valoare(2).toInt();
        }
    }
    if (!stiute && acum) {
        s.stareVeche = acum->stare;
        s.cuantumVechi = acum->cuantum;
        s.nrCopiiVechi = acum->nrCopii;
    }
    if (cuantumVechi)
        s.cuantumVechi = cuantumVechi;
    s.motiv = QStringLiteral("Dispozitie (tip %1)").arg(actiune);
    ScrieIstoric(
        bd, s,
        DataDinBD(bd.scalar(QStringLiteral("SELECT DinData FROM Dispozitii WHERE DispozitieID = ?"), {dispozitieId})));
}

std::optional<ValoriActuale> CitesteValoriActuale(const BD& bd, qint64 cerereId)
{
    Rezultat r = bd.selecteaza(
        QStringLiteral("SELECT Stare, Cuantum, NrCopii, DataStare FROM Cereri WHERE CerereID = ?"), {cerereId});
    if (!r.next())
        return std::nullopt;
    return ValoriActuale{r.valoare(0).toInt(), Bani::dinVariant(r.valoare(1)), r.valoare(2).toInt(),
                         DataDinBD(r.valoare(3))};
}

std::vector<RandIstoric> CitesteIstoric(const BD& bd, qint64 cerereId)
{
    std::vector<RandIstoric> v;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT IstoricID, DataTranzactie, Tranzactie, StareVeche, Cuantum, "
                                              "CuantumVechi, NrCopii, DispozitieID, MotivTranzactie, Statie, "
                                              "Utilizator, DinData FROM IstoricCereri WHERE CerereID = ? "
                                              "ORDER BY IstoricID"),
                               {cerereId});
    while (r.next()) {
        RandIstoric x;
        x.id = r.valoare(0).toLongLong();
        x.data = DataDinBD(r.valoare(1));
        x.stare = r.valoare(2).toInt();
        x.stareVeche = intSauNimic(r.valoare(3));
        x.cuantum = Bani::dinVariant(r.valoare(4));
        if (!r.valoare(5).isNull())
            x.cuantumVechi = Bani::dinVariant(r.valoare(5));
        x.nrCopii = r.valoare(6).toInt();
        x.dispozitieId = r.valoare(7).toLongLong();
        x.motiv = r.valoare(8).toString();
        x.statie = r.valoare(9).toString();
        x.utilizator = r.valoare(10).toString();
        x.dinData = DataDinBD(r.valoare(11));
        v.push_back(std::move(x));
    }
    return v;
}

std::optional<StareLaData> StareLa(const std::vector<RandIstoric>& istoric, const QDate& data)
{
    std::optional<StareLaData> s;
    // The rows are in the order written: the last one in effect by the day holds.
    for (const RandIstoric& r : istoric)
        if (InVigoarePana(r.dinData, data))
            s = StareLaData{r.stare, r.cuantum, r.nrCopii, r.dinData, r.motiv};
    return s;
}
