#pragma once
#include "mainwindow/ContextCerere.h"
#include "mainwindow/ListaCereri.h"

#include <QHash>
#include <QMainWindow>

class ModelCereri;
class PanouriCerere;
class QAction;
class QComboBox;
class CampData;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QPushButton;
class QTreeView;

// The window that the officer keeps open all day: the search strip and the case list
// lvwCereri above, the panels of the selected application below, the menus that lead to every
// other window, the status bar. The rows and the search are built by ListaCereri; the window
// reads its controls and shows the result.
class frmMainNou : public QMainWindow, public ContextCerere {
    Q_OBJECT
public:
    explicit frmMainNou(QWidget* parinte = nullptr);
    ~frmMainNou() override;

    // ContextCerere
    bool ListaGoala() const override;
    std::optional<qint64> CerereSelectata() const override;
    QString SolicitantSelectat() const override;
    qint64 CerereCurenta() const override { return m_cerereCurenta; }
    int Adaug() const override { return m_adaug; }
    void SeteazaAdaug(int adaug) override { m_adaug = adaug; }

    // For the editors and the actions built around the list.
    // The position of the selected row, -1 when none; the text of a column of that row.
    int RandSelectat() const;
    QString TextSelectat(int coloana) const;
    // The application now current (RecCereri stands on it); the panels load its rows.
    void SeteazaCerereCurenta(qint64 cerereId) { m_cerereCurenta = cerereId; }
    // ConstruiesteRand: builds (Adaug 0 or 1) or rewrites (Adaug 2, the selected row) the row
    // of an application. Throws Eroare when the application is gone or no row is selected.
    // Returns the row's position.
    int ConstruiesteRand(qint64 cerereId);
    // After cmdAdd saved: the new row, buttons on, the last row shown and selected, focus.
    void RandAdaugat(qint64 cerereId);
    // After cmdEdit saved: the selected row rewritten, the row at `pozitie` shown and selected.
    void RandModificat(qint64 cerereId, int pozitie);
    // After a delete: the row leaves the list, the row that moved into its place (or the last
    // one) is selected, and the result line counts what is left.
    void RandSters(int pozitie);
    // Selects and shows a row, with the focus on the list.
    void SelecteazaRand(int pozitie);
    // cmdCauta: the search again, with what the search fields hold.
    void Cauta();
    // The inquiries and the dispositions of the current application again.
    void ReincarcaPanouri();
    void ActiveazaButoaneCerere(bool activ);
    void VerificaDatePrimarie();
    // Panel 4 of the status bar, after the active month changed.
    void ScrieLunaActiva();

    PanouriCerere* panouri() const { return m_panouri; }
    ModelCereri* modelCereri() const { return m_model; }
    QTreeView* lvwCereri() const { return m_lvwCereri; }
    QPushButton* buton(const QString& nume) const;
    QAction* meniu(const QString& nume) const;

    // Ends the program after the question, for cmdExit, mnuExit and mnuExit2.
    void Iesire();

private:
    void ConstruiesteFereastra();
    QWidget* ConstruiesteCautarea();
    QWidget* ConstruiesteLista();
    void ConstruiesteMeniuri(); // frmMainNouMeniuri.cpp
    void LeagaMeniuri();        // frmMainNouMeniuri.cpp
    void LeagaActiuni();
    void Deschide();
    void UmpleStrazi();
    void UmpleStari();
    void IncarcaLista(std::vector<RandCerere> randuri);
    void GolesteFiltre();
    FiltruCautare CitesteFiltru() const;
    void SelectieRand();
    void ClicPeAntet(int coloana);
    bool eventFilter(QObject* obj, QEvent* ev) override;

    QLineEdit* m_txtCauta[6] = {};
    QComboBox* m_cboStrada = nullptr;
    QListWidget* m_lstStare = nullptr;
    QLabel* m_lblRezul = nullptr;
    QTreeView* m_lvwCereri = nullptr;
    ModelCereri* m_model = nullptr;
    CampData* m_dtpDataFisa = nullptr;
    PanouriCerere* m_panouri = nullptr;
    QLabel* m_panouStare[5] = {};
    QHash<QString, QPushButton*> m_butoane;
    QHash<QString, QAction*> m_meniuri;

    int m_adaug = 0;
    qint64 m_cerereCurenta = 0;
    bool m_selectieProgram = false;
};
