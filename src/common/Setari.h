#pragma once
#include <QString>

class FisiereHelper;

// The settings of a workstation, read once at start-up from setariTarnava.ini in the
// program folder and written key by key when a window changes them.
struct Setari {
    QString CaleBD;
    // The database server of the office (a libpq connection string or URI); empty for the file
    // Tarnava.db in CaleBD. Read before the database is opened, see ServerBDDinSetari.
    QString ServerBD;
    QString pass;
    int NrCaractSerie = 0;
    int ObligEmailPrimarie = 0;
    QString NrCerereAnexa3;
    int FontSize0 = 10;
    QString FontName0 = QStringLiteral("Times New Roman");
    int FontB0 = 0;
    int FontI0 = 0;
    int FontU0 = 0;
    int AfisCereri = 1;
    QString Anexa3 = QStringLiteral("Centralizator.xls");
    QString Anexa4 = QStringLiteral("Statistica.xls");
    QString StatPlata = QStringLiteral("StatPlata.xls");
    int Anexa2ExportWord = 0;
    QString StrSat;
    int AfisSerieStatPlata = 0;
    int ReteaSetat = 0;
    int Motiv = 0;
    int HeightRowBorderou = 36;
    int HeightRowRaport = 36;
    int AppWord = 1;
    int LunaSetata = 1;
    int AnSetat = 2009;
};

// The settings file of the program folder.
QString FisierSetari();

// The key ServerBD of section Generale: the workstation's own settings file, else the one of
// the office folder, so that every workstation of an office moved to a server follows it.
// Passwords never stand there: the server's address names none (libpq reads ~/.pgpass).
QString ServerBDDinSetari(const QString& fisierSetari, const QString& folderOficiu);

// Loads every key in the order of the settings table, starting at `pass`, supplying the
// defaults and writing back those that are written back. A value that does not fit its type
// is reported and replaced by its default in memory; the file is then left as it is.
void IncarcaSetari(const FisiereHelper& helper, Setari& s);
