#include "FamilieTest.h"

#include "applications/Cuantum.h"
#include "applications/SalveazaCerere.h"
#include "applications/Demo.h"

MembruCerere MembruAdult(int rudenie, int serie, int ocupatie, const QDate& nascut)
{
    MembruCerere m;
    m.Nume = QStringLiteral("Popescu");
    m.Prenume = rudenie == 1 ? QStringLiteral("Ion") : QStringLiteral("Maria");
    m.CNP = CNPInventat(rudenie == 1 ? 1 : 2, nascut, 1 + (serie / 1000) % 46, serie % 1000);
    m.RudenieID = rudenie;
    m.OcupatieID = ocupatie;
    m.CetatenieID = 1;
    m.TipAct = 2;
    m.SerieBI = QStringLiteral("MS");
    m.NrBI = QString::number(100000 + serie);
    return m;
}

MembruCerere MembruCopil(const QDate& nascut, int serie, int ocupatie)
{
    MembruCerere m;
    m.Nume = QStringLiteral("Popescu");
    m.Prenume = QStringLiteral("Copil%1").arg(serie);
    m.CNP = CNPInventat(nascut.year() >= 2000 ? 5 : 1, nascut, 1 + (serie / 1000) % 46, serie % 1000);
    m.RudenieID = 3;
    m.OcupatieID = ocupatie;
    m.CetatenieID = 1;
    m.Data18Ani = nascut.addYears(18);
    m.Motiv = QStringLiteral("implinirea varstei de 18 ani");
    return m;
}

Cerere FamilieTest(int copii, Bani venitTotal, int tipCerere, int serie)
{
    Cerere c;
    c.Adaug = 1;
    c.NrDosar = QString::number(serie);
    c.NrCerere = QString::number(serie);
    c.DataCerere = QDate(2026, 3, 2);
    c.Judet = QStringLiteral("Mures");
    c.Localitate = QStringLiteral("Tarnaveni");
    c.Strada = QStringLiteral("Principala");
    c.Nr = QStringLiteral("12");
    c.ReprLegal = 1;
    c.ModPlata = 3;
    c.TipCerere = tipCerere;
    c.Stare = 1;
    c.DataStare = QDate(2026, 3, 2);
    c.Bife = QStringLiteral("0000000000");
    const int baza = serie * 100;
    c.Membrii.push_back(MembruAdult(1, baza));
    if (tipCerere == 1)
        c.Membrii.push_back(MembruAdult(2, baza + 1, 6, QDate(1982, 8, 3)));
    for (int i = 0; i < copii; ++i)
        c.Membrii.push_back(MembruCopil(QDate(2015, 1 + i % 12, 10), baza + 10 + i));
    c.Venituri[3] = venitTotal;
    c.Locuinte[0].folosita = true;
    c.Locuinte[0].NrCamere = 3;
    c.Locuinte[0].Suprafata = 64.5;
    c.VenitTotal = SumaVenituri(c.Venituri).value_or(Bani()).text();
    c.NrMembrii = QString::number(c.Membrii.size());
    c.NrCopii = QString::number(copii);
    RecalculVenitPeMembru(c);
    return c;
}

qint64 SalveazaFamilieTest(BD& bd, Cerere& c, int anActiv)
{
    return ScrieCerere(bd, c, anActiv);
}
