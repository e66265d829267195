#include "maintenance/VerificareCopie.h"

#include "common/Eroare.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

qint64 VerificareCopie::totalRanduri() const
{
    qint64 t = 0;
    for (const qint64 n : randuri)
        t += n;
    return t;
}

QJsonObject VerificareCopie::json() const
{
    QJsonObject r;
    for (auto it = randuri.cbegin(); it != randuri.cend(); ++it)
        r.insert(it.key(), it.value());
    QJsonObject o;
    o.insert(QStringLiteral("buna"), buna);
    o.insert(QStringLiteral("integritate"), integritate);
    o.insert(QStringLiteral("marime"), marime);
    o.insert(QStringLiteral("sha256"), amprenta);
    o.insert(QStringLiteral("randuri"), r);
    if (!motiv.isEmpty())
        o.insert(QStringLiteral("motiv"), motiv);
    return o;
}

QString AmprentaFisier(const QString& cale)
{
    QFile f(cale);
    if (!f.open(QIODevice::ReadOnly))
        return QString();
    QCryptographicHash h(QCryptographicHash::Sha256);
    if (!h.addData(&f))
        return QString();
    return QString::fromLatin1(h.result().toHex());
}

QString DiferentaRanduri(const QMap<QString, qint64>& asteptat, const QMap<QString, qint64>& gasit)
{
    QMap<QString, qint64> g;
    for (auto it = gasit.cbegin(); it != gasit.cend(); ++it)
        g.insert(it.key().toLower(), it.value());
    QStringList diferente;
    for (auto it = asteptat.cbegin(); it != asteptat.cend(); ++it) {
        const qint64 n = g.value(it.key().toLower(), -1);
        if (n < 0)
            diferente << QStringLiteral("%1 lipseste din copie").arg(it.key());
        else if (n != it.value())
            diferente << QStringLiteral("%1: %2 randuri in copie, %3 in baza").arg(it.key()).arg(n).arg(it.value());
        g.remove(it.key().toLower());
    }
    for (auto it = g.cbegin(); it != g.cend(); ++it)
        diferente << QStringLiteral("%1 este in copie, dar nu in baza").arg(it.key());
    return diferente.join(QStringLiteral("; "));
}

VerificareCopie VerificaContinut(const QString& cale, const QString& fel,
                                 const std::function<void(VerificareCopie&)>& citeste)
{
    VerificareCopie v;
    v.marime = QFileInfo(cale).size();
    v.amprenta = AmprentaFisier(cale);
    try {
        citeste(v);
    } catch (const Eroare& e) {
        if (v.integritate.isEmpty())
            v.integritate = e.descriere;
        v.motiv = QStringLiteral("Copia este deteriorata sau nu este %1: %2").arg(fel, e.descriere);
        return v;
    }
    if (v.integritate != QLatin1String("ok")) {
        v.motiv = QStringLiteral("Copia este deteriorata: %1").arg(v.integritate);
        return v;
    }
    bool cuCereri = false;
    for (auto it = v.randuri.cbegin(); it != v.randuri.cend(); ++it)
        cuCereri = cuCereri || it.key().compare(QLatin1String("Cereri"), Qt::CaseInsensitive) == 0;
    if (!cuCereri) {
        v.motiv = QStringLiteral("Fisierul nu este o copie a datelor oficiului (nu are tabela Cereri).");
        return v;
    }
    v.buna = true;
    return v;
}

bool EsteNumeCopie(const QString& numeFisier)
{
    static const QRegularExpression re(QStringLiteral("^Tarnava-\\d{8}-\\d{6}(-\\d+)?\\.(db|dump)$"));
    return re.match(numeFisier).hasMatch();
}
