// Annexes 3 and 4: the monthly statements sent on by the town hall, one row per application
// whose status changed in the active month. Kinds 1, 3 and 4 are Annex 3, kinds 2, 5 and 6 Annex 4.
#include "reports/Anexe.h"

#include "common/Bani.h"
#include "common/Mesaje.h"
#include "common/Text.h"
#include "database/BD.h"

namespace {

constexpr int H = 13; // the first head row

const double Latimi[] = {0, 30, 90, 130, 105, 90, 40, 40, 40, 40, 40, 40};
const int Alinieri[] = {0, 14, 6, 6, 10, 6, 14, 10, 10, 10, 14, 10, 6, 10, 10, 14, 10, 14, 14, 14, 14, 14, 14};
const double LatimiA3[] = {100, 50, 50, 60, 60, 60, 45, 45, 45, 45, 45}; // columns 12-22
const double LatimiA4[] = {100, 50, 50, 60, 60, 60, 58, 55, 45, 0, 0};
const double LatimiA4Toate[] = {100, 50, 50, 60, 60, 60, 58, 55, 45, 45, 45};
// The workbook's widths in characters; -1 leaves the sheet's default.
const double FoaieComun[] = {0, 4, 12, 17.3, 14, 12, 5, 5, 5, 5, 5, 5, 13.3, 6.6, 6.6, 8, 8, 8}; // columns 1-17
const double FoaieA3[] = {6, 6, 6, -1, -1};                                                      // columns 18-22
const double FoaieA4[] = {7.7, 7.3, 6, 0, 0};
const double FoaieA4Toate[] = {7.7, 7.3, 6, 6, 6};

bool anexa3(int tip)
{
    return tip == 1 || tip == 3 || tip == 4;
}

QString testStare(int tip)
{
    switch (tip) {
    case 1: return QStringLiteral("C.Stare IN (2,6)");
    case 3: return QStringLiteral("C.Stare = 2");
    case 4: return QStringLiteral("C.Stare = 6");
    case 2: return QStringLiteral("C.Stare IN (4,7,8)");
    case 5: return QStringLiteral("C.Stare = 3");
    default: return QStringLiteral("C.Stare IN (3,4,6,7,8)");
    }
}

void antetCelula(ReportGrid& g, int r1, int c1, int r2, int c2, const QString& text)
{
    g.MergeRange(r1, c1, r2, c2);
    g.SetCellText(r1, c1, text);
}

void blocIdentificare(ReportGrid& g, int tip, const std::optional<QHash<QString, QString>>& primarie)
{
    g.MergeRange(1, 5, 1, 10);
    g.SetCellAlign(1, 5, ReportGrid::Centru);
    g.SetCellFontSize(1, 5, 12);
    g.SetCellText(1, 5, QStringLiteral("BORDEROU"));
    g.MergeRange(2, 5, 2, tip == 6 ? 12 : 10);
    g.SetCellAlign(2, 5, ReportGrid::Centru);
    g.SetCellText(2, 5,
                  anexa3(tip) ? QStringLiteral("DOCUMENTE STABILIRE PLATI DREPTURI NOI")
                  : tip == 2  ? QStringLiteral("DISPOZITII MODIFICARE CUANTUM/INCETARE DREPT")
                  : tip == 5  ? QStringLiteral("DISPOZITII SUSPENDARE DREPT")
                              : QStringLiteral("DISPOZITII DE MODIFICARE/INCETARE/SUSPENDARE/RELUARE DREPT"));
    for (int r : {1, 2}) {
        g.MergeRange(r, 17, r, 19);
        g.SetCellFontSize(r, 17, 6);
    }
    g.SetCellText(1, 17, anexa3(tip) ? QStringLiteral("Anexa nr.3") : QStringLiteral("Anexa nr.4"));
    g.SetCellText(2, 17, QStringLiteral("la normele metodologice"));

    const QStringList etichete{QStringLiteral("PRIMARIA"),   QStringLiteral("JUDET"),
                               QStringLiteral("ADRESA"),     QStringLiteral("CUI"),
                               QStringLiteral("COD POSTAL"), QStringLiteral("OFICIU POSTAL")};
    for (int i = 0; i < etichete.size(); ++i)
        g.SetCellText(2 + i, 2, etichete[i]);
    for (int m = ReportGrid::MargStanga; m <= ReportGrid::InteriorOrizontal; ++m)
        g.RangeBorder(2, 2, 7, 3, m, ReportGrid::Groasa);
    g.SetCellText(9, 2, QStringLiteral("Nr."));
    g.SetCellText(10, 2, QStringLiteral("Data"));
    g.MergeRange(11, 2, 11, 3);
    g.SetCellAlign(11, 2, ReportGrid::CentruSus);
    g.SetCellText(11, 2, QStringLiteral("INSUSIT PRIMAR"));
    g.MergeRange(7, 8, 7, 11);
    g.SetCellAlign(7, 8, ReportGrid::Centru);
    g.SetCellText(7, 8, QStringLiteral("DELEGAT PRIMARIE"));
    // "Preume" is the head the county's form has.
    const QStringList delegat{QStringLiteral("Nume"), QStringLiteral("Preume"), QStringLiteral("CNP")};
    for (int i = 0; i < 3; ++i) {
        g.MergeRange(8 + i, 8, 8 + i, 9);
        g.SetCellAlign(8 + i, 8, ReportGrid::Stanga);
        g.SetCellText(8 + i, 8, delegat[i]);
        g.MergeRange(8 + i, 10, 8 + i, 11);
    }
    for (int m : {ReportGrid::MargStanga, ReportGrid::MargDreapta, ReportGrid::MargSus, ReportGrid::MargJos})
        g.RangeBorder(7, 8, 10, 11, m, ReportGrid::Groasa);
    g.RangeBorder(7, 9, 10, 11, ReportGrid::InteriorVertical, ReportGrid::Groasa);
    g.RangeBorder(7, 8, 10, 11, ReportGrid::InteriorOrizontal, ReportGrid::Groasa);

    if (!primarie) {
        Mesaj(MesajFaraPrimarie);
        return;
    }
    const auto v = [&](const char* c) { return primarie->value(QLatin1String(c)); };
    QString adresa = v("Localitate");
    if (!v("Str").isEmpty())
        adresa += QStringLiteral(", str. ") + v("Str");
    if (!v("Nr").isEmpty())
        adresa += QStringLiteral(", nr. ") + v("Nr");
    const QStringList valori{v("Localitate"), v("Judet"), adresa, v("CodFiscal"), v("CodPostal"), v("OfPostal")};
    for (int i = 0; i < valori.size(); ++i)
        g.SetCellText(2 + i, 3, valori[i]);
    QString prenume, nume;
    ImparteLaSpatiu(v("AsSocial"), nume, prenume);
    g.SetCellText(8, 10, nume);
    g.SetCellText(9, 10, prenume);
    g.SetCellText(10, 10, v("CNPAsSocial"));
}

void antet(ReportGrid& g, int tip)
{
    const bool a3 = anexa3(tip);
    const int ultim = a3 ? H + 1 : H + 2;
    antetCelula(g, H, 1, ultim, 1, QStringLiteral("Nr. Crt."));
    antetCelula(g, H, 2, H, 4, QStringLiteral("Titular"));
    antetCelula(g, H, 5, H, 14, QStringLiteral("Adresa"));
    const QStringList capete{QStringLiteral("Nume"),      QStringLiteral("Prenume"),    QStringLiteral("CNP"),
                             QStringLiteral("Strada"),    QStringLiteral("Nr."),        QStringLiteral("Bloc"),
                             QStringLiteral("Sc."),       QStringLiteral("Et."),        QStringLiteral("Ap."),
                             QStringLiteral("Sect"),      QStringLiteral("Localitate"), QStringLiteral("Of Postal"),
                             QStringLiteral("Cod Postal")};
    for (int i = 0; i < capete.size(); ++i)
        antetCelula(g, H + 1, 2 + i, ultim, 2 + i, capete[i]);
    antetCelula(g, H, 15, ultim, 15, QStringLiteral("Nr. copii"));
    antetCelula(g, H, 16, ultim, 16, QStringLiteral("Tip familie*"));
    if (a3) {
        antetCelula(g, H, 17, ultim, 17, QStringLiteral("Venit net/persoana"));
        antetCelula(g, H, 18, ultim, 18, QStringLiteral("Nr inreg cerere"));
        antetCelula(g, H, 19, ultim, 19, QStringLiteral("Nr. dispozitie"));
        antetCelula(g, H, 20, ultim, 20, QStringLiteral("Cuantum lunar alocatie"));
        antetCelula(g, H, 21, H, 22, QStringLiteral("Documente transmise**"));
        g.SetCellText(H + 1, 21, QStringLiteral("dispozitie"));
        g.SetCellText(H + 1, 22, QStringLiteral("cerere"));
    } else {
        antetCelula(g, H, 17, ultim, 17, QStringLiteral("Nr dispozitie"));
        antetCelula(g, H, 18, H, tip == 6 ? 22 : 20, QStringLiteral("Tip dispozitie"));
        antetCelula(g, H + 1, 18, H + 1, 19, QStringLiteral("Modificare cuantum"));
        g.SetCellText(H + 2, 18, QStringLiteral("Cuantum vechi(lei)"));
        g.SetCellText(H + 2, 19, QStringLiteral("Cuantum nou(lei)"));
        antetCelula(g, H + 1, 20, H + 2, 20,
                    tip == 5 ? QStringLiteral("Suspendare drept") : QStringLiteral("Incetare drept"));
        if (tip == 6) {
            antetCelula(g, H + 1, 21, H + 2, 21, QStringLiteral("Suspendare drept"));
            antetCelula(g, H + 1, 22, H + 2, 22, QStringLiteral("Reluare drept"));
        }
    }
    g.RangeAlign(H, 1, ultim, 22, ReportGrid::Centru);
    g.RangeBold(H, 1, ultim, 22, true);
    g.RangeWrap(H, 1, ultim, 22, true);
    g.SetRanduriAntet(H, ultim);
}

// A stored amount as the statement shows it: the shortest text of the number.
QString suma(const QVariant& v)
{
    return v.isNull() ? QString() : Bani::dinVariant(v).text();
}

} // namespace

