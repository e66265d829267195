#include "gui/AlegeFisier.h"

#include "gui/Modal.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

QString AlegeFisierDeSalvat(const QString& titlu, const QString& implicit, const QString& filtru, const QString& sufix,
                            QWidget* parinte)
{
    // The same dialog that QFileDialog::getSaveFileName builds.
    const QFileInfo start(implicit);
    QFileDialog d(parinte, titlu, start.absolutePath(), filtru);
    d.setObjectName(QStringLiteral("dlgSalveazaFisier"));
    d.setAcceptMode(QFileDialog::AcceptSave);
    d.setFileMode(QFileDialog::AnyFile);
    d.setDefaultSuffix(sufix);
    d.selectFile(start.fileName());
    if (DeschideModal(d) != QDialog::Accepted)
        return QString();
    const QStringList ales = d.selectedFiles();
    if (ales.isEmpty() || ales.first().isEmpty())
        return QString();
    return QDir::toNativeSeparators(ales.first());
}
