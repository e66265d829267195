// alocatii-admin: the command-line tool over the program's logic, for the office's IT person
// and for scripted checks.
#include "admin/Comenzi.h"
#include "common/Eroare.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <algorithm>
#include <memory>

int main(int argc, char** argv)
{
    // Drawing pages (the printed forms, a report's PDF) needs the fonts of a GUI application: the
    // commands that draw get one, on the minimal platform (with its fonts) since the tool shows no window.
    std::unique_ptr<QCoreApplication> app;
    const bool deseneaza = argc > 1 && (qstrcmp(argv[1], "formular") == 0 || qstrcmp(argv[1], "bench") == 0);
    if (deseneaza || std::any_of(argv, argv + argc, [](const char* a) { return qstrcmp(a, "--pdf") == 0; })) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QStringList arg = app->arguments().mid(1);
    auto& comenzi = Comenzi();
    std::sort(comenzi.begin(), comenzi.end(), [](const Comanda& a, const Comanda& b) { return a.nume < b.nume; });
    if (arg.isEmpty() || arg[0] == QLatin1String("--help") || arg[0] == QLatin1String("-h")) {
        ScrieLinie(QStringLiteral("Utilizare: alocatii-admin COMANDA [argumente]"));
        for (const Comanda& c : comenzi)
            ScrieLinie(QStringLiteral("  ") + c.ajutor);
        ScrieLinie(QStringLiteral("Orice comanda cu --office DIR primeste si --server URI: baza de date de pe server "
                                  "(altfel cea numita de ServerBD din DIR/setariTarnava.ini, altfel DIR/Tarnava.db)."));
        return arg.isEmpty() ? 2 : 0;
    }
    const QString nume = arg.takeFirst();
    for (const Comanda& c : comenzi) {
        if (c.nume != nume)
            continue;
        try {
            return c.ruleaza(arg);
        } catch (const Eroare& e) {
            ScrieEroare(e.text());
            return 1;
        } catch (const std::exception& e) {
            ScrieEroare(QStringLiteral("Eroare: ") + QString::fromLocal8Bit(e.what()));
            return 1;
        }
    }
    ScrieEroare(QStringLiteral("Comanda necunoscuta: %1. Vedeti alocatii-admin --help.").arg(nume));
    return 2;
}
