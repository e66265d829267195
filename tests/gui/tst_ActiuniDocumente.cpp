#include "DateTest.h"
#include "TestCuOficiu.h"
#include "documents/DeschideDocument.h"
#include "documents/SablonRtf.h"
#include "documents/frmAnexa2.h"
#include "mainwindow/ActiuniDocumente.h"
#include "gui_Dialog.h"
#include "common/Proces.h"
#include "mainwindow/frmMainNou.h"
#include "mainwindow/frmPanouriCerere.h"

#include <QAction>
#include <QDateEdit>
#include <QDir>
#include <QRadioButton>
#include <QTreeWidget>
#include <QtTest>

using namespace DateTest;

// The document actions of the main window and the window frmAnexa2, with a stand-in
// launcher in place of the word processor.
class TestActiuniDocumente : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        m_oficiu->scrieDatePrimarie();
        const BD& bd = m_oficiu->bd();
        Dosar(bd, 1);
        Dosar(bd, 2, {}, {{"Prenume", "ANA"}, {"CNP", "2800101260015"}});
        Dispozitie(bd, 1, 1, {{"NrDisp", 10}});
        Dispozitie(bd, 2, 2, {{"NrDisp", 11}});
        Proces::setari().LunaSetata = 4;
        Proces::setari().AnSetat = 2012;
        LansatorDocumente::seteaza(&m_lansator);
        m_lansator.deschise.clear();
    }
    void curata() override { LansatorDocumente::seteaza(nullptr); }

