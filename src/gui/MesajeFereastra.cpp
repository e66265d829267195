#include "gui/MesajeFereastra.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace {
QMessageBox::Icon iconQt(Mesaje::Icon i)
{
    switch (i) {
    case Mesaje::Icon::Informatie: return QMessageBox::Information;
    case Mesaje::Icon::Intrebare: return QMessageBox::Question;
    case Mesaje::Icon::Exclamare: return QMessageBox::Warning;
    case Mesaje::Icon::Critic: return QMessageBox::Critical;
    case Mesaje::Icon::Niciuna: break;
    }
    return QMessageBox::NoIcon;
}
} // namespace

void MesajeFereastra::arata(const QString& text, const QString& titlu, Icon icon)
{
    QMessageBox m(iconQt(icon), titlu, text, QMessageBox::Ok, QApplication::activeWindow());
    m.exec();
}

bool MesajeFereastra::intreaba(const QString& text, const QString& titlu, Icon icon, bool implicitDa)
{
    QMessageBox m(iconQt(icon), titlu, text, QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
    m.button(QMessageBox::Yes)->setText(QStringLiteral("&Da"));
    m.button(QMessageBox::No)->setText(QStringLiteral("&Nu"));
    m.setDefaultButton(implicitDa ? QMessageBox::Yes : QMessageBox::No);
    return m.exec() == QMessageBox::Yes;
}

std::optional<QString> MesajeFereastra::citeste(const QString& text, const QString& titlu, const QString& implicit)
{
    bool ok = false;
    const QString r =
        QInputDialog::getText(QApplication::activeWindow(), titlu, text, QLineEdit::Normal, implicit, &ok);
    if (!ok)
        return std::nullopt;
    return r;
}
