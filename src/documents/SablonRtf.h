#pragma once
#include <QByteArray>
#include <QString>
#include <vector>

// The RTF templates of the office's documents. A template is an RTF file with markers in its
// text, a name between two number signs ("#Nume#"). The engine works on the file's bytes and
// knows one thing of RTF: the split marker, whose last occurrence closes the RTF header.
//
//   header = the file through the end of the last split marker
//   body   = what follows it, less the file's last three characters ("}" and the line end)
//   output = header + filled body + "}"
struct Sablon {
    QByteArray antet;
    QByteArray corp;
};

inline constexpr char MarcajSeparare[] = "{\\pntxta )}}";

// The output documents, written to the program folder of the workstation.
inline const QString DocumentDispozitie = QStringLiteral("Disp.rtf");
inline const QString DocumentDeclaratie = QStringLiteral("Declar.rtf");
inline const QString DocumentFisa = QStringLiteral("FisaCerere.rtf");

// The templates are shared by the workstations: the folder acte of CaleBD.
QString SablonFolder();
QString CaleSablon(const QString& numeFisier);

// Splits the text of a template; false when the split marker does not occur, or when the file
// is not whole: its braces do not balance, or it ends before its last closing brace.
bool ImparteSablon(const QByteArray& text, Sablon& s);

// Reads and splits a template. A missing file, a file without the split marker or one that is
// not whole is told to the user in the office's words, and the result is false.
bool CitesteSablon(const QString& cale, Sablon& s);

// The RTF text of a replacement value: "\", "{" and "}" escaped, a line break as \line, and
// every non-ASCII character as \uN? so the word processor shows the same character.
QByteArray TextRtf(const QString& valoare);

// Replaces every occurrence of the marker (exact, case-sensitive) with the value's RTF text.
void Inlocuieste(QByteArray& corp, const char* marcaj, const QString& valoare);
void Inlocuieste(QByteArray& corp, const QByteArray& marcaj, const QString& valoare);

// Where the markers of a body are filled: the body itself (Inlocuieste, marker after marker),
// or a body cut at its markers once for a run of many documents (CorpDecupat).
class Umplere {
public:
    virtual ~Umplere() = default;
    // Whether the body holds the marker.
    virtual bool are(const char* marcaj) = 0;
    virtual void inlocuieste(const char* marcaj, const QString& valoare) = 0;
};

// The body itself: each marker replaced where it stands.
class UmplereText : public Umplere {
public:
    explicit UmplereText(QByteArray& corp) : m_corp(corp) {}
    bool are(const char* marcaj) override;
    void inlocuieste(const char* marcaj, const QString& valoare) override;

private:
    QByteArray& m_corp;
};

// A template body cut at its markers, so that a run of a thousand documents does not search
// the whole body again for every marker of every document. A marker is cut out the first time
// it is filled, from the text that no earlier marker took, as Inlocuieste would have found it;
// a marker that a document leaves unfilled prints as it stands in the template.
class CorpDecupat {
public:
    explicit CorpDecupat(const QByteArray& corp);

    // One document's fill, started by `incepe` and read by `text`.
    class Document : public Umplere {
    public:
        bool are(const char* marcaj) override;
        void inlocuieste(const char* marcaj, const QString& valoare) override;
        QByteArray text() const;

    private:
        friend class CorpDecupat;
        explicit Document(CorpDecupat& c) : m_c(c) {}
        CorpDecupat& m_c;
        std::vector<QByteArray> m_valori; // by marker; a null one: the marker as it stands
    };
    Document incepe() { return Document(*this); }

private:
    struct Bucata {
        QByteArray text; // the template's own text, when marcaj < 0
        int marcaj = -1;
    };
    int marcaj(const char* nume);

    std::vector<Bucata> m_bucati;
    std::vector<QByteArray> m_marcaje;
    std::vector<int> m_aparitii;
    qsizetype m_lungimeText = 0;
};

// One document: header + body + "}".
QByteArray AsambleazaDocument(const Sablon& s);

// Several documents in one file, each body followed by a page break; the header is the one
// read last, so the templates of one run must share their font and style tables.
class ColectieDocumente {
public:
    void adauga(const Sablon& s);
    int numar() const { return m_numar; }
    bool goala() const { return m_numar == 0; }
    // header + the bodies joined by \page + "}"
    QByteArray document() const;

private:
    QByteArray m_antet;
    QByteArray m_corpuri;
    int m_numar = 0;
};

// Writes a document under its name in the program folder, replacing the earlier one, and
// returns its full path. Throws Eroare 70 when the file cannot be written (still open in the
// word processor on some systems, or a read-only folder).
QString ScrieDocument(const QString& numeFisier, const QByteArray& continut);
// The same, to a path of the caller's choosing.
void ScrieFisierDocument(const QString& cale, const QByteArray& continut);
