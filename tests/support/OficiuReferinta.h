#pragma once
#include <QDate>
#include <QtGlobal>

class BD;

// The fixed small office of the saved expected reports: every row written here, nothing drawn
// by chance and nothing taken from the demonstration office, so that an expected file changes
// only when a report does. The active month is April 2012 and today is 16.04.2012
// (ZiReferinta): the clock and the settings are the test's to set.
//
// Nine applications, one or more of each status, of both kinds, most of them changed in April
// 2012: in payment, resumed, suspended, ceased, rejected, changed in amount twice (status 7 and
// 8, the latter without a disposition), a new one of October 2011 and one in payment since
// February. Among the members a child who turns 18 in May 2012 and one who turns 7 in April,
// pupils with and without a valid school certificate, documents that lapse in April 2012
// (of a known, an unknown and no type); streets with their post offices; a holder whose name
// has an apostrophe.
namespace OficiuReferinta {
constexpr int Luna = 4;
constexpr int An = 2012;
inline const QDate Azi{2012, 4, 16};

void Scrie(const BD& bd);

// The application of the printed forms, CerereCompletata: DosarCompletat with a spouse, a
// pupil and a pre-school child, three incomes and a flat.
constexpr qint64 CerereCompletata = 12;
void ScrieCerereCompletata(const BD& bd);
} // namespace OficiuReferinta
