#include "reports/frmInchidereLuna.h"

#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"
#include "gui/CursorAsteptare.h"
#include "history/JurnalLuni.h"
#include "reports/ExportGrid.h"
#include "reports/InchidereLuna.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

namespace {

enum Raport { RaportStat = 0, RaportDiferente = 1, RaportJurnal = 2 };

} // namespace

const QStringList& ListaInchidereLuna()
{
    static const QStringList l{QStringLiteral("Stat de plata"),
                               QStringLiteral("Diferente fata de luna inchisa anterior"),
                               QStringLiteral("Jurnalul inchiderilor si redeschiderilor")};
    return l;
}

frmInchidereLuna::frmInchidereLuna(QWidget* parent)
    : frmRaport(QStringLiteral("frmInchidereLuna"), QStringLiteral("Inchiderea lunii"), false, parent)
{
    UmpleLista(m_tipRaport, QStringLiteral("cboTipRaport"), ListaInchidereLuna());
    m_tipRaport->setCurrentIndex(RaportStat);
    adaugaInPanou(m_tipRaport, 0, 0, QStringLiteral("Raport"));
    m_txtLuna = new QLineEdit(QString::number(Proces::setari().LunaSetata), panou());
    m_txtLuna->setObjectName(QStringLiteral("txtLuna"));
    m_txtAn = new QLineEdit(QString::number(Proces::setari().AnSetat), panou());
    m_txtAn->setObjectName(QStringLiteral("txtAn"));
    adaugaInPanou(m_txtLuna, 0, 1, QStringLiteral("Luna"));
    adaugaInPanou(m_txtAn, 0, 2, QStringLiteral("Anul"));
    m_cmdInchide = new QPushButton(QStringLiteral("Inchide luna"), panou());
    m_cmdInchide->setObjectName(QStringLiteral("cmdInchide"));
    m_cmdRedeschide = new QPushButton(QStringLiteral("Redeschide luna"), panou());
    m_cmdRedeschide->setObjectName(QStringLiteral("cmdRedeschide"));
    adaugaInPanou(m_cmdInchide, 0, 3);
    adaugaInPanou(m_cmdRedeschide, 0, 4);
    m_lblStare = new QLabel(panou());
    m_lblStare->setObjectName(QStringLiteral("lblStare"));
    m_lblStare->setWordWrap(true);
    adaugaInPanou(m_lblStare, 1, 2, QString());
    // The payroll and the differences keep their own order: the sort lists do not apply.
    for (const char* nume : {"cboOrd(0)", "cboOrd(1)", "lblAnexa3", "Label1"})
        if (QWidget* w = findChild<QWidget*>(QLatin1String(nume)))
            w->hide();
    connect(m_cmdInchide, &QPushButton::clicked, this, &frmInchidereLuna::cmdInchide_Click);
    connect(m_cmdRedeschide, &QPushButton::clicked, this, &frmInchidereLuna::cmdRedeschide_Click);
    connect(m_txtLuna, &QLineEdit::editingFinished, this, &frmInchidereLuna::arataStarea);
    connect(m_txtAn, &QLineEdit::editingFinished, this, &frmInchidereLuna::arataStarea);
    arataStarea();
}

bool frmInchidereLuna::citesteLuna(LunaAn& l)
{
    const LunaCitita c = CitesteLunaAn(m_txtLuna->text(), m_txtAn->text());
    if (!c.luna) {
        Mesaj(c.mesaj);
        (c.camp == LunaCitita::Camp::An ? m_txtAn : m_txtLuna)->setFocus();
        return false;
    }
    l = *c.luna;
    return true;
}

