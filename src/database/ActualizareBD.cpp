#include "database/ActualizareBD.h"

#include "database/BD.h"
#include "database/DefinitiiBD.h"
#include "database/ListeCod.h"
#include "database/Schema.h"
#include "common/Data.h"
#include "common/Eroare.h"
#include "common/Mesaje.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <functional>
#include <vector>

namespace {

// One step on the columns of a table; the type of an added column is the one of the schema.
struct Pas {
    enum Fel { Adauga, Sterge, Redenumeste, RecalculVenit } fel;
    const char* coloana;
    const char* nou = nullptr;
};

struct GrupColoane {
    const char* tabela;
    std::vector<Pas> pasi;
};

Pas A(const char* c)
{
    return {Pas::Adauga, c};
}
Pas S(const char* c)
{
    return {Pas::Sterge, c};
}
Pas R(const char* vechi, const char* nou)
{
    return {Pas::Redenumeste, vechi, nou};
}

// The columns that older releases lacked or named otherwise, table by table, in the order in
// which the releases brought them.
const std::vector<GrupColoane>& grupuriColoane()
{
    static const std::vector<GrupColoane> g = {
        {"Familii", {A("NrDosar"), A("CodDosar"), A("Bloc"), A("Etaj"), A("Telefon"), A("Mobil")}},
        {"DatePrimarie",
         {A("CodFiscal"), A("AsSocial"), S("Tribunal"), A("TipLocalitate"), A("CodJudet"), A("Email"), A("OfPostal"),
          A("CodPostal"), A("CNPAsSocial"), A("Politia")}},
        {"DateGen", {A("CuloareBkg")}},
        {"Cereri",
         {A("MotivStare"),
          A("DataStare"),
          A("VenitTotal"),
          A("VenitpeMembru"),
          S("PlataNatura"),
          A("ReprLegal"),
          A("ModPlata"),
          A("NumeTitularCont"),
          A("Cont"),
          A("Banca"),
          A("Gospodarire"),
          A("LunaGospod"),
          A("GospodLoc"),
          A("RegimJuridLoc"),
          A("TipIncalzire"),
          A("TipLocuinta"),
          A("Bife"),
          A("TipCerere"),
          {Pas::RecalculVenit, "VenitPermanent"},
          S("VenitPermanent"),
          S("VenitVanzari"),
          S("VenitAlte"),
          A("LuniRetro")}},
        {"CereriMembrii",
         {R("CodRudenie", "RudenieID"),
          A("CetatenieID"),
          A("TaraCetatenie"),
          A("ResedintaID"),
          A("LocResedinta"),
          A("TaraResedinta"),
          A("StCivila"),
          A("Studii"),
          A("DrAsSociala"),
          R("CodOcupatie", "OcupatieID"),
          A("LucreazaAfara"),
          A("UScolara"),
          A("Clasa"),
          A("RealizeazaVenit"),
          A("Stare"),
          A("MotivStare"),
          A("DataStare"),
          S("CodVenit"),
          S("VenitPermanent"),
          S("CodVenitAlte"),
          S("VenitAlte")}},
        {"Membrii", {A("TipAct"), A("Eliberat"), A("DataElib"), A("Politie")}},
        {"Dispozitii", {A("NumeTitularVechi"), A("DataStop")}},
        {"Barem", {A("DataInceput")}},
    };
    return g;
}

// The tables that older releases lacked: the first column, the columns added before the
// relations, the relations, the columns after them.
struct TabelaNoua {
    const char* tabela;
    const char* prima;
    std::vector<const char*> inainte;
    std::vector<const char*> relatii;
    std::vector<const char*> dupa;
};

const std::vector<TabelaNoua>& tabeleNoi()
{
    static const std::vector<TabelaNoua> t = {
        {"Venituri", "CerereID", {}, {"CereriVenituri"}, {"CodVenit", "Valoare"}},
        {"Locuinte", "CerereID", {}, {"CereriLocuinte"}, {"Cod", "NrCamere", "Suprafata"}},
        {"Bife", "NrBifa", {}, {}, {"Denumire"}},
        {"ListaVenituri", "CodVenit", {}, {}, {"Denumire"}},
        {"Adeverinte",
         "AdevID",
         {"CerereID", "MembruID"},
         {"CereriAdeverinte", "MembriiAdeverinte"},
         {"MembruID", "TipAdeverinta", "NrAdev", "DataAdeverinta", "DataExpAdev", "DataDepunerii"}},
        {"IstoricCereri", "CerereID", {}, {"CereriIstoricCereri"}, {"Tranzactie", "DataTranzactie", "MotivTranzactie"}},
        {"Politii", "PolitiaID", {}, {}, {"Denumire", "LocalitateID"}},
        {"Scoli", "ScoalaID", {}, {}, {"Denumire", "LocalitateID"}},
        {"Motive", "MotivID", {}, {}, {"Denumire"}},
    };
    return t;
}

// The code list rows that later releases brought, in the order they are tested.
const std::vector<std::pair<int, int>>& randuriDateGenNoi()
{
    static const std::vector<std::pair<int, int>> r = {{1, 7},  {1, 8},  {29, 1}, {29, 2}, {30, 1}, {30, 2}, {30, 3},
                                                       {30, 4}, {30, 5}, {31, 1}, {31, 2}, {31, 3}, {30, 6}};
    return r;
}

Camp campSchema(const QString& tabela, const QString& coloana)
{
    if (const Tabela* t = GasesteTabela(tabela))
        for (const Camp& c : t->campuri)
            if (c.nume.compare(coloana, Qt::CaseInsensitive) == 0)
                return c;
    throw Eroare(3265, QStringLiteral("Coloana %1.%2 nu face parte din schema programului.").arg(tabela, coloana),
                 QStringLiteral("ActualizeazaBD"));
}

const Legatura& legaturaSchema(const QString& tabela, const QString& nume)
{
    if (const Tabela* t = GasesteTabela(tabela))
        for (const Legatura& l : t->legaturi)
            if (l.nume == nume)
                return l;
    throw Eroare(3265, QStringLiteral("Relatia %1 nu face parte din schema programului.").arg(nume),
                 QStringLiteral("ActualizeazaBD"));
}

class Actualizare {
public:
    Actualizare(BD& bd, const QString& folder) : m_bd(bd), m_def(bd), m_folder(folder) {}

