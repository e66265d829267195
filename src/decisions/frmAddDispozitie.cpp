#include "decisions/frmAddDispozitie.h"

#include "database/BD.h"
#include "history/LuniInchise.h"
#include "gui/CampData.h"
#include "gui/ComboCod.h"
#include "gui/FiltruEditare.h"
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
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace {

QLabel* eticheta(const QString& nume, const QString& text = {})
{
    auto* l = new QLabel(text);
    if (!nume.isEmpty())
        l->setObjectName(nume);
    return l;
}

} // namespace

frmAddDispozitie::frmAddDispozitie(QWidget* parinte, int adaug, qint64 id) : QDialog(parinte), m_adaug(adaug)
{
    setObjectName(QStringLiteral("frmAddDispozitie"));
    setWindowTitle(QStringLiteral("Adaugare Dispozitie"));
    Construieste();
    try {
        UmpleComboCod(m_cboDispoz[0], BD::principala(), 20);
        if (m_adaug == 1) {
            m_date.cerereId = id;
            m_dtpData->setDate(Ceas::azi());
            Implicite();
        } else {
            m_date.id = id;
            IncarcaRand();
        }
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic);
    }
}

void frmAddDispozitie::Construieste()
{
    auto* vertical = new QVBoxLayout(this);
    m_lblInfo = eticheta(QStringLiteral("lblInfo"), QStringLiteral("Adaugare Dispozitie"));
    QFont f = m_lblInfo->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.3);
    m_lblInfo->setFont(f);
    vertical->addWidget(m_lblInfo);

    auto* cerere = new QHBoxLayout;
    cerere->addWidget(new QLabel(QStringLiteral("Cererea nr.")));
    m_lblNrCerere = eticheta(QStringLiteral("lblNrCerere"));
    cerere->addWidget(m_lblNrCerere);
    cerere->addWidget(new QLabel(QStringLiteral("din data")));
    m_lblDataCerere = eticheta(QStringLiteral("lblDataCerere"));
    cerere->addWidget(m_lblDataCerere);
    cerere->addStretch();
    vertical->addLayout(cerere);

    for (int i = 0; i < 5; ++i) {
        m_txtDispoz[i] = new QLineEdit;
        m_txtDispoz[i]->setObjectName(NumeControl("txtDispoz", i));
    }
    const int limite[4] = {8, 4, 8, 8};
    // Numbers and amounts take digits, the comma and the point only.
    auto* cifre = new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9.,]*")), this);
    for (int i = 0; i < 4; ++i) {
        m_txtDispoz[i]->setMaxLength(limite[i]);
        m_txtDispoz[i]->setValidator(cifre);
    }
    m_txtDispoz[4]->setMaxLength(255);
    for (int i = 0; i < 2; ++i) {
        m_cboDispoz[i] = new QComboBox;
        m_cboDispoz[i]->setObjectName(NumeControl("cboDispoz", i));
    }
    const QStringList& luni = LunileAnului();
    for (int l = 1; l <= 12; ++l)
        m_cboDispoz[1]->addItem(luni[l - 1], l);
    m_cboDispoz[1]->setCurrentIndex(-1);
    m_dtpData = new CampData(nullptr, false);
    m_dtpData->setObjectName(QStringLiteral("dtpData"));

    auto* antet = new QFormLayout;
    antet->addRow(QStringLiteral("Dispozitia nr."), m_txtDispoz[0]);
    antet->addRow(QStringLiteral("Data"), m_dtpData);
    antet->addRow(QStringLiteral("Tip dispozitie"), m_cboDispoz[0]);
    auto* dinLuna = new QHBoxLayout;
    dinLuna->addWidget(m_cboDispoz[1], 1);
    dinLuna->addWidget(new QLabel(QStringLiteral("anul")));
    dinLuna->addWidget(m_txtDispoz[1]);
    antet->addRow(QStringLiteral("Incepand cu luna"), dinLuna);
    vertical->addLayout(antet);
    m_lblLunaInchisa = eticheta(QStringLiteral("lblLunaInchisa"));
    m_lblLunaInchisa->setWordWrap(true);
    m_lblLunaInchisa->setStyleSheet(QStringLiteral("color: #b00000"));
    m_lblLunaInchisa->hide();
    vertical->addWidget(m_lblLunaInchisa);

    m_picMiddle = new QWidget;
    m_picMiddle->setObjectName(QStringLiteral("picMiddle"));
    auto* suma = new QHBoxLayout(m_picMiddle);
    suma->setContentsMargins(0, 0, 0, 0);
    m_lblModificarea = eticheta(QStringLiteral("lblModificarea"), QStringLiteral("se stabileste suma de:"));
    suma->addWidget(m_lblModificarea);
    suma->addWidget(m_txtDispoz[2]);
    suma->addWidget(new QLabel(QStringLiteral("lei")));
    m_lblInSuma = eticheta(QStringLiteral("lblInSuma"), QStringLiteral("in suma de:"));
    suma->addWidget(m_lblInSuma);
    suma->addWidget(m_txtDispoz[3]);
    m_lblInSumaLei = eticheta(QStringLiteral("lblInSumaLei"), QStringLiteral("lei"));
    suma->addWidget(m_lblInSumaLei);
    suma->addStretch();
    vertical->addWidget(m_picMiddle);

    m_lblMotiv = eticheta(QStringLiteral("lblMotiv"), QStringLiteral("Motivul"));
    vertical->addWidget(m_lblMotiv);
    vertical->addWidget(m_txtDispoz[4]);

    auto* butoane = new QHBoxLayout;
    butoane->addStretch();
    auto* ok = new QPushButton(QStringLiteral("&OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto* renunta = new QPushButton(QStringLiteral("&Renunta"));
    renunta->setObjectName(QStringLiteral("cmdCancel"));
    butoane->addWidget(ok);
    butoane->addWidget(renunta);
    vertical->addLayout(butoane);
    // Enter moves between fields: no button takes it.
    ok->setAutoDefault(false);
    renunta->setAutoDefault(false);

    connect(ok, &QPushButton::clicked, this, &frmAddDispozitie::cmdOK);
    connect(renunta, &QPushButton::clicked, this, &frmAddDispozitie::cmdCancel);
    connect(m_cboDispoz[0], &QComboBox::currentIndexChanged, this, &frmAddDispozitie::SchimbareTip);
    connect(m_cboDispoz[1], &QComboBox::activated, this, [this] { VerificaLuna(true); });
    connect(m_txtDispoz[1], &QLineEdit::editingFinished, this, [this] { VerificaLuna(true); });
    InstaleazaFiltruEditare(this);
    const QList<QWidget*> ordine{
        m_txtDispoz[0], m_dtpData, m_cboDispoz[0], m_cboDispoz[1], m_txtDispoz[1], m_txtDispoz[2], m_txtDispoz[3],
        m_txtDispoz[4], ok,        renunta};
    for (int i = 1; i < ordine.size(); ++i)
        setTabOrder(ordine[i - 1], ordine[i]);
}

void frmAddDispozitie::Implicite()
{
    const auto i = ImpliciteDispozitieNoua(BD::principala(), m_date.cerereId);
    if (!i) {
        Mesaj(MesajDispozitie::CerereStearsa, Mesaje::Icon::Exclamare);
        return;
    }
    m_lblNrCerere->setText(i->nrCerere);
    m_lblDataCerere->setText(i->dataCerere);
    m_txtDispoz[i->inSumaNoua ? 3 : 2]->setText(i->suma);
    if (i->pozitieTip >= 0 && i->pozitieTip < m_cboDispoz[0]->count())
        m_cboDispoz[0]->setCurrentIndex(i->pozitieTip);
    SelecteazaCheie(m_cboDispoz[1], i->luna);
    m_txtDispoz[1]->setText(i->an);
    VerificaLuna(false);
}

void frmAddDispozitie::IncarcaRand()
{
    setWindowTitle(QStringLiteral("Modificare Dispozitie"));
    m_lblInfo->setText(QStringLiteral("Modificare Dispozitie"));
    m_dtpData->setDate(Ceas::azi());
    const auto inc = CitesteDispozitie(BD::principala(), m_date.id);
    if (!inc)
        return; // gone already: the save says so and closes the window
    const DateDispozitie& d = inc->date;
    m_date.cerereId = d.cerereId;
    SelecteazaCheie(m_cboDispoz[0], d.actiune);
    m_txtDispoz[0]->setText(d.nrDisp);
    if (!EsteDataZero(d.dataDisp))
        m_dtpData->setDate(d.dataDisp);
    m_lblNrCerere->setText(inc->nrCerere);
    m_lblDataCerere->setText(inc->dataCerere);
    SelecteazaCheie(m_cboDispoz[1], d.luna);
    m_txtDispoz[1]->setText(d.an);
    m_txtDispoz[2]->setText(d.suma);
    m_txtDispoz[3]->setText(d.sumaNoua);
    m_txtDispoz[4]->setText(d.motiv);
    const LunaAn luna{d.luna, d.an.toInt()};
    if (LunaInchisa(BD::principala(), luna))
        DoarCitire(luna);
}

void frmAddDispozitie::DoarCitire(LunaAn luna)
{
    m_doarCitire = true;
    m_lblInfo->setText(MesajLunaInchisa(luna));
    m_lblInfo->setWordWrap(true);
    for (QWidget* w : std::initializer_list<QWidget*>{m_cboDispoz[0], m_cboDispoz[1], m_dtpData})
        w->setEnabled(false);
    for (QLineEdit* t : m_txtDispoz)
        t->setEnabled(false);
    if (auto* ok = findChild<QPushButton*>(QStringLiteral("cmdOK")))
        ok->setEnabled(false);
    if (auto* renunta = findChild<QPushButton*>(QStringLiteral("cmdCancel")))
        renunta->setFocus();
}

void frmAddDispozitie::VerificaLuna(bool deLaUtilizator)
{
    if (m_doarCitire)
        return;
    const int l = CheieCombo(m_cboDispoz[1]);
    const qint64 an = ValoareIntreaga(m_txtDispoz[1]->text());
    bool inchisa = false;
    try {
        inchisa = l >= 1 && l <= 12 && an >= 1 && LunaInchisa(BD::principala(), {l, int(an)});
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic);
        return;
    }
    const QString mesaj = inchisa ? MesajLunaInchisa({l, int(an)}) : QString();
    m_lblLunaInchisa->setText(mesaj);
    m_lblLunaInchisa->setVisible(inchisa);
    if (inchisa && deLaUtilizator) {
        Mesaj(mesaj, Mesaje::Icon::Exclamare);
        m_cboDispoz[1]->setFocus();
    }
}

