#include "shell/frmGeneral.h"

#include "gui/AlegeFolder.h"
#include "gui/FiltruEditare.h"
#include "gui/Modal.h"
#include "preluare/frmPreluare.h"
#include "common/Mesaje.h"
#include "shell/Pornire.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

frmGeneral::frmGeneral(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmGeneral"));
    m_lbl = new QLabel(this);
    m_lbl->setObjectName(QStringLiteral("lbl"));
    m_lbl->setWordWrap(true);
    m_txt = new QLineEdit(this);
    m_txt->setObjectName(QStringLiteral("txt"));
    m_txt->setMinimumWidth(380);
    auto* browse = new QPushButton(QStringLiteral("..."), this);
    browse->setObjectName(QStringLiteral("cmdBrowse"));
    browse->setAutoDefault(false);
    m_ok = new QPushButton(QStringLiteral("&OK"), this);
    m_ok->setObjectName(QStringLiteral("cmdOK"));
    m_ok->setDefault(true);
    // An office that still works in the old program is moved here, into the folder of the
    // missing database; the next start opens it.
    m_preluare = new QPushButton(QStringLiteral("Preluare din programul vechi ..."), this);
    m_preluare->setObjectName(QStringLiteral("cmdPreluare"));
    m_preluare->setAutoDefault(false);
    auto* cancel = new QPushButton(QStringLiteral("&Renuntare"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setAutoDefault(false);

    auto* l = new QGridLayout(this);
    l->addWidget(m_lbl, 0, 0, 1, 2);
    l->addWidget(m_txt, 1, 0);
    l->addWidget(browse, 1, 1);
    auto* butoane = new QHBoxLayout;
    butoane->addWidget(m_preluare);
    butoane->addStretch();
    butoane->addWidget(m_ok);
    butoane->addWidget(cancel);
    l->addLayout(butoane, 2, 0, 1, 2);

    InstaleazaFiltruEditare(this);
    connect(m_ok, &QPushButton::clicked, this, &frmGeneral::cmdOK_Click);
    connect(browse, &QPushButton::clicked, this, &frmGeneral::cmdBrowse_Click);
    connect(m_preluare, &QPushButton::clicked, this, &frmGeneral::cmdPreluare_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmGeneral::showEvent(QShowEvent* e)
{
    if (!m_pregatit) {
        m_pregatit = true;
        if (Mod == 1) {
            setWindowTitle(QStringLiteral("Arhivare Baza de Date"));
            m_lbl->setText(QStringLiteral("Precizati numele bazei de date si calea unde doriti sa salvati arhiva"));
            m_ok->setText(QStringLiteral("&Salvare"));
            m_txt->setText(NumeArhivaImplicit());
            m_preluare->hide();
        } else if (Mod == 2) {
            const QString titlu = QStringLiteral("Selectati locatia Bazei de Date");
            setWindowTitle(titlu);
            m_lbl->setText(titlu);
            m_txt->setText(CaleBDDinSetari());
        }
    }
    QDialog::showEvent(e);
}

void frmGeneral::cmdBrowse_Click()
{
    const QString ales = AlegeFolder(QStringLiteral("Selectati Folderul/directorul in care este baza de date..."),
                                     QStringLiteral("C:\\Program Files"), this);
    if (!ales.isEmpty())
        m_txt->setText(ales);
}

void frmGeneral::cmdPreluare_Click()
{
    frmPreluare f(this);
    f.seteazaTinta(m_txt->text().trimmed());
    DeschideModal(f);
    if (f.preluat() && AcceptaLocatieBD(f.tinta()))
        accept();
}

void frmGeneral::cmdOK_Click()
{
    if (Mod == 2) {
        // A settings file that cannot be written is told, and the window stays for another try.
        if (!AcceptaLocatieBD(m_txt->text()))
            return;
    } else {
        Mesaj(MesajInchidere);
    }
    accept();
}
