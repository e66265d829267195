#include "documents/DeschideDocument.h"

#include "common/Mesaje.h"
#include "common/Proces.h"

#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace {
LansatorSistem g_sistem;
LansatorDocumente* g_curent = nullptr;

// The error of a launch that did not happen; 429 is the number the office knew for an
// application that could not be started.
constexpr int EroareLansare = 429;
} // namespace

LansatorDocumente& LansatorDocumente::curent()
{
    return g_curent ? *g_curent : g_sistem;
}

void LansatorDocumente::seteaza(LansatorDocumente* l)
{
    g_curent = l;
}

bool LansatorSistem::deschideImplicit(const QString& cale)
{
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return QDesktopServices::openUrl(QUrl::fromLocalFile(cale));
#if defined(Q_OS_WIN)
    return QProcess::startDetached(QStringLiteral("cmd"),
                                   {QStringLiteral("/c"), QStringLiteral("start"), QString(), cale});
#elif defined(Q_OS_MACOS)
    return QProcess::startDetached(QStringLiteral("open"), {cale});
#else
    return QProcess::startDetached(QStringLiteral("xdg-open"), {cale});
#endif
}

bool LansatorSistem::porneste(const QString& program, const QStringList& argumente)
{
    QString cale = QStandardPaths::findExecutable(program);
#if defined(Q_OS_WIN)
    // LibreOffice's installer does not put itself on the PATH.
    if (cale.isEmpty())
        cale = QStandardPaths::findExecutable(program, {QStringLiteral("C:/Program Files/LibreOffice/program"),
                                                        QStringLiteral("C:/Program Files (x86)/LibreOffice/program")});
#endif
    return !cale.isEmpty() && QProcess::startDetached(cale, argumente);
}

namespace {

// The two ways of opening a document; each says why it could not, or "" when it did.
QString deschideImplicit(LansatorDocumente& l, const QString& cale)
{
    if (l.deschideImplicit(cale))
        return QString();
    return QStringLiteral("Nu exista o aplicatie implicita pentru fisierul %1").arg(QDir::toNativeSeparators(cale));
}

QString deschideWriter(LansatorDocumente& l, const QString& cale)
{
    const QStringList arg{QStringLiteral("--writer"), cale};
    if (l.porneste(QStringLiteral("soffice"), arg) || l.porneste(QStringLiteral("libreoffice"), arg))
        return QString();
    return QStringLiteral("LibreOffice Writer (soffice) nu a putut fi pornit");
}

} // namespace

bool DeschideFisierDocument(const QString& cale, int appWord)
{
    LansatorDocumente& l = LansatorDocumente::curent();
    QString descriere;
    switch (appWord) {
    case 1:
        // A machine without a desktop opener still shows the document when LibreOffice is there.
        descriere = deschideImplicit(l, cale);
        if (descriere.isEmpty() || deschideWriter(l, cale).isEmpty())
            return true;
        break;
    case 2:
        descriere = deschideWriter(l, cale);
        if (descriere.isEmpty() || deschideImplicit(l, cale).isEmpty())
            return true;
        break;
    case 3: Mesaj(QStringLiteral("Aceasta varianta nu e finalizata!")); return true;
    default: return true;
    }
    // Nothing could open it: the number, the description of the chosen way twice, and the
    // sentence, in the office's words.
    Mesaj(QStringLiteral("%1 %2 %2\n%3").arg(EroareLansare).arg(descriere, FrazaAplicatieRtf), Mesaje::Icon::Exclamare);
    return false;
}

bool DeschideDocument(const QString& numeFisier)
{
    return DeschideFisierDocument(QDir(Proces::folderProgram()).filePath(numeFisier), Proces::setari().AppWord);
}
