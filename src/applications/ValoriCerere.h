#pragma once
#include "applications/Cerere.h"
#include "applications/VerificareCerere.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

// The values of the application editor and of the import checked against their columns
// (ValoareInAfaraColoanei) before anything is written.

// The numbers of the application editor against their columns, before anything is written:
// the first that does not fit shows its message and stops on the control that takes the focus.
// The entry limits of the text boxes already keep the texts within their columns.
VerificareCerere VerificaValoriCerere(const Cerere& c);

// The amounts typed in the income grid (row i holds code i + 1): the message of the first
// that does not fit a money column, "" when all fit; `rand` gets its row.
QString VerificaCeluleVenituri(const QStringList& celule, int* rand = nullptr);

// One element of an import: every number within its column, every text no longer than its
// column, and the income total within a money column. The message names the field (and the
// member, certificate or housing it belongs to); "" when everything fits.
QString VerificaValoriImport(const QJsonObject& element);
