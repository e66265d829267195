#pragma once
#include <QByteArray>
#include <QString>

// The saved expected outputs under tests/data (documents, report grids, the text boxes of the
// printed forms), compared whole. `relativ` is the file's path below tests/data.
//
// A change that is meant is saved by ./scripts/rescrie-asteptate.sh, which runs these tests
// with ALOCATII_REGENEREAZA=1: the output is then written over the expected file (only on
// the file engine, never from a run on the server), and the diff is read before committing.
//
// "" when the output is the expected one; otherwise what differs, as diff -u shows it from the
// expected file to the output, and the command that saves it.
QString DiferentaFataDeAsteptat(const QString& relativ, const QByteArray& obtinut);
