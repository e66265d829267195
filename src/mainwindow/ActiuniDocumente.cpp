#include "mainwindow/ActiuniDocumente.h"

#include "database/BD.h"
#include "documents/DeschideDocument.h"
#include "documents/DispozitiiInBloc.h"
#include "documents/DocumentDispozitie.h"
#include "documents/DocumenteCerere.h"
#include "documents/SablonRtf.h"
#include "documents/frmAnexa2.h"
#include "documents/FisaDispozitie.h"
#include "decisions/CalculDispozitie.h"
#include "gui/CursorAsteptare.h"
#include "gui/Modal.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"

#include <QAction>
#include <QApplication>
#include <QProgressDialog>

namespace {

// Builds the document under the wait cursor, catching what the database may throw.
template <typename F> std::optional<QByteArray> construieste(F&& f)
{
    CursorAsteptare c;
    try {
        return f();
    } catch (const Eroare& e) {
        Mesaj(e.text());
        return std::nullopt;
    }
}

// Writes the document to the program folder and opens it. A file still open in the word
// processor is named for the disposition and the sheet in the office's words.
void scrieSiDeschide(const QString& nume, const QByteArray& doc, bool mesajDocumentDeschis)
{
    try {
        ScrieDocument(nume, doc);
    } catch (const Eroare& e) {
        if (mesajDocumentDeschis && e.numar == CodEroare::FisierDeschis)
            Mesaj(QStringLiteral("Inchideti dispozitia deschisa anterior!"));
        else
            Mesaj(e.text());
        return;
    }
    DeschideDocument(nume);
}

// The menu's caption during a bulk run.
class CaptieMeniu {
public:
    explicit CaptieMeniu(QAction* a) : m_a(a)
    {
        if (m_a) {
            m_text = m_a->text();
            m_a->setText(QStringLiteral("Opreste tiparirea"));
        }
    }
    ~CaptieMeniu()
    {
        if (m_a)
            m_a->setText(m_text);
    }

private:
    QAction* m_a;
    QString m_text;
};

// A progress display that keeps the window alive during a long run; Cancel stops it.
class Progres {
public:
    explicit Progres(QWidget* parinte)
        : m_d(QStringLiteral("Se pregatesc dispozitiile..."), QStringLiteral("Opreste tiparirea"), 0, 1, parinte)
    {
        m_d.setObjectName(QStringLiteral("progresDispozitii"));
        m_d.setWindowModality(Qt::WindowModal);
        m_d.setMinimumDuration(300);
    }
    ProgresRulare functie()
    {
        return [this](int facut, int total) {
            m_d.setMaximum(qMax(1, total));
            m_d.setValue(facut);
            m_d.setLabelText(QStringLiteral("Dispozitia %1 din %2").arg(qMin(facut + 1, total)).arg(total));
            QCoreApplication::processEvents();
            return !m_d.wasCanceled();
        };
    }
    void inchide() { m_d.reset(); }

private:
    QProgressDialog m_d;
};

// A bulk run: the menu says "Opreste tiparirea" and the progress window shows while the
// document is built; what the database throws is shown once the progress window is gone.
template <typename F> std::optional<QByteArray> construiesteInBloc(QWidget* parinte, QAction* meniu, F&& f)
{
    CaptieMeniu captie(meniu);
    Progres progres(parinte);
    try {
        return f(progres.functie());
    } catch (const Eroare& e) {
        progres.inchide();
        Mesaj(e.text());
        return std::nullopt;
    }
}

// frmAnexa2, modal; true when the officer chose cmdOK.
bool alegeDispozitii(frmAnexa2& dlg)
{
    dlg.CalculDispozitie = [](const BD& bd, qint64 dispozitieId, qint64 cerereId, int an) {
        CalculeazaSiScrie(bd, dispozitieId, cerereId, an);
    };
    DeschideModal(dlg);
    return dlg.ESTE_OK;
}

} // namespace

namespace {

// A document of the selected disposition: nothing on an empty list, the office's word when none
// is selected, otherwise built, written and opened.
template <typename Construieste>
void documentDispozitie(bool listaGoala, std::optional<qint64> dispozitieId, const QString& nume, bool mesaj,
                        Construieste&& f)
{
    if (!Proces::BazaAccesibila() || listaGoala)
        return;
    if (!dispozitieId) {
        Mesaj(QStringLiteral("Selecati mai intai o dispozitie!"));
        return;
    }
    const auto doc = construieste([&] { return f(*dispozitieId); });
    if (doc)
        scrieSiDeschide(nume, *doc, mesaj);
}

} // namespace

