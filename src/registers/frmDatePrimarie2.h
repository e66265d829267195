#pragma once
#include <QDialog>
#include <QList>

class QComboBox;
class QLineEdit;

// "Date Primarie 2": the town hall's data that head every document and report.
class frmDatePrimarie2 : public QDialog {
    Q_OBJECT
public:
    explicit frmDatePrimarie2(QWidget* parent = nullptr);

private:
    void cmdOK_Click();

    QList<QLineEdit*> m_txt;
    QComboBox* m_cbo;
};
