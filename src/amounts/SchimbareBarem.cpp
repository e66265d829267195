#include "amounts/SchimbareBarem.h"

#include "amounts/Cuantum.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"
#include "database/BD.h"
#include "database/ValoriColoane.h"
#include "decisions/CalculDispozitie.h"
#include "history/IstoricCereri.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <cmath>

namespace {

const QString Sursa = QStringLiteral("SchimbareBarem");

[[noreturn]] void refuza(const QString& mesaj, int cod = CodSchimbareRefuzata)
{
    throw Eroare(cod, mesaj, Sursa);
}

AmprentaBarem citesteAmprenta(const BD& bd)
{
    AmprentaBarem a;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT MAX(IstoricID), COUNT(*) FROM IstoricCereri"));
    if (r.next()) {
        a.ultimulIstoric = r.valoare(0).toLongLong();
        a.randuriIstoric = r.valoare(1).toLongLong();
    }
    a.ultimaSchimbare = bd.scalar(QStringLiteral("SELECT MAX(SchimbareID) FROM IstoricBarem")).toLongLong();
    return a;
}

// A month of effect is a month still open after the last closed one, and not before the first
// month of the scale in force.
void verificaLuna(const BD& bd, LunaAn l, const BaremLei& vechi)
{
    if (l.luna < 1 || l.luna > 12 || l.an < 1900 || l.an > 2100)
        refuza(QStringLiteral("Luna de la care se aplica baremul nou este incorecta."));
    if (LunaInchisa(bd, l))
        refuza(MesajLunaInchisa(l), CodEroare::LunaInchisa);
    const std::optional<LunaAn> ultima = UltimaLunaInchisa(bd);
    if (ultima && ultima->ordine() > l.ordine())
        refuza(QStringLiteral("Baremul nou nu poate avea efect din luna %1: luna %2, de dupa ea, este deja inchisa.")
                   .arg(TextLuna(l), TextLuna(*ultima)),
               CodEroare::LunaInchisa);
    QDate inVigoare;
    for (const RandBaremLei& r : vechi)
        if (r.dataInceput.isValid() && (!inVigoare.isValid() || r.dataInceput > inVigoare))
            inVigoare = r.dataInceput;
    if (inVigoare.isValid() && PrimaZi(l) < QDate(inVigoare.year(), inVigoare.month(), 1))
        refuza(QStringLiteral("Baremul in vigoare se aplica de la %1: cel nou nu poate avea efect dintr-o luna "
                              "anterioara.")
                   .arg(TextData(inVigoare)));
}

// What the preview reads of an application besides its members.
struct CitireCerere {
    CerereBarem c;
    QDate dataCerere;
    QVariant venitPeMembru;
};

// Why the scale row used, or why there is none, in the office's words.
QString treapta(const RezultatCuantum& r, int an)
{
    if (r.baremNrPers > 0)
        return QStringLiteral("%1, venit %2").arg(TextCopiiBarem(r.baremNrPers), TextTreaptaVenit(r.baremSuma));
    if (!r.nrCopii)
        return QStringLiteral("niciun copil nu se numara in %1").arg(an);
    return QStringLiteral("venitul pe membru este de cel putin %1 lei").arg(PragVenit370.textSuma());
}

// Each application whose amount the change would alter, in the same order, with the same
// amounts: the preview that was seen still holds.
bool aceleasiRezultate(const PrevizualizareBarem& a, const PrevizualizareBarem& b)
{
    const auto aceleasi = [](const std::vector<CerereBarem>& x, const std::vector<CerereBarem>& y) {
        return std::equal(x.begin(), x.end(), y.begin(), y.end(), [](const CerereBarem& u, const CerereBarem& v) {
            return u.cerereId == v.cerereId && u.stare == v.stare && u.cuantum == v.cuantum &&
                   u.cuantumNou == v.cuantumNou && u.nrCopiiNou == v.nrCopiiNou && u.dinData == v.dinData;
        });
    };
    for (int i = 0; i < NrRanduriBaremLei; ++i)
        if (a.vechi[i].barem != b.vechi[i].barem)
            return false;
    return a.neschimbate == b.neschimbate && aceleasi(a.modificate, b.modificate) && aceleasi(a.laZero, b.laZero) &&
           aceleasi(a.necalculate, b.necalculate);
}

void scrieIstoricBarem(const BD& bd, const PrevizualizareBarem& p, qint64 id, const QString& motiv, double primulNr)
{
    const QDate efect = PrimaZi(p.efect);
    const int n = static_cast<int>(p.modificate.size());
    for (int i = 0; i < NrRanduriBaremLei; ++i) {
        const RandBaremLei& r = p.vechi[i];
        bd.executa(QStringLiteral("INSERT INTO IstoricBarem (SchimbareID, Tip, NrPers, Suma, Barem, BaremNou, "
                                  "DataInceput, DataSfarsit, DataSchimbare, Motiv, NrDispozitii, PrimulNrDisp, Statie, "
                                  "Utilizator) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                   {id, r.cheie.tip, r.cheie.nrPers, r.cheie.suma,
                    r.barem ? QVariant(r.barem->toDouble()) : QVariant(QMetaType(QMetaType::Double)),
                    p.nou[i].toDouble(), DataPentruBD(r.dataInceput), DataPentruBD(efect.addDays(-1)),
                    DataPentruBD(Ceas::azi()), motiv.left(255), n,
                    n > 0 ? QVariant(primulNr) : QVariant(QMetaType(QMetaType::Double)), Proces::statie().left(50),
                    Proces::utilizatorSistem().left(50)});
    }
}

// The new amounts into Barem, in place: the calculation keeps reading the same rows. A row that
// the office's table lacked is added.
void scrieBaremNou(const BD& bd, const PrevizualizareBarem& p)
{
    const QVariant efect = DataPentruBD(PrimaZi(p.efect));
    for (int i = 0; i < NrRanduriBaremLei; ++i) {
        const CheieBarem k = CheieBaremLei(i);
        const double suma = p.nou[i].toDouble();
        if (bd.executa(QStringLiteral("UPDATE Barem SET Barem = ?, DataInceput = ? WHERE Tip = ? AND NrPers = ? AND "
                                      "Suma = ?"),
                       {suma, efect, k.tip, k.nrPers, k.suma}) > 0)
            continue;
        bd.executa(QStringLiteral("INSERT INTO Barem (Tip, Descriere, NrPers, Barem, Suma, PerPers, BaremPerPers, "
                                  "DataInceput) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                   {k.tip, k.tip == 1 ? QStringLiteral("COMPLEMENTAR") : QStringLiteral("MONOPARENTAL"), k.nrPers, suma,
                    k.suma, false, 0, efect});
    }
}

// One changed application: its amount and status, its change disposition, the calculation
// stored with it and the row of its history.
void scrieCerere(const BD& bd, const CerereBarem& c, qint64 dispozitieId, double nrDisp, const ParametriAplicare& p)
{
    const QString& motiv = p.motiv;
    QString sql = QStringLiteral("UPDATE Cereri SET Cuantum = ?, Stare = 7, MotivStare = ?, DataStare = ?");
    QVariantList param{c.cuantumNou.variant(), motiv, DataPentruBD(c.dinData)};
    if (c.nrCopiiNou) {
        sql += QStringLiteral(", NrCopii = ?");
        param << *c.nrCopiiNou;
    }
    sql += QStringLiteral(" WHERE CerereID = ?");
    param << c.cerereId;
    if (bd.executa(sql, param) == 0)
        throw Eroare(CodEroare::RandSters,
                     QStringLiteral("Cererea nr %1 a fost stearsa de alt utilizator.").arg(c.nrCerere), Sursa);
    bd.executa(QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, DinData, Luna, An, "
                              "Actiune, CuantumVechi, Cuantum, Motiv) VALUES (?, ?, ?, ?, ?, ?, ?, 2, ?, ?, ?)"),
               {dispozitieId, c.cerereId, nrDisp, DataPentruBD(p.dataDisp), DataPentruBD(c.dinData), c.dinData.month(),
                double(c.dinData.year()), c.cuantum.toDouble(), c.cuantumNou.toDouble(), motiv});
    // The calculation is made again from the application as stored, now against the new
    // scale: it must give the amount of the preview.
    const CalculDispozitie calcul = CalculeazaSiScrie(bd, dispozitieId, c.cerereId, c.dinData.year());
    if (calcul.cuantum != c.cuantumNou)
        throw Eroare(CodSchimbareRefuzata,
                     QStringLiteral("Calculul cererii nr %1 da %2 lei, nu %3 lei ca in previzualizare. Nu s-a schimbat "
                                    "nimic.")
                         .arg(c.nrCerere)
                         .arg(calcul.cuantum.textSuma(), c.cuantumNou.textSuma()),
                     Sursa);
    SchimbareCerere s;
    s.cerereId = c.cerereId;
    s.stareVeche = c.stare;
    s.stare = 7;
    s.cuantumVechi = c.cuantum;
    s.cuantum = c.cuantumNou;
    s.nrCopiiVechi = c.nrCopii;
    s.nrCopii = c.nrCopiiNou.value_or(c.nrCopii);
    s.dispozitieId = dispozitieId;
    s.motiv = QStringLiteral("Schimbarea baremului de la %1").arg(TextData(c.dinData));
    ScrieIstoric(bd, s, c.dinData);
}

} // namespace

