#pragma once
#include "common/Bani.h"

#include <QDate>
#include <QString>
#include <array>
#include <vector>

// The in-memory model of one open application editor (frmAddCerere) and of what its
// sub-editors (frmAddMembru, frmAddVenituri, frmAddLocuinta, frmBife) share with it. Nothing
// here reaches the database until the save (SalveazaCerere); cancelling simply drops it.
//
// Conventions:
// - A combo box with a hidden key is held as its key; 0 means "no row chosen" (every code list
//   and both kinds of allowance start at 1).
// - What the editor holds in a text box is held as that text: the save and the amount read it
//   with ValoareNumerica, the same reader of numbers everywhere (point separator only).
// - Dates use the zero date (DataZero, an invalid/null QDate) for "no date".

// A certificate or document of a member in this application (a row of Adeverinte).
struct AdeverintaMembru {
    qint64 AdevID = 0;     // the key it had when loaded; the save allots new keys
    int TipAdeverinta = 0; // DataID of the list Tip 30
    QString NrAdev;
    QDate DataAdeverinta;
    QDate DataExpAdev;
    QDate DataDepunerii;
};

// One person of the application: the Membrii row (identity) and the CereriMembrii row (the
// person within this application). The CNP, not MembruID, decides at the save who the person is.
struct MembruCerere {
    // Membrii
    qint64 MembruID = 0; // key of the person found by CNP; 0 for a person not in the database
    QString Nume;
    QString Prenume;
    QString CNP;
    int TipAct = 0; // Tip 28
    QString SerieBI;
    QString NrBI;
    QString Eliberat; // a text of Politii, or typed (a new text adds a Politii row at the save)
    QDate DataElib;

    // CereriMembrii
    int RudenieID = 0;   // Tip 2: 1 titular, 2 spouse, 3..5 children
    int CetatenieID = 0; // Tip 25
    QString TaraCetatenie;
    int ResedintaID = 0; // Tip 11
    QString LocResedinta;
    QString TaraResedinta;
    int StCivila = 0;    // Tip 21
    int Studii = 0;      // Tip 22
    int DrAsSociala = 0; // Tip 24
    int OcupatieID = 0;  // Tip 3: 8, 11 count as children; 1..7, 10 do not fit a child
    bool LucreazaAfara = false;
    QString UScolara; // a text of Scoli, or typed
    QString Clasa;
    bool RealizeazaVenit = false;
    QDate Data18Ani;    // the date the member's right ends; zero date for an adult
    QString Motiv;      // reason of that end, e.g. "implinirea varstei de 18 ani"
    int Stare = 0;      // Tip 1
    QString MotivStare; // a text of Motive, or typed
    QDate DataStare;

    // Shown in the member list only, not stored
    QString TextRudenie;      // text of the chosen kinship
    QString TextOcupatie;     // text of the chosen occupation
    QString TextDataNasterii; // the column "Data nast."

    // The member's certificates; an empty array at the save keeps the rows already stored.
    std::vector<AdeverintaMembru> Adeverinte;
};

// Number of income codes: index i of the income array holds code i + 1.
constexpr int NrCoduriVenit = 80;
// Number of housing kinds: index i of the housing array holds Cod i + 1.
constexpr int NrLocuinte = 8;
// The first six housing kinds have rooms and surface.
constexpr int NrLocuinteCuCamere = 6;

// One housing kind (a row of Locuinte when folosita).
struct LocuintaCerere {
    int Cod = 0;           // i + 1
    bool folosita = false; // the check box is ticked
    int NrCamere = 0;
    double Suprafata = 0; // square metres
};

using VenituriCerere = std::array<Bani, NrCoduriVenit>;
using LocuinteCerere = std::array<LocuintaCerere, NrLocuinte>;

// Everything one application editor holds.
struct Cerere {
    int Adaug = 1;        // 1 add, 2 change
    qint64 CerereID = 0;  // mode 2: the application (equal to FamilieID)
    qint64 FamilieID = 0; // mode 2: the family row

    // Familii
    QString NrDosar;    // txtCerere(0), as typed
    QString Strada;     // cboCerere(0), text
    QString Nr;         // txtCerere(2)
    QString Bloc;       // txtCerere(17)
    QString Sc;         // txtCerere(3)
    QString Ap;         // txtCerere(4)
    QString Localitate; // txtCerere(5)
    QString Judet;      // txtCerere(6)
    QString Telefon;    // txtCerere(7)
    QString Mobil;      // txtCerere(8)

    // Cereri
    QString NrCerere;        // txtCerere(1), as typed
    QDate DataCerere;        // dtpData(0)
    int ReprLegal = 0;       // cboCerere(1), Tip 27
    int ModPlata = 0;        // cboCerere(2), Tip 12 (the account fields count only for key 2)
    QString NumeTitularCont; // txtCerere(9)
    QString Cont;            // txtCerere(10)
    QString Banca;           // txtCerere(11)
    int TipCerere = 0;       // cboCerere(3): 1 "Cu sot", 2 "Mono"
    int Stare = 0;           // cboCerere(4), Tip 1
    QString MotivStare;      // cboCerere(5), text of Motive or typed
    QDate DataStare;         // dtpData(1)
    QString VenitTotal;      // txtCerere(12), the income total as text
    QString VenitpeMembru;   // txtCerere(13), derived (TextVenitPeMembru)
    QString Cuantum;         // txtCerere(14), shown; the save recomputes it
    QString NrMembrii;       // txtCerere(15), shown; the save takes the array's count
    QString NrCopii;         // txtCerere(16), derived; kept when no child counts
    QString LuniRetro;       // txtCerere(22)

    // Shared with the sub-editors
    std::vector<MembruCerere> Membrii; // the member array, in list order
    VenituriCerere Venituri{};         // the income array
    LocuinteCerere Locuinte = LocuinteGoale();
    int Gospodarire = 0;   // Tip 26, comes only from the loaded row
    int LunaGospod = 0;    // month 1..12, 0 none
    int GospodLoc = 0;     // Tip 26
    int RegimJuridLoc = 0; // Tip 5
    int TipIncalzire = 0;  // Tip 6
    int TipLocuinta = 0;   // Tip 29
    QString Bife;          // "0"/"1" per row of Bife in the order of NrBifa

    // The housing array with each Cod set and nothing ticked.
    static LocuinteCerere LocuinteGoale()
    {
        LocuinteCerere l{};
        for (int i = 0; i < NrLocuinte; ++i)
            l[static_cast<std::size_t>(i)].Cod = i + 1;
        return l;
    }
};
