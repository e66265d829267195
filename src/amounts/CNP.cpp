#include "amounts/CNP.h"

#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Text.h"

namespace {

int cifra(const QString& s, int pozitie) // pozitie counted from 1
{
    return s.at(pozitie - 1).unicode() - '0';
}

int valoare(const QString& s, int pozitie, int lungime)
{
    return static_cast<int>(ValoareIntreaga(s.mid(pozitie - 1, lungime)));
}

int prefixSecol(const QString& cnp)
{
    const QString p = cnp.left(1);
    if (p == QLatin1String("1") || p == QLatin1String("2"))
        return 1900;
    if (p == QLatin1String("5") || p == QLatin1String("6"))
        return 2000;
    return 0;
}

} // namespace

bool CNPDe13Cifre(const QString& cnp)
{
    if (cnp.size() != 13)
        return false;
    for (const QChar c : cnp)
        if (c.unicode() < '0' || c.unicode() > '9')
            return false;
    return true;
}

QString MotivCNPInvalid(const QString& cnp)
{
    if (cnp.size() != 13)
        return QStringLiteral("Nr caractere insuficiente");
    if (!CNPDe13Cifre(cnp))
        return QStringLiteral("Codul numeric personal nu este un numar");
    const int luna = valoare(cnp, 4, 2);
    if (luna < 1 || luna > 12)
        return QStringLiteral("LUNA nasterii din CNP nu este una valida.");
    const int zi = valoare(cnp, 6, 2);
    // February has 29 days in every year: there is no leap-year test.
    int maxZi = 31;
    if (luna == 2)
        maxZi = 29;
    else if (luna == 4 || luna == 6 || luna == 9 || luna == 11)
        maxZi = 30;
    if (zi < 1 || zi > maxZi)
        return QStringLiteral("ZIUA nasterii din CNP nu este una valida.");
    const int judet = valoare(cnp, 8, 2);
    if (!((judet >= 1 && judet <= 47) || judet == 51 || judet == 52 || judet == 99))
        return QStringLiteral("CNP-ul e posibil sa aiba codul judetului incorect.");
    static const int ponderi[12] = {2, 7, 9, 1, 4, 6, 3, 5, 8, 2, 7, 9};
    int suma = 0;
    for (int i = 0; i < 12; ++i)
        suma += cifra(cnp, i + 1) * ponderi[i];
    int control = suma % 11;
    if (control == 10)
        control = 1;
    // A wrong control digit has no message of its own: the office knows the county text.
    if (control != cifra(cnp, 13))
        return QStringLiteral("CNP-ul e posibil sa aiba codul judetului incorect.");
    return QString();
}

bool ValidareCNP(const QString& cnp, bool showMessages)
{
    const QString motiv = MotivCNPInvalid(cnp);
    if (motiv.isEmpty())
        return true;
    if (showMessages)
        Mesaj(QStringLiteral("CNP invalid.\r\n") + motiv, Mesaje::Icon::Niciuna, QStringLiteral("CNP"));
    return false;
}

QString SexDinCNP(const QString& cnp)
{
    const QString p = cnp.left(1);
    if (p == QLatin1String("1"))
        return QStringLiteral("m");
    if (p == QLatin1String("2"))
        return QStringLiteral("f");
    return QStringLiteral("n");
}

QDate DataNasteriiDinCNP(const QString& cnp, bool plus18)
{
    const int an = prefixSecol(cnp) + valoare(cnp, 2, 2);
    const int luna = valoare(cnp, 4, 2);
    const int zi = valoare(cnp, 6, 2);
    if (luna > 12) {
        Mesaj(QStringLiteral("Luna incorecta"));
        return DataZero;
    }
    if (zi > 31) {
        Mesaj(QStringLiteral("Zi incorecta"));
        return DataZero;
    }
    return DataSerial(plus18 ? an + 18 : an, luna, zi);
}

QString TextDataNasteriiDinCNP(const QString& cnp)
{
    if (!(ValoareNumerica(cnp) > 0))
        return QString();
    const int luna = valoare(cnp, 4, 2);
    if (luna < 1 || luna > 12)
        throw Eroare(CodEroare::IndiceInafara, QStringLiteral("Luna din CNP nu exista (indice in afara domeniului)."),
                     QStringLiteral("TextDataNasteriiDinCNP"));
    const int an = prefixSecol(cnp) + valoare(cnp, 2, 2);
    return QString::number(valoare(cnp, 6, 2)) + QLatin1Char(' ') + NumeLuna(luna) + QLatin1Char(' ') +
           QStringLiteral("%1").arg(an, 4, 10, QLatin1Char('0'));
}

int VarstaInAni(const QDate& referinta, const QDate& nastere, const QString& cnp)
{
    if (EsteDataZero(nastere)) {
        Mesaj(cnp.isEmpty() ? QStringLiteral("Nu s-a transmis Data Nasterii")
                            : QStringLiteral("Partea asta nu e facuta inca!"));
        return 0;
    }
    return referinta.year() - nastere.year();
}
