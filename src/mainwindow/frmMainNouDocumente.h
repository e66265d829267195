#pragma once

class frmMainNou;

// The document buttons and menu entries of the main window: cmdDeclaratie, cmdFisaCalcul,
// mnuFisa (dated by dtpDataFisa), cmdPrintDisp of the dispositions panel, mnuToateDisp and
// mnuAnexa2. The work is done by the document actions; this only reads the window.
void LeagaDocumente(frmMainNou& f);
