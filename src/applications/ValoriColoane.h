#pragma once
#include "applications/Cerere.h"
#include "applications/VerificareCerere.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>

// Every number that reaches a column of the office's tables fits that column, or it is
// refused: a value is never stored as something else (cut, wrapped, or turned to 0). The
// ranges are those of the column types of the schema: a byte 0..255, an integer
// -32768..32767, a long integer of 32 bits, money fixed point with four decimals
// (+-922337203685477.5807), single precision up to 3.4e38; texts hold at most their size.

// Why `valoare` does not fit the column `coloana` of `tabela`, in words that name the field;
// "" when it fits. A number may come as a number or as the text of a box, read with the
// leading-number rule (money digit by digit, never through a double); a text column takes a
// text (or a number, as its text) no longer than the column.
QString ValoareInAfaraColoanei(const QString& tabela, const QString& coloana, const QVariant& valoare);

// The numbers of the application editor against their columns, before anything is written:
// the first that does not fit shows its message and names the control that takes the focus.
// The entry limits of the text boxes already keep the texts within their columns.
Verificare VerificaValoriCerere(const Cerere& c);

// The amounts typed in the income grid (row i holds code i + 1): the message of the first
// that does not fit a money column, "" when all fit; `rand` gets its row.
QString VerificaCeluleVenituri(const QStringList& celule, int* rand = nullptr);

// One element of an import: every number within its column, every text no longer than its
// column, and the income total within a money column. The message names the field (and the
// member, certificate or housing it belongs to); "" when everything fits.
QString VerificaValoriImport(const QJsonObject& element);
