#include "amounts/BaremLei.h"

#include "common/Data.h"
#include "database/BD.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>

namespace {

const int Trepte[2] = {200, 370};

// A list refused at row `index` (-1: as a whole) with its message.
SumeCitite refuz(int index, const QString& mesaj)
{
    SumeCitite s;
    s.gresit = index;
    s.mesaj = mesaj;
    return s;
}

// One amount as typed; the message when it is refused.
std::optional<Bani> citesteSuma(const QString& text, const QString& rand, QString& mesaj)
{
    static const QRegularExpression numar(QStringLiteral("^(\\d+(\\.\\d*)?|\\.\\d+)$"));
    const QString t = text.trimmed();
    if (t.isEmpty()) {
        mesaj = QStringLiteral("Completati suma noua pentru %1!").arg(rand);
        return std::nullopt;
    }
    const std::optional<Bani> b = numar.match(t).hasMatch() ? Bani::citeste(t) : std::nullopt;
    if (!b) {
        mesaj = QStringLiteral("Suma noua pentru %1 nu este un numar: %2").arg(rand, t);
        return std::nullopt;
    }
    const int punct = t.indexOf(QLatin1Char('.'));
    if (punct >= 0 && t.size() - punct - 1 > 4) {
        mesaj = QStringLiteral("Suma noua pentru %1 are mai mult de patru zecimale: %2").arg(rand, t);
        return std::nullopt;
    }
    return b;
}

} // namespace

QString MesajSumaZero(const CheieBarem& c)
{
    return QStringLiteral("Suma noua pentru %1 trebuie sa fie diferita de 0 (zero).").arg(DescriereBarem(c));
}

CheieBarem CheieBaremLei(int index)
{
    return {index / 8 + 1, index % 4 + 1, Trepte[(index / 4) % 2]};
}

int IndexBaremLei(int tip, int nrPers, int suma)
{
    if (tip < 1 || tip > 2 || nrPers < 1 || nrPers > 4 || (suma != 200 && suma != 370))
        return -1;
    return (tip - 1) * 8 + (suma == 370 ? 4 : 0) + nrPers - 1;
}

QString TextTipAlocatie(int tip)
{
    return tip == 1 ? QStringLiteral("Cu sot") : tip == 2 ? QStringLiteral("Mono") : QString::number(tip);
}

QString TextCopiiBarem(int nrPers)
{
    if (nrPers == 1)
        return QStringLiteral("1 copil");
    if (nrPers >= 4)
        return QStringLiteral("4 sau mai multi copii");
    return QStringLiteral("%1 copii").arg(nrPers);
}

QString TextTreaptaVenit(int suma)
{
    return suma == 200 ? QStringLiteral("sub 200 lei") : QStringLiteral("200 - 370 lei");
}

QString DescriereBarem(const CheieBarem& c)
{
    return QStringLiteral("%1, %2, venit %3")
        .arg(TextTipAlocatie(c.tip), TextCopiiBarem(c.nrPers), TextTreaptaVenit(c.suma));
}

BaremLei CitesteBaremLei(const BD& bd)
{
    BaremLei b;
    std::array<bool, NrRanduriBaremLei> citit{};
    for (int i = 0; i < NrRanduriBaremLei; ++i)
        b[i].cheie = CheieBaremLei(i);
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT Tip, NrPers, Suma, Barem, DataInceput FROM Barem "
                                              "WHERE Suma IN (200, 370) ORDER BY %1")
                                   .arg(bd.identitateRand()));
    while (r.next()) {
        const double suma = r.valoare(2).toDouble();
        const int i = IndexBaremLei(r.valoare(0).toInt(), r.valoare(1).toInt(),
                                    suma == 200   ? 200
                                    : suma == 370 ? 370
                                                  : 0);
        if (i < 0 || citit[i])
            continue;
        citit[i] = true;
        b[i].barem = Bani::dinVariant(r.valoare(3));
        b[i].dataInceput = DataDinBD(r.valoare(4));
    }
    return b;
}

CautareBarem CautareInSume(const SumeBarem& sume)
{
    return [sume](int nrPers, int tip, int suma) -> std::optional<Bani> {
        const int i = IndexBaremLei(tip, nrPers, suma);
        if (i < 0)
            return std::nullopt;
        return sume[i];
    };
}

