#pragma once
#include "MesajeScript.h"
#include "OficiuTest.h"

#include <QObject>

#include <memory>

// The base of a test class whose cases need an office and scripted messages. `PeCaz`: a fresh
// office for every case. `PeClasa`: one office for the whole class, each case in a transaction
// rolled back after it, so that the cases leave nothing to one another.
class TestCuOficiu : public QObject {
    Q_OBJECT
public:
    enum class Oficiu { PeCaz, PeClasa };
    explicit TestCuOficiu(Oficiu fel = Oficiu::PeCaz) : m_fel(fel) {}

protected:
    // Once the office is made: the rows that all its cases share.
    virtual void pregatesteOficiul() {}
    // Before every case, with the office and the messages in place.
    virtual void pregateste() {}
    // After every case, before the messages and a per-case office go.
    virtual void curata() {}

    BD& bd() const { return m_oficiu->bd(); }

    std::unique_ptr<OficiuTest> m_oficiu;
    std::unique_ptr<MesajeScript> m_mesaje;

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

private:
    Oficiu m_fel;
};
