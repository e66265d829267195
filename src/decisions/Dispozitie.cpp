#include "decisions/Dispozitie.h"

#include "database/BD.h"
#include "history/IstoricCereri.h"
#include "history/LuniInchise.h"
#include "decisions/CalculDispozitie.h"
#include "common/Bani.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Text.h"

namespace {

QString textDublu(const QVariant& v)
{
    return v.isNull() ? QString() : TextNumar(v.toDouble());
}

// An engine error during the checks: its message, the window stays open, nothing saved.
VerificareDispozitie eroareVerificare(const Eroare& e)
{
    Mesaj(e.text(MesajDispozitie::PrefixVerificare), Mesaje::Icon::Critic);
    return VerificareDispozitie::opreste(CampDispozitie::Niciunul);
}

VerificareDispozitie refuza(const QString& mesaj, CampDispozitie camp)
{
    return VerificareDispozitie::refuza(mesaj, camp, Mesaje::Icon::Exclamare);
}

} // namespace

int PozitieTipDinStare(int stare)
{
    switch (stare) {
    case 2: return 0; // grant
    case 7:
    case 8: return 1; // change of the amount
    case 3: return 2; // suspension
    case 5: return 3; // rejection
    case 4: return 4; // ending
    case 6: return 5; // resumption
    default: return -1;
    }
}

std::optional<ImpliciteDispozitie> ImpliciteDispozitieNoua(const BD& bd, qint64 cerereId)
{
    Rezultat r = bd.selecteaza(
        QStringLiteral("SELECT NrCerere, DataCerere, Cuantum, Stare FROM Cereri WHERE CerereID = ?"), {cerereId});
    if (!r.next())
        return std::nullopt;
    ImpliciteDispozitie i;
    i.nrCerere = r.text("NrCerere");
    const QDate data = DataDinBD(r["DataCerere"]);
    i.dataCerere = TextData(data);
    const int stare = int(r.numar("Stare"));
    const QVariant cuantum = r["Cuantum"];
    i.suma = cuantum.isNull() ? QString() : Bani::dinVariant(cuantum).text();
    i.inSumaNoua = stare == 7 || stare == 8;
    i.pozitieTip = PozitieTipDinStare(stare);
    if (!EsteDataZero(data)) {
        i.luna = data.month();
        i.an = QString::number(data.year());
    }
    return i;
}

std::optional<DispozitieIncarcata> CitesteDispozitie(const BD& bd, qint64 dispozitieId)
{
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT * FROM Dispozitii WHERE DispozitieID = ?"), {dispozitieId});
    if (!r.next())
        return std::nullopt;
    DispozitieIncarcata inc;
    DateDispozitie& d = inc.date;
    d.id = dispozitieId;
    d.cerereId = r.numar("CerereID");
    d.actiune = int(r.numar("Actiune"));
    d.nrDisp = textDublu(r["NrDisp"]);
    d.dataDisp = DataDinBD(r["DataDisp"]);
    // The month and the year shown are those of the first day of effect.
    const QDate din = DataDinBD(r["DinData"]);
    if (!EsteDataZero(din)) {
        d.luna = din.month();
        d.an = QString::number(din.year());
    }
    if (d.actiune == 2) {
        d.suma = TextBaniBD(r["CuantumVechi"]);
        d.sumaNoua = TextBaniBD(r["Cuantum"]);
    } else {
        d.suma = TextBaniBD(r["Cuantum"]);
    }
    d.motiv = r.text("Motiv");

    Rezultat c =
        bd.selecteaza(QStringLiteral("SELECT NrCerere, DataCerere FROM Cereri WHERE CerereID = ?"), {d.cerereId});
    if (c.next()) {
        inc.nrCerere = c.text("NrCerere");
        inc.dataCerere = TextData(DataDinBD(c["DataCerere"]));
    }
    return inc;
}

AspectTipDispozitie AspectTip(int actiune)
{
    AspectTipDispozitie a;
    switch (actiune) {
    case 1:
        a.textModificarea = QStringLiteral("se stabileste suma de:");
        a.sumaNouaVizibila = false;
        a.motivVizibil = false;
        a.mijlocVizibil = true;
        break;
    case 2:
        a.textModificarea = QStringLiteral("se modifica suma de:");
        a.sumaNouaVizibila = true;
        a.textMotiv = QStringLiteral("Motivul modificarii");
        a.motivVizibil = true;
        a.mijlocVizibil = true;
        break;
    case 3:
        a.textMotiv = QStringLiteral("Motivul suspendarii");
        a.motivVizibil = true;
        a.mijlocVizibil = false;
        break;
    case 4:
        a.textMotiv = QStringLiteral("Motivul respingerii");
        a.motivVizibil = true;
        a.mijlocVizibil = false;
        break;
    case 5:
        a.textMotiv = QStringLiteral("Motivul incetarii");
        a.motivVizibil = true;
        a.mijlocVizibil = false;
        break;
    case 6:
        a.textModificarea = QStringLiteral("cu suma de:");
        a.sumaNouaVizibila = false;
        a.textMotiv = QStringLiteral("Motivul reluarii");
        a.motivVizibil = true;
        a.mijlocVizibil = true;
        break;
    default: break;
    }
    return a;
}

