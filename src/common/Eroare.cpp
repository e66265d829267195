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

bool OpresteLucrul(int numar)
{
    switch (numar) {
    case CodEroare::BazaOcupata:
    case CodEroare::FaraScriere:
    case CodEroare::ServerInaccesibil:
    case CodEroare::DiscPlin:
    case CodEroare::OficiuMutat:
    case CodEroare::BazaInchisa: return true;
    default: return false;
    }
}
