#include "mainwindow/Stergere.h"

#include "database/BD.h"
#include "history/LuniInchise.h"
#include "common/Eroare.h"

namespace {

bool exista(const BD& bd, const QString& sql, qint64 id)
{
    return bd.scalar(sql, {id}).toLongLong() > 0;
}

[[noreturn]] void randSters(const QString& sursa)
{
    throw Eroare(CodEroare::RandSters, QStringLiteral("Inregistrarea a fost stearsa de alt utilizator."), sursa);
}

void stergeUnRand(BD& bd, const QString& sql, qint64 id, const QString& sursa)
{
    Tranzactie t(bd);
    if (bd.executa(sql, {id}) == 0)
        randSters(sursa);
    t.confirma();
}

} // namespace

StergereCerere StergeCerere(BD& bd, qint64 cerereId)
{
    const QString sursa = QStringLiteral("Delete Cereri");
    Tranzactie t(bd);
    const QVariant familie = bd.scalar(QStringLiteral("SELECT FamilieID FROM Cereri WHERE CerereID = ?"), {cerereId});
    if (!familie.isValid())
        randSters(sursa);
    // Its dispositions of a closed month would go with it.
    VerificaCerereModificabila(bd, cerereId);
    const qint64 familieId = familie.toLongLong();

    StergereCerere s;
    QList<qint64> membri;
    {
        Rezultat r = bd.selecteaza(QStringLiteral("SELECT MembruID FROM CereriMembrii WHERE CerereID = ?"), {cerereId});
        while (r.next())
            membri << r.numar("MembruID");
    }
    // A person who stands on another application is kept.
    for (qint64 m : membri) {
        const qint64 alte =
            bd.scalar(QStringLiteral("SELECT COUNT(MembruID) FROM CereriMembrii WHERE MembruID = ? AND CerereID <> ?"),
                      {m, cerereId})
                .toLongLong();
        if (alte == 0 && !s.membriSterse.contains(m)) {
            bd.executa(QStringLiteral("DELETE FROM Membrii WHERE MembruID = ?"), {m});
            s.membriSterse << m;
        }
    }
    // The family goes by the application's own number: a new application and its family are
    // given the same one.
    const qint64 cereriFamilie =
        bd.scalar(QStringLiteral("SELECT COUNT(CerereID) FROM Cereri WHERE FamilieID = ?"), {familieId}).toLongLong();
    if (cereriFamilie <= 1)
        s.familieStearsa = bd.executa(QStringLiteral("DELETE FROM Familii WHERE FamilieID = ?"), {cerereId}) > 0;
    t.confirma();
    return s;
}

void StergeDispozitie(BD& bd, qint64 dispozitieId)
{
    // A disposition of a closed month stays: the month's payroll stands on it.
    Tranzactie t(bd);
    VerificaDispozitieModificabila(bd, dispozitieId);
    stergeUnRand(bd, QStringLiteral("DELETE FROM Dispozitii WHERE DispozitieID = ?"), dispozitieId,
                 QStringLiteral("Delete Dispozitii"));
    t.confirma();
}

void StergeAncheta(BD& bd, qint64 anchetaId)
{
    stergeUnRand(bd, QStringLiteral("DELETE FROM Anchete WHERE AnchetaID = ?"), anchetaId,
                 QStringLiteral("Delete Anchete"));
}

bool CerereExista(const BD& bd, qint64 cerereId)
{
    return exista(bd, QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE CerereID = ?"), cerereId);
}

bool DispozitieExista(const BD& bd, qint64 dispozitieId)
{
    return exista(bd, QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE DispozitieID = ?"), dispozitieId);
}

bool AnchetaExista(const BD& bd, qint64 anchetaId)
{
    return exista(bd, QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE AnchetaID = ?"), anchetaId);
}

bool AnchetaDeStersExista(const BD& bd, qint64 anchetaId)
{
    return exista(bd, QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE AncheteID = ?"), anchetaId);
}
