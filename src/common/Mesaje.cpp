#include "common/Mesaje.h"

#include <QStringList>
#include <cstdio>

namespace {
MesajeConsola g_consola;
Mesaje* g_curent = nullptr;
} // namespace

Mesaje& Mesaje::curent()
{
    return g_curent ? *g_curent : g_consola;
}

void Mesaje::seteaza(Mesaje* m)
{
    g_curent = m;
}

void Mesaj(const QString& text, Mesaje::Icon icon, const QString& titlu)
{
    Mesaje::curent().arata(text, titlu, icon);
}

bool Intrebare(const QString& text, const QString& titlu, bool implicitDa)
{
    return Mesaje::curent().intreaba(text, titlu, Mesaje::Icon::Intrebare, implicitDa);
}

void MesajeConsola::arata(const QString& text, const QString&, Icon)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::fflush(stderr);
}

bool MesajeConsola::intreaba(const QString& text, const QString&, Icon, bool implicitDa)
{
    std::fprintf(stderr, "%s [%s]\n", qPrintable(text), implicitDa ? "Da" : "Nu");
    return implicitDa;
}

std::optional<QString> MesajeConsola::citeste(const QString&, const QString&, const QString& implicit)
{
    return implicit;
}

MesajeTemporare::MesajeTemporare(Mesaje& m) : m_vechi(&Mesaje::curent())
{
    Mesaje::seteaza(&m);
}

MesajeTemporare::~MesajeTemporare()
{
    Mesaje::seteaza(m_vechi);
}
