#include "gui/FiltruEditare.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateEdit>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QWidget>

namespace {
const char* const ProprietateSelectie = "alocatiiSelecteaza";

void culoare(QWidget* w, bool activ)
{
    QPalette p = w->palette();
    p.setColor(QPalette::Base, activ ? QColor(192, 255, 255) : QColor(Qt::white));
    w->setPalette(p);
}
} // namespace

bool FiltruEditare::eventFilter(QObject* obj, QEvent* ev)
{
    auto* w = qobject_cast<QWidget*>(obj);
    if (!w)
        return false;
    switch (ev->type()) {
    case QEvent::FocusIn: {
        culoare(w, true);
        if (w->property(ProprietateSelectie).toBool()) {
            QLineEdit* e = qobject_cast<QLineEdit*>(w);
            if (!e)
                if (auto* c = qobject_cast<QComboBox*>(w))
                    e = c->lineEdit();
            if (e)
                QTimer::singleShot(0, e, [e] { e->selectAll(); });
        }
        break;
    }
    case QEvent::FocusOut: culoare(w, false); break;
    case QEvent::KeyPress: {
        auto* k = static_cast<QKeyEvent*>(ev);
        if ((k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter) && k->modifiers() == Qt::NoModifier) {
            // As the Tab key would: the next field in the window's order.
            QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            QCoreApplication::sendEvent(w, &tab);
            return true;
        }
        break;
    }
    default: break;
    }
    return false;
}

void InstaleazaFiltruEditare(QWidget* radacina, bool selecteaza)
{
    auto* filtru = new FiltruEditare(radacina);
    QList<QWidget*> tinte;
    for (QLineEdit* e : radacina->findChildren<QLineEdit*>())
        if (!qobject_cast<QComboBox*>(e->parentWidget()) && !qobject_cast<QAbstractSpinBox*>(e->parentWidget()))
            tinte << e;
    for (QComboBox* c : radacina->findChildren<QComboBox*>())
        tinte << c;
    for (QAbstractSpinBox* s : radacina->findChildren<QAbstractSpinBox*>())
        tinte << s;
    for (QWidget* w : tinte) {
        w->setProperty(ProprietateSelectie, selecteaza);
        w->installEventFilter(filtru);
    }
}

QString NumeControl(const char* familie, int index)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(familie)).arg(index);
}
