#include "applications/frmBife.h"

#include "gui/ButoaneDialog.h"

#include "applications/RegulaVenituriLocuinta.h"
#include "database/BD.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

frmBife::frmBife(QWidget* parent, Cerere& cerere) : QDialog(parent), m_c(cerere)
{
    setObjectName(QStringLiteral("frmBife"));
    setWindowTitle(QStringLiteral("Bunuri care duc la excludere"));
    resize(620, 460);

    m_lista = new QListWidget(this);
    m_lista->setObjectName(QStringLiteral("lstBife"));
    const QStringList randuri = RanduriBife(BD::principala());
    const std::vector<bool> bifate = BifeBifate(m_c.Bife, static_cast<int>(randuri.size()));
    for (int i = 0; i < randuri.size(); ++i) {
        auto* it = new QListWidgetItem(randuri[i], m_lista);
        it->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        it->setCheckState(bifate[static_cast<std::size_t>(i)] ? Qt::Checked : Qt::Unchecked);
    }

    const auto [ok, renunta, butoane] = CreeazaButoaneOkRenunta(this);
    auto* l = new QVBoxLayout(this);
    l->addWidget(m_lista, 1);
    l->addLayout(butoane);

    connect(ok, &QPushButton::clicked, this, &frmBife::ok);
    connect(renunta, &QPushButton::clicked, this, &QDialog::reject);
}

void frmBife::ok()
{
    std::vector<bool> bifate;
    for (int i = 0; i < m_lista->count(); ++i)
        bifate.push_back(m_lista->item(i)->checkState() == Qt::Checked);
    m_c.Bife = TextBife(bifate);
    accept();
}
