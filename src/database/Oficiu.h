#pragma once
#include <QString>

// An office folder: the database Tarnava.db with every table and code list, the seed files
// Venituri.txt and bife.txt and the document templates under acte/.
// Throws Eroare, touching nothing, when DIR already holds a database.
void CreeazaOficiu(const QString& folder);

// The files that a new office folder starts with, from the program's resources: the seed
// files and the templates. Existing files are left as they are.
void CopiazaFisiereOficiu(const QString& folder);

// One starter file (a path below the office folder, e.g. "acte/fisadispozitie.rtf") that an
// office made by an older release lacks: copied from the resources when missing. False when it
// is missing and cannot be written.
bool AsiguraFisierOficiu(const QString& folder, const QString& relativ);
