#include "preluare/FormaDosar.h"

#include "database/BD.h"
#include "database/Schema.h"
#include "database/ValoriColoane.h"
#include "common/Bani.h"
#include "common/Data.h"
#include "common/Eroare.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

QJsonValue valoare(const Camp* c, const QVariant& v)
{
    if (!c) {
        if (v.typeId() == QMetaType::QString || v.typeId() == QMetaType::QByteArray)
            return v.toString();
        return v.toDouble();
    }
    switch (c->tip) {
    case TipCamp::Data: {
        const QDate d = DataDinBD(v);
        return d.isValid() ? QJsonValue(d.toString(Qt::ISODate) + QStringLiteral(" 00:00:00")) : QJsonValue();
    }
    case TipCamp::DaNu: return v.toString() == QLatin1String("true") || v.toLongLong() != 0;
    case TipCamp::Text:
    case TipCamp::Memo: return v.toString();
    case TipCamp::Moneda: return Bani::dinVariant(v).toDouble();
    case TipCamp::Octet:
    case TipCamp::Intreg:
    case TipCamp::Lung: return double(v.toLongLong());
    default: return v.toDouble();
    }
}

} // namespace

void ScrieFormaDosar(const BD& bd, const QString& folder)
{
    QDir().mkpath(folder);
    for (const QString& tabela : bd.conexiune().tables()) {
        const Tabela* schema = GasesteTabela(tabela);
        QStringList coloane;
        for (const QString& c : bd.coloane(tabela))
            if (c.compare(IdentitateRandServer, Qt::CaseInsensitive) != 0)
                coloane << c;
        QString ordine;
        if (schema)
            ordine =
                schema->cheiePrimara.isEmpty() ? bd.identitateRand() : schema->cheiePrimara.join(QStringLiteral(", "));
        QSaveFile f(QDir(folder).filePath(tabela + QStringLiteral(".json")));
        if (!f.open(QIODevice::WriteOnly))
            throw Eroare(75, QStringLiteral("Fisierul %1 nu poate fi scris.").arg(f.fileName()),
                         QStringLiteral("preia"));
        Rezultat r = bd.selecteaza(QStringLiteral("SELECT %1 FROM %2%3")
                                       .arg(coloane.join(QStringLiteral(", ")), tabela,
                                            ordine.isEmpty() ? QString() : QStringLiteral(" ORDER BY ") + ordine));
        std::vector<const Camp*> campuri;
        for (const QString& c : coloane)
            campuri.push_back(GasesteCamp(tabela, c));
        while (r.next()) {
            QJsonObject o;
            for (int i = 0; i < coloane.size(); ++i) {
                const QVariant v = r.valoare(i);
                if (v.isNull() || !v.isValid())
                    continue;
                const QJsonValue j = valoare(campuri[size_t(i)], v);
                if (!j.isNull())
                    o.insert(coloane[i], j);
            }
            f.write(QJsonDocument(o).toJson(QJsonDocument::Compact));
            f.write("\n");
        }
        if (!f.commit())
            throw Eroare(75, QStringLiteral("Fisierul %1 nu poate fi scris.").arg(f.fileName()),
                         QStringLiteral("preia"));
    }
}