void ActiuneTiparireDispozitie(QWidget* parinte, bool listaGoala, std::optional<qint64> dispozitieId)
{
    Q_UNUSED(parinte);
    documentDispozitie(listaGoala, dispozitieId, DocumentDispozitie, true,
                       [](qint64 id) { return DocumentulDispozitiei(id, Proces::setari(), BD::principala()); });
}

void ActiuneFisaDispozitie(QWidget* parinte, bool listaGoala, std::optional<qint64> dispozitieId, const QDate& dataFisa)
{
    Q_UNUSED(parinte);
    documentDispozitie(listaGoala, dispozitieId, DocumentFisaDispozitie, false,
                       [&](qint64 id) { return DocumentulFiseiDispozitiei(id, dataFisa, BD::principala()); });
}

void ActiuneDeclaratie(QWidget* parinte, bool listaGoala, std::optional<qint64> cerereId)
{
    Q_UNUSED(parinte);
    if (listaGoala || !Proces::BazaAccesibila())
        return;
    if (!cerereId) {
        Mesaj(QStringLiteral("Selecati mai intai o cerere!"));
        return;
    }
    const auto doc = construieste([&] { return DocumentulDeclaratiei(*cerereId, Proces::setari(), BD::principala()); });
    if (doc)
        scrieSiDeschide(DocumentDeclaratie, *doc, false);
}

void ActiuneFisaCalcul(QWidget* parinte, bool listaGoala, std::optional<qint64> cerereId, const QDate& dataFisa)
{
    Q_UNUSED(parinte);
    if (!Proces::BazaAccesibila() || listaGoala)
        return;
    if (!cerereId) {
        Mesaj(QStringLiteral("Selecati mai intai o cerere!"));
        return;
    }
    const auto doc = construieste([&] { return DocumentulFisei(*cerereId, dataFisa, BD::principala()); });
    if (doc)
        scrieSiDeschide(DocumentFisa, *doc, true);
}

void ActiuneTiparireToateDispozitiile(QWidget* parinte, QAction* meniu)
{
    if (!Proces::BazaAccesibila())
        return;
    frmAnexa2 dlg(parinte);
    if (!alegeDispozitii(dlg))
        return;
    SelectieDispozitii sel;
    sel.tipDisp = dlg.TipDisp;
    sel.statut = dlg.StatutDisp;
    sel.luna = dlg.LunaDisp;
    sel.an = Proces::setari().AnSetat; // the active year: the window asks for none
    sel.nrMin = dlg.NrActMin;
    sel.nrMax = dlg.NrActMax;

    const auto doc = construiesteInBloc(parinte, meniu, [&](const auto& progres) {
        return DocumentDispozitiiSelectate(sel, Proces::setari(), BD::principala(), progres);
    });
    if (doc)
        scrieSiDeschide(DocumentDispozitie, *doc, false);
}

void ActiuneToateDispozitiile(QWidget* parinte, QAction* meniu)
{
    if (!Proces::BazaAccesibila())
        return;
    frmAnexa2 dlg(parinte);
    if (!alegeDispozitii(dlg))
        return;
    const auto doc = construiesteInBloc(parinte, meniu, [&](const auto& progres) {
        return DocumentDispozitiiCereri(dlg.ModTiparAnexa2, dlg.NrCerereMin, dlg.NrCerereMax, Proces::setari(),
                                        BD::principala(), progres);
    });
    if (doc)
        scrieSiDeschide(DocumentDispozitie, *doc, false);
}

void ActiuneTiparireDispozitiile(QWidget* parinte, const QList<qint64>& dispozitii)
{
    if (dispozitii.isEmpty() || !Proces::BazaAccesibila())
        return;
    const auto doc = construiesteInBloc(parinte, nullptr, [&](const auto& progres) {
        return DocumentDispozitii(dispozitii, Proces::setari(), BD::principala(), progres);
    });
    if (doc)
        scrieSiDeschide(DocumentDispozitie, *doc, false);
}
