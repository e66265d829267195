#pragma once
#include <QList>
#include <QPair>
#include <QString>

// The address of a database server as an office writes it: a libpq connection string
// ("host=srv port=5432 dbname=alocatii user=birou") or URI
// ("postgresql://birou@srv:5432/alocatii?sslmode=require").
struct AdresaServer {
    QList<QPair<QString, QString>> parametri; // libpq keyword and value, in their order
    QString eroare;                           // why the text is no address; empty when it is

    static AdresaServer citeste(const QString& text);
    bool areParola() const;
    // keyword='value' pairs, as libpq reads a connection string.
    QString conninfo() const;
    // The address for messages: host, port and database, never the password.
    QString descriere() const;
    QString valoare(const QString& cheie) const;
};
