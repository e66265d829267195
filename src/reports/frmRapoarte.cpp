#include "reports/frmRapoarte.h"

#include "common/Mesaje.h"
#include "common/Proces.h"
#include "database/BD.h"
#include "documents/DeschideDocument.h"
#include "reports/ExportGrid.h"
#include "reports/Rapoarte.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QPrinterInfo>

frmRapoarte::frmRapoarte(QWidget* parent)
    : frmRaport(QStringLiteral("frmRapoarte"), QStringLiteral("Rapoarte"), true, parent)
{
    UmpleLista(m_tipRaport, QStringLiteral("cboTipRaport"), ListaRapoarte());
    m_tipCerere = new QComboBox(panou());
    UmpleLista(m_tipCerere, QStringLiteral("cboTipCerere"), ListaTipCerere());
    m_nrLuni = new QLineEdit(QStringLiteral("6"), panou());
    m_nrLuni->setObjectName(QStringLiteral("txtNrLuni"));
    m_printer = new QComboBox(panou());
    m_printer->setObjectName(QStringLiteral("cboPrinter"));
    m_printer->addItems(QPrinterInfo::availablePrinterNames());
    m_printer->setCurrentIndex(m_printer->findText(QPrinterInfo::defaultPrinterName()));
    m_portret = new QCheckBox(QStringLiteral("Portret"), panou());
    m_portret->setObjectName(QStringLiteral("chkPortret"));
    m_format = new QComboBox(panou());
    m_format->setObjectName(QStringLiteral("cboFormatPagina"));
    m_format->addItems({QStringLiteral("A3"), QStringLiteral("A4"), QStringLiteral("A5")});
    m_format->setCurrentIndex(1);

    adaugaInPanou(m_tipRaport, 0, 0, QStringLiteral("Tip raport"));
    adaugaInPanou(m_tipCerere, 0, 1, QStringLiteral("Tip cerere"), &m_lblTipCerere);
    m_lblTipCerere->setObjectName(QStringLiteral("lblTipCerere"));
    adaugaInPanou(m_nrLuni, 0, 2, QStringLiteral("Nr luni"), &m_lblNrLuni);
    m_lblNrLuni->setObjectName(QStringLiteral("lblNrLuni"));
    adaugaInPanou(m_printer, 1, 2, QStringLiteral("Imprimanta"));
    QLabel* format = nullptr;
    adaugaInPanou(m_format, 1, 3, QStringLiteral("Format pagina"), &format);
    format->setObjectName(QStringLiteral("Label9"));
    adaugaInPanou(m_portret, 0, 3);
    m_nrLuni->hide();
    m_lblNrLuni->hide();
    setTabOrder(m_tipRaport, m_tipCerere);
    setTabOrder(m_tipCerere, m_ord[0]);
    setTabOrder(m_ord[0], m_ord[1]);
    setTabOrder(m_ord[1], m_nrLuni);
    setTabOrder(m_nrLuni, m_printer);
    setTabOrder(m_printer, m_portret);
    setTabOrder(m_portret, m_format);
    connect(m_tipRaport, &QComboBox::currentIndexChanged, this, [this] { cboTipRaport_Click(); });
}

void frmRapoarte::cboTipRaport_Click()
{
    // The kind of application filters only the status lists; the months list shows its count.
    const int i = m_tipRaport->currentIndex();
    m_nrLuni->hide();
    m_lblNrLuni->hide();
    // The list's label goes and comes with it.
    if (i >= 0 && i <= IndexRaport::Respinse) {
        m_tipCerere->show();
    } else if (i == IndexRaport::Luni) {
        m_nrLuni->show();
        m_lblNrLuni->show();
    } else {
        m_tipCerere->hide();
    }
    m_lblTipCerere->setVisible(!m_tipCerere->isHidden());
}

SelectieRaport frmRapoarte::selectie() const
{
    SelectieRaport sel;
    sel.index = m_tipRaport->currentIndex();
    sel.tip = m_tipCerere->currentIndex();
    sel.ord1 = m_ord[0]->currentIndex();
    sel.ord2 = m_ord[1]->currentIndex();
    sel.luna = Proces::setari().LunaSetata;
    sel.an = Proces::setari().AnSetat;
    sel.nrLuni = m_nrLuni->text();
    return sel;
}

void frmRapoarte::construieste()
{
    if (!verificaRaport())
        return;
    ConstruiesteRaport(BD::principala(), selectie(), grid());
}

void frmRapoarte::exporta()
{
    if (!verificaRaport())
        return;
    const SelectieRaport sel = selectie();
    if (!AreExport(sel.index))
        return;
    // The export runs its own query into a new workbook; the grid on the screen stays.
    ReportGrid foaie;
    ConstruiesteExport(BD::principala(), sel, foaie);
    const QString cale =
        CaleExportNoua(Proces::folderProgram(), sel.index, Proces::setari(), QDateTime::currentDateTime());
    QString eroare;
    if (!ScrieXlsx(foaie, cale, &eroare)) {
        Mesaj(eroare, Mesaje::Icon::Exclamare);
        return;
    }
    if (!LansatorDocumente::curent().deschideImplicit(cale))
        Mesaj(QStringLiteral("Fisierul %1 a fost scris, dar nu a putut fi deschis: nu exista o aplicatie pentru "
                             "foi de calcul.")
                  .arg(QDir::toNativeSeparators(cale)),
              Mesaje::Icon::Exclamare);
}

ReportGrid::PaginaSetata frmRapoarte::paginaSetata() const
{
    ReportGrid::PaginaSetata p = grid().PageSetup();
    const QString f = m_format->currentText();
    if (f == QLatin1String("A3"))
        p.hartie = 8;
    else if (f == QLatin1String("A4"))
        p.hartie = 9;
    else if (f == QLatin1String("A5"))
        p.hartie = 11;
    p.orientare = m_portret->isChecked() ? 1 : 2;
    p.stanga = 1.4;
    p.dreapta = 0.5;
    p.sus = 0.5;
    p.jos = 1.0;
    return p;
}

void frmRapoarte::alegeImprimanta(QPrinter& p) const
{
    // The first printer whose name is the list's text; with none the current one stays.
    for (const QPrinterInfo& i : QPrinterInfo::availablePrinters())
        if (i.printerName() == m_printer->currentText()) {
            p.setPrinterName(i.printerName());
            return;
        }
}
