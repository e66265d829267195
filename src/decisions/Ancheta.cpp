#include "decisions/Ancheta.h"

#include "database/BD.h"
#include "database/ValoriColoane.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Text.h"

namespace {

VerificareAncheta refuza(const QString& mesaj, CampAncheta camp)
{
    return VerificareAncheta::refuza(mesaj, camp, Mesaje::Icon::Exclamare);
}

QVariant cheieSauNull(int cheie)
{
    return cheie == 0 ? QVariant() : QVariant(cheie);
}

} // namespace

std::optional<AnchetaIncarcata> CitesteAncheta(const BD& bd, qint64 anchetaId)
{
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT * FROM Anchete WHERE AnchetaID = ?"), {anchetaId});
    if (!r.next())
        return std::nullopt;
    AnchetaIncarcata inc;
    DateAncheta& a = inc.date;
    a.id = anchetaId;
    a.cerereId = r.numar("CerereID");
    a.data = DataDinBD(r["DataAncheta"]);
    a.intocmitor = r.text("Intocmitor");
    a.tipLocuinta = int(r.numar("TipLocuinta"));
    a.regimJuridic = int(r.numar("RegimJuridic"));
    a.tipLocuire = int(r.numar("TipLocuire"));
    a.tipDetinere = int(r.numar("TipDetinere"));
    a.nrCamere = TextNumarBD(r["NrCamere"]);
    a.suprUtila = TextNumarBD(r["SuprUtila"]);
    a.bunuri = r.text("Bunuri");
    a.igiena = r.text("Igiena");
    a.teren = r.text("Teren");
    a.cladiri = r.text("Cladiri");
    a.spatii = r.text("Spatii");
    a.alteBunuri = r.text("AlteBunuri");
    a.stareSanatate = r.text("StareSanatate");
    a.nevoi = r.text("Nevoi");
    a.aspecte = r.text("Aspecte");
    inc.textExpirare = TextData(DataDinBD(r["DataExpirarii"]));
    inc.motiv = r.text("Motiv");
    inc.nrMembrii = r.text("NrMembrii");
    inc.nrCopii = r.text("NrCopii");
    return inc;
}

VerificareAncheta VerificaAncheta(const BD& bd, int adaug, const DateAncheta& a, int nrCopiiAfisat)
{
    try {
        if (adaug == 2) {
            // Another workstation may have deleted the row while this window was open.
            qint64 n = 0;
            try {
                n = bd.scalar(QStringLiteral("SELECT COUNT(AnchetaID) FROM Anchete WHERE AnchetaID = ?"), {a.id})
                        .toLongLong();
            } catch (const Eroare&) {
                n = 0;
            }
            if (n == 0) {
                Mesaj(MesajAncheta::Stearsa, Mesaje::Icon::Exclamare);
                return VerificareAncheta::inchide();
            }
            if (n > 1)
                Mesaj(QStringLiteral("Exceptie: AnchetaID multiplu in AddAncheta -> Verifica Controale"),
                      Mesaje::Icon::Exclamare);
        }
        // A warning only: the inquiry counts the children at its own date.
        const QVariant copiiCerere =
            bd.scalar(QStringLiteral("SELECT NrCopii FROM Cereri WHERE CerereID = ?"), {a.cerereId});
        if (!copiiCerere.isValid())
            throw Eroare(CodEroare::RandSters, QStringLiteral("Cererea a fost probabil stearsa de alt utilizator"),
                         QStringLiteral("AddAncheta"));
        if (!copiiCerere.isNull() && copiiCerere.toLongLong() != nrCopiiAfisat)
            Mesaj(QStringLiteral("Numarul de copii din Ancheta nu coincide cu numarul de copii din Cerere. "
                                 "Verificati cauza in Cerere!"),
                  Mesaje::Icon::Exclamare);
        if (!a.data.isValid())
            return refuza(QStringLiteral("Nu puteti salva datele inainte de a Data Ancheta"), CampAncheta::Data);
        if (ValabilitateAncheta(bd, a.cerereId, a.data).incetata())
            return refuza(QStringLiteral("Pentru Data Selectata nu mai sunt copii, asa ca ancheta nu are sens! "
                                         "Fie schimbati Data Anchetei, fie Renuntati"),
                          CampAncheta::Data);
    } catch (const Eroare& e) {
        Mesaj(e.text(MesajAncheta::PrefixVerificare), Mesaje::Icon::Critic);
        return VerificareAncheta::opreste(CampAncheta::Niciunul);
    }
    if (a.intocmitor.trimmed().isEmpty())
        return refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce Numele Intocmitorului"),
                      CampAncheta::Intocmitor);
    if (a.nrCamere.trimmed().isEmpty())
        return refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce Numarul de camere"),
                      CampAncheta::NrCamere);
    if (a.suprUtila.trimmed().isEmpty())
        return refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce Suprafata"),
                      CampAncheta::Suprafata);
    if (const QString m = ValoareInAfaraColoanei(QStringLiteral("Anchete"), QStringLiteral("NrCamere"), a.nrCamere);
        !m.isEmpty())
        return refuza(m, CampAncheta::NrCamere);
    if (const QString m = ValoareInAfaraColoanei(QStringLiteral("Anchete"), QStringLiteral("SuprUtila"), a.suprUtila);
        !m.isEmpty())
        return refuza(m, CampAncheta::Suprafata);
    if (a.tipLocuinta == 0)
        return refuza(QStringLiteral("Tipul locuintei incorect. Selectati din lista!"), CampAncheta::TipLocuinta);
    if (a.regimJuridic == 0)
        return refuza(QStringLiteral("Regim juridic incorect. Selectati un Regim juridic din lista!"),
                      CampAncheta::RegimJuridic);
    if (a.tipDetinere == 0)
        return refuza(QStringLiteral("Detine in proprietate incorect. Selectati din lista: 'in proprietate' sau "
                                     "'in folosinta'!"),
                      CampAncheta::TipDetinere);
    return {};
}

