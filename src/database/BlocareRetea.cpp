#include "database/BlocareRetea.h"

#include "common/Proces.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

QString BlocareRetea::fisier(const QString& folder)
{
    return QDir(folder).filePath(QStringLiteral("snet.txt"));
}

namespace {

// The holder's name as it goes into the file.
QByteArray numeDetinator()
{
    return QStringLiteral("%1 (utilizatorul %2, procesul %3, de la %4)")
        .arg(Proces::statie(), Proces::utilizatorSistem())
        .arg(QCoreApplication::applicationPid())
        .arg(QDateTime::currentDateTime().toString(QStringLiteral("dd.MM.yyyy HH:mm")))
        .toUtf8();
}

} // namespace

QString BlocareRetea::detinator(const QString& folder)
{
    QFile f(fisier(folder));
    if (!f.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(f.read(512)).trimmed();
}

BlocareRetea::~BlocareRetea()
{
    elibereaza();
}

bool BlocareRetea::incearca(const QString& folder)
{
    return incearcaFisier(fisier(folder));
}

#ifdef _WIN32

bool BlocareRetea::incearcaFisier(const QString& fisierBlocare)
{
    if (detinut())
        return true;
    const std::wstring cale = QDir::toNativeSeparators(fisierBlocare).toStdWString();
    // The lock is one byte far past the holder's name, so that others can still read the name;
    // a second locker, on this or another workstation, fails at once.
    HANDLE h = CreateFileW(cale.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                           OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return false;
    OVERLAPPED ov{};
    ov.OffsetHigh = 1;
    if (!LockFileEx(h, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &ov)) {
        CloseHandle(h);
        return false;
    }
    const QByteArray nume = numeDetinator();
    DWORD scrise = 0;
    SetFilePointer(h, 0, nullptr, FILE_BEGIN);
    WriteFile(h, nume.constData(), DWORD(nume.size()), &scrise, nullptr);
    SetEndOfFile(h);
    m_h = h;
    return true;
}

void BlocareRetea::elibereaza()
{
    if (!m_h)
        return;
    OVERLAPPED ov{};
    ov.OffsetHigh = 1;
    UnlockFileEx(static_cast<HANDLE>(m_h), 0, 1, 0, &ov);
    CloseHandle(static_cast<HANDLE>(m_h));
    m_h = nullptr;
}

bool BlocareRetea::detinut() const
{
    return m_h != nullptr;
}

#else

bool BlocareRetea::incearcaFisier(const QString& fisierBlocare)
{
    if (detinut())
        return true;
    const QByteArray cale = QFile::encodeName(fisierBlocare);
    const int fd = ::open(cale.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (fd < 0)
        return false;
    // flock locks belong to the open file: a second open, in this process or another, is
    // refused at once, and the kernel drops the lock when the holder ends.
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd);
        return false;
    }
    // The name is a courtesy for whoever is refused; a failure to write it changes nothing.
    const QByteArray nume = numeDetinator();
    [[maybe_unused]] const bool scris =
        ::ftruncate(fd, 0) == 0 && ::pwrite(fd, nume.constData(), size_t(nume.size()), 0) == ssize_t(nume.size());
    m_fd = fd;
    return true;
}

void BlocareRetea::elibereaza()
{
    if (m_fd < 0)
        return;
    ::flock(m_fd, LOCK_UN);
    ::close(m_fd);
    m_fd = -1;
}

bool BlocareRetea::detinut() const
{
    return m_fd >= 0;
}

#endif
