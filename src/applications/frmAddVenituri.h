#pragma once
#include "applications/Cerere.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QTableWidget;

// "Venituri": one money value for each code of the income list, on the shared income array
// of the open application editor. Nothing is written to the database here.
class frmAddVenituri : public QDialog {
    Q_OBJECT
public:
    frmAddVenituri(QWidget* parent, Cerere& cerere);

private:
    void umple();
    void aplicaAspect();
    QStringList celule() const;
    void recalculeazaTotal();
    void ok();

    Cerere& m_c;
    QTableWidget* m_grid = nullptr;
    QComboBox* m_gospod = nullptr;
    QComboBox* m_luna = nullptr;
    QLabel* m_total = nullptr;
    bool m_umplere = false;
};
