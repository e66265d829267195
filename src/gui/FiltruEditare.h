#pragma once
#include <QObject>

class QWidget;

// The edit-field habits of the office's dialogs: a pale background while a field has the
// focus, the whole text selected when it gets it, and Enter moving to the next field.
class FiltruEditare : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    bool eventFilter(QObject* obj, QEvent* ev) override;
};

// Installs the habits on every line edit, editable combo box and spin box under `radacina`.
// With selecteaza false the text is not selected on focus (the town hall window's boxes).
void InstaleazaFiltruEditare(QWidget* radacina, bool selecteaza = true);

// Names a member of a control family: "txtCerere(12)".
QString NumeControl(const char* familie, int index);
