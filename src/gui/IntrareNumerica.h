#pragma once

class QLineEdit;

// The number boxes of the editors take only digits and the point (backspace and the editing
// keys keep working); `maxim` characters at most, 0 for no limit.
void DoarCifreSiPunct(QLineEdit* e, int maxim = 0);
