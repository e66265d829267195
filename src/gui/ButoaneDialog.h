#pragma once

class QDialog;
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
