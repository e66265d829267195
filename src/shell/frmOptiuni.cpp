#include "shell/frmOptiuni.h"

#include "gui/ButoaneDialog.h"
#include "gui/FiltruEditare.h"
#include "gui/IntrareNumerica.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QCheckBox* bifa(QWidget* p, const char* nume, const char* text, bool valoare)
{
    auto* c = new QCheckBox(QString::fromLatin1(text), p);
    c->setObjectName(QString::fromLatin1(nume));
    c->setChecked(valoare);
    return c;
}

QLineEdit* text(QWidget* p, const char* nume, const QString& valoare)
{
    auto* e = new QLineEdit(valoare, p);
    e->setObjectName(QString::fromLatin1(nume));
    return e;
}

} // namespace

frmOptiuni::frmOptiuni(QWidget* parent) : QDialog(parent), m_v(CitesteOptiuni())
{
    setObjectName(QStringLiteral("frmOptiuni"));
    setWindowTitle(QStringLiteral("Optiuni"));

    // Page 0: the documents, reports and network.
    auto* pic0 = new QWidget(this);
    pic0->setObjectName(QStringLiteral("pic(0)"));
    auto* f0 = new QFormLayout(pic0);
    m_chkMotiv = bifa(pic0, "chkMotiv",
                      "Motivul in dispozitie e preluat din tabela  Cereri (altfel din tabela Dispozitii)", m_v.Motiv);
    f0->addRow(m_chkMotiv);
    m_cboAppWord = new QComboBox(pic0);
    m_cboAppWord->setObjectName(QStringLiteral("cboAppWord"));
    for (const char* e : IntrariAppWord)
        m_cboAppWord->addItem(QString::fromLatin1(e));
    m_cboAppWord->setToolTip(QStringLiteral("Microsoft WORD: aplicatia implicita a sistemului pentru fisiere rtf; "
                                            "Open Office WRITER: LibreOffice Writer; Word Pad: varianta nefinalizata"));
    m_cboAppWord->setCurrentIndex(m_v.AppWord - 1);
    f0->addRow(QStringLiteral("Aplicatia folosita pentru a deschide Dispozitiile,etc"), m_cboAppWord);
    m_txtHeightRowRaport = text(pic0, "txtHeightRowRaport", m_v.HeightRowRaport);
    m_txtHeightRowBorderou = text(pic0, "txtHeightRowBorderou", m_v.HeightRowBorderou);
    DoarCifreSiPunct(m_txtHeightRowRaport, 3);
    DoarCifreSiPunct(m_txtHeightRowBorderou, 3);
    f0->addRow(QStringLiteral("Rapoarte - Inaltimea implicita a randului"), m_txtHeightRowRaport);
    f0->addRow(QStringLiteral("Borderouri - Inaltimea implicita a randului"), m_txtHeightRowBorderou);

    auto* anexa = new QGroupBox(QStringLiteral("Situatiile centralizatoare (Anexa 3) si Statele de plata"), pic0);
    auto* fa = new QFormLayout(anexa);
    m_cboNrCerereAnexa3 = new QComboBox(anexa);
    m_cboNrCerereAnexa3->setObjectName(QStringLiteral("cboNrCerereAnexa3"));
    for (const char* e : IntrariNrCerereAnexa3)
        m_cboNrCerereAnexa3->addItem(QString::fromLatin1(e));
    m_cboNrCerereAnexa3->setCurrentIndex(m_cboNrCerereAnexa3->findText(m_v.NrCerereAnexa3));
    fa->addRow(QStringLiteral("Nr Crt. dinCentralizator (Anexa 3) si Stat de Plata sa coincida cu:"),
               m_cboNrCerereAnexa3);
    m_chkSerieStatPlata = bifa(anexa, "chkSerieStatPlata", "Se afiseaza in Statul de Plata coloana cu Serie si Nr Act",
                               m_v.AfisSerieStatPlata);
    fa->addRow(m_chkSerieStatPlata);
    f0->addRow(anexa);

    auto* alte = new QGroupBox(QStringLiteral("Alte setari"), pic0);
    auto* fs = new QFormLayout(alte);
    m_chkReteaSetat = bifa(alte, "chkReteaSetat", "Functioneaza in retea", m_v.ReteaSetat);
    fs->addRow(m_chkReteaSetat);
    m_txtStrSat = text(alte, "txtStrSat", m_v.StrSat);
    fs->addRow(QStringLiteral("Denumirea strazii sau a satului:"), m_txtStrSat);
    m_chkAnexa2ExportWord = bifa(alte, "chkAnexa2ExportWord", "Dispozitia nu se exporta in Word", m_v.Anexa2ExportWord);
    fs->addRow(m_chkAnexa2ExportWord);
    // Shown as the office knows it; the choice is not stored.
    m_cboNrCerere = new QComboBox(alte);
    m_cboNrCerere->setObjectName(QStringLiteral("cboNrCerere"));
    m_cboNrCerere->addItems({QStringLiteral("Nu"), QStringLiteral("Urmatorul din perioada activa"),
                             QStringLiteral("Urmatorul din cele nealocate")});
    fs->addRow(QStringLiteral("Nr cerere se aloca"), m_cboNrCerere);
    m_chkAfisCereri = bifa(alte, "chkAfisCereri", "Se afiseaza Cererile la pornirea programului", m_v.AfisCereri);
    fs->addRow(m_chkAfisCereri);
    f0->addRow(alte);

    // Page 1: the exported files, the font of the grids, the colour of the income window.
    auto* pic1 = new QWidget(this);
    pic1->setObjectName(QStringLiteral("pic(1)"));
    auto* f1 = new QVBoxLayout(pic1);
    auto* fisiere = new QGroupBox(QStringLiteral("Denumire fisiere exportate in Excel"), pic1);
    auto* ff = new QFormLayout(fisiere);
    m_txtAnexa3 = text(fisiere, "txtAnexa3", m_v.Anexa3);
    m_txtAnexa4 = text(fisiere, "txtAnexa4", m_v.Anexa4);
    m_txtStatPlata = text(fisiere, "txtStatPlata", m_v.StatPlata);
    ff->addRow(QStringLiteral("Denumire Anexa 3 (Situatie centralizatoare):"), m_txtAnexa3);
    ff->addRow(QStringLiteral("Denumire Anexa 4 (Raport statistic):"), m_txtAnexa4);
    ff->addRow(QStringLiteral("Denumire Stat de plata:"), m_txtStatPlata);
    f1->addWidget(fisiere);
    auto* cmdFont = CreeazaButon(pic1, "cmdFont", QStringLiteral("Schimba font..."));
    m_lblFont1 = new QLabel(pic1);
    m_lblFont1->setObjectName(QStringLiteral("lblFont1"));
    m_lblFont = new QLabel(pic1);
    m_lblFont->setObjectName(QStringLiteral("lblFont"));
    auto* randFont = new QHBoxLayout;
    randFont->addWidget(cmdFont);
    randFont->addWidget(m_lblFont1, 1);
    f1->addLayout(randFont);
    f1->addWidget(m_lblFont);
    auto* cmdCuloare = CreeazaButon(pic1, "cmdCuloare", QStringLiteral("Culoare in fereastra de venituri"));
    auto* cmdDelColor = CreeazaButon(pic1, "cmdDelColor", QStringLiteral("Fara culoare"));
    m_lblFundal = new QLabel(pic1);
    m_lblFundal->setObjectName(QStringLiteral("lblFundal"));
    m_lblFundal->setMinimumSize(80, 20);
    m_lblFundal->setAutoFillBackground(true);
    auto* randCuloare = new QHBoxLayout;
    randCuloare->addWidget(cmdCuloare);
    randCuloare->addWidget(m_lblFundal);
    randCuloare->addWidget(cmdDelColor);
    randCuloare->addStretch(1);
    f1->addLayout(randCuloare);
    f1->addStretch(1);
    m_pic << pic0 << pic1;

    auto* comutatoare = new QHBoxLayout;
    auto* grup = new QButtonGroup(this);
    const char* pagini[] = {"Generale", "Fisiere si fonturi"};
    for (int i = 0; i < 2; ++i) {
        auto* b = CreeazaButon(this, "", QString::fromLatin1(pagini[i]));
        b->setObjectName(QStringLiteral("opt(%1)").arg(i));
        b->setCheckable(true);
        grup->addButton(b, i);
        comutatoare->addWidget(b);
    }
    comutatoare->addStretch(1);
    const ButoaneOkRenunta b = CreeazaButoaneOkRenunta(this);
    auto* l = new QVBoxLayout(this);
    l->addLayout(comutatoare);
    l->addWidget(pic0, 1);
    l->addWidget(pic1, 1);
    l->addLayout(b.rand);
    InstaleazaFiltruEditare(this);

    connect(grup, &QButtonGroup::idClicked, this, &frmOptiuni::AlegePagina);
    connect(cmdFont, &QPushButton::clicked, this, &frmOptiuni::cmdFont_Click);
    connect(cmdCuloare, &QPushButton::clicked, this, &frmOptiuni::cmdCuloare_Click);
    connect(cmdDelColor, &QPushButton::clicked, this, [this] { SeteazaCuloare(QColor()); });
    connect(b.ok, &QPushButton::clicked, this, &frmOptiuni::cmdOK_Click);
    connect(b.renunta, &QPushButton::clicked, this, &QDialog::reject);
    arataFont();
    arataCuloare();
    AlegePagina(0);
}

