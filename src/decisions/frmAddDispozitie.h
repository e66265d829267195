#pragma once
#include "decisions/Dispozitie.h"
#include "history/LuniInchise.h"

#include <QDialog>

class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;

// One mayor's disposition of an application, added (adaug 1, id = CerereID) or changed
// (adaug 2, id = DispozitieID). Open it with DeschideModal and read ESTE_OK() afterwards.
class frmAddDispozitie : public QDialog {
    Q_OBJECT
public:
    frmAddDispozitie(QWidget* parinte, int adaug, qint64 id);

    bool ESTE_OK() const { return m_ok; }
    qint64 DispozitieID() const { return m_date.id; }

private:
    void Construieste();
    void Implicite();
    void IncarcaRand();
    void SchimbareTip();
    // A month typed or chosen that is closed is refused at once (with its message when the
    // user gave it), and said under the month for as long as it stays chosen.
    void VerificaLuna(bool deLaUtilizator);
    // A disposition of a closed month is shown, not changed: every field off, the reason on top.
    void DoarCitire(LunaAn luna);
    DateDispozitie Citeste() const;
    void cmdOK();
    void cmdCancel();

    int m_adaug;
    DateDispozitie m_date;
    bool m_ok = false;

    QComboBox* m_cboDispoz[2] = {};
    QLineEdit* m_txtDispoz[5] = {};
    QDateEdit* m_dtpData = nullptr;
    QLabel* m_lblNrCerere = nullptr;
    QLabel* m_lblDataCerere = nullptr;
    QLabel* m_lblModificarea = nullptr;
    QLabel* m_lblInSuma = nullptr;
    QLabel* m_lblInSumaLei = nullptr;
    QLabel* m_lblMotiv = nullptr;
    QLabel* m_lblInfo = nullptr;
    QLabel* m_lblLunaInchisa = nullptr;
    bool m_doarCitire = false;
    QWidget* m_picMiddle = nullptr;
};
