#include "preluare/Preluare.h"

#include "preluare/FisierePreluare.h"
#include "preluare/RaportPreluare.h"
#include "database/ActualizareBD.h"
#include "database/BD.h"
#include "database/ListeCod.h"
#include "database/Oficiu.h"
#include "database/Schema.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Setari.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <utility>

namespace {

[[noreturn]] void gresit(const QString& text)
{
    throw Eroare(IntrarePreluareGresita, text, QStringLiteral("preia"));
}

QString nativ(const QString& cale)
{
    return QDir::toNativeSeparators(cale);
}

// The new office folder can take the files: it exists and a file can be made in it, or it
// can be made (its nearest existing folder is a folder).
void verificaFolder(const QString& folder)
{
    const QFileInfo fi(folder);
    if (fi.exists() && !fi.isDir())
        gresit(QStringLiteral("%1 nu este un folder.").arg(nativ(folder)));
    if (!fi.exists()) {
        QFileInfo sus(fi.absolutePath());
        while (!sus.exists() && !sus.isRoot())
            sus = QFileInfo(sus.absolutePath());
        if (!sus.isDir() || !sus.isWritable())
            gresit(QStringLiteral("Folderul %1 nu poate fi creat: %2 nu se poate scrie.")
                       .arg(nativ(folder), nativ(sus.absoluteFilePath())));
        return;
    }
    QTemporaryFile proba(QDir(folder).filePath(QStringLiteral("proba-XXXXXX")));
    if (!fi.isWritable() || !proba.open())
        gresit(QStringLiteral("Folderul %1 nu poate fi scris. Alegeti un folder in care aveti drept de scriere.")
                   .arg(nativ(folder)));
}

// The database that receives the move: a new office made by init that holds no case yet, or
// none at all, made here with the rows (then `noua`).
struct Tinta {
    BD bd;
    bool noua = false;
    QString fisier;   // Tarnava.db; empty on a server
    QString temporar; // the file while it is being built
};

void verificaGoala(const BD& bd, const QString& unde)
{
    if (!bd.tabelaExista(QStringLiteral("Cereri")) || !bd.tabelaExista(QStringLiteral("Familii")))
        gresit(QStringLiteral("%1 nu este un oficiu al programului (nu are tabelele Cereri si Familii).").arg(unde));
    const qint64 cereri = bd.scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri")).toLongLong();
    const qint64 familii = bd.scalar(QStringLiteral("SELECT COUNT(*) FROM Familii")).toLongLong();
    const qint64 membri = bd.tabelaExista(QStringLiteral("Membrii"))
                              ? bd.scalar(QStringLiteral("SELECT COUNT(*) FROM Membrii")).toLongLong()
                              : 0;
    if (cereri + familii + membri > 0)
        gresit(QStringLiteral("Oficiul din %1 are deja %2 cereri, %3 familii si %4 persoane. Preluarea se face numai "
                              "intr-un oficiu nou, facut cu alocatii-admin init; nu s-a scris nimic.")
                   .arg(unde)
                   .arg(cereri)
                   .arg(familii)
                   .arg(membri));
}

void deschideTinta(Tinta& t, const OptiuniPreluare& o, const QString& folder)
{
    if (!o.server.isEmpty()) {
        try {
            VerificaFaraParola(o.server);
            t.bd.deschideServer(o.server);
        } catch (const Eroare& e) {
            gresit(e.descriere);
        }
        t.noua = t.bd.conexiune().tables().isEmpty();
        if (!t.noua)
            verificaGoala(t.bd, t.bd.cale());
        return;
    }
    t.fisier = QDir(folder).filePath(Proces::NumeBD);
    if (!QFileInfo::exists(t.fisier)) {
        t.noua = true;
        return;
    }
    try {
        t.bd.deschide(t.fisier);
    } catch (const Eroare& e) {
        gresit(QStringLiteral("Baza de date %1 nu poate fi deschisa: %2").arg(nativ(t.fisier), e.descriere));
    }
    verificaGoala(t.bd, nativ(folder));
}

class Pasi {
public:
    Pasi(const ProgresPreluare& f, int total, int facuti = 0) : m_f(f), m_total(total), m_pas(facuti) {}
    void operator()(const QString& ce)
    {
        if (m_f)
            m_f(++m_pas, m_total, ce);
    }

private:
    const ProgresPreluare& m_f;
    int m_total;
    int m_pas;
};

// Every row in one transaction: the schema and code lists of init when the database is new,
// the rows of init taken out, the old office's rows written as they are read and checked, the
// upgrade's seed steps with the seed files the office will hold, and the totals read back.
// Gives the steps of the progress bar done so far, and how many there are in all.
std::pair<int, int> scrieBaza(Preluare& p, Tinta& t, const QString& seminte, const ProgresPreluare& progres)
{
    Tranzactie tr(t.bd);
    if (t.noua) {
        CreeazaSchema(t.bd);
        SeamanaListe(t.bd);
    }
    const std::vector<Tabela>& schema = TabeleOficiu();
    for (auto it = schema.rbegin(); it != schema.rend(); ++it)
        t.bd.executa(QStringLiteral("DELETE FROM %1").arg(it->nume));
    // The bar goes on past the tables for the three steps after them.
    int tabele = 0;
    CitesteSiVerifica(
        p, seminte,
        [&](int i, int n, const QString& ce) {
            tabele = n;
            if (progres)
                progres(i, n + 3, ce);
        },
        &t.bd);
    Pasi pas(progres, tabele + 3, tabele);
    pas(QStringLiteral("Actualizarea bazei de date"));
    MesajeColectate spuse;
    {
        const MesajeTemporare m(spuse);
        ActualizeazaBD(t.bd, seminte);
        // The old program's history has no day of effect: its rows get theirs as an
        // office upgraded in place does.
        CompleteazaZiuaEfectului(t.bd);
    }
    for (const QString& s : spuse.texte)
        p.observatii << QStringLiteral("Actualizarea bazei de date: ") + QString(s).replace(seminte, p.tinta);

    pas(QStringLiteral("Se citesc totalurile din oficiul nou"));
    const TotaluriPreluare inapoi = CitesteTotaluri(t.bd);
    if (inapoi != p.totaluri)
        throw Eroare(3000,
                     QStringLiteral("Totalurile citite din oficiul nou difera de cele ale fisierului vechi:\n%1\n"
                                    "fata de\n%2\nNu s-a scris nimic.")
                         .arg(TextTotaluri(inapoi), TextTotaluri(p.totaluri)),
                     QStringLiteral("preia"));
    tr.confirma();
    return {tabele + 2, tabele + 3};
}

void scrieRaport(Preluare& p)
{
    p.fisierRaport =
        QDir(p.tinta).filePath(QStringLiteral("preluare-%1.txt")
                                   .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"))));
    QSaveFile f(p.fisierRaport);
    if (!f.open(QIODevice::WriteOnly) || f.write(TextRaportPreluare(p).toUtf8()) < 0 || !f.commit())
        throw Eroare(
            75,
            QStringLiteral("Datele au fost preluate, dar raportul %1 nu poate fi scris.").arg(nativ(p.fisierRaport)),
            QStringLiteral("preia"));
}

} // namespace

QString SqlScrieTabelaPreluata(const TabelaPreluata& t)
{
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(t.nume, t.coloane.join(QStringLiteral(", ")),
             QStringList(t.coloane.size(), QStringLiteral("?")).join(QStringLiteral(", ")));
}

void ScrieTabelaPreluata(const BD& bd, const TabelaPreluata& t)
{
    if (t.coloane.isEmpty())
        return;
    const QString sql = SqlScrieTabelaPreluata(t);
    for (const QVariantList& v : t.randuri)
        bd.executa(sql, v);
    VerificaRanduriScrise(bd, t);
}

void VerificaRanduriScrise(const BD& bd, const TabelaPreluata& t)
{
    const qint64 n = bd.scalar(QStringLiteral("SELECT COUNT(*) FROM %1").arg(t.nume)).toLongLong();
    if (n != t.scrise())
        throw Eroare(3000,
                     QStringLiteral("Tabela %1 are in oficiul nou %2 randuri in loc de %3. Nu s-a scris nimic.")
                         .arg(t.nume)
                         .arg(n)
                         .arg(t.scrise()),
                     QStringLiteral("preia"));
}

Preluare Preia(const OptiuniPreluare& optiuni, const ProgresPreluare& progres)
{
    Preluare p;
    OptiuniPreluare o = optiuni;
    p.tinta = QDir(o.oficiu).absolutePath();
    // An office made by `init --server` names its server in its settings file, as for every
    // command that takes --office.
    if (o.server.isEmpty())
        o.server = ServerBDDinSetari(QDir(p.tinta).filePath(QStringLiteral("setariTarnava.ini")), QString());
    p.sursa = GasesteSursa(o.din);
    if (!o.setari.isEmpty())
        if (const QString m = VerificaSetariVechi(o.setari); !m.isEmpty())
            gresit(m);
    verificaFolder(p.tinta);
    Tinta t;
    deschideTinta(t, o, p.tinta);
    const std::vector<FisierPreluat> fisiere = FisiereDePreluat(p.sursa.folder, p.observatii);

    QTemporaryDir seminte;
    PregatesteFisiereSemanate(fisiere, seminte.path());
    if (o.incearca) {
        CitesteSiVerifica(p, seminte.path(), progres);
        return p;
    }

    const bool folderNou = !QFileInfo::exists(p.tinta);
    std::pair<int, int> pasi{0, 1}; // done, in all
    if (t.noua && o.server.isEmpty()) {
        if (!QDir().mkpath(p.tinta))
            gresit(QStringLiteral("Folderul %1 nu poate fi creat.").arg(nativ(p.tinta)));
        t.temporar = t.fisier + QStringLiteral(".preluare");
        QFile::remove(t.temporar);
        t.bd.deschide(t.temporar, true);
        t.bd.executa(QStringLiteral("PRAGMA journal_mode = DELETE"));
    }
    try {
        pasi = scrieBaza(p, t, seminte.path(), progres);
        t.bd.inchide();
        if (!t.temporar.isEmpty() && !QFile::rename(t.temporar, t.fisier))
            throw Eroare(75, QStringLiteral("Baza de date %1 nu poate fi scrisa.").arg(nativ(t.fisier)),
                         QStringLiteral("preia"));
    } catch (...) {
        t.bd.inchide();
        if (!t.temporar.isEmpty())
            QFile::remove(t.temporar);
        if (folderNou)
            QDir().rmdir(p.tinta);
        throw;
    }
    p.scris = true;

    Pasi pas(progres, pasi.second, pasi.first);
    pas(QStringLiteral("Se copiaza sabloanele si fisierele oficiului"));
    if (t.noua)
        CopiazaFisiereOficiu(p.tinta);
    CopiazaFisierePreluate(fisiere, p.tinta);
    // The old settings first: a new settings file starts as their copy, in their encoding.
    if (!o.setari.isEmpty())
        PreiaSetari(o.setari, p.tinta, p.observatii);
    if (t.noua && !o.server.isEmpty())
        ScrieServerOficiu(p.tinta, o.server);
    scrieRaport(p);
    return p;
}
