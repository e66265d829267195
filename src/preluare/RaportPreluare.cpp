#include "preluare/RaportPreluare.h"

#include "preluare/Preluare.h"

#include <QDir>
#include <QJsonArray>

namespace {

QString numeTip(int tip)
{
    switch (tip) {
    case 1: return QStringLiteral("complementara (Cu sot)");
    case 2: return QStringLiteral("monoparentala (Mono)");
    default: return QStringLiteral("fara tip");
    }
}

QJsonArray lista(const QStringList& l)
{
    return QJsonArray::fromStringList(l);
}

} // namespace

QString TextTotaluri(const TotaluriPreluare& t)
{
    QStringList l;
    qint64 cereri = 0;
    for (const auto& [stare, n] : t.cereriPeStare) {
        l << QStringLiteral("  Cereri cu starea %1: %2").arg(stare).arg(n);
        cereri += n;
    }
    l << QStringLiteral("  Cereri in total: %1").arg(cereri);
    for (const auto& [tip, p] : t.plataPeTip)
        l << QStringLiteral("  In plata (starile 2, 6, 7, 8), alocatia %1: %2 familii, %3 copii, suma %4 lei")
                 .arg(numeTip(tip))
                 .arg(p.familii)
                 .arg(p.copii)
                 .arg(p.suma.textSuma());
    l << QStringLiteral("  CNP-uri care nu trec verificarea (pastrate asa cum sunt): %1").arg(t.cnpGresite.size());
    for (const QString& c : t.cnpGresite)
        l << QStringLiteral("    ") + c;
    return l.join(QLatin1Char('\n'));
}

QString TextRaportPreluare(const Preluare& p)
{
    QStringList l;
    l << QStringLiteral("Preluare din programul vechi");
    l << QStringLiteral("Din: %1%2")
             .arg(QDir::toNativeSeparators(p.sursa.fel == SursaVeche::Fel::Access ? p.sursa.fisier : p.sursa.folder),
                  p.sursa.versiune.isEmpty() ? QStringLiteral(" (fisiere <Tabela>.json)")
                                             : QStringLiteral(" (%1)").arg(p.sursa.versiune));
    l << QStringLiteral("In oficiul: %1").arg(QDir::toNativeSeparators(p.tinta));
    l << (p.scris ? QStringLiteral("Datele au fost scrise in oficiul nou.")
                  : QStringLiteral("Incercare: nu s-a scris nimic."));
    l << QString() << QStringLiteral("Tabele (citite / scrise / refuzate):");
    int refuzate = 0;
    for (const TabelaPreluata& t : p.tabele) {
        l << QStringLiteral("  %1: %2 / %3 / %4").arg(t.nume).arg(t.citite).arg(t.scrise()).arg(t.refuzate.size());
        for (const RefuzPreluare& r : t.refuzate)
            l << QStringLiteral("    randul %1: %2").arg(r.rand).arg(r.motiv);
        if (!t.coloaneLasate.isEmpty())
            l << QStringLiteral("    coloane necunoscute, lasate deoparte: %1")
                     .arg(t.coloaneLasate.join(QStringLiteral(", ")));
        refuzate += int(t.refuzate.size());
    }
    l << QStringLiteral("  Randuri refuzate in total: %1").arg(refuzate);
    if (!p.tabeleLasate.isEmpty())
        l << QStringLiteral("Tabele necunoscute programului, lasate deoparte: %1")
                 .arg(p.tabeleLasate.join(QStringLiteral(", ")));
    l << QString() << QStringLiteral("Totaluri:") << TextTotaluri(p.totaluri);
    if (!p.observatii.isEmpty()) {
        l << QString() << QStringLiteral("Fisiere si setari:");
        for (const QString& o : p.observatii)
            l << QStringLiteral("  ") + o;
    }
    return l.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QJsonObject JsonRaportPreluare(const Preluare& p)
{
    QJsonObject tabele;
    for (const TabelaPreluata& t : p.tabele) {
        QJsonArray refuzate;
        for (const RefuzPreluare& r : t.refuzate)
            refuzate.append(QJsonObject{{QStringLiteral("rand"), r.rand}, {QStringLiteral("motiv"), r.motiv}});
        QJsonObject o{{QStringLiteral("citite"), t.citite},
                      {QStringLiteral("scrise"), t.scrise()},
                      {QStringLiteral("refuzate"), refuzate}};
        if (!t.coloaneLasate.isEmpty())
            o.insert(QStringLiteral("coloane_lasate"), lista(t.coloaneLasate));
        tabele.insert(t.nume, o);
    }
    QJsonObject stari;
    for (const auto& [stare, n] : p.totaluri.cereriPeStare)
        stari.insert(QString::number(stare), n);
    QJsonObject plata;
    for (const auto& [tip, x] : p.totaluri.plataPeTip)
        plata.insert(QString::number(tip), QJsonObject{{QStringLiteral("familii"), x.familii},
                                                       {QStringLiteral("copii"), x.copii},
                                                       {QStringLiteral("suma"), x.suma.textFix()}});
    QJsonObject o{
        {QStringLiteral("tabele"), tabele},
        {QStringLiteral("tabele_lasate"), lista(p.tabeleLasate)},
        {QStringLiteral("totaluri"), QJsonObject{{QStringLiteral("cereri_pe_stare"), stari},
                                                 {QStringLiteral("plata_pe_tip"), plata},
                                                 {QStringLiteral("cnp_gresite"), lista(p.totaluri.cnpGresite)}}},
        {QStringLiteral("observatii"), lista(p.observatii)},
        {QStringLiteral("scris"), p.scris}};
    if (!p.fisierRaport.isEmpty())
        o.insert(QStringLiteral("raport"), QDir::toNativeSeparators(p.fisierRaport));
    return o;
}
