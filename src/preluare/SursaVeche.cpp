#include "preluare/SursaVeche.h"

#include "common/Eroare.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QProcess>
#include <QStandardPaths>

namespace {

const QString NumeMdb = QStringLiteral("Tarnava.mdb");
const QString Pachet = QStringLiteral("mdbtools");

[[noreturn]] void gresit(const QString& text)
{
    throw Eroare(IntrarePreluareGresita, text, QStringLiteral("preia"));
}

QString nativ(const QString& cale)
{
    return QDir::toNativeSeparators(cale);
}

// The first bytes of every Access file: a page number 0x100 and the engine's name; the byte
// at 0x14 tells the release.
void verificaAccess(const QString& cale, SursaVeche& s)
{
    QFile f(cale);
    if (!f.open(QIODevice::ReadOnly))
        gresit(QStringLiteral("Fisierul %1 nu poate fi citit: %2.").arg(nativ(cale), f.errorString()));
    const QByteArray cap = f.read(0x15);
    const bool jet = cap.mid(4, 15) == "Standard Jet DB" || cap.mid(4, 15) == "Standard ACE DB";
    if (cap.size() < 0x15 || !cap.startsWith(QByteArray("\x00\x01\x00\x00", 4)) || !jet)
        gresit(QStringLiteral("Fisierul %1 nu este o baza de date Access (.mdb).").arg(nativ(cale)));
    const int versiune = static_cast<unsigned char>(cap.at(0x14));
    const qint64 pagina = versiune == 0 ? 2048 : 4096;
    switch (versiune) {
    case 0: s.versiune = QStringLiteral("Jet 3 (Access 97)"); break;
    case 1: s.versiune = QStringLiteral("Jet 4 (Access 2000-2003)"); break;
    default: s.versiune = QStringLiteral("Access 2007 sau mai nou"); break;
    }
    if (f.size() < 2 * pagina || f.size() % pagina != 0)
        gresit(QStringLiteral("Fisierul %1 este trunchiat: are %2 octeti, nu un numar intreg de pagini de %3 "
                              "octeti. Copiati-l din nou de pe calculatorul vechi.")
                   .arg(nativ(cale))
                   .arg(f.size())
                   .arg(pagina));
}

// Runs one of the mdbtools programs and gives its standard output. What it says on its
// standard error is its verdict on the file.
QByteArray mdbtools(const SursaVeche& s, const QString& program, const QStringList& argumente)
{
    const QString cale = QStandardPaths::findExecutable(program);
    if (cale.isEmpty())
        gresit(QStringLiteral("Programul %1 nu este instalat. Instalati pachetul %2 (apt-get install %2) si "
                              "incercati din nou.")
                   .arg(program, Pachet));
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    // The texts of a Jet 3 file are in the Windows code page of its computer: Romanian here.
    if (!env.contains(QStringLiteral("MDB_JET3_CHARSET")))
        env.insert(QStringLiteral("MDB_JET3_CHARSET"), QStringLiteral("CP1250"));
    p.setProcessEnvironment(env);
    p.start(cale, argumente);
    if (!p.waitForStarted())
        gresit(QStringLiteral("Programul %1 nu poate fi pornit: %2.").arg(program, p.errorString()));
    p.closeWriteChannel();
    p.waitForFinished(-1);
    const QByteArray iesire = p.readAllStandardOutput();
    const QString erori = QString::fromLocal8Bit(p.readAllStandardError()).trimmed();
    if (erori.contains(QLatin1String("beyond EOF")))
        gresit(QStringLiteral("Fisierul %1 este trunchiat: mdbtools citeste dincolo de sfarsitul lui (%2). "
                              "Copiati-l din nou de pe calculatorul vechi.")
                   .arg(nativ(s.fisier), erori.section(QLatin1Char('\n'), 0, 0)));
    if (p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        gresit(QStringLiteral("Fisierul %1 nu poate fi citit de mdbtools (%2): %3")
                   .arg(nativ(s.fisier), program,
                        erori.isEmpty() ? QStringLiteral("codul %1").arg(p.exitCode())
                                        : QString(erori).replace(QLatin1Char('\n'), QStringLiteral("; "))));
    return iesire;
}

QString fisierJson(const SursaVeche& s, const QString& tabela)
{
    return QDir(s.folder).filePath(tabela + QStringLiteral(".json"));
}

} // namespace

SursaVeche GasesteSursa(const QString& din)
{
    SursaVeche s;
    const QFileInfo fi(din);
    if (!fi.exists())
        gresit(QStringLiteral("%1 nu exista.").arg(nativ(din)));
    if (fi.isFile()) {
        s.fel = SursaVeche::Fel::Access;
        s.fisier = fi.absoluteFilePath();
        s.folder = fi.absolutePath();
        verificaAccess(s.fisier, s);
        return s;
    }
    s.folder = fi.absoluteFilePath();
    const QDir dir(s.folder);
    if (!fi.isReadable() || !fi.isExecutable())
        gresit(QStringLiteral("Folderul %1 nu poate fi citit.").arg(nativ(s.folder)));
    for (const QString& f : dir.entryList(QDir::Files))
        if (f.compare(NumeMdb, Qt::CaseInsensitive) == 0) {
            s.fel = SursaVeche::Fel::Access;
            s.fisier = dir.filePath(f);
            verificaAccess(s.fisier, s);
            return s;
        }
    if (dir.entryList({QStringLiteral("*.json")}, QDir::Files).isEmpty())
        gresit(QStringLiteral("Folderul %1 nu contine nici %2, nici fisiere <Tabela>.json cu tabelele programului "
                              "vechi.")
                   .arg(nativ(s.folder), NumeMdb));
    return s;
}

QStringList TabeleSursa(const SursaVeche& s)
{
    QStringList tabele;
    if (s.fel == SursaVeche::Fel::Dosar) {
        for (const QString& f : QDir(s.folder).entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name))
            tabele << QFileInfo(f).completeBaseName();
        return tabele;
    }
    const QByteArray iesire = mdbtools(s, QStringLiteral("mdb-tables"), {QStringLiteral("-1"), s.fisier});
    for (const QByteArray& linie : iesire.split('\n')) {
        const QString t = QString::fromUtf8(linie).trimmed();
        if (!t.isEmpty())
            tabele << t;
    }
    if (tabele.isEmpty())
        gresit(
            QStringLiteral("Fisierul %1 nu are nicio tabela pe care mdbtools sa o poata citi.").arg(nativ(s.fisier)));
    return tabele;
}

