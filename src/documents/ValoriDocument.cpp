#include "documents/ValoriDocument.h"

#include "database/BD.h"
#include "common/Bani.h"
#include "common/Eroare.h"
#include "database/Adresa.h"
#include "common/Text.h"

QVariant Obligatoriu(const Rezultat& r, const char* tabela, const char* coloana)
{
    return Obligatoriu(r[coloana], tabela, coloana);
}

QVariant Obligatoriu(const QVariant& v, const char* tabela, const char* coloana)
{
    if (v.isNull())
        throw Eroare(94,
                     QStringLiteral("Campul %1.%2 nu are valoare").arg(QLatin1String(tabela), QLatin1String(coloana)),
                     QStringLiteral("Documente"));
    return v;
}

QString AdresaFamilie(const Rezultat& familie, const QString& strSat)
{
    return AdresaCerere(familie.text("Localitate"), familie.text("Strada"), familie.text("Nr"), familie.text("Sc"),
                        familie.text("Ap"), strSat);
}

Persoana CitestePersoana(const BD& bd, const QVariant& membruId)
{
    Rezultat m = bd.selecteaza(QStringLiteral("SELECT Nume, Prenume, CNP FROM Membrii WHERE MembruID = ?"), {membruId});
    if (!m.next())
        return PersoanaCitita(membruId, false, {}, {}, {});
    return PersoanaCitita(membruId, true, m.valoare(0), m.valoare(1), m.valoare(2));
}

Persoana PersoanaCitita(const QVariant& membruId, bool gasita, const QVariant& nume, const QVariant& prenume,
                        const QVariant& cnp)
{
    if (!gasita)
        throw Eroare(3021, QStringLiteral("Titularul cererii (MembruID %1) nu a fost gasit").arg(membruId.toString()),
                     QStringLiteral("Documente"));
    const auto text = [](const QVariant& v) { return v.isNull() ? QString() : v.toString(); };
    return {text(nume) + QLatin1Char(' ') + text(prenume), text(cnp)};
}
