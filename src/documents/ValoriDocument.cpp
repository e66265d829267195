#include "documents/ValoriDocument.h"

#include "database/BD.h"
#include "common/Bani.h"
#include "common/Eroare.h"
#include "database/Adresa.h"
#include "common/Text.h"

QVariant Obligatoriu(const Rezultat& r, const char* tabela, const char* coloana)
{
    const QVariant v = r[coloana];
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
        throw Eroare(3021, QStringLiteral("Titularul cererii (MembruID %1) nu a fost gasit").arg(membruId.toString()),
                     QStringLiteral("Documente"));
    return {m.text("Nume") + QLatin1Char(' ') + m.text("Prenume"), m.text("CNP")};
}
