#pragma once
#include "common/Setari.h"

#include <QString>

// The process-wide state: the database's name and folder, the program folder, the settings.
namespace Proces {

// The database file's name in the folder CaleBD.
inline const QString NumeBD = QStringLiteral("Tarnava.db");

// The folder of setariTarnava.ini and of the output documents: the executable's folder, or
// the user's data folder when that one is not writable, or ALOCATII_FOLDER_PROGRAM when set.
QString folderProgram();
void seteazaFolderProgram(const QString& folder);

// The settings in memory, loaded by IncarcaSetari.
Setari& setari();

// Who makes a change, as a case's history records it: the workstation's name and the user
// logged on to the system (not the program's password, which the office shares).
QString statie();
QString utilizatorSistem();

// CaleBD + "/" + NumeBD.
QString caleBazaDate();

// True when the database path answers; otherwise says why (in the office's words) and false.
// Runs at the head of every action that touches the database.
bool BazaAccesibila();

} // namespace Proces
