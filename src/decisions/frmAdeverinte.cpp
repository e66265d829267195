#include "decisions/frmAdeverinte.h"
#include "gui/LatimiColoane.h"

#include "database/BD.h"
#include "decisions/frmAdAdeverinte.h"
#include "gui/ActiuniLegate.h"
#include "gui/CursorAsteptare.h"
#include "gui/Modal.h"
#include "gui/ListaRegistru.h"
#include "common/Data.h"
#include "common/Mesaje.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmAdeverinte::frmAdeverinte(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAdeverinte"));
    setWindowTitle(QStringLiteral("Adeverinte scolarizare"));
    m_lvwCereri = CreeazaLista(this, QStringLiteral("lvwCereri"),
                               {QStringLiteral("ID"), QStringLiteral("Nr Cerere"), QStringLiteral("Nume Titular"),
                                QStringLiteral("Nume Scolar"), QStringLiteral("Data nast"), QStringLiteral("Varsta")});
    m_lvwAdev =
        CreeazaLista(this, QStringLiteral("lvwAdev"),
                     {QStringLiteral("ID"), QStringLiteral("Nr Adev"), QStringLiteral("Data Dep"),
                      QStringLiteral("Data Adev"), QStringLiteral("Data expirarii"), QStringLiteral("Tip adeverinta")});
    m_lvwCereri->setMinimumSize(520, 360);
    m_lvwAdev->setMinimumWidth(460);

    const ButoaneRegistru b = CreeazaButoaneRegistru(this);
    m_edit = b.edit;
    m_delete = b.sterge;
    QHBoxLayout* rand = RandButoaneRegistru(b);
    auto* dreapta = new QVBoxLayout;
    dreapta->addWidget(m_lvwAdev, 1);
    dreapta->addLayout(rand);
    auto* l = new QHBoxLayout(this);
    l->addWidget(m_lvwCereri, 3);
    l->addLayout(dreapta, 2);

    LeagaActiune(b.add, [this] { cmdAdd_Click(); });
    LeagaActiune(m_edit, [this] { cmdEdit_Click(); });
    LeagaActiune(m_delete, [this] { cmdDelete_Click(); });
    LeagaActiune(b.close, [this] { reject(); });
    Activeaza(m_edit, false);
    Activeaza(m_delete, false);
    LeagaTasteLista(
        m_lvwAdev, [this] { cmdEdit_Click(); }, [this] { cmdDelete_Click(); });
    connect(m_lvwCereri, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* it) {
        m_cerereId = it->text(0).toLongLong();
        m_membruId = it->data(0, Qt::UserRole).toLongLong();
        RuleazaProtejat([this] { umpleAdeverinte(); });
    });
    RuleazaProtejat([this] { umpleCereri(); });
    // The dates of the certificates are written long ("28 Septembrie 2026").
    for (int c = 2; c <= 4; ++c)
        LargesteColoana(m_lvwAdev, c, DataLungaModel());
    LargesteColoane(m_lvwAdev);
    LargesteColoane(m_lvwCereri);
}

void frmAdeverinte::umpleCereri()
{
    const CursorAsteptare asteapta;
    m_lvwCereri->clear();
    QList<QTreeWidgetItem*> iteme;
    for (const ElevCerere& e : CitesteEleviCereri(BD::principala(), ReferintaVarsta())) {
        auto* it = new QTreeWidgetItem(
            QStringList{QString::number(e.cerereId), e.nrCerere, e.titular, e.elev, e.dataNasterii, e.varsta});
        it->setData(0, Qt::UserRole, e.membruId); // the pupil: the row's tag
        iteme << it;
    }
    m_lvwCereri->addTopLevelItems(iteme);
}

void frmAdeverinte::umpleAdeverinte()
{
    m_recAdev = CitesteAdeverinte(BD::principala(), m_cerereId, m_membruId);
    m_lvwAdev->clear();
    if (!m_recAdev.empty()) {
        Activeaza(m_edit, true);
        Activeaza(m_delete, true);
    }
    for (const Adeverinta& a : m_recAdev) {
        if (!a.dataExpAdev.isValid())
            Mesaj(QStringLiteral("Adeverinta fara data expirarii"));
        m_lvwAdev->addTopLevelItem(new QTreeWidgetItem(QStringList{
            QString::number(a.adevId), a.nrAdev, TextDataLunga(a.dataDepunerii), TextDataLunga(a.dataAdeverinta),
            TextDataLunga(a.dataExpAdev), TextTipAdeverinta(a.tipAdeverinta)}));
    }
}

const Adeverinta* frmAdeverinte::adeverintaSelectata() const
{
    const QTreeWidgetItem* it = m_lvwAdev->currentItem();
    if (!it || !it->isSelected())
        return nullptr;
    for (const Adeverinta& a : m_recAdev)
        if (QString::number(a.adevId) == it->text(0))
            return &a;
    return nullptr;
}

void frmAdeverinte::cmdAdd_Click()
{
    Adeverinta a;
    a.cerereId = m_cerereId;
    a.membruId = m_membruId;
    frmAdAdeverinte ed(true, a, this);
    if (DeschideModal(ed) != QDialog::Accepted)
        return;
    umpleAdeverinte();
    SelecteazaRand(m_lvwAdev, m_lvwAdev->topLevelItemCount() - 1);
}

void frmAdeverinte::cmdEdit_Click()
{
    const Adeverinta* a = adeverintaSelectata();
    if (!a) {
        Mesaj(QStringLiteral("Selectati mai intai o adeverinta"));
        return;
    }
    frmAdAdeverinte ed(false, *a, this);
    if (DeschideModal(ed) == QDialog::Accepted)
        umpleAdeverinte();
}

void frmAdeverinte::cmdDelete_Click()
{
    const Adeverinta* a = adeverintaSelectata();
    if (!a) {
        Mesaj(QStringLiteral("Selectati mai intai o adeverinta"));
        return;
    }
    if (!Intrebare(QStringLiteral("Sigur doriti sa stergeti datele adeverintei ") + a->nrAdev + QStringLiteral(" ?")))
        return;
    const qint64 id = a->adevId;
    StergeAdeverinta(BD::principala(), id);
    std::erase_if(m_recAdev, [id](const Adeverinta& x) { return x.adevId == id; });
    QTreeWidgetItem* it = m_lvwAdev->currentItem();
    const int pozitie = m_lvwAdev->indexOfTopLevelItem(it);
    delete it;
    SelecteazaRand(m_lvwAdev, pozitie);
}
