#include "forms/Formular.h"

#include "forms/PaginiFormular.h"

int NumarPagini(int tipFormular)
{
    return tipFormular == FormularAncheta ? 10 : 9;
}

QString TitluFormular(int tipFormular)
{
    return tipFormular == FormularAncheta ? QStringLiteral("Ancheta sociala") : QStringLiteral("Cerere");
}

void DeseneazaPagina(PageSurface& s, int tipFormular, int index, int mod, const SursaFormular& sursa)
{
    s.Clear();
    const Creion c(s);
    const bool completat = mod == ModCompletat && sursa.bd;
    const bool ancheta = tipFormular == FormularAncheta;
    switch (index) {
    case 0: PaginaDatePersonale(c, sursa, completat, tipFormular); break;
    case 1: PaginaPartener(c, sursa, completat); break;
    case 2:
    case 3: PaginaCopii(c, sursa, completat, index - 2); break;
    case 4: PaginaLocuinta(c, sursa, completat); break;
    case 5:
    case 6:
    case 7: PaginaVenituri(c, sursa, completat, index + 1); break;
    case 8:
        if (ancheta)
            PaginaAnchetaSanatate(c, sursa, completat);
        else
            PaginaVenituriFinal(c, sursa, completat);
        break;
    case 9:
        if (ancheta)
            PaginaAnchetaConcluzii(c);
        break;
    default: break;
    }
}
