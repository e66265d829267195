#include "common/Ceas.h"

namespace {
QDate g_fix;
}

QDate Ceas::azi()
{
    return g_fix.isValid() ? g_fix : QDate::currentDate();
}

void Ceas::seteazaAzi(const QDate& d)
{
    g_fix = d;
}
