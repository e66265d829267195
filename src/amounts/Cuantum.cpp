#include "amounts/Cuantum.h"

#include "database/BD.h"
#include "common/Mesaje.h"
#include "common/Text.h"

namespace {

enum class EfectOcupatie { Copil, Nimic, Nepotrivit };

// What a member whose right still runs brings to the child count.
EfectOcupatie efectOcupatie(int ocupatie)
{
    switch (ocupatie) {
    case 8:  // pupil
    case 11: // pre-school child
        return EfectOcupatie::Copil;
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 7:
    case 10: return EfectOcupatie::Nepotrivit;
    default: // 12 "Altele" and codes outside the list
        return EfectOcupatie::Nimic;
    }
}

} // namespace

RezultatCuantum CalculCuantum(const BD& bd, const std::vector<MembruCerere>& membri, const QString& venitPeMembru,
                              int tipCerere, int anActiv)
{
    const CautareBarem barem = [&bd](int nrPers, int tip, int suma) -> std::optional<Bani> {
        const QVariant v = bd.scalar(
            QStringLiteral("SELECT Barem FROM Barem WHERE NrPers = ? AND Tip = ? AND Suma = ?"), {nrPers, tip, suma});
        if (!v.isValid())
            return std::nullopt;
        return Bani::dinVariant(v);
    };
    return CalculCuantum(barem, membri, venitPeMembru, tipCerere, anActiv);
}

RezultatCuantum CalculCuantum(const CautareBarem& cautare, const std::vector<MembruCerere>& membri,
                              const QString& venitPeMembru, int tipCerere, int anActiv)
{
    RezultatCuantum r;
    if (membri.empty())
        return r;

    int copii = 0;
    for (const MembruCerere& m : membri) {
        RezultatCuantum::Membru& x = r.membri.emplace_back();
        // Only the years are compared: a child whose 18th birthday is already past in the
        // active year still counts. An adult has the zero date, whose year is always lower.
        if (!m.Data18Ani.isValid()) {
            x.motiv = QStringLiteral("adult (fara data de 18 ani)");
            continue;
        }
        if (m.Data18Ani.year() < anActiv) {
            x.motiv = QStringLiteral("a implinit 18 ani in %1, inainte de %2").arg(m.Data18Ani.year()).arg(anActiv);
            continue;
        }
        switch (efectOcupatie(m.OcupatieID)) {
        case EfectOcupatie::Copil:
            ++copii;
            x.numarat = true;
            x.motiv = QStringLiteral("copil (ocupatia %1), 18 ani in %2").arg(m.OcupatieID).arg(m.Data18Ani.year());
            break;
        case EfectOcupatie::Nepotrivit:
            Mesaj(MesajOcupatieCNP);
            x.motiv = MesajOcupatieCNP;
            break;
        case EfectOcupatie::Nimic: x.motiv = QStringLiteral("ocupatia %1 nu se numara").arg(m.OcupatieID); break;
        }
    }
    if (copii == 0)
        return r; // the child count stays as it was shown
    r.nrCopii = copii;

    // Rounded to four decimals first: 199.99996 is 200.0000 and falls in the second tier.
    const Bani venit = Bani::dinText(venitPeMembru);
    int suma = 0;
    if (venit < PragVenit200)
        suma = 200;
    else if (venit < PragVenit370)
        suma = 370;
    else
        return r;

    const int nrPers = copii >= 4 ? 4 : copii;
    r.baremNrPers = nrPers;
    r.baremSuma = suma;
    const std::optional<Bani> barem = cautare(nrPers, tipCerere, suma);
    if (!barem) {
        r.eroare = QStringLiteral("Nu exista randul din Barem pentru %1 copii (NrPers = %2), tipul de alocatie %3 "
                                  "si venitul sub %4 lei. Completati baremul!")
                       .arg(copii)
                       .arg(nrPers)
                       .arg(tipCerere)
                       .arg(suma);
        return r;
    }
    r.cuantum = *barem;
    return r;
}

std::optional<Bani> SumaVenituri(const VenituriCerere& venituri)
{
    std::optional<Bani> s = Bani();
    for (int i = 0; i < NrCoduriVenit - 1 && s; ++i)
        s = s->plus(venituri[static_cast<std::size_t>(i)]);
    return s;
}

QString TextVenitPeMembru(const QString& venitTotal, const QString& nrMembrii, const QString& textVechi)
{
    const double membri = ValoareNumerica(nrMembrii);
    if (!(membri > 0))
        return textVechi;
    return TextNumar(ValoareNumerica(venitTotal) / membri);
}

void RecalculVenitPeMembru(Cerere& c)
{
    c.VenitpeMembru = TextVenitPeMembru(c.VenitTotal, c.NrMembrii, c.VenitpeMembru);
}

RezultatCuantum RecalculCuantum(const BD& bd, Cerere& c, int anActiv)
{
    RezultatCuantum r = CalculCuantum(bd, c.Membrii, c.VenitpeMembru, c.TipCerere, anActiv);
    if (r.nrCopii)
        c.NrCopii = QString::number(*r.nrCopii);
    if (!r.eroare.isEmpty())
        Mesaj(r.eroare, Mesaje::Icon::Exclamare);
    c.Cuantum = r.cuantum.text();
    return r;
}

void RecalculMembri(const BD& bd, Cerere& c, int anActiv, int randuriLista)
{
    const int n = static_cast<int>(c.Membrii.size());
    if (randuriLista < 0)
        randuriLista = n;
    if (randuriLista != n)
        Mesaj(MesajMembriiDiferiti);
    c.NrMembrii = QString::number(randuriLista);
    RecalculVenitPeMembru(c);
    RecalculCuantum(bd, c, anActiv);
}

void AcceptaVenituri(const BD& bd, Cerere& c, int anActiv)
{
    // The income editor accepted these incomes only with a total that fits (VerificaVenituri).
    c.VenitTotal = SumaVenituri(c.Venituri).value_or(Bani()).text();
    RecalculVenitPeMembru(c);
    RecalculCuantum(bd, c, anActiv);
}
