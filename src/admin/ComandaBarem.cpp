#include "admin/Comenzi.h"
#include "amounts/RaportSchimbareBarem.h"
#include "amounts/SchimbareBarem.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Text.h"
#include "database/BD.h"
#include "reports/ReportGrid.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <cstdio>

// alocatii-admin barem: a change of the law's amounts from the command line, by the same code as
// the window "Schimbarea baremului ...". arata prints the lei rows of the scale in force (with
// --json, as FILE.json is written), previzualizeaza the preview of the new amounts of FILE.json
// from the month LL.AAAA (with --json, the grid of the raport command), aplica makes the change
// with its dispositions numbered from --nr-disp.

namespace {

const QString Utilizare = QStringLiteral(
    "Utilizare: alocatii-admin barem --office DIR [--server URI] arata [--json]\n"
    "           alocatii-admin barem --office DIR [--server URI] previzualizeaza --nou FISIER.json --de-la LL.AAAA\n"
    "                                [--json | --pdf FISIER | --xlsx FISIER]\n"
    "           alocatii-admin barem --office DIR [--server URI] aplica --nou FISIER.json --de-la LL.AAAA --nr-disp N\n"
    "                                [--motiv TEXT] [--json]");

const QStringList CuValoare{QStringLiteral("--office"),  QStringLiteral("--nou"),   QStringLiteral("--de-la"),
                            QStringLiteral("--nr-disp"), QStringLiteral("--motiv"), QStringLiteral("--pdf"),
                            QStringLiteral("--xlsx")};

int arata(const BD& bd, bool json)
{
    const BaremLei b = CitesteBaremLei(bd);
    if (json) {
        ScrieJson(BaremLeiJson(b));
        return 0;
    }
    for (const RandBaremLei& r : b)
        ScrieLinie(QStringLiteral("%1: %2").arg(
            DescriereBarem(r.cheie),
            r.barem ? QStringLiteral("%1 lei, de la %2").arg(r.barem->textSuma(), TextData(r.dataInceput))
                    : QStringLiteral("lipseste")));
    for (const SchimbareTrecuta& s : SchimbariBarem(bd))
        ScrieLinie(QStringLiteral("Schimbarea %1 din %2, de la %3: %4 dispozitii%5 (%6)")
                       .arg(s.id)
                       .arg(TextData(s.data), TextData(s.dinData))
                       .arg(s.nrDispozitii)
                       .arg(s.nrDispozitii > 0 ? QStringLiteral(" de la nr %1").arg(TextNumar(s.primulNr)) : QString(),
                            s.motiv));
    return 0;
}

void scrieText(const PrevizualizareBarem& p)
{
    ScrieLinie(QStringLiteral("Barem nou de la %1").arg(TextData(QDate(p.efect.an, p.efect.luna, 1))));
    for (int i = 0; i < NrRanduriBaremLei; ++i)
        ScrieLinie(QStringLiteral("  %1: %2 -> %3")
                       .arg(DescriereBarem(p.vechi[i].cheie),
                            p.vechi[i].barem ? p.vechi[i].barem->textSuma() : QStringLiteral("-"),
                            p.nou[i].textSuma()));
    const auto lista = [](const QString& titlu, const std::vector<CerereBarem>& v) {
        ScrieLinie(QStringLiteral("%1: %2").arg(titlu).arg(v.size()));
        for (const CerereBarem& c : v)
            ScrieLinie(QStringLiteral("  cererea %1 %2: %3 -> %4 (%5)")
                           .arg(c.nrCerere)
                           .arg(c.titular, c.cuantum.textSuma(), c.cuantumNou.textSuma(), c.observatii));
    };
    lista(QStringLiteral("Familii modificate"), p.modificate);
    lista(QStringLiteral("Familii care ar ajunge la 0"), p.laZero);
    lista(QStringLiteral("Cereri care nu pot fi calculate"), p.necalculate);
    ScrieLinie(QStringLiteral("Neschimbate: %1").arg(p.neschimbate));
    const auto total = [](const QString& eticheta, const TotalBarem& t) {
        ScrieLinie(QStringLiteral("%1: %2 familii, %3 -> %4 lei, %5 modificate")
                       .arg(eticheta)
                       .arg(t.familii)
                       .arg(t.inainte.textSuma(), t.dupa.textSuma())
                       .arg(t.modificate));
    };
    for (const auto& [tip, t] : p.peTip)
        total(QStringLiteral("Total ") + TextTipAlocatie(tip), t);
    total(QStringLiteral("Total general"), p.total);
}

// "LL.AAAA": nothing, and the message, when it is no month.
std::optional<LunaAn> lunaEfect(const QString& text)
{
    static const QRegularExpression forma(QStringLiteral("^(\\d{1,2})\\.(\\d{4})$"));
    const QRegularExpressionMatch m = forma.match(text.trimmed());
    const int luna = m.hasMatch() ? m.captured(1).toInt() : 0;
    if (luna < 1 || luna > 12) {
        ScrieEroare(QStringLiteral("Optiunea --de-la cere luna de la care se aplica baremul nou, LL.AAAA (de exemplu "
                                   "03.2026)."));
        return std::nullopt;
    }
    return LunaAn{luna, m.captured(2).toInt()};
}

std::optional<SumeBarem> sumeNoi(const QString& fisier)
{
    QFile f(fisier);
    if (fisier.isEmpty() || !f.open(QIODevice::ReadOnly)) {
        ScrieEroare(QStringLiteral("Fisierul cu baremul nou (--nou) nu poate fi citit: %1").arg(fisier));
        return std::nullopt;
    }
    const SumeCitite s = SumeDinJson(f.readAll());
    if (!s.ok()) {
        ScrieEroare(s.mesaj);
        return std::nullopt;
    }
    return s.sume;
}

int ruleaza(const QStringList& arg)
{
    const QStringList poz = Pozitionale(arg, CuValoare);
    const QString oficiu = Optiune(arg, QStringLiteral("--office"));
    static const QStringList actiuni{QStringLiteral("arata"), QStringLiteral("previzualizeaza"),
                                     QStringLiteral("aplica")};
    if (poz.size() != 1 || oficiu.isEmpty() || !actiuni.contains(poz[0])) {
        ScrieEroare(Utilizare);
        return 2;
    }
    const QString actiune = poz[0];
    const bool json = AreOptiune(arg, QStringLiteral("--json"));
    std::optional<LunaAn> efect;
    std::optional<SumeBarem> nou;
    ParametriAplicare param;
    if (actiune != QLatin1String("arata")) {
        efect = lunaEfect(Optiune(arg, QStringLiteral("--de-la")));
        if (!efect)
            return 2;
        nou = sumeNoi(Optiune(arg, QStringLiteral("--nou")));
        if (!nou)
            return 1;
    }
    if (actiune == QLatin1String("aplica")) {
        const QString nr = Optiune(arg, QStringLiteral("--nr-disp"));
        if (!EsteNumarIntreg(nr) || ValoareNumerica(nr) <= 0) {
            ScrieEroare(MesajBarem::NrLipsa + QStringLiteral(" (--nr-disp N)"));
            return 2;
        }
        param.primulNr = ValoareNumerica(nr);
        if (AreOptiune(arg, QStringLiteral("--motiv")))
            param.motiv = Optiune(arg, QStringLiteral("--motiv"));
    }

    const QString dir = QDir(oficiu).absolutePath();
    IncarcaSetariOficiu(dir);
    BD bd;
    try {
        if (!DeschideBDOficiu(bd, arg, dir, true))
            return 1;
        if (actiune == QLatin1String("arata"))
            return arata(bd, json);
        // The preview's remarks say what the calculation would show one message at a time.
        MesajeColectate mesaje;
        const MesajeTemporare t(mesaje);
        const PrevizualizareBarem p = PrevizualizeazaBarem(bd, *nou, *efect);
        if (actiune == QLatin1String("previzualizeaza")) {
            if (json || AreOptiune(arg, QStringLiteral("--pdf")) || AreOptiune(arg, QStringLiteral("--xlsx"))) {
                ReportGrid g;
                ConstruiesteSchimbareBarem(bd, p, g);
                return ScrieGridComanda(g, arg);
            }
            scrieText(p);
            return 0;
        }
        const RezultatAplicare r = AplicaBarem(bd, p, param);
        if (json) {
            QJsonObject o;
            o.insert(QStringLiteral("schimbare"), r.schimbareId);
            o.insert(QStringLiteral("dispozitii"), int(r.dispozitii.size()));
            o.insert(QStringLiteral("primul_nr"), r.dispozitii.isEmpty() ? QJsonValue() : QJsonValue(r.primulNr));
            o.insert(QStringLiteral("ultimul_nr"), r.dispozitii.isEmpty() ? QJsonValue() : QJsonValue(r.ultimulNr));
            ScrieJson(o);
        } else {
            ScrieLinie(QStringLiteral("Baremul nou se aplica de la %1. Dispozitii de modificare: %2%3.")
                           .arg(TextData(QDate(efect->an, efect->luna, 1)))
                           .arg(r.dispozitii.size())
                           .arg(r.dispozitii.isEmpty() ? QString()
                                                       : QStringLiteral(", de la nr %1 la nr %2")
                                                             .arg(TextNumar(r.primulNr), TextNumar(r.ultimulNr))));
        }
    } catch (const Eroare& e) {
        ScrieEroare(TextEroareBarem(e));
        return 1;
    }
    return 0;
}

ComandaInregistrata comanda(QStringLiteral("barem"),
                            QStringLiteral("barem --office DIR [--server URI] arata|previzualizeaza|aplica --nou "
                                           "FILE.json --de-la LL.AAAA [--nr-disp N] [--json]: schimbarea baremului"),
                            ruleaza);

} // namespace
