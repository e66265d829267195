#include "AltCalculator.h"

#include "database/BD.h"

#include <QDeadlineTimer>
#include <condition_variable>
#include <mutex>
#include <thread>

struct AltCalculator::Stare {
    std::mutex mutex;
    std::condition_variable semnal;
    bool tinut = false;
    bool eliberat = false;
    QString eroare;
    std::thread fir;
};

AltCalculator::AltCalculator(const QString& caleBD, Blocare blocare, int ms) : m(std::make_unique<Stare>())
{
    Stare* s = m.get();
    s->fir = std::thread([s, caleBD, blocare, ms] {
        BD bd;
        try {
            bd.deschide(caleBD);
            if (blocare == Blocare::Scriere) {
                bd.executa(QStringLiteral("BEGIN EXCLUSIVE"));
            } else {
                bd.executa(QStringLiteral("BEGIN"));
                bd.scalar(QStringLiteral("SELECT COUNT(*) FROM Cereri"));
            }
        } catch (const std::exception& e) {
            std::lock_guard<std::mutex> l(s->mutex);
            s->eroare = QString::fromLocal8Bit(e.what());
        }
        {
            std::unique_lock<std::mutex> l(s->mutex);
            s->tinut = true;
            s->semnal.notify_all();
            s->semnal.wait_for(l, std::chrono::milliseconds(ms), [s] { return s->eliberat; });
        }
        if (bd.deschisa())
            bd.executa(QStringLiteral("ROLLBACK"));
    });
    std::unique_lock<std::mutex> l(s->mutex);
    s->semnal.wait(l, [s] { return s->tinut; });
    if (!s->eroare.isEmpty())
        qFatal("the other workstation could not lock the file: %s", qPrintable(s->eroare));
}

AltCalculator::~AltCalculator()
{
    elibereaza();
}

void AltCalculator::elibereaza()
{
    {
        std::lock_guard<std::mutex> l(m->mutex);
        m->eliberat = true;
    }
    m->semnal.notify_all();
    if (m->fir.joinable())
        m->fir.join();
}
