#pragma once
#include <QString>

// Files and settings: the check of a path, whole-file text, one INI key.
class FisiereHelper {
public:
    enum Stare { Exista = 0, FisierLipsa = 1, LocatieInaccesibila = 2, Abandonat = 10 };

    // 0 the file is there, 1 its folder answers and the file is missing, 2 the folder does
    // not answer (missing, unreadable, or the path names a folder where a file should be).
    int VerificaCale(const QString& cale) const;
    // The whole file as one text; empty when it cannot be read.
    QString CitesteText(const QString& cale) const;
    // Creates or replaces the file with exactly that text; throws Eroare 70 when it cannot.
    void ScrieText(const QString& cale, const QString& text) const;
    QString CitesteIni(const QString& cheie, const QString& sectiune, const QString& fisier) const;
    bool ScrieIni(const QString& cheie, const QString& sectiune, const QString& fisier, const QString& valoare) const;
};
