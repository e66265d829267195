#include "preluare/frmPreluare.h"

#include "preluare/RaportPreluare.h"
#include "gui/AlegeFolder.h"
#include "gui/CursorAsteptare.h"
#include "gui/FiltruEditare.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

namespace {

const QString Titlu = QStringLiteral("Preluare din programul vechi");

QPushButton* buton(const QString& text, const char* nume, QWidget* parinte)
{
    auto* b = new QPushButton(text, parinte);
    b->setObjectName(QLatin1String(nume));
    b->setAutoDefault(false);
    return b;
}

QLineEdit* camp(const char* nume, QWidget* parinte)
{
    auto* t = new QLineEdit(parinte);
    t->setObjectName(QLatin1String(nume));
    t->setMinimumWidth(420);
    return t;
}

} // namespace

frmPreluare::frmPreluare(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmPreluare"));
    setWindowTitle(Titlu);
    m_din = camp("txtDin", this);
    m_tinta = camp("txtOficiu", this);
    m_setari = camp("txtSetari", this);
    m_grd = new QTableWidget(0, 4, this);
    m_grd->setObjectName(QStringLiteral("grdTabele"));
    m_grd->setHorizontalHeaderLabels(
        {QStringLiteral("Tabela"), QStringLiteral("Citite"), QStringLiteral("Se scriu"), QStringLiteral("Refuzate")});
    m_grd->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grd->verticalHeader()->hide();
    m_grd->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_raport = new QPlainTextEdit(this);
    m_raport->setObjectName(QStringLiteral("txtRaport"));
    m_raport->setReadOnly(true);
    m_progres = new QProgressBar(this);
    m_progres->setObjectName(QStringLiteral("prgPreluare"));
    m_progres->setTextVisible(true);
    m_progres->setValue(0);
    m_rezultat = new QLabel(this);
    m_rezultat->setObjectName(QStringLiteral("lblRezultat"));
    m_rezultat->setWordWrap(true);
    m_rezultat->setMinimumHeight(m_rezultat->fontMetrics().lineSpacing() * 3);
    m_rezultat->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_incearca = buton(QStringLiteral("&Incearca"), "cmdIncearca", this);
    m_preia = buton(QStringLiteral("&Preia"), "cmdPreia", this);
    m_preia->setEnabled(false);
    auto* inchide = buton(QStringLiteral("I&esire"), "cmdExit", this);

    auto* l = new QGridLayout(this);
    int r = 0;
    const auto rand = [&](const QString& eticheta, QLineEdit* t, QPushButton* b) {
        l->addWidget(new QLabel(eticheta, this), r, 0);
        l->addWidget(t, r, 1);
        l->addWidget(b, r++, 2);
    };
    auto* alegeDin = buton(QStringLiteral("..."), "cmdAlegeDin", this);
    auto* alegeTinta = buton(QStringLiteral("..."), "cmdAlegeOficiu", this);
    auto* alegeSetari = buton(QStringLiteral("..."), "cmdAlegeSetari", this);
    rand(QStringLiteral("Folderul programului vechi (Tarnava.mdb, acte):"), m_din, alegeDin);
    rand(QStringLiteral("Folderul oficiului nou:"), m_tinta, alegeTinta);
    rand(QStringLiteral("Setarile vechi (setariTarnava.ini, optional):"), m_setari, alegeSetari);
    l->addWidget(m_grd, r++, 0, 1, 3);
    l->addWidget(m_raport, r++, 0, 1, 3);
    l->addWidget(m_progres, r++, 0, 1, 3);
    l->addWidget(m_rezultat, r++, 0, 1, 3);
    auto* butoane = new QHBoxLayout;
    butoane->addStretch();
    butoane->addWidget(m_incearca);
    butoane->addWidget(m_preia);
    butoane->addWidget(inchide);
    l->addLayout(butoane, r, 0, 1, 3);
    resize(760, 620);

    InstaleazaFiltruEditare(this);
    connect(alegeDin, &QPushButton::clicked, this,
            [this] { alege(m_din, QStringLiteral("Selectati folderul programului vechi (cu Tarnava.mdb)...")); });
    connect(alegeTinta, &QPushButton::clicked, this,
            [this] { alege(m_tinta, QStringLiteral("Selectati folderul oficiului nou...")); });
    connect(alegeSetari, &QPushButton::clicked, this, &frmPreluare::alegeSetari);
    connect(m_incearca, &QPushButton::clicked, this, &frmPreluare::cmdIncearca_Click);
    connect(m_preia, &QPushButton::clicked, this, &frmPreluare::cmdPreia_Click);
    connect(inchide, &QPushButton::clicked, this, &QDialog::accept);
    // A changed field asks for a new dry run before anything is written.
    for (QLineEdit* t : {m_din, m_tinta, m_setari})
        connect(t, &QLineEdit::textEdited, this, [this] { m_preia->setEnabled(false); });
}

