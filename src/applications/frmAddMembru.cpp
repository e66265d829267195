#include "applications/frmAddMembru.h"

#include "gui/ButoaneDialog.h"

#include "applications/RegulaMembru.h"
#include "database/BD.h"
#include "database/CoduriDateGen.h"
#include "gui/CampData.h"
#include "gui/ComboCod.h"
#include "gui/FiltruEditare.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// The persons shown under cboCNP while the CNP is typed.
constexpr int PersoaneInListaCNP = 20;

// Columns of the certificates grid.
enum { ColTip, ColNr, ColDataAdev, ColDataDep, ColDataExp, NrColoane };

QComboBox* ComboText(QWidget* parinte, const QString& nume, int maxim)
{
    auto* c = new QComboBox(parinte);
    c->setObjectName(nume);
    c->setEditable(true);
    c->setInsertPolicy(QComboBox::NoInsert);
    c->lineEdit()->setMaxLength(maxim);
    return c;
}

} // namespace

frmAddMembru::frmAddMembru(QWidget* parent, Cerere& cerere, int mod, int index)
    : QDialog(parent), m_c(cerere), m_mod(mod), m_index(mod == 2 ? index : -1)
{
    setObjectName(QStringLiteral("frmAddMembru"));
    setWindowTitle(QStringLiteral("Adaugare membru nou"));
    construiesteControale();
    umpleListe();

    if (m_mod == 2 && m_index >= 0 && m_index < static_cast<int>(m_c.Membrii.size())) {
        afiseazaMembru(m_c.Membrii[static_cast<std::size_t>(m_index)]);
    } else {
        m_dtp[0]->seteazaData(Ceas::azi());
        if (m_c.Membrii.empty()) {
            // The first person of an application is always its titular.
            m_cbo[0]->clear();
            m_cbo[0]->addItem(QStringLiteral("TITULARUL"), 1);
            m_cbo[0]->setCurrentIndex(0);
        }
    }
    panouriDependente();

    connect(m_cbo[0], &QComboBox::currentIndexChanged, this, &frmAddMembru::panouriDependente);
    connect(m_cbo[2], &QComboBox::currentIndexChanged, this, &frmAddMembru::panouriDependente);
    connect(m_cbo[3], &QComboBox::currentIndexChanged, this, &frmAddMembru::panouriDependente);
    // The persons of the file are found as the CNP is typed.
    connect(m_cnp, &QComboBox::editTextChanged, this, &frmAddMembru::cautaCNP);
    m_cnp->installEventFilter(this);
    m_txt[0]->installEventFilter(this);
    m_txt[1]->installEventFilter(this);
    InstaleazaFiltruEditare(this);
}

