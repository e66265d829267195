// The windows of the start and of the small settings, driven as an officer would.
#include "TestCuOficiu.h"
#include "registers/DatePrimarie.h"
#include "registers/frmDatePrimarie2.h"
#include "gui_Dialog.h"
#include "common/Ini.h"
#include "shell/Parola.h"
#include "shell/Pornire.h"
#include "common/Proces.h"
#include "shell/frmAbout.h"
#include "shell/frmChLunaAn.h"
#include "shell/frmGeneral.h"
#include "shell/frmLogin.h"
#include "shell/frmParola.h"

#include <QFileDialog>
#include <QLabel>
#include <QtTest>

class TestFerestrePornire : public TestCuOficiu {
    Q_OBJECT

private slots:
    void loginGresitApoiCorect()
    {
        Proces::setari().pass = QStringLiteral("secret");
        MesajeScript m;
        frmLogin w;
        w.show();
        Scrie(&w, QStringLiteral("txtPassword"), QStringLiteral("Secret"));
        Apasa(&w, QStringLiteral("cmdOK"));
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Parola gresita, mai incercati!")});
        QCOMPARE(m.intrari[0].titlu, QStringLiteral("Login"));
        QVERIFY(!w.LoginSucceeded());
        QVERIFY(w.isVisible());
        // The wrong text is selected, ready to be typed over.
        QCOMPARE(Control<QLineEdit>(&w, QStringLiteral("txtPassword"))->selectedText(), QStringLiteral("Secret"));
        // No limit on attempts; Enter in the password acts as OK.
        Scrie(&w, QStringLiteral("txtPassword"), QStringLiteral("gresit"));
        Apasa(&w, QStringLiteral("cmdOK"));
        Scrie(&w, QStringLiteral("txtPassword"), QStringLiteral("secret"));
        QTest::keyClick(Control<QLineEdit>(&w, QStringLiteral("txtPassword")), Qt::Key_Return);
        QVERIFY(w.LoginSucceeded());
        QCOMPARE(w.result(), int(QDialog::Accepted));
        QCOMPARE(m.intrari.size(), 2);
    }

    void loginAnulat()
    {
        Proces::setari().pass = QStringLiteral("secret");
        frmLogin w;
        HookModalTest hook([](QDialog& d) {
            Scrie(&d, QStringLiteral("txtPassword"), QStringLiteral("secret"));
            Apasa(&d, QStringLiteral("cmdCancel"));
        });
        QCOMPARE(DeschideModal(w), int(QDialog::Rejected));
        QVERIFY(!w.LoginSucceeded());
    }

    void parolaSchimbata()
    {
        Proces::setari().pass = QStringLiteral("vechi");
        MesajeScript m;
        frmParola w;
        w.show();
        Scrie(&w, QStringLiteral("txtPassOld"), QStringLiteral("vechi"));
        Scrie(&w, QStringLiteral("txtPassNew"), QStringLiteral(" noua "));
        Scrie(&w, QStringLiteral("txtPassRenew"), QStringLiteral("alta"));
        Apasa(&w, QStringLiteral("cmdOK"));
        QCOMPARE(m.ultimul(), QStringLiteral("Parola noua trebuie sa fie la fel in cele doua casute de text!"));
        QVERIFY(w.isVisible());
        Scrie(&w, QStringLiteral("txtPassRenew"), QStringLiteral("noua"));
        Apasa(&w, QStringLiteral("cmdOK"));
        QCOMPARE(w.result(), int(QDialog::Accepted));
        QCOMPARE(Proces::setari().pass, QStringLiteral("noua"));
        QCOMPARE(FisierIni(FisierParola()).citeste(QStringLiteral("Generale"), QStringLiteral("pass")),
                 QStringLiteral("noua"));
    }

    void lunaActivaRefuzaLuna13()
    {
        Proces::setari().LunaSetata = 4;
        Proces::setari().AnSetat = 2012;
        MesajeScript m;
        frmChLunaAn w;
        w.show();
        QCOMPARE(Text(&w, "txtLuna"), QStringLiteral("4"));
        QCOMPARE(Text(&w, "txtAn"), QStringLiteral("2012"));
        QVERIFY(!Control<QPushButton>(&w, QStringLiteral("cmdAddMonth"))->isEnabled());
        Scrie(&w, QStringLiteral("txtLuna"), QStringLiteral("13"));
        Apasa(&w, QStringLiteral("cmdOK"));
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Luna incorecta!")});
        QVERIFY(w.isVisible());
        QCOMPARE(Proces::setari().LunaSetata, 4);
        Scrie(&w, QStringLiteral("txtLuna"), QStringLiteral("11"));
        Scrie(&w, QStringLiteral("txtAn"), QStringLiteral("2013"));
        Apasa(&w, QStringLiteral("cmdOK"));
        QCOMPARE(w.result(), int(QDialog::Accepted));
        QCOMPARE(Proces::setari().LunaSetata, 11);
        QCOMPARE(Proces::setari().AnSetat, 2013);
        QCOMPARE(FisierIni(m_oficiu->fisierSetari()).citeste(QStringLiteral("Setari"), QStringLiteral("LunaSetata")),
                 QStringLiteral("11"));
    }

