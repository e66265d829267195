#include "mainwindow/frmMainNou.h"
#include "gui/LatimiColoane.h"

#include "database/BD.h"
#include "database/CoduriDateGen.h"
#include "database/ListeReferinta.h"
#include "gui/CampData.h"
#include "gui/ComboCod.h"
#include "gui/CursorAsteptare.h"
#include "gui/ActiuniLegate.h"
#include "gui/FiltruEditare.h"
#include "common/Ceas.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "mainwindow/ListaCereri.h"
#include "mainwindow/ModelCereri.h"
#include "mainwindow/Stergere.h"
#include "common/Proces.h"
#include "mainwindow/frmMainNouCereri.h"
#include "mainwindow/frmMainNouDocumente.h"
#include "mainwindow/frmMainNouFormulare.h"
#include "mainwindow/frmMainNouPanouri.h"
#include "mainwindow/frmPanouriCerere.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

// While it lives, a change of the current row is the program's, not the user's click.
struct SelectieProgram {
    explicit SelectieProgram(bool& f) : m_f(f), m_vechi(f) { m_f = true; }
    ~SelectieProgram() { m_f = m_vechi; }
    SelectieProgram(const SelectieProgram&) = delete;
    SelectieProgram& operator=(const SelectieProgram&) = delete;
    bool& m_f;
    bool m_vechi;
};

const QString RandNegasit = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!");

} // namespace

frmMainNou::frmMainNou(QWidget* parinte) : QMainWindow(parinte)
{
    setObjectName(QStringLiteral("frmMainNou"));
    setWindowTitle(QStringLiteral("Alocatii-Tarnava"));
    ConstruiesteFereastra();
    ConstruiesteMeniuri();
    LeagaActiuni();
    LeagaMeniuri();
    RuleazaProtejat([this] { Deschide(); });
}

frmMainNou::~frmMainNou() = default;

void frmMainNou::ConstruiesteFereastra()
{
    auto* central = new QWidget;
    auto* vertical = new QVBoxLayout(central);
    vertical->addWidget(ConstruiesteCautarea());

    m_panouri = new PanouriCerere(*this);
    auto* despartitor = new QSplitter(Qt::Vertical);
    despartitor->addWidget(ConstruiesteLista());
    despartitor->addWidget(m_panouri);
    despartitor->setStretchFactor(0, 3);
    despartitor->setStretchFactor(1, 2);
    vertical->addWidget(despartitor, 1);
    setCentralWidget(central);

    auto* sbr = statusBar();
    sbr->setObjectName(QStringLiteral("sbrMain"));
    for (int i = 0; i < 5; ++i) {
        m_panouStare[i] = new QLabel;
        m_panouStare[i]->setObjectName(NumeControl("sbrMain", i + 1));
        m_panouStare[i]->setFrameShape(QFrame::StyledPanel);
        sbr->addWidget(m_panouStare[i], i == 4 ? 1 : 0);
    }
    m_panouStare[0]->setText(TextPanouAzi(Ceas::azi()));
    m_panouStare[4]->setText(TextContact());
    ScrieLunaActiva();
    resize(1100, 690);
}

