#include "mainwindow/RanduriPanouri.h"

#include "database/BD.h"
#include "database/CoduriDateGen.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Text.h"

#include <QHash>

namespace {

QString textBD(const QVariant& v)
{
    return v.isNull() ? QString() : v.toString();
}

QString numarBD(const QVariant& v)
{
    if (v.isNull() || !v.isValid())
        return QString();
    if (v.typeId() == QMetaType::Double)
        return TextNumar(v.toDouble());
    return v.toString();
}

QString dataBD(const QVariant& v)
{
    return TextData(DataDinBD(v));
}

} // namespace

const std::array<ColoanaLista, NrColoanePanou>& ColoaneAnchete()
{
    static const std::array<ColoanaLista, NrColoanePanou> c = {{{"ID", 0},
                                                                {"Data", 1800},
                                                                {"Nr membrii", 800},
                                                                {"Nr copii", 800},
                                                                {"Data expirarii", 1800},
                                                                {"Motivul expirarii", 4000}}};
    return c;
}

const std::array<ColoanaLista, NrColoanePanou>& ColoaneDispozitii()
{
    static const std::array<ColoanaLista, NrColoanePanou> c = {
        {{"ID", 0}, {"Nr disp", 700}, {"Data", 1800}, {"Tip decizie", 2000}, {"Luna", 1700}, {"Anul", 1000}}};
    return c;
}

std::vector<RandPanou> CitesteAnchete(const BD& bd, qint64 cerereId)
{
    std::vector<RandPanou> randuri;
    Rezultat r = bd.selecteaza(
        QStringLiteral("SELECT AnchetaID, DataAncheta, NrMembrii, NrCopii, DataExpirarii, Motiv FROM Anchete "
                       "WHERE CerereID = ? ORDER BY CASE WHEN DataAncheta IS NULL THEN 1 ELSE 0 END, "
                       "DataAncheta DESC, AnchetaID DESC"),
        {cerereId});
    while (r.next()) {
        RandPanou p;
        p.id = r.valoare(0).toLongLong();
        p.texte = {QString::number(p.id), dataBD(r.valoare(1)), numarBD(r.valoare(2)),
                   numarBD(r.valoare(3)), dataBD(r.valoare(4)), textBD(r.valoare(5))};
        randuri.push_back(std::move(p));
    }
    return randuri;
}

std::vector<RandPanou> CitesteDispozitii(const BD& bd, qint64 cerereId)
{
    // The labels of the disposition types are read once for the whole list.
    QHash<int, QString> etichete;
    for (const ElementCod& e : CitesteListaCod(bd, 20))
        if (!etichete.contains(e.id))
            etichete.insert(e.id, e.text);

    std::vector<RandPanou> randuri;
    Rezultat r =
        bd.selecteaza(QStringLiteral("SELECT DispozitieID, NrDisp, DataDisp, Actiune, Luna, An FROM Dispozitii "
                                     "WHERE CerereID = ? ORDER BY CASE WHEN DataDisp IS NULL THEN 1 ELSE 0 END, "
                                     "DataDisp DESC, DispozitieID DESC"),
                      {cerereId});
    while (r.next()) {
        RandPanou p;
        p.id = r.valoare(0).toLongLong();
        const QVariant actiune = r.valoare(3);
        if (actiune.isNull() || !etichete.contains(actiune.toInt()))
            throw Eroare(3021,
                         QStringLiteral("Tipul de decizie %1 al dispozitiei %2 nu exista in lista tipurilor de "
                                        "decizie.")
                             .arg(actiune.isNull() ? QStringLiteral("(gol)") : actiune.toString())
                             .arg(p.id),
                         QStringLiteral("IncarcaDispozitii"));
        p.texte = {QString::number(p.id),           numarBD(r.valoare(1)), dataBD(r.valoare(2)),
                   etichete.value(actiune.toInt()), numarBD(r.valoare(4)), numarBD(r.valoare(5))};
        randuri.push_back(std::move(p));
    }
    return randuri;
}

const std::array<ColoanaLista, NrColoaneIstoric>& ColoaneIstoric()
{
    static const std::array<ColoanaLista, NrColoaneIstoric> c{{{"ID", 0},
                                                               {"Data", 1500},
                                                               {"Din data", 1500},
                                                               {"Stare", 2000},
                                                               {"Cuantum", 1300},
                                                               {"Nr copii", 900},
                                                               {"Motiv", 6000},
                                                               {"Statie / utilizator", 2500}}};
    return c;
}

namespace {

QString etichetaStare(const QHash<int, QString>& etichete, int stare)
{
    return etichete.value(stare, QString::number(stare));
}

QHash<int, QString> eticheteStari(const BD& bd)
{
    QHash<int, QString> e;
    for (const ElementCod& x : CitesteListaCod(bd, 1))
        if (!e.contains(x.id))
            e.insert(x.id, x.text);
    return e;
}

} // namespace

std::vector<QStringList> RanduriIstoric(const BD& bd, const std::vector<RandIstoric>& istoric)
{
    const QHash<int, QString> etichete = eticheteStari(bd);
    std::vector<QStringList> v;
    for (const RandIstoric& r : istoric)
        v.push_back({QString::number(r.id), TextData(r.data), TextData(r.dinData), etichetaStare(etichete, r.stare),
                     r.cuantum.textSuma(), QString::number(r.nrCopii), r.motiv,
                     r.statie + QStringLiteral(" / ") + r.utilizator});
    return v;
}

QString TextStareLa(const BD& bd, const std::vector<RandIstoric>& istoric, const QDate& data)
{
    const std::optional<StareLaData> s = StareLa(istoric, data);
    if (!s)
        return QStringLiteral("La %1 cererea nu avea inca istoric.").arg(TextData(data));
    return QStringLiteral("La %1: %2, %3 lei, %4 copii (de la %5, %6)")
        .arg(TextData(data), etichetaStare(eticheteStari(bd), s->stare), s->cuantum.textSuma())
        .arg(s->nrCopii)
        .arg(TextData(s->din), s->motiv);
}

const std::array<ColoanaLista, NrColoanePlati>& ColoanePlati()
{
    static const std::array<ColoanaLista, NrColoanePlati> c{
        {{"Luna", 1800}, {"Stare", 2000}, {"Nr copii", 900}, {"Suma", 1300}, {"Dispozitia", 2500}}};
    return c;
}

std::vector<QStringList> RanduriPlati(const BD& bd, const PlatiFamilie& p)
{
    const QHash<int, QString> etichete = eticheteStari(bd);
    std::vector<QStringList> v;
    for (const PlataLunara& x : p.luni)
        v.push_back({TextLuna(x.luna), etichetaStare(etichete, x.stare), QString::number(x.nrCopii),
                     x.cuantum.textSuma(), TextDispozitiePlata(x)});
    return v;
}

QString TextTotalPlati(const PlatiFamilie& p)
{
    if (p.luni.empty())
        return p.an ? QStringLiteral("Nicio plata intr-o luna inchisa a anului %1.").arg(*p.an)
                    : QStringLiteral("Nicio plata intr-o luna inchisa.");
    QString t = QStringLiteral("Total platit: %1 lei in %2 luni inchise").arg(p.total.textSuma()).arg(p.luni.size());
    if (p.an)
        t += QStringLiteral(" (anul %1)").arg(*p.an);
    return t;
}
