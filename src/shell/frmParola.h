#pragma once
#include <QDialog>

class QLineEdit;

// "Setare parola": changes or removes the shared password.
class frmParola : public QDialog {
    Q_OBJECT
public:
    explicit frmParola(QWidget* parent = nullptr);

private:
    QLineEdit* m_veche;
    QLineEdit* m_noua;
    QLineEdit* m_rescriere;
};
