#pragma once
#include <QString>

class BD;

// Brings a database made by an older release up to the present schema: adds what is missing,
// deletes what is obsolete, renames two columns, creates tables and relations, and seeds the
// code lists and scale rows. Every step tests first, so that it runs at each start and does
// nothing but the tests on a file that is up to date. `folderOficiu` holds the seed files
// Venituri.txt and bife.txt. What it has to say goes through Mesaje, in the order of the steps.
//
// Each group of steps is one transaction. A failure throws Eroare naming the group where the
// upgrade stopped; the groups before it stay done and that one changed nothing.
void ActualizeazaBD(BD& bd, const QString& folderOficiu);

// History rows written before they carried their day of effect get it: a disposition's
// DinData, otherwise the day written; a row that changed nothing (a month reopened) stays a
// note without one. The upgrade runs it on the step that adds the column; the move from the old
// program, on the rows it brought.
void CompleteazaZiuaEfectului(const BD& bd);

// What the upgrade makes of a column of an older file: its present name (the new one of a
// renamed column), or "" for a column that the upgrade deletes. Any other column keeps its name.
QString ColoanaDupaActualizare(const QString& tabela, const QString& coloana);
