#include "admin/Comenzi.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Proces.h"
#include "database/BD.h"
#include "reports/InchidereLuna.h"

#include <QDir>
#include <QJsonDocument>
#include <cstdio>

// alocatii-admin luna: the month close from the command line, by the same code as the window.
// diff shows the month's payroll against the last closed month, inchide closes it, redeschide
// reopens it with a reason, stat writes its payroll (the stored one of a closed month).

namespace {

const QString Utilizare = QStringLiteral(
    "Utilizare: alocatii-admin luna --office DIR [--server URI] --luna L --an A diff|inchide|redeschide [--motiv TEXT] "
    "[--json]\n"
    "           alocatii-admin luna --office DIR [--server URI] --luna L --an A stat [--pdf FISIER | --xlsx FISIER]");

const QStringList CuValoare{QStringLiteral("--office"), QStringLiteral("--luna"), QStringLiteral("--an"),
                            QStringLiteral("--motiv"),  QStringLiteral("--pdf"),  QStringLiteral("--xlsx")};

void scrieJson(const QJsonObject& o)
{
    const QByteArray json = QJsonDocument(o).toJson(QJsonDocument::Compact);
    std::fwrite(json.constData(), 1, size_t(json.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void scrieText(const DiferentaLuna& d)
{
    ScrieLinie(QStringLiteral("Luna %1 %2: %3")
                   .arg(NumeLuna(d.luna.luna))
                   .arg(d.luna.an)
                   .arg(d.inchisa ? QStringLiteral("inchisa") : QStringLiteral("deschisa")));
    ScrieLinie(d.fataDe ? QStringLiteral("Fata de: %1 %2").arg(NumeLuna(d.fataDe->luna)).arg(d.fataDe->an)
                        : QStringLiteral("Fata de: nicio luna inchisa inainte"));
    const auto lista = [](const QString& titlu, const std::vector<RandDiferenta>& v) {
        ScrieLinie(QStringLiteral("%1: %2").arg(titlu).arg(v.size()));
        for (const RandDiferenta& r : v)
            ScrieLinie(QStringLiteral("  cererea %1 %2, stare %3, %4 -> %5, dispozitia %6")
                           .arg(r.nrCerere)
                           .arg(r.nume, r.stare ? QString::number(*r.stare) : QStringLiteral("-"),
                                r.cuantumVechi ? r.cuantumVechi->textSuma() : QStringLiteral("-"),
                                r.cuantum ? r.cuantum->textSuma() : QStringLiteral("-"),
                                r.nrDisp ? QString::number(*r.nrDisp) : QStringLiteral("-")));
    };
    lista(QStringLiteral("Noi"), d.noi);
    lista(QStringLiteral("Oprite"), d.oprite);
    lista(QStringLiteral("Modificate"), d.modificate);
    ScrieLinie(QStringLiteral("Neschimbate: %1").arg(d.neschimbate));
    const TotalPlata& t = d.totaluri.toate;
    ScrieLinie(
        QStringLiteral("Total: %1 familii, %2 copii, %3 lei").arg(t.familii).arg(t.copii).arg(t.suma.textSuma()));
}

int stat(const BD& bd, LunaAn l, const QStringList& arg)
{
    ReportGrid g;
    ConstruiesteStatPlata(bd, l, g);
    return ScrieGridComanda(g, arg);
}

int ruleaza(const QStringList& arg)
{
    const QStringList poz = Pozitionale(arg, CuValoare);
    const QString oficiu = Optiune(arg, QStringLiteral("--office"));
    static const QStringList actiuni{QStringLiteral("diff"), QStringLiteral("inchide"), QStringLiteral("redeschide"),
                                     QStringLiteral("stat")};
    if (poz.size() != 1 || oficiu.isEmpty() || !actiuni.contains(poz[0])) {
        ScrieEroare(Utilizare);
        return 2;
    }
    const auto luna = OptiuneIntreaga(arg, "--luna"), an = OptiuneIntreaga(arg, "--an");
    if (!luna || !an)
        return 2;
    if (*luna < 1 || *luna > 12 || *an < 1900 || *an > 2500) {
        ScrieEroare(QStringLiteral("Optiunile --luna (1-12) si --an sunt obligatorii."));
        return 2;
    }
    const LunaAn l{int(*luna), int(*an)};
    const QString dir = QDir(oficiu).absolutePath();
    IncarcaSetariOficiu(dir);
    BD bd;
    try {
        if (!DeschideBDOficiu(bd, arg, dir, true))
            return 1;
        if (poz[0] == QLatin1String("stat"))
            return stat(bd, l, arg);
        if (poz[0] == QLatin1String("inchide"))
            InchideLuna(bd, l);
        else if (poz[0] == QLatin1String("redeschide"))
            RedeschideLuna(bd, l, Optiune(arg, QStringLiteral("--motiv")));
        const DiferentaLuna d = Diferenta(bd, l);
        if (AreOptiune(arg, QStringLiteral("--json")))
            scrieJson(DiferentaJson(d));
        else
            scrieText(d);
    } catch (const Eroare& e) {
        ScrieEroare(e.descriere);
        return 1;
    }
    return 0;
}

ComandaInregistrata
    comanda(QStringLiteral("luna"),
            QStringLiteral("luna --office DIR [--server URI] --luna L --an A diff|inchide|redeschide|stat "
                           "[--motiv TEXT] [--json]: inchiderea lunii"),
            ruleaza);

} // namespace
