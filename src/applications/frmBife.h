#pragma once
#include "applications/Cerere.h"

#include <QDialog>

class QListWidget;

// "Bunuri care duc la excludere": which of the assets that exclude a family from the allowance
// it owns, as the shared text Bife of the open application editor.
class frmBife : public QDialog {
    Q_OBJECT
public:
    frmBife(QWidget* parent, Cerere& cerere);

private:
    void ok();

    Cerere& m_c;
    QListWidget* m_lista = nullptr;
};