CautareBarem CautareInBarem(const BaremLei& barem)
{
    return [barem](int nrPers, int tip, int suma) -> std::optional<Bani> {
        const int i = IndexBaremLei(tip, nrPers, suma);
        if (i < 0)
            return std::nullopt;
        return barem[i].barem;
    };
}

SumeCitite CitesteSumeNoi(const QStringList& texte)
{
    SumeCitite s;
    for (int i = 0; i < NrRanduriBaremLei; ++i) {
        QString mesaj;
        const std::optional<Bani> b = citesteSuma(texte.value(i), DescriereBarem(CheieBaremLei(i)), mesaj);
        if (!b)
            return refuz(i, mesaj);
        if (b->esteZero())
            return refuz(i, MesajSumaZero(CheieBaremLei(i)));
        s.sume[i] = *b;
    }
    return s;
}

SumeCitite SumeDinJson(const QByteArray& json)
{
    QJsonParseError eroare;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &eroare);
    if (eroare.error != QJsonParseError::NoError)
        return refuz(-1, QStringLiteral("Fisierul baremului nu este JSON corect: %1 (la caracterul %2).")
                             .arg(eroare.errorString())
                             .arg(eroare.offset));
    if (!doc.isArray())
        return refuz(-1, QStringLiteral("Fisierul baremului trebuie sa fie o lista cu cele 16 randuri ale baremului "
                                        "(Tip, NrPers, Suma, Barem)."));
    QStringList texte(NrRanduriBaremLei);
    std::array<bool, NrRanduriBaremLei> gasit{};
    int nr = 0;
    for (const QJsonValue& v : doc.array()) {
        ++nr;
        const QJsonObject o = v.toObject();
        const auto intreg = [&](const char* camp) {
            const QJsonValue x = o.value(QLatin1String(camp));
            return x.isDouble() && x.toDouble() == double(x.toInt()) ? x.toInt() : -1;
        };
        const int i = IndexBaremLei(intreg("Tip"), intreg("NrPers"), intreg("Suma"));
        if (i < 0)
            return refuz(-1, QStringLiteral("Randul %1 din fisier nu este un rand al baremului in lei: Tip 1 sau 2, "
                                            "NrPers de la 1 la 4, Suma 200 sau 370.")
                                 .arg(nr));
        if (gasit[i])
            return refuz(
                i,
                QStringLiteral("Randul pentru %1 apare de doua ori in fisier.").arg(DescriereBarem(CheieBaremLei(i))));
        gasit[i] = true;
        // A number is read through its shortest text, by the same rule as a typed amount; a
        // value of another kind is named as the file writes it.
        const QJsonValue barem = o.value(QStringLiteral("Barem"));
        if (barem.isDouble())
            texte[i] = QString::number(barem.toDouble(), 'f', QLocale::FloatingPointShortest);
        else if (barem.isString())
            texte[i] = barem.toString();
        else if (!barem.isUndefined())
            texte[i] =
                QString::fromUtf8(QJsonDocument(QJsonArray{barem}).toJson(QJsonDocument::Compact)).mid(1).chopped(1);
    }
    for (int i = 0; i < NrRanduriBaremLei; ++i)
        if (!gasit[i])
            return refuz(i,
                         QStringLiteral("Lipseste din fisier randul pentru %1.").arg(DescriereBarem(CheieBaremLei(i))));
    return CitesteSumeNoi(texte);
}

QJsonArray BaremLeiJson(const BaremLei& barem)
{
    QJsonArray a;
    for (const RandBaremLei& r : barem) {
        QJsonObject o;
        o.insert(QStringLiteral("Tip"), r.cheie.tip);
        o.insert(QStringLiteral("NrPers"), r.cheie.nrPers);
        o.insert(QStringLiteral("Suma"), r.cheie.suma);
        o.insert(QStringLiteral("Barem"), r.barem ? QJsonValue(r.barem->toDouble()) : QJsonValue());
        o.insert(QStringLiteral("DataInceput"), TextData(r.dataInceput));
        o.insert(QStringLiteral("Descriere"), DescriereBarem(r.cheie));
        a.append(o);
    }
    return a;
}
