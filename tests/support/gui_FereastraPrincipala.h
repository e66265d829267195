#pragma once
#include <QStringList>

class frmMainNou;

// Clicks a row of the case list, as the officer does (the panels follow the click).
void ClicPeRand(frmMainNou& w, int rand);
// The texts of one column of the case list, top to bottom.
QStringList TexteColoana(const frmMainNou& w, int coloana);
