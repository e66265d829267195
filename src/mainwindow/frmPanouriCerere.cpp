#include "mainwindow/frmPanouriCerere.h"
#include "gui/LatimiColoane.h"

#include "database/BD.h"
#include "common/Ceas.h"
#include "gui/ActiuniLegate.h"
#include "gui/CampData.h"
#include "gui/FiltruEditare.h"
#include "mainwindow/ContextCerere.h"
#include "mainwindow/RanduriPanouri.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QTreeWidget* listaNoua(const char* nume, const std::array<ColoanaLista, NrColoanePanou>* coloane)
{
    auto* l = new QTreeWidget;
    l->setObjectName(QString::fromLatin1(nume));
    l->setRootIsDecorated(false);
    l->setUniformRowHeights(true);
    l->setAllColumnsShowFocus(true);
    l->setSelectionMode(QAbstractItemView::SingleSelection);
    l->setSelectionBehavior(QAbstractItemView::SelectRows);
    if (!coloane) {
        // A tab without content: no columns, never filled.
        l->setColumnCount(0);
        l->setHeaderHidden(true);
        return l;
    }
    QStringList titluri;
    for (const ColoanaLista& c : *coloane)
        titluri << QString::fromLatin1(c.titlu);
    l->setColumnCount(NrColoanePanou);
    l->setHeaderLabels(titluri);
    for (int i = 0; i < NrColoanePanou; ++i)
        l->setColumnWidth(i, (*coloane)[size_t(i)].latimeTwips / 15);
    l->setColumnHidden(0, true);
    // Every head whole, and the dates long as the lists write them.
    for (int i = 0; i < NrColoanePanou; ++i)
        LargesteColoana(l, i, titluri.value(i).startsWith(QLatin1String("Data")) ? DataLungaModel() : QString());
    return l;
}

QPushButton* butonNou(const char* nume, const char* text)
{
    auto* b = new QPushButton(QString::fromLatin1(text));
    b->setObjectName(QString::fromLatin1(nume));
    b->setEnabled(false); // wired by the windows that add, print, edit and delete
    return b;
}

void umple(QTreeWidget* l, const std::vector<RandPanou>& randuri)
{
    QList<QTreeWidgetItem*> iteme;
    iteme.reserve(int(randuri.size()));
    for (const RandPanou& r : randuri) {
        QStringList t;
        for (const QString& s : r.texte)
            t << s;
        iteme << new QTreeWidgetItem(t);
    }
    l->addTopLevelItems(iteme);
    // The last row is selected and shown: the order being newest first, the oldest one.
    QTreeWidgetItem* ultimul = l->topLevelItem(l->topLevelItemCount() - 1);
    l->setCurrentItem(ultimul);
    l->scrollToItem(ultimul);
}

std::optional<qint64> idSelectat(const QTreeWidget* l)
{
    const QList<QTreeWidgetItem*> sel = l->selectedItems();
    if (sel.isEmpty())
        return std::nullopt;
    return sel.first()->text(0).toLongLong();
}

} // namespace

