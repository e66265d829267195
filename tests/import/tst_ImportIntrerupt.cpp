#include "TestCuOficiu.h"

#include "import/Demo.h"
#include "database/BD.h"

#include <QJsonDocument>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>
#include <QtTest>

// `alocatii-admin import-cereri` killed at moments drawn from a fixed seed, as a power cut or
// a closed terminal would stop it: after each kill the file is sound, no application is half
// saved, and the next import works.
class TestImportIntrerupt : public TestCuOficiu {
    Q_OBJECT

    int m_salvate = 0; // the applications that the imports said they saved

    qint64 numar(const QString& sql) { return bd().scalar(sql).toLongLong(); }

    QString fisier(int seria, int n)
    {
        const QString cale = QDir(m_oficiu->folderProgram()).filePath(QStringLiteral("import%1.json").arg(seria));
        QFile f(cale);
        if (!f.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(cale));
        f.write(QJsonDocument(GenereazaCereriDemo(n, 700 + seria)).toJson(QJsonDocument::Compact));
        return cale;
    }

    void porneste(QProcess& p, const QString& json)
    {
        p.start(QStringLiteral(ALOCATII_ADMIN),
                {QStringLiteral("import-cereri"), json, QStringLiteral("--office"), m_oficiu->folderOficiu(),
                 QStringLiteral("--an"), QStringLiteral("2026")});
        QVERIFY(p.waitForStarted());
    }

    void numaraSalvate(const QByteArray& iesire)
    {
        for (const QByteArray& l : iesire.split('\n'))
            if (QJsonDocument::fromJson(l).object().value(QStringLiteral("salvat")).toBool())
                ++m_salvate;
    }

    // The file sound and every application whole: its family, its applicant, as many member
    // rows as it counts; no family or member row left without its application.
    void verificaFisierul()
    {
        QCOMPARE(bd().scalar(QStringLiteral("PRAGMA integrity_check")).toString(), QStringLiteral("ok"));
        QVERIFY2(!bd().selecteaza(QStringLiteral("PRAGMA foreign_key_check")).next(), "a row points to nothing");
        QCOMPARE(numar(QStringLiteral(
                     "SELECT COUNT(*) FROM Cereri c WHERE NOT EXISTS (SELECT 1 FROM Familii f WHERE f.FamilieID = "
                     "c.FamilieID) "
                     "OR NOT EXISTS (SELECT 1 FROM Membrii m WHERE m.MembruID = c.MembruID1) "
                     "OR c.NrMembrii <> (SELECT COUNT(*) FROM CereriMembrii cm WHERE cm.CerereID = c.CerereID)")),
                 0);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Familii f WHERE NOT EXISTS (SELECT 1 FROM Cereri c WHERE "
                                      "c.FamilieID = f.FamilieID)")),
                 0);
        QCOMPARE(numar(QStringLiteral("SELECT COUNT(*) FROM Membrii m WHERE NOT EXISTS (SELECT 1 FROM CereriMembrii cm "
                                      "WHERE cm.MembruID = m.MembruID)")),
                 0);
        // The kill may fall between a commit and the line that tells it.
        const qint64 cereri = numar(QStringLiteral("SELECT COUNT(*) FROM Cereri"));
        QVERIFY2(cereri == m_salvate || cereri == m_salvate + 1,
                 qPrintable(QStringLiteral("%1 cereri, %2 raportate").arg(cereri).arg(m_salvate)));
        m_salvate = int(cereri);
    }

private slots:
    void importOpritBrusc()
    {
        QRandomGenerator aleator(1313);
        constexpr int Opriri = 5;
        constexpr int N = 30;
        for (int k = 0; k < Opriri; ++k) {
            QProcess p;
            porneste(p, fisier(k, N));
            // A moment inside the import: after a few of its lines, then a little more.
            const int linii = int(aleator.bounded(N / 2));
            QByteArray iesire;
            while (iesire.count('\n') < linii && p.state() == QProcess::Running) {
                p.waitForReadyRead(1000);
                iesire += p.readAllStandardOutput();
            }
            QThread::usleep(aleator.bounded(20000));
            p.kill();
            QVERIFY(p.waitForFinished(30000));
            iesire += p.readAllStandardOutput();
            numaraSalvate(iesire);
            verificaFisierul();
        }

        QProcess p;
        porneste(p, fisier(Opriri, 10));
        QVERIFY(p.waitForFinished(120000));
        QCOMPARE(p.exitCode(), 0);
        const QByteArray iesire = p.readAllStandardOutput();
        QCOMPARE(iesire.count("\"salvat\":true"), 10);
        numaraSalvate(iesire);
        verificaFisierul();
    }
};

QTEST_GUILESS_MAIN(TestImportIntrerupt)
#include "tst_ImportIntrerupt.moc"
