#include "documents/frmAnexa2.h"

#include "database/BD.h"
#include "documents/DispozitiiInBloc.h"
#include "gui/CampData.h"
#include "gui/ComboCod.h"
#include "gui/FiltruEditare.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"

#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

QLineEdit* txt(const QString& nume)
{
    auto* t = new QLineEdit;
    t->setObjectName(nume);
    return t;
}

QComboBox* cbo(const QString& nume)
{
    auto* c = new QComboBox;
    c->setObjectName(nume);
    return c;
}

QComboBox* comboStatut(const QString& nume)
{
    QComboBox* c = cbo(nume);
    c->addItem(QStringLiteral("cu sot/sotie/etc"), 1);
    c->addItem(QStringLiteral("monoparental"), 2);
    return c;
}

QComboBox* comboLuni(const QString& nume, int selectata)
{
    QComboBox* c = cbo(nume);
    for (int l = 1; l <= 12; ++l)
        c->addItem(QStringLiteral("%1 %2").arg(l).arg(NumeLuna(l)), l);
    c->setCurrentIndex(qBound(1, selectata, 12) - 1);
    return c;
}

} // namespace

frmAnexa2::frmAnexa2(QWidget* parinte, BD* bd) : QDialog(parinte), m_bd(bd ? *bd : BD::principala())
{
    setObjectName(QStringLiteral("frmAnexa2"));
    setWindowTitle(QStringLiteral("Selectati modul de tiparire a dispozitiilor"));
    const Setari& s = Proces::setari();

    // The selection of the printing runs.
    auto* tiparire = new QGroupBox(QStringLiteral("Tiparire dispozitii"));
    auto* grila = new QGridLayout(tiparire);
    m_cboTipDispozitie = cbo(NumeControl("cboCerere", 0));
    UmpleComboCod(m_cboTipDispozitie, m_bd, 20);
    m_cboTipDispozitie->setCurrentIndex(0);
    m_cboTipDisp = comboStatut(QStringLiteral("cboTipDisp"));
    grila->addWidget(new QLabel(QStringLiteral("Tip Dispozitie")), 0, 0);
    grila->addWidget(m_cboTipDispozitie, 0, 1, 1, 3);
    grila->addWidget(new QLabel(QStringLiteral("Statut cerere")), 1, 0);
    grila->addWidget(m_cboTipDisp, 1, 1, 1, 3);

    const char* optiuni[] = {
        "Luna:", "Cererile de la Nr Cerere:", "Cererile de la Nr Dispozitie:", "Cererile afisate in lista"};
    for (int i = 0; i < 4; ++i) {
        m_opt[i] = new QRadioButton(QLatin1String(optiuni[i]));
        m_opt[i]->setObjectName(NumeControl("opt", i));
        grila->addWidget(m_opt[i], 2 + i, 0);
    }
    m_opt[2]->setChecked(true);
    m_cboLuna = comboLuni(QStringLiteral("cboLuna"), s.LunaSetata);
    grila->addWidget(m_cboLuna, 2, 1, 1, 3);
    m_txtCerereMin = txt(QStringLiteral("txtCerereMin"));
    m_txtCerereMax = txt(QStringLiteral("txtCerereMax"));
    grila->addWidget(m_txtCerereMin, 3, 1);
    grila->addWidget(new QLabel(QStringLiteral("la Nr Cerere:")), 3, 2);
    grila->addWidget(m_txtCerereMax, 3, 3);
    m_txtDispozitieMin = txt(QStringLiteral("txtDispozitieMin"));
    m_txtDispozitieMax = txt(QStringLiteral("txtDispozitieMax"));
    grila->addWidget(m_txtDispozitieMin, 4, 1);
    grila->addWidget(new QLabel(QStringLiteral("la Nr Dispozitie:")), 4, 2);
    grila->addWidget(m_txtDispozitieMax, 4, 3);
    m_cboCuantum = cbo(QStringLiteral("cboCuantum"));
    m_cboCuantum->addItem(QStringLiteral("NEACORDARE - egal cu 0"), 0);
    m_cboCuantum->addItem(QStringLiteral("ACORDARE - diferit de 0"), 1);
    grila->addWidget(new QLabel(QStringLiteral("Cuantum")), 6, 0);
    grila->addWidget(m_cboCuantum, 6, 1, 1, 3);

    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    auto* renunta = new QPushButton(QStringLiteral("Renunta"));
    renunta->setObjectName(QStringLiteral("cmdCancel"));
    auto* butoane = new QHBoxLayout;
    butoane->addStretch();
    butoane->addWidget(ok);
    butoane->addWidget(renunta);
    grila->addLayout(butoane, 7, 0, 1, 4);

    // The generation of dispositions for every application of a type.
    auto* generare = new QGroupBox(QStringLiteral("Generare dispozitii"));
    auto* forma = new QFormLayout(generare);
    m_txtPrimulNr = txt(NumeControl("txtDispoz", 0));
    m_cboLunaGenerare = comboLuni(NumeControl("cboDispoz", 1), s.LunaSetata);
    m_txtAn = txt(NumeControl("txtDispoz", 1));
    m_txtAn->setText(QString::number(s.AnSetat));
    m_dtpData = new CampData(nullptr, false);
    m_dtpData->setObjectName(QStringLiteral("dtpData"));
    m_dtpData->seteazaData(Ceas::azi());
    m_cboTipCerere = comboStatut(QStringLiteral("cboTipCerere"));
    forma->addRow(QStringLiteral("Incepand cu nr dispozitie:"), m_txtPrimulNr);
    forma->addRow(QStringLiteral("Incepand cu luna:"), m_cboLunaGenerare);
    forma->addRow(QStringLiteral("anul:"), m_txtAn);
    forma->addRow(QStringLiteral("Data Cerere:"), m_dtpData);
    forma->addRow(QStringLiteral("Tip Cerere:"), m_cboTipCerere);
    auto* genereaza = new QPushButton(QStringLiteral("Genereaza"));
    genereaza->setObjectName(QStringLiteral("cmdGenerate"));
    forma->addRow(genereaza);

    auto* tot = new QVBoxLayout(this);
    tot->addWidget(tiparire);
    tot->addWidget(generare);

    connect(ok, &QPushButton::clicked, this, &frmAnexa2::cmdOK);
    connect(renunta, &QPushButton::clicked, this, [this] {
        ESTE_OK = false;
        reject();
    });
    connect(genereaza, &QPushButton::clicked, this, &frmAnexa2::cmdGenerate);
    InstaleazaFiltruEditare(this);
}

