#include "decisions/Adeverinte.h"

#include "amounts/CNP.h"
#include "database/BD.h"
#include "common/Ceas.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Proces.h"

namespace {

QString numeComplet(const QVariant& nume, const QVariant& prenume)
{
    return nume.toString() + QLatin1Char(' ') + prenume.toString();
}

} // namespace

QDate ReferintaVarsta()
{
    const Setari& s = Proces::setari();
    return DataSerial(s.AnSetat, s.LunaSetata + 1, 1);
}

std::vector<ElevCerere> CitesteEleviCereri(const BD& bd, const QDate& referinta)
{
    std::vector<ElevCerere> r;
    Rezultat q = bd.selecteaza(
        QStringLiteral("SELECT C.CerereID, C.NrCerere, T.Nume, T.Prenume, CM.MembruID, E.Nume, E.Prenume, E.CNP "
                       "FROM Cereri AS C INNER JOIN Membrii AS T ON C.MembruID1 = T.MembruID "
                       "INNER JOIN CereriMembrii AS CM ON CM.CerereID = C.CerereID AND CM.OcupatieID IN (8, 9) "
                       "INNER JOIN Membrii AS E ON E.MembruID = CM.MembruID "
                       "ORDER BY C.CerereID"));
    while (q.next()) {
        ElevCerere e;
        e.cerereId = q.valoare(0).toLongLong();
        e.nrCerere = q.valoare(1).toString();
        e.titular = numeComplet(q.valoare(2), q.valoare(3));
        e.membruId = q.valoare(4).toLongLong();
        e.elev = numeComplet(q.valoare(5), q.valoare(6));
        if (!q.valoare(7).isNull()) {
            const QString cnp = q.valoare(7).toString();
            e.dataNasterii = TextDataNasteriiDinCNP(cnp);
            e.varsta = QString::number(VarstaInAni(referinta, DataNasteriiDinCNP(cnp, false), cnp));
        }
        r.push_back(std::move(e));
    }
    return r;
}

std::vector<Adeverinta> CitesteAdeverinte(const BD& bd, qint64 cerereId, qint64 membruId)
{
    std::vector<Adeverinta> r;
    Rezultat q = bd.selecteaza(QStringLiteral("SELECT AdevID, NrAdev, DataAdeverinta, DataExpAdev, DataDepunerii, "
                                              "TipAdeverinta FROM Adeverinte WHERE CerereID = ? AND MembruID = ?"),
                               {cerereId, membruId});
    while (q.next()) {
        Adeverinta a;
        a.adevId = q.valoare(0).toLongLong();
        a.cerereId = cerereId;
        a.membruId = membruId;
        a.nrAdev = q.valoare(1).toString();
        a.dataAdeverinta = DataDinBD(q.valoare(2));
        a.dataExpAdev = DataDinBD(q.valoare(3));
        a.dataDepunerii = DataDinBD(q.valoare(4));
        a.tipAdeverinta = q.valoare(5).isNull() ? -1 : q.valoare(5).toInt();
        r.push_back(std::move(a));
    }
    return r;
}

QString TextTipAdeverinta(int tip)
{
    if (tip < 0)
        return QString();
    return TextDataLunga(QDate(1899, 12, 30).addDays(tip));
}

bool SalveazaAdeverinta(BD& bd, Adeverinta& a, bool adaug)
{
    if (a.nrAdev.trimmed().isEmpty()) {
        Mesaj(QStringLiteral("Nu ati introdus numarul adeverintei"));
        return false;
    }
    Tranzactie t(bd);
    const QVariantList valori{a.nrAdev.trimmed(), DataPentruBD(a.dataAdeverinta), DataPentruBD(a.dataDepunerii),
                              a.tipAdeverinta < 0 ? QVariant() : QVariant(a.tipAdeverinta),
                              DataPentruBD(a.dataExpAdev)};
    if (adaug) {
        a.adevId = bd.urmatoareaCheie(QStringLiteral("Adeverinte"), QStringLiteral("AdevID"));
        bd.executa(QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, NrAdev, DataAdeverinta, "
                                  "DataDepunerii, TipAdeverinta, DataExpAdev) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                   QVariantList{a.adevId, a.cerereId, a.membruId} + valori);
    } else if (bd.executa(QStringLiteral("UPDATE Adeverinte SET NrAdev = ?, DataAdeverinta = ?, DataDepunerii = ?, "
                                         "TipAdeverinta = ?, DataExpAdev = ? WHERE AdevID = ?"),
                          valori + QVariantList{a.adevId}) == 0) {
        throw Eroare(CodEroare::RandSters, QStringLiteral("Adeverinta a fost stearsa de pe alt calculator."),
                     QStringLiteral("frmAdAdeverinte"));
    }
    t.confirma();
    return true;
}

void StergeAdeverinta(const BD& bd, qint64 adevId)
{
    if (bd.executa(QStringLiteral("DELETE FROM Adeverinte WHERE AdevID = ?"), {adevId}) == 0)
        throw Eroare(CodEroare::RandSters, QStringLiteral("Adeverinta a fost stearsa de pe alt calculator."),
                     QStringLiteral("frmAdeverinte"));
}

AntetAdeverinta CitesteAntetAdeverinta(const BD& bd, qint64 cerereId, qint64 membruId)
{
    AntetAdeverinta a;
    Rezultat c =
        bd.selecteaza(QStringLiteral("SELECT C.NrCerere, M.Nume, M.Prenume FROM Cereri AS C "
                                     "LEFT JOIN Membrii AS M ON M.MembruID = C.MembruID1 WHERE C.CerereID = ?"),
                      {cerereId});
    if (c.next()) {
        a.nrCerere = c.valoare(0).toString();
        if (!c.valoare(1).isNull() || !c.valoare(2).isNull())
            a.titular = numeComplet(c.valoare(1), c.valoare(2));
    }
    Rezultat e = bd.selecteaza(QStringLiteral("SELECT Nume, Prenume FROM Membrii WHERE MembruID = ?"), {membruId});
    if (e.next())
        a.elev = numeComplet(e.valoare(0), e.valoare(1));
    return a;
}
