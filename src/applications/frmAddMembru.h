#pragma once
#include "applications/Cerere.h"
#include "database/CoduriDateGen.h"

#include <vector>

#include <QDialog>

class CampData;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;
class QWidget;

// "Adaugare membru nou": one person of the application, on the shared member array of the
// open application editor. Mode 1 adds an element, mode 2 changes the element `index`. It
// reads the database (to recognise a person by CNP) and never writes to it.
class frmAddMembru : public QDialog {
    Q_OBJECT
public:
    frmAddMembru(QWidget* parent, Cerere& cerere, int mod, int index = -1);

    // The element written on acceptance (the new last one in mode 1).
    int Index() const { return m_index; }

    void done(int r) override;

protected:
    bool eventFilter(QObject* obj, QEvent* ev) override;

private:
    void construiesteControale();
    void umpleListe();
    void afiseazaMembru(const MembruCerere& m);
    void panouriDependente();
    void laIesireaDinCNP();
    void cautaCNP(const QString& text);
    MembruCerere membruDinControale() const;
    void adaugaRandAdeverinta(const AdeverintaMembru& a);
    void ok();

    Cerere& m_c;
    int m_mod;
    int m_index;
    bool m_inchis = false;

    QComboBox* m_cnp = nullptr;
    QLineEdit* m_txt[10] = {};
    QComboBox* m_cbo[13] = {};
    QCheckBox* m_chk[2] = {};
    CampData* m_dtp[3] = {};
    QLabel* m_dataNast = nullptr;
    QWidget* m_picElev = nullptr;
    QWidget* m_picTitular = nullptr;
    QWidget* m_picCetatenie = nullptr;
    QWidget* m_picResedinta = nullptr;
    QTableWidget* m_grid = nullptr;
    std::vector<ElementCod> m_tipuriAdeverinta;
};
