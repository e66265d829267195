#pragma once
#include <QByteArray>
#include <QString>
#include <optional>

class BD;
struct Setari;

// The mayor's disposition, filled from its template by the kind of decision (Actiune):
// 1 acordare.rtf, 2 modificare.rtf, 3 suspendare.rtf, 4 respingere.rtf, 5 incetare.rtf,
// 6 reluare.rtf. Empty for any other value.
QString NumeSablonDispozitie(int actiune);

// Replaces the disposition markers of the body from the record of Dispozitii, its application,
// the titular, the family and the town hall data. False when it stopped; the reason was told.
bool CompleteazaDispozitia(qint64 dispozitieId, QByteArray& corp, const Setari& s, const BD& bd);

// The scale value of #barem#: the 2012 scale row for the application's type, children
// (4 for four or more) and income tier (below 200: 0.4; 200 up to 370: 0.74).
QString ValoareBaremDocument(const BD& bd, int tipCerere, qint64 nrCopii, double venitPeMembru);

// The whole document of one disposition, ready to write; nothing when it stopped (an unknown
// Actiune stops without a word, everything else says why).
std::optional<QByteArray> DocumentulDispozitiei(qint64 dispozitieId, const Setari& s, const BD& bd);
