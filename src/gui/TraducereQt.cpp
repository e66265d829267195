#include "gui/TraducereQt.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QEvent>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QSet>

namespace {

struct Cuvant {
    const char* context;
    const char* sursa;
    const char* romana;
};

// Qt's texts as its widgets ask for them (context, English source) and their Romanian.
// Shortcut names ("Alt+Left") stay as they are: they are keys, not words.
const Cuvant Cuvinte[] = {
    // Standard buttons of the dialogs and message boxes.
    {"QPlatformTheme", "OK", "OK"},
    {"QPlatformTheme", "Save", "Salveaza"},
    {"QPlatformTheme", "Save All", "Salveaza tot"},
    {"QPlatformTheme", "Open", "Deschide"},
    {"QPlatformTheme", "&Yes", "&Da"},
    {"QPlatformTheme", "Yes to &All", "Da la &toate"},
    {"QPlatformTheme", "&No", "&Nu"},
    {"QPlatformTheme", "N&o to All", "N&u la toate"},
    {"QPlatformTheme", "Abort", "Abandon"},
    {"QPlatformTheme", "Retry", "Reincearca"},
    {"QPlatformTheme", "Ignore", "Ignora"},
    {"QPlatformTheme", "Close", "Inchide"},
    {"QPlatformTheme", "Cancel", "Renunta"},
    {"QPlatformTheme", "Discard", "Elimina"},
    {"QPlatformTheme", "Help", "Ajutor"},
    {"QPlatformTheme", "Apply", "Aplica"},
    {"QPlatformTheme", "Reset", "Reseteaza"},
    {"QPlatformTheme", "Restore Defaults", "Valori implicite"},
    {"QPlatformTheme", "Don't Save", "Nu salva"},
    {"QMessageBox", "Show Details...", "Arata detaliile..."},
    {"QMessageBox", "Hide Details...", "Ascunde detaliile..."},
    {"QMessageBox", "OK", "OK"},
    {"QGuiApplication", "QT_LAYOUT_DIRECTION", "LTR"},
    // The right-click menu of the text boxes and of the number and date boxes.
    {"QLineEdit", "&Undo", "&Anuleaza"},
    {"QLineEdit", "&Redo", "&Refa"},
    {"QLineEdit", "Cu&t", "&Taie"},
    {"QLineEdit", "&Copy", "&Copiaza"},
    {"QLineEdit", "&Paste", "&Lipeste"},
    {"QLineEdit", "Delete", "Sterge"},
    {"QLineEdit", "Select All", "Selecteaza tot"},
    {"QWidgetTextControl", "&Undo", "&Anuleaza"},
    {"QWidgetTextControl", "&Redo", "&Refa"},
    {"QWidgetTextControl", "Cu&t", "&Taie"},
    {"QWidgetTextControl", "&Copy", "&Copiaza"},
    {"QWidgetTextControl", "Copy &Link Location", "Copiaza adresa &legaturii"},
    {"QWidgetTextControl", "&Paste", "&Lipeste"},
    {"QWidgetTextControl", "Delete", "Sterge"},
    {"QWidgetTextControl", "Select All", "Selecteaza tot"},
    {"QAbstractSpinBox", "&Step up", "&Creste"},
    {"QAbstractSpinBox", "Step &down", "&Scade"},
    {"QScrollBar", "Scroll here", "Deruleaza aici"},
    {"QScrollBar", "Left edge", "Marginea stanga"},
    {"QScrollBar", "Top", "Sus"},
    {"QScrollBar", "Right edge", "Marginea dreapta"},
    {"QScrollBar", "Bottom", "Jos"},
    {"QScrollBar", "Page left", "O pagina la stanga"},
    {"QScrollBar", "Page up", "O pagina in sus"},
    {"QScrollBar", "Page right", "O pagina la dreapta"},
    {"QScrollBar", "Page down", "O pagina in jos"},
    {"QScrollBar", "Scroll left", "Deruleaza la stanga"},
    {"QScrollBar", "Scroll up", "Deruleaza in sus"},
    {"QScrollBar", "Scroll right", "Deruleaza la dreapta"},
    {"QScrollBar", "Scroll down", "Deruleaza in jos"},
    {"QTabBar", "Scroll Left", "Deruleaza la stanga"},
    {"QTabBar", "Scroll Right", "Deruleaza la dreapta"},
    {"QCalendarWidget", "Week", "Sapt."},
    // The file dialog.
    {"QFileDialog", "Alt+Left", "Alt+Left"},
    {"QFileDialog", "Alt+Right", "Alt+Right"},
    {"QFileDialog", "Alt+Up", "Alt+Up"},
    {"QFileDialog", "&Choose", "&Alege"},
    {"QFileDialog", "&Delete", "&Sterge"},
    {"QFileDialog", "&New Folder", "Dosar &nou"},
    {"QFileDialog", "&Open", "&Deschide"},
    {"QFileDialog", "&Rename", "&Redenumeste"},
    {"QFileDialog", "&Save", "&Salveaza"},
    {"QFileDialog", "All Files (*)", "Toate fisierele (*)"},
    {"QFileDialog", "Back", "Inapoi"},
    {"QFileDialog", "Change to detail view mode", "Afisare cu detalii"},
    {"QFileDialog", "Change to list view mode", "Afisare ca lista"},
    {"QFileDialog", "Create New Folder", "Dosar nou"},
    {"QFileDialog", "Create a New Folder", "Creeaza un dosar nou"},
    {"QFileDialog", "Detail View", "Vedere cu detalii"},
    {"QFileDialog", "Directories", "Dosare"},
    {"QFileDialog", "Directory:", "Dosar:"},
    {"QFileDialog", "File &name:", "&Nume fisier:"},
    {"QFileDialog", "Files", "Fisiere"},
    {"QFileDialog", "Files of type:", "Fisiere de tipul:"},
    {"QFileDialog", "Forward", "Inainte"},
    {"QFileDialog", "Go back", "Inapoi"},
    {"QFileDialog", "Go forward", "Inainte"},
    {"QFileDialog", "Go to the parent directory", "Dosarul parinte"},
    {"QFileDialog", "List View", "Vedere ca lista"},
    {"QFileDialog", "List of places and bookmarks", "Locuri si semne de carte"},
    {"QFileDialog", "Look in:", "Cauta in:"},
    {"QFileDialog", "Parent Directory", "Dosarul parinte"},
    {"QFileDialog", "Show ", "Arata "},
    {"QFileDialog", "Show &hidden files", "Arata fisierele &ascunse"},
    {"QFileDialog", "Sidebar", "Bara laterala"},
    {"QFileDialog", "Save As", "Salvare ca"},
    {"QFileDialog", "Open", "Deschidere"},
    {"QFileDialog", "Find Directory", "Alegeti dosarul"},
    {"QFileDialog", "New Folder", "Dosar nou"},
    {"QFileDialog", "Recent Places", "Locuri recente"},
    {"QFileDialog", "Delete", "Stergere"},
    {"QFileDialog", "Are you sure you want to delete '%1'?", "Sigur doriti sa stergeti '%1'?"},
    {"QFileDialog", "%1 already exists.\nDo you want to replace it?", "%1 exista deja.\nDoriti sa il inlocuiti?"},
    {"QFileDialog", "'%1' is write protected.\nDo you want to delete it anyway?",
     "'%1' este protejat la scriere.\nDoriti totusi sa il stergeti?"},
    {"QFileDialog", "Could not delete directory.", "Dosarul nu a putut fi sters."},
    {"QFileDialog", "%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nDosarul nu a fost gasit.\nVerificati numele dosarului."},
    {"QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nFisierul nu a fost gasit.\nVerificati numele fisierului."},
    {"QFileSystemModel", "Computer", "Calculator"},
    {"QFileSystemModel", "My Computer", "Calculatorul meu"},
    {"QFileSystemModel", "Date Modified", "Data modificarii"},
    {"QFileSystemModel", "Name", "Nume"},
    {"QFileSystemModel", "Size", "Marime"},
    {"QFileSystemModel", "Type", "Tip"},
    {"QFileSystemModel", "Kind", "Tip"},
    {"QFileSystemModel",
     "<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no "
     "punctuation marks.",
     "<b>Numele \"%1\" nu poate fi folosit.</b><p>Incercati alt nume, mai scurt sau fara semne de punctuatie."},
    {"QFileSystemModel", "Invalid filename", "Nume de fisier nevalid"},
    {"QFileSystemModel", "Filename", "Nume fisier"},
    {"QAbstractFileIconProvider", "Drive", "Unitate"},
    {"QAbstractFileIconProvider", "Folder", "Dosar"},
    {"QAbstractFileIconProvider", "File", "Fisier"},
    {"QAbstractFileIconProvider", "%1 File", "Fisier %1"},
    {"QAbstractFileIconProvider", "Unknown", "Necunoscut"},
    // The colour dialog.
    {"QColorDialog", "Hu&e:", "&Nuanta:"},
    {"QColorDialog", "&Sat:", "&Saturatie:"},
    {"QColorDialog", "&Val:", "&Valoare:"},
    {"QColorDialog", "&Red:", "&Rosu:"},
    {"QColorDialog", "&Green:", "&Verde:"},
    {"QColorDialog", "Bl&ue:", "&Albastru:"},
    {"QColorDialog", "A&lpha channel:", "&Transparenta:"},
    {"QColorDialog", "&HTML:", "&HTML:"},
    {"QColorDialog", "Select Color", "Alegeti culoarea"},
    {"QColorDialog", "&Basic colors", "Culori de &baza"},
    {"QColorDialog", "&Custom colors", "Culori &proprii"},
    {"QColorDialog", "&Add to Custom Colors", "Adauga la culorile pr&oprii"},
    {"QColorDialog", "&Pick Screen Color", "&Ia culoarea de pe ecran"},
    {"QColorDialog", "Cursor at %1, %2\nPress ESC to cancel", "Cursorul la %1, %2\nApasati ESC pentru a renunta"},
    // The font dialog.
    {"QFontDialog", "&Font", "&Font"},
    {"QFontDialog", "Font st&yle", "&Stil"},
    {"QFontDialog", "&Size", "&Marime"},
    {"QFontDialog", "Effects", "Efecte"},
    {"QFontDialog", "Stri&keout", "&Taiat"},
    {"QFontDialog", "&Underline", "S&ubliniat"},
    {"QFontDialog", "Sample", "Exemplu"},
    {"QFontDialog", "Wr&iting System", "Sistem de s&criere"},
    {"QFontDialog", "Select Font", "Alegeti fontul"},
    {"QFontDatabase", "Any", "Oricare"},
    {"QFontDatabase", "Normal", "Normal"},
    {"QFontDatabase", "Bold", "Aldin"},
    {"QFontDatabase", "Demi Bold", "Semialdin"},
    {"QFontDatabase", "Black", "Negru"},
    {"QFontDatabase", "Light", "Subtire"},
    {"QFontDatabase", "Italic", "Cursiv"},
    {"QFontDatabase", "Oblique", "Oblic"},
    {"QFontDatabase", "Latin", "Latin"},
    {"QFontDatabase", "Greek", "Grec"},
    {"QFontDatabase", "Cyrillic", "Chirilic"},
    {"QFontDatabase", "Armenian", "Armean"},
    {"QFontDatabase", "Hebrew", "Ebraic"},
    {"QFontDatabase", "Arabic", "Arab"},
    {"QFontDatabase", "Syriac", "Siriac"},
    {"QFontDatabase", "Thaana", "Thaana"},
    {"QFontDatabase", "Devanagari", "Devanagari"},
    {"QFontDatabase", "Bengali", "Bengali"},
    {"QFontDatabase", "Gurmukhi", "Gurmukhi"},
    {"QFontDatabase", "Gujarati", "Gujarati"},
    {"QFontDatabase", "Oriya", "Oriya"},
    {"QFontDatabase", "Tamil", "Tamil"},
    {"QFontDatabase", "Telugu", "Telugu"},
    {"QFontDatabase", "Kannada", "Kannada"},
    {"QFontDatabase", "Malayalam", "Malayalam"},
    {"QFontDatabase", "Sinhala", "Singhalez"},
    {"QFontDatabase", "Thai", "Thailandez"},
    {"QFontDatabase", "Lao", "Laotian"},
    {"QFontDatabase", "Tibetan", "Tibetan"},
    {"QFontDatabase", "Myanmar", "Birmanez"},
    {"QFontDatabase", "Georgian", "Georgian"},
    {"QFontDatabase", "Khmer", "Khmer"},
    {"QFontDatabase", "Simplified Chinese", "Chineza simplificata"},
    {"QFontDatabase", "Traditional Chinese", "Chineza traditionala"},
    {"QFontDatabase", "Japanese", "Japonez"},
    {"QFontDatabase", "Korean", "Coreean"},
    {"QFontDatabase", "Vietnamese", "Vietnamez"},
    {"QFontDatabase", "Symbol", "Simboluri"},
    {"QFontDatabase", "Ogham", "Ogham"},
    {"QFontDatabase", "Runic", "Runic"},
    {"QFontDatabase", "N'Ko", "N'Ko"},
    // The print preview and its page set-up.
    {"QPrintPreviewDialog", "%1%", "%1%"},
    {"QPrintPreviewDialog", "Print Preview", "Previzualizare"},
    {"QPrintPreviewDialog", "Next page", "Pagina urmatoare"},
    {"QPrintPreviewDialog", "Previous page", "Pagina anterioara"},
    {"QPrintPreviewDialog", "First page", "Prima pagina"},
    {"QPrintPreviewDialog", "Last page", "Ultima pagina"},
    {"QPrintPreviewDialog", "Fit width", "Latimea paginii"},
    {"QPrintPreviewDialog", "Fit page", "Pagina intreaga"},
    {"QPrintPreviewDialog", "Zoom in", "Mareste"},
    {"QPrintPreviewDialog", "Zoom out", "Micsoreaza"},
    {"QPrintPreviewDialog", "Portrait", "Portret"},
    {"QPrintPreviewDialog", "Landscape", "Vedere"},
    {"QPrintPreviewDialog", "Show single page", "O pagina"},
    {"QPrintPreviewDialog", "Show facing pages", "Doua pagini alaturate"},
    {"QPrintPreviewDialog", "Show overview of all pages", "Toate paginile"},
    {"QPrintPreviewDialog", "Print", "Tiparire"},
    {"QPrintPreviewDialog", "Page setup", "Configurare pagina"},
    {"QPrintPreviewDialog", "Page Setup", "Configurare pagina"},
    {"QPrintPreviewDialog", "Export to PDF", "Export PDF"},
    {"QPrintPreviewDialog", "Close", "Inchide"},
    {"QPageSetupWidget", "Form", "Formular"},
    {"QPageSetupWidget", "Paper", "Hartie"},
    {"QPageSetupWidget", "Page size:", "Format pagina:"},
    {"QPageSetupWidget", "Width:", "Latime:"},
    {"QPageSetupWidget", "Height:", "Inaltime:"},
    {"QPageSetupWidget", "Paper source:", "Sursa hartiei:"},
    {"QPageSetupWidget", "Orientation", "Orientare"},
    {"QPageSetupWidget", "Portrait", "Portret"},
    {"QPageSetupWidget", "Landscape", "Vedere"},
    {"QPageSetupWidget", "Reverse landscape", "Vedere inversata"},
    {"QPageSetupWidget", "Reverse portrait", "Portret inversat"},
    {"QPageSetupWidget", "Margins", "Margini"},
    {"QPageSetupWidget", "top margin", "marginea de sus"},
    {"QPageSetupWidget", "left margin", "marginea din stanga"},
    {"QPageSetupWidget", "right margin", "marginea din dreapta"},
    {"QPageSetupWidget", "bottom margin", "marginea de jos"},
    {"QPageSetupWidget", "Page Layout", "Asezare in pagina"},
    {"QPageSetupWidget", "Page order:", "Ordinea paginilor:"},
    {"QPageSetupWidget", "Pages per sheet:", "Pagini pe foaie:"},
    {"QPageSetupWidget", "Custom", "Personalizat"},
    {"QPageSetupWidget", "Millimeters (mm)", "Milimetri (mm)"},
    {"QPageSetupWidget", "Inches (in)", "Toli (in)"},
    {"QPageSetupWidget", "Points (pt)", "Puncte (pt)"},
    {"QPageSetupWidget", "Pica (P\xCC\xB8)", "Pica (P)"},
    {"QPageSetupWidget", "Didot (DD)", "Didot (DD)"},
    {"QPageSetupWidget", "Cicero (CC)", "Cicero (CC)"},
    {"QPageSetupWidget", "mm", "mm"},
    {"QPageSize", "Custom", "Personalizat"},
    {"QPrintDialog", "Print", "Tiparire"},
    {"QPrintDialog", "&Print", "&Tipareste"},
    {"QPrintDialog", "&Options >>", "&Optiuni >>"},
    {"QPrintDialog", "&Options <<", "&Optiuni <<"},
    {"QPrintDialog", "All Pages", "Toate paginile"},
    {"QPrintDialog", "Odd Pages", "Paginile impare"},
    {"QPrintDialog", "Even Pages", "Paginile pare"},
    {"QPrintDialog", "Local file", "Fisier local"},
    {"QPrintDialog", "Write PDF file", "Scrie fisier PDF"},
    {"QPrintDialog", "Print to File (PDF)", "Tiparire in fisier (PDF)"},
    {"QPrintDialog", "Left to Right, Top to Bottom", "De la stanga la dreapta, de sus in jos"},
    {"QPrintDialog", "Left to Right, Bottom to Top", "De la stanga la dreapta, de jos in sus"},
    {"QPrintDialog", "Right to Left, Bottom to Top", "De la dreapta la stanga, de jos in sus"},
    {"QPrintDialog", "Right to Left, Top to Bottom", "De la dreapta la stanga, de sus in jos"},
    {"QPrintDialog", "Bottom to Top, Left to Right", "De jos in sus, de la stanga la dreapta"},
    {"QPrintDialog", "Bottom to Top, Right to Left", "De jos in sus, de la dreapta la stanga"},
    {"QPrintDialog", "Top to Bottom, Left to Right", "De sus in jos, de la stanga la dreapta"},
    {"QPrintDialog", "Top to Bottom, Right to Left", "De sus in jos, de la dreapta la stanga"},
    {"QPrintDialog", "1 (1x1)", "1 (1x1)"},
    {"QPrintDialog", "2 (2x1)", "2 (2x1)"},
    {"QPrintDialog", "4 (2x2)", "4 (2x2)"},
    {"QPrintDialog", "6 (2x3)", "6 (2x3)"},
    {"QPrintDialog", "9 (3x3)", "9 (3x3)"},
    {"QPrintDialog", "16 (4x4)", "16 (4x4)"},
    {"QPrintSettingsOutput", "Form", "Formular"},
    {"QPrintSettingsOutput", "Copies", "Copii"},
    {"QPrintSettingsOutput", "Copies:", "Copii:"},
    {"QPrintSettingsOutput", "Collate", "Asamblare"},
    {"QPrintSettingsOutput", "Reverse", "In ordine inversa"},
    {"QPrintSettingsOutput", "Print range", "Ce se tipareste"},
    {"QPrintSettingsOutput", "Print all", "Tot"},
    {"QPrintSettingsOutput", "Pages from", "Paginile de la"},
    {"QPrintSettingsOutput", "to", "la"},
    {"QPrintSettingsOutput", "Pages", "Paginile"},
    {"QPrintSettingsOutput", "Current Page", "Pagina curenta"},
    {"QPrintSettingsOutput", "Selection", "Selectia"},
    {"QPrintSettingsOutput", "Page Set:", "Setul de pagini:"},
    {"QPrintSettingsOutput", "Output Settings", "Iesire"},
    {"QPrintSettingsOutput", "Options", "Optiuni"},
    {"QPrintSettingsOutput", "Color Mode", "Culoare"},
    {"QPrintSettingsOutput", "Color", "Color"},
    {"QPrintSettingsOutput", "Grayscale", "Tonuri de gri"},
    {"QPrintSettingsOutput", "Double Sided Printing", "Tiparire fata-verso"},
    {"QPrintSettingsOutput", "Off", "Nu"},
    {"QPrintSettingsOutput", "Long side binding", "Legare pe latura lunga"},
    {"QPrintSettingsOutput", "Short side binding", "Legare pe latura scurta"},
    {"QPrintSettingsOutput",
     "Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: "
     "3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     "Paginile sau intervalele, despartite prin virgula; un interval are doua numere despartite prin cratima. De "
     "exemplu 3,5-7,9 tipareste paginile 3, 5, 6, 7 si 9."},
    {"QPrintWidget", "Form", "Formular"},
    {"QPrintWidget", "Printer", "Imprimanta"},
    {"QPrintWidget", "&Name:", "&Nume:"},
    {"QPrintWidget", "P&roperties", "P&roprietati"},
    {"QPrintWidget", "Location:", "Locul:"},
    {"QPrintWidget", "Preview", "Previzualizare"},
    {"QPrintWidget", "Type:", "Tip:"},
    {"QPrintWidget", "Output &file:", "&Fisier:"},
    {"QPrintWidget", "...", "..."},
};

QString cheie(const char* context, const char* sursa)
{
    return QString::fromUtf8(context) + QLatin1Char('|') + QString::fromUtf8(sursa);
}

const QHash<QString, QString>& tabel()
{
    static const QHash<QString, QString> t = [] {
        QHash<QString, QString> h;
        for (const Cuvant& c : Cuvinte)
            h.insert(cheie(c.context, c.sursa), QString::fromUtf8(c.romana));
        return h;
    }();
    return t;
}

// The calendar's day heads by their first letter: the short names of the Romanian locale
// carry diacritics ("sam."), their first letters do not.
class CapeteCalendar : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* o, QEvent* e) override
    {
        if (e->type() == QEvent::Polish)
            if (auto* c = qobject_cast<QCalendarWidget*>(o))
                c->setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
        return false;
    }
};

} // namespace

