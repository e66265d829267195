#include "mainwindow/ListaCereri.h"

#include "database/BD.h"
#include "common/Bani.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Text.h"

#include <QRegularExpression>

#include <list>

namespace {

// The columns of the joined statement, in this order.
enum Pozitie {
    pCerereID,
    pNrCerere,
    pTipCerere,
    pStare,
    pEticheta,
    pDataCerere,
    pMembruID,
    pNume,
    pPrenume,
    pCNP,
    pLocalitate,
    pStrada,
    pNr,
    pSc,
    pAp,
    pVenitTotal,
    pCuantum,
    pNrMembrii,
    pNrCopii
};

QString textBD(const QVariant& v)
{
    return v.isNull() ? QString() : v.toString();
}

// A number column as it is kept: NaN for NULL.
double numarBD(const QVariant& v)
{
    return v.isNull() || !v.isValid() ? NAN : v.toDouble();
}

// The texts that repeat from row to row (the status labels) are kept once and shared by the
// rows, as QString shares its text between copies.
class Etichete {
public:
    const QString& eticheta(const QVariant& v)
    {
        const QString t = textBD(v);
        for (const QString& e : m_etichete)
            if (e == t)
                return e;
        m_etichete.push_back(t);
        return m_etichete.back();
    }

private:
    std::list<QString> m_etichete;
};

RandCerere randDinRezultat(const Rezultat& r, const QString& strSat, Etichete& etichete)
{
    RandCerere rand;
    rand.cerereId = r.valoare(pCerereID).toLongLong();
    rand.stare = r.valoare(pStare).toInt();
    rand.culoare = CuloareDinStare(rand.stare);
    rand.nrCerere = numarBD(r.valoare(pNrCerere));
    const QVariant tip = r.valoare(pTipCerere);
    rand.tipCerere = tip.isNull() ? 0 : tip.toInt();
    rand.eticheta = etichete.eticheta(r.valoare(pEticheta));
    rand.dataCerere = DataDinBD(r.valoare(pDataCerere));
    if (!r.valoare(pMembruID).isNull()) {
        rand.solicitant = textBD(r.valoare(pNume)) + QLatin1Char(' ') + textBD(r.valoare(pPrenume));
        rand.cnp = textBD(r.valoare(pCNP));
    }
    rand.adresa = AdresaCerere(textBD(r.valoare(pLocalitate)), textBD(r.valoare(pStrada)), textBD(r.valoare(pNr)),
                               textBD(r.valoare(pSc)), textBD(r.valoare(pAp)), strSat);
    rand.venitTotal = Bani::dinVariant(r.valoare(pVenitTotal));
    const QVariant cuantum = r.valoare(pCuantum);
    if (!cuantum.isNull())
        rand.cuantum = Bani::dinVariant(cuantum);
    rand.nrMembrii = numarBD(r.valoare(pNrMembrii));
    rand.nrCopii = numarBD(r.valoare(pNrCopii));
    return rand;
}

QString textNumar(double x)
{
    return std::isnan(x) ? QString() : TextNumar(x);
}

std::vector<RandCerere> citeste(const BD& bd, const QString& sql, const QVariantList& valori, const QString& strSat)
{
    std::vector<RandCerere> randuri;
    Etichete etichete;
    Rezultat r = bd.selecteaza(sql, valori);
    while (r.next())
        randuri.push_back(randDinRezultat(r, strSat, etichete));
    return randuri;
}

} // namespace

QString RandCerere::text(int coloana) const
{
    switch (coloana) {
    case ColCerere::ID: return QString::number(cerereId);
    case ColCerere::NrCerere: return textNumar(nrCerere);
    case ColCerere::Tip: return TextTipCerere(tipCerere);
    case ColCerere::Stare: return eticheta;
    case ColCerere::Data: return TextDataLunga(dataCerere);
    case ColCerere::Solicitant: return solicitant;
    case ColCerere::CNP: return cnp;
    case ColCerere::Adresa: return adresa;
    case ColCerere::VenitTotal: return venitTotal.text();
    case ColCerere::Cuantum: return cuantum ? cuantum->text() : QString();
    case ColCerere::NrMembrii: return textNumar(nrMembrii);
    case ColCerere::NrCopii: return textNumar(nrCopii);
    default: return QString();
    }
}

ConditieCautare ConstruiesteFiltru(const BD& bd, const FiltruCautare& f)
{
    QStringList parti;
    ConditieCautare c;
    auto prefix = [&](const QString& coloana, const QString& text) {
        if (text.isEmpty())
            return;
        parti << bd.conditieLike(coloana);
        c.valori << BD::valoarePrefix(text);
    };
    prefix(QStringLiteral("M.CNP"), f.cnp);
    prefix(QStringLiteral("M.Nume"), f.nume);
    prefix(QStringLiteral("M.Prenume"), f.prenume);
    if (!f.nrCerere.isEmpty()) {
        static const QRegularExpression numar(QStringLiteral("^\\s*[+-]?(\\d+(\\.\\d*)?|\\.\\d+)\\s*$"));
        const QString t = f.nrCerere.trimmed();
        if (!numar.match(f.nrCerere).hasMatch())
            throw Eroare(CodEroare::Sintaxa,
                         QStringLiteral("Numarul cererii se scrie numai cu cifre, nu \"%1\".").arg(f.nrCerere),
                         QStringLiteral("Cauta"));
        bool intreg = false;
        const qint64 n = t.toLongLong(&intreg);
        parti << QStringLiteral("C.NrCerere = ?");
        c.valori << (intreg ? QVariant(n) : QVariant(t.toDouble()));
    }
    if (!f.stari.isEmpty()) {
        QStringList semne;
        for (int s : f.stari) {
            semne << QStringLiteral("?");
            c.valori << s;
        }
        parti << QStringLiteral("C.Stare IN (%1)").arg(semne.join(QLatin1Char(',')));
    }
    c.conditie = parti.join(QStringLiteral(" AND "));
    return c;
}

