#include "amounts/frmSchimbareBarem.h"

#include "amounts/RaportSchimbareBarem.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"
#include "gui/ActiuniLegate.h"
#include "gui/ButoaneDialog.h"
#include "gui/CampData.h"
#include "gui/CursorAsteptare.h"
#include "gui/FiltruEditare.h"
#include "gui/IntrareNumerica.h"
#include "reports/RandareGrid.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace {

enum Coloana { ColTip, ColCopii, ColVenit, ColSuma, ColDeLa, ColNou, NrColoane };

QTableWidgetItem* celula(const QString& text, Qt::Alignment aliniere = Qt::AlignLeft | Qt::AlignVCenter)
{
    auto* c = new QTableWidgetItem(text);
    c->setFlags(Qt::ItemIsEnabled);
    c->setTextAlignment(aliniere);
    return c;
}

} // namespace

frmSchimbareBarem::frmSchimbareBarem(QWidget* parent)
    : frmRaport(QStringLiteral("frmSchimbareBarem"), QStringLiteral("Schimbarea baremului"), false, parent)
{
    resize(1340, 690);
    // The report list and the sort lists of the reports do not apply: the change has one order.
    m_tipRaport->hide();
    for (const char* nume : {"cboOrd(0)", "cboOrd(1)", "lblAnexa3", "Label1", "cmdOK"})
        if (QWidget* w = findChild<QWidget*>(QLatin1String(nume)))
            w->hide();

    auto* cmdCalculeaza = CreeazaButon(panou(), "cmdCalculeaza", QStringLiteral("&Calculeaza"));
    cmdCalculeaza->setToolTip(QStringLiteral("Recalculeaza cuantumul cererilor in plata cu baremul nou, fara sa scrie "
                                             "nimic"));
    m_cmdAplica = CreeazaButon(panou(), "cmdAplica", QStringLiteral("&Aplica schimbarea"));
    m_cmdAplica->setToolTip(QStringLiteral("Scrie baremul nou si emite dispozitiile de modificare"));
    m_cmdTiparire = CreeazaButon(panou(), "cmdTiparireDispozitii", QStringLiteral("Tiparire &dispozitii"));
    auto* pdf = CreeazaButon(panou(), "cmdPdf", QStringLiteral("PDF"));
    pdf->setToolTip(QStringLiteral("Salveaza lista intr-un fisier PDF"));
    m_lblStare = new QLabel(panou());
    m_lblStare->setObjectName(QStringLiteral("lblStare"));
    auto* randSus = new QHBoxLayout;
    for (QPushButton* b : {cmdCalculeaza, m_cmdAplica, m_cmdTiparire, pdf})
        randSus->addWidget(b);
    randSus->addWidget(m_lblStare, 1);
    auto* susWidget = new QWidget(panou());
    susWidget->setLayout(randSus);
    randSus->setContentsMargins(0, 0, 0, 0);
    adaugaInPanou(susWidget, 0, 0);

    // The scale on the left, the report grid beside it.
    auto* vertical = qobject_cast<QVBoxLayout*>(layout());
    vertical->removeWidget(m_vedere);
    auto* orizontal = new QHBoxLayout;
    orizontal->addWidget(construiesteBaremul());
    orizontal->addWidget(m_vedere, 1);
    vertical->addLayout(orizontal, 1);
    InstaleazaFiltruEditare(this);

    LeagaActiune(cmdCalculeaza, [this] { calculeaza(); });
    LeagaActiune(m_cmdAplica, [this] { cmdAplica_Click(); });
    LeagaActiune(m_cmdTiparire, [this] { cmdTiparire_Click(); });
    LeagaActiune(pdf, [this] { cmdPdf_Click(); });
    for (QLineEdit* e : m_txtNou)
        connect(e, &QLineEdit::textEdited, this, &frmSchimbareBarem::invalideaza);
    connect(m_txtAn, &QLineEdit::textEdited, this, &frmSchimbareBarem::invalideaza);
    connect(m_cboLuna, &QComboBox::currentIndexChanged, this, &frmSchimbareBarem::invalideaza);

    const Setari& s = Proces::setari();
    m_cboLuna->setCurrentIndex(s.LunaSetata >= 1 && s.LunaSetata <= 12 ? s.LunaSetata - 1 : 0);
    m_txtAn->setText(QString::number(s.AnSetat));
    m_dtpDataDisp->seteazaData(Ceas::azi());
    m_txtMotiv->setText(MotivSchimbareBarem);
    m_luniInchise = QStringLiteral("nicio luna inchisa");
    RuleazaProtejat([this] {
        if (const std::optional<LunaAn> l = UltimaLunaInchisa(BD::principala()))
            m_luniInchise = QStringLiteral("ultima luna inchisa: %1 %2").arg(NumeLuna(l->luna)).arg(l->an);
        incarcaBaremul();
        for (int i = 0; i < NrRanduriBaremLei; ++i)
            m_txtNou[i]->setText(m_grdBarem->item(i, ColSuma)->text());
        m_txtNrDisp->setText(TextNumar(UrmatorulNrDispozitie(BD::principala(), Ceas::azi().year())));
    });
    invalideaza();
    Activeaza(m_cmdTiparire, false);
}