void frmPreluare::seteazaTinta(const QString& folder)
{
    m_tinta->setText(QDir::toNativeSeparators(folder));
}

QString frmPreluare::tinta() const
{
    return QDir::fromNativeSeparators(m_tinta->text().trimmed());
}

void frmPreluare::alege(QLineEdit* t, const QString& titlu)
{
    const QString ales = AlegeFolder(titlu, t->text(), this);
    if (!ales.isEmpty()) {
        t->setText(ales);
        m_preia->setEnabled(false);
    }
}

void frmPreluare::alegeSetari()
{
    const QString ales = QFileDialog::getOpenFileName(this, QStringLiteral("Selectati setariTarnava.ini vechi"),
                                                      m_din->text(), QStringLiteral("Setari (*.ini)"));
    if (!ales.isEmpty()) {
        m_setari->setText(QDir::toNativeSeparators(ales));
        m_preia->setEnabled(false);
    }
}

OptiuniPreluare frmPreluare::optiuni(bool incearca) const
{
    OptiuniPreluare o;
    o.din = QDir::fromNativeSeparators(m_din->text().trimmed());
    o.oficiu = tinta();
    o.setari = QDir::fromNativeSeparators(m_setari->text().trimmed());
    o.incearca = incearca;
    return o;
}

// Runs the move with the progress bar following it; a failure is told and the window stays.
bool frmPreluare::ruleaza(const OptiuniPreluare& o, Preluare& p)
{
    if (o.din.isEmpty() || o.oficiu.isEmpty()) {
        Mesaj(QStringLiteral("Alegeti folderul programului vechi si folderul oficiului nou."), Mesaje::Icon::Exclamare,
              Titlu);
        return false;
    }
    const CursorAsteptare asteptare;
    m_progres->setValue(0);
    try {
        p = Preia(o, [this](int pas, int pasi, const QString& ce) {
            m_progres->setMaximum(pasi);
            m_progres->setValue(pas);
            m_progres->setFormat(ce + QStringLiteral(" (%p%)"));
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        });
    } catch (const Eroare& e) {
        m_progres->setValue(0);
        m_progres->setFormat(QStringLiteral("%p%"));
        m_rezultat->setText(e.descriere);
        Mesaj(e.numar == IntrarePreluareGresita ? e.descriere : e.text(), Mesaje::Icon::Critic, Titlu);
        return false;
    }
    m_progres->setValue(m_progres->maximum());
    m_progres->setFormat(o.incearca ? QStringLiteral("Incercare incheiata") : QStringLiteral("Preluare incheiata"));
    return true;
}

void frmPreluare::arata(const Preluare& p)
{
    m_grd->setRowCount(int(p.tabele.size()));
    int r = 0;
    for (const TabelaPreluata& t : p.tabele) {
        const QStringList celule{t.nume, QString::number(t.citite), QString::number(t.scrise()),
                                 QString::number(t.refuzate.size())};
        for (int c = 0; c < celule.size(); ++c) {
            auto* x = new QTableWidgetItem(celule[c]);
            if (c > 0)
                x->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            if (c == 3 && !t.refuzate.empty())
                x->setForeground(Qt::red);
            m_grd->setItem(r, c, x);
        }
        ++r;
    }
    m_raport->setPlainText(TextRaportPreluare(p));
}

void frmPreluare::cmdIncearca_Click()
{
    Preluare p;
    m_preia->setEnabled(false);
    const OptiuniPreluare o = optiuni(true);
    if (!ruleaza(o, p))
        return;
    arata(p);
    int refuzate = 0;
    for (const TabelaPreluata& t : p.tabele)
        refuzate += int(t.refuzate.size());
    m_rezultat->setText(QStringLiteral("Incercare: nu s-a scris nimic. %1 randuri ar fi refuzate. Cititi raportul, "
                                       "apoi apasati \"Preia\".")
                            .arg(refuzate));
    m_incercat = o;
    m_preia->setEnabled(true);
}

void frmPreluare::cmdPreia_Click()
{
    OptiuniPreluare o = m_incercat;
    o.incearca = false;
    if (!Intrebare(QStringLiteral("Datele programului vechi din %1 se scriu in oficiul nou din %2, asa cum arata "
                                  "incercarea. Continuati?")
                       .arg(QDir::toNativeSeparators(o.din), QDir::toNativeSeparators(o.oficiu)),
                   Titlu))
        return;
    Preluare p;
    if (!ruleaza(o, p))
        return;
    arata(p);
    m_preluat = true;
    m_preia->setEnabled(false);
    m_incearca->setEnabled(false);
    m_rezultat->setText(QStringLiteral("Preluarea s-a incheiat: datele, sabloanele si setarile sunt in %1. "
                                       "Raportul a fost scris in %2.")
                            .arg(QDir::toNativeSeparators(o.oficiu), QDir::toNativeSeparators(p.fisierRaport)));
}
