#pragma once
#include "common/Bani.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

class BD;
class ValoriPermise;

// The outcome of one element of an import: what the editor would have shown and saved.
struct RezultatImport {
    int element = 0; // position from 1
    bool salvat = false;
    qint64 cerereId = 0; // the key, when saved
    Bani cuantum;        // the saved amount
    QStringList mesaje;  // every message of the checks and the save, in order
};

// How the import meets the other workstations.
struct OptiuniImport {
    // ReteaSetat: each save takes snet.txt in folderBlocare. When another workstation holds it
    // the import presses OK again, as an officer would, for as long as the connection waits
    // for a busy file (BD::asteptare).
    bool retea = false;
    QString folderBlocare;
};

// Adds applications from a JSON array (one object per application, keys named after the
// columns of Familii and Cereri that the editor fills, plus "Venituri", "Locuinte" and
// "Membrii"; a key of a computed column, or of one that no window writes, is refused) through the very
// same checks and save as the application editor, with `an` as the active year. Each element
// is its own transaction (a savepoint inside the caller's). Every member goes through the
// member editor's rules: the full CNP check (warnings), Data18Ani from the CNP when none is
// given, the fields of a known person that the element leaves out, the checks of its OK.
// Questions are answered Yes. peElement, when given, is called after each element.
// Every value is checked as the editor checks it (ValoriPermise): exactly as its column keeps
// it, a code of its field's list. A cause that will not go away (OpresteLucrul: a file busy
// past the wait, also the lock file with ReteaSetat, a file that cannot be written, a full
// disk, a server gone, an office moved to a server) stops the import at the element it met:
// Eroare with its number, naming that element, which is not saved; the elements before it
// stay as they were reported.
std::vector<RezultatImport> ImportaCereri(BD& bd, const QJsonArray& cereri, int an,
                                          const std::function<void(const RezultatImport&)>& peElement = {},
                                          const OptiuniImport& optiuni = {});

// The same import one element at a time, for a stream of elements that is never held whole
// (the demo office of any size): each element goes through the checks and the save of
// ImportaCereri, numbered from 1 in the order given. The elements are of the shape that
// VerificaFormaImport accepts; a cause that stops the import throws as there.
class ImportPeRand {
public:
    ImportPeRand(BD& bd, int an, const OptiuniImport& optiuni = {});
    ~ImportPeRand();
    ImportPeRand(const ImportPeRand&) = delete;
    ImportPeRand& operator=(const ImportPeRand&) = delete;

    RezultatImport importa(const QJsonObject& element);

private:
    BD& m_bd;
    int m_an;
    OptiuniImport m_optiuni;
    std::unique_ptr<ValoriPermise> m_permise;
    int m_nr = 0;
};

// The line of standard output of one element: {"element", "salvat", "CerereID", "Cuantum",
// "mesaje"}; CerereID and Cuantum are null when the element was not saved.
QJsonObject JsonRezultatImport(const RezultatImport& r);

// A malformed file is refused with a clear message before anything is written: the reason, or
// "" when the array has the expected shape.
QString VerificaFormaImport(const QJsonArray& cereri);
