#pragma once
#include "reports/ReportGrid.h"

#include <QAbstractScrollArea>
#include <QDialog>

class QComboBox;
class QGridLayout;
class QLabel;
class QPrinter;
class QPushButton;

// The grid control of the report windows: draws a ReportGrid with its merges, borders, fonts
// and the screen colours, scrolling over long reports.
class VedereGrid : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit VedereGrid(ReportGrid& g, QWidget* parent = nullptr);
    // Reads the grid again (sizes, scroll range) and repaints.
    void actualizeaza();

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    ReportGrid& m_g;
    QList<double> m_y; // the top of every row
};

// What the two report windows share: the panel on top with the report and sort lists and the
// commands, the grid below it, the preview, the printing and the page set-up.
class frmRaport : public QDialog {
    Q_OBJECT
public:
    ReportGrid& grid() { return m_grid; }
    const ReportGrid& grid() const { return m_grid; }

protected:
    frmRaport(const QString& nume, const QString& titlu, bool ord2CuNr, QWidget* parent);

    // Builds the report after the window's own checks; the grid is then shown again.
    virtual void construieste() = 0;
    virtual void exporta() = 0;
    // The page set-up that preview and printing apply, and the printer to use.
    virtual ReportGrid::PaginaSetata paginaSetata() const = 0;
    virtual void alegeImprimanta(QPrinter&) const {}
    // Called once, when the window is first shown: the check of the town hall data.
    virtual void laDeschidere();

    // Adds a labelled control to the panel at the given cell.
    void adaugaInPanou(QWidget* w, int rand, int coloana, const QString& eticheta = QString(), QLabel** lbl = nullptr);
    QWidget* panou() const { return m_panou; }
    // With nothing chosen in the reports list, the message and the focus back on the list.
    bool verificaRaport();
    // Whatever the grid holds, as a workbook at `cale` (an existing file is replaced), and the
    // message that says where.
    void exportaGrid(const QString& cale);

    QComboBox* m_tipRaport;
    QComboBox* m_ord[2];
    VedereGrid* m_vedere;

    void showEvent(QShowEvent* e) override;

private:
    void cmdOK_Click();
    void cmdPreview_Click();
    void cmdPrint_Click();
    void cmdPrintPage_Click();
    void cmdPdf_Click();
    void tipareste(int pagina);

    ReportGrid m_grid;
    QWidget* m_panou;
    QGridLayout* m_layoutPanou;
    bool m_aratat = false;
};

// Turns a ComboBox into the window's list: the entries, nothing chosen.
void UmpleLista(QComboBox* c, const QString& nume, const QStringList& intrari);
