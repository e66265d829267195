#pragma once

#include <QString>

class QDialog;
class QWidget;
class QHBoxLayout;
class QPushButton;

// The row of the sub-editors' buttons, right-aligned: `cmdOK` "OK" and `cmdCancel` "Renunta",
// neither taking Enter (Enter moves between fields).
struct ButoaneOkRenunta {
    QPushButton* ok;
    QPushButton* renunta;
    QHBoxLayout* rand;
};
ButoaneOkRenunta CreeazaButoaneOkRenunta(QDialog* d);

// The tips of the editors' two buttons: "Clic aici pentru a salva datele" and "Clic aici pentru
// a renunta".
void SfaturiOkRenunta(const ButoaneOkRenunta& b);

// A push button named `nume` that does not take Enter.
QPushButton* CreeazaButon(QWidget* parinte, const char* nume, const QString& text);
