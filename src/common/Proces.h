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

// CaleBD + "/" + NumeBD.
QString caleBazaDate();

// True when the database path answers; otherwise says why (in the office's words) and false.
// Runs at the head of every action that touches the database.
bool BazaAccesibila();

} // namespace Proces
