#include "registers/frmSate.h"

namespace {
const FereastraRegistru Sate{
    &RegistruStrazi,
    "frmSate",
    "Sate / strazi",
    "Evidenta sate si strazi",
    "lvwSate",
    {QStringLiteral("ID"), QStringLiteral("Denumire sat /strada"), QStringLiteral("Of Postal"),
     QStringLiteral("Cod Postal")},
    "Selectati mai intai un sat / strada /",
    "Selectati mai intai un sat /strada",
    "frmAdSate",
    "Adaugare strada / sat",
    "Modificare strada / sat",
    {QStringLiteral("Nume strada / sat"), QStringLiteral("Of Postal"), QStringLiteral("Cod Postal")},
    "Denumirea strazii / satului poate fi de maxim 50 de caractere alfanumerice",
};
} // namespace

frmSate::frmSate(QWidget* parent) : frmListaRegistru(Sate, parent) {}