QWidget* frmSchimbareBarem::construiesteBaremul()
{
    auto* stanga = new QWidget(this);
    stanga->setObjectName(QStringLiteral("picBarem"));
    auto* l = new QVBoxLayout(stanga);
    l->setContentsMargins(0, 0, 0, 0);

    m_grdBarem = new QTableWidget(NrRanduriBaremLei, NrColoane, stanga);
    m_grdBarem->setObjectName(QStringLiteral("grdBarem"));
    m_grdBarem->setHorizontalHeaderLabels({QStringLiteral("Tip"), QStringLiteral("Copii"),
                                           QStringLiteral("Venit pe membru"), QStringLiteral("Suma actuala"),
                                           QStringLiteral("De la"), QStringLiteral("Suma noua")});
    m_grdBarem->verticalHeader()->hide();
    m_grdBarem->verticalHeader()->setDefaultSectionSize(23);
    m_grdBarem->setSelectionMode(QAbstractItemView::NoSelection);
    m_grdBarem->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grdBarem->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (int i = 0; i < NrRanduriBaremLei; ++i) {
        const CheieBarem k = CheieBaremLei(i);
        m_grdBarem->setItem(i, ColTip, celula(TextTipAlocatie(k.tip)));
        m_grdBarem->setItem(i, ColCopii, celula(TextCopiiBarem(k.nrPers)));
        m_grdBarem->setItem(i, ColVenit, celula(TextTreaptaVenit(k.suma)));
        auto* e = new QLineEdit(m_grdBarem);
        e->setObjectName(NumeControl("txtNou", i));
        e->setAlignment(Qt::AlignRight);
        e->setFrame(false);
        DoarCifreSiPunct(e, 12);
        m_grdBarem->setCellWidget(i, ColNou, e);
        m_txtNou << e;
    }
    // The columns as wide as their texts in the workstation's font (those filled later at
    // least 80), the table as large as its rows: no scrolling.
    m_grdBarem->resizeColumnsToContents();
    m_grdBarem->setColumnWidth(ColNou, 85);
    int latime = 2;
    for (int c = 0; c < NrColoane; ++c) {
        if (c == ColSuma || c == ColDeLa)
            m_grdBarem->setColumnWidth(c, std::max(m_grdBarem->columnWidth(c), 80));
        latime += m_grdBarem->columnWidth(c);
    }
    m_grdBarem->setFixedSize(latime, m_grdBarem->horizontalHeader()->sizeHint().height() + 23 * NrRanduriBaremLei + 2);
    l->addWidget(m_grdBarem);

    auto* f = new QFormLayout;
    m_cboLuna = new QComboBox(stanga);
    m_cboLuna->setObjectName(QStringLiteral("cboLuna"));
    for (int luna = 1; luna <= 12; ++luna)
        m_cboLuna->addItem(NumeLuna(luna), luna);
    m_txtAn = new QLineEdit(stanga);
    m_txtAn->setObjectName(QStringLiteral("txtAn"));
    m_txtAn->setMaximumWidth(60);
    DoarCifreSiPunct(m_txtAn, 4);
    auto* luna = new QHBoxLayout;
    luna->addWidget(m_cboLuna);
    luna->addWidget(m_txtAn);
    luna->addStretch();
    f->addRow(QStringLiteral("Se aplica din luna:"), luna);
    m_txtNrDisp = new QLineEdit(stanga);
    m_txtNrDisp->setObjectName(QStringLiteral("txtNrDisp"));
    m_txtNrDisp->setMaximumWidth(90);
    DoarCifreSiPunct(m_txtNrDisp, 8);
    f->addRow(QStringLiteral("Nr. primei dispozitii:"), m_txtNrDisp);
    m_dtpDataDisp = new CampData(stanga, false);
    m_dtpDataDisp->setObjectName(QStringLiteral("dtpDataDisp"));
    f->addRow(QStringLiteral("Data dispozitiilor:"), m_dtpDataDisp);
    m_txtMotiv = new QLineEdit(stanga);
    m_txtMotiv->setObjectName(QStringLiteral("txtMotiv"));
    m_txtMotiv->setMaxLength(50);
    f->addRow(QStringLiteral("Motivul modificarii:"), m_txtMotiv);
    l->addLayout(f);
    l->addStretch();
    return stanga;
}

