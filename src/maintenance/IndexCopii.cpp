#include "maintenance/IndexCopii.h"

#include "common/Eroare.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSaveFile>
#include <algorithm>

namespace {

QJsonObject json(const CopieInregistrata& c)
{
    QJsonObject o = c.verificare.json();
    o.insert(QStringLiteral("fisier"), c.fisier);
    o.insert(QStringLiteral("facuta"), c.facuta.toString(Qt::ISODate));
    o.insert(QStringLiteral("verificata"), c.verificata.toString(Qt::ISODate));
    return o;
}

CopieInregistrata dinJson(const QJsonObject& o)
{
    CopieInregistrata c;
    c.fisier = o.value(QStringLiteral("fisier")).toString();
    c.facuta = QDateTime::fromString(o.value(QStringLiteral("facuta")).toString(), Qt::ISODate);
    c.verificata = QDateTime::fromString(o.value(QStringLiteral("verificata")).toString(), Qt::ISODate);
    c.verificare.buna = o.value(QStringLiteral("buna")).toBool();
    c.verificare.integritate = o.value(QStringLiteral("integritate")).toString();
    c.verificare.marime = o.value(QStringLiteral("marime")).toInteger();
    c.verificare.amprenta = o.value(QStringLiteral("sha256")).toString();
    c.verificare.motiv = o.value(QStringLiteral("motiv")).toString();
    const QJsonObject randuri = o.value(QStringLiteral("randuri")).toObject();
    for (auto it = randuri.constBegin(); it != randuri.constEnd(); ++it)
        c.verificare.randuri.insert(it.key(), it.value().toInteger());
    return c;
}

} // namespace

QList<CopieInregistrata> IndexCopii::citeste(const QString& folderCopii)
{
    QFile f(QDir(folderCopii).filePath(NumeFisier));
    QList<CopieInregistrata> copii;
    if (!f.open(QIODevice::ReadOnly))
        return copii;
    const QJsonArray lista = QJsonDocument::fromJson(f.readAll()).object().value(QStringLiteral("copii")).toArray();
    for (const QJsonValue& v : lista) {
        CopieInregistrata c = dinJson(v.toObject());
        if (EsteNumeCopie(c.fisier))
            copii << c;
    }
    return copii;
}

void IndexCopii::scrie(const QString& folderCopii, QList<CopieInregistrata> copii)
{
    std::sort(copii.begin(), copii.end(),
              [](const CopieInregistrata& a, const CopieInregistrata& b) { return a.fisier < b.fisier; });
    QJsonArray lista;
    for (const CopieInregistrata& c : copii)
        lista.append(json(c));
    QJsonObject radacina;
    radacina.insert(QStringLiteral("copii"), lista);
    QSaveFile f(QDir(folderCopii).filePath(NumeFisier));
    if (!f.open(QIODevice::WriteOnly) || f.write(QJsonDocument(radacina).toJson()) < 0 || !f.commit())
        throw Eroare(
            75, QStringLiteral("Indexul copiilor %1 nu poate fi scris.").arg(QDir::toNativeSeparators(f.fileName())),
            QStringLiteral("copie"));
}

QDateTime IndexCopii::MomentDinNume(const QString& numeFisier)
{
    if (!EsteNumeCopie(numeFisier))
        return QDateTime();
    static const QRegularExpression re(QStringLiteral("^Tarnava-(\\d{8}-\\d{6})"));
    return QDateTime::fromString(re.match(numeFisier).captured(1), QStringLiteral("yyyyMMdd-HHmmss"));
}
