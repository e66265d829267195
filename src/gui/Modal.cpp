#include "gui/Modal.h"

namespace {
HookModal g_hook;
}

int DeschideModal(QDialog& d)
{
    if (g_hook) {
        d.setResult(QDialog::Rejected);
        d.show();
        g_hook(d);
        d.hide();
        return d.result();
    }
    return d.exec();
}

void SeteazaHookModal(HookModal hook)
{
    g_hook = std::move(hook);
}
