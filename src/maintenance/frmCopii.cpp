#include "maintenance/frmCopii.h"

#include "database/ActualizareBD.h"
#include "database/BD.h"
#include "gui/ButoaneDialog.h"
#include "gui/CursorAsteptare.h"
#include "maintenance/RestaurareCopie.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const QString TitluCopii = QStringLiteral("Copii de siguranta");

QString textMoment(const QDateTime& t)
{
    return TextData(t.date()) + QLatin1Char(' ') + t.time().toString(QStringLiteral("HH:mm:ss"));
}

QString textVerificata(const CopieListata& c)
{
    if (!c.inIndex)
        return QStringLiteral("nu (lipseste din index)");
    if (!c.inregistrare.verificare.buna)
        return QStringLiteral("NU: ") + c.inregistrare.verificare.motiv;
    return QStringLiteral("da, ") + textMoment(c.inregistrare.verificata);
}

// The process's connection goes while the file is replaced, and comes back on the restored data,
// brought up to date as at a start.
struct LegaturaInchisa {
    ~LegaturaInchisa()
    {
        const Setari& s = Proces::setari();
        try {
            BD::principala().deschideOficiu(s.CaleBD, s.ServerBD);
            ActualizeazaBD(BD::principala(), s.CaleBD);
        } catch (const Eroare& e) {
            Mesaj(e.text(), Mesaje::Icon::Critic);
        }
    }
};

} // namespace

frmCopii::frmCopii(QWidget* parinte) : QWidget(parinte), m_loc(LocCopiiDinSetari(Proces::setari()))
{
    setObjectName(QStringLiteral("pic(2)"));
    m_lblFolder =
        new QLabel(QStringLiteral("Folderul copiilor: %1 (se pastreaza %2 zilnice, %3 saptamanale, %4 lunare)")
                       .arg(QDir::toNativeSeparators(m_loc.folderCopii))
                       .arg(m_loc.regula.zilnice)
                       .arg(m_loc.regula.saptamanale)
                       .arg(m_loc.regula.lunare),
                   this);
    m_lblFolder->setObjectName(QStringLiteral("lblFolderCopii"));
    m_lblFolder->setWordWrap(true);

    m_lvwCopii = new QTreeWidget(this);
    m_lvwCopii->setObjectName(QStringLiteral("lvwCopii"));
    m_lvwCopii->setHeaderLabels(
        {QStringLiteral("Data"), QStringLiteral("Marime"), QStringLiteral("Verificata"), QStringLiteral("Randuri")});
    m_lvwCopii->setRootIsDecorated(false);
    m_lvwCopii->setSelectionMode(QAbstractItemView::SingleSelection);
    m_lvwCopii->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    m_prgCopie = new QProgressBar(this);
    m_prgCopie->setObjectName(QStringLiteral("prgCopie"));
    m_prgCopie->setRange(0, 100);
    m_prgCopie->setVisible(false);
    m_lblStare = new QLabel(this);
    m_lblStare->setObjectName(QStringLiteral("lblStareCopie"));
    m_lblStare->setWordWrap(true);

    m_cmdCopieAcum = CreeazaButon(this, "cmdCopieAcum", QStringLiteral("Copie de siguranta acum"));
    m_cmdVerifica = CreeazaButon(this, "cmdVerificaCopia", QStringLiteral("Verifica copia aleasa"));
    m_cmdRestaureaza = CreeazaButon(this, "cmdRestaureaza", QStringLiteral("Restaureaza copia aleasa..."));
    auto* butoane = new QHBoxLayout;
    butoane->addWidget(m_cmdCopieAcum);
    butoane->addWidget(m_cmdVerifica);
    butoane->addWidget(m_cmdRestaureaza);
    butoane->addStretch(1);

    auto* l = new QVBoxLayout(this);
    l->addWidget(m_lblFolder);
    l->addWidget(m_lvwCopii, 1);
    l->addWidget(m_prgCopie);
    l->addWidget(m_lblStare);
    l->addLayout(butoane);

    connect(m_cmdCopieAcum, &QPushButton::clicked, this, &frmCopii::cmdCopieAcum_Click);
    connect(m_cmdVerifica, &QPushButton::clicked, this, &frmCopii::cmdVerifica_Click);
    connect(m_cmdRestaureaza, &QPushButton::clicked, this, &frmCopii::cmdRestaureaza_Click);
    connect(&m_copie, &CopieInFundal::progres, m_prgCopie, &QProgressBar::setValue);
    connect(&m_copie, &CopieInFundal::gata, this, &frmCopii::copieGata);
    Reincarca();
}

