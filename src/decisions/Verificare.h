#pragma once

// The outcome of an editor's checks before a save: go on, stop with the window open (the
// message was shown and the focus goes to the control named by `camp`), or close the window
// because its record is gone.
template <typename Camp>
struct RezultatVerificare {
    enum Stare { Ok, Oprit, Inchide };
    Stare stare = Ok;
    Camp camp{};

    bool ok() const { return stare == Ok; }
    static RezultatVerificare opreste(Camp c) { return {Oprit, c}; }
    static RezultatVerificare inchide() { return {Inchide, Camp{}}; }
};
