#include "admin/Comenzi.h"
#include "import/ImportCereri.h"
#include "database/BD.h"
#include "common/FisiereHelper.h"
#include "common/JsonStrict.h"
#include "common/Proces.h"
#include "common/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

// alocatii-admin import-cereri: applications from a JSON file, through the application editor's
// checks and save. The workstation setting ReteaSetat comes from DIR/setariTarnava.ini when the
// office folder holds one, as on a workstation whose program folder is the office folder.
// With ReteaSetat on, each save takes the network lock; while another workstation holds it the
// import waits and tries again, as an officer presses OK again.

namespace {

const QString Utilizare = QStringLiteral("Utilizare: alocatii-admin import-cereri FISIER.json --office DIR --an AN");

// ReteaSetat of DIR/setariTarnava.ini, read without writing anything back: several imports may
// run at once against one office.
bool reteaSetata(const QString& oficiu)
{
    const QString fisier = QDir(oficiu).filePath(QStringLiteral("setariTarnava.ini"));
    if (!QFileInfo::exists(fisier))
        return false;
    return ValoareIntreaga(
               FisiereHelper().CitesteIni(QStringLiteral("ReteaSetat"), QStringLiteral("Generale"), fisier)) != 0;
}

int ruleaza(const QStringList& arg)
{
    const QStringList poz = Pozitionale(arg, {QStringLiteral("--office"), QStringLiteral("--an")});
    const QString oficiu = Optiune(arg, QStringLiteral("--office"));
    const QString an = Optiune(arg, QStringLiteral("--an"));
    if (poz.size() != 1 || oficiu.isEmpty() || an.isEmpty()) {
        ScrieEroare(Utilizare);
        return 2;
    }
    if (!EsteNumarIntreg(an) || an.toInt() < 1900 || an.toInt() > 2500) {
        ScrieEroare(QStringLiteral("--an cere un an intre 1900 si 2500."));
        return 2;
    }

    QFile f(poz[0]);
    if (!f.open(QIODevice::ReadOnly)) {
        ScrieEroare(QStringLiteral("Fisierul %1 nu poate fi citit: %2").arg(poz[0], f.errorString()));
        return 1;
    }
    const QByteArray text = f.readAll();
    // What the reader would change on its way in is refused before it reads.
    if (const QString strict = VerificaJsonStrict(text); !strict.isEmpty()) {
        ScrieEroare(QStringLiteral("Fisierul %1: %2 Nu s-a importat nimic.").arg(poz[0], strict));
        return 1;
    }
    QJsonParseError eroare;
    const QJsonDocument doc = QJsonDocument::fromJson(text, &eroare);
    if (eroare.error != QJsonParseError::NoError) {
        ScrieEroare(QStringLiteral("Fisierul %1 nu este un JSON corect (%2, la pozitia %3). Nu s-a importat nimic.")
                        .arg(poz[0], eroare.errorString())
                        .arg(eroare.offset));
        return 1;
    }
    if (!doc.isArray()) {
        ScrieEroare(QStringLiteral("Fisierul %1 trebuie sa contina un tablou JSON de cereri. Nu s-a importat nimic.")
                        .arg(poz[0]));
        return 1;
    }
    const QJsonArray cereri = doc.array();
    const QString forma = VerificaFormaImport(cereri);
    if (!forma.isEmpty()) {
        ScrieEroare(forma + QStringLiteral(" Nu s-a importat nimic."));
        return 1;
    }

    const QString dir = QDir(oficiu).absolutePath();
    Proces::setari().CaleBD = dir;
    // A connection of the command's own, closed before Qt's connection registry goes away.
    BD bd;
    DeschideBDOficiu(bd, arg, dir);

    OptiuniImport o;
    o.retea = reteaSetata(dir);
    Proces::setari().ReteaSetat = o.retea ? 1 : 0;
    o.folderBlocare = Proces::setari().ServerBD.isEmpty() ? dir : QString();
    int nesalvate = 0;
    ImportaCereri(
        bd, cereri, an.toInt(),
        [&](const RezultatImport& r) {
            if (!r.salvat)
                ++nesalvate;
            ScrieJson(JsonRezultatImport(r));
        },
        o);
    return nesalvate ? 3 : 0;
}

} // namespace

static ComandaInregistrata importCereri(
    QStringLiteral("import-cereri"),
    QStringLiteral(
        "import-cereri FISIER.json --office DIR --an AN   adauga cereri prin verificarile si salvarea editorului"),
    ruleaza);
