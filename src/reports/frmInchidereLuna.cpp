#include "reports/frmInchidereLuna.h"

#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"
#include "gui/CursorAsteptare.h"
#include "reports/ExportGrid.h"
#include "reports/InchidereLuna.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

const QStringList& ListaInchidereLuna()
{
    static const QStringList l{QStringLiteral("Stat de plata"),
                               QStringLiteral("Diferente fata de luna inchisa anterior")};
    return l;
}

frmInchidereLuna::frmInchidereLuna(QWidget* parent)
    : frmRaport(QStringLiteral("frmInchidereLuna"), QStringLiteral("Inchiderea lunii"), false, parent)
{
    UmpleLista(m_tipRaport, QStringLiteral("cboTipRaport"), ListaInchidereLuna());
    m_tipRaport->setCurrentIndex(0);
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
    adaugaInPanou(m_lblStare, 1, 2);
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
    const double luna = ValoareNumerica(m_txtLuna->text());
    if (luna < 1 || luna > 12) {
        Mesaj(QStringLiteral("Luna incorecta!"));
        m_txtLuna->setFocus();
        return false;
    }
    const double an = ValoareNumerica(m_txtAn->text());
    if (an < 2008 || an > 2500) {
        Mesaj(QStringLiteral("An incorect!"));
        m_txtAn->setFocus();
        return false;
    }
    l = {int(luna), int(an)};
    return true;
}

void frmInchidereLuna::arataStarea()
{
    const int luna = int(ValoareNumerica(m_txtLuna->text()));
    const int an = int(ValoareNumerica(m_txtAn->text()));
    bool inchisa = false;
    try {
        inchisa = luna >= 1 && luna <= 12 && LunaInchisa(BD::principala(), {luna, an});
    } catch (const Eroare& e) {
        m_lblStare->setText(e.descriere);
        return;
    }
    m_lblStare->setText(inchisa
                            ? QStringLiteral("Luna este inchisa: statul de plata se tipareste din randurile pastrate.")
                            : QStringLiteral("Luna este deschisa."));
    m_cmdInchide->setEnabled(!inchisa);
    m_cmdRedeschide->setEnabled(inchisa);
}

void frmInchidereLuna::construieste()
{
    LunaAn l;
    if (!verificaRaport() || !citesteLuna(l))
        return;
    const CursorAsteptare asteapta;
    if (m_tipRaport->currentIndex() == 0)
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
    if (!Intrebare(
            QStringLiteral("Inchideti luna %1 %2? Statul de plata, totalurile si diferentele ei se pastreaza, iar "
                           "dispozitiile lunii nu mai pot fi modificate.")
                .arg(NumeLuna(l.luna))
                .arg(l.an)))
        return;
    try {
        const CursorAsteptare asteapta;
        const DiferentaLuna d = InchideLuna(BD::principala(), l);
        ConstruiesteDiferenta(BD::principala(), d, grid());
        m_tipRaport->setCurrentIndex(1);
    } catch (const Eroare& e) {
        Mesaj(e.descriere, Mesaje::Icon::Exclamare);
    }
    arataStarea();
}

void frmInchidereLuna::cmdRedeschide_Click()
{
    LunaAn l;
    if (!Proces::BazaAccesibila() || !citesteLuna(l))
        return;
    const std::optional<QString> motiv =
        Mesaje::curent().citeste(QStringLiteral("Motivul redeschiderii lunii %1 %2:").arg(NumeLuna(l.luna)).arg(l.an),
                                 QStringLiteral("Redeschidere luna"), QString());
    if (!motiv)
        return;
    try {
        RedeschideLuna(BD::principala(), l, *motiv);
        Mesaj(QStringLiteral("Luna %1 %2 a fost redeschisa.").arg(NumeLuna(l.luna)).arg(l.an));
    } catch (const Eroare& e) {
        Mesaj(e.descriere, Mesaje::Icon::Exclamare);
    }
    arataStarea();
}

void frmInchidereLuna::exporta()
{
    exportaGrid(QDir(Proces::folderProgram()).filePath(QStringLiteral("InchidereLuna.xlsx")));
}

ReportGrid::PaginaSetata frmInchidereLuna::paginaSetata() const
{
    return ReportGrid::PaginaSetata{}; // A4 landscape
}
