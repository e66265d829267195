#pragma once
#include "forms/Formular.h"

#include <QList>
#include <QString>
#include <functional>
#include <optional>

class PageSurface;

// The print commands of the preview window.
enum class ComandaTiparire {
    Pagina, // the page shown, once per copy, all copies on the same sheet
    Tot,    // every page, in order, per copy
    Impar,  // the odd page numbers (indexes 0, 2, 4, ...), per copy
    Par,    // the even page numbers (indexes 1, 3, 5, ...), per copy
};

// The page indexes that one copy of a command draws.
QList<int> PaginiComanda(ComandaTiparire comanda, int tipFormular, int paginaCurenta);
// The number of copies typed in the window: its leading number, 0 when there is none.
int NumarCopii(const QString& text);
// Draws the copies of a command on the surface, one page by `deseneaza`, and ends the document
// (also with no copy). Every page but those of the Pagina command is followed by NewPage.
using DesenPagina = std::function<void(PageSurface&, int index)>;
void TiparesteFormular(PageSurface& s, ComandaTiparire comanda, int tipFormular, int paginaCurenta, int copii,
                       const DesenPagina& deseneaza);

// Writes the pages (indexes; all when empty) of the form to a PDF file, one A4 page each, the
// text kept as text. False, with the reason, when the file cannot be written.
bool ScriePdfFormular(const QString& fisier, int tipFormular, int mod, const SursaFormular& sursa,
                      const QList<int>& pagini, QString* eroare = nullptr);
// Reads a page list such as "1,3-5" into indexes (0 for page 1), in the order given; nothing
// and the reason when a part is no page of the form.
std::optional<QList<int>> CitestePagini(const QString& text, int tipFormular, QString* eroare = nullptr);
