#pragma once
#include "registers/frmRegistru.h"

// "Sate / strazi": the register of villages and streets, with its editor frmAdSate.
class frmSate : public frmListaRegistru {
    Q_OBJECT
public:
    explicit frmSate(QWidget* parent = nullptr);
};
