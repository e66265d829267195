#pragma once
#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>
#include <optional>

class BD;
struct ListaColoanei;

// A value checked against its column: the value to store, or why it is refused.
struct ValoareVerificata {
    QVariant valoare; // the value to store, exactly the one given; invalid when refused
    QString refuz;    // "<element>: Valoarea ... campul ...": names element, field and value
    bool ok() const { return refuz.isEmpty(); }
};

// The one check of a value on its way into a column of the office's tables, for every way in
// (the application editor, the import, an office's old data brought in): the value fits its
// column exactly (ValoareInAfaraColoanei: its range, whole numbers without a fraction, money
// with at most four decimals, texts within their size), and in a coded column it is one of the
// codes that the editor offers for that field: the DateGen list of the column (the status, the
// relationship, the occupation...), the two kinds of allowance, the twelve months, the eight
// housing kinds, the income codes of ListaVenituri. A code 0 is "nothing chosen" wherever the
// editor's list may be left without a choice (whether the field is required is the editor's
// own check); a housing kind and an income code are never 0.
class ValoriPermise {
public:
    // The lists are read from `bd` the first time they are needed (DateGen in one statement),
    // as the editors fill their combo boxes, and kept: they change only with an upgrade.
    explicit ValoriPermise(const BD& bd);

    // `element` says where the value comes from ("Elementul 3, membrul 2"); it heads the
    // refusal. A NULL (or invalid) value is no value, and is accepted.
    ValoareVerificata verifica(const QString& element, const QString& tabela, const QString& coloana,
                               const QVariant& valoare) const;

    // The codes the editor offers for a column, in the list's order; nothing for a column that
    // takes no code.
    std::optional<QList<int>> coduri(const QString& tabela, const QString& coloana) const;

private:
    QList<int> coduri(const ListaColoanei& lista) const;

    const BD& m_bd;
    mutable std::optional<QHash<int, QList<int>>> m_dateGen; // Tip -> DataID in the list's order
    mutable std::optional<QList<int>> m_venituri;
};
