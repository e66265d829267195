#pragma once

class frmMainNou;

// The buttons of the case panels (add, change and delete of inquiries and dispositions) and
// cmdDelete of the case list. The print buttons belong to the documents and forms.
void LeagaPanouri(frmMainNou& f);

// The actions, each as its button runs it.
void AdaugaAncheta(frmMainNou& f);
void ModificaAncheta(frmMainNou& f);
void StergeAnchetaSelectata(frmMainNou& f);
void AdaugaDispozitie(frmMainNou& f);
void ModificaDispozitie(frmMainNou& f);
void StergeDispozitiaSelectata(frmMainNou& f);
void StergeCerereaSelectata(frmMainNou& f);
