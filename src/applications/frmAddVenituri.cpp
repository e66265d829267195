#include "applications/frmAddVenituri.h"
#include "shell/Optiuni.h"

#include "gui/ButoaneDialog.h"

#include "applications/RegulaVenituriLocuinta.h"
#include "applications/ValoriCerere.h"
#include "database/BD.h"
#include "database/ListeReferinta.h"
#include "gui/ComboCod.h"
#include "common/Data.h"
#include "common/FisiereHelper.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Setari.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int ColCod = 0;
constexpr int ColDenumire = 1;
constexpr int ColValoare = 2;

// The income grid: Enter moves to the next row, also from inside a cell being edited.
class GridVenituri : public QTableWidget {
public:
    using QTableWidget::QTableWidget;

protected:
    void keyPressEvent(QKeyEvent* ev) override
    {
        if ((ev->key() == Qt::Key_Return || ev->key() == Qt::Key_Enter) && state() != EditingState) {
            randulUrmator();
            return;
        }
        QTableWidget::keyPressEvent(ev);
    }

    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override
    {
        QTableWidget::closeEditor(editor, QAbstractItemDelegate::NoHint);
        if (hint == QAbstractItemDelegate::SubmitModelCache)
            randulUrmator();
    }

private:
    void randulUrmator()
    {
        if (currentRow() + 1 < rowCount())
            setCurrentCell(currentRow() + 1, ColValoare);
    }
};

} // namespace

frmAddVenituri::frmAddVenituri(QWidget* parent, Cerere& cerere) : QDialog(parent), m_c(cerere)
{
    setObjectName(QStringLiteral("frmAddVenituri"));
    setWindowTitle(QStringLiteral("Venituri"));
    resize(760, 620);

    m_grid = new GridVenituri(this);
    m_grid->setObjectName(QStringLiteral("Grid"));
    m_gospod = new QComboBox(this);
    m_gospod->setObjectName(QStringLiteral("cboVenit(0)"));
    m_luna = new QComboBox(this);
    m_luna->setObjectName(QStringLiteral("cboVenit(1)"));
    m_total = new QLabel(this);
    m_total->setObjectName(QStringLiteral("lblTotalVenituri"));
    const auto [ok, renunta, butoane] = CreeazaButoaneOkRenunta(this);

    auto* sus = new QGridLayout;
    sus->addWidget(new QLabel(QStringLiteral("Gospodareste"), this), 0, 0);
    sus->addWidget(m_gospod, 0, 1);
    sus->addWidget(new QLabel(QStringLiteral("Luna"), this), 0, 2);
    sus->addWidget(m_luna, 0, 3);
    sus->setColumnStretch(1, 1);
    auto* jos = new QHBoxLayout;
    jos->addWidget(m_total, 1);
    jos->addLayout(butoane);
    auto* l = new QVBoxLayout(this);
    l->addLayout(sus);
    l->addWidget(m_grid, 1);
    l->addLayout(jos);

    umple();
    aplicaAspect();

    connect(m_grid, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* it) {
        if (!m_umplere && it->column() == ColValoare)
            recalculeazaTotal();
    });
    // The cell being entered turns yellow, and white again when left.
    connect(m_grid, &QTableWidget::currentCellChanged, this, [this](int r, int c, int rv, int cv) {
        if (QTableWidgetItem* v = m_grid->item(rv, cv); v && cv == ColValoare)
            v->setBackground(QBrush());
        if (QTableWidgetItem* n = m_grid->item(r, c); n && c == ColValoare)
            n->setBackground(QColor(255, 255, 0));
    });
    connect(ok, &QPushButton::clicked, this, &frmAddVenituri::ok);
    connect(renunta, &QPushButton::clicked, this, &QDialog::reject);
}

