#pragma once
#include "maintenance/CopieInFundal.h"

#include <QWidget>

class QLabel;
class QMainWindow;
class QProgressBar;

// The copy that the program makes at its start when the office has no good copy from today: on
// a thread of its own, so that the officer works meanwhile, with a progress bar in the main
// window's status bar. The end is said there; a failure also in a message. The program waits
// for a copy still running when it closes.
class frmCopieLaPornire : public QWidget {
    Q_OBJECT
public:
    // Placed in the status bar of `w` and started when a copy is needed; false when none is.
    static bool Porneste(QMainWindow& w);

    CopieInFundal& copie() { return m_copie; }

private:
    explicit frmCopieLaPornire(QWidget* parinte);
    void gata(bool buna, const QString& text);

    CopieInFundal m_copie;
    QLabel* m_lbl;
    QProgressBar* m_prg;
};
