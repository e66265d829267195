#include "registers/frmMembrii.h"
#include "gui/LatimiColoane.h"

#include "database/BD.h"
#include "registers/Persoane.h"
#include "gui/ActiuniLegate.h"
#include "gui/CursorAsteptare.h"
#include "gui/FiltruEditare.h"
#include "gui/ListaRegistru.h"
#include "common/Mesaje.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmMembrii::frmMembrii(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmMembrii"));
    setWindowTitle(QStringLiteral("Persoane (membrii familiilor)"));
    auto* antet = CreeazaAntet(this, QStringLiteral("Membrii familiilor"));
    m_lista =
        CreeazaLista(this, QStringLiteral("lvwMembrii"),
                     {QStringLiteral("ID"), QStringLiteral("Nume"), QStringLiteral("Prenume"), QStringLiteral("CNP"),
                      QStringLiteral("Tip Act"), QStringLiteral("Serie BI"), QStringLiteral("Nr BI")});
    m_lista->setMinimumSize(640, 360);
    connect(m_lista->header(), &QHeaderView::sectionClicked, this, [this](int c) { m_coloanaSortata = c; });

    auto* cautare = new QGridLayout;
    cautare->addWidget(new QLabel(QStringLiteral("Cautare membru dupa:"), this), 0, 0, 1, 2);
    const char* etichete[] = {"Nume:", "Prenume:", "CNP:"};
    for (int i = 0; i < 3; ++i) {
        auto* e = new QLineEdit(this);
        e->setObjectName(NumeControl("txt", i));
        cautare->addWidget(new QLabel(QString::fromLatin1(etichete[i]), this), i + 1, 0);
        cautare->addWidget(e, i + 1, 1);
        connect(e, &QLineEdit::textChanged, this, [this, i] { Cauta(i); });
        connect(e, &QLineEdit::returnPressed, this, [this, i] { cautaLaEnter(i); });
        m_txt << e;
    }

    const ButoaneRegistru b = CreeazaButoaneRegistru(this);
    auto* rand = new QHBoxLayout;
    rand->addLayout(cautare);
    rand->addStretch(1);
    auto* butoane = new QVBoxLayout;
    for (QPushButton* buton : {b.add, b.edit, b.sterge, b.close})
        butoane->addWidget(buton);
    rand->addLayout(butoane);
    auto* l = new QVBoxLayout(this);
    l->addWidget(antet);
    l->addWidget(m_lista, 1);
    l->addLayout(rand);

    LeagaActiune(b.add, [] {});
    LeagaActiune(b.edit, [this] { cmdEdit_Click(); });
    LeagaActiune(b.sterge, [this] { cmdDelete_Click(); });
    LeagaActiune(b.close, [this] { reject(); });
    LeagaTasteLista(
        m_lista, [this] { cmdEdit_Click(); }, [this] { cmdDelete_Click(); });
    RuleazaProtejat([this] { umple(); });
    LargesteColoana(m_lista, 3, CNPModel());
    LargesteColoane(m_lista);
}

void frmMembrii::umple()
{
    std::vector<RandPersoana> persoane;
    {
        const CursorAsteptare asteapta;
        m_lista->clear();
        persoane = CitestePersoane(BD::principala());
        QList<QTreeWidgetItem*> iteme;
        for (const RandPersoana& p : persoane)
            iteme << new QTreeWidgetItem(
                QStringList{QString::number(p.id), p.nume, p.prenume, p.cnp, p.tipAct, p.serieBI, p.nrBI});
        m_lista->addTopLevelItems(iteme);
    }
    const bool are = !persoane.empty();
    Activeaza(findChild<QPushButton*>(QStringLiteral("cmdEdit")), are);
    Activeaza(findChild<QPushButton*>(QStringLiteral("cmdDelete")), are);
}

bool frmMembrii::Cauta(int caseta)
{
    const int coloana = caseta + 1;
    if (m_coloanaSortata != coloana) {
        m_lista->sortItems(coloana, Qt::AscendingOrder);
        m_coloanaSortata = coloana;
    }
    QStringList valori;
    valori.reserve(m_lista->topLevelItemCount());
    for (int i = 0; i < m_lista->topLevelItemCount(); ++i)
        valori << m_lista->topLevelItem(i)->text(coloana);
    const int gasit = CautaPrefix(valori, m_txt[caseta]->text());
    if (gasit < 0)
        return false;
    SelecteazaRand(m_lista, gasit);
    return true;
}

void frmMembrii::cautaLaEnter(int caseta)
{
    if (!Cauta(caseta))
        Mesaj(MesajNegasit(caseta, m_txt[caseta]->text()));
    else
        cmdEdit_Click();
}
