#pragma once
#include "decisions/Adeverinte.h"

#include <QDialog>

class QPushButton;
class QTreeWidget;

// "Adeverinte scolarizare": every pupil of every application on one side, the school
// certificates of the chosen pupil on the other.
class frmAdeverinte : public QDialog {
    Q_OBJECT
public:
    explicit frmAdeverinte(QWidget* parent = nullptr);

    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();

private:
    void umpleCereri();
    void umpleAdeverinte();
    const Adeverinta* adeverintaSelectata() const;

    QTreeWidget* m_lvwCereri;
    QTreeWidget* m_lvwAdev;
    QPushButton* m_edit;
    QPushButton* m_delete;
    qint64 m_cerereId = 0;
    qint64 m_membruId = 0;
    std::vector<Adeverinta> m_recAdev;
};
