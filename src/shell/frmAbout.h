#pragma once
#include <QDialog>

// "Despre program": the program's title and version, and a way to the system information.
class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* parent = nullptr);

private:
    void cmdSysInfo_Click();
};

// The system information tool found on this machine, empty when there is none.
QString UnealtaInfoSistem();
