#include "maintenance/Mentenanta.h"

#include "database/BD.h"
#include "history/IstoricCereri.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Text.h"

int RecalculDataStare(BD& bd, int luna, int an, bool suprascrie)
{
    Tranzactie t(bd);
    QString sql = QStringLiteral("UPDATE Cereri SET DataStare = DataCerere WHERE Stare = 2 AND %1 = ? AND %2 = ?")
                      .arg(bd.luna(QStringLiteral("DataCerere")), bd.an(QStringLiteral("DataCerere")));
    if (!suprascrie)
        sql += QStringLiteral(" AND DataStare IS NULL");
    const int n = bd.executa(sql, {luna, an});
    t.confirma();
    Mesaj(QStringLiteral("A fost modificata Data Stare la %1 cereri").arg(n));
    return n;
}

int RecalculStare(BD& bd)
{
    Tranzactie t(bd);
    // Each application whose status this changes gets its row of history.
    std::vector<SchimbareCerere> schimbari;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT CerereID, Stare, Cuantum, NrCopii FROM Cereri "
                                              "WHERE Stare IS NULL OR Stare <> 5"));
    while (r.next()) {
        SchimbareCerere s;
        s.cerereId = r.valoare(0).toLongLong();
        if (!r.valoare(1).isNull())
            s.stareVeche = r.valoare(1).toInt();
        s.stare = 5;
        s.cuantum = Bani::dinVariant(r.valoare(2));
        s.cuantumVechi = s.cuantum;
        s.nrCopii = r.valoare(3).toInt();
        s.nrCopiiVechi = s.nrCopii;
        s.motiv = QStringLiteral("Mentenanta: Stare = 5");
        schimbari.push_back(s);
    }
    const int n = bd.executa(QStringLiteral("UPDATE Cereri SET Stare = 5"));
    for (const SchimbareCerere& s : schimbari)
        ScrieIstoric(bd, s);
    t.confirma();
    Mesaj(QStringLiteral("A fost modifcat Stare = 5 la %1 cereri").arg(n));
    return n;
}

int RecalculRudenie(BD& bd)
{
    Tranzactie t(bd);
    const int n3 = bd.executa(QStringLiteral("UPDATE CereriMembrii SET RudenieID = 2 WHERE RudenieID = 3"));
    const int n4 = bd.executa(QStringLiteral("UPDATE CereriMembrii SET RudenieID = 3 WHERE RudenieID = 4"));
    t.confirma();
    Mesaj(QStringLiteral("A fost modificat rudenie de la 3(concubin) la 2(sot/sotie) la %1 cereri").arg(n3));
    Mesaj(QStringLiteral("A fost modificat rudenie de la 4(elev-prg vechi) la 3(elev-prg nou) la %1 cereri").arg(n4));
    return n3 + n4;
}

