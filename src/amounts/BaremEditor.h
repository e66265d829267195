#pragma once
#include <QStringList>

class BD;

// The scale editor works on the first six rows of the scale, taken by position: the amount
// (Barem) of each, and the amount per person (BaremPerPers) of the sixth. Seven values.
constexpr int ValoriBaremEditor = 7;

// The seven values as text, read from Barem. A table with fewer than six rows stops with an
// Eroare at the first missing one; `citite`, when given, then holds the values read before it,
// which the editor shows.
QStringList CitesteBaremEditor(const BD& bd, QStringList* citite = nullptr);

// The index of the first value that reads as 0, told with its message; -1 when all pass.
int VerificaBaremEditor(const QStringList& valori);

// Writes the seven values into the first six rows of Baremuri, in one transaction. The table
// written is not the one read, and so it stays: an office whose database has no Baremuri gets
// the engine's error and nothing is written.
void ScrieBaremEditor(BD& bd, const QStringList& valori);
