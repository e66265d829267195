#pragma once
#include "shell/Optiuni.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

// "Optiuni": the settings of the workstation. Written to the settings file and taken in
// memory at once on OK.
class frmOptiuni : public QDialog {
    Q_OBJECT
public:
    explicit frmOptiuni(QWidget* parent = nullptr);

    void AlegePagina(int pagina);
    // The font and colour as the dialogs give them (the buttons open the dialogs and call these).
    void SeteazaFont(const QFont& f);
    void SeteazaCuloare(const QColor& c);

private:
    void cmdOK_Click();
    void cmdFont_Click();
    void cmdCuloare_Click();
    void arataFont();
    void arataCuloare();

    ValoriOptiuni m_v;
    QList<QWidget*> m_pic;
    QCheckBox *m_chkMotiv, *m_chkReteaSetat, *m_chkAnexa2ExportWord, *m_chkSerieStatPlata, *m_chkAfisCereri;
    QComboBox *m_cboAppWord, *m_cboNrCerereAnexa3, *m_cboNrCerere;
    QLineEdit *m_txtHeightRowRaport, *m_txtHeightRowBorderou, *m_txtStrSat, *m_txtAnexa3, *m_txtAnexa4, *m_txtStatPlata;
    QLabel *m_lblFont, *m_lblFont1, *m_lblFundal;
};
