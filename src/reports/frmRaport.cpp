#include "reports/frmRaport.h"

#include "reports/ExportGrid.h"

#include "common/Mesaje.h"
#include "common/Text.h"
#include "database/BD.h"
#include "gui/ActiuniLegate.h"
#include "gui/CursorAsteptare.h"
#include "gui/Modal.h"
#include "gui/Tiparire.h"
#include "reports/RandareGrid.h"
#include "reports/RaportComun.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

constexpr double LatimeFixa = 24, InaltimeFixa = 18; // the fixed column and row on the screen

} // namespace

VedereGrid::VedereGrid(ReportGrid& g, QWidget* parent) : QAbstractScrollArea(parent), m_g(g)
{
    setObjectName(QStringLiteral("Grid"));
    viewport()->setAutoFillBackground(false);
    actualizeaza();
}

void VedereGrid::actualizeaza()
{
    m_y.resize(m_g.Rows() + 1);
    double y = 0;
    for (int r = 1; r < m_g.Rows(); ++r) {
        m_y[r] = y;
        y += std::max(0.0, m_g.RowHeight(r));
    }
    if (m_g.Rows() > 0)
        m_y[m_g.Rows()] = y;
    const QSize vp = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, int(LatimeGrid(m_g) + LatimeFixa) - vp.width()));
    horizontalScrollBar()->setPageStep(vp.width());
    verticalScrollBar()->setRange(0, std::max(0, int(y + InaltimeFixa) - vp.height()));
    verticalScrollBar()->setPageStep(vp.height());
    verticalScrollBar()->setSingleStep(20);
    viewport()->update();
}

void VedereGrid::resizeEvent(QResizeEvent* e)
{
    QAbstractScrollArea::resizeEvent(e);
    actualizeaza();
}

void VedereGrid::paintEvent(QPaintEvent*)
{
    QPainter p(viewport());
    const auto& culori = m_g.CuloriEcran();
    p.fillRect(viewport()->rect(), culori.fundal);
    if (!m_g.Painting() || m_g.Rows() < 2)
        return;
    const double dx = horizontalScrollBar()->value(), dy = verticalScrollBar()->value();
    const double inaltime = viewport()->height();
    // Only the rows that the view shows are drawn.
    const auto primul = std::upper_bound(m_y.begin() + 1, m_y.begin() + m_g.Rows(), dy) - m_y.begin() - 1;
    QList<int> randuri;
    for (int r = std::max<qsizetype>(1, primul); r < m_g.Rows() && m_y[r] - dy < inaltime; ++r)
        randuri << r;
    if (randuri.isEmpty())
        return;
    DeseneazaRanduri(p, m_g, randuri, QPointF(LatimeFixa - dx, InaltimeFixa + m_y[randuri.first()] - dy),
                     ModDesen::Ecran);
    // The fixed row and column.
    p.fillRect(QRectF(0, 0, viewport()->width(), InaltimeFixa), culori.fixe);
    p.fillRect(QRectF(0, 0, LatimeFixa, viewport()->height()), culori.fixe);
    p.setPen(culori.rama);
    p.drawRect(QRectF(0, 0, viewport()->width() - 1, viewport()->height() - 1));
}

frmRaport::frmRaport(const QString& nume, const QString& titlu, bool ord2CuNr, QWidget* parent) : QDialog(parent)
{
    setObjectName(nume);
    setWindowTitle(titlu);
    setSizeGripEnabled(true);
    resize(1000, 650);
    m_panou = new QWidget(this);
    m_panou->setObjectName(QStringLiteral("picSus"));
    m_layoutPanou = new QGridLayout(m_panou);
    m_tipRaport = new QComboBox(m_panou);
    m_ord[0] = new QComboBox(m_panou);
    m_ord[1] = new QComboBox(m_panou);
    UmpleLista(m_ord[0], QStringLiteral("cboOrd(0)"), ListaOrdonare());
    UmpleLista(m_ord[1], QStringLiteral("cboOrd(1)"), ListaOrdonare2(ord2CuNr));
    QLabel* l1 = nullptr;
    QLabel* l2 = nullptr;
    adaugaInPanou(m_ord[0], 1, 0, QStringLiteral("Ordonare 1 dupa:"), &l1);
    adaugaInPanou(m_ord[1], 1, 1, QStringLiteral("Ordonare 2 dupa:"), &l2);
    l1->setObjectName(QStringLiteral("lblAnexa3"));
    l2->setObjectName(QStringLiteral("Label1"));

    auto* butoane = new QHBoxLayout;
    const auto buton = [&](const char* obiect, const QString& text, const QString& sfat) {
        auto* b = new QPushButton(text, m_panou);
        b->setObjectName(QLatin1String(obiect));
        b->setAutoDefault(false);
        if (!sfat.isEmpty())
            b->setToolTip(sfat);
        butoane->addWidget(b);
        return b;
    };
    QPushButton* ok = buton("cmdOK", QStringLiteral("OK"), QString());
    QPushButton* preview = buton("cmdPreview", QStringLiteral("&Previzualizare"),
                                 QStringLiteral("ALT-P: Previzualizare pagina de tiparit"));
    QPushButton* print = buton("cmdPrint", QStringLiteral("&Tiparire"), QStringLiteral("ALT-T: Tiparire"));
    QPushButton* pdf = buton("cmdPdf", QStringLiteral("PDF"), QStringLiteral("Salveaza raportul intr-un fisier PDF"));
    QPushButton* printPage =
        buton("cmdPrintPage", QStringLiteral("Tiparire pagina"), QStringLiteral("ALT-P: Tiparire pagina"));
    QPushButton* exp =
        buton("cmdExport", QStringLiteral("&Export"), QStringLiteral("ALT-E: Exportare catre document Excel"));
    butoane->addStretch();
    QPushButton* iesire = buton("cmdClose", QStringLiteral("Iesire"), QString());
    m_layoutPanou->addLayout(butoane, 3, 0, 1, 4);

    m_vedere = new VedereGrid(m_grid, this);
    auto* l = new QVBoxLayout(this);
    l->addWidget(m_panou);
    l->addWidget(m_vedere, 1);

    LeagaActiune(ok, [this] { cmdOK_Click(); });
    LeagaActiune(preview, [this] { cmdPreview_Click(); });
    LeagaActiune(print, [this] { cmdPrint_Click(); });
    LeagaActiune(printPage, [this] { cmdPrintPage_Click(); });
    LeagaActiune(pdf, [this] { cmdPdf_Click(); });
    LeagaActiune(exp, [this] {
        CursorAsteptare c;
        exporta();
    });
    LeagaActiune(iesire, [this] { reject(); });
}

