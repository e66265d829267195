#pragma once
#include "database/CoduriDateGen.h"

#include <QString>
#include <vector>

class QComboBox;
class BD;

// A combo box with a hidden key: the label shows, the key rides as the item's data. No row
// is chosen afterwards, and an editable combo shows an empty text.
void UmpleCombo(QComboBox* c, const std::vector<ElementCod>& elemente);
// The DateGen list `tip`.
void UmpleComboCod(QComboBox* c, const BD& bd, int tip);
// The key of the chosen row, 0 when none is chosen.
int CheieCombo(const QComboBox* c);
// Chooses the row with that key; none when no row has it.
void SelecteazaCheie(QComboBox* c, int cheie);
