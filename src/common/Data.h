#pragma once
#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariant>

// Dates. The "zero date" (no date) is an invalid QDate, and NULL in the database.
inline const QDate DataZero{};
inline bool EsteDataZero(const QDate& d)
{
    return !d.isValid();
}

// "Ianuarie" ... "Decembrie", index 0 is January.
const QStringList& LunileAnului();
// The month's name for 1..12, empty otherwise.
QString NumeLuna(int luna);

// dd.mm.yyyy, day and month through DouaCifre; "" for the zero date. Another separator
// than the point gives dd-mm-yyyy, dd/mm/yyyy, "dd mm yyyy".
QString TextData(const QDate& d, QChar separator = QLatin1Char('.'));
// "5 Martie 2012": day as a number, month name, year; "" for the zero date.
QString TextDataLunga(const QDate& d);
// Reads dd.mm.yyyy (also d.m.yyyy and ddmmyyyy); the zero date when the text is no date.
QDate CitesteData(const QString& text);

// A date built the way the calendar overflows: month 13 is January of the next year,
// day 0 the last day of the month before, day 31 of April the 1st of May.
QDate DataSerial(int an, int luna, int zi);

// The database value of a date: ISO text, NULL for the zero date; and back.
QVariant DataPentruBD(const QDate& d);
QDate DataDinBD(const QVariant& v);
