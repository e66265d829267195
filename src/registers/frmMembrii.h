#pragma once
#include <QDialog>
#include <QList>

class QLineEdit;
class QTreeWidget;

// "Persoane (membrii familiilor)": every person of every application, with a search by the
// beginning of the surname, first names or CNP. It changes nothing: a person is changed
// through the member editor, and the buttons Adaugare, Modificare and Stergere stand idle.
class frmMembrii : public QDialog {
    Q_OBJECT
public:
    explicit frmMembrii(QWidget* parent = nullptr);

    // The search of box i (0 Nume, 1 Prenume, 2 CNP); true when a row was found and selected.
    bool Cauta(int caseta);

private:
    void umple();
    void cautaLaEnter(int caseta);
    void cmdEdit_Click() {}
    void cmdDelete_Click() {}

    QTreeWidget* m_lista;
    QList<QLineEdit*> m_txt;
    int m_coloanaSortata = -1;
};
