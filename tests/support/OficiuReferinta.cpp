#include "OficiuReferinta.h"

#include "DateTest.h"
#include "common/Data.h"
#include "database/BD.h"

using namespace DateTest;

namespace {

struct DateCerere {
    qint64 id;
    int stare;
    int tip;
    const char* dataStare;
    const char* nume;
    const char* prenume;
    QDate nascut;
    const char* strada; // nullptr: none
    const char* nr;
    int nrMembrii, nrCopii;
    double venit, cuantum;
    bool lege416;
    const char* dataCerere = "2012-03-05";
};

void cerere(const BD& bd, const DateCerere& d)
{
    const QVariant strada = d.strada ? QVariant(QString::fromLatin1(d.strada)) : Null;
    const QVariant nr = d.nr ? QVariant(QString::fromLatin1(d.nr)) : Null;
    Dosar(bd, d.id,
          {{"NrCerere", 200 + d.id},
           {"DataCerere", d.dataCerere},
           {"Stare", d.stare},
           {"DataStare", d.dataStare},
           {"TipCerere", d.tip},
           {"NrMembrii", d.nrMembrii},
           {"NrCopii", d.nrCopii},
           {"VenitTotal", d.venit},
           {"VenitpeMembru", d.venit / d.nrMembrii},
           {"Cuantum", d.cuantum},
           {"Lege416", d.lege416}},
          {{"MembruID", d.id * 10}, {"Nume", d.nume}, {"Prenume", d.prenume}, {"CNP", CNPNascut(d.nascut, int(d.id))}},
          {{"NrDosar", 30 + d.id}, {"Strada", strada}, {"Nr", nr}, {"Sc", d.strada ? "A" : Null}, {"Ap", Null}});
}

// A child of application `cerereId` with its own key; a pupil unless `ocupatie` says otherwise.
qint64 copil(const BD& bd, qint64 cerereId, qint64 id, const char* prenume, const QDate& nascut, int ocupatie = 8)
{
    return Persoana(bd, cerereId,
                    {{"MembruID", id},
                     {"Nume", bd.scalar(QStringLiteral("SELECT M.Nume FROM Membrii M INNER JOIN Cereri C ON "
                                                       "C.MembruID1 = M.MembruID WHERE C.CerereID = ?"),
                                        {cerereId})},
                     {"Prenume", prenume},
                     {"CNP", CNPNascut(nascut, int(id))}},
                    {{"RudenieID", 3}, {"OcupatieID", ocupatie}, {"Data18Ani", DataPentruBD(nascut.addYears(18))}});
}

void adeverinta(const BD& bd, qint64 id, qint64 cerereId, qint64 membruId, const QVariant& tip, const char* data,
                const char* expira, const QVariant& depusa)
{
    Rand(bd, QStringLiteral("Adeverinte"),
         {{"AdevID", id},
          {"CerereID", cerereId},
          {"MembruID", membruId},
          {"TipAdeverinta", tip},
          {"NrAdev", QString::number(100 + id)},
          {"DataAdeverinta", data},
          {"DataExpAdev", expira},
          {"DataDepunerii", depusa}});
}

} // namespace