void CitesteRanduri(const SursaVeche& s, const QString& tabela, const std::function<void(const RandVechi&)>& f)
{
    QByteArray text;
    if (s.fel == SursaVeche::Fel::Access) {
        text = mdbtools(s, QStringLiteral("mdb-json"),
                        {QStringLiteral("-D"), QStringLiteral("%Y-%m-%d"), QStringLiteral("-T"),
                         QStringLiteral("%Y-%m-%d %H:%M:%S"), s.fisier, tabela});
    } else {
        QFile fisier(fisierJson(s, tabela));
        if (!fisier.open(QIODevice::ReadOnly))
            gresit(QStringLiteral("Fisierul %1 nu poate fi citit: %2.")
                       .arg(nativ(fisier.fileName()), fisier.errorString()));
        text = fisier.readAll();
    }
    int numar = 0;
    qsizetype inceput = 0;
    while (inceput < text.size()) {
        qsizetype sfarsit = text.indexOf('\n', inceput);
        if (sfarsit < 0)
            sfarsit = text.size();
        const QByteArray linie = text.mid(inceput, sfarsit - inceput).trimmed();
        inceput = sfarsit + 1;
        if (linie.isEmpty())
            continue;
        RandVechi r;
        r.numar = ++numar;
        QJsonParseError e;
        const QJsonDocument d = QJsonDocument::fromJson(linie, &e);
        if (e.error != QJsonParseError::NoError || !d.isObject())
            r.eroare = QStringLiteral("randul nu este un obiect JSON (%1)").arg(e.errorString());
        else
            r.valori = d.object();
        f(r);
    }
}