void frmAnexa2::cmdOK()
{
    TipDisp = CheieCombo(m_cboTipDispozitie);
    if (TipDisp == 0) {
        Mesaj(QStringLiteral("Selectati Tip Dispozitie din lista"));
        m_cboTipDispozitie->setFocus();
        return;
    }
    StatutDisp = m_cboTipDisp->currentData().toInt();
    LunaDisp = m_cboLuna->currentData().toInt();
    NrActMin = ValoareIntreaga(m_txtDispozitieMin->text());
    NrActMax = ValoareIntreaga(m_txtDispozitieMax->text());
    NrCerereMin = ValoareIntreaga(m_txtCerereMin->text());
    NrCerereMax = ValoareIntreaga(m_txtCerereMax->text());
    ModTiparAnexa2 = 0;
    for (int i = 0; i < 4; ++i)
        if (m_opt[i]->isChecked())
            ModTiparAnexa2 = i + 1;
    ESTE_OK = true;
    accept();
}

void frmAnexa2::cmdGenerate()
{
    if (!Proces::BazaAccesibila())
        return;
    ParametriGenerare p;
    p.primulNr = ValoareIntreaga(m_txtPrimulNr->text());
    p.luna = m_cboLunaGenerare->currentData().toInt();
    p.an = static_cast<int>(ValoareIntreaga(m_txtAn->text()));
    p.dataDisp = m_dtpData->data();
    p.tipCerere = m_cboTipCerere->currentData().toInt();
    p.calcul = CalculDispozitie;

    QProgressDialog progres(QStringLiteral("Se genereaza dispozitiile..."), QStringLiteral("Opreste"), 0, 1, this);
    progres.setObjectName(QStringLiteral("progresGenerare"));
    progres.setWindowModality(Qt::WindowModal);
    progres.setMinimumDuration(300);
    RezultatGenerare r;
    try {
        r = GenereazaDispozitii(p, m_bd, [&](int facut, int total) {
            progres.setMaximum(qMax(1, total));
            progres.setValue(facut);
            QCoreApplication::processEvents();
            return !progres.wasCanceled();
        });
    } catch (const Eroare& e) {
        progres.reset();
        Mesaj(e.text() + QStringLiteral("\nNu a fost generata nici o dispozitie."), Mesaje::Icon::Critic);
        return;
    }
    progres.reset();
    if (r.complet)
        Mesaj(MesajGenerare(r));
    else if (r.oprit)
        Mesaj(QStringLiteral("Generarea a fost oprita. Nu a fost generata nici o dispozitie."));
}
