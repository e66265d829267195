#include "gui_Dialog.h"

#include "gui/ComboCod.h"

#include <QFocusEvent>

QString Text(QObject* fereastra, const QString& nume)
{
    return Control<QLineEdit>(fereastra, nume)->text();
}

void Alege(QObject* fereastra, const QString& nume, int cheie)
{
    SelecteazaCheie(Control<QComboBox>(fereastra, nume), cheie);
}

void Paraseste(QObject* fereastra, const QString& nume)
{
    QFocusEvent e(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(Control<QWidget>(fereastra, nume), &e);
}

void Scrie(QWidget* fereastra, const QString& nume, const QString& text)
{
    auto* e = Control<QLineEdit>(fereastra, nume);
    e->setFocus();
    e->selectAll();
    e->del();
    QTest::keyClicks(e, text);
}

void Apasa(QWidget* fereastra, const QString& nume)
{
    auto* b = Control<QAbstractButton>(fereastra, nume);
    QVERIFY2(b->isEnabled(), qPrintable(nume + QStringLiteral(" este dezactivat")));
    b->click();
}

HookModalTest::HookModalTest(std::function<void(QDialog&)> fa)
{
    SeteazaHookModal(std::move(fa));
}

HookModalTest::~HookModalTest()
{
    SeteazaHookModal({});
}
