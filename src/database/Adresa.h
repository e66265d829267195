#pragma once
#include <QString>

// The family's address as the list shows it: Localitate, then ", " + StrSat + " " + Strada,
// ", nr. " + Nr, ", sc. " + Sc, ", ap. " + Ap, each part only when its value is not empty.
QString AdresaCerere(const QString& localitate, const QString& strada, const QString& nr, const QString& sc,
                     const QString& ap, const QString& strSat);
