#include "documents/DispozitiiInBloc.h"

#include "database/BD.h"
#include "history/IstoricCereri.h"
#include "history/LuniInchise.h"
#include "documents/DocumentDispozitie.h"
#include "documents/SablonRtf.h"
#include "common/Bani.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Setari.h"

#include <map>
#include <vector>

namespace {

const QString NimicDeTiparit = QStringLiteral("Nu exista nici o dispozitie de tiparit. Faceti o alta selectie!");

bool continua(const ProgresRulare& progres, int facut, int total)
{
    return !progres || progres(facut, total);
}

} // namespace

QList<qint64> DispozitiiSelectate(const SelectieDispozitii& sel, const BD& bd)
{
    Rezultat r = bd.selecteaza(
        QStringLiteral("SELECT D.DispozitieID FROM Cereri C INNER JOIN Dispozitii D ON C.CerereID = D.CerereID "
                       "WHERE D.NrDisp >= ? AND D.NrDisp <= ? AND D.Actiune = ? AND %1 = ? AND %2 = ? "
                       "AND C.TipCerere = ? ORDER BY D.NrDisp")
            .arg(bd.luna(QStringLiteral("D.DinData")), bd.an(QStringLiteral("D.DinData"))),
        {sel.nrMin, sel.nrMax, sel.tipDisp, sel.luna, sel.an, sel.statut});
    QList<qint64> ids;
    while (r.next())
        ids << r.valoare(0).toLongLong();
    return ids;
}

std::optional<QByteArray> DocumentDispozitii(const QList<qint64>& dispozitii, const Setari& s, const BD& bd,
                                             const ProgresRulare& progres)
{
    if (dispozitii.isEmpty())
        return std::nullopt;
    ColectieDocumente colectie;
    CompletareDispozitii completare(s, bd);
    completare.citeste(dispozitii);
    // Each template is read and cut at its markers once for the run; each disposition fills
    // its own copy of the markers' values.
    struct SablonCitit {
        QByteArray antet;
        CorpDecupat corp;
    };
    std::map<QString, SablonCitit> sabloane;
    const int total = static_cast<int>(dispozitii.size());
    for (int i = 0; i < total; ++i) {
        if (!continua(progres, i, total))
            return std::nullopt;
        const qint64 id = dispozitii[i];
        const QVariant actiune = completare.actiune(id);
        const QString nume = NumeSablonDispozitie(actiune.toInt());
        if (nume.isEmpty()) {
            Mesaj(QStringLiteral("Dispozitia %1 are un tip necunoscut (%2). Nu a fost tiparit nimic.")
                      .arg(id)
                      .arg(actiune.toString()));
            return std::nullopt;
        }
        auto sablon = sabloane.find(nume);
        if (sablon == sabloane.end()) {
            Sablon citit;
            if (!CitesteSablon(CaleSablon(nume), citit))
                return std::nullopt;
            sablon = sabloane.emplace(nume, SablonCitit{citit.antet, CorpDecupat(citit.corp)}).first;
        }
        CorpDecupat::Document doc = sablon->second.corp.incepe();
        if (!completare.completeaza(id, doc))
            return std::nullopt;
        colectie.adauga(Sablon{sablon->second.antet, doc.text()});
    }
    continua(progres, total, total);
    return colectie.document();
}

std::optional<QByteArray> DocumentDispozitiiSelectate(const SelectieDispozitii& sel, const Setari& s, const BD& bd,
                                                      const ProgresRulare& progres)
{
    const QList<qint64> ids = DispozitiiSelectate(sel, bd);
    if (ids.isEmpty()) {
        Mesaj(NimicDeTiparit);
        return std::nullopt;
    }
    return DocumentDispozitii(ids, s, bd, progres);
}

