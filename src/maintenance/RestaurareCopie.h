#pragma once
#include "maintenance/CopiiOficiu.h"

// Restores a copy of the office's data, in one step that cannot make things worse. Before
// anything changes the copy is checked again (and held to its index entry); the restore is
// refused while another workstation works in the office. An office on a file: the file is
// refused while another workstation is marked at work (PrezentaStatie), saves (snet.txt) or
// holds the database; the current file is kept as Tarnava-inainte-de-restaurare-
// YYYYMMDD-HHMMSS.db beside it, and the copy takes its place by rename, so that a power cut
// leaves the old file or the restored one, never part of one. An office on a server: refused
// while another connection is open; into a database that holds tables only with
// `inlocuieste`, after a checked dump of what it holds (the same name, .dump), in the office
// folder; pg_restore then runs in one transaction. The process's own connection must be
// closed by the caller. Throws Eroare, with the current data untouched, when it cannot.
struct RezultatRestaurare {
    QString pastrat; // where the former data were kept; empty when there were none
    VerificareCopie verificare;
};
RezultatRestaurare RestaureazaCopie(const LocCopii& loc, const QString& copie, bool inlocuieste, const QDateTime& acum);
