#pragma once
#include "history/LuniInchise.h"
#include "reports/frmRaport.h"

class QLineEdit;
class QPushButton;

// "Inchiderea lunii": a month's payroll (the stored one of a closed month), its differences
// from the last closed month or the journal of closes and reopenings in the grid, with the
// close and the reopening of the month.
class frmInchidereLuna : public frmRaport {
    Q_OBJECT
public:
    explicit frmInchidereLuna(QWidget* parent = nullptr);

protected:
    void construieste() override;
    void exporta() override;
    ReportGrid::PaginaSetata paginaSetata() const override;
    QString numeFisierPdf() const override;

private:
    bool citesteLuna(LunaAn& l);
    void arataStarea();
    void cmdInchide_Click();
    void cmdRedeschide_Click();
    // The name a written file is offered under: the report and the month.
    QString numeFisier(const QString& extensie) const;

    QLineEdit* m_txtLuna;
    QLineEdit* m_txtAn;
    QLabel* m_lblStare;
    QPushButton* m_cmdInchide;
    QPushButton* m_cmdRedeschide;
};

// The list of the window: the payroll, the differences, the journal.
const QStringList& ListaInchidereLuna();
