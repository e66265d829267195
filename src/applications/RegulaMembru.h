#pragma once
#include "applications/Cerere.h"
#include "common/Verificare.h"
#include "database/CoduriDateGen.h"

#include <QDate>
#include <QString>
#include <array>
#include <optional>
#include <vector>

class BD;

// The rules of the member editor (frmAddMembru): everything it computes or checks, on plain
// values. The dialog itself never writes to the database.

inline const QString MotivImplinire18 = QStringLiteral("implinirea varstei de 18 ani");
inline const QString MesajCNPInLista = QStringLiteral("CNP-ul acestei persoane se gaseste deja in lista ");

// The birth fields read from a CNP (leaving cboCNP).
struct DateNastereMembru {
    bool valid = false; // false after a wrong month or day: only the caption is set
    QString eticheta;   // lblDataNast: "5 Martie 1980", "Luna incorecta", "Zi incorecta"
    QDate data18Ani;    // dtpData(1): the 18th birthday when it still counts, else the zero date
    QString motiv;      // cboMembru(8): MotivImplinire18 or ""
};
// With the century rule of the CNP. The 18th birthday counts when its year is at least the
// active year.
DateNastereMembru DateNastereDinCNP(const QString& cnp, int anActiv);

// True when another element of the array than `indexEditat` (-1 in mode 1) has this CNP.
bool CNPInLista(const std::vector<MembruCerere>& membri, const QString& cnp, int indexEditat);

// The Membrii row of a person, found by CNP (case-insensitive equality), or nothing.
struct PersoanaGasita {
    qint64 MembruID = 0;
    QString Nume, Prenume, SerieBI, NrBI, Eliberat;
    int TipAct = 0;
    QDate DataElib;
};
std::optional<PersoanaGasita> PersoanaDupaCNP(const BD& bd, const QString& cnp);
// Only the key of that row: the person an application's save writes to.
std::optional<qint64> MembruIdDupaCNP(const BD& bd, const QString& cnp);

// What the member editor offers in its lists, read at its opening: the registers of reasons
// (cboMembru(10)), schools (cboMembru(12)) and police offices (cboMembru(11)), the DateGen list
// of each cboMembru(i) that has one (empty for the others), and the certificate types of the
// grid. The persons of the file are not among them: they are found as the CNP is typed.
struct ListeEditorMembru {
    std::vector<ElementCod> motive, scoli, politii;
    std::array<std::vector<ElementCod>, 13> coduri;
    std::vector<ElementCod> tipuriAdeverinta;
};
ListeEditorMembru CitesteListeEditorMembru(const BD& bd);

// A row of cboCNP: a person of Membrii by key and CNP.
struct PersoanaCNP {
    qint64 MembruID = 0;
    QString CNP;
};
// The persons whose CNP begins with the typed text, in the order of the CNP, at most `limita`
// of them: the list of cboCNP as the clerk types. Nothing for an empty text. The search reads
// the index of Membrii.CNP, so it costs the same on a file of any size.
std::vector<PersoanaCNP> PersoaneCuCNPIncepand(const BD& bd, const QString& inceput, int limita);

// The full CNP check of the member editor: ValidareCNP with its messages, then a warning
// "CNP-ul acestei persoane exista in Baza de Date la ..." when the person is on an application
// (in mode 2 not when it is the same person, membruIdAles being the key of cboCNP). Returns
// whether ValidareCNP passed; nothing here is binding.
bool VerificaCNPMembru(const BD& bd, const QString& cnp, int mod, qint64 membruIdAles);
// Its second half, for a CNP that passed ValidareCNP: the warning alone. Only a person of
// Membrii can be on an application, so a CNP that PersoanaDupaCNP does not find needs none.
void AvertizareCNPPeCerere(const BD& bd, const QString& cnp, int mod, qint64 membruIdAles);

// Leaving cboCNP: the CNP check, the birth fields, the duplicate in the list and the person
// found in the database (to fill the boxes).
struct IesireCNP {
    std::optional<DateNastereMembru> nastere; // set when the CNP has 13 characters
    bool dublura = false;                     // MesajCNPInLista shown; focus back to cboCNP
    std::optional<PersoanaGasita> persoana;   // fill the boxes from it (fields not null)
};
IesireCNP LaIesireaDinCNP(const BD& bd, const std::vector<MembruCerere>& membri, int indexEditat, int mod,
                          qint64 membruIdAles, const QString& cnp, int anActiv);

// The controls of frmAddMembru that a failed check of OK gives the focus to.
enum class CampMembru { Niciunul, CNP, Nume, Prenume, Rudenie, Ocupatie };
using VerificareMembru = RezultatVerificare<CampMembru>;

// The checks of OK, steps 1 to 7 (CNP present, 13 characters, not twice in the list, Nume,
// Prenume, kinship, occupation). The failure's message is shown through Mesaj.
VerificareMembru VerificaMembru(const std::vector<MembruCerere>& membri, const MembruCerere& m, int indexEditat);

// The "Data nast." column of the member list: "CNP gresit!" for a CNP that isn't 13 characters,
// "GRESIT" (after the message "CNP este gresit. Va rog sa corectati!") for a month outside 1..12,
// otherwise day, blank, month name, blank, the two digits of the year.
QString ColoanaDataNasterii(const QString& cnp);

// A member as the import and the tests give it: Data18Ani (and its reason) from the CNP when
// none is given, as the member editor does when the CNP is typed.
void CompleteazaData18Ani(MembruCerere& m, int anActiv);