int TipAnexa(int index)
{
    static const int tipuri[] = {1, 3, 4, 2, 5, 6};
    return index >= 9 && index <= 14 ? tipuri[index - 9] : 0;
}

QString SqlAnexa(const BD& bd, int tip, const SelectieRaport& sel, bool pentruExport)
{
    // The latest disposition and the street's postal data come with the row.
    return QStringLiteral("SELECT M.Nume, M.Prenume, M.CNP, F.Strada, F.Nr, F.Bloc, F.Sc, F.Etaj, F.Ap, F.Localitate, "
                          "C.NrCopii, C.TipCerere, C.VenitpeMembru, C.NrCerere, C.Cuantum, C.Stare, "
                          "D.DispozitieID, D.NrDisp, D.CuantumVechi, D.Cuantum, S.StradaID, S.OfPostal, S.CodPostal "
                          "FROM Cereri C INNER JOIN Familii F ON F.FamilieID = C.FamilieID "
                          "INNER JOIN Membrii M ON C.MembruID1 = M.MembruID "
                          "LEFT JOIN Dispozitii D ON D.DispozitieID = (SELECT D2.DispozitieID FROM Dispozitii D2 "
                          "WHERE D2.CerereID = C.CerereID ORDER BY D2.DataDisp DESC, D2.DispozitieID DESC LIMIT 1) "
                          "LEFT JOIN Strazi S ON S.StradaID = (SELECT S2.StradaID FROM Strazi S2 "
                          "WHERE LOWER(S2.Denumire) = LOWER(F.Strada) ORDER BY S2.StradaID LIMIT 1) WHERE ") +
           testStare(tip) + QStringLiteral(" AND ") + bd.luna(QStringLiteral("C.DataStare")) +
           QStringLiteral(" = ? AND ") + bd.an(QStringLiteral("C.DataStare")) + QStringLiteral(" = ?") +
           OrdineCuIntroducere(ClauzaOrdonare(sel.ord1, sel.ord2, true, pentruExport ? nullptr : &bd));
}

