#include "maintenance/FisiereSigure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

bool SincronizeazaFisier(const QString& cale)
{
    QFile f(cale);
    if (!f.open(QIODevice::ReadWrite))
        return false;
#ifdef _WIN32
    return _commit(f.handle()) == 0;
#else
    return ::fsync(f.handle()) == 0;
#endif
}

bool InlocuiestePrinRedenumire(const QString& sursa, const QString& tinta)
{
#ifdef _WIN32
    const std::wstring s = QDir::toNativeSeparators(sursa).toStdWString();
    const std::wstring t = QDir::toNativeSeparators(tinta).toStdWString();
    return MoveFileExW(s.c_str(), t.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
#else
    if (::rename(QFile::encodeName(sursa).constData(), QFile::encodeName(tinta).constData()) != 0)
        return false;
    const int dir = ::open(QFile::encodeName(QFileInfo(tinta).absolutePath()).constData(), O_RDONLY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return true;
#endif
}
