#pragma once
#include <QDate>
#include <QString>

// The personal numeric code (CNP): the check and the facts read out of one. Plain functions
// on text, no database.

// The reason of the first failed check, "" when the CNP passes every check.
QString MotivCNPInvalid(const QString& cnp);

// True when every check passes. With showMessages a failure shows "CNP invalid." and the
// reason in a message titled "CNP".
bool ValidareCNP(const QString& cnp, bool showMessages);

// "m" for a first digit 1, "f" for 2, "n" for anything else (5 and 6 too).
QString SexDinCNP(const QString& cnp);

// The birth date, or with plus18 the 18th birthday; the zero date after a month above 12 or
// a day above 31 (each with its message). Other impossible dates overflow as the calendar does.
QDate DataNasteriiDinCNP(const QString& cnp, bool plus18);

// "5 Martie 1980", or "" when the text's number is not above 0. A month outside 1..12 throws
// Eroare 9 (subscript out of range).
QString TextDataNasteriiDinCNP(const QString& cnp);

// The year of the reference date minus the year of birth; 0 with a message for the zero date.
int VarstaInAni(const QDate& referinta, const QDate& nastere, const QString& cnp);

// True when the text is exactly 13 digits.
bool CNPDe13Cifre(const QString& cnp);
