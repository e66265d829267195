#include "decisions/frmAdAdeverinte.h"

#include "database/BD.h"
#include "gui/ActiuniLegate.h"
#include "gui/ButoaneDialog.h"
#include "gui/CampData.h"
#include "gui/ComboCod.h"
#include "gui/FiltruEditare.h"
#include "gui/IntrareNumerica.h"
#include "common/Ceas.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
// The list of document kinds that the same column takes in the member editor.
constexpr int ListaTipAct = 30;
} // namespace

frmAdAdeverinte::frmAdAdeverinte(bool adaug, const Adeverinta& a, QWidget* parent)
    : QDialog(parent), m_adaug(adaug), m_a(a)
{
    setObjectName(QStringLiteral("frmAdAdeverinte"));
    setWindowTitle(adaug ? QStringLiteral("Adaugare adeverinta") : QStringLiteral("Modificare adeverinta"));
    auto* form = new QFormLayout;
    auto eticheta = [&](const char* nume) {
        auto* l = new QLabel(this);
        l->setObjectName(QString::fromLatin1(nume));
        return l;
    };
    QLabel* lblNrCerere = eticheta("lblNrCerere");
    QLabel* lblTitular = eticheta("lblTitular");
    QLabel* lblElev = eticheta("lblElev");
    form->addRow(QStringLiteral("Nr cerere:"), lblNrCerere);
    form->addRow(QStringLiteral("Titular:"), lblTitular);
    form->addRow(QStringLiteral("Elev:"), lblElev);

    m_txtNrAdev = new QLineEdit(this);
    m_txtNrAdev->setObjectName(QStringLiteral("txtNrAdev"));
    DoarCifreSiPunct(m_txtNrAdev, 8);
    auto data = [&](const char* nume) {
        auto* d = new CampData(this);
        d->setObjectName(QString::fromLatin1(nume));
        return d;
    };
    m_dtpDataAdev = data("dtpDataAdev");
    m_dtpDataExp = data("dtpDataExp");
    m_dtpDataDep = data("dtpDataDep");
    m_cboTipAdev = new QComboBox(this);
    m_cboTipAdev->setObjectName(QStringLiteral("cboTipAdev"));
    form->addRow(QStringLiteral("Nr adeverinta:"), m_txtNrAdev);
    form->addRow(QStringLiteral("Data adeverinta:"), m_dtpDataAdev);
    form->addRow(QStringLiteral("Data expirarii:"), m_dtpDataExp);
    form->addRow(QStringLiteral("Data depunerii:"), m_dtpDataDep);
    form->addRow(QStringLiteral("Tip adeverinta:"), m_cboTipAdev);

    const ButoaneOkRenunta b = CreeazaButoaneOkRenunta(this);
    SfaturiOkRenunta(b);
    auto* l = new QVBoxLayout(this);
    l->addLayout(form);
    l->addLayout(b.rand);
    InstaleazaFiltruEditare(this);
    LeagaActiune(b.ok, [this] { cmdOK_Click(); });
    connect(b.renunta, &QPushButton::clicked, this, &QDialog::reject);

    RuleazaProtejat([&] {
        const BD& bd = BD::principala();
        const AntetAdeverinta antet = CitesteAntetAdeverinta(bd, a.cerereId, a.membruId);
        lblNrCerere->setText(antet.nrCerere);
        lblTitular->setText(antet.titular);
        lblElev->setText(antet.elev);
        UmpleComboCod(m_cboTipAdev, bd, ListaTipAct);
    });
    m_cboTipAdev->setCurrentIndex(-1);
    if (adaug) {
        m_dtpDataAdev->seteazaData(Ceas::azi());
        m_dtpDataExp->seteazaData({});
        m_dtpDataDep->seteazaData({});
    } else {
        m_txtNrAdev->setText(a.nrAdev);
        m_dtpDataAdev->seteazaData(a.dataAdeverinta);
        m_dtpDataExp->seteazaData(a.dataExpAdev);
        m_dtpDataDep->seteazaData(a.dataDepunerii);
        if (a.tipAdeverinta >= 0)
            SelecteazaCheie(m_cboTipAdev, a.tipAdeverinta);
    }
}

void frmAdAdeverinte::cmdOK_Click()
{
    m_a.nrAdev = m_txtNrAdev->text();
    m_a.dataAdeverinta = m_dtpDataAdev->data();
    m_a.dataExpAdev = m_dtpDataExp->data();
    m_a.dataDepunerii = m_dtpDataDep->data();
    m_a.tipAdeverinta = m_cboTipAdev->currentIndex() >= 0 ? CheieCombo(m_cboTipAdev) : -1;
    if (!SalveazaAdeverinta(BD::principala(), m_a, m_adaug)) {
        m_txtNrAdev->setFocus();
        return;
    }
    accept();
}
