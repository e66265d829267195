#include "applications/VerificareCerere.h"

#include "database/BD.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"
#include "common/Text.h"

#include <algorithm>

namespace {

int membriCuRudenia(const Cerere& c, int rudenie)
{
    return static_cast<int>(std::count_if(c.Membrii.begin(), c.Membrii.end(),
                                          [rudenie](const MembruCerere& m) { return m.RudenieID == rudenie; }));
}

// Step 0: the application that mode 2 stands on may have been deleted by another workstation.
VerificareCerere cerereaExista(const BD& bd, const Cerere& c)
{
    qint64 n = 0;
    try {
        n = bd.scalar(QStringLiteral("SELECT COUNT(CerereID) FROM Cereri WHERE CerereID = ?"), {c.CerereID})
                .toLongLong();
    } catch (const Eroare& e) {
        if (e.numar != CodEroare::RandSters)
            throw;
    }
    if (n == 0) {
        Mesaj(MesajCerereStearsa);
        return VerificareCerere::inchide(MesajCerereStearsa);
    }
    if (n > 1)
        Mesaj(QStringLiteral("ID multiplu in Verifica Controale"));
    return VerificareCerere::bine();
}

// A number already given to another row of `tabela`: the warning, and true.
bool numarFolosit(const BD& bd, const Cerere& c, const QString& tabela, const QString& cheie, const QString& coloana,
                  const QString& text, qint64 cheieProprie, const QString& sfarsit)
{
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT %1, %2 FROM %3 WHERE %2 = ?").arg(cheie, coloana, tabela),
                               {ValoareIntreaga(text)});
    if (!r.next())
        return false;
    // In mode 2 the application's own row is no conflict.
    if (c.Adaug == 2 && r[cheie].toLongLong() == cheieProprie)
        return false;
    Mesaj(QStringLiteral("Numarul ") + text.trimmed() + sfarsit);
    return true;
}

} // namespace

bool VerificaNrDosar(const BD& bd, const Cerere& c)
{
    return numarFolosit(bd, c, QStringLiteral("Familii"), QStringLiteral("FamilieID"), QStringLiteral("NrDosar"),
                        c.NrDosar, c.FamilieID, QStringLiteral(" a fost alocat altui dosar"));
}

bool VerificaNrCerere(const BD& bd, const Cerere& c)
{
    return numarFolosit(bd, c, QStringLiteral("Cereri"), QStringLiteral("CerereID"), QStringLiteral("NrCerere"),
                        c.NrCerere, c.CerereID, QStringLiteral(" a fost alocat altei cereri"));
}

VerificareCerere VerificaControale(const BD& bd, const Cerere& c)
{
    try {
        if (c.Adaug == 2) {
            const VerificareCerere v = cerereaExista(bd, c);
            if (!v.ok())
                return v;
        }
    } catch (const Eroare& e) {
        // A cause that will not go away is no failed check: it goes to the save, which tells it.
        if (OpresteLucrul(e.numar))
            throw;
        return VerificareCerere::refuza(e.text(QStringLiteral("Err in Verifica Controale: ")), CampCerere::Niciunul);
    }

    try {
        if (c.NrDosar.trimmed().isEmpty())
            return VerificareCerere::refuza(
                QStringLiteral("Nu puteti salva datele inainte de a introduce Numarul Dosarului"), CampCerere::NrDosar);
        if (c.NrCerere.trimmed().isEmpty())
            return VerificareCerere::refuza(
                QStringLiteral("Nu puteti salva datele inainte de a introduce Numarul Cererii"), CampCerere::NrCerere);
        // A number already in use is a warning only: the save goes on.
        VerificaNrDosar(bd, c);
        VerificaNrCerere(bd, c);
        // The two dates (DataCerere, DataStare) are not required: an empty date is saved empty.
        if (c.Localitate.trimmed().isEmpty())
            return VerificareCerere::refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce Localitatea"),
                                            CampCerere::Localitate);
        if (c.Judet.trimmed().isEmpty())
            return VerificareCerere::refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce Judetul"),
                                            CampCerere::Judet);
        if (c.ReprLegal == 0)
            return VerificareCerere::refuza(QStringLiteral("Selectati din lista: Reprezentant legal!"),
                                            CampCerere::ReprLegal);
        if (c.ModPlata == 0)
            return VerificareCerere::refuza(QStringLiteral("Selectati din lista: Modalitati de plata!"),
                                            CampCerere::ModPlata);
        if (c.TipCerere != 1 && c.TipCerere != 2)
            return VerificareCerere::refuza(
                QStringLiteral("Tip cerere incorect. Selectati din lista: famile cu sot/sotie sau famile "
                               "monoparentala!"),
                CampCerere::TipCerere);
        if (c.Stare == 0)
            return VerificareCerere::refuza(QStringLiteral("Statut incorect. Selectati din lista un statut corect"),
                                            CampCerere::Stare);
        if (c.Membrii.empty())
            return VerificareCerere::refuza(QStringLiteral("Este obligatorie adaugarea titularului cererii"),
                                            CampCerere::AdaugaMembru);
        if (membriCuRudenia(c, 1) != 1)
            return VerificareCerere::refuza(QStringLiteral("Cererea trebuie sa aiba exact un titular. Corectati"),
                                            CampCerere::ListaMembri);
        if (c.Membrii.size() > 1 && membriCuRudenia(c, 2) > 1)
            return VerificareCerere::refuza(
                QStringLiteral("Cererea nu poate sa aiba mai mult de un sot/sotie. Corectati"),
                CampCerere::ListaMembri);
        int cunoscuti = 0;
        for (int rudenie = 1; rudenie <= 5; ++rudenie)
            cunoscuti += membriCuRudenia(c, rudenie);
        if (cunoscuti != static_cast<int>(c.Membrii.size()))
            return VerificareCerere::refuza(
                QStringLiteral("Exceptie Valdera: Nr de persoane din matrice nu corespunde cu numarul de "
                               "persoane din lista"),
                CampCerere::ListaMembri);
    } catch (const Eroare& e) {
        // A cause that will not go away is no failed check: it goes to the save, which tells it.
        if (OpresteLucrul(e.numar))
            throw;
        return VerificareCerere::refuza(e.text(QStringLiteral("Err in Verifica Controale: ")), CampCerere::Niciunul);
    }
    return VerificareCerere::bine();
}
