#pragma once
#include "common/Mesaje.h"

#include <QString>
#include <utility>

// The outcome of an editor's checks before a save: go on, stop with the window open (the
// message was shown and the focus goes to the control named by `camp`), or close the window
// because its record is gone. Each editor names the controls its checks can stop on in an
// enum of its own, so that a window maps them to its widgets with a switch the compiler
// checks.
template <typename Camp> struct RezultatVerificare {
    enum Stare { Ok, Oprit, Inchide };
    Stare stare = Ok;
    Camp camp{};
    QString mesaj; // the failure's text as it was shown; "" when ok or when nothing was said

    bool ok() const { return stare == Ok; }
    bool seInchide() const { return stare == Inchide; }

    static RezultatVerificare bine() { return {}; }
    static RezultatVerificare opreste(Camp c, QString mesaj = {}) { return {Oprit, c, std::move(mesaj)}; }
    static RezultatVerificare inchide(QString mesaj = {}) { return {Inchide, Camp{}, std::move(mesaj)}; }
    // Shows the message and stops with the focus on `c`.
    static RezultatVerificare refuza(const QString& mesaj, Camp c, Mesaje::Icon icon = Mesaje::Icon::Niciuna)
    {
        Mesaj(mesaj, icon);
        return opreste(c, mesaj);
    }
};
