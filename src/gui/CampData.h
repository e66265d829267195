#pragma once
#include <QDate>
#include <QDateEdit>

// The date field of the editors, format dd.MM.yyyy. A date typed whole over the selected
// field (or into an empty one) is taken whole, as a clerk types it: 01.03.2020, 1.3.2020,
// 1/3/2020 or 01032020. What is being typed shows in the box; it becomes the date as soon as
// it is complete. A text that is no date, or is left unfinished, gives the earlier date back
// with a beep. Typing inside a part of the date (the day, the month, the year) works as in
// any date picker.
//
// A field that may hold no date (the zero date) shows an empty box then: Delete empties it;
// picking or typing a date fills it again.
class CampData : public QDateEdit {
    Q_OBJECT
public:
    explicit CampData(QWidget* parent = nullptr, bool poateFiGoala = true);

    // The date, or the zero date when the box is empty.
    QDate data() const;
    // An invalid date empties the box (in a field that may hold no date).
    void seteazaData(const QDate& d);
    bool esteGoala() const;

protected:
    void keyPressEvent(QKeyEvent* ev) override;
    void focusOutEvent(QFocusEvent* ev) override;
    bool eventFilter(QObject* obj, QEvent* ev) override;

private:
    bool tasteazaIntreaga(QKeyEvent* ev);
    void arataTastat();
    void incheieTastarea();

    bool m_poateFiGoala;
    bool m_tastare = false; // a whole date is being typed
    QString m_tastat;
};
