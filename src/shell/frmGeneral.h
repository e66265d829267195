#pragma once
#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

// The small window with one field. Mode 2 asks for the folder of the database (the only mode
// that start-up uses); mode 1 is the prepared archive variant, which copies nothing. The
// program ends after the window in either mode.
class frmGeneral : public QDialog {
    Q_OBJECT
public:
    explicit frmGeneral(QWidget* parent = nullptr);

    // Set before the window is shown.
    int Mod = 2;

protected:
    void showEvent(QShowEvent* e) override;

private:
    void cmdOK_Click();
    void cmdBrowse_Click();
    void cmdPreluare_Click();

    QLabel* m_lbl;
    QLineEdit* m_txt;
    QPushButton* m_ok;
    QPushButton* m_preluare;
    bool m_pregatit = false;
};
