// Qt's own dialogs and menus speak Romanian without diacritics: the file dialog, the font and
// colour dialogs, the calendar, the right-click menu of the text boxes, the print preview, the
// message boxes and the input box.
#include "gui/CampData.h"
#include "gui/TraducereQt.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QTableView>
#include <QTextEdit>
#include <QtTest>
#include <functional>
#include <memory>

namespace {

// Everything a window shows in words: captions, labels, tips, titles, menu entries, column
// heads and the calendar's heads. The contents of lists (file names, paths) are not words of
// the program.
QStringList Texte(QWidget* w)
{
    QStringList t;
    const auto adauga = [&](const QString& s) {
        if (!s.trimmed().isEmpty())
            t << s;
    };
    QList<QWidget*> toate = w->findChildren<QWidget*>();
    toate.prepend(w);
    for (QWidget* c : toate) {
        adauga(c->toolTip());
        if (c->isWindow())
            adauga(c->windowTitle());
        if (auto* l = qobject_cast<QLabel*>(c))
            adauga(l->text());
        if (auto* b = qobject_cast<QAbstractButton*>(c))
            adauga(b->text());
        if (auto* g = qobject_cast<QGroupBox*>(c))
            adauga(g->title());
        if (auto* h = qobject_cast<QHeaderView*>(c); h && h->model())
            for (int i = 0; i < h->count(); ++i)
                adauga(h->model()->headerData(i, h->orientation()).toString());
        if (auto* v = qobject_cast<QTableView*>(c); v && qobject_cast<QCalendarWidget*>(v->parentWidget()))
            for (int col = 0; col < v->model()->columnCount(); ++col)
                adauga(v->model()->index(0, col).data().toString());
        for (QAction* a : c->actions()) {
            adauga(a->text());
            adauga(a->toolTip());
        }
    }
    return t;
}

QStringList TexteMeniu(QMenu* m)
{
    QStringList t;
    for (QAction* a : m->actions())
        if (!a->text().isEmpty())
            t << a->text().section(QLatin1Char('\t'), 0, 0); // the entry, without its shortcut
    return t;
}

// The English that the office read before: none of these words may show.
const QStringList Engleza{
    QStringLiteral("Look"),      QStringLiteral("File"),    QStringLiteral("Save"),      QStringLiteral("Cancel"),
    QStringLiteral("Open"),      QStringLiteral("Undo"),    QStringLiteral("Redo"),      QStringLiteral("Copy"),
    QStringLiteral("Paste"),     QStringLiteral("Delete"),  QStringLiteral("Select"),    QStringLiteral("Zoom"),
    QStringLiteral("Print"),     QStringLiteral("Page"),    QStringLiteral("Next"),      QStringLiteral("Previous"),
    QStringLiteral("Landscape"), QStringLiteral("Yes"),     QStringLiteral("No"),        QStringLiteral("Size"),
    QStringLiteral("Sample"),    QStringLiteral("Effects"), QStringLiteral("Underline"), QStringLiteral("Basic"),
    QStringLiteral("Custom"),    QStringLiteral("Red"),     QStringLiteral("Green"),     QStringLiteral("Blue"),
    QStringLiteral("Back"),      QStringLiteral("Forward"), QStringLiteral("Detail"),    QStringLiteral("Directory"),
    QStringLiteral("Folder"),    QStringLiteral("Name"),    QStringLiteral("Type"),      QStringLiteral("Date"),
    QStringLiteral("November"),  QStringLiteral("Mon"),     QStringLiteral("Sat"),       QStringLiteral("Sun"),
    QStringLiteral("Show"),      QStringLiteral("Fit"),     QStringLiteral("Computer"),  QStringLiteral("Writing"),
};

// The words that break the office's rule: English, or a letter with a diacritic.
QStringList Greseli(const QStringList& texte)
{
    QStringList g;
    static const QRegularExpression cuvant(QStringLiteral("[A-Za-z]+"));
    for (const QString& t : texte) {
        const QString fara = QString(t).remove(QLatin1Char('&'));
        for (QChar c : fara)
            if (c.unicode() > 0x7e) {
                g << t;
                break;
            }
        for (auto it = cuvant.globalMatch(fara); it.hasNext();)
            if (Engleza.contains(it.next().captured()))
                g << t;
    }
    g.removeDuplicates();
    return g;
}

// The contexts of Qt whose words the program shows.
const QStringList Contexte{
    QStringLiteral("QFileDialog"),
    QStringLiteral("QFileSystemModel"),
    QStringLiteral("QColorDialog"),
    QStringLiteral("QFontDialog"),
    QStringLiteral("QPlatformTheme"),
    QStringLiteral("QLineEdit"),
    QStringLiteral("QWidgetTextControl"),
    QStringLiteral("QPrintPreviewDialog"),
    QStringLiteral("QMessageBox"),
    QStringLiteral("QCalendarWidget"),
    QStringLiteral("QPageSetupWidget"),
    QStringLiteral("QAbstractSpinBox"),
    QStringLiteral("QAbstractFileIconProvider"),
};

using Fabrica = std::function<std::unique_ptr<QWidget>()>;

} // namespace

class TestTraducereQt : public QObject {
    Q_OBJECT
    TraducereQt* m_traducere = nullptr;

private slots:
    void initTestCase()
    {
        InstaleazaRomana(*qApp);
        m_traducere = qApp->findChild<TraducereQt*>();
        QVERIFY(m_traducere);
    }