void frmInchidereLuna::arataStarea()
{
    const std::optional<LunaAn> l = CitesteLunaAn(m_txtLuna->text(), m_txtAn->text()).luna;
    bool inchisa = false;
    QString text = QStringLiteral("Luna este deschisa.");
    try {
        inchisa = l && LunaInchisa(BD::principala(), *l);
        if (inchisa) {
            text = QStringLiteral("Luna este inchisa: statul de plata se tipareste din randurile pastrate.");
            const std::vector<RandJurnal> j = CitesteJurnal(BD::principala(), l);
            if (!j.empty())
                text += QStringLiteral(" Inchisa la %1 %2, %3 / %4.")
                            .arg(TextData(j.back().data), j.back().ora, j.back().statie, j.back().utilizator);
        }
    } catch (const Eroare& e) {
        m_lblStare->setText(e.descriere);
        return;
    }
    m_lblStare->setText(text);
    m_cmdInchide->setEnabled(!inchisa);
    m_cmdRedeschide->setEnabled(inchisa);
}

void frmInchidereLuna::construieste()
{
    if (!verificaRaport())
        return;
    if (m_tipRaport->currentIndex() == RaportJurnal) {
        ConstruiesteJurnal(BD::principala(), std::nullopt, grid());
        return;
    }
    LunaAn l;
    if (!citesteLuna(l))
        return;
    const CursorAsteptare asteapta;
    if (m_tipRaport->currentIndex() == RaportStat)
        ConstruiesteStatPlata(BD::principala(), l, grid());
    else
        ConstruiesteDiferenta(BD::principala(), Diferenta(BD::principala(), l), grid());
    arataStarea();
}

void frmInchidereLuna::cmdInchide_Click()
{
    LunaAn l;
    if (!Proces::BazaAccesibila() || !citesteLuna(l))
        return;
    if (!Intrebare(QStringLiteral("Inchideti luna %1? Statul de plata, totalurile si diferentele ei se pastreaza, iar "
                                  "dispozitiile lunii nu mai pot fi modificate.")
                       .arg(TextLuna(l))))
        return;
    try {
        const CursorAsteptare asteapta;
        const DiferentaLuna d = InchideLuna(BD::principala(), l);
        ConstruiesteDiferenta(BD::principala(), d, grid());
        m_tipRaport->setCurrentIndex(RaportDiferente);
    } catch (const Eroare& e) {
        Mesaj(e.descriere, Mesaje::Icon::Exclamare);
    }
    m_vedere->actualizeaza();
    arataStarea();
}

void frmInchidereLuna::cmdRedeschide_Click()
{
    LunaAn l;
    if (!Proces::BazaAccesibila() || !citesteLuna(l))
        return;
    const std::optional<QString> motiv =
        Mesaje::curent().citeste(QStringLiteral("Motivul redeschiderii lunii %1:").arg(TextLuna(l)),
                                 QStringLiteral("Redeschidere luna"), QString());
    if (!motiv)
        return;
    try {
        RedeschideLuna(BD::principala(), l, *motiv);
        Mesaj(QStringLiteral("Luna %1 a fost redeschisa.").arg(TextLuna(l)));
    } catch (const Eroare& e) {
        Mesaj(e.descriere, Mesaje::Icon::Exclamare);
    }
    arataStarea();
}

QString frmInchidereLuna::numeFisier(const QString& extensie) const
{
    static const char* const nume[] = {"StatPlata", "Diferente", "JurnalLuni"};
    QString n = QLatin1String(nume[std::clamp(m_tipRaport->currentIndex(), 0, 2)]);
    if (m_tipRaport->currentIndex() != RaportJurnal)
        if (const std::optional<LunaAn> l = CitesteLunaAn(m_txtLuna->text(), m_txtAn->text()).luna)
            n += QStringLiteral("-%1-%2").arg(l->an).arg(l->luna, 2, 10, QLatin1Char('0'));
    return n + QLatin1Char('.') + extensie;
}

QString frmInchidereLuna::numeFisierPdf() const
{
    return numeFisier(QStringLiteral("pdf"));
}

void frmInchidereLuna::exporta()
{
    exportaGrid(QDir(Proces::folderProgram()).filePath(numeFisier(QStringLiteral("xlsx"))));
}

ReportGrid::PaginaSetata frmInchidereLuna::paginaSetata() const
{
    return ReportGrid::PaginaSetata{}; // A4 landscape
}
