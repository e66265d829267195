#include "documents/FisaDispozitie.h"

#include "database/BD.h"
#include "history/CalculeDispozitii.h"
#include "database/Oficiu.h"
#include "documents/SablonRtf.h"
#include "documents/ValoriDocument.h"
#include "common/Bani.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Text.h"

namespace {

const QString Puncte = QStringLiteral(".....................");
const QString Sursa = QStringLiteral("FisaDispozitie");

QByteArray marcaj(const char* prefix, int n)
{
    return QByteArray(prefix) + QByteArray::number(n) + '#';
}

QString textBarem(const CalculDispozitie& c)
{
    if (c.baremNrPers == 0)
        return QStringLiteral("-");
    return QStringLiteral("%1 copii, venit pe membru sub %2 lei, tip alocatie %3: %4 lei")
        .arg(c.baremNrPers)
        .arg(c.baremSuma)
        .arg(c.tipCerere)
        .arg(c.barem.textSuma());
}

void fisa(qint64 id, const QDate& dataFisa, QByteArray& corp, const BD& bd)
{
    Rezultat d =
        bd.selecteaza(QStringLiteral("SELECT D.NrDisp, D.DataDisp, D.DinData, D.Actiune, D.Cuantum, C.NrCerere, "
                                     "C.DataCerere, C.MembruID1 FROM Dispozitii D INNER JOIN Cereri C ON "
                                     "C.CerereID = D.CerereID WHERE D.DispozitieID = ?"),
                      {id});
    if (!d.next())
        throw Eroare(CodEroare::RandSters, QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!"),
                     Sursa);
    const std::optional<CalculDispozitie> c = CitesteCalcul(bd, id);
    if (!c)
        throw Eroare(3021,
                     QStringLiteral("Dispozitia nu are calculul pastrat: a fost salvata inainte ca programul sa "
                                    "pastreze calculele. Salvati-o din nou pentru a-l pastra."),
                     Sursa);
    Inlocuieste(corp, "#NrDisp#", TextNumarBD(d.valoare(0)));
    Inlocuieste(corp, "#DataDisp#", TextData(DataDinBD(d.valoare(1))));
    const QDate din = DataDinBD(d.valoare(2));
    Inlocuieste(corp, "#LunaDisp#",
                din.isValid() ? NumeLuna(din.month()) + QLatin1Char(' ') + QString::number(din.year()) : QString());
    const QVariant tip =
        bd.scalar(QStringLiteral("SELECT Continut FROM DateGen WHERE Tip = 20 AND DataID = ?"), {d.valoare(3)});
    Inlocuieste(corp, "#TipDisp#", tip.isValid() ? tip.toString() : QString());
    Inlocuieste(corp, "#CuantumDisp#", TextBaniBD(d.valoare(4)));
    Inlocuieste(corp, "#NrC#", TextNumarBD(d.valoare(5)));
    Inlocuieste(corp, "#DataCerere#", TextData(DataDinBD(d.valoare(6))));
    Inlocuieste(corp, "#Titular#", CitestePersoana(bd, d.valoare(7)).nume);
    Inlocuieste(corp, "#TipCerere#",
                c->tipCerere == 2 ? QStringLiteral("alocatie pentru familia monoparentala")
                                  : QStringLiteral("alocatie pentru familia cu sot/sotie"));
    Inlocuieste(corp, "#AnCalcul#", QString::number(c->an));
    Inlocuieste(corp, "#NrMembrii#", QString::number(c->nrMembrii));
    Inlocuieste(corp, "#NrCopii#", QString::number(c->nrCopii));
    Inlocuieste(corp, "#VenitTotal#", c->venitTotal.textSuma());
    Inlocuieste(corp, "#VenitpeMembru#", c->venitPeMembru.textSuma());
    Inlocuieste(corp, "#Barem#", textBarem(*c));
    Inlocuieste(corp, "#Cuantum#", c->cuantum.textSuma());
    Inlocuieste(corp, "#Observatii#", c->observatii);
    int n = 0;
    for (const MembruCalcul& m : c->membri) {
        if (++n > RanduriFisaDispozitie)
            break;
        Inlocuieste(corp, marcaj("#mNr", n), QString::number(n));
        Inlocuieste(corp, marcaj("#mNume", n), (m.nume + QLatin1Char(' ') + m.prenume).trimmed());
        Inlocuieste(corp, marcaj("#mCNP", n), m.cnp);
        Inlocuieste(corp, marcaj("#mCopil", n), m.numarat ? QStringLiteral("DA") : QStringLiteral("NU"));
        Inlocuieste(corp, marcaj("#mMotiv", n), m.motiv);
    }
    for (int k = n + 1; k <= RanduriFisaDispozitie; ++k)
        for (const char* prefix : {"#mNr", "#mNume", "#mCNP", "#mCopil", "#mMotiv"})
            Inlocuieste(corp, marcaj(prefix, k), QString());
    Inlocuieste(corp, "##data##", TextData(EsteDataZero(dataFisa) ? Ceas::azi() : dataFisa));
    Rezultat p = bd.selecteaza(QStringLiteral("SELECT Judet, Localitate, AsSocial FROM DatePrimarie"));
    const bool areP = p.next();
    Inlocuieste(corp, "#Jud#", areP && !p.valoare(0).isNull() ? p.valoare(0).toString() : Puncte);
    Inlocuieste(corp, "#Loc#", areP && !p.valoare(1).isNull() ? p.valoare(1).toString() : Puncte);
    Inlocuieste(corp, "#AsSocial#", areP ? p.valoare(2).toString() : QString());
}

} // namespace

bool CompleteazaFisaDispozitie(qint64 dispozitieId, const QDate& dataFisa, QByteArray& corp, const BD& bd)
{
    try {
        fisa(dispozitieId, dataFisa, corp, bd);
        return true;
    } catch (const Eroare& e) {
        Mesaj(e.descriere);
        return false;
    }
}

std::optional<QByteArray> DocumentulFiseiDispozitiei(qint64 dispozitieId, const QDate& dataFisa, const BD& bd)
{
    AsiguraFisierOficiu(Proces::setari().CaleBD, QStringLiteral("acte/") + SablonFisaDispozitie);
    Sablon sablon;
    if (!CitesteSablon(CaleSablon(SablonFisaDispozitie), sablon) ||
        !CompleteazaFisaDispozitie(dispozitieId, dataFisa, sablon.corp, bd))
        return std::nullopt;
    return AsambleazaDocument(sablon);
}
