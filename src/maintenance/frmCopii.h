#pragma once
#include "maintenance/CopieInFundal.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;

// The page "Copii de siguranta" of the maintenance window: the copies of the office's data with
// their date, size, check and rows; "Copie de siguranta acum" makes one without freezing the
// window; the chosen copy is checked again or restored.
class frmCopii : public QWidget {
    Q_OBJECT
public:
    explicit frmCopii(QWidget* parinte = nullptr);

    // The list again, from the copies folder and its index.
    void Reincarca();
    CopieInFundal& copie() { return m_copie; }

signals:
    // The office's data were replaced by a copy: what other windows show is of the data before.
    void DateRestaurate();

private:
    void cmdCopieAcum_Click();
    void cmdVerifica_Click();
    void cmdRestaureaza_Click();
    void copieGata(bool buna, const QString& text);
    // The chosen copy's path; empty (and told) when none is chosen.
    QString copieAleasa() const;

    LocCopii m_loc;
    CopieInFundal m_copie;
    QLabel *m_lblFolder, *m_lblStare;
    QTreeWidget* m_lvwCopii;
    QProgressBar* m_prgCopie;
    QPushButton *m_cmdCopieAcum, *m_cmdVerifica, *m_cmdRestaureaza;
};
