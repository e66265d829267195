#pragma once
#include <QList>
#include <QString>

class BD;

// The three deletes of the main window: an application, a disposition, an inquiry. Each one
// is one transaction: all of it or nothing. A record that another workstation deleted first
// throws Eroare RandSters and nothing is written.

struct StergereCerere {
    QList<qint64> membriSterse; // persons that stood on no other application
    bool familieStearsa = false;
};

// Deletes an application the office's way. The persons of the application that stand on no
// other one are deleted first (the links are read before the family goes); then, when the
// family has no other application, the family row with the application's own number, as a
// new application and its family share one number. The application and its dependants
// (members' links, dispositions, inquiries, incomes, housing, certificates, history) leave
// through the cascades from that family. When the family has another application no family
// row goes and the application stays in the database; when the two numbers differ, the
// family row deleted is the one that bears the application's number, if there is one.
// An application with a disposition of a closed month stays (Eroare LunaInchisa).
StergereCerere StergeCerere(BD& bd, qint64 cerereId);

void StergeDispozitie(BD& bd, qint64 dispozitieId);
void StergeAncheta(BD& bd, qint64 anchetaId);

// The lookups that each action makes before it acts.
bool CerereExista(const BD& bd, qint64 cerereId);
bool DispozitieExista(const BD& bd, qint64 dispozitieId);
bool AnchetaExista(const BD& bd, qint64 anchetaId);

// The lookup of the inquiry delete button. The office's program looks the inquiry up by the
// field AncheteID, which the table does not have: the engine refuses the statement and the
// button reports the refusal instead of deleting. The office keeps it so; inquiries are
// removed by their application. Throws the engine's Eroare.
bool AnchetaDeStersExista(const BD& bd, qint64 anchetaId);

// The prefixes of the three delete traps.
namespace PrefixStergere {
inline const QString Cereri = QStringLiteral("Eroare Valdera din \"Delete Cereri\" ");
inline const QString Dispozitii = QStringLiteral("Exceptie Valdera din \"Delete Dispozitii\" ");
inline const QString Anchete = QStringLiteral("Exceptie Valdera din \"Delete Anchete\" ");
} // namespace PrefixStergere
