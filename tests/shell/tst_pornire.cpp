// The start of the program over temporary folders, with scripted messages and windows.
#include "MesajeScript.h"
#include "database/BD.h"
#include "database/Oficiu.h"
#include "common/Ceas.h"
#include "common/Ini.h"
#include "shell/Pornire.h"
#include "common/Proces.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>
#include <unistd.h>

namespace {

// frmGeneral and frmLogin as the test scripts them.
class FerestreScript : public FerestrePornire {
public:
    int alegeri = 0;
    int loginuri = 0;
    std::function<void()> inFrmGeneral; // what the officer does in the folder window
    bool parolaBuna = true;

    void AlegeLocatieBD() override
    {
        ++alegeri;
        if (inFrmGeneral)
            inFrmGeneral();
    }
    bool Login() override
    {
        ++loginuri;
        return parolaBuna;
    }
};

QString Nativ(const QString& cale)
{
    return QDir::toNativeSeparators(cale);
}

QString IntrebareLipsa(const QString& folder)
{
    return QStringLiteral("Baza de date Tarnava.db nu a fost gasita in locatia ") + folder +
           QStringLiteral("\nDoriti sa selectati o noua locatie?");
}

} // namespace

class TestPornire : public QObject {
    Q_OBJECT

    QScopedPointer<QTemporaryDir> m_dir;

    QString program() const { return m_dir->filePath(QStringLiteral("program")); }
    QString oficiu() const { return m_dir->filePath(QStringLiteral("oficiu")); }
    QString setari() const { return QDir(program()).filePath(QStringLiteral("setariTarnava.ini")); }
    QString caleBDInFisier() const
    {
        return FisierIni(setari()).citeste(QStringLiteral("Generale"), QStringLiteral("CaleBD"));
    }
    void scrieSetare(const QString& sectiune, const QString& cheie, const QString& valoare) const
    {
        QVERIFY(FisierIni(setari()).scrie(sectiune, cheie, valoare));
    }
    // Runs one case of this test as the user nobody (setpriv), from a copy of the executable
    // that nobody can read, with its own temporary folders: where permissions hold for it.
    void ruleazaCaNobody(const QString& caz)
    {
        const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
        QVERIFY2(!setpriv.isEmpty(), "setpriv (util-linux) lipseste");
        QTemporaryDir dir;
        QVERIFY(QFile(dir.path())
                    .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                                    QFile::ExeOther));
        const QString copie = dir.filePath(QStringLiteral("test"));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copie));
        QVERIFY(QFile(copie).setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("TMPDIR"), QDir::tempPath());
        env.insert(QStringLiteral("HOME"), QDir::tempPath());
        p.setProcessEnvironment(env);
        p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(setpriv, {QStringLiteral("--reuid=65534"), QStringLiteral("--regid=65534"),
                          QStringLiteral("--clear-groups"), copie, caz});
        QVERIFY(p.waitForFinished(120000));
        const QString iesire = QString::fromLocal8Bit(p.readAll());
        QVERIFY2(p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0, qPrintable(iesire));
        QVERIFY2(iesire.contains(QStringLiteral("PASS   : TestPornire::") + caz), qPrintable(iesire));
    }

