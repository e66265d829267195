#pragma once
#include "applications/Cerere.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QWidget;

// "Adaugare date locuinta": the eight kinds of dwelling (rooms and surface for the first six)
// and four coded facts, on the shared data of the open application editor.
class frmAddLocuinta : public QDialog {
    Q_OBJECT
public:
    frmAddLocuinta(QWidget* parent, Cerere& cerere);

private:
    void bifeaza(int i, bool bifat);
    void ok();

    Cerere& m_c;
    QCheckBox* m_chk[NrLocuinte] = {};
    QWidget* m_pic[NrLocuinteCuCamere] = {};
    QLineEdit* m_camere[NrLocuinteCuCamere] = {};
    QLineEdit* m_suprafata[NrLocuinteCuCamere] = {};
    QComboBox* m_cbo[4] = {};
};
