#pragma once
#include <QWidget>
#include "history/IstoricCereri.h"

#include <optional>
#include <vector>

class ContextCerere;
class CampData;
class PanouPlati;
class QAbstractButton;
class QLabel;
class QPushButton;
class QTreeWidget;

// The lower half of the main window: the toggles opt(0..4) "Anchete", "Dispozitii", "Plati",
// "Adeverinte", "Istoric" choose one of the containers picMain(0..4); the first two hold the
// inquiries and the dispositions of the application, with their buttons; "Plati" and
// "Adeverinte" stand empty; "Istoric" lists the case's history, with a date picker that shows
// the case as it stood on that day, and under it the family's payments in the closed months.
class PanouriCerere : public QWidget {
    Q_OBJECT
public:
    explicit PanouriCerere(ContextCerere& context, QWidget* parinte = nullptr);

    // Refill the lists with the rows of an application. Errors of the data layer come out as
    // Eroare, for the caller to show.
    void IncarcaAnchete(qint64 cerereId);
    void IncarcaDispozitii(qint64 cerereId);
    void IncarcaIstoric(qint64 cerereId);
    void ActiveazaButoaneAncheta(bool activ); // cmdEditAncheta, cmdDelAncheta
    void ActiveazaButoaneDisp(bool activ);    // cmdEditDisp, cmdDelDisp, cmdPrintDisp
    void ActiveazaAdaugare(bool activ);       // cmdAddAncheta, cmdAddDisp (with the case buttons)

    // Shows the container of that index and hides the others, as a click on opt(index).
    void AlegePanou(int index);

    // The key of the selected row of each list, nothing when none is selected.
    std::optional<qint64> AnchetaSelectata() const;
    std::optional<qint64> DispozitieSelectata() const;

    QTreeWidget* lvwAnchete() const { return m_lvwAnchete; }
    QTreeWidget* lvwDispozitii() const { return m_lvwDispozitii; }
    QLabel* lblExplic() const { return m_lblExplic; }
    QPushButton* cmdAddAncheta() const { return m_cmdAddAncheta; }
    QPushButton* cmdPrintAncheta() const { return m_cmdPrintAncheta; }
    QPushButton* cmdEditAncheta() const { return m_cmdEditAncheta; }
    QPushButton* cmdDelAncheta() const { return m_cmdDelAncheta; }
    QPushButton* cmdAddDisp() const { return m_cmdAddDisp; }
    QPushButton* cmdPrintDisp() const { return m_cmdPrintDisp; }
    QPushButton* cmdEditDisp() const { return m_cmdEditDisp; }
    QPushButton* cmdDelDisp() const { return m_cmdDelDisp; }
    QPushButton* cmdFisaDisp() const { return m_cmdFisaDisp; }
    QTreeWidget* lvwIstoric() const { return m_lvwIstoric; }
    CampData* dtpIstoric() const { return m_dtpIstoric; }
    QLabel* lblIstoricLa() const { return m_lblIstoricLa; }
    PanouPlati* plati() const { return m_plati; }

private:
    QWidget* panouLista(int index, QTreeWidget* lista, const QList<QPushButton*>& butoane);
    QWidget* panouIstoric();
    void arataStareLa();

    ContextCerere& m_context;
    QList<QAbstractButton*> m_opt;
    QList<QWidget*> m_picMain;
    QLabel* m_lblExplic;
    QTreeWidget* m_lvwAnchete;
    QTreeWidget* m_lvwDispozitii;
    QTreeWidget* m_lvwPlati;
    QTreeWidget* m_lvwAdeverinte;
    QPushButton* m_cmdAddAncheta;
    QPushButton* m_cmdPrintAncheta;
    QPushButton* m_cmdEditAncheta;
    QPushButton* m_cmdDelAncheta;
    QPushButton* m_cmdAddDisp;
    QPushButton* m_cmdPrintDisp;
    QPushButton* m_cmdEditDisp;
    QPushButton* m_cmdDelDisp;
    QPushButton* m_cmdFisaDisp;
    QTreeWidget* m_lvwIstoric;
    CampData* m_dtpIstoric;
    QLabel* m_lblIstoricLa;
    PanouPlati* m_plati;
    std::vector<RandIstoric> m_istoric;
};
