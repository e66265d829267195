#pragma once
#include <QDialog>

class QLineEdit;

// The password asked at start-up when one is set. There is no limit on attempts; a cancel
// leaves LoginSucceeded false and the program ends.
class frmLogin : public QDialog {
    Q_OBJECT
public:
    explicit frmLogin(QWidget* parent = nullptr);
    bool LoginSucceeded() const { return m_reusit; }

private:
    void cmdOK_Click();

    QLineEdit* m_parola;
    bool m_reusit = false;
};