std::optional<QByteArray> DocumentDispozitiiCereri(int modTiparire, qint64 nrMin, qint64 nrMax, const Setari& s,
                                                   const BD& bd, const ProgresRulare& progres)
{
    if (modTiparire != TiparireNrCerere) {
        Mesaj(QStringLiteral("Aceasta facilitate nu e realizata inca!"));
        return std::nullopt;
    }
    Rezultat r =
        bd.selecteaza(QStringLiteral("SELECT CerereID, NrCerere FROM Cereri WHERE NrCerere >= ? AND NrCerere <= ? "
                                     "ORDER BY NrCerere"),
                      {nrMin, nrMax});
    std::vector<std::pair<qint64, QString>> cereri;
    while (r.next())
        cereri.emplace_back(r.numar("CerereID"), r.text("NrCerere"));
    if (cereri.empty()) {
        Mesaj(NimicDeTiparit);
        return std::nullopt;
    }
    // The latest disposition of each application; those without one are named together.
    QList<qint64> ids;
    QStringList fara;
    for (const auto& [cerereId, nrCerere] : cereri) {
        const QVariant d =
            bd.scalar(QStringLiteral("SELECT DispozitieID FROM Dispozitii WHERE CerereID = ? "
                                     "ORDER BY CASE WHEN DataDisp IS NULL THEN 1 ELSE 0 END, DataDisp DESC, "
                                     "DispozitieID DESC"),
                      {cerereId});
        if (d.isValid())
            ids << d.toLongLong();
        else
            fara << QStringLiteral("Cererea nr ") + nrCerere + QStringLiteral(" nu are dispozitie!");
    }
    if (!fara.isEmpty()) {
        // One message for all of them; a long list is cut so that the box fits the screen.
        constexpr int Afisate = 20;
        QStringList text = fara.mid(0, Afisate);
        if (fara.size() > Afisate)
            text << QStringLiteral("... si inca %1 cereri fara dispozitie.").arg(fara.size() - Afisate);
        Mesaj(text.join(QLatin1Char('\n')));
    }
    std::optional<QByteArray> doc = DocumentDispozitii(ids, s, bd, progres);
    if (doc || ids.isEmpty())
        Mesaj(QStringLiteral("Au fost generate %1 dispozitii!").arg(doc ? ids.size() : 0));
    return doc;
}

RezultatGenerare GenereazaDispozitii(const ParametriGenerare& p, BD& bd, const ProgresRulare& progres)
{
    RezultatGenerare rez;
    rez.primulNr = p.primulNr;
    const QDate dinData(p.an, p.luna, 1);
    if (!dinData.isValid() || p.an < 1900 || p.an > 2100) {
        Mesaj(QStringLiteral("Introduceti un an si o luna corecte!"));
        return rez;
    }
    struct Rand {
        qint64 cerereId;
        qint64 nrCerere;
        double cuantum;
    };
    Tranzactie t(bd);
    if (LunaInchisa(bd, LunaDispozitiei(dinData))) {
        Mesaj(MesajLunaInchisa(LunaDispozitiei(dinData)), Mesaje::Icon::Exclamare);
        return rez;
    }
    std::vector<Rand> cereri;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT CerereID, NrCerere, Cuantum FROM Cereri WHERE TipCerere = ? "
                                              "ORDER BY NrCerere"),
                               {p.tipCerere});
    while (r.next())
        cereri.push_back({r.numar("CerereID"), r.numar("NrCerere"), Bani::dinVariant(r["Cuantum"]).toDouble()});
    if (!cereri.empty())
        rez.primaCerere = cereri.front().nrCerere;

    // The key is taken once under the write lock and then counted on.
    qint64 cheie = bd.urmatoareaCheie(QStringLiteral("Dispozitii"), QStringLiteral("DispozitieID"));
    qint64 nr = p.primulNr;
    const int total = static_cast<int>(cereri.size());
    for (int i = 0; i < total; ++i) {
        if (!continua(progres, i, total)) {
            rez.oprit = true;
            rez.numar = 0;
            return rez; // the transaction rolls back
        }
        const Rand& c = cereri[i];
        rez.ultimaCerere = c.nrCerere;
        const qint64 id = cheie++;
        bd.executa(QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, DinData, Actiune, "
                                  "Cuantum, An, Luna) VALUES (?, ?, ?, ?, ?, 1, ?, ?, ?)"),
                   {id, c.cerereId, double(nr++), DataPentruBD(p.dataDisp), DataPentruBD(dinData), c.cuantum,
                    double(p.an), p.luna});
        if (p.calcul)
            p.calcul(bd, id, c.cerereId, p.an);
        ScrieIstoricDispozitie(bd, id, c.cerereId, 1, Bani::dinDouble(c.cuantum));
        ++rez.numar;
    }
    continua(progres, total, total);
    t.confirma();
    rez.complet = true;
    return rez;
}

QString MesajGenerare(const RezultatGenerare& r)
{
    // The number range ends open: the last number is not told.
    return QStringLiteral(
               "Au fost generate : %1 dispozitii, de la nr %2 la nr \nA pornit de la NrCerere: %3 pana la NrCerere: %4")
        .arg(r.numar)
        .arg(r.primulNr)
        .arg(r.primaCerere)
        .arg(r.ultimaCerere);
}