void frmSchimbareBarem::incarcaBaremul()
{
    const BaremLei b = CitesteBaremLei(BD::principala());
    for (int i = 0; i < NrRanduriBaremLei; ++i) {
        m_grdBarem->setItem(i, ColSuma,
                            celula(b[i].barem ? b[i].barem->text() : QString(), Qt::AlignRight | Qt::AlignVCenter));
        m_grdBarem->setItem(i, ColDeLa, celula(TextData(b[i].dataInceput)));
    }
}

// A change of the amounts or of the month makes the preview shown no longer the one applied.
void frmSchimbareBarem::invalideaza()
{
    m_previzualizare.reset();
    Activeaza(m_cmdAplica, false);
    m_lblStare->setText(QStringLiteral("Calculati schimbarea inainte de a o aplica (%1).").arg(m_luniInchise));
}

void frmSchimbareBarem::construieste()
{
    calculeaza();
}

bool frmSchimbareBarem::calculeaza()
{
    if (!Proces::BazaAccesibila())
        return false;
    QStringList texte;
    for (const QLineEdit* e : m_txtNou)
        texte << e->text();
    const SumeCitite sume = CitesteSumeNoi(texte);
    if (!sume.ok()) {
        Mesaj(sume.mesaj);
        if (sume.gresit >= 0)
            m_txtNou[sume.gresit]->setFocus();
        return false;
    }
    const double an = ValoareNumerica(m_txtAn->text());
    if (an < 1900 || an > 2100) {
        Mesaj(QStringLiteral("An incorect!"));
        m_txtAn->setFocus();
        return false;
    }
    const LunaAn efect{m_cboLuna->currentData().toInt(), int(an)};
    invalideaza();
    try {
        const CursorAsteptare asteapta;
        m_previzualizare = PrevizualizeazaBarem(BD::principala(), sume.sume, efect);
        ConstruiesteSchimbareBarem(BD::principala(), *m_previzualizare, grid());
    } catch (const Eroare& e) {
        m_previzualizare.reset();
        Mesaj(TextEroareBarem(e), Mesaje::Icon::Exclamare);
        return false;
    }
    m_vedere->actualizeaza();
    Activeaza(m_cmdAplica, true);
    const PrevizualizareBarem& p = *m_previzualizare;
    m_lblStare->setText(QStringLiteral("Se modifica %1 familii; %2 ar ajunge la 0 si %3 nu pot fi calculate (raman "
                                       "cum sunt). Total: %4 -> %5 lei.")
                            .arg(p.modificate.size())
                            .arg(p.laZero.size())
                            .arg(p.necalculate.size())
                            .arg(p.total.inainte.textSuma(), p.total.dupa.textSuma()));
    return true;
}

