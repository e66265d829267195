#pragma once
#include "forms/Formular.h"
#include "forms/TiparireFormular.h"

#include <QDialog>
#include <QImage>
#include <QList>
#include <QPoint>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QWidget;

// The preview of a printed form, page by page, and its printing: the page buttons, the page
// that scrolls and is dragged with the mouse, the copies, colour, the print commands and the
// PDF file. Pages are drawn anew for every view and every print.
class frmPrint : public QDialog {
    Q_OBJECT
public:
    // tipFormular: FormularCerere or FormularAncheta; mod: ModCompletat (the application
    // cerereId) or ModGol.
    frmPrint(int tipFormular, int mod, qint64 cerereId, QWidget* parent = nullptr);

    int PaginaCurenta() const { return m_pagina; }
    // The page drawn last, as the preview shows it.
    const QImage& Imagine() const { return m_imagine; }

protected:
    void resizeEvent(QResizeEvent* e) override;
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    void optPag_Click(int index);
    // One step of the zoom, larger (1) or smaller (-1).
    void Zoom(int pas);
    void AjusteazaBare();
    void PozitioneazaPagina();
    void Tipareste(ComandaTiparire comanda);
    void cmdPdf_Click();
    SursaFormular Sursa() const;

    int m_tip;
    int m_mod;
    qint64 m_cerereId;
    int m_pagina = 0;
    double m_zoom = 1.0;
    QImage m_imagine;
    QPoint m_startTragere; // where the left button went down on the page, in millimetres
    QWidget* m_picTata;
    QLabel* m_picPrint;
    QScrollBar* m_hBar;
    QScrollBar* m_vBar;
    QLineEdit* m_txtNrPag;
    QLabel* m_lblZoom;
    QCheckBox* m_chkColor;
    QButtonGroup* m_optPag;
};