qint64 SalveazaAncheta(BD& bd, int adaug, const DateAncheta& a, const Valabilitate& v)
{
    static const QStringList coloane{
        QStringLiteral("DataAncheta"),   QStringLiteral("Intocmitor"),   QStringLiteral("DataExpirarii"),
        QStringLiteral("Motiv"),         QStringLiteral("NrMembrii"),    QStringLiteral("NrCopii"),
        QStringLiteral("TipLocuinta"),   QStringLiteral("RegimJuridic"), QStringLiteral("NrCamere"),
        QStringLiteral("SuprUtila"),     QStringLiteral("Bunuri"),       QStringLiteral("Igiena"),
        QStringLiteral("TipLocuire"),    QStringLiteral("TipDetinere"),  QStringLiteral("Teren"),
        QStringLiteral("Cladiri"),       QStringLiteral("Spatii"),       QStringLiteral("AlteBunuri"),
        QStringLiteral("StareSanatate"), QStringLiteral("Nevoi"),        QStringLiteral("Aspecte")};
    const QVariantList valori{DataPentruBD(a.data),
                              a.intocmitor.trimmed(),
                              DataPentruBD(v.expirare),
                              v.motiv.value_or(QString()),
                              v.nrMembrii,
                              v.nrCopii,
                              a.tipLocuinta,
                              a.regimJuridic,
                              ValoareIntreaga(a.nrCamere.trimmed()),
                              ValoareNumerica(a.suprUtila.trimmed()),
                              a.bunuri.trimmed(),
                              a.igiena.trimmed(),
                              cheieSauNull(a.tipLocuire),
                              a.tipDetinere,
                              a.teren.trimmed(),
                              a.cladiri.trimmed(),
                              a.spatii.trimmed(),
                              a.alteBunuri.trimmed(),
                              a.stareSanatate.trimmed(),
                              a.nevoi.trimmed(),
                              a.aspecte.trimmed()};
    Tranzactie t(bd);
    qint64 id = a.id;
    if (adaug == 1) {
        id = bd.urmatoareaCheie(QStringLiteral("Anchete"), QStringLiteral("AnchetaID"));
        QStringList semne(coloane.size() + 2, QStringLiteral("?"));
        QVariantList p{id, a.cerereId};
        p << valori;
        bd.executa(QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID, %1) VALUES (%2)")
                       .arg(coloane.join(QStringLiteral(", ")), semne.join(QLatin1Char(','))),
                   p);
    } else {
        QStringList set;
        for (const QString& c : coloane)
            set << c + QStringLiteral(" = ?");
        QVariantList p = valori;
        p << id;
        if (bd.executa(QStringLiteral("UPDATE Anchete SET %1 WHERE AnchetaID = ?").arg(set.join(QStringLiteral(", "))),
                       p) == 0)
            throw Eroare(CodEroare::RandSters, MesajAncheta::Stearsa, QStringLiteral("AddAncheta"));
    }
    t.confirma();
    return id;
}
