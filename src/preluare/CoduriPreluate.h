#pragma once
#include "database/BD.h"
#include "database/ValoriPermise.h"

#include <vector>

struct TabelaPreluata;

// The code lists that the new office will hold once the move is done: the old file's DateGen
// and ListaVenituri as the upgrade completes them (its seeded rows, Venituri.txt), laid down
// in a scratch database of their own, so that every coded value of the old file is checked
// against them by the editor's own check before anything is written.
class CoduriPreluate {
public:
    // `liste`: the tables of the old file read so far (DateGen and ListaVenituri among them
    // when the file has them); `seminte`: the folder of the seed files the office will hold.
    CoduriPreluate(const std::vector<TabelaPreluata>& liste, const QString& seminte);

    const ValoriPermise& permise() const { return m_permise; }

private:
    BD m_bd;
    ValoriPermise m_permise;
};
