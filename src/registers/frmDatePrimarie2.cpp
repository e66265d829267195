#include "registers/frmDatePrimarie2.h"

#include "database/BD.h"
#include "registers/DatePrimarie.h"
#include "gui/FiltruEditare.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
const char* const Etichete[] = {
    "Denumire (*)",       "Cod Fiscal (*)", "Cod Judet (*)", "Judet (*)",    "Localitate (*)",
    "Str. (*)",           "Nr. (*)",        "Primar (*)",    "Secretar (*)", "As. Social (*)",
    "CNP As. Social (*)", "Of. Postal (*)", "Cod Postal (*)"};
}

frmDatePrimarie2::frmDatePrimarie2(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmDatePrimarie2"));
    setWindowTitle(QStringLiteral("Date Primarie 2"));

    auto* grila = new QGridLayout;
    for (int i = 0; i < 13; ++i) {
        auto* e = new QLineEdit(this);
        e->setObjectName(NumeControl("txtText", i));
        m_txt << e;
        auto* l = new QLabel(QLatin1String(Etichete[i]), this);
        l->setBuddy(e);
        grila->addWidget(l, i, 0);
        grila->addWidget(e, i, 1);
    }
    m_cbo = new QComboBox(this);
    m_cbo->setObjectName(QStringLiteral("cbo"));
    for (int i = 0; i < TipuriLocalitate().size(); ++i)
        m_cbo->addItem(TipuriLocalitate().at(i), i + 1);
    m_cbo->setCurrentIndex(-1);
    auto* lblTip = new QLabel(QStringLiteral("Tip Localitate (*)"), this);
    lblTip->setBuddy(m_cbo);
    grila->addWidget(lblTip, 13, 0);
    grila->addWidget(m_cbo, 13, 1);
    m_txt.first()->setMinimumWidth(320);

    auto* ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto* cancel = new QPushButton(QStringLiteral("&Renuntare"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    ok->setAutoDefault(false);
    cancel->setAutoDefault(false);
    auto* butoane = new QHBoxLayout;
    butoane->addStretch();
    butoane->addWidget(ok);
    butoane->addWidget(cancel);
    auto* l = new QVBoxLayout(this);
    l->addLayout(grila);
    l->addLayout(butoane);

    // These boxes do not select their text on focus.
    InstaleazaFiltruEditare(this, false);
    connect(ok, &QPushButton::clicked, this, &frmDatePrimarie2::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    try {
        const DatePrimarie d = CitesteDatePrimarie(BD::principala());
        for (int i = 0; i < m_txt.size(); ++i)
            m_txt[i]->setText(d.texte.value(i));
        m_cbo->setCurrentIndex(d.TipLocalitate - 1);
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic);
    }
}

void frmDatePrimarie2::cmdOK_Click()
{
    DatePrimarie d;
    for (int i = 0; i < m_txt.size(); ++i)
        d.texte[i] = m_txt[i]->text();
    d.TipLocalitate = m_cbo->currentIndex() >= 0 ? m_cbo->currentData().toInt() : 0;
    const int gresit = VerificaDatePrimarie(d);
    if (gresit == CampTipLocalitate) {
        m_cbo->setFocus();
        return;
    }
    if (gresit >= 0) {
        m_txt[gresit]->setFocus();
        return;
    }
    try {
        SalveazaDatePrimarie(BD::principala(), d);
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic);
        return;
    }
    accept();
}
