#include "gui/ComboCod.h"

#include "database/CoduriDateGen.h"

#include <QComboBox>

void UmpleComboCod(QComboBox* c, const BD& bd, int tip)
{
    c->clear();
    for (const ElementCod& e : CitesteListaCod(bd, tip))
        c->addItem(e.text, e.id);
    c->setCurrentIndex(-1);
}

int CheieCombo(const QComboBox* c)
{
    const int i = c->currentIndex();
    if (i < 0)
        return 0;
    // An editable combo whose text no longer matches its row has no row chosen.
    if (c->isEditable() && c->currentText() != c->itemText(i))
        return 0;
    return c->itemData(i).toInt();
}

void SelecteazaCheie(QComboBox* c, int cheie)
{
    c->setCurrentIndex(c->findData(cheie));
}
