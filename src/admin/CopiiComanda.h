#pragma once
#include "maintenance/CopiiOficiu.h"

#include <QStringList>

// The office of --office DIR for the commands of the copies: CaleCopii and the keeping rule from
// DIR/setariTarnava.ini, the server of --server or of ServerBD, and --in FOLDER for the copies.
LocCopii LocCopiiComanda(const QStringList& arg);
