#include "maintenance/RestaurareCopie.h"

#include "database/BlocareRetea.h"
#include "database/AdresaServer.h"
#include "database/BD.h"
#include "database/Oficiu.h"
#include "maintenance/CopieFisierBD.h"
#include "maintenance/CopieServer.h"
#include "maintenance/FisiereSigure.h"
#include "maintenance/PrezentaStatie.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// How long the restore waits for a workstation that holds the file before it gives up.
constexpr int AsteptareRestaurareMs = 3000;

const QString Sursa = QStringLiteral("restaurare");

[[noreturn]] void refuza(int numar, const QString& text)
{
    throw Eroare(numar, text + QStringLiteral("\nDatele oficiului nu au fost atinse."), Sursa);
}

QString numePastrat(const QString& folder, const QDateTime& acum, const QString& extensie)
{
    return QDir(folder).filePath(QStringLiteral("Tarnava-inainte-de-restaurare-") +
                                 acum.toString(QStringLiteral("yyyyMMdd-HHmmss")) + extensie);
}

// A file copied next to its place under a temporary name, flushed to the disk, then named.
void copiazaSigur(const QString& sursa, const QString& tinta)
{
    const QString temporar = tinta + QStringLiteral(".incomplet");
    QFile::remove(temporar);
    if (!QFile::copy(sursa, temporar) || !SincronizeazaFisier(temporar) ||
        !InlocuiestePrinRedenumire(temporar, tinta)) {
        QFile::remove(temporar);
        refuza(75, QStringLiteral("Fisierul %1 nu poate fi scris.").arg(QDir::toNativeSeparators(tinta)));
    }
}

RezultatRestaurare restaureazaFisier(const LocCopii& loc, const QString& copie, const VerificareCopie& v,
                                     const QDateTime& acum)
{
    if (copie.endsWith(QLatin1String(".dump"), Qt::CaseInsensitive))
        refuza(3000, QStringLiteral("Copia %1 este a unei baze de date de pe server; oficiul isi tine datele in "
                                    "fisierul Tarnava.db.")
                         .arg(QDir::toNativeSeparators(copie)));
    // A new workstation restores into a folder that may not exist yet.
    if (!QDir().mkpath(loc.folderOficiu))
        refuza(76, QStringLiteral("Folderul %1 nu poate fi creat.").arg(QDir::toNativeSeparators(loc.folderOficiu)));
    const QStringList statii = StatiiLaLucru(loc.folderOficiu);
    if (!statii.isEmpty())
        refuza(CodEroare::FisierDeschis,
               QStringLiteral("Restaurarea nu se poate face cat timp se lucreaza in oficiu pe alt calculator: %1. "
                              "Inchideti programul acolo si incercati din nou.")
                   .arg(statii.join(QStringLiteral(", "))));
    BlocareRetea snet;
    if (!snet.incearca(loc.folderOficiu))
        refuza(CodEroare::FisierDeschis,
               QStringLiteral("Restaurarea nu se poate face: tocmai se salveaza pe alt calculator (fisierul %1 este "
                              "tinut). Asteptati putin si incercati din nou.")
                   .arg(QDir::toNativeSeparators(BlocareRetea::fisier(loc.folderOficiu))));

    const QString cale = QDir(loc.folderOficiu).filePath(Proces::NumeBD);
    BD curent;
    curent.setAsteptare(AsteptareRestaurareMs);
    try {
        curent.deschide(cale);
        // Nobody reads or writes the file from here to its replacement.
        curent.executa(QStringLiteral("BEGIN EXCLUSIVE"));
    } catch (const Eroare& e) {
        if (e.numar == CodEroare::BazaOcupata)
            refuza(CodEroare::BazaOcupata,
                   QStringLiteral("Restaurarea nu se poate face: baza de date %1 este folosita chiar acum de alt "
                                  "calculator. Inchideti programul pe celelalte calculatoare si incercati din nou.")
                       .arg(QDir::toNativeSeparators(cale)));
        // A missing or damaged file is what a restore is for: it is kept as it is and replaced.
    }
    // A journal beside the file belongs to it: the restored file must not inherit one.
    for (const char* jurnal : {"-journal", "-wal"})
        if (QFileInfo::exists(cale + QLatin1String(jurnal)))
            refuza(3000, QStringLiteral("Langa baza de date se afla fisierul %1 al unei scrieri neterminate. "
                                        "Deschideti si inchideti programul o data, apoi incercati din nou.")
                             .arg(QDir::toNativeSeparators(cale + QLatin1String(jurnal))));

    RezultatRestaurare r;
    r.verificare = v;
    if (QFileInfo::exists(cale)) {
        r.pastrat = numePastrat(loc.folderOficiu, acum, QStringLiteral(".db"));
        copiazaSigur(cale, r.pastrat);
    }
    const QString nou = cale + QStringLiteral(".restaurare");
    copiazaSigur(copie, nou);
    if (AmprentaFisier(nou) != v.amprenta) {
        QFile::remove(nou);
        refuza(3000, QStringLiteral("Copia %1 s-a schimbat in timp ce era adusa in folderul oficiului.")
                         .arg(QDir::toNativeSeparators(copie)));
    }
#ifdef _WIN32
    // Windows renames nothing over an open file: the lock goes a moment before.
    curent.inchide();
#endif
    if (!InlocuiestePrinRedenumire(nou, cale)) {
        QFile::remove(nou);
        refuza(75, QStringLiteral("Baza de date %1 nu poate fi inlocuita.").arg(QDir::toNativeSeparators(cale)));
    }
    if (curent.deschisa())
        curent.executa(QStringLiteral("ROLLBACK"));
    curent.inchide();
    // An office folder set up anew gets its templates and seed files; existing ones stay. The
    // data are restored by now: a starter file that cannot be written is told at the next start.
    try {
        CopiazaFisiereOficiu(loc.folderOficiu);
    } catch (const Eroare&) {
    }
    return r;
}

