#include "mainwindow/frmPlatiFamilie.h"

#include "common/Ceas.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "database/BD.h"
#include "gui/ActiuniLegate.h"
#include "gui/CursorAsteptare.h"
#include "mainwindow/RanduriPanouri.h"
#include "reports/PlatiFamilie.h"
#include "reports/ReportGrid.h"
#include "reports/frmRaport.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrinter>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

PanouPlati::PanouPlati(QWidget* parinte) : QWidget(parinte)
{
    setObjectName(QStringLiteral("PanouPlati"));
    m_lista = new QTreeWidget;
    m_lista->setObjectName(QStringLiteral("lvwPlatiLuni"));
    m_lista->setRootIsDecorated(false);
    m_lista->setAllColumnsShowFocus(true);
    QStringList titluri;
    for (const ColoanaLista& c : ColoanePlati())
        titluri << QString::fromLatin1(c.titlu);
    m_lista->setColumnCount(NrColoanePlati);
    m_lista->setHeaderLabels(titluri);
    for (int i = 0; i < NrColoanePlati; ++i)
        m_lista->setColumnWidth(i, ColoanePlati()[size_t(i)].latimeTwips / 15);
    m_ani = new QComboBox;
    m_ani->setObjectName(QStringLiteral("cboAnPlati"));
    m_total = new QLabel;
    m_total->setObjectName(QStringLiteral("lblTotalPlati"));
    m_tiparire = new QPushButton(QStringLiteral("Tiparire plati"));
    m_tiparire->setObjectName(QStringLiteral("cmdTiparirePlati"));
    m_pdf = new QPushButton(QStringLiteral("Plati in PDF"));
    m_pdf->setObjectName(QStringLiteral("cmdPdfPlati"));

    auto* sus = new QHBoxLayout;
    sus->addWidget(new QLabel(QStringLiteral("Plati in lunile inchise, anul:")));
    sus->addWidget(m_ani);
    sus->addWidget(m_total, 1);
    sus->addWidget(m_tiparire);
    sus->addWidget(m_pdf);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(0, 0, 0, 0);
    l->addLayout(sus);
    l->addWidget(m_lista, 1);

    connect(m_ani, &QComboBox::activated, this, [this] { RuleazaProtejat([this] { arata(); }); });
    LeagaActiune(m_tiparire, [this] { tipareste(); });
    LeagaActiune(m_pdf, [this] { scriePdf(); });
    Incarca(0);
}

void PanouPlati::Incarca(qint64 cerereId)
{
    m_cerereId = cerereId;
    m_ani->clear();
    m_ani->addItem(QStringLiteral("Toti anii"), 0);
    if (cerereId)
        for (int an : AniCuPlati(BD::principala(), cerereId))
            m_ani->addItem(QString::number(an), an);
    // What a family asks at the counter: this year, when it was paid in it.
    const int acum = m_ani->findData(Ceas::azi().year());
    m_ani->setCurrentIndex(acum >= 0 ? acum : 0);
    arata();
}

std::optional<int> PanouPlati::anAles() const
{
    const int an = m_ani->currentData().toInt();
    return an ? std::optional<int>(an) : std::nullopt;
}

void PanouPlati::arata()
{
    m_lista->clear();
    m_total->clear();
    Activeaza(m_tiparire, m_cerereId != 0);
    Activeaza(m_pdf, m_cerereId != 0);
    if (!m_cerereId)
        return;
    const PlatiFamilie p = CitestePlatiFamilie(BD::principala(), m_cerereId, anAles());
    QList<QTreeWidgetItem*> iteme;
    for (const QStringList& r : RanduriPlati(BD::principala(), p))
        iteme << new QTreeWidgetItem(r);
    m_lista->addTopLevelItems(iteme);
    m_nrCerere = p.nrCerere;
    m_total->setText(TextTotalPlati(p));
}

void PanouPlati::tipareste()
{
    if (!m_cerereId || !Proces::BazaAccesibila())
        return;
    ReportGrid g;
    {
        const CursorAsteptare asteapta;
        ConstruiestePlatiFamilie(BD::principala(), CitestePlatiFamilie(BD::principala(), m_cerereId, anAles()), g);
    }
    QPrinter printer(QPrinter::HighResolution);
    PrevizualizeazaGrid(g, printer, this, QStringLiteral("Situatia platilor"),
                        [&] { SalveazaGridPdf(g, numeFisierPdf(), this); });
}

void PanouPlati::scriePdf()
{
    if (!m_cerereId || !Proces::BazaAccesibila())
        return;
    ReportGrid g;
    ConstruiestePlatiFamilie(BD::principala(), CitestePlatiFamilie(BD::principala(), m_cerereId, anAles()), g);
    SalveazaGridPdf(g, numeFisierPdf(), this);
}

QString PanouPlati::numeFisierPdf() const
{
    return anAles() ? QStringLiteral("Plati-%1-%2.pdf").arg(m_nrCerere).arg(*anAles())
                    : QStringLiteral("Plati-%1.pdf").arg(m_nrCerere);
}
