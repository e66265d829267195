#include "gui/ComboCod.h"

#include <QComboBox>

void UmpleCombo(QComboBox* c, const std::vector<ElementCod>& elemente)
{
    c->clear();
    for (const ElementCod& e : elemente)
        c->addItem(e.text, e.id);
    c->setCurrentIndex(-1);
    if (c->isEditable())
        c->setEditText(QString());
}

void UmpleComboCod(QComboBox* c, const BD& bd, int tip)
{
    UmpleCombo(c, CitesteListaCod(bd, tip));
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