void frmAddDispozitie::SchimbareTip()
{
    const AspectTipDispozitie a = AspectTip(CheieCombo(m_cboDispoz[0]));
    if (a.textModificarea)
        m_lblModificarea->setText(*a.textModificarea);
    if (a.sumaNouaVizibila) {
        m_lblInSuma->setVisible(*a.sumaNouaVizibila);
        m_lblInSumaLei->setVisible(*a.sumaNouaVizibila);
        m_txtDispoz[3]->setVisible(*a.sumaNouaVizibila);
    }
    if (a.textMotiv)
        m_lblMotiv->setText(*a.textMotiv);
    if (a.motivVizibil) {
        m_lblMotiv->setVisible(*a.motivVizibil);
        m_txtDispoz[4]->setVisible(*a.motivVizibil);
    }
    if (a.mijlocVizibil)
        m_picMiddle->setVisible(*a.mijlocVizibil);
}

DateDispozitie frmAddDispozitie::Citeste() const
{
    DateDispozitie d = m_date;
    d.nrDisp = m_txtDispoz[0]->text();
    d.dataDisp = m_dtpData->date();
    d.luna = CheieCombo(m_cboDispoz[1]);
    d.an = m_txtDispoz[1]->text();
    d.actiune = CheieCombo(m_cboDispoz[0]);
    d.suma = m_txtDispoz[2]->text();
    d.sumaNoua = m_txtDispoz[3]->text();
    d.motiv = m_txtDispoz[4]->text();
    return d;
}

