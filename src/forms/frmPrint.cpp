#include "forms/frmPrint.h"

#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "database/BD.h"
#include "forms/PageSurface.h"
#include "gui/CursorAsteptare.h"
#include "gui/Tiparire.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>

namespace {

// The page in twips (one millimetre is 56.7 twips), and the margins of the viewport.
constexpr double TwipsPeMm = 56.7;
constexpr double LatimePaginaTwips = 11907, InaltimePaginaTwips = 16840;
constexpr double MargineTwips = 200, SpatiuBaraTwips = 600;

double pixeliPeTwip(const QWidget* w)
{
    return w->logicalDpiX() / 1440.0;
}

QPushButton* buton(QWidget* parinte, const char* nume, const QString& text, const QString& sfat = {})
{
    auto* b = new QPushButton(text, parinte);
    b->setObjectName(QString::fromLatin1(nume));
    b->setToolTip(sfat);
    return b;
}

} // namespace

frmPrint::frmPrint(int tipFormular, int mod, qint64 cerereId, QWidget* parent)
    : QDialog(parent), m_tip(tipFormular), m_mod(mod), m_cerereId(cerereId)
{
    setObjectName(QStringLiteral("frmPrint"));
    setWindowTitle(TitluFormular(tipFormular));
    resize(900, 680);

    m_picTata = new QWidget(this);
    m_picTata->setObjectName(QStringLiteral("picTata"));
    m_picTata->setAutoFillBackground(true);
    QPalette pal = m_picTata->palette();
    pal.setColor(QPalette::Window, QColor(128, 128, 128));
    m_picTata->setPalette(pal);
    m_picPrint = new QLabel(m_picTata);
    m_picPrint->setObjectName(QStringLiteral("picPrint"));
    const double k = pixeliPeTwip(this);
    m_picPrint->setFixedSize(qRound(LatimePaginaTwips * k), qRound(InaltimePaginaTwips * k));
    m_picPrint->setCursor(Qt::OpenHandCursor);
    m_picPrint->installEventFilter(this);
    m_picTata->installEventFilter(this);
    m_hBar = new QScrollBar(Qt::Horizontal, this);
    m_hBar->setObjectName(QStringLiteral("HBar"));
    m_vBar = new QScrollBar(Qt::Vertical, this);
    m_vBar->setObjectName(QStringLiteral("VBar"));
    connect(m_hBar, &QScrollBar::valueChanged, this, &frmPrint::PozitioneazaPagina);
    connect(m_vBar, &QScrollBar::valueChanged, this, &frmPrint::PozitioneazaPagina);

    // Two rows under the page: the page buttons, then the zoom, the copies and the commands, so
    // that the window fits a screen of 1366 pixels with "Inchide" on it.
    auto* picJos = new QWidget(this);
    picJos->setObjectName(QStringLiteral("picJos"));
    auto* randuri = new QVBoxLayout(picJos);
    auto* pagini = new QHBoxLayout;
    auto* jos = new QHBoxLayout;
    randuri->addLayout(pagini);
    randuri->addLayout(jos);
    m_optPag = new QButtonGroup(this);
    for (int i = 0; i < NumarPagini(tipFormular); ++i) {
        QPushButton* b = buton(picJos, "", QStringLiteral("Pag. %1").arg(i + 1), QStringLiteral("Vizualizare pagina"));
        b->setObjectName(QStringLiteral("optPag(%1)").arg(i));
        b->setCheckable(true);
        m_optPag->addButton(b, i);
        pagini->addWidget(b);
    }
    pagini->addStretch();
    m_optPag->setExclusive(true);
    connect(m_optPag, &QButtonGroup::idClicked, this, &frmPrint::optPag_Click);
    QPushButton* cmdMic =
        buton(picJos, "cmdZoomOut", QStringLiteral("-"), QStringLiteral("Micsoreaza pagina (Ctrl + rotita)"));
    QPushButton* cmdMare =
        buton(picJos, "cmdZoomIn", QStringLiteral("+"), QStringLiteral("Mareste pagina (Ctrl + rotita)"));
    m_lblZoom = new QLabel(picJos);
    m_lblZoom->setObjectName(QStringLiteral("lblZoom"));
    for (QPushButton* b : {cmdMic, cmdMare})
        b->setMaximumWidth(32);
    jos->addWidget(cmdMic);
    jos->addWidget(m_lblZoom);
    jos->addWidget(cmdMare);
    connect(cmdMic, &QPushButton::clicked, this, [this] { Zoom(-1); });
    connect(cmdMare, &QPushButton::clicked, this, [this] { Zoom(1); });
    jos->addStretch();
    auto* label1 = new QLabel(QStringLiteral("Nr copii"), picJos);
    label1->setObjectName(QStringLiteral("Label1"));
    m_txtNrPag = new QLineEdit(QStringLiteral("1"), picJos);
    m_txtNrPag->setObjectName(QStringLiteral("txtNrPag"));
    m_txtNrPag->setMaximumWidth(40);
    m_chkColor = new QCheckBox(QStringLiteral("Color"), picJos);
    m_chkColor->setObjectName(QStringLiteral("chkColor"));
    QPushButton* cmdPrint = buton(picJos, "cmdPrint", QStringLiteral("Ti&parire"), QStringLiteral("ALT-P: Listare"));
    QPushButton* cmdPrintTot =
        buton(picJos, "cmdPrintTot", QStringLiteral("&Toate"), QStringLiteral("ALT-T: Listeaza toate datele"));
    QPushButton* cmdPrintImpar = buton(picJos, "cmdPrintImpar", QStringLiteral("Impare"));
    QPushButton* cmdPrintPar = buton(picJos, "cmdPrintPar", QStringLiteral("Pare"));
    QPushButton* cmdPdf =
        buton(picJos, "cmdPdf", QStringLiteral("PDF"), QStringLiteral("Salveaza formularul intr-un fisier PDF"));
    QPushButton* cmdCancel =
        buton(picJos, "cmdCancel", QStringLiteral("&Inchide"), QStringLiteral("ALT-I: Inchide fereastra"));
    for (QWidget* w : std::initializer_list<QWidget*>{label1, m_txtNrPag, m_chkColor, cmdPrint, cmdPrintTot,
                                                      cmdPrintImpar, cmdPrintPar, cmdPdf, cmdCancel})
        jos->addWidget(w);
    connect(cmdPrint, &QPushButton::clicked, this, [this] { Tipareste(ComandaTiparire::Pagina); });
    connect(cmdPrintTot, &QPushButton::clicked, this, [this] { Tipareste(ComandaTiparire::Tot); });
    connect(cmdPrintImpar, &QPushButton::clicked, this, [this] { Tipareste(ComandaTiparire::Impar); });
    connect(cmdPrintPar, &QPushButton::clicked, this, [this] { Tipareste(ComandaTiparire::Par); });
    connect(cmdPdf, &QPushButton::clicked, this, &frmPrint::cmdPdf_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* grila = new QGridLayout(this);
    grila->setContentsMargins(0, 0, 0, 0);
    grila->setSpacing(0);
    grila->addWidget(m_picTata, 0, 0);
    grila->addWidget(m_vBar, 0, 1);
    grila->addWidget(m_hBar, 1, 0);
    grila->addWidget(picJos, 2, 0, 1, 2);
    grila->setRowStretch(0, 1);
    grila->setColumnStretch(0, 1);
    picJos->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    m_optPag->button(0)->setChecked(true);
    optPag_Click(0);
    AjusteazaBare();
}

SursaFormular frmPrint::Sursa() const
{
    return {&BD::principala(), m_cerereId};
}

void frmPrint::Zoom(int pas)
{
    // From half the page's size to twice it, a quarter at a time.
    const double zoom = std::clamp(m_zoom + pas * 0.25, 0.5, 2.0);
    if (zoom == m_zoom)
        return;
    m_zoom = zoom;
    const double k = pixeliPeTwip(this) * m_zoom;
    m_picPrint->setFixedSize(qRound(LatimePaginaTwips * k), qRound(InaltimePaginaTwips * k));
    optPag_Click(m_pagina);
    AjusteazaBare();
}

void frmPrint::optPag_Click(int index)
{
    m_pagina = index;
    if (QAbstractButton* b = m_optPag->button(index))
        b->setChecked(true);
    m_lblZoom->setText(QStringLiteral("%1%").arg(qRound(m_zoom * 100)));
    const qreal dpr = devicePixelRatioF();
    // Drawn at the screen's full resolution and the zoom; the ratio is set once the drawing is
    // done, so that the surface's millimetres and the fonts' points both follow the image's own
    // resolution.
    QImage img(m_picPrint->size() * dpr, QImage::Format_RGB32);
    const int puncte = qRound(logicalDpiX() * dpr * m_zoom / 0.0254);
    img.setDotsPerMeterX(puncte);
    img.setDotsPerMeterY(puncte);
    img.fill(Qt::white);
    {
        CursorAsteptare c;
        QPainter p(&img);
        SuprafataPictor s(p, nullptr, true);
        DeseneazaPagina(s, m_tip, index, m_mod, Sursa());
    }
    img.setDevicePixelRatio(dpr);
    m_imagine = img;
    m_picPrint->setPixmap(QPixmap::fromImage(img));
}

void frmPrint::resizeEvent(QResizeEvent* e)
{
    QDialog::resizeEvent(e);
    AjusteazaBare();
}

void frmPrint::AjusteazaBare()
{
    const double k = pixeliPeTwip(this);
    auto ajusteaza = [&](QScrollBar* bara, int pagina, int fereastra, int pasMare) {
        const int maxim = qRound(pagina / k - fereastra / k + SpatiuBaraTwips);
        if (maxim < 1) {
            bara->setEnabled(false);
            bara->setRange(0, 0);
            bara->setValue(0);
            return;
        }
        bara->setEnabled(true);
        bara->setRange(0, maxim);
        bara->setSingleStep(qMax(1, maxim / 500));
        bara->setPageStep(qMax(1, maxim / pasMare));
    };
    ajusteaza(m_vBar, m_picPrint->height(), m_picTata->height(), 50);
    ajusteaza(m_hBar, m_picPrint->width(), m_picTata->width(), 5);
    PozitioneazaPagina();
}

void frmPrint::PozitioneazaPagina()
{
    const double k = pixeliPeTwip(this);
    m_picPrint->move(qRound((MargineTwips - m_hBar->value()) * k), qRound((MargineTwips - m_vBar->value()) * k));
}

bool frmPrint::eventFilter(QObject* o, QEvent* e)
{
    if (e->type() == QEvent::Wheel && (o == m_picPrint || o == m_picTata)) {
        // The wheel scrolls the page (with Shift across), Ctrl and the wheel zoom it.
        auto* r = static_cast<QWheelEvent*>(e);
        const int pas = r->angleDelta().y() != 0 ? r->angleDelta().y() : r->angleDelta().x();
        if (r->modifiers() & Qt::ControlModifier)
            Zoom(pas > 0 ? 1 : pas < 0 ? -1 : 0);
        else {
            QScrollBar* bara = r->modifiers() & Qt::ShiftModifier || r->angleDelta().y() == 0 ? m_hBar : m_vBar;
            // One notch of the wheel is a tenth of a large step.
            bara->setValue(bara->value() - pas * std::max(1, bara->pageStep() / 10) / 120);
        }
        return true;
    }
    if (o != m_picPrint)
        return QDialog::eventFilter(o, e);
    const double pxPeMm = pixeliPeTwip(this) * m_zoom * TwipsPeMm;
    if (e->type() == QEvent::MouseButtonPress) {
        auto* m = static_cast<QMouseEvent*>(e);
        if (m->button() == Qt::LeftButton)
            m_startTragere = QPoint(int(m->position().x() / pxPeMm), int(m->position().y() / pxPeMm));
    } else if (e->type() == QEvent::MouseMove) {
        auto* m = static_cast<QMouseEvent*>(e);
        if (m->buttons() & Qt::LeftButton) {
            const QPointF mm = m->position() / pxPeMm;
            const QPointF muta = (mm - QPointF(m_startTragere)) * pxPeMm;
            m_picPrint->move(m_picPrint->pos() + muta.toPoint());
        }
    }
    return QDialog::eventFilter(o, e);
}

void frmPrint::Tipareste(ComandaTiparire comanda)
{
    CursorAsteptare c;
    QPrinter imprimanta(QPrinter::HighResolution);
    imprimanta.setPageSize(QPageSize(QPageSize::A4));
    imprimanta.setFullPage(true);
    imprimanta.setColorMode(m_chkColor->isChecked() ? QPrinter::Color : QPrinter::GrayScale);
    imprimanta.setDocName(TitluFormular(m_tip));
    const int copii = NumarCopii(m_txtNrPag->text());
    if (copii == 0)
        return;
    QPainter p;
    if (!p.begin(&imprimanta)) {
        SpuneImprimantaNuTipareste(imprimanta);
        return;
    }
    SuprafataPictor s(p, &imprimanta, false);
    const SursaFormular sursa = Sursa();
    TiparesteFormular(s, comanda, m_tip, m_pagina, copii,
                      [&](PageSurface& x, int index) { DeseneazaPagina(x, m_tip, index, m_mod, sursa); });
}

void frmPrint::cmdPdf_Click()
{
    const QString fisier =
        AlegeFisierPdf(this, m_tip == FormularAncheta ? QStringLiteral("Ancheta.pdf") : QStringLiteral("Cerere.pdf"));
    if (fisier.isEmpty())
        return;
    QString eroare;
    bool scris;
    {
        CursorAsteptare c;
        scris = ScriePdfFormular(fisier, m_tip, m_mod, Sursa(), {}, &eroare);
    }
    if (scris)
        SpunePdfScris(fisier);
    else
        Mesaj(eroare, Mesaje::Icon::Exclamare);
}
