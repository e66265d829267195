#pragma once
#include <QString>

class QComboBox;
class BD;

// A combo box with a hidden key: the label shows, the key rides as the item's data.
void UmpleComboCod(QComboBox* c, const BD& bd, int tip);
// The key of the chosen row, 0 when none is chosen.
int CheieCombo(const QComboBox* c);
// Chooses the row with that key; none when no row has it.
void SelecteazaCheie(QComboBox* c, int cheie);
