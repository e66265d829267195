#pragma once
#include <QJsonObject>
#include <QString>

struct Preluare;
struct TotaluriPreluare;

// The report of a move, as the command prints it, the file preluare-YYYYMMDD-HHMMSS.txt holds
// it and the window shows it: per table the rows read, written and refused with their reason;
// the tables and columns left out; the totals an office checks against its own papers; what
// happens to the files and settings.
QString TextRaportPreluare(const Preluare& p);

// The totals alone, a line each.
QString TextTotaluri(const TotaluriPreluare& t);

// The same as one JSON object: {"tabele": {"Cereri": {"citite": N, "scrise": N, "refuzate":
// [{"rand": K, "motiv": "..."}], "coloane_lasate": [...]}, ...}, "tabele_lasate": [...],
// "totaluri": {...}, "observatii": [...], "scris": true|false, "raport": FILE}.
QJsonObject JsonRaportPreluare(const Preluare& p);
