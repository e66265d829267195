#pragma once
#include <QString>
#include <memory>

// Another workstation on the same database file: its own connection, in its own thread,
// holding a lock from the moment the constructor returns until elibereaza(), the end of
// `ms`, or its destruction, whichever comes first.
class AltCalculator {
public:
    enum class Blocare {
        Citire,  // reads inside a transaction: a writer cannot COMMIT meanwhile
        Scriere, // holds the file exclusively: nobody can even read it
    };

    AltCalculator(const QString& caleBD, Blocare blocare, int ms = 60000);
    ~AltCalculator();
    AltCalculator(const AltCalculator&) = delete;
    AltCalculator& operator=(const AltCalculator&) = delete;

    void elibereaza();

private:
    struct Stare;
    std::unique_ptr<Stare> m;
};
