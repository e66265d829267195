#pragma once
#include <QColor>
#include <QString>

// What the options window shows and writes: the settings of the workstation that an officer
// may change, as the window's controls hold them.
struct ValoriOptiuni {
    bool Motiv = false;
    int AppWord = 1; // 1 the desktop's default application, 2 LibreOffice Writer, 3 not built
    QString HeightRowRaport, HeightRowBorderou; // pixels, as typed
    bool ReteaSetat = false;
    QString StrSat;
    QString NrCerereAnexa3; // "Nr crt", "NrCerere", "NrDispozitie" or "" for none
    bool Anexa2ExportWord = false;
    bool AfisSerieStatPlata = false;
    QString Anexa3, Anexa4, StatPlata;
    bool AfisCereri = true;
    QString FontName0;
    int FontSize0 = 10;
    bool FontB0 = false, FontI0 = false, FontU0 = false;
    QString CuloareVenit; // the decimal text of the colour (blue-green-red), "" for none
};

// The current values: the settings in memory and, for the colour of the income window, the
// settings file.
ValoriOptiuni CitesteOptiuni();

// cmdOK: writes the keys in the window's order and takes them in memory at once. A font size
// outside 2..72 is told and stops the writing after the keys before the font; a settings file
// that cannot be written is told and stops it too. True when everything was written.
bool ScrieOptiuni(const ValoriOptiuni& v);

// "Times New Roman, 10, B, I": the font as the window describes it.
QString DescriereFont(const ValoriOptiuni& v);

// The background of the income window: the value in memory once the options window's colour
// buttons set it (kept when the window is cancelled), else the settings file's.
QString CuloareVenit();
void SeteazaCuloareVenit(const QString& text);

// The colours of the settings file are Windows colours: the decimal text of blue, green and
// red from the high byte. An empty or broken text is no colour.
QColor CuloareDinSetare(const QString& text);
QString TextCuloareSetare(const QColor& c);

// The entries of the lists of the window.
inline const char* const IntrariAppWord[] = {"Microsoft WORD", "Open Office WRITER", "Word Pad"};
inline const char* const IntrariNrCerereAnexa3[] = {"Nr crt", "NrCerere", "NrDispozitie"};
