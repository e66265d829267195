// The desktop program: the start-up checks, the login, and the main window.
#include "gui/MesajeFereastra.h"
#include "gui/Modal.h"
#include "gui/TraducereQt.h"
#include "shell/Pornire.h"
#include "shell/frmGeneral.h"
#include "shell/frmLogin.h"
#include "mainwindow/frmMainNou.h"
#include "maintenance/PrezentaStatie.h"
#include "maintenance/frmCopieLaPornire.h"
#include "common/Proces.h"

#include <QApplication>
#include <memory>

namespace {

// The two windows that start-up may need, before the main window exists.
class FerestreDesktop : public FerestrePornire {
public:
    void AlegeLocatieBD() override
    {
        frmGeneral w;
        w.Mod = 2;
        DeschideModal(w);
    }
    bool Login() override
    {
        frmLogin w;
        DeschideModal(w);
        return w.LoginSucceeded();
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Alocatii"));
    QApplication::setApplicationVersion(QStringLiteral(ALOCATII_VERSIUNE));
    InstaleazaRomana(app);

    MesajeFereastra mesaje;
    Mesaje::seteaza(&mesaje);
    struct Restaureaza {
        ~Restaureaza() { Mesaje::seteaza(nullptr); }
    } restaureaza;

    // The start-up windows close before the main window exists: closing them must not end
    // the program on its own.
    app.setQuitOnLastWindowClosed(false);
    FerestreDesktop ferestre;
    const RezultatPornire r = Porneste(ferestre);
    if (r != RezultatPornire::Continua)
        return CodIesire(r);
    app.setQuitOnLastWindowClosed(true);

    // The office sees this workstation at work (a restore waits for it), and gets its copy of the
    // day without anyone waiting for it.
    std::unique_ptr<PrezentaStatie> prezenta;
    if (Proces::setari().ServerBD.isEmpty())
        prezenta = std::make_unique<PrezentaStatie>(Proces::setari().CaleBD);
    frmMainNou w;
    w.show();
    frmCopieLaPornire::Porneste(w);
    return app.exec();
}
