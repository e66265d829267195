#include "gui/CursorAsteptare.h"

#include <QApplication>

namespace {
// The ordinary cursor while a message is on screen.
struct FaraAsteptare {
    FaraAsteptare() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~FaraAsteptare() { QApplication::restoreOverrideCursor(); }
};
} // namespace

CursorAsteptare::CursorAsteptare() : m_anterior(Mesaje::curent())
{
    Mesaje::seteaza(this);
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

CursorAsteptare::~CursorAsteptare()
{
    QApplication::restoreOverrideCursor();
    Mesaje::seteaza(&m_anterior);
}

void CursorAsteptare::arata(const QString& text, const QString& titlu, Icon icon)
{
    FaraAsteptare f;
    m_anterior.arata(text, titlu, icon);
}

bool CursorAsteptare::intreaba(const QString& text, const QString& titlu, Icon icon, bool implicitDa)
{
    FaraAsteptare f;
    return m_anterior.intreaba(text, titlu, icon, implicitDa);
}

std::optional<QString> CursorAsteptare::citeste(const QString& text, const QString& titlu, const QString& implicit)
{
    FaraAsteptare f;
    return m_anterior.citeste(text, titlu, implicit);
}
