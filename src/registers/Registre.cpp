#include "registers/Registre.h"

#include "database/BD.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"

const Registru& RegistruMotive()
{
    static const Registru r{QStringLiteral("Motive"),
                            QStringLiteral("MotivID"),
                            {QStringLiteral("Denumire")},
                            QStringLiteral("Nu ati completat denumirea Motivului"),
                            QStringLiteral("Acest Motiv exista deja"),
                            QStringLiteral("Sigur doriti sa stergeti Motivul "),
                            false};
    return r;
}

const Registru& RegistruStrazi()
{
    static const Registru r{QStringLiteral("Strazi"),
                            QStringLiteral("StradaID"),
                            {QStringLiteral("Denumire"), QStringLiteral("OfPostal"), QStringLiteral("CodPostal")},
                            QStringLiteral("Nu ati completat denumirea strazii / satului"),
                            QStringLiteral("Aceasta strada / sat exista deja"),
                            QStringLiteral("Sigur doriti sa stergeti datele satului/strazii "),
                            true};
    return r;
}

std::vector<RandRegistru> CitesteRegistru(const BD& bd, const Registru& r)
{
    std::vector<RandRegistru> randuri;
    // In the order of the key, as the file gives its rows; a server keeps no order of its own.
    Rezultat q = bd.selecteaza(QStringLiteral("SELECT %1, %2 FROM %3 ORDER BY %1")
                                   .arg(r.cheie, r.campuri.join(QStringLiteral(", ")), r.tabela));
    while (q.next()) {
        RandRegistru rand;
        rand.id = q.valoare(0).toLongLong();
        for (int i = 0; i < r.campuri.size(); ++i)
            rand.valori << q.valoare(i + 1).toString();
        randuri.push_back(std::move(rand));
    }
    return randuri;
}

qint64 SalveazaInRegistru(BD& bd, const Registru& r, bool adaug, qint64 id, const QStringList& valori)
{
    QStringList v;
    for (const QString& t : valori)
        v << t.trimmed();
    if (v.value(0).isEmpty()) {
        Mesaj(r.mesajGol);
        return 0;
    }

    Tranzactie t(bd);
    Rezultat strada = bd.selecteaza(
        QStringLiteral("SELECT StradaID FROM Strazi WHERE %1").arg(bd.conditieLike(QStringLiteral("Denumire"))),
        {BD::valoareLike(v[0])});
    if (strada.next()) {
        if (adaug) {
            Mesaj(r.mesajDuplicat);
            return 0;
        }
        if (r.tabela != QLatin1String("Strazi"))
            throw Eroare(3265, QStringLiteral("Elementul StradaID nu a fost gasit in aceasta colectie."), r.tabela);
        if (strada.valoare(0).toLongLong() != id) {
            Mesaj(r.mesajDuplicat);
            return 0;
        }
    }

    QStringList atribuiri;
    for (const QString& c : r.campuri)
        atribuiri << c + QStringLiteral(" = ?");
    QVariantList param;
    for (int i = 0; i < r.campuri.size(); ++i)
        param << v.value(i);
    if (adaug) {
        id = bd.urmatoareaCheie(r.tabela, r.cheie);
        param.prepend(id);
        bd.executa(QStringLiteral("INSERT INTO %1 (%2, %3) VALUES (?%4)")
                       .arg(r.tabela, r.cheie, r.campuri.join(QStringLiteral(", ")),
                            QStringLiteral(", ?").repeated(r.campuri.size())),
                   param);
    } else {
        param << id;
        if (bd.executa(QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?")
                           .arg(r.tabela, atribuiri.join(QStringLiteral(", ")), r.cheie),
                       param) == 0)
            throw Eroare(CodEroare::RandSters, QStringLiteral("Inregistrarea a fost stearsa de pe alt calculator."),
                         r.tabela);
    }
    t.confirma();
    return id;
}

bool StergeDinRegistru(const BD& bd, const Registru& r, qint64 id, const QString& nume)
{
    if (r.verificaFamilii) {
        // Only the exact name, in any case, counts as a use.
        if (bd.selecteaza(QStringLiteral("SELECT FamilieID FROM Familii WHERE %1")
                              .arg(bd.conditieLike(QStringLiteral("Strada"))),
                          {BD::valoareLike(nume)})
                .next()) {
            Mesaj(QStringLiteral("Strada / satul ") + nume +
                  QStringLiteral(" nu poate fi sters pentru ca face parte din cel putin o cerere"));
            return false;
        }
    }
    if (!Intrebare(r.intrebareStergere + nume + QStringLiteral(" ?")))
        return false;
    if (bd.executa(QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(r.tabela, r.cheie), {id}) == 0)
        throw Eroare(CodEroare::RandSters, QStringLiteral("Inregistrarea a fost stearsa de pe alt calculator."),
                     r.tabela);
    return true;
}