    void datePrimariePrimaSalvare()
    {
        MesajeScript m;
        {
            frmDatePrimarie2 w;
            w.show();
            auto* cbo = Control<QComboBox>(&w, QStringLiteral("cbo"));
            QCOMPARE(cbo->count(), 3);
            QCOMPARE(cbo->currentIndex(), -1);
            Apasa(&w, QStringLiteral("cmdOK"));
            QCOMPARE(m.ultimul(), QStringLiteral("Toate campurile sunt obligatorii!"));
            for (int i = 0; i < 13; ++i)
                Scrie(&w, QStringLiteral("txtText(%1)").arg(i), QStringLiteral("Valoare %1").arg(i));
            Apasa(&w, QStringLiteral("cmdOK"));
            QCOMPARE(m.ultimul(), QStringLiteral("Selectati Tip Localitate din lista"));
            cbo->setCurrentIndex(1);
            Apasa(&w, QStringLiteral("cmdOK"));
            QCOMPARE(w.result(), int(QDialog::Accepted));
        }
        QCOMPARE(m.intrari.size(), 2);
        QCOMPARE(m_oficiu->bd().scalar(QStringLiteral("SELECT COUNT(*) FROM DatePrimarie")).toInt(), 1);
        // Opened again, it shows what was saved.
        frmDatePrimarie2 w;
        QCOMPARE(Text(&w, "txtText(12)"), QStringLiteral("Valoare 12"));
        QCOMPARE(Control<QComboBox>(&w, QStringLiteral("cbo"))->currentText(), QStringLiteral("Oras"));
    }

    void folderulBazeiAlesCuRasfoire()
    {
        FisierIni(m_oficiu->fisierSetari())
            .scrie(QStringLiteral("Generale"), QStringLiteral("CaleBD"), QStringLiteral("/vechi"));
        const QString nou = m_oficiu->folderOficiu();
        MesajeScript m;
        QString textInitial, dupaAnulare, dupaAlegere;
        HookModalTest hook([&](QDialog& d) {
            if (auto* picker = qobject_cast<QFileDialog*>(&d)) {
                if (picker->directory().absolutePath() == QDir(nou).absolutePath()) {
                    d.reject();
                    return;
                }
                picker->setDirectory(nou);
                picker->selectFile(nou);
                d.accept();
                return;
            }
            textInitial = Text(&d, "txt");
            // The first look is cancelled and leaves the text; the second chooses a folder.
            Proces::seteazaFolderProgram(nou);
            Apasa(&d, QStringLiteral("cmdBrowse"));
            dupaAnulare = Text(&d, "txt");
            Proces::seteazaFolderProgram(m_oficiu->folderProgram());
            Apasa(&d, QStringLiteral("cmdBrowse"));
            dupaAlegere = Text(&d, "txt");
            Apasa(&d, QStringLiteral("cmdOK"));
        });
        frmGeneral w;
        w.Mod = 2;
        QCOMPARE(DeschideModal(w), int(QDialog::Accepted));
        QCOMPARE(textInitial, QStringLiteral("/vechi"));
        QCOMPARE(dupaAnulare, QStringLiteral("/vechi"));
        QCOMPARE(QDir(dupaAlegere).absolutePath(), QDir(nou).absolutePath());
        QCOMPARE(QDir(CaleBDDinSetari()).absolutePath(), QDir(nou).absolutePath());
        QCOMPARE(m.texte(), QStringList{MesajInchidere});
    }

    void arhivaPregatita()
    {
        MesajeScript m;
        frmGeneral w;
        w.Mod = 1;
        HookModalTest hook([](QDialog& d) { Apasa(&d, QStringLiteral("cmdOK")); });
        QCOMPARE(DeschideModal(w), int(QDialog::Accepted));
        QCOMPARE(Control<QPushButton>(&w, QStringLiteral("cmdOK"))->text(), QStringLiteral("&Salvare"));
        QVERIFY(Text(&w, "txt").endsWith(QLatin1String(".db")));
        QCOMPARE(m.texte(), QStringList{MesajInchidere});
        // Nothing is copied, and CaleBD stays.
        QVERIFY(CaleBDDinSetari().isEmpty());
    }

    void despreProgram()
    {
        MesajeScript m;
        frmAbout w;
        w.show();
        QVERIFY(Control<QLabel>(&w, QStringLiteral("lblVersion"))->text().contains(QLatin1String(ALOCATII_VERSIUNE)));
        const QByteArray cale = qgetenv("PATH");
        qputenv("PATH", QByteArray());
        Apasa(&w, QStringLiteral("cmdSysInfo"));
        qputenv("PATH", cale);
        QCOMPARE(m.texte(), QStringList{QStringLiteral("System Information Is Unavailable At This Time")});
        Apasa(&w, QStringLiteral("cmdOK"));
        QCOMPARE(w.result(), int(QDialog::Accepted));
    }
};

QTEST_MAIN(TestFerestrePornire)
#include "tst_ferestre_pornire.moc"
