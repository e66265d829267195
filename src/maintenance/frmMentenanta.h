#pragma once
#include <QDialog>
#include <QList>

class QCheckBox;
class QComboBox;
class CampData;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;
class QWidget;

// "Mentenanta": repairs on a live file, for the program's own staff. Pages: the single
// commands, the allotment of disposition numbers, and the copies of the office's data.
class frmMentenanta : public QDialog {
    Q_OBJECT
public:
    explicit frmMentenanta(QWidget* parent = nullptr);

    void AlegePagina(int pagina);
    // A copy was restored while the window was open: the main window's list is of other data.
    bool DateInlocuite() const { return m_dateInlocuite; }

private:
    QWidget* paginaComenzi();
    QWidget* paginaNumerotare();
    void cmdExecuta_Click();
    void cmdNrCerere_Click();

    QList<QWidget*> m_pic;
    bool m_dateInlocuite = false;
    QCheckBox* m_chkSuprascrie;
    QLineEdit *m_txtNrCerere1, *m_txtNrCerere2, *m_txtNrDispozitie, *m_txtNrDispozitie1;
    QRadioButton *m_optUnic, *m_optDiferite;
    CampData* m_dtp;
    QList<QCheckBox*> m_chk;
    QComboBox *m_cboAn, *m_cboLuna, *m_cboTipIncalzire;
    QLabel *m_lblTipIncalzire, *m_lblNrCerere;
    QPlainTextEdit *m_txtRaport, *m_txtNrCerere;
};
