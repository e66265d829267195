#include "applications/RegulaMembru.h"

#include "amounts/CNP.h"
#include "applications/CautareCNP.h"
#include "database/BD.h"
#include "database/ListeReferinta.h"
#include "common/Data.h"
#include "common/Mesaje.h"
#include "common/Text.h"

namespace {

int luna(const QString& cnp)
{
    return static_cast<int>(ValoareIntreaga(cnp.mid(3, 2)));
}

int zi(const QString& cnp)
{
    return static_cast<int>(ValoareIntreaga(cnp.mid(5, 2)));
}

} // namespace

DateNastereMembru DateNastereDinCNP(const QString& cnp, int anActiv)
{
    DateNastereMembru d;
    const int l = luna(cnp);
    if (l < 1 || l > 12) {
        d.eticheta = QStringLiteral("Luna incorecta");
        return d;
    }
    if (zi(cnp) > 31) {
        d.eticheta = QStringLiteral("Zi incorecta");
        return d;
    }
    d.valid = true;
    d.eticheta = TextDataNasteriiDinCNP(cnp);
    // The right ends at 18; it still counts when that year is not before the active year.
    const QDate implinire = DataNasteriiDinCNP(cnp, true);
    if (implinire.isValid() && implinire.year() >= anActiv) {
        d.data18Ani = implinire;
        d.motiv = MotivImplinire18;
    }
    return d;
}

bool CNPInLista(const std::vector<MembruCerere>& membri, const QString& cnp, int indexEditat)
{
    const QString t = cnp.trimmed();
    for (int i = 0; i < static_cast<int>(membri.size()); ++i)
        if (i != indexEditat && membri[static_cast<std::size_t>(i)].CNP.trimmed() == t)
            return true;
    return false;
}

std::optional<qint64> MembruIdDupaCNP(const BD& bd, const QString& cnp)
{
    const CautareCNP cautare(bd, QStringLiteral("CNP"), cnp.trimmed());
    const QVariant id =
        bd.scalar(QStringLiteral("SELECT MIN(MembruID) FROM Membrii WHERE ") + cautare.conditie, cautare.parametri);
    if (id.isNull() || !id.isValid())
        return std::nullopt;
    return id.toLongLong();
}

std::optional<PersoanaGasita> PersoanaDupaCNP(const BD& bd, const QString& cnp)
{
    const CautareCNP cautare(bd, QStringLiteral("CNP"), cnp.trimmed());
    Rezultat r =
        bd.selecteaza(QStringLiteral("SELECT MembruID, Nume, Prenume, TipAct, SerieBI, NrBI, Eliberat, DataElib "
                                     "FROM Membrii WHERE ") +
                          cautare.conditie + QStringLiteral(" ORDER BY MembruID"),
                      cautare.parametri);
    if (!r.next())
        return std::nullopt;
    PersoanaGasita p;
    p.MembruID = r.numar("MembruID");
    p.Nume = r.text("Nume");
    p.Prenume = r.text("Prenume");
    p.TipAct = static_cast<int>(r.numar("TipAct"));
    p.SerieBI = r.text("SerieBI");
    p.NrBI = r.text("NrBI");
    p.Eliberat = r.text("Eliberat");
    p.DataElib = DataDinBD(r["DataElib"]);
    return p;
}

ListeEditorMembru CitesteListeEditorMembru(const BD& bd)
{
    // The DateGen list of each cboMembru(i); 0 for the lists of other tables and the free texts.
    constexpr int TipLista[13] = {2, 28, 25, 11, 21, 22, 3, 24, 0, 1, 0, 0, 0};
    ListeEditorMembru l;
    l.motive = CitesteListaReferinta(bd, ListaReferinta::Motive);
    l.scoli = CitesteListaReferinta(bd, ListaReferinta::Scoli);
    l.politii = CitesteListaReferinta(bd, ListaReferinta::Politii);
    for (std::size_t i = 0; i < l.coduri.size(); ++i)
        if (TipLista[i] != 0)
            l.coduri[i] = CitesteListaCod(bd, TipLista[i]);
    l.tipuriAdeverinta = CitesteListaCod(bd, 30);
    return l;
}

std::vector<PersoanaCNP> PersoaneCuCNPIncepand(const BD& bd, const QString& inceput, int limita)
{
    std::vector<PersoanaCNP> v;
    const QString t = inceput.trimmed();
    if (t.isEmpty() || limita <= 0)
        return v;
    const CautareCNP cautare = CautareCNP::inceput(bd, QStringLiteral("CNP"), t);
    QVariantList parametri = cautare.parametri;
    parametri << limita;
    Rezultat r = bd.selecteaza(QStringLiteral("SELECT MembruID, CNP FROM Membrii WHERE ") + cautare.conditie +
                                   QStringLiteral(" ORDER BY CNP, MembruID LIMIT ?"),
                               parametri);
    while (r.next())
        v.push_back({r.numar("MembruID"), r.text("CNP")});
    return v;
}

