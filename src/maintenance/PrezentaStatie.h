#pragma once
#include "database/BlocareRetea.h"

#include <QString>
#include <QStringList>

// The mark of a workstation at work in an office: a file statii/<workstation>-<process>.txt in
// the office folder, held locked for as long as the program runs. The operating system drops
// the lock when the program ends, also after a crash; a mark that nobody holds is stale.
class PrezentaStatie {
public:
    // Announces this workstation in the office folder; nothing when the folder cannot be
    // written (the office then simply does not see it).
    explicit PrezentaStatie(const QString& folderOficiu);
    ~PrezentaStatie();
    PrezentaStatie(const PrezentaStatie&) = delete;
    PrezentaStatie& operator=(const PrezentaStatie&) = delete;

    // The mark of this process, empty when it has none.
    static QString fisierPropriu();

private:
    BlocareRetea m_blocare;
    QString m_fisier;
};

// The other workstations at work in the office folder, by name; the stale marks are removed.
QStringList StatiiLaLucru(const QString& folderOficiu);
