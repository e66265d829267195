#include "admin/Comenzi.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "database/BD.h"
#include "common/FisiereHelper.h"
#include "common/Proces.h"
#include "common/Setari.h"
#include "common/Text.h"
#include "reports/ExportGrid.h"
#include "reports/RandareGrid.h"
#include "reports/ReportGrid.h"

#include <QDir>
#include <QFileInfo>
#include <cstdio>

std::vector<Comanda>& Comenzi()
{
    static std::vector<Comanda> c;
    return c;
}

QString Optiune(const QStringList& arg, const QString& nume)
{
    const int i = arg.indexOf(nume);
    return i >= 0 && i + 1 < arg.size() ? arg[i + 1] : QString();
}

bool AreOptiune(const QStringList& arg, const QString& nume)
{
    return arg.contains(nume);
}

std::optional<qint64> OptiuneIntreaga(const QStringList& arg, const char* nume)
{
    const QString v = Optiune(arg, QLatin1String(nume));
    if (!EsteNumarIntreg(v)) {
        ScrieEroare(QStringLiteral("Optiunea %1 cere un numar intreg.").arg(QLatin1String(nume)));
        return std::nullopt;
    }
    return v.trimmed().toLongLong();
}

QStringList Pozitionale(const QStringList& arg, const QStringList& cuValoare)
{
    QStringList r;
    for (int i = 0; i < arg.size(); ++i) {
        if (cuValoare.contains(arg[i]) || arg[i] == QLatin1String("--server")) {
            ++i;
            continue;
        }
        if (arg[i].startsWith(QLatin1String("--")))
            continue;
        r << arg[i];
    }
    return r;
}

void ScrieLinie(const QString& linie)
{
    std::fprintf(stdout, "%s\n", linie.toUtf8().constData());
    std::fflush(stdout);
}

void ScrieJson(const QJsonValue& v)
{
    const QByteArray json = v.isArray() ? QJsonDocument(v.toArray()).toJson(QJsonDocument::Compact)
                                        : QJsonDocument(v.toObject()).toJson(QJsonDocument::Compact);
    std::fwrite(json.constData(), 1, size_t(json.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void ScrieEroare(const QString& linie)
{
    std::fprintf(stderr, "%s\n", linie.toUtf8().constData());
    std::fflush(stderr);
}

void IncarcaSetariOficiu(const QString& oficiu)
{
    Proces::setari() = Setari{};
    if (QFileInfo::exists(QDir(oficiu).filePath(QStringLiteral("setariTarnava.ini")))) {
        Proces::seteazaFolderProgram(oficiu);
        IncarcaSetari(FisiereHelper(), Proces::setari());
    }
    Proces::setari().CaleBD = oficiu;
}

int ScrieGridComanda(const ReportGrid& g, const QStringList& arg)
{
    const QString pdf = Optiune(arg, QStringLiteral("--pdf"));
    const QString xlsx = Optiune(arg, QStringLiteral("--xlsx"));
    if (!pdf.isEmpty()) {
        if (!ScriePdf(g, pdf)) {
            ScrieEroare(QStringLiteral("Fisierul %1 nu poate fi scris.").arg(pdf));
            return 1;
        }
    } else if (!xlsx.isEmpty()) {
        QString eroare;
        if (!ScrieXlsx(g, xlsx, &eroare)) {
            ScrieEroare(eroare);
            return 1;
        }
    } else {
        const QByteArray json = GridJson(g);
        std::fwrite(json.constData(), 1, size_t(json.size()), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }
    return 0;
}

bool DeschideBDOficiu(BD& bd, const QStringList& arg, const QString& oficiu, bool verificaCale)
{
    QString server = Optiune(arg, QStringLiteral("--server"));
    if (server.isEmpty())
        server = ServerBDDinSetari(QDir(oficiu).filePath(QStringLiteral("setariTarnava.ini")), QString());
    Proces::setari().ServerBD = server;
    if (verificaCale && !Proces::BazaAccesibila())
        return false;
    bd.deschideOficiu(oficiu, server);
    return true;
}
