#include "registers/frmRegistru.h"
#include "gui/LatimiColoane.h"

#include "database/BD.h"
#include "gui/ActiuniLegate.h"
#include "gui/ButoaneDialog.h"
#include "gui/FiltruEditare.h"
#include "gui/Modal.h"
#include "gui/ListaRegistru.h"
#include "common/Mesaje.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QStringList valoriRand(const QTreeWidgetItem* it)
{
    QStringList v;
    for (int c = 1; c < it->columnCount(); ++c)
        v << it->text(c);
    return v;
}

} // namespace

frmListaRegistru::frmListaRegistru(const FereastraRegistru& f, QWidget* parent) : QDialog(parent), m_f(f)
{
    setObjectName(QString::fromLatin1(f.numeLista));
    setWindowTitle(QString::fromLatin1(f.titlu));
    auto* antet = CreeazaAntet(this, QString::fromLatin1(f.antet));
    m_lista = CreeazaLista(this, QString::fromLatin1(f.lista), f.coloane);
    m_lista->setMinimumSize(520, 320);

    const ButoaneRegistru b = CreeazaButoaneRegistru(this);
    m_edit = b.edit;
    m_delete = b.sterge;
    QHBoxLayout* rand = RandButoaneRegistru(b);
    auto* l = new QVBoxLayout(this);
    l->addWidget(antet);
    l->addWidget(m_lista, 1);
    l->addLayout(rand);

    LeagaActiune(b.add, [this] { cmdAdd_Click(); });
    LeagaActiune(m_edit, [this] { cmdEdit_Click(); });
    LeagaActiune(m_delete, [this] { cmdDelete_Click(); });
    LeagaActiune(b.close, [this] { reject(); });
    LeagaTasteLista(
        m_lista, [this] { cmdEdit_Click(); }, [this] { cmdDelete_Click(); });
    RuleazaProtejat([this] { umple(); });
    LargesteColoane(m_lista);
}

void frmListaRegistru::umple()
{
    m_lista->clear();
    const auto randuri = CitesteRegistru(BD::principala(), m_f.registru());
    QList<QTreeWidgetItem*> iteme;
    for (const RandRegistru& r : randuri) {
        auto* it = new QTreeWidgetItem(QStringList{QString::number(r.id)} + r.valori);
        iteme << it;
    }
    m_lista->addTopLevelItems(iteme);
    Activeaza(m_edit, !randuri.empty());
    Activeaza(m_delete, !randuri.empty());
}

void frmListaRegistru::cmdAdd_Click()
{
    frmAdRegistru ed(m_f, 1, 0, {}, this);
    if (DeschideModal(ed) != QDialog::Accepted)
        return;
    umple();
    SelecteazaRand(m_lista, m_lista->topLevelItemCount() - 1);
}

void frmListaRegistru::cmdEdit_Click()
{
    QTreeWidgetItem* it = m_lista->currentItem();
    if (!it || !it->isSelected()) {
        Mesaj(QString::fromLatin1(m_f.faraSelectieModificare));
        return;
    }
    const int pozitie = m_lista->indexOfTopLevelItem(it);
    frmAdRegistru ed(m_f, 2, it->text(0).toLongLong(), valoriRand(it), this);
    if (DeschideModal(ed) != QDialog::Accepted)
        return;
    umple();
    SelecteazaRand(m_lista, pozitie);
}

void frmListaRegistru::cmdDelete_Click()
{
    QTreeWidgetItem* it = m_lista->currentItem();
    if (!it || !it->isSelected()) {
        Mesaj(QString::fromLatin1(m_f.faraSelectieStergere));
        return;
    }
    if (!StergeDinRegistru(BD::principala(), m_f.registru(), it->text(0).toLongLong(), it->text(1)))
        return;
    const int pozitie = m_lista->indexOfTopLevelItem(it);
    delete it;
    SelecteazaRand(m_lista, pozitie);
}

frmAdRegistru::frmAdRegistru(const FereastraRegistru& f, int adaug, qint64 id, const QStringList& valori,
                             QWidget* parent)
    : QDialog(parent), m_f(f), m_adaug(adaug), m_id(id)
{
    setObjectName(QString::fromLatin1(f.numeEditor));
    setWindowTitle(QString::fromLatin1(adaug == 1 ? f.titluAdaugare : f.titluModificare));
    auto* grila = new QGridLayout;
    for (int i = 0; i < f.etichete.size(); ++i) {
        auto* e = new QLineEdit(this);
        e->setObjectName(NumeControl("txtText", i));
        e->setText(valori.value(i));
        auto* et = new QLabel(f.etichete[i], this);
        et->setBuddy(e);
        grila->addWidget(et, i, 0);
        grila->addWidget(e, i, 1);
        m_txt << e;
    }
    m_txt[0]->setMaxLength(50);
    m_txt[0]->setToolTip(QString::fromLatin1(f.sfat));
    m_txt[0]->setMinimumWidth(320);
    const ButoaneOkRenunta b = CreeazaButoaneOkRenunta(this);
    SfaturiOkRenunta(b);
    auto* l = new QVBoxLayout(this);
    l->addLayout(grila);
    l->addLayout(b.rand);
    InstaleazaFiltruEditare(this);
    LeagaActiune(b.ok, [this] { cmdOK_Click(); });
    connect(b.renunta, &QPushButton::clicked, this, &QDialog::reject);
}

void frmAdRegistru::cmdOK_Click()
{
    QStringList v;
    for (QLineEdit* e : m_txt)
        v << e->text();
    if (SalveazaInRegistru(BD::principala(), m_f.registru(), m_adaug == 1, m_id, v) == 0) {
        m_txt[0]->setFocus();
        return;
    }
    accept();
}
