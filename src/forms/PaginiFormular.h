#pragma once
#include "forms/DesenFormular.h"
#include "forms/Formular.h"

#include <QVariant>

// The page functions of the two forms. Each takes the pen, the database (the head and the
// dwelling rows read it also on a blank form) and whether the application's data go on top.
void PaginaDatePersonale(const Creion& c, const SursaFormular& src, bool completat, int tipFormular); // page 1
void PaginaPartener(const Creion& c, const SursaFormular& src, bool completat);                       // page 2
void PaginaCopii(const Creion& c, const SursaFormular& src, bool completat, int foaie);               // pages 3, 4
void PaginaLocuinta(const Creion& c, const SursaFormular& src, bool completat);                       // page 5
void PaginaVenituri(const Creion& c, const SursaFormular& src, bool completat, int pagina);           // pages 6 to 8
void PaginaVenituriFinal(const Creion& c, const SursaFormular& src, bool completat);   // page 9, application
void PaginaAnchetaSanatate(const Creion& c, const SursaFormular& src, bool completat); // page 9, inquiry
void PaginaAnchetaConcluzii(const Creion& c);                                          // page 10, inquiry

// Helpers of the data layers.
QString TextCamp(const QVariant& v); // NULL as ""
// The top of the first page of both forms: "PRIMARUL " and the kind of locality of the town
// hall, the dotted line for its name, the boxes "Nr." and "Data".
void CapPrimarie(const Creion& c, const SursaFormular& src);
// The per-member and total rows of the income table (page 9 of both forms).
void TotaluriVenituri(const Creion& c, const SursaFormular& date, double yTotal, double yPeMembru);
// The head of the inquiry form's first page.
void CapAncheta(const Creion& c, const SursaFormular& src);
// The short name of a document kind (DateGen list 28); with no such code the office is told
// ("Pentru TipAct = ...") and the box stays empty.
QString TipActFormular(const BD& bd, const QVariant& tip);
