#pragma once
#include <QString>

class FisiereHelper;

// The settings of a workstation, read once at start-up from setariTarnava.ini in the
// program folder and written key by key when a window changes them.
struct Setari {
    QString CaleBD;
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

// Loads every key in the order of the settings table, starting at `pass`, supplying the
// defaults and writing back those that are written back. A value that does not fit its type
// is reported and replaced by its default in memory; the file is then left as it is.
void IncarcaSetari(const FisiereHelper& helper, Setari& s);
