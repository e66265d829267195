#pragma once
#include "history/CalculeDispozitii.h"

class BD;

// The calculation behind a disposition, by the amount rules of the applications.

// The calculation of an application as it is stored now, by the amount rules, against the year
// the disposition takes effect (a child counts in the year it turns 18). The scale's own
// messages are not shown: the sheet says the same in its remarks. Throws Eroare when the
// application is gone.
CalculDispozitie CalculeazaPentruDispozitie(const BD& bd, qint64 cerereId, int an);

// Calculates and stores in one step; the result.
CalculDispozitie CalculeazaSiScrie(const BD& bd, qint64 dispozitieId, qint64 cerereId, int an);
