#pragma once
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>
#include <source_location>
#include <stdexcept>

#include "gui/Modal.h"

// A control that a test looked for and the window does not have (or not of that kind).
struct ControlLipsa : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Finds a control of a window by its name ("txtCerere(12)"). A missing one fails the test
// with its name, at the line that looked for it, and ends the test function.
template <typename T>
T* Control(QObject* fereastra, const QString& nume, std::source_location loc = std::source_location::current())
{
    if (T* c = fereastra->findChild<T*>(nume))
        return c;
    const QByteArray mesaj =
        QStringLiteral("Controlul %1 lipseste din %2").arg(nume, fereastra->objectName()).toLocal8Bit();
    QTest::qFail(mesaj.constData(), loc.file_name(), static_cast<int>(loc.line()));
    throw ControlLipsa(mesaj.toStdString());
}

// The text of a line edit.
QString Text(QObject* fereastra, const QString& nume);
// Chooses the row of a combo with that hidden key.
void Alege(QObject* fereastra, const QString& nume, int cheie);
// The focus leaves a control for the next one, as the Tab key does.
void Paraseste(QObject* fereastra, const QString& nume);
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
