#include "gui/IntrareNumerica.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QRegularExpressionValidator>

void DoarCifreSiPunct(QLineEdit* e, int maxim)
{
    static const QRegularExpression cifre(QStringLiteral("[0-9.]*"));
    e->setValidator(new QRegularExpressionValidator(cifre, e));
    if (maxim > 0)
        e->setMaxLength(maxim);
}
