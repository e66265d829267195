#pragma once
#include <QDialog>

class QLineEdit;

// "Schimbare Luna si An": makes a month with a payment statement the active month.
class frmChLunaAn : public QDialog {
    Q_OBJECT
public:
    explicit frmChLunaAn(QWidget* parent = nullptr);

private:
    void cmdOK_Click();

    QLineEdit* m_luna;
    QLineEdit* m_an;
};
