#include "OficiuTest.h"

#include "applications/Demo.h"
#include "database/Oficiu.h"
#include "common/Proces.h"

#include <QDir>
#include <QtTest>

OficiuTest::OficiuTest(bool deschideBD)
{
    QDir(m_dir.path()).mkpath(QStringLiteral("program"));
    QDir(m_dir.path()).mkpath(QStringLiteral("oficiu"));
    CreeazaOficiu(folderOficiu());
    Proces::seteazaFolderProgram(folderProgram());
    Proces::setari() = Setari{};
    Proces::setari().CaleBD = folderOficiu();
    if (deschideBD)
        BD::principala().deschide(caleBD());
}

OficiuTest::~OficiuTest()
{
    BD::principala().inchide();
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
    alta.deschide(caleBD());
    alta.executa(sql, param);
}
