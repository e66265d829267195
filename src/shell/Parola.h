#pragma once
#include <QString>

// The one shared password of the program, `pass` of section Generale. It is read at start-up
// from setariTarnava.ini in the program folder, but a change is written to setariOlt.ini in
// the folder of the database: the office's program has always done so, and a change therefore
// holds only until the program ends, unless somebody copies the key. It stands in plain text.

// frmLogin: the typed text against the password, exactly (no trimming, case counts).
bool ParolaCorecta(const QString& tastata);

// The file that a changed password is written to: CaleBD + "/setariOlt.ini".
QString FisierParola();

// frmParola, cmdOK: the old password (compared as typed) must be the current one, the new one
// (trimmed) must not be empty and must equal the retyped one (trimmed). The first failed check
// is told and nothing changes. On success the trimmed new password is written to
// FisierParola() and taken in memory. True when the window may close.
bool SchimbaParola(const QString& veche, const QString& noua, const QString& rescriere);

// frmParola, cmdReset: with the right old password, the password is emptied in memory and in
// FisierParola(). True when the window may close.
bool StergeParola(const QString& veche);
