#pragma once
#include "database/Schema.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

class BD;

// The definition operations on an open database, read from and written to the engine's own
// catalogue: tests for a column, a table and a relation; add, rename and delete a column;
// create a table and a relation with both cascades. Where SQLite cannot change a table in
// place (a new relation, a column that an index or a key holds), the table is rebuilt with
// every row, inside the caller's transaction; foreign keys must then be off (PauzaCheiStraine).
//
// The catalogue is read once per table and kept until a change, so that the tests on a file
// that is already up to date cost one reading per table.
class DefinitiiBD {
public:
    explicit DefinitiiBD(BD& bd);

    bool TabelaExista(const QString& tabela);
    bool CampExista(const QString& tabela, const QString& coloana);
    // A relation of the program's schema, known by its name.
    bool RelatieExista(const QString& nume);
    bool IndexExista(const QString& nume);

    void AdaugaCamp(const QString& tabela, const Camp& c);
    void RedenumesteCamp(const QString& tabela, const QString& vechi, const QString& nou);
    void StergeCamp(const QString& tabela, const QString& coloana);
    // The table with one column; the column is its key when the program's schema says so.
    void CreeazaTabela(const QString& tabela, const Camp& prima);
    // The relation with cascading update and delete. Throws Eroare when rows of the child
    // table have no parent.
    void CreeazaRelatie(const Legatura& l, const QString& tabelaCopil);
    void CreeazaIndex(const QString& nume, const QString& tabela, const QStringList& coloane);
    // True when the column's type in the database is the one the schema gives `c` (the
    // engine's name of it, without regard to case).
    bool AreTipul(const QString& tabela, const Camp& c);
    // The columns take the schema's types, every row kept (on SQLite, a rebuild of the table).
    void SchimbaTipuri(const QString& tabela, const std::vector<Camp>& campuri);

private:
    const QStringList& coloane(const QString& tabela);
    void uita(const QString& tabela);
    // The columns named in `tipuriNoi` (lower case) get the type given there.
    void refaTabela(const QString& tabela, const QString& faraColoana, const Legatura* nouaLegatura,
                    const QHash<QString, QString>& tipuriNoi = {});
    bool sqlite() const;

    BD& m_bd;
    bool m_tabeleCitite = false;
    QSet<QString> m_tabele; // lower case
    QHash<QString, QStringList> m_coloane;
    QHash<QString, QSet<QString>> m_legaturi; // child table -> "coloana>parinte.coloana", lower case
    bool m_indexuriCitite = false;
    QSet<QString> m_indexuri;
    bool m_tipuriCitite = false;
    QHash<QString, QString> m_tipuri; // "tabela.coloana" -> the engine's type, lower case
};

// Foreign keys off for as long as it lives (outside any transaction), so that a rebuilt parent
// table does not take its children's rows with it; on again at the end.
class PauzaCheiStraine {
public:
    explicit PauzaCheiStraine(BD& bd);
    ~PauzaCheiStraine();
    PauzaCheiStraine(const PauzaCheiStraine&) = delete;
    PauzaCheiStraine& operator=(const PauzaCheiStraine&) = delete;

private:
    BD& m_bd;
};
