#pragma once
#include <QStringList>
#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QTreeWidget;
class QWidget;

// The office's list views: one row a record, its first column the key, every column sortable
// by a click on its head (ascending, by the text), the whole row selected.
QTreeWidget* CreeazaLista(QWidget* parinte, const QString& nume, const QStringList& coloane);

// The habits of a register's list: a double click and Enter run `modifica`, Delete runs
// `sterge`; both with their errors caught and shown.
void LeagaTasteLista(QTreeWidget* lista, std::function<void()> modifica, std::function<void()> sterge);

// Selects the row at that position, or the last when there are fewer, and scrolls it into view;
// nothing when the list is empty. After a row is removed, its position gives the next row.
void SelecteazaRand(QTreeWidget* lista, int rand);

// The buttons of a register: cmdAdd "&Adaugare", cmdEdit "&Modificare", cmdDelete "&Stergere"
// and cmdClose "&Iesire".
struct ButoaneRegistru {
    QPushButton* add;
    QPushButton* edit;
    QPushButton* sterge;
    QPushButton* close;
};
ButoaneRegistru CreeazaButoaneRegistru(QWidget* parinte);
// The buttons in a row: the three of the rows on the left, Iesire on the right.
QHBoxLayout* RandButoaneRegistru(const ButoaneRegistru& b);

// The heading of a register's window: bold and larger.
QLabel* CreeazaAntet(QWidget* parinte, const QString& text);
