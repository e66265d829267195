#pragma once
#include "applications/Cerere.h"
#include "applications/VerificareCerere.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

class ValoriPermise;

// The values of the application editor and of the import checked against their columns and
// their code lists (ValoriPermise, the one routine of every way in) before anything is written.

// The numbers and codes of the application editor, before anything is written: the first that
// does not fit its column, or is no code of its field's list, shows its message and stops on
// the control that takes the focus. The entry limits of the text boxes already keep the texts
// within their columns.
VerificareCerere VerificaValoriCerere(const ValoriPermise& permise, const Cerere& c);

// The amounts typed in the income grid (row i holds code i + 1): the message of the first
// that does not fit a money column, "" when all fit; `rand` gets its row.
QString VerificaCeluleVenituri(const QStringList& celule, int* rand = nullptr);

// One element of an import (its position from 1 in `nr`): every value exactly as its column
// keeps it and every code one of its field's list, no housing kind twice, and the income total
// within a money column. The message names the element (and the member, certificate or
// housing within it), the field and the value; "" when everything fits.
QString VerificaValoriImport(const ValoriPermise& permise, int nr, const QJsonObject& element);
