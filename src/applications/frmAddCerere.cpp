#include "applications/frmAddCerere.h"
#include "gui/LatimiColoane.h"

#include "amounts/Cuantum.h"
#include "applications/IncarcaCerere.h"
#include "applications/SalveazaCerere.h"
#include "applications/frmAddLocuinta.h"
#include "applications/frmAddMembru.h"
#include "applications/frmAddVenituri.h"
#include "applications/frmBife.h"
#include "database/BD.h"
#include "database/ListeReferinta.h"
#include "gui/ActiuniLegate.h"
#include "gui/CampData.h"
#include "gui/ComboCod.h"
#include "gui/FiltruEditare.h"
#include "gui/IntrareNumerica.h"
#include "gui/Modal.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

// The text boxes that exist in the family txtCerere.
constexpr int IndexuriText[] = {0, 1, 2, 17, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 22};

enum ColoanaMembru {
    ColID,
    ColNume,
    ColPrenume,
    ColCNP,
    ColOcupatie,
    ColRudenie,
    ColVenit,
    ColAlteVenituri,
    ColDataExp,
    ColMotivExp,
    ColDataNast,
    ColSerie,
    ColNumar,
    NrColoaneMembri
};

int AnActiv()
{
    return Proces::setari().AnSetat;
}

QString DaNu(bool b)
{
    return b ? QStringLiteral("DA") : QStringLiteral("NU");
}

// Leaving a control for another control of the same window; a message box, a popup or another
// window taking the focus doesn't count.
bool PlecareDinControl(QEvent* ev)
{
    if (ev->type() != QEvent::FocusOut)
        return false;
    const Qt::FocusReason m = static_cast<QFocusEvent*>(ev)->reason();
    return m != Qt::ActiveWindowFocusReason && m != Qt::PopupFocusReason;
}

} // namespace

frmAddCerere::frmAddCerere(QWidget* parent, int adaug, qint64 cerereId) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAddCerere"));
    setWindowTitle(adaug == 2 ? QStringLiteral("Modificare cerere") : QStringLiteral("Adaugare cerere"));
    construiesteControale();

    BD& bd = BD::principala();
    try {
        umpleListe();
        if (adaug == 2) {
            m_c = IncarcaCerere(bd, cerereId);
        } else {
            // County, place, today's date, the first choices of the two lists, the month of
            // "Gospodareste" that the last editor left.
            m_c = CerereNoua(bd);
        }
    } catch (const Eroare& e) {
        Mesaj(e.text(PrefixEroareIncarcare), Mesaje::Icon::Critic);
        m_incarcata = false;
    }
    m_c.Adaug = adaug == 2 ? 2 : 1;
    if (adaug == 2)
        m_c.CerereID = cerereId;
    modelInControale();
    if (!m_incarcata)
        m_cmdOK->setEnabled(false);

    for (int i : IndexuriText)
        connect(m_txt[i], &QLineEdit::textChanged, this,
                [this, i] { RuleazaProtejat([this, i] { textSchimbat(i); }); });
    for (int i : {3, 4}) {
        connect(m_cbo[i], &QComboBox::currentIndexChanged, this,
                [this] { RuleazaProtejat([this] { recalculeazaCuantum(); }); });
        m_cbo[i]->installEventFilter(this);
    }
    connect(m_cbo[2], &QComboBox::currentIndexChanged, this, &frmAddCerere::actualizeazaPlata);
    m_cbo[0]->installEventFilter(this);
    m_txt[0]->installEventFilter(this);
    m_txt[1]->installEventFilter(this);
    m_lvw->installEventFilter(this);
    connect(m_lvw, &QTreeWidget::itemDoubleClicked, this, [this] { RuleazaProtejat([this] { modificaMembru(); }); });

    InstaleazaFiltruEditare(this);
}

frmAddCerere::~frmAddCerere()
{
    // The month of "Gospodareste" passes to the next new application.
    RetineLunaGospod(m_c.LunaGospod);
}

