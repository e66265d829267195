#include "gui/CampData.h"

#include "common/Ceas.h"
#include "common/Data.h"

#include <QCalendarWidget>
#include <QKeyEvent>

namespace {
// The lowest date stands for "no date" and is shown as an empty box.
const QDate Gol(1900, 1, 1);
}

CampData::CampData(QWidget* parent)
    : QDateEdit(parent)
{
    setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    setCalendarPopup(true);
    setMinimumDate(Gol);
    setMaximumDate(QDate(9999, 12, 31));
    setSpecialValueText(QStringLiteral(" "));
    setDate(Gol);
    calendarWidget()->installEventFilter(this);
}

QDate CampData::data() const
{
    return esteGoala() ? DataZero : date();
}

void CampData::seteazaData(const QDate& d)
{
    setDate(d.isValid() ? d : Gol);
}

bool CampData::esteGoala() const
{
    return date() == Gol;
}

void CampData::keyPressEvent(QKeyEvent* ev)
{
    if (ev->key() == Qt::Key_Delete && ev->modifiers() == Qt::NoModifier) {
        seteazaData(DataZero);
        return;
    }
    QDateEdit::keyPressEvent(ev);
}

bool CampData::eventFilter(QObject* obj, QEvent* ev)
{
    // An empty box opens its calendar on the current month, not on the placeholder's.
    if (obj == calendarWidget() && ev->type() == QEvent::Show && esteGoala()) {
        const QDate azi = Ceas::azi();
        calendarWidget()->setCurrentPage(azi.year(), azi.month());
    }
    return QDateEdit::eventFilter(obj, ev);
}
