#pragma once
#include <QString>
#include <QStringList>

// Hands a written document to the word processor of the workstation (setting AppWord) and
// lets go of it: 1 the desktop's default application for RTF, 2 LibreOffice Writer, 3 a
// message only (that variant was never finished), anything else nothing. When the chosen one
// of the first two cannot be started, the other one is tried.
class LansatorDocumente {
public:
    virtual ~LansatorDocumente() = default;
    // Opens the file in the desktop's default application; false when nothing could be started.
    virtual bool deschideImplicit(const QString& cale) = 0;
    // Starts a program on its own; false when it could not be started.
    virtual bool porneste(const QString& program, const QStringList& argumente) = 0;

    // The process's launcher: the system's until a test installs a stand-in.
    static LansatorDocumente& curent();
    static void seteaza(LansatorDocumente* l);
};

// The real one: QDesktopServices in the desktop program, xdg-open elsewhere; QProcess detached.
class LansatorSistem : public LansatorDocumente {
public:
    bool deschideImplicit(const QString& cale) override;
    bool porneste(const QString& program, const QStringList& argumente) override;
};

// The sentence that follows a failed launch.
inline const QString FrazaAplicatieRtf =
    QStringLiteral("Setati corect aplicatia pentru deschiderea rtf-ului: MS Word sau Oppen Office Writer");

// Opens the document of that name in the program folder by the setting AppWord. When nothing
// can open it, that is told with the sentence above and the result is false.
bool DeschideDocument(const QString& numeFisier);
// The same for a full path and an explicit AppWord value.
bool DeschideFisierDocument(const QString& cale, int appWord);
