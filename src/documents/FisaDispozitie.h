#pragma once
#include <QByteArray>
#include <QDate>
#include <QString>
#include <optional>

class BD;

// The calculation sheet of one disposition (fisadispozitie.rtf from the folder acte of CaleBD):
// the figures stored when the disposition was saved, never computed again, so that a sheet
// printed a year later shows what was decided then. The application's own sheet (fisa.rtf)
// stays as it is, with the application's present figures.

inline const QString SablonFisaDispozitie = QStringLiteral("fisadispozitie.rtf");
inline const QString DocumentFisaDispozitie = QStringLiteral("FisaDispozitie.rtf");
// The members' table of the template has room for this many rows.
constexpr int RanduriFisaDispozitie = 12;

// The markers filled from the stored calculation; false with the reason told (a disposition
// saved before calculations were stored has none).
bool CompleteazaFisaDispozitie(qint64 dispozitieId, const QDate& dataFisa, QByteArray& corp, const BD& bd);

// The whole document, ready to write; nothing when it stopped (the reason was told). An office
// made by an older release gets the template from the program's own copy first.
std::optional<QByteArray> DocumentulFiseiDispozitiei(qint64 dispozitieId, const QDate& dataFisa, const BD& bd);
