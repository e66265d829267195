#include "registers/Persoane.h"

#include "database/BD.h"

std::vector<RandPersoana> CitestePersoane(const BD& bd)
{
    std::vector<RandPersoana> r;
    // The short name of the identity document comes with the same statement; a kind with no
    // row in TipuriActe shows empty.
    Rezultat q =
        bd.selecteaza(QStringLiteral("SELECT M.MembruID, M.Nume, M.Prenume, M.CNP, T.DenScurt, M.SerieBI, M.NrBI "
                                     "FROM Membrii AS M LEFT JOIN TipuriActe AS T ON T.TipActID = M.TipAct"));
    while (q.next()) {
        RandPersoana p;
        p.id = q.valoare(0).toLongLong();
        p.nume = q.valoare(1).toString();
        p.prenume = q.valoare(2).toString();
        p.cnp = q.valoare(3).toString();
        p.tipAct = q.valoare(4).toString();
        p.serieBI = q.valoare(5).toString();
        p.nrBI = q.valoare(6).toString();
        r.push_back(std::move(p));
    }
    return r;
}

int CautaPrefix(const QStringList& valori, const QString& text)
{
    const QString cautat = text.trimmed().toUpper();
    for (int i = 0; i < valori.size(); ++i)
        if (valori[i].left(cautat.size()).toUpper() == cautat)
            return i;
    return -1;
}

QString MesajNegasit(int caseta, const QString& text)
{
    static const char* const ce[] = {"Numele: ", "Prenumele: ", "CNP-ul: "};
    return QStringLiteral("Nu s-a gasit ") + QString::fromLatin1(ce[qBound(0, caseta, 2)]) + text;
}
