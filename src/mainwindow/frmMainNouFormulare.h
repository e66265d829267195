#pragma once

class frmMainNou;

// The printed forms of the main window: mnuCerereGoala and mnuAnchetaGoala (blank forms),
// cmdCerere and mnuCerereSelectata (the application form of the selected application),
// cmdPrintAncheta of the inquiries panel (the inquiry form of the selected application).
void LeagaFormulare(frmMainNou& f);
