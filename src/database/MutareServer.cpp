#include "database/MutareServer.h"

#include "database/BD.h"
#include "database/DefinitiiBD.h"
#include "database/Oficiu.h"
#include "database/Schema.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

namespace {

// A value of the file as the server's column takes it: SQLite keeps booleans as numbers,
// dates as text, and any value in any column.
QVariant valoarePentruServer(const Camp& c, const QVariant& v)
{
    if (v.isNull() || !v.isValid())
        return QVariant();
    switch (c.tip) {
    case TipCamp::DaNu: return v.toString() == QLatin1String("true") || v.toLongLong() != 0;
    case TipCamp::Data: {
        const QDate d = DataDinBD(v);
        return d.isValid() ? QVariant(d) : QVariant();
    }
    case TipCamp::Octet:
    case TipCamp::Intreg:
    case TipCamp::Lung: return v.toLongLong();
    case TipCamp::Moneda: return QString::number(v.toDouble(), 'f', 4);
    case TipCamp::Simplu:
    case TipCamp::Dublu: return v.toDouble();
    case TipCamp::Text:
    case TipCamp::Memo: return v.toString();
    }
    return v;
}

bool esteSuma(const Camp& c)
{
    return c.tip == TipCamp::Moneda || c.tip == TipCamp::Dublu;
}

struct Cifre {
    qint64 randuri = 0;
    QList<double> sume;
};

Cifre cifre(const BD& bd, const QString& tabela, const QStringList& sume)
{
    QStringList expr{QStringLiteral("COUNT(*)")};
    for (const QString& s : sume)
        expr << QStringLiteral("COALESCE(SUM(%1), 0)").arg(s);
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT %1 FROM %2").arg(expr.join(QStringLiteral(", ")), tabela));
    Cifre c;
    if (r.next()) {
        c.randuri = r.valoare(0).toLongLong();
        for (int i = 0; i < sume.size(); ++i)
            c.sume << r.valoare(i + 1).toDouble();
    }
    return c;
}

// Copies one table (the columns of the program's schema that the file holds) and checks it.
void copiazaTabela(BD& fisier, BD& server, DefinitiiBD& defFisier, const Tabela& t,
                   const std::function<void(const QString&)>& linie)
{
    std::vector<Camp> campuri;
    for (const Camp& c : t.campuri)
        if (defFisier.CampExista(t.nume, c.nume))
            campuri.push_back(c);
    QStringList nume, semne, sume;
    for (const Camp& c : campuri) {
        nume << c.nume;
        semne << QStringLiteral("?");
        if (esteSuma(c))
            sume << c.nume;
    }
    const QString insert = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                               .arg(t.nume, nume.join(QStringLiteral(", ")), semne.join(QStringLiteral(", ")));
    Rezultat r = fisier.selecteaza(QStringLiteral("SELECT %1 FROM %2").arg(nume.join(QStringLiteral(", ")), t.nume));
    while (r.next()) {
        QVariantList v;
        for (int i = 0; i < int(campuri.size()); ++i)
            v << valoarePentruServer(campuri[size_t(i)], r.valoare(i));
        server.executa(insert, v);
    }

    const Cifre inainte = cifre(fisier, t.nume, sume);
    const Cifre dupa = cifre(server, t.nume, sume);
    QString text = QStringLiteral("%1: %2 randuri (in fisier %3)").arg(t.nume).arg(dupa.randuri).arg(inainte.randuri);
    bool la = inainte.randuri == dupa.randuri;
    for (int i = 0; i < sume.size(); ++i) {
        text += QStringLiteral(", total %1 %2 (in fisier %3)")
                    .arg(sume[i], QString::number(dupa.sume[i], 'f', 2), QString::number(inainte.sume[i], 'f', 2));
        la = la && std::abs(dupa.sume[i] - inainte.sume[i]) < 0.005;
    }
    linie(text);
    if (!la)
        throw Eroare(3000,
                     QStringLiteral("Tabela %1 nu are pe server aceleasi randuri sau totaluri ca in fisier. "
                                    "Nu s-a mutat nimic.")
                         .arg(t.nume),
                     QStringLiteral("muta"));
}

} // namespace

void MutaOficiuPeServer(const QString& folder, const QString& server, const std::function<void(const QString&)>& linie)
{
    VerificaFaraParola(server);
    BD fisier;
    fisier.deschide(QDir(folder).filePath(Proces::NumeBD));
    BD tinta;
    tinta.deschideServer(server);
    VerificaBazaGoala(tinta);
    DefinitiiBD defFisier(fisier);
    {
        // The file's write lock keeps every workstation from writing while its rows are copied.
        Tranzactie citire(fisier);
        Tranzactie t(tinta);
        CreeazaSchema(tinta);
        for (const Tabela& tab : TabeleOficiu())
            if (defFisier.TabelaExista(tab.nume))
                copiazaTabela(fisier, tinta, defFisier, tab, linie);
        t.confirma();
    }
    tinta.inchide();
    fisier.inchide();
    ScrieServerOficiu(folder, server);
    linie(QStringLiteral("ServerBD scris in %1")
              .arg(QDir::toNativeSeparators(QDir(folder).filePath(QStringLiteral("setariTarnava.ini")))));
}
