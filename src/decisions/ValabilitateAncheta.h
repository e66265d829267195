#pragma once
#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

class BD;

// How long a social inquiry stands. From the date of the inquiry D and the CNPs of the
// application's members: the inquiry stands six months (D6) while a child stays under 18 past
// D6; otherwise until the earliest 18th birthday kept in E; otherwise it has no sense at all.
//
// E starts at the office's zero date and is replaced only by an earlier date, so with real
// birth dates it stays at the zero date and an inquiry whose children all turn 18 before D6
// counts as having no child left, even when a child is still under 18 at D. The office keeps
// that rule as it stands.
struct Valabilitate {
    QDate expirare;               // D6, E, or the zero date when no child is left
    QString textExpirare;         // dd.mm.yyyy, or "Cererea este INCETATA!"
    std::optional<QString> motiv; // the reason; nothing when no child is left (the label stays)
    int nrCopii = 0;              // members under 18 at D
    int nrMembrii = 0;            // all members read

    bool incetata() const { return !expirare.isValid(); }
};

inline const QString TextCerereIncetata = QStringLiteral("Cererea este INCETATA!");
inline const QString MotivSaseLuni = QStringLiteral("valabilitate 6 luni");
inline const QString MotivMajorat = QStringLiteral("implinirea varstei de 18 ani");

// D6: D with six months more, a day beyond the month's end carrying into the next month.
QDate DataSaseLuni(const QDate& d);

// The computation on the members' CNPs. A malformed CNP shows its message (through the CNP
// routines) and counts as an adult.
Valabilitate CalculeazaValabilitate(const QDate& d, const QStringList& cnpuri);

// The CNPs of every member of an application, adults as well.
QStringList CNPuriCerere(const BD& bd, qint64 cerereId);

// Reads the members and computes; with no child left it says so to the user.
Valabilitate ValabilitateAncheta(const BD& bd, qint64 cerereId, const QDate& d);
