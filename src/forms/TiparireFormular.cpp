#include "forms/TiparireFormular.h"

#include "common/Text.h"
#include "forms/PageSurface.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

QList<int> PaginiComanda(ComandaTiparire comanda, int tipFormular, int paginaCurenta)
{
    const int n = NumarPagini(tipFormular);
    QList<int> r;
    switch (comanda) {
    case ComandaTiparire::Pagina: r << paginaCurenta; break;
    case ComandaTiparire::Tot:
        for (int i = 0; i < n; ++i)
            r << i;
        break;
    case ComandaTiparire::Impar:
    case ComandaTiparire::Par:
        for (int i = comanda == ComandaTiparire::Impar ? 0 : 1; i < n; i += 2)
            r << i;
        break;
    }
    return r;
}

int NumarCopii(const QString& text)
{
    const qint64 n = ValoareIntreaga(text);
    return n > 0 ? int(qMin<qint64>(n, 999)) : 0;
}

void TiparesteFormular(PageSurface& s, ComandaTiparire comanda, int tipFormular, int paginaCurenta, int copii,
                       const DesenPagina& deseneaza)
{
    const QList<int> pagini = PaginiComanda(comanda, tipFormular, paginaCurenta);
    for (int copie = 0; copie < copii; ++copie) {
        for (int p : pagini) {
            deseneaza(s, p);
            if (comanda != ComandaTiparire::Pagina)
                s.NewPage();
        }
    }
    s.EndDocument();
}

bool ScriePdfFormular(const QString& fisier, int tipFormular, int mod, const SursaFormular& sursa,
                      const QList<int>& pagini, QString* eroare)
{
    QList<int> lista = pagini;
    if (lista.isEmpty())
        lista = PaginiComanda(ComandaTiparire::Tot, tipFormular, 0);
    QSaveFile f(fisier);
    if (!f.open(QIODevice::WriteOnly)) {
        if (eroare)
            *eroare = QStringLiteral("Fisierul %1 nu poate fi scris: %2").arg(fisier, f.errorString());
        return false;
    }
    {
        QPdfWriter w(&f);
        w.setPageSize(QPageSize(QPageSize::A4));
        w.setPageMargins(QMarginsF(0, 0, 0, 0));
        w.setResolution(600);
        w.setTitle(TitluFormular(tipFormular));
        w.setCreator(QStringLiteral("Alocatii"));
        QPainter p(&w);
        SuprafataPictor s(p, &w, false);
        for (int i = 0; i < lista.size(); ++i) {
            if (i > 0)
                s.NewPage();
            DeseneazaPagina(s, tipFormular, lista[i], mod, sursa);
        }
        s.EndDocument();
    }
    if (!f.commit()) {
        if (eroare)
            *eroare = QStringLiteral("Fisierul %1 nu poate fi scris: %2").arg(fisier, f.errorString());
        return false;
    }
    return true;
}

std::optional<QList<int>> CitestePagini(const QString& text, int tipFormular, QString* eroare)
{
    const int n = NumarPagini(tipFormular);
    QList<int> r;
    auto gresit = [&](const QString& parte) {
        if (eroare)
            *eroare = QStringLiteral("Pagina \"%1\" nu exista: formularul are paginile 1-%2.").arg(parte).arg(n);
        return std::nullopt;
    };
    for (const QString& parte : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QStringList capete = parte.trimmed().split(QLatin1Char('-'));
        if (capete.size() > 2 || !EsteNumarIntreg(capete.first()) || !EsteNumarIntreg(capete.last()))
            return gresit(parte);
        const int de = capete.first().trimmed().toInt(), pana = capete.last().trimmed().toInt();
        if (de < 1 || pana > n || de > pana)
            return gresit(parte);
        for (int p = de; p <= pana; ++p)
            r << p - 1;
    }
    if (r.isEmpty())
        return gresit(text);
    return r;
}
