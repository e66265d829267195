#include "shell/frmChLunaAn.h"

#include "database/BD.h"
#include "gui/FiltruEditare.h"
#include "common/Eroare.h"
#include "shell/LunaActiva.h"
#include "common/Mesaje.h"
#include "common/Proces.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

frmChLunaAn::frmChLunaAn(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmChLunaAn"));
    setWindowTitle(QStringLiteral("Schimbare Luna si An"));
    m_luna = new QLineEdit(QString::number(Proces::setari().LunaSetata), this);
    m_luna->setObjectName(QStringLiteral("txtLuna"));
    m_an = new QLineEdit(QString::number(Proces::setari().AnSetat), this);
    m_an->setObjectName(QStringLiteral("txtAn"));
    // The health percentage and the creation of a new month are on the form but not in use.
    auto* sanatate = new QLineEdit(this);
    sanatate->setObjectName(QStringLiteral("txtProcSanatate"));
    sanatate->setEnabled(false);
    auto* lunaNoua = new QPushButton(QStringLiteral("Creaza Luna Noua"), this);
    lunaNoua->setObjectName(QStringLiteral("cmdAddMonth"));
    lunaNoua->setEnabled(false);
    auto* ok = new QPushButton(QStringLiteral("Setare ca Luna Curenta"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto* cancel = new QPushButton(QStringLiteral("Renuntare"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    for (QPushButton* b : {lunaNoua, ok, cancel})
        b->setAutoDefault(false);

    auto* l = new QFormLayout(this);
    l->addRow(QStringLiteral("Luna"), m_luna);
    l->addRow(QStringLiteral("Anul"), m_an);
    l->addRow(QStringLiteral("Procent sanatate"), sanatate);
    auto* butoane = new QHBoxLayout;
    butoane->addWidget(lunaNoua);
    butoane->addStretch();
    butoane->addWidget(ok);
    butoane->addWidget(cancel);
    l->addRow(butoane);

    InstaleazaFiltruEditare(this);
    connect(ok, &QPushButton::clicked, this, &frmChLunaAn::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmChLunaAn::cmdOK_Click()
{
    RezultatLunaActiva r;
    try {
        r = SeteazaLunaActiva(BD::principala(), m_luna->text(), m_an->text());
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic);
        return;
    }
    if (r.setata) {
        accept();
        return;
    }
    QLineEdit* camp = r.camp == CampLunaActiva::An ? m_an : r.camp == CampLunaActiva::Luna ? m_luna : nullptr;
    if (camp)
        camp->setFocus();
}