PanouriCerere::PanouriCerere(ContextCerere& context, QWidget* parinte) : QWidget(parinte), m_context(context)
{
    setObjectName(QStringLiteral("PanouriCerere"));
    auto* vertical = new QVBoxLayout(this);
    vertical->setContentsMargins(0, 0, 0, 0);

    auto* comutatoare = new QHBoxLayout;
    auto* grup = new QButtonGroup(this);
    grup->setExclusive(true);
    const char* titluri[] = {"Anchete", "Dispozitii", "Plati", "Adeverinte", "Istoric"};
    for (int i = 0; i < 5; ++i) {
        auto* b = new QPushButton(QString::fromLatin1(titluri[i]));
        b->setObjectName(NumeControl("opt", i));
        b->setCheckable(true);
        grup->addButton(b, i);
        comutatoare->addWidget(b);
        m_opt << b;
    }
    comutatoare->addStretch();
    m_lblExplic = new QLabel;
    m_lblExplic->setObjectName(QStringLiteral("lblExplic"));
    comutatoare->addWidget(m_lblExplic, 1);
    vertical->addLayout(comutatoare);

    m_lvwAnchete = listaNoua("lvwAnchete", &ColoaneAnchete());
    m_lvwDispozitii = listaNoua("lvwDispozitii", &ColoaneDispozitii());
    m_lvwPlati = listaNoua("lvwPlati", nullptr);
    m_lvwAdeverinte = listaNoua("lvwAdeverinte", nullptr);
    m_cmdAddAncheta = butonNou("cmdAddAncheta", "Ancheta noua");
    m_cmdPrintAncheta = butonNou("cmdPrintAncheta", "Tiparire Ancheta");
    m_cmdEditAncheta = butonNou("cmdEditAncheta", "Modificare ancheta");
    m_cmdDelAncheta = butonNou("cmdDelAncheta", "Stergere ancheta");
    m_cmdAddDisp = butonNou("cmdAddDisp", "Dispozitie noua");
    m_cmdPrintDisp = butonNou("cmdPrintDisp", "Tiparire Dispozitie");
    m_cmdEditDisp = butonNou("cmdEditDisp", "Modificare dispozitie");
    m_cmdDelDisp = butonNou("cmdDelDisp", "Stergere dispozitie");
    m_cmdFisaDisp = butonNou("cmdFisaDisp", "Fisa calcul dispozitie");

    vertical->addWidget(
        panouLista(0, m_lvwAnchete, {m_cmdAddAncheta, m_cmdPrintAncheta, m_cmdEditAncheta, m_cmdDelAncheta}));
    vertical->addWidget(
        panouLista(1, m_lvwDispozitii, {m_cmdAddDisp, m_cmdPrintDisp, m_cmdEditDisp, m_cmdDelDisp, m_cmdFisaDisp}));
    vertical->addWidget(panouLista(2, m_lvwPlati, {}));
    vertical->addWidget(panouLista(3, m_lvwAdeverinte, {}));
    vertical->addWidget(panouIstoric());

    // A double click on a disposition is cmdEditDisp.
    connect(m_lvwDispozitii, &QTreeWidget::itemDoubleClicked, this, [this] { m_cmdEditDisp->click(); });
    connect(grup, &QButtonGroup::idClicked, this, &PanouriCerere::AlegePanou);
    AlegePanou(0);
}

QWidget* PanouriCerere::panouLista(int index, QTreeWidget* lista, const QList<QPushButton*>& butoane)
{
    auto* pic = new QWidget;
    pic->setObjectName(NumeControl("picMain", index));
    auto* l = new QHBoxLayout(pic);
    l->setContentsMargins(0, 0, 0, 0);
    l->addWidget(lista, 1);
    if (!butoane.isEmpty()) {
        auto* coloana = new QVBoxLayout;
        for (QPushButton* b : butoane)
            coloana->addWidget(b);
        coloana->addStretch();
        l->addLayout(coloana);
    }
    m_picMain << pic;
    return pic;
}

QWidget* PanouriCerere::panouIstoric()
{
    m_lvwIstoric = new QTreeWidget;
    m_lvwIstoric->setObjectName(QStringLiteral("lvwIstoric"));
    m_lvwIstoric->setRootIsDecorated(false);
    m_lvwIstoric->setAllColumnsShowFocus(true);
    QStringList titluri;
    for (const ColoanaLista& c : ColoaneIstoric())
        titluri << QString::fromLatin1(c.titlu);
    m_lvwIstoric->setColumnCount(NrColoaneIstoric);
    m_lvwIstoric->setHeaderLabels(titluri);
    for (int i = 0; i < NrColoaneIstoric; ++i) {
        m_lvwIstoric->setColumnWidth(i, ColoaneIstoric()[size_t(i)].latimeTwips / 15);
        LargesteColoana(m_lvwIstoric, i);
    }
    m_lvwIstoric->setColumnHidden(0, true);
    m_dtpIstoric = new CampData(nullptr, false);
    m_dtpIstoric->setObjectName(QStringLiteral("dtpIstoric"));
    m_dtpIstoric->seteazaData(Ceas::azi());
    m_lblIstoricLa = new QLabel;
    m_lblIstoricLa->setObjectName(QStringLiteral("lblIstoricLa"));
    auto* sus = new QHBoxLayout;
    sus->addWidget(new QLabel(QStringLiteral("Situatia la data:")));
    sus->addWidget(m_dtpIstoric);
    sus->addWidget(m_lblIstoricLa, 1);
    auto* pic = new QWidget;
    pic->setObjectName(NumeControl("picMain", 4));
    auto* l = new QVBoxLayout(pic);
    l->setContentsMargins(0, 0, 0, 0);
    l->addLayout(sus);
    l->addWidget(m_lvwIstoric, 1);
    m_picMain << pic;
    connect(m_dtpIstoric, &QDateEdit::dateChanged, this, [this] { arataStareLa(); });
    return pic;
}

