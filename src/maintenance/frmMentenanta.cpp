#include "maintenance/frmMentenanta.h"

#include "database/BD.h"
#include "database/CoduriDateGen.h"
#include "maintenance/Mentenanta.h"
#include "maintenance/frmCopii.h"
#include "preluare/frmPreluare.h"
#include "gui/Modal.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "gui/CampData.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <functional>

namespace {

// The window's own error trap: a command that fails is told and leaves nothing written.
void protejat(const std::function<void()>& f)
{
    try {
        f();
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic);
    }
}

QPushButton* buton(QWidget* parinte, const char* nume, const char* text, std::function<void()> f)
{
    auto* b = new QPushButton(QString::fromLatin1(text), parinte);
    b->setObjectName(QString::fromLatin1(nume));
    b->setAutoDefault(false);
    QObject::connect(b, &QPushButton::clicked, parinte, [f] { protejat(f); });
    return b;
}

QString nume(const char* familie, int i)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(familie)).arg(i);
}

} // namespace

frmMentenanta::frmMentenanta(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmMentenanta"));
    setWindowTitle(QStringLiteral("Mentenanta"));
    auto* avertisment =
        new QLabel(QStringLiteral("Atentie! In aceata fereastra lucreaza doar personalul Valdera"), this);
    avertisment->setObjectName(QStringLiteral("lblAtentie"));
    avertisment->setStyleSheet(QStringLiteral("color: red; font-weight: bold"));

    auto* comutatoare = new QHBoxLayout;
    auto* grup = new QButtonGroup(this);
    const char* titluri[] = {"Comenzi", "Numerotare", "Copii de siguranta"};
    for (int i = 0; i < 3; ++i) {
        auto* b = new QPushButton(QString::fromLatin1(titluri[i]), this);
        b->setObjectName(nume("opt", i));
        b->setCheckable(true);
        b->setAutoDefault(false);
        grup->addButton(b, i);
        comutatoare->addWidget(b);
    }
    comutatoare->addStretch(1);
    m_lblTipIncalzire = new QLabel(QStringLiteral("Tip incalzire:"), this);
    m_lblTipIncalzire->setObjectName(QStringLiteral("lblTipIncalzire"));
    m_cboTipIncalzire = new QComboBox(this);
    m_cboTipIncalzire->setObjectName(QStringLiteral("cboTipIncalzire"));
    comutatoare->addWidget(m_lblTipIncalzire);
    comutatoare->addWidget(m_cboTipIncalzire);

    auto* copii = new frmCopii(this);
    connect(copii, &frmCopii::DateRestaurate, this, [this] { m_dateInlocuite = true; });
    m_pic << paginaComenzi() << paginaNumerotare() << copii;
    auto* l = new QVBoxLayout(this);
    l->addWidget(avertisment);
    l->addLayout(comutatoare);
    for (QWidget* p : m_pic)
        l->addWidget(p, 1);
    auto* jos = new QHBoxLayout;
    // The move of an office from the old program goes into a new office folder.
    jos->addWidget(buton(this, "cmdPreluare", "Preluare din programul vechi ...", [this] {
        frmPreluare f(this);
        DeschideModal(f);
    }));
    jos->addStretch(1);
    jos->addWidget(buton(this, "cmdExit", "I&esire", [this] { reject(); }));
    l->addLayout(jos);

    connect(grup, &QButtonGroup::idClicked, this, &frmMentenanta::AlegePagina);
    protejat([this] {
        for (const ElementCod& e : CitesteListaCod(BD::principala(), 6))
            m_cboTipIncalzire->addItem(e.text, e.id);
    });
    m_cboTipIncalzire->setCurrentIndex(-1);
    AlegePagina(0);
}

QWidget* frmMentenanta::paginaComenzi()
{
    auto* pic = new QWidget(this);
    pic->setObjectName(nume("pic", 0));
    auto* l = new QVBoxLayout(pic);
    m_chkSuprascrie = new QCheckBox(QStringLiteral("Suprascrie DataStare <> 0"), pic);
    m_chkSuprascrie->setObjectName(QStringLiteral("chkSuprascrieDataStare"));
    l->addWidget(buton(pic, "cmdRecalculare", "DataStare=DataCerere pt cele din luna curenta, aprobate (noi)", [this] {
        const Setari& s = Proces::setari();
        RecalculDataStare(BD::principala(), s.LunaSetata, s.AnSetat, m_chkSuprascrie->isChecked());
    }));
    l->addWidget(m_chkSuprascrie);
    l->addWidget(
        buton(pic, "cmdRecalculStare", "Modifica Stare = 3 (Respinse)", [] { RecalculStare(BD::principala()); }));
    l->addWidget(buton(pic, "cmdRecalculRudenie", "Modifica Rudenie=4 (elev vechi) la Rudenie=3 (in rpg nou)",
                       [] { RecalculRudenie(BD::principala()); }));
    auto* nota =
        new QLabel(QStringLiteral("Importul datelor unui oficiu din tabela MAR_09 si completarea din baza BazaGaz "
                                  "citeau tabele din afara programului si nu mai fac parte din aceasta fereastra."),
                   pic);
    nota->setObjectName(QStringLiteral("lblComenziScoase"));
    nota->setWordWrap(true);
    l->addWidget(nota);
    l->addStretch(1);
    return pic;
}

