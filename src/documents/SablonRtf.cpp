#include "documents/SablonRtf.h"

#include "common/Eroare.h"
#include "common/FisiereHelper.h"
#include "common/Mesaje.h"
#include "common/Proces.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace {
constexpr qsizetype LungimeMarcaj = sizeof(MarcajSeparare) - 1; // 12
const QByteArray SalturPagina = QByteArrayLiteral("\\page");

// True when the groups of the file close as RTF wants them: the braces balance (the escaped
// "\{", "\}" and "\\" are text, the bytes of "\binN" are data), no group closes that was not
// opened, and the outermost group closes with the last brace of the file, after which only
// blanks and line ends may stand. A template cut short, or edited by hand into a different
// shape, fails here before anything is filled or written.
bool GrupuriInchise(const QByteArray& text)
{
    qsizetype adancime = 0;
    bool inchisComplet = false;
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        const char c = text[i];
        if (inchisComplet) {
            if (c != ' ' && c != '\r' && c != '\n' && c != '\t' && c != '\0')
                return false;
            continue;
        }
        if (c == '\\') {
            if (i + 1 >= n)
                return false;
            const char u = text[i + 1];
            if (u == '{' || u == '}' || u == '\\') {
                ++i;
                continue;
            }
            // \binN: N bytes of binary data follow the control word and its one blank.
            if (text.mid(i + 1, 3) == "bin") {
                qsizetype j = i + 4;
                qint64 octeti = 0;
                while (j < n && text[j] >= '0' && text[j] <= '9' && octeti < n)
                    octeti = octeti * 10 + (text[j++] - '0');
                if (j < n && text[j] == ' ')
                    ++j;
                i = j + octeti - 1;
            }
            continue;
        }
        if (c == '{') {
            ++adancime;
        } else if (c == '}') {
            if (--adancime < 0)
                return false;
            inchisComplet = adancime == 0;
        }
    }
    return inchisComplet;
}
} // namespace

QString SablonFolder()
{
    return QDir(Proces::setari().CaleBD).filePath(QStringLiteral("acte"));
}

QString CaleSablon(const QString& numeFisier)
{
    return QDir(SablonFolder()).filePath(numeFisier);
}

bool ImparteSablon(const QByteArray& text, Sablon& s)
{
    // The last occurrence counts: the earlier ones belong to the list tables of the header.
    const qsizetype p = text.lastIndexOf(QByteArray::fromRawData(MarcajSeparare, LungimeMarcaj));
    if (p < 0 || !GrupuriInchise(text))
        return false;
    s.antet = text.left(p + LungimeMarcaj);
    // The last three characters (the closing brace and the line end) are cut without looking;
    // the output puts one closing brace back.
    const qsizetype inceputCorp = p + LungimeMarcaj;
    s.corp = text.mid(inceputCorp, qMax<qsizetype>(0, text.size() - inceputCorp - 3));
    return true;
}

bool CitesteSablon(const QString& cale, Sablon& s)
{
    const FisiereHelper h;
    if (h.VerificaCale(cale) != FisiereHelper::Exista) {
        Mesaj(QStringLiteral("Fisierul ") + QDir::toNativeSeparators(cale) + QStringLiteral(" nu exita"));
        return false;
    }
    // The bytes of the file as they are: the template keeps its own single-byte encoding.
    QByteArray text;
    QFile f(cale);
    if (f.open(QIODevice::ReadOnly))
        text = f.readAll();
    if (!ImparteSablon(text, s)) {
        Mesaj(QStringLiteral("Fisierul sablon are format gresit. Sunati la tel: 0700-555010"));
        return false;
    }
    return true;
}

QByteArray TextRtf(const QString& valoare)
{
    QByteArray r;
    r.reserve(valoare.size() + 8);
    for (const QChar c : valoare) {
        const char16_t u = c.unicode();
        if (u >= 0x80) {
            // \uN takes a signed 16-bit number; "?" is the fallback that \uc1 skips.
            r += "\\u";
            r += QByteArray::number(static_cast<qint16>(u));
            r += '?';
            continue;
        }
        switch (u) {
        case '\\': r += "\\\\"; break;
        case '{': r += "\\{"; break;
        case '}': r += "\\}"; break;
        case '\n': r += "\\line "; break;
        case '\t': r += "\\tab "; break;
        default:
            if (u >= 0x20)
                r += static_cast<char>(u);
            break; // other control characters have no place in a document
        }
    }
    return r;
}