VerificareDispozitie VerificaDispozitie(const BD& bd, int adaug, const DateDispozitie& d)
{
    if (adaug == 2) {
        // Another workstation may have deleted the row while this window was open.
        qint64 n = 0;
        try {
            n = bd.scalar(QStringLiteral("SELECT COUNT(DispozitieID) FROM Dispozitii WHERE DispozitieID = ?"), {d.id})
                    .toLongLong();
        } catch (const Eroare&) {
            n = 0;
        }
        if (n == 0) {
            Mesaj(MesajDispozitie::Stearsa, Mesaje::Icon::Exclamare);
            return VerificareDispozitie::inchide();
        }
        if (n > 1)
            Mesaj(QStringLiteral("Exceptie: DispozitieID multiplu in AddDispozitie -> Verifica Controale"),
                  Mesaje::Icon::Exclamare);
    }
    try {
        // A closed month's dispositions stay as they were paid, and none is added to it.
        if (adaug == 2)
            VerificaDispozitieModificabila(bd, d.id);
        if (d.luna >= 1 && d.luna <= 12)
            VerificaLunaDeschisa(bd, DataSerial(int(ValoareIntreaga(d.an)), d.luna, 1));
    } catch (const Eroare& e) {
        if (e.numar != CodEroare::LunaInchisa)
            return eroareVerificare(e);
        Mesaj(e.descriere, Mesaje::Icon::Exclamare);
        return VerificareDispozitie::opreste(CampDispozitie::Niciunul);
    }
    if (d.actiune == 0)
        return refuza(QStringLiteral("Tip Dispozitie incorect. Selectati un tip din lista!"), CampDispozitie::Tip);
    if (d.luna == 0)
        return refuza(QStringLiteral("Selectati o luna corecta!"), CampDispozitie::Luna);
    if (d.an.trimmed().isEmpty())
        return refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce Anul"), CampDispozitie::An);
    try {
        Rezultat r = bd.selecteaza(QStringLiteral("SELECT DataCerere FROM Cereri WHERE CerereID = ?"), {d.cerereId});
        if (!r.next())
            throw Eroare(CodEroare::RandSters, MesajDispozitie::CerereStearsa, QStringLiteral("AddDispozitie"));
        const QDate dataCerere = DataDinBD(r["DataCerere"]);
        // An application without a date has nothing to compare with.
        if (!EsteDataZero(dataCerere)) {
            const double an = ValoareNumerica(d.an);
            if (an < dataCerere.year())
                return refuza(QStringLiteral("Anul dispozitiei nu poate fi mai mic decat anul depunerii cererii"),
                              CampDispozitie::An);
            if (an == dataCerere.year() && d.luna < dataCerere.month())
                return refuza(QStringLiteral("Luna dispozitiei nu poate fi mai mica decat luna depunerii cererii"),
                              CampDispozitie::An);
        }
    } catch (const Eroare& e) {
        return eroareVerificare(e);
    }
    return {};
}

qint64 SalveazaDispozitie(BD& bd, int adaug, const DateDispozitie& d)
{
    Tranzactie t(bd);
    const qint64 an = ValoareIntreaga(d.an);
    const QDate dinData = DataSerial(int(an), d.luna, 1);
    if (adaug != 1)
        VerificaDispozitieModificabila(bd, d.id);
    VerificaLunaDeschisa(bd, dinData);
    const QVariant din = DataPentruBD(dinData);
    const QVariantList comune{
        ValoareNumerica(d.nrDisp), DataPentruBD(d.dataDisp), din, d.luna, ValoareNumerica(d.an), d.actiune};
    // A change of the amount keeps both amounts; every other type writes only the amount and
    // leaves the former one as it was. The reason is written as typed, also when hidden.
    // Both amounts are money, read from the boxes to four decimals as every amount is.
    const bool modificare = d.actiune == 2;
    const Bani cuantum = Bani::dinText(modificare ? d.sumaNoua : d.suma);
    const std::optional<Bani> cuantumVechi = modificare ? std::optional<Bani>(Bani::dinText(d.suma)) : std::nullopt;
    qint64 id = d.id;
    if (adaug == 1) {
        id = bd.urmatoareaCheie(QStringLiteral("Dispozitii"), QStringLiteral("DispozitieID"));
        QVariantList p{id, d.cerereId};
        p << comune << (cuantumVechi ? cuantumVechi->variant() : QVariant()) << cuantum.variant() << d.motiv;
        bd.executa(QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, DinData, Luna, "
                                  "An, Actiune, CuantumVechi, Cuantum, Motiv) VALUES (?,?,?,?,?,?,?,?,?,?,?)"),
                   p);
    } else {
        QVariantList p = comune;
        QString sql = QStringLiteral("UPDATE Dispozitii SET NrDisp = ?, DataDisp = ?, DinData = ?, Luna = ?, An = ?, "
                                     "Actiune = ?, ");
        if (cuantumVechi) {
            sql += QStringLiteral("CuantumVechi = ?, ");
            p << cuantumVechi->variant();
        }
        sql += QStringLiteral("Cuantum = ?, Motiv = ? WHERE DispozitieID = ?");
        p << cuantum.variant() << d.motiv << id;
        if (bd.executa(sql, p) == 0)
            throw Eroare(CodEroare::RandSters, MesajDispozitie::Stearsa, QStringLiteral("AddDispozitie"));
    }
    InregistreazaDispozitie(bd, id, d.cerereId, d.actiune, dinData.year(), cuantum, cuantumVechi);
    t.confirma();
    return id;
}

void InregistreazaDispozitie(const BD& bd, qint64 dispozitieId, qint64 cerereId, int actiune, int an, Bani cuantum,
                             std::optional<Bani> cuantumVechi)
{
    CalculeazaSiScrie(bd, dispozitieId, cerereId, an);
    ScrieIstoricDispozitie(bd, dispozitieId, cerereId, actiune, cuantum, cuantumVechi);
}
