#include "registers/frmMotive.h"

namespace {
const FereastraRegistru Motive{
    &RegistruMotive,
    "frmMotive",
    "Motive",
    "Evidenta Motive",
    "lvw",
    {QStringLiteral("ID"), QStringLiteral("Motiv")},
    "Selectati mai intai un Motiv",
    "Selectati mai intai un Motiv",
    "frmAdMotive",
    "Adaugare Motiv",
    "Modificare Motiv",
    {QStringLiteral("Denumire motiv")},
    "Denumirea Motivului poate fi de maxim 50 de caractere alfanumerice",
};
} // namespace

frmMotive::frmMotive(QWidget* parent) : frmListaRegistru(Motive, parent) {}
