#include "gui/LatimiColoane.h"

#include "common/Data.h"

#include <QHeaderView>
#include <QStyle>
#include <QTreeView>

void LargesteColoana(QTreeView* lista, int coloana, const QString& celMaiLung)
{
    if (lista->isColumnHidden(coloana))
        return;
    int necesar = lista->header()->sectionSizeHint(coloana);
    if (!celMaiLung.isEmpty()) {
        // The margins that an item view keeps on each side of a cell's text.
        const int margine = lista->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, lista) + 1;
        necesar = std::max(necesar, lista->fontMetrics().horizontalAdvance(celMaiLung) + 2 * margine + 2);
    }
    if (lista->columnWidth(coloana) < necesar)
        lista->setColumnWidth(coloana, necesar);
}

void LargesteColoane(QTreeView* lista)
{
    const int n = lista->header()->count();
    for (int c = 0; c < n; ++c) {
        if (lista->isColumnHidden(c) || lista->columnWidth(c) == 0)
            continue;
        // The rows' measure is public on the base of every item view.
        const int necesar = std::max(lista->header()->sectionSizeHint(c),
                                     static_cast<const QAbstractItemView*>(lista)->sizeHintForColumn(c));
        if (lista->columnWidth(c) < necesar)
            lista->setColumnWidth(c, necesar);
    }
}

QString DataLungaModel()
{
    // The longest month name, on a two-digit day.
    return TextDataLunga(QDate(2026, 9, 28));
}

QString CNPModel()
{
    return QStringLiteral("8888888888888");
}
