#include "gui/ButoaneDialog.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

ButoaneOkRenunta CreeazaButoaneOkRenunta(QDialog* d)
{
    auto* ok = new QPushButton(QStringLiteral("OK"), d);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setAutoDefault(false);
    auto* renunta = new QPushButton(QStringLiteral("Renunta"), d);
    renunta->setObjectName(QStringLiteral("cmdCancel"));
    renunta->setAutoDefault(false);
    auto* rand = new QHBoxLayout;
    rand->addStretch(1);
    rand->addWidget(ok);
    rand->addWidget(renunta);
    return {ok, renunta, rand};
}
