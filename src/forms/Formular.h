#pragma once
#include <QString>

class BD;
class PageSurface;

// The two printed forms and their two modes.
constexpr int FormularCerere = 1;  // the application form, 9 pages
constexpr int FormularAncheta = 2; // the social inquiry form, 10 pages
constexpr int ModCompletat = 1;    // filled from the selected application
constexpr int ModGol = 2;          // blank, to be filled by hand

// What a filled page reads: the database and the selected application.
struct SursaFormular {
    const BD* bd = nullptr;
    qint64 cerereId = 0;
};

int NumarPagini(int tipFormular);
// The title of the preview window: "Cerere" or "Ancheta sociala".
QString TitluFormular(int tipFormular);
// Draws page `index` (0 for page 1) of the form: the page is cleared, the static frame drawn and,
// in filled mode, the application's data printed over it. The data layer tells its findings
// ("Cererea selectata nu are titular", ...) through the messages and goes on.
void DeseneazaPagina(PageSurface& s, int tipFormular, int index, int mod, const SursaFormular& sursa);
