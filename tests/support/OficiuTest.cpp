#include "OficiuTest.h"

#include "import/Demo.h"
#include "database/Oficiu.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QFile>
#include <QUuid>

#include <QDir>
#include <QtTest>

namespace {

// The connection string of the test cluster, without a database.
QString adresaCluster()
{
    QFile f(QDir(qEnvironmentVariable("ALOCATII_TEST_SERVER")).filePath(QStringLiteral("adresa")));
    if (!f.open(QIODevice::ReadOnly))
        qFatal("ALOCATII_TEST_SERVER: %s cannot be read", qPrintable(f.fileName()));
    return QString::fromUtf8(f.readAll()).trimmed();
}

} // namespace

bool OficiuTest::peServer()
{
    return !qEnvironmentVariableIsEmpty("ALOCATII_TEST_SERVER");
}

QString OficiuTest::bazaNoua()
{
    const QString nume = QStringLiteral("t_") + QUuid::createUuid().toString(QUuid::Id128);
    BD admin;
    admin.deschideServer(adresaCluster() + QStringLiteral(" dbname=postgres"));
    admin.executa(QStringLiteral("CREATE DATABASE %1").arg(nume));
    m_baze << nume;
    return adresaCluster() + QStringLiteral(" dbname=") + nume;
}

QString OficiuTest::bazaGoalaPeServer()
{
    return bazaNoua();
}

OficiuTest::OficiuTest(bool deschideBD)
{
    // tests/CMakeLists.txt runs such a test once, on the file: declared so, it may make no office.
    if (!qEnvironmentVariableIsEmpty("ALOCATII_TEST_FARA_OFICIU"))
        qFatal("Testul face un oficiu, dar tests/CMakeLists.txt il declara fara oficiu (TESTE_FARA_OFICIU): "
               "scoateti-l de acolo, ca sa ruleze si pe server.");
    QDir(m_dir.path()).mkpath(QStringLiteral("program"));
    QDir(m_dir.path()).mkpath(QStringLiteral("oficiu"));
    Proces::seteazaFolderProgram(folderProgram());
    Proces::setari() = Setari{};
    Proces::setari().CaleBD = folderOficiu();
    if (peServer()) {
        m_server = bazaNoua();
        CreeazaOficiuPeServer(folderOficiu(), m_server);
        Proces::setari().ServerBD = m_server;
    } else {
        CreeazaOficiu(folderOficiu());
    }
    if (deschideBD)
        BD::principala().deschideOficiu(folderOficiu(), m_server);
}

OficiuTest::~OficiuTest()
{
    BD::principala().inchide();
    if (m_baze.isEmpty())
        return;
    try {
        BD admin;
        admin.deschideServer(adresaCluster() + QStringLiteral(" dbname=postgres"));
        for (const QString& b : m_baze)
            admin.executa(QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)").arg(b));
    } catch (const Eroare& e) {
        qWarning("%s", qPrintable(e.text()));
    }
}

QString OficiuTest::folderProgram() const
{
    return QDir(m_dir.path()).filePath(QStringLiteral("program"));
}

QString OficiuTest::folderOficiu() const
{
    return QDir(m_dir.path()).filePath(QStringLiteral("oficiu"));
}

QString OficiuTest::caleBD() const
{
    return QDir(folderOficiu()).filePath(Proces::NumeBD);
}

QString OficiuTest::fisierSetari() const
{
    return QDir(folderProgram()).filePath(QStringLiteral("setariTarnava.ini"));
}

void OficiuTest::scrieDatePrimarie() const
{
    ScrieDatePrimarieDemo(bd());
}

void OficiuTest::executaDinAltCalculator(const QString& sql, const QVariantList& param) const
{
    BD alta;
    alta.deschideOficiu(folderOficiu(), m_server);
    alta.executa(sql, param);
}

void OficiuTest::StricaTabela(const BD& bd, const QString& tabela, const QString& cand, const QString& nume)
{
    if (bd.motor() == BD::Motor::PostgreSQL) {
        bd.executa(QStringLiteral("CREATE OR REPLACE FUNCTION refuza_scrierea() RETURNS trigger LANGUAGE plpgsql AS "
                                  "$$ BEGIN RAISE EXCEPTION 'scriere refuzata'; END $$"));
        bd.executa(QStringLiteral("CREATE TRIGGER %1 %2 ON %3 FOR EACH ROW EXECUTE FUNCTION refuza_scrierea()")
                       .arg(nume, cand, tabela));
    } else {
        bd.executa(QStringLiteral("CREATE TRIGGER %1 %2 ON %3 BEGIN SELECT RAISE(ABORT, 'scriere refuzata'); END")
                       .arg(nume, cand, tabela));
    }
}

void OficiuTest::ReparaTabela(const BD& bd, const QString& tabela, const QString& nume)
{
    if (bd.motor() == BD::Motor::PostgreSQL)
        bd.executa(QStringLiteral("DROP TRIGGER %1 ON %2").arg(nume, tabela));
    else
        bd.executa(QStringLiteral("DROP TRIGGER %1").arg(nume));
}
