#pragma once
#include "reports/RaportComun.h"
#include "common/Bani.h"

#include <vector>

class BD;

// The office's payment list: the applications of one status and allowance kind, with the
// amount of each and a general total.

// The entries of the borderou's two lists.
const QStringList& ListaStariBorderou(); // "Toate cererile", "In plata", ...
const QStringList& ListaTipAlocatie();   // "Toate alocatiile", ...

// Fills the grid. "In plata" here is status 2 alone (the catalogue's list of the same name is
// wider). sel.tip is the position in the allowance list.
void ConstruiesteBorderou(const BD& bd, const SelectieRaport& sel, ReportGrid& g);

// One row of a borderou as it prints; the payroll of a closed month is kept in these terms.
struct RandBorderou {
    QString nrCerere;
    QDate dataCerere;
    QString titular; // Nume and Prenume of the holder
    QString cnp;
    QString adresa; // without the block, on purpose
    bool lege416 = false;
    QString nrMembrii, nrCopii;
    Bani suma;
};
// The address of a borderou row: the locality, "str." and the street, the number, staircase
// and flat, each only when there is one.
QString AdresaBorderou(const QString& localitate, const QString& strada, const QString& nr, const QString& sc,
                       const QString& ap);
// The document written as its rows come: the title block with the subtitle and the heads when
// it begins, each row as it is read, the general total and the signature at the end, every
// cell bold. A list of tens of thousands of rows goes straight into the grid.
class ScriereBorderou {
public:
    ScriereBorderou(const BD& bd, const QString& subtitlu, int luna, int an, ReportGrid& g);
    void adauga(RandBorderou&& r);
    void incheie();

private:
    ReportGrid& m_g;
    QString m_asSocial;
    Bani m_total;
    int m_nr = 0;
};
// The whole document from its rows.
void ScrieBorderou(const BD& bd, const QString& subtitlu, int luna, int an, const std::vector<RandBorderou>& randuri,
                   ReportGrid& g);

// The statement alone, for measuring what the grid adds to the engine.
QString SqlBorderou(const SelectieRaport& sel);
