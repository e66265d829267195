#pragma once
#include <QDate>
#include <QString>

class BD;

// The repairs of the maintenance window, each one transaction, each telling how many rows it
// touched. They ask for no confirmation and have no undo.

// Approved applications (Stare 2) made in the active month take DataCerere as DataStare; with
// `suprascrie` off only those without a DataStare. "A fost modificata Data Stare la N cereri".
int RecalculDataStare(BD& bd, int luna, int an, bool suprascrie);

// Every application takes Stare 5, whatever its status was (the command has no filter).
int RecalculStare(BD& bd);

// Relationship 3 becomes 2, then 4 becomes 3, in that order: a second run therefore also moves
// what the first moved to 3. Two messages; the result is the rows of both steps.
int RecalculRudenie(BD& bd);

// The allotment of disposition numbers to a range of heating-aid statements, by year, month
// and heating type. These tables (Sesiuni, with SesiuneID, TipID, NrDispozitie,
// DataDispozitie in Cereri) belong to the heating-aid statements: on an office without them
// the engine refuses the statement and its error comes out as Eroare.
struct Numerotare {
    int an = 0; // 0: none chosen
    int luna = 0;
    int tipIncalzire = 0;
    bool numarUnic = true;
    QString nrDispozitie; // the single number, or the first of the different numbers
    QString nrCerere1, nrCerere2;
    QDate data;                   // invalid: none
    bool siCeleCuNumar = false;   // also the applications that already have a number
    bool faraCuantumZero = false; // not those with an amount of 0
};
// The first failed check is told and false returned; otherwise the numbers are written and the
// report told.
bool AlocaNumereDispozitie(BD& bd, const Numerotare& n);

// The application numbers of the active period and heating type that were left out. False,
// with the message told, when no type is chosen or no period is active.
struct NumereNealocate {
    QString maxim; // "Nr cerere maxim: N"
    QString lista; // "Numere nealocate:" and a line per gap, or "Nu exista nici un numar nealocat"
};
bool CautaNumereNealocate(const BD& bd, int tipIncalzire, NumereNealocate& rezultat);
