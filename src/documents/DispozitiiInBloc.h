#pragma once
#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>
#include <functional>
#include <optional>

class BD;
struct Setari;

// The end-of-month runs: many dispositions in one document, and the generation of a
// disposition for every application of a type.

// Told after each step of a long run; returning false stops it (nothing is written then).
using ProgresRulare = std::function<bool(int facut, int total)>;

// The selection of "Tiparire toate dispozitiile ...": the dispositions of one kind whose
// number lies in [nrMin, nrMax] and which take effect in the month luna of the year an, for the
// applications of one type (1 couples, 2 single parents); by number.
struct SelectieDispozitii {
    int tipDisp = 0;
    int statut = 0;
    int luna = 0;
    int an = 0;
    qint64 nrMin = 0;
    qint64 nrMax = 0;
};
QList<qint64> DispozitiiSelectate(const SelectieDispozitii& sel, const BD& bd);

// Every disposition of the list in one document, each from a fresh copy of its own template,
// separated by page breaks. Nothing when the list is empty or a disposition stops the run.
std::optional<QByteArray> DocumentDispozitii(const QList<qint64>& dispozitii, const Setari& s, const BD& bd,
                                             const ProgresRulare& progres = {});

// "Tiparire toate dispozitiile ...": the selection and its document.
std::optional<QByteArray> DocumentDispozitiiSelectate(const SelectieDispozitii& sel, const Setari& s, const BD& bd,
                                                      const ProgresRulare& progres = {});

// "Generare dispozitii ...", the older run by application numbers. The way of selecting
// (ModTiparAnexa2) follows the option chosen in the window: 1 "Luna:", 2 "Cererile de la Nr
// Cerere:", 3 "Cererile de la Nr Dispozitie:", 4 "Cererile afisate in lista". Only 2 is
// built: the latest disposition of every application numbered nrMin..nrMax.
enum ModTiparire { TiparireLuna = 1, TiparireNrCerere = 2, TiparireNrDispozitie = 3, TiparireLista = 4 };
std::optional<QByteArray> DocumentDispozitiiCereri(int modTiparire, qint64 nrMin, qint64 nrMax, const Setari& s,
                                                   const BD& bd, const ProgresRulare& progres = {});

// "Genereaza": a disposition of grant (Actiune 1) for every application of the type, numbered
// from primulNr up, dated dataDisp, effective from the first day of luna/an, with the
// application's amount. One transaction: all of them or none. A closed month gets none (its
// message is told).
struct ParametriGenerare {
    qint64 primulNr = 0;
    int luna = 1;
    int an = 0;
    QDate dataDisp;
    int tipCerere = 1;
    // The calculation stored with each new disposition (the amount rules live one floor up);
    // the row of the case's history is written here in any case.
    std::function<void(const BD&, qint64 dispozitieId, qint64 cerereId, int an)> calcul;
};
struct RezultatGenerare {
    bool complet = false; // false when it did not run to the end: nothing was written
    bool oprit = false;   // stopped by the officer
    int numar = 0;
    qint64 primulNr = 0;
    qint64 primaCerere = 0; // NrCerere of the first and the last application
    qint64 ultimaCerere = 0;
};
RezultatGenerare GenereazaDispozitii(const ParametriGenerare& p, BD& bd, const ProgresRulare& progres = {});
// The office's report of a generation.
QString MesajGenerare(const RezultatGenerare& r);