    void ruleaza()
    {
        int nr = 0;
        for (const GrupColoane& g : grupuriColoane())
            grup(++nr, QString::fromLatin1(g.tabela), [&] { coloane(g); });
        grup(++nr, QStringLiteral("tabele noi"), [&] {
            for (const TabelaNoua& t : tabeleNoi())
                tabelaNoua(t);
        });
        grup(++nr, QStringLiteral("Strazi"), [&] {
            adauga(QStringLiteral("Strazi"), QStringLiteral("OfPostal"));
            adauga(QStringLiteral("Strazi"), QStringLiteral("CodPostal"));
        });
        grup(++nr, QStringLiteral("ListaVenituri"), [&] {
            semanat(QStringLiteral("ListaVenituri"), QStringLiteral("CodVenit"), QStringLiteral("Venituri.txt"), 80,
                    false);
        });
        grup(++nr, QStringLiteral("Bife"),
             [&] { semanat(QStringLiteral("Bife"), QStringLiteral("NrBifa"), QStringLiteral("bife.txt"), 20, true); });
        grup(++nr, QStringLiteral("DateGen"), [&] { dateGen(); });
        grup(++nr, QStringLiteral("Barem"), [&] { barem(); });
        // History rows written before they carried their day of effect get it in the step that
        // adds the column: an office whose history has it is not read again at each start.
        const bool faraDinData = m_def.TabelaExista(QStringLiteral("IstoricCereri")) &&
                                 !m_def.CampExista(QStringLiteral("IstoricCereri"), QStringLiteral("DinData"));
        grup(++nr, QStringLiteral("restul schemei"), [&] {
            restulSchemei();
            if (faraDinData)
                CompleteazaZiuaEfectului(m_bd);
        });
        grup(++nr, QStringLiteral("precizia suprafetelor"), [&] { precizieDubla(); });
        grup(++nr, QStringLiteral("jurnalul lunilor"), [&] { jurnalLuni(); });
        grup(++nr, QStringLiteral("chei pe 32 de biti"), [&] { cheiLungi(); });
    }

private:
    void grup(int nr, const QString& nume, const std::function<void()>& f)
    {
        try {
            Tranzactie t(m_bd);
            f();
            t.confirma();
        } catch (const Eroare& e) {
            throw Eroare(e.numar,
                         QStringLiteral("Actualizarea bazei de date s-a oprit la pasul %1 (%2). Pasii de dinainte sunt "
                                        "incheiati; acesta nu a schimbat nimic.\n%3")
                             .arg(nr)
                             .arg(nume, e.descriere),
                         e.sursa);
        }
    }

    void adauga(const QString& tabela, const QString& coloana)
    {
        if (!m_def.CampExista(tabela, coloana))
            m_def.AdaugaCamp(tabela, campSchema(tabela, coloana));
    }