void frmAddMembru::construiesteControale()
{
    for (int i = 0; i < 10; ++i) {
        m_txt[i] = new QLineEdit(this);
        m_txt[i]->setObjectName(NumeControl("txtMembru", i));
    }
    m_txt[0]->setMaxLength(20);
    m_txt[1]->setMaxLength(30);
    m_txt[2]->setMaxLength(3);
    m_txt[3]->setMaxLength(9);
    for (int i : {5, 6, 7, 9})
        m_txt[i]->setMaxLength(30);
    for (int i = 0; i < 13; ++i) {
        if (i == 8)
            m_cbo[i] = ComboText(this, NumeControl("cboMembru", i), 100);
        else if (i == 10)
            m_cbo[i] = ComboText(this, NumeControl("cboMembru", i), 30);
        else if (i == 11)
            m_cbo[i] = ComboText(this, NumeControl("cboMembru", i), 30);
        else if (i == 12)
            m_cbo[i] = ComboText(this, NumeControl("cboMembru", i), 50);
        else {
            m_cbo[i] = new QComboBox(this);
            m_cbo[i]->setObjectName(NumeControl("cboMembru", i));
        }
    }
    m_cnp = ComboText(this, QStringLiteral("cboCNP"), 13);
    m_cnp->completer()->setCompletionMode(QCompleter::PopupCompletion);
    for (int i = 0; i < 3; ++i) {
        m_dtp[i] = new CampData(this);
        m_dtp[i]->setObjectName(NumeControl("dtpData", i));
    }
    m_chk[0] = new QCheckBox(QStringLiteral("Lucreaza in afara Romaniei"), this);
    m_chk[0]->setObjectName(QStringLiteral("chkMembru(0)"));
    m_chk[1] = new QCheckBox(QStringLiteral("Realizeaza venituri din munca"), this);
    m_chk[1]->setObjectName(QStringLiteral("chkMembru(1)"));
    m_dataNast = new QLabel(this);
    m_dataNast->setObjectName(QStringLiteral("lblDataNast"));

    auto eticheta = [this](const char* t) { return new QLabel(QString::fromLatin1(t), this); };

    // Identity.
    auto* identitate = new QGroupBox(QStringLiteral("Date de identificare"), this);
    auto* gi = new QGridLayout(identitate);
    gi->addWidget(eticheta("CNP"), 0, 0);
    gi->addWidget(m_cnp, 0, 1);
    gi->addWidget(eticheta("Data nasterii:"), 0, 2);
    gi->addWidget(m_dataNast, 0, 3);
    gi->addWidget(eticheta("Nume"), 1, 0);
    gi->addWidget(m_txt[0], 1, 1);
    gi->addWidget(eticheta("Prenume"), 1, 2);
    gi->addWidget(m_txt[1], 1, 3);
    gi->addWidget(eticheta("Act identitate"), 2, 0);
    gi->addWidget(m_cbo[1], 2, 1);
    gi->addWidget(eticheta("Serie / Nr"), 2, 2);
    auto* serie = new QHBoxLayout;
    serie->addWidget(m_txt[2]);
    serie->addWidget(m_txt[3], 1);
    gi->addLayout(serie, 2, 3);
    gi->addWidget(eticheta("Eliberat de"), 3, 0);
    gi->addWidget(m_cbo[11], 3, 1);
    gi->addWidget(eticheta("La data"), 3, 2);
    gi->addWidget(m_dtp[0], 3, 3);
    gi->addWidget(eticheta("Grad de rudenie"), 4, 0);
    gi->addWidget(m_cbo[0], 4, 1);
    gi->addWidget(eticheta("Ocupatie"), 4, 2);
    gi->addWidget(m_cbo[6], 4, 3);

    // Citizenship and residence.
    auto* cetatenie = new QGroupBox(QStringLiteral("Cetatenie si resedinta"), this);
    auto* gc = new QGridLayout(cetatenie);
    m_picCetatenie = new QWidget(cetatenie);
    m_picCetatenie->setObjectName(QStringLiteral("picCetatenie"));
    auto* hc = new QHBoxLayout(m_picCetatenie);
    hc->setContentsMargins(0, 0, 0, 0);
    hc->addWidget(eticheta("Tara"));
    hc->addWidget(m_txt[5]);
    m_picResedinta = new QWidget(cetatenie);
    m_picResedinta->setObjectName(QStringLiteral("picResedinta"));
    auto* hr = new QHBoxLayout(m_picResedinta);
    hr->setContentsMargins(0, 0, 0, 0);
    hr->addWidget(eticheta("Localitate"));
    hr->addWidget(m_txt[6]);
    hr->addWidget(eticheta("Tara"));
    hr->addWidget(m_txt[7]);
    gc->addWidget(eticheta("Cetatenie"), 0, 0);
    gc->addWidget(m_cbo[2], 0, 1);
    gc->addWidget(m_picCetatenie, 0, 2);
    gc->addWidget(eticheta("Resedinta"), 1, 0);
    gc->addWidget(m_cbo[3], 1, 1);
    gc->addWidget(m_picResedinta, 1, 2);

    // The titular's and adults' facts.
    m_picTitular = new QGroupBox(QStringLiteral("Situatie"), this);
    m_picTitular->setObjectName(QStringLiteral("picTitular"));
    auto* gt = new QGridLayout(m_picTitular);
    gt->addWidget(eticheta("Stare civila"), 0, 0);
    gt->addWidget(m_cbo[4], 0, 1);
    gt->addWidget(eticheta("Studii"), 0, 2);
    gt->addWidget(m_cbo[5], 0, 3);
    gt->addWidget(eticheta("Drept la asistenta sociala"), 1, 0);
    gt->addWidget(m_cbo[7], 1, 1);
    gt->addWidget(m_chk[0], 2, 0, 1, 2);
    gt->addWidget(m_chk[1], 2, 2, 1, 2);

    // Pupils.
    m_picElev = new QGroupBox(QStringLiteral("Elev"), this);
    m_picElev->setObjectName(QStringLiteral("picElev"));
    auto* ge = new QGridLayout(m_picElev);
    ge->addWidget(eticheta("Unitatea scolara"), 0, 0);
    ge->addWidget(m_cbo[12], 0, 1);
    ge->addWidget(eticheta("Clasa"), 0, 2);
    ge->addWidget(m_txt[9], 0, 3);

    // End of the right and the member's status.
    auto* statut = new QGroupBox(QStringLiteral("Statut"), this);
    auto* gs = new QGridLayout(statut);
    gs->addWidget(eticheta("Expira la data:"), 0, 0);
    gs->addWidget(m_dtp[1], 0, 1);
    gs->addWidget(eticheta("Motivul expirarii:"), 0, 2);
    gs->addWidget(m_cbo[8], 0, 3);
    gs->addWidget(eticheta("Statut membru:"), 1, 0);
    gs->addWidget(m_cbo[9], 1, 1);
    gs->addWidget(eticheta("Motiv"), 1, 2);
    gs->addWidget(m_cbo[10], 1, 3);
    gs->addWidget(eticheta("Data statut"), 2, 0);
    gs->addWidget(m_dtp[2], 2, 1);
    gs->setColumnStretch(3, 1);

    // Certificates.
    auto* acte = new QGroupBox(QStringLiteral("Adeverinte"), this);
    auto* ga = new QVBoxLayout(acte);
    m_grid = new QTableWidget(0, NrColoane, acte);
    m_grid->setObjectName(QStringLiteral("Grid"));
    m_grid->setHorizontalHeaderLabels({QStringLiteral("Tip Adeverinta"), QStringLiteral("Nr Adev"),
                                       QStringLiteral("Data Adev"), QStringLiteral("Data Dep"),
                                       QStringLiteral("Data Exp")});
    m_grid->horizontalHeader()->setStretchLastSection(true);
    m_grid->setColumnWidth(ColTip, 220);
    m_grid->setMinimumHeight(110);
    auto* adauga = new QPushButton(QStringLiteral("Adauga act"), acte);
    adauga->setObjectName(QStringLiteral("cmdAddRand"));
    adauga->setAutoDefault(false);
    auto* sterge = new QPushButton(QStringLiteral("Sterge rand"), acte);
    sterge->setObjectName(QStringLiteral("cmdDelRand"));
    sterge->setAutoDefault(false);
    auto* ba = new QHBoxLayout;
    ba->addWidget(adauga);
    ba->addWidget(sterge);
    ba->addStretch(1);
    ga->addWidget(m_grid);
    ga->addLayout(ba);
    connect(adauga, &QPushButton::clicked, this, [this] { adaugaRandAdeverinta(AdeverintaMembru{}); });
    connect(sterge, &QPushButton::clicked, this, [this] {
        if (m_grid->currentRow() >= 0)
            m_grid->removeRow(m_grid->currentRow());
    });

    const auto [ok, renunta, butoane] = CreeazaButoaneOkRenunta(this);
    connect(ok, &QPushButton::clicked, this, &frmAddMembru::ok);
    connect(renunta, &QPushButton::clicked, this, [this] {
        m_inchis = true;
        reject();
    });

    // The citizenship beside the status, so that the editor fits a screen of 768 pixels.
    auto* l = new QVBoxLayout(this);
    l->addWidget(identitate);
    auto* cetatenieStatut = new QHBoxLayout;
    cetatenieStatut->addWidget(cetatenie, 1);
    cetatenieStatut->addWidget(statut, 1);
    l->addLayout(cetatenieStatut);
    auto* mijloc = new QHBoxLayout;
    mijloc->addWidget(m_picTitular, 1);
    mijloc->addWidget(m_picElev, 1);
    l->addLayout(mijloc);
    l->addWidget(acte, 1);
    l->addLayout(butoane);
}