void Inlocuieste(QByteArray& corp, const QByteArray& marcaj, const QString& valoare)
{
    corp.replace(marcaj, TextRtf(valoare));
}

void Inlocuieste(QByteArray& corp, const char* marcaj, const QString& valoare)
{
    Inlocuieste(corp, QByteArray::fromRawData(marcaj, qstrlen(marcaj)), valoare);
}

bool UmplereText::are(const char* marcaj)
{
    return m_corp.contains(marcaj);
}

void UmplereText::inlocuieste(const char* marcaj, const QString& valoare)
{
    Inlocuieste(m_corp, marcaj, valoare);
}

CorpDecupat::CorpDecupat(const QByteArray& corp) : m_lungimeText(corp.size())
{
    m_bucati.push_back({corp, -1});
}

int CorpDecupat::marcaj(const char* nume)
{
    for (size_t i = 0; i < m_marcaje.size(); ++i)
        if (m_marcaje[i] == nume)
            return int(i);
    const int nou = int(m_marcaje.size());
    const QByteArray m(nume);
    m_marcaje.push_back(m);
    int aparitii = 0;
    std::vector<Bucata> bucati;
    for (Bucata& b : m_bucati) {
        if (b.marcaj >= 0) {
            bucati.push_back(std::move(b));
            continue;
        }
        qsizetype de = 0;
        for (qsizetype p = b.text.indexOf(m); p >= 0; p = b.text.indexOf(m, de)) {
            if (p > de)
                bucati.push_back({b.text.mid(de, p - de), -1});
            bucati.push_back({QByteArray(), nou});
            ++aparitii;
            de = p + m.size();
        }
        if (de < b.text.size())
            bucati.push_back({b.text.mid(de), -1});
    }
    m_bucati = std::move(bucati);
    m_aparitii.push_back(aparitii);
    return nou;
}

bool CorpDecupat::Document::are(const char* marcaj)
{
    return m_c.m_aparitii[size_t(m_c.marcaj(marcaj))] > 0;
}

void CorpDecupat::Document::inlocuieste(const char* marcaj, const QString& valoare)
{
    const size_t i = size_t(m_c.marcaj(marcaj));
    if (m_valori.size() <= i)
        m_valori.resize(m_c.m_marcaje.size());
    m_valori[i] = TextRtf(valoare);
    if (m_valori[i].isNull())
        m_valori[i] = QByteArray("", 0);
}

QByteArray CorpDecupat::Document::text() const
{
    QByteArray r;
    r.reserve(m_c.m_lungimeText + 256);
    for (const Bucata& b : m_c.m_bucati) {
        if (b.marcaj < 0)
            r += b.text;
        else if (size_t(b.marcaj) < m_valori.size() && !m_valori[size_t(b.marcaj)].isNull())
            r += m_valori[size_t(b.marcaj)];
        else
            r += m_c.m_marcaje[size_t(b.marcaj)];
    }
    return r;
}

QByteArray AsambleazaDocument(const Sablon& s)
{
    return s.antet + s.corp + '}';
}

void ColectieDocumente::adauga(const Sablon& s)
{
    m_antet = s.antet;
    m_corpuri += s.corp;
    m_corpuri += SalturPagina;
    ++m_numar;
}

QByteArray ColectieDocumente::document() const
{
    // The page break after the last body is cut.
    return m_antet + m_corpuri.left(qMax<qsizetype>(0, m_corpuri.size() - SalturPagina.size())) + '}';
}

void ScrieFisierDocument(const QString& cale, const QByteArray& continut)
{
    QSaveFile f(cale);
    if (!f.open(QIODevice::WriteOnly) || f.write(continut) != continut.size() || !f.commit())
        throw Eroare(CodEroare::FisierDeschis,
                     QStringLiteral("Fisierul %1 nu poate fi scris").arg(QDir::toNativeSeparators(cale)),
                     QStringLiteral("Documente"));
}

QString ScrieDocument(const QString& numeFisier, const QByteArray& continut)
{
    const QString cale = QDir(Proces::folderProgram()).filePath(numeFisier);
    ScrieFisierDocument(cale, continut);
    return cale;
}
