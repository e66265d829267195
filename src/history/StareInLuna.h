#pragma once
#include "common/Bani.h"
#include "history/LuniInchise.h"

#include <QString>
#include <QVariantList>
#include <unordered_map>

class BD;

// What was in effect for the applications in a month: the ground of the month's payroll.
//
// An application is in month M as the last change in effect by M's last day left it (the
// rule of the history, IstoricCereri.h). An application registered after M is never in it.
// Where an application's history begins later than M (it was entered before the program kept
// histories), M is reconstructed from what the office has of that time: its dispositions,
// each from its DinData, and its status from its DataStare.

// The statuses in which an application is paid: 2 new, 6 resumed, 7 amount changed, 8 holder
// changed (the report catalogue's "In plata").
bool EsteStarePlata(int stare);

struct StareInLuna {
    int stare = 0;
    Bani cuantum;
    int nrCopii = 0;
    bool reconstituita = false; // read from the dispositions and DataStare, not from the history
    // The application as it stands: its kind of allowance and its number.
    int tipCerere = 0;
    qint64 nrCerere = 0;
};

// Every application registered by the month's last day whose status for the month is known,
// by CerereID. An application that no change puts in the month (registered, but its first
// change takes effect later) is not there.
std::unordered_map<qint64, StareInLuna> StariInLuna(const BD& bd, LunaAn l);

// The statement of the history rows that StariInLuna reads, in no particular order, and its
// bound values for a month: the bare reading a measure is set beside.
QString SqlIstoricInLuna();
QVariantList ValoriIstoricInLuna(LunaAn l);