void frmAddMembru::umpleListe()
{
    const ListeEditorMembru l = CitesteListeEditorMembru(BD::principala());
    UmpleCombo(m_cbo[10], l.motive);
    UmpleCombo(m_cbo[12], l.scoli);
    UmpleCombo(m_cbo[11], l.politii);
    for (int i = 0; i < 13; ++i)
        if (!l.coduri[static_cast<std::size_t>(i)].empty())
            UmpleCombo(m_cbo[i], l.coduri[static_cast<std::size_t>(i)]);
    m_tipuriAdeverinta = l.tipuriAdeverinta;
    m_cbo[8]->addItem(MotivImplinire18);
    m_cbo[8]->setCurrentIndex(-1);
    m_cbo[8]->setEditText(QString());
}

void frmAddMembru::cautaCNP(const QString& text)
{
    const std::vector<PersoanaCNP> gasite = PersoaneCuCNPIncepand(BD::principala(), text, PersoaneInListaCNP);
    QLineEdit* e = m_cnp->lineEdit();
    const int cursor = e->cursorPosition();
    {
        // Refilling the list would clear the typed text: it is put back as it was.
        const QSignalBlocker b(m_cnp);
        m_cnp->clear();
        for (const PersoanaCNP& p : gasite)
            m_cnp->addItem(p.CNP, p.MembruID);
        // A CNP typed as it stands in the list chooses that person's row.
        m_cnp->setCurrentIndex(m_cnp->findText(text, Qt::MatchFixedString));
        m_cnp->setEditText(text);
        e->setCursorPosition(cursor);
    }
    if (m_cnp->hasFocus() && !gasite.empty() && m_cnp->currentIndex() < 0) {
        QCompleter* c = m_cnp->completer();
        c->setCompletionPrefix(text);
        c->complete();
    }
}

