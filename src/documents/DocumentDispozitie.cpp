#include "documents/DocumentDispozitie.h"

#include "database/BD.h"
#include "documents/SablonRtf.h"
#include "documents/ValoriDocument.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Setari.h"
#include "database/Adresa.h"

#include <QDate>

#include <array>

QString NumeSablonDispozitie(int actiune)
{
    static const char* const nume[] = {"acordare.rtf",   "modificare.rtf", "suspendare.rtf",
                                       "respingere.rtf", "incetare.rtf",   "reluare.rtf"};
    if (actiune < 1 || actiune > 6)
        return {};
    return QString::fromLatin1(nume[actiune - 1]);
}

namespace {

// The condition of the 2012 scale row for an income per member, with its bound values; past
// the second tier the office's message, and no tier at all.
QString conditieBarem(int tipCerere, double venitPeMembru, QVariantList& param)
{
    if (venitPeMembru < 200) {
        param << tipCerere << 0.4;
        return QStringLiteral(" AND Tip = ? AND Suma = ?");
    }
    if (venitPeMembru < 370) {
        param << tipCerere << 0.74;
        return QStringLiteral(" AND Tip = ? AND Suma = ?");
    }
    Mesaj(QStringLiteral("eroare la VenitpeMembru in Cereri"));
    return QString();
}

// The scale value, read once per row of the scale when a cache is given (a run of many
// dispositions asks for the same few rows again and again).
QString valoareBarem(const BD& bd, int tipCerere, qint64 nrCopii, double venitPeMembru, QHash<QString, QString>* cache)
{
    // The thresholds and the start date of the scale are those of the 2012 law; a later scale
    // changes the amounts but not this marker.
    QVariantList param{nrCopii < 4 ? nrCopii : 4};
    const QString conditie = conditieBarem(tipCerere, venitPeMembru, param);
    param << DataPentruBD(QDate(2012, 1, 1));
    QString cheie;
    for (const QVariant& v : param)
        cheie += v.toString() + QLatin1Char('|');
    if (cache && cache->contains(cheie))
        return cache->value(cheie);
    const QVariant v = bd.scalar(QStringLiteral("SELECT Barem FROM Barem WHERE NrPers = ?") + conditie +
                                     QStringLiteral(" AND DataInceput = ?"),
                                 param);
    if (!v.isValid())
        throw Eroare(3021, QStringLiteral("Nu exista un rand in Barem pentru %1 copii").arg(nrCopii),
                     QStringLiteral("Documente"));
    const QString text = TextNumarBD(v);
    if (cache)
        cache->insert(cheie, text);
    return text;
}

QString TextTipLocalitate(const QVariant& v, bool& cunoscut)
{
    cunoscut = true;
    if (v.isNull())
        return {};
    switch (v.toInt()) {
    case 1: return QStringLiteral("comuna");
    case 2: return QStringLiteral("orasul");
    case 3: return QStringLiteral("municipiul");
    }
    cunoscut = false;
    return {};
}

// The columns that the fill of a disposition reads, from one statement over the disposition,
// its application, the application's titular and its family, in this order.
enum Coloana {
    dID,
    dActiune,
    dNrDisp,
    dDataDisp,
    dDinData,
    dCuantum,
    dCuantumVechi,
    dMotiv,
    cID,
    cNrCerere,
    cDataCerere,
    cTipCerere,
    cNrCopii,
    cVenitpeMembru,
    cMotivStare,
    cMembruID1,
    cFamilieID,
    mID,
    mNume,
    mPrenume,
    mCNP,
    fID,
    fLocalitate,
    fStrada,
    fNr,
    fSc,
    fAp,
    fJudet,
    NrColoane
};

const char* const SqlRanduri =
    "SELECT D.DispozitieID, D.Actiune, D.NrDisp, D.DataDisp, D.DinData, D.Cuantum, D.CuantumVechi, D.Motiv, "
    "C.CerereID, C.NrCerere, C.DataCerere, C.TipCerere, C.NrCopii, C.VenitpeMembru, C.MotivStare, C.MembruID1, "
    "C.FamilieID, M.MembruID, M.Nume, M.Prenume, M.CNP, F.FamilieID, F.Localitate, F.Strada, F.Nr, F.Sc, F.Ap, "
    "F.Judet FROM Dispozitii AS D LEFT JOIN Cereri AS C ON C.CerereID = D.CerereID "
    "LEFT JOIN Membrii AS M ON M.MembruID = C.MembruID1 LEFT JOIN Familii AS F ON F.FamilieID = C.FamilieID "
    "WHERE D.DispozitieID IN (%1)";

// The dispositions read in one statement for this many of them.
constexpr qsizetype RanduriPeCitire = 500;

// The town hall's columns that the dispositions print.
enum ColoanaPrimarie { pJudet, pCodFiscal, pLocalitate, pPrimar, pSecretar, pTipLocalitate, NrColoanePrimarie };

} // namespace

