#pragma once
#include "decisions/ValabilitateAncheta.h"
#include "common/Verificare.h"

#include <QDate>
#include <QString>
#include <optional>

class BD;

// A social inquiry as the editor holds it: texts as typed, the four lists by key (0 when
// nothing is chosen).
struct DateAncheta {
    qint64 id = 0; // AnchetaID; 0 for a new one
    qint64 cerereId = 0;
    QDate data;                                 // dtpData
    QString intocmitor;                         // txtCerere(0)
    int tipLocuinta = 0;                        // cboCerere(0), list 4
    int regimJuridic = 0;                       // cboCerere(1), list 5
    int tipLocuire = 0;                         // cboCerere(2), list 7; not required, 0 is stored as NULL
    int tipDetinere = 0;                        // cboCerere(3), list 8
    QString nrCamere;                           // txtCerere(1)
    QString suprUtila;                          // txtCerere(2)
    QString bunuri, igiena;                     // txtCerere(3), (4)
    QString teren, cladiri, spatii, alteBunuri; // txtCerere(5) .. (8)
    QString stareSanatate, nevoi, aspecte;      // txtCerere(9) .. (11)
};

// A saved inquiry loaded for a change, with the computed values as they were saved.
struct AnchetaIncarcata {
    DateAncheta date;
    QString textExpirare; // dd.mm.yyyy, "" when none
    QString motiv;
    QString nrMembrii;
    QString nrCopii;
};
std::optional<AnchetaIncarcata> CitesteAncheta(const BD& bd, qint64 anchetaId);

enum class CampAncheta { Niciunul, Data, Intocmitor, NrCamere, Suprafata, TipLocuinta, RegimJuridic, TipDetinere };
using VerificareAncheta = RezultatVerificare<CampAncheta>;

// The checks before a save, in the office's order; each failure shows its message. The
// count of children shown in the window is compared with the application's, as a warning.
// adaug: 1 add, 2 change.
VerificareAncheta VerificaAncheta(const BD& bd, int adaug, const DateAncheta& a, int nrCopiiAfisat);

// Writes the row in one transaction with the validity computed for it, and returns its
// AnchetaID. A change whose row another workstation deleted meanwhile throws Eroare
// RandSters and writes nothing.
qint64 SalveazaAncheta(BD& bd, int adaug, const DateAncheta& a, const Valabilitate& v);

namespace MesajAncheta {
inline const QString Stearsa = QStringLiteral("Aceasta Ancheta a fost stearsa de alt utilizator. Modificarile dvs. nu "
                                              "pot avea loc. Aceasta fereastra se va inchide!");
inline const QString PrefixVerificare = QStringLiteral("Err in Verifica Controale: ");
} // namespace MesajAncheta