void frmAddMembru::afiseazaMembru(const MembruCerere& m)
{
    cautaCNP(m.CNP);
    // The person's own row, also when the CNP stands on several rows of the file.
    SelecteazaCheie(m_cnp, static_cast<int>(m.MembruID));
    m_cnp->setEditText(m.CNP);
    m_txt[0]->setText(m.Nume);
    m_txt[1]->setText(m.Prenume);
    SelecteazaCheie(m_cbo[0], m.RudenieID);
    SelecteazaCheie(m_cbo[1], m.TipAct);
    m_txt[2]->setText(m.SerieBI);
    m_txt[3]->setText(m.NrBI);
    m_cbo[11]->setEditText(m.Eliberat);
    m_dtp[0]->seteazaData(m.DataElib);
    SelecteazaCheie(m_cbo[2], m.CetatenieID);
    m_txt[5]->setText(m.TaraCetatenie);
    SelecteazaCheie(m_cbo[3], m.ResedintaID);
    m_txt[6]->setText(m.LocResedinta);
    m_txt[7]->setText(m.TaraResedinta);
    SelecteazaCheie(m_cbo[4], m.StCivila);
    SelecteazaCheie(m_cbo[5], m.Studii);
    SelecteazaCheie(m_cbo[6], m.OcupatieID);
    SelecteazaCheie(m_cbo[7], m.DrAsSociala);
    m_chk[0]->setChecked(m.LucreazaAfara);
    m_chk[1]->setChecked(m.RealizeazaVenit);
    m_cbo[12]->setEditText(m.UScolara);
    m_txt[9]->setText(m.Clasa);
    m_dtp[1]->seteazaData(m.Data18Ani);
    m_cbo[8]->setEditText(m.Motiv);
    SelecteazaCheie(m_cbo[9], m.Stare);
    m_cbo[10]->setEditText(m.MotivStare);
    m_dtp[2]->seteazaData(m.DataStare);
    m_dataNast->setText(m.TextDataNasterii);
    for (const AdeverintaMembru& a : m.Adeverinte)
        adaugaRandAdeverinta(a);
}

void frmAddMembru::done(int r)
{
    m_inchis = true;
    QDialog::done(r);
}

