#pragma once
#include <QDate>
#include <functional>

// The one clock for "today": amounts, ages, the 18-year lists and the certificate deadlines
// read it. Tests replace it with a fixed date.
namespace Ceas {
QDate azi();
void seteazaAzi(const QDate& d); // a fixed today; an invalid date returns to the system clock
} // namespace Ceas
