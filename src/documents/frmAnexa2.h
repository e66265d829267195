#pragma once
#include <functional>
#include <QDialog>

class QComboBox;
class CampData;
class QLineEdit;
class QRadioButton;
class BD;

// "Selectati modul de tiparire a dispozitiilor": the selection of the bulk disposition runs
// (mnuAnexa2, mnuToateDisp), and the generation of a disposition for every application of a
// type (cmdGenerate, which runs here and leaves the window open).
class frmAnexa2 : public QDialog {
    Q_OBJECT
public:
    explicit frmAnexa2(QWidget* parinte = nullptr, BD* bd = nullptr);

    // Read by the caller after cmdOK (ESTE_OK true); cmdCancel leaves ESTE_OK false.
    bool ESTE_OK = false;
    // The calculation stored with each disposition that "Genereaza" writes; set by the caller.
    std::function<void(const BD&, qint64 dispozitieId, qint64 cerereId, int an)> CalculDispozitie;
    int TipDisp = 0;        // cboCerere(0), DateGen list 20
    int StatutDisp = 0;     // cboTipDisp: 1 couples, 2 single parents
    int LunaDisp = 0;       // cboLuna
    qint64 NrActMin = 0;    // txtDispozitieMin, blank is 0
    qint64 NrActMax = 0;    // txtDispozitieMax
    qint64 NrCerereMin = 0; // txtCerereMin
    qint64 NrCerereMax = 0; // txtCerereMax
    int ModTiparAnexa2 = 0; // the chosen option: 1 "Luna:" ... 4 "Cererile afisate in lista"

private:
    void cmdOK();
    void cmdGenerate();

    BD& m_bd;
    QComboBox* m_cboTipDispozitie;
    QComboBox* m_cboTipDisp;
    QComboBox* m_cboLuna;
    QComboBox* m_cboCuantum;
    QLineEdit* m_txtCerereMin;
    QLineEdit* m_txtCerereMax;
    QLineEdit* m_txtDispozitieMin;
    QLineEdit* m_txtDispozitieMax;
    QRadioButton* m_opt[4];
    QLineEdit* m_txtPrimulNr;
    QComboBox* m_cboLunaGenerare;
    QLineEdit* m_txtAn;
    CampData* m_dtpData;
    QComboBox* m_cboTipCerere;
};
