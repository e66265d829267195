#include "preluare/FisierePreluare.h"

#include "documents/SablonRtf.h"
#include "database/Oficiu.h"
#include "common/Eroare.h"
#include "common/Ini.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

const QString FisierSetariNou = QStringLiteral("setariTarnava.ini");
const QStringList FisiereSemanate = {QStringLiteral("Venituri.txt"), QStringLiteral("bife.txt")};
const QString FisierParola = QStringLiteral("setariOlt.ini");

// The options of a workstation's settings file, section and key.
const std::vector<std::pair<const char*, const char*>>& optiuni()
{
    static const std::vector<std::pair<const char*, const char*>> o = {
        {"Generale", "CaleBD"},
        {"Generale", "pass"},
        {"Oblig", "NrCaractSerie"},
        {"Oblig", "ObligEmailPrimarie"},
        {"Ordonari", "NrCerereAnexa3"},
        {"Fonturi", "FontSize0"},
        {"Fonturi", "FontName0"},
        {"Fonturi", "FontB0"},
        {"Fonturi", "FontI0"},
        {"Fonturi", "FontU0"},
        {"Afisari", "AfisCereri"},
        {"Fisiere", "Anexa3"},
        {"Fisiere", "Anexa4"},
        {"Fisiere", "StatPlata"},
        {"Generale", "Anexa2ExportWord"},
        {"Generale", "StrSat"},
        {"Generale", "AfisSerieStatPlata"},
        {"Generale", "ReteaSetat"},
        {"Generale", "Motiv"},
        {"Borderou", "HeightRowBorderou"},
        {"Raport", "HeightRowRaport"},
        {"App", "AppWord"},
        {"Setari", "LunaSetata"},
        {"Setari", "AnSetat"},
        {"Cale", "CaleWord"},
        {"Generale", "CuloareVenit"},
    };
    return o;
}

// A file of the old folder found regardless of case, as on Windows; "" when there is none.
QString gaseste(const QString& folder, const QString& nume)
{
    for (const QString& f : QDir(folder).entryList(QDir::Files))
        if (f.compare(nume, Qt::CaseInsensitive) == 0)
            return QDir(folder).filePath(f);
    return QString();
}

QString livrat(const QString& relativ)
{
    return relativ.left(relativ.size() - 4) + QStringLiteral("-livrat.rtf");
}

void copiaza(const QString& sursa, const QString& tinta)
{
    QDir().mkpath(QFileInfo(tinta).absolutePath());
    const QString temporar = tinta + QStringLiteral(".preluare");
    QFile::remove(temporar);
    if (!QFile::copy(sursa, temporar) || (QFile::exists(tinta) && !QFile::remove(tinta)) ||
        !QFile::rename(temporar, tinta)) {
        QFile::remove(temporar);
        throw Eroare(75, QStringLiteral("Fisierul %1 nu poate fi scris.").arg(QDir::toNativeSeparators(tinta)),
                     QStringLiteral("preia"));
    }
    QFile::setPermissions(tinta, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
}

// A path of the old computer that begins with its database folder, on the new folder.
QString mapeaza(const QString& valoare, const QString& caleVeche, const QString& folderNou)
{
    QString v = valoare;
    v.replace(QLatin1Char('/'), QLatin1Char('\\'));
    QString vechi = caleVeche;
    vechi.replace(QLatin1Char('/'), QLatin1Char('\\'));
    while (vechi.endsWith(QLatin1Char('\\')))
        vechi.chop(1);
    if (vechi.isEmpty() || !v.startsWith(vechi, Qt::CaseInsensitive))
        return valoare;
    const QString rest = v.mid(vechi.size());
    if (!rest.isEmpty() && !rest.startsWith(QLatin1Char('\\')))
        return valoare;
    return QDir::toNativeSeparators(folderNou + QString(rest).replace(QLatin1Char('\\'), QLatin1Char('/')));
}

} // namespace

