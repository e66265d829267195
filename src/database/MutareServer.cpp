#include "database/MutareServer.h"

#include "database/BD.h"
#include "database/BlocareRetea.h"
#include "database/DefinitiiBD.h"
#include "database/Oficiu.h"
#include "database/Schema.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QThread>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <optional>

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

// The file's write lock, taken between two writes of another workstation. A process that
// saves one application after another leaves the lock free only for moments, which the
// engine's own wait, trying again at ever longer pauses, would miss until it has finished:
// here the lock is tried again at once, for as long as a statement waits for a busy file.
void iaBlocareaDeScriere(BD& fisier, std::optional<Tranzactie>& t)
{
    const int asteptare = fisier.asteptare();
    const QDeadlineTimer termen(asteptare);
    fisier.setAsteptare(0);
    for (;;) {
        try {
            t.emplace(fisier);
            break;
        } catch (const Eroare& e) {
            if (e.numar != CodEroare::BazaOcupata || termen.hasExpired()) {
                fisier.setAsteptare(asteptare);
                throw;
            }
            QThread::usleep(200);
        }
    }
    fisier.setAsteptare(asteptare);
}

// The server database as it was before the move: the tables of the schema dropped again.
void golesteServerul(BD& server)
{
    try {
        Tranzactie t(server);
        const std::vector<Tabela>& tabele = TabeleOficiu();
        for (auto it = tabele.rbegin(); it != tabele.rend(); ++it)
            server.executa(QStringLiteral("DROP TABLE IF EXISTS %1 CASCADE").arg(it->nume));
        t.confirma();
    } catch (const Eroare&) {
        // The database stays with its tables; the next move refuses it as not empty.
    }
}

} // namespace

void MutaOficiuPeServer(const QString& folder, const QString& server, const std::function<void(const QString&)>& linie)
{
    VerificaFaraParola(server);
    const QString cale = QDir(folder).filePath(Proces::NumeBD);
    // While the rows are copied nobody else saves: the office's lock file (the saves of the
    // workstations with ReteaSetat) and, below, the file's write lock (every write).
    BlocareRetea blocare;
    if (!blocare.incearca(folder)) {
        const QString cine = BlocareRetea::detinator(folder);
        throw Eroare(CodEroare::BazaOcupata,
                     QStringLiteral("Oficiul nu poate fi mutat acum: %1 tine fisierul de blocare %2 (salveaza o "
                                    "cerere). Asteptati sa termine si incercati din nou. Nu s-a mutat nimic.")
                         .arg(cine.isEmpty() ? QStringLiteral("alt calculator") : cine,
                              QDir::toNativeSeparators(BlocareRetea::fisier(folder))),
                     QStringLiteral("muta"));
    }
    BD fisier;
    fisier.deschide(cale);
    BD tinta;
    tinta.deschideServer(server);
    VerificaBazaGoala(tinta);
    DefinitiiBD defFisier(fisier);
    const QDateTime cand = QDateTime::currentDateTime();
    {
        // The file's write lock, for the whole copy; a file already moved refuses it.
        std::optional<Tranzactie> scriere;
        iaBlocareaDeScriere(fisier, scriere);
        Tranzactie t(tinta);
        CreeazaSchema(tinta);
        for (const Tabela& tab : TabeleOficiu())
            if (defFisier.TabelaExista(tab.nume))
                copiazaTabela(fisier, tinta, defFisier, tab, linie);
        // The mark goes in before the server's commit, so that only the file's own commit can
        // fail after it; then the server's rows are taken away again.
        fisier.marcheazaMutat(tinta.cale(), cand.toString(QStringLiteral("dd.MM.yyyy HH:mm")));
        t.confirma();
        try {
            scriere->confirma();
        } catch (const Eroare& e) {
            golesteServerul(tinta);
            throw Eroare(e.numar,
                         QStringLiteral("%1\nFisierul nu a putut fi insemnat ca mutat; serverul a fost golit din nou "
                                        "si oficiul lucreaza mai departe cu fisierul. Nu s-a mutat nimic.")
                             .arg(e.descriere),
                         QStringLiteral("muta"));
        }
    }
    const QString descriere = tinta.cale();
    tinta.inchide();
    fisier.inchide();
    ScrieServerOficiu(folder, server);
    linie(QStringLiteral("ServerBD scris in %1")
              .arg(QDir::toNativeSeparators(QDir(folder).filePath(QStringLiteral("setariTarnava.ini")))));
    const QString nou = NumeFisierMutat(folder, cand.date());
    if (QFile::rename(cale, nou))
        linie(QStringLiteral("Fisierul %1 s-a pastrat, doar pentru citire, ca %2.")
                  .arg(QDir::toNativeSeparators(cale), QDir::toNativeSeparators(nou)));
    else
        linie(QStringLiteral("Fisierul %1 nu a putut fi redenumit (e deschis pe alt calculator); ramane cu numele lui, "
                             "doar pentru citire: orice scriere in el este refuzata, datele sunt pe serverul %2.")
                  .arg(QDir::toNativeSeparators(cale), descriere));
}

QString NumeFisierMutat(const QString& folder, const QDate& cand)
{
    const QFileInfo fi(QDir(folder).filePath(Proces::NumeBD));
    const QString baza = QStringLiteral("%1-mutat-pe-server-%2").arg(fi.completeBaseName(), cand.toString(Qt::ISODate));
    QString nume = QDir(folder).filePath(baza + QLatin1Char('.') + fi.suffix());
    for (int i = 2; QFileInfo::exists(nume); ++i)
        nume = QDir(folder).filePath(QStringLiteral("%1-%2.%3").arg(baza).arg(i).arg(fi.suffix()));
    return nume;
}
