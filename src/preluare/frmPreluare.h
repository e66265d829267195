#pragma once
#include "preluare/Preluare.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTableWidget;

// "Preluare din programul vechi": the officer chooses the old office folder (its Tarnava.mdb,
// or the <Tabela>.json files), the new office folder and, if wished, the old workstation's
// settings file; "Incearca" shows the dry run in a grid (rows read, written and refused per
// table) with the report beneath it; "Preia" asks for confirmation, follows the real run on a
// progress bar and shows the result.
class frmPreluare : public QDialog {
    Q_OBJECT
public:
    explicit frmPreluare(QWidget* parent = nullptr);

    // The new office folder, set before the window is shown.
    void seteazaTinta(const QString& folder);
    QString tinta() const;
    // True once the data were written.
    bool preluat() const { return m_preluat; }

private:
    void cmdIncearca_Click();
    void cmdPreia_Click();
    void alege(QLineEdit* camp, const QString& titlu);
    void alegeSetari();
    OptiuniPreluare optiuni(bool incearca) const;
    bool ruleaza(const OptiuniPreluare& o, Preluare& p);
    void arata(const Preluare& p);

    QLineEdit* m_din;
    QLineEdit* m_tinta;
    QLineEdit* m_setari;
    QTableWidget* m_grd;
    QPlainTextEdit* m_raport;
    QProgressBar* m_progres;
    QLabel* m_rezultat;
    QPushButton* m_incearca;
    QPushButton* m_preia;
    bool m_preluat = false;
    OptiuniPreluare m_incercat; // what the dry run shown was made with
};
