#include "admin/Comenzi.h"
#include "database/BD.h"
#include "documents/DispozitiiInBloc.h"
#include "documents/DocumentDispozitie.h"
#include "documents/DocumenteCerere.h"
#include "documents/SablonRtf.h"
#include "common/Data.h"
#include "common/FisiereHelper.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "common/Text.h"

#include <QDir>
#include <QFileInfo>
#include <optional>

// alocatii-admin document: the documents of the desktop program written to a file, without
// opening a word processor. The workstation settings that the documents read (StrSat, Motiv,
// AnSetat) come from DIR/setariTarnava.ini when the office folder holds one, as on a
// workstation whose program folder is the office folder; otherwise from the defaults.

namespace {

const QString Utilizare =
    QStringLiteral("Utilizare: alocatii-admin document disp --office DIR --id DISPOZITIEID --out FISIER\n"
                   "           alocatii-admin document declaratie|fisa --office DIR --cerere CEREREID --out FISIER "
                   "[--data zz.ll.aaaa]\n"
                   "           alocatii-admin document toate --office DIR --tip T --statut S --luna L [--an A] --min X "
                   "--max Y --out FISIER");

const QStringList CuValoare{QStringLiteral("--office"), QStringLiteral("--id"),   QStringLiteral("--out"),
                            QStringLiteral("--cerere"), QStringLiteral("--data"), QStringLiteral("--tip"),
                            QStringLiteral("--statut"), QStringLiteral("--luna"), QStringLiteral("--an"),
                            QStringLiteral("--min"),    QStringLiteral("--max")};

int ruleaza(const QStringList& arg)
{
    const QStringList poz = Pozitionale(arg, CuValoare);
    const QString oficiu = Optiune(arg, QStringLiteral("--office"));
    const QString iesire = Optiune(arg, QStringLiteral("--out"));
    if (poz.size() != 1 || oficiu.isEmpty() || iesire.isEmpty()) {
        ScrieEroare(Utilizare);
        return 2;
    }
    const QString tip = poz[0];
    const QString dir = QDir(oficiu).absolutePath();
    IncarcaSetariOficiu(dir);
    BD bd;
    if (!DeschideBDOficiu(bd, arg, dir, true))
        return 1;
    const Setari& s = Proces::setari();

    std::optional<QByteArray> doc;
    if (tip == QLatin1String("disp")) {
        const auto id = OptiuneIntreaga(arg, "--id");
        if (!id)
            return 2;
        doc = DocumentulDispozitiei(*id, s, bd);
    } else if (tip == QLatin1String("declaratie") || tip == QLatin1String("fisa")) {
        const auto id = OptiuneIntreaga(arg, "--cerere");
        if (!id)
            return 2;
        if (tip == QLatin1String("declaratie")) {
            doc = DocumentulDeclaratiei(*id, s, bd);
        } else {
            QDate data;
            if (AreOptiune(arg, QStringLiteral("--data"))) {
                data = CitesteData(Optiune(arg, QStringLiteral("--data")));
                if (EsteDataZero(data)) {
                    ScrieEroare(QStringLiteral("Optiunea --data cere o data zz.ll.aaaa."));
                    return 2;
                }
            }
            doc = DocumentulFisei(*id, data, bd);
        }
    } else if (tip == QLatin1String("toate")) {
        SelectieDispozitii sel;
        const auto t = OptiuneIntreaga(arg, "--tip"), st = OptiuneIntreaga(arg, "--statut"),
                   l = OptiuneIntreaga(arg, "--luna"), mi = OptiuneIntreaga(arg, "--min"),
                   ma = OptiuneIntreaga(arg, "--max");
        if (!t || !st || !l || !mi || !ma)
            return 2;
        sel.tipDisp = int(*t);
        sel.statut = int(*st);
        sel.luna = int(*l);
        sel.nrMin = *mi;
        sel.nrMax = *ma;
        sel.an = s.AnSetat;
        if (AreOptiune(arg, QStringLiteral("--an"))) {
            const auto a = OptiuneIntreaga(arg, "--an");
            if (!a)
                return 2;
            sel.an = int(*a);
        }
        doc = DocumentDispozitiiSelectate(sel, s, bd);
    } else {
        ScrieEroare(Utilizare);
        return 2;
    }
    if (!doc) {
        ScrieEroare(QStringLiteral("Documentul nu a fost scris."));
        return 1;
    }
    ScrieFisierDocument(iesire, *doc);
    ScrieLinie(QStringLiteral("Documentul a fost scris in %1")
                   .arg(QDir::toNativeSeparators(QFileInfo(iesire).absoluteFilePath())));
    return 0;
}

} // namespace

static ComandaInregistrata document(
    QStringLiteral("document"),
    QStringLiteral("document disp|declaratie|fisa|toate --office DIR ... --out FISIER   scrie documentul din sablonul "
                   "lui (setarile din DIR/setariTarnava.ini daca exista, altfel cele implicite)"),
    ruleaza);