void ConstruiesteAnexa(const BD& bd, int tip, const SelectieRaport& sel, ReportGrid& g, bool pentruExport)
{
    ReseteazaGrid(g, 14);
    // The statement's own font, until the next report resets the grid.
    g.SetDefaultFont(QStringLiteral("Arial"), 8, false);
    g.SetDefaultRowHeight(14);
    const bool a3 = anexa3(tip);
    g.SetCols(23);
    g.SetRows(a3 ? H + 2 : H + 3);
    const double* latimi = a3 ? LatimiA3 : tip == 6 ? LatimiA4Toate : LatimiA4;
    const double* foaie = a3 ? FoaieA3 : tip == 6 ? FoaieA4Toate : FoaieA4;
    for (int c = 1; c <= 22; ++c) {
        if (pentruExport)
            g.SetColumnWidth(c, c <= 17 ? FoaieComun[c] : foaie[c - 18]);
        else
            g.SetColumnWidth(c, c <= 11 ? Latimi[c] : latimi[c - 12]);
        g.SetColumnAlign(c, Alinieri[c]);
    }
    // Counts and numbers, and the amounts: money in Annex 3's income and allowance, in Annex 4's
    // old and new allowance.
    for (int c : {1, 15, 16, 18, 19})
        g.SetColumnContent(c, ReportGrid::Intreg);
    g.SetColumnContent(17, a3 ? ReportGrid::Suma : ReportGrid::Intreg);
    if (a3)
        g.SetColumnContent(20, ReportGrid::Suma);
    else
        for (int c : {18, 19})
            g.SetColumnContent(c, ReportGrid::Suma);
    if (pentruExport) {
        g.SetUnitatiFoaie(true);
        ReportGrid::PaginaSetata p;
        p.zoom = 70;
        g.SetPageSetup(p);
    }
    g.SetRowHeight(1, 30);
    g.SetRowHeight(11, 100);
    g.SetRowHeight(H, 36);
    g.SetRowHeight(g.Rows() - 1, 36);

    blocIdentificare(g, tip, CitesteRandPrimarie(bd));
    antet(g, tip);
    const int ultimAntet = g.Rows() - 1;

    Rezultat r = bd.selecteaza(SqlAnexa(bd, tip, sel, pentruExport), {sel.luna, sel.an});
    // With no disposition the amounts, and with no known street the postal data, stay those
    // of the row before: the statement carries them over.
    QString nrDisp, vechi, nou, ofPostal, codPostal;
    int nr = 1;
    const auto text = [&](int i) { return r.valoare(i).toString(); };
    while (r.next()) {
        if (!r.valoare(16).isNull()) {
            nrDisp = r.valoare(17).isNull() ? QString() : TextNumar(r.valoare(17).toDouble());
            vechi = r.valoare(18).toDouble() != 0 ? TextNumar(r.valoare(18).toDouble()) : QString();
            nou = r.valoare(19).isNull() ? QString() : TextNumar(r.valoare(19).toDouble());
        } else {
            nrDisp.clear();
        }
        if (!r.valoare(20).isNull()) {
            ofPostal = text(21);
            codPostal = text(22);
        }
        // The statement's family codes are the reverse of the office's kinds.
        const int tipCerere = r.valoare(11).toInt();
        const QString familie = tipCerere == 1 ? QStringLiteral("2") : tipCerere == 2 ? QStringLiteral("1") : QString();
        QStringList celule{
            QString::number(nr), text(0), text(1),  text(2),   text(3),  text(4), text(5), text(6), text(7), text(8),
            QString(),           text(9), ofPostal, codPostal, text(10), familie};
        const int stare = r.valoare(15).toInt();
        if (a3) {
            celule << suma(r.valoare(12)) << text(13) << nrDisp << suma(r.valoare(14)) << QStringLiteral("X")
                   << QStringLiteral("X");
        } else if (stare == 7 || stare == 8) {
            celule << nrDisp << vechi << nou;
        } else {
            celule << nrDisp;
            int coloanaX = 0;
            if (tip != 6 && (stare == 3 || stare == 4))
                coloanaX = 20;
            else if (tip == 6)
                coloanaX = stare == 4 ? 20 : stare == 3 ? 21 : stare == 6 ? 22 : 0;
            if (coloanaX) {
                while (celule.size() < coloanaX - 1)
                    celule << QString();
                celule << QStringLiteral("X");
            }
        }
        g.AddRow(celule);
        ++nr;
    }
    g.AddRow();
    const int ultimul = g.Rows() - 1;
    ChenarTabel(g, H, ultimul, 22);
    g.RangeBorder(ultimAntet, 1, ultimAntet, 22, ReportGrid::MargJos, ReportGrid::Groasa);
    for (int c : {1, 4, 14})
        g.RangeBorder(H, c, ultimul, c, ReportGrid::MargDreapta, ReportGrid::Groasa);
    g.Refresh();
    g.SetPainting(true);
}
