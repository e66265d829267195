#pragma once
#include <QByteArray>
#include <QDate>
#include <optional>

class BD;
struct Setari;

// The two documents of an application: the calculation sheet (fisa.rtf) and the income
// declaration (declaratie.rtf), both from the folder acte of CaleBD.

// The sheet: the application's figures, the titular, the town hall and the date of issue
// (the zero date gives today).
bool CompleteazaFisa(qint64 cerereId, const QDate& dataFisa, QByteArray& corp, const BD& bd);

// The declaration: the town hall, up to 12 income rows with their total (every row counts in
// the total), the titular, the address and up to 12 persons with relationship and occupation.
bool CompleteazaDeclaratia(qint64 cerereId, QByteArray& corp, const Setari& s, const BD& bd);

// The whole documents, ready to write; nothing when they stopped (the reason was told).
std::optional<QByteArray> DocumentulFisei(qint64 cerereId, const QDate& dataFisa, const BD& bd);
std::optional<QByteArray> DocumentulDeclaratiei(qint64 cerereId, const Setari& s, const BD& bd);

// The declaration's tables have room for this many rows.
constexpr int RanduriDeclaratie = 12;
