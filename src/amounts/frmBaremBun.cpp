#include "amounts/frmBaremBun.h"

#include "amounts/BaremEditor.h"
#include "database/BD.h"
#include "gui/ButoaneDialog.h"
#include "gui/FiltruEditare.h"
#include "gui/IntrareNumerica.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <optional>

namespace {

constexpr int Casete = 16;

// An error of this window: number, description and source, with a blank between.
void spune(const Eroare& e)
{
    Mesaj(QString::number(e.numar) + QLatin1Char(' ') + e.descriere + QLatin1Char(' ') + e.sursa, Mesaje::Icon::Critic);
}

} // namespace

frmBaremBun::frmBaremBun(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmBaremBun"));
    setWindowTitle(QStringLiteral("Nivel venit minim garantat"));
    for (int i = 0; i < Casete; ++i) {
        auto* e = new QLineEdit(this);
        e->setObjectName(NumeControl("txt", i));
        e->setMaximumWidth(90);
        DoarCifreSiPunct(e);
        m_txt << e;
    }
    // Two kinds of family, four sizes each, two income steps: box k of a kind is size k % 4 + 1
    // at step k / 4.
    auto* g = new QGridLayout;
    const char* tipuri[] = {"Familie cu sot, sotie si copii in intretinere:", "Familii monoparentale:"};
    int rand = 0;
    for (int tip = 0; tip < 2; ++tip) {
        g->addWidget(new QLabel(QString::fromLatin1(tipuri[tip]), this), rand, 0, 1, 4);
        ++rand;
        g->addWidget(new QLabel(QStringLiteral("Venit net pana la 200"), this), rand, 1);
        g->addWidget(new QLabel(QStringLiteral("pana la 370"), this), rand, 2);
        ++rand;
        for (int marime = 0; marime < 4; ++marime) {
            g->addWidget(new QLabel(marime == 0 ? QStringLiteral("Familii cu 1 copil")
                                                : QStringLiteral("Familii cu %1 copii").arg(marime + 1),
                                    this),
                         rand, 0);
            for (int pas = 0; pas < 2; ++pas)
                g->addWidget(m_txt[tip * 8 + pas * 4 + marime], rand, 1 + pas);
            g->addWidget(new QLabel(QStringLiteral("RON"), this), rand, 3);
            ++rand;
        }
    }
    g->addWidget(new QLabel(QStringLiteral("persoana singura"), this), rand, 0);

    const ButoaneOkRenunta b = CreeazaButoaneOkRenunta(this);
    auto* l = new QVBoxLayout(this);
    l->addLayout(g);
    l->addLayout(b.rand);
    InstaleazaFiltruEditare(this);
    connect(b.ok, &QPushButton::clicked, this, &frmBaremBun::cmdOK_Click);
    connect(b.renunta, &QPushButton::clicked, this, &QDialog::reject);

    // The rows read before a missing one stay in their boxes.
    QStringList v;
    std::optional<Eroare> eroare;
    try {
        CitesteBaremEditor(BD::principala(), &v);
    } catch (const Eroare& e) {
        eroare = e;
    }
    for (int i = 0; i < v.size(); ++i)
        m_txt[i]->setText(v[i]);
    if (eroare)
        spune(*eroare);
}

void frmBaremBun::cmdOK_Click()
{
    QStringList v;
    for (int i = 0; i < ValoriBaremEditor; ++i)
        v << m_txt[i]->text();
    const int gresit = VerificaBaremEditor(v);
    if (gresit >= 0) {
        m_txt[gresit]->setFocus();
        return;
    }
    try {
        ScrieBaremEditor(BD::principala(), v);
    } catch (const Eroare& e) {
        spune(e);
    }
    accept();
}