TraducereQt::TraducereQt(QObject* parent) : QTranslator(parent) {}

QString TraducereQt::translate(const char* context, const char* sourceText, const char*, int) const
{
    if (!context || !sourceText)
        return {};
    const QString k = cheie(context, sourceText);
    const auto it = tabel().constFind(k);
    if (it != tabel().constEnd())
        return *it;
    // Envelopes are the only paper names that are words: "Envelope C5" is "Plic C5".
    if (qstrcmp(context, "QPageSize") == 0 && qstrncmp(sourceText, "Envelope ", 9) == 0)
        return QStringLiteral("Plic ") + QString::fromUtf8(sourceText + 9);
    if (!m_cerute.contains(k))
        m_cerute << k;
    return {};
}

QStringList TraducereQt::Lipsa(const QStringList& contexte) const
{
    QStringList l;
    for (const QString& k : m_cerute)
        if (contexte.contains(k.section(QLatin1Char('|'), 0, 0)))
            l << k;
    return l;
}

void InstaleazaRomana(QApplication& app)
{
    QLocale::setDefault(QLocale(QLocale::Romanian, QLocale::Romania));
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // Qt's own catalogue first, ours after it: the translator installed last is asked first.
    auto* qt = new QTranslator(&app);
    if (qt->load(QLocale(QLocale::Romanian), QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(qt);
    QApplication::installTranslator(new TraducereQt(&app));
    app.installEventFilter(new CapeteCalendar(&app));
}
