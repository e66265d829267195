#include "maintenance/CopieInFundal.h"

#include "common/Eroare.h"

#include <QCoreApplication>
#include <QDir>

CopieInFundal::CopieInFundal(QObject* parinte) : QObject(parinte) {}

CopieInFundal::~CopieInFundal()
{
    if (m_fir) {
        m_fir->wait();
        delete m_fir;
    }
}

bool CopieInFundal::inCurs() const
{
    return m_fir != nullptr;
}

bool CopieInFundal::porneste(const LocCopii& loc, const QDateTime& acum)
{
    if (m_fir)
        return false;
    m_fir = QThread::create([this, loc, acum] {
        bool buna = false;
        QString text;
        try {
            const RezultatCopie r = FaCopie(loc, acum, [this](int p) {
                QMetaObject::invokeMethod(
                    this, [this, p] { emit progres(p); }, Qt::QueuedConnection);
            });
            buna = true;
            text = QStringLiteral("Copia de siguranta a datelor a fost facuta si verificata: %1 (%2 randuri).")
                       .arg(QDir::toNativeSeparators(r.fisier))
                       .arg(r.verificare.totalRanduri());
        } catch (const Eroare& e) {
            text = QStringLiteral("Copia de siguranta a datelor nu a fost facuta.\n") + e.text();
        } catch (const std::exception& e) {
            text = QStringLiteral("Copia de siguranta a datelor nu a fost facuta.\nEroare: ") +
                   QString::fromLocal8Bit(e.what());
        }
        QMetaObject::invokeMethod(
            this,
            [this, buna, text] {
                if (m_fir) {
                    m_fir->wait();
                    delete m_fir;
                    m_fir = nullptr;
                }
                emit gata(buna, text);
            },
            Qt::QueuedConnection);
    });
    m_fir->start(QThread::LowPriority);
    return true;
}

void CopieInFundal::asteapta()
{
    while (m_fir)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
}