private slots:
    void init()
    {
        m_dir.reset(new QTemporaryDir);
        QVERIFY(m_dir->isValid());
        QDir(m_dir->path()).mkpath(QStringLiteral("program"));
        QDir(m_dir->path()).mkpath(QStringLiteral("oficiu"));
        Proces::seteazaFolderProgram(program());
        Proces::setari() = Setari{};
    }
    void cleanup()
    {
        BD::principala().inchide();
        Ceas::seteazaAzi(QDate());
    }

    void faraSetariCuBazaLangaProgram()
    {
        CreeazaOficiu(program());
        MesajeScript m;
        FerestreScript f;
        QCOMPARE(Porneste(f), RezultatPornire::Continua);
        QCOMPARE(caleBDInFisier(), Nativ(program()));
        QCOMPARE(Proces::setari().CaleBD, Nativ(program()));
        QVERIFY(BD::principala().deschisa());
        QCOMPARE(QDir::cleanPath(BD::principala().cale()), QDir(program()).filePath(QStringLiteral("Tarnava.db")));
        QVERIFY(m.intrari.isEmpty());
        QCOMPARE(f.alegeri + f.loginuri, 0);
        // The settings were loaded and their defaults written beside CaleBD.
        QCOMPARE(FisierIni(setari()).citeste(QStringLiteral("App"), QStringLiteral("AppWord")), QStringLiteral("1"));
        QCOMPARE(Proces::setari().FontName0, QStringLiteral("Times New Roman"));
    }

    void faraSetariFaraBazaIntreabaDeFolderulProgramului()
    {
        MesajeScript m;
        m.raspunde(false);
        FerestreScript f;
        QCOMPARE(Porneste(f), RezultatPornire::Oprita);
        QCOMPARE(m.intrari.size(), 1);
        QVERIFY(m.intrari[0].intrebare);
        QCOMPARE(m.intrari[0].titlu, QStringLiteral("?"));
        QCOMPARE(m.intrari[0].text, IntrebareLipsa(Nativ(program())));
        QCOMPARE(f.alegeri, 0);
        QVERIFY(!BD::principala().deschisa());
        // A missing database is never created.
        QVERIFY(!QFile::exists(QDir(program()).filePath(QStringLiteral("Tarnava.db"))));
    }

    void raspunsNuPastreazaCaleBD()
    {
        scrieSetare(QStringLiteral("Generale"), QStringLiteral("CaleBD"), oficiu());
        MesajeScript m;
        m.raspunde(false);
        FerestreScript f;
        QCOMPARE(Porneste(f), RezultatPornire::Oprita);
        QCOMPARE(m.ultimul(), IntrebareLipsa(oficiu()));
        QCOMPARE(caleBDInFisier(), oficiu());
        QCOMPARE(f.alegeri, 0);
    }

    void folderNouAlesFolositLaUrmatoareaPornire()
    {
        const QString nou = m_dir->filePath(QStringLiteral("nou"));
        QDir().mkpath(nou);
        CreeazaOficiu(nou);
        scrieSetare(QStringLiteral("Generale"), QStringLiteral("CaleBD"), oficiu());
        {
            MesajeScript m;
            m.raspunde(true);
            FerestreScript f;
            f.inFrmGeneral = [&] { QVERIFY(AcceptaLocatieBD(QStringLiteral("  ") + nou + QStringLiteral(" "))); };
            QCOMPARE(Porneste(f), RezultatPornire::Oprita);
            QCOMPARE(f.alegeri, 1);
            QCOMPARE(m.ultimul(), MesajInchidere);
            QCOMPARE(caleBDInFisier(), nou);
            QVERIFY(!BD::principala().deschisa());
        }
        MesajeScript m;
        FerestreScript f;
        QCOMPARE(Porneste(f), RezultatPornire::Continua);
        QCOMPARE(Proces::setari().CaleBD, nou);
        QVERIFY(m.intrari.isEmpty());
    }

    void textGolLasaCaleBDSiIncheie_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("doar spatii") << QStringLiteral("   ");
    }
    void textGolLasaCaleBDSiIncheie()
    {
        QFETCH(QString, text);
        scrieSetare(QStringLiteral("Generale"), QStringLiteral("CaleBD"), oficiu());
        MesajeScript m;
        m.raspunde(true);
        FerestreScript f;
        f.inFrmGeneral = [&] { QVERIFY(AcceptaLocatieBD(text)); };
        QCOMPARE(Porneste(f), RezultatPornire::Oprita);
        QCOMPARE(m.texte(), (QStringList{IntrebareLipsa(oficiu()), MesajInchidere}));
        QCOMPARE(caleBDInFisier(), oficiu());
    }

    void locatieInaccesibila()
    {
        const QString lipsa = m_dir->filePath(QStringLiteral("retea/nu/raspunde"));
        scrieSetare(QStringLiteral("Generale"), QStringLiteral("CaleBD"), lipsa);
        MesajeScript m;
        FerestreScript f;
        QCOMPARE(Porneste(f), RezultatPornire::Oprita);
        QCOMPARE(m.texte(), QStringList{QStringLiteral(
                                "Reteaua nu functioneaza sau locatia catre baza de date nu e corecta. Verificati!")});
        QCOMPARE(f.alegeri, 0);
        QCOMPARE(caleBDInFisier(), lipsa);
    }

    void fisierCareNuEsteBazaDeDate_data()
    {
        QTest::addColumn<QByteArray>("continut");
        QTest::newRow("text") << QByteArray("Acesta nu este o baza de date.\r\n").repeated(50);
        QByteArray antet("SQLite format 3");
        antet.append('\0');
        antet.append(QByteArray(4080, '\xA5'));
        QTest::newRow("antet bun, restul stricat") << antet;
    }
    void fisierCareNuEsteBazaDeDate()
    {
        QFETCH(QByteArray, continut);
        const QString cale = QDir(oficiu()).filePath(QStringLiteral("Tarnava.db"));
        {
            QFile fisier(cale);
            QVERIFY(fisier.open(QIODevice::WriteOnly));
            fisier.write(continut);
        }
        scrieSetare(QStringLiteral("Generale"), QStringLiteral("CaleBD"), oficiu());
        MesajeScript m;
        FerestreScript f;
        QCOMPARE(Porneste(f), RezultatPornire::EroareBD);
        QCOMPARE(m.intrari.size(), 1);
        QVERIFY2(m.ultimul().contains(Nativ(cale)), qPrintable(m.ultimul()));
        QVERIFY(m.ultimul().contains(QLatin1String("nu poate fi deschisa")));
        QVERIFY(!BD::principala().deschisa());
        QCOMPARE(f.loginuri, 0);
        QFile fisier(cale);
        QVERIFY(fisier.open(QIODevice::ReadOnly));
        QCOMPARE(fisier.readAll(), continut);
        QVERIFY(CodIesire(RezultatPornire::EroareBD) != 0);
    }

    void parola_data()
    {
        QTest::addColumn<QString>("parola");
        QTest::addColumn<bool>("parolaBuna");
        QTest::addColumn<int>("loginuri");
        QTest::addColumn<RezultatPornire>("rezultat");
        QTest::newRow("fara parola, fara login") << QString() << false << 0 << RezultatPornire::Continua;
        QTest::newRow("parola corecta") << QStringLiteral("secret") << true << 1 << RezultatPornire::Continua;
        QTest::newRow("login anulat") << QStringLiteral("secret") << false << 1 << RezultatPornire::Oprita;
    }
    void parola()
    {
        QFETCH(QString, parola);
        QFETCH(bool, parolaBuna);
        QFETCH(int, loginuri);
        QFETCH(RezultatPornire, rezultat);
        CreeazaOficiu(oficiu());
        scrieSetare(QStringLiteral("Generale"), QStringLiteral("CaleBD"), oficiu());
        if (!parola.isEmpty())
            scrieSetare(QStringLiteral("Generale"), QStringLiteral("pass"), parola);
        MesajeScript m;
        FerestreScript f;
        f.parolaBuna = parolaBuna;
        QCOMPARE(Porneste(f), rezultat);
        QCOMPARE(f.loginuri, loginuri);
        // The password is loaded before the login asks for it.
        QCOMPARE(Proces::setari().pass, parola);
        QCOMPARE(BD::principala().deschisa(), rezultat == RezultatPornire::Continua);
        QVERIFY(m.intrari.isEmpty());
        QCOMPARE(CodIesire(rezultat), 0);
    }

    void setariNescriseLaAlegereaFolderului()
    {
        // root writes through the permissions: as root, the case runs again as another user.
        if (::geteuid() == 0) {
            ruleazaCaNobody(QStringLiteral("setariNescriseLaAlegereaFolderului"));
            return;
        }
        scrieSetare(QStringLiteral("Generale"), QStringLiteral("CaleBD"), oficiu());
        QFile(program()).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        QFile(setari()).setPermissions(QFile::ReadOwner);
        QVERIFY(!QFileInfo(program()).isWritable());
        MesajeScript m;
        QVERIFY(!AcceptaLocatieBD(m_dir->filePath(QStringLiteral("alt"))));
        QFile(program()).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QFile(setari()).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        QCOMPARE(m.intrari.size(), 1);
        QVERIFY(m.ultimul().startsWith(QLatin1String("70 ")));
        QVERIFY(m.ultimul().endsWith(QLatin1String(" frmGeneral")));
        QCOMPARE(caleBDInFisier(), oficiu());
    }

    void numeleArhivei()
    {
        Ceas::seteazaAzi(QDate(2012, 3, 5));
        Proces::setari().CaleBD = oficiu();
        QCOMPARE(NumeArhivaImplicit(), Nativ(QDir(oficiu()).filePath(QStringLiteral("Tarnava_03_2012.db"))));
    }
};

QTEST_GUILESS_MAIN(TestPornire)
#include "tst_pornire.moc"
