#pragma once

class frmMainNou;

// cmdAdd and cmdEdit of the case list: the application editor (frmAddCerere) opened in mode 1
// or 2, and the list row built or rewritten after a save.
void LeagaEditorCerere(frmMainNou& f);

// The two actions, also for the list's keys and double click (they click the buttons).
void AdaugaCerere(frmMainNou& f);
void ModificaCerere(frmMainNou& f);
