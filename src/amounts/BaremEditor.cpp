#include "amounts/BaremEditor.h"

#include "database/BD.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Text.h"

namespace {

constexpr int Randuri = 6;

[[noreturn]] void randLipsa(const QString& tabela)
{
    throw Eroare(3021, QStringLiteral("Nu exista inregistrarea curenta."), tabela);
}

} // namespace

QStringList CitesteBaremEditor(const BD& bd, QStringList* citite)
{
    QStringList local;
    QStringList& v = citite ? *citite : local;
    v.clear();
    Rezultat r =
        bd.selecteaza(QStringLiteral("SELECT Barem, BaremPerPers FROM Barem ORDER BY %1").arg(bd.identitateRand()));
    for (int i = 0; i < Randuri; ++i) {
        if (!r.next())
            randLipsa(QStringLiteral("Barem"));
        v << r.valoare(0).toString();
        if (i == Randuri - 1)
            v << r.valoare(1).toString();
    }
    return v;
}

int VerificaBaremEditor(const QStringList& valori)
{
    for (int i = 0; i < ValoriBaremEditor; ++i)
        if (ValoareNumerica(valori.value(i)) == 0) {
            Mesaj(QStringLiteral("Nivelul de venit trebuie sa fie diferit de 0 (zero)"));
            return i;
        }
    return -1;
}

void ScrieBaremEditor(BD& bd, const QStringList& valori)
{
    Tranzactie t(bd);
    // The table has no key: its rows are taken in their natural order.
    const QString id = bd.identitateRand();
    QVariantList randuri;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT %1 FROM Baremuri ORDER BY %1").arg(id));
    while (r.next() && randuri.size() < Randuri)
        randuri << r.valoare(0);
    for (int i = 0; i < Randuri; ++i) {
        if (i >= randuri.size())
            randLipsa(QStringLiteral("Baremuri"));
        if (i == Randuri - 1)
            bd.executa(QStringLiteral("UPDATE Baremuri SET Barem = ?, BaremPerPers = ? WHERE %1 = ?").arg(id),
                       {ValoareNumerica(valori.value(i)), ValoareNumerica(valori.value(i + 1)), randuri[i]});
        else
            bd.executa(QStringLiteral("UPDATE Baremuri SET Barem = ? WHERE %1 = ?").arg(id),
                       {ValoareNumerica(valori.value(i)), randuri[i]});
    }
    t.confirma();
}
