#pragma once
#include "decisions/Ancheta.h"

#include <QDialog>

class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;

// One social inquiry of an application, added (adaug 1, id = CerereID) or changed (adaug 2,
// id = AnchetaID). Its validity is computed again at each change of the date. Open it with
// DeschideModal and read ESTE_OK() afterwards.
class frmAddAnchete : public QDialog {
    Q_OBJECT
public:
    frmAddAnchete(QWidget* parinte, int adaug, qint64 id);

    bool ESTE_OK() const { return m_ok; }
    qint64 AnchetaID() const { return m_date.id; }

private:
    void Construieste();
    void IncarcaRand();
    // The validity computation, shown in the four read-only labels.
    void Valabilitatea();
    void Afiseaza(const Valabilitate& v);
    DateAncheta Citeste() const;
    void cmdOK();
    void cmdCancel();

    int m_adaug;
    DateAncheta m_date;
    bool m_ok = false;

    QDateEdit* m_dtpData = nullptr;
    QLineEdit* m_txtCerere[12] = {};
    QComboBox* m_cboCerere[4] = {};
    QLabel* m_lblDataExp = nullptr;
    QLabel* m_lblMotiv = nullptr;
    QLabel* m_lblNrMembrii = nullptr;
    QLabel* m_lblNrCopii = nullptr;
    QLabel* m_lblInfo = nullptr;
};