QWidget* frmMainNou::ConstruiesteCautarea()
{
    auto* banda = new QWidget;
    auto* orizontal = new QHBoxLayout(banda);
    orizontal->setContentsMargins(0, 0, 0, 0);
    auto* grila = new QGridLayout;
    const char* etichete[] = {"CNP", "Nume", "Prenume", "Nr cerere", "Nr dosar", "Nr"};
    for (int i = 0; i < 6; ++i) {
        m_txtCauta[i] = new QLineEdit;
        m_txtCauta[i]->setObjectName(NumeControl("txtCauta", i));
        auto* eticheta = new QLabel(QString::fromLatin1(etichete[i]));
        eticheta->setBuddy(m_txtCauta[i]);
        grila->addWidget(eticheta, 0, i);
        grila->addWidget(m_txtCauta[i], 1, i);
    }
    m_cboStrada = new QComboBox;
    m_cboStrada->setObjectName(QStringLiteral("cboStrada"));
    m_cboStrada->setMinimumWidth(140);
    grila->addWidget(new QLabel(QStringLiteral("Str /sat")), 0, 6);
    grila->addWidget(m_cboStrada, 1, 6);
    grila->setRowStretch(2, 1);
    orizontal->addLayout(grila, 1);

    m_lstStare = new QListWidget;
    m_lstStare->setObjectName(QStringLiteral("lstStare"));
    m_lstStare->setMaximumHeight(90);
    m_lstStare->setMaximumWidth(220);
    orizontal->addWidget(m_lstStare);

    auto* butoane = new QVBoxLayout;
    for (auto [nume, text] : {std::pair{"cmdCauta", "&Cauta"}, std::pair{"cmdExit", "&Iesire"}}) {
        auto* b = new QPushButton(QString::fromLatin1(text));
        b->setObjectName(QString::fromLatin1(nume));
        b->setEnabled(false);
        m_butoane.insert(b->objectName(), b);
        butoane->addWidget(b);
    }
    m_lblRezul = new QLabel;
    m_lblRezul->setObjectName(QStringLiteral("lblRezul"));
    butoane->addWidget(m_lblRezul);
    butoane->addStretch();
    orizontal->addLayout(butoane);

    // Enter in a search field runs the search.
    for (QLineEdit* t : m_txtCauta)
        connect(t, &QLineEdit::returnPressed, this, [this] { buton(QStringLiteral("cmdCauta"))->click(); });
    return banda;
}

QWidget* frmMainNou::ConstruiesteLista()
{
    auto* zona = new QWidget;
    auto* orizontal = new QHBoxLayout(zona);
    orizontal->setContentsMargins(0, 0, 0, 0);

    m_model = new ModelCereri(this);
    m_lvwCereri = new QTreeView;
    m_lvwCereri->setObjectName(QStringLiteral("lvwCereri"));
    m_lvwCereri->setModel(m_model);
    m_lvwCereri->setRootIsDecorated(false);
    m_lvwCereri->setItemsExpandable(false);
    m_lvwCereri->setUniformRowHeights(true);
    m_lvwCereri->setAllColumnsShowFocus(true);
    m_lvwCereri->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_lvwCereri->setSelectionMode(QAbstractItemView::SingleSelection);
    m_lvwCereri->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_lvwCereri->setSortingEnabled(false);
    m_lvwCereri->header()->setSectionsClickable(true);
    m_lvwCereri->header()->setStretchLastSection(false);
    for (int i = 0; i < NrColoaneCereri; ++i)
        m_lvwCereri->setColumnWidth(i, ColoaneCereri()[size_t(i)].latimeTwips / 15);
    m_lvwCereri->setColumnHidden(ColCerere::ID, true);
    // Every head whole, a whole date and a whole CNP; the status after the statuses are read.
    for (int i = 0; i < NrColoaneCereri; ++i)
        LargesteColoana(m_lvwCereri, i);
    LargesteColoana(m_lvwCereri, ColCerere::Data, DataLungaModel());
    LargesteColoana(m_lvwCereri, ColCerere::CNP, CNPModel());
    m_lvwCereri->installEventFilter(this);
    m_lvwCereri->viewport()->installEventFilter(this);
    connect(m_lvwCereri->header(), &QHeaderView::sectionClicked, this, &frmMainNou::ClicPeAntet);
    connect(m_lvwCereri, &QTreeView::clicked, this, [this] { RuleazaProtejat([this] { SelectieRand(); }); });
    connect(m_lvwCereri->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        // A row reached with the keyboard counts as a click; one set by the program does not.
        if (!m_selectieProgram && QApplication::mouseButtons() == Qt::NoButton)
            RuleazaProtejat([this] { SelectieRand(); });
    });
    connect(m_lvwCereri, &QTreeView::doubleClicked, this, [this] { buton(QStringLiteral("cmdEdit"))->click(); });
    orizontal->addWidget(m_lvwCereri, 1);

    auto* butoane = new QVBoxLayout;
    const std::pair<const char*, const char*> lista[] = {{"cmdAdd", "Cerere nou&a"},
                                                         {"cmdEdit", "&Modificare cerere selectata"},
                                                         {"cmdDelete", "&Stergere cerere selectata"},
                                                         {"cmdCerere", "Tiparire &cerere selectata (Anexa1)"},
                                                         {"cmdDeclaratie", "&Declaratie"},
                                                         {"cmdFisaCalcul", "Fisa de calcul"}};
    for (const auto& [nume, text] : lista) {
        auto* b = new QPushButton(QString::fromLatin1(text));
        b->setObjectName(QString::fromLatin1(nume));
        b->setEnabled(false); // until its window is wired
        m_butoane.insert(b->objectName(), b);
        butoane->addWidget(b);
    }
    butoane->addWidget(new QLabel(QStringLiteral("Data emiterii fisei")));
    m_dtpDataFisa = new CampData(nullptr, false);
    m_dtpDataFisa->setObjectName(QStringLiteral("dtpDataFisa"));
    m_dtpDataFisa->seteazaData(Ceas::azi());
    butoane->addWidget(m_dtpDataFisa);
    butoane->addStretch();
    orizontal->addLayout(butoane);
    return zona;
}

