#include "applications/Demo.h"

#include "applications/ImportCereri.h"
#include "database/BD.h"
#include "common/Ceas.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QDate>
#include <QDir>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QSet>

namespace {

const char* const NumeFamilie[] = {"Popescu", "Ionescu", "Pop", "Radu", "Dumitru", "Stan", "Stoica", "Gheorghe",
                                   "Matei", "Ciobanu", "Rusu", "Munteanu", "Lungu", "Moldovan", "Barbu", "Toma",
                                   "Florea", "Marin", "Tudor", "Dinu", "Oprea", "Sandu", "Nistor", "Cristea"};
const char* const PrenumeM[] = {"Ion", "Gheorghe", "Vasile", "Constantin", "Mihai", "Andrei", "Alexandru",
                                "Nicolae", "Stefan", "Florin", "Marius", "Adrian", "Cristian", "Dan"};
const char* const PrenumeF[] = {"Maria", "Elena", "Ioana", "Ana", "Mihaela", "Andreea", "Cristina", "Gabriela",
                                "Daniela", "Florentina", "Alina", "Roxana", "Simona", "Georgiana"};
const char* const Strazi[] = {"Principala", "Bisericii", "Scolii", "Morii", "Garii", "Libertatii", "Unirii",
                              "Florilor", "Viilor", "Campului"};

template <typename T, size_t N>
const char* alege(QRandomGenerator& r, T (&v)[N])
{
    return v[r.bounded(int(N))];
}

} // namespace

QString CNPInventat(int cifraSex, const QDate& nastere, int judet, int serie)
{
    QString s = QStringLiteral("%1%2%3%4%5%6")
                    .arg(cifraSex)
                    .arg(nastere.year() % 100, 2, 10, QLatin1Char('0'))
                    .arg(nastere.month(), 2, 10, QLatin1Char('0'))
                    .arg(nastere.day(), 2, 10, QLatin1Char('0'))
                    .arg(judet, 2, 10, QLatin1Char('0'))
                    .arg(serie % 1000, 3, 10, QLatin1Char('0'));
    static const int ponderi[12] = {2, 7, 9, 1, 4, 6, 3, 5, 8, 2, 7, 9};
    int suma = 0;
    for (int i = 0; i < 12; ++i)
        suma += (s[i].unicode() - '0') * ponderi[i];
    int c = suma % 11;
    if (c == 10)
        c = 1;
    return s + QString::number(c);
}

QJsonArray GenereazaCereriDemo(int n, unsigned seed)
{
    QRandomGenerator r(seed);
    QSet<QString> folosite;
    int serie = 0;
    auto cnpNou = [&](bool barbat, const QDate& nastere) {
        for (;;) {
            const int cifra = nastere.year() >= 2000 ? (barbat ? 5 : 6) : (barbat ? 1 : 2);
            const QString c = CNPInventat(cifra, nastere, 1 + (serie / 1000) % 46, serie % 1000);
            ++serie;
            if (!folosite.contains(c)) {
                folosite.insert(c);
                return c;
            }
        }
    };
    auto zi = [&](int anMin, int anMax) {
        return QDate(anMin + r.bounded(anMax - anMin + 1), 1 + r.bounded(12), 1 + r.bounded(28));
    };

    QJsonArray cereri;
    for (int i = 0; i < n; ++i) {
        const int tip = r.bounded(3) == 0 ? 2 : 1;
        const int stare = 1 + (i % 8);
        const QString nume = QString::fromLatin1(alege(r, NumeFamilie));
        const QDate dataCerere = zi(2024, 2026);
        QJsonObject c;
        c[QStringLiteral("NrDosar")] = i + 1;
        c[QStringLiteral("NrCerere")] = i + 1;
        c[QStringLiteral("DataCerere")] = dataCerere.toString(Qt::ISODate);
        c[QStringLiteral("Judet")] = QStringLiteral("Mures");
        c[QStringLiteral("Localitate")] = QStringLiteral("Tarnaveni");
        c[QStringLiteral("Strada")] = QString::fromLatin1(alege(r, Strazi));
        c[QStringLiteral("Nr")] = QString::number(1 + r.bounded(200));
        c[QStringLiteral("TipCerere")] = tip;
        c[QStringLiteral("Stare")] = stare;
        c[QStringLiteral("DataStare")] = dataCerere.addDays(r.bounded(40)).toString(Qt::ISODate);
        c[QStringLiteral("ReprLegal")] = 1;
        c[QStringLiteral("ModPlata")] = 1 + r.bounded(2);
        c[QStringLiteral("Gospodarire")] = 1;
        c[QStringLiteral("Bife")] = QStringLiteral("00000000000000000000");

        QJsonArray membri;
        const bool titularBarbat = tip == 1 ? true : r.bounded(4) == 0;
        QJsonObject titular;
        titular[QStringLiteral("Nume")] = nume;
        titular[QStringLiteral("Prenume")] = QString::fromLatin1(titularBarbat ? alege(r, PrenumeM) : alege(r, PrenumeF));
        titular[QStringLiteral("CNP")] = cnpNou(titularBarbat, zi(1970, 1998));
        titular[QStringLiteral("TipAct")] = 2;
        titular[QStringLiteral("SerieBI")] = QStringLiteral("MS");
        titular[QStringLiteral("NrBI")] = QString::number(100000 + r.bounded(899999));
        titular[QStringLiteral("RudenieID")] = 1;
        titular[QStringLiteral("CetatenieID")] = 1;
        titular[QStringLiteral("OcupatieID")] = QJsonArray{1, 3, 6, 7}[r.bounded(4)].toInt();
        titular[QStringLiteral("Stare")] = stare;
        membri.append(titular);
        if (tip == 1) {
            QJsonObject sot;
            sot[QStringLiteral("Nume")] = nume;
            sot[QStringLiteral("Prenume")] = QString::fromLatin1(alege(r, PrenumeF));
            sot[QStringLiteral("CNP")] = cnpNou(false, zi(1972, 2000));
            sot[QStringLiteral("TipAct")] = 2;
            sot[QStringLiteral("RudenieID")] = 2;
            sot[QStringLiteral("CetatenieID")] = 1;
            sot[QStringLiteral("OcupatieID")] = QJsonArray{1, 6, 7}[r.bounded(3)].toInt();
            sot[QStringLiteral("Stare")] = stare;
            membri.append(sot);
        }
        const int copii = 1 + r.bounded(4);
        for (int k = 0; k < copii; ++k) {
            const bool baiat = r.bounded(2) == 0;
            const QDate nastere = zi(2010, 2023);
            QJsonObject copil;
            copil[QStringLiteral("Nume")] = nume;
            copil[QStringLiteral("Prenume")] = QString::fromLatin1(baiat ? alege(r, PrenumeM) : alege(r, PrenumeF));
            copil[QStringLiteral("CNP")] = cnpNou(baiat, nastere);
            copil[QStringLiteral("TipAct")] = 5;
            copil[QStringLiteral("RudenieID")] = 3;
            copil[QStringLiteral("CetatenieID")] = 1;
            copil[QStringLiteral("OcupatieID")] = nastere.year() >= 2020 ? 11 : 8;
            if (nastere.year() < 2020)
                copil[QStringLiteral("UScolara")] = QStringLiteral("Scoala Gimnaziala nr. 1");
            copil[QStringLiteral("Stare")] = stare;
            membri.append(copil);
        }
        c[QStringLiteral("Membrii")] = membri;

        QJsonObject venituri;
        if (r.bounded(3) != 0)
            venituri[QStringLiteral("4")] = 300 + r.bounded(1200);
        venituri[QStringLiteral("71")] = 150 * copii;
        if (r.bounded(5) == 0)
            venituri[QStringLiteral("36")] = 300 + r.bounded(400);
        c[QStringLiteral("Venituri")] = venituri;
        c[QStringLiteral("Locuinte")] = QJsonArray{QJsonObject{{QStringLiteral("Cod"), 1 + r.bounded(3)},
                                                               {QStringLiteral("NrCamere"), 1 + r.bounded(4)},
                                                               {QStringLiteral("Suprafata"), 30 + r.bounded(90)}}};
        cereri.append(c);
    }
    return cereri;
}

