#include "mainwindow/ModelCereri.h"

#include "common/Eroare.h"

#include <algorithm>
#include <numeric>

int ModelCereri::rowCount(const QModelIndex& parinte) const
{
    return parinte.isValid() ? 0 : int(m_randuri.size());
}

int ModelCereri::columnCount(const QModelIndex& parinte) const
{
    return parinte.isValid() ? 0 : NrColoaneCereri;
}

QVariant ModelCereri::data(const QModelIndex& index, int rol) const
{
    if (!index.isValid() || index.row() >= int(m_randuri.size()))
        return {};
    const Rand& r = m_randuri[size_t(index.row())];
    switch (rol) {
    case Qt::DisplayRole: return r.date.text(index.column());
    case Qt::ForegroundRole: return r.culoare.isValid() ? QVariant(r.culoare) : QVariant();
    case Qt::UserRole: return r.date.cerereId;
    default: return {};
    }
}

QVariant ModelCereri::headerData(int sectiune, Qt::Orientation o, int rol) const
{
    if (o != Qt::Horizontal || rol != Qt::DisplayRole || sectiune < 0 || sectiune >= NrColoaneCereri)
        return {};
    return QString::fromLatin1(ColoaneCereri()[size_t(sectiune)].titlu);
}

void ModelCereri::sort(int coloana, Qt::SortOrder)
{
    m_coloanaSortare = coloana >= 0 && coloana < NrColoaneCereri ? coloana : -1;
    if (m_coloanaSortare < 0 || m_randuri.size() < 2)
        return;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    std::vector<int> ordine(m_randuri.size());
    std::iota(ordine.begin(), ordine.end(), 0);
    // The texts of the column, made once for the whole sort.
    std::vector<QString> chei;
    chei.reserve(m_randuri.size());
    for (const Rand& r : m_randuri)
        chei.push_back(r.date.text(m_coloanaSortare));
    std::stable_sort(ordine.begin(), ordine.end(), [&](int a, int b) {
        return QString::compare(chei[size_t(a)], chei[size_t(b)], Qt::CaseInsensitive) < 0;
    });
    std::vector<int> pozitieNoua(m_randuri.size());
    std::vector<Rand> sortate;
    sortate.reserve(m_randuri.size());
    for (size_t i = 0; i < ordine.size(); ++i) {
        pozitieNoua[size_t(ordine[i])] = int(i);
        sortate.push_back(std::move(m_randuri[size_t(ordine[i])]));
    }
    m_randuri = std::move(sortate);
    const QModelIndexList vechi = persistentIndexList();
    QModelIndexList noi;
    noi.reserve(vechi.size());
    for (const QModelIndex& i : vechi)
        noi << index(pozitieNoua[size_t(i.row())], i.column());
    changePersistentIndexList(vechi, noi);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void ModelCereri::goleste()
{
    beginResetModel();
    m_randuri.clear();
    endResetModel();
}

void ModelCereri::incarca(std::vector<RandCerere> randuri)
{
    beginResetModel();
    m_randuri.clear();
    m_randuri.reserve(randuri.size());
    for (RandCerere& r : randuri) {
        const QColor c = culoareNoua(r.culoare, QColor());
        m_randuri.push_back({std::move(r), c});
    }
    endResetModel();
    sort(m_coloanaSortare);
}

QColor ModelCereri::culoareNoua(CuloareRand c, const QColor& veche)
{
    switch (c) {
    case CuloareRand::Negru: return QColor(0, 0, 0);
    case CuloareRand::Rosu: return QColor(255, 0, 0);
    case CuloareRand::Neschimbata: break;
    }
    return veche;
}

int ModelCereri::puneRand(const RandCerere& rand, int adaug, int randSelectat)
{
    if (adaug == 2) {
        if (randSelectat < 0 || randSelectat >= int(m_randuri.size()))
            throw Eroare(CodEroare::ObiectNesetat,
                         QStringLiteral("Nu este selectat nici un rand in care sa se scrie cererea"),
                         QStringLiteral("ConstruiesteRand"));
        Rand& r = m_randuri[size_t(randSelectat)];
        r.culoare = culoareNoua(rand.culoare, r.culoare);
        r.date = rand;
        emit dataChanged(index(randSelectat, 0), index(randSelectat, NrColoaneCereri - 1));
        return randSelectat;
    }
    const int n = int(m_randuri.size());
    beginInsertRows({}, n, n);
    m_randuri.push_back({rand, culoareNoua(rand.culoare, QColor())});
    endInsertRows();
    if (m_coloanaSortare >= 0) {
        const QPersistentModelIndex nou(index(n, 0));
        sort(m_coloanaSortare);
        return nou.row();
    }
    return n;
}

void ModelCereri::elimina(int rand)
{
    if (rand < 0 || rand >= int(m_randuri.size()))
        return;
    beginRemoveRows({}, rand, rand);
    m_randuri.erase(m_randuri.begin() + rand);
    endRemoveRows();
}

qint64 ModelCereri::id(int rand) const
{
    return rand >= 0 && rand < int(m_randuri.size()) ? m_randuri[size_t(rand)].date.cerereId : 0;
}

QString ModelCereri::text(int rand, int coloana) const
{
    if (rand < 0 || rand >= int(m_randuri.size()) || coloana < 0 || coloana >= NrColoaneCereri)
        return QString();
    return m_randuri[size_t(rand)].date.text(coloana);
}

int ModelCereri::randDupaId(qint64 cerereId) const
{
    for (size_t i = 0; i < m_randuri.size(); ++i)
        if (m_randuri[i].date.cerereId == cerereId)
            return int(i);
    return -1;
}

QColor ModelCereri::culoare(int rand) const
{
    return rand >= 0 && rand < int(m_randuri.size()) ? m_randuri[size_t(rand)].culoare : QColor();
}
