#include "documents/DocumentDispozitie.h"

#include "database/BD.h"
#include "documents/SablonRtf.h"
#include "documents/ValoriDocument.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Setari.h"

#include <QDate>

QString NumeSablonDispozitie(int actiune)
{
    static const char* const nume[] = {"acordare.rtf",   "modificare.rtf", "suspendare.rtf",
                                       "respingere.rtf", "incetare.rtf",   "reluare.rtf"};
    if (actiune < 1 || actiune > 6)
        return {};
    return QString::fromLatin1(nume[actiune - 1]);
}

QString ValoareBaremDocument(const BD& bd, int tipCerere, qint64 nrCopii, double venitPeMembru)
{
    // The thresholds and the start date of the scale are those of the 2012 law; a later scale
    // changes the amounts but not this marker.
    QString conditie = QStringLiteral(" AND Tip = ?");
    QVariantList param{tipCerere};
    if (venitPeMembru < 200) {
        conditie += QStringLiteral(" AND Suma = ?");
        param << 0.4;
    } else if (venitPeMembru < 370) {
        conditie += QStringLiteral(" AND Suma = ?");
        param << 0.74;
    } else {
        Mesaj(QStringLiteral("eroare la VenitpeMembru in Cereri"));
        conditie.clear();
        param.clear();
    }
    param.prepend(nrCopii < 4 ? nrCopii : 4);
    param << DataPentruBD(QDate(2012, 1, 1));
    const QVariant v = bd.scalar(QStringLiteral("SELECT Barem FROM Barem WHERE NrPers = ?") + conditie +
                                     QStringLiteral(" AND DataInceput = ?"),
                                 param);
    if (!v.isValid())
        throw Eroare(3021, QStringLiteral("Nu exista un rand in Barem pentru %1 copii").arg(nrCopii),
                     QStringLiteral("Documente"));
    return TextNumarBD(v);
}

