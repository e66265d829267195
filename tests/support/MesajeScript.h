#pragma once
#include "common/Mesaje.h"

#include <QList>
#include <QStringList>

// Records every message and question, and answers from a script: the next Yes/No, the next
// input text. Installed for as long as it lives. A question with no scripted answer gets its
// default button and is recorded all the same. An answer still unused when it goes away fails
// the test: the question it was written for was never asked.
class MesajeScript : public Mesaje {
public:
    struct Intrare {
        QString text;
        QString titlu;
        Icon icon;
        bool intrebare;
        // The wait cursor was on while the message was on screen: the hourglass over a box
        // that waits for the officer.
        bool subAsteptare = false;
    };

    MesajeScript();
    ~MesajeScript() override;

    void raspunde(bool da) { m_raspunsuri << da; }
    void introduce(const QString& text) { m_texte << text; }

    QList<Intrare> intrari;
    QStringList texte() const; // every text, in order
    QString ultimul() const;   // the last text, "" when nothing was said
    void goleste() { intrari.clear(); }

    void arata(const QString& text, const QString& titlu, Icon icon) override;
    bool intreaba(const QString& text, const QString& titlu, Icon icon, bool implicitDa) override;
    std::optional<QString> citeste(const QString& text, const QString& titlu, const QString& implicit) override;

private:
    QList<bool> m_raspunsuri;
    QStringList m_texte;
    Mesaje* m_vechi;
};
