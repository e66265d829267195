#include "shell/Pornire.h"

#include "database/ActualizareBD.h"
#include "database/BD.h"
#include "common/Ceas.h"
#include "common/Eroare.h"
#include "common/FisiereHelper.h"
#include "common/Mesaje.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "common/Text.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString SectiuneGenerale = QStringLiteral("Generale");
const QString CheieCaleBD = QStringLiteral("CaleBD");

// A write of the settings file that failed, in the words the office's error boxes use:
// number, description, source.
void SpuneScriereEsuata(const QString& sursa)
{
    const Eroare e(
        CodEroare::FisierDeschis,
        QStringLiteral("Fisierul de setari %1 nu poate fi scris.").arg(QDir::toNativeSeparators(FisierSetari())),
        sursa);
    Mesaj(QString::number(e.numar) + QLatin1Char(' ') + e.descriere + QLatin1Char(' ') + e.sursa, Mesaje::Icon::Critic);
}

RezultatPornire DeschideServer(FerestrePornire& ferestre, const QString& server);
RezultatPornire DupaDeschidere(FerestrePornire& ferestre, const FisiereHelper& h, Setari& s);

} // namespace

QString CaleBDDinSetari()
{
    return FisiereHelper().CitesteIni(CheieCaleBD, SectiuneGenerale, FisierSetari());
}

RezultatPornire Porneste(FerestrePornire& ferestre)
{
    const FisiereHelper h;
    Setari& s = Proces::setari();

    // The database folder; a first start on a machine works with a database beside the program.
    s.CaleBD = CaleBDDinSetari();
    if (s.CaleBD.isEmpty()) {
        s.CaleBD = QDir::toNativeSeparators(Proces::folderProgram());
        h.ScrieIni(CheieCaleBD, SectiuneGenerale, FisierSetari(), s.CaleBD);
    }

    s.ServerBD = ServerBDDinSetari(FisierSetari(), s.CaleBD);
    if (!s.ServerBD.isEmpty()) {
        const RezultatPornire r = DeschideServer(ferestre, s.ServerBD);
        if (r != RezultatPornire::Continua)
            return r;
        return DupaDeschidere(ferestre, h, s);
    }

    // Three separate checks: each asks the file system again.
    if (h.VerificaCale(Proces::caleBazaDate()) == FisiereHelper::FisierLipsa) {
        if (Intrebare(QStringLiteral("Baza de date ") + Proces::NumeBD +
                          QStringLiteral(" nu a fost gasita in locatia ") + s.CaleBD + QLatin1Char('\n') +
                          QStringLiteral("Doriti sa selectati o noua locatie?"),
                      QStringLiteral("?"), true))
            ferestre.AlegeLocatieBD();
        return RezultatPornire::Oprita;
    }
    if (h.VerificaCale(Proces::caleBazaDate()) == FisiereHelper::Abandonat)
        return RezultatPornire::Oprita;
    if (h.VerificaCale(Proces::caleBazaDate()) == FisiereHelper::LocatieInaccesibila) {
        Mesaj(QStringLiteral("Reteaua nu functioneaza sau locatia catre baza de date nu e corecta. Verificati!"));
        return RezultatPornire::Oprita;
    }

    // A damaged, locked or foreign file is told in words and the program ends; nothing is
    // written to it.
    try {
        BD::principala().deschide(Proces::caleBazaDate());
    } catch (const Eroare& e) {
        Mesaj(QStringLiteral("Baza de date %1 nu poate fi deschisa: fisierul este deteriorat, blocat sau nu este "
                             "o baza de date a programului.\nProgramul se va inchide.\n\n%2")
                  .arg(QDir::toNativeSeparators(Proces::caleBazaDate()), e.text()),
              Mesaje::Icon::Critic);
        return RezultatPornire::EroareBD;
    }
    return DupaDeschidere(ferestre, h, s);
}

namespace {

// A server that does not answer is told with its own reason, and the officer may choose
// another office, as for a missing file; the program ends in both cases.
RezultatPornire DeschideServer(FerestrePornire& ferestre, const QString& server)
{
    try {
        BD::principala().deschideServer(server);
    } catch (const Eroare& e) {
        if (e.numar != CodEroare::ServerInaccesibil) {
            Mesaj(QStringLiteral("Baza de date de pe serverul %1 nu poate fi deschisa.\nProgramul se va inchide.\n\n%2")
                      .arg(BD::principala().cale(), e.text()),
                  Mesaje::Icon::Critic);
            return RezultatPornire::EroareBD;
        }
        if (Intrebare(e.descriere + QLatin1Char('\n') + QStringLiteral("Doriti sa selectati o noua locatie?"),
                      QStringLiteral("?"), true))
            ferestre.AlegeLocatieBD();
        return RezultatPornire::Oprita;
    }
    return RezultatPornire::Continua;
}

RezultatPornire DupaDeschidere(FerestrePornire& ferestre, const FisiereHelper& h, Setari& s)
{
    IncarcaSetari(h, s);

    // A file made by an older release is brought up to date before anyone logs in. A step that
    // fails is told, with the group where it stopped, and the start goes no further.
    try {
        ActualizeazaBD(BD::principala(), s.CaleBD);
    } catch (const Eroare& e) {
        Mesaj(e.text(), Mesaje::Icon::Critic);
        BD::principala().inchide();
        return RezultatPornire::EroareBD;
    }

    if (!s.pass.isEmpty() && !ferestre.Login()) {
        BD::principala().inchide();
        return RezultatPornire::Oprita;
    }
    return RezultatPornire::Continua;
}

} // namespace

int CodIesire(RezultatPornire r)
{
    switch (r) {
    case RezultatPornire::Continua:
    case RezultatPornire::Oprita: return 0;
    case RezultatPornire::EroareBD: break;
    }
    return 1;
}

bool AcceptaLocatieBD(const QString& text)
{
    const QString cale = text.trimmed();
    const FisiereHelper h;
    if (!cale.isEmpty() && !h.ScrieIni(CheieCaleBD, SectiuneGenerale, FisierSetari(), cale)) {
        SpuneScriereEsuata(QStringLiteral("frmGeneral"));
        return false;
    }
    // The new office brings its own database: a server named by this workstation gives way,
    // and the office folder's settings say whether its data are on a server.
    const QString cheieServer = QStringLiteral("ServerBD");
    if (!cale.isEmpty() && !h.CitesteIni(cheieServer, SectiuneGenerale, FisierSetari()).isEmpty() &&
        !h.ScrieIni(cheieServer, SectiuneGenerale, FisierSetari(), QString())) {
        SpuneScriereEsuata(QStringLiteral("frmGeneral"));
        return false;
    }
    Mesaj(MesajInchidere);
    return true;
}

QString NumeArhivaImplicit()
{
    const QDate azi = Ceas::azi();
    const QString nume = QStringLiteral("Tarnava_") + DouaCifre(azi.month()) + QLatin1Char('_') +
                         QString::number(azi.year()) + QLatin1Char('.') + QFileInfo(Proces::NumeBD).suffix();
    return QDir::toNativeSeparators(QDir(Proces::setari().CaleBD).filePath(nume));
}
