#include "common/Ini.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

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
    if (v.size() >= 2 && ((v.startsWith(QLatin1Char('"')) && v.endsWith(QLatin1Char('"')))
                          || (v.startsWith(QLatin1Char('\'')) && v.endsWith(QLatin1Char('\'')))))
        v = v.mid(1, v.size() - 2);
    return v;
}

} // namespace

FisierIni::FisierIni(QString cale)
    : m_cale(std::move(cale))
{
}

QStringList FisierIni::linii() const
{
    QFile f(m_cale);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    const QByteArray date = f.readAll();
    // Settings written by Windows tools are ANSI; the ones we write are UTF-8.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(date);
    if (utf8.hasError())
        text = QString::fromLatin1(date);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QStringList l = text.split(QLatin1Char('\n'));
    if (!l.isEmpty() && l.last().isEmpty())
        l.removeLast();
    return l;
}

QString FisierIni::citeste(const QString& sectiune, const QString& cheie) const
{
    bool inSectiune = false;
    for (const QString& linie : linii()) {
        if (esteSectiune(linie)) {
            inSectiune = numeSectiune(linie).compare(sectiune, Qt::CaseInsensitive) == 0;
            continue;
        }
        if (inSectiune && cheieLinie(linie).compare(cheie, Qt::CaseInsensitive) == 0
            && !cheieLinie(linie).isEmpty())
            return valoareLinie(linie);
    }
    return QString();
}

bool FisierIni::scrie(const QString& sectiune, const QString& cheie, const QString& valoare) const
{
    QStringList l = linii();
    const QString linieNoua = cheie + QLatin1Char('=') + valoare;
    int startSectiune = -1;
    int ultimaInSectiune = -1;
    bool gasit = false;
    bool inSectiune = false;
    for (int i = 0; i < l.size(); ++i) {
        if (esteSectiune(l[i])) {
            if (inSectiune)
                break;
            inSectiune = numeSectiune(l[i]).compare(sectiune, Qt::CaseInsensitive) == 0;
            if (inSectiune) {
                startSectiune = i;
                ultimaInSectiune = i;
            }
            continue;
        }
        if (!inSectiune)
            continue;
        if (!l[i].trimmed().isEmpty())
            ultimaInSectiune = i;
        const QString k = cheieLinie(l[i]);
        if (!k.isEmpty() && k.compare(cheie, Qt::CaseInsensitive) == 0) {
            l[i] = k + QLatin1Char('=') + valoare;
            gasit = true;
            break;
        }
    }
    if (!gasit) {
        if (startSectiune < 0) {
            if (!l.isEmpty() && !l.last().trimmed().isEmpty())
                l << QString();
            l << QLatin1Char('[') + sectiune + QLatin1Char(']') << linieNoua;
        } else {
            l.insert(ultimaInSectiune + 1, linieNoua);
        }
    }
    QSaveFile f(m_cale);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    f.write((l.join(QLatin1String("\r\n")) + QLatin1String("\r\n")).toUtf8());
    return f.commit();
}
