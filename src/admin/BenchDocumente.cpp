// The bulk disposition document: 1,000 dispositions filled from their templates and written
// as one file (the office's end-of-month run must stay under 2 seconds), beside the bare
// reading of the rows that the fill reads. The dispositions are added inside a transaction
// that is rolled back: the bench office is left as it was.
#include "admin/Bench.h"
#include "database/BD.h"
#include "documents/DispozitiiInBloc.h"
#include "documents/SablonRtf.h"
#include "common/Data.h"
#include "common/Proces.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

constexpr int NrDispozitii = 1000;
constexpr qint64 PrimulNr = 900001;

MasuraInregistrata dispozitii(QStringLiteral("document_1000_dispozitii"), [](BD& bd) {
    Tranzactie t(bd); // never confirmed
    // Families within the scale's tiers: past them a disposition meets the office's message
    // on the income per member instead of its amount.
    QList<qint64> cereri;
    Rezultat r = bd.selecteaza(
        QStringLiteral("SELECT CerereID FROM Cereri WHERE TipCerere = 1 AND VenitpeMembru < 370 ORDER BY CerereID"));
    while (r.next() && cereri.size() < NrDispozitii)
        cereri << r.valoare(0).toLongLong();
    if (cereri.isEmpty()) {
        ScrieValoare(QStringLiteral("document_1000_dispozitii_cereri"), 0);
        return;
    }
    qint64 cheie = bd.urmatoareaCheie(QStringLiteral("Dispozitii"), QStringLiteral("DispozitieID"));
    for (int i = 0; i < NrDispozitii; ++i)
        bd.executa(
            QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, DinData, Luna, An, "
                           "Actiune, Cuantum) VALUES (?, ?, ?, ?, ?, 12, 2030, 1, 50)"),
            {cheie++, cereri[i % cereri.size()], double(PrimulNr + i), DataPentruBD(QDate(2030, 11, 28)),
             DataPentruBD(QDate(2030, 12, 1))});

    const SelectieDispozitii sel{1, 1, 12, 2030, PrimulNr, PrimulNr + NrDispozitii - 1};
    QTemporaryDir dir;
    const QString iesire = QDir(dir.path()).filePath(DocumentDispozitie);
    const auto ms = CelMaiBunTimp([&] {
        const auto doc = DocumentDispozitiiSelectate(sel, Proces::setari(), bd);
        if (doc)
            ScrieFisierDocument(iesire, *doc);
    });
    const auto brut = CelMaiBunTimp([&] {
        CitesteBrut(
            bd,
            QStringLiteral("SELECT D.*, C.*, M.Nume, M.Prenume, M.CNP, F.Localitate, F.Strada, F.Nr, F.Sc, F.Ap "
                           "FROM Dispozitii D INNER JOIN Cereri C ON C.CerereID = D.CerereID "
                           "INNER JOIN Membrii M ON M.MembruID = C.MembruID1 "
                           "INNER JOIN Familii F ON F.FamilieID = C.FamilieID WHERE D.NrDisp >= ? ORDER BY D.NrDisp"),
            {double(PrimulNr)});
    });
    ScrieTimp(QStringLiteral("document_1000_dispozitii"), ms, brut);
});

} // namespace
