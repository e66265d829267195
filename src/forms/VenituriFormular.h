#pragma once
#include <QStringList>
#include <vector>

// One row of the income table of the application form (section F): a category heading (cod 0)
// or an income code with its legal caption, line by line, and the proof documents of its category.
struct RandVenitFormular {
    int cod = 0;
    QStringList linii;
    int categorie = 0;
    QStringList acte;
};

// Every row of the table, codes 1 to 79 in order, each category heading before its codes.
const std::vector<RandVenitFormular>& RanduriVenituriFormular();