void UmpleLista(QComboBox* c, const QString& nume, const QStringList& intrari)
{
    c->setObjectName(nume);
    c->addItems(intrari);
    c->setCurrentIndex(-1);
    c->setMaxVisibleItems(intrari.size());
}

void frmRaport::exportaGrid(const QString& cale)
{
    QString eroare;
    if (!ScrieXlsx(m_grid, cale, &eroare)) {
        Mesaj(eroare, Mesaje::Icon::Exclamare);
        return;
    }
    Mesaj(QStringLiteral("Fisierul a fost exportat in ") + QDir::toNativeSeparators(cale));
}

void frmRaport::adaugaInPanou(QWidget* w, int rand, int coloana, const QString& eticheta, QLabel** lbl)
{
    auto* celula = new QVBoxLayout;
    if (!eticheta.isEmpty()) {
        auto* l = new QLabel(eticheta, m_panou);
        l->setBuddy(w);
        celula->addWidget(l);
        if (lbl)
            *lbl = l;
    }
    celula->addWidget(w);
    m_layoutPanou->addLayout(celula, rand, coloana);
}

void frmRaport::showEvent(QShowEvent* e)
{
    QDialog::showEvent(e);
    if (m_aratat)
        return;
    m_aratat = true;
    RuleazaProtejat([this] { laDeschidere(); });
}

void frmRaport::laDeschidere()
{
    if (!CitesteRandPrimarie(BD::principala()))
        Mesaj(QStringLiteral("Introduceti mai intai datele primariei si abia apoi continuati!"));
}

bool frmRaport::verificaRaport()
{
    if (m_tipRaport->currentIndex() >= 0)
        return true;
    Mesaj(QStringLiteral("Selectati din lista un tip de raport!"));
    m_tipRaport->setFocus();
    return false;
}

void frmRaport::cmdOK_Click()
{
    {
        CursorAsteptare c;
        construieste();
    }
    m_vedere->actualizeaza();
}

void frmRaport::cmdPreview_Click()
{
    m_grid.SetPageSetup(paginaSetata());
    QPrinter printer(QPrinter::HighResolution);
    alegeImprimanta(printer);
    AplicaPagina(m_grid, printer);
    QPrintPreviewDialog d(&printer, this);
    d.setObjectName(QStringLiteral("frmPreview"));
    d.setWindowTitle(windowTitle());
    connect(&d, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* p) { TiparesteGrid(m_grid, *p); });
    PregatestePrevizualizare(d, [this] { cmdPdf_Click(); });
    // The page at its own size, not fitted to the window.
    if (auto* w = d.findChild<QPrintPreviewWidget*>())
        w->setZoomFactor(1.0);
    DeschideModal(d);
}

void frmRaport::cmdPrint_Click()
{
    if (Intrebare(QStringLiteral("Doriti sa tipariti toate paginile?"), TitluImplicit, true))
        tipareste(0);
}

void frmRaport::cmdPrintPage_Click()
{
    const auto raspuns = Mesaje::curent().citeste(QStringLiteral("Introduceti nr paginii pe care doriti sa o tipariti"),
                                                  QStringLiteral("?"), QString());
    const qint64 pagina = raspuns ? ValoareIntreaga(*raspuns) : 0;
    if (pagina <= 0)
        return;
    tipareste(int(pagina));
}

void frmRaport::tipareste(int pagina)
{
    CursorAsteptare c;
    m_grid.SetPageSetup(paginaSetata());
    QPrinter printer(QPrinter::HighResolution);
    alegeImprimanta(printer);
    AplicaPagina(m_grid, printer);
    if (TiparesteGrid(m_grid, printer, pagina) < 0)
        SpuneImprimantaNuTipareste(printer);
}

void frmRaport::cmdPdf_Click()
{
    // Whatever the grid holds, on the page the preview shows.
    const QString cale = AlegeFisierPdf(this, windowTitle() + QStringLiteral(".pdf"));
    if (cale.isEmpty())
        return;
    m_grid.SetPageSetup(paginaSetata());
    bool scris;
    {
        CursorAsteptare c;
        scris = ScriePdf(m_grid, cale);
    }
    if (scris)
        SpunePdfScris(cale);
    else
        Mesaj(QStringLiteral("Fisierul %1 nu a putut fi scris.").arg(QDir::toNativeSeparators(cale)),
              Mesaje::Icon::Exclamare);
}