bool PrevizualizareBarem::faraSchimbare() const
{
    for (int i = 0; i < NrRanduriBaremLei; ++i)
        if (vechi[i].barem != nou[i])
            return false;
    return true;
}

QString SqlCereriBarem()
{
    return QStringLiteral("SELECT C.CerereID, C.NrCerere, C.DataCerere, C.TipCerere, C.Stare, C.Cuantum, "
                          "C.VenitpeMembru, C.NrCopii, M.Nume, M.Prenume FROM Cereri C LEFT JOIN Membrii M ON "
                          "M.MembruID = C.MembruID1 WHERE C.Stare IN (2, 6, 7, 8) ORDER BY C.NrCerere, C.CerereID");
}

QString SqlMembriiBarem()
{
    // The members as the application editor loads them: those with a row in Membrii.
    return QStringLiteral("SELECT CM.CerereID, CM.OcupatieID, CM.Data18Ani FROM CereriMembrii CM INNER JOIN "
                          "Membrii M ON M.MembruID = CM.MembruID INNER JOIN Cereri C ON C.CerereID = CM.CerereID "
                          "WHERE C.Stare IN (2, 6, 7, 8)");
}

PrevizualizareBarem PrevizualizeazaBarem(const BD& bd, const SumeBarem& nou, LunaAn efect)
{
    PrevizualizareBarem p;
    p.efect = efect;
    p.nou = nou;
    // Read first, so that a change made while the applications are read counts as newer.
    p.amprenta = citesteAmprenta(bd);
    p.vechi = CitesteBaremLei(bd);
    verificaLuna(bd, efect, p.vechi);
    for (int i = 0; i < NrRanduriBaremLei; ++i)
        if (!(nou[i] > Bani()))
            refuza(MesajSumaZero(CheieBaremLei(i)));
    p.peTip[1];
    p.peTip[2];

    // Of each member only what the amount reads: an office of a decade has hundreds of
    // thousands of them, and the editor's whole member would be held for each.
    struct MembruBarem {
        int ocupatie;
        QDate data18Ani;
    };
    QHash<qint64, std::vector<MembruBarem>> membri;
    {
        Rezultat r = bd.selecteaza(SqlMembriiBarem());
        while (r.next())
            membri[r.valoare(0).toLongLong()].push_back({r.valoare(1).toInt(), DataDinBD(r.valoare(2))});
    }
    std::vector<CitireCerere> cereri;
    {
        Rezultat r = bd.selecteaza(SqlCereriBarem());
        while (r.next()) {
            CitireCerere x;
            x.c.cerereId = r.valoare(0).toLongLong();
            x.c.nrCerere = r.valoare(1).toLongLong();
            x.dataCerere = DataDinBD(r.valoare(2));
            x.c.tipCerere = r.valoare(3).toInt();
            x.c.stare = r.valoare(4).toInt();
            x.c.cuantum = Bani::dinVariant(r.valoare(5));
            x.venitPeMembru = r.valoare(6);
            x.c.nrCopii = r.valoare(7).toInt();
            x.c.titular = (r.valoare(8).toString() + QLatin1Char(' ') + r.valoare(9).toString()).trimmed();
            cereri.push_back(std::move(x));
        }
    }

    // The calculation's own messages (a member whose occupation does not fit a child) are
    // told in the remarks of the family, not one by one.
    MesajeColectate tacute;
    const MesajeTemporare liniste(tacute);
    const CautareBarem cautaNou = CautareInSume(nou);
    const CautareBarem cautaVechi = CautareInBarem(p.vechi);
    const QDate efectZi = PrimaZi(efect);
    std::vector<MembruCerere> m;
    for (CitireCerere& x : cereri) {
        CerereBarem& c = x.c;
        c.dinData = efectZi;
        if (x.dataCerere.isValid() && QDate(x.dataCerere.year(), x.dataCerere.month(), 1) > efectZi)
            c.dinData = QDate(x.dataCerere.year(), x.dataCerere.month(), 1);
        const int an = c.dinData.year();
        TotalBarem& tip = p.peTip[c.tipCerere];
        for (TotalBarem* t : {&tip, &p.total}) {
            ++t->familii;
            t->inainte += c.cuantum;
        }
        m.clear();
        if (const auto gasiti = membri.constFind(c.cerereId); gasiti != membri.cend())
            for (const MembruBarem& b : *gasiti) {
                MembruCerere& membru = m.emplace_back();
                membru.OcupatieID = b.ocupatie;
                membru.Data18Ani = b.data18Ani;
            }
        if (c.tipCerere != 1 && c.tipCerere != 2)
            c.observatii =
                QStringLiteral("Tipul alocatiei (%1) nu este nici 1 (Cu sot), nici 2 (Mono).").arg(c.tipCerere);
        else if (m.empty())
            c.observatii = QStringLiteral("Cererea nu are membri.");
        else if (x.venitPeMembru.isNull())
            c.observatii = QStringLiteral("Venitul pe membru nu este completat in cerere.");
        const QString venit = TextBaniBD(x.venitPeMembru);
        RezultatCuantum r;
        if (c.observatii.isEmpty()) {
            r = CalculCuantum(cautaNou, m, venit, c.tipCerere, an);
            if (!r.eroare.isEmpty())
                c.observatii = r.eroare;
        }
        if (!c.observatii.isEmpty()) {
            c.cuantumNou = c.cuantum;
            for (TotalBarem* t : {&tip, &p.total})
                t->dupa += c.cuantum;
            p.necalculate.push_back(std::move(c));
            continue;
        }
        c.cuantumNou = r.cuantum;
        c.nrCopiiNou = r.nrCopii;
        if (c.cuantumNou == c.cuantum) {
            ++p.neschimbate;
            for (TotalBarem* t : {&tip, &p.total})
                t->dupa += c.cuantum;
            continue;
        }
        QStringList obs{treapta(r, an)};
        if (std::any_of(r.membri.begin(), r.membri.end(),
                        [](const RezultatCuantum::Membru& x) { return x.motiv == MesajOcupatieCNP; }))
            obs << MesajOcupatieCNP;
        // A stored amount that the scale in force would not give either: the change is not the
        // law's alone.
        const RezultatCuantum inVigoare = CalculCuantum(cautaVechi, m, venit, c.tipCerere, an);
        if (inVigoare.eroare.isEmpty() && inVigoare.cuantum != c.cuantum)
            obs << QStringLiteral("cu baremul in vigoare ar fi %1 lei").arg(inVigoare.cuantum.textSuma());
        c.observatii = obs.join(QStringLiteral("; "));
        const bool laZero = c.cuantumNou.esteZero();
        for (TotalBarem* t : {&tip, &p.total}) {
            t->dupa += laZero ? c.cuantum : c.cuantumNou;
            t->modificate += laZero ? 0 : 1;
        }
        (laZero ? p.laZero : p.modificate).push_back(std::move(c));
    }
    return p;
}

