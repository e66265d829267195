#include "DateTest.h"
#include "TestCuOficiu.h"
#include "applications/Cerere.h"
#include "applications/frmAddCerere.h"
#include "applications/frmAddMembru.h"
#include "decisions/frmAddAnchete.h"
#include "decisions/frmAddDispozitie.h"
#include "documents/frmAnexa2.h"
#include "maintenance/frmMentenanta.h"
#include "mainwindow/frmMainNou.h"
#include "gui/CampData.h"
#include "gui_Dialog.h"
#include "common/Ceas.h"

#include <QtTest>

using DateTest::CNPNascut;

// A date typed over the selected date field of each window, as a clerk types it: the whole
// date replaces the old one, in any of the forms the office writes; a text that is no date
// gives the old date back.
class TestCampData : public TestCuOficiu {
    Q_OBJECT
    void pregateste() override
    {
        Ceas::seteazaAzi(QDate(2021, 7, 23));
        // An application of 2012 with a child under 18 until 2033.
        DateTest::DosarCuMembri(m_oficiu->bd(), 1, {CNPNascut(QDate(1980, 1, 1), 1), CNPNascut(QDate(2015, 5, 5), 2)});
        m_cerere = Cerere{};
    }

private slots:
    void dataTastataPesteSelectie_data()
    {
        QTest::addColumn<QString>("fereastra");
        QTest::addColumn<QString>("camp");
        QTest::addColumn<QDate>("inainte");  // invalid: an empty field
        QTest::addColumn<QString>("tastat"); // then Tab
        QTest::addColumn<QDate>("dupa");

        const QDate vechi(2021, 7, 23);
        const QDate martie(2020, 3, 1);
        QTest::newRow("cerere, data cererii, cu puncte") << "cerere"
                                                         << "dtpData(0)" << vechi << "01.03.2020" << martie;
        QTest::newRow("cerere, data starii goala, fara zerouri") << "cerere"
                                                                 << "dtpData(1)" << QDate() << "1.3.2020" << martie;
        QTest::newRow("membru, data eliberarii, numai cifre") << "membru"
                                                              << "dtpData(0)" << vechi << "01032020" << martie;
        QTest::newRow("membru, data 18 ani goala, cu bare") << "membru"
                                                            << "dtpData(1)" << QDate() << "1/3/2020" << martie;
        QTest::newRow("membru, data starii") << "membru"
                                             << "dtpData(2)" << vechi << "01.03.2020" << martie;
        QTest::newRow("dispozitie") << "dispozitie"
                                    << "dtpData" << vechi << "1.3.2020" << martie;
        QTest::newRow("ancheta") << "ancheta"
                                 << "dtpData" << vechi << "01032020" << martie;
        QTest::newRow("zi care nu exista: ramane data veche") << "dispozitie"
                                                              << "dtpData" << vechi << "31.02.2020" << vechi;
        QTest::newRow("an neterminat: ramane data veche") << "ancheta"
                                                          << "dtpData" << vechi << "1.3.20" << vechi;
        QTest::newRow("camp gol, data neterminata: ramane gol") << "cerere"
                                                                << "dtpData(1)" << QDate() << "0103" << QDate();
        QTest::newRow("fereastra principala, data fisei") << "principala"
                                                          << "dtpDataFisa" << vechi << "1.3.2020" << martie;
        QTest::newRow("mentenanta, data dispozitiei goala") << "mentenanta"
                                                            << "dtp" << QDate() << "01.03.2020" << martie;
        QTest::newRow("tiparire dispozitii, data cererii") << "anexa2"
                                                           << "dtpData" << vechi << "01032020" << martie;
    }

    void dataTastataPesteSelectie()
    {
        QFETCH(QString, fereastra);
        QFETCH(QString, camp);
        QFETCH(QDate, inainte);
        QFETCH(QString, tastat);
        QFETCH(QDate, dupa);

        std::unique_ptr<QWidget> f;
        if (fereastra == QLatin1String("cerere"))
            f = std::make_unique<frmAddCerere>(nullptr, 1);
        else if (fereastra == QLatin1String("membru"))
            f = std::make_unique<frmAddMembru>(nullptr, m_cerere, 1);
        else if (fereastra == QLatin1String("dispozitie"))
            f = std::make_unique<frmAddDispozitie>(nullptr, 1, 1);
        else if (fereastra == QLatin1String("ancheta"))
            f = std::make_unique<frmAddAnchete>(nullptr, 1, 1);
        else if (fereastra == QLatin1String("principala"))
            f = std::make_unique<frmMainNou>();
        else if (fereastra == QLatin1String("anexa2"))
            f = std::make_unique<frmAnexa2>();
        else
            f = std::make_unique<frmMentenanta>();
        f->show();
        if (auto* m = qobject_cast<frmMentenanta*>(f.get()))
            m->AlegePagina(1); // the allotment of disposition numbers
        f->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(f.get()));

        auto* d = Control<CampData>(f.get(), camp);
        QVERIFY(d);
        d->seteazaData(inainte);
        d->setFocus();
        QTest::keyClick(d, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(d, tastat);
        QTest::keyClick(d, Qt::Key_Tab);
        QCOMPARE(d->data(), dupa);
        // The box shows the date the field holds, not what was typed.
        QCOMPARE(d->text(), dupa.isValid() ? dupa.toString(QStringLiteral("dd.MM.yyyy")) : QStringLiteral(" "));
    }

private:
    Cerere m_cerere;
};

QTEST_MAIN(TestCampData)
#include "tst_CampData.moc"