void PanouriCerere::IncarcaIstoric(qint64 cerereId)
{
    m_lvwIstoric->clear();
    m_istoric.clear();
    m_lblIstoricLa->clear();
    if (m_context.ListaGoala())
        return;
    m_istoric = CitesteIstoric(BD::principala(), cerereId);
    QList<QTreeWidgetItem*> iteme;
    for (const QStringList& r : RanduriIstoric(BD::principala(), m_istoric))
        iteme << new QTreeWidgetItem(r);
    m_lvwIstoric->addTopLevelItems(iteme);
    arataStareLa();
}

void PanouriCerere::arataStareLa()
{
    if (m_context.ListaGoala())
        return;
    m_lblIstoricLa->setText(TextStareLa(BD::principala(), m_istoric, m_dtpIstoric->data()));
}

void PanouriCerere::AlegePanou(int index)
{
    for (int i = 0; i < m_picMain.size(); ++i)
        m_picMain[i]->setVisible(i == index);
    if (index >= 0 && index < m_opt.size())
        m_opt[index]->setChecked(true);
}

void PanouriCerere::IncarcaAnchete(qint64 cerereId)
{
    m_lvwAnchete->clear();
    if (m_context.ListaGoala())
        return;
    const std::vector<RandPanou> randuri = CitesteAnchete(BD::principala(), cerereId);
    if (randuri.empty()) {
        ActiveazaButoaneAncheta(false);
        m_lblExplic->clear();
        return;
    }
    umple(m_lvwAnchete, randuri);
    ActiveazaButoaneAncheta(true);
    m_lblExplic->setText(QStringLiteral("Anchetele lui ") + m_context.SolicitantSelectat() + QLatin1Char('.'));
}

void PanouriCerere::IncarcaDispozitii(qint64 cerereId)
{
    m_lvwDispozitii->clear();
    if (m_context.ListaGoala())
        return;
    const std::vector<RandPanou> randuri = CitesteDispozitii(BD::principala(), cerereId);
    if (randuri.empty()) {
        ActiveazaButoaneDisp(false);
        m_lblExplic->clear();
    } else {
        umple(m_lvwDispozitii, randuri);
        ActiveazaButoaneDisp(true);
    }
    // Unlike the inquiries, the explanation names the applicant also when there is nothing.
    m_lblExplic->setText(QStringLiteral("Dispozitiile lui ") + m_context.SolicitantSelectat() + QLatin1Char('.'));
}

void PanouriCerere::ActiveazaButoaneAncheta(bool activ)
{
    Activeaza(m_cmdEditAncheta, activ);
    Activeaza(m_cmdDelAncheta, activ);
}

void PanouriCerere::ActiveazaButoaneDisp(bool activ)
{
    Activeaza(m_cmdEditDisp, activ);
    Activeaza(m_cmdDelDisp, activ);
    Activeaza(m_cmdPrintDisp, activ);
    Activeaza(m_cmdFisaDisp, activ);
}

void PanouriCerere::ActiveazaAdaugare(bool activ)
{
    Activeaza(m_cmdAddAncheta, activ);
    Activeaza(m_cmdAddDisp, activ);
}

std::optional<qint64> PanouriCerere::AnchetaSelectata() const
{
    return idSelectat(m_lvwAnchete);
}

std::optional<qint64> PanouriCerere::DispozitieSelectata() const
{
    return idSelectat(m_lvwDispozitii);
}