std::vector<FisierPreluat> FisiereDePreluat(const QString& folderVechi, QStringList& observatii)
{
    std::vector<FisierPreluat> f;
    QString acte;
    for (const QString& d : QDir(folderVechi).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (d.compare(QLatin1String("acte"), Qt::CaseInsensitive) == 0)
            acte = QDir(folderVechi).filePath(d);
    if (acte.isEmpty()) {
        observatii << QStringLiteral("Folderul vechi nu are acte/: raman sabloanele livrate cu programul.");
    } else {
        int sabloane = 0;
        QDirIterator it(acte, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString cale = it.next();
            FisierPreluat x{cale, QStringLiteral("acte/") + QDir(acte).relativeFilePath(cale)};
            if (cale.endsWith(QLatin1String(".rtf"), Qt::CaseInsensitive)) {
                ++sabloane;
                QFile fisier(cale);
                Sablon s;
                x.sablonStricat = !fisier.open(QIODevice::ReadOnly) || !ImparteSablon(fisier.readAll(), s);
                if (x.sablonStricat)
                    observatii << QStringLiteral("Sablonul %1 este deteriorat: motorul de sabloane nu il poate "
                                                 "imparti. Se copiaza asa cum este; sablonul livrat cu programul "
                                                 "ramane alaturi, %2.")
                                      .arg(x.relativ, livrat(x.relativ));
            }
            f.push_back(x);
        }
        observatii
            << QStringLiteral("Din acte/ se copiaza %1 fisiere, intre care %2 sabloane.").arg(f.size()).arg(sabloane);
    }
    for (const QString& nume : FisiereSemanate + QStringList{FisierParola}) {
        const QString cale = gaseste(folderVechi, nume);
        if (cale.isEmpty()) {
            observatii
                << (nume == FisierParola
                        ? QStringLiteral("Folderul vechi nu are %1: nu se preia nicio parola schimbata.").arg(nume)
                        : QStringLiteral("Folderul vechi nu are %1: ramane cel livrat cu programul.").arg(nume));
            continue;
        }
        f.push_back({cale, nume});
        observatii << QStringLiteral("Se copiaza %1.").arg(nume);
    }
    return f;
}

void PregatesteFisiereSemanate(const std::vector<FisierPreluat>& fisiere, const QString& folder)
{
    for (const QString& nume : FisiereSemanate) {
        for (const FisierPreluat& f : fisiere)
            if (f.relativ == nume)
                copiaza(f.sursa, QDir(folder).filePath(nume));
        if (!AsiguraFisierOficiu(folder, nume))
            throw Eroare(75, QStringLiteral("Fisierul %1 nu poate fi scris.").arg(QDir(folder).filePath(nume)),
                         QStringLiteral("preia"));
    }
}

void CopiazaFisierePreluate(const std::vector<FisierPreluat>& fisiere, const QString& folderNou)
{
    Q_INIT_RESOURCE(office);
    for (const FisierPreluat& f : fisiere) {
        if (f.sablonStricat && QFile::exists(QStringLiteral(":/office/") + f.relativ))
            copiaza(QStringLiteral(":/office/") + f.relativ, QDir(folderNou).filePath(livrat(f.relativ)));
        copiaza(f.sursa, QDir(folderNou).filePath(f.relativ));
    }
}

QString VerificaSetariVechi(const QString& iniVechi)
{
    QFile f(iniVechi);
    if (!f.open(QIODevice::ReadOnly))
        return QStringLiteral("Fisierul de setari %1 nu poate fi citit: %2.")
            .arg(QDir::toNativeSeparators(iniVechi), f.errorString());
    return QString();
}

void PreiaSetari(const QString& iniVechi, const QString& folderNou, QStringList& observatii)
{
    const QString nou = QDir(folderNou).filePath(FisierSetariNou);
    if (!QFile::exists(nou))
        copiaza(iniVechi, nou);
    const FisierIni vechi(iniVechi);
    const FisierIni tinta(nou);
    const QString caleVeche = vechi.citeste(QStringLiteral("Generale"), QStringLiteral("CaleBD"));
    int n = 0;
    for (const auto& [sectiune, cheie] : optiuni()) {
        const QString s = QLatin1String(sectiune);
        const QString k = QLatin1String(cheie);
        const bool caleBD = k == QLatin1String("CaleBD");
        QString v = vechi.citeste(s, k);
        if (v.isEmpty() && !caleBD)
            continue;
        v = caleBD ? QDir::toNativeSeparators(folderNou) : mapeaza(v, caleVeche, folderNou);
        if (tinta.citeste(s, k) != v && !tinta.scrie(s, k, v))
            throw Eroare(75,
                         QStringLiteral("Fisierul de setari %1 nu poate fi scris.").arg(QDir::toNativeSeparators(nou)),
                         QStringLiteral("preia"));
        ++n;
    }
    observatii << QStringLiteral("Setari preluate din %1 in %2: %3 optiuni; CaleBD este acum %4.")
                      .arg(QDir::toNativeSeparators(iniVechi), QDir::toNativeSeparators(nou))
                      .arg(n)
                      .arg(QDir::toNativeSeparators(folderNou));
}
