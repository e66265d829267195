#pragma once
#include <QString>

// Writes that a power cut cannot leave half done: what was written reaches the disk before
// it takes its name, and a name changes in one step.

// Flushes a written file to the disk; false when it cannot be opened.
bool SincronizeazaFisier(const QString& cale);

// Puts `sursa` in the place of `tinta` in one step (rename over it, on the same disk): a
// reader finds either the old file or the new one, never part of one. The folder is flushed
// afterwards so that the new name survives a power cut. False when the system refuses.
bool InlocuiestePrinRedenumire(const QString& sursa, const QString& tinta);
