#pragma once
#include "shell/Bani.h"

#include <QJsonArray>
#include <QStringList>
#include <functional>
#include <vector>

class BD;

// The outcome of one element of an import: what the editor would have shown and saved.
struct RezultatImport {
    int element = 0;        // position from 1
    bool salvat = false;
    qint64 cerereId = 0;    // the key, when saved
    Bani cuantum;           // the saved amount
    QStringList mesaje;     // every message of the checks and the save, in order
};

// Adds applications from a JSON array (one object per application, keys named after the
// columns of Familii and Cereri, plus "Venituri", "Locuinte" and "Membrii") through the very
// same checks and save as the application editor, with `an` as the active year. Each element
// is its own transaction. peElement, when given, is called after each element.
std::vector<RezultatImport> ImportaCereri(BD& bd, const QJsonArray& cereri, int an,
                                          const std::function<void(const RezultatImport&)>& peElement = {});

// A malformed file is refused with a clear message before anything is written: the reason, or
// "" when the array has the expected shape.
QString VerificaFormaImport(const QJsonArray& cereri);
