#include "preluare/CoduriPreluate.h"

#include "preluare/Preluare.h"
#include "database/ActualizareBD.h"
#include "database/Schema.h"
#include "common/Mesaje.h"

CoduriPreluate::CoduriPreluate(const std::vector<TabelaPreluata>& liste, const QString& seminte) : m_permise(m_bd)
{
    m_bd.deschide(QStringLiteral(":memory:"), true);
    {
        Tranzactie t(m_bd);
        CreeazaSchema(m_bd);
        for (const TabelaPreluata& tab : liste)
            if (tab.nume == QLatin1String("DateGen") || tab.nume == QLatin1String("ListaVenituri"))
                ScrieTabelaPreluata(m_bd, tab);
        t.confirma();
    }
    // What the upgrade says of these lists is said again, and kept, by the real write.
    MesajeColectate tacut;
    const MesajeTemporare m(tacut);
    ActualizeazaBD(m_bd, seminte);
}
