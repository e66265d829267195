#pragma once
#include <QDialog>
#include <QList>

class QLineEdit;

// "Nivel venit minim garantat": the amounts of the first rows of the scale.
class frmBaremBun : public QDialog {
    Q_OBJECT
public:
    explicit frmBaremBun(QWidget* parent = nullptr);

private:
    void cmdOK_Click();

    QList<QLineEdit*> m_txt; // sixteen boxes; the first seven hold the values
};
