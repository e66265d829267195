#pragma once
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "gui/Modal.h"

// Finds a control of a window by its name ("txtCerere(12)"); the test fails when it is missing.
template <typename T>
T* Control(QObject* fereastra, const QString& nume)
{
    T* c = fereastra->findChild<T*>(nume);
    if (!c)
        qWarning("Controlul %s lipseste", qPrintable(nume));
    return c;
}

// Types into a line edit as a user would (replacing its text).
void Scrie(QWidget* fereastra, const QString& nume, const QString& text);
// Clicks a button by name.
void Apasa(QWidget* fereastra, const QString& nume);

// Runs `fa` on the next modal window that opens, for as long as it lives.
class HookModalTest {
public:
    explicit HookModalTest(std::function<void(QDialog&)> fa);
    ~HookModalTest();
};
