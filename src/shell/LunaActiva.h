#pragma once
#include <QString>

class BD;

// The active month of the workstation (LunaSetata, AnSetat of section Setari): the default
// period of the reports and of several windows.

// The field of frmChLunaAn that a failed check sends the focus to.
enum class CampLunaActiva { Niciunul, Luna, An };

struct RezultatLunaActiva {
    bool setata = false;                            // written: the window closes
    CampLunaActiva camp = CampLunaActiva::Niciunul; // where the focus goes after a refusal
};

// frmChLunaAn, cmdOK: the month must lie from 1 to 12 and the year from 2008 to 2500 (numbers
// read as typed, a decimal month taken as the nearest whole one), and a payment statement
// (StatePlata) must exist for them: a month can be made active only then. The first failed
// check is told. On success LunaSetata and AnSetat are written to section Setari of the
// settings file and taken in memory. Engine errors come out as Eroare.
RezultatLunaActiva SeteazaLunaActiva(const BD& bd, const QString& luna, const QString& an);