void frmAddVenituri::umple()
{
    m_umplere = true;
    BD& bd = BD::principala();
    UmpleComboCod(m_gospod, bd, 26);
    m_luna->clear();
    for (int i = 1; i <= 12; ++i)
        m_luna->addItem(NumeLuna(i), i);
    m_luna->setCurrentIndex(-1);

    m_grid->setColumnCount(3);
    m_grid->setHorizontalHeaderLabels(
        {QStringLiteral("Cod"), QStringLiteral("Denumire venit"), QStringLiteral("Valoare (lei)")});
    m_grid->verticalHeader()->hide();
    m_grid->setRowCount(NrCoduriVenit);
    const std::vector<QString> denumiri = DenumiriCoduriVenit(bd, NrCoduriVenit);
    for (int i = 0; i < NrCoduriVenit; ++i) {
        auto* cod = new QTableWidgetItem(QString::number(i + 1));
        cod->setFlags(Qt::ItemIsEnabled);
        auto* den = new QTableWidgetItem(denumiri[static_cast<std::size_t>(i)]);
        den->setFlags(Qt::ItemIsEnabled);
        den->setToolTip(denumiri[static_cast<std::size_t>(i)]);
        auto* val = new QTableWidgetItem(m_c.Venituri[static_cast<std::size_t>(i)].text());
        val->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_grid->setItem(i, ColCod, cod);
        m_grid->setItem(i, ColDenumire, den);
        m_grid->setItem(i, ColValoare, val);
    }

    if (m_c.Gospodarire != 0)
        SelecteazaCheie(m_gospod, m_c.Gospodarire);
    if (m_c.LunaGospod != 0)
        SelecteazaCheie(m_luna, m_c.LunaGospod);
    m_total->setText(TextTotalVenituri(TotalVenituriLaDeschidere(m_c.Venituri)));
    m_umplere = false;
}

void frmAddVenituri::aplicaAspect()
{
    // The font of the office's display settings, and the background chosen in the options.
    const Setari& s = Proces::setari();
    QFont f(s.FontName0);
    f.setPointSize(s.FontSize0 > 0 ? s.FontSize0 : 10);
    f.setBold(s.FontB0 != 0);
    m_grid->setFont(f);
    const QColor fundal = CuloareDinSetare(CuloareVenit());
    if (fundal.isValid()) {
        QPalette p = m_grid->palette();
        p.setColor(QPalette::Base, fundal);
        m_grid->setPalette(p);
    }
    // The cell being entered shows by its yellow, not by a selection.
    m_grid->setSelectionMode(QAbstractItemView::NoSelection);
    m_grid->verticalHeader()->setDefaultSectionSize(QFontMetrics(f).height() + 8);
    m_grid->setColumnWidth(ColCod, 45);
    m_grid->setColumnWidth(ColDenumire, 520);
    m_grid->horizontalHeader()->setStretchLastSection(true);
    m_grid->setCurrentCell(0, ColValoare);
}

QStringList frmAddVenituri::celule() const
{
    QStringList c;
    for (int i = 0; i < m_grid->rowCount(); ++i) {
        const QTableWidgetItem* it = m_grid->item(i, ColValoare);
        c << (it ? it->text() : QString());
    }
    return c;
}

void frmAddVenituri::recalculeazaTotal()
{
    m_total->setText(TextTotalVenituri(TotalVenituriEditare(celule())));
}

void frmAddVenituri::ok()
{
    const QStringList c = celule();
    int rand = NrCoduriVenit - 1;
    QString problema = VerificaCeluleVenituri(c, &rand);
    const VenituriCerere v = VenituriDinCelule(c);
    if (problema.isEmpty())
        problema = VerificaVenituri(v);
    if (!problema.isEmpty()) {
        Mesaj(problema, Mesaje::Icon::Exclamare);
        m_grid->setFocus();
        m_grid->setCurrentCell(rand, ColValoare);
        m_grid->scrollToItem(m_grid->item(rand, ColValoare));
        return;
    }
    m_c.Venituri = v;
    // Only the month goes back: Gospodarire keeps the value read from the application.
    m_c.LunaGospod = CheieCombo(m_luna);
    accept();
}