bool AlocaNumereDispozitie(BD& bd, const Numerotare& n)
{
    const auto refuza = [](const char* mesaj) {
        Mesaj(QString::fromLatin1(mesaj));
        return false;
    };
    if (n.an <= 0)
        return refuza("An incorect. Selectati din lista un an existent");
    if (n.luna <= 0)
        return refuza("Luna incorecta. Selectati din lista o luna existenta");
    if (n.tipIncalzire <= 0)
        return refuza("Tip Incalzire incorect. Selectati din lista un tip existent");
    if (n.nrDispozitie.trimmed().isEmpty())
        return refuza("Nu puteti salva datele inainte de a introduce Numarul Dispozitiei");
    if (n.nrCerere1.trimmed().isEmpty())
        return refuza("Nu puteti salva datele inainte de a introduce Numar Cerere de inceput");
    if (n.nrCerere2.trimmed().isEmpty())
        return refuza("Nu puteti salva datele inainte de a introduce Numar Cerere de final");

    Tranzactie t(bd);
    const QVariant sesiune =
        bd.scalar(QStringLiteral("SELECT SesiuneID FROM Sesiuni WHERE An = ? AND Luna = ?"), {n.an, n.luna});
    QString filtru = QStringLiteral(" WHERE NrCerere >= ? AND NrCerere <= ? AND SesiuneID = ? AND TipID = ?");
    QVariantList param{ValoareIntreaga(n.nrCerere1), ValoareIntreaga(n.nrCerere2), sesiune, n.tipIncalzire};
    if (!n.siCeleCuNumar)
        filtru += QStringLiteral(" AND (NrDispozitie = 0 OR NrDispozitie IS NULL)");
    if (n.faraCuantumZero)
        filtru += QStringLiteral(" AND Cuantum <> 0");

    const qint64 primul = ValoareIntreaga(n.nrDispozitie);
    if (n.numarUnic) {
        if (n.data.isValid())
            bd.executa(QStringLiteral("UPDATE Cereri SET NrDispozitie = ?, DataDispozitie = ?") + filtru,
                       QVariantList{primul, DataPentruBD(n.data)} + param);
        else
            bd.executa(QStringLiteral("UPDATE Cereri SET NrDispozitie = ?") + filtru, QVariantList{primul} + param);
        t.confirma();
        Mesaj(QStringLiteral("Actualizarea a avut loc cu succes!"));
        return true;
    }

    QList<qint64> cereri;
    Rezultat r = bd.selecteaza(
        QStringLiteral("SELECT CerereID FROM Cereri") + filtru + QStringLiteral(" ORDER BY NrCerere"), param);
    while (r.next())
        cereri << r.valoare(0).toLongLong();
    qint64 nr = primul - 1;
    for (qint64 id : cereri)
        bd.executa(QStringLiteral("UPDATE Cereri SET NrDispozitie = ?, DataDispozitie = ? WHERE CerereID = ?"),
                   {++nr, DataPentruBD(n.data), id});
    t.confirma();
    Mesaj(QStringLiteral("Au fost modificate %1 cereri\nUltimul nr de dispozitie alocate este: %2")
              .arg(cereri.size())
              .arg(nr));
    return true;
}

bool CautaNumereNealocate(const BD& bd, int tipIncalzire, NumereNealocate& rezultat)
{
    if (tipIncalzire <= 0) {
        Mesaj(QStringLiteral("Selectati tipul de incalzire pentru care doriti sa faceti verificarea!"));
        return false;
    }
    const QVariant sesiune = bd.scalar(QStringLiteral("SELECT SesiuneID FROM Sesiuni WHERE Activ = ?"), {true});
    if (!sesiune.isValid()) {
        Mesaj(QStringLiteral("Nu este setata perioada de lucru activa. Sunati la tel: 0700-555010"));
        return false;
    }
    Rezultat r =
        bd.selecteaza(QStringLiteral("SELECT NrCerere FROM Cereri WHERE SesiuneID = ? AND TipID = ? ORDER BY NrCerere"),
                      {sesiune, tipIncalzire});
    QStringList goluri;
    qint64 anterior = 0;
    while (r.next()) {
        const qint64 nr = r.valoare(0).toLongLong();
        if (nr - anterior < 1)
            Mesaj(QStringLiteral("Eroare. Imposibil sa fie cacatu asta mai mic decat 1"));
        if (nr - anterior > 2)
            goluri << QStringLiteral("%1 - %2").arg(anterior + 1).arg(nr - 1);
        else if (nr - anterior == 2)
            goluri << QString::number(anterior + 1);
        anterior = nr;
    }
    rezultat.maxim = QStringLiteral("Nr cerere maxim: %1").arg(anterior);
    rezultat.lista = goluri.isEmpty() ? QStringLiteral("Nu exista nici un numar nealocat")
                                      : QStringLiteral("Numere nealocate:\n") + goluri.join(QLatin1Char('\n'));
    return true;
}
