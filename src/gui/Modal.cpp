#include "gui/Modal.h"

#include <vector>

namespace {
std::vector<HookModal> g_hooks;
}

int DeschideModal(QDialog& d)
{
    if (!g_hooks.empty()) {
        // A copy: the hook may install or remove hooks while it runs.
        const HookModal hook = g_hooks.back();
        d.setResult(QDialog::Rejected);
        d.show();
        hook(d);
        d.hide();
        return d.result();
    }
    return d.exec();
}

void SeteazaHookModal(HookModal hook)
{
    if (hook)
        g_hooks.push_back(std::move(hook));
    else if (!g_hooks.empty())
        g_hooks.pop_back();
}
