#include "shell/Parola.h"

#include "common/Eroare.h"
#include "common/FisiereHelper.h"
#include "common/Mesaje.h"
#include "common/Proces.h"

#include <QDir>

namespace {

// Writes the key; a file that cannot be written is told and the password stays as it was.
bool ScrieParola(const QString& valoare)
{
    if (FisiereHelper().ScrieIni(QStringLiteral("pass"), QStringLiteral("Generale"), FisierParola(), valoare)) {
        Proces::setari().pass = valoare;
        return true;
    }
    const Eroare e(CodEroare::FisierDeschis,
                   QStringLiteral("Fisierul %1 nu poate fi scris. Parola nu a fost schimbata.")
                       .arg(QDir::toNativeSeparators(FisierParola())),
                   QStringLiteral("frmParola"));
    Mesaj(e.text(), Mesaje::Icon::Critic);
    return false;
}

} // namespace

bool ParolaCorecta(const QString& tastata)
{
    return tastata == Proces::setari().pass;
}

QString FisierParola()
{
    return QDir(Proces::setari().CaleBD).filePath(QStringLiteral("setariOlt.ini"));
}

bool SchimbaParola(const QString& veche, const QString& noua, const QString& rescriere)
{
    if (!ParolaCorecta(veche)) {
        Mesaj(QStringLiteral("Parola veche este incorecta!"));
        return false;
    }
    if (noua.trimmed().isEmpty()) {
        Mesaj(QStringLiteral("Parola noua inexistenta!"));
        return false;
    }
    if (noua.trimmed() != rescriere.trimmed()) {
        Mesaj(QStringLiteral("Parola noua trebuie sa fie la fel in cele doua casute de text!"));
        return false;
    }
    return ScrieParola(noua.trimmed());
}

bool StergeParola(const QString& veche)
{
    if (!ParolaCorecta(veche)) {
        Mesaj(QStringLiteral("Parola veche este incorecta! Pentru a putea sterge parola trebuie sa o scrieti pe ce "
                             "veche mai intai"));
        return false;
    }
    return ScrieParola(QString());
}
