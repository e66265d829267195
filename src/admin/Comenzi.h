#pragma once
#include <QJsonValue>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

// The commands of alocatii-admin, one file each; each registers itself with a static
// ComandaInregistrata. A command gets its arguments (without its name) and returns the exit code.
struct Comanda {
    QString nume;
    QString ajutor; // one line of usage
    std::function<int(const QStringList&)> ruleaza;
};

std::vector<Comanda>& Comenzi();

struct ComandaInregistrata {
    ComandaInregistrata(QString nume, QString ajutor, std::function<int(const QStringList&)> f)
    {
        Comenzi().push_back({std::move(nume), std::move(ajutor), std::move(f)});
    }
};

// Small helpers for the commands' arguments and output.
// The value after an option ("--office DIR"), empty when absent.
QString Optiune(const QStringList& arg, const QString& nume);
bool AreOptiune(const QStringList& arg, const QString& nume);
// A whole-number option; nothing (and a message) when absent or not a number.
std::optional<qint64> OptiuneIntreaga(const QStringList& arg, const char* nume);
// The arguments that are neither options nor option values (options listed in cuValoare take
// one, and so does --server, which every command that takes --office takes too).
QStringList Pozitionale(const QStringList& arg, const QStringList& cuValoare);
// The workstation settings that the documents and reports read come from DIR/setariTarnava.ini
// when the office folder holds one, as on a workstation whose program folder is the office
// folder; otherwise the defaults. CaleBD is DIR.
void IncarcaSetariOficiu(const QString& oficiu);
// Opens the office's database for a command: the server of `--server URI` when given, else
// the one named by ServerBD in DIR/setariTarnava.ini, else DIR/Tarnava.db. The process's
// ServerBD follows, so that the routines run treat the office as the program does. With
// verificaCale the path of a file is checked first as before each action of the program
// (BazaAccesibila): false, and the reason said, when it does not answer.
bool DeschideBDOficiu(class BD& bd, const QStringList& arg, const QString& oficiu, bool verificaCale = false);
void ScrieLinie(const QString& linie); // standard output
// One JSON object or array as one line of standard output.
void ScrieJson(const QJsonValue& v);
// A built report grid as the commands write it: --pdf FILE, --xlsx FILE, or its JSON on
// standard output. The exit code: 1 when the file cannot be written.
int ScrieGridComanda(const class ReportGrid& g, const QStringList& arg);
void ScrieEroare(const QString& linie); // standard error
