#include "admin/Comenzi.h"
#include "amounts/CNP.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"

#include <QJsonDocument>
#include <QJsonObject>

static int ruleaza(const QStringList& arg)
{
    for (const QString& c : arg) {
        QJsonObject o;
        o.insert(QStringLiteral("cnp"), c);
        const QString motiv = MotivCNPInvalid(c);
        o.insert(QStringLiteral("valid"), ValidareCNP(c, false));
        o.insert(QStringLiteral("motiv"), motiv);
        o.insert(QStringLiteral("sex"), SexDinCNP(c));
        QString nastere, data18, text;
        if (CNPDe13Cifre(c)) {
            nastere = TextData(DataNasteriiDinCNP(c, false));
            data18 = TextData(DataNasteriiDinCNP(c, true));
            try {
                text = TextDataNasteriiDinCNP(c);
            } catch (const Eroare& e) {
                Mesaj(e.text());
            }
        }
        o.insert(QStringLiteral("dataNasterii"), nastere);
        o.insert(QStringLiteral("data18"), data18);
        o.insert(QStringLiteral("text"), text);
        ScrieJson(o);
    }
    return 0;
}

static ComandaInregistrata cnp(QStringLiteral("cnp"),
                               QStringLiteral("cnp CNP...            verifica fiecare CNP si scrie o linie JSON"),
                               ruleaza);