void frmSchimbareBarem::cmdAplica_Click()
{
    if (!Proces::BazaAccesibila())
        return;
    if (!m_previzualizare) {
        Mesaj(QStringLiteral("Calculati mai intai schimbarea (butonul Calculeaza)!"));
        return;
    }
    ParametriAplicare param;
    param.primulNr = ValoareNumerica(m_txtNrDisp->text());
    param.dataDisp = m_dtpDataDisp->data();
    param.motiv = m_txtMotiv->text();
    if (!(param.primulNr > 0)) {
        Mesaj(MesajBarem::NrLipsa);
        m_txtNrDisp->setFocus();
        return;
    }
    const PrevizualizareBarem& p = *m_previzualizare;
    const QString deLa = TextData(QDate(p.efect.an, p.efect.luna, 1));
    const int n = static_cast<int>(p.modificate.size());
    const QString ce = n > 0 ? QStringLiteral("Se emit %1 dispozitii de modificare, de la nr %2 la nr %3, si se "
                                              "schimba cuantumul acestor cereri.")
                                   .arg(n)
                                   .arg(TextNumar(param.primulNr), TextNumar(param.primulNr + n - 1))
                             : QStringLiteral("Nicio familie nu isi schimba cuantumul.");
    if (!Intrebare(QStringLiteral("Aplicati baremul nou de la %1? %2").arg(deLa, ce)))
        return;
    RezultatAplicare r;
    try {
        const CursorAsteptare asteapta;
        r = AplicaBarem(BD::principala(), p, param);
    } catch (const Eroare& e) {
        Mesaj(TextEroareBarem(e), Mesaje::Icon::Exclamare);
        // A preview that no longer holds is made again, for the clerk to read and confirm.
        if (e.numar == CodPrevizualizareVeche && e.descriere == MesajBarem::PrevizualizareVeche)
            calculeaza();
        return;
    }
    m_dispozitii = r.dispozitii;
    RuleazaProtejat([this] {
        incarcaBaremul();
        m_txtNrDisp->setText(TextNumar(UrmatorulNrDispozitie(BD::principala(), Ceas::azi().year())));
    });
    m_lblStare->setText(
        QStringLiteral("Baremul nou se aplica de la %1; dispozitii emise: %2.").arg(deLa).arg(m_dispozitii.size()));
    Mesaj(QStringLiteral("Baremul nou a fost aplicat de la %1. %2")
              .arg(deLa, m_dispozitii.isEmpty()
                             ? QStringLiteral("Nu s-a emis nicio dispozitie.")
                             : QStringLiteral("Au fost emise %1 dispozitii de modificare, de la nr %2 la nr %3.")
                                   .arg(m_dispozitii.size())
                                   .arg(TextNumar(r.primulNr), TextNumar(r.ultimulNr))));
    const bool deTiparit = TiparireDispozitii && !m_dispozitii.isEmpty();
    Activeaza(m_cmdTiparire, deTiparit);
    if (deTiparit &&
        Intrebare(QStringLiteral("Tipariti acum cele %1 dispozitii de modificare?").arg(m_dispozitii.size()),
                  TitluImplicit, true))
        TiparireDispozitii(m_dispozitii);
}

void frmSchimbareBarem::cmdTiparire_Click()
{
    if (TiparireDispozitii && !m_dispozitii.isEmpty())
        TiparireDispozitii(m_dispozitii);
}

void frmSchimbareBarem::cmdPdf_Click()
{
    const QString fisier =
        QFileDialog::getSaveFileName(this, QStringLiteral("Salvare PDF"),
                                     QDir(Proces::folderProgram()).filePath(QStringLiteral("SchimbareBarem.pdf")),
                                     QStringLiteral("Fisiere PDF (*.pdf)"));
    if (fisier.isEmpty())
        return;
    grid().SetPageSetup(paginaSetata());
    bool scris;
    {
        const CursorAsteptare asteapta;
        scris = ScriePdf(grid(), fisier);
    }
    if (!scris)
        Mesaj(QStringLiteral("Fisierul %1 nu poate fi scris.").arg(QDir::toNativeSeparators(fisier)),
              Mesaje::Icon::Exclamare);
}

void frmSchimbareBarem::exporta()
{
    exportaGrid(QDir(Proces::folderProgram()).filePath(QStringLiteral("SchimbareBarem.xlsx")));
}

ReportGrid::PaginaSetata frmSchimbareBarem::paginaSetata() const
{
    return ReportGrid::PaginaSetata{}; // A4 landscape
}