RezultatAplicare AplicaBarem(BD& bd, const PrevizualizareBarem& vazuta, const ParametriAplicare& parametri)
{
    ParametriAplicare p = parametri;
    p.motiv = p.motiv.trimmed();
    if (!p.dataDisp.isValid())
        p.dataDisp = Ceas::azi();
    const QString& motiv = p.motiv;
    if (!(p.primulNr > 0))
        refuza(MesajBarem::NrLipsa);
    if (motiv.isEmpty())
        refuza(MesajBarem::MotivLipsa);
    // The reason goes into the status of each application too.
    const QString preaLung = ValoareInAfaraColoanei(QStringLiteral("Cereri"), QStringLiteral("MotivStare"), motiv);
    if (!preaLung.isEmpty())
        refuza(preaLung);

    Tranzactie t(bd);
    const AmprentaBarem acum = citesteAmprenta(bd);
    if (acum.ultimaSchimbare != vazuta.amprenta.ultimaSchimbare)
        refuza(MesajBarem::DejaAplicata, CodPrevizualizareVeche);
    if (acum != vazuta.amprenta)
        refuza(MesajBarem::PrevizualizareVeche, CodPrevizualizareVeche);
    // Under the write lock the preview is made again: what is written is what the clerk saw.
    const PrevizualizareBarem x = PrevizualizeazaBarem(bd, vazuta.nou, vazuta.efect);
    if (!aceleasiRezultate(x, vazuta))
        refuza(MesajBarem::PrevizualizareVeche, CodPrevizualizareVeche);
    if (x.faraSchimbare())
        refuza(MesajBarem::FaraSchimbare);

    RezultatAplicare rez;
    rez.schimbareId = bd.urmatoareaCheie(QStringLiteral("IstoricBarem"), QStringLiteral("SchimbareID"));
    rez.primulNr = p.primulNr;
    scrieIstoricBarem(bd, x, rez.schimbareId, motiv, p.primulNr);
    scrieBaremNou(bd, x);

    QSet<QDate> luniVerificate;
    qint64 cheie = bd.urmatoareaCheie(QStringLiteral("Dispozitii"), QStringLiteral("DispozitieID"));
    double nr = p.primulNr;
    for (const CerereBarem& c : x.modificate) {
        if (!luniVerificate.contains(c.dinData)) {
            VerificaLunaDeschisa(bd, c.dinData);
            luniVerificate.insert(c.dinData);
        }
        const qint64 id = cheie++;
        scrieCerere(bd, c, id, nr, p);
        rez.dispozitii << id;
        rez.ultimulNr = nr;
        nr += 1;
    }
    t.confirma();
    return rez;
}

