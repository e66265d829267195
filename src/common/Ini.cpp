#include "common/Ini.h"

#include <QFile>
#include <QHash>
#include <QMutex>
#include <QSaveFile>
#include <QStringDecoder>

#include <filesystem>

namespace {

// "[Nume]" -> "Nume"; an empty text for any other line.
QString numeSectiune(const QString& linie)
{
    const QString t = linie.trimmed();
    if (t.size() >= 2 && t.startsWith(QLatin1Char('[')) && t.contains(QLatin1Char(']')))
        return t.mid(1, t.indexOf(QLatin1Char(']')) - 1).trimmed();
    return QString();
}

bool esteSectiune(const QString& linie)
{
    const QString t = linie.trimmed();
    return t.startsWith(QLatin1Char('[')) && t.contains(QLatin1Char(']'));
}

// The key of a "key=value" line; empty for comments and lines without "=".
QString cheieLinie(const QString& linie)
{
    const QString t = linie.trimmed();
    if (t.startsWith(QLatin1Char(';')) || t.startsWith(QLatin1Char('#')))
        return QString();
    const int eq = t.indexOf(QLatin1Char('='));
    if (eq <= 0)
        return QString();
    return t.left(eq).trimmed();
}

QString valoareLinie(const QString& linie)
{
    const QString t = linie.trimmed();
    QString v = t.mid(t.indexOf(QLatin1Char('=')) + 1).trimmed();
    if (v.size() >= 2 && ((v.startsWith(QLatin1Char('"')) && v.endsWith(QLatin1Char('"'))) ||
                          (v.startsWith(QLatin1Char('\'')) && v.endsWith(QLatin1Char('\'')))))
        v = v.mid(1, v.size() - 2);
    return v;
}

// ---------------------------------------------------------------------------------------------
// Windows-1250, the ANSI code page of Romanian Windows, in which the office's older settings
// files are written. The five bytes the code page leaves free map to themselves, so that any
// file reads and writes back byte for byte.

constexpr char16_t Cp1250[128] = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

QString dinCp1250(const QByteArray& b)
{
    QString t(b.size(), Qt::Uninitialized);
    QChar* d = t.data();
    for (const char c : b) {
        const auto u = static_cast<unsigned char>(c);
        *d++ = QChar(u < 0x80 ? char16_t(u) : Cp1250[u - 0x80]);
    }
    return t;
}

QByteArray inCp1250(const QString& t)
{
    static const QHash<char16_t, char> invers = [] {
        QHash<char16_t, char> h;
        for (int i = 0; i < 128; ++i)
            h.insert(Cp1250[i], static_cast<char>(0x80 + i));
        // The comma-below letters of Romanian are not in the code page; Windows writes their
        // cedilla forms, which are.
        h.insert(u'\u0218', '\xAA');
        h.insert(u'\u0219', '\xBA');
        h.insert(u'\u021A', '\xDE');
        h.insert(u'\u021B', '\xFE');
        return h;
    }();
    QByteArray b;
    b.reserve(t.size());
    for (const QChar c : t) {
        const char16_t u = c.unicode();
        b += u < 0x80 ? static_cast<char>(u) : invers.value(u, '?');
    }
    return b;
}

// ---------------------------------------------------------------------------------------------
// The files in memory: each file is read once and kept with an index of its keys; it is read
// again only when it changed on disk (another program, or a copy put in its place).

struct Amprenta {
    bool exista = false;
    std::uintmax_t marime = 0;
    std::filesystem::file_time_type modificat{};
    bool operator==(const Amprenta&) const = default;
};

Amprenta amprenta(const QString& cale)
{
    std::error_code e;
    const std::filesystem::path p(cale.toStdU16String());
    Amprenta a;
    a.marime = std::filesystem::file_size(p, e);
    if (e)
        return {};
    a.modificat = std::filesystem::last_write_time(p, e);
    if (e)
        return {};
    a.exista = true;
    return a;
}

QString cheieIndex(const QString& sectiune, const QString& cheie)
{
    return sectiune.toLower() + QLatin1Char('\n') + cheie.toLower();
}

struct Continut {
    bool incarcat = false;
    Amprenta amprenta;
    bool cp1250 = false;      // read as Windows-1250, written back the same way
    bool bom = false;         // a UTF-8 file that began with a byte order mark keeps it
    bool sfarsitFinal = true; // the last line ends with a line end (a file without one stays so)
    // Each line keeps its own end: a carriage return stays at the end of its text, and the
    // lines are joined by LF, so that LF and CRLF lines come back as they were.
    QStringList linii;
    QHash<QString, int> index; // section\nkey (lower case) -> line of its first occurrence

    void indexeaza()
    {
        index.clear();
        index.reserve(linii.size());
        QString sectiune;
        bool inSectiune = false;
        for (int i = 0; i < linii.size(); ++i) {
            const QString& l = linii[i];
            if (esteSectiune(l)) {
                sectiune = numeSectiune(l);
                inSectiune = true;
                continue;
            }
            if (!inSectiune)
                continue;
            const QString k = cheieLinie(l);
            if (!k.isEmpty())
                index.insert(cheieIndex(sectiune, k), i); // the first occurrence wins
        }
    }

