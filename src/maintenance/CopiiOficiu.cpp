#include "maintenance/CopiiOficiu.h"

#include "database/BlocareRetea.h"
#include "maintenance/CopieFisierBD.h"
#include "maintenance/CopieServer.h"
#include "maintenance/FisiereSigure.h"
#include "common/Ceas.h"
#include "common/Eroare.h"
#include "common/FisiereHelper.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "common/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace {

const QString SufixIncomplet = QStringLiteral(".incomplet");

bool esteArhivaServer(QString cale)
{
    if (cale.endsWith(SufixIncomplet))
        cale.chop(SufixIncomplet.size());
    return cale.endsWith(QLatin1String(".dump"), Qt::CaseInsensitive);
}

VerificareCopie verificaFaraIndex(const QString& cale)
{
    return esteArhivaServer(cale) ? VerificaArhivaServer(cale) : VerificaFisierBD(cale);
}

// A copy left half-written (a program stopped in the middle) is nobody's: it goes before the
// next copy begins. Only called while the folder's lock is held.
void stergeIncomplete(QDir folder)
{
    for (const QString& f : folder.entryList({QStringLiteral("*") + SufixIncomplet}, QDir::Files))
        folder.remove(f);
}

// The index as the folder stands: an entry whose file is gone leaves, a copy that the index
// does not name (one whose entry was not written, one brought from elsewhere) is checked and
// entered.
QList<CopieInregistrata> impaca(const QDir& folder, const QDateTime& acum)
{
    QList<CopieInregistrata> index;
    QSet<QString> inregistrate;
    for (const CopieInregistrata& c : IndexCopii::citeste(folder.path()))
        if (folder.exists(c.fisier) && !inregistrate.contains(c.fisier)) {
            index << c;
            inregistrate.insert(c.fisier);
        }
    for (const QString& f : folder.entryList(QDir::Files, QDir::Name)) {
        if (!EsteNumeCopie(f) || inregistrate.contains(f))
            continue;
        CopieInregistrata c;
        c.fisier = f;
        c.facuta = IndexCopii::MomentDinNume(f);
        c.verificata = acum;
        c.verificare = verificaFaraIndex(folder.filePath(f));
        index << c;
    }
    return index;
}

QString numeNou(const QDir& folder, const QDateTime& acum, const QString& extensie)
{
    const QString baza = QStringLiteral("Tarnava-") + acum.toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString nume = baza + extensie;
    for (int i = 2; folder.exists(nume) || folder.exists(nume + SufixIncomplet); ++i)
        nume = QStringLiteral("%1-%2%3").arg(baza).arg(i).arg(extensie);
    return nume;
}

// Removes the good copies that the rule does not keep, with their entries.
QStringList roteste(QDir folder, QList<CopieInregistrata>& index, const RegulaPastrare& regula)
{
    QList<CopieDatata> bune;
    for (const CopieInregistrata& c : index)
        if (c.verificare.buna)
            bune << CopieDatata{c.fisier, c.facuta};
    const QSet<QString> pastrate = CopiiDePastrat(bune, regula);
    QStringList sterse;
    for (auto it = index.begin(); it != index.end();) {
        if (it->verificare.buna && !pastrate.contains(it->fisier) && folder.remove(it->fisier)) {
            sterse << folder.filePath(it->fisier);
            it = index.erase(it);
        } else {
            ++it;
        }
    }
    return sterse;
}

} // namespace

LocCopii LocCopiiDinSetari(const Setari& s)
{
    LocCopii loc;
    loc.folderOficiu = s.CaleBD;
    loc.server = s.ServerBD;
    const FisiereHelper h;
    auto cheie = [&](const char* nume) {
        return h.CitesteIni(QLatin1String(nume), QStringLiteral("Generale"), FisierSetari()).trimmed();
    };
    auto numar = [&](const char* nume, int implicit) {
        const qint64 n = ValoareIntreaga(cheie(nume));
        return n > 0 && n < 1000 ? int(n) : implicit;
    };
    const QString cale = cheie("CaleCopii");
    loc.folderCopii =
        QDir::cleanPath(cale.isEmpty() ? QDir(s.CaleBD).filePath(QStringLiteral("copii"))
                                       : QDir(s.CaleBD).absoluteFilePath(QDir::fromNativeSeparators(cale)));
    loc.regula = RegulaPastrare{numar("CopiiZilnice", 7), numar("CopiiSaptamanale", 4), numar("CopiiLunare", 12)};
    return loc;
}

QDateTime MomentCopie()
{
    return QDateTime(Ceas::azi(), QTime::currentTime());
}