void frmCopii::Reincarca()
{
    m_lvwCopii->clear();
    const QLocale ro(QLocale::Romanian, QLocale::Romania);
    for (const CopieListata& c : ListaCopii(m_loc.folderCopii)) {
        auto* r = new QTreeWidgetItem(m_lvwCopii);
        r->setText(0, textMoment(c.facuta));
        r->setText(1, ro.formattedDataSize(c.marime, 1, QLocale::DataSizeTraditionalFormat));
        r->setText(2, textVerificata(c));
        r->setText(3, c.inIndex ? QString::number(c.inregistrare.verificare.totalRanduri()) : QString());
        r->setData(0, Qt::UserRole, c.fisier);
        r->setToolTip(0, QDir::toNativeSeparators(c.fisier));
    }
    if (m_lvwCopii->topLevelItemCount() > 0)
        m_lvwCopii->setCurrentItem(m_lvwCopii->topLevelItem(0));
}

QString frmCopii::copieAleasa() const
{
    const QTreeWidgetItem* r = m_lvwCopii->currentItem();
    if (!r) {
        Mesaj(QStringLiteral("Alegeti o copie din lista."), Mesaje::Icon::Exclamare, TitluCopii);
        return QString();
    }
    return r->data(0, Qt::UserRole).toString();
}

void frmCopii::cmdCopieAcum_Click()
{
    if (!m_copie.porneste(m_loc, MomentCopie()))
        return;
    m_cmdCopieAcum->setEnabled(false);
    m_cmdRestaureaza->setEnabled(false);
    m_prgCopie->setValue(0);
    m_prgCopie->setVisible(true);
    m_lblStare->setText(QStringLiteral("Se face copia de siguranta a datelor..."));
}

void frmCopii::copieGata(bool buna, const QString& text)
{
    m_prgCopie->setVisible(false);
    m_cmdCopieAcum->setEnabled(true);
    m_cmdRestaureaza->setEnabled(true);
    m_lblStare->setText(text);
    Reincarca();
    if (!buna)
        Mesaj(text, Mesaje::Icon::Critic, TitluCopii);
}

void frmCopii::cmdVerifica_Click()
{
    const QString cale = copieAleasa();
    if (cale.isEmpty())
        return;
    VerificareCopie v;
    {
        CursorAsteptare asteptare;
        v = VerificaCopie(cale);
    }
    if (v.buna)
        Mesaj(QStringLiteral("Copia %1 este buna: integritate %2, %3 randuri.")
                  .arg(QFileInfo(cale).fileName(), v.integritate)
                  .arg(v.totalRanduri()),
              Mesaje::Icon::Informatie, TitluCopii);
    else
        Mesaj(v.motiv, Mesaje::Icon::Critic, TitluCopii);
}

void frmCopii::cmdRestaureaza_Click()
{
    const QString cale = copieAleasa();
    if (cale.isEmpty() || m_copie.inCurs())
        return;
    const QString moment = textMoment(IndexCopii::MomentDinNume(QFileInfo(cale).fileName()));
    if (!Intrebare(QStringLiteral("Datele oficiului se inlocuiesc cu cele din copia din %1.\nDatele de acum se "
                                  "pastreaza intr-un fisier Tarnava-inainte-de-restaurare.\nRestaurati copia?")
                       .arg(moment),
                   TitluCopii))
        return;
    RezultatRestaurare r;
    try {
        CursorAsteptare asteptare;
        LegaturaInchisa legatura;
        BD::principala().inchide();
        // The question above was the office's consent to replace what the database holds.
        r = RestaureazaCopie(m_loc, cale, true, MomentCopie());
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic, TitluCopii);
        return;
    }
    Reincarca();
    emit DateRestaurate();
    QString text = QStringLiteral("Datele oficiului au fost restaurate din copia din %1 (%2 randuri).")
                       .arg(moment)
                       .arg(r.verificare.totalRanduri());
    if (!r.pastrat.isEmpty())
        text += QStringLiteral("\nDatele de dinainte sunt pastrate in %1.").arg(QDir::toNativeSeparators(r.pastrat));
    text += QStringLiteral("\nLista de cereri din fereastra principala se goleste: apasati Cauta pentru cererile din "
                           "copia restaurata.");
    Mesaj(text, Mesaje::Icon::Informatie, TitluCopii);
}