void ScrieDatePrimarieDemo(const BD& bd)
{
    bd.executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire, CodFiscal, CodJudet, Judet, Localitate, Str, Nr, Primar, "
                              "Secretar, AsSocial, CNPAsSocial, TipLocalitate, OfPostal, CodPostal) "
                              "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
               {QStringLiteral("Primaria Orasului Tarnaveni (date demonstrative)"), QStringLiteral("4323365"),
                QStringLiteral("MS"), QStringLiteral("Mures"), QStringLiteral("Tarnaveni"),
                QStringLiteral("Piata Primariei"), QStringLiteral("1"), QStringLiteral("Ion Exemplu"),
                QStringLiteral("Maria Exemplu"), QStringLiteral("Ana Exemplu"), QStringLiteral("2800101260011"), 2,
                QStringLiteral("Tarnaveni"), QStringLiteral("545600")});
    bd.executa(QStringLiteral("INSERT INTO Judete (JudetID, Denumire) VALUES (1, ?)"), {QStringLiteral("Mures")});
    bd.executa(QStringLiteral("INSERT INTO Localitati (LocalitateID, Denumire) VALUES (1, ?)"), {QStringLiteral("Tarnaveni")});
}

void CompleteazaDemo(const QString& folder, int n)
{
    BD bd;
    bd.deschide(QDir(folder).filePath(Proces::NumeBD));
    // The whole demo is one transaction: a page cache that holds it spares re-reading pages
    // that were just written (64 MB; the default is 2 MB).
    bd.executa(QStringLiteral("PRAGMA cache_size = -65536"));
    {
        Tranzactie t(bd);
        ScrieDatePrimarieDemo(bd);
        t.confirma();
    }
    const QJsonArray cereri = GenereazaCereriDemo(n);
    int nesalvate = 0;
    QString primaProblema;
    // One outer transaction: each application is still its own savepoint, and the file is
    // written once at the end instead of once per application.
    Tranzactie t(bd);
    ImportaCereri(bd, cereri, Ceas::azi().year(), [&](const RezultatImport& r) {
        if (!r.salvat) {
            ++nesalvate;
            if (primaProblema.isEmpty())
                primaProblema = r.mesaje.join(QStringLiteral("; "));
        }
    });
    if (nesalvate)
        throw Eroare(3000, QStringLiteral("%1 cereri demonstrative nu au putut fi salvate: %2").arg(nesalvate).arg(primaProblema),
                     QStringLiteral("init --demo"));
    t.confirma();
}
