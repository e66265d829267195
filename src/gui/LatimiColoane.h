#pragma once
#include <QString>

class QTreeView;

// The widths of the lists' columns. The office's widths were made for its font on its screen;
// here a column keeps its width where its head and its values show whole in the list's own
// font, and is widened where they would be cut. Nothing is made narrower.

// Widens a column to its head and to `celMaiLung`, the longest value of its kind (a date, a
// CNP, the longest status): for lists whose rows come and go.
void LargesteColoana(QTreeView* lista, int coloana, const QString& celMaiLung = QString());
// Widens every shown column to its head and to the rows the list holds now: for the registers,
// filled once.
void LargesteColoane(QTreeView* lista);

// The longest values of the common kinds: a date as the case list writes it, and a CNP.
QString DataLungaModel();
QString CNPModel();