double UrmatorulNrDispozitie(const BD& bd, int an)
{
    const QVariant v = bd.scalar(QStringLiteral("SELECT MAX(NrDisp) FROM Dispozitii WHERE DataDisp >= ? AND "
                                                "DataDisp < ?"),
                                 {DataPentruBD(QDate(an, 1, 1)), DataPentruBD(QDate(an + 1, 1, 1))});
    return v.isNull() ? 1 : std::floor(v.toDouble()) + 1;
}

std::vector<SchimbareTrecuta> SchimbariBarem(const BD& bd)
{
    std::vector<SchimbareTrecuta> v;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT SchimbareID, DataSchimbare, DataSfarsit, NrDispozitii, "
                                              "PrimulNrDisp, Motiv FROM IstoricBarem WHERE Tip = 1 AND NrPers = 1 AND "
                                              "Suma = 200 ORDER BY SchimbareID DESC"));
    while (r.next()) {
        SchimbareTrecuta s;
        s.id = r.valoare(0).toLongLong();
        s.data = DataDinBD(r.valoare(1));
        s.dinData = DataDinBD(r.valoare(2)).addDays(1);
        s.nrDispozitii = r.valoare(3).toInt();
        s.primulNr = r.valoare(4).toDouble();
        s.motiv = r.valoare(5).toString();
        v.push_back(std::move(s));
    }
    return v;
}

QString TextEroareBarem(const Eroare& e)
{
    const bool refuz =
        e.numar == CodSchimbareRefuzata || e.numar == CodPrevizualizareVeche || e.numar == CodEroare::LunaInchisa;
    return refuz ? e.descriere : e.text();
}
