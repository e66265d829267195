#include "shell/frmParola.h"

#include "gui/FiltruEditare.h"
#include "shell/Parola.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace {
QLineEdit* CampParola(QWidget* parinte, const char* nume)
{
    auto* e = new QLineEdit(parinte);
    e->setObjectName(QLatin1String(nume));
    e->setEchoMode(QLineEdit::Password);
    return e;
}
} // namespace

frmParola::frmParola(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmParola"));
    setWindowTitle(QStringLiteral("Setare parola"));
    m_veche = CampParola(this, "txtPassOld");
    m_noua = CampParola(this, "txtPassNew");
    m_rescriere = CampParola(this, "txtPassRenew");
    auto* ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto* reset = new QPushButton(QStringLiteral("&Stergere parola"), this);
    reset->setObjectName(QStringLiteral("cmdReset"));
    auto* cancel = new QPushButton(QStringLiteral("&Renuntare"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    for (QPushButton* b : {ok, reset, cancel})
        b->setAutoDefault(false);

    auto* l = new QFormLayout(this);
    l->addRow(QStringLiteral("Parola veche:"), m_veche);
    l->addRow(QStringLiteral("Parola noua:"), m_noua);
    l->addRow(QStringLiteral("Rescriere parola noua:"), m_rescriere);
    auto* butoane = new QHBoxLayout;
    butoane->addStretch();
    butoane->addWidget(ok);
    butoane->addWidget(reset);
    butoane->addWidget(cancel);
    l->addRow(butoane);

    InstaleazaFiltruEditare(this);
    connect(ok, &QPushButton::clicked, this, [this] {
        if (SchimbaParola(m_veche->text(), m_noua->text(), m_rescriere->text()))
            accept();
    });
    connect(reset, &QPushButton::clicked, this, [this] {
        if (StergeParola(m_veche->text()))
            accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}
