#pragma once
#include <QString>
#include <vector>

class BD;

// One code of a DateGen list: the stored value and the label shown.
struct ElementCod {
    int id;
    QString text;
};

// The list `tip` in its order (ORDER BY Ordine).
std::vector<ElementCod> CitesteListaCod(const BD& bd, int tip);
// The label of one code; "" when the list has no such row.
QString EtichetaCod(const BD& bd, int tip, int id);
