#pragma once
#include <QString>
#include <QStringList>

class BD;

// The town hall's data: the single row of DatePrimarie that heads every document and report,
// kept in step with the one row of Judete and of Localitati that prefill a new application.

// The thirteen text columns, in the order of the window's boxes txtText(0) .. txtText(12).
const QStringList& ColoaneDatePrimarie();

// The kinds of locality, in the order of the list; the stored value is the position + 1.
const QStringList& TipuriLocalitate();

struct DatePrimarie {
    QStringList texte = QStringList(13); // one per column of ColoaneDatePrimarie(), as typed
    int TipLocalitate = 0;               // 1 Comuna, 2 Oras, 3 Municipiu; 0 none chosen
};

// The row as the window shows it: loaded when the table holds exactly one row (NULL as an
// empty text, a kind other than 1..3 as none). With two or more rows that is told and the
// fields stay empty; with none they stay empty quietly.
DatePrimarie CitesteDatePrimarie(const BD& bd);

// The first check that fails, told in the office's words: the index of the first blank box
// (0..12), 13 for the kind of locality, -1 when everything is filled.
int VerificaDatePrimarie(const DatePrimarie& d);
constexpr int CampTipLocalitate = 13;

// Writes the row (a new one on an empty table, otherwise the last one), then renames the first
// row of Judete to the county and of Localitati to the locality, adding them with key 1 when
// the tables are empty. One transaction: all or nothing.
void SalveazaDatePrimarie(BD& bd, const DatePrimarie& d);
