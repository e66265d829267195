#include "common/JsonStrict.h"

#include <QSet>

namespace {

// A walk over the text as the JSON grammar reads it, stopping at the first thing it refuses.
// Where the text breaks the grammar the walk gives up quietly: the reader tells that better.
class Cititor {
public:
    explicit Cititor(const QByteArray& t) : m_t(t) {}

    QString verifica()
    {
        valoare(0);
        return m_refuz;
    }

private:
    bool gata() const { return m_stricat || !m_refuz.isEmpty(); }

    void spatii()
    {
        while (m_i < m_t.size() && (m_t[m_i] == ' ' || m_t[m_i] == '\t' || m_t[m_i] == '\n' || m_t[m_i] == '\r'))
            ++m_i;
    }

    char curent() const { return m_i < m_t.size() ? m_t[m_i] : '\0'; }

    void refuza(const QString& ce)
    {
        const QString unde = m_element > 0 ? QStringLiteral("Elementul %1").arg(m_element) : QStringLiteral("Fisierul");
        m_refuz = QStringLiteral("%1: %2").arg(unde, ce);
    }

    void valoare(int adancime)
    {
        spatii();
        switch (curent()) {
        case '{': obiect(adancime); break;
        case '[': tablou(adancime); break;
        case '"': sir(); break;
        case 't':
        case 'f':
        case 'n':
            while (m_i < m_t.size() && m_t[m_i] >= 'a' && m_t[m_i] <= 'z')
                ++m_i;
            break;
        default:
            if (curent() == '-' || (curent() >= '0' && curent() <= '9'))
                numar();
            else
                m_stricat = true;
        }
    }

    void obiect(int adancime)
    {
        ++m_i;
        QSet<QString> chei;
        spatii();
        if (curent() == '}') {
            ++m_i;
            return;
        }
        while (!gata()) {
            spatii();
            if (curent() != '"') {
                m_stricat = true;
                return;
            }
            const qsizetype unde = m_i;
            const QString cheie = sir();
            if (gata())
                return;
            if (chei.contains(cheie)) {
                refuza(QStringLiteral("cheia \"%1\" apare de doua ori in acelasi obiect (la pozitia %2); s-ar "
                                      "pastra doar ultima valoare. Corectati fisierul.")
                           .arg(cheie)
                           .arg(unde));
                return;
            }
            chei.insert(cheie);
            spatii();
            if (curent() != ':') {
                m_stricat = true;
                return;
            }
            ++m_i;
            valoare(adancime + 1);
            spatii();
            if (curent() == ',') {
                ++m_i;
                continue;
            }
            if (curent() == '}')
                ++m_i;
            else
                m_stricat = true;
            return;
        }
    }

    void tablou(int adancime)
    {
        ++m_i;
        spatii();
        if (curent() == ']') {
            ++m_i;
            return;
        }
        int n = 0;
        while (!gata()) {
            if (adancime == 0)
                m_element = ++n;
            valoare(adancime + 1);
            spatii();
            if (curent() == ',') {
                ++m_i;
                continue;
            }
            if (curent() == ']')
                ++m_i;
            else
                m_stricat = true;
            return;
        }
    }

    // Four hexadecimal digits after "\u"; -1 when they are not.
    int hex4()
    {
        if (m_i + 4 > m_t.size())
            return -1;
        bool ok = false;
        const int v = QByteArray(m_t.constData() + m_i, 4).toInt(&ok, 16);
        m_i += 4;
        return ok ? v : -1;
    }

    // A string (the opening quote at m_i); its text, for the keys.
    QString sir()
    {
        ++m_i;
        QByteArray octeti;
        QString text;
        const auto golesteOcteti = [&] {
            text += QString::fromUtf8(octeti);
            octeti.clear();
        };
        while (m_i < m_t.size()) {
            const char c = m_t[m_i++];
            if (c == '"') {
                golesteOcteti();
                return text;
            }
            if (c != '\\') {
                octeti += c;
                continue;
            }
            golesteOcteti();
            const qsizetype inceput = m_i - 1;
            const char e = curent();
            ++m_i;
            if (e != 'u') {
                text += QLatin1Char(e);
                continue;
            }
            const int u = hex4();
            if (u < 0) {
                m_stricat = true;
                return text;
            }
            const bool prima = u >= 0xD800 && u <= 0xDBFF;
            const bool adoua = u >= 0xDC00 && u <= 0xDFFF;
            if (adoua || (prima && !(m_i + 6 <= m_t.size() && m_t[m_i] == '\\' && m_t[m_i + 1] == 'u'))) {
                jumatate(u, inceput);
                return text;
            }
            if (prima) {
                m_i += 2;
                const int v = hex4();
                if (v < 0xDC00 || v > 0xDFFF) {
                    jumatate(u, inceput);
                    return text;
                }
                text += QChar(char16_t(u));
                text += QChar(char16_t(v));
                continue;
            }
            text += QChar(char16_t(u));
        }
        m_stricat = true;
        return text;
    }

    void jumatate(int u, qsizetype unde)
    {
        refuza(QStringLiteral("textul are la pozitia %1 o jumatate de pereche UTF-16 (\\u%2) fara cealalta "
                              "jumatate; s-ar pierde litere. Corectati fisierul.")
                   .arg(unde)
                   .arg(u, 4, 16, QLatin1Char('0')));
    }

    void numar()
    {
        const qsizetype inceput = m_i;
        QByteArray cifre; // the digits before the exponent, without the zeros ahead of them
        bool exponent = false;
        while (m_i < m_t.size()) {
            const char c = m_t[m_i];
            if (c >= '0' && c <= '9') {
                if (!exponent && (c != '0' || !cifre.isEmpty()))
                    cifre += c;
            } else if (c == 'e' || c == 'E') {
                exponent = true;
            } else if (c != '-' && c != '+' && c != '.') {
                break;
            }
            ++m_i;
        }
        while (cifre.endsWith('0'))
            cifre.chop(1);
        // Fifteen significant digits come back from a double as they were written; more may not.
        if (cifre.size() > 15)
            refuza(QStringLiteral("numarul %1 (la pozitia %2) are mai mult de 15 cifre semnificative si nu poate fi "
                                  "citit exact. Corectati fisierul.")
                       .arg(QString::fromLatin1(m_t.mid(inceput, m_i - inceput)))
                       .arg(inceput));
    }

    const QByteArray& m_t;
    qsizetype m_i = 0;
    int m_element = 0; // the element of the top-level array being read, from 1
    bool m_stricat = false;
    QString m_refuz;
};

} // namespace

QString VerificaJsonStrict(const QByteArray& text)
{
    return Cititor(text).verifica();
}
