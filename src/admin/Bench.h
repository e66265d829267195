#pragma once
#include <QString>
#include <QVariantList>
#include <functional>
#include <vector>

class BD;

// The measures of `alocatii-admin bench DIR`, one file each; each registers itself with a
// static MasuraInregistrata and prints its own lines through ScrieTimp / ScrieValoare, one
// JSON object a line. The command opens DIR/Tarnava.db as the process's connection first.
struct MasuraBench {
    QString nume;
    std::function<void(BD&)> ruleaza;
};

std::vector<MasuraBench>& MasuriBench();

struct MasuraInregistrata {
    MasuraInregistrata(QString nume, std::function<void(BD&)> f)
    {
        MasuriBench().push_back({std::move(nume), std::move(f)});
    }
};

// Every value of every row of a statement, as the engine gives them, and nothing more: the
// bare reading that a measure is set beside.
void CitesteBrut(const BD& bd, const QString& sql, const QVariantList& valori = {});

// The rows of a table as the bare side of a measure writes them again: the INSERT of every
// column and the values of each row read with `unde` (a condition with its values; none: all).
struct RanduriDeScris {
    QString insert;
    std::vector<QVariantList> valori;
};
RanduriDeScris CitesteRanduriDeScris(const BD& bd, const QString& tabela, const QString& unde = QString(),
                                     const QVariantList& valori = {});
// Writes them, as plain statements.
void ScrieRanduri(const BD& bd, const RanduriDeScris& r);
// Every row of `tabela` of `din` written into `in` as ScrieRanduri writes them, read a few
// thousand at a time so that a table of any size is never held whole; gives the milliseconds
// of the writes alone.
double ScrieRanduriDin(const BD& din, const BD& in, const QString& tabela);

// How many times, at least, a measure and its bare reading run: one run alone moves with
// whatever else the machine does at that moment, the median of seven hardly.
constexpr int RepetariBench = 7;

// A timing still to be taken: the routine and how many times to run it. It is taken where it
// is used. Given to ScrieTimp beside the timing of the bare reading, the two are run in turn
// (the measure, the bare reading, the bare reading, the measure, ...) after one run of each
// that is not counted, at least RepetariBench times each and, for a quick measure, for a few
// seconds more, so that a slower moment of the machine falls on both alike. Read as a number
// (`const double ms = CelMaiBunTimp(...)`) it is taken there and then, alone: the median of its
// runs in milliseconds, for a figure that has no bare reading beside it. A line written with
// `const double` for both sides still prints, without the pairs: `const auto` makes them pairs.
struct Cronometrare {
    std::function<void()> f;
    int repetari = RepetariBench;
    // A routine that times itself instead (TimpPropriu): its milliseconds, without what it
    // does between the parts it times.
    std::function<double()> propriu;

    operator double() const;
};
Cronometrare CelMaiBunTimp(std::function<void()> f, int repetari = RepetariBench);
Cronometrare TimpPropriu(std::function<double()> f, int repetari = RepetariBench);

// {"name", "ms", "bare_ms", "ratio", "runs", "min_ms", "max_ms", "bare_min_ms", "bare_max_ms"}:
// a measure beside the bare reading of the same rows, so that the ratio tells what the program
// adds to the engine. ms and bare_ms are the medians, min and max the fastest and the slowest
// run of each; the ratio is the median of the ratios of the pairs of runs made one after the
// other, which a load that comes and goes touches least.
void ScrieTimp(const QString& nume, const Cronometrare& masura, const Cronometrare& brut);
// The same line from figures taken otherwise: {"name", "ms", "bare_ms", "ratio"}.
void ScrieTimp(const QString& nume, double ms, double bareMs);
// {"name":..., "value":...}
void ScrieValoare(const QString& nume, double valoare);