RezultatRestaurare restaureazaServer(const LocCopii& loc, const QString& copie, const VerificareCopie& v,
                                     bool inlocuieste, const QDateTime& acum)
{
    if (!copie.endsWith(QLatin1String(".dump"), Qt::CaseInsensitive))
        refuza(3000, QStringLiteral("Copia %1 este a unui fisier Tarnava.db; oficiul isi tine datele pe serverul %2.")
                         .arg(QDir::toNativeSeparators(copie), AdresaServer::citeste(loc.server).descriere()));
    RezultatRestaurare r;
    r.verificare = v;
    bool goala = true;
    {
        BD bd;
        bd.deschideServer(loc.server);
        const QStringList alte = AlteLegaturiServer(bd);
        if (!alte.isEmpty())
            refuza(CodEroare::FisierDeschis,
                   QStringLiteral("Restaurarea nu se poate face cat timp alte calculatoare lucreaza pe baza de date "
                                  "%1: %2. Inchideti programul acolo si incercati din nou.")
                       .arg(bd.cale(), alte.join(QStringLiteral(", "))));
        goala = bd.conexiune().tables().isEmpty();
        if (!goala && !inlocuieste)
            refuza(3204, QStringLiteral("Baza de date %1 nu este goala: copia se restaureaza in ea numai cu "
                                        "--inlocuieste, dupa o copie a datelor de acum.")
                             .arg(bd.cale()));
    }
    if (!goala) {
        r.pastrat = numePastrat(loc.folderOficiu, acum, QStringLiteral(".dump"));
        const QString temporar = r.pastrat + QStringLiteral(".incomplet");
        const QMap<QString, qint64> randuri = CopiazaBazaServer(loc.server, temporar);
        const VerificareCopie pastrata = VerificaArhivaServer(temporar);
        const QString diferenta = DiferentaRanduri(randuri, pastrata.randuri);
        if (!pastrata.buna || !diferenta.isEmpty() || !InlocuiestePrinRedenumire(temporar, r.pastrat)) {
            QFile::remove(temporar);
            refuza(3000, QStringLiteral("Copia datelor de acum nu a trecut verificarea: %1")
                             .arg(pastrata.motiv.isEmpty() ? diferenta : pastrata.motiv));
        }
    }
    RestaureazaArhivaServer(loc.server, copie, !goala);
    BD bd;
    bd.deschideServer(loc.server);
    QMap<QString, qint64> gasite;
    const QMap<QString, qint64> toate = RanduriTabele(bd);
    for (auto it = toate.cbegin(); it != toate.cend(); ++it)
        for (auto c = v.randuri.cbegin(); c != v.randuri.cend(); ++c)
            if (c.key().compare(it.key(), Qt::CaseInsensitive) == 0)
                gasite.insert(it.key(), it.value());
    if (const QString d = DiferentaRanduri(v.randuri, gasite); !d.isEmpty())
        throw Eroare(3000, QStringLiteral("Dupa restaurare baza de date nu are randurile copiei: %1").arg(d), Sursa);
    return r;
}

} // namespace

RezultatRestaurare RestaureazaCopie(const LocCopii& loc, const QString& copie, bool inlocuieste, const QDateTime& acum)
{
    const VerificareCopie v = VerificaCopie(copie);
    if (!v.buna)
        refuza(3000,
               QStringLiteral("Copia %1 nu poate fi restaurata: %2").arg(QDir::toNativeSeparators(copie), v.motiv));
    if (loc.server.trimmed().isEmpty())
        return restaureazaFisier(loc, copie, v, acum);
    return restaureazaServer(loc, copie, v, inlocuieste, acum);
}
