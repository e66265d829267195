#pragma once
#include <QWidget>
#include <optional>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeWidget;

// The family's payments in the tab "Istoric": every closed month in which the application was
// paid (lvwPlatiLuni), all of them or one year's (cboAnPlati), the total (lblTotalPlati), and
// the page for the counter printed (cmdTiparirePlati, through the print preview) or written to
// a PDF file (cmdPdfPlati).
class PanouPlati : public QWidget {
    Q_OBJECT
public:
    explicit PanouPlati(QWidget* parinte = nullptr);

    // The payments of an application; nothing shown for 0. Errors of the data layer come out
    // as Eroare, for the caller to show.
    void Incarca(qint64 cerereId);

    QTreeWidget* lvwPlatiLuni() const { return m_lista; }
    QComboBox* cboAnPlati() const { return m_ani; }
    QLabel* lblTotalPlati() const { return m_total; }

private:
    // The year chosen: nothing for every year.
    std::optional<int> anAles() const;
    void arata();
    void tipareste();
    void scriePdf();
    // "Plati-<number>-<year>.pdf".
    QString numeFisierPdf() const;

    qint64 m_cerereId = 0;
    qint64 m_nrCerere = 0; // the number the file name offered carries
    QTreeWidget* m_lista;
    QComboBox* m_ani;
    QLabel* m_total;
    QPushButton* m_tiparire;
    QPushButton* m_pdf;
};
