#pragma once
#include <QDialog>
#include <functional>

// Every modal window is opened through here, so that a test can open, fill and accept a
// dialog without a nested event loop blocking it: with a hook installed, the hook gets the
// dialog (already shown) instead of exec(), and its result is what the hook left.
int DeschideModal(QDialog& d);

using HookModal = std::function<void(QDialog&)>;
// Installs a hook for the next modal windows; hooks stack up, the newest answers, and an
// empty hook removes the newest.
void SeteazaHookModal(HookModal hook);
