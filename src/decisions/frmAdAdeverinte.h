#pragma once
#include "decisions/Adeverinte.h"

#include <QDialog>

class CampData;
class QComboBox;
class QLineEdit;

// The editor of one school certificate: "Adaugare adeverinta" or "Modificare adeverinta".
class frmAdAdeverinte : public QDialog {
    Q_OBJECT
public:
    // `a` holds the chosen application and pupil, and for a change the certificate itself.
    frmAdAdeverinte(bool adaug, const Adeverinta& a, QWidget* parent = nullptr);
    const Adeverinta& adeverinta() const { return m_a; }

private:
    void cmdOK_Click();

    bool m_adaug;
    Adeverinta m_a;
    QLineEdit* m_txtNrAdev;
    CampData* m_dtpDataAdev;
    CampData* m_dtpDataExp;
    CampData* m_dtpDataDep;
    QComboBox* m_cboTipAdev;
};
