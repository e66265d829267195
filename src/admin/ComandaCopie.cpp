// alocatii-admin copie: a checked copy of the office's data now, or the check of any copy.
#include "admin/Comenzi.h"
#include "admin/CopiiComanda.h"
#include "maintenance/CopiiOficiu.h"
#include "common/Proces.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

void scrieRanduri(const VerificareCopie& v)
{
    for (auto it = v.randuri.cbegin(); it != v.randuri.cend(); ++it)
        ScrieLinie(QStringLiteral("  %1: %2").arg(it.key()).arg(it.value()));
}

int verifica(const QString& fisier, bool json)
{
    const VerificareCopie v = VerificaCopie(QDir(fisier).absolutePath());
    if (json) {
        QJsonObject o = v.json();
        o.insert(QStringLiteral("copie"), QDir(fisier).absolutePath());
        ScrieJson(o);
    } else if (v.buna) {
        ScrieLinie(QStringLiteral("Copia %1 este buna (integritate %2, %3 randuri, %4 octeti, sha256 %5):")
                       .arg(QDir::toNativeSeparators(fisier), v.integritate)
                       .arg(v.totalRanduri())
                       .arg(v.marime)
                       .arg(v.amprenta));
        scrieRanduri(v);
    } else {
        ScrieEroare(v.motiv);
    }
    return v.buna ? 0 : 1;
}

} // namespace

LocCopii LocCopiiComanda(const QStringList& arg)
{
    const QString oficiu = QDir(Optiune(arg, QStringLiteral("--office"))).absolutePath();
    IncarcaSetariOficiu(oficiu);
    QString server = Optiune(arg, QStringLiteral("--server"));
    if (server.isEmpty())
        server = ServerBDDinSetari(QDir(oficiu).filePath(QStringLiteral("setariTarnava.ini")), QString());
    Proces::setari().ServerBD = server;
    LocCopii loc = LocCopiiDinSetari(Proces::setari());
    const QString in = Optiune(arg, QStringLiteral("--in"));
    if (!in.isEmpty())
        loc.folderCopii = QDir(in).absolutePath();
    return loc;
}

static int ruleaza(const QStringList& arg)
{
    const bool json = AreOptiune(arg, QStringLiteral("--json"));
    const QString fisier = Optiune(arg, QStringLiteral("--verifica"));
    const QStringList cuValoare{QStringLiteral("--office"), QStringLiteral("--in"), QStringLiteral("--verifica")};
    if (!fisier.isEmpty() && Pozitionale(arg, cuValoare).isEmpty())
        return verifica(fisier, json);
    if (Optiune(arg, QStringLiteral("--office")).isEmpty() || !Pozitionale(arg, cuValoare).isEmpty()) {
        ScrieEroare(QStringLiteral("Utilizare: alocatii-admin copie --office DIR [--in FOLDER] [--json] | copie "
                                   "--verifica FISIER [--json]"));
        return 2;
    }
    const LocCopii loc = LocCopiiComanda(arg);
    const RezultatCopie r = FaCopie(loc, MomentCopie());
    if (json) {
        QJsonObject o = r.verificare.json();
        o.insert(QStringLiteral("copie"), r.fisier);
        o.insert(QStringLiteral("sterse"), QJsonArray::fromStringList(r.sterse));
        ScrieJson(o);
        return 0;
    }
    ScrieLinie(QStringLiteral("Copie facuta si verificata: %1 (%2 randuri, %3 octeti)")
                   .arg(QDir::toNativeSeparators(r.fisier))
                   .arg(r.verificare.totalRanduri())
                   .arg(r.verificare.marime));
    scrieRanduri(r.verificare);
    for (const QString& s : r.sterse)
        ScrieLinie(QStringLiteral("Copie veche stearsa: %1").arg(QDir::toNativeSeparators(s)));
    return 0;
}

static ComandaInregistrata
    copie(QStringLiteral("copie"),
          QStringLiteral("copie --office DIR [--in FOLDER] [--json] | --verifica FISIER   o copie verificata a datelor "
                         "oficiului in copii/ (sau in CaleCopii), ori verificarea unei copii"),
          ruleaza);
