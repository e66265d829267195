#pragma once
#include "mainwindow/ListaCereri.h"

#include <QAbstractTableModel>
#include <QColor>

// The rows of lvwCereri behind the list view: twelve columns a row (the first, the CerereID, is
// the hidden column), a colour a row, and the list's own text sort. Holds a hundred thousand
// rows and more; a whole list arrives in one piece, and the texts are made as the view asks.
class ModelCereri : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parinte = {}) const override;
    int columnCount(const QModelIndex& parinte = {}) const override;
    QVariant data(const QModelIndex& index, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int sectiune, Qt::Orientation o, int rol = Qt::DisplayRole) const override;
    // Sorts the texts of a column, always ascending and without regard to case, as the
    // office's list did; the order argument is not used. -1 only forgets the sort column.
    void sort(int coloana, Qt::SortOrder ordine = Qt::AscendingOrder) override;

    void goleste();
    // A whole list, in the order given (the sort column, if any, is applied after).
    void incarca(std::vector<RandCerere> randuri);
    // ConstruiesteRand: with Adaug 0 or 1 a new row at the end (or in its sorted place while
    // the list is sorted); with Adaug 2 the row `randSelectat` is written over. Returns the
    // row's position. Adaug 2 with no selected row throws Eroare (91), as the office's list did.
    int puneRand(const RandCerere& rand, int adaug, int randSelectat);
    void elimina(int rand);

    qint64 id(int rand) const;
    QString text(int rand, int coloana) const;
    // The position of an application, -1 when it is not in the list.
    int randDupaId(qint64 cerereId) const;
    // The colour shown on a row; invalid for the list's default.
    QColor culoare(int rand) const;
    int coloanaSortare() const { return m_coloanaSortare; }

private:
    struct Rand {
        RandCerere date;
        QColor culoare;
    };
    static QColor culoareNoua(CuloareRand c, const QColor& veche);
    std::vector<Rand> m_randuri;
    int m_coloanaSortare = -1;
};
