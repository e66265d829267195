#pragma once
#include "database/BD.h"

#include <QString>
#include <QTemporaryDir>

// A temporary office, made by the same code as `alocatii-admin init`: a program folder with
// its settings file and an office folder with Tarnava.db, both removed afterwards. The
// process's state points at them and the shared connection is open on the database.
class OficiuTest {
public:
    explicit OficiuTest(bool deschideBD = true);
    ~OficiuTest();

    QString folderProgram() const;   // setariTarnava.ini lives here
    QString folderOficiu() const;    // CaleBD
    QString caleBD() const;
    QString fisierSetari() const;
    BD& bd() const { return BD::principala(); }

    // Writes the town hall data, as an office that typed its own.
    void scrieDatePrimarie() const;

    // Another workstation runs one statement on the same file, through its own connection.
    void executaDinAltCalculator(const QString& sql, const QVariantList& param = {}) const;

private:
    QTemporaryDir m_dir;
};
