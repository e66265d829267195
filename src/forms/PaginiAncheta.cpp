// The pages of the social inquiry form of its own: the head of page 1 and page 10 (page 9 is
// with the income pages). The social worker writes pages 9 and 10 by hand on the spot.
#include "forms/PaginiFormular.h"

void CapAncheta(const Creion& c, const SursaFormular& src)
{
    CapPrimarie(c, src);
    c.tnr(9, true);
    c.text(130, 16, QStringLiteral("CERTIFICARE PRIMAR"));
    c.text(142, 22, QStringLiteral("L.S."));
    c.font("Monotype Corsiva", 16, true);
    c.text(62, 20, QStringLiteral("ANCHETA SOCIALA"));
    c.text(42, 27, QStringLiteral("pentru acordarea unor beneficii de asistenta sociala"));
    // The application's number and date (top + 42, at left + 100 and + 134) stand on the lines
    // of this sentence, not struck through by them.
    c.tnr(10);
    c.text(47.5, 42.6, QStringLiteral("Urmare a cererii inregistrata sub nr._________ la data de _____________"));
    c.tnr(8);
    c.text(80, 46.7, QStringLiteral("efectuata astazi_______________ pentru acordarea____________________"));
}

void PaginaAnchetaConcluzii(const Creion& c)
{
    c.titlu(0, 11, QStringLiteral("K. ALTE ASPECTE"));
    c.randuriDeScris(22, 64);
    c.titlu(0, 68, QStringLiteral("L.CONCLUZII"));
    c.tnr(9);
    c.text(0, 75, QStringLiteral("Se propune"));
    c.optiune(25, 74, QStringLiteral("acordarea"));
    c.optiune(60, 74, QStringLiteral("neacordarea"));
    c.titlu(0, 84, QStringLiteral("MOTIVATIA:"));
    c.randuriDeScris(94, 150);
    c.tnr(9, true);
    c.text(0, 160, QStringLiteral("AM LUAT LA CUNOSTINTA"));
    c.text(0, 166, QStringLiteral("SOLICITANT"));
    c.text(0, 172, QStringLiteral("SEMNATURA"));
    c.linie(0, 184, 60, 184);
    c.text(110, 160, QStringLiteral("INTOCMIT"));
    c.linie(110, 184, 169, 184);
}
