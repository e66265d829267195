#include "database/ListeReferinta.h"

#include "database/BD.h"

#include <algorithm>

std::vector<ElementCod> CitesteListaReferinta(const BD& bd, ListaReferinta lista)
{
    QString sql;
    switch (lista) {
    case ListaReferinta::Strazi: sql = QStringLiteral("SELECT StradaID, Denumire FROM Strazi ORDER BY StradaID"); break;
    case ListaReferinta::Motive: sql = QStringLiteral("SELECT MotivID, Denumire FROM Motive ORDER BY MotivID"); break;
    case ListaReferinta::Scoli: sql = QStringLiteral("SELECT ScoalaID, Denumire FROM Scoli ORDER BY ScoalaID"); break;
    case ListaReferinta::Politii:
        sql = QStringLiteral("SELECT PolitiaID, Denumire FROM Politii ORDER BY PolitiaID");
        break;
    }
    std::vector<ElementCod> v;
    Rezultat r = bd.selecteaza(sql);
    while (r.next())
        v.push_back({r.valoare(0).toInt(), r.valoare(1).toString()});
    return v;
}

std::vector<QString> DenumiriCoduriVenit(const BD& bd, int n)
{
    std::vector<QString> v(static_cast<std::size_t>(std::max(n, 0)));
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT CodVenit, Denumire FROM ListaVenituri ORDER BY CodVenit"));
    while (r.next()) {
        const qint64 cod = r.numar("CodVenit");
        if (cod >= 1 && cod <= n)
            v[static_cast<std::size_t>(cod - 1)] = r.text("Denumire");
    }
    return v;
}