RezultatCopie FaCopie(const LocCopii& loc, const QDateTime& acum, const std::function<void(int)>& progres)
{
    const QDir folder(loc.folderCopii);
    if (!QDir().mkpath(loc.folderCopii))
        throw Eroare(
            76,
            QStringLiteral("Folderul copiilor %1 nu poate fi creat.").arg(QDir::toNativeSeparators(loc.folderCopii)),
            QStringLiteral("copie"));
    BlocareRetea blocare;
    if (!blocare.incearcaFisier(folder.filePath(QStringLiteral("copii.lock"))))
        throw Eroare(CodEroare::FisierDeschis,
                     QStringLiteral("Chiar acum se face o copie a datelor pe alt calculator. Incercati din nou peste "
                                    "cateva minute."),
                     QStringLiteral("copie"));
    stergeIncomplete(folder);
    QList<CopieInregistrata> index = impaca(folder, acum);

    const bool server = !loc.server.trimmed().isEmpty();
    const QString nume = numeNou(folder, acum, server ? QStringLiteral(".dump") : QStringLiteral(".db"));
    const QString cale = folder.filePath(nume);
    const QString temporar = cale + SufixIncomplet;
    RezultatCopie r;
    r.fisier = cale;
    try {
        const QMap<QString, qint64> randuri =
            server ? CopiazaBazaServer(loc.server, temporar)
                   : CopiazaFisierBD(QDir(loc.folderOficiu).filePath(Proces::NumeBD), temporar, progres);
        if (!SincronizeazaFisier(temporar))
            throw Eroare(75, QStringLiteral("Copia %1 nu poate fi scrisa pe disc.").arg(temporar),
                         QStringLiteral("copie"));
        r.verificare = verificaFaraIndex(temporar);
        if (r.verificare.buna) {
            const QString diferenta = DiferentaRanduri(randuri, r.verificare.randuri);
            if (!diferenta.isEmpty()) {
                r.verificare.buna = false;
                r.verificare.motiv = QStringLiteral("Copia nu are randurile bazei de date: %1").arg(diferenta);
            }
        }
        if (!r.verificare.buna)
            throw Eroare(3000,
                         QStringLiteral("Copia de siguranta a datelor nu a trecut verificarea si a fost stearsa; "
                                        "copiile mai vechi au ramas.\n%1")
                             .arg(r.verificare.motiv),
                         QStringLiteral("copie"));
        if (!InlocuiestePrinRedenumire(temporar, cale))
            throw Eroare(75, QStringLiteral("Copia %1 nu poate primi numele ei.").arg(QDir::toNativeSeparators(cale)),
                         QStringLiteral("copie"));
    } catch (...) {
        QFile::remove(temporar);
        throw;
    }
    index << CopieInregistrata{nume, IndexCopii::MomentDinNume(nume), acum, r.verificare};
    r.sterse = roteste(folder, index, loc.regula);
    IndexCopii::scrie(loc.folderCopii, index);
    if (progres)
        progres(100);
    return r;
}

bool CopieNecesara(const LocCopii& loc, const QDateTime& acum)
{
    const QDir folder(loc.folderCopii);
    for (const CopieInregistrata& c : IndexCopii::citeste(loc.folderCopii))
        if (c.verificare.buna && c.facuta.date() >= acum.date() && folder.exists(c.fisier))
            return false;
    return true;
}

QList<CopieListata> ListaCopii(const QString& folderCopii)
{
    const QDir folder(folderCopii);
    QHash<QString, CopieInregistrata> index;
    for (const CopieInregistrata& c : IndexCopii::citeste(folderCopii))
        index.insert(c.fisier, c);
    QList<CopieListata> lista;
    for (const QFileInfo& f : folder.entryInfoList(QDir::Files, QDir::Name)) {
        if (!EsteNumeCopie(f.fileName()))
            continue;
        CopieListata c;
        c.fisier = f.absoluteFilePath();
        c.facuta = IndexCopii::MomentDinNume(f.fileName());
        c.marime = f.size();
        c.inIndex = index.contains(f.fileName());
        c.inregistrare = index.value(f.fileName());
        lista << c;
    }
    std::sort(lista.begin(), lista.end(), [](const CopieListata& a, const CopieListata& b) {
        return a.facuta != b.facuta ? a.facuta > b.facuta : a.fisier > b.fisier;
    });
    return lista;
}

VerificareCopie VerificaCopie(const QString& cale)
{
    if (!QFileInfo(cale).isFile()) {
        VerificareCopie v;
        v.motiv = QStringLiteral("Copia %1 nu a fost gasita.").arg(QDir::toNativeSeparators(cale));
        return v;
    }
    VerificareCopie v = verificaFaraIndex(cale);
    const QFileInfo fi(cale);
    for (const CopieInregistrata& c : IndexCopii::citeste(fi.absolutePath())) {
        if (c.fisier != fi.fileName() || !v.buna)
            continue;
        if (!c.verificare.amprenta.isEmpty() && c.verificare.amprenta != v.amprenta) {
            v.buna = false;
            v.motiv = QStringLiteral("Copia a fost modificata dupa ce a fost facuta: nu mai este fisierul verificat "
                                     "atunci (amprenta difera de cea din index).");
        } else if (const QString d = DiferentaRanduri(c.verificare.randuri, v.randuri); !d.isEmpty()) {
            v.buna = false;
            v.motiv = QStringLiteral("Copia nu mai are randurile din index: %1").arg(d);
        }
    }
    return v;
}
