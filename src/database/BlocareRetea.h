#pragma once
#include <QString>

// The office's lock file: snet.txt in the database folder, held exclusively across processes
// and workstations for the length of one application save (with ReteaSetat) or of the move of
// the office to a server. A second attempt fails at once (it never waits); the operating
// system releases the lock when its holder ends, also after a crash. The lock never depends on
// the file's content; its holder writes its name there (workstation, user, process, time), so
// that a refused attempt can say who holds it. The file is created when missing.
class BlocareRetea {
public:
    BlocareRetea() = default;
    ~BlocareRetea();
    BlocareRetea(const BlocareRetea&) = delete;
    BlocareRetea& operator=(const BlocareRetea&) = delete;

    // Takes the lock in `folder`; false when another process (or another BlocareRetea)
    // holds it, or the file cannot be opened.
    bool incearca(const QString& folder);
    // The same exclusive hold on any file (created when missing): the copies folder's own lock,
    // the mark of a workstation at work in the office.
    bool incearcaFisier(const QString& cale);
    void elibereaza();
    bool detinut() const;

    static QString fisier(const QString& folder); // folder + "/snet.txt"
    // Who holds (or last held) the lock in `folder`, as its holder wrote it; "" when unknown.
    static QString detinator(const QString& folder);

private:
#ifdef _WIN32
    void* m_h = nullptr;
#else
    int m_fd = -1;
#endif
};

inline const QString MesajBlocareRetea =
    QStringLiteral("Tocmai se salveaza pe alt calculator. Asteptati putin si dati 'OK' din nou!");
