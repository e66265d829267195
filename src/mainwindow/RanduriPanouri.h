#pragma once
#include "mainwindow/ListaCereri.h"

#include "history/IstoricCereri.h"
#include "reports/PlatiFamilie.h"

#include <QDate>
#include <QStringList>
#include <array>
#include <vector>

class BD;

// The rows of the case panels (lvwAnchete, lvwDispozitii) of one application: six texts each,
// the first the hidden key. Dates as dd.mm.yyyy; NULL shows as an empty text.
constexpr int NrColoanePanou = 6;
struct RandPanou {
    qint64 id = 0;
    std::array<QString, NrColoanePanou> texte;
};

const std::array<ColoanaLista, NrColoanePanou>& ColoaneAnchete();
const std::array<ColoanaLista, NrColoanePanou>& ColoaneDispozitii();

// The inquiries of an application, newest first (those without a date last).
std::vector<RandPanou> CitesteAnchete(const BD& bd, qint64 cerereId);
// The dispositions of an application, newest first, with the label of their type (list 20).
// A type without a label stops the reading with Eroare (3021), as the office's list did.
std::vector<RandPanou> CitesteDispozitii(const BD& bd, qint64 cerereId);

// The tab "Istoric": the rows of a case's history in the order written, each as the texts of
// the columns of ColoaneIstoric (the first the hidden key): the day written, the day it takes
// effect from, statuses by their label (list 1).
constexpr int NrColoaneIstoric = 8;
const std::array<ColoanaLista, NrColoaneIstoric>& ColoaneIstoric();
std::vector<QStringList> RanduriIstoric(const BD& bd, const std::vector<RandIstoric>& istoric);
// The case as it stood on a day, in one line: "La 15.11.2026: IN PLATA, 350.00 lei, 2 copii
// (de la 01.11.2026, Modificare cerere)", or that the history does not reach back to it.
QString TextStareLa(const BD& bd, const std::vector<RandIstoric>& istoric, const QDate& data);

// The family's payments in the tab "Istoric": a row per closed month it was paid in, with the
// columns of ColoanePlati, and the line of the total.
constexpr int NrColoanePlati = 5;
const std::array<ColoanaLista, NrColoanePlati>& ColoanePlati();
std::vector<QStringList> RanduriPlati(const BD& bd, const PlatiFamilie& p);
// "Total platit: 180.00 lei in 3 luni inchise (anul 2026)".
QString TextTotalPlati(const PlatiFamilie& p);
