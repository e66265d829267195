#pragma once
#include <functional>

class QAbstractButton;
class QAction;
class QObject;
class QWidget;

// A button or menu entry is "wired" once its action is connected here. Until then it stays
// disabled whatever its group asks, so that nothing offers a window that is not built yet.
// The action runs with every error caught and shown ("Eroare: " + number + description):
// no click ends the program.
void LeagaActiune(QAbstractButton* b, std::function<void()> actiune);
void LeagaActiune(QAction* a, std::function<void()> actiune);
bool EsteLegat(const QObject* o);

// Enabled when `activ` and wired.
void Activeaza(QAbstractButton* b, bool activ);
void Activeaza(QAction* a, bool activ);

// Runs an action with its errors caught and shown.
void RuleazaProtejat(const std::function<void()>& actiune);
