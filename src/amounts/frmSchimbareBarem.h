#pragma once
#include "amounts/SchimbareBarem.h"
#include "reports/frmRaport.h"

#include <QList>
#include <functional>
#include <optional>

class CampData;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

// "Schimbarea baremului ...": the sixteen lei rows of the scale beside their new amounts and the
// month from which they hold; Calculeaza shows in the report grid which families change and by
// how much (nothing written), Aplica makes the change with its dispositions, and the
// dispositions issued can be printed in one document.
class frmSchimbareBarem : public frmRaport {
    Q_OBJECT
public:
    explicit frmSchimbareBarem(QWidget* parent = nullptr);

    // The bulk document run of the dispositions issued; the window offers it after the apply
    // when it is set.
    std::function<void(const QList<qint64>&)> TiparireDispozitii;
    // The dispositions of the last apply.
    const QList<qint64>& DispozitiiEmise() const { return m_dispozitii; }

protected:
    void construieste() override;
    void exporta() override;
    ReportGrid::PaginaSetata paginaSetata() const override;
    void laDeschidere() override {}

private:
    QWidget* construiesteBaremul();
    void incarcaBaremul();
    void invalideaza();
    bool calculeaza();
    void cmdAplica_Click();
    void cmdTiparire_Click();
    void cmdPdf_Click();

    QTableWidget* m_grdBarem;
    QList<QLineEdit*> m_txtNou;
    QComboBox* m_cboLuna;
    QLineEdit* m_txtAn;
    QLineEdit* m_txtNrDisp;
    CampData* m_dtpDataDisp;
    QLineEdit* m_txtMotiv;
    QLabel* m_lblStare;
    QString m_luniInchise; // the last closed month, as the status line tells it
    QPushButton* m_cmdAplica;
    QPushButton* m_cmdTiparire;
    std::optional<PrevizualizareBarem> m_previzualizare;
    QList<qint64> m_dispozitii;
};
