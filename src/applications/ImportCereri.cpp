#include "applications/ImportCereri.h"

#include "shell/Eroare.h"

// Placeholder until the application save lands in this folder.
std::vector<RezultatImport> ImportaCereri(BD&, const QJsonArray&, int, const std::function<void(const RezultatImport&)>&)
{
    throw Eroare(3000, QStringLiteral("Importul cererilor nu este inca disponibil."), QStringLiteral("import"));
}

QString VerificaFormaImport(const QJsonArray&)
{
    return QString();
}
