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

void SfaturiOkRenunta(const ButoaneOkRenunta& b)
{
    b.ok->setToolTip(QStringLiteral("Clic aici pentru a salva datele"));
    b.renunta->setToolTip(QStringLiteral("Clic aici pentru a renunta"));
}

QPushButton* CreeazaButon(QWidget* parinte, const char* nume, const QString& text)
{
    auto* b = new QPushButton(text, parinte);
    b->setObjectName(QString::fromLatin1(nume));
    b->setAutoDefault(false);
    return b;
}
