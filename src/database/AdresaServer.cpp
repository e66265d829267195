#include "database/AdresaServer.h"

#include <QUrl>
#include <QUrlQuery>

namespace {

bool esteUri(const QString& t)
{
    return t.startsWith(QLatin1String("postgresql://")) || t.startsWith(QLatin1String("postgres://"));
}

void dinUri(const QString& text, AdresaServer& a)
{
    const QUrl url(text, QUrl::StrictMode);
    if (!url.isValid()) {
        a.eroare = QStringLiteral("Adresa serverului nu este corecta: %1").arg(url.errorString());
        return;
    }
    auto pune = [&](const char* cheie, const QString& v) {
        if (!v.isEmpty())
            a.parametri.append({QString::fromLatin1(cheie), v});
    };
    pune("host", url.host(QUrl::FullyDecoded));
    if (url.port() > 0)
        pune("port", QString::number(url.port()));
    pune("dbname", url.path(QUrl::FullyDecoded).mid(1));
    pune("user", url.userName(QUrl::FullyDecoded));
    pune("password", url.password(QUrl::FullyDecoded));
    for (const auto& [k, v] : QUrlQuery(url).queryItems(QUrl::FullyDecoded))
        a.parametri.append({k, v});
}

// keyword = value pairs; a value may be in single quotes, with \' and \\ inside.
void dinConninfo(const QString& t, AdresaServer& a)
{
    qsizetype i = 0;
    auto spatii = [&] {
        while (i < t.size() && t[i].isSpace())
            ++i;
    };
    while (true) {
        spatii();
        if (i >= t.size())
            return;
        const qsizetype inceput = i;
        while (i < t.size() && !t[i].isSpace() && t[i] != QLatin1Char('='))
            ++i;
        const QString cheie = t.mid(inceput, i - inceput);
        spatii();
        if (cheie.isEmpty() || i >= t.size() || t[i] != QLatin1Char('=')) {
            a.eroare = QStringLiteral("Adresa serverului nu este corecta: lipseste \"=\" dupa \"%1\".").arg(cheie);
            return;
        }
        ++i;
        spatii();
        QString v;
        if (i < t.size() && t[i] == QLatin1Char('\'')) {
            ++i;
            while (i < t.size() && t[i] != QLatin1Char('\'')) {
                if (t[i] == QLatin1Char('\\') && i + 1 < t.size())
                    ++i;
                v += t[i++];
            }
            if (i >= t.size()) {
                a.eroare = QStringLiteral("Adresa serverului nu este corecta: un ghilimel neinchis.");
                return;
            }
            ++i;
        } else {
            while (i < t.size() && !t[i].isSpace())
                v += t[i++];
        }
        a.parametri.append({cheie, v});
    }
}

} // namespace

AdresaServer AdresaServer::citeste(const QString& text)
{
    AdresaServer a;
    const QString t = text.trimmed();
    if (t.isEmpty())
        a.eroare = QStringLiteral("Adresa serverului lipseste.");
    else if (esteUri(t))
        dinUri(t, a);
    else
        dinConninfo(t, a);
    return a;
}

QString AdresaServer::valoare(const QString& cheie) const
{
    for (const auto& [k, v] : parametri)
        if (k == cheie)
            return v;
    return QString();
}

bool AdresaServer::areParola() const
{
    return !valoare(QStringLiteral("password")).isEmpty();
}

QString AdresaServer::conninfo() const
{
    QStringList l;
    for (const auto& [k, v] : parametri) {
        QString e = v;
        e.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
        e.replace(QLatin1Char('\''), QLatin1String("\\'"));
        l << k + QStringLiteral("='") + e + QLatin1Char('\'');
    }
    return l.join(QLatin1Char(' '));
}

QString AdresaServer::descriere() const
{
    const QString host = valoare(QStringLiteral("host"));
    const QString port = valoare(QStringLiteral("port"));
    const QString baza = valoare(QStringLiteral("dbname"));
    return QStringLiteral("%1%2/%3").arg(host.isEmpty() ? QStringLiteral("localhost") : host,
                                         port.isEmpty() ? QString() : QLatin1Char(':') + port, baza);
}