CuloareRand CuloareDinStare(int stare)
{
    switch (stare) {
    case 2:
    case 6: return CuloareRand::Negru;
    case 3:
    case 4:
    case 5: return CuloareRand::Rosu;
    default: return CuloareRand::Neschimbata;
    }
}

const std::array<ColoanaLista, NrColoaneCereri>& ColoaneCereri()
{
    static const std::array<ColoanaLista, NrColoaneCereri> c = {{{"ID", 0},
                                                                 {"Nr cerere", 700},
                                                                 {"Tip", 1000},
                                                                 {"Stare", 1000},
                                                                 {"Data", 1800},
                                                                 {"Solicitant", 2000},
                                                                 {"CNP", 1700},
                                                                 {"Adresa", 1700},
                                                                 {"V. total", 1000},
                                                                 {"Cuantum", 1000},
                                                                 {"Nr. membrii", 1000},
                                                                 {"Nr. copii", 1000}}};
    return c;
}

QString TextTipCerere(const QVariant& tip)
{
    if (tip.isNull())
        return QString();
    switch (tip.toInt()) {
    case 1: return QStringLiteral("Cu sot");
    case 2: return QStringLiteral("Mono");
    default: return QString();
    }
}

QString SqlRanduriCereri(bool doarCuSolicitant, const QString& conditie, const QString& ordine)
{
    QString sql = QStringLiteral(
        "SELECT C.CerereID, C.NrCerere, C.TipCerere, C.Stare, G.Continut, C.DataCerere, M.MembruID, M.Nume, "
        "M.Prenume, M.CNP, F.Localitate, F.Strada, F.Nr, F.Sc, F.Ap, C.VenitTotal, C.Cuantum, C.NrMembrii, "
        "C.NrCopii FROM Cereri AS C ");
    sql += doarCuSolicitant ? QStringLiteral("INNER") : QStringLiteral("LEFT");
    // The status label: one row per code even if the list held a code twice.
    sql += QStringLiteral(
        " JOIN Membrii AS M ON C.MembruID1 = M.MembruID "
        "LEFT JOIN Familii AS F ON F.FamilieID = C.FamilieID "
        "LEFT JOIN (SELECT DataID, MIN(Continut) AS Continut FROM DateGen WHERE Tip = 1 GROUP BY DataID) AS G "
        "ON G.DataID = C.Stare");
    if (!conditie.isEmpty())
        sql += QStringLiteral(" WHERE ") + conditie;
    if (!ordine.isEmpty())
        sql += QStringLiteral(" ORDER BY ") + ordine;
    return sql;
}

std::vector<RandCerere> CitesteToateCererile(const BD& bd, const QString& strSat)
{
    return citeste(bd, SqlRanduriCereri(false, {}, QStringLiteral("C.CerereID")), {}, strSat);
}

std::vector<RandCerere> CitesteCautarea(const BD& bd, const ConditieCautare& c, const QString& strSat)
{
    // The search joins the applicant: an application without one is not found by a search.
    return citeste(bd, SqlRanduriCereri(true, c.conditie, QStringLiteral("C.NrCerere, C.CerereID")), c.valori, strSat);
}

std::optional<RandCerere> CitesteRandCerere(const BD& bd, qint64 cerereId, const QString& strSat)
{
    auto r = citeste(bd, SqlRanduriCereri(false, QStringLiteral("C.CerereID = ?"), {}), {cerereId}, strSat);
    if (r.empty())
        return std::nullopt;
    return std::move(r.front());
}

QString TextRezultat(int numar)
{
    if (numar <= 0)
        return QStringLiteral(" Nu exista nici o cerere");
    if (numar == 1)
        return QStringLiteral(" o cerere\n");
    return QString::number(numar) + QStringLiteral(" cereri\n");
}

QString TextPanouAzi(const QDate& azi)
{
    return QLatin1Char(' ') + TextDataLunga(azi) + QLatin1Char(' ');
}

QString TextLunaActiva(int luna, int an)
{
    return QStringLiteral(" LUNA ACTIVA: ") + NumeLuna(luna) + QLatin1Char(' ') + QString::number(an) +
           QLatin1Char(' ');
}

QString TextContact()
{
    return QStringLiteral(" Alocatii %1 - asistenta tehnica: furnizorul programului ")
        .arg(QStringLiteral(ALOCATII_VERSIUNE));
}

StareOficiu CitesteStareOficiu(const BD& bd)
{
    StareOficiu o;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT Denumire FROM DatePrimarie"));
    if (r.next())
        o.primarie = r.valoare(0).toString();
    o.nrCereri = bd.scalar(QStringLiteral("SELECT COUNT(CerereID) FROM Cereri")).toLongLong();
    return o;
}
