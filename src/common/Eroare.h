#pragma once
#include <QString>
#include <exception>

// An error that a routine reports to its caller: the engine's or the routine's own number,
// the description and where it came from. Windows show it as "Eroare: " + number + " " +
// description; nothing is left half-written behind it.
struct Eroare : std::exception {
    int numar = 0;
    QString descriere;
    QString sursa;

    Eroare(int n, QString d, QString s = QStringLiteral("Alocatii"))
        : numar(n), descriere(std::move(d)), sursa(std::move(s))
    {
    }
    const char* what() const noexcept override;

    // "Eroare: 3075 descriere"
    QString text(const QString& prefix = QStringLiteral("Eroare: ")) const;
};

// Error numbers that the windows tell apart.
namespace CodEroare {
constexpr int TabelaLipsa = 3078;       // the engine cannot find the table
constexpr int RandSters = 3167;         // the record was deleted by another workstation
constexpr int Sintaxa = 3075;           // a value that does not fit the statement
constexpr int Depasire = 6;             // overflow
constexpr int IndiceInafara = 9;        // subscript out of range
constexpr int ObiectNesetat = 91;       // object variable not set
constexpr int FisierDeschis = 70;       // file already open / locked
constexpr int BazaOcupata = 3218;       // the database file held by another workstation past the wait
constexpr int FaraScriere = 3027;       // the database file cannot be written (read-only)
constexpr int LunaInchisa = 3033;       // a change that a closed month's payroll forbids
constexpr int ServerInaccesibil = 3151; // the database server does not answer
constexpr int DiscPlin = 3026;          // no room left on the disk of the database
constexpr int OficiuMutat = 3044;       // the office's data were moved to a server: the file takes no writes
constexpr int BazaInchisa = 3420;       // no connection is open
} // namespace CodEroare

// A cause that will not go away by itself while a long piece of work goes on (a full disk, a
// file that cannot be written, a server gone, an office moved to a server, a file held by
// another workstation past the wait): the work stops at the element that met it, instead of
// failing every element after it alike.
bool OpresteLucrul(int numar);
