#pragma once
#include <QString>
#include <QStringList>
#include <optional>

// Every message to the user goes through this interface. The desktop program shows message
// boxes, the command-line tool prints to standard error, and tests record what was said and
// script the answers. Logic never opens a window.
class Mesaje {
public:
    enum class Icon { Niciuna, Informatie, Intrebare, Exclamare, Critic };

    virtual ~Mesaje() = default;
    // A message with an OK button.
    virtual void arata(const QString& text, const QString& titlu, Icon icon) = 0;
    // A Yes/No question; true for Yes.
    virtual bool intreaba(const QString& text, const QString& titlu, Icon icon, bool implicitDa) = 0;
    // An input box; nothing when cancelled.
    virtual std::optional<QString> citeste(const QString& text, const QString& titlu, const QString& implicit) = 0;

    // The process's channel; a console one until the program installs its own.
    static Mesaje& curent();
    static void seteaza(Mesaje* m);
};

// The title of a message box that names none.
inline const QString TitluImplicit = QStringLiteral("Alocatii");

// Short forms of the calls that the routines make.
void Mesaj(const QString& text, Mesaje::Icon icon = Mesaje::Icon::Niciuna, const QString& titlu = TitluImplicit);
bool Intrebare(const QString& text, const QString& titlu = TitluImplicit, bool implicitDa = false);

// Prints every message to standard error and answers every question with its default.
class MesajeConsola : public Mesaje {
public:
    void arata(const QString& text, const QString& titlu, Icon icon) override;
    bool intreaba(const QString& text, const QString& titlu, Icon icon, bool implicitDa) override;
    std::optional<QString> citeste(const QString& text, const QString& titlu, const QString& implicit) override;
};

// Collects messages instead of showing them, for the command-line tool's JSON output.
// Questions are answered Yes, as an officer who goes on would.
class MesajeColectate : public Mesaje {
public:
    QStringList texte;
    void arata(const QString& text, const QString&, Icon) override { texte << text; }
    bool intreaba(const QString& text, const QString&, Icon, bool) override
    {
        texte << text;
        return true;
    }
    std::optional<QString> citeste(const QString&, const QString&, const QString& implicit) override
    {
        return implicit;
    }
};

// Installs a channel for as long as it lives.
class MesajeTemporare {
public:
    explicit MesajeTemporare(Mesaje& m);
    ~MesajeTemporare();
    MesajeTemporare(const MesajeTemporare&) = delete;
    MesajeTemporare& operator=(const MesajeTemporare&) = delete;

private:
    Mesaje* m_vechi;
};
