#pragma once
#include "reports/frmRaport.h"

class QLineEdit;

// "Borderou": the payment list of the applications of one status and allowance kind.
class frmBorderou : public frmRaport {
    Q_OBJECT
public:
    explicit frmBorderou(QWidget* parent = nullptr);

protected:
    void construieste() override;
    void exporta() override;
    ReportGrid::PaginaSetata paginaSetata() const override;
    void laDeschidere() override;

private:
    QComboBox* m_tipAloc;
    QLineEdit* m_codFiscal;
    QLineEdit* m_asSocial;
};

// Where the borderou's workbook goes: the setting CaleExportBorderou of section Borderou, or
// ExpSanatate.xlsx in the program folder.
QString CaleExportBorderou();