void frmAddDispozitie::cmdOK()
{
    if (!Proces::BazaAccesibila())
        return;
    const DateDispozitie d = Citeste();
    const VerificareDispozitie v = VerificaDispozitie(BD::principala(), m_adaug, d);
    if (v.stare == VerificareDispozitie::Inchide) {
        cmdCancel();
        return;
    }
    if (!v.ok()) {
        switch (v.camp) {
        case CampDispozitie::Tip: m_cboDispoz[0]->setFocus(); break;
        case CampDispozitie::Luna: m_cboDispoz[1]->setFocus(); break;
        case CampDispozitie::An: m_txtDispoz[1]->setFocus(); break;
        case CampDispozitie::Niciunul: break;
        }
        return;
    }
    try {
        m_date.id = SalveazaDispozitie(BD::principala(), m_adaug, d);
    } catch (const Eroare& e) {
        if (e.numar == CodEroare::RandSters && m_adaug == 2) {
            Mesaj(MesajDispozitie::Stearsa, Mesaje::Icon::Exclamare);
            cmdCancel();
        } else {
            Mesaj(e.text(), Mesaje::Icon::Critic);
        }
        return;
    }
    m_ok = true;
    accept();
}

void frmAddDispozitie::cmdCancel()
{
    m_ok = false;
    reject();
}
