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

// The best time in milliseconds of `repetari` runs.
double CelMaiBunTimp(const std::function<void()>& f, int repetari = 5);

// {"name":..., "ms":..., "bare_ms":..., "ratio":...}: a measure beside the bare reading of
// the same rows, so that the ratio tells what the program adds to the engine.
void ScrieTimp(const QString& nume, double ms, double bareMs);
// {"name":..., "value":...}
void ScrieValoare(const QString& nume, double valoare);
