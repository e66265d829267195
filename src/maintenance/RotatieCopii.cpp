#include "maintenance/RotatieCopii.h"

#include <algorithm>
#include <functional>

namespace {

// The newest copy of each of the `cate` newest periods that have a copy, a period being what
// `perioada` makes of a date. `copii` is sorted newest first.
void pastreaza(const QList<CopieDatata>& copii, int cate, const std::function<qint64(const QDate&)>& perioada,
               QSet<QString>& pastrate)
{
    QSet<qint64> vazute;
    for (const CopieDatata& c : copii) {
        if (vazute.size() >= cate)
            return;
        const qint64 p = perioada(c.facuta.date());
        if (vazute.contains(p))
            continue;
        vazute.insert(p);
        pastrate.insert(c.fisier);
    }
}

} // namespace

QSet<QString> CopiiDePastrat(QList<CopieDatata> copii, const RegulaPastrare& regula)
{
    std::sort(copii.begin(), copii.end(), [](const CopieDatata& a, const CopieDatata& b) {
        return a.facuta != b.facuta ? a.facuta > b.facuta : a.fisier > b.fisier;
    });
    QSet<QString> pastrate;
    pastreaza(
        copii, regula.zilnice, [](const QDate& d) { return d.toJulianDay(); }, pastrate);
    // A week is known by its Monday.
    pastreaza(
        copii, regula.saptamanale, [](const QDate& d) { return d.toJulianDay() - d.dayOfWeek() + 1; }, pastrate);
    pastreaza(
        copii, regula.lunare, [](const QDate& d) { return qint64(d.year()) * 12 + d.month(); }, pastrate);
    return pastrate;
}
