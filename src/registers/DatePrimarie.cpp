#include "registers/DatePrimarie.h"

#include "database/BD.h"
#include "common/Mesaje.h"

namespace {

// The one row of Judete or Localitati: the first renamed, or row 1 added to an empty table.
void PastreazaRandUnic(const BD& bd, const QString& tabela, const QString& cheie, const QString& denumire)
{
    const QVariant prima = bd.scalar(QStringLiteral("SELECT MIN(%1) FROM %2").arg(cheie, tabela));
    if (prima.isNull() || !prima.isValid())
        bd.executa(QStringLiteral("INSERT INTO %1 (%2, Denumire) VALUES (1, ?)").arg(tabela, cheie), {denumire});
    else
        bd.executa(QStringLiteral("UPDATE %1 SET Denumire = ? WHERE %2 = ?").arg(tabela, cheie), {denumire, prima});
}

} // namespace

const QStringList& ColoaneDatePrimarie()
{
    static const QStringList c = {QStringLiteral("Denumire"), QStringLiteral("CodFiscal"),   QStringLiteral("CodJudet"),
                                  QStringLiteral("Judet"),    QStringLiteral("Localitate"),  QStringLiteral("Str"),
                                  QStringLiteral("Nr"),       QStringLiteral("Primar"),      QStringLiteral("Secretar"),
                                  QStringLiteral("AsSocial"), QStringLiteral("CNPAsSocial"), QStringLiteral("OfPostal"),
                                  QStringLiteral("CodPostal")};
    return c;
}

const QStringList& TipuriLocalitate()
{
    static const QStringList t = {QStringLiteral("Comuna"), QStringLiteral("Oras"), QStringLiteral("Municipiu")};
    return t;
}

DatePrimarie CitesteDatePrimarie(const BD& bd)
{
    DatePrimarie d;
    const qint64 randuri = bd.scalar(QStringLiteral("SELECT COUNT(*) FROM DatePrimarie")).toLongLong();
    if (randuri == 0)
        return d;
    if (randuri >= 2) {
        Mesaj(QStringLiteral("Tabela Date Primarie contine mai mult de un rand. Sunati la: 0700555010!"));
        return d;
    }
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT * FROM DatePrimarie"));
    if (!r.next())
        return d;
    for (int i = 0; i < ColoaneDatePrimarie().size(); ++i) {
        const QVariant v = r[ColoaneDatePrimarie().at(i)];
        d.texte[i] = v.isNull() ? QString() : v.toString();
    }
    const qint64 tip = r.numar("TipLocalitate");
    d.TipLocalitate = tip >= 1 && tip <= TipuriLocalitate().size() ? static_cast<int>(tip) : 0;
    return d;
}

int VerificaDatePrimarie(const DatePrimarie& d)
{
    for (int i = 0; i < ColoaneDatePrimarie().size(); ++i) {
        if (d.texte.value(i).trimmed().isEmpty()) {
            Mesaj(QStringLiteral("Toate campurile sunt obligatorii!"));
            return i;
        }
    }
    if (d.TipLocalitate < 1 || d.TipLocalitate > TipuriLocalitate().size()) {
        Mesaj(QStringLiteral("Selectati Tip Localitate din lista"));
        return CampTipLocalitate;
    }
    return -1;
}

void SalveazaDatePrimarie(BD& bd, const DatePrimarie& d)
{
    const QStringList& col = ColoaneDatePrimarie();
    QVariantList valori;
    for (int i = 0; i < col.size(); ++i)
        valori << d.texte.value(i);
    valori << d.TipLocalitate;

    Tranzactie t(bd);
    // DatePrimarie has no key of its own: its rows are told apart by the engine's row identity.
    const QString id = bd.identitateRand();
    const QVariant ultimul = bd.scalar(QStringLiteral("SELECT %1 FROM DatePrimarie ORDER BY %1 DESC LIMIT 1").arg(id));
    if (!ultimul.isValid()) {
        QStringList semne;
        for (int i = 0; i <= col.size(); ++i)
            semne << QStringLiteral("?");
        bd.executa(QStringLiteral("INSERT INTO DatePrimarie (%1, TipLocalitate) VALUES (%2)")
                       .arg(col.join(QStringLiteral(", ")), semne.join(QStringLiteral(", "))),
                   valori);
    } else {
        QStringList atribuiri;
        for (const QString& c : col)
            atribuiri << c + QStringLiteral(" = ?");
        atribuiri << QStringLiteral("TipLocalitate = ?");
        valori << ultimul;
        bd.executa(
            QStringLiteral("UPDATE DatePrimarie SET %1 WHERE %2 = ?").arg(atribuiri.join(QStringLiteral(", ")), id),
            valori);
    }
    PastreazaRandUnic(bd, QStringLiteral("Judete"), QStringLiteral("JudetID"), d.texte.value(3));
    PastreazaRandUnic(bd, QStringLiteral("Localitati"), QStringLiteral("LocalitateID"), d.texte.value(4));
    t.confirma();
}