void AvertizareCNPPeCerere(const BD& bd, const QString& cnp, int mod, qint64 membruIdAles)
{
    const CautareCNP cautare(bd, QStringLiteral("M.CNP"), cnp.trimmed());
    Rezultat r =
        bd.selecteaza(QStringLiteral("SELECT C.NrCerere, M.MembruID, M.Nume, M.Prenume FROM Cereri AS C INNER JOIN "
                                     "(Membrii AS M INNER JOIN CereriMembrii AS CM ON M.MembruID = CM.MembruID) "
                                     "ON C.CerereID = CM.CerereID WHERE ") +
                          cautare.conditie + QStringLiteral(" ORDER BY C.CerereID"),
                      cautare.parametri);
    if (!r.next())
        return;
    const QString inceput = QStringLiteral("CNP-ul acestei persoane exista in Baza de Date la ") + r.text("Nume") +
                            QLatin1Char(' ') + r.text("Prenume");
    if (mod == 1)
        Mesaj(inceput + QStringLiteral(", cererea nr: ") + r.text("NrCerere"));
    else if (r.numar("MembruID") != membruIdAles)
        Mesaj(inceput);
}

bool VerificaCNPMembru(const BD& bd, const QString& cnp, int mod, qint64 membruIdAles)
{
    const QString t = cnp.trimmed();
    if (!ValidareCNP(t, true))
        return false;
    AvertizareCNPPeCerere(bd, t, mod, membruIdAles);
    return true;
}

IesireCNP LaIesireaDinCNP(const BD& bd, const std::vector<MembruCerere>& membri, int indexEditat, int mod,
                          qint64 membruIdAles, const QString& cnp, int anActiv)
{
    IesireCNP rez;
    const QString t = cnp.trimmed();
    VerificaCNPMembru(bd, t, mod, membruIdAles); // its result stops nothing here
    if (t.size() != 13)
        return rez;
    rez.nastere = DateNastereDinCNP(t, anActiv);
    if (CNPInLista(membri, t, mod == 1 ? -1 : indexEditat)) {
        Mesaj(MesajCNPInLista);
        rez.dublura = true;
        return rez;
    }
    std::optional<PersoanaGasita> p = PersoanaDupaCNP(bd, t);
    if (p && (mod == 1 || p->MembruID != membruIdAles))
        rez.persoana = std::move(p);
    return rez;
}

VerificareMembru VerificaMembru(const std::vector<MembruCerere>& membri, const MembruCerere& m, int indexEditat)
{
    const QString cnp = m.CNP.trimmed();
    if (cnp.isEmpty())
        return VerificareMembru::refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce CNP-ul"),
                                        CampMembru::CNP);
    if (cnp.size() != 13)
        return VerificareMembru::refuza(QStringLiteral("CNP incorect"), CampMembru::CNP);
    if (CNPInLista(membri, cnp, indexEditat))
        return VerificareMembru::refuza(MesajCNPInLista, CampMembru::CNP);
    if (m.Nume.trimmed().isEmpty())
        return VerificareMembru::refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce Numele"),
                                        CampMembru::Nume);
    if (m.Prenume.trimmed().isEmpty())
        return VerificareMembru::refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce Prenumele"),
                                        CampMembru::Prenume);
    if (m.RudenieID == 0)
        return VerificareMembru::refuza(
            QStringLiteral("Nu puteti salva datele inainte de a introduce Gradul de rudenie"), CampMembru::Rudenie);
    if (m.OcupatieID == 0)
        return VerificareMembru::refuza(QStringLiteral("Nu puteti salva datele inainte de a introduce Profesia"),
                                        CampMembru::Ocupatie);
    return VerificareMembru::bine();
}

QString ColoanaDataNasterii(const QString& cnp)
{
    if (cnp.size() != 13)
        return QStringLiteral("CNP gresit!");
    const int l = luna(cnp);
    if (l < 1 || l > 12) {
        Mesaj(QStringLiteral("CNP este gresit. Va rog sa corectati!"));
        return QStringLiteral("GRESIT");
    }
    return cnp.mid(5, 2) + QLatin1Char(' ') + NumeLuna(l) + QLatin1Char(' ') + cnp.mid(1, 2);
}

void CompleteazaData18Ani(MembruCerere& m, int anActiv)
{
    const QString cnp = m.CNP.trimmed();
    if (cnp.size() != 13)
        return;
    const DateNastereMembru d = DateNastereDinCNP(cnp, anActiv);
    if (m.TextDataNasterii.isEmpty())
        m.TextDataNasterii = d.eticheta;
    if (m.Data18Ani.isValid() || !d.data18Ani.isValid())
        return;
    m.Data18Ani = d.data18Ani;
    if (m.Motiv.trimmed().isEmpty())
        m.Motiv = d.motiv;
}
