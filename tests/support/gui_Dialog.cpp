#include "gui_Dialog.h"

void Scrie(QWidget* fereastra, const QString& nume, const QString& text)
{
    auto* e = Control<QLineEdit>(fereastra, nume);
    QVERIFY2(e, qPrintable(nume));
    e->setFocus();
    e->selectAll();
    e->del();
    QTest::keyClicks(e, text);
}

void Apasa(QWidget* fereastra, const QString& nume)
{
    auto* b = Control<QAbstractButton>(fereastra, nume);
    QVERIFY2(b, qPrintable(nume));
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
