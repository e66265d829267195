#include "applications/RegulaVenituriLocuinta.h"

#include "amounts/Cuantum.h"

#include "database/BD.h"
#include "common/Text.h"

QString VerificaVenituri(const VenituriCerere& venituri)
{
    if (!venituri[NrCoduriVenit - 1].esteZero())
        return MesajCod80;
    return SumaVenituri(venituri) ? QString() : MesajTotalVenituriPreaMare;
}

VenituriCerere VenituriDinCelule(const QStringList& celule)
{
    VenituriCerere v{};
    for (int i = 0; i < NrCoduriVenit && i < celule.size(); ++i)
        v[static_cast<std::size_t>(i)] = Bani::dinText(celule[i]);
    return v;
}

QString TextTotalVenituri(double total)
{
    return QStringLiteral("Total venituri: ") + TextNumar(total) + QStringLiteral(" lei");
}

double TotalVenituriLaDeschidere(const VenituriCerere& venituri)
{
    // Shown only: a total past the money range (refused at OK) shows as the range's end.
    Bani s;
    for (const Bani& b : venituri)
        s = s.plus(b).value_or(b < Bani() ? Bani::minim() : Bani::maxim());
    return s.toDouble();
}

double TotalVenituriEditare(const QStringList& celule)
{
    // Added as the grid always added them: single precision, code 80 left out.
    float s = 0;
    for (int i = 0; i < NrCoduriVenit - 1 && i < celule.size(); ++i)
        s += static_cast<float>(ValoareNumerica(celule[i]));
    return static_cast<double>(s);
}

QString CitesteLocuinta(int index, bool bifat, const QString& camere, const QString& suprafata, LocuintaCerere& l)
{
    LocuintaCerere n = l;
    n.Cod = index + 1;
    n.folosita = bifat;
    if (index < NrLocuinteCuCamere) {
        const qint64 c = ValoareIntreaga(camere);
        if (c < 0 || c > 255)
            return QStringLiteral("Numarul de camere trebuie sa fie intre 0 si 255. Corectati!");
        n.NrCamere = static_cast<int>(c);
        n.Suprafata = ValoareNumerica(suprafata);
    }
    l = n;
    return QString();
}

QStringList RanduriBife(const BD& bd)
{
    QStringList r;
    Rezultat q = bd.selecteaza(QStringLiteral("SELECT NrBifa, Denumire FROM Bife ORDER BY NrBifa"));
    while (q.next())
        r << q.text("NrBifa") + QStringLiteral(". - ") + q.text("Denumire");
    return r;
}

std::vector<bool> BifeBifate(const QString& bife, int nrRanduri)
{
    std::vector<bool> b(static_cast<std::size_t>(std::max(nrRanduri, 0)), false);
    for (int n = 0; n < bife.size() && n < nrRanduri; ++n)
        b[static_cast<std::size_t>(n)] = bife[n] == QLatin1Char('1');
    return b;
}

QString TextBife(const std::vector<bool>& bifate)
{
    QString s;
    for (bool b : bifate)
        s += b ? QLatin1Char('1') : QLatin1Char('0');
    return s;
}