void frmMainNou::LeagaActiuni()
{
    LeagaActiune(buton(QStringLiteral("cmdCauta")), [this] { Cauta(); });
    LeagaActiune(buton(QStringLiteral("cmdExit")), [this] { Iesire(); });
    // The case buttons and the panels' buttons are wired here by the windows they open.
    LeagaEditorCerere(*this);
    LeagaPanouri(*this);
    LeagaDocumente(*this);
    LeagaFormulare(*this);
}

void frmMainNou::Deschide()
{
    UmpleStrazi();
    VerificaDatePrimarie();
    {
        CursorAsteptare c;
        // At opening every application is shown, in the table's order and with no status
        // filter; the current application is the first of the table.
        std::vector<RandCerere> randuri = CitesteToateCererile(BD::principala(), Proces::setari().StrSat);
        m_cerereCurenta = randuri.empty() ? 0 : randuri.front().cerereId;
        IncarcaLista(std::move(randuri));
    }
    UmpleStari();
}

void frmMainNou::UmpleStrazi()
{
    UmpleCombo(m_cboStrada, CitesteListaReferinta(BD::principala(), ListaReferinta::Strazi));
}

void frmMainNou::UmpleStari()
{
    m_lstStare->clear();
    for (const ElementCod& e : CitesteListaCod(BD::principala(), 1)) {
        auto* item = new QListWidgetItem(e.text, m_lstStare);
        item->setData(Qt::UserRole, e.id);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    QString stareLunga;
    for (int i = 0; i < m_lstStare->count(); ++i)
        if (m_lstStare->item(i)->text().size() > stareLunga.size())
            stareLunga = m_lstStare->item(i)->text();
    LargesteColoana(m_lvwCereri, ColCerere::Stare, stareLunga);
    // The second and the third statuses are ticked: the default of every later search.
    for (int i : {1, 2})
        if (QListWidgetItem* item = m_lstStare->item(i))
            item->setCheckState(Qt::Checked);
}

void frmMainNou::VerificaDatePrimarie()
{
    const StareOficiu o = CitesteStareOficiu(BD::principala());
    if (o.primarie) {
        setWindowTitle(QStringLiteral("Alocatii-Tarnava: ") + *o.primarie);
        Activeaza(buton(QStringLiteral("cmdAdd")), true);
    } else {
        setWindowTitle(QStringLiteral("Alocatii-Tarnava: Nu exista date!"));
        Mesaj(QStringLiteral("Introduceti datele primariei!"));
        Activeaza(buton(QStringLiteral("cmdAdd")), false);
    }
    ActiveazaButoaneCerere(o.nrCereri != 0);
}

void frmMainNou::ActiveazaButoaneCerere(bool activ)
{
    for (const char* nume : {"cmdEdit", "cmdDelete", "cmdCerere", "cmdFisaCalcul"})
        Activeaza(buton(QString::fromLatin1(nume)), activ);
    m_panouri->ActiveazaAdaugare(activ);
}

void frmMainNou::ScrieLunaActiva()
{
    m_panouStare[3]->setText(TextLunaActiva(Proces::setari().LunaSetata, Proces::setari().AnSetat));
}

FiltruCautare frmMainNou::CitesteFiltru() const
{
    FiltruCautare f;
    f.cnp = m_txtCauta[0]->text();
    f.nume = m_txtCauta[1]->text();
    f.prenume = m_txtCauta[2]->text();
    f.nrCerere = m_txtCauta[3]->text();
    for (int i = 0; i < m_lstStare->count(); ++i)
        if (m_lstStare->item(i)->checkState() == Qt::Checked)
            f.stari << m_lstStare->item(i)->data(Qt::UserRole).toInt();
    return f;
}

void frmMainNou::GolesteFiltre()
{
    m_cboStrada->setCurrentIndex(-1);
    for (QLineEdit* t : m_txtCauta)
        t->clear();
}

void frmMainNou::Cauta()
{
    if (!Proces::BazaAccesibila())
        return;
    std::vector<RandCerere> randuri;
    {
        CursorAsteptare c;
        try {
            const BD& bd = BD::principala();
            randuri = CitesteCautarea(bd, ConstruiesteFiltru(bd, CitesteFiltru()), Proces::setari().StrSat);
        } catch (const Eroare& e) {
            // The list keeps what it had and the filters stay as they were typed.
            if (e.numar == CodEroare::TabelaLipsa)
                Mesaj(QStringLiteral("Locatia bazei de date nu e corecta sau reteaua nu functioneaza. Verificati!"));
            else
                Mesaj(e.text());
            return;
        }
        IncarcaLista(std::move(randuri));
    }
    GolesteFiltre();
}

void frmMainNou::IncarcaLista(std::vector<RandCerere> randuri)
{
    {
        const SelectieProgram p(m_selectieProgram);
        m_model->goleste();
    }
    if (randuri.empty()) {
        ActiveazaButoaneCerere(false);
        m_lblRezul->setText(TextRezultat(0));
        return;
    }
    ActiveazaButoaneCerere(true);
    try {
        // With Adaug 2 a row is written into the selected one; the list was just cleared, so
        // the first row fails and the list stays empty (until cmdAdd or cmdEdit changes Adaug).
        if (m_adaug == 2)
            m_model->puneRand(randuri.front(), 2, RandSelectat());
        const int n = int(randuri.size());
        m_model->incarca(std::move(randuri));
        {
            const SelectieProgram p(m_selectieProgram);
            m_lvwCereri->setCurrentIndex(m_model->index(0, ColCerere::NrCerere));
        }
        m_lblRezul->setText(TextRezultat(n));
        // The panels show the current application (the one last clicked), not the first row.
        m_panouri->IncarcaAnchete(m_cerereCurenta);
        m_panouri->IncarcaDispozitii(m_cerereCurenta);
        m_panouri->IncarcaIstoric(m_cerereCurenta);
    } catch (const Eroare& e) {
        Mesaj(QString::number(e.numar) + QLatin1Char(' ') + e.descriere + QLatin1Char(' ') + e.sursa);
    }
}

void frmMainNou::SelectieRand()
{
    if (ListaGoala() || !Proces::BazaAccesibila())
        return;
    const std::optional<qint64> id = CerereSelectata();
    if (!id)
        return;
    if (!CerereExista(BD::principala(), *id)) {
        Mesaj(RandNegasit);
        return;
    }
    m_cerereCurenta = *id;
    ReincarcaPanouri();
}

void frmMainNou::ReincarcaPanouri()
{
    m_panouri->IncarcaAnchete(m_cerereCurenta);
    m_panouri->IncarcaDispozitii(m_cerereCurenta);
    m_panouri->IncarcaIstoric(m_cerereCurenta);
}

void frmMainNou::ClicPeAntet(int coloana)
{
    QHeaderView* antet = m_lvwCereri->header();
    if (coloana == ColCerere::NrCerere) {
        // Sorting off, and the search again for the database's numeric order.
        m_model->sort(-1);
        antet->setSortIndicatorShown(false);
        RuleazaProtejat([this] { Cauta(); });
        return;
    }
    m_model->sort(coloana, Qt::AscendingOrder);
    antet->setSortIndicatorShown(true);
    antet->setSortIndicator(coloana, Qt::AscendingOrder);
}

bool frmMainNou::eventFilter(QObject* obj, QEvent* ev)
{
    if (obj == m_lvwCereri && ev->type() == QEvent::KeyPress) {
        const auto* k = static_cast<QKeyEvent*>(ev);
        const char* tinta = nullptr;
        if (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter)
            tinta = "cmdEdit";
        else if (k->key() == Qt::Key_Delete)
            tinta = "cmdDelete";
        else if (k->key() == Qt::Key_A && !(k->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
            tinta = "cmdAdd";
        if (tinta) {
            buton(QString::fromLatin1(tinta))->click();
            return true;
        }
    }
    return QMainWindow::eventFilter(obj, ev);
}

bool frmMainNou::ListaGoala() const
{
    return m_model->rowCount() == 0;
}

int frmMainNou::RandSelectat() const
{
    const QModelIndexList sel = m_lvwCereri->selectionModel()->selectedRows();
    return sel.isEmpty() ? -1 : sel.first().row();
}

std::optional<qint64> frmMainNou::CerereSelectata() const
{
    const int r = RandSelectat();
    if (r < 0)
        return std::nullopt;
    return m_model->id(r);
}

QString frmMainNou::SolicitantSelectat() const
{
    return TextSelectat(ColCerere::Solicitant);
}

QString frmMainNou::TextSelectat(int coloana) const
{
    return m_model->text(RandSelectat(), coloana);
}

int frmMainNou::ConstruiesteRand(qint64 cerereId)
{
    const std::optional<RandCerere> rand = CitesteRandCerere(BD::principala(), cerereId, Proces::setari().StrSat);
    if (!rand)
        throw Eroare(CodEroare::RandSters, RandNegasit, QStringLiteral("ConstruiesteRand"));
    const SelectieProgram p(m_selectieProgram);
    return m_model->puneRand(*rand, m_adaug, RandSelectat());
}

void frmMainNou::SelecteazaRand(int pozitie)
{
    if (pozitie < 0 || pozitie >= m_model->rowCount())
        return;
    const QModelIndex i = m_model->index(pozitie, ColCerere::NrCerere);
    {
        const SelectieProgram p(m_selectieProgram);
        m_lvwCereri->setCurrentIndex(i);
        m_lvwCereri->scrollTo(i);
    }
    m_lvwCereri->setFocus();
}

void frmMainNou::RandAdaugat(qint64 cerereId)
{
    ConstruiesteRand(cerereId);
    // The editor left the current application on the new one.
    m_cerereCurenta = cerereId;
    ActiveazaButoaneCerere(true);
    SelecteazaRand(m_model->rowCount() - 1);
}

void frmMainNou::RandModificat(qint64 cerereId, int pozitie)
{
    ConstruiesteRand(cerereId);
    SelecteazaRand(pozitie);
}

void frmMainNou::RandSters(int pozitie)
{
    {
        // The row that moves under the selection is no click.
        const SelectieProgram p(m_selectieProgram);
        m_model->elimina(pozitie);
    }
    const int n = m_model->rowCount();
    if (n == 0)
        ActiveazaButoaneCerere(false);
    else
        SelecteazaRand(std::min(pozitie, n - 1));
    m_lvwCereri->setFocus();
    m_lblRezul->setText(QString::number(n) + QStringLiteral(" cereri"));
}

QPushButton* frmMainNou::buton(const QString& nume) const
{
    return m_butoane.value(nume);
}

QAction* frmMainNou::meniu(const QString& nume) const
{
    return m_meniuri.value(nume);
}

void frmMainNou::Iesire()
{
    if (Intrebare(QStringLiteral("Sigur vreti sa parasiti programul?"), TitluImplicit, true))
        QCoreApplication::exit(0);
}
