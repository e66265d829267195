#include "admin/Comenzi.h"
#include "database/ActualizareBD.h"
#include "database/BD.h"
#include "common/Mesaje.h"
#include "common/Proces.h"

#include <QDir>

namespace {

// Each message of the upgrade on its own line of standard output, as it comes.
class MesajePeLinii : public Mesaje {
public:
    void arata(const QString& text, const QString&, Icon) override { scrie(text); }
    bool intreaba(const QString& text, const QString&, Icon, bool implicitDa) override
    {
        scrie(text);
        return implicitDa;
    }
    std::optional<QString> citeste(const QString&, const QString&, const QString& implicit) override
    {
        return implicit;
    }

private:
    static void scrie(QString text) { ScrieLinie(text.replace(QLatin1Char('\n'), QLatin1Char(' '))); }
};

} // namespace

static int ruleaza(const QStringList& arg)
{
    const QString dir = Optiune(arg, QStringLiteral("--office"));
    if (dir.isEmpty() || !Pozitionale(arg, {QStringLiteral("--office")}).isEmpty()) {
        ScrieEroare(QStringLiteral("Utilizare: alocatii-admin upgrade --office DIR"));
        return 2;
    }
    const QString folder = QDir(dir).absolutePath();
    BD bd;
    DeschideBDOficiu(bd, arg, folder);
    MesajePeLinii mesaje;
    const MesajeTemporare t(mesaje);
    ActualizeazaBD(bd, QDir::toNativeSeparators(folder));
    return 0;
}

static ComandaInregistrata upgrade(
    QStringLiteral("upgrade"),
    QStringLiteral("upgrade --office DIR  aduce baza de date din DIR la zi (nu scrie nimic cand este deja la zi)"),
    ruleaza);
