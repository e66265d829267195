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
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

double arondat(double v, int zecimale)
{
    const double p = std::pow(10.0, zecimale);
    return std::round(v * p) / p;
}

void scrie(const QJsonObject& o)
{
    ScrieJson(o);
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

// Starts the peak over from the memory held now, so that the next figure is one measure's own
// (Linux: "5" written to clear_refs); where that cannot be done the peak stays the whole run's.
void reiaVarfulMemoriei()
{
#ifdef __GLIBC__
    // What the lines before freed goes back to the system first: otherwise a line's peak would
    // start from the largest heap of any line before it.
    malloc_trim(0);
#endif
    QFile f(QStringLiteral("/proc/self/clear_refs"));
    if (f.open(QIODevice::WriteOnly))
        f.write("5");
}

} // namespace

// The INSERT of every column of a table, in the order of `coloane`.
static QString insertToateColoanele(const QString& tabela, const QStringList& coloane)
{
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(tabela, coloane.join(QStringLiteral(", ")),
             QStringList(coloane.size(), QStringLiteral("?")).join(QStringLiteral(", ")));
}

RanduriDeScris CitesteRanduriDeScris(const BD& bd, const QString& tabela, const QString& unde,
                                     const QVariantList& valori)
{
    const QStringList col = bd.coloane(tabela);
    RanduriDeScris x;
    x.insert = insertToateColoanele(tabela, col);
    Rezultat rez = bd.selecteaza(QStringLiteral("SELECT %1 FROM %2").arg(col.join(QStringLiteral(", ")), tabela) +
                                     (unde.isEmpty() ? QString() : QStringLiteral(" WHERE ") + unde),
                                 valori);
    while (rez.next()) {
        QVariantList v;
        for (int c = 0; c < col.size(); ++c)
            v << rez.valoare(c);
        x.valori.push_back(std::move(v));
    }
    return x;
}

void ScrieRanduri(const BD& bd, const RanduriDeScris& r)
{
    for (const QVariantList& v : r.valori)
        bd.executa(r.insert, v);
}

double ScrieRanduriDin(const BD& din, const BD& in, const QString& tabela)
{
    constexpr std::size_t Bucata = 5000;
    const QStringList coloane = din.coloane(tabela);
    RanduriDeScris x;
    x.insert = insertToateColoanele(tabela, coloane);
    double ms = 0;
    const auto scrie = [&] {
        QElapsedTimer t;
        t.start();
        ScrieRanduri(in, x);
        ms += t.nsecsElapsed() / 1.0e6;
        x.valori.clear();
    };
    Rezultat r = din.selecteaza(QStringLiteral("SELECT %1 FROM %2").arg(coloane.join(QStringLiteral(", ")), tabela));
    while (r.next()) {
        QVariantList v;
        for (int c = 0; c < coloane.size(); ++c)
            v << r.valoare(c);
        x.valori.push_back(std::move(v));
        if (x.valori.size() == Bucata)
            scrie();
    }
    scrie();
    return ms;
}

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

namespace {

double ceas(const std::function<void()>& f)
{
    QElapsedTimer t;
    t.start();
    f();
    return t.nsecsElapsed() / 1.0e6;
}

// The median of a list that is not empty: the middle one, or the mean of the two middle ones.
double mediana(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    const size_t n = v.size();
    return n % 2 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2;
}

} // namespace

// One run of a timing, in milliseconds.
static double timp(const Cronometrare& c)
{
    return c.propriu ? c.propriu() : ceas(c.f);
}

Cronometrare::operator double() const
{
    std::vector<double> t;
    for (int i = 0; i < std::max(1, repetari); ++i)
        t.push_back(timp(*this));
    return mediana(t);
}

Cronometrare CelMaiBunTimp(std::function<void()> f, int repetari)
{
    return {std::move(f), repetari, {}};
}

Cronometrare TimpPropriu(std::function<double()> f, int repetari)
{
    return {{}, repetari, std::move(f)};
}

