#include "gui/ListaRegistru.h"

#include "gui/ActiuniLegate.h"
#include "gui/ButoaneDialog.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

namespace {

class FiltruTaste : public QObject {
public:
    FiltruTaste(QObject* parinte, std::function<void()> modifica, std::function<void()> sterge)
        : QObject(parinte), m_modifica(std::move(modifica)), m_sterge(std::move(sterge))
    {
    }

    bool eventFilter(QObject* obj, QEvent* ev) override
    {
        if (ev->type() == QEvent::KeyPress) {
            const int tasta = static_cast<QKeyEvent*>(ev)->key();
            if (tasta == Qt::Key_Return || tasta == Qt::Key_Enter) {
                RuleazaProtejat(m_modifica);
                return true;
            }
            if (tasta == Qt::Key_Delete) {
                RuleazaProtejat(m_sterge);
                return true;
            }
        }
        return QObject::eventFilter(obj, ev);
    }

private:
    std::function<void()> m_modifica, m_sterge;
};

} // namespace

QTreeWidget* CreeazaLista(QWidget* parinte, const QString& nume, const QStringList& coloane)
{
    auto* l = new QTreeWidget(parinte);
    l->setObjectName(nume);
    l->setRootIsDecorated(false);
    l->setUniformRowHeights(true);
    l->setAllColumnsShowFocus(true);
    l->setSelectionMode(QAbstractItemView::SingleSelection);
    l->setSelectionBehavior(QAbstractItemView::SelectRows);
    l->setHeaderLabels(coloane);
    l->header()->setSectionsClickable(true);
    l->header()->setSortIndicatorShown(false);
    // A click on a head sorts by that column, always ascending.
    QObject::connect(l->header(), &QHeaderView::sectionClicked, l,
                     [l](int coloana) { l->sortItems(coloana, Qt::AscendingOrder); });
    return l;
}

void LeagaTasteLista(QTreeWidget* lista, std::function<void()> modifica, std::function<void()> sterge)
{
    lista->installEventFilter(new FiltruTaste(lista, modifica, sterge));
    QObject::connect(lista, &QTreeWidget::itemDoubleClicked, lista,
                     [modifica](QTreeWidgetItem*, int) { RuleazaProtejat(modifica); });
}

void SelecteazaRand(QTreeWidget* lista, int rand)
{
    const int n = lista->topLevelItemCount();
    if (n == 0) {
        lista->setCurrentItem(nullptr);
        lista->clearSelection();
        return;
    }
    QTreeWidgetItem* it = lista->topLevelItem(qBound(0, rand, n - 1));
    lista->setCurrentItem(it);
    it->setSelected(true);
    lista->scrollToItem(it);
}

ButoaneRegistru CreeazaButoaneRegistru(QWidget* parinte)
{
    return {CreeazaButon(parinte, "cmdAdd", QStringLiteral("&Adaugare")),
            CreeazaButon(parinte, "cmdEdit", QStringLiteral("&Modificare")),
            CreeazaButon(parinte, "cmdDelete", QStringLiteral("&Stergere")),
            CreeazaButon(parinte, "cmdClose", QStringLiteral("&Iesire"))};
}

QHBoxLayout* RandButoaneRegistru(const ButoaneRegistru& b)
{
    auto* rand = new QHBoxLayout;
    rand->addWidget(b.add);
    rand->addWidget(b.edit);
    rand->addWidget(b.sterge);
    rand->addStretch(1);
    rand->addWidget(b.close);
    return rand;
}

QLabel* CreeazaAntet(QWidget* parinte, const QString& text)
{
    auto* l = new QLabel(text, parinte);
    l->setObjectName(QStringLiteral("lblAntet"));
    QFont f = l->font();
    f.setBold(true);
    f.setPointSize(f.pointSize() + 4);
    l->setFont(f);
    return l;
}
