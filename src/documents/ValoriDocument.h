#pragma once
#include "common/Bani.h"
#include "common/Text.h"
#include <QDate>
#include <QString>
#include <QVariant>

class BD;
class Rezultat;

// The values that the fill routines put in place of the markers.

// A column that the document cannot do without: a NULL stops the document with error 94,
// naming the table and the column, instead of leaving a hole in a legal text.
QVariant Obligatoriu(const Rezultat& r, const char* tabela, const char* coloana);
// The same for a value already read from that column.
QVariant Obligatoriu(const QVariant& v, const char* tabela, const char* coloana);

// The address of a family (a row of Familii) as the case list shows it; StrSat is the
// workstation's setting ("str.", "sat", ...).
QString AdresaFamilie(const Rezultat& familie, const QString& strSat);

// Nume + " " + Prenume of a person, with the CNP; throws Eroare 3021 when there is no such person.
struct Persoana {
    QString nume;
    QString cnp;
};
Persoana CitestePersoana(const BD& bd, const QVariant& membruId);
// The same from the person's columns read with the application (gasita false: no such row).
Persoana PersoanaCitita(const QVariant& membruId, bool gasita, const QVariant& nume, const QVariant& prenume,
                        const QVariant& cnp);
