#pragma once
#include <QString>
#include <QStringList>
#include <vector>

class BD;

// The two small registers of the same make: the reasons (Motive) and the villages and streets
// (Strazi). A register is described by its table, its key, its fields and its words.
struct Registru {
    QString tabela;
    QString cheie;
    QStringList campuri;       // Denumire first
    QString mesajGol;          // the name left blank
    QString mesajDuplicat;     // a name that exists already
    QString intrebareStergere; // followed by the name and " ?"
    bool verificaFamilii;      // a street used by a family cannot be deleted
};

const Registru& RegistruMotive();
const Registru& RegistruStrazi();

struct RandRegistru {
    qint64 id = 0;
    QStringList valori; // one per field, NULL as ""
};

// Every row, in the table's order.
std::vector<RandRegistru> CitesteRegistru(const BD& bd, const Registru& r);

// The editor's OK: the name must not be blank, and no street may bear it already (both
// registers compare against the streets: a reason can share its name with another reason but
// not with a street). When changing a reason the comparison has no street key to compare with
// and fails with the error 3265. The first failed check is told and 0 returned; otherwise the
// trimmed fields are written (a new row with the maximum plus 1) and the row's key returned.
// Engine errors come out as Eroare.
qint64 SalveazaInRegistru(BD& bd, const Registru& r, bool adaug, qint64 id, const QStringList& valori);

// The list's Delete: the use check (streets only), the question, then the row. True when it
// was deleted. A row deleted meanwhile by another workstation comes out as Eroare 3167.
bool StergeDinRegistru(const BD& bd, const Registru& r, qint64 id, const QString& nume);
