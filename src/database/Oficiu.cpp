#include "database/Oficiu.h"

#include "database/BD.h"
#include "database/ListeCod.h"
#include "database/Schema.h"
#include "database/AdresaServer.h"
#include "common/Eroare.h"
#include "common/FisiereHelper.h"
#include "common/Proces.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

bool AsiguraFisierOficiu(const QString& folder, const QString& relativ)
{
    Q_INIT_RESOURCE(office);
    const QString tinta = QDir(folder).filePath(relativ);
    if (QFileInfo::exists(tinta))
        return true;
    QDir().mkpath(QFileInfo(tinta).absolutePath());
    if (!QFile::copy(QStringLiteral(":/office/") + relativ, tinta))
        return false;
    QFile::setPermissions(tinta, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    return true;
}

void CopiazaFisiereOficiu(const QString& folder)
{
    Q_INIT_RESOURCE(office);
    QDirIterator it(QStringLiteral(":/office"), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString relativ = it.next().mid(QStringLiteral(":/office/").size());
        if (!AsiguraFisierOficiu(folder, relativ))
            throw Eroare(75, QStringLiteral("Fisierul %1 nu poate fi scris.").arg(QDir(folder).filePath(relativ)),
                         QStringLiteral("init"));
    }
}

void CreeazaOficiu(const QString& folder)
{
    const QString cale = QDir(folder).filePath(Proces::NumeBD);
    if (QFileInfo::exists(cale))
        throw Eroare(
            3204,
            QStringLiteral("Baza de date %1 exista deja. Nu a fost modificata.").arg(QDir::toNativeSeparators(cale)),
            QStringLiteral("init"));
    if (!QDir().mkpath(folder))
        throw Eroare(76, QStringLiteral("Folderul %1 nu poate fi creat.").arg(folder), QStringLiteral("init"));

    // The database is built under a temporary name and takes its own only when complete.
    const QString temporar = cale + QStringLiteral(".nou");
    QFile::remove(temporar);
    try {
        BD bd;
        bd.deschide(temporar, true);
        bd.executa(QStringLiteral("PRAGMA journal_mode = DELETE"));
        {
            Tranzactie t(bd);
            CreeazaSchema(bd);
            SeamanaListe(bd);
            t.confirma();
        }
        bd.inchide();
        if (!QFile::rename(temporar, cale))
            throw Eroare(75, QStringLiteral("Baza de date %1 nu poate fi scrisa.").arg(cale), QStringLiteral("init"));
    } catch (...) {
        QFile::remove(temporar);
        throw;
    }
    CopiazaFisiereOficiu(folder);
}

void VerificaBazaGoala(const BD& bd)
{
    const QStringList tabele = bd.conexiune().tables();
    if (!tabele.isEmpty())
        throw Eroare(3204,
                     QStringLiteral("Baza de date de pe serverul %1 nu este goala (are %2 tabele, intre care %3). "
                                    "Nu a fost modificata.")
                         .arg(bd.cale())
                         .arg(tabele.size())
                         .arg(tabele.first()),
                     QStringLiteral("init"));
}

void VerificaFaraParola(const QString& server)
{
    if (AdresaServer::citeste(server).areParola())
        throw Eroare(CodEroare::ServerInaccesibil, MesajParolaInAdresa, QStringLiteral("init"));
}

void ScrieServerOficiu(const QString& folder, const QString& server)
{
    VerificaFaraParola(server);
    const QString fisier = QDir(folder).filePath(QStringLiteral("setariTarnava.ini"));
    if (!FisiereHelper().ScrieIni(QStringLiteral("ServerBD"), QStringLiteral("Generale"), fisier, server.trimmed()))
        throw Eroare(75, QStringLiteral("Fisierul de setari %1 nu poate fi scris.").arg(fisier),
                     QStringLiteral("init"));
}

void CreeazaOficiuPeServer(const QString& folder, const QString& server)
{
    VerificaFaraParola(server);
    if (!QDir().mkpath(folder))
        throw Eroare(76, QStringLiteral("Folderul %1 nu poate fi creat.").arg(folder), QStringLiteral("init"));
    BD bd;
    bd.deschideServer(server);
    VerificaBazaGoala(bd);
    {
        Tranzactie t(bd);
        CreeazaSchema(bd);
        SeamanaListe(bd);
        t.confirma();
    }
    bd.inchide();
    CopiazaFisiereOficiu(folder);
    ScrieServerOficiu(folder, server);
}
