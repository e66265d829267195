#pragma once
#include "maintenance/CopiiOficiu.h"

#include <QObject>
#include <QThread>

// A copy of the office's data made on a thread of its own, so that the window that asked for
// it stays usable: the copy opens its own connection, reports its progress and says when it
// ends. One copy at a time per runner.
class CopieInFundal : public QObject {
    Q_OBJECT
public:
    explicit CopieInFundal(QObject* parinte = nullptr);
    // Waits for a copy still running: the program never leaves one half-made behind it.
    ~CopieInFundal() override;

    // False (and nothing started) while a copy runs.
    bool porneste(const LocCopii& loc, const QDateTime& acum);
    bool inCurs() const;
    // Until the copy ends and its signal has been delivered (for tests and the end of the program).
    void asteapta();

signals:
    void progres(int procent);
    // `buna`: the copy was made and passed its check; `text` says so, or why not, in words.
    void gata(bool buna, const QString& text);

private:
    QThread* m_fir = nullptr;
};
