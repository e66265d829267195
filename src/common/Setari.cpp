#include "common/Setari.h"

#include "common/FisiereHelper.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

QString FisierSetari()
{
    return QDir(Proces::folderProgram()).filePath(QStringLiteral("setariTarnava.ini"));
}

QString ServerBDDinSetari(const QString& fisierSetari, const QString& folderOficiu)
{
    const FisiereHelper h;
    const QString cheie = QStringLiteral("ServerBD");
    const QString sectiune = QStringLiteral("Generale");
    const QString propriu = h.CitesteIni(cheie, sectiune, fisierSetari).trimmed();
    if (!propriu.isEmpty() || folderOficiu.isEmpty())
        return propriu;
    const QString alOficiului = QDir(folderOficiu).filePath(QStringLiteral("setariTarnava.ini"));
    return QFileInfo::exists(alOficiului) ? h.CitesteIni(cheie, sectiune, alOficiului).trimmed() : QString();
}

namespace {

constexpr int Octet = 255;
constexpr int Intreg16 = 32767;

struct Cititor {
    const FisiereHelper& h;
    QString fisier;

    QString text(const char* sectiune, const char* cheie) const
    {
        return h.CitesteIni(QLatin1String(cheie), QLatin1String(sectiune), fisier);
    }

    // A whole number of the key's type: the leading-digits rule, and a value out of range
    // reported and replaced by the default (without touching the file). A byte holds 0..255,
    // a 16-bit integer -32768..32767; the value is rounded first, as the type takes it.
    int numar(const char* sectiune, const char* cheie, int maxim, int implicit, bool* depasit = nullptr) const
    {
        const QString t = text(sectiune, cheie);
        const qint64 v = ValoareIntreaga(t);
        const qint64 minim = maxim == Octet ? 0 : -static_cast<qint64>(maxim) - 1;
        if (v > maxim || v < minim || std::abs(ValoareNumerica(t)) > 9.0e18) {
            Mesaj(QStringLiteral("Valoarea %1 a cheii %2 din sectiunea %3 a fisierului de setari nu este corecta. Se "
                                 "foloseste valoarea %4.")
                      .arg(t.trimmed(), QLatin1String(cheie), QLatin1String(sectiune), QString::number(implicit)),
                  Mesaje::Icon::Exclamare);
            if (depasit)
                *depasit = true;
            return implicit;
        }
        return static_cast<int>(v);
    }

    void scrie(const char* sectiune, const char* cheie, const QString& v) const
    {
        h.ScrieIni(QLatin1String(cheie), QLatin1String(sectiune), fisier, v);
    }

    // A text key with a default, written back when it was empty.
    QString textImplicit(const char* sectiune, const char* cheie, const QString& implicit, bool scrieInapoi) const
    {
        QString v = text(sectiune, cheie);
        if (v.isEmpty()) {
            v = implicit;
            if (scrieInapoi)
                scrie(sectiune, cheie, v);
        }
        return v;
    }

    // A number key with a default for empty or 0, written back when so told.
    int numarImplicit(const char* sectiune, const char* cheie, int maxim, int implicit, bool scrieInapoi) const
    {
        bool depasit = false;
        int v = numar(sectiune, cheie, maxim, implicit, &depasit);
        if (v == 0) {
            v = implicit;
            if (scrieInapoi)
                scrie(sectiune, cheie, QString::number(v));
        }
        return v;
    }
};

} // namespace

void IncarcaSetari(const FisiereHelper& helper, Setari& s)
{
    const Cititor c{helper, FisierSetari()};

    s.pass = c.text("Generale", "pass");
    s.NrCaractSerie = c.numar("Oblig", "NrCaractSerie", Octet, 0);
    s.ObligEmailPrimarie = c.numar("Oblig", "ObligEmailPrimarie", Octet, 0);
    s.NrCerereAnexa3 = c.text("Ordonari", "NrCerereAnexa3");
    s.FontSize0 = c.numarImplicit("Fonturi", "FontSize0", Octet, 10, true);
    s.FontName0 = c.textImplicit("Fonturi", "FontName0", QStringLiteral("Times New Roman"), true);
    s.FontB0 = c.numar("Fonturi", "FontB0", Octet, 0);
    s.FontI0 = c.numar("Fonturi", "FontI0", Octet, 0);
    s.FontU0 = c.numar("Fonturi", "FontU0", Octet, 0);
    // The option is stored and shown, but the list is always filled at start-up.
    s.AfisCereri = c.numar("Afisari", "AfisCereri", Octet, 1);
    s.AfisCereri = 1;
    s.Anexa3 = c.textImplicit("Fisiere", "Anexa3", QStringLiteral("Centralizator.xls"), true);
    s.Anexa4 = c.textImplicit("Fisiere", "Anexa4", QStringLiteral("Statistica.xls"), true);
    s.StatPlata = c.textImplicit("Fisiere", "StatPlata", QStringLiteral("StatPlata.xls"), true);
    s.Anexa2ExportWord = c.numar("Generale", "Anexa2ExportWord", Octet, 0);
    s.StrSat = c.text("Generale", "StrSat");
    s.AfisSerieStatPlata = c.numar("Generale", "AfisSerieStatPlata", Octet, 0);
    s.ReteaSetat = c.numar("Generale", "ReteaSetat", Octet, 0);
    s.Motiv = c.numar("Generale", "Motiv", Octet, 0);
    s.HeightRowBorderou = c.numarImplicit("Borderou", "HeightRowBorderou", Octet, 36, true);
    s.HeightRowRaport = c.numarImplicit("Raport", "HeightRowRaport", Octet, 36, true);
    s.AppWord = c.numarImplicit("App", "AppWord", Octet, 1, true);
    // The active month is defaulted in memory only, unlike its neighbours.
    s.LunaSetata = c.numarImplicit("Setari", "LunaSetata", Octet, 1, false);
    s.AnSetat = c.numarImplicit("Setari", "AnSetat", Intreg16, 2009, false);
}