void ScrieTimp(const QString& nume, const Cronometrare& masura, const Cronometrare& brut)
{
    // One run of each first, not counted: the statements are prepared and the pages read in
    // before the figures begin.
    timp(masura);
    timp(brut);
    // At least RepetariBench pairs; a quick measure goes on for a few seconds more, up to
    // PereMaxime pairs, so that its median holds still on a busy machine too.
    constexpr double TimpMinimMs = 3000;
    constexpr int PereMaxime = 41;
    const int minim = std::max({RepetariBench, masura.repetari, brut.repetari});
    std::vector<double> ms, bare, rapoarte;
    QElapsedTimer total;
    total.start();
    for (int i = 0; i < minim || (i < PereMaxime && total.elapsed() < TimpMinimMs); ++i) {
        // Every other pair the bare reading goes first: what the first of two finds warm or
        // cold in the caches falls on each side as often.
        double a = 0, b = 0;
        if (i % 2 == 0) {
            a = timp(masura);
            b = timp(brut);
        } else {
            b = timp(brut);
            a = timp(masura);
        }
        ms.push_back(a);
        bare.push_back(b);
        rapoarte.push_back(b > 0 ? a / b : 0);
    }
    QJsonObject o;
    o.insert(QStringLiteral("name"), nume);
    o.insert(QStringLiteral("ms"), arondat(mediana(ms), 2));
    o.insert(QStringLiteral("bare_ms"), arondat(mediana(bare), 2));
    o.insert(QStringLiteral("ratio"), arondat(mediana(rapoarte), 2));
    o.insert(QStringLiteral("runs"), int(ms.size()));
    o.insert(QStringLiteral("min_ms"), arondat(*std::min_element(ms.begin(), ms.end()), 2));
    o.insert(QStringLiteral("max_ms"), arondat(*std::max_element(ms.begin(), ms.end()), 2));
    o.insert(QStringLiteral("bare_min_ms"), arondat(*std::min_element(bare.begin(), bare.end()), 2));
    o.insert(QStringLiteral("bare_max_ms"), arondat(*std::max_element(bare.begin(), bare.end()), 2));
    scrie(o);
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
    const QStringList poz = Pozitionale(arg, {QStringLiteral("--masuri")});
    if (poz.size() != 1) {
        ScrieEroare(QStringLiteral("Utilizare: alocatii-admin bench DIR [--server URI] [--masuri NUME,NUME...]"));
        return 2;
    }
    auto& masuri = MasuriBench();
    std::stable_sort(masuri.begin(), masuri.end(),
                     [](const MasuraBench& a, const MasuraBench& b) { return a.nume < b.nume; });
    // --masuri: only the measures named, to take one figure again without waiting for all.
    const QStringList alese = Optiune(arg, QStringLiteral("--masuri")).split(QLatin1Char(','), Qt::SkipEmptyParts);
    QStringList toate;
    for (const MasuraBench& m : masuri)
        toate << m.nume;
    for (const QString& a : alese)
        if (!toate.contains(a)) {
            ScrieEroare(QStringLiteral("Masura %1 nu exista. Masurile: %2").arg(a, toate.join(QStringLiteral(", "))));
            return 2;
        }
    const QString dir = QDir(poz[0]).absolutePath();
    Proces::setari() = Setari{};
    Proces::setari().CaleBD = dir;
    BD& bd = BD::principala();
    DeschideBDOficiu(bd, arg, dir);
    // The messages that the measured routines give (the same, at each repetition) would
    // bury the figures: they are counted, not printed.
    MesajeColectate mesaje;
    // Each measure's peak of memory, beside the whole run's at the end: the list loaded whole
    // and the move of an office hold very different amounts.
    double varf = 0;
    {
        const MesajeTemporare t(mesaje);
        for (const MasuraBench& m : masuri)
            if (alese.isEmpty() || alese.contains(m.nume)) {
                reiaVarfulMemoriei();
                m.ruleaza(bd);
                const double mb = memorieMb();
                varf = std::max(varf, mb);
                ScrieValoare(m.nume + QStringLiteral("_rss_mb"), mb);
            }
    }
    if (!mesaje.texte.isEmpty())
        ScrieEroare(QStringLiteral("%1 mesaje in timpul masuratorilor, primul: %2")
                        .arg(mesaje.texte.size())
                        .arg(mesaje.texte.first()));
    ScrieValoare(QStringLiteral("rss_mb"), std::max(varf, memorieMb()));
    bd.inchide();
    return 0;
}

static ComandaInregistrata bench(QStringLiteral("bench"),
                                 QStringLiteral("bench DIR [--server URI] [--masuri NUME,...]   masoara timpii pe "
                                                "oficiul din DIR (o linie JSON pe masura)"),
                                 ruleaza);
