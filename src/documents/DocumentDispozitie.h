#pragma once
#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QVariantList>
#include <memory>
#include <optional>

class BD;
class Umplere;
struct Setari;

// The mayor's disposition, filled from its template by the kind of decision (Actiune):
// 1 acordare.rtf, 2 modificare.rtf, 3 suspendare.rtf, 4 respingere.rtf, 5 incetare.rtf,
// 6 reluare.rtf. Empty for any other value.
QString NumeSablonDispozitie(int actiune);

// Replaces the disposition markers of the body from the record of Dispozitii, its application,
// the titular, the family and the town hall data. False when it stopped; the reason was told.
bool CompleteazaDispozitia(qint64 dispozitieId, QByteArray& corp, const Setari& s, const BD& bd);

// The same fill for the many dispositions of one run: their rows read a few hundred at a
// time by one statement (citeste, before the first fill; a disposition not read is read when
// it comes), the town hall's row and the scale rows once.
class CompletareDispozitii {
public:
    CompletareDispozitii(const Setari& s, const BD& bd);
    ~CompletareDispozitii();
    CompletareDispozitii(const CompletareDispozitii&) = delete;
    CompletareDispozitii& operator=(const CompletareDispozitii&) = delete;

    void citeste(const QList<qint64>& dispozitii);
    // The kind of a disposition that was read; invalid when there is no such disposition.
    QVariant actiune(qint64 dispozitieId) const;
    bool completeaza(qint64 dispozitieId, QByteArray& corp);
    bool completeaza(qint64 dispozitieId, Umplere& corp);

private:
    struct Rand;
    bool completeazaRand(qint64 id, Umplere& corp);

    const Setari& m_s;
    const BD& m_bd;
    QHash<qint64, std::shared_ptr<Rand>> m_randuri;
    bool m_primarieCitita = false;
    std::optional<QVariantList> m_primarie;
    QHash<QString, QString> m_barem;
};

// The scale value of #barem#: the 2012 scale row for the application's type, children
// (4 for four or more) and income tier (below 200: 0.4; 200 up to 370: 0.74).
QString ValoareBaremDocument(const BD& bd, int tipCerere, qint64 nrCopii, double venitPeMembru);

// The whole document of one disposition, ready to write; nothing when it stopped (an unknown
// Actiune stops without a word, everything else says why).
std::optional<QByteArray> DocumentulDispozitiei(qint64 dispozitieId, const Setari& s, const BD& bd);
