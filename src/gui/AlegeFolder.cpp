#include "gui/AlegeFolder.h"

#include "gui/Modal.h"
#include "common/Proces.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace {

QString FolderDeStart(const QString& start)
{
    QString f = start.trimmed();
    if (f.compare(QLatin1String("C:\\Program Files"), Qt::CaseInsensitive) == 0)
        f = Proces::folderProgram();
    const QFileInfo fi(QDir::fromNativeSeparators(f));
    if (!f.isEmpty() && fi.isDir())
        return fi.absoluteFilePath();
    return QDir::homePath();
}

} // namespace

QString AlegeFolder(const QString& titlu, const QString& start, QWidget* parinte)
{
    // The same dialog that QFileDialog::getExistingDirectory builds, opened through
    // DeschideModal so that tests can answer it.
    QFileDialog d(parinte, titlu, FolderDeStart(start));
    d.setObjectName(QStringLiteral("dlgAlegeFolder"));
    d.setFileMode(QFileDialog::Directory);
    d.setOption(QFileDialog::ShowDirsOnly, true);
    d.setAcceptMode(QFileDialog::AcceptOpen);
    if (DeschideModal(d) != QDialog::Accepted)
        return QString();
    const QStringList ales = d.selectedFiles();
    if (ales.isEmpty() || ales.first().isEmpty())
        return QString();
    return QDir::toNativeSeparators(ales.first());
}
