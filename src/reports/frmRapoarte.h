#pragma once
#include "reports/frmRaport.h"

class QCheckBox;
class QLabel;
class QLineEdit;

// "Rapoarte": the catalogue of the lists, the annexes and their exports.
class frmRapoarte : public frmRaport {
    Q_OBJECT
public:
    explicit frmRapoarte(QWidget* parent = nullptr);

protected:
    void construieste() override;
    void exporta() override;
    ReportGrid::PaginaSetata paginaSetata() const override;
    void alegeImprimanta(QPrinter& p) const override;

private:
    void cboTipRaport_Click();
    struct SelectieRaport selectie() const;

    QComboBox* m_tipCerere;
    QLabel* m_lblTipCerere;
    QLineEdit* m_nrLuni;
    QLabel* m_lblNrLuni;
    QComboBox* m_printer;
    QCheckBox* m_portret;
    QComboBox* m_format;
};
