#pragma once
#include <QString>
#include <QStringList>
#include <vector>

// The office's own files that come over with its data, byte for byte: the templates of acte/,
// the seed files Venituri.txt and bife.txt, and the password file setariOlt.ini.
struct FisierPreluat {
    QString sursa;              // the file in the old folder
    QString relativ;            // its place in the new folder ("acte/acordare.rtf")
    bool sablonStricat = false; // a template that the template engine cannot split
};

// The files of the old office folder, each template checked by the template engine; what they
// are, and every damaged template with what will happen to it, go to `observatii`.
std::vector<FisierPreluat> FisiereDePreluat(const QString& folderVechi, QStringList& observatii);

// The seed files as the new office will hold them (the old folder's, else the delivered ones),
// copied into `folder` for the upgrade's seed steps.
void PregatesteFisiereSemanate(const std::vector<FisierPreluat>& fisiere, const QString& folder);

// Copies the files into the new office folder, replacing the delivered ones. A damaged
// template is copied as it is, and the delivered one is kept beside it as "<name>-livrat.rtf".
// Throws Eroare when a file cannot be written.
void CopiazaFisierePreluate(const std::vector<FisierPreluat>& fisiere, const QString& folderNou);

// The options of the old workstation's settings file carried into the new folder's
// setariTarnava.ini, in the file's own encoding: a new file starts as a copy of the old one;
// values that name the old database folder (its CaleBD, a Windows path) are mapped to the new
// folder. What was carried goes to `observatii`. Throws Eroare when it cannot be written.
void PreiaSetari(const QString& iniVechi, const QString& folderNou, QStringList& observatii);

// The settings file can be read: "" or why not.
QString VerificaSetariVechi(const QString& iniVechi);
