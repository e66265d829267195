#pragma once
#include "common/Mesaje.h"

// The desktop program's messages: message boxes over the active window.
class MesajeFereastra : public Mesaje {
public:
    void arata(const QString& text, const QString& titlu, Icon icon) override;
    bool intreaba(const QString& text, const QString& titlu, Icon icon, bool implicitDa) override;
    std::optional<QString> citeste(const QString& text, const QString& titlu, const QString& implicit) override;
};