QString ValoareBaremDocument(const BD& bd, int tipCerere, qint64 nrCopii, double venitPeMembru)
{
    return valoareBarem(bd, tipCerere, nrCopii, venitPeMembru, nullptr);
}

struct CompletareDispozitii::Rand {
    std::array<QVariant, NrColoane> v;
};

CompletareDispozitii::CompletareDispozitii(const Setari& s, const BD& bd) : m_s(s), m_bd(bd) {}

CompletareDispozitii::~CompletareDispozitii() = default;

void CompletareDispozitii::citeste(const QList<qint64>& dispozitii)
{
    for (qsizetype i = 0; i < dispozitii.size(); i += RanduriPeCitire) {
        const QList<qint64> parte = dispozitii.mid(i, RanduriPeCitire);
        QVariantList param;
        for (qint64 id : parte)
            param << id;
        Rezultat r = m_bd.selecteaza(
            QString::fromLatin1(SqlRanduri).arg(QStringList(parte.size(), QStringLiteral("?")).join(QLatin1Char(','))),
            param);
        while (r.next()) {
            Rand rand;
            for (int c = 0; c < NrColoane; ++c)
                rand.v[size_t(c)] = r.valoare(c);
            const qint64 id = rand.v[dID].toLongLong();
            m_randuri.insert(id, std::make_shared<Rand>(std::move(rand)));
        }
    }
}

QVariant CompletareDispozitii::actiune(qint64 dispozitieId) const
{
    const auto it = m_randuri.find(dispozitieId);
    return it == m_randuri.end() ? QVariant() : (*it)->v[dActiune];
}

bool CompletareDispozitii::completeaza(qint64 id, QByteArray& corp)
{
    UmplereText u(corp);
    return completeaza(id, u);
}

bool CompletareDispozitii::completeaza(qint64 id, Umplere& corp)
{
    try {
        return completeazaRand(id, corp);
    } catch (const Eroare& e) {
        Mesaj(e.text());
        return false;
    }
}