    void citeste(const QString& cale)
    {
        *this = Continut();
        incarcat = true;
        amprenta = ::amprenta(cale);
        QFile f(cale);
        if (!amprenta.exista || !f.open(QIODevice::ReadOnly))
            return;
        QByteArray date = f.readAll();
        bom = date.startsWith("\xEF\xBB\xBF");
        if (bom)
            date.remove(0, 3);
        // Valid UTF-8 is UTF-8 (ASCII included); anything else is the ANSI code page.
        QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        QString text = utf8.decode(date);
        if (utf8.hasError()) {
            text = dinCp1250(date);
            cp1250 = true;
            bom = false;
        }
        sfarsitFinal = text.isEmpty() || text.endsWith(QLatin1Char('\n'));
        linii = text.split(QLatin1Char('\n'));
        if (!linii.isEmpty() && linii.last().isEmpty())
            linii.removeLast();
        indexeaza();
    }

    // The end that a new line takes: that of the line `inainte` above it, else that of the
    // file's first line, else Windows' CRLF. A last line without an end tells nothing.
    static QString sfarsitNou(const QStringList& l, int inainte, bool sfarsit)
    {
        const auto terminata = [&](int i) { return i >= 0 && i < l.size() && (i < l.size() - 1 || sfarsit); };
        const int model = terminata(inainte) ? inainte : (terminata(0) ? 0 : -1);
        return model < 0 || l[model].endsWith(QLatin1Char('\r')) ? QStringLiteral("\r") : QString();
    }

    // The lines as bytes of the file, in its encoding and with their own line ends.
    QByteArray octeti(const QStringList& linii, bool sfarsit) const
    {
        const QString text = linii.join(QLatin1Char('\n')) + (sfarsit ? QStringLiteral("\n") : QString());
        if (cp1250)
            return inCp1250(text);
        return (bom ? QByteArray("\xEF\xBB\xBF") : QByteArray()) + text.toUtf8();
    }
};

QMutex g_mutex;
QHash<QString, Continut>& fisiere()
{
    static QHash<QString, Continut> f;
    return f;
}

// The file as it is now on disk, read only when it is new to the process or changed.
Continut& continut(const QString& cale)
{
    Continut& c = fisiere()[cale];
    if (!c.incarcat || !(amprenta(cale) == c.amprenta))
        c.citeste(cale);
    return c;
}

} // namespace

FisierIni::FisierIni(QString cale) : m_cale(std::move(cale)) {}

QString FisierIni::citeste(const QString& sectiune, const QString& cheie) const
{
    const QMutexLocker blocare(&g_mutex);
    const Continut& c = continut(m_cale);
    const auto it = c.index.constFind(cheieIndex(sectiune.trimmed(), cheie.trimmed()));
    return it == c.index.constEnd() ? QString() : valoareLinie(c.linii[*it]);
}

bool FisierIni::scrie(const QString& sectiune, const QString& cheie, const QString& valoare) const
{
    const QMutexLocker blocare(&g_mutex);
    Continut& c = continut(m_cale);
    const QString k = cheieIndex(sectiune.trimmed(), cheie.trimmed());
    const auto gasit = c.index.constFind(k);
    // A value that does not change leaves the file as it is.
    if (gasit != c.index.constEnd() && valoareLinie(c.linii[*gasit]) == valoare)
        return true;

    QStringList l = c.linii;
    bool sfarsit = c.sfarsitFinal;
    int linieNoua = -1; // where a new key line goes
    if (gasit != c.index.constEnd()) {
        // Only this line changes, and it keeps its own end.
        const QString sf = l[*gasit].endsWith(QLatin1Char('\r')) ? QStringLiteral("\r") : QString();
        l[*gasit] = cheieLinie(l[*gasit]) + QLatin1Char('=') + valoare + sf;
    } else {
        // After the last line that is not blank of the first section of that name, or a new
        // section at the end of the file.
        int ultimaInSectiune = -1;
        bool inSectiune = false;
        for (int i = 0; i < l.size(); ++i) {
            if (esteSectiune(l[i])) {
                if (inSectiune)
                    break;
                inSectiune = numeSectiune(l[i]).compare(sectiune, Qt::CaseInsensitive) == 0;
                if (inSectiune)
                    ultimaInSectiune = i;
                continue;
            }
            if (inSectiune && !l[i].trimmed().isEmpty())
                ultimaInSectiune = i;
        }
        const QString text = cheie + QLatin1Char('=') + valoare;
        if (ultimaInSectiune < 0) {
            const QString sf = Continut::sfarsitNou(l, int(l.size()) - 1, sfarsit);
            // The last line gets the end it lacked, now that lines follow it.
            if (!sfarsit && !l.isEmpty() && !l.last().endsWith(QLatin1Char('\r')))
                l.last() += sf;
            sfarsit = true;
            if (!l.isEmpty() && !l.last().trimmed().isEmpty())
                l << sf;
            l << QLatin1Char('[') + sectiune + QLatin1Char(']') + sf;
            linieNoua = static_cast<int>(l.size());
            l << text + sf;
        } else {
            linieNoua = ultimaInSectiune + 1;
            const QString sf = Continut::sfarsitNou(l, linieNoua - 1, sfarsit);
            if (linieNoua == l.size() && !sfarsit) {
                l.last() += sf;
                sfarsit = true;
            }
            l.insert(linieNoua, text + sf);
        }
    }

    QSaveFile f(m_cale);
    const QByteArray date = c.octeti(l, sfarsit);
    if (!f.open(QIODevice::WriteOnly) || f.write(date) != date.size() || !f.commit())
        return false;
    c.linii = std::move(l);
    c.sfarsitFinal = sfarsit;
    if (linieNoua >= 0) {
        // The lines below the new one moved down by one.
        for (auto it = c.index.begin(); it != c.index.end(); ++it)
            if (*it >= linieNoua)
                ++*it;
        c.index.insert(k, linieNoua);
    }
    c.amprenta = amprenta(m_cale);
    return true;
}
