#include "decisions/frmAddAnchete.h"

#include "database/BD.h"
#include "gui/CampData.h"
#include "gui/ComboCod.h"
#include "gui/FiltruEditare.h"
#include "gui/IntrareNumerica.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

QLabel* calculat(const char* nume)
{
    auto* l = new QLabel;
    l->setObjectName(QString::fromLatin1(nume));
    l->setFrameShape(QFrame::StyledPanel);
    l->setMinimumWidth(120);
    return l;
}

} // namespace

frmAddAnchete::frmAddAnchete(QWidget* parinte, int adaug, qint64 id) : QDialog(parinte), m_adaug(adaug)
{
    setObjectName(QStringLiteral("frmAddAnchete"));
    setWindowTitle(QStringLiteral("Adaugare Ancheta"));
    Construieste();
    try {
        const BD& bd = BD::principala();
        UmpleComboCod(m_cboCerere[0], bd, 4);
        UmpleComboCod(m_cboCerere[1], bd, 5);
        UmpleComboCod(m_cboCerere[2], bd, 7);
        UmpleComboCod(m_cboCerere[3], bd, 8);
        if (m_adaug == 1) {
            m_date.cerereId = id;
            {
                const QSignalBlocker b(m_dtpData);
                m_dtpData->setDate(Ceas::azi());
            }
            Valabilitatea();
        } else {
            m_date.id = id;
            IncarcaRand();
        }
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic);
    }
    // From here on each change of the date computes the validity again.
    connect(m_dtpData, &QDateEdit::dateChanged, this, [this] { Valabilitatea(); });
}

