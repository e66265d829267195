#include "reports/frmBorderou.h"

#include "common/Ini.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "database/BD.h"
#include "reports/Borderou.h"
#include "reports/ExportGrid.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>

QString CaleExportBorderou()
{
    const QString cale =
        FisierIni(FisierSetari()).citeste(QStringLiteral("Borderou"), QStringLiteral("CaleExportBorderou"));
    return cale.isEmpty() ? QDir(Proces::folderProgram()).filePath(QStringLiteral("ExpSanatate.xlsx")) : cale;
}

frmBorderou::frmBorderou(QWidget* parent)
    : frmRaport(QStringLiteral("frmBorderou"), QStringLiteral("Borderou"), false, parent)
{
    UmpleLista(m_tipRaport, QStringLiteral("cboTipRaport"), ListaStariBorderou());
    m_tipAloc = new QComboBox(panou());
    UmpleLista(m_tipAloc, QStringLiteral("cboTipAloc"), ListaTipAlocatie());
    adaugaInPanou(m_tipRaport, 0, 0, QStringLiteral("Tip raport"));
    adaugaInPanou(m_tipAloc, 0, 1, QStringLiteral("Tip alocatie"));
    m_codFiscal = new QLineEdit(panou());
    m_codFiscal->setObjectName(QStringLiteral("txtCodFiscal"));
    m_asSocial = new QLineEdit(panou());
    m_asSocial->setObjectName(QStringLiteral("txtNumeAsSoc"));
    for (QLineEdit* t : {m_codFiscal, m_asSocial})
        t->setReadOnly(true);
    adaugaInPanou(m_codFiscal, 0, 2, QStringLiteral("Cod Fiscal"));
    adaugaInPanou(m_asSocial, 0, 3, QStringLiteral("Nume As Social"));
    setTabOrder(m_tipRaport, m_tipAloc);
    setTabOrder(m_tipAloc, m_ord[0]);
    setTabOrder(m_ord[0], m_ord[1]);
}

void frmBorderou::laDeschidere()
{
    const auto primarie = CitesteRandPrimarie(BD::principala());
    if (primarie) {
        m_codFiscal->setText(primarie->value(QStringLiteral("CodFiscal")));
        m_asSocial->setText(primarie->value(QStringLiteral("AsSocial")));
    }
    frmRaport::laDeschidere();
}

void frmBorderou::construieste()
{
    if (!verificaRaport())
        return;
    if (m_tipAloc->currentIndex() < 0) {
        Mesaj(QStringLiteral("Selectati din lista un tip de alocatie!"));
        m_tipAloc->setFocus();
        return;
    }
    SelectieRaport sel;
    sel.index = m_tipRaport->currentIndex();
    sel.tip = m_tipAloc->currentIndex();
    sel.ord1 = m_ord[0]->currentIndex();
    sel.ord2 = m_ord[1]->currentIndex();
    sel.luna = Proces::setari().LunaSetata;
    sel.an = Proces::setari().AnSetat;
    ConstruiesteBorderou(BD::principala(), sel, grid());
}

void frmBorderou::exporta()
{
    // Whatever the grid holds, also before a build; an existing file is replaced.
    exportaGrid(CaleExportBorderou());
}

ReportGrid::PaginaSetata frmBorderou::paginaSetata() const
{
    return ReportGrid::PaginaSetata{}; // A4 landscape
}