void frmOptiuni::AlegePagina(int pagina)
{
    // The page shown goes first, then the new one comes: two pages at once would stretch the
    // window past the screen, and it would not shrink back.
    for (int i = 0; i < m_pic.size(); ++i)
        if (i != pagina)
            m_pic[i]->hide();
    if (pagina >= 0 && pagina < m_pic.size())
        m_pic[pagina]->show();
    if (auto* b = findChild<QPushButton*>(QStringLiteral("opt(%1)").arg(pagina)))
        b->setChecked(true);
}

void frmOptiuni::arataFont()
{
    m_lblFont1->setText(DescriereFont(m_v));
    QFont f(m_v.FontName0);
    if (m_v.FontSize0 > 0)
        f.setPointSize(m_v.FontSize0);
    f.setBold(m_v.FontB0);
    f.setItalic(m_v.FontI0);
    f.setUnderline(m_v.FontU0);
    m_lblFont->setFont(f);
    m_lblFont->setText(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ\nabcdefghijklmnopqrstuvwxyz"));
}

void frmOptiuni::arataCuloare()
{
    QPalette p = m_lblFundal->palette();
    const QColor c = CuloareDinSetare(m_v.CuloareVenit);
    p.setColor(QPalette::Window, c.isValid() ? c : palette().color(QPalette::Window));
    m_lblFundal->setPalette(p);
}

void frmOptiuni::SeteazaFont(const QFont& f)
{
    m_v.FontName0 = f.family();
    m_v.FontSize0 = f.pointSize();
    m_v.FontB0 = f.bold();
    m_v.FontI0 = f.italic();
    m_v.FontU0 = f.underline();
    arataFont();
}

void frmOptiuni::SeteazaCuloare(const QColor& c)
{
    // The colour buttons change the value in memory at once, whatever the window's end.
    m_v.CuloareVenit = TextCuloareSetare(c);
    SeteazaCuloareVenit(m_v.CuloareVenit);
    arataCuloare();
}

void frmOptiuni::cmdFont_Click()
{
    bool ok = false;
    const QFont f = QFontDialog::getFont(&ok, m_lblFont->font(), this);
    if (ok)
        SeteazaFont(f);
}

void frmOptiuni::cmdCuloare_Click()
{
    const QColor c = QColorDialog::getColor(CuloareDinSetare(m_v.CuloareVenit), this);
    if (c.isValid())
        SeteazaCuloare(c);
}

void frmOptiuni::cmdOK_Click()
{
    m_v.Motiv = m_chkMotiv->isChecked();
    m_v.AppWord = m_cboAppWord->currentIndex() + 1;
    m_v.HeightRowRaport = m_txtHeightRowRaport->text();
    m_v.HeightRowBorderou = m_txtHeightRowBorderou->text();
    m_v.ReteaSetat = m_chkReteaSetat->isChecked();
    m_v.StrSat = m_txtStrSat->text();
    m_v.NrCerereAnexa3 = m_cboNrCerereAnexa3->currentIndex() >= 0 ? m_cboNrCerereAnexa3->currentText() : QString();
    m_v.Anexa2ExportWord = m_chkAnexa2ExportWord->isChecked();
    m_v.AfisSerieStatPlata = m_chkSerieStatPlata->isChecked();
    m_v.Anexa3 = m_txtAnexa3->text();
    m_v.Anexa4 = m_txtAnexa4->text();
    m_v.StatPlata = m_txtStatPlata->text();
    m_v.AfisCereri = m_chkAfisCereri->isChecked();
    if (ScrieOptiuni(m_v))
        accept();
}