void frmAddAnchete::Construieste()
{
    for (int i = 0; i < 12; ++i) {
        m_txtCerere[i] = new QLineEdit;
        m_txtCerere[i]->setObjectName(NumeControl("txtCerere", i));
        m_txtCerere[i]->setMaxLength(50);
    }
    // Rooms and area take digits and the point only.
    DoarCifreSiPunct(m_txtCerere[1], 2);
    DoarCifreSiPunct(m_txtCerere[2], 5);
    m_txtCerere[3]->setMaxLength(255);
    m_txtCerere[4]->setMaxLength(255);
    // The officer's name starts with a capital.
    connect(m_txtCerere[0], &QLineEdit::editingFinished, this,
            [this] { m_txtCerere[0]->setText(CuMajuscula(m_txtCerere[0]->text())); });
    for (int i = 0; i < 4; ++i) {
        m_cboCerere[i] = new QComboBox;
        m_cboCerere[i]->setObjectName(NumeControl("cboCerere", i));
    }
    m_dtpData = new CampData(nullptr, false);
    m_dtpData->setObjectName(QStringLiteral("dtpData"));
    // The validity follows a date once it is typed whole, not each digit of it.
    m_dtpData->setKeyboardTracking(false);
    m_lblDataExp = calculat("lblDataExp");
    m_lblMotiv = calculat("lblMotiv");
    m_lblNrMembrii = calculat("lblNrMembrii");
    m_lblNrCopii = calculat("lblNrCopii");

    auto* vertical = new QVBoxLayout(this);
    m_lblInfo = new QLabel(QStringLiteral("Adaugare Ancheta"));
    m_lblInfo->setObjectName(QStringLiteral("lblInfo"));
    QFont f = m_lblInfo->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.3);
    m_lblInfo->setFont(f);
    vertical->addWidget(m_lblInfo);

    auto* sus = new QGridLayout;
    sus->addWidget(new QLabel(QStringLiteral("Data anchetei")), 0, 0);
    sus->addWidget(m_dtpData, 0, 1);
    sus->addWidget(new QLabel(QStringLiteral("Intocmitor")), 0, 2);
    sus->addWidget(m_txtCerere[0], 0, 3);
    sus->addWidget(new QLabel(QStringLiteral("Data expirarii")), 1, 0);
    sus->addWidget(m_lblDataExp, 1, 1);
    sus->addWidget(new QLabel(QStringLiteral("Motivul")), 1, 2);
    sus->addWidget(m_lblMotiv, 1, 3);
    sus->addWidget(new QLabel(QStringLiteral("Nr membrii")), 2, 0);
    sus->addWidget(m_lblNrMembrii, 2, 1);
    sus->addWidget(new QLabel(QStringLiteral("Nr copii")), 2, 2);
    sus->addWidget(m_lblNrCopii, 2, 3);
    vertical->addLayout(sus);

    auto* locuinta = new QGroupBox(QStringLiteral("2. Locuinta"));
    auto* fl = new QFormLayout(locuinta);
    fl->addRow(QStringLiteral("Tipul locuintei"), m_cboCerere[0]);
    fl->addRow(QStringLiteral("Regim juridic"), m_cboCerere[1]);
    fl->addRow(QStringLiteral("Nr camere"), m_txtCerere[1]);
    fl->addRow(QStringLiteral("Suprafata utila (mp)"), m_txtCerere[2]);
    fl->addRow(QStringLiteral("Bunuri de folosinta indelungata"), m_txtCerere[3]);
    fl->addRow(QStringLiteral("Conditii de igiena"), m_txtCerere[4]);
    vertical->addWidget(locuinta);

    auto* impreuna = new QGroupBox(QStringLiteral("3. Locuieste impreuna cu alte"));
    auto* il = new QFormLayout(impreuna);
    il->addRow(QStringLiteral("Locuieste"), m_cboCerere[2]);
    il->addRow(QStringLiteral("Detine locuinta"), m_cboCerere[3]);
    vertical->addWidget(impreuna);

    auto* proprietate = new QGroupBox(QStringLiteral("4. Familia detine in proprietate"));
    auto* pl = new QFormLayout(proprietate);
    pl->addRow(QStringLiteral("Teren"), m_txtCerere[5]);
    pl->addRow(QStringLiteral("Cladiri"), m_txtCerere[6]);
    pl->addRow(QStringLiteral("Spatii locative"), m_txtCerere[7]);
    pl->addRow(QStringLiteral("Alte bunuri"), m_txtCerere[8]);
    vertical->addWidget(proprietate);

    auto* rest = new QFormLayout;
    rest->addRow(QStringLiteral("5.Starea de sanatate a membrilor"), m_txtCerere[9]);
    rest->addRow(QStringLiteral("6. Nevoi speciale ale membrilor"), m_txtCerere[10]);
    rest->addRow(QStringLiteral("B. Alte aspecte constatate"), m_txtCerere[11]);
    vertical->addLayout(rest);

    auto* butoane = new QHBoxLayout;
    butoane->addStretch();
    auto* ok = new QPushButton(QStringLiteral("&OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto* renunta = new QPushButton(QStringLiteral("&Renunta"));
    renunta->setObjectName(QStringLiteral("cmdCancel"));
    ok->setAutoDefault(false);
    renunta->setAutoDefault(false);
    butoane->addWidget(ok);
    butoane->addWidget(renunta);
    vertical->addLayout(butoane);

    connect(ok, &QPushButton::clicked, this, &frmAddAnchete::cmdOK);
    connect(renunta, &QPushButton::clicked, this, &frmAddAnchete::cmdCancel);
    InstaleazaFiltruEditare(this);
}

void frmAddAnchete::IncarcaRand()
{
    setWindowTitle(QStringLiteral("Modificare Ancheta"));
    m_lblInfo->setText(QStringLiteral("Modificare Ancheta"));
    const auto inc = CitesteAncheta(BD::principala(), m_date.id);
    if (!inc)
        return; // gone already: the save says so and closes the window
    const DateAncheta& a = inc->date;
    m_date.cerereId = a.cerereId;
    {
        const QSignalBlocker b(m_dtpData);
        m_dtpData->setDate(EsteDataZero(a.data) ? Ceas::azi() : a.data);
    }
    m_txtCerere[0]->setText(a.intocmitor);
    m_lblDataExp->setText(inc->textExpirare);
    m_lblMotiv->setText(inc->motiv);
    m_lblNrMembrii->setText(inc->nrMembrii);
    m_lblNrCopii->setText(inc->nrCopii);
    SelecteazaCheie(m_cboCerere[0], a.tipLocuinta);
    SelecteazaCheie(m_cboCerere[1], a.regimJuridic);
    if (a.tipLocuire != 0)
        SelecteazaCheie(m_cboCerere[2], a.tipLocuire);
    SelecteazaCheie(m_cboCerere[3], a.tipDetinere);
    const QString texte[] = {a.nrCamere, a.suprUtila,  a.bunuri,        a.igiena, a.teren,  a.cladiri,
                             a.spatii,   a.alteBunuri, a.stareSanatate, a.nevoi,  a.aspecte};
    for (int i = 1; i < 12; ++i)
        m_txtCerere[i]->setText(texte[i - 1]);
}

void frmAddAnchete::Valabilitatea()
{
    try {
        Afiseaza(ValabilitateAncheta(BD::principala(), m_date.cerereId, m_dtpData->date()));
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic);
    }
}

