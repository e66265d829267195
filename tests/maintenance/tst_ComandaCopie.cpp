// `alocatii-admin copie` and `restaureaza` as the office's IT person runs them, with --json; and
// a copy killed with SIGKILL at moments drawn from a fixed seed, which must never leave behind
// a file named as a copy that is not a whole, checked one.
#include "DateTest.h"
#include "TestCuOficiu.h"
#include "maintenance/CopiiOficiu.h"
#include "common/Eroare.h"
#include "common/Proces.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

class TestComandaCopie : public TestCuOficiu {
    Q_OBJECT

    struct Iesire {
        int cod;
        QJsonObject json;
        QString eroare;
    };

    Iesire admin(const QStringList& argumente)
    {
        QProcess p;
        p.start(QStringLiteral(ALOCATII_ADMIN), argumente);
        [&] { QVERIFY(p.waitForFinished(120000)); }();
        return {p.exitCode(), QJsonDocument::fromJson(p.readAllStandardOutput()).object(),
                QString::fromUtf8(p.readAllStandardError())};
    }

    QString folderCopii() const { return QDir(m_oficiu->folderOficiu()).filePath(QStringLiteral("copii")); }

private slots:
    void copieVerificareRestaurare()
    {
        DateTest::Dosar(bd(), 1);
        DateTest::Dosar(bd(), 2, {}, {{"CNP", DateTest::CNPNascut(QDate(1975, 5, 5))}});
        BD::principala().inchide();
        const QString oficiu = m_oficiu->folderOficiu();

        const Iesire copie =
            admin({QStringLiteral("copie"), QStringLiteral("--office"), oficiu, QStringLiteral("--json")});
        QCOMPARE(copie.cod, 0);
        QCOMPARE(copie.json.value(QStringLiteral("buna")).toBool(), true);
        QCOMPARE(copie.json.value(QStringLiteral("integritate")).toString(), QStringLiteral("ok"));
        const QString fisier = copie.json.value(QStringLiteral("copie")).toString();
        QVERIFY(EsteNumeCopie(QFileInfo(fisier).fileName()));
        QCOMPARE(QFileInfo(fisier).absolutePath(), folderCopii());

        const Iesire verificare =
            admin({QStringLiteral("copie"), QStringLiteral("--verifica"), fisier, QStringLiteral("--json")});
        QCOMPARE(verificare.cod, 0);
        const QJsonObject randuri = verificare.json.value(QStringLiteral("randuri")).toObject();
        const QString cereri =
            randuri.contains(QStringLiteral("Cereri")) ? QStringLiteral("Cereri") : QStringLiteral("cereri");
        QCOMPARE(randuri.value(cereri).toInteger(), 2);
        QCOMPARE(verificare.json.value(QStringLiteral("sha256")).toString(), AmprentaFisier(fisier));

        // Into another folder with --in.
        const QString alt = QDir(oficiu).filePath(QStringLiteral("../alt-disc"));
        const Iesire in = admin({QStringLiteral("copie"), QStringLiteral("--office"), oficiu, QStringLiteral("--in"),
                                 alt, QStringLiteral("--json")});
        QCOMPARE(in.cod, 0);
        QVERIFY(in.json.value(QStringLiteral("copie")).toString().startsWith(QDir::cleanPath(alt)));

        m_oficiu->executaDinAltCalculator(QStringLiteral("DELETE FROM CereriMembrii"));
        const Iesire restaurare =
            admin({QStringLiteral("restaureaza"), QStringLiteral("--office"), oficiu, QStringLiteral("--copie"), fisier,
                   QStringLiteral("--inlocuieste"), QStringLiteral("--json")});
        QVERIFY2(restaurare.cod == 0, qPrintable(restaurare.eroare));
        QVERIFY(QFileInfo::exists(restaurare.json.value(QStringLiteral("pastrat")).toString()));
        BD::principala().deschideOficiu(oficiu, m_oficiu->server());
        QCOMPARE(DateTest::NumaraRanduri(bd(), QStringLiteral("CereriMembrii")), 2);
    }

