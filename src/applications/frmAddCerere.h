#pragma once
#include "applications/Cerere.h"
#include "applications/VerificareCerere.h"

#include <QDialog>

class CampData;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

// "Adaugare cerere" / "Modificare cerere": one application with its family, members, incomes,
// housing and exclusion assets. Everything is gathered in the controls and in the model that
// the sub-editors share, and written at once by cmdOK (SalveazaCerere). Mode 1 adds, mode 2
// changes the application `cerereId`.
class frmAddCerere : public QDialog {
    Q_OBJECT
public:
    frmAddCerere(QWidget* parent, int adaug, qint64 cerereId = 0);
    ~frmAddCerere() override;

    // After the dialog closed: true only after a complete save.
    bool ESTE_OK() const { return m_esteOk; }
    // The saved application's key (also its family's), 0 when nothing was saved.
    qint64 CerereID() const { return m_cerereId; }
    // False when mode 2 could not load the application (the message was shown): the dialog
    // is then not to be shown.
    bool EsteIncarcata() const { return m_incarcata; }

protected:
    bool eventFilter(QObject* obj, QEvent* ev) override;

private:
    void construiesteControale();
    void umpleListe();
    void modelInControale();
    void controaleInModel();
    void scrieDerivate();
    void textSchimbat(int index);
    void recalculeazaCuantum();
    void recalculeazaMembri();
    void actualizeazaPlata();

    void afiseazaMembru(int index, bool nou);
    void butoaneMembri();
    bool tipAlocatieAles();
    void adaugaMembru();
    void modificaMembru();
    void stergeMembru();
    void venituri();
    void locuinta();
    void bife();
    void ok();
    QWidget* controlDeVerificare(CampCerere camp) const;

    Cerere m_c;
    bool m_esteOk = false;
    qint64 m_cerereId = 0;
    bool m_incarcata = true;
    bool m_scriere = false; // the controls are being filled from the model

    QLineEdit* m_txt[23] = {};
    QComboBox* m_cbo[6] = {};
    CampData* m_dtp[2] = {};
    QWidget* m_picPlata = nullptr;
    QTreeWidget* m_lvw = nullptr;
    QPushButton* m_cmdAdd = nullptr;
    QPushButton* m_cmdEdit = nullptr;
    QPushButton* m_cmdDelete = nullptr;
    QPushButton* m_cmdVenit = nullptr;
    QPushButton* m_cmdLocuinta = nullptr;
    QPushButton* m_cmdOK = nullptr;
    QLabel* m_lblCuantum = nullptr;
};
