#include "common/Eroare.h"

const char* Eroare::what() const noexcept
{
    thread_local QByteArray buf;
    buf = text().toUtf8();
    return buf.constData();
}

QString Eroare::text(const QString& prefix) const
{
    return prefix + QString::number(numar) + QLatin1Char(' ') + descriere;
}