void frmAddAnchete::Afiseaza(const Valabilitate& v)
{
    m_lblDataExp->setText(v.textExpirare);
    if (v.motiv)
        m_lblMotiv->setText(*v.motiv);
    m_lblNrCopii->setText(QString::number(v.nrCopii));
    m_lblNrMembrii->setText(QString::number(v.nrMembrii));
}

DateAncheta frmAddAnchete::Citeste() const
{
    DateAncheta a = m_date;
    a.data = m_dtpData->date();
    a.intocmitor = m_txtCerere[0]->text();
    a.tipLocuinta = CheieCombo(m_cboCerere[0]);
    a.regimJuridic = CheieCombo(m_cboCerere[1]);
    a.tipLocuire = CheieCombo(m_cboCerere[2]);
    a.tipDetinere = CheieCombo(m_cboCerere[3]);
    a.nrCamere = m_txtCerere[1]->text();
    a.suprUtila = m_txtCerere[2]->text();
    a.bunuri = m_txtCerere[3]->text();
    a.igiena = m_txtCerere[4]->text();
    a.teren = m_txtCerere[5]->text();
    a.cladiri = m_txtCerere[6]->text();
    a.spatii = m_txtCerere[7]->text();
    a.alteBunuri = m_txtCerere[8]->text();
    a.stareSanatate = m_txtCerere[9]->text();
    a.nevoi = m_txtCerere[10]->text();
    a.aspecte = m_txtCerere[11]->text();
    return a;
}

void frmAddAnchete::cmdOK()
{
    if (!Proces::BazaAccesibila())
        return;
    const DateAncheta a = Citeste();
    const VerificareAncheta v =
        VerificaAncheta(BD::principala(), m_adaug, a, int(ValoareIntreaga(m_lblNrCopii->text())));
    if (v.stare == VerificareAncheta::Inchide) {
        cmdCancel();
        return;
    }
    if (!v.ok()) {
        switch (v.camp) {
        case CampAncheta::Data: m_dtpData->setFocus(); break;
        case CampAncheta::Intocmitor: m_txtCerere[0]->setFocus(); break;
        case CampAncheta::NrCamere: m_txtCerere[1]->setFocus(); break;
        case CampAncheta::Suprafata: m_txtCerere[2]->setFocus(); break;
        case CampAncheta::TipLocuinta: m_cboCerere[0]->setFocus(); break;
        case CampAncheta::RegimJuridic: m_cboCerere[1]->setFocus(); break;
        case CampAncheta::TipDetinere: m_cboCerere[3]->setFocus(); break;
        case CampAncheta::Niciunul: break;
        }
        return;
    }
    try {
        // The validity is computed once more for the row.
        const Valabilitate val = ValabilitateAncheta(BD::principala(), a.cerereId, a.data);
        Afiseaza(val);
        m_date.id = SalveazaAncheta(BD::principala(), m_adaug, a, val);
    } catch (const Eroare& e) {
        if (e.numar == CodEroare::RandSters && m_adaug == 2) {
            Mesaj(MesajAncheta::Stearsa, Mesaje::Icon::Exclamare);
            cmdCancel();
        } else {
            Mesaj(e.text(), Mesaje::Icon::Critic);
        }
        return;
    }
    m_ok = true;
    accept();
}

void frmAddAnchete::cmdCancel()
{
    m_ok = false;
    reject();
}
