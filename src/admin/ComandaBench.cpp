#include "admin/Bench.h"
#include "admin/Comenzi.h"
#include "database/BD.h"
#include "common/Mesaje.h"
#include "common/Proces.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlRecord>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

double arondat(double v, int zecimale)
{
    const double p = std::pow(10.0, zecimale);
    return std::round(v * p) / p;
}

void scrie(const QJsonObject& o)
{
    ScrieLinie(QString::fromUtf8(QJsonDocument(o).toJson(QJsonDocument::Compact)));
}

// The peak resident memory of the process in MB (VmHWM, or VmRSS where there is no peak).
double memorieMb()
{
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly))
        return 0;
    double hwm = 0, rss = 0;
    for (const QByteArray& linie : f.readAll().split('\n')) {
        auto kb = [&](const char* cheie) { return linie.mid(qstrlen(cheie)).trimmed().split(' ').value(0).toDouble(); };
        if (linie.startsWith("VmHWM:"))
            hwm = kb("VmHWM:");
        else if (linie.startsWith("VmRSS:"))
            rss = kb("VmRSS:");
    }
    return (hwm > 0 ? hwm : rss) / 1024.0;
}

} // namespace

void CitesteBrut(const BD& bd, const QString& sql, const QVariantList& valori)
{
    Rezultat r = bd.selecteaza(sql, valori);
    const int n = r.interogare().record().count();
    qint64 suma = 0;
    while (r.next())
        for (int i = 0; i < n; ++i)
            suma += r.valoare(i).isNull() ? 0 : 1;
    volatile qint64 pastrat = suma;
    (void)pastrat;
}

std::vector<MasuraBench>& MasuriBench()
{
    static std::vector<MasuraBench> m;
    return m;
}

double CelMaiBunTimp(const std::function<void()>& f, int repetari)
{
    double cel = std::numeric_limits<double>::max();
    for (int i = 0; i < std::max(1, repetari); ++i) {
        QElapsedTimer t;
        t.start();
        f();
        cel = std::min(cel, t.nsecsElapsed() / 1.0e6);
    }
    return cel;
}

void ScrieTimp(const QString& nume, double ms, double bareMs)
{
    QJsonObject o;
    o.insert(QStringLiteral("name"), nume);
    o.insert(QStringLiteral("ms"), arondat(ms, 2));
    o.insert(QStringLiteral("bare_ms"), arondat(bareMs, 2));
    o.insert(QStringLiteral("ratio"), arondat(bareMs > 0 ? ms / bareMs : 0, 2));
    scrie(o);
}

void ScrieValoare(const QString& nume, double valoare)
{
    QJsonObject o;
    o.insert(QStringLiteral("name"), nume);
    o.insert(QStringLiteral("value"), arondat(valoare, 1));
    scrie(o);
}

static int ruleaza(const QStringList& arg)
{
    const QStringList poz = Pozitionale(arg, {});
    if (poz.size() != 1) {
        ScrieEroare(QStringLiteral("Utilizare: alocatii-admin bench DIR [--server URI]"));
        return 2;
    }
    const QString dir = QDir(poz[0]).absolutePath();
    Proces::setari() = Setari{};
    Proces::setari().CaleBD = dir;
    BD& bd = BD::principala();
    DeschideBDOficiu(bd, arg, dir);
    auto& masuri = MasuriBench();
    std::stable_sort(masuri.begin(), masuri.end(),
                     [](const MasuraBench& a, const MasuraBench& b) { return a.nume < b.nume; });
    // The messages that the measured routines give (the same, at each repetition) would
    // bury the figures: they are counted, not printed.
    MesajeColectate mesaje;
    {
        const MesajeTemporare t(mesaje);
        for (const MasuraBench& m : masuri)
            m.ruleaza(bd);
    }
    if (!mesaje.texte.isEmpty())
        ScrieEroare(QStringLiteral("%1 mesaje in timpul masuratorilor, primul: %2")
                        .arg(mesaje.texte.size())
                        .arg(mesaje.texte.first()));
    ScrieValoare(QStringLiteral("rss_mb"), memorieMb());
    bd.inchide();
    return 0;
}

static ComandaInregistrata
    bench(QStringLiteral("bench"),
          QStringLiteral("bench DIR [--server URI]   masoara timpii pe oficiul din DIR (o linie JSON pe masura)"),
          ruleaza);
