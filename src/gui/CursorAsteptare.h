#pragma once
#include "common/Mesaje.h"

// The wait cursor for as long as a long piece of work lasts (a document being built, pages
// being printed). A message said meanwhile (a missing template, a missing row) is shown with
// the ordinary cursor.
class CursorAsteptare : public Mesaje {
public:
    CursorAsteptare();
    ~CursorAsteptare() override;
    CursorAsteptare(const CursorAsteptare&) = delete;
    CursorAsteptare& operator=(const CursorAsteptare&) = delete;

    void arata(const QString& text, const QString& titlu, Icon icon) override;
    bool intreaba(const QString& text, const QString& titlu, Icon icon, bool implicitDa) override;
    std::optional<QString> citeste(const QString& text, const QString& titlu, const QString& implicit) override;

private:
    Mesaje& m_anterior;
};
