#include "shell/frmLogin.h"

#include "common/Mesaje.h"
#include "shell/Parola.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

frmLogin::frmLogin(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmLogin"));
    setWindowTitle(QStringLiteral("Login"));
    // The user name is on the window, as on the office's form, and is not read.
    auto* utilizator = new QLineEdit(this);
    utilizator->setObjectName(QStringLiteral("txtUserName"));
    m_parola = new QLineEdit(this);
    m_parola->setObjectName(QStringLiteral("txtPassword"));
    m_parola->setEchoMode(QLineEdit::Password);
    auto* ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto* cancel = new QPushButton(QStringLiteral("&Renuntare"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    ok->setAutoDefault(false);
    cancel->setAutoDefault(false);

    auto* l = new QFormLayout(this);
    l->addRow(QStringLiteral("&Utilizator:"), utilizator);
    l->addRow(QStringLiteral("&Parola:"), m_parola);
    auto* butoane = new QHBoxLayout;
    butoane->addStretch();
    butoane->addWidget(ok);
    butoane->addWidget(cancel);
    l->addRow(butoane);

    connect(ok, &QPushButton::clicked, this, &frmLogin::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    // Enter in the password acts as OK.
    connect(m_parola, &QLineEdit::returnPressed, this, &frmLogin::cmdOK_Click);
    m_parola->setFocus();
}

void frmLogin::cmdOK_Click()
{
    if (ParolaCorecta(m_parola->text())) {
        m_reusit = true;
        accept();
        return;
    }
    Mesaj(QStringLiteral("Parola gresita, mai incercati!"), Mesaje::Icon::Niciuna, QStringLiteral("Login"));
    m_parola->setFocus();
    m_parola->selectAll();
}
