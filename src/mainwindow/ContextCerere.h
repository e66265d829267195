#pragma once
#include <QString>
#include <optional>

// What the case panels and the editors need to know of the main window's case list, without
// depending on the window itself: the selected row, the current application, the Adaug state.
class ContextCerere {
public:
    virtual ~ContextCerere() = default;
    // True when lvwCereri has no row.
    virtual bool ListaGoala() const = 0;
    // The CerereID of the selected row of lvwCereri, nothing when no row is selected.
    virtual std::optional<qint64> CerereSelectata() const = 0;
    // The text of the "Solicitant" column of the selected row.
    virtual QString SolicitantSelectat() const = 0;
    // The CerereID of the current record of RecCereri (the application last clicked), 0 when none.
    virtual qint64 CerereCurenta() const = 0;
    // Adaug: 0 none, 1 add, 2 edit. It outlives the action that set it.
    virtual int Adaug() const = 0;
    virtual void SeteazaAdaug(int adaug) = 0;
};
