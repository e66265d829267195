#include "applications/frmAddLocuinta.h"

#include "gui/ButoaneDialog.h"

#include "applications/RegulaVenituriLocuinta.h"
#include "database/BD.h"
#include "gui/ComboCod.h"
#include "gui/FiltruEditare.h"
#include "common/Mesaje.h"
#include "common/Text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const char* const Tipuri[NrLocuinte] = {"Casa cu curte",     "Casa fara curte",      "Apartament la bloc",
                                        "Locuinta sociala",  "Locuinta de serviciu", "Locuinta de necesitate",
                                        "Institutionalizat", "Nu are locuinta"};

struct ListaLocuinta {
    const char* eticheta;
    int tip;
};
const ListaLocuinta Liste[4] = {{"Gospodareste", 26}, {"Regim juridic", 5}, {"Incalzire", 6}, {"Tip Locuinta", 29}};

QString TextOptional(double v)
{
    return v == 0 ? QString() : TextNumar(v);
}

} // namespace

frmAddLocuinta::frmAddLocuinta(QWidget* parent, Cerere& cerere) : QDialog(parent), m_c(cerere)
{
    setObjectName(QStringLiteral("frmAddLocuinta"));
    setWindowTitle(QStringLiteral("Adaugare date locuinta"));

    auto* tipuri = new QGroupBox(QStringLiteral("Locuinta"), this);
    auto* g = new QGridLayout(tipuri);
    for (int i = 0; i < NrLocuinte; ++i) {
        m_chk[i] = new QCheckBox(QString::fromLatin1(Tipuri[i]), tipuri);
        m_chk[i]->setObjectName(NumeControl("chkLocuinta", i));
        g->addWidget(m_chk[i], i, 0);
        if (i < NrLocuinteCuCamere) {
            m_pic[i] = new QWidget(tipuri);
            m_pic[i]->setObjectName(NumeControl("picLocuinta", i));
            auto* h = new QHBoxLayout(m_pic[i]);
            h->setContentsMargins(0, 0, 0, 0);
            m_camere[i] = new QLineEdit(m_pic[i]);
            m_camere[i]->setObjectName(NumeControl("txtNrCamere", i));
            m_camere[i]->setMaxLength(5);
            m_suprafata[i] = new QLineEdit(m_pic[i]);
            m_suprafata[i]->setObjectName(NumeControl("txtSuprafata", i));
            m_suprafata[i]->setMaxLength(10);
            h->addWidget(new QLabel(QStringLiteral("Nr. Camere"), m_pic[i]));
            h->addWidget(m_camere[i]);
            h->addWidget(new QLabel(QStringLiteral("Suprafata"), m_pic[i]));
            h->addWidget(m_suprafata[i]);
            h->addWidget(new QLabel(QStringLiteral("mp"), m_pic[i]));
            g->addWidget(m_pic[i], i, 1);
        }
    }

    auto* fapte = new QGridLayout;
    BD& bd = BD::principala();
    for (int k = 0; k < 4; ++k) {
        m_cbo[k] = new QComboBox(this);
        m_cbo[k]->setObjectName(NumeControl("cboLocuinta", k));
        UmpleComboCod(m_cbo[k], bd, Liste[k].tip);
        fapte->addWidget(new QLabel(QString::fromLatin1(Liste[k].eticheta), this), k, 0);
        fapte->addWidget(m_cbo[k], k, 1);
    }
    fapte->setColumnStretch(1, 1);

    const auto [ok, renunta, butoane] = CreeazaButoaneOkRenunta(this);

    auto* l = new QVBoxLayout(this);
    l->addWidget(tipuri);
    l->addLayout(fapte);
    l->addLayout(butoane);

    // What the array holds: the ticks, and the rooms and surface of the first six kinds.
    for (int i = 0; i < NrLocuinte; ++i) {
        const LocuintaCerere& loc = m_c.Locuinte[static_cast<std::size_t>(i)];
        m_chk[i]->setChecked(loc.folosita);
        if (i < NrLocuinteCuCamere) {
            m_camere[i]->setText(TextOptional(loc.NrCamere));
            m_suprafata[i]->setText(TextOptional(loc.Suprafata));
            m_pic[i]->setEnabled(loc.folosita);
        }
        connect(m_chk[i], &QCheckBox::toggled, this, [this, i](bool b) { bifeaza(i, b); });
    }
    SelecteazaCheie(m_cbo[0], m_c.GospodLoc);
    SelecteazaCheie(m_cbo[1], m_c.RegimJuridLoc);
    SelecteazaCheie(m_cbo[2], m_c.TipIncalzire);
    SelecteazaCheie(m_cbo[3], m_c.TipLocuinta);

    InstaleazaFiltruEditare(this);
    connect(ok, &QPushButton::clicked, this, &frmAddLocuinta::ok);
    connect(renunta, &QPushButton::clicked, this, &QDialog::reject);
}

void frmAddLocuinta::bifeaza(int i, bool bifat)
{
    // Nothing keeps the kinds apart: several may be ticked at once.
    if (i >= NrLocuinteCuCamere)
        return;
    m_pic[i]->setEnabled(bifat);
    if (bifat && isVisible())
        m_camere[i]->setFocus();
}

void frmAddLocuinta::ok()
{
    LocuinteCerere noi = m_c.Locuinte;
    for (int i = 0; i < NrLocuinte; ++i) {
        const bool cuCamere = i < NrLocuinteCuCamere;
        const QString problema =
            CitesteLocuinta(i, m_chk[i]->isChecked(), cuCamere ? m_camere[i]->text() : QString(),
                            cuCamere ? m_suprafata[i]->text() : QString(), noi[static_cast<std::size_t>(i)]);
        if (!problema.isEmpty()) {
            Mesaj(problema, Mesaje::Icon::Exclamare);
            if (cuCamere)
                m_camere[i]->setFocus();
            return;
        }
    }
    m_c.Locuinte = noi;
    m_c.GospodLoc = CheieCombo(m_cbo[0]);
    m_c.RegimJuridLoc = CheieCombo(m_cbo[1]);
    m_c.TipIncalzire = CheieCombo(m_cbo[2]);
    m_c.TipLocuinta = CheieCombo(m_cbo[3]);
    accept();
}