void frmAddCerere::construiesteControale()
{
    for (int i : IndexuriText) {
        m_txt[i] = new QLineEdit(this);
        m_txt[i]->setObjectName(NumeControl("txtCerere", i));
    }
    DoarCifreSiPunct(m_txt[0], 9);
    DoarCifreSiPunct(m_txt[1], 9);
    for (int i : {2, 3, 4})
        m_txt[i]->setMaxLength(10);
    m_txt[5]->setMaxLength(50);
    m_txt[6]->setMaxLength(50);
    m_txt[17]->setMaxLength(15);
    m_txt[7]->setMaxLength(15);
    m_txt[8]->setMaxLength(15);
    m_txt[9]->setMaxLength(34);
    m_txt[10]->setMaxLength(32);
    m_txt[11]->setMaxLength(30);
    m_txt[22]->setMaxLength(3);
    // Filled by the income editor and by the calculation.
    for (int i : {12, 13, 14, 15, 16})
        m_txt[i]->setReadOnly(true);

    for (int i = 0; i < 6; ++i) {
        m_cbo[i] = new QComboBox(this);
        m_cbo[i]->setObjectName(NumeControl("cboCerere", i));
    }
    for (int i : {0, 5}) {
        m_cbo[i]->setEditable(true);
        m_cbo[i]->setInsertPolicy(QComboBox::NoInsert);
        m_cbo[i]->lineEdit()->setMaxLength(50);
    }
    for (int i = 0; i < 2; ++i) {
        m_dtp[i] = new CampData(this);
        m_dtp[i]->setObjectName(NumeControl("dtpData", i));
    }

    auto eticheta = [this](const char* t) { return new QLabel(QString::fromLatin1(t), this); };

    auto* dosar = new QGroupBox(QStringLiteral("Dosar"), this);
    auto* gd = new QGridLayout(dosar);
    gd->addWidget(eticheta("Nr dosar"), 0, 0);
    gd->addWidget(m_txt[0], 0, 1);
    gd->addWidget(eticheta("Nr cerere"), 0, 2);
    gd->addWidget(m_txt[1], 0, 3);
    gd->addWidget(eticheta("Data cererii"), 0, 4);
    gd->addWidget(m_dtp[0], 0, 5);

    auto* adresa = new QGroupBox(QStringLiteral("Adresa"), this);
    auto* ga = new QGridLayout(adresa);
    ga->addWidget(eticheta("Strada / sat"), 0, 0);
    ga->addWidget(m_cbo[0], 0, 1, 1, 3);
    ga->addWidget(eticheta("Nr"), 0, 4);
    ga->addWidget(m_txt[2], 0, 5);
    ga->addWidget(eticheta("Bloc"), 1, 0);
    ga->addWidget(m_txt[17], 1, 1);
    ga->addWidget(eticheta("Sc"), 1, 2);
    ga->addWidget(m_txt[3], 1, 3);
    ga->addWidget(eticheta("Ap"), 1, 4);
    ga->addWidget(m_txt[4], 1, 5);
    ga->addWidget(eticheta("Localitate"), 2, 0);
    ga->addWidget(m_txt[5], 2, 1, 1, 3);
    ga->addWidget(eticheta("Judet"), 2, 4);
    ga->addWidget(m_txt[6], 2, 5);
    ga->addWidget(eticheta("Telefon"), 3, 0);
    ga->addWidget(m_txt[7], 3, 1);
    ga->addWidget(eticheta("Mobil"), 3, 2);
    ga->addWidget(m_txt[8], 3, 3);

    auto* cerere = new QGroupBox(QStringLiteral("Cerere"), this);
    auto* gc = new QGridLayout(cerere);
    gc->addWidget(eticheta("Tip cerere"), 0, 0);
    gc->addWidget(m_cbo[3], 0, 1, 1, 3);
    gc->addWidget(eticheta("Reprezentant legal"), 1, 0);
    gc->addWidget(m_cbo[1], 1, 1);
    gc->addWidget(eticheta("Modalitate de plata"), 1, 2);
    gc->addWidget(m_cbo[2], 1, 3);
    m_picPlata = new QWidget(cerere);
    m_picPlata->setObjectName(QStringLiteral("picPlata"));
    auto* gp = new QGridLayout(m_picPlata);
    gp->setContentsMargins(0, 0, 0, 0);
    gp->addWidget(eticheta("Titular cont"), 0, 0);
    gp->addWidget(m_txt[9], 0, 1);
    gp->addWidget(eticheta("Cont"), 0, 2);
    gp->addWidget(m_txt[10], 0, 3);
    gp->addWidget(eticheta("Banca"), 0, 4);
    gp->addWidget(m_txt[11], 0, 5);
    gc->addWidget(m_picPlata, 2, 0, 1, 4);
    gc->addWidget(eticheta("Statut"), 3, 0);
    gc->addWidget(m_cbo[4], 3, 1);
    gc->addWidget(eticheta("Data statut"), 3, 2);
    gc->addWidget(m_dtp[1], 3, 3);
    gc->addWidget(eticheta("Motiv"), 4, 0);
    gc->addWidget(m_cbo[5], 4, 1, 1, 3);

    m_lvw = new QTreeWidget(this);
    m_lvw->setObjectName(QStringLiteral("lvw"));
    m_lvw->setRootIsDecorated(false);
    m_lvw->setAllColumnsShowFocus(true);
    m_lvw->setSelectionMode(QAbstractItemView::SingleSelection);
    m_lvw->setHeaderLabels({QStringLiteral("ID"), QStringLiteral("Nume"), QStringLiteral("Prenume"),
                            QStringLiteral("CNP"), QStringLiteral("Ocupatie"), QStringLiteral("Rudenie"),
                            QStringLiteral("Venit"), QStringLiteral("Alte venituri"), QStringLiteral("Data Exp."),
                            QStringLiteral("Motivul Expirarii"), QStringLiteral("Data nast."), QStringLiteral("Serie"),
                            QStringLiteral("Numar")});
    m_lvw->setColumnHidden(ColID, true);
    m_lvw->setMinimumHeight(130);
    for (int c = 0; c < m_lvw->columnCount(); ++c)
        LargesteColoana(m_lvw, c, c == 3 ? CNPModel() : QString());
    m_cmdAdd = new QPushButton(QStringLiteral("Adauga membru"), this);
    m_cmdAdd->setObjectName(QStringLiteral("cmdAdd"));
    m_cmdEdit = new QPushButton(QStringLiteral("Modifica membru"), this);
    m_cmdEdit->setObjectName(QStringLiteral("cmdEdit"));
    m_cmdDelete = new QPushButton(QStringLiteral("Sterge membru"), this);
    m_cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    m_cmdVenit = new QPushButton(QStringLiteral("Venituri..."), this);
    m_cmdVenit->setObjectName(QStringLiteral("cmdVenit"));
    m_cmdLocuinta = new QPushButton(QStringLiteral("Locuinta..."), this);
    m_cmdLocuinta->setObjectName(QStringLiteral("cmdLocuinta"));
    auto* cmdBife = new QPushButton(QStringLiteral("Bunuri excludere..."), this);
    cmdBife->setObjectName(QStringLiteral("cmdBife"));
    auto* membri = new QGroupBox(QStringLiteral("Membrii familiei"), this);
    auto* gm = new QVBoxLayout(membri);
    gm->addWidget(m_lvw, 1);
    auto* bm = new QHBoxLayout;
    bm->addWidget(m_cmdAdd);
    bm->addWidget(m_cmdEdit);
    bm->addWidget(m_cmdDelete);
    bm->addStretch(1);
    bm->addWidget(m_cmdVenit);
    bm->addWidget(m_cmdLocuinta);
    bm->addWidget(cmdBife);
    gm->addLayout(bm);

    auto* calcul = new QGroupBox(QStringLiteral("Calcul"), this);
    auto* gk = new QGridLayout(calcul);
    m_lblCuantum = new QLabel(QStringLiteral("Cuantum (lei):"), this);
    m_lblCuantum->setObjectName(QStringLiteral("lblCuantum"));
    gk->addWidget(eticheta("Venit total"), 0, 0);
    gk->addWidget(m_txt[12], 0, 1);
    gk->addWidget(eticheta("Venit pe membru"), 0, 2);
    gk->addWidget(m_txt[13], 0, 3);
    gk->addWidget(m_lblCuantum, 0, 4);
    gk->addWidget(m_txt[14], 0, 5);
    gk->addWidget(eticheta("Nr membri"), 1, 0);
    gk->addWidget(m_txt[15], 1, 1);
    gk->addWidget(eticheta("Nr copii"), 1, 2);
    gk->addWidget(m_txt[16], 1, 3);
    gk->addWidget(eticheta("Luni retroactiv"), 1, 4);
    gk->addWidget(m_txt[22], 1, 5);

    m_cmdOK = new QPushButton(QStringLiteral("OK"), this);
    m_cmdOK->setObjectName(QStringLiteral("cmdOK"));
    auto* cmdCancel = new QPushButton(QStringLiteral("Renunta"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    auto* butoane = new QHBoxLayout;
    butoane->addStretch(1);
    butoane->addWidget(m_cmdOK);
    butoane->addWidget(cmdCancel);
    for (QPushButton* b : findChildren<QPushButton*>())
        b->setAutoDefault(false);

    // The address and the application side by side: the editor fits a screen of 768 pixels.
    auto* sus = new QHBoxLayout;
    sus->addWidget(adresa, 1);
    sus->addWidget(cerere, 1);
    auto* l = new QVBoxLayout(this);
    l->addWidget(dosar);
    l->addLayout(sus);
    l->addWidget(membri, 1);
    l->addWidget(calcul);
    l->addLayout(butoane);
    resize(1100, 690);

    connect(m_cmdAdd, &QPushButton::clicked, this, [this] { RuleazaProtejat([this] { adaugaMembru(); }); });
    connect(m_cmdEdit, &QPushButton::clicked, this, [this] { RuleazaProtejat([this] { modificaMembru(); }); });
    connect(m_cmdDelete, &QPushButton::clicked, this, [this] { RuleazaProtejat([this] { stergeMembru(); }); });
    connect(m_cmdVenit, &QPushButton::clicked, this, [this] { RuleazaProtejat([this] { venituri(); }); });
    connect(m_cmdLocuinta, &QPushButton::clicked, this, [this] { RuleazaProtejat([this] { locuinta(); }); });
    connect(cmdBife, &QPushButton::clicked, this, [this] { RuleazaProtejat([this] { bife(); }); });
    connect(m_cmdOK, &QPushButton::clicked, this, [this] { RuleazaProtejat([this] { ok(); }); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] {
        m_esteOk = false;
        reject();
    });
}

void frmAddCerere::umpleListe()
{
    BD& bd = BD::principala();
    UmpleCombo(m_cbo[0], CitesteListaReferinta(bd, ListaReferinta::Strazi));
    UmpleCombo(m_cbo[5], CitesteListaReferinta(bd, ListaReferinta::Motive));
    UmpleComboCod(m_cbo[1], bd, 27);
    UmpleComboCod(m_cbo[2], bd, 12);
    m_cbo[3]->clear();
    m_cbo[3]->addItem(QStringLiteral("alocatiei pt familiile cu sot, etc"), 1);
    m_cbo[3]->addItem(QStringLiteral("alocatiei de sustinere pentru familia monoparentala"), 2);
    m_cbo[3]->setCurrentIndex(-1);
    UmpleComboCod(m_cbo[4], bd, 1);
}

void frmAddCerere::modelInControale()
{
    m_scriere = true;
    m_txt[0]->setText(m_c.NrDosar);
    m_txt[1]->setText(m_c.NrCerere);
    m_dtp[0]->seteazaData(m_c.DataCerere);
    m_cbo[0]->setEditText(m_c.Strada);
    m_txt[2]->setText(m_c.Nr);
    m_txt[17]->setText(m_c.Bloc);
    m_txt[3]->setText(m_c.Sc);
    m_txt[4]->setText(m_c.Ap);
    m_txt[5]->setText(m_c.Localitate);
    m_txt[6]->setText(m_c.Judet);
    m_txt[7]->setText(m_c.Telefon);
    m_txt[8]->setText(m_c.Mobil);
    SelecteazaCheie(m_cbo[1], m_c.ReprLegal);
    SelecteazaCheie(m_cbo[2], m_c.ModPlata);
    m_txt[9]->setText(m_c.NumeTitularCont);
    m_txt[10]->setText(m_c.Cont);
    m_txt[11]->setText(m_c.Banca);
    SelecteazaCheie(m_cbo[3], m_c.TipCerere);
    SelecteazaCheie(m_cbo[4], m_c.Stare);
    m_cbo[5]->setEditText(m_c.MotivStare);
    m_dtp[1]->seteazaData(m_c.DataStare);
    m_txt[22]->setText(m_c.LuniRetro);
    m_lvw->clear();
    for (int i = 0; i < static_cast<int>(m_c.Membrii.size()); ++i)
        afiseazaMembru(i, true);
    if (m_lvw->topLevelItemCount() > 0)
        m_lvw->setCurrentItem(m_lvw->topLevelItem(0));
    m_scriere = false;
    scrieDerivate();
    butoaneMembri();
    actualizeazaPlata();
}

void frmAddCerere::controaleInModel()
{
    m_c.NrDosar = m_txt[0]->text();
    m_c.NrCerere = m_txt[1]->text();
    m_c.DataCerere = m_dtp[0]->data();
    m_c.Strada = m_cbo[0]->currentText();
    m_c.Nr = m_txt[2]->text();
    m_c.Bloc = m_txt[17]->text();
    m_c.Sc = m_txt[3]->text();
    m_c.Ap = m_txt[4]->text();
    m_c.Localitate = m_txt[5]->text();
    m_c.Judet = m_txt[6]->text();
    m_c.Telefon = m_txt[7]->text();
    m_c.Mobil = m_txt[8]->text();
    m_c.ReprLegal = CheieCombo(m_cbo[1]);
    m_c.ModPlata = CheieCombo(m_cbo[2]);
    m_c.NumeTitularCont = m_txt[9]->text();
    m_c.Cont = m_txt[10]->text();
    m_c.Banca = m_txt[11]->text();
    m_c.TipCerere = CheieCombo(m_cbo[3]);
    m_c.Stare = CheieCombo(m_cbo[4]);
    m_c.MotivStare = m_cbo[5]->currentText();
    m_c.DataStare = m_dtp[1]->data();
    m_c.VenitTotal = m_txt[12]->text();
    m_c.VenitpeMembru = m_txt[13]->text();
    m_c.Cuantum = m_txt[14]->text();
    m_c.NrMembrii = m_txt[15]->text();
    m_c.NrCopii = m_txt[16]->text();
    m_c.LuniRetro = m_txt[22]->text();
}

void frmAddCerere::scrieDerivate()
{
    // The derived boxes show the model; writing them is no change of the user's.
    const bool vechi = m_scriere;
    m_scriere = true;
    auto scrie = [](QLineEdit* e, const QString& t) {
        if (e->text() != t)
            e->setText(t);
    };
    scrie(m_txt[12], m_c.VenitTotal);
    scrie(m_txt[13], m_c.VenitpeMembru);
    scrie(m_txt[14], m_c.Cuantum);
    scrie(m_txt[15], m_c.NrMembrii);
    scrie(m_txt[16], m_c.NrCopii);
    m_scriere = vechi;
}

void frmAddCerere::textSchimbat(int index)
{
    if (m_scriere)
        return;
    controaleInModel();
    // Any text of the family: the income per member; the income total: the amount too.
    RecalculVenitPeMembru(m_c);
    if (index == 12)
        RecalculCuantum(BD::principala(), m_c, AnActiv());
    scrieDerivate();
}

void frmAddCerere::recalculeazaCuantum()
{
    if (m_scriere)
        return;
    controaleInModel();
    RecalculCuantum(BD::principala(), m_c, AnActiv());
    scrieDerivate();
}

void frmAddCerere::recalculeazaMembri()
{
    controaleInModel();
    RecalculMembri(BD::principala(), m_c, AnActiv(), m_lvw->topLevelItemCount());
    scrieDerivate();
}

void frmAddCerere::actualizeazaPlata()
{
    // The account fields count only for payment into a bank account.
    m_picPlata->setEnabled(CheieCombo(m_cbo[2]) == 2);
}

bool frmAddCerere::eventFilter(QObject* obj, QEvent* ev)
{
    if (obj == m_lvw && ev->type() == QEvent::KeyPress) {
        const int k = static_cast<QKeyEvent*>(ev)->key();
        if (k == Qt::Key_Return || k == Qt::Key_Enter) {
            RuleazaProtejat([this] { modificaMembru(); });
            return true;
        }
    }
    if (PlecareDinControl(ev) && m_incarcata && isVisible()) {
        if (obj == m_cbo[3] || obj == m_cbo[4]) {
            RuleazaProtejat([this] { recalculeazaCuantum(); });
        } else if (obj == m_cbo[0]) {
            const QString t = CuMajuscula(m_cbo[0]->currentText());
            if (t != m_cbo[0]->currentText())
                m_cbo[0]->setEditText(t);
        } else if (obj == m_txt[0] || obj == m_txt[1]) {
            RuleazaProtejat([this, obj] {
                controaleInModel();
                if (obj == m_txt[0])
                    VerificaNrDosar(BD::principala(), m_c);
                else
                    VerificaNrCerere(BD::principala(), m_c);
            });
        }
    }
    return QDialog::eventFilter(obj, ev);
}

void frmAddCerere::afiseazaMembru(int index, bool nou)
{
    const MembruCerere& m = m_c.Membrii[static_cast<std::size_t>(index)];
    QTreeWidgetItem* it = nou ? new QTreeWidgetItem(m_lvw) : m_lvw->topLevelItem(index);
    if (!it)
        return;
    it->setText(ColID, QString::number(m.MembruID));
    it->setText(ColNume, m.Nume);
    it->setText(ColPrenume, m.Prenume);
    it->setText(ColCNP, m.CNP);
    it->setText(ColOcupatie, m.TextOcupatie);
    it->setText(ColRudenie, m.TextRudenie);
    it->setText(ColVenit, DaNu(m.RealizeazaVenit));
    it->setText(ColAlteVenituri, DaNu(m.LucreazaAfara));
    it->setText(ColDataExp, TextData(m.Data18Ani));
    it->setText(ColMotivExp, m.Motiv);
    it->setText(ColDataNast, m.TextDataNasterii);
    it->setText(ColSerie, m.SerieBI);
    it->setText(ColNumar, m.NrBI);
}

void frmAddCerere::butoaneMembri()
{
    const bool are = m_lvw->topLevelItemCount() > 0;
    m_cmdEdit->setEnabled(are && m_incarcata);
    m_cmdDelete->setEnabled(are && m_incarcata);
}

bool frmAddCerere::tipAlocatieAles()
{
    if (CheieCombo(m_cbo[3]) != 0)
        return true;
    Mesaj(QStringLiteral("Introduceti tipul de alocatie!"), Mesaje::Icon::Informatie);
    m_cbo[3]->setFocus();
    return false;
}

void frmAddCerere::adaugaMembru()
{
    if (!tipAlocatieAles())
        return;
    controaleInModel();
    frmAddMembru f(this, m_c, 1);
    if (DeschideModal(f) != QDialog::Accepted)
        return;
    const int i = f.Index();
    afiseazaMembru(i, i >= m_lvw->topLevelItemCount());
    QTreeWidgetItem* it = m_lvw->topLevelItem(i);
    m_lvw->setCurrentItem(it);
    m_lvw->scrollToItem(it);
    butoaneMembri();
    recalculeazaMembri();
}

void frmAddCerere::modificaMembru()
{
    if (!tipAlocatieAles())
        return;
    QTreeWidgetItem* sel = m_lvw->currentItem();
    if (!sel || !sel->isSelected()) {
        Mesaj(QStringLiteral("Selectati o cerere"), Mesaje::Icon::Informatie);
        return;
    }
    controaleInModel();
    frmAddMembru f(this, m_c, 2, m_lvw->indexOfTopLevelItem(sel));
    if (DeschideModal(f) != QDialog::Accepted)
        return;
    const int i = f.Index();
    afiseazaMembru(i, false);
    QTreeWidgetItem* it = m_lvw->topLevelItem(i);
    m_lvw->setCurrentItem(it);
    m_lvw->scrollToItem(it);
    butoaneMembri();
    recalculeazaMembri();
}

void frmAddCerere::stergeMembru()
{
    QTreeWidgetItem* sel = m_lvw->currentItem();
    if (!sel || !sel->isSelected()) {
        Mesaj(QStringLiteral("Selectati o cerere"), Mesaje::Icon::Informatie);
        return;
    }
    const int i = m_lvw->indexOfTopLevelItem(sel);
    if (i < 0 || i >= static_cast<int>(m_c.Membrii.size()))
        return;
    const MembruCerere& m = m_c.Membrii[static_cast<std::size_t>(i)];
    if (!Intrebare(QStringLiteral("Sigur doriti sa eliminati datele persoanei ") + m.Nume + QLatin1Char(' ') +
                   m.Prenume + QStringLiteral(" din aceasta cerere?")))
        return;
    // Nothing reaches the database before the save.
    m_c.Membrii.erase(m_c.Membrii.begin() + i);
    delete m_lvw->takeTopLevelItem(i);
    const int n = m_lvw->topLevelItemCount();
    if (n > 0) {
        QTreeWidgetItem* vecin = m_lvw->topLevelItem(std::min(i, n - 1));
        m_lvw->setCurrentItem(vecin);
        vecin->setSelected(true);
    }
    butoaneMembri();
    recalculeazaMembri();
}

void frmAddCerere::venituri()
{
    controaleInModel();
    frmAddVenituri f(this, m_c);
    if (DeschideModal(f) != QDialog::Accepted)
        return;
    AcceptaVenituri(BD::principala(), m_c, AnActiv());
    scrieDerivate();
}

void frmAddCerere::locuinta()
{
    frmAddLocuinta f(this, m_c);
    DeschideModal(f);
}

void frmAddCerere::bife()
{
    frmBife f(this, m_c);
    DeschideModal(f);
    m_lblCuantum->setText(QStringLiteral("Cuantum: "));
}

QWidget* frmAddCerere::controlDeVerificare(CampCerere camp) const
{
    switch (camp) {
    case CampCerere::NrDosar: return m_txt[0];
    case CampCerere::NrCerere: return m_txt[1];
    case CampCerere::Localitate: return m_txt[5];
    case CampCerere::Judet: return m_txt[6];
    case CampCerere::ReprLegal: return m_cbo[1];
    case CampCerere::ModPlata: return m_cbo[2];
    case CampCerere::TipCerere: return m_cbo[3];
    case CampCerere::Stare: return m_cbo[4];
    case CampCerere::AdaugaMembru: return m_cmdAdd;
    case CampCerere::ListaMembri: return m_lvw;
    case CampCerere::VenitTotal: return m_txt[12];
    case CampCerere::VenitPeMembru: return m_txt[13];
    case CampCerere::NrCopii: return m_txt[16];
    case CampCerere::LuniRetro: return m_txt[22];
    case CampCerere::Venituri: return m_cmdVenit;
    case CampCerere::Locuinta: return m_cmdLocuinta;
    case CampCerere::Niciunul: break;
    }
    return nullptr;
}

void frmAddCerere::ok()
{
    controaleInModel();
    const RezultatSalvare r = SalveazaCerere(BD::principala(), m_c, OptiuniSalvare::dinProces());
    switch (r.stare) {
    case RezultatSalvare::Stare::Salvat:
        m_esteOk = true;
        m_cerereId = r.cerereId;
        accept();
        return;
    case RezultatSalvare::Stare::Verificare:
        if (r.inchide) {
            m_esteOk = false;
            reject();
            return;
        }
        if (QWidget* w = controlDeVerificare(r.camp))
            w->setFocus();
        return;
    default:
        // Locked, not confirmed, unreachable or failed: the message was shown, nothing was
        // written, and everything typed stays for another try.
        scrieDerivate();
        return;
    }
}