bool CompletareDispozitii::completeazaRand(qint64 id, Umplere& corp)
{
    if (!m_randuri.contains(id))
        citeste({id});
    const auto gasit = m_randuri.find(id);
    if (gasit == m_randuri.end())
        throw Eroare(3021, QStringLiteral("Dispozitia %1 nu a fost gasita").arg(id), QStringLiteral("Documente"));
    const auto& d = (*gasit)->v;
    // The town hall's row, read once for the run.
    if (!m_primarieCitita) {
        Rezultat p = m_bd.selecteaza(
            QStringLiteral("SELECT Judet, CodFiscal, Localitate, Primar, Secretar, TipLocalitate FROM DatePrimarie"));
        if (p.next()) {
            m_primarie.emplace();
            for (int c = 0; c < NrColoanePrimarie; ++c)
                m_primarie->push_back(p.valoare(c));
        }
        m_primarieCitita = true;
    }
    if (!m_primarie) {
        Mesaj(QStringLiteral("Introduceti mai intai datele primariei!"));
        return false;
    }
    const QVariantList& p = *m_primarie;

    // The town hall.
    corp.inlocuieste("#Judet#", Obligatoriu(p[pJudet], "DatePrimarie", "Judet").toString());
    corp.inlocuieste("#COD#", QString());
    corp.inlocuieste("#CodFiscal#", p[pCodFiscal].isNull() ? QString() : p[pCodFiscal].toString());
    corp.inlocuieste("#Localitate#", Obligatoriu(p[pLocalitate], "DatePrimarie", "Localitate").toString());
    corp.inlocuieste("#Primar#", Obligatoriu(p[pPrimar], "DatePrimarie", "Primar").toString());
    corp.inlocuieste("#secretar#", Obligatoriu(p[pSecretar], "DatePrimarie", "Secretar").toString());
    bool cunoscut = true;
    const QString tipLoc = TextTipLocalitate(p[pTipLocalitate], cunoscut);
    if (cunoscut) // an unknown kind of place leaves the marker for the officer to see
        corp.inlocuieste("#TipLoc#", tipLoc);

    // The application and the disposition.
    if (d[cID].isNull())
        throw Eroare(3021, QStringLiteral("Cererea dispozitiei %1 nu a fost gasita").arg(id),
                     QStringLiteral("Documente"));
    corp.inlocuieste("#NrC#", TextNumarBD(Obligatoriu(d[cNrCerere], "Cereri", "NrCerere")));
    corp.inlocuieste("#DataC#", TextData(DataDinBD(Obligatoriu(d[cDataCerere], "Cereri", "DataCerere"))));
    const int tipCerere = Obligatoriu(d[cTipCerere], "Cereri", "TipCerere").toInt();
    if (tipCerere == 1)
        corp.inlocuieste("#tip#", QStringLiteral("complementara"));
    else if (tipCerere == 2)
        corp.inlocuieste("#tip#", QStringLiteral("monoparentala"));
    const qint64 nrCopii = Obligatoriu(d[cNrCopii], "Cereri", "NrCopii").toLongLong();
    corp.inlocuieste("#NrCopii#", QString::number(nrCopii));
    corp.inlocuieste("#copii#", nrCopii == 1 ? QStringLiteral("copil") : QStringLiteral("copii"));
    const QVariant& nrDisp = d[dNrDisp];
    corp.inlocuieste("#Nr#",
                     nrDisp.isNull() || nrDisp.toDouble() == 0 ? QStringLiteral(".......") : TextNumarBD(nrDisp));
    const QDate dataDisp = DataDinBD(d[dDataDisp]);
    corp.inlocuieste("#DataDisp#", EsteDataZero(dataDisp) ? QStringLiteral("..................") : TextData(dataDisp));
    corp.inlocuieste("#DinData#", TextData(DataDinBD(d[dDinData])));
    if (corp.are("#suma#"))
        corp.inlocuieste("#suma#", TextNumarBD(Obligatoriu(d[dCuantum], "Dispozitii", "Cuantum")));
    if (corp.are("#sumav#"))
        corp.inlocuieste("#sumav#", TextNumarBD(Obligatoriu(d[dCuantumVechi], "Dispozitii", "CuantumVechi")));

    // The scale row; read only when the template shows it.
    if (corp.are("#barem#"))
        corp.inlocuieste("#barem#",
                         valoareBarem(m_bd, tipCerere, nrCopii,
                                      Obligatoriu(d[cVenitpeMembru], "Cereri", "VenitpeMembru").toDouble(), &m_barem));

    // The reason: the application's status reason when the workstation says so.
    const QVariant& motiv = m_s.Motiv != 0 ? d[cMotivStare] : d[dMotiv];
    corp.inlocuieste("#Motiv#", motiv.isNull() ? QString() : motiv.toString());

    // The titular. Only a CNP that begins with 1 is a man's: the office's letters have
    // always been addressed so.
    const Persoana t = PersoanaCitita(Obligatoriu(d[cMembruID1], "Cereri", "MembruID1"), !d[mID].isNull(), d[mNume],
                                      d[mPrenume], d[mCNP]);
    const bool barbat = t.cnp.startsWith(QLatin1Char('1'));
    corp.inlocuieste("#Nume#", t.nume);
    corp.inlocuieste("#sex#", barbat ? QStringLiteral("d-lui") : QStringLiteral("d-nei"));
    corp.inlocuieste("#sex1#", barbat ? QStringLiteral("domnul") : QStringLiteral("doamna"));
    corp.inlocuieste("#numit#", barbat ? QStringLiteral("numitului") : QStringLiteral("numitei"));
    corp.inlocuieste("#numit1#", barbat ? QStringLiteral("numitul") : QStringLiteral("numita"));
    corp.inlocuieste("#CNP#", t.cnp);

    // The family's address.
    Obligatoriu(d[cFamilieID], "Cereri", "FamilieID");
    if (d[fID].isNull())
        throw Eroare(3021, QStringLiteral("Familia cererii nu a fost gasita"), QStringLiteral("Documente"));
    const auto text = [](const QVariant& v) { return v.isNull() ? QString() : v.toString(); };
    corp.inlocuieste("#Adresa#", AdresaCerere(text(d[fLocalitate]), text(d[fStrada]), text(d[fNr]), text(d[fSc]),
                                              text(d[fAp]), m_s.StrSat));
    corp.inlocuieste("#JudetD#", text(d[fJudet]));
    return true;
}

bool CompleteazaDispozitia(qint64 dispozitieId, QByteArray& corp, const Setari& s, const BD& bd)
{
    return CompletareDispozitii(s, bd).completeaza(dispozitieId, corp);
}

std::optional<QByteArray> DocumentulDispozitiei(qint64 dispozitieId, const Setari& s, const BD& bd)
{
    const QVariant actiune =
        bd.scalar(QStringLiteral("SELECT Actiune FROM Dispozitii WHERE DispozitieID = ?"), {dispozitieId});
    if (!actiune.isValid()) {
        Mesaj(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe o Cerere!"));
        return std::nullopt;
    }
    const QString nume = NumeSablonDispozitie(actiune.toInt());
    if (nume.isEmpty())
        return std::nullopt;
    Sablon sablon;
    if (!CitesteSablon(CaleSablon(nume), sablon))
        return std::nullopt;
    if (!CompleteazaDispozitia(dispozitieId, sablon.corp, s, bd))
        return std::nullopt;
    return AsambleazaDocument(sablon);
}