void OficiuReferinta::Scrie(const BD& bd)
{
    Rand(bd, QStringLiteral("DatePrimarie"),
         {{"Denumire", "Primaria Orasului Tarnaveni"},
          {"CodFiscal", "4323365"},
          {"CodJudet", "MS"},
          {"Judet", "Mures"},
          {"Localitate", "Tarnaveni"},
          {"Str", "Piata Primariei"},
          {"Nr", "1"},
          {"Primar", "Ion Exemplu"},
          {"Secretar", "Maria Exemplu"},
          {"AsSocial", "Ana Exemplu"},
          {"CNPAsSocial", "2800101260015"},
          {"TipLocalitate", 2},
          {"OfPostal", "Tarnaveni"},
          {"CodPostal", "545600"}});
    Rand(
        bd, QStringLiteral("Strazi"),
        {{"StradaID", 1}, {"Denumire", "Florilor"}, {"LocalitateID", 1}, {"OfPostal", "OP1"}, {"CodPostal", "545601"}});
    Rand(bd, QStringLiteral("Strazi"),
         {{"StradaID", 2}, {"Denumire", "Morii"}, {"LocalitateID", 1}, {"OfPostal", "OP2"}, {"CodPostal", "545602"}});

    const DateCerere cereri[] = {
        {1, 2, 1, "2012-04-02", "POPESCU", "ION", {1978, 6, 1}, "Florilor", "12", 4, 2, 600, 82, true},
        {2, 6, 2, "2012-04-10", "IONESCU", "ANA", {1985, 2, 14}, "Morii", "3", 2, 1, 300, 45, false},
        {3, 3, 1, "2012-04-05", "VASILE", "DAN", {1980, 11, 30}, "Florilor", "7", 3, 1, 450, 30, false},
        {4, 4, 1, "2012-04-20", "MARIN", "GHEORGHE", {1975, 3, 3}, "Morii", "21", 4, 2, 1200, 0, false},
        {5, 5, 2, "2012-04-03", "DOBRE", "ELENA", {1990, 7, 7}, nullptr, nullptr, 2, 1, 900, 0, false},
        {6, 7, 1, "2012-04-12", "STAN", "MIHAI", {1983, 9, 19}, "Florilor", "9", 5, 3, 500, 75, true},
        {7, 1, 1, "2011-10-14", "NEAGU", "IOANA", {1987, 12, 24}, "Morii", "1", 3, 1, 240, 0, false, "2011-10-14"},
        {8, 8, 1, "2012-04-25", "O'BRIEN", "PATRICK", {1979, 1, 15}, nullptr, nullptr, 3, 1, 390, 55.5, false},
        {9, 2, 2, "2012-02-01", "RADU", "SORIN", {1981, 5, 5}, "Florilor", "30", 2, 1, 200, 0, false, "2011-06-20"},
    };
    for (const DateCerere& d : cereri)
        cerere(bd, d);

    // The children: one turns 18 in May 2012, one turns 7 in April 2012.
    const qint64 andrei = copil(bd, 1, 101, "ANDREI", QDate(1994, 5, 10));
    copil(bd, 1, 102, "ELENA", QDate(2005, 4, 20), 11);
    const qint64 bogdan = copil(bd, 2, 201, "BOGDAN", QDate(2001, 9, 1));
    const qint64 carmen = copil(bd, 3, 301, "CARMEN", QDate(1999, 1, 12));
    copil(bd, 6, 601, "DARIA", QDate(2003, 3, 3));
    const qint64 emil = copil(bd, 6, 602, "EMIL", QDate(2006, 6, 6), 11);
    copil(bd, 8, 801, "FLORIN", QDate(2000, 12, 12));

    // A valid school certificate (application 1), one that lapsed (application 2), and the
    // documents that lapse in April 2012: of a known type, of no type, of a type not in the list.
    adeverinta(bd, 1, 1, andrei, 3, "2011-09-15", "2012-06-30", "2011-09-20");
    adeverinta(bd, 2, 2, bogdan, 3, "2010-09-15", "2011-06-30", "2010-09-20");
    adeverinta(bd, 3, 3, carmen, Null, "2011-10-01", "2012-04-30", "2011-10-03");
    adeverinta(bd, 4, 6, emil, 99, "2011-04-12", "2012-04-12", Null);
    adeverinta(bd, 5, 1, andrei, 1, "2012-01-05", "2012-04-05", "2012-01-09");

    // The dispositions of April 2012; application 8 has none, application 6 two.
    Dispozitie(bd, 1, 1, {{"NrDisp", 10}, {"DataDisp", "2012-04-02"}, {"DinData", "2012-05-01"}, {"Cuantum", 82}});
    Dispozitie(
        bd, 2, 2,
        {{"NrDisp", 11}, {"DataDisp", "2012-04-10"}, {"DinData", "2012-05-01"}, {"Actiune", 6}, {"Cuantum", 45}});
    Dispozitie(bd, 3, 3,
               {{"NrDisp", 12}, {"DataDisp", "2012-04-05"}, {"DinData", "2012-05-01"}, {"Actiune", 3}, {"Cuantum", 0}});
    Dispozitie(bd, 4, 4,
               {{"NrDisp", 13}, {"DataDisp", "2012-04-20"}, {"DinData", "2012-05-01"}, {"Actiune", 5}, {"Cuantum", 0}});
    Dispozitie(bd, 5, 6,
               {{"NrDisp", 8}, {"DataDisp", "2012-01-10"}, {"DinData", "2012-02-01"}, {"Luna", 2}, {"Cuantum", 60}});
    Dispozitie(bd, 6, 6,
               {{"NrDisp", 14},
                {"DataDisp", "2012-04-12"},
                {"DinData", "2012-05-01"},
                {"Actiune", 2},
                {"CuantumVechi", 60},
                {"Cuantum", 75}});
    Dispozitie(bd, 7, 9,
               {{"NrDisp", 5}, {"DataDisp", "2012-01-20"}, {"DinData", "2012-02-01"}, {"Luna", 2}, {"Cuantum", 0}});
}

void OficiuReferinta::ScrieCerereCompletata(const BD& bd)
{
    DosarCompletat(bd, QStringLiteral("1800517260011"), CerereCompletata);
    Persoana(bd, CerereCompletata,
             {{"MembruID", 1201}, {"Nume", "POP"}, {"Prenume", "MARIA"}, {"CNP", CNPNascut(QDate(1982, 8, 3), 1201)}},
             {{"RudenieID", 2}, {"OcupatieID", 6}, {"CetatenieID", 1}, {"StCivila", 2}, {"Studii", 2}});
    Persoana(bd, CerereCompletata,
             {{"MembruID", 1202}, {"Nume", "POP"}, {"Prenume", "RARES"}, {"CNP", CNPNascut(QDate(2015, 2, 11), 1202)}},
             {{"RudenieID", 3},
              {"OcupatieID", 8},
              {"UScolara", "Scoala Gimnaziala nr. 1"},
              {"Clasa", "a V-a"},
              {"Data18Ani", "2033-02-11"}});
    Persoana(bd, CerereCompletata,
             {{"MembruID", 1203}, {"Nume", "POP"}, {"Prenume", "IRINA"}, {"CNP", CNPNascut(QDate(2019, 7, 1), 1203)}},
             {{"RudenieID", 3}, {"OcupatieID", 11}, {"Data18Ani", "2037-07-01"}});
    Venit(bd, CerereCompletata, 4, 1500);
    Venit(bd, CerereCompletata, 21, 250.5);
    Venit(bd, CerereCompletata, 78, 100);
    Rand(bd, QStringLiteral("Locuinte"),
         {{"CerereID", CerereCompletata}, {"Cod", 3}, {"NrCamere", 2}, {"Suprafata", 54.5}});
}
