#include "applications/BlocareRetea.h"

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
    // No sharing: a second opener, on this or another workstation, fails at once.
    HANDLE h = CreateFileW(cale.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                           nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return false;
    OVERLAPPED ov{};
    if (!LockFileEx(h, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &ov)) {
        CloseHandle(h);
        return false;
    }
    m_h = h;
    return true;
}

void BlocareRetea::elibereaza()
{
    if (!m_h)
        return;
    OVERLAPPED ov{};
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