    // An obsolete column goes; a failure is told and the upgrade goes on without it.
    void sterge(const QString& tabela, const QString& coloana)
    {
        if (!m_def.CampExista(tabela, coloana))
            return;
        try {
            Tranzactie t(m_bd);
            m_def.StergeCamp(tabela, coloana);
            t.confirma();
        } catch (const Eroare& e) {
            Mesaj(QStringLiteral("Eroare in DeleteField la tabela: ") + tabela + QStringLiteral(", campul: ") +
                      coloana + QLatin1Char('\n') + QString::number(e.numar) + QLatin1Char(' ') + e.descriere +
                      QLatin1Char(' ') + e.sursa,
                  Mesaje::Icon::Critic);
        }
    }

    void coloane(const GrupColoane& g)
    {
        const QString tabela = QString::fromLatin1(g.tabela);
        for (const Pas& p : g.pasi) {
            const QString c = QString::fromLatin1(p.coloana);
            switch (p.fel) {
            case Pas::Adauga: adauga(tabela, c); break;
            case Pas::Sterge: sterge(tabela, c); break;
            case Pas::Redenumeste:
                if (m_def.CampExista(tabela, c))
                    m_def.RedenumesteCamp(tabela, c, QString::fromLatin1(p.nou));
                break;
            case Pas::RecalculVenit:
                if (m_def.CampExista(tabela, c))
                    recalculVenitTotal();
                break;
            }
        }
    }

    // The only migration of data: the total income of an application was once kept in two
    // columns. It runs before they go, so that it runs once per file.
    void recalculVenitTotal()
    {
        const QString alte = m_def.CampExista(QStringLiteral("Cereri"), QStringLiteral("VenitAlte"))
                                 ? QStringLiteral(" + COALESCE(VenitAlte, 0)")
                                 : QString();
        const int n = m_bd.executa(
            QStringLiteral("UPDATE Cereri SET VenitTotal = ROUND(COALESCE(VenitPermanent, 0)%1, 4)").arg(alte));
        Mesaj(QString::number(n) + QStringLiteral(" cereri calculate"));
    }

    void relatie(const QString& tabela, const QString& nume)
    {
        // A relation that could not be made is told once a start, by the step that tried first.
        if (m_relatiiEsuate.contains(nume) || m_def.RelatieExista(nume))
            return;
        try {
            Tranzactie t(m_bd);
            m_def.CreeazaRelatie(legaturaSchema(tabela, nume), tabela);
            t.confirma();
        } catch (const Eroare& e) {
            m_relatiiEsuate.insert(nume);
            Mesaj(QStringLiteral("Relatia ") + nume + QStringLiteral(" nu a putut fi creata. ") + QLatin1Char('\n') +
                      QString::number(e.numar) + e.descriere + e.sursa,
                  Mesaje::Icon::Critic);
        }
    }

    void tabelaNoua(const TabelaNoua& t)
    {
        const QString tabela = QString::fromLatin1(t.tabela);
        if (!m_def.TabelaExista(tabela))
            m_def.CreeazaTabela(tabela, campSchema(tabela, QString::fromLatin1(t.prima)));
        for (const char* c : t.inainte)
            adauga(tabela, QString::fromLatin1(c));
        for (const char* r : t.relatii)
            relatie(tabela, QString::fromLatin1(r));
        for (const char* c : t.dupa)
            adauga(tabela, QString::fromLatin1(c));
    }

    // A list seeded from a text file of the office folder, one row a line, when it does not
    // hold its number of rows. The income list keeps its old rows; the check list is emptied
    // first.
    void semanat(const QString& tabela, const QString& cheie, const QString& fisier, int randuri, bool golesteInainte)
    {
        const int n = m_bd.scalar(QStringLiteral("SELECT COUNT(%1) AS NrRanduri FROM %2").arg(cheie, tabela)).toInt();
        if (n == randuri)
            return;
        Mesaj(QStringLiteral("In tabela %1 exista %2 randuri").arg(tabela).arg(n));
        QFile f(QDir(m_folder).filePath(fisier));
        if (!f.exists()) {
            Mesaj(QStringLiteral("Fisierul %1 nu exista in %2").arg(fisier, m_folder));
            return;
        }
        if (!f.open(QIODevice::ReadOnly))
            throw Eroare(CodEroare::FisierDeschis, QStringLiteral("Fisierul %1 nu poate fi citit.").arg(f.fileName()),
                         QStringLiteral("ActualizeazaBD"));
        QStringList linii = QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'));
        if (!linii.isEmpty() && linii.last().isEmpty())
            linii.removeLast();
        if (linii.size() < randuri) {
            Mesaj(QStringLiteral("Fisierul %1 din %2 are %3 randuri, in loc de %4. Tabela %5 a ramas neschimbata.")
                      .arg(fisier, m_folder)
                      .arg(linii.size())
                      .arg(randuri)
                      .arg(tabela));
            return;
        }
        if (golesteInainte)
            m_bd.executa(QStringLiteral("DELETE FROM %1").arg(tabela));
        const QString sql = QStringLiteral("INSERT INTO %1 (%2, Denumire) VALUES (?, ?)").arg(tabela, cheie);
        for (int i = 0; i < randuri; ++i) {
            QString linie = linii[i];
            if (linie.endsWith(QLatin1Char('\r')))
                linie.chop(1);
            m_bd.executa(sql, {i + 1, linie});
        }
    }