namespace {

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

void completeaza(qint64 id, QByteArray& corp, const Setari& s, const BD& bd, bool& ok)
{
    Rezultat d = bd.selecteaza(QStringLiteral("SELECT * FROM Dispozitii WHERE DispozitieID = ?"), {id});
    if (!d.next())
        throw Eroare(3021, QStringLiteral("Dispozitia %1 nu a fost gasita").arg(id), QStringLiteral("Documente"));
    Rezultat p = bd.selecteaza(QStringLiteral("SELECT * FROM DatePrimarie"));
    if (!p.next()) {
        Mesaj(QStringLiteral("Introduceti mai intai datele primariei!"));
        return;
    }

    // The town hall.
    Inlocuieste(corp, "#Judet#", Obligatoriu(p, "DatePrimarie", "Judet").toString());
    Inlocuieste(corp, "#COD#", QString());
    Inlocuieste(corp, "#CodFiscal#", p.text("CodFiscal"));
    Inlocuieste(corp, "#Localitate#", Obligatoriu(p, "DatePrimarie", "Localitate").toString());
    Inlocuieste(corp, "#Primar#", Obligatoriu(p, "DatePrimarie", "Primar").toString());
    Inlocuieste(corp, "#secretar#", Obligatoriu(p, "DatePrimarie", "Secretar").toString());
    bool cunoscut = true;
    const QString tipLoc = TextTipLocalitate(p["TipLocalitate"], cunoscut);
    if (cunoscut) // an unknown kind of place leaves the marker for the officer to see
        Inlocuieste(corp, "#TipLoc#", tipLoc);

    // The application and the disposition.
    Rezultat c = bd.selecteaza(QStringLiteral("SELECT * FROM Cereri WHERE CerereID = ?"), {d["CerereID"]});
    if (!c.next())
        throw Eroare(3021, QStringLiteral("Cererea dispozitiei %1 nu a fost gasita").arg(id),
                     QStringLiteral("Documente"));
    Inlocuieste(corp, "#NrC#", TextNumarBD(Obligatoriu(c, "Cereri", "NrCerere")));
    Inlocuieste(corp, "#DataC#", TextData(DataDinBD(Obligatoriu(c, "Cereri", "DataCerere"))));
    const int tipCerere = Obligatoriu(c, "Cereri", "TipCerere").toInt();
    if (tipCerere == 1)
        Inlocuieste(corp, "#tip#", QStringLiteral("complementara"));
    else if (tipCerere == 2)
        Inlocuieste(corp, "#tip#", QStringLiteral("monoparentala"));
    const qint64 nrCopii = Obligatoriu(c, "Cereri", "NrCopii").toLongLong();
    Inlocuieste(corp, "#NrCopii#", QString::number(nrCopii));
    Inlocuieste(corp, "#copii#", nrCopii == 1 ? QStringLiteral("copil") : QStringLiteral("copii"));
    const QVariant nrDisp = d["NrDisp"];
    Inlocuieste(corp, "#Nr#",
                nrDisp.isNull() || nrDisp.toDouble() == 0 ? QStringLiteral(".......") : TextNumarBD(nrDisp));
    const QDate dataDisp = DataDinBD(d["DataDisp"]);
    Inlocuieste(corp, "#DataDisp#", EsteDataZero(dataDisp) ? QStringLiteral("..................") : TextData(dataDisp));
    Inlocuieste(corp, "#DinData#", TextData(DataDinBD(d["DinData"])));
    if (corp.contains("#suma#"))
        Inlocuieste(corp, "#suma#", TextNumarBD(Obligatoriu(d, "Dispozitii", "Cuantum")));
    if (corp.contains("#sumav#"))
        Inlocuieste(corp, "#sumav#", TextNumarBD(Obligatoriu(d, "Dispozitii", "CuantumVechi")));

    // The scale row; read only when the template shows it.
    if (corp.contains("#barem#"))
        Inlocuieste(corp, "#barem#",
                    ValoareBaremDocument(bd, tipCerere, nrCopii, Obligatoriu(c, "Cereri", "VenitpeMembru").toDouble()));

    // The reason: the application's status reason when the workstation says so.
    Inlocuieste(corp, "#Motiv#", s.Motiv != 0 ? c.text("MotivStare") : d.text("Motiv"));

    // The titular. Only a CNP that begins with 1 is a man's: the office's letters have
    // always been addressed so.
    const Persoana t = CitestePersoana(bd, Obligatoriu(c, "Cereri", "MembruID1"));
    const bool barbat = t.cnp.startsWith(QLatin1Char('1'));
    Inlocuieste(corp, "#Nume#", t.nume);
    Inlocuieste(corp, "#sex#", barbat ? QStringLiteral("d-lui") : QStringLiteral("d-nei"));
    Inlocuieste(corp, "#sex1#", barbat ? QStringLiteral("domnul") : QStringLiteral("doamna"));
    Inlocuieste(corp, "#numit#", barbat ? QStringLiteral("numitului") : QStringLiteral("numitei"));
    Inlocuieste(corp, "#numit1#", barbat ? QStringLiteral("numitul") : QStringLiteral("numita"));
    Inlocuieste(corp, "#CNP#", t.cnp);

    // The family's address.
    Rezultat f = bd.selecteaza(QStringLiteral("SELECT * FROM Familii WHERE FamilieID = ?"),
                               {Obligatoriu(c, "Cereri", "FamilieID")});
    if (!f.next())
        throw Eroare(3021, QStringLiteral("Familia cererii nu a fost gasita"), QStringLiteral("Documente"));
    Inlocuieste(corp, "#Adresa#", AdresaFamilie(f, s.StrSat));
    Inlocuieste(corp, "#JudetD#", f.text("Judet"));
    ok = true;
}

} // namespace

bool CompleteazaDispozitia(qint64 dispozitieId, QByteArray& corp, const Setari& s, const BD& bd)
{
    bool ok = false;
    try {
        completeaza(dispozitieId, corp, s, bd, ok);
    } catch (const Eroare& e) {
        Mesaj(e.text());
        return false;
    }
    return ok;
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