private slots:
    void frmAnexa2CitesteSelectia()
    {
        frmAnexa2 f;
        f.show();
        auto* luna = Control<QComboBox>(&f, QStringLiteral("cboLuna"));
        QCOMPARE(luna->currentData().toInt(), 4); // the active month
        Control<QComboBox>(&f, QStringLiteral("cboCerere(0)"))->setCurrentIndex(2);
        Control<QComboBox>(&f, QStringLiteral("cboTipDisp"))->setCurrentIndex(1);
        Control<QRadioButton>(&f, QStringLiteral("opt(2)"))->setChecked(true);
        Scrie(&f, QStringLiteral("txtDispozitieMin"), QStringLiteral("10"));
        Scrie(&f, QStringLiteral("txtDispozitieMax"), QStringLiteral("25abc"));
        Scrie(&f, QStringLiteral("txtCerereMin"), QStringLiteral("101"));
        Scrie(&f, QStringLiteral("txtCerereMax"), QStringLiteral("102"));
        Apasa(&f, QStringLiteral("cmdOK"));
        QVERIFY(f.ESTE_OK);
        QCOMPARE(f.result(), int(QDialog::Accepted));
        QCOMPARE(f.TipDisp, 3);
        QCOMPARE(f.StatutDisp, 2);
        QCOMPARE(f.LunaDisp, 4);
        QCOMPARE(f.NrActMin, qint64(10));
        QCOMPARE(f.NrActMax, qint64(25));
        QCOMPARE(f.NrCerereMin, qint64(101));
        QCOMPARE(f.NrCerereMax, qint64(102));
        QCOMPARE(f.ModTiparAnexa2, 3);
    }

    // "Renunta" after a whole selection was typed: neither menu builds, writes or opens a
    // document, nothing is said, and the menu keeps its caption.
    void frmAnexa2Renunta_data()
    {
        QTest::addColumn<bool>("toate");
        QTest::newRow("Tiparire toate dispozitiile") << false;
        QTest::newRow("Generare dispozitii") << true;
    }
    void frmAnexa2Renunta()
    {
        QFETCH(bool, toate);
        QAction meniu(QStringLiteral("Tiparire toate dispozitiile ..."));
        bool deschisa = false;
        HookModalTest h([&](QDialog& d) {
            deschisa = true;
            Control<QRadioButton>(&d, QStringLiteral("opt(3)"))->setChecked(true);
            Scrie(&d, QStringLiteral("txtDispozitieMin"), QStringLiteral("1"));
            Scrie(&d, QStringLiteral("txtDispozitieMax"), QStringLiteral("20"));
            Scrie(&d, QStringLiteral("txtCerereMin"), QStringLiteral("101"));
            Scrie(&d, QStringLiteral("txtCerereMax"), QStringLiteral("102"));
            Apasa(&d, QStringLiteral("cmdCancel"));
        });
        MesajeScript m;
        if (toate)
            ActiuneToateDispozitiile(nullptr, &meniu);
        else
            ActiuneTiparireToateDispozitiile(nullptr, &meniu);
        QVERIFY(deschisa);
        QCOMPARE(m.texte(), QStringList{});
        QVERIFY(m_lansator.deschise.isEmpty());
        QVERIFY(!QFile::exists(iesire(DocumentDispozitie)));
        QCOMPARE(meniu.text(), QStringLiteral("Tiparire toate dispozitiile ..."));
    }

    void frmAnexa2Genereaza()
    {
        frmAnexa2 f;
        f.show();
        Scrie(&f, QStringLiteral("txtDispoz(0)"), QStringLiteral("300"));
        Control<QComboBox>(&f, QStringLiteral("cboDispoz(1)"))->setCurrentIndex(6);
        Scrie(&f, QStringLiteral("txtDispoz(1)"), QStringLiteral("2012"));
        Control<QDateEdit>(&f, QStringLiteral("dtpData"))->setDate(QDate(2012, 6, 30));
        MesajeScript m;
        Apasa(&f, QStringLiteral("cmdGenerate"));
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Au fost generate : 2 dispozitii, de la nr 300 la nr \n"
                                                       "A pornit de la NrCerere: 101 pana la NrCerere: 102")});
        QVERIFY(f.isVisible()); // the window stays open
        QCOMPARE(m_oficiu->bd()
                     .scalar(QStringLiteral(
                         "SELECT COUNT(*) FROM Dispozitii WHERE NrDisp >= 300 AND DinData = '2012-07-01'"))
                     .toInt(),
                 2);
    }

    void tiparireDispozitie_data()
    {
        QTest::addColumn<bool>("listaGoala");
        QTest::addColumn<qint64>("id"); // 0: none selected
        QTest::addColumn<QStringList>("mesaje");
        QTest::addColumn<bool>("deschis");
        QTest::newRow("lista goala: nimic") << true << qint64(0) << QStringList{} << false;
        QTest::newRow("fara selectie") << false << qint64(0)
                                       << QStringList{QStringLiteral("Selecati mai intai o dispozitie!")} << false;
        QTest::newRow("dispozitia selectata") << false << qint64(2) << QStringList{} << true;
        QTest::newRow("dispozitie stearsa")
            << false << qint64(9)
            << QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe o Cerere!")} << false;
    }

    void tiparireDispozitie()
    {
        QFETCH(bool, listaGoala);
        QFETCH(qint64, id);
        QFETCH(QStringList, mesaje);
        QFETCH(bool, deschis);
        MesajeScript m;
        ActiuneTiparireDispozitie(nullptr, listaGoala, id ? std::optional<qint64>(id) : std::nullopt);
        QCOMPARE(m.texte(), mesaje);
        QCOMPARE(m_lansator.deschise, deschis ? QStringList{iesire(DocumentDispozitie)} : QStringList{});
        QCOMPARE(QFile::exists(iesire(DocumentDispozitie)), deschis);
        if (deschis) {
            QVERIFY(document(DocumentDispozitie).contains("DISPOZITIA nr. 11 din"));
        }
    }

    void dispozitiaDeschisaAnterior()
    {
        // A document that cannot be replaced: the disposition says it in the office's words and
        // opens nothing; the declaration shows the error.
        QDir().mkpath(iesire(DocumentDispozitie) + QStringLiteral("/blocat"));
        QDir().mkpath(iesire(DocumentDeclaratie) + QStringLiteral("/blocat"));
        MesajeScript m;
        ActiuneTiparireDispozitie(nullptr, false, 1);
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Inchideti dispozitia deschisa anterior!")});
        m.goleste();
        ActiuneDeclaratie(nullptr, false, 1);
        QCOMPARE(m.texte().size(), 1);
        QVERIFY(m.texte()[0].startsWith(QLatin1String("Eroare: 70 ")));
        QVERIFY(m_lansator.deschise.isEmpty());
    }

    void declaratieSiFisa()
    {
        MesajeScript m;
        ActiuneDeclaratie(nullptr, false, std::nullopt);
        ActiuneFisaCalcul(nullptr, false, std::nullopt, QDate());
        QCOMPARE(m.texte(), (QStringList{QStringLiteral("Selecati mai intai o cerere!"),
                                         QStringLiteral("Selecati mai intai o cerere!")}));
        m.goleste();
        ActiuneDeclaratie(nullptr, false, 2);
        ActiuneFisaCalcul(nullptr, false, 2, QDate(2012, 3, 7));
        QCOMPARE(m.texte(), QStringList{});
        QCOMPARE(m_lansator.deschise, (QStringList{iesire(DocumentDeclaratie), iesire(DocumentFisa)}));
        const QByteArray fisa = document(DocumentFisa);
        QVERIFY(fisa.contains("POPESCU ANA"));
        QVERIFY(fisa.contains("Data: 07.03.2012"));

        // A missing template: its message, nothing opened.
        QFile::remove(CaleSablon(QStringLiteral("fisa.rtf")));
        m_lansator.deschise.clear();
        ActiuneFisaCalcul(nullptr, false, 2, QDate());
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Fisierul %1 nu exita")
                                            .arg(QDir::toNativeSeparators(CaleSablon(QStringLiteral("fisa.rtf"))))});
        QVERIFY(m_lansator.deschise.isEmpty());
    }

    void tiparireToateDispozitiile()
    {
        QAction meniu(QStringLiteral("Tiparire toate dispozitiile ..."));
        HookModalTest h([&](QDialog& d) {
            Scrie(&d, QStringLiteral("txtDispozitieMin"), QStringLiteral("1"));
            Scrie(&d, QStringLiteral("txtDispozitieMax"), QStringLiteral("20"));
            Apasa(&d, QStringLiteral("cmdOK"));
        });
        MesajeScript m;
        ActiuneTiparireToateDispozitiile(nullptr, &meniu);
        QCOMPARE(m.texte(), QStringList{});
        QCOMPARE(meniu.text(), QStringLiteral("Tiparire toate dispozitiile ..."));
        QCOMPARE(m_lansator.deschise, QStringList{iesire(DocumentDispozitie)});
        QCOMPARE(document(DocumentDispozitie).count("\\page"), 1);
    }

    void toateDispozitiileOptiuneNerealizata()
    {
        HookModalTest h([&](QDialog& d) {
            Control<QRadioButton>(&d, QStringLiteral("opt(0)"))->setChecked(true);
            Apasa(&d, QStringLiteral("cmdOK"));
        });
        MesajeScript m;
        ActiuneToateDispozitiile(nullptr, nullptr);
        QCOMPARE(m.texte(), QStringList{QStringLiteral("Aceasta facilitate nu e realizata inca!")});
        QVERIFY(m_lansator.deschise.isEmpty());
    }

    void ferestraPrincipala()
    {
        // The buttons and menu entries of the main window reach their documents.
        MesajeScript m;
        frmMainNou w;
        w.show();
        for (const char* a : {"mnuFisa", "mnuAnexa2", "mnuToateDisp"})
            QVERIFY2(w.meniu(QString::fromLatin1(a))->isEnabled(), a);
        w.SelecteazaRand(1);
        w.SeteazaCerereCurenta(2);
        w.ReincarcaPanouri();
        w.findChild<QDateEdit*>(QStringLiteral("dtpDataFisa"))->setDate(QDate(2012, 3, 9));
        Apasa(&w, QStringLiteral("cmdDeclaratie"));
        w.meniu(QStringLiteral("mnuFisa"))->trigger();
        QTreeWidget* disp = w.panouri()->lvwDispozitii();
        QCOMPARE(disp->topLevelItemCount(), 1);
        disp->setCurrentItem(disp->topLevelItem(0));
        Apasa(&w, QStringLiteral("cmdPrintDisp"));
        QCOMPARE(m.texte(), QStringList{});
        QCOMPARE(m_lansator.deschise,
                 (QStringList{iesire(DocumentDeclaratie), iesire(DocumentFisa), iesire(DocumentDispozitie)}));
        QVERIFY(document(DocumentFisa).contains("Data: 09.03.2012"));
    }

private:
    struct Lansator : LansatorDocumente {
        QStringList deschise;
        bool deschideImplicit(const QString& cale) override
        {
            deschise << cale;
            return true;
        }
        bool porneste(const QString&, const QStringList&) override { return false; }
    } m_lansator;
    QString iesire(const QString& nume) const { return QDir(m_oficiu->folderProgram()).filePath(nume); }
    QByteArray document(const QString& nume) const
    {
        QFile f(iesire(nume));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
};

QTEST_MAIN(TestActiuniDocumente)
#include "tst_ActiuniDocumente.moc"