    void dateGen()
    {
        QSet<QPair<int, int>> exista;
        Rezultat r = m_bd.selecteaza(QStringLiteral("SELECT Tip, DataID FROM DateGen WHERE Tip IN (1, 29, 30, 31)"));
        while (r.next())
            exista.insert({r.valoare(0).toInt(), r.valoare(1).toInt()});
        for (const auto& [tip, id] : randuriDateGenNoi()) {
            if (exista.contains({tip, id}))
                continue;
            for (const RandDateGen& d : RanduriDateGen())
                if (d.tip == tip && d.dataId == id) {
                    m_bd.executa(QStringLiteral("INSERT INTO DateGen (Denumire, Tip, DataID, Continut, Ordine) "
                                                "VALUES (?, ?, ?, ?, ?)"),
                                 {d.denumire, d.tip, d.dataId, d.continut, d.ordine});
                    break;
                }
        }
    }

    // The fraction rows of the scale in force from 2012, each "COMPLEMENTAR".
    void barem()
    {
        const QVariant inceput = DataPentruBD(QDate(2012, 1, 1));
        struct Cheie {
            int tip, nrPers;
            double suma;
        };
        std::vector<Cheie> exista;
        Rezultat r =
            m_bd.selecteaza(QStringLiteral("SELECT Tip, NrPers, Suma FROM Barem WHERE DataInceput = ?"), {inceput});
        while (r.next())
            exista.push_back({r.valoare(0).toInt(), r.valoare(1).toInt(), r.valoare(2).toDouble()});
        for (const RandBarem& b : RanduriBaremFractii()) {
            bool gasit = false;
            for (const Cheie& c : exista)
                gasit = gasit || (c.tip == b.tip && c.nrPers == b.nrPers && qFuzzyCompare(c.suma, b.suma));
            if (gasit)
                continue;
            m_bd.executa(
                QStringLiteral("INSERT INTO Barem (Tip, Descriere, NrPers, Barem, Suma, PerPers, BaremPerPers, "
                               "DataInceput) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                {b.tip, QStringLiteral("COMPLEMENTAR"), b.nrPers, b.barem, b.suma, false, 0, inceput});
        }
    }

    // What the present schema holds beyond the steps above: whole tables, columns, relations
    // and indexes that a file of any older release may lack.
    void restulSchemei()
    {
        for (const Tabela& t : TabeleOficiu()) {
            if (!m_def.TabelaExista(t.nume)) {
                CreeazaTabelaSchema(m_bd, t);
                continue;
            }
            for (const Camp& c : t.campuri)
                if (!m_def.CampExista(t.nume, c.nume))
                    m_def.AdaugaCamp(t.nume, c);
            for (const Legatura& l : t.legaturi)
                relatie(t.nume, l.nume);
            int n = 0;
            for (const QStringList& idx : t.indexuri) {
                const QString nume = NumeIndex(t, ++n);
                if (!m_def.IndexExista(nume))
                    m_def.CreeazaIndex(nume, t.nume, idx);
            }
        }
    }

    // A server database made by an older release keeps its areas in single precision, which
    // changes their digits: the columns become double precision, each value read back as the
    // server wrote it (55.123455, not 55.12345504760742).
    void precizieDubla()
    {
        if (m_bd.motor() != BD::Motor::PostgreSQL)
            return;
        for (const Tabela& t : TabeleOficiu())
            for (const Camp& c : t.campuri) {
                if (c.tip != TipCamp::Simplu)
                    continue;
                const QVariant tip =
                    m_bd.scalar(QStringLiteral("SELECT data_type FROM information_schema.columns WHERE table_schema = "
                                               "current_schema() AND table_name = lower(?) AND column_name = lower(?)"),
                                {t.nume, c.nume});
                if (tip.toString() == QLatin1String("real"))
                    m_bd.executa(QStringLiteral("ALTER TABLE %1 ALTER COLUMN %2 TYPE DOUBLE PRECISION "
                                                "USING CAST(CAST(%2 AS TEXT) AS DOUBLE PRECISION)")
                                     .arg(t.nume, c.nume));
            }
    }

    // The months closed before the journal existed enter it with what LuniInchise kept: the
    // last close and the last reopening of each.
    void jurnalLuni()
    {
        if (m_bd.scalar(QStringLiteral("SELECT COUNT(*) FROM JurnalLuni")).toLongLong() > 0)
            return;
        m_bd.executa(QStringLiteral(
            "INSERT INTO JurnalLuni (JurnalID, An, Luna, Fel, Data, Statie, Utilizator, Motiv, Familii, Copii, Suma) "
            "SELECT (SELECT COUNT(*) FROM LuniInchise X WHERE X.An * 12 + X.Luna <= L.An * 12 + L.Luna), L.An, L.Luna, "
            "1, L.DataInchidere, L.StatieInchidere, L.UtilizatorInchidere, NULL, T.Familii, T.Copii, T.Suma "
            "FROM LuniInchise L LEFT JOIN TotaluriLuna T ON T.An = L.An AND T.Luna = L.Luna AND T.TipCerere = 0 "
            "WHERE L.DataInchidere IS NOT NULL"));
        m_bd.executa(QStringLiteral(
            "INSERT INTO JurnalLuni (JurnalID, An, Luna, Fel, Data, Statie, Utilizator, Motiv) "
            "SELECT (SELECT COUNT(*) FROM LuniInchise) + (SELECT COUNT(*) FROM LuniInchise X WHERE X.An * 12 + X.Luna "
            "<= L.An * 12 + L.Luna), L.An, L.Luna, 2, L.DataRedeschidere, L.StatieRedeschidere, "
            "L.UtilizatorRedeschidere, L.MotivRedeschidere FROM LuniInchise L WHERE L.DataRedeschidere IS NOT NULL"));
    }

    // The keys of the cases, and every column that holds one, were 16-bit numbers in the files
    // of older releases; they are long integers now, so that an office of many years does not
    // run out of family numbers. A column of another type takes the schema's, its rows kept.
    void cheiLungi()
    {
        static const QStringList chei{QStringLiteral("CerereID"), QStringLiteral("FamilieID"),
                                      QStringLiteral("MembruID"), QStringLiteral("MembruID1"),
                                      QStringLiteral("MembruID2")};
        for (const Tabela& t : TabeleOficiu()) {
            std::vector<Camp> deSchimbat;
            for (const Camp& c : t.campuri)
                if (chei.contains(c.nume) && m_def.CampExista(t.nume, c.nume) && !m_def.AreTipul(t.nume, c))
                    deSchimbat.push_back(c);
            m_def.SchimbaTipuri(t.nume, deSchimbat);
        }
    }

    BD& m_bd;
    DefinitiiBD m_def;
    QString m_folder;
    QSet<QString> m_relatiiEsuate;
};

} // namespace

void CompleteazaZiuaEfectului(const BD& bd)
{
    bd.executa(QStringLiteral(
        "UPDATE IstoricCereri SET DinData = COALESCE((SELECT D.DinData FROM Dispozitii D WHERE D.DispozitieID = "
        "IstoricCereri.DispozitieID), DataTranzactie) WHERE DinData IS NULL AND NOT (COALESCE(DispozitieID, 0) = 0 "
        "AND StareVeche = Tranzactie AND CuantumVechi = Cuantum AND NrCopiiVechi = NrCopii)"));
}

void ActualizeazaBD(BD& bd, const QString& folderOficiu)
{
    const PauzaCheiStraine pauza(bd);
    Actualizare(bd, QDir::fromNativeSeparators(folderOficiu)).ruleaza();
}

QString ColoanaDupaActualizare(const QString& tabela, const QString& coloana)
{
    for (const GrupColoane& g : grupuriColoane()) {
        if (tabela.compare(QLatin1String(g.tabela), Qt::CaseInsensitive) != 0)
            continue;
        for (const Pas& p : g.pasi) {
            if (coloana.compare(QLatin1String(p.coloana), Qt::CaseInsensitive) != 0)
                continue;
            if (p.fel == Pas::Redenumeste)
                return QString::fromLatin1(p.nou);
            if (p.fel == Pas::Sterge)
                return QString();
        }
    }
    return coloana;
}
