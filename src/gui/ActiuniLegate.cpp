#include "gui/ActiuniLegate.h"

#include "common/Eroare.h"
#include "common/Mesaje.h"

#include <QAbstractButton>
#include <QAction>

namespace {
constexpr const char* Legat = "alocatiiLegat";
}

void RuleazaProtejat(const std::function<void()>& actiune)
{
    try {
        actiune();
    } catch (const Eroare& e) {
        // A wait cursor of the action (CursorAsteptare) went as the error left its scope.
        Mesaj(e.text(), Mesaje::Icon::Critic);
    } catch (const std::exception& e) {
        Mesaj(QStringLiteral("Eroare: ") + QString::fromLocal8Bit(e.what()), Mesaje::Icon::Critic);
    }
}

void LeagaActiune(QAbstractButton* b, std::function<void()> actiune)
{
    b->setProperty(Legat, true);
    b->setEnabled(true);
    QObject::connect(b, &QAbstractButton::clicked, b, [f = std::move(actiune)] { RuleazaProtejat(f); });
}

void LeagaActiune(QAction* a, std::function<void()> actiune)
{
    a->setProperty(Legat, true);
    a->setEnabled(true);
    QObject::connect(a, &QAction::triggered, a, [f = std::move(actiune)] { RuleazaProtejat(f); });
}

bool EsteLegat(const QObject* o)
{
    return o && o->property(Legat).toBool();
}

void Activeaza(QAbstractButton* b, bool activ)
{
    b->setEnabled(activ && EsteLegat(b));
}

void Activeaza(QAction* a, bool activ)
{
    a->setEnabled(activ && EsteLegat(a));
}
