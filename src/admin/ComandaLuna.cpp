#include "admin/Comenzi.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Proces.h"
#include "database/BD.h"
#include "history/JurnalLuni.h"
#include "reports/InchidereLuna.h"
#include "reports/PlatiFamilie.h"

#include <QDir>
#include <QJsonDocument>
#include <cstdio>

// alocatii-admin luna: the month close from the command line, by the same code as the window.
// diff shows the month's payroll against the last closed month, inchide closes it, redeschide
// reopens it with a reason, stat writes its payroll (the stored one of a closed month), jurnal
// prints the journal of closes and reopenings, plati a family's payments month by month.

namespace {

const QString Utilizare = QStringLiteral(
    "Utilizare: alocatii-admin luna --office DIR [--server URI] --luna L --an A diff|inchide|redeschide [--motiv TEXT] "
    "[--json]\n"
    "           alocatii-admin luna --office DIR [--server URI] --luna L --an A stat [--pdf FISIER | --xlsx FISIER]\n"
    "           alocatii-admin luna --office DIR [--server URI] [--luna L --an A] jurnal [--json]\n"
    "           alocatii-admin luna --office DIR [--server URI] plati --cerere CEREREID [--an A] "
    "[--json | --pdf FISIER | --xlsx FISIER]");

const QStringList CuValoare{QStringLiteral("--office"), QStringLiteral("--luna"), QStringLiteral("--an"),
                            QStringLiteral("--motiv"),  QStringLiteral("--pdf"),  QStringLiteral("--xlsx"),
                            QStringLiteral("--cerere")};

void scrieText(const DiferentaLuna& d)
{
    ScrieLinie(QStringLiteral("Luna %1: %2")
                   .arg(TextLuna(d.luna), d.inchisa ? QStringLiteral("inchisa") : QStringLiteral("deschisa")));
    ScrieLinie(d.fataDe ? QStringLiteral("Fata de: %1").arg(TextLuna(*d.fataDe))
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
    if (const QString r = TextReconstituite(d); !r.isEmpty())
        ScrieLinie(r);
}

void scrieJurnal(const std::vector<RandJurnal>& jurnal)
{
    if (jurnal.empty())
        ScrieLinie(QStringLiteral("Jurnalul nu are nicio inchidere."));
    for (const RandJurnal& r : jurnal) {
        QString linie =
            QStringLiteral("%1: %2 la %3 %4, %5 / %6; %7 familii, %8 copii, %9 lei")
                .arg(TextLuna(r.luna), TextFelJurnal(r.fel), TextData(r.data), r.ora, r.statie, r.utilizator)
                .arg(r.familii)
                .arg(r.copii)
                .arg(r.suma.textSuma());
        if (!r.motiv.isEmpty())
            linie += QStringLiteral("; motiv: ") + r.motiv;
        ScrieLinie(linie);
    }
}

void scriePlati(const PlatiFamilie& p)
{
    ScrieLinie(
        QStringLiteral("Cererea %1, titular %2: %3 luni platite").arg(p.nrCerere).arg(p.titular).arg(p.luni.size()));
    for (const PlataLunara& x : p.luni) {
        const QString disp = TextDispozitiePlata(x);
        ScrieLinie(QStringLiteral("  %1: %2 lei, %3 copii, stare %4%5")
                       .arg(TextLuna(x.luna), x.cuantum.textSuma())
                       .arg(x.nrCopii)
                       .arg(x.stare)
                       .arg(disp.isEmpty() ? QString() : QStringLiteral(", dispozitia ") + disp));
    }
    ScrieLinie(QStringLiteral("Total: %1 lei").arg(p.total.textSuma()));
}

// The month of --luna and --an, checked as the window checks it; the message when refused.
std::optional<LunaAn> luna(const QStringList& arg)
{
    const LunaCitita c = CitesteLunaAn(Optiune(arg, QStringLiteral("--luna")), Optiune(arg, QStringLiteral("--an")));
    if (!c.luna)
        ScrieEroare(c.mesaj);
    return c.luna;
}

int plati(const BD& bd, const QStringList& arg)
{
    const auto cerere = OptiuneIntreaga(arg, "--cerere");
    if (!cerere)
        return 2;
    std::optional<int> an;
    if (AreOptiune(arg, QStringLiteral("--an"))) {
        const auto a = OptiuneIntreaga(arg, "--an");
        if (!a)
            return 2;
        an = int(*a);
    }
    const PlatiFamilie p = CitestePlatiFamilie(bd, *cerere, an);
    if (p.nrCerere == 0 && p.luni.empty()) {
        ScrieEroare(QStringLiteral("Cererea cu CerereID %1 nu exista.").arg(*cerere));
        return 1;
    }
    if (AreOptiune(arg, QStringLiteral("--pdf")) || AreOptiune(arg, QStringLiteral("--xlsx"))) {
        ReportGrid g;
        ConstruiestePlatiFamilie(bd, p, g);
        return ScrieGridComanda(g, arg);
    }
    if (AreOptiune(arg, QStringLiteral("--json")))
        ScrieJson(PlatiJson(p));
    else
        scriePlati(p);
    return 0;
}

int ruleaza(const QStringList& arg)
{
    const QStringList poz = Pozitionale(arg, CuValoare);
    const QString oficiu = Optiune(arg, QStringLiteral("--office"));
    static const QStringList actiuni{QStringLiteral("diff"), QStringLiteral("inchide"), QStringLiteral("redeschide"),
                                     QStringLiteral("stat"), QStringLiteral("jurnal"),  QStringLiteral("plati")};
    if (poz.size() != 1 || oficiu.isEmpty() || !actiuni.contains(poz[0])) {
        ScrieEroare(Utilizare);
        return 2;
    }
    const QString actiune = poz[0];
    // The journal takes a month only to keep to it; the payments none.
    std::optional<LunaAn> l;
    const bool cuLuna = AreOptiune(arg, QStringLiteral("--luna")) || AreOptiune(arg, QStringLiteral("--an"));
    if (actiune != QLatin1String("plati") && (actiune != QLatin1String("jurnal") || cuLuna))
        if (!(l = luna(arg)))
            return 2;
    const QString dir = QDir(oficiu).absolutePath();
    IncarcaSetariOficiu(dir);
    BD bd;
    try {
        if (!DeschideBDOficiu(bd, arg, dir, true))
            return 1;
        if (actiune == QLatin1String("plati"))
            return plati(bd, arg);
        if (actiune == QLatin1String("jurnal")) {
            const std::vector<RandJurnal> j = CitesteJurnal(bd, l);
            if (AreOptiune(arg, QStringLiteral("--json")))
                ScrieJson(JurnalJson(j));
            else
                scrieJurnal(j);
            return 0;
        }
        if (actiune == QLatin1String("stat")) {
            ReportGrid g;
            ConstruiesteStatPlata(bd, *l, g);
            return ScrieGridComanda(g, arg);
        }
        if (actiune == QLatin1String("inchide"))
            InchideLuna(bd, *l);
        else if (actiune == QLatin1String("redeschide"))
            RedeschideLuna(bd, *l, Optiune(arg, QStringLiteral("--motiv")));
        const DiferentaLuna d = Diferenta(bd, *l);
        if (AreOptiune(arg, QStringLiteral("--json")))
            ScrieJson(DiferentaJson(d));
        else
            scrieText(d);
    } catch (const Eroare& e) {
        ScrieEroare(e.descriere);
        return 1;
    }
    return 0;
}

ComandaInregistrata comanda(QStringLiteral("luna"),
                            QStringLiteral("luna --office DIR [--server URI] --luna L --an A "
                                           "diff|inchide|redeschide|stat|jurnal [--motiv TEXT] [--json], "
                                           "luna --office DIR plati --cerere ID [--an A] [--json|--pdf F]: "
                                           "inchiderea lunii, jurnalul ei si platile unei familii"),
                            ruleaza);

} // namespace