void frmAddMembru::panouriDependente()
{
    const bool elev = CheieCombo(m_cbo[0]) == 3;
    m_picElev->setEnabled(elev);
    m_picTitular->setEnabled(!elev);
    m_picCetatenie->setEnabled(CheieCombo(m_cbo[2]) != 1);
    m_picResedinta->setEnabled(CheieCombo(m_cbo[3]) != 1);
}

bool frmAddMembru::eventFilter(QObject* obj, QEvent* ev)
{
    // Leaving a box for another control of this window; not a message box, a popup or
    // another window taking the focus, nor the dialog closing.
    if (ev->type() == QEvent::FocusOut && !m_inchis) {
        const Qt::FocusReason motiv = static_cast<QFocusEvent*>(ev)->reason();
        if (motiv == Qt::ActiveWindowFocusReason || motiv == Qt::PopupFocusReason)
            return QDialog::eventFilter(obj, ev);
        if (obj == m_cnp)
            laIesireaDinCNP();
        else if (obj == m_txt[0] || obj == m_txt[1]) {
            auto* e = static_cast<QLineEdit*>(obj);
            const QString t = CuMajuscula(e->text());
            if (t != e->text())
                e->setText(t);
        }
    }
    return QDialog::eventFilter(obj, ev);
}

void frmAddMembru::laIesireaDinCNP()
{
    const QString cnp = m_cnp->currentText();
    const IesireCNP r = LaIesireaDinCNP(BD::principala(), m_c.Membrii, m_index, m_mod, CheieCombo(m_cnp), cnp,
                                        Proces::setari().AnSetat);
    if (r.nastere) {
        m_dataNast->setText(r.nastere->eticheta);
        if (r.nastere->valid) {
            m_dtp[1]->seteazaData(r.nastere->data18Ani);
            m_cbo[8]->setEditText(r.nastere->motiv);
        }
    }
    if (r.dublura) {
        QTimer::singleShot(0, m_cnp, [c = m_cnp] { c->setFocus(); });
        return;
    }
    if (const auto& p = r.persoana) {
        // Each field only when the row holds it.
        if (!p->Nume.isEmpty())
            m_txt[0]->setText(p->Nume);
        if (!p->Prenume.isEmpty())
            m_txt[1]->setText(p->Prenume);
        if (p->TipAct != 0)
            SelecteazaCheie(m_cbo[1], p->TipAct);
        if (!p->SerieBI.isEmpty())
            m_txt[2]->setText(p->SerieBI);
        if (!p->NrBI.isEmpty())
            m_txt[3]->setText(p->NrBI);
        if (!p->Eliberat.isEmpty())
            m_cbo[11]->setEditText(p->Eliberat);
        if (p->DataElib.isValid())
            m_dtp[0]->seteazaData(p->DataElib);
    }
}

void frmAddMembru::adaugaRandAdeverinta(const AdeverintaMembru& a)
{
    const int r = m_grid->rowCount();
    m_grid->insertRow(r);
    auto* tip = new QComboBox(m_grid);
    UmpleCombo(tip, m_tipuriAdeverinta);
    SelecteazaCheie(tip, a.TipAdeverinta);
    m_grid->setCellWidget(r, ColTip, tip);
    auto* tipItem = new QTableWidgetItem;
    tipItem->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    m_grid->setItem(r, ColTip, tipItem);
    auto* nr = new QTableWidgetItem(a.NrAdev);
    nr->setData(Qt::UserRole, a.AdevID);
    m_grid->setItem(r, ColNr, nr);
    m_grid->setItem(r, ColDataAdev, new QTableWidgetItem(TextData(a.DataAdeverinta)));
    m_grid->setItem(r, ColDataDep, new QTableWidgetItem(TextData(a.DataDepunerii)));
    m_grid->setItem(r, ColDataExp, new QTableWidgetItem(TextData(a.DataExpAdev)));
    m_grid->setCurrentCell(r, ColNr);
}

