#include "documents/DocumenteCerere.h"

#include "database/BD.h"
#include "documents/SablonRtf.h"
#include "documents/ValoriDocument.h"
#include "common/Bani.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Setari.h"
#include "common/Text.h"

namespace {

const QString Puncte = QStringLiteral(".....................");

QByteArray marcaj(const char* prefix, int n)
{
    return QByteArray(prefix) + QByteArray::number(n) + '#';
}

Rezultat cerere(const BD& bd, qint64 id)
{
    Rezultat c = bd.selecteaza(QStringLiteral("SELECT * FROM Cereri WHERE CerereID = ?"), {id});
    if (!c.next())
        throw Eroare(3021, QStringLiteral("Cererea %1 nu a fost gasita").arg(id), QStringLiteral("Documente"));
    return c;
}

Rezultat datePrimarie(const BD& bd)
{
    Rezultat p = bd.selecteaza(QStringLiteral("SELECT * FROM DatePrimarie"));
    if (!p.next())
        throw Eroare(3021, QStringLiteral("Introduceti mai intai datele primariei!"), QStringLiteral("Documente"));
    return p;
}

QString textSauPuncte(const Rezultat& r, const char* coloana)
{
    const QVariant v = r[coloana];
    return v.isNull() ? Puncte : v.toString();
}

// The word of a code list, as a document writes it: lower case, without the remark in parentheses.
QString cuvantCod(const BD& bd, int tip, const QVariant& id)
{
    const QVariant v =
        bd.scalar(QStringLiteral("SELECT Continut FROM DateGen WHERE Tip = ? AND DataID = ?"), {tip, id});
    return v.isValid() ? TextPanaLaParanteza(v.toString()).toLower() : QString();
}

void fisa(qint64 id, const QDate& dataFisa, QByteArray& corp, const BD& bd)
{
    const Rezultat c = cerere(bd, id);
    Inlocuieste(corp, "#NrC#", TextNumarBD(Obligatoriu(c, "Cereri", "NrCerere")));
    // The sheet writes the day without a leading zero.
    const QDate dc = DataDinBD(Obligatoriu(c, "Cereri", "DataCerere"));
    Inlocuieste(corp, "#DataCerere#",
                QString::number(dc.day()) + QLatin1Char('.') + DouaCifre(dc.month()) + QLatin1Char('.') +
                    QString::number(dc.year()));
    Inlocuieste(corp, "#NrMembrii#", TextNumarBD(Obligatoriu(c, "Cereri", "NrMembrii")));
    Inlocuieste(corp, "#NrCopii#", TextNumarBD(Obligatoriu(c, "Cereri", "NrCopii")));
    Inlocuieste(corp, "#VenitTotal#", TextBaniBD(Obligatoriu(c, "Cereri", "VenitTotal")));
    Inlocuieste(corp, "#VenitpeMembru#", TextBaniBD(c["VenitpeMembru"]));
    Inlocuieste(corp, "#Cuantum#", TextBaniBD(Obligatoriu(c, "Cereri", "Cuantum")));
    Inlocuieste(corp, "#Titular#", CitestePersoana(bd, Obligatoriu(c, "Cereri", "MembruID1")).nume);
    Inlocuieste(corp, "##data##", TextData(EsteDataZero(dataFisa) ? Ceas::azi() : dataFisa));
    const Rezultat p = datePrimarie(bd);
    Inlocuieste(corp, "#Jud#", textSauPuncte(p, "Judet"));
    Inlocuieste(corp, "#Loc#", textSauPuncte(p, "Localitate"));
    Inlocuieste(corp, "#AsSocial#", p.text("AsSocial"));
}

void declaratie(qint64 id, QByteArray& corp, const Setari& s, const BD& bd)
{
    const Rezultat p = datePrimarie(bd);
    Inlocuieste(corp, "#Judet#", textSauPuncte(p, "Judet"));
    Inlocuieste(corp, "#Localitate#", textSauPuncte(p, "Localitate"));
    const Rezultat c = cerere(bd, id);
    Inlocuieste(corp, "#NrC#", TextNumarBD(Obligatoriu(c, "Cereri", "NrCerere")));
    Inlocuieste(corp, "#DataC#", TextData(DataDinBD(Obligatoriu(c, "Cereri", "DataCerere"))));

    // Incomes: the first 12 rows fill the table, every row counts in the total.
    Bani total;
    int n = 0;
    Rezultat v = bd.selecteaza(QStringLiteral("SELECT CodVenit, Valoare FROM Venituri WHERE CerereID = ?"), {id});
    while (v.next()) {
        ++n;
        if (n <= RanduriDeclaratie) {
            Inlocuieste(corp, marcaj("#c", n), TextNumarBD(v["CodVenit"]));
            Inlocuieste(corp, marcaj("#cu", n), TextBaniBD(Obligatoriu(v, "Venituri", "Valoare")));
        }
        total += Bani::dinVariant(v["Valoare"]);
    }
    for (int k = n + 1; k <= RanduriDeclaratie; ++k) {
        Inlocuieste(corp, marcaj("#c", k), QString());
        Inlocuieste(corp, marcaj("#cu", k), QString());
    }
    Inlocuieste(corp, "#tot#", total.text());

    Rezultat f = bd.selecteaza(QStringLiteral("SELECT * FROM Familii WHERE FamilieID = ?"),
                               {Obligatoriu(c, "Cereri", "FamilieID")});
    if (!f.next())
        throw Eroare(3021, QStringLiteral("Familia cererii %1 nu a fost gasita").arg(id), QStringLiteral("Documente"));
    Inlocuieste(corp, "#adresa#", AdresaFamilie(f, s.StrSat));
    const Persoana t = CitestePersoana(bd, Obligatoriu(c, "Cereri", "MembruID1"));
    Inlocuieste(corp, "#nume#", t.nume);
    Inlocuieste(corp, "#cnp#", t.cnp);

    // The persons of the application, with their relationship and occupation in words.
    n = 0;
    Rezultat m = bd.selecteaza(
        QStringLiteral("SELECT MembruID, RudenieID, OcupatieID FROM CereriMembrii WHERE CerereID = ?"), {id});
    while (m.next()) {
        ++n;
        if (n > RanduriDeclaratie)
            continue; // the table has no room; nothing else counts persons
        const Persoana pers = CitestePersoana(bd, m["MembruID"]);
        Inlocuieste(corp, marcaj("#nume", n), pers.nume);
        Inlocuieste(corp, marcaj("#cnp", n), pers.cnp);
        Inlocuieste(corp, marcaj("#n", n), QString::number(n));
        Inlocuieste(corp, marcaj("#r", n), cuvantCod(bd, 2, m["RudenieID"]));
        Inlocuieste(corp, marcaj("#o", n), cuvantCod(bd, 3, m["OcupatieID"]));
    }
    for (int k = n + 1; k <= RanduriDeclaratie; ++k)
        for (const char* prefix : {"#nume", "#cnp", "#n", "#r", "#o"})
            Inlocuieste(corp, marcaj(prefix, k), QString());
}

template <typename F> bool prinde(F&& f)
{
    try {
        f();
        return true;
    } catch (const Eroare& e) {
        Mesaj(e.text());
        return false;
    }
}

// The application must still be there (another workstation may have deleted it).
bool cerereExista(const BD& bd, qint64 id)
{
    if (bd.scalar(QStringLiteral("SELECT CerereID FROM Cereri WHERE CerereID = ?"), {id}).isValid())
        return true;
    Mesaj(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
    return false;
}

} // namespace

bool CompleteazaFisa(qint64 cerereId, const QDate& dataFisa, QByteArray& corp, const BD& bd)
{
    return prinde([&] { fisa(cerereId, dataFisa, corp, bd); });
}

bool CompleteazaDeclaratia(qint64 cerereId, QByteArray& corp, const Setari& s, const BD& bd)
{
    return prinde([&] { declaratie(cerereId, corp, s, bd); });
}

std::optional<QByteArray> DocumentulFisei(qint64 cerereId, const QDate& dataFisa, const BD& bd)
{
    if (!cerereExista(bd, cerereId))
        return std::nullopt;
    Sablon sablon;
    if (!CitesteSablon(CaleSablon(QStringLiteral("fisa.rtf")), sablon) ||
        !CompleteazaFisa(cerereId, dataFisa, sablon.corp, bd))
        return std::nullopt;
    return AsambleazaDocument(sablon);
}

std::optional<QByteArray> DocumentulDeclaratiei(qint64 cerereId, const Setari& s, const BD& bd)
{
    if (!cerereExista(bd, cerereId))
        return std::nullopt;
    Sablon sablon;
    if (!CitesteSablon(CaleSablon(QStringLiteral("declaratie.rtf")), sablon) ||
        !CompleteazaDeclaratia(cerereId, sablon.corp, s, bd))
        return std::nullopt;
    return AsambleazaDocument(sablon);
}