    void copieDeterioarataSpusa()
    {
        RezultatCopie r;
        try {
            r = FaCopie(LocCopiiDinSetari(Proces::setari()), QDateTime(QDate(2024, 3, 4), QTime(9, 0)));
        } catch (const Eroare& e) {
            QFAIL(qPrintable(e.text()));
        }
        QFile f(r.fisier);
        QVERIFY(f.open(QIODevice::ReadWrite));
        QVERIFY(f.resize(f.size() - 700));
        f.close();
        const Iesire v =
            admin({QStringLiteral("copie"), QStringLiteral("--verifica"), r.fisier, QStringLiteral("--json")});
        QCOMPARE(v.cod, 1);
        QCOMPARE(v.json.value(QStringLiteral("buna")).toBool(), false);
        QVERIFY(!v.json.value(QStringLiteral("motiv")).toString().isEmpty());
        const Iesire text = admin({QStringLiteral("restaureaza"), QStringLiteral("--office"), m_oficiu->folderOficiu(),
                                   QStringLiteral("--copie"), r.fisier});
        QCOMPARE(text.cod, 1);
        QVERIFY2(text.eroare.contains(QStringLiteral("nu poate fi restaurata")), qPrintable(text.eroare));
    }

    void copieOpritaCuSigkill()
    {
        if (!m_oficiu->server().isEmpty())
            QSKIP("copia fisierului; pe server pg_dump scrie el insusi sub numele temporar");
        // An office of some size, so that the kills fall inside the copy as well as around it.
        {
            Tranzactie t(bd());
            for (int i = 1; i <= 40000; ++i)
                bd().executa(QStringLiteral("INSERT INTO Strazi (StradaID, Denumire, LocalitateID) VALUES (?, ?, 1)"),
                             {i, QStringLiteral("Strada lunga numarul %1 din satul de langa padure").arg(i)});
            t.confirma();
        }
        BD::principala().inchide();
        const QStringList argumente{QStringLiteral("copie"), QStringLiteral("--office"), m_oficiu->folderOficiu()};
        QElapsedTimer ceas;
        ceas.start();
        QCOMPARE(admin(argumente).cod, 0);
        const qint64 durata = std::max<qint64>(ceas.elapsed(), 50);

        QRandomGenerator aleator(1212);
        int inMijloc = 0; // kills that caught a copy being written
        for (int k = 0; k < 12; ++k) {
            QProcess p;
            p.start(QStringLiteral(ALOCATII_ADMIN), argumente);
            QVERIFY(p.waitForStarted());
            QThread::msleep(aleator.bounded(int(durata * 3 / 2)));
            p.kill();
            QVERIFY(p.waitForFinished(30000));
            if (!QDir(folderCopii()).entryList({QStringLiteral("*.incomplet")}, QDir::Files).isEmpty())
                ++inMijloc;
            // Whatever is named as a copy is whole and passes its check.
            for (const QString& f : QDir(folderCopii()).entryList(QDir::Files))
                if (EsteNumeCopie(f))
                    QVERIFY2(VerificaCopie(QDir(folderCopii()).filePath(f)).buna, qPrintable(f));
        }
        QVERIFY(inMijloc > 0);
        // The next copy clears what the killed ones left, and the index names every copy.
        QCOMPARE(admin(argumente).cod, 0);
        QCOMPARE(QDir(folderCopii()).entryList({QStringLiteral("*.incomplet")}, QDir::Files), QStringList());
        const QList<CopieInregistrata> index = IndexCopii::citeste(folderCopii());
        const QStringList copii = QDir(folderCopii()).entryList({QStringLiteral("Tarnava-*")}, QDir::Files);
        QCOMPARE(index.size(), copii.size());
        for (const CopieInregistrata& c : index)
            QVERIFY(c.verificare.buna);
        QVERIFY(VerificaCopie(m_oficiu->caleBD()).buna);
    }
};

QTEST_GUILESS_MAIN(TestComandaCopie)
#include "tst_ComandaCopie.moc"
