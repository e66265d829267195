#pragma once
#include <QString>
#include <QVariant>

struct Camp;

// Every number that reaches a column of the office's tables fits that column, or it is
// refused: a value is never stored as something else (cut, wrapped, rounded, or turned to 0):
// a whole-number column takes no fraction, money no fifth decimal. The
// ranges are those of the column types of the schema: a byte 0..255, an integer
// -32768..32767, a long integer of 32 bits, money fixed point with four decimals
// (+-922337203685477.5807), single precision up to 3.4e38; texts hold at most their size.

// Why `valoare` does not fit the column `coloana` of `tabela`, in words that name the field;
// "" when it fits. A number may come as a number or as the text of a box, read with the
// leading-number rule (money digit by digit, never through a double); a text column takes a
// text (or a number, as its text) no longer than the column.
QString ValoareInAfaraColoanei(const QString& tabela, const QString& coloana, const QVariant& valoare);

// The column `coloana` of the table `tabela` in the schema, found regardless of case; nullptr
// when there is none.
const Camp* GasesteCamp(const QString& tabela, const QString& coloana);
