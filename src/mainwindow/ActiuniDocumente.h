#pragma once
#include <QDate>
#include <QList>
#include <optional>

class QAction;
class QWidget;

// The document actions of the main window: each builds its document, writes it to the
// program folder and opens it in the word processor of the workstation. The window hands in
// what its lists show; these routines do the rest (checks, wait cursor, messages, opening).

// cmdPrintDisp: the selected disposition of lvwDispozitii ("Disp.rtf").
void ActiuneTiparireDispozitie(QWidget* parinte, bool listaGoala, std::optional<qint64> dispozitieId);

// cmdFisaDisp: the calculation sheet of the selected disposition, from the figures stored with
// it ("FisaDispozitie.rtf"), dated by dtpDataFisa.
void ActiuneFisaDispozitie(QWidget* parinte, bool listaGoala, std::optional<qint64> dispozitieId,
                           const QDate& dataFisa);

// cmdDeclaratie: the income declaration of the selected application ("Declar.rtf").
void ActiuneDeclaratie(QWidget* parinte, bool listaGoala, std::optional<qint64> cerereId);

// cmdFisaCalcul and mnuFisa: the calculation sheet of the selected application, dated by
// dtpDataFisa ("FisaCerere.rtf").
void ActiuneFisaCalcul(QWidget* parinte, bool listaGoala, std::optional<qint64> cerereId, const QDate& dataFisa);

// mnuAnexa2, "Tiparire toate dispozitiile ...": the dispositions chosen in frmAnexa2, in one
// document. The menu entry, when given, reads "Opreste tiparirea" while the run lasts.
void ActiuneTiparireToateDispozitiile(QWidget* parinte, QAction* meniu = nullptr);

// mnuToateDisp, "Generare dispozitii ...": the latest disposition of every application of a
// number range, in one document.
void ActiuneToateDispozitiile(QWidget* parinte, QAction* meniu = nullptr);
// The dispositions of the list (those a change of the scale has just issued), in one document.
void ActiuneTiparireDispozitiile(QWidget* parinte, const QList<qint64>& dispozitii);
