#include "decisions/CalculDispozitie.h"

#include "amounts/Cuantum.h"
#include "applications/IncarcaCerere.h"
#include "database/BD.h"
#include "common/Data.h"
#include "common/Mesaje.h"

CalculDispozitie CalculeazaPentruDispozitie(const BD& bd, qint64 cerereId, int an)
{
    const Cerere c = IncarcaCerere(bd, cerereId);
    RezultatCuantum r;
    {
        MesajeColectate tacute;
        MesajeTemporare liniste(tacute);
        r = CalculCuantum(bd, c.Membrii, c.VenitpeMembru, c.TipCerere, an);
    }
    CalculDispozitie d;
    d.cerereId = cerereId;
    d.tipCerere = c.TipCerere;
    d.an = an;
    d.nrMembrii = static_cast<int>(c.Membrii.size());
    d.venitTotal = Bani::dinText(c.VenitTotal);
    d.venitPeMembru = Bani::dinText(c.VenitpeMembru);
    d.baremNrPers = r.baremNrPers;
    d.baremSuma = r.baremSuma;
    d.cuantum = r.cuantum;
    d.barem = r.eroare.isEmpty() ? r.cuantum : Bani();
    for (std::size_t i = 0; i < c.Membrii.size(); ++i) {
        const MembruCerere& m = c.Membrii[i];
        MembruCalcul x{m.Nume, m.Prenume, m.CNP, m.RudenieID, m.OcupatieID, m.Data18Ani, false, QString()};
        if (i < r.membri.size()) {
            x.numarat = r.membri[i].numarat;
            x.motiv = r.membri[i].motiv;
        }
        d.nrCopii += x.numarat ? 1 : 0;
        d.membri.push_back(std::move(x));
    }
    if (!r.eroare.isEmpty())
        d.observatii = r.eroare;
    else if (d.nrCopii == 0)
        d.observatii = QStringLiteral("Niciun copil nu se numara: nu se acorda alocatie.");
    else if (r.baremSuma == 0)
        d.observatii = QStringLiteral("Venitul pe membru de familie este de cel putin %1 lei: nu se acorda alocatie.")
                           .arg(PragVenit370.textSuma());
    return d;
}

CalculDispozitie CalculeazaSiScrie(const BD& bd, qint64 dispozitieId, qint64 cerereId, int an)
{
    CalculDispozitie c = CalculeazaPentruDispozitie(bd, cerereId, an);
    ScrieCalcul(bd, dispozitieId, c);
    return c;
}
