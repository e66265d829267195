#include "common/Proces.h"

#include "common/FisiereHelper.h"
#include "common/Mesaje.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QSysInfo>

namespace {
QString g_folderProgram;
Setari g_setari;

QString folderImplicit()
{
    const QString env = qEnvironmentVariable("ALOCATII_FOLDER_PROGRAM");
    if (!env.isEmpty())
        return QDir(env).absolutePath();
    const QString exe = QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
    const QFileInfo fi(exe);
    if (fi.isWritable())
        return exe;
    QString date = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(date);
    return date;
}
} // namespace

QString Proces::folderProgram()
{
    if (g_folderProgram.isEmpty())
        g_folderProgram = folderImplicit();
    return g_folderProgram;
}

void Proces::seteazaFolderProgram(const QString& folder)
{
    g_folderProgram = folder;
}

Setari& Proces::setari()
{
    return g_setari;
}

QString Proces::caleBazaDate()
{
    return QDir(g_setari.CaleBD).filePath(NumeBD);
}

bool Proces::BazaAccesibila()
{
    // A server has no path to test: its transactions guard the writes, and a dropped
    // connection is told by the statement that meets it.
    if (!g_setari.ServerBD.isEmpty())
        return true;
    const FisiereHelper h;
    switch (h.VerificaCale(caleBazaDate())) {
    case FisiereHelper::Exista: return true;
    case FisiereHelper::FisierLipsa: {
        // A workstation left open while its office moved to a server: the file took another name,
        // and the office's settings name the server.
        const QString server = ServerBDDinSetari(FisierSetari(), g_setari.CaleBD);
        if (!server.isEmpty())
            Mesaj(QStringLiteral("Datele oficiului au fost mutate pe server %1. Reporniti programul; el lucreaza de "
                                 "acum cu serverul.")
                      .arg(server));
        else
            Mesaj(QStringLiteral("Baza de date nu a fost gasita. Probabil nu functioneaza reteaua. Verificati!"));
        return false;
    }
    case FisiereHelper::LocatieInaccesibila:
        Mesaj(QStringLiteral("Locatia bazei de date nu e corecta. Probabil nu functioneaza reteaua. Verificati!"));
        return false;
    default: return false;
    }
}

QString Proces::statie()
{
    static const QString s = QSysInfo::machineHostName();
    return s;
}

QString Proces::utilizatorSistem()
{
    static const QString u = [] {
        const QString numeUnix = qEnvironmentVariable("USER");
        return numeUnix.isEmpty() ? qEnvironmentVariable("USERNAME") : numeUnix;
    }();
    return u;
}
