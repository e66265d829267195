#pragma once
#include <QString>

class BD;

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

// An office whose data are on a database server: the schema, code lists and scale laid into
// the server database (which must hold no table), the starter files into the folder, and
// ServerBD written into the folder's settings file. Throws Eroare, writing nothing into the
// database, when it cannot.
void CreeazaOficiuPeServer(const QString& folder, const QString& server);

// Throws Eroare when the server's address holds a password, which never goes into a settings file.
void VerificaFaraParola(const QString& server);

// Writes ServerBD into the settings file of the office folder, in that file's encoding.
void ScrieServerOficiu(const QString& folder, const QString& server);

// Throws Eroare when the open server database already holds tables.
void VerificaBazaGoala(const BD& bd);
