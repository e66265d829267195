#pragma once
#include "common/Bani.h"
#include "history/LuniInchise.h"

#include <QDate>
#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

class BD;
class ReportGrid;

// A family's payments, as it asks at the counter ("what was I paid this year?"): for an
// application, every closed month in which it was paid, with the amount, the children, the
// status and the disposition in effect, read from the rows the month close froze, never
// recomputed. A month reopened is not among them until it is closed again.

struct PlataLunara {
    LunaAn luna;
    int stare = 0;
    int nrCopii = 0;
    Bani cuantum;
    std::optional<double> nrDisp; // the disposition in effect for the month
    QDate dataDisp;
};

struct PlatiFamilie {
    qint64 cerereId = 0;
    qint64 nrCerere = 0;
    QString titular;
    std::optional<int> an;         // only that year's months, when given
    std::vector<PlataLunara> luni; // oldest first
    Bani total;
};

// Nothing said when there are none: the list is empty and the total 0.
PlatiFamilie CitestePlatiFamilie(const BD& bd, qint64 cerereId, std::optional<int> an = std::nullopt);

// The years in which the application was paid in a closed month, newest first.
std::vector<int> AniCuPlati(const BD& bd, qint64 cerereId);

// "Nr. 5 din 03.11.2026", "" when no disposition was in effect.
QString TextDispozitiePlata(const PlataLunara& p);

// {"CerereID", "NrCerere", "Titular", "an" (null for every year), "luni": [{"luna", "an", "Stare",
// "NrCopii", "Cuantum", "NrDisp", "DataDisp"}], "total"}; money with its four decimals.
QJsonObject PlatiJson(const PlatiFamilie& p);

// One page (A4 portrait) for the counter: the title block, a row per month, the total and the
// social worker's signature.
void ConstruiestePlatiFamilie(const BD& bd, const PlatiFamilie& p, ReportGrid& g);
