#include "MesajeScript.h"

#include <QGuiApplication>
#include <QtTest>

namespace {
bool asteptare()
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return false;
    const QCursor* c = QGuiApplication::overrideCursor();
    return c && c->shape() == Qt::WaitCursor;
}
} // namespace

MesajeScript::MesajeScript() : m_vechi(&Mesaje::curent())
{
    Mesaje::seteaza(this);
}

MesajeScript::~MesajeScript()
{
    Mesaje::seteaza(m_vechi);
    if (QTest::currentTestFailed() || (m_raspunsuri.isEmpty() && m_texte.isEmpty()))
        return;
    QStringList ramase;
    for (bool da : m_raspunsuri)
        ramase << (da ? QStringLiteral("Da") : QStringLiteral("Nu"));
    for (const QString& t : m_texte)
        ramase << QLatin1Char('"') + t + QLatin1Char('"');
    const QByteArray mesaj = ("Raspunsuri scriptate nefolosite: " + ramase.join(QStringLiteral(", "))).toLocal8Bit();
    QTest::qFail(mesaj.constData(), __FILE__, __LINE__);
}

QStringList MesajeScript::texte() const
{
    QStringList r;
    for (const Intrare& i : intrari)
        r << i.text;
    return r;
}

QString MesajeScript::ultimul() const
{
    return intrari.isEmpty() ? QString() : intrari.last().text;
}

void MesajeScript::arata(const QString& text, const QString& titlu, Icon icon)
{
    intrari << Intrare{text, titlu, icon, false, asteptare()};
}

bool MesajeScript::intreaba(const QString& text, const QString& titlu, Icon icon, bool implicitDa)
{
    intrari << Intrare{text, titlu, icon, true, asteptare()};
    return m_raspunsuri.isEmpty() ? implicitDa : m_raspunsuri.takeFirst();
}

std::optional<QString> MesajeScript::citeste(const QString& text, const QString& titlu, const QString& implicit)
{
    intrari << Intrare{text, titlu, Icon::Niciuna, true, asteptare()};
    if (m_texte.isEmpty())
        return implicit;
    return m_texte.takeFirst();
}
