#pragma once
#include "registers/frmRegistru.h"

// "Motive": the register of reasons, with its editor frmAdMotive.
class frmMotive : public frmListaRegistru {
    Q_OBJECT
public:
    explicit frmMotive(QWidget* parent = nullptr);
};
