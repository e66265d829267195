#include "maintenance/frmCopieLaPornire.h"

#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>
#include <QTimer>

namespace {
// How long the end of the copy stays in the status bar.
constexpr int AfisareSfarsitMs = 60000;
} // namespace

frmCopieLaPornire::frmCopieLaPornire(QWidget* parinte) : QWidget(parinte)
{
    setObjectName(QStringLiteral("frmCopieLaPornire"));
    m_lbl = new QLabel(QStringLiteral("Copie de siguranta..."), this);
    m_lbl->setObjectName(QStringLiteral("lblCopieLaPornire"));
    m_prg = new QProgressBar(this);
    m_prg->setObjectName(QStringLiteral("prgCopieLaPornire"));
    m_prg->setRange(0, 100);
    m_prg->setMaximumWidth(120);
    auto* l = new QHBoxLayout(this);
    l->setContentsMargins(0, 0, 0, 0);
    l->addWidget(m_lbl);
    l->addWidget(m_prg);
    connect(&m_copie, &CopieInFundal::progres, m_prg, &QProgressBar::setValue);
    connect(&m_copie, &CopieInFundal::gata, this, &frmCopieLaPornire::gata);
}

bool frmCopieLaPornire::Porneste(QMainWindow& w)
{
    const LocCopii loc = LocCopiiDinSetari(Proces::setari());
    const QDateTime acum = MomentCopie();
    try {
        if (!CopieNecesara(loc, acum))
            return false;
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Exclamare);
        return false;
    }
    auto* f = new frmCopieLaPornire(w.statusBar());
    w.statusBar()->addPermanentWidget(f);
    f->m_copie.porneste(loc, acum);
    return true;
}

void frmCopieLaPornire::gata(bool buna, const QString& text)
{
    m_prg->setVisible(false);
    m_lbl->setText(buna ? QStringLiteral("Copie de siguranta facuta") : QStringLiteral("Copia de siguranta a esuat"));
    m_lbl->setToolTip(text);
    QTimer::singleShot(AfisareSfarsitMs, this, &QWidget::hide);
    if (!buna)
        Mesaj(text, Mesaje::Icon::Critic, QStringLiteral("Copii de siguranta"));
}