    void dialoguri_data()
    {
        QTest::addColumn<Fabrica>("fabrica");
        QTest::addColumn<QStringList>("asteptate"); // words that must show

        QTest::newRow("salvare fisier") << Fabrica([] {
            auto d = std::make_unique<QFileDialog>(nullptr, QStringLiteral("Salvare"), QDir::tempPath(),
                                                   QStringLiteral("Fisiere PDF (*.pdf)"));
            d->setAcceptMode(QFileDialog::AcceptSave);
            d->setViewMode(QFileDialog::Detail);
            return std::unique_ptr<QWidget>(std::move(d));
        })
                                        << QStringList{QStringLiteral("Cauta in:"), QStringLiteral("&Nume fisier:"),
                                                       QStringLiteral("&Salveaza"), QStringLiteral("Renunta"),
                                                       QStringLiteral("Data modificarii")};
        QTest::newRow("alegere dosar") << Fabrica([] {
            auto d = std::make_unique<QFileDialog>(nullptr, QStringLiteral("Dosar"), QDir::tempPath());
            d->setFileMode(QFileDialog::Directory);
            d->setOption(QFileDialog::ShowDirsOnly, true);
            return std::unique_ptr<QWidget>(std::move(d));
        }) << QStringList{QStringLiteral("&Alege"), QStringLiteral("Dosar:")};
        QTest::newRow("culoare") << Fabrica([] { return std::unique_ptr<QWidget>(new QColorDialog); })
                                 << QStringList{QStringLiteral("Culori de &baza"), QStringLiteral("OK")};
        QTest::newRow("font") << Fabrica([] { return std::unique_ptr<QWidget>(new QFontDialog); })
                              << QStringList{QStringLiteral("&Marime"), QStringLiteral("Exemplu")};
        QTest::newRow("intrebare") << Fabrica([] {
            return std::unique_ptr<QWidget>(new QMessageBox(QMessageBox::Question, QStringLiteral("T"),
                                                            QStringLiteral("?"), QMessageBox::Yes | QMessageBox::No));
        }) << QStringList{QStringLiteral("&Da"), QStringLiteral("&Nu")};
        QTest::newRow("caseta de text: motivul redeschiderii") << Fabrica([] {
            auto d = std::make_unique<QInputDialog>();
            d->setLabelText(QStringLiteral("Motivul redeschiderii"));
            return std::unique_ptr<QWidget>(std::move(d));
        }) << QStringList{QStringLiteral("Renunta")};
        QTest::newRow("calendar") << Fabrica([] {
            auto c = std::make_unique<QCalendarWidget>();
            c->setSelectedDate(QDate(2026, 11, 23));
            return std::unique_ptr<QWidget>(std::move(c));
        }) << QStringList{QStringLiteral("noiembrie"), QStringLiteral("L")};
        QTest::newRow("previzualizare") << Fabrica([] {
            static QPrinter p;
            return std::unique_ptr<QWidget>(new QPrintPreviewDialog(&p));
        }) << QStringList{QStringLiteral("Micsoreaza"), QStringLiteral("Tiparire")};
    }

    void dialoguri()
    {
        QFETCH(Fabrica, fabrica);
        QFETCH(QStringList, asteptate);
        const std::unique_ptr<QWidget> w = fabrica();
        w->show();
        QCoreApplication::processEvents();
        const QStringList texte = Texte(w.get());
        QVERIFY2(Greseli(texte).isEmpty(), qPrintable(Greseli(texte).join(u'|')));
        for (const QString& a : asteptate)
            QVERIFY2(texte.contains(a), qPrintable(a + QStringLiteral(" lipseste din: ") + texte.join(u'|')));
        QVERIFY2(m_traducere->Lipsa(Contexte).isEmpty(), qPrintable(m_traducere->Lipsa(Contexte).join(u'|')));
    }

    // The right-click menu of a text box, of a larger text and of the date field.
    void meniuriDeText()
    {
        QLineEdit e(QStringLiteral("abc"));
        std::unique_ptr<QMenu> m1(e.createStandardContextMenu());
        QTextEdit t(QStringLiteral("abc"));
        std::unique_ptr<QMenu> m2(t.createStandardContextMenu());
        CampData d;
        std::unique_ptr<QMenu> m3(d.findChild<QLineEdit*>()->createStandardContextMenu());
        for (QMenu* m : {m1.get(), m2.get(), m3.get()}) {
            const QStringList texte = TexteMeniu(m);
            QVERIFY2(Greseli(texte).isEmpty(), qPrintable(Greseli(texte).join(u'|')));
            QVERIFY(texte.contains(QStringLiteral("&Copiaza")));
            QVERIFY(texte.contains(QStringLiteral("&Lipeste")));
        }
        QVERIFY2(m_traducere->Lipsa(Contexte).isEmpty(), qPrintable(m_traducere->Lipsa(Contexte).join(u'|')));
    }

    // The month in the date field's calendar and the week day heads, Romanian and plain.
    void calendarulCampuluiData()
    {
        CampData d(nullptr, false);
        d.setDate(QDate(2026, 11, 23));
        d.show();
        d.calendarWidget()->show();
        QCoreApplication::processEvents();
        const QStringList texte = Texte(d.calendarWidget());
        QVERIFY2(Greseli(texte).isEmpty(), qPrintable(Greseli(texte).join(u'|')));
        QVERIFY(texte.contains(QStringLiteral("noiembrie")));
        QVERIFY(texte.contains(QStringLiteral("S")));
    }
};

QTEST_MAIN(TestTraducereQt)
#include "tst_TraducereQt.moc"
