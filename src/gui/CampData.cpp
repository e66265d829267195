#include "gui/CampData.h"

#include "common/Ceas.h"
#include "common/Data.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>

namespace {
// The lowest date stands for "no date" and is shown as an empty box.
const QDate Gol(1900, 1, 1);

bool esteSeparator(QChar c)
{
    return c == QLatin1Char('.') || c == QLatin1Char('/') || c == QLatin1Char('-');
}

// A whole date: day, month and a four-digit year with separators, or eight digits.
bool esteCompleta(const QString& t)
{
    static const QRegularExpression forma(QStringLiteral("^(\\d{1,2}[./-]\\d{1,2}[./-]\\d{4}|\\d{8})$"));
    return forma.match(t).hasMatch();
}
} // namespace

CampData::CampData(QWidget* parent, bool poateFiGoala) : QDateEdit(parent), m_poateFiGoala(poateFiGoala)
{
    setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    setCalendarPopup(true);
    setMinimumDate(Gol);
    setMaximumDate(QDate(9999, 12, 31));
    if (m_poateFiGoala) {
        setSpecialValueText(QStringLiteral(" "));
        setDate(Gol);
    }
    calendarWidget()->installEventFilter(this);
}

QDate CampData::data() const
{
    return esteGoala() ? DataZero : date();
}

void CampData::seteazaData(const QDate& d)
{
    if (d.isValid() || m_poateFiGoala)
        setDate(d.isValid() ? d : Gol);
}

bool CampData::esteGoala() const
{
    return m_poateFiGoala && date() == Gol;
}

void CampData::keyPressEvent(QKeyEvent* ev)
{
    if (tasteazaIntreaga(ev))
        return;
    if (m_poateFiGoala && ev->key() == Qt::Key_Delete && ev->modifiers() == Qt::NoModifier) {
        seteazaData(DataZero);
        return;
    }
    QDateEdit::keyPressEvent(ev);
}

// True when the key belongs to a date typed whole.
bool CampData::tasteazaIntreaga(QKeyEvent* ev)
{
    const QString t = ev->text();
    const QChar c = t.size() == 1 ? t[0] : QChar();
    const bool cifra = c.isDigit();
    if (!m_tastare) {
        const QLineEdit* e = lineEdit();
        const bool totulSelectat = e->hasSelectedText() && e->selectedText() == e->text();
        if (!cifra || !(totulSelectat || esteGoala()))
            return false;
        m_tastare = true;
        m_tastat.clear();
    }
    if (cifra || esteSeparator(c)) {
        if (m_tastat.size() < 10)
            m_tastat += c;
        arataTastat();
        if (esteCompleta(m_tastat))
            incheieTastarea();
        return true;
    }
    switch (ev->key()) {
    case Qt::Key_Backspace:
        m_tastat.chop(1);
        arataTastat();
        return true;
    case Qt::Key_Escape:
        m_tastat.clear();
        incheieTastarea();
        return true;
    default:
        // Any other key (Tab, Enter, an arrow) ends the typing and then does its own work.
        incheieTastarea();
        return false;
    }
}

void CampData::arataTastat()
{
    // Shown as it is typed; the date picker does not read it before it is complete.
    QLineEdit* e = lineEdit();
    const bool b = e->blockSignals(true);
    e->setText(m_tastat);
    e->setCursorPosition(int(m_tastat.size()));
    e->blockSignals(b);
}

void CampData::incheieTastarea()
{
    if (!m_tastare)
        return;
    m_tastare = false;
    QString t = m_tastat;
    for (QChar& c : t)
        if (esteSeparator(c))
            c = QLatin1Char('.');
    const QDate d = esteCompleta(m_tastat) ? CitesteData(t) : QDate();
    m_tastat.clear();
    const bool buna = d.isValid() && d >= minimumDate() && d <= maximumDate() && !(m_poateFiGoala && d == Gol);
    if (!buna)
        QApplication::beep();
    // Setting the date also writes it back into the box, the earlier one when the typed text
    // was no date.
    setDate(buna ? d : date());
    lineEdit()->selectAll();
}

void CampData::focusOutEvent(QFocusEvent* ev)
{
    incheieTastarea();
    QDateEdit::focusOutEvent(ev);
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
