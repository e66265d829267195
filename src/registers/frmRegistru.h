#pragma once
#include "registers/Registre.h"

#include <QDialog>
#include <QList>

class QLineEdit;
class QPushButton;
class QTreeWidget;

// The words and names of one register's windows: the list and its editor.
struct FereastraRegistru {
    const Registru& (*registru)();
    const char* numeLista; // frmMotive
    const char* titlu;
    const char* antet;
    const char* lista; // the list view's name
    QStringList coloane;
    const char* faraSelectieModificare;
    const char* faraSelectieStergere;
    const char* numeEditor; // frmAdMotive
    const char* titluAdaugare;
    const char* titluModificare;
    QStringList etichete; // one per field
    const char* sfat;     // the tip of the name box
};

// The list window of a register: the rows, and Adaugare / Modificare / Stergere / Iesire.
class frmListaRegistru : public QDialog {
    Q_OBJECT
public:
    frmListaRegistru(const FereastraRegistru& f, QWidget* parent);

    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();

private:
    void umple();

    const FereastraRegistru& m_f;
    QTreeWidget* m_lista;
    QPushButton* m_edit;
    QPushButton* m_delete;
};

// The editor of one row. Adaug 1 adds, 2 changes the row `id`.
class frmAdRegistru : public QDialog {
    Q_OBJECT
public:
    frmAdRegistru(const FereastraRegistru& f, int adaug, qint64 id, const QStringList& valori, QWidget* parent);

private:
    void cmdOK_Click();

    const FereastraRegistru& m_f;
    int m_adaug;
    qint64 m_id;
    QList<QLineEdit*> m_txt;
};
