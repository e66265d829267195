#include "shell/Optiuni.h"

#include "common/FisiereHelper.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "common/Text.h"

#include <QDir>
#include <optional>

namespace {

// A byte flag of the settings file: a check box is 1 when on, a font style 255 (True).
QString bifa(bool b)
{
    return b ? QStringLiteral("1") : QStringLiteral("0");
}
QString stil(bool b)
{
    return b ? QStringLiteral("255") : QStringLiteral("0");
}

class Scriitor {
public:
    bool scrie(const char* sectiune, const char* cheie, const QString& v)
    {
        if (m_esuat)
            return false;
        if (!FisiereHelper().ScrieIni(QLatin1String(cheie), QLatin1String(sectiune), FisierSetari(), v)) {
            m_esuat = true;
            Mesaj(QStringLiteral("Fisierul de setari %1 nu poate fi scris.")
                      .arg(QDir::toNativeSeparators(FisierSetari())),
                  Mesaje::Icon::Critic);
        }
        return !m_esuat;
    }
    bool esuat() const { return m_esuat; }

private:
    bool m_esuat = false;
};

} // namespace

ValoriOptiuni CitesteOptiuni()
{
    const Setari& s = Proces::setari();
    ValoriOptiuni v;
    v.Motiv = s.Motiv != 0;
    v.AppWord = s.AppWord;
    v.HeightRowRaport = QString::number(s.HeightRowRaport);
    v.HeightRowBorderou = QString::number(s.HeightRowBorderou);
    v.ReteaSetat = s.ReteaSetat != 0;
    v.StrSat = s.StrSat;
    v.NrCerereAnexa3 = s.NrCerereAnexa3;
    v.Anexa2ExportWord = s.Anexa2ExportWord != 0;
    v.AfisSerieStatPlata = s.AfisSerieStatPlata != 0;
    v.Anexa3 = s.Anexa3;
    v.Anexa4 = s.Anexa4;
    v.StatPlata = s.StatPlata;
    v.AfisCereri = s.AfisCereri != 0;
    v.FontName0 = s.FontName0;
    v.FontSize0 = s.FontSize0;
    v.FontB0 = s.FontB0 != 0;
    v.FontI0 = s.FontI0 != 0;
    v.FontU0 = s.FontU0 != 0;
    v.CuloareVenit = CuloareVenit();
    return v;
}

namespace {
// The background of the income window as the options window's colour buttons last set it, for
// the settings file it was read from; read by nothing at start-up, so until then the file's
// key stands.
struct CuloareInMemorie {
    QString fisier;
    QString culoare;
};
std::optional<CuloareInMemorie>& culoareInMemorie()
{
    static std::optional<CuloareInMemorie> c;
    return c;
}
} // namespace

QString CuloareVenit()
{
    const auto& c = culoareInMemorie();
    if (c && c->fisier == FisierSetari())
        return c->culoare;
    return FisiereHelper().CitesteIni(QStringLiteral("CuloareVenit"), QStringLiteral("Generale"), FisierSetari());
}

void SeteazaCuloareVenit(const QString& text)
{
    culoareInMemorie() = CuloareInMemorie{FisierSetari(), text};
}

bool ScrieOptiuni(const ValoriOptiuni& v)
{
    Setari& s = Proces::setari();
    Scriitor w;
    // Nothing reads this key back; it names the word processor of the workstation.
    w.scrie("Cale", "CaleWord", QStringLiteral("soffice"));
    if (w.scrie("Ordonari", "NrCerereAnexa3", v.NrCerereAnexa3))
        s.NrCerereAnexa3 = v.NrCerereAnexa3;
    w.scrie("Generale", "CuloareVenit", v.CuloareVenit);
    if (w.esuat())
        return false;

    if (v.FontSize0 > 72) {
        Mesaj(QStringLiteral("Marimea caracterelor nu poate fi mai mare de 72"));
        return false;
    }
    if (v.FontSize0 < 2) {
        Mesaj(QStringLiteral("Marimea caracterelor nu poate fi mai mica de 2"));
        return false;
    }
    if (w.scrie("Fonturi", "FontSize0", QString::number(v.FontSize0)))
        s.FontSize0 = v.FontSize0;
    if (w.scrie("Fonturi", "FontName0", v.FontName0))
        s.FontName0 = v.FontName0;
    if (w.scrie("Fonturi", "FontB0", stil(v.FontB0)))
        s.FontB0 = v.FontB0 ? 255 : 0;
    if (w.scrie("Fonturi", "FontI0", stil(v.FontI0)))
        s.FontI0 = v.FontI0 ? 255 : 0;
    if (w.scrie("Fonturi", "FontU0", stil(v.FontU0)))
        s.FontU0 = v.FontU0 ? 255 : 0;
    // Stored only: the list of applications is always filled at start-up.
    w.scrie("Afisari", "AfisCereri", bifa(v.AfisCereri));
    if (w.scrie("Fisiere", "Anexa3", v.Anexa3))
        s.Anexa3 = v.Anexa3;
    if (w.scrie("Fisiere", "Anexa4", v.Anexa4))
        s.Anexa4 = v.Anexa4;
    if (w.scrie("Fisiere", "StatPlata", v.StatPlata))
        s.StatPlata = v.StatPlata;
    if (w.scrie("Generale", "AfisSerieStatPlata", bifa(v.AfisSerieStatPlata)))
        s.AfisSerieStatPlata = v.AfisSerieStatPlata;
    if (w.scrie("Generale", "Anexa2ExportWord", bifa(v.Anexa2ExportWord)))
        s.Anexa2ExportWord = v.Anexa2ExportWord;
    if (w.scrie("Generale", "StrSat", v.StrSat))
        s.StrSat = v.StrSat;
    if (w.scrie("Generale", "ReteaSetat", bifa(v.ReteaSetat)))
        s.ReteaSetat = v.ReteaSetat;
    if (w.scrie("Generale", "Motiv", bifa(v.Motiv)))
        s.Motiv = v.Motiv;
    const int borderou = static_cast<int>(ValoareIntreaga(v.HeightRowBorderou));
    if (w.scrie("Borderou", "HeightRowBorderou", QString::number(borderou)))
        s.HeightRowBorderou = borderou;
    const int raport = static_cast<int>(ValoareIntreaga(v.HeightRowRaport));
    if (w.scrie("Raport", "HeightRowRaport", QString::number(raport)))
        s.HeightRowRaport = raport;
    if (w.scrie("App", "AppWord", QString::number(v.AppWord)))
        s.AppWord = v.AppWord;
    return !w.esuat();
}

QString DescriereFont(const ValoriOptiuni& v)
{
    QString d = v.FontName0 + QStringLiteral(", ") + QString::number(v.FontSize0);
    if (v.FontB0)
        d += QStringLiteral(", B");
    if (v.FontI0)
        d += QStringLiteral(", I");
    if (v.FontU0)
        d += QStringLiteral(", U");
    return d;
}

QColor CuloareDinSetare(const QString& text)
{
    bool ok = false;
    const qlonglong v = text.trimmed().toLongLong(&ok);
    if (!ok || v < 0 || v > 0xFFFFFF)
        return {};
    return QColor(static_cast<int>(v & 0xFF), static_cast<int>((v >> 8) & 0xFF), static_cast<int>((v >> 16) & 0xFF));
}

QString TextCuloareSetare(const QColor& c)
{
    return c.isValid() ? QString::number(c.red() + (c.green() << 8) + (c.blue() << 16)) : QString();
}
