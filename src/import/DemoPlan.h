#pragma once
#include <QDate>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <memory>
#include <utility>
#include <vector>

// The story of one fictitious application of the demo office: the element that goes through
// the import, and what happened to it afterwards, in the order the office would have done it.

// A mayor's disposition of the application; its number is given later, in date order.
struct DecizieDemo {
    int actiune = 0; // 1 grant .. 6 resumption
    QDate data;
    QString motiv;
};

struct CerereDemo {
    QJsonObject element; // the application as the import takes it
    QDate dataCerere;
    int stare = 0;
    // The members' CNPs with their occupations: the validity of an inquiry, and the amount
    // that the family had before its income changed.
    std::vector<std::pair<QString, int>> membri;
    // The income per member before the last change (statuses 4 and 7), "" when it never changed.
    QString venitPeMembruAnterior;
    std::vector<DecizieDemo> decizii; // in date order
    std::vector<QDate> anchete;       // the first one, then one every six months
    int tipLocuinta = 0;              // list 4, the same as the housing of the application
    int regimJuridic = 0;             // list 5
    int nrCamere = 0;
    int suprafata = 0;
};

// N applications of the last two years before `azi`, none later than `azi`, deterministic
// for a seed.
std::vector<CerereDemo> PlanDemo(int n, unsigned seed, const QDate& azi);

// The same applications one after the other, for an office of any size: only the CNPs given
// so far are kept, so that none comes twice.
class GeneratorDemo {
public:
    GeneratorDemo(unsigned seed, const QDate& azi);
    ~GeneratorDemo();
    GeneratorDemo(const GeneratorDemo&) = delete;
    GeneratorDemo& operator=(const GeneratorDemo&) = delete;

    CerereDemo urmatoarea();

private:
    struct Stare;
    std::unique_ptr<Stare> m;
    int m_i = 0;
};

// The streets and villages of the demo town with their post offices and postal codes:
// {name, post office, postal code}.
struct StradaDemo {
    const char* denumire;
    const char* ofPostal;
    const char* codPostal;
    bool blocuri; // a street of blocks of flats
};
const std::vector<StradaDemo>& StraziDemo();