MembruCerere frmAddMembru::membruDinControale() const
{
    MembruCerere m;
    if (m_mod == 2 && m_index >= 0 && m_index < static_cast<int>(m_c.Membrii.size()))
        m = m_c.Membrii[static_cast<std::size_t>(m_index)];
    m.MembruID = CheieCombo(m_cnp);
    m.Nume = m_txt[0]->text().trimmed();
    m.Prenume = m_txt[1]->text().trimmed();
    m.CNP = m_cnp->currentText().trimmed().left(13);
    m.RudenieID = CheieCombo(m_cbo[0]);
    m.TextRudenie = m.RudenieID != 0 ? m_cbo[0]->currentText() : QString();
    m.TipAct = CheieCombo(m_cbo[1]);
    m.SerieBI = m_txt[2]->text();
    m.NrBI = m_txt[3]->text();
    m.Eliberat = m_cbo[11]->currentText();
    m.DataElib = m_dtp[0]->data();
    m.CetatenieID = CheieCombo(m_cbo[2]);
    m.TaraCetatenie = m_txt[5]->text();
    m.ResedintaID = CheieCombo(m_cbo[3]);
    m.LocResedinta = m_txt[6]->text();
    m.TaraResedinta = m_txt[7]->text();
    m.StCivila = CheieCombo(m_cbo[4]);
    m.Studii = CheieCombo(m_cbo[5]);
    m.OcupatieID = CheieCombo(m_cbo[6]);
    m.TextOcupatie = m.OcupatieID != 0 ? m_cbo[6]->currentText() : QString();
    m.LucreazaAfara = m_chk[0]->isChecked();
    m.UScolara = m_cbo[12]->currentText();
    m.Clasa = m_txt[9]->text();
    m.RealizeazaVenit = m_chk[1]->isChecked();
    m.DrAsSociala = CheieCombo(m_cbo[7]);
    // An empty picker leaves the date the member had.
    if (!m_dtp[1]->esteGoala())
        m.Data18Ani = m_dtp[1]->data();
    m.Motiv = m_cbo[8]->currentText();
    m.Stare = CheieCombo(m_cbo[9]);
    m.MotivStare = m_cbo[10]->currentText();
    m.DataStare = m_dtp[2]->data();
    m.TextDataNasterii = m_dataNast->text();

    m.Adeverinte.clear();
    for (int r = 0; r < m_grid->rowCount(); ++r) {
        AdeverintaMembru a;
        if (auto* tip = qobject_cast<QComboBox*>(m_grid->cellWidget(r, ColTip)))
            a.TipAdeverinta = CheieCombo(tip);
        auto text = [this, r](int col) {
            const QTableWidgetItem* it = m_grid->item(r, col);
            return it ? it->text().trimmed() : QString();
        };
        if (const QTableWidgetItem* nr = m_grid->item(r, ColNr))
            a.AdevID = nr->data(Qt::UserRole).toLongLong();
        a.NrAdev = text(ColNr);
        a.DataAdeverinta = CitesteData(text(ColDataAdev));
        a.DataDepunerii = CitesteData(text(ColDataDep));
        a.DataExpAdev = CitesteData(text(ColDataExp));
        m.Adeverinte.push_back(a);
    }
    return m;
}

void frmAddMembru::ok()
{
    const MembruCerere m = membruDinControale();
    const VerificareMembru v = VerificaMembru(m_c.Membrii, m, m_mod == 2 ? m_index : -1);
    if (!v.ok()) {
        switch (v.camp) {
        case CampMembru::CNP: m_cnp->setFocus(); break;
        case CampMembru::Nume: m_txt[0]->setFocus(); break;
        case CampMembru::Prenume: m_txt[1]->setFocus(); break;
        case CampMembru::Rudenie: m_cbo[0]->setFocus(); break;
        case CampMembru::Ocupatie: m_cbo[6]->setFocus(); break;
        case CampMembru::Niciunul: break;
        }
        return;
    }
    if (m_mod == 2 && m_index >= 0 && m_index < static_cast<int>(m_c.Membrii.size())) {
        m_c.Membrii[static_cast<std::size_t>(m_index)] = m;
    } else {
        m_c.Membrii.push_back(m);
        m_index = static_cast<int>(m_c.Membrii.size()) - 1;
    }
    m_inchis = true;
    accept();
}
