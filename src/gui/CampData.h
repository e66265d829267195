#pragma once
#include <QDate>
#include <QDateEdit>

// A date picker that can also hold no date (the zero date): it shows an empty box then.
// Delete empties it; picking or typing a date fills it again. Format dd.MM.yyyy.
class CampData : public QDateEdit {
    Q_OBJECT
public:
    explicit CampData(QWidget* parent = nullptr);

    // The date, or the zero date when the box is empty.
    QDate data() const;
    // An invalid date empties the box.
    void seteazaData(const QDate& d);
    bool esteGoala() const;

protected:
    void keyPressEvent(QKeyEvent* ev) override;
    bool eventFilter(QObject* obj, QEvent* ev) override;
};
