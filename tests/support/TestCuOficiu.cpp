#include "TestCuOficiu.h"

#include "common/Ceas.h"

void TestCuOficiu::initTestCase()
{
    if (m_fel == Oficiu::PeClasa) {
        m_oficiu = std::make_unique<OficiuTest>();
        pregatesteOficiul();
    }
}

void TestCuOficiu::cleanupTestCase()
{
    m_oficiu.reset();
}

void TestCuOficiu::init()
{
    if (m_fel == Oficiu::PeCaz) {
        m_oficiu = std::make_unique<OficiuTest>();
        pregatesteOficiul();
    } else
        m_oficiu->bd().incepe();
    m_mesaje = std::make_unique<MesajeScript>();
    pregateste();
}

void TestCuOficiu::cleanup()
{
    curata();
    m_mesaje.reset();
    if (m_fel == Oficiu::PeCaz)
        m_oficiu.reset();
    else
        m_oficiu->bd().anuleaza();
    Ceas::seteazaAzi(QDate());
}