QWidget* frmMentenanta::paginaNumerotare()
{
    auto* pic = new QWidget(this);
    pic->setObjectName(nume("pic", 1));
    auto* f = new QFormLayout(pic);
    auto text = [&](const char* n) {
        auto* e = new QLineEdit(pic);
        e->setObjectName(QString::fromLatin1(n));
        return e;
    };
    m_txtNrCerere1 = text("txtNrCerere1");
    m_txtNrCerere2 = text("txtNrCerere2");
    auto* interval = new QHBoxLayout;
    interval->addWidget(m_txtNrCerere1);
    interval->addWidget(new QLabel(QStringLiteral("-"), pic));
    interval->addWidget(m_txtNrCerere2);
    f->addRow(QStringLiteral("Numar cerere de la:"), interval);

    m_optUnic = new QRadioButton(QStringLiteral("Numar unic de dispozitie:"), pic);
    m_optUnic->setObjectName(nume("optDispozitie", 0));
    m_optUnic->setChecked(true);
    m_optDiferite = new QRadioButton(QStringLiteral("Numere diferite de dispozitie incepand cu: "), pic);
    m_optDiferite->setObjectName(nume("optDispozitie", 1));
    m_txtNrDispozitie = text("txtNrDispozitie");
    m_txtNrDispozitie1 = text("txtNrDispozitie1");
    f->addRow(m_optUnic, m_txtNrDispozitie);
    f->addRow(m_optDiferite, m_txtNrDispozitie1);

    m_dtp = new CampData(pic); // empty: no date
    m_dtp->setObjectName(QStringLiteral("dtp"));
    f->addRow(QStringLiteral("Data dispozitie:"), m_dtp);

    const char* bife[] = {
        "Se acorda numar de dispozitie si pentru cererile care au alocat deja numar de dispozitie",
        "Nu se acorda numar de dispozitie pentru cererile cu cuantum = 0 (pentru care nu se acorda ajutor)"};
    for (int i = 0; i < 2; ++i) {
        auto* c = new QCheckBox(QString::fromLatin1(bife[i]), pic);
        c->setObjectName(nume("chk", i));
        f->addRow(c);
        m_chk << c;
    }
    m_cboAn = new QComboBox(pic);
    m_cboAn->setObjectName(QStringLiteral("cboAn"));
    for (int an = 2009; an <= 2035; ++an)
        m_cboAn->addItem(QString::number(an), an);
    m_cboAn->setCurrentIndex(-1);
    m_cboLuna = new QComboBox(pic);
    m_cboLuna->setObjectName(QStringLiteral("cboLuna"));
    for (int luna = 1; luna <= 12; ++luna)
        m_cboLuna->addItem(NumeLuna(luna), luna);
    m_cboLuna->setCurrentIndex(-1);
    f->addRow(QStringLiteral("An:"), m_cboAn);
    f->addRow(QStringLiteral("Luna:"), m_cboLuna);

    m_txtRaport = new QPlainTextEdit(pic);
    m_txtRaport->setObjectName(QStringLiteral("txtRaport"));
    m_txtRaport->setReadOnly(true);
    // The two report boxes keep the page within a screen of 768 pixels.
    m_txtRaport->setMaximumHeight(70);
    f->addRow(QStringLiteral("Raport:"), m_txtRaport);
    f->addRow(buton(pic, "cmdExecuta", "Executa", [this] { cmdExecuta_Click(); }));

    m_lblNrCerere = new QLabel(pic);
    m_lblNrCerere->setObjectName(QStringLiteral("lblNrCerere"));
    m_txtNrCerere = new QPlainTextEdit(pic);
    m_txtNrCerere->setObjectName(QStringLiteral("txtNrCerere"));
    m_txtNrCerere->setReadOnly(true);
    m_txtNrCerere->setMaximumHeight(70);
    f->addRow(buton(pic, "cmdNrCerere", "Afiseaza Numere cerere nealocate", [this] { cmdNrCerere_Click(); }));
    f->addRow(m_lblNrCerere);
    f->addRow(m_txtNrCerere);
    return pic;
}

void frmMentenanta::AlegePagina(int pagina)
{
    // The page shown goes first, then the new one comes: two pages at once would stretch the
    // window past the screen, and it would not shrink back.
    for (int i = 0; i < m_pic.size(); ++i)
        if (i != pagina)
            m_pic[i]->hide();
    if (pagina >= 0 && pagina < m_pic.size())
        m_pic[pagina]->show();
    if (auto* b = findChild<QPushButton*>(nume("opt", pagina)))
        b->setChecked(true);
    m_cboTipIncalzire->setVisible(pagina == 1);
    m_lblTipIncalzire->setVisible(pagina == 1);
}

void frmMentenanta::cmdExecuta_Click()
{
    Numerotare n;
    n.an = m_cboAn->currentIndex() >= 0 ? m_cboAn->currentData().toInt() : 0;
    n.luna = m_cboLuna->currentIndex() >= 0 ? m_cboLuna->currentData().toInt() : 0;
    n.tipIncalzire = m_cboTipIncalzire->currentIndex() >= 0 ? m_cboTipIncalzire->currentData().toInt() : 0;
    n.numarUnic = m_optUnic->isChecked();
    n.nrDispozitie = n.numarUnic ? m_txtNrDispozitie->text() : m_txtNrDispozitie1->text();
    n.nrCerere1 = m_txtNrCerere1->text();
    n.nrCerere2 = m_txtNrCerere2->text();
    n.data = m_dtp->data();
    n.siCeleCuNumar = m_chk[0]->isChecked();
    n.faraCuantumZero = m_chk[1]->isChecked();
    AlocaNumereDispozitie(BD::principala(), n);
}

void frmMentenanta::cmdNrCerere_Click()
{
    const int tip = m_cboTipIncalzire->currentIndex() >= 0 ? m_cboTipIncalzire->currentData().toInt() : 0;
    NumereNealocate r;
    if (!CautaNumereNealocate(BD::principala(), tip, r))
        return;
    m_lblNrCerere->setText(r.maxim);
    m_txtNrCerere->setPlainText(r.lista);
}
