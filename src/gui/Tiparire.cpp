#include "gui/Tiparire.h"

#include "common/Mesaje.h"
#include "common/Proces.h"
#include "gui/Modal.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QToolBar>
#include <QWheelEvent>

namespace {

// Ctrl and the wheel over the preview's page zoom it.
class ZoomCuRotita : public QObject {
public:
    explicit ZoomCuRotita(QPrintPreviewWidget* w) : QObject(w), m_w(w) {}
    bool eventFilter(QObject*, QEvent* e) override
    {
        if (e->type() != QEvent::Wheel)
            return false;
        auto* r = static_cast<QWheelEvent*>(e);
        if (!(r->modifiers() & Qt::ControlModifier))
            return false;
        if (r->angleDelta().y() > 0)
            m_w->zoomIn();
        else if (r->angleDelta().y() < 0)
            m_w->zoomOut();
        return true;
    }

private:
    QPrintPreviewWidget* m_w;
};

} // namespace

QString AlegeFisierPdf(QWidget* parinte, const QString& numeImplicit)
{
    QFileDialog d(parinte, QStringLiteral("Salvare PDF"), QDir(Proces::folderProgram()).filePath(numeImplicit),
                  QStringLiteral("Fisiere PDF (*.pdf)"));
    d.setObjectName(QStringLiteral("dlgSalvarePdf"));
    d.setAcceptMode(QFileDialog::AcceptSave);
    d.setDefaultSuffix(QStringLiteral("pdf"));
    if (DeschideModal(d) != QDialog::Accepted || d.selectedFiles().isEmpty())
        return QString();
    QString cale = d.selectedFiles().first();
    if (cale.isEmpty())
        return QString();
    if (!cale.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        cale += QStringLiteral(".pdf");
    return cale;
}

void SpunePdfScris(const QString& cale)
{
    Mesaj(QStringLiteral("Fisierul PDF a fost scris in ") + QDir::toNativeSeparators(cale));
}

QString MotivImprimanta(const QPrinter& p)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        return QStringLiteral("nu este instalata nicio imprimanta. Salvati documentul ca PDF (butonul PDF) si "
                              "tipariti-l de pe alt calculator.");
    if (p.printerName().isEmpty())
        return QStringLiteral("nu este aleasa nicio imprimanta.");
    return QStringLiteral("imprimanta %1 nu raspunde. Verificati ca este pornita, legata la calculator si are "
                          "hartie.")
        .arg(p.printerName());
}

void SpuneImprimantaNuTipareste(const QPrinter& p)
{
    Mesaj(QStringLiteral("Imprimanta nu poate tipari: ") + MotivImprimanta(p), Mesaje::Icon::Exclamare);
}

void PregatestePrevizualizare(QPrintPreviewDialog& d, const std::function<void()>& pdf)
{
    if (auto* w = d.findChild<QPrintPreviewWidget*>()) {
        auto* zoom = new ZoomCuRotita(w);
        w->installEventFilter(zoom);
        for (QWidget* v : w->findChildren<QWidget*>())
            if (v->objectName() == QLatin1String("qt_scrollarea_viewport"))
                v->installEventFilter(zoom);
    }
    auto* bara = d.findChild<QToolBar*>();
    if (!bara)
        return;
    auto* a = new QAction(QStringLiteral("PDF"), &d);
    a->setObjectName(QStringLiteral("actPdf"));
    a->setToolTip(QStringLiteral("Salveaza intr-un fisier PDF"));
    QObject::connect(a, &QAction::triggered, &d, pdf);
    // Beside the print button, the last of the bar.
    const QList<QAction*> actiuni = bara->actions();
    QAction* dupa = nullptr;
    for (int i = 0; i < actiuni.size(); ++i)
        if (actiuni[i]->text() == QPrintPreviewDialog::tr("Print") ||
            actiuni[i]->objectName() == QLatin1String("print"))
            dupa = i + 1 < actiuni.size() ? actiuni[i + 1] : nullptr;
    bara->insertAction(dupa, a);
}
